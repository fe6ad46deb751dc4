#include "frame/gui/report_box.h"

#include <QFontMetricsF>
#include <QPainter>

#include "frame/gui/printing.h"

namespace vorel::gui {

class ReportCanvas : public QWidget {
public:
  explicit ReportCanvas(QWidget* parent) : QWidget(parent) { setFont(reportFont(kScreenPointSize)); }

  void setReport(const Report& report) {
    report_ = report;
    const QFontMetricsF m(font());
    const int lines = static_cast<int>(vorel::layout(report_, 1, [](const std::string&) { return 0.0; }).size());
    setMinimumHeight(static_cast<int>(m.lineSpacing() * (lines + 1)));
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
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setStyleSheet("QScrollArea { border: 1px solid #CBD2DC; background: white; }");
  const QFontMetricsF m(reportFont(kScreenPointSize));
  setFixedSize(static_cast<int>(m.averageCharWidth() * columns) + 24,
               static_cast<int>(m.lineSpacing() * lines) + 8);
}

void ReportBox::Cls() { canvas_->setReport(Report()); }
void ReportBox::setReport(const Report& report) { canvas_->setReport(report); }
const Report& ReportBox::report() const { return canvas_->report(); }

}  // namespace vorel::gui
