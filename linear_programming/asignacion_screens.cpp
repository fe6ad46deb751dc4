#include "linear_programming/asignacion_screens.h"

#include "frame/gui/described_screens.h"
#include "linear_programming/asignacion_form.h"

namespace vorel::linear_programming {

void registerAsignacionScreens() { gui::registerDescribedScreens(asignacionForm()); }

}  // namespace vorel::linear_programming
