// The screens of games with n strategies driven offscreen: the entry's texts,
// a game typed cell by cell, the checks with the focus they leave, Rediseñar
// and nuevo, and the rows read for each player.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QRegularExpression>
#include <cmath>

#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "Juegos_n";
const std::string kSolution = "Juegos_n_solucion";

class JuegosNScreens : public ScreenTest {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    screens().show(kEntry);
  }
  bool shown(const QString& name) { return ScreenTest::shown(kEntry, name); }
  void expectShown(std::initializer_list<const char*> names, bool on) {
    for (const char* name : names) EXPECT_EQ(shown(name), on) << name;
  }
  // Chooses the numbers of strategies and applies them.
  void shape(int n1, int n2) {
    control<QComboBox>(kEntry, "NDecA")->setCurrentIndex(n1 - 1);
    control<QComboBox>(kEntry, "NDecB")->setCurrentIndex(n2 - 1);
    press(kEntry, "Rediseñar");
  }
  bool has(const std::string& text) { return painted(kSolution).find(text) != std::string::npos; }
  // The visible cell that stands in the row headed "A<fila>" and the column
  // headed "B<columna>", found by where the student sees it.
  QLineEdit* cellAt(int fila, int columna) {
    screen(kEntry)->layout()->activate();
    auto centre = [this](QWidget* w) { return w->mapTo(screen(kEntry), w->rect().center()); };
    auto* rowHead = control<QLabel>(kEntry, QString("A(%1)").arg(fila - 1));
    auto* columnHead = control<QLabel>(kEntry, QString("B(%1)").arg(columna - 1));
    EXPECT_EQ(rowHead->text(), QString("A%1").arg(fila));
    EXPECT_EQ(columnHead->text(), QString("B%1").arg(columna));
    for (auto* cell :
         screen(kEntry)->findChildren<QLineEdit*>(QRegularExpression("^A\\d\\(\\d\\)$")))
      if (!cell->isHidden() && std::abs(centre(cell).y() - centre(rowHead).y()) < 3 &&
          std::abs(centre(cell).x() - centre(columnHead).x()) < 3)
        return cell;
    ADD_FAILURE() << "no cell at A" << fila << ", B" << columna;
    return nullptr;
  }
};

// A game typed by the heads of the screen, rows A1 = 2 5 1, A2 = 3 6 4,
// A3 = 7 8 9: row minima 1, 3, 7 and column maxima 7, 8, 9 meet at 7, in row
// A3 and column B1, and no line is dominated as the elimination counts. The
// report names that cell, and the screen shows 7 there.
TEST_F(JuegosNScreens, TheReportNamesTheCellWhereTheScreenShowsIt) {
  shape(3, 3);
  const char* filas[3][3] = {{"2", "5", "1"}, {"3", "6", "4"}, {"7", "8", "9"}};
  for (int a = 0; a < 3; ++a)
    for (int b = 0; b < 3; ++b) cellAt(a + 1, b + 1)->setText(filas[a][b]);
  press(kEntry, "Resolver");
  EXPECT_TRUE(has("J1 juega A 3 y J2 juega B 1 \n"));
  EXPECT_TRUE(has("obteniendo un resultado: (  7 , -7 )\n"));
  EXPECT_EQ(cellAt(3, 1)->text(), "7");
}

TEST_F(JuegosNScreens, TheEntryStartsWithTwoStrategiesASide) {
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Juegos con n Estrategias");
  EXPECT_EQ(text(kEntry, "Título"), "Problema 1");
  EXPECT_EQ(control<QComboBox>(kEntry, "NDecA")->currentText(), "2");
  EXPECT_EQ(control<QComboBox>(kEntry, "NDecB")->count(), 8);
  EXPECT_EQ(control<QComboBox>(kEntry, "NDecA")->toolTip(),
            "Número de decisiones que puede tomar Jugador 1");
  EXPECT_EQ(control<QComboBox>(kEntry, "NDecB")->toolTip(),
            "Número de Decisiones que puede tomar Jugador 2");
  auto* reshape = control<QPushButton>(kEntry, "Rediseñar");
  ASSERT_NE(reshape, nullptr);
  EXPECT_EQ(reshape->text(), "Rediseñar tabla");
  EXPECT_EQ(reshape->toolTip(), "Ajusta la tabla al número de decisiones deseadas");
  EXPECT_NE(control<QAbstractButton>(kEntry, "Image5"), nullptr);  // its Volver
  expectShown({"A(0)", "A(1)", "B(0)", "B(1)", "A1(0)", "A1(1)", "A2(0)", "A2(1)"}, true);
  expectShown({"A(2)", "B(2)", "A3(0)", "A1(2)", "A8(7)"}, false);
}

// The array Ak is player 1's strategy k, the row headed "Ak": typing
// A1 = (1, 2) and A2 = (3, 4) gives the one saddle point at A2, B1, where 3 stands.
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
  EXPECT_TRUE(has("J1 juega A 2 y J2 juega B 1 \n"));
  EXPECT_TRUE(has("obteniendo un resultado: (  3 , -3 )\n"));

  // Back on the entry, a change shows on the next Resolver: (1, 2 | -1, 4)
  // has no cell of the table as typed that qualifies.
  press(kSolution, "volver");
  EXPECT_EQ(text(kEntry, "A2(1)"), "4");
  type(kEntry, "A2(0)", "-1");
  press(kEntry, "Resolver");
  EXPECT_TRUE(has("No existen equilibrios en estrategias puras.\n"));
  EXPECT_FALSE(has("SOLUCIÓN"));
}

// The first bad visible cell gives one message and takes the focus (the
// order of the checks: the core suite).
TEST_F(JuegosNScreens, TheFirstBadCellIsToldAndFocused) {
  const std::string rango =
      "Los valores de los resultados no son correctos, deben estar comprendidos entre -9999999 y "
      "9999999";
  struct Case {
    std::vector<std::pair<const char*, const char*>> cells;  // over a full 2 by 2 table
    std::string message;                                     // empty: solves
    const char* focus;
  } cases[] = {
      {{{"A1(1)", "x"}, {"A2(0)", "1e8"}}, rango, "A2(0)"},
      {{{"A3(0)", "x"}, {"A1(2)", "x"}}, "", ""},  // hidden cells are not looked at
  };
  for (const Case& c : cases) {
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
      continue;
    }
    EXPECT_EQ(platform.messages, std::vector<std::string>{c.message});
    EXPECT_EQ(focused(kEntry), c.focus);
    EXPECT_EQ(screen(kSolution), nullptr);
  }
}

TEST_F(JuegosNScreens, RediseñarShowsTheChosenShapeAndKeepsTheTexts) {
  type(kEntry, "A2(1)", "7");
  shape(3, 1);
  expectShown({"A(0)", "A(1)", "A(2)", "B(0)", "A1(0)", "A1(1)", "A1(2)"}, true);
  expectShown({"A(3)", "B(1)", "A2(0)", "A2(1)", "A1(3)"}, false);
  EXPECT_EQ(focused(kEntry), "A1(0)");
  shape(2, 2);
  EXPECT_EQ(text(kEntry, "A2(1)"), "7");  // hidden cells keep what they held

  shape(8, 8);
  for (int k = 1; k <= 8; ++k)
    for (int i = 0; i < 8; ++i) EXPECT_TRUE(shown(QString("A%1(%2)").arg(k).arg(i))) << k << i;
  expectShown({"A(7)", "B(7)"}, true);

  // nuevo shows the form again and changes nothing.
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "A2(1)"), "7");
  EXPECT_TRUE(shown("A8(7)"));
  EXPECT_EQ(control<QComboBox>(kEntry, "NDecA")->currentText(), "8");
}

// Player 1 with more strategies: each row of cells is read only up to player
// 2's count, so the cells of the columns beyond it do not matter. Player 2
// with more: the read runs past player 1's rows, the platform's error 9, and
// no report is shown.
TEST_F(JuegosNScreens, OnlyTheColumnsOfPlayerTwosCountAreRead) {
  shape(3, 2);
  for (const char* cell : {"A1(0)", "A1(1)", "A2(0)", "A2(1)"}) type(kEntry, cell, "5");
  type(kEntry, "A1(2)", "nada");
  type(kEntry, "A2(2)", "nada");
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(platform.runtimeErrors.empty());
  EXPECT_TRUE(has("Número de estrategias del J1:"));

  screens().reset();
  screens().show(kEntry);
  shape(1, 3);
  for (const char* cell : {"A1(0)", "A2(0)", "A3(0)"}) type(kEntry, cell, "4");
  press(kEntry, "Resolver");
  EXPECT_EQ(platform.runtimeErrors, std::vector<int>{9});
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(visible(kEntry));
  EXPECT_EQ(screen(kSolution), nullptr);
}

}  // namespace
}  // namespace vorel::testing
