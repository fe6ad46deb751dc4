// Total productivity's screens: Productividad_Global, where the inputs and
// the outputs are typed row by row into parallel lists, and its solution
// Productividad_Global_Solucion.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <array>

#include "frame/gui/model_screens.h"
#include "productivity/productividad_global.h"

namespace vorel::productivity {

class ProductividadGlobalEntry : public gui::ModelEntry<ProductividadGlobalFields> {
  Q_OBJECT
 public:
  ProductividadGlobalEntry();
  ProductividadGlobalFields fields() const override;
  void setFields(const ProductividadGlobalFields& f) override;

 protected:
  // Resolver writes the results into their boxes, then shows the solution.
  void resolver() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Combo {
    Lista ProductividadGlobalFields::*lista;
    Grupo grupo;
    QComboBox* box;
  };
  QComboBox* lista(const char* name, Lista ProductividadGlobalFields::*member, Grupo g);
  QListView* filas(QComboBox* box, Grupo g);

  gui::TextBindings<ProductividadGlobalFields> bindings_;
  std::vector<Combo> combos_;
};

class ProductividadGlobalSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  ProductividadGlobalSolution();

 protected:
  Pages compute() override;
};

void registerProductividadGlobalScreens();

}  // namespace vorel::productivity
