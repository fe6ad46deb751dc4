// The screens of decisions under risk: DecisionRiesgoNobayesiano, where the
// payoff table is typed with the states' probabilities in the row below the
// last alternative, and DecisionRiesgoNobayesiano_solucion, whose report is
// three pages browsed with arrow buttons.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "decision/pagos_screens.h"
#include "decision/riesgo.h"
#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"

namespace vorel::decision {

class RiesgoEntry : public gui::ModelEntry<RiesgoFields> {
  Q_OBJECT
 public:
  RiesgoEntry();
  RiesgoFields fields() const override;
  void setFields(const RiesgoFields& f) override;

 private:
  void rediseñarTabla();

  gui::TextBindings<RiesgoFields> bindings_;
  QComboBox* NumAlternativas_;
  QComboBox* NumEstados_;
  std::array<gui::ControlArray<QLineEdit>, 8> C_;  // C_[j - 1] is the array Cj
  gui::ControlArray<QLabel> LblEstado_;
  gui::ControlArray<QLabel> lblAlternativa_;
};

class RiesgoSolution : public PaginasSolution {
  Q_OBJECT
 public:
  RiesgoSolution();
  PaginaRiesgo paginaMostrada() const { return pagina_; }

 protected:
  // Every activation computes afresh and starts at the page of simple dominance.
  Pages compute() override;
  // The three criteria on one page, from the results of the last activation.
  void imprimir() override;
  void pulsar(int boton) override;

 private:
  void mostrarBotones();

  PaginaRiesgo pagina_ = PaginaRiesgo::DominanciaSimple;
  RiesgoResults results_;
};

void registerRiesgoScreens();

}  // namespace vorel::decision
