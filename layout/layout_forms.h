// The entry and solution screens of the layout models as data: their
// selectors, Rediseñar Tabla and tables of cells bound to the fields.
#pragma once

#include "frame/form.h"
#include "layout/carga_distancia.h"
#include "layout/equilibrado.h"

namespace vorel::facility {

// The routes and productions of the products, beside the table of distances.
const Form<CargaDistanciaFields>& cargaDistanciaForm();
// The activities in two tables of seven, one below the other: each
// activity's time and its immediate predecessors down its column. Its solver
// places the elements within a step budget: a cycle of precedences never ends.
const Form<EquilibradoFields>& equilibradoForm();

}  // namespace vorel::facility
