// The screens of games with n strategies driven offscreen: a game typed by
// where its cells stand under their heads reaches the report, and nuevo keeps
// it (the checks, Rediseñar and the rows read: juegos_n_test, games.test.mjs).
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLayout>
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
  // nuevo shows the form again and changes nothing.
  press(kSolution, "volver");
  press(kEntry, "nuevo");
  EXPECT_EQ(cellAt(3, 1)->text(), "7");
}

}  // namespace
}  // namespace vorel::testing
