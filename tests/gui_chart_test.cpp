// The chart frame: the chart drawn from the core's matrix, the value axis,
// and the chart print screen that paints the same matrix on its own page.
#include <gtest/gtest.h>

#include <QPainter>
#include <QPdfWriter>
#include <QValueAxis>
#include <set>
#include <sstream>

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
  EXPECT_EQ(axis->tickCount(), 6);  // five major divisions, six labels
  std::unique_ptr<QChart> automatic(gui::makeChart(sample(ChartKind::Lines)));
  axis = qobject_cast<QValueAxis*>(automatic->axes(Qt::Vertical).front());
  EXPECT_LE(axis->min(), 4);
  EXPECT_GE(axis->max(), 22);
}

// A control chart of 45 samples with its centre near 1000, printed: six
// value labels from the lower bound to the upper, and the sample numbers
// 1, 5, 10, ... 45, none of them cut down to an ellipsis.
TEST_F(ChartFrame, AxisLabelsOfAControlChartStayLegibleOnPaper) {
  Chart c;
  c.series = {"Medias", "LSC", "LIC", "Centro"};
  for (int k = 0; k < 45; ++k) {
    c.rows.push_back(std::to_string(k + 1));
    c.matrix.push_back({1000 + (k % 7) - 3.0, 1006, 994, 1000});
  }
  c.axis = {false, 910.5, 1089.5, 5};
  const QString pdf = QString::fromStdString(tempPath("ejes.pdf"));
  {
    QPdfWriter writer(pdf);
    writer.setResolution(300);
    QPainter painter(&writer);
    gui::paintChart(painter, c, gui::chartPlace(c, painter.viewport(), writer.resolution()));
  }
  const std::string text = pdfText(pdf);
  EXPECT_EQ(text.find("\u2026"), std::string::npos) << text;
  std::istringstream words(text);
  std::set<std::string> seen;
  for (std::string w; words >> w;) seen.insert(w);
  for (const char* value : {"910.5", "946.3", "982.1", "1017.9", "1053.7", "1089.5"})
    EXPECT_TRUE(seen.count(value)) << value << "\n" << text;
  EXPECT_FALSE(seen.count("928.4")) << text;  // no label between the divisions
  for (const char* sample : {"1", "5", "10", "25", "45"})
    EXPECT_TRUE(seen.count(sample)) << sample << "\n" << text;
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
