#include "inventory/cep_gradual_screens.h"

#include "inventory/pedido_forms.h"
#include "inventory/pedido_screens.h"

namespace vorel::inventory {

void registerGradualScreens() { registerPedidoScreens(gradualForm()); }

}  // namespace vorel::inventory
