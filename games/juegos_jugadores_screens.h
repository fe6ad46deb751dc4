// The screens of games of two and of three players, drawn from their
// descriptions (juegos_jugadores_form.h).
#pragma once

namespace vorel::games {

void registerJuegos2Screens();
void registerJuegos3Screens();

}  // namespace vorel::games
