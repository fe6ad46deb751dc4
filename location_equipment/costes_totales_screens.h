// The total cost screens: Select_C_Totales, where two or three options are
// typed, and its solutions Select_C_Totales_Sol (two options) and
// Select_C_Totales_Sol1 (three), each with the chart of the total cost lines.
#pragma once

#include <QButtonGroup>
#include <QFrame>
#include <QRadioButton>

#include "frame/gui/chart_screen.h"
#include "frame/gui/model_screens.h"
#include "location_equipment/costes_totales.h"

namespace vorel::location_equipment {

class CostesTotalesEntry : public gui::ModelEntry<CostesTotalesFields> {
  Q_OBJECT
 public:
  CostesTotalesEntry();
  CostesTotalesFields fields() const override;
  void setFields(const CostesTotalesFields& f) override;

 protected:
  void resolver() override;  // the solution screen of two or of three options

 private:
  gui::TextBindings<CostesTotalesFields> bindings_;
  QButtonGroup* options_;
  QRadioButton* Option1_;
  QRadioButton* Option2_;
  QFrame* FrmOpcion3_;
};

class CostesDosSolution : public gui::ChartSolutionScreen {
  Q_OBJECT
 public:
  CostesDosSolution();

 protected:
  Pages compute() override;
};

class CostesTresSolution : public gui::ChartSolutionScreen {
  Q_OBJECT
 public:
  CostesTresSolution();

 protected:
  Pages compute() override;
};

void registerCostesTotalesScreens();

}  // namespace vorel::location_equipment
