// The total cost screens: the option buttons choose the frame of the third
// option and the solution screen; Imprimir puts each chart on a page of its
// own, drawn from the matrix the screen draws.
#include <gtest/gtest.h>

#include "frame/gui/chart_screen.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

using CostesTotalesScreens = ScreenTest;

// A chart print screen that keeps the series it carried to the printer.
std::vector<std::vector<QPointF>> carried;
struct RecordingCarrier : gui::ChartPrintScreen {
  using ChartPrintScreen::ChartPrintScreen;
  ~RecordingCarrier() override { carried = gui::seriesPoints(*Picture1()->chart()); }
};

TEST_F(CostesTotalesScreens, TheOptionsChooseTheThirdFrameAndTheSolution) {
  openFile("Select_C_Totales", examplePath("costes-totales", "dos-opciones.txt"));
  // The third option's fields, the frame FrmOpcion3, show with Tres opciones.
  for (const char* name : {"txtCF3", "txtCV3", "LblCF3", "LblCV3"})
    EXPECT_FALSE(shown("Select_C_Totales", name)) << name;
  press("Select_C_Totales", "Option2");
  for (const char* name : {"txtCF3", "txtCV3", "LblCF3", "LblCV3"})
    EXPECT_TRUE(shown("Select_C_Totales", name)) << name;
  press("Select_C_Totales", "Option1");
  EXPECT_FALSE(shown("Select_C_Totales", "txtCF3"));
  press("Select_C_Totales", "Option2");
  for (auto [field, value] : {std::pair{"txtCF3", "500"}, {"txtCV3", "1"}})
    type("Select_C_Totales", field, value);
  press("Select_C_Totales", "Resolver");
  EXPECT_TRUE(visible("Select_C_Totales_Sol1"));
  EXPECT_EQ(screen("Select_C_Totales_Sol"), nullptr);
  EXPECT_FALSE(visible("Select_C_Totales"));
}

TEST_F(CostesTotalesScreens, EachPrintIsAPageWithTheChartOnScreen) {
  screens().add("Select_C_Totales_Sol1_Imprimir",
                [] { return new RecordingCarrier("Select_C_Totales_Sol1_Imprimir"); });
  openFile("Select_C_Totales", examplePath("costes-totales", "tres-opciones.txt"));
  press("Select_C_Totales", "Resolver");
  auto* chart = control<gui::ChartView>("Select_C_Totales_Sol1", "MSChart1");
  ASSERT_NE(chart, nullptr);
  const auto onScreen = gui::seriesPoints(*chart->chart());
  ASSERT_EQ(onScreen.size(), 3u);
  for (const char* name : {"primera.pdf", "segunda.pdf"}) {
    const QString pdf = QString::fromStdString(tempPath(name));
    platform.printTo(pdf);
    carried.clear();
    press("Select_C_Totales_Sol1", "Imprimir");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(carried, onScreen);
    EXPECT_EQ(screen("Select_C_Totales_Sol1_Imprimir"), nullptr);  // unloaded, never shown
    EXPECT_EQ(pdfPages(pdf), 1);
    const std::string text = pdfText(pdf);
    for (const char* words : {"PROBLEMA DE COSTES TOTALES", "Costes Totales", "Opción 3"})
      EXPECT_NE(text.find(words), std::string::npos) << words;
  }
  EXPECT_EQ(platform.printerDialogs, 2);
}

}  // namespace
}  // namespace vorel::testing
