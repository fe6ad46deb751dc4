// The centre of gravity's screens: Localizacion_CG, one location per row, and
// its solution Localizacion_CG_Solucion, drawn from their descriptions.
#pragma once

namespace vorel::location_equipment {

void registerCentroGravedadScreens();

}  // namespace vorel::location_equipment
