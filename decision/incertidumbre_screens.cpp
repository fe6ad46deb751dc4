#include "decision/incertidumbre_screens.h"

#include "decision/decision_forms.h"
#include "frame/gui/described_screens.h"

namespace vorel::decision {

void registerIncertidumbreScreens() { gui::registerDescribedScreens(incertidumbreForm()); }

}  // namespace vorel::decision
