#include "location_equipment/costes_totales_screens.h"

#include "frame/gui/described_chart.h"
#include "location_equipment/location_forms.h"

namespace vorel::location_equipment {

void registerCostesTotalesScreens() { gui::registerDescribedChartScreens(costesTotalesForm()); }

}  // namespace vorel::location_equipment
