// The printed page as a PDF file. vorel-report itself links no display
// library: for --pdf it hands the whole command line over to vorel-pdf, the
// same program built with the desktop library, which writes the file.
#pragma once

#include <string>

#include "frame/model.h"

namespace vorel::cli {

// Replaces this process with vorel-pdf (beside this program, or where it is
// installed) when this build cannot write PDF itself; returns where it can,
// or where vorel-pdf is not to be found. A build that can do neither (the
// WebAssembly one) says so on stderr and exits with status 2.
void handOverPdf(char** argv);

// Writes the printed page, and its chart if it has one. False with a reason
// in `error` when the page could not be written.
bool writePdf(const Pages& pages, const std::string& path, std::string& error);

}  // namespace vorel::cli
