#include "games/juegos_jugadores_screens.h"

#include "frame/gui/described_screens.h"
#include "games/juegos_jugadores_form.h"

namespace vorel::games {

void registerJuegos2Screens() { gui::registerDescribedScreens(juegos2Form()); }
void registerJuegos3Screens() { gui::registerDescribedScreens(juegos3Form()); }

}  // namespace vorel::games
