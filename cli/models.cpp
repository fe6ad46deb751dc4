#include "cli/models.h"

#include "inventory/eoq.h"

namespace vorel::cli {

const std::vector<CliModel>& models() {
  static const std::vector<CliModel> all = {
      entry<inventory::EoqFields>("cep", "GI_CantidadEconómicaPedido", "", inventory::exchange,
                                  inventory::check, inventory::solveAndReport),
  };
  return all;
}

const CliModel* findModel(const std::string& idOrScreen) {
  for (const CliModel& m : models())
    if (m.id == idOrScreen || m.screen == idOrScreen) return &m;
  return nullptr;
}

}  // namespace vorel::cli
