// Every screen of the program, registered by name.
#include <QtGlobal>

#include "decision/electra1_screens.h"
#include "decision/incertidumbre_screens.h"
#include "frame/gui/chart_screen.h"
#include "frame/gui/menus.h"
#include "frame/gui/screen.h"
#include "games/juegos_n_screens.h"
#include "inventory/eoq_screens.h"
#include "linear_programming/asignacion_screens.h"
#include "linear_programming/simplex_screens.h"
#include "linear_programming/transportes_screens.h"
#include "location_equipment/costes_totales_screens.h"
#include "location_equipment/selec_van_screens.h"
#include "productivity/curvas_experiencia_screens.h"
#include "quality/control_atributos_screens.h"
#include "quality/control_defectos_screens.h"
#include "quality/control_variables_screens.h"
#include "queueing/colas_screens.h"

// The pictures live in the library's resources, which a static link must pull in.
static void initPictures() { Q_INIT_RESOURCE(vorel); }

namespace vorel::gui {

void registerAllScreens() {
  initPictures();
  registerMenuScreens();
  registerChartPrintScreens();
  inventory::registerScreens();
  linear_programming::registerSimplexScreens();
  linear_programming::registerTransportesScreens();
  linear_programming::registerAsignacionScreens();
  decision::registerElectra1Screens();
  decision::registerIncertidumbreScreens();
  games::registerJuegosNScreens();
  queueing::registerColasScreens();
  location_equipment::registerVanScreens();
  location_equipment::registerCostesTotalesScreens();
  productivity::registerExperienciaScreens();
  quality::registerVariablesScreens();
  quality::registerAtributosScreens();
  quality::registerDefectosScreens();
}

}  // namespace vorel::gui
