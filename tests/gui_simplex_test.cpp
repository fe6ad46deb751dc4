// The simplex screens driven offscreen: the table typed and reshaped, the
// checks of the objective row with the focus they leave, the two optima
// browsed, and run-time errors.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <set>

#include "frame/gui/model_screens.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "PL_Simplex";
const std::string kSolution = "PL_Simplex_Solucion";

class SimplexScreens : public ScreenTest {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    screens().show(kEntry);
  }
  QComboBox* combo(const QString& name) { return control<QComboBox>(kEntry, name); }
  bool shown(const QString& name) { return ScreenTest::shown(kEntry, name); }
  void reshape(int variables, int constraints) {
    combo("NumFactores")->setCurrentIndex(variables - 1);
    combo("Numrestricciones")->setCurrentIndex(constraints - 1);
    press(kEntry, "RediseñarTabla");
  }
  // The objective row, then each constraint's cells and right-hand side.
  void typeRows(const std::vector<std::vector<QString>>& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i)
      for (std::size_t j = 0; j < rows[i].size(); ++j)
        type(kEntry,
             i > 0 && j + 1 == rows[i].size() ? QString("existencias(%1)").arg(i)
                                              : QString("X%1(%2)").arg(j + 1).arg(i),
             rows[i][j]);
  }
  void openLibro() { openFile(kEntry, examplePath("simplex", "libro.txt")); }
  std::string report() { return painted(kSolution); }
  // The solution screen's commands that can be pressed: shown and not greyed.
  std::set<std::string> enabled() {
    std::set<std::string> out;
    for (const char* name : {"forward", "back", "volver", "Imprimir", "cerrar"}) {
      auto* b = control<QAbstractButton>(kSolution, name);
      if (b && b->isEnabled() && !b->isHidden()) out.insert(name);
    }
    return out;
  }
  void expectShown(std::initializer_list<const char*> names, bool on) {
    for (const char* name : names) EXPECT_EQ(shown(name), on) << name;
  }
};

TEST_F(SimplexScreens, FormLoadShowsTheTwoByTwoTableAndTheFixedTexts) {
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Simplex");
  EXPECT_EQ(combo("funcionObjetivo")->currentText(), "Maximización");
  EXPECT_EQ(combo("funcionObjetivo")->count(), 2);
  EXPECT_EQ(combo("NumFactores")->currentText(), "2");
  EXPECT_EQ(combo("Numrestricciones")->currentText(), "2");
  EXPECT_EQ(combo("NumFactores")->toolTip(), "Número de Destinos");
  EXPECT_EQ(combo("Numrestricciones")->toolTip(), "Número de Orígenes");
  EXPECT_EQ(combo("restriccion(6)")->itemText(1), ">=");
  EXPECT_EQ(text(kEntry, "Título"), "Problema 1");
  EXPECT_EQ(control<QAbstractButton>(kEntry, "RediseñarTabla")->text(), "Rediseñar Tabla");
  QStringList labels;
  for (QLabel* l : screen(kEntry)->findChildren<QLabel*>()) labels << l->text();
  for (const char* fixed : {"Variables", "Restricciones", "Objetivo", "Tipo", "Existencias",
                            "TÍTULO DEL PROBLEMA", "Restricción 7"})
    EXPECT_TRUE(labels.contains(QString::fromUtf8(fixed))) << fixed;
  expectShown({"X1(0)", "X2(2)", "existencias(2)", "restriccion(1)", "LblFactores(1)"}, true);
  expectShown({"X1(3)", "X3(0)", "X7(7)", "existencias(3)", "restriccion(2)", "LblFactores(2)",
               "Lblrestriccion(2)"},
              false);
}

TEST_F(SimplexScreens, OneOptimumOffersNoBrowsingAndVolverSolvesAfresh) {
  openLibro();
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_FALSE(visible(kEntry));
  ASSERT_TRUE(visible(kSolution));
  EXPECT_EQ(screen(kSolution)->windowTitle(), "Form1");
  EXPECT_EQ(enabled(), (std::set<std::string>{"volver", "Imprimir", "cerrar"}));  // one optimum

  press(kSolution, "volver");
  combo("funcionObjetivo")->setCurrentIndex(1);
  press(kEntry, "Resolver");
  EXPECT_NE(report().find("Minimizar Z = 3X1 +  5X2"), std::string::npos);
  EXPECT_NE(report().find("Z =  0"), std::string::npos);
}

TEST_F(SimplexScreens, ForwardAndBackBrowseTheTwoOptima) {
  openFile(kEntry, examplePath("simplex", "alternativa.txt"));
  press(kEntry, "Resolver");
  EXPECT_EQ(enabled(), (std::set<std::string>{"forward", "volver", "Imprimir", "cerrar"}));
  EXPECT_EQ(control<QAbstractButton>(kSolution, "forward")->toolTip(), "Solución 2");
  EXPECT_EQ(control<QAbstractButton>(kSolution, "back")->toolTip(), "Solución 1");

  // The pages themselves: the core suite.
  press(kSolution, "forward");
  EXPECT_NE(report().find("SOLUCIÓN 2 "), std::string::npos);
  EXPECT_EQ(report().find("SOLUCIÓN 1"), std::string::npos);
  EXPECT_EQ(enabled(), (std::set<std::string>{"back", "Imprimir", "cerrar"}));

  press(kSolution, "back");
  EXPECT_NE(report().find("SOLUCIÓN 1 "), std::string::npos);
  EXPECT_EQ(enabled(), (std::set<std::string>{"forward", "volver", "Imprimir", "cerrar"}));
}

// Each bad objective cell is told, the focus ending on the last; the table's
// shape decides which cells the core reads, and blank constraint cells are 0
// (the messages and their order: the core suite).
TEST_F(SimplexScreens, ResolverChecksTheObjectiveRowOnly) {
  struct Case {
    int variables;
    std::vector<QString> objective;
    std::vector<std::string> messages;
    const char* focus;
  } cases[] = {
      {2, {"", ""}, {"Debe completar la tabla", "Debe completar la tabla"}, "X2(0)"},
      {7,
       {"1", "2", "3", "4", "", "6", "siete"},
       {"debe completar la tabla", "debe completar la tabla"},
       "X7(0)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.focus);
    screens().reset();
    platform.messages.clear();
    screens().show(kEntry);
    reshape(c.variables, 2);
    typeRows({c.objective});
    type(kEntry, "X1(1)", "abc");
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.messages, c.messages);
    EXPECT_EQ(focused(kEntry), c.focus);
    EXPECT_EQ(screen(kSolution), nullptr);
  }
  // Maximise X1 + X2 with X1 + [blank] X2 <= 4 and [blank] X1 + X2 <= 3.
  screens().reset();
  screens().show(kEntry);
  typeRows({{"1", "1"}, {"1", "", "4"}, {"", "1", "3"}});
  press(kEntry, "Resolver");
  EXPECT_NE(report().find("Z =  7"), std::string::npos) << report();
}

TEST_F(SimplexScreens, RediseñarTablaShowsTheChosenTableAndKeepsWhatCellsHold) {
  type(kEntry, "X1(0)", "4");
  type(kEntry, "X2(2)", "9");
  reshape(4, 5);
  expectShown(
      {"X4(0)", "X4(5)", "existencias(5)", "restriccion(4)", "LblFactores(3)", "Lblrestriccion(4)"},
      true);
  expectShown(
      {"X5(0)", "X1(6)", "existencias(6)", "restriccion(5)", "LblFactores(4)", "Lblrestriccion(5)"},
      false);
  EXPECT_EQ(focused(kEntry), "X1(0)");
  EXPECT_EQ(text(kEntry, "X1(0)"), "4");
  reshape(1, 1);
  EXPECT_FALSE(shown("X2(2)"));
  reshape(2, 2);
  EXPECT_EQ(text(kEntry, "X2(2)"), "9");

  // With no number of variables chosen no cell shows, and X1(0) cannot take
  // the focus: the platform's error 5, after the reshaping.
  combo("NumFactores")->setCurrentIndex(-1);
  press(kEntry, "RediseñarTabla");
  EXPECT_EQ(platform.runtimeErrors, std::vector<int>{5});
  expectShown({"X1(0)", "X1(1)", "LblFactores(0)"}, false);
  expectShown({"existencias(2)", "restriccion(1)"}, true);
}

TEST_F(SimplexScreens, NuevoBlanksTheTableAndPutsBackTheTwoByTwoShape) {
  openLibro();
  reshape(5, 6);
  combo("funcionObjetivo")->setCurrentIndex(1);
  combo("restriccion(0)")->setCurrentIndex(2);
  type(kEntry, "Título", "Fábrica");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Título"), "Fábrica");
  EXPECT_EQ(text(kEntry, "X1(0)"), "");
  EXPECT_EQ(text(kEntry, "existencias(3)"), "");
  EXPECT_EQ(combo("funcionObjetivo")->currentIndex(), 0);
  EXPECT_EQ(combo("restriccion(0)")->currentIndex(), 0);
  EXPECT_EQ(combo("NumFactores")->currentText(), "2");
  EXPECT_EQ(combo("Numrestricciones")->currentText(), "2");
  EXPECT_TRUE(shown("X2(2)"));
  expectShown({"X3(0)", "existencias(3)", "restriccion(2)"}, false);
}

// A right-hand side beyond Single, or no number of constraints chosen: the
// platform's overflow or subscript error, an empty report, a usable screen.
TEST_F(SimplexScreens, RunTimeErrorsGoToThePlatformAndTheScreenStaysUsable) {
  for (int error : {6, 9}) {
    SCOPED_TRACE(error);
    screens().reset();
    platform.runtimeErrors.clear();
    openLibro();
    if (error == 6) type(kEntry, "existencias(1)", "1e39");
    if (error == 9) combo("Numrestricciones")->setCurrentIndex(-1);
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.runtimeErrors, std::vector<int>{error});
    EXPECT_EQ(report(), "");
    EXPECT_EQ(enabled(), (std::set<std::string>{"volver", "Imprimir", "cerrar"}));
  }
}

}  // namespace
}  // namespace vorel::testing
