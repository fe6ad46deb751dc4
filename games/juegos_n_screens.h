// The screens of games with n strategies: Juegos_n, where the table of
// results is typed (player 1's strategies down the rows, player 2's across,
// the row k being the array Ak), and its report Juegos_n_solucion.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <array>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "games/juegos_n.h"

namespace vorel::games {

class JuegosNEntry : public gui::ModelEntry<JuegosNFields> {
  Q_OBJECT
 public:
  JuegosNEntry();
  JuegosNFields fields() const override;
  void setFields(const JuegosNFields& f) override;
  // What the last Resolver left for the report (the hidden fields and lists).
  const JuegosNResults& results() const { return results_; }

 protected:
  void resolver() override;

 private:
  void rediseñarTabla();
  gui::ControlArray<QLineEdit>& fila(int k) { return A_[static_cast<std::size_t>(k - 1)]; }
  const gui::ControlArray<QLineEdit>& fila(int k) const {
    return A_[static_cast<std::size_t>(k - 1)];
  }

  QComboBox* NDecA_;
  QComboBox* NDecB_;
  gui::ControlArray<QLineEdit> cabeceraA_, cabeceraB_;           // the heads A(i) and B(i)
  std::array<gui::ControlArray<QLineEdit>, kMaxEstrategias> A_;  // A_[k - 1] is the array Ak
  JuegosNResults results_;
};

class JuegosNSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  JuegosNSolution();

 protected:
  // The report reads the entry's texts as they stand and the results that
  // its Resolver left.
  Pages compute() override;
};

void registerJuegosNScreens();

}  // namespace vorel::games
