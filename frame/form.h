// A model's screens as data, bound to its fields: the descriptions of its
// entry and solution screens, which control holds which field, and the core
// functions its commands run. The desktop builds its widgets from a form; the
// browser keeps one live EntryForm per loaded entry screen and runs the
// commands on it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/model.h"
#include "frame/problem_file.h"
#include "frame/screen_description.h"

namespace vorel {

// The core functions of a model that its entry screen's commands call.
template <class Fields>
struct ModelFunctions {
  void (*nuevo)(Fields&);
  void (*exchange)(ProblemFile&, Fields&);
  Messages (*check)(const Fields&);
  Pages (*solveAndReport)(Fields&);
};

// A control bound to the fields: where its text, its visibility, its list
// index, its tick, whether it is enabled and its tool-tip live (each where the
// control has one); a label's back colour, as the platform stores it (a Long
// with red in the lowest byte); whether a cell is marked; the items of a list
// that grows and shrinks with the fields.
template <class Fields>
struct Binding {
  std::string control;
  std::function<std::string*(Fields&)> text = {};
  std::function<bool*(Fields&)> visible = {};
  std::function<int*(Fields&)> index = {};
  std::function<bool*(Fields&)> checked = {};
  std::function<bool*(Fields&)> enabled = {};
  std::function<std::string*(Fields&)> toolTip = {};
  std::function<long*(Fields&)> color = {};
  // A cell set apart by what a command found in it (an equilibrium); it
  // reads it, never changes it.
  std::function<bool*(Fields&)> marked = {};
  std::function<std::vector<std::string>*(Fields&)> items = {};
};

// A text box that shows a member.
template <class Fields>
Binding<Fields> textOf(std::string control, std::string Fields::*member) {
  return {std::move(control), [member](Fields& f) { return &(f.*member); }};
}

// An edit of the fields that a control's action runs (a selector's click):
// its messages, none when it went through.
template <class Fields>
using Edit = Messages (*)(Fields&);

// What a solution screen shows after its activation, kept while it is on view:
// its pages and, where it browses, which browsing commands show and what each
// one shows next.
class Solution {
 public:
  explicit Solution(Pages pages = {}) : pages_(std::move(pages)) {}
  virtual ~Solution() = default;
  const Pages& pages() const { return pages_; }
  // Whether a browsing command of the screen shows now.
  virtual bool shows(std::string_view /*command*/) const { return true; }
  // A browsing command pressed: the pages change; false where the screen has
  // no such command.
  virtual bool press(std::string_view /*command*/) { return false; }
  // Whether a window command of the screen (volver) can be pressed now; a
  // page may withhold it.
  virtual bool offers(std::string_view /*command*/) const { return true; }
  // The chart Imprimir paints: the one on view, unless the page keeps an
  // earlier one (a control chart's first pass, after Recalcular).
  virtual const Chart& printedChart() const { return pages_.chart; }
  // The messages of a solution the method refused to give (a degenerate first
  // solution): the screen tells them and goes back to its entry, which keeps
  // all it held. Empty where the pages stand.
  const Messages& refusal() const { return refusal_; }

 protected:
  Pages pages_;
  Messages refusal_;
};

// A solution computed from the entry's fields, which it may change (the
// samples a control chart removes). `stepBudget` bounds a method that may never
// end (0: no bound); once spent it throws DoesNotEnd and the caller tries again
// with more, so a page or window stays responsive meanwhile.
template <class Fields>
using Solver = std::function<std::unique_ptr<Solution>(Fields& entry, long stepBudget)>;

template <class Fields>
struct Form {
  ui::Description entry;
  ui::Description solution;
  std::vector<Binding<Fields>> bindings;  // the title field first
  std::vector<std::pair<std::string, Edit<Fields>>> edits;
  ModelFunctions<Fields> model;
  // Where the solution screen browses or changes its entry; otherwise its
  // pages are model.solveAndReport's on a copy of the fields.
  Solver<Fields> solver = {};
  // Where Resolver shows one of several solution screens as the fields say:
  // the others (which solve the same fields), and the name of the one to show.
  std::vector<ui::Description> otherSolutions = {};
  std::string (*resolverShows)(const Fields&) = nullptr;
  // Where solution screens of the same fields solve in ways of their own (the
  // charts that open from another chart): the solver, told the screen.
  std::function<std::unique_ptr<Solution>(Fields& entry, long stepBudget, std::string_view screen)>
      solverOn = {};

  std::string solutionShown(const Fields& f) const {
    return resolverShows ? resolverShows(f) : solution.name;
  }

  std::unique_ptr<Solution> solve(Fields& entry, long stepBudget) const {
    if (solver) return solver(entry, stepBudget);
    Fields copy = entry;
    return std::make_unique<Solution>(model.solveAndReport(copy));
  }
  // The activation of the solution screen `screen`.
  std::unique_ptr<Solution> solve(Fields& entry, long stepBudget, std::string_view screen) const {
    if (solverOn) return solverOn(entry, stepBudget, screen);
    return solve(entry, stepBudget);
  }

  const Binding<Fields>* binding(std::string_view control) const {
    for (const Binding<Fields>& b : bindings)
      if (b.control == control) return &b;
    return nullptr;
  }
};

// What a bound control shows: null where it has no such property.
struct ControlState {
  const std::string& control;
  const std::string* text;
  const bool* visible;
  const int* index;
  const bool* checked;
  const bool* enabled;
  const std::string* toolTip;
  const long* color;
  const bool* marked;
  const std::vector<std::string>* items;
};

// An entry screen's fields while it is loaded, behind commands by name.
class EntryForm {
 public:
  virtual ~EntryForm() = default;
  virtual const ui::Description& entry() const = 0;
  // Resolver's usual solution screen; `solutions` adds the others a model
  // may show instead.
  virtual const ui::Description& solution() const = 0;
  virtual std::vector<const ui::Description*> solutions() const = 0;
  // The solution screen Resolver shows for the fields as they stand.
  virtual std::string solutionShown() const = 0;

  // What every bound control shows, in the order of the bindings.
  virtual void each(const std::function<void(const ControlState&)>& visit) = 0;
  // A text box's text, a selector's list index; false where the screen has
  // no such control.
  virtual bool setText(std::string_view control, std::string text) = 0;
  virtual bool setIndex(std::string_view control, int index) = 0;
  // An option's or a check box's tick.
  virtual bool setChecked(std::string_view control, bool checked) = 0;
  // Runs an edit of the fields by name; false where there is none.
  virtual bool edit(std::string_view name, Messages& messages) = 0;

  virtual void nuevo() = 0;
  // abrir from the file's bytes: what is read before a failure stays.
  virtual void abrir(std::string windows1252) = 0;
  // guardar: the bytes of the file.
  virtual std::string guardar() = 0;
  virtual Messages check() const = 0;
  // The solution screen's activation on the fields as they stand; the
  // solution stays until the next one. Throws DoesNotEnd where the budget
  // was spent (see Solver).
  virtual Solution& solve(long stepBudget = 0) = 0;
  // The activation of the solution screen `screen` where the model's screens
  // solve in ways of their own; otherwise as solve.
  virtual Solution& solveOn(std::string_view /*screen*/, long stepBudget) { return solve(stepBudget); }
  // The last solution, null before the first.
  virtual Solution* lastSolution() = 0;
};

template <class Fields>
class FieldsForm : public EntryForm {
 public:
  explicit FieldsForm(const Form<Fields>& form) : form_(form) {}

  const ui::Description& entry() const override { return form_.entry; }
  const ui::Description& solution() const override { return form_.solution; }
  std::vector<const ui::Description*> solutions() const override {
    std::vector<const ui::Description*> all = {&form_.solution};
    for (const ui::Description& d : form_.otherSolutions) all.push_back(&d);
    return all;
  }
  std::string solutionShown() const override { return form_.solutionShown(fields_); }

  void each(const std::function<void(const ControlState&)>& visit) override {
    for (const Binding<Fields>& b : form_.bindings)
      visit({b.control, b.text ? b.text(fields_) : nullptr,
             b.visible ? b.visible(fields_) : nullptr, b.index ? b.index(fields_) : nullptr,
             b.checked ? b.checked(fields_) : nullptr, b.enabled ? b.enabled(fields_) : nullptr,
             b.toolTip ? b.toolTip(fields_) : nullptr, b.color ? b.color(fields_) : nullptr,
             b.marked ? b.marked(fields_) : nullptr, b.items ? b.items(fields_) : nullptr});
  }
  bool setText(std::string_view control, std::string text) override {
    const Binding<Fields>* b = form_.binding(control);
    if (!b || !b->text) return false;
    *b->text(fields_) = std::move(text);
    return true;
  }
  bool setIndex(std::string_view control, int index) override {
    const Binding<Fields>* b = form_.binding(control);
    if (!b || !b->index) return false;
    *b->index(fields_) = index;
    return true;
  }
  bool setChecked(std::string_view control, bool checked) override {
    const Binding<Fields>* b = form_.binding(control);
    if (!b || !b->checked) return false;
    *b->checked(fields_) = checked;
    return true;
  }
  bool edit(std::string_view name, Messages& messages) override {
    for (auto& [editName, run] : form_.edits)
      if (editName == name) {
        messages = run(fields_);
        return true;
      }
    return false;
  }
  void nuevo() override { form_.model.nuevo(fields_); }
  void abrir(std::string bytes) override {
    readProblem(std::move(bytes), [this](ProblemFile& f) { form_.model.exchange(f, fields_); });
  }
  std::string guardar() override {
    ProblemFile out = ProblemFile::forWriting();
    form_.model.exchange(out, fields_);
    return out.bytes();
  }
  Messages check() const override { return form_.model.check(fields_); }
  Solution& solve(long stepBudget) override {
    solution_.reset();
    solution_ = form_.solve(fields_, stepBudget);
    return *solution_;
  }
  Solution& solveOn(std::string_view screen, long stepBudget) override {
    solution_.reset();
    solution_ = form_.solve(fields_, stepBudget, screen);
    return *solution_;
  }
  Solution* lastSolution() override { return solution_.get(); }

 private:
  const Form<Fields>& form_;
  Fields fields_;
  std::unique_ptr<Solution> solution_;
};

// A form's live fields, for a catalogue entry.
template <class Fields>
std::function<std::unique_ptr<EntryForm>()> liveForm(const Form<Fields>& form) {
  return [&form] { return std::make_unique<FieldsForm<Fields>>(form); };
}

}  // namespace vorel
