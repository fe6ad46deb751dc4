// The screens of decisions under uncertainty driven offscreen: every example
// through abrir and Resolver, the checks, the report pages browsed one click
// at a time with the buttons each page shows, RediseñarTabla and nuevo, the
// problem file, and the printed page with every criterion.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <set>

#include "frame/gui/model_screens.h"
#include "frame/problem_file.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "DecisionIncertidumbre";
const std::string kSolution = "DecisionIncertidumbre_solucion";
const QString kExamples = QString(VOREL_SOURCE_DIR) + "/examples/incertidumbre/";
const std::string kGolden = std::string(VOREL_SOURCE_DIR) + "/tests/golden/incertidumbre/";

// The eight buttons whose visibility the pages set.
const char* const kBrowsing[] = {"forward1",    "Back1",       "forward2",     "Continuar1",
                                 "Continuar2",  "NoContinuar", "NoContinuar2", "volver"};

// What tells the pages apart.
const char* const kWald = "CRITERIO DE WALD, MAXIMÍN O PESIMISTA";
const char* const kMaximax = " CRITERIO MAXIMAX U OPTIMISTA";
const char* const kSavage = "CRITERIO DE SAVAGE";
const char* const kHurwicz = "CRITERIO DE HURWICZ";

class IncertidumbreScreens : public ScreenTest {
protected:
  void open(const QString& file) {
    if (!screen(kEntry)) screens().show(kEntry);
    platform.openAnswers.push_back(kExamples + file);
    press(kEntry, "abrir");
  }
  template <class W = QWidget>
  W* control(const std::string& screenName, const QString& name) {
    auto* s = screen(screenName);
    return s ? s->findChild<W*>(name) : nullptr;
  }
  bool shown(const QString& name) {
    auto* w = control(kEntry, name);
    return w && !w->isHidden();
  }
  void select(const QString& combo, int index) {
    control<QComboBox>(kEntry, combo)->setCurrentIndex(index);
  }
  QString focused() {
    QWidget* w = screen(kEntry)->focusWidget();
    return w ? w->objectName() : QString("<none>");
  }
  gui::SolutionScreen* solution() { return dynamic_cast<gui::SolutionScreen*>(screen(kSolution)); }
  std::string page() { return solution() ? solution()->Solucion1()->plainText() : "<none>"; }
  std::set<std::string> visibleButtons() {
    std::set<std::string> out;
    for (const char* name : kBrowsing) {
      auto* b = control<QAbstractButton>(kSolution, name);
      EXPECT_NE(b, nullptr) << name;
      if (b && !b->isHidden()) out.insert(name);
    }
    return out;
  }
  // The page painted, known by its criterion; "?" when it is none or several.
  std::string painted() {
    const std::string text = page();
    std::vector<std::string> found;
    for (auto [marker, name] : {std::pair{kWald, "Wald"}, std::pair{kMaximax, "Maximax"},
                                std::pair{kSavage, "SavageLaplace"}, std::pair{kHurwicz, "Hurwicz"}})
      if (text.find(marker) != std::string::npos) found.push_back(name);
    return found.size() == 1 ? found[0] : "?";
  }
};

TEST_F(IncertidumbreScreens, ButtonsCarryTheirNamesAndTips) {
  open("libro.txt");
  press(kEntry, "Resolver");
  struct Case {
    const char* control;
    const char* tip;
  } cases[] = {{"forward1", "Criterio Maximax u Optimista"},
               {"Back1", "Criterio Wald, Maximin o Pesimista"},
               {"forward2", "Criterio de Laplace, Criterio de savaje"},
               {"Continuar1", "Criterio de Hurwicz"},
               {"Continuar2", "Criterio Maximax u Optimista"},
               {"NoContinuar", "Criterio Maximax u Optimista"},
               {"NoContinuar2", "Criterio de Laplace, Criterio de savaje"},
               {"Imprimir", "Imprimir"}};
  for (const Case& c : cases) {
    auto* b = control<QAbstractButton>(kSolution, c.control);
    ASSERT_NE(b, nullptr) << c.control;
    EXPECT_EQ(b->toolTip(), c.tip);
  }
  EXPECT_EQ(screen(kSolution)->windowTitle(), "Solución");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumEstados")->count(), 7);
  EXPECT_EQ(control<QComboBox>(kEntry, "NumAlternativas")->count(), 7);
  press(kSolution, "volver");
  press(kEntry, "Image5");  // the entry's way back is named Image5
  EXPECT_TRUE(visible("DecisionTeoria"));
}

// Every example solves on the screens as on the command line: the Wald page
// and the kept page read as the golden texts; a refused problem tells the
// same message and stays on the entry screen.
TEST_F(IncertidumbreScreens, EveryExampleReadsAsItsGoldenText) {
  const QStringList files = QDir(kExamples).entryList(QDir::Files, QDir::Name);
  ASSERT_GE(files.size(), 6);
  for (const QString& file : files) {
    SCOPED_TRACE(file.toStdString());
    screens().reset();
    closeAllProblemFiles();
    platform.messages.clear();
    open(file);
    press(kEntry, "Resolver");
    const std::string base = kGolden + QFileInfo(file).completeBaseName().toStdString();
    const std::string golden = readBytes(base + ".report");
    if (golden.rfind("[salida 1]\n", 0) == 0) {
      std::string told;
      for (const auto& m : platform.messages) told += m + "\n";
      EXPECT_EQ(told, golden.substr(11));
      EXPECT_TRUE(visible(kEntry));
      EXPECT_FALSE(visible(kSolution));
    } else {
      EXPECT_TRUE(platform.messages.empty());
      EXPECT_TRUE(platform.runtimeErrors.empty());
      EXPECT_FALSE(visible(kEntry));
      ASSERT_TRUE(visible(kSolution));
      EXPECT_EQ(page(), golden);
      EXPECT_EQ(renderText(solution()->page()), readBytes(base + ".page"));
      EXPECT_EQ(visibleButtons(), (std::set<std::string>{"forward1", "volver"}));
    }
  }
}

// The checks walk the visible cells row by row and then Alfa; the first
// failure is the only message, and the focus stays where it was.
TEST_F(IncertidumbreScreens, ChecksTellTheFirstFailureAndLeaveTheFocus) {
  const std::string resultados =
      " no es correcto, debe introducir un valor comprendido entre -999999999 y 999999999";
  const std::string alfa =
      "El valor del coeficiente de optimismo no es correcto, debe introducir un valor comprendido "
      "entre 0 y 1";
  struct Case {
    std::vector<std::pair<const char*, const char*>> edits;
    std::string message;
  } cases[] = {
      {{{"C1(0)", ""}}, "Debe completar la tabla de resultados "},
      {{{"C1(2)", "2e9"}}, "El valor de los resulatdos" + resultados},
      {{{"C3(1)", "x"}, {"C1(2)", ""}}, "Debe completar la tabla de resultados"},
      {{{"C4(0)", "-1e10"}}, "El valor de los resultados" + resultados},
      {{{"Alfa", "1.5"}}, alfa},
      {{{"Alfa", "-0.01"}}, alfa},
      {{{"Alfa", "2"}, {"C2(3)", ""}}, "Debe completar la tabla de resultados"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    screens().reset();
    closeAllProblemFiles();
    platform.messages.clear();
    open("libro.txt");
    for (auto [name, value] : c.edits) type(kEntry, name, value);
    control(kEntry, "Alfa")->setFocus();
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.messages, std::vector<std::string>{c.message});
    EXPECT_EQ(focused(), "Alfa");
    EXPECT_TRUE(visible(kEntry));
    EXPECT_FALSE(visible(kSolution));
  }
}

TEST_F(IncertidumbreScreens, HiddenCellsAndATextAlfaDrawNoMessage) {
  open("libro.txt");
  type(kEntry, "C5(0)", "x");  // column 5 is hidden with four states
  type(kEntry, "C1(4)", "x");  // row 4 is hidden with four alternatives
  type(kEntry, "Alfa", "abc");
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(visible(kSolution));
}

// One click at a time: the page painted and the buttons shown after it. Alfa
// is looked at on the entry screen when forward2 or NoContinuar2 is pressed.
TEST_F(IncertidumbreScreens, BrowsingPageByPage) {
  open("libro.txt");  // Alfa 0.4
  press(kEntry, "Resolver");
  EXPECT_EQ(painted(), "Wald");
  EXPECT_EQ(visibleButtons(), (std::set<std::string>{"forward1", "volver"}));
  struct Step {
    const char* alfa;  // typed on the entry screen before the click; null: as it is
    const char* button;
    const char* page;
    std::set<std::string> buttons;
  } steps[] = {
      {nullptr, "forward1", "Maximax", {"Back1", "forward2"}},
      {nullptr, "Back1", "Wald", {"forward1", "volver"}},
      {nullptr, "forward1", "Maximax", {"Back1", "forward2"}},
      {nullptr, "forward2", "SavageLaplace", {"Continuar1", "Continuar2"}},
      {nullptr, "Continuar1", "Hurwicz", {"NoContinuar2"}},
      {nullptr, "NoContinuar2", "SavageLaplace", {"Continuar1", "Continuar2"}},
      {nullptr, "Continuar2", "Maximax", {"Back1", "forward2"}},
      {"abc", "forward2", "SavageLaplace", {"NoContinuar"}},
      {nullptr, "NoContinuar", "Maximax", {"Back1", "forward2"}},
      {"", "forward2", "SavageLaplace", {"NoContinuar"}},
      {"1", "NoContinuar", "Maximax", {"Back1", "forward2"}},
      {nullptr, "forward2", "SavageLaplace", {"Continuar1", "Continuar2"}},
      {"x", "Continuar1", "Hurwicz", {"NoContinuar2"}},
      {nullptr, "NoContinuar2", "SavageLaplace", {"NoContinuar"}},
      {"0.4", "NoContinuar", "Maximax", {"Back1", "forward2"}},
      {nullptr, "Back1", "Wald", {"forward1", "volver"}},
  };
  int n = 0;
  for (const Step& s : steps) {
    SCOPED_TRACE("step " + std::to_string(++n) + ": " + s.button);
    if (s.alfa) type(kEntry, "Alfa", s.alfa);
    press(kSolution, s.button);
    EXPECT_EQ(painted(), s.page);
    EXPECT_EQ(visibleButtons(), s.buttons);
  }
  EXPECT_TRUE(platform.messages.empty());
  // Back on Wald the page is the one of the activation.
  EXPECT_EQ(page(), readBytes(kGolden + "libro.report"));
}

// The Hurwicz and Savage-Laplace pages as a student reads them.
TEST_F(IncertidumbreScreens, PagesCarryTheirCriteria) {
  open("libro.txt");
  press(kEntry, "Resolver");
  press(kSolution, "forward1");
  std::string text = page();
  EXPECT_NE(text.find("Numero de estados de la naturaleza:"), std::string::npos);
  EXPECT_NE(text.find("RESULTADO MÁS FAVORABLE PARA CADA ALTERNATIVA"), std::string::npos);
  EXPECT_NE(text.find("Alternativa 4 :                            24\n"), std::string::npos);
  press(kSolution, "forward2");
  text = page();
  EXPECT_EQ(text.find("Numero de alternativas:"), std::string::npos);  // the short head
  EXPECT_NE(text.find("Probabilidad de Laplace                    .25\n"), std::string::npos);
  EXPECT_NE(text.find("Alternativa 2 :                            11.5\n"), std::string::npos);
  press(kSolution, "Continuar1");
  text = page();
  // The Hurwicz section reads as on the printed page.
  const std::string printed = readBytes(kGolden + "libro.page");
  const std::string hurwicz = printed.substr(printed.rfind('\n', printed.find(kHurwicz)) + 1);
  ASSERT_GE(text.size(), hurwicz.size());
  EXPECT_EQ(text.substr(text.size() - hurwicz.size()), hurwicz);
  EXPECT_NE(text.find("Alternativa: 4 :             14.4\n"), std::string::npos);
}

TEST_F(IncertidumbreScreens, EveryActivationStartsAtWald) {
  open("libro.txt");
  press(kEntry, "Resolver");
  press(kSolution, "forward1");
  press(kSolution, "forward2");
  press(kSolution, "Continuar1");
  ASSERT_EQ(painted(), "Hurwicz");
  press(kSolution, "gohome");  // volver is hidden here: the way out is the main menu
  EXPECT_FALSE(visible(kSolution));
  screens().show(kEntry);
  type(kEntry, "C1(3)", "30");
  press(kEntry, "Resolver");
  EXPECT_EQ(painted(), "Wald");
  EXPECT_EQ(visibleButtons(), (std::set<std::string>{"forward1", "volver"}));
  EXPECT_NE(page().find("Alternativa 4 :                            0\n"), std::string::npos);
  press(kSolution, "forward1");
  EXPECT_NE(page().find("Alternativa 4 :                            30\n"), std::string::npos);
  press(kSolution, "Back1");
  press(kSolution, "volver");
  EXPECT_TRUE(visible(kEntry));
  EXPECT_FALSE(visible(kSolution));
}

TEST_F(IncertidumbreScreens, RediseñarTablaReshapesKeepingTheTexts) {
  struct Case {
    int na, ne;
  } cases[] = {{1, 1}, {2, 6}, {7, 7}, {4, 4}};
  open("libro.txt");
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.na) + "x" + std::to_string(c.ne));
    select("NumAlternativas", c.na - 1);
    select("NumEstados", c.ne - 1);
    control(kEntry, "Alfa")->setFocus();
    press(kEntry, "RediseñarTabla");
    EXPECT_TRUE(platform.messages.empty());
    for (int k = 0; k < 7; ++k) {
      EXPECT_EQ(shown(QString("LblEstados(%1)").arg(k)), k < c.ne) << k;
      EXPECT_EQ(shown(QString("LblAlternativas(%1)").arg(k)), k < c.na) << k;
      for (int j = 1; j <= 7; ++j)
        EXPECT_EQ(shown(QString("C%1(%2)").arg(j).arg(k)), j <= c.ne && k < c.na) << j << "," << k;
    }
    EXPECT_EQ(focused(), "C1(0)");
  }
  EXPECT_EQ(text(kEntry, "C4(3)"), "0");
  EXPECT_EQ(text(kEntry, "C1(0)"), "20");
  EXPECT_EQ(control<QLabel>(kEntry, "LblEstados(6)")->text(), "Estado 7");
}

TEST_F(IncertidumbreScreens, RediseñarTablaWantsBothNumbers) {
  struct Case {
    int alternativas, estados;
    const char* message;
  } cases[] = {{2, -1, "Seleccione el número de estados"},
               {-1, -1, "Seleccione el número de estados"},
               {-1, 2, "Seleccione el número de alternativas"}};
  open("libro.txt");
  for (const Case& c : cases) {
    platform.messages.clear();
    select("NumAlternativas", c.alternativas);
    select("NumEstados", c.estados);
    press(kEntry, "RediseñarTabla");
    EXPECT_EQ(platform.messages, std::vector<std::string>{c.message});
    EXPECT_TRUE(shown("C4(3)"));
    EXPECT_FALSE(shown("C5(0)"));
  }
}

TEST_F(IncertidumbreScreens, NuevoBlanksAndRestoresTheFirstShapeButKeepsTheTitle) {
  open("libro.txt");
  select("NumAlternativas", 6);
  select("NumEstados", 0);
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

TEST_F(IncertidumbreScreens, ProblemFileRoundTrip) {
  open("libro.txt");
  const QString path = QString::fromStdString(tempPath("planta.txt"));
  platform.saveAnswers.push_back(path);
  press(kEntry, "guardar");
  EXPECT_EQ(platform.lastFilter, "All Files (*.*)|*.*|Text _Files (*.txt)|*");
  EXPECT_EQ(platform.lastFilterIndex, 2);
  EXPECT_EQ(platform.lastFileName, "Ampliación de la planta");
  EXPECT_EQ(readBytes(path.toStdString()), readBytes((kExamples + "libro.txt").toStdString()));

  select("NumAlternativas", 1);
  select("NumEstados", 2);
  press(kEntry, "RediseñarTabla");
  type(kEntry, "Alfa", "0.75");
  const QString small = QString::fromStdString(tempPath("planta-pequena.txt"));
  platform.saveAnswers.push_back(small);
  press(kEntry, "guardar");

  press(kEntry, "nuevo");
  platform.openAnswers.push_back(small);
  press(kEntry, "abrir");  // still open for writing in this run: nothing happens
  EXPECT_EQ(text(kEntry, "Alfa"), "");

  closeAllProblemFiles();  // a later run
  platform.openAnswers.push_back(small);
  press(kEntry, "abrir");
  EXPECT_EQ(text(kEntry, "Alfa"), "0.75");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumAlternativas")->currentText(), "2");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumEstados")->currentText(), "3");
  EXPECT_TRUE(shown("C3(1)"));
  EXPECT_FALSE(shown("C4(1)"));
  EXPECT_FALSE(shown("C1(2)"));
  EXPECT_EQ(text(kEntry, "C4(3)"), "0");  // hidden, with its text
  EXPECT_FALSE(shown("LblAlternativas(2)"));
  EXPECT_TRUE(shown("LblEstados(2)"));
  press(kEntry, "Resolver");
  EXPECT_NE(page().find("Numero de alternativas:                   2\n"), std::string::npos);
}

TEST_F(IncertidumbreScreens, ImprimirPrintsEveryCriterionFromAnyPage) {
  struct Case {
    const char* file;
    const char* alfaLine;
  } cases[] = {{"libro.txt", "0.4"}, {"alfa-texto.txt", nullptr}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    screens().reset();
    closeAllProblemFiles();
    open(c.file);
    press(kEntry, "Resolver");
    press(kSolution, "forward1");  // the page does not depend on the page shown
    const QString pdf = QString::fromStdString(tempPath(std::string(c.file) + ".pdf"));
    platform.printTo(pdf);
    press(kSolution, "Imprimir");
    platform.endProcess();
    const std::string text = pdfText(pdf);
    std::size_t at = 0;
    for (const char* line :
         {"TOMA DE DECISIONES EN AMBIENTE DE INCERTIDUMBRE", "Solución al problema:",
          "Numero de estados de la naturaleza:", kWald, "CRITERIO MAXIMAX U OPTIMISTA", kSavage,
          "CRITERIO DE LAPLACE", kHurwicz, "ALFA:", "COEFICIENTE DE OPTIMISMO DE LAS ALTERNATIVAS",
          "ALTERNATIVAS SELECCIONADAS"}) {
      at = text.find(line, at);
      ASSERT_NE(at, std::string::npos) << line;
    }
    const std::string hurwicz = text.substr(text.find(kHurwicz));
    if (c.alfaLine) {
      EXPECT_NE(hurwicz.find(c.alfaLine), std::string::npos);
      EXPECT_NE(hurwicz.find("Alternativa 4"), std::string::npos);
    } else {
      // No coefficient: no alternative stands selected under Hurwicz.
      EXPECT_EQ(hurwicz.find("Alternativa "), std::string::npos);
    }
  }
  EXPECT_EQ(platform.printerDialogs, 2);
}

}  // namespace
}  // namespace vorel::testing
