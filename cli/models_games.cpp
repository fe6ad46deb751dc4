#include "cli/models.h"

namespace vorel::cli {

std::vector<CliModel> gamesModels() {
  return {};
}

}  // namespace vorel::cli
