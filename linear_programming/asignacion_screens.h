// The assignment problem's screens: PL_Asignación, where the costs of the
// individuals (rows) by tasks (columns) are typed, and PL_Asignación_Solución,
// which shows the cheapest assignments found, one at a time.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "linear_programming/asignacion.h"

namespace vorel::linear_programming {

class AsignacionEntry : public gui::ModelEntry<AsignacionFields> {
  Q_OBJECT
 public:
  AsignacionEntry();
  AsignacionFields fields() const override;
  void setFields(const AsignacionFields& f) override;

 private:
  void rediseñarTabla();
  gui::ControlArray<QLineEdit>& columna(int j) { return C_[static_cast<std::size_t>(j - 1)]; }
  const gui::ControlArray<QLineEdit>& columna(int j) const {
    return C_[static_cast<std::size_t>(j - 1)];
  }

  QComboBox* NumIndividuos_;
  QComboBox* NumTareas_;
  std::array<gui::ControlArray<QLineEdit>, kAsignacionArrays> C_;  // C1..C8, rows 0..7
  gui::ControlArray<QLabel> LblIndividuos_;                        // 0..6
  gui::ControlArray<QLabel> LblTareas_;                            // 0..6
};

class AsignacionSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  AsignacionSolution();
  const AsignacionResults& results() const { return results_; }
  int pagina() const { return pagina_; }

 protected:
  // Every activation solves afresh and shows the first solution.
  Pages compute() override;
  // Every solution on one page, from the results of the last activation and
  // the entry's texts as they stand.
  void imprimir() override;

 private:
  // forward1, forward2, Back1, back2: repaints the report with one solution.
  void mostrar(int pagina);
  void ofrecerComandos();  // only the moves that exist are shown

  struct Browsing {
    QAbstractButton* button;
    QLabel* caption;
  };
  Browsing forward1_{}, forward2_{}, back2_{}, Back1_{};
  AsignacionResults results_;
  int pagina_ = 1;
};

void registerAsignacionScreens();

}  // namespace vorel::linear_programming
