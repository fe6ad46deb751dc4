#include "quality/control_atributos_screens.h"

#include "frame/gui/table_screen.h"

namespace vorel::quality {

namespace {
const std::string kEntry = "ControlCal_AtribP";
const std::string kP = "ControlCAl_AtribP_Sol";
const std::string kNP = "ControlCal_AtribNP_Sol";
}  // namespace

AtributosEntry::AtributosEntry()
    : ControlEntry(kEntry, "Control por Atributos", {}, "Titulo1", "Problema1") {
  addOptions("Gráfico p", "Gráfico np");
  Nmuestras_ = addField("Nmuestras", "Número de muestras", "Número de muestras");
  NPTMuestra_ = addField("NPTMuestra", "Tamaño de la muestra", "Tamaño de la muestra constante");
  const int row = gui::gridRow(fieldGrid(), NPTMuestra_);
  Label5_ = qobject_cast<QLabel*>(fieldGrid()->itemAtPosition(row, 0)->widget());
  Label5_->setObjectName("Label5");
  Label6_ = new QLabel("(constante, para el gráfico np)", this);
  Label6_->setObjectName("Label6");
  Label6_->setStyleSheet("color: #4A5568;");
  fieldGrid()->addWidget(Label6_, row, 2);
  addRediseñar(1);
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
  table_.read(f.K, f.r, f.tamano, {&f.Lblk, &f.Lblr, &f.Lbltamano});
  return f;
}

void AtributosEntry::setFields(const AtributosFields& f) {
  titleField()->setText(QString::fromStdString(f.Titulo1));
  Nmuestras_->setText(QString::fromStdString(f.Nmuestras));
  writeOptions(Option1_, Option2_, f.Option1, f.Option2);
  Label5_->setVisible(f.Label5);
  Label6_->setVisible(f.Label6);
  gui::writeCell(NPTMuestra_, f.NPTMuestra);
  Labelr_->setVisible(f.Labelr);
  labelrn_->setVisible(f.labelrn);
  table_.write(f.K, f.r, f.tamano, {&f.Lblk, &f.Lblr, &f.Lbltamano});
  gui::fitToTable(*this);
}

void AtributosEntry::resolver() {
  if (tell(check(fields()))) showSolution(Option2_->isChecked() ? kNP : kP);
}

void registerAtributosScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(kEntry, [] { return new AtributosEntry(); });
  screens.add(
      kP, [] { return new OptionChartSolution<AtributosEntry>(kEntry, kP, "Gráfico p", false); });
  screens.add(
      kNP, [] { return new OptionChartSolution<AtributosEntry>(kEntry, kNP, "Gráfico np", true); });
}

}  // namespace vorel::quality
