#include "linear_programming/transportes_form.h"

#include "frame/checks.h"
#include "linear_programming/table_form.h"

namespace vorel::linear_programming {

namespace {

using ui::ControlKind;
using F = TransportesFields;

// The shipments found, or the degenerate first solution that sends the screen
// back to the entry.
class TransportesSolucion : public Solution {
 public:
  TransportesSolucion(const F& f, long stepBudget) {
    const TransportesResults r = solve(f, stepBudget);
    if (r.degenerada)
      refusal_ = {{kTransportesDegenerada, ""}};
    else
      pages_ = {report(f, r), printout(f, r)};
  }
};

Form<F> build() {
  using ui::control;
  constexpr int kWidth = 84;
  Form<F> form;
  form.entry = ui::fieldEntry("PL_Transportes", kTransportesCaption, kTransportesIntro, "Título",
                              "Problema 1", {});
  form.bindings.push_back(textOf("Título", &F::Título));

  auto& d = form.entry;
  tabla::addSelector(d, 0, 0, "NumOrigen", "Orígenes", tabla::numbers(kTransportesMax),
                     "Número de Orígenes");
  tabla::addSelector(d, 1, 0, "NumDestino", "Destinos", tabla::numbers(kTransportesMax),
                     "Número de Destinos");
  form.bindings.push_back(tabla::indexOf("NumOrigen", &F::NumOrigen));
  form.bindings.push_back(tabla::indexOf("NumDestino", &F::NumDestino));
  d.commands.push_back(tabla::rediseñarTabla());
  form.edits.push_back({"RediseñarTabla", rediseñar});

  // The table: origins down the rows and the demands after them; destinations
  // across and the supplies after them. The headings' captions move with the
  // shape, so they are bound as the cells are.
  const F presets;
  auto heading = [&](std::string name, const TransportesLabel& preset, int row, int column,
                     auto at) {
    d.controls.push_back(control(ControlKind::Label, name, preset.caption, 1, row, column,
                                 row == 0 ? kWidth : 0));
    form.bindings.push_back({name, [at](F& f) { return &at(f).caption; },
                             [at](F& f) { return &at(f).visible; }});
  };
  for (int j = 0; j < kTransportesArrays; ++j)
    heading(element("LblDestino", j), presets.LblDestino[j], 0, j + 1,
            [j](F& f) -> TransportesLabel& { return f.LblDestino[j]; });
  for (int i = 0; i < kTransportesArrays; ++i) {
    heading(element("LblOrigen", i), presets.LblOrigen[i], i + 1, 0,
            [i](F& f) -> TransportesLabel& { return f.LblOrigen[i]; });
    for (int j = 0; j < kTransportesArrays; ++j) {
      const std::string name = element("C" + std::to_string(j + 1), i);
      d.controls.push_back(control(ControlKind::Cell, name, "", 1, i + 1, j + 1, kWidth));
      form.bindings.push_back(tabla::cellOf<F>(name, [i, j](F& f) -> Cell& { return f.C[j][i]; }));
    }
  }

  form.solution = ui::reportSolution("PL_Transportes_Solución", kTransportesCaption, 92, 40);
  form.model = {nuevo, exchange, check, nullptr};
  form.solver = [](F& f, long stepBudget) {
    return std::make_unique<TransportesSolucion>(f, stepBudget);
  };
  return form;
}

}  // namespace

const Form<TransportesFields>& transportesForm() {
  static const Form<F> form = build();
  return form;
}

}  // namespace vorel::linear_programming
