// The screens of the order quantity with shortages: GI_CEPRuptura and its
// solution GI_CEPRuptura_Solución.
#pragma once

namespace vorel::inventory {

void registerRupturaScreens();

}  // namespace vorel::inventory
