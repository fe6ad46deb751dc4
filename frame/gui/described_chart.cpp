#include "frame/gui/described_chart.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPaintDevice>
#include <QPainter>

#include "frame/gui/chart_screen.h"
#include "frame/gui/platform.h"
#include "frame/gui/printing.h"
#include "frame/navigation.h"

namespace vorel::gui {

DescribedChartSolutionBase::DescribedChartSolutionBase(const ui::Description& d)
    : DescribedSolutionBase(d) {
  QString name = QStringLiteral("MSChart1");
  for (const ui::Control& c : d.controls)
    if (c.kind == ui::ControlKind::Chart && !c.name.empty()) name = QString::fromStdString(c.name);
  chart_ = new ChartView(name, this);
  chart_->setAccessibleName(QString::fromStdString(d.heading));
  // The chart stands to the right of the report box.
  const int at = body()->indexOf(Solucion1());
  body()->removeWidget(Solucion1());
  auto* row = new QHBoxLayout();
  row->setSpacing(12);
  row->addWidget(Solucion1(), 0, Qt::AlignTop);
  row->addWidget(chart_, 0, Qt::AlignTop);
  body()->insertLayout(at, row);
  // The description's labels (the chart's name) stand above the report.
  int above = at;
  for (const ui::Control& c : d.controls)
    if (c.kind == ui::ControlKind::Label) {
      auto* label = new QLabel(QString::fromStdString(c.text), this);
      label->setObjectName(QString::fromStdString(c.name));
      label->setStyleSheet("font-size: 12pt; font-weight: 600; color: #2D3748;");
      body()->insertWidget(above++, label);
    }
  const nav::ScreenInfo* carrier = nav::findScreen(d.name + "_Imprimir");
  if (carrier && carrier->kind == nav::Kind::ChartPrint) printScreen_ = carrier->name;
}

void DescribedChartSolutionBase::draw(const Pages& pages) {
  // The page may keep an earlier chart than the one on view (see
  // Solution::printedChart); Imprimir draws it on screen again.
  data_ = solution() ? solution()->printedChart() : pages.chart;
  chart_->setData(pages.chart);
}

void DescribedChartSolutionBase::imprimir() {
  platform().printerDialog();
  chart_->setData(data_);
  if (printScreen_.empty()) {
    printChartPage(page(), [this](QPainter& painter, const QRect& area) {
      paintChart(painter, data_, chartPlace(data_, area, painter.device()->logicalDpiX()));
    });
    return;
  }
  // The chart's picture goes to the chart print screen, which carries it
  // onto the page and is unloaded once the page is out.
  Screens& screens = Screens::instance();
  auto* carrier = dynamic_cast<ChartPrintScreen*>(screens.load(printScreen_));
  if (!carrier) vorel::raise(err::ObjectNotSet);
  carrier->Picture1()->setData(chart_->data());
  printChartPage(page(), [carrier](QPainter& painter, const QRect& area) {
    carrier->paintOnPage(painter, area);
  });
  screens.unload(printScreen_);
}

}  // namespace vorel::gui
