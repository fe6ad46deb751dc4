// The control-chart screens driven offscreen: the removal that edits the entry
// screen, Recalcular until the process is in control, the buttons of the
// means chart, the charts' own Volver, the calls on objects never set, and
// the chart page.
#include <gtest/gtest.h>

#include "frame/gui/model_screens.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "ControlCal_V", kMedias = "ControlCal_V_Sol",
                  kDesviaciones = "ControlCal_V_Sol2";

class ControlScreens : public ScreenTest {
 protected:
  bool has(const std::string& screen, const std::string& text) {
    return painted(screen).find(text) != std::string::npos;
  }
  void expectButtons(bool recalcular, bool desviaciones, bool recorridos) {
    EXPECT_EQ(shown(kMedias, "Recalcular"), recalcular);
    EXPECT_EQ(shown(kMedias, "ControlDesviaciones"), desviaciones);
    EXPECT_EQ(shown(kMedias, "ControlRecorridos"), recorridos);
  }
};

// Sample 7 (mean 30, deviation 16) is out and leaves the entry; without its
// deviation the limits close in and Recalcular finds sample 4 out; the next
// Recalcular finds the process in control.
TEST_F(ControlScreens, RemovalAndRecalcularEditTheEntry) {
  openFile(kEntry, examplePath("control-variables", "recalculo-saca-nuevos.txt"));
  press(kEntry, "Resolver");
  ASSERT_TRUE(visible(kMedias));
  EXPECT_TRUE(has(kMedias, "El punto 7 está fuera de los límites de control"));
  EXPECT_EQ(text(kEntry, "Nmuestras"), "9");
  EXPECT_EQ(text(kEntry, "M(6)"), "20");
  EXPECT_EQ(text(kEntry, "S(6)"), "1");
  EXPECT_TRUE(shown(kEntry, "M(9)"));  // shown, and empty as the row below it was
  EXPECT_EQ(text(kEntry, "M(9)"), "");
  expectButtons(true, true, false);

  press(kMedias, "Recalcular");
  EXPECT_TRUE(has(kMedias, "LSC:                         22.21303"));
  EXPECT_TRUE(has(kMedias, "El punto 4 está fuera de los límites de control"));
  EXPECT_EQ(text(kEntry, "Nmuestras"), "8");
  expectButtons(true, false, false);

  press(kMedias, "Recalcular");
  EXPECT_TRUE(has(kMedias, "La media del proceso está bajo control"));
  EXPECT_EQ(text(kEntry, "Nmuestras"), "8");
  expectButtons(false, true, false);

  // The deviations chart opens on the shortened entry; its Volver goes back
  // to the means chart, which computes again from the entry as it stands.
  press(kMedias, "ControlDesviaciones");
  EXPECT_FALSE(visible(kMedias));
  EXPECT_TRUE(has(kDesviaciones, "Smedia:                      1\n"));
  press(kDesviaciones, "volver");
  EXPECT_TRUE(visible(kMedias));
  EXPECT_TRUE(has(kMedias, "Media:                       20\n"));
  press(kMedias, "volver");
  EXPECT_TRUE(visible(kEntry));
  EXPECT_TRUE(platform.runtimeErrors.empty());
}

TEST_F(ControlScreens, CallsOnObjectsNeverSetEndInTheirRunTimeError) {
  openFile(kEntry, examplePath("control-variables", "medias-bajo-control.txt"));
  press(kEntry, "Resolver");
  press(kMedias, "ControlDesviaciones");
  press(kDesviaciones, "Redibujar");  // no action here
  EXPECT_TRUE(platform.runtimeErrors.empty());
  press(kDesviaciones, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 0);
  press(kDesviaciones, "volver");
  press(kMedias, "Redibujar");
  EXPECT_EQ(platform.runtimeErrors, (std::vector<int>{91, 91}));
}

// The screen report takes its title from Selec_Van; the page from its own entry.
TEST_F(ControlScreens, TheReportTitleIsSelecVans) {
  screens().show("Selec_Van");
  type("Selec_Van", "Titulo1", "Inversiones");
  openFile(kEntry, examplePath("control-variables", "medias-bajo-control.txt"));
  press(kEntry, "Resolver");
  EXPECT_TRUE(has(kMedias, "Solución al problema:  Inversiones\n"));
  auto* medias = dynamic_cast<gui::SolutionScreen*>(screen(kMedias));
  EXPECT_NE(renderText(medias->page()).find("Solución al problema:  Ejes torneados\n"),
            std::string::npos);
}

// Each chart print is a page of its own, with the first pass's set of values
// after a Recalcular that found nothing more.
TEST_F(ControlScreens, ImprimirPrintsTheChartPage) {
  openFile(kEntry, examplePath("control-variables", "fuera-ambos-lados.txt"));
  press(kEntry, "Resolver");
  const QString pdf = QString::fromStdString(tempPath("medias.pdf"));
  platform.printTo(pdf);
  press(kMedias, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 1);
  EXPECT_EQ(pdfPages(pdf), 1);
  const std::string printed = pdfText(pdf);
  EXPECT_NE(printed.find("CONTROL POR VARIABLES. Gráfico de Medias"), std::string::npos);
  EXPECT_NE(printed.find("La media del proceso no está bajo control estadístico"),
            std::string::npos);
}

// The option chooses the chart; the np chart goes back to the entry; the
// removal takes each sample's size with it.
TEST_F(ControlScreens, AttributesChooseTheirChartAndMoveSizesWithSamples) {
  const std::string entry = "ControlCal_AtribP";
  openFile(entry, examplePath("control-atributos", "p-fuera.txt"));
  press(entry, "Resolver");
  EXPECT_TRUE(visible("ControlCAl_AtribP_Sol"));
  EXPECT_EQ(text(entry, "tamano(4)"), "105");
  EXPECT_EQ(text(entry, "r(4)"), "5");
  EXPECT_EQ(text(entry, "Nmuestras"), "7");
  press("ControlCAl_AtribP_Sol", "volver");
  press(entry, "Option2");
  EXPECT_FALSE(shown(entry, "tamano(0)"));
  EXPECT_TRUE(shown(entry, "Labelr"));
  press(entry, "Resolver");
  EXPECT_TRUE(visible("ControlCal_AtribNP_Sol"));
  press("ControlCal_AtribNP_Sol", "volver");
  EXPECT_TRUE(visible(entry));
}

}  // namespace
}  // namespace vorel::testing
