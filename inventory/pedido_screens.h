// The screens that the order-quantity models share: an entry screen drawn from
// its model's form, its text boxes bound to the model's fields, and a solution
// screen that reads them afresh and paints the model's report.
#pragma once

#include "frame/form.h"
#include "frame/gui/model_screens.h"

namespace vorel::inventory {

template <class Fields>
class PedidoEntry : public gui::ModelEntry<Fields> {
 public:
  explicit PedidoEntry(const Form<Fields>& form)
      : gui::ModelEntry<Fields>(form.entry), form_(form) {
    for (auto& [name, member] : form.texts)
      bindings_.bind(member, this->template findChild<QLineEdit*>(QString::fromStdString(name)));
  }

  Fields fields() const override {
    Fields f;
    bindings_.read(f);
    return f;
  }
  void setFields(const Fields& f) override { bindings_.write(f); }
  const ModelFunctions<Fields>& modelo() const { return form_.model; }

 private:
  const Form<Fields>& form_;
  gui::TextBindings<Fields> bindings_;
};

// The solution screen: every activation reads the entry screen's fields
// afresh and solves them.
template <class Fields>
class PedidoSolution : public gui::SolutionScreen {
 public:
  explicit PedidoSolution(const Form<Fields>& form) : SolutionScreen(form.solution) {}

 protected:
  Pages compute() override {
    auto& entrada = entry<PedidoEntry<Fields>>();
    Fields f = entrada.fields();
    return entrada.modelo().solveAndReport(f);
  }
};

// Registers an order-quantity model's entry and solution screens.
template <class Fields>
void registerPedidoScreens(const Form<Fields>& form) {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(form.entry.name, [&form] { return new PedidoEntry<Fields>(form); });
  screens.add(form.solution.name, [&form] { return new PedidoSolution<Fields>(form); });
}

}  // namespace vorel::inventory
