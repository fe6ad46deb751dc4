#include "cli/models.h"
#include "quality/control_atributos.h"
#include "quality/control_defectos.h"
#include "quality/control_variables.h"

namespace vorel::cli {

std::vector<CliModel> qualityModels() {
  using namespace quality;
  return {
      entry<VariablesFields>("control-variables", "ControlCal_V", "", exchange, check,
                             [](VariablesFields& f) { return solveAndReport(f, Grafico::Medias); }),
      entry<AtributosFields>("control-atributos", "ControlCal_AtribP", "", exchange, check,
                             solveAndReport),
      entry<DefectosFields>("control-defectos", "ControlCal_NDef", "", exchange, check,
                            solveAndReport),
  };
}

// Resolver shows the means chart; the other two open from it, after its
// activation has taken the samples outside the limits out of the entry.
std::vector<CliChart> qualityCharts() {
  using namespace quality;
  return {
      {"control-variables", "", "el gráfico de medias (ControlCal_V_Sol)", {}},
      {"control-variables", "desviaciones",
       "el de desviaciones típicas (ControlCal_V_Sol2), abierto desde el de medias",
       [](const std::string& path) {
         return runFromFile<VariablesFields>(path, exchange, check, [](VariablesFields& f) {
           return solveAndReport(f, Grafico::Desviaciones);
         });
       }},
      {"control-variables", "recorridos",
       "el de recorridos (ControlCal_V_Sol3), abierto desde el de medias",
       [](const std::string& path) {
         return runFromFile<VariablesFields>(path, exchange, check, [](VariablesFields& f) {
           return solveAndReport(f, Grafico::Recorridos);
         });
       }},
      {"control-atributos", "", "el gráfico p o el np, según la opción del fichero", {}},
      {"control-defectos",
       "",
       "el gráfico c (tamaño constante) o el u (variable), según la opción del fichero",
       {}},
  };
}

}  // namespace vorel::cli
