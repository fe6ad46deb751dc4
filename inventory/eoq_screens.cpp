#include "inventory/eoq_screens.h"

#include "inventory/pedido_forms.h"
#include "inventory/pedido_screens.h"

namespace vorel::inventory {

void registerEoqScreens() { registerPedidoScreens(eoqForm()); }

}  // namespace vorel::inventory
