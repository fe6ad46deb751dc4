#include "location_equipment/costes_totales_screens.h"

#include "frame/gui/described_chart.h"
#include "location_equipment/location_forms.h"

namespace vorel::location_equipment {

namespace {

using F = CostesTotalesFields;

// Resolver shows the solution screen of two options or of three.
class CostesTotalesEntry : public gui::DescribedEntry<F> {
 public:
  using DescribedEntry::DescribedEntry;

 protected:
  void resolver() override {
    const F f = fields();
    if (tell(check(f))) showSolution(solutionScreen(f));
  }
};

}  // namespace

void registerCostesTotalesScreens() {
  gui::Screens& screens = gui::Screens::instance();
  const Form<F>& form = costesTotalesForm();
  screens.add(form.entry.name, [&form] { return new CostesTotalesEntry(form); });
  screens.add(form.solution.name, [&form] { return new gui::DescribedChartSolution<F>(form); });
  screens.add(costesTresSolution().name, [&form] {
    return new gui::DescribedChartSolution<F>(form, costesTresSolution());
  });
}

}  // namespace vorel::location_equipment
