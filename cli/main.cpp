// vorel-report: solves problem files as the desktop program would and prints
// the report of each solution screen, without opening any window.
#include <algorithm>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "cli/options.h"
#include "cli/pdf.h"
#include "frame/arith.h"
#include "frame/catalogue.h"
#include "web/chart_json.h"

namespace {

using namespace vorel;

void usage(std::ostream& out) {
  out << "Uso: vorel-report --list\n"
         "     vorel-report MODELO FICHERO... [--print | --chart | --chart-json] [--grafico G]\n"
         "     vorel-report MODELO FICHERO --pdf SALIDA.pdf\n\n"
         "Lee cada FICHERO como lo abre la pantalla de entrada del MODELO, aplica las\n"
         "comprobaciones de Resolver e imprime el informe de la pantalla de solución.\n"
         "Con varios ficheros, cada informe va precedido de una línea «==> FICHERO <==».\n"
         "  --print     imprime la página impresa en lugar del informe de pantalla\n"
         "  --chart     imprime los datos del gráfico (nada si el modelo no tiene gráfico)\n"
         "  --chart-json los mismos datos en JSON, como los dibuja la versión web\n"
         "  --pdf F     escribe la página impresa como PDF en F (un solo fichero)\n"
         "  --grafico G el gráfico G de un modelo con varios (abajo)\n\n"
         "Estado de salida (el mayor de los ficheros): 0 informe impreso; 1 comprobaciones\n"
         "no superadas (cada mensaje en una línea de stderr); 2 fichero ilegible, PDF que no\n"
         "se pudo escribir, o gráfico que el problema no deja abrir; 3 error en tiempo de\n"
         "ejecución (también --print o --pdf de una pantalla cuyo Imprimir lo da); 4 el método\n"
         "no termina (la pantalla seguiría calculando sin fin).\n";
  bool any = false;
  for (const auto& m : catalogue()) {
    if (m.presses.empty()) continue;
    if (!any) out << "\nÓrdenes que se pulsan antes de Resolver:\n";
    any = true;
    out << "  " << m.id << ": " << m.presses << "\n";
  }
  out << "\nModelos con varios gráficos (sin --grafico, el que da Resolver):\n";
  for (const auto& m : catalogue()) {
    if (!m.solutionHelp.empty()) out << "  " << m.id << ": " << m.solutionHelp << "\n";
    for (const CatalogueView& v : m.views)
      out << "  " << m.id << " --grafico " << v.name << ": " << v.help << "\n";
  }
}

// Solves one file and prints its report; returns the exit status of that file.
// `origin` heads the messages on stderr when several files are solved.
// `printError` is the run-time error that Imprimir raises on the screen
// reported (0 when it prints): --print and --pdf end in it, with no page.
int solve(const std::function<RunOutcome(const std::string&)>& run, int printError,
          const std::string& path, const cli::Options& options, const std::string& origin) {
  try {
    RunOutcome outcome = run(path);
    switch (outcome.status) {
      case RunStatus::Unreadable:
        std::cerr << "No se pudo leer el fichero: " << path << "\n";
        return 2;
      case RunStatus::CheckFailed:
        for (const Message& m : outcome.messages) std::cerr << origin << m.text << "\n";
        return 1;
      default:
        break;
    }
    if (printError != 0 && (options.print || !options.pdf.empty())) raise(printError);
    if (!options.pdf.empty()) {
      std::string error;
      if (!cli::writePdf(outcome.pages, options.pdf, error)) {
        std::cerr << error << "\n";
        return 2;
      }
      return 0;
    }
    if (options.chartJson) {
      if (!outcome.pages.chart.empty()) std::cout << web::chartJson(outcome.pages.chart) << "\n";
      return 0;
    }
    if (options.chart) {
      if (!outcome.pages.chart.empty()) std::cout << renderText(outcome.pages.chart);
      return 0;
    }
    std::cout << renderText(options.print ? outcome.pages.page : outcome.pages.screen);
    return 0;
  } catch (const DoesNotEnd&) {
    std::cerr << origin << "El método no termina: se detuvo tras " << fileRunStepBudget()
              << " pasos.\n";
    return 4;
  } catch (const Unreachable& refusal) {
    std::cerr << origin << refusal.message << "\n";
    return 2;
  } catch (const std::exception& e) {
    const RuntimeError error = platformError(e);
    std::cerr << origin << "Error " << error.number() << ": " << error.what() << "\n";
    return 3;
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const cli::Options options = cli::parseOptions(argc, argv);
  if (options.list) {
    for (const auto& m : catalogue()) std::cout << m.id << "\t" << m.screen << "\n";
    return 0;
  }
  if (options.help) {
    usage(std::cout);
    return 0;
  }
  if (!options.valid()) {
    usage(std::cerr);
    return 2;
  }
  const CatalogueEntry* model = findModel(options.model);
  if (!model) {
    std::cerr << "Modelo desconocido: " << options.model << " (vorel-report --list los enumera)\n";
    return 2;
  }
  auto run = model->run;
  int printError = 0;
  if (!options.grafico.empty()) {
    auto view = std::find_if(model->views.begin(), model->views.end(),
                             [&](const CatalogueView& v) { return v.name == options.grafico; });
    if (view == model->views.end()) {
      std::cerr << "Gráfico desconocido: " << options.grafico
                << " (vorel-report --help los enumera)\n";
      return 2;
    }
    run = view->run;
    printError = view->printError;
  }
  if (!options.pdf.empty()) cli::handOverPdf(argv);  // returns only where this program writes PDF
  const bool several = options.files.size() > 1;
  int status = 0;
  for (const std::string& path : options.files) {
    if (several) std::cout << "==> " << path << " <==\n" << std::flush;
    status = std::max(status, solve(run, printError, path, options, several ? path + ": " : ""));
    std::cout.flush();
  }
  return status;
}
