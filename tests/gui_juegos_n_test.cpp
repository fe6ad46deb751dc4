// The screens of games with n strategies driven offscreen: every example
// through abrir and Resolver, a game typed cell by cell, the checks with the
// focus they leave, Rediseñar, the problem file, the printed page and the
// subscript error of a player 2 with more strategies.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>

#include "frame/gui/model_screens.h"
#include "frame/problem_file.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "Juegos_n";
const std::string kSolution = "Juegos_n_solucion";
const QString kExamples = QString(VOREL_SOURCE_DIR) + "/examples/juegosn/";

class JuegosNScreens : public ScreenTest {
protected:
  void SetUp() override {
    ScreenTest::SetUp();
    screens().show(kEntry);
  }
  void open(const QString& path) {
    platform.openAnswers.push_back(path);
    press(kEntry, "abrir");
  }
  template <class W = QWidget>
  W* control(const QString& name) {
    auto* s = screen(kEntry);
    return s ? s->findChild<W*>(name) : nullptr;
  }
  bool shown(const QString& name) {
    auto* w = control(name);
    return w && !w->isHidden();
  }
  // Chooses the numbers of strategies and applies them.
  void shape(int n1, int n2) {
    control<QComboBox>("NDecA")->setCurrentIndex(n1 - 1);
    control<QComboBox>("NDecB")->setCurrentIndex(n2 - 1);
    press(kEntry, "Rediseñar");
  }
  QString focused() {
    QWidget* w = screen(kEntry)->focusWidget();
    return w ? w->objectName() : QString("<none>");
  }
  gui::SolutionScreen* solution() { return dynamic_cast<gui::SolutionScreen*>(screen(kSolution)); }
  std::string report() { return solution() ? solution()->Solucion1()->plainText() : "<none>"; }
  bool has(const std::string& text) { return report().find(text) != std::string::npos; }
};

// Every example solves on the screens as on the command line: the painted
// report and the kept page read as the golden texts, and player 2 with more
// strategies is the platform's subscript error.
TEST_F(JuegosNScreens, EveryExampleReadsAsItsGoldenText) {
  const QStringList files = QDir(kExamples).entryList(QDir::Files, QDir::Name);
  ASSERT_GE(files.size(), 5);
  for (const QString& file : files) {
    SCOPED_TRACE(file.toStdString());
    screens().reset();
    closeAllProblemFiles();
    platform.messages.clear();
    platform.runtimeErrors.clear();
    screens().show(kEntry);
    open(kExamples + file);
    press(kEntry, "Resolver");
    const std::string base = std::string(VOREL_SOURCE_DIR) + "/tests/golden/juegosn/" +
                             QFileInfo(file).completeBaseName().toStdString();
    const std::string golden = readBytes(base + ".report");
    if (golden.rfind("[salida 3]\n", 0) == 0) {
      ASSERT_EQ(platform.runtimeErrors.size(), 1u);
      EXPECT_EQ("Error " + std::to_string(platform.runtimeErrors[0]),
                golden.substr(11, golden.find(':') - 11));
      EXPECT_TRUE(visible(kEntry));
      EXPECT_FALSE(visible(kSolution));
    } else {
      EXPECT_TRUE(platform.messages.empty());
      EXPECT_TRUE(platform.runtimeErrors.empty());
      EXPECT_FALSE(visible(kEntry));
      EXPECT_TRUE(visible(kSolution));
      EXPECT_EQ(report(), golden);
      EXPECT_EQ(renderText(solution()->page()), readBytes(base + ".page"));
    }
  }
}

TEST_F(JuegosNScreens, TheEntryStartsWithTwoStrategiesASide) {
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Juegos con n Estrategias");
  EXPECT_EQ(text(kEntry, "Título"), "Problema 1");
  EXPECT_EQ(control<QComboBox>("NDecA")->currentText(), "2");
  EXPECT_EQ(control<QComboBox>("NDecB")->count(), 8);
  EXPECT_EQ(control<QComboBox>("NDecA")->toolTip(),
            "Número de decisiones que puede tomar Jugador 1");
  EXPECT_EQ(control<QComboBox>("NDecB")->toolTip(),
            "Número de Decisiones que puede tomar Jugador 2");
  auto* reshape = control<QPushButton>("Rediseñar");
  ASSERT_NE(reshape, nullptr);
  EXPECT_EQ(reshape->text(), "Rediseñar tabla");
  EXPECT_EQ(reshape->toolTip(), "Ajusta la tabla al número de decisiones deseadas");
  EXPECT_NE(control<QAbstractButton>("Image5"), nullptr);  // its Volver
  for (const char* name : {"A(0)", "A(1)", "B(0)", "B(1)", "A1(0)", "A1(1)", "A2(0)", "A2(1)"})
    EXPECT_TRUE(shown(name)) << name;
  for (const char* name : {"A(2)", "B(2)", "A3(0)", "A1(2)", "A8(7)"}) EXPECT_FALSE(shown(name)) << name;
}

// The array Ak is what the solving takes for player 1's strategy k: typing
// A1 = (1, 2) and A2 = (3, 4) gives no elimination, maximin = minimax = 3 and
// the one saddle point at A2, B1.
TEST_F(JuegosNScreens, ATypedGameGoesToTheReport) {
  type(kEntry, "Título", "Dos por dos");
  const char* cells[][2] = {{"A1(0)", "1"}, {"A1(1)", "2"}, {"A2(0)", "3"}, {"A2(1)", "4"}};
  for (auto& c : cells) type(kEntry, c[0], c[1]);
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_FALSE(visible(kEntry));
  EXPECT_TRUE(visible(kSolution));
  EXPECT_EQ(screen(kSolution)->windowTitle(), "Solución");
  EXPECT_TRUE(has("Solución al problema: Dos por dos\n"));
  EXPECT_TRUE(has("SOLUCIÓN\n"));
  EXPECT_FALSE(has("SOLUCIÓN 1"));
  EXPECT_TRUE(has("J1 juega A 2 y J2 juega B 1 \n"));
  EXPECT_TRUE(has("obteniendo un resultado: (  3 , -3 )\n"));

  // Back on the entry, a change shows on the next Resolver.
  press(kSolution, "volver");
  EXPECT_TRUE(visible(kEntry));
  EXPECT_EQ(text(kEntry, "A2(1)"), "4");
  // (1, 2 | -1, 4): the pass drops a row, maximin and minimax are both -1,
  // and no cell of the table as typed qualifies.
  type(kEntry, "A2(0)", "-1");
  press(kEntry, "Resolver");
  const std::string text = report();
  const std::size_t maximin = text.find("Maximin:");
  ASSERT_NE(maximin, std::string::npos);
  EXPECT_EQ(text.substr(text.find('\n', maximin) - 3, 4), " -1\n");
  EXPECT_TRUE(has("No existen equilibrios en estrategias puras.\n"));
  EXPECT_FALSE(has("SOLUCIÓN"));
}

// The checks go through element i and, for each, the arrays A1 to A8; the
// first bad visible cell gives one message and takes the focus.
TEST_F(JuegosNScreens, TheFirstBadCellIsToldAndFocused) {
  const std::string incompleta = "Debe completar la tabla de resultados";
  const std::string rango =
      "Los valores de los resultados no son correctos, deben estar comprendidos entre -9999999 y "
      "9999999";
  struct Caso {
    std::vector<std::pair<const char*, const char*>> cells;  // over a full 2 by 2 table
    std::string message;                                    // empty: solves
    const char* focus;
  };
  const Caso casos[] = {
      {{{"A1(0)", ""}}, incompleta, "A1(0)"},
      {{{"A1(1)", "x"}, {"A2(0)", "1e8"}}, rango, "A2(0)"},
      {{{"A2(1)", "abc"}, {"A1(1)", "-10000000"}}, rango, "A1(1)"},
      {{{"A2(1)", "1e"}}, incompleta, "A2(1)"},
      {{{"A1(0)", "9999999"}, {"A2(1)", "-9999999"}}, "", ""},
      {{{"A3(0)", "x"}, {"A1(2)", "x"}}, "", ""},  // hidden cells are not looked at
  };
  for (const Caso& c : casos) {
    SCOPED_TRACE(c.focus);
    screens().reset();
    platform.messages.clear();
    screens().show(kEntry);
    for (const char* cell : {"A1(0)", "A1(1)", "A2(0)", "A2(1)"}) type(kEntry, cell, "2");
    for (auto& [cell, value] : c.cells) type(kEntry, cell, value);
    press(kEntry, "Resolver");
    if (c.message.empty()) {
      EXPECT_TRUE(platform.messages.empty());
      EXPECT_TRUE(visible(kSolution));
    } else {
      ASSERT_EQ(platform.messages.size(), 1u);
      EXPECT_EQ(platform.messages[0], c.message);
      EXPECT_EQ(focused(), c.focus);
      EXPECT_TRUE(visible(kEntry));
      EXPECT_EQ(screen(kSolution), nullptr);
    }
  }
}

TEST_F(JuegosNScreens, RediseñarShowsTheChosenShapeAndKeepsTheTexts) {
  type(kEntry, "A2(1)", "7");
  shape(3, 1);
  for (const char* name : {"A(0)", "A(1)", "A(2)", "B(0)", "A1(0)", "A1(1)", "A1(2)"})
    EXPECT_TRUE(shown(name)) << name;
  for (const char* name : {"A(3)", "B(1)", "A2(0)", "A2(1)", "A1(3)"})
    EXPECT_FALSE(shown(name)) << name;
  EXPECT_EQ(focused(), "A1(0)");
  shape(2, 2);
  EXPECT_TRUE(shown("A2(1)"));
  EXPECT_EQ(text(kEntry, "A2(1)"), "7");  // hidden cells keep what they held

  shape(8, 8);
  for (int k = 1; k <= 8; ++k)
    for (int i = 0; i < 8; ++i) {
      const QString cell = QString("A%1(%2)").arg(k).arg(i);
      EXPECT_TRUE(shown(cell)) << cell.toStdString();
    }
  EXPECT_TRUE(shown("A(7)"));
  EXPECT_TRUE(shown("B(7)"));

  // nuevo shows the form again and changes nothing.
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "A2(1)"), "7");
  EXPECT_TRUE(shown("A8(7)"));
  EXPECT_EQ(control<QComboBox>("NDecA")->currentText(), "8");
}

// Player 1 with more strategies: the rows beyond player 2's count are not
// read, so what they hold does not matter and counts as 0.
TEST_F(JuegosNScreens, RowsBeyondPlayerTwosCountAreNotRead) {
  shape(3, 2);
  for (const char* cell : {"A1(0)", "A1(1)", "A2(0)", "A2(1)"}) type(kEntry, cell, "5");
  type(kEntry, "A1(2)", "nada");
  type(kEntry, "A2(2)", "nada");
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(platform.runtimeErrors.empty());
  EXPECT_TRUE(visible(kSolution));
  EXPECT_TRUE(has("Número de estrategias del J1:"));
}

// Player 2 with more strategies: the read runs past the working table, the
// platform's error 9, and no report is shown.
TEST_F(JuegosNScreens, PlayerTwoWithMoreStrategiesIsASubscriptError) {
  shape(1, 3);
  for (const char* cell : {"A1(0)", "A2(0)", "A3(0)"}) type(kEntry, cell, "4");
  press(kEntry, "Resolver");
  ASSERT_EQ(platform.runtimeErrors.size(), 1u);
  EXPECT_EQ(platform.runtimeErrors[0], 9);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(visible(kEntry));
  EXPECT_EQ(screen(kSolution), nullptr);
}

TEST_F(JuegosNScreens, SavedFileOpensInALaterRun) {
  type(kEntry, "Título", "Tres por dos");
  shape(3, 2);
  const char* cells[][2] = {{"A1(0)", "6"}, {"A1(1)", "-2"}, {"A1(2)", "1.5"},
                            {"A2(0)", "0"}, {"A2(1)", "8"},  {"A2(2)", "3"}};
  for (auto& c : cells) type(kEntry, c[0], c[1]);
  const QString path = QString::fromStdString(tempPath("tres_por_dos.txt"));
  platform.saveAnswers.push_back(path);
  press(kEntry, "guardar");
  EXPECT_EQ(platform.lastFileName, "Tres por dos");
  const std::string bytes = readBytes(path.toStdString());
  // Title, the two list indexes, then for element 0: A(0), B(0), and A1(0)
  // visible with its text, A2(0) the same, A3(0) hidden and empty...
  const std::string head =
      "\"Tres por dos\"\r\n2\r\n1\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n\"6\"\r\n#TRUE#\r\n\"0\"\r\n"
      "#FALSE#\r\n\"\"\r\n";
  EXPECT_EQ(bytes.substr(0, head.size()), head);
  int lines = 0;
  for (char ch : bytes) lines += ch == '\n';
  EXPECT_EQ(lines, 3 + 8 * (2 + 8 * 2));

  shape(2, 2);
  type(kEntry, "A1(0)", "99");
  open(path);  // still open for writing in this run: nothing happens
  EXPECT_EQ(text(kEntry, "A1(0)"), "99");
  EXPECT_FALSE(shown("A1(2)"));

  closeAllProblemFiles();  // a later run
  open(path);
  EXPECT_EQ(text(kEntry, "Título"), "Tres por dos");
  EXPECT_EQ(control<QComboBox>("NDecA")->currentText(), "3");
  EXPECT_EQ(control<QComboBox>("NDecB")->currentText(), "2");
  EXPECT_EQ(text(kEntry, "A1(0)"), "6");
  EXPECT_EQ(text(kEntry, "A1(2)"), "1.5");
  EXPECT_TRUE(shown("A1(2)"));
  EXPECT_TRUE(shown("A(2)"));
  EXPECT_FALSE(shown("B(2)"));
  EXPECT_FALSE(shown("A3(0)"));
}

TEST_F(JuegosNScreens, ImprimirPrintsThePageOfTheLastReport) {
  open(kExamples + "sin-punto-de-silla.txt");
  press(kEntry, "Resolver");
  const QString pdf = QString::fromStdString(tempPath("juegos_n.pdf"));
  platform.printTo(pdf);
  press(kSolution, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 1);
  platform.endProcess();
  const std::string text = pdfText(pdf);
  EXPECT_NE(text.find("JUEGOS CON N JUGADORES"), std::string::npos);
  EXPECT_NE(text.find("número de estrategias del J1:"), std::string::npos);
  EXPECT_NE(text.find("No existen equilibrios en estrategias puras"), std::string::npos);
  EXPECT_EQ(text.find("estrategias puras."), std::string::npos);
  EXPECT_NE(text.find("se debe comprobar si existen equilibrios en"), std::string::npos);
  EXPECT_EQ(text.find("Se debe comprobar"), std::string::npos);
}

}  // namespace
}  // namespace vorel::testing
