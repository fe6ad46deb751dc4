#include "productivity/productividad_simple_screens.h"

#include "frame/gui/described_screens.h"
#include "productivity/productividad_simple_form.h"

namespace vorel::productivity {

void registerProductividadSimpleScreens() {
  gui::registerDescribedScreens(productividadSimpleForm());
}

}  // namespace vorel::productivity
