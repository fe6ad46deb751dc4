#include "cli/models.h"
#include "location_equipment/costes_totales.h"
#include "location_equipment/selec_van.h"

namespace vorel::cli {

std::vector<CliModel> locationEquipmentModels() {
  using namespace location_equipment;
  return {
      entry<VanFields>("van", "Selec_Van", "", exchange, check, solveAndReport),
      entry<CostesTotalesFields>("costes-totales", "Select_C_Totales", "", exchange, check,
                                 solveAndReport),
  };
}

}  // namespace vorel::cli
