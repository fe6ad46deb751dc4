#include "cli/models.h"

namespace vorel::cli {

std::vector<CliModel> productivityModels() {
  return {};
}

}  // namespace vorel::cli
