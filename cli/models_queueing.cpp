#include "cli/models.h"

#include "queueing/colas.h"

namespace vorel::cli {

std::vector<CliModel> queueingModels() {
  using namespace queueing;
  return {
      entry<ColasFields>("colas", "TeoriaColas", "", exchange, check, solveAndReport),
  };
}

}  // namespace vorel::cli
