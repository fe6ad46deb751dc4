// The screens of decisions under risk driven offscreen: the head "Ps" over the
// row of probabilities, through Rediseñar and nuevo (the checks and the pages'
// arrows: riesgo_test and the API's browsing test).
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>

#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "DecisionRiesgoNobayesiano";

using RiesgoScreens = ScreenTest;

TEST_F(RiesgoScreens, PsStandsOverTheRowBelowTheAlternatives) {
  openFile(kEntry, examplePath("riesgo", "libro.txt"));
  auto head = [&](int i) {
    return control<QLabel>(kEntry, QString("lblAlternativa(%1)").arg(i))->text();
  };
  EXPECT_EQ(head(5), "Ps");  // as the file of five alternatives was read
  control<QComboBox>(kEntry, "NumAlternativas")->setCurrentIndex(6);
  control<QComboBox>(kEntry, "NumEstados")->setCurrentIndex(7);
  press(kEntry, "RediseñarTabla");
  EXPECT_EQ(head(5), "Alternativa 6");
  EXPECT_EQ(head(7), "Ps");
  EXPECT_TRUE(shown(kEntry, "C8(7)"));
  EXPECT_EQ(text(kEntry, "C1(5)"), "0.2");  // texts stay
  EXPECT_EQ(control<QLabel>(kEntry, "Label7")->text(),
            "Ps: Probalididad de ocurrencia de los diferentes estados de la naturaleza");
  press(kEntry, "nuevo");
  EXPECT_EQ(head(4), "Ps");
  EXPECT_FALSE(shown(kEntry, "C1(5)"));
}

}  // namespace
}  // namespace vorel::testing
