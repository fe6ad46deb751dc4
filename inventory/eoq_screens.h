// The economic order quantity's screens: GI_CantidadEconómicaPedido and its
// solution GI_CantidadEconómicaPedido_Solución.
#pragma once

namespace vorel::inventory {

void registerEoqScreens();

}  // namespace vorel::inventory
