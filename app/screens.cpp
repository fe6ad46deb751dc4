// Every screen of the program: the frame's menus and each model's screens, in
// the order of models.def.
#include "frame/gui/menus.h"
#include "frame/gui/screen.h"

#define VOREL_MODEL(subsystem, name, screens) \
  namespace vorel::subsystem {                \
  void screens();                             \
  }
#include "app/models.def"
#undef VOREL_MODEL

namespace vorel::gui {

void registerAllScreens() {
  registerMenuScreens();
#define VOREL_MODEL(subsystem, name, screens) subsystem::screens();
#include "app/models.def"
#undef VOREL_MODEL
}

}  // namespace vorel::gui
