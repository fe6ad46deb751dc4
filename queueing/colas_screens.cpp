#include "queueing/colas_screens.h"

#include "frame/gui/described_screens.h"
#include "queueing/colas_form.h"

namespace vorel::queueing {

void registerColasScreens() { gui::registerDescribedScreens(colasForm()); }

}  // namespace vorel::queueing
