// The line balancing screens: Distribucion_Equlibrado, where the activities'
// times and immediate predecessors are typed, and its solution
// Distribucion_Equilibrado_Solucion.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "layout/equilibrado.h"

namespace vorel::facility {

class EquilibradoEntry : public gui::ModelEntry<EquilibradoFields> {
  Q_OBJECT
 public:
  EquilibradoEntry();
  EquilibradoFields fields() const override;
  void setFields(const EquilibradoFields& f) override;

 private:
  void rediseñarTabla();

  gui::TextBindings<EquilibradoFields> bindings_;
  QComboBox* NumActividades_;
  std::array<gui::ControlArray<QLineEdit>, kColumnasAnteriores> C_;  // C_[k - 1] is Ck
  gui::ControlArray<QLineEdit> TiempoOperacion_;
  gui::ControlArray<QLabel> LblActividades_;
  std::array<QLabel*, 2> rotulosBloque2_{};  // "Tiempos de Operación" and the predecessors'
};

class EquilibradoSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  EquilibradoSolution();
  // Places the elements in slices of passes: precedences in a cycle never
  // end, and the window stays alive until it is closed.
  void formActivate() override;

 protected:
  Pages compute() override;

 private:
  EquilibradoResults results_;
};

void registerEquilibradoScreens();

}  // namespace vorel::facility
