#include "cli/models.h"
#include "location_equipment/centro_gravedad.h"
#include "location_equipment/factores_localizacion.h"
#include "location_equipment/selec_pond.h"

namespace vorel::cli {

std::vector<CliModel> locationEquipmentModels() {
  using namespace location_equipment;
  return {
      entry<CentroGravedadFields>("centro-gravedad", "Localizacion_CG", "", exchange, check,
                                  solveAndReport),
      entry<FactoresLocalizacionFields>("localizacion-factores", "Localizacion_PF", "", exchange,
                                        check, solveAndReport),
      entry<SelecPondFields>("equipos-factores", "Selec_Pond", "", exchange, check, solveAndReport),
  };
}

}  // namespace vorel::cli
