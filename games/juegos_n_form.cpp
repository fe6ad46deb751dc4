#include "games/juegos_n_form.h"

namespace vorel::games {

namespace {

using F = JuegosNFields;

// A number of strategies: its caption, then the list "1" to "8".
void numero(Form<F>& form, int row, const std::string& name, const std::string& caption,
            const std::string& toolTip, int F::*member) {
  ui::Control label = control(ui::ControlKind::Label, "", caption, 0, row, 0);
  label.buddy = name;
  form.entry.controls.push_back(label);
  ui::Control list = control(ui::ControlKind::Selector, name, "", 0, row, 1);
  for (int n = 1; n <= kMaxEstrategias; ++n) list.items.push_back(std::to_string(n));
  list.toolTip = toolTip;
  list.width = 64;
  form.entry.controls.push_back(list);
  form.bindings.push_back({name, {}, {}, [member](F& f) { return &(f.*member); }});
}

Messages rediseñarTabla(F& f) {
  rediseñar(f);
  return {};
}

Form<F> construir() {
  Form<F> form;
  form.entry = ui::fieldEntry(
      "Juegos_n", "Juegos con n estrategias",
      "En este caso se resolverán juegos de suma constante obteniéndo únicamente equilibrios en "
      "estrategias puras a través del maximin y el minimax. Para obtener equilibrios en "
      "estrategias mixtas deberemos recurrir a programación lineal.",
      "Título", "Problema 1", {});
  // This screen knows its volver by the name of its picture.
  for (ui::Command& c : form.entry.chrome)
    if (c.action == ui::Action::Volver) c.name = "Image5";
  form.bindings.push_back(textOf("Título", &F::Título));
  numero(form, 0, "NDecA", "Estrategias del Jugador 1",
         "Número de decisiones que puede tomar Jugador 1", &F::NDecA);
  numero(form, 1, "NDecB", "Estrategias del Jugador 2",
         "Número de Decisiones que puede tomar Jugador 2", &F::NDecB);
  form.entry.commands.insert(form.entry.commands.begin(),
                             ui::editCommand("Rediseñar", "Rediseñar tabla", "",
                                             "Ajusta la tabla al número de decisiones deseadas"));
  form.edits.push_back({"Rediseñar", rediseñarTabla});

  // The table: player 1's strategies A down the rows, player 2's B across.
  // The row of head A(k-1) holds the array Ak, its element i under the head
  // B(i), so that Tabla(a, b) stands in row "A a+1", column "B b+1".
  auto& controls = form.entry.controls;
  controls.push_back(control(ui::ControlKind::Label, "", "Jugador 2", 1, -1, 0));
  controls.push_back(control(ui::ControlKind::Label, "", "Jugador 1", 1, 0, 0));
  for (int i = 0; i < kMaxEstrategias; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const std::string b = "B(" + std::to_string(i) + ")";
    ui::Control head = control(ui::ControlKind::Label, b, "B" + std::to_string(i + 1), 1, 0, i + 1);
    head.width = 64;
    controls.push_back(head);
    form.bindings.push_back({b, {}, [at](F& f) { return &f.B[at]; }});
  }
  for (int k = 1; k <= kMaxEstrategias; ++k) {
    const auto at = static_cast<std::size_t>(k - 1);
    const std::string a = "A(" + std::to_string(k - 1) + ")";
    controls.push_back(control(ui::ControlKind::Label, a, "A" + std::to_string(k), 1, k, 0));
    form.bindings.push_back({a, {}, [at](F& f) { return &f.A[at]; }});
    for (int i = 0; i < kMaxEstrategias; ++i) {
      const auto el = static_cast<std::size_t>(i);
      const std::string name = "A" + std::to_string(k) + "(" + std::to_string(i) + ")";
      ui::Control cell = control(ui::ControlKind::Cell, name, "", 1, k, i + 1);
      cell.width = 64;
      controls.push_back(cell);
      form.bindings.push_back({name, [k, el](F& f) { return &f.array(k)[el].text; },
                               [k, el](F& f) { return &f.array(k)[el].visible; }});
    }
  }
  form.solution = ui::reportSolution("Juegos_n_solucion", "Juego con n estrategias", 84, 32);
  form.model = {nuevo, exchange, check, solveAndReport};
  return form;
}

}  // namespace

const Form<F>& juegosNForm() {
  static const Form<F> form = construir();
  return form;
}

}  // namespace vorel::games
