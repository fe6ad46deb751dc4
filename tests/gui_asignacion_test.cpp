// The assignment screens driven offscreen: every example through abrir and
// Resolver, the cell checks in their wordings with the focus they leave, the
// kept solutions browsed one click at a time with only the moves that exist
// shown, RediseñarTabla and nuevo, the problem file, and the printed page
// with every solution.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <set>
#include <sstream>

#include "frame/gui/model_screens.h"
#include "frame/problem_file.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "PL_Asignación";
const std::string kSolution = "PL_Asignación_Solución";
const QString kExamples = QString(VOREL_SOURCE_DIR) + "/examples/asignacion/";
const std::string kGolden = std::string(VOREL_SOURCE_DIR) + "/tests/golden/asignacion/";

const char* const kBrowsing[] = {"forward1", "forward2", "back2", "Back1"};

using Buttons = std::set<std::string>;

class AsignacionScreens : public ScreenTest {
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
  std::string report() { return solution() ? solution()->Solucion1()->plainText() : "<none>"; }
  Buttons visibleButtons() {
    Buttons out;
    for (const char* name : kBrowsing) {
      auto* b = control<QAbstractButton>(kSolution, name);
      EXPECT_NE(b, nullptr) << name;
      if (b && !b->isHidden()) out.insert(name);
    }
    return out;
  }
  // The assignment lines of the painted page, blanks run together.
  std::vector<std::string> assigned() {
    std::vector<std::string> out;
    std::istringstream in(report());
    for (std::string line; std::getline(in, line);) {
      std::string collapsed;
      for (char c : line)
        if (c != ' ' || (!collapsed.empty() && collapsed.back() != ' ')) collapsed += c;
      while (!collapsed.empty() && collapsed.back() == ' ') collapsed.pop_back();
      if (collapsed.rfind("Individuo ", 0) == 0 || collapsed.rfind("Tarea ", 0) == 0)
        out.push_back(collapsed);
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
  screens().show(kEntry);
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Problemas de Asignación");
  EXPECT_EQ(text(kEntry, "Título"), "Problema 1");
  for (const char* name : {"NumIndividuos", "NumTareas"}) {
    auto* combo = control<QComboBox>(kEntry, name);
    ASSERT_NE(combo, nullptr) << name;
    EXPECT_EQ(combo->count(), 7);
    EXPECT_EQ(combo->itemText(0), "1");
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

// Every example solves on the screens as on the command line: the painted
// report is the first solution, the kept page holds them all.
TEST_F(AsignacionScreens, EveryExampleReadsAsItsGoldenText) {
  const QStringList files = QDir(kExamples).entryList(QDir::Files, QDir::Name);
  ASSERT_GE(files.size(), 7);
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
      EXPECT_FALSE(visible(kEntry));
      EXPECT_TRUE(visible(kSolution));
      EXPECT_EQ(report(), golden);
      EXPECT_EQ(renderText(solution()->page()), readBytes(base + ".page"));
    }
  }
}

// One message per bad cell in reading order, each column in its own
// wording, the focus ending on the last bad cell; hidden cells are not read.
TEST_F(AsignacionScreens, EveryBadCellIsToldInItsColumnsWording) {
  const std::string completar = "Debe completar la tabla de costes de Asignación";
  const std::string minuscula = "Debe completar la tabla de costes de asignación";
  const std::string espacio = "Debe completar la tabla de costes de asignación ";
  const std::string rango =
      "El valor de los costes de asignación no es correcto, debe introducir un valor "
      "comprendido entre 0 y 999999999";
  struct Case {
    std::vector<std::pair<const char*, const char*>> edits;
    std::vector<std::string> messages;
    const char* focus;
  } cases[] = {
      {{{"C5(6)", ""}}, {completar}, "C5(6)"},
      {{{"C7(1)", "x"}, {"C6(0)", "-"}}, {minuscula, espacio}, "C7(1)"},
      {{{"C6(3)", "1e9"}, {"C1(4)", "-1000000000"}}, {rango, rango}, "C1(4)"},
      {{{"C2(0)", ""}, {"C7(0)", "y"}, {"C3(2)", "2e9"}}, {completar, espacio, rango}, "C3(2)"},
      // The limits themselves, negatives and a hidden row draw nothing.
      {{{"C1(0)", "-999999999"}, {"C2(0)", "999999999"}, {"C8(0)", "x"}, {"C1(7)", "x"}},
       {},
       "Título"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.focus);
    screens().reset();
    closeAllProblemFiles();
    platform.messages.clear();
    open("siete.txt");
    for (auto [name, value] : c.edits) type(kEntry, name, value);
    control(kEntry, "Título")->setFocus();
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.messages, c.messages);
    if (!c.messages.empty()) {
      EXPECT_EQ(focused(), c.focus);
    }
    EXPECT_EQ(visible(kSolution), c.messages.empty());
  }
}

// Three optimal assignments: forward1 to the second, forward2 to the third,
// back2 to the second, Back1 to the first; each page offers only its moves.
TEST_F(AsignacionScreens, BrowsingThreeSolutionsPageByPage) {
  open("costes-iguales.txt");
  press(kEntry, "Resolver");
  const std::vector<std::string> first = {"Individuo 1 Tarea 1", "Individuo 2 Tarea 2",
                                          "Individuo 3 Tarea 3"};
  const std::vector<std::string> second = {"Individuo 1 Tarea 1", "Individuo 2 Tarea 3",
                                           "Individuo 3 Tarea 2"};
  const std::vector<std::string> third = {"Individuo 1 Tarea 2", "Individuo 2 Tarea 1",
                                          "Individuo 3 Tarea 3"};
  struct Step {
    const char* press;  // nullptr: the page of the activation
    const char* heading;
    std::vector<std::string> lines;
    Buttons buttons;
  } steps[] = {
      {nullptr, "SOLUCIÓN 1", first, {"forward1"}},
      {"forward1", "SOLUCIÓN 2", second, {"Back1", "forward2"}},
      {"forward2", "SOLUCIÓN 3", third, {"back2"}},
      {"back2", "SOLUCIÓN 2", second, {"Back1", "forward2"}},
      {"Back1", "SOLUCIÓN 1", first, {"forward1"}},
      {"forward1", "SOLUCIÓN 2", second, {"Back1", "forward2"}},
  };
  for (const Step& s : steps) {
    SCOPED_TRACE(s.press ? s.press : "activation");
    if (s.press) press(kSolution, s.press);
    const std::string text = report();
    EXPECT_NE(text.find(s.heading), std::string::npos);
    for (const char* other : {"SOLUCIÓN 1", "SOLUCIÓN 2", "SOLUCIÓN 3"}) {
      if (std::string(other) != s.heading) {
        EXPECT_EQ(text.find(other), std::string::npos) << other;
      }
    }
    EXPECT_NE(text.find("Número de soluciones:        3"), std::string::npos);
    EXPECT_NE(text.find("Coste Total:                 12 unidades monetarias"), std::string::npos);
    EXPECT_EQ(assigned(), s.lines);
    EXPECT_EQ(visibleButtons(), s.buttons);
  }
  // Each activation starts again at the first solution.
  press(kSolution, "volver");
  type(kEntry, "Título", "Otra vez");
  press(kEntry, "Resolver");
  EXPECT_EQ(assigned(), first);
  EXPECT_EQ(visibleButtons(), Buttons{"forward1"});
  EXPECT_NE(report().find("Otra vez"), std::string::npos);
}

TEST_F(AsignacionScreens, FewerSolutionsOfferFewerMoves) {
  open("dos-optimos.txt");
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

// RediseñarTabla shows the chosen individuals by tasks and keeps every text.
TEST_F(AsignacionScreens, RediseñarTablaReshapesAndKeepsTheTexts) {
  struct Case {
    int individuos, tareas;
  } cases[] = {{1, 1}, {7, 7}, {3, 5}, {7, 1}, {7, 7}};
  open("siete.txt");
  const QString before = text(kEntry, "C7(6)");
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.individuos) + "x" + std::to_string(c.tareas));
    select("NumIndividuos", c.individuos - 1);
    select("NumTareas", c.tareas - 1);
    control(kEntry, "Título")->setFocus();
    press(kEntry, "RediseñarTabla");
    EXPECT_TRUE(platform.messages.empty());
    expectShape(c.individuos, c.tareas);
    EXPECT_EQ(focused(), "C1(0)");
  }
  EXPECT_FALSE(before.isEmpty());
  EXPECT_EQ(text(kEntry, "C7(6)"), before);
}

// Without a chosen number the reshaping reads an empty selector as 0 and
// hides the whole table.
TEST_F(AsignacionScreens, RediseñarTablaWithoutANumberHidesTheTable) {
  open("libro.txt");
  select("NumIndividuos", -1);
  press(kEntry, "RediseñarTabla");
  EXPECT_TRUE(platform.messages.empty());
  expectShape(0, 4);
}

TEST_F(AsignacionScreens, NuevoBlanksAndRestoresTheFirstShapeButKeepsTheTitle) {
  open("siete.txt");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Título"), "Siete tareas");
  for (const char* f : {"C1(0)", "C3(1)", "C7(6)"}) EXPECT_EQ(text(kEntry, f), "") << f;
  EXPECT_EQ(control<QComboBox>(kEntry, "NumIndividuos")->currentText(), "2");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumTareas")->currentText(), "2");
  expectShape(2, 2);
}

// guardar writes the example's bytes; the file opens in a later run, not in
// the same one, and brings back the shape it stored without reshaping.
TEST_F(AsignacionScreens, ProblemFileRoundTrip) {
  open("libro.txt");
  const QString path = QString::fromStdString(tempPath("operarios.txt"));
  platform.saveAnswers.push_back(path);
  press(kEntry, "guardar");
  EXPECT_EQ(platform.lastFilter, "All Files (*.*)|*.*|Text _Files (*.txt)|*");
  EXPECT_EQ(platform.lastFilterIndex, 2);
  EXPECT_EQ(platform.lastFileName, "Cuatro operarios");
  EXPECT_EQ(readBytes(path.toStdString()), readBytes((kExamples + "libro.txt").toStdString()));

  // An odd state: three by two shown, selectors at one by seven.
  select("NumIndividuos", 2);
  select("NumTareas", 1);
  press(kEntry, "RediseñarTabla");
  select("NumIndividuos", 0);
  select("NumTareas", 6);
  type(kEntry, "C2(2)", "99");
  const QString odd = QString::fromStdString(tempPath("raro.txt"));
  platform.saveAnswers.push_back(odd);
  press(kEntry, "guardar");

  press(kEntry, "nuevo");
  platform.openAnswers.push_back(odd);
  press(kEntry, "abrir");  // still open for writing in this run: nothing happens
  EXPECT_EQ(platform.lastFilter, "All Files (*.*)|*.*|");
  EXPECT_EQ(text(kEntry, "C2(2)"), "");

  closeAllProblemFiles();  // a later run
  platform.openAnswers.push_back(odd);
  press(kEntry, "abrir");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumIndividuos")->currentText(), "1");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumTareas")->currentText(), "7");
  expectShape(3, 2);
  EXPECT_EQ(text(kEntry, "C2(2)"), "99");
  EXPECT_FALSE(text(kEntry, "C4(3)").isEmpty());  // hidden, and kept
}

// Imprimir, from any page, prints every kept solution under its head.
TEST_F(AsignacionScreens, ImprimirPrintsEverySolutionFromAnyPage) {
  open("costes-iguales.txt");
  press(kEntry, "Resolver");
  press(kSolution, "forward1");
  press(kSolution, "forward2");
  const QString pdf = QString::fromStdString(tempPath("asignacion.pdf"));
  platform.printTo(pdf);
  press(kSolution, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 1);
  platform.endProcess();
  const std::string text = pdfText(pdf);
  std::size_t at = 0;
  for (const char* line :
       {"PROBLEMA DE ASIGNACIÓN", "Solución al problema: Costes iguales",
        "Número de soluciones:", "SOLUCIÓN 1", "Individuo 3", "SOLUCIÓN 2", "Individuo 2",
        "Tarea 3", "SOLUCIÓN 3", "Individuo 1", "Tarea 2", "Coste Total:"}) {
    at = text.find(line, at);
    ASSERT_NE(at, std::string::npos) << line;
  }
  EXPECT_EQ(pdfPages(pdf), 1);
}

}  // namespace
}  // namespace vorel::testing
