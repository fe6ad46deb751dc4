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
#include <vector>

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
  std::vector<QFrame*> tables;  // every table, the first one first
};
DescribedControls drawDescribed(EntryScreen& screen, QVBoxLayout* body, const ui::Description& d,
                                const std::function<void(const std::string& edit)>& runEdit);
// Shows a table where one of its controls shows, hides it where none does;
// a frame (see ui::Description::frames) keeps what its binding says.
void showTables(const DescribedControls& drawn);
// Gives the window's commands the names the description gives them, where a
// screen knows one by another name ("Image5" for volver).
void nameChrome(QWidget& screen, const ui::Description& d);
// A cell set apart, or not, by what a command found in it.
void markCell(QLineEdit* cell, bool marked);
// The items of a list (a selector or a list box), and the list given others
// (left as it is where they are the same, so that its choice stays).
std::vector<std::string> listItems(const QWidget& list);
void setListItems(QWidget& list, const std::vector<std::string>& items);
// The first shown cell of the table in reading order, where Rediseñar leaves
// the focus.
void focusFirstCell(QWidget& screen, const ui::Description& d);
// A label's back colour as the platform stores it (see Binding::color), and
// the label painted in one.
long labelColor(const QLabel& label);
void paintLabel(QLabel& label, long backColor);

template <class Fields>
class DescribedEntry : public ModelEntry<Fields> {
 public:
  explicit DescribedEntry(const Form<Fields>& form)
      : ModelEntry<Fields>(form.entry), form_(form) {
    drawn_ = drawDescribed(*this, this->body(), form.entry, [this](const std::string& name) { runEdit(name); });
    // A selector bound to its text takes what is typed in it too.
    for (const Binding<Fields>& b : form_.bindings)
      if (auto* list = qobject_cast<QComboBox*>(control(b.control)); list && b.text) {
        list->setEditable(true);
        list->setInsertPolicy(QComboBox::NoInsert);  // what is typed joins no list
      }
    setFields(Fields{});
  }

  // Each bound control by its name: a text box's text, a selector's list
  // index, an option's or check box's tick, a control's visibility.
  // What no control shows (what a command keeps for the report) stays as the
  // last edit left it, as in the browser's live fields.
  Fields fields() const override {
    Fields f = kept_;
    for (const Binding<Fields>& b : form_.bindings) {
      QWidget* w = control(b.control);
      if (auto* box = qobject_cast<QLineEdit*>(w); box && b.text)
        *b.text(f) = box->text().toStdString();
      if (auto* label = qobject_cast<QLabel*>(w); label && b.text)
        *b.text(f) = label->text().toStdString();
      if (auto* label = qobject_cast<QLabel*>(w); label && b.color)
        *b.color(f) = labelColor(*label);
      if (auto* list = qobject_cast<QComboBox*>(w); list && b.index)
        *b.index(f) = list->currentIndex();
      if (auto* list = qobject_cast<QComboBox*>(w); list && b.text)
        *b.text(f) = list->currentText().toStdString();
      if (auto* list = qobject_cast<QListWidget*>(w); list && b.index)
        *b.index(f) = list->currentRow();
      if (w && b.items) *b.items(f) = listItems(*w);
      if (auto* tick = qobject_cast<QAbstractButton*>(w); tick && b.checked)
        *b.checked(f) = tick->isChecked();
      if (w && b.visible) *b.visible(f) = !w->isHidden();
      if (w && b.enabled) *b.enabled(f) = w->isEnabledTo(this);
      if (w && b.toolTip) *b.toolTip(f) = w->toolTip().toStdString();
    }
    return f;
  }
  void setFields(const Fields& given) override {
    kept_ = given;
    Fields f = given;
    for (const Binding<Fields>& b : form_.bindings) {
      QWidget* w = control(b.control);
      if (auto* box = qobject_cast<QLineEdit*>(w); box && b.text)
        box->setText(QString::fromStdString(*b.text(f)));
      if (auto* label = qobject_cast<QLabel*>(w); label && b.text)
        label->setText(QString::fromStdString(*b.text(f)));
      if (auto* label = qobject_cast<QLabel*>(w); label && b.color)
        paintLabel(*label, *b.color(f));
      if (w && b.items) setListItems(*w, *b.items(f));  // before the index that picks one
      if (auto* list = qobject_cast<QComboBox*>(w); list && b.index)
        list->setCurrentIndex(*b.index(f));
      if (auto* list = qobject_cast<QComboBox*>(w); list && b.text)
        list->setCurrentText(QString::fromStdString(*b.text(f)));
      if (auto* list = qobject_cast<QListWidget*>(w); list && b.index)
        list->setCurrentRow(*b.index(f));
      if (auto* tick = qobject_cast<QAbstractButton*>(w); tick && b.checked)
        tick->setChecked(*b.checked(f));
      if (w && b.visible) w->setVisible(*b.visible(f));
      if (w && b.enabled) w->setEnabled(*b.enabled(f));
      if (w && b.toolTip) w->setToolTip(QString::fromStdString(*b.toolTip(f)));
      if (auto* box = qobject_cast<QLineEdit*>(w); box && b.marked) markCell(box, *b.marked(f));
    }
    showTables(drawn_);
    if (drawn_.table) fitToTable(*this);
  }
  const Form<Fields>& form() const { return form_; }
  void nuevo() override {
    ModelEntry<Fields>::nuevo();
    if (form_.entry.nuevoFocus.empty()) return;
    if (QWidget* w = control(form_.entry.nuevoFocus)) w->setFocus();
  }
  // Each arrival runs the description's edit of arrival, where it has one.
  void formActivate() override {
    if (!form_.entry.activate.empty()) Screen::run([this] { runEdit(form_.entry.activate); });
  }

 protected:
  // The form's own model functions, which may differ from a file run's.
  void exchange(ProblemFile& file, Fields& f) override { form_.model.exchange(file, f); }
  Messages check(const Fields& f) override { return form_.model.check(f); }
  void nuevo(Fields& f) override { form_.model.nuevo(f); }

  // Runs one of the form's edits of the fields by name (a selector's click,
  // Rediseñar); an edit command then leaves the focus in the table. What the
  // edit did stays even where it tells a message (a command that refuses a
  // game still hides its panels), as in the browser.
  void runEdit(const std::string& name) {
    for (auto& [editName, run] : form_.edits)
      if (editName == name) {
        Fields f = fields();
        Messages messages;
        try {
          messages = run(f);
        } catch (...) {  // a run-time error leaves on the screen what the edit changed
          setFields(f);
          throw;
        }
        setFields(f);
        if (!this->tell(messages)) return;
        for (const ui::Command& c : form_.entry.commands)
          if (c.action == ui::Action::Edit && c.target == name) focusFirstCell(*this, form_.entry);
      }
  }
  QWidget* control(const std::string& name) const {
    return this->template findChild<QWidget*>(QString::fromStdString(name));
  }
  // The solution screen the fields call for (most models have one).
  void resolver() override {
    const Fields f = this->fields();
    if (this->tell(this->check(f))) this->showSolution(form_.solutionShown(f));
  }

 private:
  const Form<Fields>& form_;
  DescribedControls drawn_;
  Fields kept_;
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
  // Before a browsing command: the fields the solution was given take the
  // entry screen's as they stand, as the browser's live fields do.
  virtual void readEntry() {}
  // After a browsing command, also one that failed: where the solution
  // changed the fields it was given (the samples Recalcular takes out), the
  // entry screen takes them.
  virtual void pressed() {}
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
  explicit DescribedSolution(const Form<Fields>& form) : DescribedSolution(form, form.solution) {}
  // `description` is the form's solution or one of its others.
  DescribedSolution(const Form<Fields>& form, const ui::Description& description)
      : DescribedSolutionBase(description), form_(form) {}

 protected:
  std::unique_ptr<Solution> solveWith(long stepBudget) override {
    auto& entryScreen = entry<DescribedEntry<Fields>>();
    fields_ = entryScreen.fields();
    std::unique_ptr<Solution> solved = form_.solve(fields_, stepBudget, name());
    // A solver works on the entry's own fields: what it changes there (the
    // model it chose, the samples it removed) shows on the entry screen.
    if (form_.solver) entryScreen.setFields(fields_);
    return solved;
  }
  void readEntry() override { fields_ = entry<DescribedEntry<Fields>>().fields(); }

 private:
  const Form<Fields>& form_;
  Fields fields_;  // what the solution was computed from
};

// Registers a described model's entry and solution screens.
template <class Fields>
void registerDescribedScreens(const Form<Fields>& form) {
  Screens& screens = Screens::instance();
  screens.add(form.entry.name, [&form] { return new DescribedEntry<Fields>(form); });
  screens.add(form.solution.name,
              [&form] { return new DescribedSolution<Fields>(form, form.solution); });
  for (const ui::Description& d : form.otherSolutions)
    screens.add(d.name, [&form, &d] { return new DescribedSolution<Fields>(form, d); });
}

}  // namespace vorel::gui
