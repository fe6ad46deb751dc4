// The load-distance screens: Distribucion_CargaDistancia, where the routes,
// productions and distances are typed, and its solution
// Distribucion_Cargadistancia_Solucion.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "layout/carga_distancia.h"

namespace vorel::facility {

class CargaDistanciaEntry : public gui::ModelEntry<CargaDistanciaFields> {
  Q_OBJECT
 public:
  CargaDistanciaEntry();
  CargaDistanciaFields fields() const override;
  void setFields(const CargaDistanciaFields& f) override;

 private:
  void rediseñarTabla();

  gui::TextBindings<CargaDistanciaFields> bindings_;
  QComboBox* NumActividades_;
  QComboBox* NumDistancias_;
  std::array<gui::ControlArray<QLineEdit>, kMaxProductos> C_;  // C_[k - 1] is the array Ck
  gui::ControlArray<QLineEdit> Produccion_, D1_, D2_, Distancias_;
  gui::ControlArray<QLabel> LblActividades_, LblDepartamentos_, Lbldistancias_;
};

class CargaDistanciaSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  CargaDistanciaSolution();

 protected:
  Pages compute() override;
};

void registerCargaDistanciaScreens();

}  // namespace vorel::facility
