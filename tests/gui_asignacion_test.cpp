// The assignment screens driven offscreen, as the desktop's wiring of a
// described model: the cell checks with the focus they leave, and the kept
// solutions browsed one click at a time with only the moves that exist shown
// (the form's own logic: lp_forms_test and asignacion_test).
#include <gtest/gtest.h>

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
};

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

}  // namespace
}  // namespace vorel::testing
