#include "inventory/cep_gradual_screens.h"

#include "frame/gui/described_screens.h"
#include "inventory/pedido_forms.h"

namespace vorel::inventory {

void registerGradualScreens() { gui::registerDescribedScreens(gradualForm()); }

}  // namespace vorel::inventory
