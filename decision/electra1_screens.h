// The screens of ELECTRE I: DecisionElectra1, where the table of valuations is
// typed (criteria in rows, alternatives in columns, the weights in the column
// after the last alternative), and its solution DecisionElectra1_solucion, both
// drawn from their description (decision/decision_forms.h).
#pragma once

namespace vorel::decision {

void registerElectra1Screens();

}  // namespace vorel::decision
