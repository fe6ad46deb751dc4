// The screens of control by variables: the entry ControlCal_V and the charts
// of means (ControlCal_V_Sol), standard deviations (ControlCal_V_Sol2) and
// ranges (ControlCal_V_Sol3).
#pragma once

#include "quality/control_screens.h"
#include "quality/control_variables.h"

namespace vorel::quality {

class VariablesEntry : public ControlEntry<VariablesFields> {
  Q_OBJECT
 public:
  VariablesEntry();
  VariablesFields fields() const override;
  void setFields(const VariablesFields& f) override;

 protected:
  using ControlEntry::nuevo;
  void nuevo() override;

 private:
  QLineEdit* Tmuestras_;
  QLabel *LblMkSk_, *LblMkRk_;
  // table_: K, M, S; heads Lblk, LblM, LblS and LblR
};

class VariablesSolution : public ControlSolution {
  Q_OBJECT
 public:
  explicit VariablesSolution(Grafico g);

 protected:
  Pages compute() override;
  void recalcular() override;
  void imprimir() override;

 private:
  void showButtons();
  Grafico g_;
  VariablesScreen screen_;
  gui::PictureButton *ControlDesviaciones_ = nullptr, *ControlRecorridos_ = nullptr;
};

void registerVariablesScreens();

}  // namespace vorel::quality
