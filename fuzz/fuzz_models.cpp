// Feeds arbitrary problem files to every model. The first byte picks the model
// from the command-line catalogue; the rest is the file, read as abrir reads
// it, then checked, solved (with the step budget of methods that may never
// end), reported and printed. The system's messages and the platform's
// run-time errors are the only acceptable ends.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>

#include "frame/arith.h"
#include "frame/catalogue.h"

namespace {

const std::string& scratchFile() {
  static const std::string path = "/dev/shm/vorel-fuzz-" + std::to_string(getpid()) + ".txt";
  return path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace vorel;
  if (size == 0) return 0;
  const auto& models = catalogue();
  const CatalogueEntry& model = models[data[0] % models.size()];
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
