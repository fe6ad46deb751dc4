#include "layout/equilibrado_screens.h"

#include "frame/gui/described_screens.h"
#include "layout/layout_forms.h"

namespace vorel::facility {

void registerEquilibradoScreens() { gui::registerDescribedScreens(equilibradoForm()); }

}  // namespace vorel::facility
