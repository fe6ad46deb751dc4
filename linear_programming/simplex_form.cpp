#include "linear_programming/simplex_form.h"

#include "frame/checks.h"
#include "linear_programming/table_form.h"

namespace vorel::linear_programming {

namespace {

using ui::ControlKind;
using F = SimplexFields;

// The final solution and, where the optimum has an alternative, the one saved
// before the extra pivot: forward shows it, back the final one again. While
// the second shows, volver is not available.
class SimplexSolucion : public Solution {
 public:
  SimplexSolucion(const F& f, long stepBudget) : fields_(f) {
    const SimplexEnd end = solve(fields_, results_, stepBudget);
    pages_ = {report(fields_, results_, end), printout(fields_, results_)};
  }

  bool shows(std::string_view command) const override {
    if (command == "forward") return results_.forwardAvailable;
    if (command == "back") return results_.backAvailable;
    return command == "volver";  // greyed where the page withholds it (offers)
  }

  bool offers(std::string_view command) const override {
    return command != "volver" || results_.volverAvailable;
  }

  bool press(std::string_view command) override {
    if (command != "forward" && command != "back") return false;
    if (!shows(command)) return false;
    pages_.screen = command == "forward" ? forward(fields_, results_) : back(fields_, results_);
    return true;
  }

 private:
  const F fields_;
  SimplexResults results_;
};

ui::Command browse(const char* name, const char* picture, const char* toolTip) {
  return ui::browseCommand(name, picture, toolTip);
}

Messages rediseñarClick(F& f) {
  rediseñarTabla(f);
  return {};
}

Pages fileRun(F& f) { return solveAndReport(f, fileRunStepBudget()); }

std::vector<std::string> itemsOf(const auto& list) {
  return {std::begin(list), std::end(list)};
}

Form<F> build() {
  using ui::control;
  constexpr int kWidth = 76;
  Form<F> form;
  form.entry = ui::fieldEntry("PL_Simplex", kSimplexCaption, kSimplexIntro, "Título", "Problema 1", {});
  form.bindings.push_back(textOf("Título", &F::Título));

  auto& d = form.entry;
  tabla::addSelector(d, 0, 0, "funcionObjetivo", kFuncionObjetivoCaption,
                     itemsOf(kFuncionObjetivoItems), "", 140);
  tabla::addSelector(d, 1, 0, "NumFactores", kSimplexLabels[0], tabla::numbers(kSimplexMax),
                     kNumFactoresToolTip);
  tabla::addSelector(d, 2, 0, "Numrestricciones", kSimplexLabels[1], tabla::numbers(kSimplexMax),
                     kNumrestriccionesToolTip);
  form.bindings.push_back(tabla::indexOf("funcionObjetivo", &F::funcionObjetivo));
  form.bindings.push_back(tabla::indexOf("NumFactores", &F::NumFactores));
  form.bindings.push_back(tabla::indexOf("Numrestricciones", &F::Numrestricciones));
  d.commands.push_back(tabla::rediseñarTabla());
  form.edits.push_back({"RediseñarTabla", rediseñarClick});

  // The table: the objective row, a row of air, then one row per constraint;
  // the variables across, then the relation and the right-hand side.
  const int tipo = kSimplexMax + 1, existencias = kSimplexMax + 2;
  auto cell = [&](std::string name, int row, int column, auto at) {
    d.controls.push_back(control(ControlKind::Cell, name, "", 1, row, column, kWidth));
    form.bindings.push_back(tabla::cellOf<F>(std::move(name), at));
  };
  for (int j = 0; j < kSimplexMax; ++j) {
    const std::string name = element("LblFactores", j);
    d.controls.push_back(
        control(ControlKind::Label, name, "X" + std::to_string(j + 1), 1, 0, j + 1, kWidth));
    form.bindings.push_back(tabla::shownOf<F>(name, [j](F& f) -> bool& { return f.LblFactores[j]; }));
  }
  d.controls.push_back(control(ControlKind::Label, "", kSimplexLabels[3], 1, 0, tipo, 64));
  d.controls.push_back(control(ControlKind::Label, "", kSimplexLabels[4], 1, 0, existencias, kWidth));
  d.controls.push_back(control(ControlKind::Label, "", kSimplexLabels[2], 1, 1, 0));
  for (int j = 0; j < kSimplexMax; ++j)
    cell(element("X" + std::to_string(j + 1), 0), 1, j + 1,
         [j](F& f) -> Cell& { return f.X[j][0]; });
  for (int r = 1; r < kSimplexRows; ++r) {
    const int row = r + 2;
    const std::string head = element("Lblrestriccion", r - 1);
    d.controls.push_back(
        control(ControlKind::Label, head, "Restricción " + std::to_string(r), 1, row, 0));
    form.bindings.push_back(
        tabla::shownOf<F>(head, [r](F& f) -> bool& { return f.Lblrestriccion[r - 1]; }));
    for (int j = 0; j < kSimplexMax; ++j)
      cell(element("X" + std::to_string(j + 1), r), row, j + 1,
           [j, r](F& f) -> Cell& { return f.X[j][r]; });
    const std::string relation = element("restriccion", r - 1);
    ui::Control list = control(ControlKind::Selector, relation, "", 1, row, tipo, 64);
    list.items = itemsOf(kRestriccionItems);
    d.controls.push_back(std::move(list));
    form.bindings.push_back({relation, {}, [r](F& f) { return &f.restriccion[r - 1].visible; },
                             [r](F& f) { return &f.restriccion[r - 1].ListIndex; }});
    cell(element("existencias", r), row, existencias,
         [r](F& f) -> Cell& { return f.existencias[r]; });
  }

  form.solution = ui::reportSolution("PL_Simplex_Solucion", kSimplexCaption, 112, 44);
  form.solution.controls.front().name = "SolucionF";
  form.solution.commands.insert(form.solution.commands.begin(),
                                {browse("back", "cmd-back", "Solución 1"),
                                 browse("forward", "cmd-forward", "Solución 2")});
  form.model = {nuevo, exchange, check, fileRun};
  form.solver = [](F& f, long stepBudget) {
    return std::make_unique<SimplexSolucion>(f, stepBudget);
  };
  return form;
}

}  // namespace

const Form<SimplexFields>& simplexForm() {
  static const Form<F> form = build();
  return form;
}

}  // namespace vorel::linear_programming
