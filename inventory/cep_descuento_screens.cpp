#include "inventory/cep_descuento_screens.h"

#include "frame/gui/described_screens.h"
#include "inventory/pedido_forms.h"

namespace vorel::inventory {

void registerDescuentoScreens() { gui::registerDescribedScreens(descuentoForm()); }

}  // namespace vorel::inventory
