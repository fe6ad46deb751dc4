#include "cli/models.h"

namespace vorel::cli {

std::vector<CliModel> decisionModels() {
  return {};
}

}  // namespace vorel::cli
