// The ELECTRE II screens: DecisionElectra2, the ELECTRE table of valuations
// with the scale and the five indicators, and its solution
// DecisionElectra2_solucion with the three classifications.
#pragma once

#include "decision/electra2.h"
#include "decision/valoraciones_screens.h"
#include "frame/gui/model_screens.h"

namespace vorel::decision {

class Electra2Entry : public ValoracionesEntry<Electra2Fields> {
  Q_OBJECT
 public:
  Electra2Entry();
};

class Electra2Solution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  Electra2Solution();

 protected:
  Pages compute() override;
  // The page comes from the results of the last activation and the entry
  // screen's texts as they stand.
  void imprimir() override;

 private:
  Electra2Results results_;
};

void registerElectra2Screens();

}  // namespace vorel::decision
