// The weighted-score screens of location and equipment: what reshapes their tables.
#include <gtest/gtest.h>

#include <QComboBox>

#include "tests/gui_support.h"

namespace vorel::testing {
namespace {

using LocalizacionScreens = ScreenTest;

TEST_F(LocalizacionScreens, TablesTakeTheShapeTheirSelectorsSay) {
  // Localizacion_CG and Localizacion_PF wait for Rediseñar; Selec_Pond reshapes on the choice.
  screens().show("Localizacion_CG");
  control<QComboBox>("Localizacion_CG", "NLoc")->setCurrentIndex(8);  // "10"
  EXPECT_FALSE(shown("Localizacion_CG", "Q(9)"));
  press("Localizacion_CG", "Rediseñar");
  EXPECT_TRUE(shown("Localizacion_CG", "Q(9)"));
  EXPECT_EQ(focused("Localizacion_CG"), "localiz(0)");

  screens().show("Localizacion_PF");
  control<QComboBox>("Localizacion_PF", "NLoc")->setCurrentIndex(4);  // "6"
  press("Localizacion_PF", "Rediseñar");
  EXPECT_TRUE(shown("Localizacion_PF", "Puntuaciones6"));
  EXPECT_TRUE(shown("Localizacion_PF", "f3(5)"));
  EXPECT_FALSE(shown("Localizacion_PF", "f4(5)"));

  screens().show("Selec_Pond");
  QComboBox* nfact = control<QComboBox>("Selec_Pond", "NFact");
  nfact->setCurrentIndex(0);
  emit nfact->activated(0);
  EXPECT_TRUE(shown("Selec_Pond", "PuntuaB(0)"));
  EXPECT_FALSE(shown("Selec_Pond", "PuntuaB(1)"));
}

}  // namespace
}  // namespace vorel::testing
