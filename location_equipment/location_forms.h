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
// Its solution is the screen of two options; costesTresSolution() is the
// screen of three, which solves the same fields.
const Form<CostesTotalesFields>& costesTotalesForm();
const ui::Description& costesTresSolution();

}  // namespace vorel::location_equipment
