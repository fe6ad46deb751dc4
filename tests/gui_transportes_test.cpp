// The transportation screens driven offscreen: the degenerate first solution
// sent back to the entry, and RediseñarTabla with its messages (the checks and
// nuevo: transportes_test).
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

}  // namespace
}  // namespace vorel::testing
