// What the screens of decisions under uncertainty and under risk share: the
// payoff table of the entry screen (states across, alternatives down), and
// the report in pages browsed with arrow buttons on the solution screen.
#pragma once

#include <QAbstractButton>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <array>
#include <functional>
#include <initializer_list>
#include <vector>

#include "decision/tablas.h"
#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "frame/gui/table_screen.h"

namespace vorel::decision {

// The panel of a payoff table with its group labels "Estados de la
// Naturaleza" and "Alternativas", `n` column heads "Estado 1"... and `n` row
// heads "Alternativa 1"... named as the model names them. The cells go on
// the panel's grid from row 2 and column 1.
QFrame* tablaPagos(QWidget& screen, gui::ControlArray<QLabel>& estados,
                   const QString& nombreEstados, gui::ControlArray<QLabel>& alternativas,
                   const QString& nombreAlternativas, int n);

// The cells of a table read from their text boxes, and written back.
template <std::size_t Columnas, std::size_t Filas>
void leerCeldas(const std::array<gui::ControlArray<QLineEdit>, Columnas>& cajas,
                Tabla<Columnas, Filas>& C) {
  for (std::size_t j = 0; j < Columnas; ++j)
    for (std::size_t i = 0; i < Filas; ++i) C[j][i] = gui::readCell(cajas[j](int(i)));
}
template <std::size_t Columnas, std::size_t Filas>
void escribirCeldas(const std::array<gui::ControlArray<QLineEdit>, Columnas>& cajas,
                    const Tabla<Columnas, Filas>& C) {
  for (std::size_t j = 0; j < Columnas; ++j)
    for (std::size_t i = 0; i < Filas; ++i) gui::writeCell(cajas[j](int(i)), C[j][i]);
}

// A solution screen whose report is a set of pages: arrow buttons, each
// named with its tool-tip, lead from page to page; only those of the page
// shown are visible, and volver only where the model says.
class PaginasSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  using SolutionScreen::SolutionScreen;

 protected:
  struct Flecha {
    int id;
    const char* name;
    const char* picture;  // "cmd-back" or "cmd-forward"
    const char* toolTip;
  };
  // Puts the arrows before Imprimir, in the order given, each with its
  // tool-tip written below it; a click runs pulsar(id).
  void crearFlechas(std::initializer_list<Flecha> flechas);
  // Shows the arrows for which `visible` holds, and volver when `volver`.
  void mostrarFlechas(const std::function<bool(int id)>& visible, bool volver);
  // Paints a page in place of the one shown.
  void pintar(const Report& pagina);
  virtual void pulsar(int id) = 0;

 private:
  struct Mostrada {
    int id;
    QAbstractButton* button;
    QLabel* caption;
  };
  std::vector<Mostrada> flechas_;
};

}  // namespace vorel::decision
