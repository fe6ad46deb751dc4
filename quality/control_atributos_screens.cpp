#include "quality/control_atributos_screens.h"

#include "frame/gui/table_screen.h"

namespace vorel::quality {

namespace {
const std::string kEntry = "ControlCal_AtribP";
const std::string kP = "ControlCAl_AtribP_Sol";
const std::string kNP = "ControlCal_AtribNP_Sol";
}  // namespace

AtributosEntry::AtributosEntry()
    : ModelEntry(kEntry, "Control por Atributos", {}, "Titulo1", "Problema1") {
  Option1_ = option(*this, "Option1", "Gráfico p");
  Option2_ = option(*this, "Option2", "Gráfico np");
  Nmuestras_ = addField("Nmuestras", "Número de muestras", "Número de muestras");
  NPTMuestra_ = addField("NPTMuestra", "Tamaño de la muestra", "Tamaño de la muestra constante");
  const int row = gui::gridRow(fieldGrid(), NPTMuestra_);
  Label5_ = qobject_cast<QLabel*>(fieldGrid()->itemAtPosition(row, 0)->widget());
  Label5_->setObjectName("Label5");
  Label6_ = new QLabel("(constante, para el gráfico np)", this);
  Label6_->setObjectName("Label6");
  Label6_->setStyleSheet("color: #4A5568;");
  fieldGrid()->addWidget(Label6_, row, 2);
  auto* reshape = gui::redesignButton(
      *this,
      [this] {
        edit([](AtributosFields& f) {
          rediseñar(f);
          return Messages{};
        });
      },
      "Rediseñar", "Rediseñar");
  fieldGrid()->addWidget(reshape, gui::gridRow(fieldGrid(), Nmuestras_), 2);
  fieldGrid()->setColumnStretch(3, 1);
  for (auto [button, second] : {std::pair{Option1_, false}, std::pair{Option2_, true}})
    connect(button, &QRadioButton::clicked, this, [this, second] {
      edit([second](AtributosFields& f) {
        optionClick(f, second);
        return Messages{};
      });
    });
  table_.create(*this, body(), "r", "tamano", "Lblr", "rk", "Lbltamano", "nk");
  labelrn_ = legend(this, body(), table_.frame, "labelrn",
                    "rk: Número de productos defectuosos   nk: Tamaño muestral");
  Labelr_ = legend(this, body(), table_.frame, "Labelr", "rk: Número de productos defectuosos");
  setFields(AtributosFields{});
}

AtributosFields AtributosEntry::fields() const {
  AtributosFields f;
  f.Titulo1 = titleField()->text().toStdString();
  f.Nmuestras = Nmuestras_->text().toStdString();
  f.Option1 = Option1_->isChecked();
  f.Option2 = Option2_->isChecked();
  f.Label5 = !Label5_->isHidden();
  f.Label6 = !Label6_->isHidden();
  f.NPTMuestra = gui::readCell(NPTMuestra_);
  f.Labelr = !Labelr_->isHidden();
  f.labelrn = !labelrn_->isHidden();
  for (int i = 0; i < kMaxMuestras; ++i) {
    const auto at = std::size_t(i);
    f.K[at] = !table_.K(i)->isHidden();
    f.r[at] = gui::readCell(table_.first(i));
    f.tamano[at] = gui::readCell(table_.second(i));
  }
  readVisible(table_.Lblk, f.Lblk.data());
  readVisible(table_.headFirst, f.Lblr.data());
  readVisible(table_.headSecond, f.Lbltamano.data());
  return f;
}

void AtributosEntry::setFields(const AtributosFields& f) {
  titleField()->setText(QString::fromStdString(f.Titulo1));
  Nmuestras_->setText(QString::fromStdString(f.Nmuestras));
  Option1_->setAutoExclusive(false);
  Option2_->setAutoExclusive(false);
  Option1_->setChecked(f.Option1);
  Option2_->setChecked(f.Option2);
  Option1_->setAutoExclusive(true);
  Option2_->setAutoExclusive(true);
  Label5_->setVisible(f.Label5);
  Label6_->setVisible(f.Label6);
  gui::writeCell(NPTMuestra_, f.NPTMuestra);
  Labelr_->setVisible(f.Labelr);
  labelrn_->setVisible(f.labelrn);
  for (int i = 0; i < kMaxMuestras; ++i) {
    const auto at = std::size_t(i);
    table_.K(i)->setVisible(f.K[at]);
    gui::writeCell(table_.first(i), f.r[at]);
    gui::writeCell(table_.second(i), f.tamano[at]);
  }
  writeVisible(table_.Lblk, f.Lblk.data());
  writeVisible(table_.headFirst, f.Lblr.data());
  writeVisible(table_.headSecond, f.Lbltamano.data());
  gui::fitToTable(*this);
}

void AtributosEntry::resolver() {
  if (tell(check(fields()))) showSolution(Option2_->isChecked() ? kNP : kP);
}

AtributosSolution::AtributosSolution(bool np)
    : ControlSolution(np ? kNP : kP, np ? "Gráfico np" : "Gráfico p"), np_(np) {
  state_ = &screen_;
}

Pages AtributosSolution::compute() {
  auto& entrada = *dynamic_cast<AtributosEntry*>(gui::Screens::instance().load(kEntry));
  AtributosFields f = entrada.fields();
  Painted painted;
  try {
    painted = activate(np_, f, screen_);
  } catch (...) {
    entrada.setFields(f);  // the samples taken out before the error stay out
    throw;
  }
  entrada.setFields(f);
  showCommands();
  return {painted.report, printout(np_, f, screen_), painted.chart};
}

void AtributosSolution::recalcular() {
  auto& entrada = *dynamic_cast<AtributosEntry*>(gui::Screens::instance().load(kEntry));
  AtributosFields f = entrada.fields();
  Painted painted;
  try {
    painted = quality::recalcular(np_, f, screen_);
  } catch (...) {
    entrada.setFields(f);
    throw;
  }
  entrada.setFields(f);
  show(painted, printout(np_, f, screen_));
}

void registerAtributosScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(kEntry, [] { return new AtributosEntry(); });
  screens.add(kP, [] { return new AtributosSolution(false); });
  screens.add(kNP, [] { return new AtributosSolution(true); });
}

}  // namespace vorel::quality
