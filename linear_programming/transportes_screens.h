// The transportation problem's screens: PL_Transportes, where the unit costs
// are typed with the supplies in the column after the last destination and
// the demands in the row after the last origin, and PL_Transportes_Solución,
// which balances, solves and reports at each activation, or sends a
// degenerate first solution back to the entry.
#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "linear_programming/transportes.h"

namespace vorel::linear_programming {

class TransportesEntry : public gui::ModelEntry<TransportesFields> {
  Q_OBJECT
 public:
  TransportesEntry();
  TransportesFields fields() const override;
  void setFields(const TransportesFields& f) override;

 private:
  void rediseñarTabla();
  gui::ControlArray<QLineEdit>& columna(int j) { return C_[static_cast<std::size_t>(j - 1)]; }
  const gui::ControlArray<QLineEdit>& columna(int j) const {
    return C_[static_cast<std::size_t>(j - 1)];
  }

  QComboBox* NumOrigen_;
  QComboBox* NumDestino_;
  std::array<gui::ControlArray<QLineEdit>, kTransportesArrays> C_;  // C1..C8, rows 0..7
  gui::ControlArray<QLabel> LblOrigen_;                             // 0..7
  gui::ControlArray<QLabel> LblDestino_;                            // 0..7
};

class TransportesSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  TransportesSolution();
  // Solves the entry's problem afresh. Some problems improve for ever: the
  // method runs in slices with the desktop's events handled in between, until
  // it ends or this screen is closed.
  void formActivate() override;
  const TransportesResults& results() const { return results_; }

 protected:
  // The solution just found. A degenerate first solution is told, and the
  // entry comes back with all it held; nothing is painted.
  Pages compute() override;
  // The page from the results of the last activation and the entry's texts
  // as they stand.
  void imprimir() override;

 private:
  TransportesResults results_;
};

void registerTransportesScreens();

}  // namespace vorel::linear_programming
