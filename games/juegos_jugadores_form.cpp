#include "games/juegos_jugadores_form.h"

#include "frame/checks.h"

namespace vorel::games {

namespace {

// The panels show what the commands printed on them, and the cells that the
// shown panel of EstPuras lists stand apart; nuevo, which hides the panel,
// sets every cell back.
template <class P>
void pintar(P& p) {
  p.SPuras = renderText(p.estado.EquilibriosPuras.lineas);
  p.SMixtas = renderText(p.estado.EquilibriosMixtas.lineas);
  for (std::size_t c = 0; c < p.estado.Puro.size(); ++c)
    p.Resaltada[c] = p.estado.EquilibriosPuras.visible && p.estado.Puro[c] == 1;
}

template <class P>
void nuevoP(P& p) {
  nuevo(p.campos, p.estado);
  pintar(p);
}
template <class P>
Pages solveAndReportP(P& p) {
  return {report(p.campos, p.estado), printout(p.campos, p.estado)};
}
template <class P>
Messages estPurasP(P& p) {
  Messages m = estPuras(p.campos, p.estado);
  pintar(p);
  return m;
}
template <class P>
Messages estMixtasP(P& p) {
  Messages m = estMixtas(p.campos, p.estado);
  pintar(p);
  return m;
}

ui::Command orden(const char* name, const char* caption) { return ui::editCommand(name, caption); }

// `J` players: a row of the table for each choice of decisions, in the order
// of the report, with a column of payoffs for each player; below it the two
// commands, each beside the panel it prints on.
template <std::size_t J, class P>
Form<P> construir(const std::string& screen, const std::string& heading, const std::string& intro,
                  const std::array<const char*, kCeldas<J>>& nombres) {
  Form<P> form;
  form.entry = ui::fieldEntry(screen, heading, intro, "Titulo1", "Problema1", {});
  form.bindings.push_back({"Titulo1", [](P& p) { return &p.campos.Titulo1; }});
  auto& controls = form.entry.controls;
  controls.push_back(control(ui::ControlKind::Label, "", J == 2 ? "(J1,J2)" : "(J1,J2,J3)", 1, 0, 0));
  for (std::size_t j = 0; j < J; ++j) {
    ui::Control head = control(ui::ControlKind::Label, "", "J" + std::to_string(j + 1), 1, 0,
                               int(j) + 1);
    head.width = 72;
    controls.push_back(head);
  }
  for (std::size_t c = 0; c < kCeldas<J>; ++c) {
    std::string decisiones;
    for (std::size_t j = 0; j < J; ++j)
      decisiones += (j ? ", Decisión " : "Decisión ") + std::to_string(decision(c, j));
    const int row = int(c) + 1;
    controls.push_back(control(ui::ControlKind::Label, "", decisiones, 1, row, 0));
    for (std::size_t j = 0; j < J; ++j) {
      const std::string name = element(nombres[c], int(j));
      ui::Control cell = control(ui::ControlKind::Cell, name, "", 1, row, int(j) + 1);
      cell.width = 72;
      controls.push_back(cell);
      form.bindings.push_back({name, [c, j](P& p) { return &(*p.campos.celdas()[c])[j]; }, {}, {}, {}, {}, {}, {},
                               [c](P& p) { return &p.Resaltada[c]; }});
    }
  }
  // Each command beside the panel it prints on; a panel shows once its
  // command has run.
  const struct {
    const char *orden, *caption, *panel;
    Panel EstadoPuro<J>::*marco;
    std::string P::*texto;
    int lines;
  } mandos[] = {
      {"EstPuras", "Equilibrios en Estrategias Puras", "SPuras", &EstadoPuro<J>::EquilibriosPuras,
       &P::SPuras, J == 2 ? 4 : 8},
      {"EstMixtas", "Equilibrios en Estrategias Mixtas", "SMixtas",
       &EstadoPuro<J>::EquilibriosMixtas, &P::SMixtas, J == 2 ? 8 : 6},
  };
  int row = 0;
  for (const auto& m : mandos) {
    ui::Control panel = control(ui::ControlKind::ReportBox, m.panel, "", 0, row, 0);
    row += 2;
    panel.width = 40;
    panel.height = m.lines;
    panel.visible = false;
    controls.push_back(panel);
    form.bindings.push_back({m.panel, [texto = m.texto](P& p) { return &(p.*texto); },
                             [marco = m.marco](P& p) { return &(p.estado.*marco).visible; }});
    form.entry.commands.insert(form.entry.commands.end() - 4, orden(m.orden, m.caption));
  }
  form.edits = {{"EstPuras", estPurasP<P>}, {"EstMixtas", estMixtasP<P>}};
  form.solution = ui::reportSolution(nav::findScreen(screen)->solutions.front(), heading, 90,
                                     J == 2 ? 34 : 44);
  form.model = {nuevo, exchange, check, solveAndReport};
  return form;
}

}  // namespace

void exchange(ProblemFile& file, Juegos2Pantalla& p) { exchange(file, p.campos); }
void exchange(ProblemFile& file, Juegos3Pantalla& p) { exchange(file, p.campos); }
void nuevo(Juegos2Pantalla& p) { nuevoP(p); }
void nuevo(Juegos3Pantalla& p) { nuevoP(p); }
Messages check(const Juegos2Pantalla& p) { return resolver(p.estado.Calculado); }
Messages check(const Juegos3Pantalla& p) { return resolver(p.estado.Calculado); }
Pages solveAndReport(Juegos2Pantalla& p) { return solveAndReportP(p); }
Pages solveAndReport(Juegos3Pantalla& p) { return solveAndReportP(p); }

const Form<Juegos2Pantalla>& juegos2Form() {
  static const Form<Juegos2Pantalla> form = construir<2, Juegos2Pantalla>(
      "Juegos_2", "Juegos con 2 jugadores",
      "Se determinan los equilibrios existentes, tanto en estrategias puras como en estrategias "
      "mixtas, para juegos de 2 jugadores con 2 estrategias (2x2). ",
      {"E1", "E2", "E3", "E4"});
  return form;
}

const Form<Juegos3Pantalla>& juegos3Form() {
  static const Form<Juegos3Pantalla> form = construir<3, Juegos3Pantalla>(
      "Juegos_3", "Juegos con 3 jugadores",
      "Se determinan los equilibrios existentes, tanto en estrategias puras como en estrategias "
      "mixtas para juegos de 3 jugadores con 2 estrategias (3x2).",
      {"E1", "E2", "E3", "E4", "E11", "E21", "E31", "E41"});
  return form;
}

}  // namespace vorel::games
