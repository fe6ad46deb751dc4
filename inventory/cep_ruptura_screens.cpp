#include "inventory/cep_ruptura_screens.h"

#include "inventory/cep_ruptura.h"
#include "inventory/pedido_screens.h"

namespace vorel::inventory {

void registerRupturaScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("GI_CEPRuptura", [] {
    using F = RupturaFields;
    return new PedidoEntry<F>(
        "GI_CEPRuptura", "Cantidad Económica de Pedido con Ruptura",
        "El modelo de cantidad económica de pedido con posibilidades de ruptura trata aquellos "
        "problemas de administración y gestión de inventarios en los que se puede dar el caso de "
        "que el inventario quede si existencias",
        {nuevo, exchange, check, solveAndReport},
        {{&F::D, "D", etiquetas::D},
         {&F::E, "E", etiquetas::E},
         {&F::A, "A", etiquetas::A},
         {&F::CR, "CR", "Coste de Ruptura por unidad y año (CR)"},
         {&F::TS, "TS", etiquetas::TS},
         {&F::dias, "dias", etiquetas::dias},
         {&F::P, "P", etiquetas::P}});
  });
  screens.add("GI_CEPRuptura_Solución", [] {
    return new PedidoSolution<RupturaFields>("GI_CEPRuptura_Solución",
                                             "Cantidad Económica de Pedido con Ruptura", 126, 34);
  });
}

}  // namespace vorel::inventory
