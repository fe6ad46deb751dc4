#include "quality/control_defectos_screens.h"

#include "frame/gui/table_screen.h"

namespace vorel::quality {

namespace {
const std::string kEntry = "ControlCal_NDef";
const std::string kC = "ControlCal_NDef_Sol";
const std::string kU = "ControlCal_NDef_Sol1";
}  // namespace

DefectosEntry::DefectosEntry()
    : ControlEntry(kEntry, "Control por Número de Defectos", {}, "Titulo1", "Problema1") {
  addOptions("Tamaño muestral constante", "Tamaño muestral variable");
  Nmuestras_ = addField("Nmuestras", "Número de muestras", "Número de muestras");
  TMuestra_ = addField("TMuestra", "Tamaño de la muestra", "Tamaño de la muestra constante");
  addRediseñar(1);
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
  table_.read(f.K, f.r, f.N, {&f.Lblk, &f.Lblr, &f.Lbln});
  return f;
}

void DefectosEntry::setFields(const DefectosFields& f) {
  titleField()->setText(QString::fromStdString(f.Titulo1));
  Nmuestras_->setText(QString::fromStdString(f.Nmuestras));
  writeOptions(Option1_, Option2_, f.Option1, f.Option2);
  TMuestra_->setText(QString::fromStdString(f.TMuestra));
  Labelr_->setVisible(f.Labelr);
  labelrn_->setVisible(f.labelrn);
  table_.write(f.K, f.r, f.N, {&f.Lblk, &f.Lblr, &f.Lbln});
  gui::fitToTable(*this);
}

void DefectosEntry::resolver() {
  if (tell(check(fields()))) showSolution(Option2_->isChecked() ? kU : kC);
}

void registerDefectosScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(kEntry, [] { return new DefectosEntry(); });
  screens.add(kC, [] {
    return new OptionChartSolution<DefectosEntry>(kEntry, kC,
                                                  "Gráfico c. Tamaño muestral constante", false);
  });
  screens.add(kU, [] {
    return new OptionChartSolution<DefectosEntry>(kEntry, kU, "Gráfico u. Tamaño muestral variable",
                                                  true);
  });
}

}  // namespace vorel::quality
