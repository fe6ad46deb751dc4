#include "quality/control_defectos_screens.h"

#include "frame/gui/table_screen.h"

namespace vorel::quality {

namespace {
const std::string kEntry = "ControlCal_NDef";
const std::string kC = "ControlCal_NDef_Sol";
const std::string kU = "ControlCal_NDef_Sol1";
}  // namespace

DefectosEntry::DefectosEntry()
    : ModelEntry(kEntry, "Control por Número de Defectos", {}, "Titulo1", "Problema1") {
  Option1_ = option(*this, "Option1", "Tamaño muestral constante");
  Option2_ = option(*this, "Option2", "Tamaño muestral variable");
  Nmuestras_ = addField("Nmuestras", "Número de muestras", "Número de muestras");
  TMuestra_ = addField("TMuestra", "Tamaño de la muestra", "Tamaño de la muestra constante");
  auto* reshape = gui::redesignButton(
      *this,
      [this] {
        edit([](DefectosFields& f) {
          rediseñar(f);
          return Messages{};
        });
      },
      "Rediseñar", "Rediseñar");
  fieldGrid()->addWidget(reshape, gui::gridRow(fieldGrid(), Nmuestras_), 2);
  fieldGrid()->setColumnStretch(3, 1);
  for (auto [button, second] : {std::pair{Option1_, false}, std::pair{Option2_, true}})
    connect(button, &QRadioButton::clicked, this, [this, second] {
      edit([second](DefectosFields& f) {
        optionClick(f, second);
        return Messages{};
      });
    });
  table_.create(*this, body(), "r", "N", "Lblr", "rk", "Lbln", "nk");
  labelrn_ =
      legend(this, body(), table_.frame, "labelrn", "rk: Número de defectos   nk: Tamaño muestral");
  Labelr_ = legend(this, body(), table_.frame, "Labelr", "rk: Número de defectos");
  setFields(DefectosFields{});
}

DefectosFields DefectosEntry::fields() const {
  DefectosFields f;
  f.Titulo1 = titleField()->text().toStdString();
  f.Nmuestras = Nmuestras_->text().toStdString();
  f.Option1 = Option1_->isChecked();
  f.Option2 = Option2_->isChecked();
  f.TMuestra = TMuestra_->text().toStdString();
  f.Labelr = !Labelr_->isHidden();
  f.labelrn = !labelrn_->isHidden();
  for (int i = 0; i < kMaxMuestras; ++i) {
    const auto at = std::size_t(i);
    f.K[at] = !table_.K(i)->isHidden();
    f.r[at] = gui::readCell(table_.first(i));
    f.N[at] = gui::readCell(table_.second(i));
  }
  readVisible(table_.Lblk, f.Lblk.data());
  readVisible(table_.headFirst, f.Lblr.data());
  readVisible(table_.headSecond, f.Lbln.data());
  return f;
}

void DefectosEntry::setFields(const DefectosFields& f) {
  titleField()->setText(QString::fromStdString(f.Titulo1));
  Nmuestras_->setText(QString::fromStdString(f.Nmuestras));
  Option1_->setAutoExclusive(false);
  Option2_->setAutoExclusive(false);
  Option1_->setChecked(f.Option1);
  Option2_->setChecked(f.Option2);
  Option1_->setAutoExclusive(true);
  Option2_->setAutoExclusive(true);
  TMuestra_->setText(QString::fromStdString(f.TMuestra));
  Labelr_->setVisible(f.Labelr);
  labelrn_->setVisible(f.labelrn);
  for (int i = 0; i < kMaxMuestras; ++i) {
    const auto at = std::size_t(i);
    table_.K(i)->setVisible(f.K[at]);
    gui::writeCell(table_.first(i), f.r[at]);
    gui::writeCell(table_.second(i), f.N[at]);
  }
  writeVisible(table_.Lblk, f.Lblk.data());
  writeVisible(table_.headFirst, f.Lblr.data());
  writeVisible(table_.headSecond, f.Lbln.data());
  gui::fitToTable(*this);
}

void DefectosEntry::resolver() {
  if (tell(check(fields()))) showSolution(Option2_->isChecked() ? kU : kC);
}

DefectosSolution::DefectosSolution(bool variable)
    : ControlSolution(variable ? kU : kC, variable ? "Gráfico u. Tamaño muestral variable"
                                                   : "Gráfico c. Tamaño muestral constante"),
      variable_(variable) {
  state_ = &screen_;
}

Pages DefectosSolution::compute() {
  auto& entrada = *dynamic_cast<DefectosEntry*>(gui::Screens::instance().load(kEntry));
  DefectosFields f = entrada.fields();
  Painted painted;
  try {
    painted = activate(variable_, f, screen_);
  } catch (...) {
    entrada.setFields(f);  // the samples taken out before the error stay out
    throw;
  }
  entrada.setFields(f);
  showCommands();
  return {painted.report, printout(variable_, f, screen_), painted.chart};
}

void DefectosSolution::recalcular() {
  auto& entrada = *dynamic_cast<DefectosEntry*>(gui::Screens::instance().load(kEntry));
  DefectosFields f = entrada.fields();
  Painted painted;
  try {
    painted = quality::recalcular(variable_, f, screen_);
  } catch (...) {
    entrada.setFields(f);
    throw;
  }
  entrada.setFields(f);
  show(painted, printout(variable_, f, screen_));
}

void registerDefectosScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(kEntry, [] { return new DefectosEntry(); });
  screens.add(kC, [] { return new DefectosSolution(false); });
  screens.add(kU, [] { return new DefectosSolution(true); });
}

}  // namespace vorel::quality
