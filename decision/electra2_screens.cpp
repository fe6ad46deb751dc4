#include "decision/electra2_screens.h"

#include "frame/gui/screen.h"

namespace vorel::decision {

Electra2Entry::Electra2Entry()
    : ValoracionesEntry("DecisionElectra2", "Electra 2", {},
                        {{&Electra2Fields::IndicadorConcordancia1, "IndicadorConcordancia1",
                          "Indicador de Concordancia 1", "Índice de concordancia en tanto por uno"},
                         {&Electra2Fields::IndicadorConcordancia2, "IndicadorConcordancia2",
                          "Indicador de Concordancia 2", ""},
                         {&Electra2Fields::IndicadorConcordancia3, "IndicadorConcordancia3",
                          "Indicador de Concordancia 3", ""},
                         {&Electra2Fields::IndicadorDiscordancia1, "IndicadorDiscordancia1",
                          "Indicador de Discordancia 1", "Índice de Discordancia en tanto por uno"},
                         {&Electra2Fields::IndicadorDiscordancia2, "IndicadorDiscordancia2",
                          "Indicador de Discordancia 2", ""}}) {
  gui::renameChrome(*this, "volver", "Image6");
}

Electra2Solution::Electra2Solution()
    : SolutionScreen("DecisionElectra2_solucion", "Electra 2", 124, 36) {}

Pages Electra2Solution::compute() {
  const Electra2Fields f = entry<Electra2Entry>().fields();
  results_ = solve(f);
  return {report(f, results_), printout(f, results_)};
}

void Electra2Solution::imprimir() {
  gui::platform().printerDialog();
  gui::printReport(printout(entry<Electra2Entry>().fields(), results_));
}

void registerElectra2Screens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("DecisionElectra2", [] { return new Electra2Entry(); });
  screens.add("DecisionElectra2_solucion", [] { return new Electra2Solution(); });
}

}  // namespace vorel::decision
