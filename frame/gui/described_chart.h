// A described solution screen with a chart: the description's Chart control
// stands to the right of the report box and draws the solution's chart; its
// Imprimir prints the page's text, then paints the same chart at its
// fractions of the page, through the screen's chart print screen where the
// screen tree has one, and ends the document.
#pragma once

#include <string>

#include "frame/gui/chart_view.h"
#include "frame/gui/described_screens.h"

namespace vorel::gui {

class DescribedChartSolutionBase : public DescribedSolutionBase {
 public:
  explicit DescribedChartSolutionBase(const ui::Description& d);
  ChartView* chartView() const { return chart_; }
  // What the chart on screen and on paper draw.
  const Chart& chart() const { return data_; }

 protected:
  void draw(const Pages& pages) override;
  void imprimir() override;

 private:
  ChartView* chart_;
  Chart data_;
  std::string printScreen_;  // the chart print screen ("<screen>_Imprimir"), if any
};

// `description` is the form's solution or one of its others.
template <class Fields>
class DescribedChartSolution : public DescribedChartSolutionBase {
 public:
  explicit DescribedChartSolution(const Form<Fields>& form)
      : DescribedChartSolution(form, form.solution) {}
  DescribedChartSolution(const Form<Fields>& form, const ui::Description& description)
      : DescribedChartSolutionBase(description), form_(form) {}

 protected:
  std::unique_ptr<Solution> solveWith(long stepBudget) override {
    fields_ = entry<DescribedEntry<Fields>>().fields();
    return form_.solve(fields_, stepBudget, name());
  }

 private:
  const Form<Fields>& form_;
  Fields fields_;
};

// Registers a described model whose solution screen draws a chart.
template <class Fields>
void registerDescribedChartScreens(const Form<Fields>& form) {
  Screens& screens = Screens::instance();
  screens.add(form.entry.name, [&form] { return new DescribedEntry<Fields>(form); });
  screens.add(form.solution.name,
              [&form] { return new DescribedChartSolution<Fields>(form, form.solution); });
  for (const ui::Description& d : form.otherSolutions)
    screens.add(d.name, [&form, &d] { return new DescribedChartSolution<Fields>(form, d); });
}

}  // namespace vorel::gui
