// The screens of the order quantity with discounts: GI_CEPDescuento, with its
// table of cost intervals, and its solution GI_CEPDescuento_Solución.
#pragma once

namespace vorel::inventory {

void registerDescuentoScreens();

}  // namespace vorel::inventory
