// Equipment selection by weighted factors: Selec_Pond, one row per factor
// with its weight and the scores of A and B, and its solution
// Selec_Pond_Solucion, drawn from their descriptions.
#pragma once

namespace vorel::location_equipment {

void registerSelecPondScreens();

}  // namespace vorel::location_equipment
