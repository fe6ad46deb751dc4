#include "cli/models.h"
#include "games/juegos_2.h"
#include "games/juegos_3.h"
#include "games/juegos_n.h"

namespace vorel::cli {

// Juegos_2 and Juegos_3 report what their two commands computed; a file run
// presses them in this order (a message of EstPuras ends the run).
std::vector<CliModel> gamesModels() {
  using namespace games;
  return {
      entry<Juegos2Fields>("juegos2", "Juegos_2", "EstPuras, EstMixtas", exchange, check,
                           solveAndReport),
      entry<Juegos3Fields>("juegos3", "Juegos_3", "EstPuras, EstMixtas", exchange, check,
                           solveAndReport),
      entry<JuegosNFields>("juegosn", "Juegos_n", "", exchange, check, solveAndReport),
  };
}

}  // namespace vorel::cli
