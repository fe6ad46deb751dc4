#include "inventory/cep_gradual_screens.h"

#include "inventory/cep_gradual.h"
#include "inventory/pedido_screens.h"

namespace vorel::inventory {

void registerGradualScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("GI_CEPGradual", [] {
    using F = GradualFields;
    return new PedidoEntry<F>(
        "GI_CEPGradual", "Cantidad Económica de Pedido con Suministro Gradual",
        "El modelo de cantidad económica de pedido con suministro gradual responde al modelo de "
        "inventario en el que el suministro de artículos no se realiza en un momento determinado, "
        "sino que se va realizando en un periodo de tiempo dado.",
        {nuevo, exchange, check, solveAndReport},
        {{&F::D, "D", etiquetas::D},
         {&F::E, "E", etiquetas::E},
         {&F::A, "A", etiquetas::A},
         {&F::TS, "TS", etiquetas::TS},
         {&F::P, "P", etiquetas::P},
         {&F::Pdia, "Pdia", "Número de artículos suministrados al dia (p)"},
         {&F::Ddia, "Ddia", "Número de artículos consumidos al dia (d)"}});
  });
  screens.add("GI_CEPGradual_Solución", [] {
    return new PedidoSolution<GradualFields>(
        "GI_CEPGradual_Solución", "Cantidad Económica de Pedido con Suministro Gradual", 122, 32);
  });
}

}  // namespace vorel::inventory
