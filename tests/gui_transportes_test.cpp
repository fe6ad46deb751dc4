// The transportation screens driven offscreen: every example through abrir
// and Resolver, the cell checks with the focus they leave, the degenerate
// first solution sent back to the entry, RediseñarTabla and nuevo, the
// problem file, and the printed page.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <algorithm>
#include <sstream>

#include "frame/gui/model_screens.h"
#include "frame/problem_file.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "PL_Transportes";
const std::string kSolution = "PL_Transportes_Solución";
const QString kExamples = QString(VOREL_SOURCE_DIR) + "/examples/transporte/";
const std::string kGolden = std::string(VOREL_SOURCE_DIR) + "/tests/golden/transporte/";

// The lines of a report, blanks run together, empty ones left out.
std::vector<std::string> collapsedLines(const std::string& report) {
  std::vector<std::string> out;
  std::istringstream in(report);
  for (std::string line; std::getline(in, line);) {
    std::string collapsed;
    for (char c : line)
      if (c != ' ' || (!collapsed.empty() && collapsed.back() != ' ')) collapsed += c;
    while (!collapsed.empty() && collapsed.back() == ' ') collapsed.pop_back();
    if (!collapsed.empty()) out.push_back(collapsed);
  }
  return out;
}

// The lines that begin with `head`.
std::vector<std::string> linesOf(const std::string& report, const std::string& head) {
  std::vector<std::string> out;
  for (const std::string& line : collapsedLines(report))
    if (line.rfind(head, 0) == 0) out.push_back(line);
  return out;
}

// The lines after the line `marker`, up to the total.
std::vector<std::string> section(const std::string& report, const std::string& marker) {
  const std::vector<std::string> lines = collapsedLines(report);
  auto from = std::find(lines.begin(), lines.end(), marker);
  if (from == lines.end()) return {"<no " + marker + ">"};
  auto to = std::find_if(from + 1, lines.end(), [](const std::string& l) {
    return l.rfind("Coste Total", 0) == 0 || l == "DEMANDAS INSATISFECHAS" || l == "EXISTENCIAS";
  });
  return {from + 1, to};
}

class TransportesScreens : public ScreenTest {
 protected:
  void open(const QString& file) {
    if (!screen(kEntry)) screens().show(kEntry);
    platform.openAnswers.push_back(kExamples + file);
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
  QString caption(const QString& name) { return control<QLabel>(name)->text(); }
  void select(const QString& combo, int index) {
    control<QComboBox>(combo)->setCurrentIndex(index);
  }
  QString focused() {
    QWidget* w = screen(kEntry)->focusWidget();
    return w ? w->objectName() : QString("<none>");
  }
  gui::SolutionScreen* solution() { return dynamic_cast<gui::SolutionScreen*>(screen(kSolution)); }
  std::string report() { return solution() ? solution()->Solucion1()->plainText() : "<none>"; }
  // Types a table of m origins by n destinations with its supplies and
  // demands, after reshaping the entry to it.
  void typeTable(const std::vector<std::vector<const char*>>& costs,
                 const std::vector<const char*>& supplies,
                 const std::vector<const char*>& demands) {
    screens().show(kEntry);
    const int m = static_cast<int>(costs.size()), n = static_cast<int>(demands.size());
    select("NumOrigen", m - 1);
    select("NumDestino", n - 1);
    press(kEntry, "RediseñarTabla");
    for (int i = 0; i < m; ++i) {
      for (int j = 0; j < n; ++j)
        type(kEntry, QString("C%1(%2)").arg(j + 1).arg(i), costs[std::size_t(i)][std::size_t(j)]);
      type(kEntry, QString("C%1(%2)").arg(n + 1).arg(i), supplies[std::size_t(i)]);
    }
    for (int j = 0; j < n; ++j)
      type(kEntry, QString("C%1(%2)").arg(j + 1).arg(m), demands[std::size_t(j)]);
  }
  // The cells shown are those of an m by n table with its totals, no more.
  void expectShape(int m, int n) {
    for (int i = 0; i < 8; ++i) {
      EXPECT_EQ(shown(QString("LblOrigen(%1)").arg(i)), i <= m) << i;
      EXPECT_EQ(shown(QString("LblDestino(%1)").arg(i)), i <= n) << i;
      for (int j = 1; j <= 8; ++j)
        EXPECT_EQ(shown(QString("C%1(%2)").arg(j).arg(i)),
                  (i < m && j <= n + 1) || (i == m && j <= n))
            << "C" << j << "(" << i << ")";
    }
    for (int i = 0; i < m; ++i)
      EXPECT_EQ(caption(QString("LblOrigen(%1)").arg(i)), QString("Origen %1").arg(i + 1));
    for (int j = 0; j < n; ++j)
      EXPECT_EQ(caption(QString("LblDestino(%1)").arg(j)), QString("Destino %1").arg(j + 1));
    EXPECT_EQ(caption(QString("LblOrigen(%1)").arg(m)), "Demandas");
    EXPECT_EQ(caption(QString("LblDestino(%1)").arg(n)), "Existencias");
  }
};

TEST_F(TransportesScreens, TheEntryLoadsWithATwoByTwoTable) {
  screens().show(kEntry);
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Problema del Transporte");
  EXPECT_TRUE(control<QLabel>("Label1")->text().startsWith(
      "El Problema del Trasporte consiste en determinar la cantidades"));
  EXPECT_TRUE(control<QLabel>("Label1")->text().endsWith("las especificaciones en cua"));
  EXPECT_EQ(text(kEntry, "Título"), "Problema 1");
  struct Selector {
    const char* name;
    const char* tip;
  } selectors[] = {{"NumOrigen", "Número de Orígenes"}, {"NumDestino", "Número de Destinos"}};
  for (const Selector& s : selectors) {
    auto* combo = control<QComboBox>(s.name);
    ASSERT_NE(combo, nullptr) << s.name;
    EXPECT_EQ(combo->count(), 7);
    EXPECT_EQ(combo->itemText(0), "1");
    EXPECT_EQ(combo->itemText(6), "7");
    EXPECT_EQ(combo->currentText(), "2");
    EXPECT_EQ(combo->toolTip(), s.tip);
  }
  EXPECT_EQ(control<QAbstractButton>("RediseñarTabla")->text(), "Rediseñar Tabla");
  expectShape(2, 2);
  press(kEntry, "volver");
  EXPECT_TRUE(visible("ProgramaciónLineal"));
  EXPECT_FALSE(visible(kEntry));
}

// Every example solves on the screens as on the command line, but the one
// that never ends (the desktop would go on computing).
TEST_F(TransportesScreens, EveryExampleReadsAsItsGoldenText) {
  const QStringList files = QDir(kExamples).entryList(QDir::Files, QDir::Name);
  ASSERT_GE(files.size(), 9);
  int solved = 0, refused = 0;
  for (const QString& file : files) {
    SCOPED_TRACE(file.toStdString());
    const std::string base = kGolden + QFileInfo(file).completeBaseName().toStdString();
    const std::string golden = readBytes(base + ".report");
    if (golden.rfind("[salida 4]\n", 0) == 0) continue;
    screens().reset();
    closeAllProblemFiles();
    platform.messages.clear();
    open(file);
    press(kEntry, "Resolver");
    if (golden.rfind("[salida 1]\n", 0) == 0) {
      std::string told;
      for (const auto& m : platform.messages) told += m + "\n";
      EXPECT_EQ(told, golden.substr(11));
      EXPECT_TRUE(visible(kEntry));
      EXPECT_FALSE(visible(kSolution));
      ++refused;
    } else {
      EXPECT_TRUE(platform.messages.empty());
      EXPECT_FALSE(visible(kEntry));
      EXPECT_TRUE(visible(kSolution));
      EXPECT_EQ(report(), golden);
      EXPECT_EQ(renderText(solution()->page()), readBytes(base + ".page"));
      ++solved;
    }
  }
  EXPECT_GE(solved, 6);
  EXPECT_EQ(refused, 2);
}

// Every bad cell of the table, supplies and demands included, is told in
// reading order, focus ending on the last; hidden cells and negative or
// exponent numbers draw nothing.
TEST_F(TransportesScreens, EveryBadCellIsToldAndTheFocusEndsOnTheLast) {
  struct Case {
    std::vector<std::pair<const char*, const char*>> edits;
    int messages;
    const char* focus;
  } cases[] = {
      {{{"C2(0)", "x"}}, 1, "C2(0)"},
      {{{"C5(2)", ""}, {"C1(0)", "diez"}}, 2, "C5(2)"},  // a supply, after a cost of row 0
      {{{"C4(3)", "-"}, {"C3(1)", " "}}, 2, "C4(3)"},    // a demand, in the last row
      {{{"C5(3)", "x"}, {"C6(0)", "x"}, {"C1(4)", "x"}, {"C1(1)", "-4"}, {"C2(1)", "1e3"}},
       0,
       "Título"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.focus);
    screens().reset();
    closeAllProblemFiles();
    platform.messages.clear();
    open("libro.txt");
    for (auto [name, value] : c.edits) type(kEntry, name, value);
    control("Título")->setFocus();
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.messages, std::vector<std::string>(
                                     std::size_t(c.messages),
                                     "Debe Completar la tabla de Costes Unitarios de Transporte"));
    EXPECT_EQ(visible(kSolution), c.messages == 0);
    if (c.messages > 0) {
      EXPECT_EQ(focused(), c.focus);
    }
  }
}

// A first solution with fewer filled cells than origins plus destinations
// less one is refused: the message, then the entry again with all it held.
TEST_F(TransportesScreens, ADegenerateFirstSolutionGoesBackToTheEntry) {
  typeTable({{"1", "2"}, {"3", "4"}}, {"5", "5"}, {"5", "5"});
  type(kEntry, "Título", "Diagonal");
  press(kEntry, "Resolver");
  EXPECT_EQ(platform.messages, std::vector<std::string>{"la solución es degenerada"});
  EXPECT_TRUE(visible(kEntry));
  EXPECT_FALSE(visible(kSolution));
  EXPECT_EQ(text(kEntry, "Título"), "Diagonal");
  const char* kept[][2] = {{"C1(0)", "1"}, {"C2(0)", "2"}, {"C3(0)", "5"}, {"C1(1)", "3"},
                           {"C2(1)", "4"}, {"C3(1)", "5"}, {"C1(2)", "5"}, {"C2(2)", "5"}};
  for (auto& k : kept) EXPECT_EQ(text(kEntry, k[0]), k[1]) << k[0];
  EXPECT_EQ(control<QComboBox>("NumOrigen")->currentText(), "2");
  EXPECT_TRUE(shown("C3(1)"));

  // Demands of 4 and 6 fill three cells: the same screens solve it.
  platform.messages.clear();
  type(kEntry, "C1(2)", "4");
  type(kEntry, "C2(2)", "6");
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(visible(kSolution));
  EXPECT_FALSE(visible(kEntry));
  EXPECT_EQ(section(report(), "CANTIDADES TRANSPORTADAS"),
            (std::vector<std::string>{"Origen 1 -Destino 1 4", "Origen 1 -Destino 2 1",
                                      "Origen 2 -Destino 2 5"}));
  EXPECT_EQ(linesOf(report(), "Coste Total"),
            std::vector<std::string>{"Coste Total 26 unidades monetarias"});

  // Back on the entry, degenerate again: the solution screen gives way.
  press(kSolution, "volver");
  type(kEntry, "C1(2)", "5");
  type(kEntry, "C2(2)", "5");
  press(kEntry, "Resolver");
  EXPECT_EQ(platform.messages, std::vector<std::string>{"la solución es degenerada"});
  EXPECT_TRUE(visible(kEntry));
  EXPECT_FALSE(visible(kSolution));
}

// Supplies above the demands leave stock in a fictitious destination; below
// them, demand unmet at a fictitious origin. Coming back recomputes.
TEST_F(TransportesScreens, ComingBackRecomputesTheBalance) {
  typeTable({{"4", "6"}, {"5", "3"}}, {"30", "20"}, {"25", "25"});
  press(kEntry, "Resolver");
  EXPECT_EQ(linesOf(report(), "EXISTENCIAS"), std::vector<std::string>{});
  EXPECT_EQ(linesOf(report(), "DEMANDAS"), std::vector<std::string>{});
  EXPECT_EQ(linesOf(report(), "Coste Total"),
            std::vector<std::string>{"Coste Total 190 unidades monetarias"});
  press(kSolution, "volver");
  type(kEntry, "C3(0)", "40");
  press(kEntry, "Resolver");
  std::string r = report();
  EXPECT_EQ(linesOf(r, "Existencias:"), std::vector<std::string>{"Existencias: 60"});
  EXPECT_EQ(section(r, "EXISTENCIAS"), std::vector<std::string>{"Origen 1 10"}) << r;
  press(kSolution, "volver");
  type(kEntry, "C3(0)", "30");
  type(kEntry, "C1(2)", "35");
  press(kEntry, "Resolver");
  r = report();
  EXPECT_EQ(linesOf(r, "Demandas:"), std::vector<std::string>{"Demandas: 60"});
  EXPECT_EQ(section(r, "DEMANDAS INSATISFECHAS"),
            (std::vector<std::string>{"Destino 1 5", "Destino 2 5"}))
      << r;
  EXPECT_EQ(linesOf(r, "Coste Total"),
            std::vector<std::string>{"Coste Total 180 unidades monetarias"});
}

// RediseñarTabla shows m origins and the demands below them, n destinations
// and the supplies after them, re-captions the heads and keeps every text.
TEST_F(TransportesScreens, RediseñarTablaReshapesAndKeepsTheTexts) {
  struct Case {
    int m, n;
  } cases[] = {{1, 1}, {7, 7}, {3, 5}, {7, 1}, {3, 4}};
  open("libro.txt");
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.m) + "x" + std::to_string(c.n));
    select("NumOrigen", c.m - 1);
    select("NumDestino", c.n - 1);
    control("Título")->setFocus();
    press(kEntry, "RediseñarTabla");
    EXPECT_TRUE(platform.messages.empty());
    expectShape(c.m, c.n);
    EXPECT_EQ(focused(), "C1(0)");
    // The totals are painted apart from the costs.
    const QColor cost = control<QLineEdit>("C1(0)")->palette().color(QPalette::Base);
    EXPECT_NE(control<QLineEdit>(QString("C%1(0)").arg(c.n + 1))->palette().color(QPalette::Base),
              cost);
    EXPECT_NE(control<QLineEdit>(QString("C1(%1)").arg(c.m))->palette().color(QPalette::Base),
              cost);
  }
  // Back to the book's shape: its texts outlived the other shapes.
  EXPECT_EQ(text(kEntry, "C5(0)"), "15");
  EXPECT_EQ(text(kEntry, "C4(3)"), "15");
  EXPECT_EQ(text(kEntry, "C3(2)"), "16");
}

TEST_F(TransportesScreens, RediseñarTablaWantsBothNumbers) {
  struct Case {
    int origenes, destinos;
    const char* message;
  } cases[] = {{-1, 2, "Introduzca el Número de Orígenes"},
               {-1, -1, "Introduzca el Número de Orígenes"},
               {3, -1, "Introduzca el Número de Destinos"}};
  open("libro.txt");
  for (const Case& c : cases) {
    platform.messages.clear();
    select("NumOrigen", c.origenes);
    select("NumDestino", c.destinos);
    press(kEntry, "RediseñarTabla");
    EXPECT_EQ(platform.messages, std::vector<std::string>{c.message});
    expectShape(3, 4);  // untouched
  }
}

TEST_F(TransportesScreens, NuevoBlanksAndRestoresTheFirstShapeButKeepsTheTitle) {
  open("siete-por-siete.txt");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Título"), "Siete por siete");
  for (const char* f : {"C1(0)", "C3(1)", "C1(2)", "C7(6)", "C8(0)"})
    EXPECT_EQ(text(kEntry, f), "") << f;
  EXPECT_EQ(control<QComboBox>("NumOrigen")->currentText(), "2");
  EXPECT_EQ(control<QComboBox>("NumDestino")->currentText(), "2");
  expectShape(2, 2);
}

// guardar writes the example's bytes; the file opens in a later run, not in
// the same one, and brings back the shape it stored, whatever the selectors
// say, without reshaping.
TEST_F(TransportesScreens, ProblemFileRoundTrip) {
  open("libro.txt");
  const QString path = QString::fromStdString(tempPath("fabricas.txt"));
  platform.saveAnswers.push_back(path);
  press(kEntry, "guardar");
  EXPECT_EQ(platform.lastFilter, "All Files (*.*)|*.*|Text _Files (*.txt)|*");
  EXPECT_EQ(platform.lastFilterIndex, 2);
  EXPECT_EQ(platform.lastFileName, "Tres fábricas y cuatro almacenes");
  EXPECT_EQ(readBytes(path.toStdString()), readBytes((kExamples + "libro.txt").toStdString()));

  // An odd state: a two by two shape over the book's texts, selectors apart.
  select("NumOrigen", 1);
  select("NumDestino", 1);
  press(kEntry, "RediseñarTabla");
  select("NumOrigen", 6);
  type(kEntry, "C3(0)", "10");
  const QString odd = QString::fromStdString(tempPath("raro.txt"));
  platform.saveAnswers.push_back(odd);
  press(kEntry, "guardar");

  press(kEntry, "nuevo");
  platform.openAnswers.push_back(odd);
  press(kEntry, "abrir");  // still open for writing in this run: nothing happens
  EXPECT_EQ(platform.lastFilter, "All Files (*.*)|*.*|");
  EXPECT_EQ(text(kEntry, "C3(0)"), "");

  closeAllProblemFiles();  // a later run
  platform.openAnswers.push_back(odd);
  press(kEntry, "abrir");
  EXPECT_EQ(control<QComboBox>("NumOrigen")->currentText(), "7");
  EXPECT_EQ(control<QComboBox>("NumDestino")->currentText(), "2");
  EXPECT_EQ(text(kEntry, "C3(0)"), "10");
  EXPECT_EQ(text(kEntry, "C5(0)"), "15");
  EXPECT_FALSE(shown("C5(0)"));
  // The stored heads: the book's shape left "Demandas" at 3 and "Existencias"
  // at 4, now hidden; the small shape captioned 2 for both.
  expectShape(2, 2);
  EXPECT_EQ(caption("LblDestino(4)"), "Existencias");
  EXPECT_FALSE(shown("LblDestino(4)"));
}

// Imprimir prints under its head the results of the activation with the
// entry's texts as they stand; a second print joins the same document.
TEST_F(TransportesScreens, ImprimirPrintsThePageUnderItsHead) {
  open("exceso-de-existencias.txt");
  press(kEntry, "Resolver");
  const QString pdf = QString::fromStdString(tempPath("transporte.pdf"));
  platform.printTo(pdf);
  press(kSolution, "Imprimir");
  press(kSolution, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 2);
  platform.endProcess();
  const std::string text = pdfText(pdf);
  std::size_t at = 0;
  for (int copy = 0; copy < 2; ++copy)
    for (const char* line : {"PROBLEMA DEL TRANSPORTE", "Solución al problema: Sobran existencias",
                             "Número de orígenes:", "CANTIDADES TRANSPORTADAS",
                             "Origen 2 -Destino 2", "EXISTENCIAS", "Origen 2", "Coste Total"}) {
      at = text.find(line, at);
      ASSERT_NE(at, std::string::npos) << line << " in copy " << copy;
    }
  EXPECT_EQ(text.find("PROBLEMA DEL TRANSPORTE", at), std::string::npos);  // two copies only
}

}  // namespace
}  // namespace vorel::testing
