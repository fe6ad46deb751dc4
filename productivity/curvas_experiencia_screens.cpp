#include "productivity/curvas_experiencia_screens.h"

namespace vorel::productivity {

ExperienciaEntry::ExperienciaEntry()
    : ModelEntry("C_Experiencia", "Curvas de Experiencia",
                 "Con cada unidad producida el tiempo necesario para fabricar la siguiente "
                 "disminuye según la tasa de aprendizaje: calcula el tiempo de cada unidad, el "
                 "tiempo acumulado y, si se desea, el coste, el precio y el beneficio del pedido.",
                 "Titulo1", "Problema1") {
  bindings_.bind(&ExperienciaFields::Titulo1, titleField());
  bindings_.bind(&ExperienciaFields::L, addField("L", "Tasa de Aprendizaje (%)"));
  bindings_.bind(&ExperienciaFields::T1unid,
                 addField("T1unid", "Tiempo dedicado a la primera unidad (horas)"));
  bindings_.bind(&ExperienciaFields::N, addField("N", "Nº de Unidades (hasta 15)"));
  bindings_.bind(&ExperienciaFields::NAcumulado,
                 addField("NAcumulado", "Nº de Unidades para el Tiempo Total Acumulado"));
  Check1_ = new QCheckBox("Calcular el coste, el precio y el beneficio del pedido", this);
  Check1_->setObjectName("Check1");
  fieldGrid()->addWidget(Check1_, fieldGrid()->rowCount(), 0, 1, 2);
  MgB_ = addField("MgB", "Margen de Beneficio (%)");
  CMdeO_ = addField("CMdeO", "Coste de la Mano de Obra por hora");
  bindings_.bind(&ExperienciaFields::MgB, MgB_);
  bindings_.bind(&ExperienciaFields::CMdeO, CMdeO_);
  // The economic side is at hand only while Check1 is set.
  connect(Check1_, &QCheckBox::toggled, this, [this](bool set) {
    MgB_->setEnabled(set);
    CMdeO_->setEnabled(set);
  });
  setFields(ExperienciaFields{});
}

ExperienciaFields ExperienciaEntry::fields() const {
  ExperienciaFields f;
  bindings_.read(f);
  f.Check1 = Check1_->isChecked();
  return f;
}

void ExperienciaEntry::setFields(const ExperienciaFields& f) {
  bindings_.write(f);
  Check1_->setChecked(f.Check1);
  MgB_->setEnabled(f.Check1);
  CMdeO_->setEnabled(f.Check1);
}

ExperienciaSolution::ExperienciaSolution()
    : ChartSolutionScreen("C_Experiencia_Sol", "Curvas de Experiencia", 60, 34,
                          "C_Experiencia_Sol_Imprimir") {}

Pages ExperienciaSolution::compute() {
  ExperienciaFields f = entry<ExperienciaEntry>().fields();
  return solveAndReport(f);
}

void registerExperienciaScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("C_Experiencia", [] { return new ExperienciaEntry(); });
  screens.add("C_Experiencia_Sol", [] { return new ExperienciaSolution(); });
}

}  // namespace vorel::productivity
