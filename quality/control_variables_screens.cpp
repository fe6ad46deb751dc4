#include "quality/control_variables_screens.h"

#include "frame/arith.h"
#include "frame/gui/picture_button.h"
#include "frame/gui/table_screen.h"

namespace vorel::quality {

namespace {
const std::string kEntry = "ControlCal_V";
const char* const kSolutions[] = {"ControlCal_V_Sol", "ControlCal_V_Sol2", "ControlCal_V_Sol3"};
}  // namespace

VariablesEntry::VariablesEntry()
    : ControlEntry(kEntry, "Control por Variables. Control de Medias.", {}, "Titulo1",
                   "Problema1") {
  auto* question = new QLabel("¿Qué desea obtener?:", this);
  question->setStyleSheet("font-weight: 600; color: #4A5568;");
  fieldGrid()->addWidget(question, 0, 0, 1, 3);
  addOptions("Gráfico de Medias junto con Desviaciones Típicas",
             "Gráfico de Medias junto con Recorridos");
  Nmuestras_ = addField("Nmuestras", "Número de  muestras", "Numero de muestras");
  Tmuestras_ = addField("Tmuestras", "Tamaño de las muestras", "Tamaño de esas muestras");
  addRediseñar(2);
  table_.create(*this, body(), "M", "S", "LblM", "Mk", "LblS", "Sk", "LblR", "Rk");
  LblMkRk_ = legend(this, body(), table_.frame, "LblMkRk",
                    "Mk: Medias muestrales    Rk: Recorridos medios muestrales");
  LblMkSk_ = legend(this, body(), table_.frame, "LblMkSk",
                    "Mk: Medias muestrales    Sk: Desviaciones típicas");
  setFields(VariablesFields{});
}

void VariablesEntry::nuevo() {
  ModelEntry::nuevo();
  titleField()->setFocus();
}

VariablesFields VariablesEntry::fields() const {
  VariablesFields f;
  f.Titulo1 = titleField()->text().toStdString();
  f.Option1 = Option1_->isChecked();
  f.Option2 = Option2_->isChecked();
  f.Nmuestras = Nmuestras_->text().toStdString();
  f.Tmuestras = Tmuestras_->text().toStdString();
  f.LblMkRk = !LblMkRk_->isHidden();
  f.LblMkSk = !LblMkSk_->isHidden();
  table_.read(f.K, f.M, f.S, {&f.Lblk, &f.LblM, &f.LblS, &f.LblR});
  return f;
}

void VariablesEntry::setFields(const VariablesFields& f) {
  titleField()->setText(QString::fromStdString(f.Titulo1));
  writeOptions(Option1_, Option2_, f.Option1, f.Option2);
  Nmuestras_->setText(QString::fromStdString(f.Nmuestras));
  Tmuestras_->setText(QString::fromStdString(f.Tmuestras));
  LblMkRk_->setVisible(f.LblMkRk);
  LblMkSk_->setVisible(f.LblMkSk);
  table_.write(f.K, f.M, f.S, {&f.Lblk, &f.LblM, &f.LblS, &f.LblR});
  gui::fitToTable(*this);
}

VariablesSolution::VariablesSolution(Grafico g)
    : ControlSolution(kSolutions[int(g)], g == Grafico::Medias ? "Gráfico de Medias"
                                          : g == Grafico::Desviaciones
                                              ? "Gráfico de Desviaciones Típicas"
                                              : "Gráfico de Recorridos"),
      g_(g) {
  state_ = &screen_;
  // Redibujar: on the means chart it shows a screen that was never set.
  auto* redibujar = command(
      "Redibujar", "cmd-resolver", "Redibujar",
      [g] {
        if (g == Grafico::Medias) vorel::raise(err::ObjectNotSet);
      },
      40);
  placeCommand(redibujar);
  if (g == Grafico::Medias) {
    // Each opens its chart in place of this one.
    auto opens = [this](const char* control, const char* caption, int chart) {
      return command(
          control, "cmd-forward", caption,
          [this, chart] {
            gui::Screens::instance().hide(name());
            gui::Screens::instance().show(kSolutions[chart]);
          },
          40);
    };
    ControlDesviaciones_ = opens("ControlDesviaciones", "Control de Desviaciones Típicas", 1);
    ControlRecorridos_ = opens("ControlRecorridos", "Control de Recorridos", 2);
    placeCommand(ControlRecorridos_);
    placeCommand(ControlDesviaciones_);
    // volver hides both before going back to the entry.
    if (auto* volver = findChild<QAbstractButton*>("volver"))
      connect(volver, &QAbstractButton::clicked, this, [this] {
        setShown(ControlDesviaciones_, false);
        setShown(ControlRecorridos_, false);
      });
  }
}

void VariablesSolution::showButtons() {
  showCommands();
  if (ControlDesviaciones_) {
    setShown(ControlDesviaciones_, screen_.ControlDesviaciones);
    setShown(ControlRecorridos_, screen_.ControlRecorridos);
  }
}

Pages VariablesSolution::compute() {
  const auto [painted, f] = onEntry<VariablesEntry>(
      kEntry, [this](VariablesFields& in) { return activate(g_, in, screen_, selecVanTitulo1()); });
  showButtons();
  return {painted.report, printout(g_, f, screen_), painted.chart};
}

void VariablesSolution::recalcular() {
  const auto [painted, f] = onEntry<VariablesEntry>(kEntry, [this](VariablesFields& in) {
    return quality::recalcular(g_, in, screen_, selecVanTitulo1());
  });
  show(painted, printout(g_, f, screen_));
  showButtons();
}

void VariablesSolution::imprimir() {
  // The charts of deviations and ranges call on a printer dialog that was never set.
  if (g_ != Grafico::Medias) vorel::raise(err::ObjectNotSet);
  ChartSolutionScreen::imprimir();
}

void registerVariablesScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(kEntry, [] { return new VariablesEntry(); });
  screens.add(kSolutions[0], [] { return new VariablesSolution(Grafico::Medias); });
  screens.add(kSolutions[1], [] { return new VariablesSolution(Grafico::Desviaciones); });
  screens.add(kSolutions[2], [] { return new VariablesSolution(Grafico::Recorridos); });
}

}  // namespace vorel::quality
