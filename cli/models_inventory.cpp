#include "cli/models.h"
#include "inventory/cep_descuento.h"
#include "inventory/cep_gradual.h"
#include "inventory/cep_ruptura.h"
#include "inventory/eoq.h"

namespace vorel::cli {

std::vector<CliModel> inventoryModels() {
  using namespace inventory;
  return {
      entry<EoqFields>("cep", "GI_CantidadEconómicaPedido", "", exchange, check, solveAndReport),
      entry<GradualFields>("cep-gradual", "GI_CEPGradual", "", exchange, check, solveAndReport),
      entry<RupturaFields>("cep-ruptura", "GI_CEPRuptura", "", exchange, check, solveAndReport),
      entry<DescuentoFields>("cep-descuento", "GI_CEPDescuento", "", exchange, check,
                             solveAndReport),
  };
}

}  // namespace vorel::cli
