// The load-distance screens, drawn from their description
// (layout/layout_forms.h): Distribucion_CargaDistancia and its solution
// Distribucion_Cargadistancia_Solucion.
#pragma once

namespace vorel::facility {

void registerCargaDistanciaScreens();

}  // namespace vorel::facility
