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

template <class Fields>
struct Form {
  ui::Description entry;
  ui::Description solution;
  // The text boxes and the members they show, the title field first.
  std::vector<std::pair<std::string, std::string Fields::*>> texts;
  ModelFunctions<Fields> model;
};

// An entry screen's fields while it is loaded, behind commands by name.
class EntryForm {
 public:
  virtual ~EntryForm() = default;
  virtual const ui::Description& entry() const = 0;
  virtual const ui::Description& solution() const = 0;

  // The text of a text box; false where the screen has no such box.
  virtual bool text(std::string_view control, std::string& text) const = 0;
  virtual bool setText(std::string_view control, std::string text) = 0;

  virtual void nuevo() = 0;
  // abrir from the file's bytes: what is read before a failure stays.
  virtual void abrir(std::string windows1252) = 0;
  // guardar: the bytes of the file.
  virtual std::string guardar() = 0;
  virtual Messages check() const = 0;
  // The solution screen's activation on the fields as they stand.
  virtual Pages solve() const = 0;
};

template <class Fields>
class FieldsForm : public EntryForm {
 public:
  explicit FieldsForm(const Form<Fields>& form) : form_(form) {}

  const ui::Description& entry() const override { return form_.entry; }
  const ui::Description& solution() const override { return form_.solution; }

  bool text(std::string_view control, std::string& text) const override {
    for (auto& [name, member] : form_.texts)
      if (name == control) {
        text = fields_.*member;
        return true;
      }
    return false;
  }
  bool setText(std::string_view control, std::string text) override {
    for (auto& [name, member] : form_.texts)
      if (name == control) {
        fields_.*member = std::move(text);
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
  Pages solve() const override {
    Fields f = fields_;
    return form_.model.solveAndReport(f);
  }

 private:
  const Form<Fields>& form_;
  Fields fields_;
};

// A form's live fields, for a catalogue entry.
template <class Fields>
std::function<std::unique_ptr<EntryForm>()> liveForm(const Form<Fields>& form) {
  return [&form] { return std::make_unique<FieldsForm<Fields>>(form); };
}

}  // namespace vorel
