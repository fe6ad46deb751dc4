#include <QApplication>
#include <QPainter>
#include <QPdfWriter>

#include "cli/pdf.h"
#include "frame/gui/chart_view.h"
#include "frame/gui/printing.h"

namespace vorel::cli {

void handOverPdf(char**) {}  // this program writes PDF itself

bool writePdf(const Pages& pages, const std::string& path, std::string& error) {
  const Report& page = pages.page;
  if (!QGuiApplication::instance()) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "vorel-report";
    static char* argv[] = {name, nullptr};
    new QApplication(argc, argv);  // charts are graphics widgets
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
  gui::paintPage(painter, page, 0, [&writer] { writer.newPage(); });
  if (!pages.chart.empty())
    gui::paintChart(painter, pages.chart,
                    gui::chartPlace(pages.chart, painter.viewport(), writer.resolution()));
  painter.end();
  return true;
}

}  // namespace vorel::cli
