#include "decision/electra2_screens.h"

#include "decision/decision_forms.h"
#include "frame/gui/described_screens.h"

namespace vorel::decision {

void registerElectra2Screens() { gui::registerDescribedScreens(electra2Form()); }

}  // namespace vorel::decision
