#include "inventory/cep_ruptura_screens.h"

#include "frame/gui/described_screens.h"
#include "inventory/pedido_forms.h"

namespace vorel::inventory {

void registerRupturaScreens() { gui::registerDescribedScreens(rupturaForm()); }

}  // namespace vorel::inventory
