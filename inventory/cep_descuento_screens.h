// The screens of the order quantity with discounts: GI_CEPDescuento, with its
// table of cost intervals, and its solution GI_CEPDescuento_Solución.
#pragma once

#include "inventory/cep_descuento.h"
#include "inventory/pedido_screens.h"

namespace vorel::inventory {

// The entry screen: its fields, and below them the selector of intervals and
// the table, drawn from the form's description.
class DescuentoEntry : public PedidoEntry<DescuentoFields> {
 public:
  DescuentoEntry();
  void setFields(const DescuentoFields& f) override;
};

void registerDescuentoScreens();

}  // namespace vorel::inventory
