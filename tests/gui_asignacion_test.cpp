// The assignment screens driven offscreen: the entry's texts, the cell checks
// in their wordings with the focus they leave, the kept solutions browsed one
// click at a time with only the moves that exist shown, RediseñarTabla and
// nuevo.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <map>
#include <set>

#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "PL_Asignación";
const std::string kSolution = "PL_Asignación_Solución";

using Buttons = std::set<std::string>;

class AsignacionScreens : public ScreenTest {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    screens().show(kEntry);
  }
  void openExample(const char* file) { openFile(kEntry, examplePath("asignacion", file)); }
  bool shown(const QString& name) { return ScreenTest::shown(kEntry, name); }
  void select(int individuos, int tareas) {
    control<QComboBox>(kEntry, "NumIndividuos")->setCurrentIndex(individuos - 1);
    control<QComboBox>(kEntry, "NumTareas")->setCurrentIndex(tareas - 1);
  }
  std::string report() { return painted(kSolution); }
  Buttons visibleButtons() {
    Buttons out;
    for (const char* name : {"forward1", "forward2", "back2", "Back1"}) {
      auto* b = control<QAbstractButton>(kSolution, name);
      EXPECT_NE(b, nullptr) << name;
      if (b && !b->isHidden()) out.insert(name);
    }
    return out;
  }
  void expectShape(int individuos, int tareas) {
    for (int i = 0; i < 8; ++i) {
      if (i < 7) {
        EXPECT_EQ(shown(QString("LblIndividuos(%1)").arg(i)), i < individuos) << i;
        EXPECT_EQ(shown(QString("LblTareas(%1)").arg(i)), i < tareas) << i;
      }
      for (int j = 1; j <= 8; ++j)
        EXPECT_EQ(shown(QString("C%1(%2)").arg(j).arg(i)), i < individuos && j <= tareas)
            << "C" << j << "(" << i << ")";
    }
  }
};

TEST_F(AsignacionScreens, TheEntryLoadsWithATwoByTwoTable) {
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Problemas de Asignación");
  EXPECT_EQ(text(kEntry, "Título"), "Problema 1");
  for (const char* name : {"NumIndividuos", "NumTareas"}) {
    auto* combo = control<QComboBox>(kEntry, name);
    ASSERT_NE(combo, nullptr) << name;
    EXPECT_EQ(combo->count(), 7);
    EXPECT_EQ(combo->itemText(6), "7");
    EXPECT_EQ(combo->currentText(), "2");
  }
  EXPECT_EQ(control<QAbstractButton>(kEntry, "RediseñarTabla")->text(), "Rediseñar Tabla");
  EXPECT_EQ(control<QLabel>(kEntry, "LblIndividuos(6)")->text(), "Individuo 7");
  EXPECT_EQ(control<QLabel>(kEntry, "LblTareas(0)")->text(), "Tarea 1");
  expectShape(2, 2);
  press(kEntry, "volver");
  EXPECT_TRUE(visible("ProgramaciónLineal"));
}

// Every message reaches the box, the focus ending on the last bad cell, and
// only the table's visible cells are read (the wordings: the core suite).
TEST_F(AsignacionScreens, EveryBadCellIsToldInItsColumnsWording) {
  const std::string completar = "Debe completar la tabla de costes de Asignación";
  const std::string espacio = "Debe completar la tabla de costes de asignación ";
  const std::string rango =
      "El valor de los costes de asignación no es correcto, debe introducir un valor "
      "comprendido entre 0 y 999999999";
  struct Case {
    std::vector<std::pair<const char*, const char*>> edits;
    std::vector<std::string> messages;
    const char* focus;
  } cases[] = {
      {{{"C2(0)", ""}, {"C7(0)", "y"}, {"C3(2)", "2e9"}}, {completar, espacio, rango}, "C3(2)"},
      {{{"C8(0)", "x"}, {"C1(7)", "x"}}, {}, "Título"},  // hidden cells
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.focus);
    screens().reset();
    platform.messages.clear();
    openExample("siete.txt");
    for (auto [name, value] : c.edits) type(kEntry, name, value);
    control(kEntry, "Título")->setFocus();
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.messages, c.messages);
    if (!c.messages.empty()) {
      EXPECT_EQ(focused(kEntry), c.focus);
    }
    EXPECT_EQ(visible(kSolution), c.messages.empty());
  }
}

// Three optimal assignments: forward1 to the second, forward2 to the third,
// back2 to the second, Back1 to the first; each page offers only its moves,
// and a page seen again is the page it was.
TEST_F(AsignacionScreens, BrowsingThreeSolutionsPageByPage) {
  openExample("costes-iguales.txt");
  press(kEntry, "Resolver");
  struct Step {
    const char* press;  // nullptr: the page of the activation
    int solution;
    Buttons buttons;
  } steps[] = {
      {nullptr, 1, {"forward1"}}, {"forward1", 2, {"Back1", "forward2"}},
      {"forward2", 3, {"back2"}}, {"back2", 2, {"Back1", "forward2"}},
      {"Back1", 1, {"forward1"}}, {"forward1", 2, {"Back1", "forward2"}},
  };
  std::map<int, std::string> pages;
  for (const Step& s : steps) {
    SCOPED_TRACE(s.press ? s.press : "activation");
    if (s.press) press(kSolution, s.press);
    const std::string text = report();
    for (int k = 1; k <= 3; ++k)
      EXPECT_EQ(text.find("SOLUCIÓN " + std::to_string(k)) != std::string::npos, k == s.solution)
          << k;
    EXPECT_EQ(visibleButtons(), s.buttons);
    if (!pages.count(s.solution)) pages[s.solution] = text;
    EXPECT_EQ(text, pages[s.solution]);
  }
  // The three assignments differ beyond their headings.
  std::set<std::string> bodies;
  for (auto [k, text] : pages) bodies.insert(text.erase(text.find("SOLUCIÓN "), 11));
  EXPECT_EQ(bodies.size(), 3u);
  // Each activation starts again at the first solution.
  press(kSolution, "volver");
  press(kEntry, "Resolver");
  EXPECT_EQ(report(), pages[1]);
  EXPECT_EQ(visibleButtons(), Buttons{"forward1"});
}

TEST_F(AsignacionScreens, FewerSolutionsOfferFewerMoves) {
  openExample("dos-optimos.txt");
  press(kEntry, "Resolver");
  EXPECT_EQ(visibleButtons(), Buttons{"forward1"});
  press(kSolution, "forward1");
  EXPECT_NE(report().find("SOLUCIÓN 2"), std::string::npos);
  EXPECT_EQ(visibleButtons(), Buttons{"Back1"});

  // A single optimum: no heading and nothing to browse.
  press(kSolution, "volver");
  type(kEntry, "C1(0)", "0");
  press(kEntry, "Resolver");
  EXPECT_NE(report().find("Número de soluciones:        1"), std::string::npos);
  EXPECT_EQ(report().find("SOLUCIÓN"), std::string::npos);
  EXPECT_EQ(visibleButtons(), Buttons{});
}

// RediseñarTabla shows the chosen individuals by tasks and keeps every text;
// without a chosen number it reads the empty selector as 0.
TEST_F(AsignacionScreens, RediseñarTablaReshapesAndKeepsTheTexts) {
  openExample("siete.txt");
  const QString before = text(kEntry, "C7(6)");
  const std::pair<int, int> shapes[] = {{1, 1}, {7, 7}, {3, 5}, {7, 1}, {7, 7}, {0, 4}};
  for (auto [individuos, tareas] : shapes) {
    SCOPED_TRACE(std::to_string(individuos) + "x" + std::to_string(tareas));
    select(individuos, tareas);
    control(kEntry, "Título")->setFocus();
    press(kEntry, "RediseñarTabla");
    EXPECT_TRUE(platform.messages.empty());
    expectShape(individuos, tareas);
    if (individuos > 0) {
      EXPECT_EQ(focused(kEntry), "C1(0)");
    }
  }
  EXPECT_FALSE(before.isEmpty());
  EXPECT_EQ(text(kEntry, "C7(6)"), before);
}

TEST_F(AsignacionScreens, NuevoBlanksAndRestoresTheFirstShapeButKeepsTheTitle) {
  openExample("siete.txt");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Título"), "Siete tareas");
  for (const char* f : {"C1(0)", "C3(1)", "C7(6)"}) EXPECT_EQ(text(kEntry, f), "") << f;
  EXPECT_EQ(control<QComboBox>(kEntry, "NumIndividuos")->currentText(), "2");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumTareas")->currentText(), "2");
  expectShape(2, 2);
}

}  // namespace
}  // namespace vorel::testing
