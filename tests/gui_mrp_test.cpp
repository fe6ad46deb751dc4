// The material requirements screens driven offscreen: the records computed
// once per run, the scroll bar over ten articles, the receipt frames and a
// table of ten weeks reached by typing.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QScrollBar>

#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "GI_MRP";
const std::string kSolution = "GI_MRP_Solucion1";

class MrpScreens : public ScreenTest {
 protected:
  void openExample(const char* file) { openFile(kEntry, examplePath("mrp", file)); }
  void choose(const QString& selector, const QString& text) {
    control<QComboBox>(kEntry, selector)->setEditText(text);
  }
};

TEST_F(MrpScreens, RecordsAreComputedOnceAndTheEntryStays) {
  openExample("un-nivel.txt");
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(visible(kEntry));
  EXPECT_EQ(text(kSolution, "LPA(0)"), "100");
  EXPECT_EQ(control(kSolution, "volver"), nullptr);
  // Retyped data and a second Resolver show the first records unchanged.
  type(kEntry, "TamañoLote(1)", "L");
  type(kEntry, "UniPA(2)", "500");
  press(kEntry, "Resolver");
  EXPECT_EQ(text(kSolution, "LPA(0)"), "100");
  EXPECT_EQ(text(kSolution, "NBX(2)"), "20");
  // gohome hides it; coming back through Resolver still shows the same.
  press(kSolution, "gohome");
  press(kEntry, "Resolver");
  EXPECT_EQ(text(kSolution, "NBX(2)"), "20");
}

TEST_F(MrpScreens, TenArticlesByTenWeeksScrollByTwentyTwipsAStep) {
  openExample("diez-articulos.txt");  // nine weeks: the tenth is typed
  choose("NSem", "10");
  type(kEntry, "UniPA(9)", "40");
  press(kEntry, "Resolver");
  auto* bar = control<QScrollBar>(kSolution, "VScroll1");
  ASSERT_NE(bar, nullptr);
  EXPECT_TRUE(shown(kSolution, "VScroll1"));
  EXPECT_EQ(bar->maximum(), 380);
  EXPECT_EQ(bar->pageStep(), 20);
  EXPECT_EQ(bar->singleStep(), 10);
  EXPECT_TRUE(shown(kSolution, "LPI(9)"));
  EXPECT_EQ(text(kSolution, "NNX(9)"), " 40");
  bar->setValue(300);  // 6000 twips: 400 pixels up
  EXPECT_EQ(control(kSolution, "Picture1")->y(), -400);
  bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
  EXPECT_EQ(control(kSolution, "Picture1")->y(), -426);
}

TEST_F(MrpScreens, ImprimirPrintsTheFormAndLeavesTheClosingLinesHidden) {
  openExample("diez-articulos.txt");
  press(kEntry, "Resolver");
  EXPECT_TRUE(shown(kSolution, "Image10"));
  const QString pdf = QString::fromStdString(tempPath("mrp.pdf"));
  platform.printTo(pdf);
  press(kSolution, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 1);
  EXPECT_EQ(pdfPages(pdf), 1);
  EXPECT_FALSE(shown(kSolution, "Image4") || shown(kSolution, "Image10"));
  EXPECT_TRUE(shown(kSolution, "VScroll1") && shown(kSolution, "Imprimir"));
  EXPECT_EQ(control(kSolution, "Picture1")->pos(), QPoint(0, 0));
}

TEST_F(MrpScreens, TenWeeksAreReachedByTypingAndMostrarShowsOneFrame) {
  screens().show(kEntry);
  choose("NArt", "3");
  choose("NSem", "10");
  press(kEntry, "Rediseñar");
  EXPECT_TRUE(shown(kEntry, "UnidX(9)") && shown(kEntry, "TS(2)") && !shown(kEntry, "TS(3)"));
  EXPECT_TRUE(shown(kEntry, "FrmArticulo(0)"));
  choose("NoArticulo", "ArticuloC");  // nothing changes until Mostrar
  EXPECT_FALSE(shown(kEntry, "FrmArticulo(3)"));
  press(kEntry, "Mostrar");
  EXPECT_TRUE(shown(kEntry, "FrmArticulo(3)") && !shown(kEntry, "FrmArticulo(0)"));
  // nuevo does nothing on this screen.
  type(kEntry, "ID(0)", "7");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "ID(0)"), "7");
}

}  // namespace
}  // namespace vorel::testing
