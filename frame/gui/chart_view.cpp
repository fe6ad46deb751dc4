#include "frame/gui/chart_view.h"

#include <QBarCategoryAxis>
#include <QCategoryAxis>
#include <QGraphicsScene>
#include <QLineSeries>
#include <QPainter>
#include <QValueAxis>
#include <algorithm>

namespace vorel::gui {

namespace {

// More divisions than this leave no room for their labels.
constexpr double kMostDivisions = 20;
// The most row labels a chart's width holds side by side.
constexpr std::size_t kMostRowLabels = 15;

// The step between labelled rows: the least of 2, 5, 10, 20, 50, ... that
// leaves at most kMostRowLabels labels.
std::size_t labelStep(std::size_t rows) {
  for (std::size_t decade = 1;; decade *= 10)
    for (std::size_t m : {2, 5, 10})
      if (rows / (m * decade) + 1 <= kMostRowLabels) return m * decade;
}

QValueAxis* valueAxis(const ValueAxis& axis, const std::string& title) {
  auto* a = new QValueAxis();
  a->setTitleText(QString::fromStdString(title));
  a->setLabelFormat(QStringLiteral("%.6g"));
  if (!axis.automatic) {
    a->setRange(axis.minimum, axis.maximum);
    // The major division is a count of intervals between the bounds, each
    // bound and each step labelled.
    if (axis.majorDivision >= 1 && axis.maximum > axis.minimum) {
      a->setTickType(QValueAxis::TicksFixed);
      a->setTickCount(int(std::min(axis.majorDivision, kMostDivisions)) + 1);
    }
  }
  return a;
}

double cell(const Chart& data, std::size_t row, std::size_t column) {
  const auto& r = data.matrix[row];
  return column < r.size() ? r[column] : 0;
}

std::size_t columnCount(const Chart& data) {
  std::size_t n = 0;
  for (const auto& row : data.matrix) n = std::max(n, row.size());
  return n;
}

QString seriesName(const Chart& data, std::size_t s) {
  return s < data.series.size() ? QString::fromStdString(data.series[s])
                                : QStringLiteral("Serie %1").arg(s + 1);
}

}  // namespace

QChart* makeChart(const Chart& data) {
  auto* chart = new QChart();
  chart->setAnimationOptions(QChart::NoAnimation);
  chart->setTitle(QString::fromStdString(data.title));
  chart->legend()->setAlignment(Qt::AlignBottom);
  const std::size_t columns = columnCount(data);
  const bool xy = data.kind == ChartKind::XY;
  const std::size_t seriesCount = xy ? columns / 2 : columns;
  std::vector<QLineSeries*> lines;
  for (std::size_t s = 0; s < seriesCount; ++s) {
    auto* line = new QLineSeries();
    line->setName(seriesName(data, s));
    line->setPointsVisible(true);
    for (std::size_t r = 0; r < data.matrix.size(); ++r)
      line->append(xy ? cell(data, r, 2 * s) : double(r),
                   xy ? cell(data, r, 2 * s + 1) : cell(data, r, s));
    chart->addSeries(line);
    lines.push_back(line);
  }
  QAbstractAxis* horizontal;
  if (xy) {
    auto* axis = new QValueAxis();
    axis->setLabelFormat(QStringLiteral("%.6g"));
    horizontal = axis;
  } else {
    auto label = [&data](std::size_t r) {
      return r < data.rows.size() ? QString::fromStdString(data.rows[r]) : QString::number(r + 1);
    };
    const std::size_t rows = data.matrix.size();
    if (rows <= kMostRowLabels) {
      auto* axis = new QBarCategoryAxis();
      for (std::size_t r = 0; r < rows; ++r) axis->append(label(r));
      horizontal = axis;
    } else {
      // Too many rows for a label each: the first row and every k-th one
      // (k of 2, 5, 10, ...) are labelled under their points.
      const std::size_t step = labelStep(rows);
      auto* axis = new QCategoryAxis();
      axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
      axis->setRange(-0.5, double(rows) - 0.5);
      for (std::size_t r = 0; r < rows; ++r)
        if (r == 0 || (r + 1) % step == 0) axis->append(label(r), double(r));
      horizontal = axis;
    }
  }
  horizontal->setTitleText(QString::fromStdString(data.categoryTitle));
  QValueAxis* vertical = valueAxis(data.axis, data.valueTitle);
  chart->addAxis(horizontal, Qt::AlignBottom);
  chart->addAxis(vertical, Qt::AlignLeft);
  for (QLineSeries* line : lines) {
    line->attachAxis(horizontal);
    line->attachAxis(vertical);
  }
  // An automatic axis spans every series, in round numbers.
  auto span = [&lines](QValueAxis* axis, bool vertical) {
    double low = 0, high = 0;
    bool any = false;
    for (QLineSeries* line : lines)
      for (const QPointF& p : line->points()) {
        const double v = vertical ? p.y() : p.x();
        low = any ? std::min(low, v) : v;
        high = any ? std::max(high, v) : v;
        any = true;
      }
    if (!any) return;
    if (low == high) low -= 1, high += 1;
    axis->setRange(low, high);
    axis->applyNiceNumbers();
  };
  if (data.axis.automatic) span(vertical, true);
  if (xy) span(static_cast<QValueAxis*>(horizontal), false);
  return chart;
}

std::vector<std::vector<QPointF>> seriesPoints(const QChart& chart) {
  std::vector<std::vector<QPointF>> out;
  for (QAbstractSeries* s : chart.series())
    if (auto* line = qobject_cast<QLineSeries*>(s)) {
      const QList<QPointF> points = line->points();
      out.emplace_back(points.begin(), points.end());
    }
  return out;
}

void paintChart(QPainter& painter, const Chart& data, const QRectF& target) {
  QGraphicsScene scene;
  QChart* chart = makeChart(data);  // the scene owns it
  scene.addItem(chart);
  chart->setGeometry(QRectF(QPointF(0, 0), QSizeF(kChartPictureSize)));
  scene.setSceneRect(chart->geometry());
  scene.render(&painter, target, scene.sceneRect(), Qt::IgnoreAspectRatio);
}

QRectF chartPlace(const Chart& data, const QRect& page, double dotsPerInch) {
  const double scale = dotsPerInch / 96.0;
  return QRectF(page.left() + page.width() * data.pageLeft,
                page.top() + page.height() * data.pageTop, kChartPictureSize.width() * scale,
                kChartPictureSize.height() * scale);
}

ChartView::ChartView(const QString& objectName, QWidget* parent) : QChartView(parent) {
  setObjectName(objectName);
  setRenderHint(QPainter::Antialiasing);
  setFixedSize(kChartPictureSize);
  setData({});
}

void ChartView::setData(const Chart& data) {
  data_ = data;
  QChart* previous = chart();
  setChart(makeChart(data_));
  delete previous;
}

}  // namespace vorel::gui
