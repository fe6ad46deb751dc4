// The net present value screens: Rediseñar shows the rows of each duration,
// and other screens read the title typed on Selec_Van.
#include <gtest/gtest.h>

#include <QComboBox>

#include "quality/control_variables.h"
#include "tests/gui_support.h"

namespace vorel::testing {
namespace {

using SelecVanScreens = ScreenTest;

TEST_F(SelecVanScreens, RediseñarShowsTheYearsOfEachInvestment) {
  screens().show("Selec_Van");
  EXPECT_EQ(quality::selecVanTitulo1(), "Problema1");
  type("Selec_Van", "Titulo1", "Torno");
  EXPECT_EQ(quality::selecVanTitulo1(), "Torno");
  control<QComboBox>("Selec_Van", "NVarA")->setCurrentText("9");
  control<QComboBox>("Selec_Van", "NVarB")->setCurrentText("3");
  press("Selec_Van", "Rediseñar");
  EXPECT_TRUE(shown("Selec_Van", "AX1(8)"));
  EXPECT_TRUE(shown("Selec_Van", "LblAño(8)"));
  EXPECT_TRUE(shown("Selec_Van", "AX2(2)"));
  EXPECT_FALSE(shown("Selec_Van", "AX2(3)"));
  EXPECT_EQ(focused("Selec_Van"), "AX1(0)");
}

}  // namespace
}  // namespace vorel::testing
