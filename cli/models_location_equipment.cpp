#include "cli/models.h"

namespace vorel::cli {

std::vector<CliModel> locationEquipmentModels() {
  return {};
}

}  // namespace vorel::cli
