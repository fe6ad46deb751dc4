// The screens of the order quantity with gradual supply: GI_CEPGradual and its
// solution GI_CEPGradual_Solución.
#pragma once

namespace vorel::inventory {

void registerGradualScreens();

}  // namespace vorel::inventory
