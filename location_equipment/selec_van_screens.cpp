#include "location_equipment/selec_van_screens.h"

#include "frame/gui/described_screens.h"
#include "location_equipment/location_forms.h"

namespace vorel::location_equipment {

std::string selecVanTitulo1() {
  auto* screen =
      dynamic_cast<gui::DescribedEntry<VanFields>*>(gui::Screens::instance().load("Selec_Van"));
  return screen ? screen->fields().Titulo1 : std::string();
}

void registerVanScreens() { gui::registerDescribedScreens(vanForm()); }

}  // namespace vorel::location_equipment
