#include "frame/gui/chart_screen.h"

#include <QHBoxLayout>
#include <QPaintDevice>
#include <QPainter>

#include "frame/gui/platform.h"
#include "frame/gui/printing.h"
#include "frame/navigation.h"

namespace vorel::gui {

ChartSolutionScreen::ChartSolutionScreen(const std::string& name, const QString& label, int columns,
                                         int lines, std::string printScreen,
                                         const QString& reportName)
    : SolutionScreen(name, label, columns, lines, reportName),
      printScreen_(std::move(printScreen)) {
  chart_ = new ChartView(QStringLiteral("MSChart1"), this);
  chart_->setAccessibleName(label);
  // The chart stands to the right of the report box.
  const int at = body()->indexOf(Solucion1());
  body()->removeWidget(Solucion1());
  auto* row = new QHBoxLayout();
  row->setSpacing(12);
  row->addWidget(Solucion1(), 0, Qt::AlignTop);
  row->addWidget(chart_, 0, Qt::AlignTop);
  body()->insertLayout(at, row);
}

void ChartSolutionScreen::draw(const Pages& pages) {
  data_ = pages.chart;
  chart_->setData(data_);
}

void ChartSolutionScreen::imprimir() {
  platform().printerDialog();
  // The chart takes the stored matrix again, and its picture goes to the
  // chart print screen, which carries it onto the page.
  chart_->setData(data_);
  Screens& screens = Screens::instance();
  auto* carrier = dynamic_cast<ChartPrintScreen*>(screens.load(printScreen_));
  if (!carrier) vorel::raise(err::ObjectNotSet);
  carrier->Picture1()->setData(chart_->data());
  printChartPage(page(), [carrier](QPainter& painter, const QRect& area) {
    carrier->paintOnPage(painter, area);
  });
  screens.unload(printScreen_);
}

ChartPrintScreen::ChartPrintScreen(const std::string& name) : Screen(name) {
  picture_ = new ChartView(QStringLiteral("Picture1"), this);
  if (info()) picture_->setAccessibleName(QString::fromStdString(info()->caption).trimmed());
  body()->addWidget(picture_);
}

void ChartPrintScreen::paintOnPage(QPainter& painter, const QRect& page) const {
  const Chart& data = picture_->data();
  paintChart(painter, data, chartPlace(data, page, painter.device()->logicalDpiX()));
}

void registerChartPrintScreens() {
  for (const nav::ScreenInfo& s : nav::screens())
    if (s.kind == nav::Kind::ChartPrint)
      Screens::instance().add(s.name, [name = s.name] { return new ChartPrintScreen(name); });
}

}  // namespace vorel::gui
