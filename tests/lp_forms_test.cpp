// The linear-programming screens as the browser and the desktop both read
// them: the browsing of the kept solutions page by page, the degenerate
// refusal, Rediseñar Tabla on the live fields, and the slices of a method that
// never ends.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "frame/catalogue.h"
#include "frame/form.h"
#include "frame/report.h"
#include "tests/test_support.h"

namespace vorel {
namespace {

std::string example(const std::string& path) {
  return testing::readBytes(std::string(VOREL_SOURCE_DIR) + "/examples/" + path);
}

std::unique_ptr<EntryForm> opened(const std::string& screen, const std::string& file) {
  std::unique_ptr<EntryForm> form = newEntryForm(screen);
  EXPECT_NE(form, nullptr) << screen;
  if (form) form->abrir(example(file));
  return form;
}

// The browsing commands of a solution screen that show now.
std::set<std::string> offered(const EntryForm& form, const Solution& s) {
  std::set<std::string> out;
  for (const ui::Command& c : form.solution().commands)
    if (c.action == ui::Action::Browse && s.shows(c.name)) out.insert(c.name);
  return out;
}

// What a text box or selector of the live fields shows.
std::map<std::string, std::string> texts(EntryForm& form) {
  std::map<std::string, std::string> out;
  form.each([&](const ControlState& c) {
    if (c.text) out[c.control] = *c.text;
    if (c.visible) out[c.control + ".visible"] = *c.visible ? "1" : "0";
    if (c.index) out[c.control + ".index"] = std::to_string(*c.index);
  });
  return out;
}

using Names = std::set<std::string>;

// Three optimal assignments: forward1 leads to the second, forward2 to the
// third, back2 and Back1 back; each page offers only the moves from it, a
// page seen again reads the same, and the printed page holds all three.
TEST(AsignacionForm, BrowsesTheKeptSolutionsOnlyByTheMovesThatExist) {
  auto form = opened("PL_Asignación", "asignacion/costes-iguales.txt");
  Solution& s = form->solve(0);
  struct Step {
    const char* press;
    int solution;
    Names offered;
  } steps[] = {
      {nullptr, 1, {"forward1"}},      {"forward1", 2, {"Back1", "forward2"}},
      {"forward2", 3, {"back2"}},      {"back2", 2, {"Back1", "forward2"}},
      {"Back1", 1, {"forward1"}},      {"forward1", 2, {"Back1", "forward2"}},
  };
  std::map<int, std::string> pages;
  const std::string printed = renderText(s.pages().page);
  for (const Step& step : steps) {
    SCOPED_TRACE(step.press ? step.press : "solved");
    if (step.press) {
      EXPECT_TRUE(s.press(step.press));
    }
    const std::string text = renderText(s.pages().screen);
    for (int k = 1; k <= 3; ++k)
      EXPECT_EQ(text.find("SOLUCIÓN " + std::to_string(k)) != std::string::npos,
                k == step.solution);
    EXPECT_EQ(offered(*form, s), step.offered);
    pages.emplace(step.solution, text);
    EXPECT_EQ(pages[step.solution], text);
    EXPECT_EQ(renderText(s.pages().page), printed);  // Imprimir prints every solution
  }
  // A move that the page does not offer does nothing.
  EXPECT_FALSE(s.press("back2"));
  EXPECT_FALSE(s.press("Imprimir"));
  EXPECT_EQ(renderText(s.pages().screen), pages[2]);
  for (const char* k : {"SOLUCIÓN 1", "SOLUCIÓN 2", "SOLUCIÓN 3"})
    EXPECT_NE(printed.find(k), std::string::npos) << k;

  // A fresh solve starts again at the first solution.
  EXPECT_EQ(renderText(form->solve(0).pages().screen), pages[1]);
}

TEST(AsignacionForm, OneOptimumOffersNothingAndTwoOfferOneMoveEach) {
  auto form = opened("PL_Asignación", "asignacion/dos-optimos.txt");
  Solution& two = form->solve(0);
  EXPECT_EQ(offered(*form, two), Names{"forward1"});
  EXPECT_FALSE(two.press("forward2"));
  ASSERT_TRUE(two.press("forward1"));
  EXPECT_EQ(offered(*form, two), Names{"Back1"});

  ASSERT_TRUE(form->setText("C1(0)", "0"));
  Solution& one = form->solve(0);
  EXPECT_EQ(offered(*form, one), Names{});
  EXPECT_EQ(renderText(one.pages().screen).find("SOLUCIÓN"), std::string::npos);
}

// Rediseñar Tabla reshapes the live fields from both selectors and keeps
// the texts of the cells it hides.
TEST(AsignacionForm, RediseñarTablaShowsTheChosenShape) {
  auto form = opened("PL_Asignación", "asignacion/siete.txt");
  const std::string kept = texts(*form)["C7(6)"];
  ASSERT_TRUE(form->setIndex("NumIndividuos", 2));
  ASSERT_TRUE(form->setIndex("NumTareas", 4));
  Messages messages;
  ASSERT_TRUE(form->edit("RediseñarTabla", messages));
  EXPECT_TRUE(messages.empty());
  auto shown = texts(*form);
  EXPECT_EQ(shown["C5(2).visible"], "1");
  EXPECT_EQ(shown["C6(2).visible"], "0");
  EXPECT_EQ(shown["C5(3).visible"], "0");
  EXPECT_EQ(shown["LblIndividuos(2).visible"], "1");
  EXPECT_EQ(shown["LblIndividuos(3).visible"], "0");
  EXPECT_EQ(shown["LblTareas(4).visible"], "1");
  EXPECT_EQ(shown["LblTareas(5).visible"], "0");
  EXPECT_EQ(shown["C7(6)"], kept);
}

// Every control the form binds is one its entry screen describes, so the
// desktop and the browser find it by name.
TEST(LinearProgrammingForms, EveryBindingNamesADescribedControl) {
  for (const char* screen : {"PL_Asignación", "PL_Transportes", "PL_Simplex"}) {
    SCOPED_TRACE(screen);
    auto form = newEntryForm(screen);
    ASSERT_NE(form, nullptr);
    std::set<std::string> described = {form->entry().titleField.name};
    for (const ui::Control& c : form->entry().controls)
      if (!c.name.empty()) described.insert(c.name);
    form->each([&](const ControlState& c) { EXPECT_TRUE(described.count(c.control)) << c.control; });
  }
}

// A degenerate first solution gives no pages: its message, for the screen to
// go back to the entry with all it held.
TEST(TransportesForm, ADegenerateFirstSolutionIsRefused) {
  auto form = opened("PL_Transportes", "transporte/degenerada.txt");
  const auto before = texts(*form);
  Solution& s = form->solve(0);
  EXPECT_EQ(s.refusal(), (Messages{{"la solución es degenerada", ""}}));
  EXPECT_TRUE(s.pages().screen.empty());
  EXPECT_EQ(texts(*form), before);

  auto solvable = opened("PL_Transportes", "transporte/libro.txt");
  Solution& solved = solvable->solve(0);
  EXPECT_TRUE(solved.refusal().empty());
  EXPECT_NE(renderText(solved.pages().screen).find("CANTIDADES TRANSPORTADAS"), std::string::npos);
}

// Rediseñar Tabla wants both numbers, and re-captions the headings after the
// last origin and destination.
TEST(TransportesForm, RediseñarTablaCaptionsTheTotalsAndWantsBothNumbers) {
  auto form = newEntryForm("PL_Transportes");
  ASSERT_TRUE(form->setIndex("NumOrigen", 2));
  ASSERT_TRUE(form->setIndex("NumDestino", 3));
  Messages messages;
  ASSERT_TRUE(form->edit("RediseñarTabla", messages));
  EXPECT_TRUE(messages.empty());
  auto shown = texts(*form);
  EXPECT_EQ(shown["LblOrigen(3)"], "Demandas");
  EXPECT_EQ(shown["LblDestino(4)"], "Existencias");
  EXPECT_EQ(shown["LblDestino(3)"], "Destino 4");
  EXPECT_EQ(shown["C5(2).visible"], "1");  // a supply
  EXPECT_EQ(shown["C5(3).visible"], "0");  // below the supplies, beside the demands

  ASSERT_TRUE(form->setIndex("NumDestino", -1));
  ASSERT_TRUE(form->edit("RediseñarTabla", messages));
  EXPECT_EQ(messages, (Messages{{"Introduzca el Número de Destinos", ""}}));
  shown["NumDestino.index"] = "-1";  // the choice made, and nothing else
  EXPECT_EQ(texts(*form), shown);
}

// A problem whose exchanges never come to rest spends any budget it is given;
// the caller's next slice tries again with more.
TEST(TransportesForm, AnEndlessImprovementSpendsEveryBudget) {
  auto form = opened("PL_Transportes", "transporte/sin-fin.txt");
  for (long budget : {1L << 10, 1L << 14})
    EXPECT_THROW(form->solve(budget), DoesNotEnd) << budget;
}

// Two optima: forward shows the one saved first and withholds volver and
// itself; back shows the final one again and gives them back. One optimum
// offers neither.
TEST(SimplexForm, ForwardAndBackBrowseTheTwoOptimaAndVolverWaitsOnTheSecond) {
  auto form = opened("PL_Simplex", "simplex/alternativa.txt");
  Solution& s = form->solve(0);
  const std::string first = renderText(s.pages().screen);
  const std::string printed = renderText(s.pages().page);
  EXPECT_EQ(offered(*form, s), Names{"forward"});
  EXPECT_TRUE(s.offers("volver"));
  EXPECT_FALSE(s.press("back"));

  ASSERT_TRUE(s.press("forward"));
  const std::string second = renderText(s.pages().screen);
  EXPECT_NE(second.find("SOLUCIÓN 2 "), std::string::npos);
  EXPECT_EQ(second.find("SOLUCIÓN 1"), std::string::npos);
  EXPECT_EQ(offered(*form, s), Names{"back"});
  EXPECT_FALSE(s.offers("volver"));
  EXPECT_TRUE(s.offers("cerrar"));
  EXPECT_FALSE(s.press("forward"));

  ASSERT_TRUE(s.press("back"));
  EXPECT_NE(renderText(s.pages().screen).find("SOLUCIÓN 1 "), std::string::npos);
  EXPECT_NE(renderText(s.pages().screen), first);  // the browsing form of the page
  EXPECT_EQ(offered(*form, s), Names{"forward"});
  EXPECT_TRUE(s.offers("volver"));
  EXPECT_EQ(renderText(s.pages().page), printed);

  auto libro = opened("PL_Simplex", "simplex/libro.txt");
  Solution& one = libro->solve(0);
  EXPECT_EQ(offered(*libro, one), Names{});
  EXPECT_TRUE(one.offers("volver"));
}

// A cycling tableau spends every budget; a problem that ends needs none.
TEST(SimplexForm, ACyclingProblemSpendsEveryBudget) {
  auto form = opened("PL_Simplex", "simplex/sin-fin.txt");
  for (long budget : {1L << 8, 1L << 12}) EXPECT_THROW(form->solve(budget), DoesNotEnd) << budget;
  EXPECT_EQ(form->lastSolution(), nullptr);
  auto libro = opened("PL_Simplex", "simplex/libro.txt");
  EXPECT_NO_THROW(libro->solve(1L << 8));
}

// Rediseñar Tabla shows the chosen table with its relations; with no number
// of variables the focus cannot go to X1(0), after the table was reshaped.
TEST(SimplexForm, RediseñarTablaReshapesBeforeItsFocusFails) {
  auto form = newEntryForm("PL_Simplex");
  ASSERT_TRUE(form->setIndex("NumFactores", 3));
  ASSERT_TRUE(form->setIndex("Numrestricciones", 4));
  Messages messages;
  ASSERT_TRUE(form->edit("RediseñarTabla", messages));
  auto shown = texts(*form);
  EXPECT_EQ(shown["X4(5).visible"], "1");
  EXPECT_EQ(shown["X5(0).visible"], "0");
  EXPECT_EQ(shown["restriccion(4).visible"], "1");
  EXPECT_EQ(shown["restriccion(5).visible"], "0");
  EXPECT_EQ(shown["existencias(5).visible"], "1");
  EXPECT_EQ(shown["Lblrestriccion(4).visible"], "1");

  ASSERT_TRUE(form->setIndex("NumFactores", -1));
  EXPECT_ANY_THROW(form->edit("RediseñarTabla", messages));
  shown = texts(*form);
  EXPECT_EQ(shown["X1(0).visible"], "0");
  EXPECT_EQ(shown["LblFactores(0).visible"], "0");
  EXPECT_EQ(shown["existencias(5).visible"], "1");
}

}  // namespace
}  // namespace vorel
