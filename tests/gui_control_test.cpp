// The control-chart screens, drawn from their descriptions, driven offscreen:
// the removal that edits the entry screen (also when it ends in a run-time
// error), Recalcular until the process is in control with its own report and
// chart while the page keeps the first pass's, the buttons of the means
// chart, the charts' own Volver, the calls on objects never set, the chart
// page, and the options of no family.
#include <gtest/gtest.h>

#include <QRadioButton>

#include "frame/gui/described_chart.h"
#include "frame/gui/model_screens.h"
#include "quality/control_atributos.h"
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

  // Recalcular paints its own report and draws its own chart; the page
  // keeps the first pass's chart, which Imprimir draws on screen again.
  auto* medias = dynamic_cast<gui::DescribedChartSolutionBase*>(screen(kMedias));
  ASSERT_NE(medias, nullptr);
  const Chart first = medias->chart();
  EXPECT_EQ(medias->chartView()->data(), first);
  press(kMedias, "Recalcular");
  EXPECT_TRUE(has(kMedias, "LSC:                         22.21303"));
  EXPECT_TRUE(has(kMedias, "El punto 4 está fuera de los límites de control"));
  EXPECT_EQ(text(kEntry, "Nmuestras"), "8");
  expectButtons(true, false, false);
  EXPECT_EQ(medias->chart(), first);
  EXPECT_EQ(medias->chartView()->data().matrix.size(), 9u);
  platform.printTo(QString::fromStdString(tempPath("recalculado.pdf")));
  press(kMedias, "Imprimir");
  EXPECT_EQ(medias->chartView()->data(), first);

  press(kMedias, "Recalcular");
  EXPECT_TRUE(has(kMedias, "La media del proceso está bajo control"));
  EXPECT_EQ(text(kEntry, "Nmuestras"), "8");
  expectButtons(false, true, false);

  // The deviations chart opens on the shortened entry; its Volver goes back
  // to the means chart, which computes again from the entry as it stands.
  press(kMedias, "ControlDesviaciones");
  EXPECT_FALSE(visible(kMedias));
  EXPECT_EQ(control<QLabel>(kDesviaciones, "Label2")->text(), "Gráfico de Desviaciones Típicas");
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

// With 45 samples the removal reads past the last row: the rows it moved up
// before that stay moved on the entry screen.
TEST_F(ControlScreens, TheRemovalStaysOnTheEntryWhenItEndsInARunTimeError) {
  openFile(kEntry, examplePath("control-variables", "cuarenta-y-cinco-fuera.txt"));
  // Sample 21 (130) is out: the samples below it moved up one row.
  ASSERT_EQ(text(kEntry, "M(20)"), "130");
  press(kEntry, "Resolver");
  EXPECT_EQ(platform.runtimeErrors, (std::vector<int>{9}));
  EXPECT_EQ(text(kEntry, "M(20)"), "98.6");
  EXPECT_EQ(text(kEntry, "M(43)"), "99.2");
  EXPECT_EQ(text(kEntry, "Nmuestras"), "45");
  // nuevo empties the samples, keeps the title, and the focus goes to it.
  screens().show(kEntry);
  control<QLineEdit>(kEntry, "Nmuestras")->setFocus();
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "M(20)"), "");
  EXPECT_EQ(text(kEntry, "Titulo1"), "Cuarenta y cinco con una fuera");
  EXPECT_EQ(focused(kEntry), "Titulo1");
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

// The options belong to no family: a file may leave both unticked, and a
// click on the ticked one keeps it ticked, through the model's click.
TEST_F(ControlScreens, OptionsOfNoFamilyAsAFileLeavesThem) {
  const std::string entry = "ControlCal_AtribP";
  screens().show(entry);
  auto* screenOf = dynamic_cast<gui::ModelEntry<quality::AtributosFields>*>(screen(entry));
  ASSERT_NE(screenOf, nullptr);
  quality::AtributosFields f;
  f.Option1 = f.Option2 = false;
  screenOf->setFields(f);
  EXPECT_FALSE(control<QRadioButton>(entry, "Option1")->isChecked());
  EXPECT_FALSE(control<QRadioButton>(entry, "Option2")->isChecked());
  press(entry, "Option2");
  press(entry, "Option2");
  EXPECT_TRUE(control<QRadioButton>(entry, "Option2")->isChecked());
  EXPECT_FALSE(control<QRadioButton>(entry, "Option1")->isChecked());
  EXPECT_TRUE(shown(entry, "Labelr"));
  EXPECT_FALSE(shown(entry, "labelrn"));
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
