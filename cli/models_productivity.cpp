#include "cli/models.h"
#include "productivity/curvas_experiencia.h"

namespace vorel::cli {

std::vector<CliModel> productivityModels() {
  using namespace productivity;
  return {
      entry<ExperienciaFields>("curvas-experiencia", "C_Experiencia", "", exchange, check,
                               solveAndReport),
  };
}

}  // namespace vorel::cli
