#include "queueing/colas_form.h"

#include <memory>

namespace vorel::queueing {

namespace {

using ui::ControlKind;
using F = ColasFields;

// A control on the grid of fields.
ui::Control fieldControl(ControlKind kind, std::string name, std::string text, int row, int column,
                         int width = 0) {
  return ui::control(kind, std::move(name), std::move(text), 0, row, column, width);
}

// A caption naming the control `buddy`; a width breaks it at its runs of blanks.
ui::Control caption(std::string name, std::string text, std::string buddy, int row,
                    int width = 0) {
  ui::Control c = fieldControl(ControlKind::Label, std::move(name), std::move(text), row, 0, width);
  c.buddy = std::move(buddy);
  return c;
}

ui::Control box(std::string name, int row) {
  return fieldControl(ControlKind::TextBox, std::move(name), "", row, 1, 96);
}

template <int sistema>
Messages elegirSistema(F& f) {
  elegir(f, sistema);
  return {};
}

Messages elegirServicio(F& f) {
  serviciosClick(f);
  return {};
}

Messages llegada(F& f) {
  formActivate(f);
  return {};
}

Binding<F> enabledOf(std::string name, bool F::*member) {
  return {std::move(name), {}, {}, {}, {}, [member](F& f) { return &(f.*member); }};
}

Form<F> build() {
  Form<F> form;
  form.entry = ui::fieldEntry("TeoriaColas", "Teoría de Colas", "", "Título", "Problema 1", {});
  form.entry.activate = "llegada";
  auto& c = form.entry.controls;

  // The kind of system and the sizes it asks for.
  c.push_back(fieldControl(ControlKind::Label, "", "Tipo de sistema", 0, 0));
  const char* opciones[][2] = {{"ColaIlimitada", "Línea de Espera Ilimitada"},
                               {"ColaLimitada", "Línea de Espera Limitada"},
                               {"FuenteFinita", "Fuente de Entrada Finita"}};
  for (int i = 0; i < 3; ++i) {
    // No family: the fields keep the choice, so a file may leave none chosen.
    ui::Control o = fieldControl(ControlKind::Option, opciones[i][0], opciones[i][1], 1 + i, 0);
    o.edit = opciones[i][0];
    c.push_back(std::move(o));
  }
  c.push_back(caption("TamañoCola", "Tamaño        Línea de Espera", "K", 4, 80));
  c.push_back(box("K", 4));
  c.push_back(caption("Label8", "Tamaño         Fuente de entrada", "N", 5, 80));
  c.push_back(box("N", 5));

  // The distributions of the times between arrivals and between services.
  c.push_back(fieldControl(ControlKind::Label, "", "Distribuciones", 6, 0));
  c.push_back(caption("", "Distribución tiempo entre llegadas", "LLegadas", 7));
  ui::Control llegadas = fieldControl(ControlKind::ListBox, "LLegadas", "", 7, 1, 64);
  llegadas.items.assign(kLLegadas.begin(), kLLegadas.end());
  llegadas.height = 1;
  c.push_back(std::move(llegadas));
  c.push_back(caption("", "Distribución tiempo entre servicios", "Servicios", 8));
  ui::Control servicios = fieldControl(ControlKind::Selector, "Servicios", "", 8, 1, 64);
  for (const Servicio& s : kServicios) servicios.items.push_back(s.item);
  servicios.edit = "Servicios";
  c.push_back(std::move(servicios));

  // The rates, the servers and the variance.
  c.push_back(fieldControl(ControlKind::Label, "", "Parámetros", 9, 0));
  c.push_back(caption("", " Número de  Servidores", "S", 10));
  c.push_back(box("S", 10));
  c.push_back(caption("", " Tasa de Llegadas", "Lambda", 11));
  c.push_back(box("Lambda", 11));
  c.push_back(fieldControl(ControlKind::Label, "", "Accesos/unidad de           tiempo", 11, 2, 80));
  c.push_back(caption("LblNu", "Tasa de Servicios", "Nu", 12));
  c.push_back(box("Nu", 12));
  c.push_back(fieldControl(ControlKind::Label, "", "Servicios/unidad de           tiempo", 12, 2, 80));
  c.push_back(caption("LblVar", "Varianza", "VarTS", 13));
  c.push_back(box("VarTS", 13));

  // The working fields the screen keeps out of sight.
  for (const char* oculto : {"Tipo", "Estado", "Probabilidad", "DistribuciónTS", "Ro"}) {
    ui::Control o = box(oculto, 14);
    o.visible = false;
    c.push_back(std::move(o));
  }

  auto& b = form.bindings;
  b.push_back(textOf("Título", &F::Título));
  b.push_back({"S", [](F& f) { return &f.S; }, {}, {}, {}, [](F& f) { return &f.SEnabled; }});
  b.push_back({"ColaIlimitada", {}, {}, {}, [](F& f) { return &f.ColaIlimitada; }});
  b.push_back({"ColaLimitada", {}, {}, {}, [](F& f) { return &f.ColaLimitada; }});
  b.push_back({"FuenteFinita", {}, {}, {}, [](F& f) { return &f.FuenteFinita; }});
  b.push_back(enabledOf("TamañoCola", &F::TamañoColaEnabled));
  b.push_back({"K", [](F& f) { return &f.K; }, {}, {}, {}, [](F& f) { return &f.KEnabled; }});
  b.push_back(enabledOf("Label8", &F::Label8Enabled));
  b.push_back({"N", [](F& f) { return &f.N; }, {}, {}, {}, [](F& f) { return &f.NEnabled; }});
  b.push_back(textOf("Lambda", &F::Lambda));
  b.push_back(textOf("LblNu", &F::LblNu));
  b.push_back({"Nu", [](F& f) { return &f.Nu; }, {}, {}, {}, {}, [](F& f) { return &f.NuToolTip; }});
  b.push_back(enabledOf("LblVar", &F::LblVarEnabled));
  b.push_back(
      {"VarTS", [](F& f) { return &f.VarTS; }, {}, {}, {}, [](F& f) { return &f.VarTSEnabled; }});
  b.push_back({"Servicios", {}, {}, [](F& f) { return &f.Servicios; }, {},
               [](F& f) { return &f.ServiciosEnabled; }});
  b.push_back(textOf("Tipo", &F::Tipo));
  b.push_back(textOf("Estado", &F::Estado));
  b.push_back(textOf("Probabilidad", &F::Probabilidad));
  b.push_back(textOf("DistribuciónTS", &F::DistribuciónTS));
  b.push_back(textOf("Ro", &F::Ro));

  form.edits = {{"ColaIlimitada", elegirSistema<kColaIlimitada>},
                {"ColaLimitada", elegirSistema<kColaLimitada>},
                {"FuenteFinita", elegirSistema<kFuenteFinita>},
                {"Servicios", elegirServicio},
                {"llegada", llegada}};

  form.solution = ui::reportSolution("TeoriaColas_Solucion", "Teoría de Colas", 100, 36);
  for (ui::Command& command : form.solution.chrome)
    if (command.action == ui::Action::Volver) command.name = "back2";
  form.model = {nuevo, exchange, check, solveAndReport};
  // Resolver writes ρ and the model it chose into the entry's hidden fields.
  form.solver = [](F& f, long) { return std::make_unique<Solution>(solveAndReport(f)); };
  return form;
}

}  // namespace

const Form<ColasFields>& colasForm() {
  static const Form<ColasFields> form = build();
  return form;
}

}  // namespace vorel::queueing
