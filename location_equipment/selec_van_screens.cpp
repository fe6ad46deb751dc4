#include "location_equipment/selec_van_screens.h"

#include "frame/gui/described_screens.h"
#include "location_equipment/location_forms.h"

namespace vorel::location_equipment {

void registerVanScreens() { gui::registerDescribedScreens(vanForm()); }

}  // namespace vorel::location_equipment
