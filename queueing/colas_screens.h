// The queueing screens: TeoriaColas, where the parameters of one queue are
// typed, and TeoriaColas_Solucion, the report of the model they choose.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>

#include "frame/gui/model_screens.h"
#include "queueing/colas.h"

namespace vorel::queueing {

class ColasEntry : public gui::ModelEntry<ColasFields> {
  Q_OBJECT
 public:
  ColasEntry();
  ColasFields fields() const override;
  void setFields(const ColasFields& f) override;
  // Each arrival fills the lists afresh and puts back the first enabling;
  // the texts stay.
  void formActivate() override;

 protected:
  void resolver() override;

 private:
  void elegirSistema(int sistema);  // a click on an option button
  void elegirServicio();            // a choice in Servicios

  gui::TextBindings<ColasFields> bindings_;
  QLineEdit *S_, *K_, *N_, *Nu_, *VarTS_;
  QLabel *TamañoCola_, *Label8_, *LblNu_, *LblVar_;
  QRadioButton *ColaIlimitada_, *ColaLimitada_, *FuenteFinita_;
  QListWidget* LLegadas_;
  QComboBox* Servicios_;
};

class ColasSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  ColasSolution();
  const ColasResults& results() const { return results_; }

 protected:
  Pages compute() override;

 private:
  ColasResults results_;
};

void registerColasScreens();

}  // namespace vorel::queueing
