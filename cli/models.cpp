#include "cli/models.h"

namespace vorel::cli {

const std::vector<CliModel>& models() {
  static const std::vector<CliModel> all = [] {
    std::vector<CliModel> list;
    for (auto part : {linearProgrammingModels, decisionModels, gamesModels, queueingModels, inventoryModels, locationEquipmentModels, qualityModels, productivityModels, layoutModels})
      for (CliModel& m : part()) list.push_back(std::move(m));
    return list;
  }();
  return all;
}

const std::vector<CliChart>& charts() {
  static const std::vector<CliChart> all = qualityCharts();
  return all;
}

const CliModel* findModel(const std::string& idOrScreen) {
  for (const CliModel& m : models())
    if (m.id == idOrScreen || m.screen == idOrScreen) return &m;
  return nullptr;
}

}  // namespace vorel::cli
