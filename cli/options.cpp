#include "cli/options.h"

namespace vorel::cli {

Options parseOptions(int argc, const char* const* argv) {
  Options o;
  bool optionsEnded = false;
  auto positional = [&o](const std::string& word) {
    if (o.model.empty())
      o.model = word;
    else
      o.files.push_back(word);
  };
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (optionsEnded || word.empty() || word[0] != '-' || word == "-") {
      positional(word);
    } else if (word == "--") {
      optionsEnded = true;
    } else if (word == "--list") {
      o.list = true;
    } else if (word == "--help" || word == "-h") {
      o.help = true;
    } else if (word == "--print") {
      o.print = true;
    } else if (word == "--chart") {
      o.chart = true;
    } else if (word == "--chart-json") {
      o.chartJson = true;
    } else if (word == "--grafico" && i + 1 < argc) {
      o.grafico = argv[++i];
    } else if (word == "--pdf" && i + 1 < argc) {
      o.pdf = argv[++i];
    } else if (word.rfind("--pdf=", 0) == 0 && word.size() > 6) {
      o.pdf = word.substr(6);
    } else {
      o.bad = true;
    }
  }
  return o;
}

}  // namespace vorel::cli
