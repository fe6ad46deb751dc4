#include "inventory/eoq_screens.h"

#include "inventory/eoq.h"
#include "inventory/pedido_screens.h"

namespace vorel::inventory {

void registerEoqScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("GI_CantidadEconómicaPedido", [] {
    using Entry = PedidoEntry<EoqFields>;
    return new Entry("GI_CantidadEconómicaPedido", "Cantidad Económica de Pedido",
                     "El modelo de cantidad económica de pedido simple se basa en el cálculo de "
                     "la demanda que minimiza el coste total de inventario",
                     {nuevo, exchange, check, solveAndReport},
                     {{&EoqFields::D, "D", etiquetas::D},
                      {&EoqFields::E, "E", etiquetas::E},
                      {&EoqFields::A, "A", etiquetas::A},
                      {&EoqFields::TS, "TS", etiquetas::TS},
                      {&EoqFields::dias, "dias", etiquetas::dias},
                      {&EoqFields::P, "P", etiquetas::P}});
  });
  screens.add("GI_CantidadEconómicaPedido_Solución", [] {
    return new PedidoSolution<EoqFields>("GI_CantidadEconómicaPedido_Solución",
                                         "Cantidad Económica de Pedido", 96, 24);
  });
}

}  // namespace vorel::inventory
