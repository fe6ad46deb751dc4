// The economic order quantity's screens: GI_CantidadEconómicaPedido and its
// solution GI_CantidadEconómicaPedido_Solución.
#pragma once

#include "frame/gui/model_screens.h"
#include "inventory/eoq.h"

namespace vorel::inventory {

class EoqEntry : public gui::ModelEntry<EoqFields> {
  Q_OBJECT
public:
  EoqEntry();
  EoqFields fields() const override;
  void setFields(const EoqFields& f) override;

protected:
  void nuevo(EoqFields& f) override { inventory::nuevo(f); }
  void exchange(ProblemFile& file, EoqFields& f) override { inventory::exchange(file, f); }
  Messages check(const EoqFields& f) override { return inventory::check(f); }

private:
  gui::TextBindings<EoqFields> bindings_;
};

class EoqSolution : public gui::SolutionScreen {
  Q_OBJECT
public:
  EoqSolution();

protected:
  Pages compute() override;
};

void registerScreens();

}  // namespace vorel::inventory
