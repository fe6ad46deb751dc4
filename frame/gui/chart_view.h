// Charts drawn with Qt Charts from the core's chart data. The same function
// builds the chart on a solution screen and the one painted on paper, so both
// come from one matrix.
#pragma once

#include <QChartView>
#include <QSize>

#include "frame/chart.h"

class QPainter;
class QRectF;

namespace vorel::gui {

// The size of a chart's picture, on screen and (at the screen's resolution)
// on paper.
inline constexpr QSize kChartPictureSize(480, 330);

// A new chart drawing `data`: lines over labelled rows, or XY series over a
// value axis; the value axis automatic or fixed as `data.axis` says.
QChart* makeChart(const Chart& data);

// The points of every series of a drawn chart, in series order: what the
// chart shows, to compare charts drawn from different places.
std::vector<std::vector<QPointF>> seriesPoints(const QChart& chart);

// Paints the chart of `data` into `target` of any painter; on a printer or a
// PDF writer it stays vector.
void paintChart(QPainter& painter, const Chart& data, const QRectF& target);

// Where Imprimir paints a chart: at the chart's fractions of the page's width
// and height, its picture keeping its screen size.
QRectF chartPlace(const Chart& data, const QRect& page, double dotsPerInch);

// The chart control of a solution screen: it holds the data it draws.
class ChartView : public QChartView {
  Q_OBJECT
 public:
  explicit ChartView(const QString& objectName, QWidget* parent = nullptr);
  void setData(const Chart& data);  // sets the data matrix and draws it anew
  const Chart& data() const { return data_; }

 private:
  Chart data_;
};

}  // namespace vorel::gui
