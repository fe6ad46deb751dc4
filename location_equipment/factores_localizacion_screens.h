// The factor rating's screens: Localizacion_PF, where each factor has a row
// with its weight and the score of every location, and its solution
// Localizacion_PF_Solucion, drawn from their descriptions.
#pragma once

namespace vorel::location_equipment {

void registerFactoresLocalizacionScreens();

}  // namespace vorel::location_equipment
