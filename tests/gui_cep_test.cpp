// The screens of the order quantities with shortages and with discounts.
#include <gtest/gtest.h>

#include <QComboBox>

#include "tests/gui_support.h"

namespace vorel::testing {
namespace {

using CepScreens = ScreenTest;

TEST_F(CepScreens, RupturaFromItsMenuLeavesTheMenuBehindIt) {
  screens().show("GestiónDeInventarios");
  press("GestiónDeInventarios", "Image3");
  press("GI_DemandaIndependiente", "Image8");
  EXPECT_TRUE(visible("GI_CEPRuptura"));
  EXPECT_TRUE(visible("GI_DemandaIndependiente"));
  EXPECT_FALSE(visible("GestiónDeInventarios"));
}

TEST_F(CepScreens, ChoosingTheNumberOfIntervalsShowsTheirRowsAndKeepsWhatTheyHold) {
  const std::string entry = "GI_CEPDescuento";
  screens().show(entry);
  EXPECT_TRUE(shown(entry, "B3") && !shown(entry, "C1") && !shown(entry, "Intervalo3"));
  auto* combo = control<QComboBox>(entry, "cmbIntervalos");
  auto choose = [&](int index) {
    combo->setCurrentIndex(index);
    emit combo->activated(index);
  };
  choose(2);
  for (const char* cell : {"Intervalo3", "Intervalo4", "C1", "D3"}) EXPECT_TRUE(shown(entry, cell));
  type(entry, "D3", "4.7");
  choose(0);
  EXPECT_FALSE(shown(entry, "D3") || shown(entry, "Intervalo4") || shown(entry, "C2"));
  EXPECT_EQ(text(entry, "D3"), "4.7");
  EXPECT_TRUE(platform.messages.empty());
}

}  // namespace
}  // namespace vorel::testing
