#include "cli/models.h"

#include "inventory/eoq.h"
#include "inventory/mrp.h"

namespace vorel::cli {

std::vector<CliModel> inventoryModels() {
  using namespace inventory;
  return {
      entry<EoqFields>("cep", "GI_CantidadEconómicaPedido", "", exchange, check, solveAndReport),
      entry<MrpFields>("mrp", "GI_MRP", "", exchange, check, solveAndReport),
  };
}

}  // namespace vorel::cli
