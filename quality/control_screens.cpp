#include "quality/control_screens.h"

#include <QLineEdit>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "frame/checks.h"
#include "frame/gui/clipboard.h"
#include "frame/gui/described_chart.h"
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

// The entry: a block pasted runs down the samples, from one block of 15 rows
// on to the next, not down the rows on screen; so each column of cells is
// declared in the order of the samples.
template <class Fields>
class ControlEntry : public gui::DescribedEntry<Fields> {
 public:
  explicit ControlEntry(const Form<Fields>& form) : gui::DescribedEntry<Fields>(form) {
    std::vector<std::string> names;  // of the columns, in the order of the description
    for (const ui::Control& c : form.entry.controls) {
      if (c.kind != ui::ControlKind::Cell) continue;
      const std::string name = c.name.substr(0, c.name.find('('));
      if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    }
    std::vector<std::vector<QWidget*>> columns;
    QWidget* table = nullptr;
    for (const std::string& name : names) {
      columns.emplace_back();
      for (int i = 0; i < kMaxMuestras; ++i) {
        auto* cell = this->template findChild<QLineEdit*>(QString::fromStdString(element(name, i)));
        columns.back().push_back(cell);
        if (cell) table = cell->parentWidget();
      }
    }
    if (table) gui::setTableColumns(table, columns);
  }
};

template <class Fields>
void registerControl(const Form<Fields>& form, typename ControlChartScreen<Fields>::Solve solve) {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(form.entry.name, [&form] { return new ControlEntry<Fields>(form); });
  screens.add(form.solution.name,
              [&form, solve] { return new ControlChartScreen<Fields>(form.solution, solve); });
  for (const ui::Description& d : form.otherSolutions)
    screens.add(d.name, [&d, solve] { return new ControlChartScreen<Fields>(d, solve); });
}

}  // namespace

void registerVariablesScreens() {
  registerControl(variablesForm(), [](VariablesFields& f, std::string_view screen) {
    return variablesChart(f, screen, selecVanTitulo1());
  });
}

void registerAtributosScreens() { registerControl(atributosForm(), atributosChart); }

void registerDefectosScreens() { registerControl(defectosForm(), defectosChart); }

}  // namespace vorel::quality
