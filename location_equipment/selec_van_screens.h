// The net present value screens: Selec_Van, where the two investments are
// typed year by year, and its solution Selec_Van_Solucion, which Resolver
// shows beside the entry screen; both drawn from their descriptions.
#pragma once

#include <string>

namespace vorel::location_equipment {

// The title typed on Selec_Van (its Titulo1), which other screens' reports
// also carry; reading it loads Selec_Van if it is not loaded, as reading
// another form's control does.
std::string selecVanTitulo1();

void registerVanScreens();

}  // namespace vorel::location_equipment
