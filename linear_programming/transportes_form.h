// The transportation problem's screens as data: PL_Transportes, its selectors
// of origins and destinations, Rediseñar Tabla and the table of unit costs
// with the supplies and demands after them; and PL_Transportes_Solución, which
// solves in slices and refuses a degenerate first solution.
#pragma once

#include "frame/form.h"
#include "linear_programming/transportes.h"

namespace vorel::linear_programming {

const Form<TransportesFields>& transportesForm();

}  // namespace vorel::linear_programming
