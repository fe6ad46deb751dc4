// The experience curve screens: C_Experiencia, where the learning rate and
// the units are typed, and its solution C_Experiencia_Sol with the chart of
// the time of each unit.
#pragma once

#include <QCheckBox>

#include "frame/gui/chart_screen.h"
#include "frame/gui/model_screens.h"
#include "productivity/curvas_experiencia.h"

namespace vorel::productivity {

class ExperienciaEntry : public gui::ModelEntry<ExperienciaFields> {
  Q_OBJECT
 public:
  ExperienciaEntry();
  ExperienciaFields fields() const override;
  void setFields(const ExperienciaFields& f) override;

 private:
  gui::TextBindings<ExperienciaFields> bindings_;
  QCheckBox* Check1_;
  QLineEdit* MgB_;
  QLineEdit* CMdeO_;
};

class ExperienciaSolution : public gui::ChartSolutionScreen {
  Q_OBJECT
 public:
  ExperienciaSolution();

 protected:
  Pages compute() override;
};

void registerExperienciaScreens();

}  // namespace vorel::productivity
