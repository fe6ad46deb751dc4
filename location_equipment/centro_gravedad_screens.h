// The centre of gravity's screens: Localizacion_CG, where the locations are
// typed one per row, and its solution Localizacion_CG_Solucion.
#pragma once

#include <QComboBox>
#include <QLineEdit>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "location_equipment/centro_gravedad.h"

namespace vorel::location_equipment {

class CentroGravedadEntry : public gui::ModelEntry<CentroGravedadFields> {
  Q_OBJECT
 public:
  CentroGravedadEntry();
  CentroGravedadFields fields() const override;
  void setFields(const CentroGravedadFields& f) override;

 private:
  void rediseñarTabla();

  gui::TextBindings<CentroGravedadFields> bindings_;
  QComboBox* NLoc_;
  gui::ControlArray<QLineEdit> localiz_, X_, Y_, Q_;
};

class CentroGravedadSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  CentroGravedadSolution();

 protected:
  Pages compute() override;
};

void registerCentroGravedadScreens();

}  // namespace vorel::location_equipment
