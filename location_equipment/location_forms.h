// The entry and solution screens of location and equipment selection as data:
// their fields, selectors, tables, Rediseñar and, for total costs, the options
// and the chart.
#pragma once

#include "frame/form.h"
#include "location_equipment/centro_gravedad.h"
#include "location_equipment/costes_totales.h"
#include "location_equipment/factores_localizacion.h"
#include "location_equipment/selec_pond.h"
#include "location_equipment/selec_van.h"

namespace vorel::location_equipment {

const Form<CentroGravedadFields>& centroGravedadForm();
const Form<FactoresLocalizacionFields>& factoresLocalizacionForm();
const Form<SelecPondFields>& selecPondForm();
const Form<VanFields>& vanForm();
// Resolver shows the solution screen of two options or, with Tres opciones,
// the other one.
const Form<CostesTotalesFields>& costesTotalesForm();

}  // namespace vorel::location_equipment
