// The entry and solution screens of the order-quantity models as data: their
// titles, introductory texts and labelled fields.
#pragma once

#include "frame/form.h"
#include "inventory/cep_descuento.h"
#include "inventory/cep_gradual.h"
#include "inventory/cep_ruptura.h"
#include "inventory/eoq.h"

namespace vorel::inventory {

const Form<EoqFields>& eoqForm();
const Form<GradualFields>& gradualForm();
const Form<RupturaFields>& rupturaForm();
// The fields above the table of cost intervals, which its screen draws itself.
const Form<DescuentoFields>& descuentoForm();

}  // namespace vorel::inventory
