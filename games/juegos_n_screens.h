// The screens of games with n strategies, drawn from their descriptions
// (juegos_n_form.h).
#pragma once

namespace vorel::games {

void registerJuegosNScreens();

}  // namespace vorel::games
