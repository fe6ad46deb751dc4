#include "frame/live_text.h"

namespace vorel {

namespace {
LiveTextReader reader = nullptr;
}

void setLiveTextReader(LiveTextReader r) { reader = r; }

std::optional<std::string> liveText(std::string_view screen, std::string_view control) {
  return reader ? reader(screen, control) : std::nullopt;
}

}  // namespace vorel
