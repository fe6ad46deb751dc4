// Feeds arbitrary problem files to every model. The first byte picks the model
// from the command-line catalogue; the rest is the file, read as abrir reads
// it, then checked, solved (with the step budget of methods that may never
// end), reported and printed. The system's messages and the platform's
// run-time errors are the only acceptable ends.
// With VOREL_FUZZ_MODEL=<id> every input goes to that one model, so a long run
// can give each model its share; the first byte is then ignored.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "frame/arith.h"
#include "frame/catalogue.h"

namespace {

// With VOREL_FUZZ_COUNTS set, the executions of each model are told at exit.
struct Counts {
  std::vector<std::string> ids;
  std::vector<long> runs;
  ~Counts() {
    if (!std::getenv("VOREL_FUZZ_COUNTS")) return;
    for (std::size_t i = 0; i < runs.size(); ++i)
      if (runs[i] > 0) std::fprintf(stderr, "model %s: %ld\n", ids[i].c_str(), runs[i]);
  }
} counts;

// The model named by VOREL_FUZZ_MODEL, or -1 to let the first byte choose.
long fixedModel() {
  static const long fixed = [] {
    const char* id = std::getenv("VOREL_FUZZ_MODEL");
    if (!id) return -1L;
    const auto& models = vorel::catalogue();
    for (std::size_t i = 0; i < models.size(); ++i)
      if (models[i].id == id) return static_cast<long>(i);
    std::fprintf(stderr, "VOREL_FUZZ_MODEL: no model %s\n", id);
    std::exit(2);
  }();
  return fixed;
}

const std::string& scratchFile() {
  static const std::string path = "/dev/shm/vorel-fuzz-" + std::to_string(getpid()) + ".txt";
  return path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace vorel;
  if (size == 0) return 0;
  const auto& models = catalogue();
  const std::size_t pick =
      fixedModel() >= 0 ? static_cast<std::size_t>(fixedModel()) : data[0] % models.size();
  const CatalogueEntry& model = models[pick];
  if (counts.runs.empty()) {
    for (const CatalogueEntry& m : models) counts.ids.push_back(m.id);
    counts.runs.resize(models.size());
    fileRunStepBudget() = 20'000;  // a cycling method is found as surely, and sooner
  }
  ++counts.runs[pick];
  {
    std::ofstream out(scratchFile(), std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data) + 1, static_cast<std::streamsize>(size - 1));
  }
  try {
    RunOutcome outcome = model.run(scratchFile());
    renderText(outcome.pages.screen);
    renderText(outcome.pages.page);
  } catch (const RuntimeError&) {
  } catch (const DoesNotEnd&) {
  }
  return 0;
}
