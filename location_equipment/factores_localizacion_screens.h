// The factor rating's screens: Localizacion_PF, where each factor has a row
// with its weight and the score of every location, and its solution
// Localizacion_PF_Solucion.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "location_equipment/factores_localizacion.h"

namespace vorel::location_equipment {

class FactoresLocalizacionEntry : public gui::ModelEntry<FactoresLocalizacionFields> {
  Q_OBJECT
 public:
  FactoresLocalizacionEntry();
  FactoresLocalizacionFields fields() const override;
  void setFields(const FactoresLocalizacionFields& f) override;

 private:
  void rediseñarTabla();

  gui::TextBindings<FactoresLocalizacionFields> bindings_;
  QComboBox* NFactL_;
  QComboBox* NLoc_;
  gui::ControlArray<QLineEdit> flocaliz_, Q1_;
  std::array<gui::ControlArray<QLineEdit>, kMaxFactoresPF> f_;  // f_[k - 1] is the array fk
  gui::ControlArray<QLabel> L_;
  std::array<QLabel*, 5> Puntuaciones_{};  // Puntuaciones2 to Puntuaciones6
};

class FactoresLocalizacionSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  FactoresLocalizacionSolution();

 protected:
  Pages compute() override;
};

void registerFactoresLocalizacionScreens();

}  // namespace vorel::location_equipment
