// The entry and solution screens of the decision models as data. Decisions
// under uncertainty and under risk share the payoff table (states across,
// alternatives down) and a report in pages browsed with arrows; the two
// ELECTRE models share the table of valuations (criteria down, alternatives
// and then the weights across, the heads in their back colours).
#pragma once

#include "decision/electra1.h"
#include "decision/electra2.h"
#include "decision/incertidumbre.h"
#include "decision/riesgo.h"
#include "frame/form.h"

namespace vorel::decision {

const Form<IncertidumbreFields>& incertidumbreForm();
const Form<RiesgoFields>& riesgoForm();
const Form<Electra1Fields>& electra1Form();
const Form<Electra2Fields>& electra2Form();

}  // namespace vorel::decision
