// The screens of decisions under uncertainty: DecisionIncertidumbre, where the
// payoff table is typed (alternatives in rows, states of nature in columns),
// and DecisionIncertidumbre_solucion, whose report is a set of pages browsed
// with arrow buttons, both drawn from their description
// (decision/decision_forms.h).
#pragma once

namespace vorel::decision {

void registerIncertidumbreScreens();

}  // namespace vorel::decision
