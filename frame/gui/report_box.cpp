#include "frame/gui/report_box.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "frame/gui/printing.h"

namespace vorel::gui {

class ReportCanvas : public QWidget {
 public:
  explicit ReportCanvas(QWidget* parent) : QWidget(parent) {
    setFont(reportFont(kScreenPointSize));
  }

  void setReport(const Report& report) {
    report_ = report;
    // The canvas grows to the report, so the box scrolls where it cannot show it all.
    const QFontMetricsF m(font());
    auto width = [&m](const std::string& s) {
      return m.horizontalAdvance(QString::fromStdString(s));
    };
    double widest = 0;
    const auto lines = vorel::layout(report_, kZoneColumns * averageCharWidth(m), width);
    for (const LaidOutLine& line : lines)
      if (!line.empty()) widest = std::max(widest, line.back().x + width(line.back().text));
    setMinimumSize(static_cast<int>(widest) + 8,
                   static_cast<int>(m.lineSpacing() * (double(lines.size()) + 1)));
    update();
  }
  const Report& report() const { return report_; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    p.setPen(Qt::black);
    p.setFont(font());
    paintReport(p, report_, 0);
  }

 private:
  Report report_;
};

ReportBox::ReportBox(const QString& objectName, int columns, int lines, QWidget* parent)
    : QScrollArea(parent), canvas_(new ReportCanvas(this)) {
  setObjectName(objectName);
  setWidget(canvas_);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setStyleSheet("QScrollArea { border: 1px solid #CBD2DC; background: white; }");
  const QFontMetricsF m(reportFont(kScreenPointSize));
  // Wide enough for the rule of every report, a zone in.
  const double rule =
      (kZoneColumns + 2) * averageCharWidth(m) + m.horizontalAdvance(QString::fromStdString(kRule));
  setFixedWidth(static_cast<int>(std::max(averageCharWidth(m) * columns, rule)) + 24);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  lineHeight_ = m.lineSpacing();
  lines_ = lines;
}

int ReportBox::linesHigh(int lines) const { return static_cast<int>(lineHeight_ * lines) + 8; }

QSize ReportBox::sizeHint() const {
  // As tall as the report, between a few lines and the largest report of
  // the screen; a short report leaves no wide blank below it.
  const int report = canvas_->minimumHeight() + 8;
  return {width(),
          std::clamp(report, linesHigh(std::min(kFewestLines, lines_)), linesHigh(lines_))};
}

QSize ReportBox::minimumSizeHint() const {
  return {width(), std::min(sizeHint().height(), linesHigh(kFewestLines))};
}

void ReportBox::Cls() { setReport(Report()); }
void ReportBox::setReport(const Report& report) {
  canvas_->setReport(report);
  // A screen reader reads the report as the plain text the printer's lines make.
  setAccessibleDescription(QString::fromStdString(renderText(report)));
  updateGeometry();
}
const Report& ReportBox::report() const { return canvas_->report(); }

}  // namespace vorel::gui
