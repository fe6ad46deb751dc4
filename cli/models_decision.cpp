#include "cli/models.h"
#include "decision/electra1.h"
#include "decision/electra2.h"
#include "decision/incertidumbre.h"
#include "decision/riesgo.h"

namespace vorel::cli {

std::vector<CliModel> decisionModels() {
  using namespace decision;
  return {
      // The screen report of incertidumbre is the Wald page, the one painted at
      // activation; --print gives the printed page with every criterion.
      entry<IncertidumbreFields>("incertidumbre", "DecisionIncertidumbre", "", exchange, check,
                                 solveAndReport),
      entry<Electra1Fields>("electra1", "DecisionElectra1", "", exchange, check, solveAndReport),
      // The screen report of riesgo is its first page, simple dominance.
      entry<RiesgoFields>("riesgo", "DecisionRiesgoNobayesiano", "", exchange, check,
                          solveAndReport),
      entry<Electra2Fields>("electra2", "DecisionElectra2", "", exchange, check, solveAndReport),
  };
}

}  // namespace vorel::cli
