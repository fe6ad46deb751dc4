// The screens of control by number of defects: the entry ControlCal_NDef, the
// c chart ControlCal_NDef_Sol and the u chart ControlCal_NDef_Sol1.
#pragma once

#include "quality/control_defectos.h"
#include "quality/control_screens.h"

namespace vorel::quality {

class DefectosEntry : public ControlEntry<DefectosFields> {
  Q_OBJECT
 public:
  DefectosEntry();
  DefectosFields fields() const override;
  void setFields(const DefectosFields& f) override;

 protected:
  void resolver() override;

 private:
  QLineEdit* TMuestra_;
  QLabel *Labelr_, *labelrn_;
  // table_: K, r, N; heads Lblk, Lblr, Lbln
};

void registerDefectosScreens();

}  // namespace vorel::quality
