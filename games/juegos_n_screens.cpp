#include "games/juegos_n_screens.h"

#include "frame/gui/described_screens.h"
#include "games/juegos_n_form.h"

namespace vorel::games {

void registerJuegosNScreens() { gui::registerDescribedScreens(juegosNForm()); }

}  // namespace vorel::games
