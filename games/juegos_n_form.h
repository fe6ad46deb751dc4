// The screens of games with n strategies as data: Juegos_n, the numbers of
// strategies and the table of results, and its report Juegos_n_solucion.
#pragma once

#include "frame/form.h"
#include "games/juegos_n.h"

namespace vorel::games {

const Form<JuegosNFields>& juegosNForm();

}  // namespace vorel::games
