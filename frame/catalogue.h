// The catalogue of models: each model registers itself once, beside its code,
// with its short id, its entry screen and how to run it from a problem file.
// The desktop program, the command-line program and the tests all read it; the
// list of every model lives in app/models.def.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "frame/form.h"
#include "frame/model.h"
#include "frame/navigation.h"

namespace vorel {

// Another solution screen that a file run can report in place of the one
// Resolver shows (vorel-report --grafico NAME): the control charts that open
// from the means chart.
struct CatalogueView {
  std::string name, help;
  std::function<RunOutcome(const std::string& path)> run;
  // The run-time error that Imprimir on that screen raises before printing
  // anything; 0 when it prints.
  int printError = 0;
};

struct CatalogueEntry {
  std::string id;      // short, lower-case, ASCII: "cep"; its examples are examples/<id>/
  std::string screen;  // the entry screen: "GI_CantidadEconómicaPedido"
  // Commands pressed before Resolver in a file run, by control name parted by
  // ", " ("EstPuras, EstMixtas"): --help lists them, the screen tests press them.
  std::string presses;
  std::function<RunOutcome(const std::string& path)> run;      // see runFromFile
  std::function<std::string(const std::string& path)> resave;  // see vorel::resave
  // Where Resolver may show one of several charts: which one run() reports,
  // and the others a file run can ask for.
  std::string solutionHelp;
  std::vector<CatalogueView> views;
  // A fresh live form of its entry screen, its screens described as data
  // (frame/form.h).
  std::function<std::unique_ptr<EntryForm>()> form;
  std::string helpPage() const { return nav::helpPage(screen); }
};

// The entry of a model whose file run is abrir, Resolver's checks and the
// solution screen's activation.
template <class Fields>
CatalogueEntry catalogued(std::string id, std::string screen, std::string presses,
                          void (*exchange)(ProblemFile&, Fields&), Messages (*check)(const Fields&),
                          Pages (*solveAndReport)(Fields&)) {
  CatalogueEntry entry;
  entry.id = std::move(id);
  entry.screen = std::move(screen);
  entry.presses = std::move(presses);
  entry.run = [=](const std::string& path) {
    return runFromFile<Fields>(path, exchange, check, solveAndReport);
  };
  entry.resave = [=](const std::string& path) { return resave<Fields>(path, exchange); };
  return entry;
}

// The entry of a model whose screens are described as data.
template <class Fields>
CatalogueEntry catalogued(std::string id, const Form<Fields>& form, std::string presses = "") {
  CatalogueEntry entry =
      catalogued<Fields>(std::move(id), form.entry.name, std::move(presses), form.model.exchange,
                         form.model.check, form.model.solveAndReport);
  entry.form = liveForm(form);
  return entry;
}

// Every model, in the order of app/models.def.
const std::vector<CatalogueEntry>& catalogue();
const CatalogueEntry* findModel(const std::string& idOrScreen);
// A fresh live form of an entry screen, or null where no model has it.
std::unique_ptr<EntryForm> newEntryForm(const std::string& screen);

}  // namespace vorel
