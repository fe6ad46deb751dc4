// The simplex screens driven offscreen: a run-time error while solving goes to
// the platform and leaves an empty, usable solution screen.
#include <gtest/gtest.h>

#include <QComboBox>
#include <set>

#include "tests/gui_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "PL_Simplex";
const std::string kSolution = "PL_Simplex_Solucion";

using SimplexScreens = ScreenTest;

// A right-hand side beyond Single, or no number of constraints chosen: the
// platform's overflow or subscript error, an empty report, a usable screen.
TEST_F(SimplexScreens, RunTimeErrorsGoToThePlatformAndTheScreenStaysUsable) {
  for (int error : {6, 9}) {
    SCOPED_TRACE(error);
    screens().reset();
    platform.runtimeErrors.clear();
    screens().show(kEntry);
    openFile(kEntry, examplePath("simplex", "libro.txt"));
    if (error == 6) type(kEntry, "existencias(1)", "1e39");
    if (error == 9) control<QComboBox>(kEntry, "Numrestricciones")->setCurrentIndex(-1);
    press(kEntry, "Resolver");
    EXPECT_EQ(platform.runtimeErrors, std::vector<int>{error});
    EXPECT_EQ(painted(kSolution), "");
    std::set<std::string> enabled;
    for (const char* name : {"forward", "back", "volver", "Imprimir", "cerrar"}) {
      auto* b = control<QAbstractButton>(kSolution, name);
      if (b && b->isEnabled() && !b->isHidden()) enabled.insert(name);
    }
    EXPECT_EQ(enabled, (std::set<std::string>{"volver", "Imprimir", "cerrar"}));
  }
}

}  // namespace
}  // namespace vorel::testing
