// Writing a printed page as a PDF file, where the desktop library is built.
#pragma once

#include <string>

#include "frame/chart.h"
#include "frame/report.h"

namespace vorel::cli {

// False with a reason in `error` when the page could not be written. A page
// with a chart has it painted where Imprimir paints it.
bool writePdf(const Report& page, const Chart& chart, const std::string& path,
              std::string& error);

}  // namespace vorel::cli
