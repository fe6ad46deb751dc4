#include "productivity/productividad_global_screens.h"

#include "frame/gui/described_screens.h"
#include "productivity/productividad_global_form.h"

namespace vorel::productivity {

void registerProductividadGlobalScreens() {
  gui::registerDescribedScreens(productividadGlobalForm());
}

}  // namespace vorel::productivity
