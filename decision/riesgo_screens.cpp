#include "decision/riesgo_screens.h"

#include "decision/decision_forms.h"
#include "frame/gui/described_screens.h"

namespace vorel::decision {

void registerRiesgoScreens() { gui::registerDescribedScreens(riesgoForm()); }

}  // namespace vorel::decision
