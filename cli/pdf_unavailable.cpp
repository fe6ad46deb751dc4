// --pdf where this program can neither write PDF nor hand over to vorel-pdf:
// the WebAssembly build run by node has no display library and starts no
// other process. It says so before reading any file and ends with status 2.
#include <cstdlib>
#include <iostream>

#include "cli/pdf.h"

namespace vorel::cli {

namespace {
constexpr const char* unavailable =
    "--pdf no está disponible en esta versión de vorel-report (WebAssembly): use --print para "
    "la página impresa, o el vorel-report del programa de escritorio para el PDF.";
}

void handOverPdf(char**) {
  std::cerr << unavailable << "\n";
  std::exit(2);
}

bool writePdf(const Pages&, const std::string&, std::string& error) {
  error = unavailable;
  return false;
}

}  // namespace vorel::cli
