#include "cli/models.h"

namespace vorel::cli {

std::vector<CliModel> linearProgrammingModels() {
  return {};
}

}  // namespace vorel::cli
