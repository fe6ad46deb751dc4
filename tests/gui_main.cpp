// The screen tests run in one offscreen application, as the program does.
#include <gtest/gtest.h>

#include <QApplication>

#include "frame/gui/screen.h"

int main(int argc, char** argv) {
  // An offscreen platform given with options (a screen of a set size) stays.
  if ((qEnvironmentVariableIsEmpty("DISPLAY") || qEnvironmentVariableIsSet("VOREL_OFFSCREEN")) &&
      !qgetenv("QT_QPA_PLATFORM").startsWith("offscreen:"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 10));
  vorel::gui::registerAllScreens();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
