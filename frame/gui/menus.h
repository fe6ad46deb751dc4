// The start screen and the menus, built from the screen tree's tables.
#pragma once

#include <QTimer>

#include "frame/gui/screen.h"

namespace vorel::gui {

// AInicio: the package's pictures and labels for two seconds, then the main menu.
class StartScreen : public Screen {
  Q_OBJECT
 public:
  StartScreen();
  QTimer* Temporizador;
};

// APrincipal and the section menus: a title, an introductory text and a
// picture per choice with its label. Choices whose screen is not available
// stay disabled.
class MenuScreen : public Screen {
  Q_OBJECT
 public:
  explicit MenuScreen(const nav::MenuInfo& menu);
};

// The picture of a menu choice, by the screen it opens.
QString choicePicture(const std::string& target);
// The colour of a topic's section, by menu or screen name.
QColor sectionColor(const std::string& screen);

void registerMenuScreens();

}  // namespace vorel::gui
