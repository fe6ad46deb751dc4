// The screens of decisions under uncertainty: DecisionIncertidumbre, where the
// payoff table is typed (alternatives in rows, states of nature in columns),
// and DecisionIncertidumbre_solucion, whose report is a set of pages browsed
// with arrow buttons.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "decision/incertidumbre.h"
#include "decision/pagos_screens.h"
#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"

namespace vorel::decision {

class IncertidumbreEntry : public gui::ModelEntry<IncertidumbreFields> {
  Q_OBJECT
 public:
  IncertidumbreEntry();
  IncertidumbreFields fields() const override;
  void setFields(const IncertidumbreFields& f) override;

 private:
  void rediseñarTabla();

  gui::TextBindings<IncertidumbreFields> bindings_;
  QComboBox* NumAlternativas_;
  QComboBox* NumEstados_;
  std::array<gui::ControlArray<QLineEdit>, 7> C_;  // C_[j - 1] is the array Cj
  gui::ControlArray<QLabel> LblEstados_;
  gui::ControlArray<QLabel> LblAlternativas_;
};

class IncertidumbreSolution : public PaginasSolution {
  Q_OBJECT
 public:
  IncertidumbreSolution();
  const Navegacion& navegacion() const { return navegacion_; }

 protected:
  // Every activation computes afresh and starts at the Wald page.
  Pages compute() override;
  // All the criteria on one page, from the results of the last activation.
  void imprimir() override;

  // A browsing button: the page it leads to, Alfa looked at on the entry
  // screen at the moment of the click.
  void pulsar(int boton) override;

 private:
  void mostrarBotones();

  Navegacion navegacion_;
  IncertidumbreResults results_;
};

void registerIncertidumbreScreens();

}  // namespace vorel::decision
