// vorel-report: solves a problem file as the desktop program would and prints
// the report of its solution screen, without opening any window.
#include <cstring>
#include <iostream>
#include <string>

#include "cli/models.h"
#include "cli/pdf.h"
#include "frame/arith.h"

namespace {

void usage(std::ostream& out) {
  out << "Uso: vorel-report --list\n"
         "     vorel-report MODELO FICHERO [--print | --chart | --pdf SALIDA.pdf] [--grafico G]\n\n"
         "Lee FICHERO como lo abre la pantalla de entrada del MODELO, aplica las\n"
         "comprobaciones de Resolver e imprime el informe de la pantalla de solución.\n"
         "  --print     imprime la página impresa en lugar del informe de pantalla\n"
         "  --chart     imprime los datos del gráfico (nada si el modelo no tiene gráfico)\n"
         "  --pdf F     escribe la página impresa como PDF en F\n"
         "  --grafico G el gráfico G de un modelo con varios (abajo)\n\n"
         "Estado de salida: 0 informe impreso; 1 comprobaciones no superadas (cada mensaje en\n"
         "una línea de stderr); 2 fichero ilegible; 3 error en tiempo de ejecución;\n"
         "4 el método no termina (la pantalla seguiría calculando sin fin).\n";
  bool any = false;
  for (const auto& m : vorel::cli::models()) {
    if (m.presses.empty()) continue;
    if (!any) out << "\nÓrdenes que se pulsan antes de Resolver:\n";
    any = true;
    out << "  " << m.id << ": " << m.presses << "\n";
  }
  out << "\nModelos con varios gráficos (sin --grafico, el que da Resolver):\n";
  for (const auto& c : vorel::cli::charts())
    out << "  " << c.model << (c.name.empty() ? "" : " --grafico " + c.name) << ": " << c.help
        << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  using namespace vorel;
  if (argc == 2 && std::strcmp(argv[1], "--list") == 0) {
    for (const auto& m : cli::models()) std::cout << m.id << "\t" << m.screen << "\n";
    return 0;
  }
  if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
    usage(std::cout);
    return 0;
  }
  bool print = false, chart = false;
  std::string pdf, grafico;
  for (int a = 3; a + 1 < argc; ++a)  // --grafico G, anywhere after the file
    if (std::strcmp(argv[a], "--grafico") == 0) {
      grafico = argv[a + 1];
      for (int b = a; b + 2 <= argc; ++b) argv[b] = argv[b + 2];
      argc -= 2;
      break;
    }
  if (argc == 4 && std::strcmp(argv[3], "--print") == 0) {
    print = true;
  } else if (argc == 4 && std::strcmp(argv[3], "--chart") == 0) {
    chart = true;
  } else if (argc == 5 && std::strcmp(argv[3], "--pdf") == 0) {
    pdf = argv[4];
  } else if (argc != 3) {
    usage(std::cerr);
    return 2;
  }
  const cli::CliModel* model = cli::findModel(argv[1]);
  if (!model) {
    std::cerr << "Modelo desconocido: " << argv[1] << " (vorel-report --list los enumera)\n";
    return 2;
  }
  const cli::CliChart* other = nullptr;
  for (const auto& c : cli::charts())
    if (!grafico.empty() && c.model == model->id && c.name == grafico) other = &c;
  if (!grafico.empty() && !other) {
    std::cerr << "Gráfico desconocido: " << grafico << " (vorel-report --help los enumera)\n";
    return 2;
  }
  try {
    RunOutcome outcome = other ? other->run(argv[2]) : model->run(argv[2]);
    switch (outcome.status) {
      case RunStatus::Unreadable:
        std::cerr << "No se pudo leer el fichero: " << argv[2] << "\n";
        return 2;
      case RunStatus::CheckFailed:
        for (const Message& m : outcome.messages) std::cerr << m.text << "\n";
        return 1;
      default:
        break;
    }
    if (!pdf.empty()) {
      std::string error;
      if (!cli::writePdf(outcome.pages.page, outcome.pages.chart, pdf, error)) {
        std::cerr << error << "\n";
        return 2;
      }
      return 0;
    }
    if (chart) {
      if (!outcome.pages.chart.empty()) std::cout << renderText(outcome.pages.chart);
      return 0;
    }
    std::cout << renderText(print ? outcome.pages.page : outcome.pages.screen);
    return 0;
  } catch (const RuntimeError& e) {
    std::cerr << "Error " << e.number() << ": " << e.what() << "\n";
    return 3;
  } catch (const DoesNotEnd&) {
    std::cerr << "El método no termina: se detuvo tras " << kCommandLineStepBudget << " pasos.\n";
    return 4;
  }
}
