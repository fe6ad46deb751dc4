// The models the command-line program knows, by short id and entry screen.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel::cli {

struct CliModel {
  std::string id;       // short, lower-case, ASCII: "cep"
  std::string screen;   // the entry screen's name: "GI_CantidadEconómicaPedido"
  std::string presses;  // commands pressed before Resolver, for --help; empty if none
  std::function<RunOutcome(const std::string& path)> run;
  std::function<std::string(const std::string& path)> resave;  // see vorel::resave
};

template <class Fields>
CliModel entry(std::string id, std::string screen, std::string presses,
               void (*exchange)(ProblemFile&, Fields&), Messages (*check)(const Fields&),
               Pages (*solveAndReport)(Fields&)) {
  return {std::move(id), std::move(screen), std::move(presses),
          [=](const std::string& path) {
            return runFromFile<Fields>(path, exchange, check, solveAndReport);
          },
          [=](const std::string& path) { return resave<Fields>(path, exchange); }};
}

const std::vector<CliModel>& models();

// The charts of a model with several: the one its run gives (empty `name`)
// and the others, chosen by --grafico NAME.
struct CliChart {
  std::string model, name, help;
  std::function<RunOutcome(const std::string& path)> run;  // none for the default one
};
const std::vector<CliChart>& charts();
std::vector<CliChart> qualityCharts();
// Each subsystem's models, in cli/models_<subsystem>.cpp.
std::vector<CliModel> linearProgrammingModels();
std::vector<CliModel> decisionModels();
std::vector<CliModel> gamesModels();
std::vector<CliModel> queueingModels();
std::vector<CliModel> inventoryModels();
std::vector<CliModel> locationEquipmentModels();
std::vector<CliModel> qualityModels();
std::vector<CliModel> productivityModels();
std::vector<CliModel> layoutModels();

const CliModel* findModel(const std::string& idOrScreen);

}  // namespace vorel::cli
