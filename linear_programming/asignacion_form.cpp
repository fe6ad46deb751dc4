#include "linear_programming/asignacion_form.h"

#include "frame/checks.h"
#include "linear_programming/table_form.h"

namespace vorel::linear_programming {

namespace {

using ui::ControlKind;
using F = AsignacionFields;

// The kept assignments, one page at a time: each browsing command leads to
// one solution, and a page offers only the moves that exist from it.
class AsignacionSolucion : public Solution {
 public:
  explicit AsignacionSolucion(const F& f) : fields_(f), results_(solve(f)) {
    pages_ = {report(fields_, results_, 1), printout(fields_, results_)};
  }

  bool shows(std::string_view command) const override {
    const AsignacionComandos c = comandos(results_.numSoluciones, pagina_);
    return command == "volver" || (command == "forward1" && c.forward1) ||
           (command == "forward2" && c.forward2) || (command == "back2" && c.back2) ||
           (command == "Back1" && c.Back1);
  }

  bool press(std::string_view command) override {
    if (command == "volver" || !shows(command)) return false;
    pagina_ = command == "Back1" ? 1 : command == "forward2" ? 3 : 2;
    pages_.screen = report(fields_, results_, pagina_);
    return true;
  }

 private:
  const F fields_;
  const AsignacionResults results_;
  int pagina_ = 1;
};

ui::Command browse(const char* name, const char* picture, const char* toolTip) {
  return ui::browseCommand(name, picture, toolTip);
}

Messages rediseñarClick(F& f) {
  rediseñar(f);
  return {};
}

Form<F> build() {
  using ui::control;
  constexpr int kWidth = 84;
  Form<F> form;
  form.entry = ui::fieldEntry("PL_Asignación", kAsignacionCaption, "", "Título", "Problema 1", {});
  form.bindings.push_back(textOf("Título", &F::Título));

  auto& d = form.entry;
  tabla::addSelector(d, 0, 0, "NumIndividuos", "Individuos", tabla::numbers(kAsignacionMax));
  tabla::addSelector(d, 1, 0, "NumTareas", "Tareas", tabla::numbers(kAsignacionMax));
  form.bindings.push_back(tabla::indexOf("NumIndividuos", &F::NumIndividuos));
  form.bindings.push_back(tabla::indexOf("NumTareas", &F::NumTareas));
  d.commands.push_back(tabla::rediseñarTabla());
  form.edits.push_back({"RediseñarTabla", rediseñarClick});

  // The table: individuals down the rows, tasks across; the eighth row and
  // column never show but are kept in the problem file.
  for (int j = 0; j < kAsignacionMax; ++j) {
    const std::string name = element("LblTareas", j);
    d.controls.push_back(
        control(ControlKind::Label, name, asignacionHeading(true, j), 1, 0, j + 1, kWidth));
    form.bindings.push_back(tabla::shownOf<F>(name, [j](F& f) -> bool& { return f.LblTareas[j]; }));
  }
  for (int i = 0; i < kAsignacionArrays; ++i) {
    if (i < kAsignacionMax) {
      const std::string name = element("LblIndividuos", i);
      d.controls.push_back(
          control(ControlKind::Label, name, asignacionHeading(false, i), 1, i + 1, 0, kWidth));
      form.bindings.push_back(
          tabla::shownOf<F>(name, [i](F& f) -> bool& { return f.LblIndividuos[i]; }));
    }
    for (int j = 0; j < kAsignacionArrays; ++j) {
      const std::string name = element("C" + std::to_string(j + 1), i);
      d.controls.push_back(control(ControlKind::Cell, name, "", 1, i + 1, j + 1, kWidth));
      form.bindings.push_back(tabla::cellOf<F>(name, [i, j](F& f) -> Cell& { return f.C[j][i]; }));
    }
  }

  form.solution = ui::reportSolution("PL_Asignación_Solución", kAsignacionCaption, 92, 30);
  // Back steps first, then forward ones: one of each shows at most.
  form.solution.commands.insert(form.solution.commands.begin(),
                                {browse("Back1", "cmd-back", "Solución 1"),
                                 browse("back2", "cmd-back", "Solución 2"),
                                 browse("forward1", "cmd-forward", "Solución 2"),
                                 browse("forward2", "cmd-forward", "Solución 3")});
  form.model = {nuevo, exchange, check, solveAndReport};
  form.solver = [](F& f, long) { return std::make_unique<AsignacionSolucion>(f); };
  return form;
}

}  // namespace

const Form<AsignacionFields>& asignacionForm() {
  static const Form<F> form = build();
  return form;
}

}  // namespace vorel::linear_programming
