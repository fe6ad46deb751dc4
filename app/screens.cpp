// Every screen of the program: the frame's menus and chart print screens, and
// each model's screens, in the order of models.def.
#include "frame/gui/chart_screen.h"
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
  registerChartPrintScreens();
#define VOREL_MODEL(subsystem, name, screens) subsystem::screens();
#include "app/models.def"
#undef VOREL_MODEL
}

}  // namespace vorel::gui
