// The screens that the order-quantity models share: an entry screen drawn from
// its model's form, its controls bound to the model's fields, and a solution
// screen that reads them afresh and paints the model's report.
#pragma once

#include <QComboBox>

#include "frame/form.h"
#include "frame/gui/model_screens.h"

namespace vorel::inventory {

template <class Fields>
class PedidoEntry : public gui::ModelEntry<Fields> {
 public:
  explicit PedidoEntry(const Form<Fields>& form)
      : gui::ModelEntry<Fields>(form.entry), form_(form) {}

  // Each bound control by its name: a text box's text and visibility, a
  // label's visibility, a selector's list index.
  Fields fields() const override {
    Fields f;
    for (const Binding<Fields>& b : form_.bindings) {
      QWidget* w = control(b.control);
      if (auto* box = qobject_cast<QLineEdit*>(w); box && b.text)
        *b.text(f) = box->text().toStdString();
      if (auto* list = qobject_cast<QComboBox*>(w); list && b.index)
        *b.index(f) = list->currentIndex();
      if (w && b.visible) *b.visible(f) = !w->isHidden();
    }
    return f;
  }
  void setFields(const Fields& given) override {
    Fields f = given;
    for (const Binding<Fields>& b : form_.bindings) {
      QWidget* w = control(b.control);
      if (auto* box = qobject_cast<QLineEdit*>(w); box && b.text)
        box->setText(QString::fromStdString(*b.text(f)));
      if (auto* list = qobject_cast<QComboBox*>(w); list && b.index)
        list->setCurrentIndex(*b.index(f));
      if (w && b.visible) w->setVisible(*b.visible(f));
    }
  }
  const ModelFunctions<Fields>& modelo() const { return form_.model; }

 protected:
  // Runs one of the form's edits of the fields by name (a selector's click).
  void runEdit(const std::string& name) {
    for (auto& [editName, run] : form_.edits)
      if (editName == name) this->edit([run = run](Fields& f) { return run(f); });
  }
  QWidget* control(const std::string& name) const {
    return this->template findChild<QWidget*>(QString::fromStdString(name));
  }
  const Form<Fields>& form() const { return form_; }

 private:
  const Form<Fields>& form_;
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
