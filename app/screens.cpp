// Every screen of the program: the frame's menus and chart print screens, and
// each model's screens, in the order of models.def.
#include <QLineEdit>

#include "frame/gui/chart_screen.h"
#include "frame/gui/menus.h"
#include "frame/gui/screen.h"
#include "frame/live_text.h"

#define VOREL_MODEL(subsystem, name, screens) \
  namespace vorel::subsystem {                \
  void screens();                             \
  }
#include "app/models.def"
#undef VOREL_MODEL

namespace vorel::gui {

namespace {

// Another screen's text box, as reading a control of another form does:
// the screen is loaded where it is not.
std::optional<std::string> loadedScreenText(std::string_view screen, std::string_view control) {
  Screen* s = Screens::instance().load(std::string(screen));
  auto* box = s ? s->findChild<QLineEdit*>(QString::fromUtf8(control.data(), control.size())) : nullptr;
  if (!box) return std::nullopt;
  return box->text().toStdString();
}

}  // namespace

void registerAllScreens() {
  setLiveTextReader(loadedScreenText);
  registerMenuScreens();
  registerChartPrintScreens();
#define VOREL_MODEL(subsystem, name, screens) subsystem::screens();
#include "app/models.def"
#undef VOREL_MODEL
}

}  // namespace vorel::gui
