#include "decision/electra1_screens.h"

#include "decision/decision_forms.h"
#include "frame/gui/described_screens.h"

namespace vorel::decision {

void registerElectra1Screens() { gui::registerDescribedScreens(electra1Form()); }

}  // namespace vorel::decision
