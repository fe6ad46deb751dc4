// The assignment problem's screens as data: PL_Asignación, its selectors of
// individuals and tasks, Rediseñar Tabla and the table of costs; and
// PL_Asignación_Solución, which browses up to three cheapest assignments.
#pragma once

#include "frame/form.h"
#include "linear_programming/asignacion.h"

namespace vorel::linear_programming {

const Form<AsignacionFields>& asignacionForm();

}  // namespace vorel::linear_programming
