#include <QApplication>
#include <QPainter>
#include <QPdfWriter>

#include "cli/pdf.h"
#include "frame/gui/chart_view.h"
#include "frame/gui/printing.h"

namespace vorel::cli {

bool writePdf(const Report& page, const Chart& chart, const std::string& path, std::string& error) {
  // Charts are graphics widgets: they need the widgets' application.
  if (!QGuiApplication::instance()) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "vorel-report";
    static char* argv[] = {name, nullptr};
    new QApplication(argc, argv);
  }
  QPdfWriter writer(QString::fromStdString(path));
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setResolution(300);
  gui::preparePage(writer);
  QPainter painter;
  if (!painter.begin(&writer)) {
    error = "No se pudo escribir el PDF: " + path;
    return false;
  }
  painter.setFont(gui::reportFont(gui::kPrinterPointSize));
  gui::paintReport(painter, page, 0, [&writer] { writer.newPage(); });
  if (!chart.empty())
    gui::paintChart(painter, chart,
                    gui::chartPlace(chart, painter.viewport(), writer.resolution()));
  painter.end();
  return true;
}

}  // namespace vorel::cli
