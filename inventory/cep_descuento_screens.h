// The screens of the order quantity with discounts: GI_CEPDescuento, with its
// table of cost intervals, and its solution GI_CEPDescuento_Solución.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "inventory/cep_descuento.h"
#include "inventory/pedido_screens.h"

namespace vorel::inventory {

class DescuentoEntry : public PedidoEntry<DescuentoFields> {
 public:
  DescuentoEntry();
  DescuentoFields fields() const override;
  void setFields(const DescuentoFields& f) override;

 private:
  QComboBox* cmbIntervalos_;
  std::array<QLabel*, kMaxIntervalos> Intervalo_{};
  std::array<std::array<QLineEdit*, 3>, kMaxIntervalos> Tabla_{};  // A1 ... D3
};

void registerDescuentoScreens();

}  // namespace vorel::inventory
