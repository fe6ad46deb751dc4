// Reports on paper. Text reports gather in one printer document for the whole
// process: it goes out when the process ends. A chart page ends its document
// at once.
#pragma once

#include <QFont>
#include <QImage>
#include <functional>

#include "frame/report.h"

class QPainter;
class QFontMetricsF;
class QPagedPaintDevice;

namespace vorel::gui {

// The fonts of reports: Arial (Liberation Sans has its metrics).
QFont reportFont(double pointSize);
inline constexpr double kScreenPointSize = 8.25;
inline constexpr double kPrinterPointSize = 12;

// The average character width of a font (vorel::averageCharWidth).
double averageCharWidth(const QFontMetricsF& metrics);

// Paints a report from `top`, a zone being 14 average character widths of the
// painter's font; returns the y below the last line. With `newPage`, a line
// that would pass the device's bottom goes on a new page.
double paintReport(QPainter& painter, const Report& report, double top,
                   const std::function<void()>& newPage = {});

// Paints a printed page in the printer's type (12 pt), made just small enough
// that its widest line stays inside the printable area.
double paintPage(QPainter& painter, const Report& page, double top,
                 const std::function<void()>& newPage = {});

// Narrow margins around the printable area.
void preparePage(QPagedPaintDevice& device);

// Imprimir of a text report: the lines go on in the open document.
void printReport(const Report& page);
// Imprimir of a chart model: the text, then the picture at the given fractions
// of the page's width and height; the document ends.
void printChartPage(const Report& page, const QImage& chart, double leftFraction,
                    double topFraction);
// The same with the chart painted by `paintChart`, given the painter and the
// page's area.
void printChartPage(const Report& page,
                    const std::function<void(QPainter&, const QRect& page)>& paintChart);
// Ends the gathered document, if any. A document the printer cannot finish
// (a PDF file that was not written whole) is run-time error 482, "Error de
// impresora"; a new page the printer refuses is the same error.
void finishPrinterDocument();
// The same at the end of the process: the error is told through the
// platform's run-time error box rather than thrown.
void finishPrinterDocumentAtTheEnd();

}  // namespace vorel::gui
