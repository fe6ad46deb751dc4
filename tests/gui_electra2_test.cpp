// The ELECTRE II screens driven offscreen: the way in from the multicriteria
// menu and back, the indicators' tips, and where each message of the checks
// leaves the focus.
#include <gtest/gtest.h>

#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "DecisionElectra2";

using Electra2Screens = ScreenTest;

TEST_F(Electra2Screens, ReachedFromTheMulticriteriaMenu) {
  screens().show("DecisionMulticriterio");
  press("DecisionMulticriterio", "Image7");
  ASSERT_TRUE(visible(kEntry));
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Método multicriterio: Electra 2");
  EXPECT_EQ(control(kEntry, "IndicadorConcordancia1")->toolTip(),
            "Índice de concordancia en tanto por uno");
  EXPECT_EQ(control(kEntry, "IndicadorDiscordancia1")->toolTip(),
            "Índice de Discordancia en tanto por uno");
  press(kEntry, "Image6");
  EXPECT_TRUE(visible("DecisionMulticriterio"));
}

// A field that is not a number or out of its range takes the focus; the
// messages on the order of the indicators leave it where it was.
TEST_F(Electra2Screens, ChecksMoveTheFocusToTheFieldAtFault) {
  const std::pair<std::vector<std::pair<const char*, const char*>>, const char*> cases[] = {
      {{{"IndicadorConcordancia2", "dos"}}, "IndicadorConcordancia2"},
      {{{"IndicadorConcordancia1", "2"}}, "IndicadorConcordancia1"},
      {{{"IndicadorDiscordancia2", "99"}}, "IndicadorDiscordancia2"},
      {{{"IndicadorConcordancia3", "0.9"}}, "Título"},
      {{{"IndicadorDiscordancia1", "0.9"}}, "Título"},
      {{{"C3(2)", ""}}, "C3(2)"},
  };
  for (const auto& [edits, focus] : cases) {
    screens().reset();
    openFile(kEntry, examplePath("electra2", "libro.txt"));
    for (auto [name, value] : edits) type(kEntry, name, value);
    control(kEntry, "Título")->setFocus();
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.messages.size(), 1u);
    platform.messages.clear();
    EXPECT_EQ(focused(kEntry), focus) << focus;
  }
}

}  // namespace
}  // namespace vorel::testing
