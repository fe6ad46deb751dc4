// The net present value screens: Selec_Van, where the two investments are
// typed year by year, and its solution Selec_Van_Solucion, which Resolver
// shows beside the entry screen.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>
#include <string>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "location_equipment/selec_van.h"

namespace vorel::location_equipment {

class VanEntry : public gui::ModelEntry<VanFields> {
  Q_OBJECT
 public:
  VanEntry();
  VanFields fields() const override;
  void setFields(const VanFields& f) override;

 private:
  void rediseñar();

  gui::TextBindings<VanFields> bindings_;
  QComboBox* NVarA_;
  QComboBox* NVarB_;
  std::array<gui::ControlArray<QLineEdit>, 2> AX_;  // AX1 and AX2
  gui::ControlArray<QLabel> LblAño_;
};

class VanSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  VanSolution();

 protected:
  Pages compute() override;
};

// The title typed on Selec_Van (its Titulo1), which other screens' reports
// also carry; reading it loads Selec_Van if it is not loaded, as reading
// another form's control does.
std::string selecVanTitulo1();

void registerVanScreens();

}  // namespace vorel::location_equipment
