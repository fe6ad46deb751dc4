// The screens of control by attributes: the entry ControlCal_AtribP, the p
// chart ControlCAl_AtribP_Sol and the np chart ControlCal_AtribNP_Sol.
#pragma once

#include "quality/control_atributos.h"
#include "quality/control_screens.h"

namespace vorel::quality {

class AtributosEntry : public gui::ModelEntry<AtributosFields> {
  Q_OBJECT
 public:
  AtributosEntry();
  AtributosFields fields() const override;
  void setFields(const AtributosFields& f) override;

 protected:
  void nuevo(AtributosFields& f) override { quality::nuevo(f); }
  void exchange(ProblemFile& file, AtributosFields& f) override { quality::exchange(file, f); }
  Messages check(const AtributosFields& f) override { return quality::check(f); }
  void resolver() override;

 private:
  QRadioButton *Option1_, *Option2_;
  QLineEdit *Nmuestras_, *NPTMuestra_;
  QLabel *Label5_, *Label6_, *Labelr_, *labelrn_;
  SampleTable table_;  // K, r, tamano; heads Lblk, Lblr, Lbltamano
};

class AtributosSolution : public ControlSolution {
  Q_OBJECT
 public:
  explicit AtributosSolution(bool np);

 protected:
  Pages compute() override;
  void recalcular() override;

 private:
  bool np_;
  ControlScreen screen_;
};

void registerAtributosScreens();

}  // namespace vorel::quality
