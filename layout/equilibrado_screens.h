// The line balancing screens, drawn from their description
// (layout/layout_forms.h): Distribucion_Equlibrado and its solution
// Distribucion_Equilibrado_Solucion, which places the elements in slices
// while the window stays alive (a cycle of precedences never ends).
#pragma once

namespace vorel::facility {

void registerEquilibradoScreens();

}  // namespace vorel::facility
