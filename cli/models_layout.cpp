#include "cli/models.h"

namespace vorel::cli {

std::vector<CliModel> layoutModels() {
  return {};
}

}  // namespace vorel::cli
