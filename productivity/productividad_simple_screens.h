// Partial productivity's screens: Productividad_Simple, the factors and the
// output of two years, and its solution Productividad_Simple_Solucion.
#pragma once

#include "frame/gui/model_screens.h"
#include "productivity/productividad_simple.h"

namespace vorel::productivity {

class ProductividadSimpleEntry : public gui::ModelEntry<ProductividadSimpleFields> {
  Q_OBJECT
 public:
  ProductividadSimpleEntry();
  ProductividadSimpleFields fields() const override;
  void setFields(const ProductividadSimpleFields& f) override;

 private:
  gui::TextBindings<ProductividadSimpleFields> bindings_;
};

class ProductividadSimpleSolution : public gui::SolutionScreen {
  Q_OBJECT
 public:
  ProductividadSimpleSolution();

 protected:
  Pages compute() override;
};

void registerProductividadSimpleScreens();

}  // namespace vorel::productivity
