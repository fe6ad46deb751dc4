// Writing a printed page as a PDF file, where the desktop library is built.
#pragma once

#include <string>

#include "frame/report.h"

namespace vorel::cli {

// False with a reason in `error` when the page could not be written.
bool writePdf(const Report& page, const std::string& path, std::string& error);

}  // namespace vorel::cli
