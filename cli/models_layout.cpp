#include "cli/models.h"
#include "layout/carga_distancia.h"
#include "layout/equilibrado.h"

namespace vorel::cli {

std::vector<CliModel> layoutModels() {
  using namespace facility;
  return {
      entry<CargaDistanciaFields>("carga-distancia", "Distribucion_CargaDistancia", "", exchange,
                                  check, solveAndReport),
      entry<EquilibradoFields>("equilibrado", "Distribucion_Equlibrado", "", exchange, check,
                               solveAndReport),
  };
}

}  // namespace vorel::cli
