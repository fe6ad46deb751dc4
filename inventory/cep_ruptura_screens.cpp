#include "inventory/cep_ruptura_screens.h"

#include "inventory/pedido_forms.h"
#include "inventory/pedido_screens.h"

namespace vorel::inventory {

void registerRupturaScreens() { registerPedidoScreens(rupturaForm()); }

}  // namespace vorel::inventory
