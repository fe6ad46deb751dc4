// A desktop process that prints two long reports into its gathered document,
// says "listo" and waits to be ended, as the program does, from outside.
#include <QApplication>
#include <QPrinter>
#include <iostream>

#include "frame/gui/platform.h"
#include "frame/gui/printing.h"
#include "frame/gui/session.h"

int main(int argc, char** argv) {
  using namespace vorel;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  if (argc != 2) return 2;
  gui::finishPrintsAtEveryEnd(app);
  gui::QtPlatform platform;
  gui::setPlatform(&platform);
  platform.printer().setOutputFormat(QPrinter::PdfFormat);
  platform.printer().setOutputFileName(QString::fromLocal8Bit(argv[1]));
  for (const char* name : {"primera", "segunda"}) {
    Report report;
    for (int line = 1; line <= 40; ++line)
      report.line(Z, std::string("Impresión ") + name + ", línea " + std::to_string(line));
    gui::printReport(report);
  }
  std::cout << "listo" << std::endl;
  return app.exec();
}
