#include "linear_programming/simplex_screens.h"

#include "frame/gui/described_screens.h"
#include "linear_programming/simplex_form.h"

namespace vorel::linear_programming {

void registerSimplexScreens() { gui::registerDescribedScreens(simplexForm()); }

}  // namespace vorel::linear_programming
