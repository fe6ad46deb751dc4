// The text a control of another screen shows while the program runs, for a
// report that takes its title from a field of another model's entry. Each
// edition says where it reads it (the desktop's loaded screen, the browser's
// live fields); the command line has no screens, and reads none.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorel {

using LiveTextReader = std::optional<std::string> (*)(std::string_view screen,
                                                      std::string_view control);

void setLiveTextReader(LiveTextReader reader);
// None where no edition reads screens, or the screen has no such control.
std::optional<std::string> liveText(std::string_view screen, std::string_view control);

}  // namespace vorel
