// The screens of decisions under uncertainty driven offscreen: a check's
// message that leaves the focus where it was, the pages as a student reads
// them, RediseñarTabla's messages and nuevo, and the printed page with every
// criterion (where each arrow leads: incertidumbre_test and decision.test.mjs).
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <set>

#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "DecisionIncertidumbre";
const std::string kSolution = "DecisionIncertidumbre_solucion";

// What tells the pages apart.
const char* const kWald = "CRITERIO DE WALD, MAXIMÍN O PESIMISTA";
const char* const kMaximax = " CRITERIO MAXIMAX U OPTIMISTA";
const char* const kSavage = "CRITERIO DE SAVAGE";
const char* const kHurwicz = "CRITERIO DE HURWICZ";

using Buttons = std::set<std::string>;

class IncertidumbreScreens : public ScreenTest {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    screens().show(kEntry);
  }
  void openLibro() { openFile(kEntry, examplePath("incertidumbre", "libro.txt")); }
  bool shown(const QString& name) { return ScreenTest::shown(kEntry, name); }
  void select(int alternativas, int estados) {
    control<QComboBox>(kEntry, "NumAlternativas")->setCurrentIndex(alternativas - 1);
    control<QComboBox>(kEntry, "NumEstados")->setCurrentIndex(estados - 1);
  }
  std::string page() { return painted(kSolution); }
  Buttons visibleButtons() {
    Buttons out;
    for (const char* name : {"forward1", "Back1", "forward2", "Continuar1", "Continuar2",
                             "NoContinuar", "NoContinuar2", "volver"}) {
      auto* b = control<QAbstractButton>(kSolution, name);
      EXPECT_NE(b, nullptr) << name;
      if (b && !b->isHidden()) out.insert(name);
    }
    return out;
  }
  // The page painted, known by its criterion; "?" when it is none or several.
  std::string criterion() {
    const std::string text = page();
    std::vector<std::string> found;
    for (auto [marker, name] :
         {std::pair{kWald, "Wald"}, std::pair{kMaximax, "Maximax"},
          std::pair{kSavage, "SavageLaplace"}, std::pair{kHurwicz, "Hurwicz"}})
      if (text.find(marker) != std::string::npos) found.push_back(name);
    return found.size() == 1 ? found[0] : "?";
  }
};

// The first failure is the only message, and the focus stays where it was
// (the checks and their order: the core suite).
TEST_F(IncertidumbreScreens, ChecksTellTheFirstFailureAndLeaveTheFocus) {
  struct Case {
    std::vector<std::pair<const char*, const char*>> edits;
    std::string message;  // empty: solves
  } cases[] = {
      {{{"C3(1)", "x"}, {"C1(2)", ""}}, "Debe completar la tabla de resultados"},
      {{{"Alfa", "1.5"}},
       "El valor del coeficiente de optimismo no es correcto, debe introducir un valor "
       "comprendido entre 0 y 1"},
      {{{"C5(0)", "x"}, {"C1(4)", "x"}, {"Alfa", "abc"}}, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    screens().reset();
    platform.messages.clear();
    openLibro();
    for (auto [name, value] : c.edits) type(kEntry, name, value);
    control(kEntry, "Alfa")->setFocus();
    press(kEntry, "Resolver");
    if (c.message.empty()) {
      EXPECT_TRUE(platform.messages.empty());
      EXPECT_TRUE(visible(kSolution));
      continue;
    }
    EXPECT_EQ(platform.messages, std::vector<std::string>{c.message});
    EXPECT_EQ(focused(kEntry), "Alfa");
    EXPECT_TRUE(visible(kEntry));
    EXPECT_FALSE(visible(kSolution));
  }
}

// The pages past Wald as a student reads them, the Hurwicz one ending as the
// printed page does; leaving from there, the next activation starts at Wald.
TEST_F(IncertidumbreScreens, PagesCarryTheirCriteriaAndEachActivationStartsAtWald) {
  openLibro();
  press(kEntry, "Resolver");
  press(kSolution, "forward1");
  EXPECT_NE(page().find("RESULTADO MÁS FAVORABLE PARA CADA ALTERNATIVA"), std::string::npos);
  EXPECT_NE(page().find("Alternativa 4 :                            24\n"), std::string::npos);
  press(kSolution, "forward2");
  EXPECT_EQ(page().find("Numero de alternativas:"), std::string::npos);  // the short head
  EXPECT_NE(page().find("Probabilidad de Laplace                    .25\n"), std::string::npos);
  EXPECT_NE(page().find("Alternativa 2 :                            11.5\n"), std::string::npos);
  press(kSolution, "Continuar1");
  const std::string printed = golden("incertidumbre", "libro.txt", "page");
  const std::string hurwicz = printed.substr(printed.rfind('\n', printed.find(kHurwicz)) + 1);
  ASSERT_GE(page().size(), hurwicz.size());
  EXPECT_EQ(page().substr(page().size() - hurwicz.size()), hurwicz);

  press(kSolution, "gohome");  // volver is hidden here: the way out is the main menu
  EXPECT_FALSE(visible(kSolution));
  screens().show(kEntry);
  type(kEntry, "C1(3)", "30");
  press(kEntry, "Resolver");
  EXPECT_EQ(criterion(), "Wald");
  EXPECT_EQ(visibleButtons(), (Buttons{"forward1", "volver"}));
  press(kSolution, "forward1");
  EXPECT_NE(page().find("Alternativa 4 :                            30\n"), std::string::npos);
}

TEST_F(IncertidumbreScreens, RediseñarTablaWantsBothNumbers) {
  struct Case {
    int alternativas, estados;
    const char* message;
  } cases[] = {{2, 0, "Seleccione el número de estados"},
               {0, 0, "Seleccione el número de estados"},
               {0, 2, "Seleccione el número de alternativas"}};
  openLibro();
  for (const Case& c : cases) {
    platform.messages.clear();
    select(c.alternativas, c.estados);
    press(kEntry, "RediseñarTabla");
    EXPECT_EQ(platform.messages, std::vector<std::string>{c.message});
    EXPECT_TRUE(shown("C4(3)"));
    EXPECT_FALSE(shown("C5(0)"));
  }
}

TEST_F(IncertidumbreScreens, NuevoBlanksAndRestoresTheFirstShapeButKeepsTheTitle) {
  openLibro();
  select(7, 1);
  press(kEntry, "RediseñarTabla");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Título"), "Ampliación de la planta");
  for (const char* f : {"Alfa", "C1(0)", "C4(3)", "C2(1)"}) EXPECT_EQ(text(kEntry, f), "") << f;
  EXPECT_EQ(control<QComboBox>(kEntry, "NumAlternativas")->currentText(), "4");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumEstados")->currentText(), "4");
  EXPECT_TRUE(shown("C4(3)"));
  EXPECT_TRUE(shown("LblEstados(3)"));
  EXPECT_FALSE(shown("C1(4)"));
  EXPECT_FALSE(shown("LblAlternativas(4)"));
}

TEST_F(IncertidumbreScreens, ImprimirPrintsEveryCriterionFromAnyPage) {
  openLibro();
  press(kEntry, "Resolver");
  press(kSolution, "forward1");  // the page does not depend on the page shown
  const QString pdf = QString::fromStdString(tempPath("incertidumbre.pdf"));
  platform.printTo(pdf);
  press(kSolution, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 1);
  platform.endProcess();
  const std::string text = pdfText(pdf);
  std::size_t at = 0;
  for (const char* line :
       {"TOMA DE DECISIONES EN AMBIENTE DE INCERTIDUMBRE", kWald, "CRITERIO MAXIMAX U OPTIMISTA",
        kSavage, "CRITERIO DE LAPLACE", kHurwicz, "ALTERNATIVAS SELECCIONADAS"}) {
    at = text.find(line, at);
    ASSERT_NE(at, std::string::npos) << line;
  }
}

}  // namespace
}  // namespace vorel::testing
