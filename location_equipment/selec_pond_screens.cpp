#include "location_equipment/selec_pond_screens.h"

#include "frame/gui/described_screens.h"
#include "location_equipment/location_forms.h"

namespace vorel::location_equipment {

void registerSelecPondScreens() { gui::registerDescribedScreens(selecPondForm()); }

}  // namespace vorel::location_equipment
