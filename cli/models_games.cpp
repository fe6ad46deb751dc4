#include "cli/models.h"

#include "games/juegos_n.h"

namespace vorel::cli {

std::vector<CliModel> gamesModels() {
  using namespace games;
  return {
      entry<JuegosNFields>("juegosn", "Juegos_n", "", exchange, check, solveAndReport),
  };
}

}  // namespace vorel::cli
