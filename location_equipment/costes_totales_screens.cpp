#include "location_equipment/costes_totales_screens.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>

namespace vorel::location_equipment {

CostesTotalesEntry::CostesTotalesEntry()
    : ModelEntry("Select_C_Totales", "Costes Totales",
                 "Compara dos o tres opciones por sus costes fijos y variables: el volumen de "
                 "producción en que se igualan sus costes totales decide la opción recomendable.",
                 "Titulo1", "Problema1") {
  bindings_.bind(&CostesTotalesFields::Titulo1, titleField());
  options_ = new QButtonGroup(this);
  auto* options = options_;
  Option1_ = new QRadioButton("Dos opciones", this);
  Option1_->setObjectName("Option1");
  Option2_ = new QRadioButton("Tres opciones", this);
  Option2_->setObjectName("Option2");
  options->addButton(Option1_);
  options->addButton(Option2_);
  const int top = fieldGrid()->rowCount();
  fieldGrid()->addWidget(Option1_, top, 0);
  fieldGrid()->addWidget(Option2_, top, 1);

  for (int o = 1; o <= 2; ++o) {
    const QString n = QString::number(o);
    bindings_.bind(o == 1 ? &CostesTotalesFields::txtCF1 : &CostesTotalesFields::txtCF2,
                   addField("txtCF" + n, "Costes Fijos de la opción " + n));
    bindings_.bind(o == 1 ? &CostesTotalesFields::txtCV1 : &CostesTotalesFields::txtCV2,
                   addField("txtCV" + n, "Costes Variables de la opción " + n));
  }
  // The third option's fields stand in their own frame, shown with Option2.
  FrmOpcion3_ = new QFrame(this);
  FrmOpcion3_->setObjectName("FrmOpcion3");
  auto* third = new QGridLayout(FrmOpcion3_);
  third->setContentsMargins(0, 0, 0, 0);
  third->setHorizontalSpacing(16);
  int row = 0;
  for (auto [name, label, member] :
       {std::tuple{"txtCF3", "Costes Fijos de la opción 3", &CostesTotalesFields::txtCF3},
        std::tuple{"txtCV3", "Costes Variables de la opción 3", &CostesTotalesFields::txtCV3}}) {
    auto* caption = new QLabel(label, FrmOpcion3_);
    caption->setStyleSheet("font-size: 10pt; color: #1A202C;");
    auto* box = new QLineEdit(FrmOpcion3_);
    box->setObjectName(name);
    box->setFixedWidth(140);
    box->setAlignment(Qt::AlignRight);
    caption->setBuddy(box);
    third->addWidget(caption, row, 0);
    third->addWidget(box, row++, 1);
    bindings_.bind(member, box);
  }
  fieldGrid()->addWidget(FrmOpcion3_, fieldGrid()->rowCount(), 0, 1, 2);
  connect(Option2_, &QRadioButton::toggled, FrmOpcion3_, &QWidget::setVisible);
  setFields(CostesTotalesFields{});
}

CostesTotalesFields CostesTotalesEntry::fields() const {
  CostesTotalesFields f;
  bindings_.read(f);
  f.Option1 = Option1_->isChecked();
  f.Option2 = Option2_->isChecked();
  return f;
}

void CostesTotalesEntry::setFields(const CostesTotalesFields& f) {
  bindings_.write(f);
  // Option buttons of one frame: setting one clears the other, and clearing
  // one may leave neither set, as on the form.
  options_->setExclusive(false);
  Option1_->setChecked(f.Option1 && !f.Option2);
  Option2_->setChecked(f.Option2);
  options_->setExclusive(true);
  FrmOpcion3_->setVisible(Option2_->isChecked());
}

void CostesTotalesEntry::resolver() {
  const CostesTotalesFields f = fields();
  if (tell(check(f))) showSolution(solutionScreen(f));
}

CostesDosSolution::CostesDosSolution()
    : ChartSolutionScreen("Select_C_Totales_Sol", "Costes Totales", 104, 14,
                          "Select_C_Totales_Sol_Imprimir") {}

Pages CostesDosSolution::compute() {
  CostesTotalesFields f = entry<CostesTotalesEntry>().fields();
  const CostesDosResults r = solveDos(f);
  return {report(f, r), printout(f, r), location_equipment::chart(f, r)};
}

CostesTresSolution::CostesTresSolution()
    : ChartSolutionScreen("Select_C_Totales_Sol1", "Costes Totales", 104, 14,
                          "Select_C_Totales_Sol1_Imprimir") {}

Pages CostesTresSolution::compute() {
  CostesTotalesFields f = entry<CostesTotalesEntry>().fields();
  const CostesTresResults r = solveTres(f);
  return {report(f, r), printout(f, r), location_equipment::chart(f, r)};
}

void registerCostesTotalesScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Select_C_Totales", [] { return new CostesTotalesEntry(); });
  screens.add("Select_C_Totales_Sol", [] { return new CostesDosSolution(); });
  screens.add("Select_C_Totales_Sol1", [] { return new CostesTresSolution(); });
}

}  // namespace vorel::location_equipment
