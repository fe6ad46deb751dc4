#include "cli/models.h"
#include "productivity/productividad_global.h"
#include "productivity/productividad_simple.h"

namespace vorel::cli {

std::vector<CliModel> productivityModels() {
  using namespace productivity;
  return {
      entry<ProductividadSimpleFields>("productividad-parcial", "Productividad_Simple", "",
                                       exchange, check, solveAndReport),
      entry<ProductividadGlobalFields>("productividad-global", "Productividad_Global", "", exchange,
                                       check, solveAndReport),
  };
}

}  // namespace vorel::cli
