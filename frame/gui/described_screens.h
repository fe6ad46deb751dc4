// The screens of a model described as data (frame/form.h): an entry screen
// drawn from its description, its controls bound to the model's fields by
// name, and a solution screen that solves through the form, browses its pages
// and prints them.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QListWidget>
#include <memory>

#include "frame/form.h"
#include "frame/gui/model_screens.h"
#include "frame/gui/table_screen.h"

namespace vorel::gui {

// The controls of a description that the frame's entry screen leaves to its
// model: selectors, options and check boxes on the grid of fields, the table
// below it (in the screen's `body`), and the commands that edit the fields
// (Rediseñar). `runEdit` runs an edit by name, as a command.
struct DescribedControls {
  QFrame* table = nullptr;  // null where the screen has none
};
DescribedControls drawDescribed(EntryScreen& screen, QVBoxLayout* body, const ui::Description& d,
                                const std::function<void(const std::string& edit)>& runEdit);
// The first shown cell of the table in reading order, where Rediseñar leaves
// the focus.
void focusFirstCell(QWidget& screen, const ui::Description& d);

template <class Fields>
class DescribedEntry : public ModelEntry<Fields> {
 public:
  explicit DescribedEntry(const Form<Fields>& form)
      : ModelEntry<Fields>(form.entry), form_(form) {
    drawn_ = drawDescribed(*this, this->body(), form.entry, [this](const std::string& name) { runEdit(name); });
    setFields(Fields{});
  }

  // Each bound control by its name: a text box's text, a selector's list
  // index, an option's or check box's tick, a control's visibility.
  Fields fields() const override {
    Fields f;
    for (const Binding<Fields>& b : form_.bindings) {
      QWidget* w = control(b.control);
      if (auto* box = qobject_cast<QLineEdit*>(w); box && b.text)
        *b.text(f) = box->text().toStdString();
      if (auto* label = qobject_cast<QLabel*>(w); label && b.text)
        *b.text(f) = label->text().toStdString();
      if (auto* list = qobject_cast<QComboBox*>(w); list && b.index)
        *b.index(f) = list->currentIndex();
      if (auto* list = qobject_cast<QListWidget*>(w); list && b.index)
        *b.index(f) = list->currentRow();
      if (auto* tick = qobject_cast<QAbstractButton*>(w); tick && b.checked)
        *b.checked(f) = tick->isChecked();
      if (w && b.visible) *b.visible(f) = !w->isHidden();
      if (w && b.enabled) *b.enabled(f) = w->isEnabledTo(this);
      if (w && b.toolTip) *b.toolTip(f) = w->toolTip().toStdString();
    }
    return f;
  }
  void setFields(const Fields& given) override {
    Fields f = given;
    for (const Binding<Fields>& b : form_.bindings) {
      QWidget* w = control(b.control);
      if (auto* box = qobject_cast<QLineEdit*>(w); box && b.text)
        box->setText(QString::fromStdString(*b.text(f)));
      if (auto* label = qobject_cast<QLabel*>(w); label && b.text)
        label->setText(QString::fromStdString(*b.text(f)));
      if (auto* list = qobject_cast<QComboBox*>(w); list && b.index)
        list->setCurrentIndex(*b.index(f));
      if (auto* list = qobject_cast<QListWidget*>(w); list && b.index)
        list->setCurrentRow(*b.index(f));
      if (auto* tick = qobject_cast<QAbstractButton*>(w); tick && b.checked)
        tick->setChecked(*b.checked(f));
      if (w && b.visible) w->setVisible(*b.visible(f));
      if (w && b.enabled) w->setEnabled(*b.enabled(f));
      if (w && b.toolTip) w->setToolTip(QString::fromStdString(*b.toolTip(f)));
    }
    if (drawn_.table) fitToTable(*this);
  }
  const Form<Fields>& form() const { return form_; }
  // Each arrival runs the description's edit of arrival, where it has one.
  void formActivate() override {
    if (!form_.entry.activate.empty()) Screen::run([this] { runEdit(form_.entry.activate); });
  }

 protected:
  // Runs one of the form's edits of the fields by name (a selector's click,
  // Rediseñar); an edit command then leaves the focus in the table.
  void runEdit(const std::string& name) {
    for (auto& [editName, run] : form_.edits)
      if (editName == name && this->edit([run = run](Fields& f) { return run(f); }))
        for (const ui::Command& c : form_.entry.commands)
          if (c.action == ui::Action::Edit && c.target == name) focusFirstCell(*this, form_.entry);
  }
  QWidget* control(const std::string& name) const {
    return this->template findChild<QWidget*>(QString::fromStdString(name));
  }

 private:
  const Form<Fields>& form_;
  DescribedControls drawn_;
};

// The solution screen: each activation solves the entry screen's fields
// afresh, in slices where the method may never end; its browsing commands
// show as the solution says and show its other pages.
class DescribedSolutionBase : public SolutionScreen {
 public:
  explicit DescribedSolutionBase(const ui::Description& d);
  void formActivate() override;

 protected:
  // Solves with a step budget (see Solver); the solution replaces the last.
  virtual std::unique_ptr<Solution> solveWith(long stepBudget) = 0;
  Pages compute() override;
  // Paints the solution as it stands after a browsing command.
  void showSolution();
  Solution* solution() const { return solution_.get(); }

 private:
  void offerCommands();
  const ui::Description& description_;
  std::unique_ptr<Solution> solution_;
};

template <class Fields>
class DescribedSolution : public DescribedSolutionBase {
 public:
  explicit DescribedSolution(const Form<Fields>& form)
      : DescribedSolutionBase(form.solution), form_(form) {}

 protected:
  std::unique_ptr<Solution> solveWith(long stepBudget) override {
    auto& entryScreen = entry<DescribedEntry<Fields>>();
    fields_ = entryScreen.fields();
    std::unique_ptr<Solution> solved = form_.solve(fields_, stepBudget);
    // A solver works on the entry's own fields: what it changes there (the
    // model it chose, the samples it removed) shows on the entry screen.
    if (form_.solver) entryScreen.setFields(fields_);
    return solved;
  }

 private:
  const Form<Fields>& form_;
  Fields fields_;  // what the solution was computed from
};

// Registers a described model's entry and solution screens.
template <class Fields>
void registerDescribedScreens(const Form<Fields>& form) {
  Screens& screens = Screens::instance();
  screens.add(form.entry.name, [&form] { return new DescribedEntry<Fields>(form); });
  screens.add(form.solution.name, [&form] { return new DescribedSolution<Fields>(form); });
}

}  // namespace vorel::gui
