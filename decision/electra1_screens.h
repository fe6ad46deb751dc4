// The ELECTRE I screens: DecisionElectra1, where the table of valuations is
// typed (criteria in rows, alternatives in columns, the weights in the column
// after the last alternative), and its solution DecisionElectra1_solucion.
#pragma once

#include "decision/electra1.h"
#include "decision/valoraciones_screens.h"
#include "frame/gui/model_screens.h"

namespace vorel::decision {

class Electra1Entry : public ValoracionesEntry<Electra1Fields> {
  Q_OBJECT
 public:
  Electra1Entry();
};

class Electra1Solution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  Electra1Solution();

 protected:
  Pages compute() override;
  // The page comes from the results of the last activation and the entry
  // screen's texts as they stand.
  void imprimir() override;

 private:
  Electra1Results results_;
};

void registerElectra1Screens();

}  // namespace vorel::decision
