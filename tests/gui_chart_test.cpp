// The chart frame: the chart drawn from the core's matrix, the value axis,
// and the chart print screen that paints the same matrix on its own page.
#include <gtest/gtest.h>

#include <QValueAxis>

#include "frame/gui/chart_screen.h"
#include "frame/gui/printing.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

using ChartFrame = ScreenTest;

Chart sample(ChartKind kind) {
  Chart c;
  c.kind = kind;
  c.title = "Costes Totales";
  c.series = {"Opción 1", "Opción 2"};
  c.matrix = kind == ChartKind::XY ? std::vector<std::vector<double>>{{0, 10, 0, 4}, {6, 16, 3, 10}}
                                   : std::vector<std::vector<double>>{{10, 4}, {16, 10}, {22, 16}};
  c.rows = {"1", "2", "3"};
  c.pageLeft = 0.25;
  c.pageTop = 0.5;
  return c;
}

TEST_F(ChartFrame, DrawsOneLinePerSeriesFromTheMatrix) {
  using P = std::vector<QPointF>;
  std::unique_ptr<QChart> lines(gui::makeChart(sample(ChartKind::Lines)));
  EXPECT_EQ(gui::seriesPoints(*lines),
            (std::vector<P>{P{{0, 10}, {1, 16}, {2, 22}}, P{{0, 4}, {1, 10}, {2, 16}}}));
  std::unique_ptr<QChart> xy(gui::makeChart(sample(ChartKind::XY)));
  EXPECT_EQ(gui::seriesPoints(*xy), (std::vector<P>{P{{0, 10}, {6, 16}}, P{{0, 4}, {3, 10}}}));
  EXPECT_EQ(xy->series().front()->name(), "Opción 1");
}

TEST_F(ChartFrame, TheValueAxisIsFixedOrAutomatic) {
  Chart c = sample(ChartKind::Lines);
  c.axis = {false, -5, 40, 5};
  std::unique_ptr<QChart> fixed(gui::makeChart(c));
  auto* axis = qobject_cast<QValueAxis*>(fixed->axes(Qt::Vertical).front());
  EXPECT_EQ(axis->min(), -5);
  EXPECT_EQ(axis->max(), 40);
  EXPECT_EQ(axis->tickInterval(), 5);
  std::unique_ptr<QChart> automatic(gui::makeChart(sample(ChartKind::Lines)));
  axis = qobject_cast<QValueAxis*>(automatic->axes(Qt::Vertical).front());
  EXPECT_LE(axis->min(), 4);
  EXPECT_GE(axis->max(), 22);
}

TEST_F(ChartFrame, EachChartPrintIsAPageOfItsOwnWithTheChart) {
  auto* carrier =
      dynamic_cast<gui::ChartPrintScreen*>(screens().load("Select_C_Totales_Sol_Imprimir"));
  ASSERT_NE(carrier, nullptr);
  EXPECT_FALSE(carrier->isVisible());
  EXPECT_EQ(carrier->windowTitle(), "Form2");
  carrier->Picture1()->setData(sample(ChartKind::XY));
  for (const char* name : {"uno.pdf", "dos.pdf"}) {
    const QString pdf = QString::fromStdString(tempPath(name));
    platform.printTo(pdf);
    Report text = pageHead("PRUEBA");
    text.line(Z, name);
    gui::printChartPage(
        text, [carrier](QPainter& p, const QRect& page) { carrier->paintOnPage(p, page); });
    EXPECT_EQ(pdfPages(pdf), 1);
    const std::string words = pdfText(pdf);
    for (const char* expected : {name, "Costes Totales", "Opción 1", "Opción 2"})
      EXPECT_NE(words.find(expected), std::string::npos) << expected;
  }
}

TEST_F(ChartFrame, ThePictureKeepsItsScreenSizeAtTheChartsFractions) {
  const QRectF place = gui::chartPlace(sample(ChartKind::Lines), QRect(10, 20, 800, 1200), 192);
  EXPECT_EQ(place, QRectF(210, 620, gui::kChartPictureSize.width() * 2,
                          gui::kChartPictureSize.height() * 2));
}

}  // namespace
}  // namespace vorel::testing
