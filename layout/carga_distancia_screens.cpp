#include "layout/carga_distancia_screens.h"

#include "frame/gui/described_screens.h"
#include "layout/layout_forms.h"

namespace vorel::facility {

void registerCargaDistanciaScreens() { gui::registerDescribedScreens(cargaDistanciaForm()); }

}  // namespace vorel::facility
