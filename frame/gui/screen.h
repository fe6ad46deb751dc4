// Screens: borderless top-level windows, one instance each, shown, hidden or
// unloaded by name. The first show loads a screen (formLoad); every show
// activates it (formActivate); hiding keeps all it holds; unloading destroys it.
#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "frame/navigation.h"
#include "frame/screen_description.h"

class QHBoxLayout;
class QVBoxLayout;

namespace vorel::gui {

class PictureButton;

// The part of the display a window may take: the available geometry of its
// screen (without panels and task bars), in the program's pixels.
QRect screenArea(const QWidget& widget);
// Sizes a window to what it holds, never beyond its screen's area, and keeps
// it on that area (a screen at the program's place, see Screens::place).
void fitWindow(QWidget& window);
// Moves a window back onto its screen's area where it stands partly off it.
void keepOnScreen(QWidget& window);
// A word-wrapped text at most `width` wide, in a row of its own. A column asks
// a label its height at the column's width, which for a label held narrower
// is too few lines, and the controls below lose the difference; a row asks it
// at the width the label gets.
QHBoxLayout* paragraph(QLabel* label, int width);

class Screen : public QWidget {
  Q_OBJECT
 public:
  explicit Screen(const std::string& name);
  const std::string& name() const { return name_; }
  const nav::ScreenInfo* info() const { return info_; }

  virtual void formLoad() {}
  virtual void formActivate() {}

  // Runs a command handler; a run-time error goes to the platform, which
  // shows it and ends the process.
  static void run(const std::function<void()>& handler);

  // A picture that acts as a command, wired through run().
  PictureButton* command(const QString& objectName, const QString& picture, const QString& toolTip,
                         std::function<void()> handler, int size = 36);
  // The same, from a description's command.
  PictureButton* command(const ui::Command& c, std::function<void()> handler);

 protected:
  // The body of the window, below the header band with the chrome; it
  // scrolls where the window would not fit the screen.
  QVBoxLayout* body() const { return body_; }
  QHBoxLayout* chromeBar() const { return chrome_; }
  void setHeading(const QString& text);
  void setAccent(const QColor& color);

  // Tab and Shift+Tab go in reading order (keyboard.h).
  bool focusNextPrevChild(bool next) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void buildChrome();

  std::string name_;
  const nav::ScreenInfo* info_;
  QVBoxLayout* body_;
  QHBoxLayout* chrome_;
  QLabel* heading_;
  QColor accent_;
  QPoint dragFrom_;
};

using ScreenFactory = std::function<Screen*()>;

// The screens of the process by name, created on first show.
class Screens {
 public:
  static Screens& instance();

  void add(const std::string& name, ScreenFactory factory);
  bool available(const std::string& name) const { return factories_.count(name) > 0; }

  Screen* show(const std::string& name);
  void hide(const std::string& name);
  void unload(const std::string& name);
  Screen* loaded(const std::string& name) const;  // null when not loaded
  template <class T>
  T* loadedAs(const std::string& name) const {
    return dynamic_cast<T*>(loaded(name));
  }
  // The screen, loaded first if it is not (as reading another form's control does).
  Screen* load(const std::string& name);

  // volver, gohome and cerrar as the screen tree says.
  void volver(Screen& from);
  void gohome(Screen& from);
  void cerrar(Screen& from);

  // Where the program's windows stand: the place of the first, in the middle of
  // the screen, until the student drags one elsewhere. Every window shown, and
  // every window that changes size, goes there, moved only as far as it must
  // be to stay on the screen; so going from an entry to its solution and back,
  // or through the menus, keeps the place the student is looking at, and a
  // window that had to move up for a tall solution comes back down after it.
  void place(Screen& screen);
  // A window dragged to where it now stands.
  void moved(const Screen& screen);

  // Unloads every screen (tests: a fresh process).
  void reset();
  int loadedCount() const { return static_cast<int>(loaded_.size()); }
  // Called when the last loaded screen is unloaded; the application quits.
  std::function<void()> onNoScreenLoaded;

 private:
  std::map<std::string, ScreenFactory> factories_;
  std::map<std::string, Screen*> loaded_;
  std::optional<QPoint> place_;
};

// Registers every screen of the program (menus, start, models).
void registerAllScreens();

}  // namespace vorel::gui
