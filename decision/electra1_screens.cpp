#include "decision/electra1_screens.h"

#include "frame/gui/screen.h"

namespace vorel::decision {

Electra1Entry::Electra1Entry()
    : ValoracionesEntry("DecisionElectra1", "Electra 1",
                        "Permite guiar al decisor hacia la elección de una alternativa de entre "
                        "un conjunto de ellas utilizando criterios de decisión no agregables.",
                        {{&Electra1Fields::IndiceConcordancia, "IndiceConcordancia",
                          "Límite de Concordancia", "Índice de concordancia en tanto por uno"},
                         {&Electra1Fields::IndiceDiscordancia, "IndiceDiscordancia",
                          "Límite de Discordancia", "Índice de Discordancia en tanto por uno"}}) {
  gui::renameChrome(*this, "volver", "Image6");
}

Electra1Solution::Electra1Solution()
    : SolutionScreen("DecisionElectra1_solucion", "Electra 1", 86, 52) {}

Pages Electra1Solution::compute() {
  const Electra1Fields f = entry<Electra1Entry>().fields();
  results_ = solve(f);
  return {report(f, results_), printout(f, results_)};
}

void Electra1Solution::imprimir() {
  gui::platform().printerDialog();
  gui::printReport(printout(entry<Electra1Entry>().fields(), results_));
}

void registerElectra1Screens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("DecisionElectra1", [] { return new Electra1Entry(); });
  screens.add("DecisionElectra1_solucion", [] { return new Electra1Solution(); });
}

}  // namespace vorel::decision
