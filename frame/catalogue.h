// The catalogue of models: each model registers itself once, beside its code,
// with its short id, its entry screen and how to run it from a problem file.
// The desktop program, the command-line program and the tests all read it; the
// list of every model lives in app/models.def.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "frame/model.h"
#include "frame/navigation.h"

namespace vorel {

struct CatalogueEntry {
  std::string id;       // short, lower-case, ASCII: "cep"; its examples are examples/<id>/
  std::string screen;   // the entry screen: "GI_CantidadEconómicaPedido"
  // Commands pressed before Resolver in a file run, by control name parted by
  // ", " ("EstPuras, EstMixtas"): --help lists them, the screen tests press them.
  std::string presses;
  std::function<RunOutcome(const std::string& path)> run;      // see runFromFile
  std::function<std::string(const std::string& path)> resave;  // see vorel::resave
  std::string helpPage() const { return nav::helpPage(screen); }
};

// The entry of a model whose file run is abrir, Resolver's checks and the
// solution screen's activation.
template <class Fields>
CatalogueEntry catalogued(std::string id, std::string screen, std::string presses,
                          void (*exchange)(ProblemFile&, Fields&), Messages (*check)(const Fields&),
                          Pages (*solveAndReport)(Fields&)) {
  return {std::move(id), std::move(screen), std::move(presses),
          [=](const std::string& path) {
            return runFromFile<Fields>(path, exchange, check, solveAndReport);
          },
          [=](const std::string& path) { return resave<Fields>(path, exchange); }};
}

// Every model, in the order of app/models.def.
const std::vector<CatalogueEntry>& catalogue();
const CatalogueEntry* findModel(const std::string& idOrScreen);

}  // namespace vorel
