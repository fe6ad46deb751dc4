// The material requirements screens: GI_MRP drawn from its description, and
// GI_MRP_Solucion1, which lays out and computes the records once, when it is
// first loaded, and scrolls them.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <array>

#include "frame/gui/model_screens.h"
#include "inventory/mrp_form.h"

namespace vorel::inventory {

class MrpSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  MrpSolution();
  // Lays out the records for the entry's counts and computes them, once.
  void formLoad() override;
  // The records stay as Form_Load left them: nothing is computed again.
  void formActivate() override {}

 protected:
  Pages compute() override;
  // Prints the form as it stands, the records moved in and the commands hidden.
  void imprimir() override;

 private:
  void layOut(const MrpFields& f);

  QWidget* viewport_;
  QWidget* Picture1_;
  QScrollBar* VScroll1_;
  QLabel* Image1_;
  std::array<QFrame*, 7> images_{};  // Image4..Image10
  QList<QLabel*> heads_;             // Articulo, Inventario, SS, Tiempo, Label1
  QList<QLabel*> weekHeads_;         // Semana(0)..Semana(9)
  int articles_ = 0, weeks_ = 0;
};

void registerMrpScreens();

}  // namespace vorel::inventory
