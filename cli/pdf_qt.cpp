#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include "cli/pdf.h"
#include "frame/gui/chart_view.h"
#include "frame/gui/printing.h"

namespace vorel::cli {

void handOverPdf(char**) {}  // this program writes PDF itself

bool writePdf(const Pages& pages, const std::string& path, std::string& error) {
  error = "No se pudo escribir el PDF: " + path;
  const Report& page = pages.page;
  if (!QGuiApplication::instance()) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "vorel-report";
    static char* argv[] = {name, nullptr};
    new QApplication(argc, argv);  // charts are graphics widgets
  }
  // The document is made in memory and written in one go, so that every
  // failure of the disk (a full one included) is seen where it happens.
  QBuffer document;
  document.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&document);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(300);
    gui::preparePage(writer);
    QPainter painter;
    if (!painter.begin(&writer)) return false;
    bool pagesMade = true;
    gui::paintPage(painter, page, 0, [&] { pagesMade = writer.newPage() && pagesMade; });
    if (!pages.chart.empty())
      gui::paintChart(painter, pages.chart,
                      gui::chartPlace(pages.chart, painter.viewport(), writer.resolution()));
    if (!painter.end() || !pagesMade) return false;
  }
  QFile out(QString::fromStdString(path));
  if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  const QByteArray& bytes = document.data();
  if (out.write(bytes) != bytes.size() || !out.flush()) return false;
  out.close();
  return out.error() == QFileDevice::NoError;
}

}  // namespace vorel::cli
