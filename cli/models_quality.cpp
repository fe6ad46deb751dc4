#include "cli/models.h"

namespace vorel::cli {

std::vector<CliModel> qualityModels() {
  return {};
}

}  // namespace vorel::cli
