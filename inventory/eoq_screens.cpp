#include "inventory/eoq_screens.h"

namespace vorel::inventory {

EoqEntry::EoqEntry()
    : ModelEntry("GI_CantidadEconómicaPedido", "Cantidad Económica de Pedido",
                 "El modelo de cantidad económica de pedido simple se basa en el cálculo de la "
                 "demanda que minimiza el coste total de inventario",
                 "Titulo1", "Problema1") {
  bindings_.bind(&EoqFields::Titulo1, titleField());
  bindings_.bind(&EoqFields::D, addField("D", "Demanda Anual (D)"));
  bindings_.bind(&EoqFields::E, addField("E", "Coste de Emisión de cada pedido (E)"));
  bindings_.bind(&EoqFields::A, addField("A", "Coste de Almacenamiento por unidad y año (A)"));
  bindings_.bind(&EoqFields::TS, addField("TS", "Tiempo de suministro (en días)"));
  bindings_.bind(&EoqFields::dias, addField("dias", "Período de Gestión (días laborables al año)"));
  bindings_.bind(&EoqFields::P, addField("P", "Coste unitario del artículo"));
}

EoqFields EoqEntry::fields() const {
  EoqFields f;
  bindings_.read(f);
  return f;
}

void EoqEntry::setFields(const EoqFields& f) { bindings_.write(f); }

EoqSolution::EoqSolution()
    : SolutionScreen("GI_CantidadEconómicaPedido_Solución", "Cantidad Económica de Pedido", 96,
                     24) {}

Pages EoqSolution::compute() {
  EoqFields f = entry<EoqEntry>().fields();
  return solveAndReport(f);
}

void registerScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("GI_CantidadEconómicaPedido", [] { return new EoqEntry(); });
  screens.add("GI_CantidadEconómicaPedido_Solución", [] { return new EoqSolution(); });
}

}  // namespace vorel::inventory
