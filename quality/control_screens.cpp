#include "quality/control_screens.h"

#include <functional>
#include <memory>
#include <string_view>

#include "frame/gui/described_chart.h"
#include "location_equipment/selec_van_screens.h"
#include "quality/control_forms.h"

namespace vorel::quality {

namespace {

// A chart screen: its activation and its Recalcular work on the entry
// screen's own fields, which the entry screen takes back at once, also where
// the computation ends in a run-time error: the samples taken out before it
// stay out.
template <class Fields>
class ControlChartScreen : public gui::DescribedChartSolutionBase {
 public:
  using Solve = std::function<std::unique_ptr<Solution>(Fields&, std::string_view screen)>;
  ControlChartScreen(const ui::Description& d, Solve solve)
      : DescribedChartSolutionBase(d), solve_(std::move(solve)) {}

 protected:
  std::unique_ptr<Solution> solveWith(long /*stepBudget*/) override {
    readEntry();
    std::unique_ptr<Solution> solved;
    try {
      solved = solve_(fields_, name());
    } catch (...) {
      pressed();
      throw;
    }
    pressed();
    return solved;
  }
  void readEntry() override { fields_ = entry<gui::DescribedEntry<Fields>>().fields(); }
  void pressed() override { entry<gui::DescribedEntry<Fields>>().setFields(fields_); }

 private:
  Solve solve_;
  Fields fields_;  // what the solution works on
};

template <class Fields>
void registerControl(const Form<Fields>& form, typename ControlChartScreen<Fields>::Solve solve) {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(form.entry.name, [&form] { return new gui::DescribedEntry<Fields>(form); });
  screens.add(form.solution.name,
              [&form, solve] { return new ControlChartScreen<Fields>(form.solution, solve); });
  for (const ui::Description& d : form.otherSolutions)
    screens.add(d.name, [&d, solve] { return new ControlChartScreen<Fields>(d, solve); });
}

}  // namespace

// The screen reports take their title from Selec_Van's Titulo1, loading that
// screen where it is not.
void registerVariablesScreens() {
  registerControl(variablesForm(), [](VariablesFields& f, std::string_view screen) {
    return variablesChart(f, screen, location_equipment::selecVanTitulo1());
  });
}

void registerAtributosScreens() { registerControl(atributosForm(), atributosChart); }

void registerDefectosScreens() { registerControl(defectosForm(), defectosChart); }

}  // namespace vorel::quality
