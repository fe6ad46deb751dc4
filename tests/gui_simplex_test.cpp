// The simplex screens driven offscreen: the table typed and reshaped, the
// checks of the objective row with the focus they leave, the final tableau's
// report with its two solutions, the problem file keeping the table's shape,
// the printed page, and a problem that cycles for ever.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>
#include <functional>

#include "frame/gui/model_screens.h"
#include "frame/gui/report_box.h"
#include "frame/problem_file.h"
#include "linear_programming/simplex_screens.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "PL_Simplex";
const std::string kSolution = "PL_Simplex_Solucion";

QString example(const char* name) {
  return QString(VOREL_SOURCE_DIR) + "/examples/simplex/" + name + ".txt";
}
std::string golden(const char* name) {
  return readBytes(std::string(VOREL_SOURCE_DIR) + "/tests/golden/simplex/" + name + ".report");
}

class SimplexScreens : public ScreenTest {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    screens().show(kEntry);
  }
  QComboBox* combo(const QString& name) { return screen(kEntry)->findChild<QComboBox*>(name); }
  bool shown(const QString& name) {
    auto* w = screen(kEntry)->findChild<QWidget*>(name);
    return w && !w->isHidden();
  }
  QString focused() {
    QWidget* w = screen(kEntry)->focusWidget();
    return w ? w->objectName() : "<none>";
  }
  void reshape(int variables, int constraints) {
    combo("NumFactores")->setCurrentIndex(variables - 1);
    combo("Numrestricciones")->setCurrentIndex(constraints - 1);
    press(kEntry, "RediseñarTabla");
  }
  // Rows of cells, the first the objective, then each constraint with its
  // relation (list index) and right-hand side.
  struct Row {
    Row(std::vector<QString> c, int rel = 0, QString r = {})
        : cells(std::move(c)), relation(rel), rhs(std::move(r)) {}
    std::vector<QString> cells;
    int relation;
    QString rhs;
  };
  void typeTable(const std::vector<Row>& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      for (std::size_t j = 0; j < rows[i].cells.size(); ++j)
        type(kEntry, QString("X%1(%2)").arg(j + 1).arg(i), rows[i].cells[j]);
      if (i == 0) continue;
      combo(QString("restriccion(%1)").arg(i - 1))->setCurrentIndex(rows[i].relation);
      type(kEntry, QString("existencias(%1)").arg(i), rows[i].rhs);
    }
  }
  void typeTextbook() {
    reshape(2, 3);
    typeTable({{{"3", "5"}}, {{"1", "0"}, 0, "4"}, {{"0", "2"}, 0, "12"}, {{"3", "2"}, 0, "18"}});
  }
  void open(const QString& path) {
    platform.openAnswers.push_back(path);
    press(kEntry, "abrir");
  }
  gui::SolutionScreen* solution() { return dynamic_cast<gui::SolutionScreen*>(screen(kSolution)); }
  std::string report() { return solution() ? solution()->Solucion1()->plainText() : "<none>"; }
  bool enabled(const QString& command) {
    auto* b = screen(kSolution)->findChild<QAbstractButton*>(command);
    return b && b->isEnabled();
  }
};

TEST_F(SimplexScreens, FormLoadShowsTheTwoByTwoTableAndTheFixedTexts) {
  gui::Screen* s = screen(kEntry);
  EXPECT_EQ(s->windowTitle(), "Simplex");
  EXPECT_EQ(combo("funcionObjetivo")->currentText(), "Maximización");
  EXPECT_EQ(combo("funcionObjetivo")->count(), 2);
  EXPECT_EQ(combo("NumFactores")->currentText(), "2");
  EXPECT_EQ(combo("Numrestricciones")->currentText(), "2");
  EXPECT_EQ(combo("NumFactores")->toolTip(), "Número de Destinos");
  EXPECT_EQ(combo("Numrestricciones")->toolTip(), "Número de Orígenes");
  EXPECT_EQ(combo("restriccion(6)")->itemText(1), ">=");
  EXPECT_EQ(text(kEntry, "Título"), "Problema 1");
  auto* reshape = s->findChild<QAbstractButton*>("RediseñarTabla");
  ASSERT_NE(reshape, nullptr);
  EXPECT_EQ(reshape->text(), "Rediseñar Tabla");
  QStringList labels;
  for (QLabel* l : s->findChildren<QLabel*>()) labels << l->text();
  for (const char* fixed : {"Variables", "Restricciones", "Objetivo", "Tipo", "Existencias",
                            "TÍTULO DEL PROBLEMA", "Restricción 7"})
    EXPECT_TRUE(labels.contains(QString::fromUtf8(fixed))) << fixed;
  struct Cell {
    const char* name;
    bool shown;
  } cells[] = {{"X1(0)", true},           {"X2(2)", true},           {"X1(3)", false},
               {"X3(0)", false},          {"X7(7)", false},          {"existencias(2)", true},
               {"existencias(3)", false}, {"restriccion(1)", true},  {"restriccion(2)", false},
               {"LblFactores(1)", true},  {"LblFactores(2)", false}, {"Lblrestriccion(2)", false}};
  for (const Cell& c : cells) EXPECT_EQ(shown(c.name), c.shown) << c.name;
}

TEST_F(SimplexScreens, TextbookMaximisationReportsTheFinalTableau) {
  typeTextbook();
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_FALSE(visible(kEntry));
  ASSERT_TRUE(visible(kSolution));
  EXPECT_EQ(screen(kSolution)->windowTitle(), "Form1");
  EXPECT_NE(screen(kSolution)->findChild<gui::ReportBox*>("SolucionF"), nullptr);
  EXPECT_EQ(screen(kSolution)->findChild<gui::ReportBox*>("Solucion1"), nullptr);
  EXPECT_EQ(report(), golden("libro"));
  // One optimum only: no browsing.
  EXPECT_FALSE(enabled("forward"));
  EXPECT_FALSE(enabled("back"));
  EXPECT_TRUE(enabled("volver"));
  EXPECT_TRUE(enabled("Imprimir"));

  // Back on the entry, a change solves again at the next activation.
  press(kSolution, "volver");
  combo("funcionObjetivo")->setCurrentIndex(1);
  press(kEntry, "Resolver");
  EXPECT_NE(report().find("Minimizar Z = 3X1 +  5X2"), std::string::npos);
  EXPECT_NE(report().find("Z =  0"), std::string::npos);
}

TEST_F(SimplexScreens, ForwardAndBackBrowseTheTwoOptima) {
  open(example("alternativa"));
  press(kEntry, "Resolver");
  EXPECT_EQ(report(), golden("alternativa"));
  EXPECT_TRUE(enabled("forward"));
  EXPECT_FALSE(enabled("back"));

  press(kSolution, "forward");  // the solution saved at the first optimum
  std::string second = report();
  EXPECT_NE(second.find("SOLUCIÓN 2 "), std::string::npos);
  EXPECT_NE(second.find("5<=1X1+2X2"), std::string::npos);  // right-hand side first
  EXPECT_EQ(second.find("SOLUCIÓN 1"), std::string::npos);
  EXPECT_NE(second.find("Z =  10"), std::string::npos);
  EXPECT_NE(second.find("Holguras"), std::string::npos);
  EXPECT_FALSE(enabled("forward"));
  EXPECT_FALSE(enabled("volver"));
  EXPECT_TRUE(enabled("back"));

  press(kSolution, "back");
  std::string first = report();
  EXPECT_NE(first.find("SOLUCIÓN 1 "), std::string::npos);
  EXPECT_NE(first.find("X1:  3"), std::string::npos);
  EXPECT_NE(first.find("Z =  10"), std::string::npos);
  EXPECT_TRUE(enabled("forward"));
  EXPECT_TRUE(enabled("volver"));
  EXPECT_FALSE(enabled("back"));
  EXPECT_EQ(screen(kSolution)->findChild<QAbstractButton*>("forward")->toolTip(), "Solución 2");
  EXPECT_EQ(screen(kSolution)->findChild<QAbstractButton*>("back")->toolTip(), "Solución 1");
}

// Only the visible objective cells are checked, each bad one told with the
// focus moving to it; constraint cells are never looked at.
TEST_F(SimplexScreens, ResolverChecksTheObjectiveRowOnly) {
  struct Case {
    const char* what;
    int variables;
    std::vector<QString> objective;
    std::vector<std::string> messages;
    const char* focus;
  } cases[] = {
      {"two empty cells",
       2,
       {"", ""},
       {"Debe completar la tabla", "Debe completar la tabla"},
       "X2(0)"},
      {"X5 and X7 in lower case",
       7,
       {"1", "2", "3", "4", "", "6", "siete"},
       {"debe completar la tabla", "debe completar la tabla"},
       "X7(0)"},
      {"out of range",
       2,
       {"-1e9", "3"},
       {"Debe introducir valores comprendidos entre -999999999 y 999999999"},
       "X1(0)"},
      {"range, then empty",
       3,
       {"2", "1000000000", ""},
       {"Debe introducir valores comprendidos entre -999999999 y 999999999",
        "Debe completar la tabla"},
       "X3(0)"},
  };
  for (const Case& c : cases) {
    screens().reset();
    platform.messages.clear();
    screens().show(kEntry);
    reshape(c.variables, 2);
    typeTable({{c.objective}});
    type(kEntry, "X1(1)", "abc");  // a constraint cell is not checked
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.messages, c.messages) << c.what;
    EXPECT_EQ(focused(), c.focus) << c.what;
    EXPECT_TRUE(visible(kEntry)) << c.what;
    EXPECT_EQ(screen(kSolution), nullptr) << c.what;
  }
}

TEST_F(SimplexScreens, BlankConstraintCellsSolveAsZero) {
  reshape(2, 2);
  // Maximise X1 + X2 with X1 + [blank] X2 <= 4 and [blank] X1 + X2 <= 3.
  typeTable({{{"1", "1"}}, {{"1", ""}, 0, "4"}, {{"", "1"}, 0, "3"}});
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_NE(report().find("Z =  7"), std::string::npos) << report();
}

TEST_F(SimplexScreens, RediseñarTablaShowsTheChosenTableAndKeepsWhatCellsHold) {
  type(kEntry, "X1(0)", "4");
  type(kEntry, "X2(2)", "9");
  reshape(4, 5);
  struct Cell {
    const char* name;
    bool shown;
  } cells[] = {{"X4(0)", true},
               {"X4(5)", true},
               {"X5(0)", false},
               {"X1(6)", false},
               {"existencias(5)", true},
               {"existencias(6)", false},
               {"restriccion(4)", true},
               {"restriccion(5)", false},
               {"LblFactores(3)", true},
               {"LblFactores(4)", false},
               {"Lblrestriccion(4)", true},
               {"Lblrestriccion(5)", false}};
  for (const Cell& c : cells) EXPECT_EQ(shown(c.name), c.shown) << c.name;
  EXPECT_EQ(focused(), "X1(0)");
  EXPECT_EQ(text(kEntry, "X1(0)"), "4");

  reshape(1, 1);  // hidden cells keep their text
  EXPECT_FALSE(shown("X2(2)"));
  EXPECT_EQ(text(kEntry, "X2(2)"), "9");
  reshape(2, 2);
  EXPECT_EQ(text(kEntry, "X2(2)"), "9");

  // With no number of variables chosen no cell shows, and X1(0) cannot take
  // the focus: the platform's error 5, after the reshaping.
  combo("NumFactores")->setCurrentIndex(-1);
  press(kEntry, "RediseñarTabla");
  EXPECT_EQ(platform.runtimeErrors, std::vector<int>{5});
  EXPECT_FALSE(shown("X1(0)"));
  EXPECT_FALSE(shown("X1(1)"));
  EXPECT_FALSE(shown("LblFactores(0)"));
  EXPECT_TRUE(shown("existencias(2)"));
  EXPECT_TRUE(shown("restriccion(1)"));
}

TEST_F(SimplexScreens, NuevoBlanksTheTableAndPutsBackTheTwoByTwoShape) {
  typeTextbook();
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
  EXPECT_FALSE(shown("X3(0)"));
  EXPECT_FALSE(shown("existencias(3)"));
  EXPECT_FALSE(shown("restriccion(2)"));
}

TEST_F(SimplexScreens, AbrirRestoresTheShapeStoredInTheFile) {
  reshape(7, 7);
  open(example("libro"));  // two variables, three constraints
  EXPECT_EQ(combo("NumFactores")->currentText(), "2");
  EXPECT_EQ(combo("Numrestricciones")->currentText(), "3");
  EXPECT_TRUE(shown("X2(3)"));
  EXPECT_FALSE(shown("X3(0)"));
  EXPECT_FALSE(shown("X1(4)"));
  EXPECT_TRUE(shown("restriccion(2)"));
  EXPECT_FALSE(shown("restriccion(3)"));
  EXPECT_FALSE(shown("Lblrestriccion(3)"));
  EXPECT_EQ(text(kEntry, "existencias(3)"), "18");

  // The shape comes from the file even where it disagrees with the selectors.
  const std::string odd = tempPath("forma.txt");
  std::string bytes = readBytes(example("libro").toStdString());
  bytes.replace(bytes.find("\r\n2\r\n1\r\n"), 8, "\r\n6\r\n6\r\n");
  writeBytes(odd, bytes);
  open(QString::fromStdString(odd));
  EXPECT_EQ(combo("NumFactores")->currentText(), "7");
  EXPECT_TRUE(shown("X2(3)"));
  EXPECT_FALSE(shown("X3(0)"));
}

TEST_F(SimplexScreens, GuardarWritesTheExampleAndAbrirReadsItInALaterRun) {
  typeTextbook();
  const QString path = QString::fromStdString(tempPath("libro.txt"));
  platform.saveAnswers.push_back(path);
  press(kEntry, "guardar");
  EXPECT_EQ(platform.lastFileName, "Problema 1");
  closeAllProblemFiles();  // a later run
  EXPECT_EQ(readBytes(path.toStdString()), readBytes(example("libro").toStdString()));
  press(kEntry, "nuevo");
  open(path);
  EXPECT_EQ(text(kEntry, "X2(2)"), "2");
  EXPECT_EQ(combo("Numrestricciones")->currentText(), "3");
  press(kEntry, "Resolver");
  EXPECT_EQ(report(), golden("libro"));
}

TEST_F(SimplexScreens, ImprimirPrintsItsOwnPageWhateverTheEnd) {
  typeTextbook();
  press(kEntry, "Resolver");
  const QString pdf = QString::fromStdString(tempPath("simplex.pdf"));
  platform.printTo(pdf);
  press(kSolution, "Imprimir");
  // An unbounded problem: its report says so, its page does not know.
  press(kSolution, "volver");
  open(example("ilimitado"));
  press(kEntry, "Resolver");
  EXPECT_NE(report().find("EL PROBLEMA ES ILIMITADO"), std::string::npos);
  press(kSolution, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 2);
  platform.endProcess();
  const std::string text = pdfText(pdf);
  std::size_t first = text.find("SIMPLEX");
  ASSERT_NE(first, std::string::npos) << text;
  EXPECT_NE(text.find("SIMPLEX", first + 1), std::string::npos);
  EXPECT_NE(text.find("Factor productivo 1"), std::string::npos);
  EXPECT_NE(text.find("Maximizar Z = 3X1 + 5X2"), std::string::npos) << text;
  EXPECT_EQ(text.find("ILIMITADO"), std::string::npos);
  EXPECT_EQ(text.find("SOLUCIÓN"), std::string::npos);
}

TEST_F(SimplexScreens, RunTimeErrorsGoToThePlatformAndTheScreenStaysUsable) {
  struct Case {
    const char* what;
    std::function<void()> edit;
    int error;
  } cases[] = {
      {"a right-hand side beyond Single", [&] { type(kEntry, "existencias(1)", "1e39"); }, 6},
      {"no number of constraints chosen", [&] { combo("Numrestricciones")->setCurrentIndex(-1); },
       9},
  };
  for (const Case& c : cases) {
    screens().reset();
    platform.runtimeErrors.clear();
    screens().show(kEntry);
    typeTextbook();
    c.edit();
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.runtimeErrors, std::vector<int>{c.error}) << c.what;
    ASSERT_NE(solution(), nullptr) << c.what;
    EXPECT_EQ(report(), "") << c.what;
    EXPECT_TRUE(enabled("volver")) << c.what;
    EXPECT_TRUE(enabled("Imprimir")) << c.what;
  }
}

// A problem whose big-M rounding cycles: the method never ends, but the
// window keeps handling events, and closing it ends the solving.
TEST_F(SimplexScreens, ACyclingProblemRunsOnUntilItsScreenIsClosed) {
  open(example("sin-fin"));
  struct Seen {
    bool fired = false, solving = false, imprimir = true, volver = true, cerrar = false;
    std::string report = "<unset>";
  } seen;
  QElapsedTimer clock;
  clock.start();
  QTimer::singleShot(400, [&] {
    seen.fired = true;
    auto* s = dynamic_cast<linear_programming::SimplexSolution*>(screen(kSolution));
    if (!s) return;
    seen.solving = s->solving();
    seen.imprimir = enabled("Imprimir");
    seen.volver = enabled("volver");
    seen.cerrar = enabled("cerrar");
    seen.report = report();
    press(kSolution, "cerrar");
  });
  press(kEntry, "Resolver");
  EXPECT_TRUE(seen.fired);
  EXPECT_GE(clock.elapsed(), 400);
  EXPECT_TRUE(seen.solving);
  EXPECT_FALSE(seen.imprimir);
  EXPECT_FALSE(seen.volver);
  EXPECT_TRUE(seen.cerrar);
  EXPECT_EQ(seen.report, "");
  EXPECT_EQ(screen(kSolution), nullptr);  // unloaded by cerrar
  EXPECT_TRUE(platform.runtimeErrors.empty());
  wait(50);  // the closed screen is deleted later

  // The entry is still loaded with its problem, and a problem that ends solves.
  screens().show(kEntry);
  open(example("libro"));
  press(kEntry, "Resolver");
  EXPECT_EQ(report(), golden("libro"));
}

}  // namespace
}  // namespace vorel::testing
