#include "location_equipment/factores_localizacion_screens.h"

#include "frame/gui/described_screens.h"
#include "location_equipment/location_forms.h"

namespace vorel::location_equipment {

void registerFactoresLocalizacionScreens() {
  gui::registerDescribedScreens(factoresLocalizacionForm());
}

}  // namespace vorel::location_equipment
