// The screens of control by attributes: the entry ControlCal_AtribP, the p
// chart ControlCAl_AtribP_Sol and the np chart ControlCal_AtribNP_Sol.
#pragma once

#include "quality/control_atributos.h"
#include "quality/control_screens.h"

namespace vorel::quality {

class AtributosEntry : public ControlEntry<AtributosFields> {
  Q_OBJECT
 public:
  AtributosEntry();
  AtributosFields fields() const override;
  void setFields(const AtributosFields& f) override;

 protected:
  void resolver() override;

 private:
  QLineEdit* NPTMuestra_;
  QLabel *Label5_, *Label6_, *Labelr_, *labelrn_;
  // table_: K, r, tamano; heads Lblk, Lblr, Lbltamano
};

void registerAtributosScreens();

}  // namespace vorel::quality
