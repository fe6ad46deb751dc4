// Equipment selection by weighted factors: Selec_Pond, one row per factor
// with its weight and the scores of A and B, and its solution
// Selec_Pond_Solucion.
#pragma once

#include <QComboBox>
#include <QLineEdit>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "location_equipment/selec_pond.h"

namespace vorel::location_equipment {

class SelecPondEntry : public gui::ModelEntry<SelecPondFields> {
  Q_OBJECT
 public:
  SelecPondEntry();
  SelecPondFields fields() const override;
  void setFields(const SelecPondFields& f) override;

 private:
  gui::TextBindings<SelecPondFields> bindings_;
  QComboBox* NFact_;
  gui::ControlArray<QLineEdit> factor_, Ponderaciones_, PuntuaA_, PuntuaB_;
};

class SelecPondSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  SelecPondSolution();

 protected:
  Pages compute() override;
};

void registerSelecPondScreens();

}  // namespace vorel::location_equipment
