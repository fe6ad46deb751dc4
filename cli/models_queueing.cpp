#include "cli/models.h"

namespace vorel::cli {

std::vector<CliModel> queueingModels() {
  return {};
}

}  // namespace vorel::cli
