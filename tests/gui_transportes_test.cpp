// The transportation screens driven offscreen: the entry's texts, the cell
// checks with the focus they leave, the degenerate first solution sent back
// to the entry, RediseñarTabla and nuevo.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>

#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "PL_Transportes";
const std::string kSolution = "PL_Transportes_Solución";

class TransportesScreens : public ScreenTest {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    screens().show(kEntry);
  }
  void openExample(const char* file) { openFile(kEntry, examplePath("transporte", file)); }
  bool shown(const QString& name) { return ScreenTest::shown(kEntry, name); }
  QString caption(const QString& name) { return control<QLabel>(kEntry, name)->text(); }
  void select(int origenes, int destinos) {
    control<QComboBox>(kEntry, "NumOrigen")->setCurrentIndex(origenes - 1);
    control<QComboBox>(kEntry, "NumDestino")->setCurrentIndex(destinos - 1);
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
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Problema del Transporte");
  const QString intro = caption("Label1");
  EXPECT_TRUE(intro.startsWith("El Problema del Trasporte consiste en determinar la cantidades"));
  EXPECT_TRUE(intro.endsWith("las especificaciones en cua"));
  EXPECT_EQ(text(kEntry, "Título"), "Problema 1");
  for (auto [name, tip] : {std::pair{"NumOrigen", "Número de Orígenes"},
                           std::pair{"NumDestino", "Número de Destinos"}}) {
    auto* combo = control<QComboBox>(kEntry, name);
    ASSERT_NE(combo, nullptr) << name;
    EXPECT_EQ(combo->count(), 7);
    EXPECT_EQ(combo->itemText(6), "7");
    EXPECT_EQ(combo->currentText(), "2");
    EXPECT_EQ(combo->toolTip(), tip);
  }
  EXPECT_EQ(control<QAbstractButton>(kEntry, "RediseñarTabla")->text(), "Rediseñar Tabla");
  expectShape(2, 2);
  press(kEntry, "volver");
  EXPECT_TRUE(visible("ProgramaciónLineal"));
  EXPECT_FALSE(visible(kEntry));
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
    platform.messages.clear();
    openExample("libro.txt");
    for (auto [name, value] : c.edits) type(kEntry, name, value);
    control(kEntry, "Título")->setFocus();
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.messages, std::vector<std::string>(
                                     std::size_t(c.messages),
                                     "Debe Completar la tabla de Costes Unitarios de Transporte"));
    EXPECT_EQ(visible(kSolution), c.messages == 0);
    if (c.messages > 0) {
      EXPECT_EQ(focused(kEntry), c.focus);
    }
  }
}

// A first solution with fewer filled cells than origins plus destinations
// less one is refused: the message, then the entry again with all it held.
TEST_F(TransportesScreens, ADegenerateFirstSolutionGoesBackToTheEntry) {
  const char* cells[][2] = {{"C1(0)", "1"}, {"C2(0)", "2"}, {"C3(0)", "5"}, {"C1(1)", "3"},
                            {"C2(1)", "4"}, {"C3(1)", "5"}, {"C1(2)", "5"}, {"C2(2)", "5"}};
  for (auto& c : cells) type(kEntry, c[0], c[1]);
  type(kEntry, "Título", "Diagonal");
  press(kEntry, "Resolver");
  EXPECT_EQ(platform.messages, std::vector<std::string>{"la solución es degenerada"});
  EXPECT_TRUE(visible(kEntry));
  EXPECT_FALSE(visible(kSolution));
  EXPECT_EQ(text(kEntry, "Título"), "Diagonal");
  for (auto& c : cells) EXPECT_EQ(text(kEntry, c[0]), c[1]) << c[0];
  EXPECT_TRUE(shown("C3(1)"));

  // Demands of 4 and 6 fill three cells: the same screens solve it.
  platform.messages.clear();
  type(kEntry, "C1(2)", "4");
  type(kEntry, "C2(2)", "6");
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(visible(kSolution));
  EXPECT_FALSE(visible(kEntry));

  // Back on the entry, degenerate again: the solution screen gives way.
  press(kSolution, "volver");
  type(kEntry, "C1(2)", "5");
  type(kEntry, "C2(2)", "5");
  press(kEntry, "Resolver");
  EXPECT_EQ(platform.messages, std::vector<std::string>{"la solución es degenerada"});
  EXPECT_TRUE(visible(kEntry));
  EXPECT_FALSE(visible(kSolution));
}

// RediseñarTabla shows m origins and the demands below them, n destinations
// and the supplies after them, re-captions the heads and keeps every text.
TEST_F(TransportesScreens, RediseñarTablaReshapesAndKeepsTheTexts) {
  openExample("libro.txt");
  const std::pair<int, int> shapes[] = {{1, 1}, {7, 7}, {3, 5}, {7, 1}, {3, 4}};
  for (auto [m, n] : shapes) {
    SCOPED_TRACE(std::to_string(m) + "x" + std::to_string(n));
    select(m, n);
    control(kEntry, "Título")->setFocus();
    press(kEntry, "RediseñarTabla");
    EXPECT_TRUE(platform.messages.empty());
    expectShape(m, n);
    EXPECT_EQ(focused(kEntry), "C1(0)");
    // The totals stand apart from the costs (in bold), typed cells all the same.
    auto bold = [&](const QString& cell) {
      return control<QLineEdit>(kEntry, cell)->font().bold();
    };
    EXPECT_TRUE(bold(QString("C%1(0)").arg(n + 1)));
    EXPECT_TRUE(bold(QString("C1(%1)").arg(m)));
    EXPECT_FALSE(bold("C1(0)"));
  }
  EXPECT_EQ(text(kEntry, "C5(0)"), "15");
  EXPECT_EQ(text(kEntry, "C4(3)"), "15");
  EXPECT_EQ(text(kEntry, "C3(2)"), "16");
}

TEST_F(TransportesScreens, RediseñarTablaWantsBothNumbers) {
  struct Case {
    int origenes, destinos;
    const char* message;
  } cases[] = {{0, 2, "Introduzca el Número de Orígenes"},
               {0, 0, "Introduzca el Número de Orígenes"},
               {3, 0, "Introduzca el Número de Destinos"}};
  openExample("libro.txt");
  for (const Case& c : cases) {
    platform.messages.clear();
    select(c.origenes, c.destinos);
    press(kEntry, "RediseñarTabla");
    EXPECT_EQ(platform.messages, std::vector<std::string>{c.message});
    expectShape(3, 4);  // untouched
  }
}

TEST_F(TransportesScreens, NuevoBlanksAndRestoresTheFirstShapeButKeepsTheTitle) {
  openExample("siete-por-siete.txt");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Título"), "Siete por siete");
  for (const char* f : {"C1(0)", "C3(1)", "C1(2)", "C7(6)", "C8(0)"})
    EXPECT_EQ(text(kEntry, f), "") << f;
  EXPECT_EQ(control<QComboBox>(kEntry, "NumOrigen")->currentText(), "2");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumDestino")->currentText(), "2");
  expectShape(2, 2);
}

}  // namespace
}  // namespace vorel::testing
