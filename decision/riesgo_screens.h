// The screens of decisions under risk: DecisionRiesgoNobayesiano, where the
// payoff table is typed with the states' probabilities in the row below the
// last alternative, and DecisionRiesgoNobayesiano_solucion, whose report is
// three pages browsed with arrow buttons, both drawn from their description
// (decision/decision_forms.h).
#pragma once

namespace vorel::decision {

void registerRiesgoScreens();

}  // namespace vorel::decision
