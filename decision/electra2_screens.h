// The screens of ELECTRE II: DecisionElectra2, the table of valuations and five
// indicators, and its solution DecisionElectra2_solucion, both drawn from their
// description (decision/decision_forms.h).
#pragma once

namespace vorel::decision {

void registerElectra2Screens();

}  // namespace vorel::decision
