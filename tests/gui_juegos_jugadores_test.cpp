// The screens of games of two and three players driven offscreen: the two
// commands fill their panels and mark the cells of the pure equilibria,
// Resolver needs one of them first, and nuevo blanks the screen and hides the
// panels.
#include <gtest/gtest.h>

#include <QLabel>

#include "tests/gui_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "Juegos_2";

class JuegosJugadoresScreens : public ScreenTest {
 protected:
  std::string panel(const char* name) {
    return control<QLabel>(kEntry, name)->text().toStdString();
  }
  QString colour(const char* cell) { return control<QLineEdit>(kEntry, cell)->styleSheet(); }
};

TEST_F(JuegosJugadoresScreens, CommandsFillTheirPanelsBeforeResolver) {
  screens().show(kEntry);
  press(kEntry, "Resolver");
  EXPECT_EQ(platform.messages,
            std::vector<std::string>{
                "Debe calcular primero los equilibrios en estrategias puras y mixtas"});
  EXPECT_EQ(screen("Juegos_2_Solucion"), nullptr);
  EXPECT_FALSE(shown(kEntry, "SPuras") || shown(kEntry, "SMixtas"));

  // Two pure equilibria, (2,1) and (1,2), and J1 plays Decisión 1 with p = 2/3.
  const char* cells[][2] = {{"E1(0)", "2"}, {"E1(1)", "1"}, {"E2(0)", "0"}, {"E2(1)", "0"},
                            {"E3(0)", "0"}, {"E3(1)", "0"}, {"E4(0)", "1"}, {"E4(1)", "2"}};
  for (auto& c : cells) type(kEntry, c[0], c[1]);
  press(kEntry, "EstPuras");
  EXPECT_TRUE(shown(kEntry, "SPuras"));
  EXPECT_FALSE(shown(kEntry, "SMixtas"));
  EXPECT_EQ(panel("SPuras"), "Equilibrio:   (2,1)\nEquilibrio:   (1,2)\n");
  EXPECT_EQ(colour("E1(1)"), colour("E4(0)"));
  EXPECT_NE(colour("E1(1)"), colour("E2(0)"));
  press(kEntry, "EstMixtas");
  EXPECT_NE(panel("SMixtas").find("J1 juega:\nDecisión1 con p =  .6666667\n"), std::string::npos);
  press(kEntry, "Resolver");
  EXPECT_TRUE(visible("Juegos_2_Solucion"));
  EXPECT_FALSE(visible(kEntry));

  press("Juegos_2_Solucion", "volver");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Titulo1"), "");
  EXPECT_EQ(text(kEntry, "E4(1)"), "");
  EXPECT_FALSE(shown(kEntry, "SPuras") || shown(kEntry, "SMixtas"));
  EXPECT_EQ(colour("E1(1)"), colour("E2(0)"));
  press(kEntry, "Resolver");  // what was computed stays: the report of a blank table
  EXPECT_TRUE(visible("Juegos_2_Solucion"));
}

}  // namespace
}  // namespace vorel::testing
