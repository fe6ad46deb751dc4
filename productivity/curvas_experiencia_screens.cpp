#include "productivity/curvas_experiencia_screens.h"

#include "frame/gui/described_chart.h"
#include "productivity/curvas_experiencia_form.h"

namespace vorel::productivity {

void registerExperienciaScreens() { gui::registerDescribedChartScreens(experienciaForm()); }

}  // namespace vorel::productivity
