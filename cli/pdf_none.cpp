#include "cli/pdf.h"

namespace vorel::cli {

bool writePdf(const Report&, const Chart&, const std::string&, std::string& error) {
  error = "Esta versión de vorel-report se construyó sin la biblioteca gráfica: no puede escribir PDF.";
  return false;
}

}  // namespace vorel::cli
