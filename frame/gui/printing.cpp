#include "frame/gui/printing.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <functional>
#include <memory>

#include "frame/gui/platform.h"

namespace vorel::gui {

QFont reportFont(double pointSize) {
  QFont font(QStringLiteral("Arial"));
  font.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
  font.setPointSizeF(pointSize);
  font.setWeight(QFont::Normal);
  return font;
}

double averageCharWidth(const QFontMetricsF& metrics) {
  return vorel::averageCharWidth([&metrics](const std::string& s) {
    return metrics.horizontalAdvance(QString::fromStdString(s));
  });
}

double paintReport(QPainter& painter, const Report& report, double top,
                   const std::function<void()>& newPage) {
  const QFontMetricsF metrics(painter.font(), painter.device());
  const double zone = kZoneColumns * averageCharWidth(metrics);
  auto width = [&](const std::string& s) {
    return metrics.horizontalAdvance(QString::fromStdString(s));
  };
  const double bottom = painter.device()->height();
  double y = top;
  for (const LaidOutLine& line : layout(report, zone, width)) {
    if (newPage && y + metrics.lineSpacing() > bottom) {
      newPage();
      y = 0;
    }
    for (const PlacedText& piece : line)
      painter.drawText(QPointF(piece.x, y + metrics.ascent()), QString::fromStdString(piece.text));
    y += metrics.lineSpacing();
  }
  return y;
}

double paintPage(QPainter& painter, const Report& page, double top,
                 const std::function<void()>& newPage) {
  painter.setFont(reportFont(kPrinterPointSize));
  const QFontMetricsF metrics(painter.font(), painter.device());
  const double zone = kZoneColumns * averageCharWidth(metrics);
  double widest = 0;
  for (const LaidOutLine& line : layout(page, zone, [&](const std::string& s) {
         return metrics.horizontalAdvance(QString::fromStdString(s));
       }))
    for (const PlacedText& piece : line)
      widest =
          std::max(widest, piece.x + metrics.horizontalAdvance(QString::fromStdString(piece.text)));
  // A line wider than the printable area (the rule, at 12 pt) takes a
  // slightly smaller type for the whole report rather than pass the margin.
  const double room = painter.device()->width();
  if (widest > room) painter.setFont(reportFont(kPrinterPointSize * room / widest * 0.995));
  return paintReport(painter, page, top, newPage);
}

void preparePage(QPagedPaintDevice& device) {
  device.setPageMargins(QMarginsF(6, 6, 6, 6), QPageLayout::Millimeter);
}

namespace {

// The open printer document and where its next line goes.
struct Document {
  std::unique_ptr<QPainter> painter;
  double y = 0;
};

Document& document() {
  static Document d;
  return d;
}

QPainter& beginIfNeeded() {
  Document& d = document();
  if (!d.painter) {
    QPrinter& printer = platform().printer();
    preparePage(printer);
    d.painter = std::make_unique<QPainter>();
    if (!d.painter->begin(&printer)) {
      d.painter.reset();
      raise(err::PrinterError);
    }
    d.y = 0;
  }
  return *d.painter;
}

// A PDF document that was written whole ends in its end-of-file mark; one
// whose file failed (a full disk, a device that takes nothing) does not.
bool endsAsPdf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const qint64 size = file.size();
  if (size > 1024) file.seek(size - 1024);
  return file.read(1024).contains("%%EOF");
}

}  // namespace

void printReport(const Report& page) {
  Document& d = document();
  QPainter& painter = beginIfNeeded();
  auto* printer = static_cast<QPrinter*>(painter.device());
  bool newPages = true;
  d.y = paintPage(painter, page, d.y, [&] { newPages = printer->newPage() && newPages; });
  if (!newPages) {
    d.painter->end();
    d.painter.reset();
    raise(err::PrinterError);
  }
}

void printChartPage(const Report& page, const QImage& chart, double leftFraction,
                    double topFraction) {
  printReport(page);
  QPainter& painter = *document().painter;
  const QRect area = painter.viewport();
  // The picture keeps its size on paper: its pixels are taken at screen resolution.
  const double scale = painter.device()->logicalDpiX() / 96.0;
  const QRectF target(area.width() * leftFraction, area.height() * topFraction,
                      chart.width() * scale, chart.height() * scale);
  painter.drawImage(target, chart);
  finishPrinterDocument();
}

void printChartPage(const Report& page,
                    const std::function<void(QPainter&, const QRect& page)>& paintChart) {
  printReport(page);
  QPainter& painter = *document().painter;
  paintChart(painter, painter.viewport());
  finishPrinterDocument();
}

void finishPrinterDocument() {
  Document& d = document();
  if (!d.painter) return;
  auto* printer = static_cast<QPrinter*>(d.painter->device());
  bool finished = d.painter->end();
  if (printer->outputFormat() == QPrinter::PdfFormat && !printer->outputFileName().isEmpty())
    finished = finished && endsAsPdf(printer->outputFileName());
  d.painter.reset();
  if (!finished) raise(err::PrinterError);
}

void finishPrinterDocumentAtTheEnd() {
  try {
    finishPrinterDocument();
  } catch (const RuntimeError& e) {
    platform().runtimeError(e);
  }
}

}  // namespace vorel::gui
