// The simplex method's screens as data: PL_Simplex, the sense of the
// objective, the size of the table, Rediseñar Tabla and the table of the
// programme; and PL_Simplex_Solucion, which solves in slices (the method may
// cycle for ever) and browses between two optimal solutions.
#pragma once

#include "frame/form.h"
#include "linear_programming/simplex.h"

namespace vorel::linear_programming {

const Form<SimplexFields>& simplexForm();

}  // namespace vorel::linear_programming
