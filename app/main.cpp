// vorel: the desktop program. It reads no arguments: it shows the start
// screen, which after two seconds gives way to the main menu.
#include <QApplication>
#include <QFontDatabase>

#include "frame/gui/platform.h"
#include "frame/gui/printing.h"
#include "frame/gui/screen.h"
#include "frame/gui/session.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Vorel");
  QApplication::setQuitOnLastWindowClosed(false);  // the process lives while a screen is loaded
  QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 10));
  using namespace vorel::gui;
  loadSpanishDialogs(app);
  finishPrintsAtEveryEnd(app);
  Screens& screens = Screens::instance();
  screens.onNoScreenLoaded = [] { platform().endProcess(); };
  registerAllScreens();
  screens.show("AInicio");
  const int status = app.exec();
  finishPrinterDocumentAtTheEnd();
  return status;
}
