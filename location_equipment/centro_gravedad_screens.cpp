#include "location_equipment/centro_gravedad_screens.h"

#include "frame/gui/described_screens.h"
#include "location_equipment/location_forms.h"

namespace vorel::location_equipment {

void registerCentroGravedadScreens() { gui::registerDescribedScreens(centroGravedadForm()); }

}  // namespace vorel::location_equipment
