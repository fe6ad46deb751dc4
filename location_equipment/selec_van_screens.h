// The net present value screens: Selec_Van, where the two investments are
// typed year by year, and its solution Selec_Van_Solucion, which Resolver
// shows beside the entry screen; both drawn from their descriptions.
#pragma once

#include <string>

namespace vorel::location_equipment {

void registerVanScreens();

}  // namespace vorel::location_equipment
