// The experience curve screens: Check1 makes the economic fields available.
#include <gtest/gtest.h>

#include "tests/gui_support.h"

namespace vorel::testing {
namespace {

using ExperienciaScreens = ScreenTest;

TEST_F(ExperienciaScreens, Check1OffersTheMarginAndTheLabourCost) {
  screens().show("C_Experiencia");
  auto enabled = [&] {
    return control("C_Experiencia", "MgB")->isEnabled() &&
           control("C_Experiencia", "CMdeO")->isEnabled();
  };
  EXPECT_FALSE(enabled());
  press("C_Experiencia", "Check1");
  EXPECT_TRUE(enabled());
  press("C_Experiencia", "Check1");
  EXPECT_FALSE(enabled());
}

}  // namespace
}  // namespace vorel::testing
