#include "cli/models.h"

#include "linear_programming/asignacion.h"
#include "linear_programming/simplex.h"
#include "linear_programming/transportes.h"

namespace vorel::cli {

namespace {

// The transport problem may still refuse after the checks: a degenerate first
// solution sends the screen back to the entry with its message.
CliModel transporte() {
  using namespace linear_programming;
  return {"transporte", "PL_Transportes", "",
          [](const std::string& path) -> RunOutcome {
            TransportesFields fields;
            if (!openProblem(path, [&](ProblemFile& f) { exchange(f, fields); }))
              return {RunStatus::Unreadable, {}, {}};
            return resolver(fields, kCommandLineStepBudget);
          },
          [](const std::string& path) { return resave<TransportesFields>(path, exchange); }};
}

}  // namespace

std::vector<CliModel> linearProgrammingModels() {
  using namespace linear_programming;
  return {
      entry<SimplexFields>("simplex", "PL_Simplex", "", exchange, check, [](SimplexFields& f) {
        return solveAndReport(f, kCommandLineStepBudget);
      }),
      transporte(),
      entry<AsignacionFields>("asignacion", "PL_Asignación", "", exchange, check, solveAndReport),
  };
}

}  // namespace vorel::cli
