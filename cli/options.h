// The command line of vorel-report: options may stand anywhere among the
// model and the files.
#pragma once

#include <string>
#include <vector>

namespace vorel::cli {

struct Options {
  bool list = false, help = false, print = false, chart = false;
  bool chartJson = false;  // --chart-json: the chart as the browser reads it
  std::string pdf;         // --pdf OUT
  std::string grafico;     // --grafico NAME: another chart of the model
  std::string model;
  std::vector<std::string> files;
  bool bad = false;  // an unknown option, or --pdf without its file
  // A model, at least one file, at most one of --print, --chart, --chart-json
  // and --pdf, and
  // --pdf only with exactly one file.
  bool valid() const {
    return !bad && !model.empty() && !files.empty() && (pdf.empty() || files.size() == 1) &&
           (print + chart + chartJson + !pdf.empty() <= 1);
  }
};

// "--" ends the options: what follows is a model or a file even if it starts with "-".
Options parseOptions(int argc, const char* const* argv);

}  // namespace vorel::cli
