#include "frame/gui/described_chart.h"

#include <QHBoxLayout>
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
  const nav::ScreenInfo* carrier = nav::findScreen(d.name + "_Imprimir");
  if (carrier && carrier->kind == nav::Kind::ChartPrint) printScreen_ = carrier->name;
}

void DescribedChartSolutionBase::draw(const Pages& pages) {
  data_ = pages.chart;
  chart_->setData(data_);
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
