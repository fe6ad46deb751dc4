// The simplex method's screens: PL_Simplex, where the linear programme is
// typed as a table, and its solution PL_Simplex_Solucion, which solves it at
// each activation and browses between two optimal solutions when there are.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "linear_programming/simplex.h"

class QPushButton;

namespace vorel::linear_programming {

class SimplexEntry : public gui::ModelEntry<SimplexFields> {
  Q_OBJECT
 public:
  SimplexEntry();
  SimplexFields fields() const override;
  void setFields(const SimplexFields& f) override;

 private:
  void rediseñarTabla();

  QComboBox* funcionObjetivo_;
  QComboBox* NumFactores_;
  QComboBox* Numrestricciones_;
  std::array<gui::ControlArray<QLineEdit>, kSimplexMax> X_;  // X1..X7, cells 0..7
  gui::ControlArray<QComboBox> restriccion_;                 // 0..6
  gui::ControlArray<QLineEdit> existencias_;                 // 1..7
  gui::ControlArray<QLabel> LblFactores_;                    // 0..6
  gui::ControlArray<QLabel> Lblrestriccion_;                 // 0..6
};

class SimplexSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  SimplexSolution();
  // Solves the entry screen's problem and paints the final solution. The
  // method has no guard against cycling, so this may never end; it runs in
  // slices with the events of the desktop handled in between, and stops only
  // when it ends or when this screen is closed.
  void formActivate() override;
  const SimplexResults& results() const { return results_; }

 protected:
  Pages compute() override;  // the report and page of the solving just ended

 private:
  void browse(bool second);  // forward and back
  void showAvailability();

  SimplexResults results_;  // kept between activation, browsing and Imprimir
  SimplexEnd end_;
};

void registerSimplexScreens();

}  // namespace vorel::linear_programming
