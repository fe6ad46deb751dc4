#include "inventory/eoq_screens.h"

#include "frame/gui/described_screens.h"
#include "inventory/pedido_forms.h"

namespace vorel::inventory {

void registerEoqScreens() { gui::registerDescribedScreens(eoqForm()); }

}  // namespace vorel::inventory
