// The bases of every model's screens: an entry screen with its title field,
// nuevo, abrir, guardar and Resolver; a solution screen with its report box
// Solucion1 and Imprimir.
#pragma once

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <utility>
#include <vector>

#include "frame/gui/platform.h"
#include "frame/gui/printing.h"
#include "frame/gui/report_box.h"
#include "frame/gui/screen.h"
#include "frame/model.h"
#include "frame/screen_description.h"

namespace vorel::gui {

// A command picture with its name in small type below it.
QVBoxLayout* captioned(QAbstractButton* button);

class EntryScreen : public Screen {
  Q_OBJECT
 public:
  // `titleField` is the title box's control name ("Titulo1", "Título").
  EntryScreen(const std::string& name, const QString& title, const QString& intro,
              const QString& titleField, const QString& titlePreset);
  // The title, intro, title row, text boxes and commands of a description.
  explicit EntryScreen(const ui::Description& description);

  QLineEdit* titleField() const { return titleField_; }
  // A labelled text box on the form's grid of fields, in a row of its own
  // below the others or, where given, at `row`.
  QLineEdit* addField(const QString& objectName, const QString& label, const QString& toolTip = {},
                      int row = -1);
  QGridLayout* fieldGrid() const { return fields_; }

  // Shows every message in order, focus going to its control, as Resolver's
  // checks do. True when there was none.
  bool tell(const Messages& messages);
  // How many messages tell() has shown on this screen.
  int told() const { return told_; }
  // Shows the solution screen and, unless it stays, hides this one.
  void showSolution(const std::string& solution);

 protected:
  virtual void nuevo() = 0;
  virtual void abrir() = 0;
  virtual void guardar() = 0;
  virtual void resolver() = 0;

 private:
  QLineEdit* titleField_;
  QGridLayout* fields_;
  int told_ = 0;
};

// Calls of a model's free functions, looked up beside its Fields type (the
// entry screen's members of the same names would hide them there). A model
// without a nuevo of its own leaves nuevo to its screen.
namespace modelfn {
template <class Fields>
void callExchange(ProblemFile& file, Fields& f) {
  exchange(file, f);
}
template <class Fields>
Messages callCheck(const Fields& f) {
  return check(f);
}
template <class Fields>
concept HasNuevo = requires(Fields& f) {
  nuevo(f);
};
template <class Fields>
void callNuevo(Fields& f) {
  if constexpr (HasNuevo<Fields>) nuevo(f);
}
}  // namespace modelfn

// The part of an entry screen that knows its model's fields.
template <class Fields>
class ModelEntry : public EntryScreen {
 public:
  using EntryScreen::EntryScreen;

  virtual Fields fields() const = 0;
  virtual void setFields(const Fields& f) = 0;

 protected:
  // The model's own functions over its fields, found beside its Fields type;
  // a screen overrides one only where it does more than call it.
  virtual void exchange(ProblemFile& file, Fields& f) { modelfn::callExchange(file, f); }
  virtual Messages check(const Fields& f) { return modelfn::callCheck(f); }
  virtual void nuevo(Fields& f) { modelfn::callNuevo(f); }

  // Runs one of the model's own edits of its fields (nuevo, Rediseñar) on the
  // fields as they stand, tells its messages and puts the fields back; false
  // when it told any, and then the screen is left as it was.
  bool edit(const std::function<Messages(Fields&)>& change) {
    Fields f = fields();
    if (!tell(change(f))) return false;
    setFields(f);
    return true;
  }

  void nuevo() override {
    edit([this](Fields& f) {
      nuevo(f);
      return Messages{};
    });
  }

  void abrir() override {
    auto path = platform().openDialog(kOpenFilter, 2);
    if (!path) return;
    Fields f = fields();
    openProblem(path->toStdString(), [&](ProblemFile& file) { exchange(file, f); });
    setFields(f);  // what was read before a failure stays
  }
  void guardar() override {
    auto path = platform().saveDialog(kSaveFilter, 2, titleField()->text());
    if (!path) return;
    Fields f = fields();
    saveProblem(path->toStdString(), [&](ProblemFile& file) { exchange(file, f); });
  }
  void resolver() override {
    if (tell(check(fields()))) showSolution(info()->solutions.front());
  }
};

// Binds text boxes to the text members of a fields struct.
template <class Fields>
class TextBindings {
 public:
  void bind(std::string Fields::*member, QLineEdit* box) { bindings_.push_back({member, box}); }
  void read(Fields& f) const {
    for (auto& [member, box] : bindings_) f.*member = box->text().toStdString();
  }
  void write(const Fields& f) const {
    for (auto& [member, box] : bindings_) box->setText(QString::fromStdString(f.*member));
  }

 private:
  std::vector<std::pair<std::string Fields::*, QLineEdit*>> bindings_;
};

class SolutionScreen : public Screen {
  Q_OBJECT
 public:
  // `columns` and `lines` size the report box for the largest report;
  // `reportName` is the report box's control name.
  SolutionScreen(const std::string& name, const QString& label, int columns, int lines,
                 const QString& reportName = QStringLiteral("Solucion1"));
  // The label, report box and Imprimir of a description; `reportName`, where
  // given, names the report box in place of the description's name.
  explicit SolutionScreen(const ui::Description& description, const QString& reportName = {});

  ReportBox* Solucion1() const { return report_; }
  const Report& page() const { return page_; }
  // What Imprimir prints from now on, where a command other than the
  // activation computes again (Recalcular of the control charts).
  void setPage(Report page) { page_ = std::move(page); }

  void formActivate() override;
  bool solving() const { return solving_; }

 protected:
  // Runs a method that may never end as `attempt(budget)`, which solves with a
  // step budget and throws DoesNotEnd when the budget is spent. Between
  // attempts, each with twice the budget up to `longest`, the desktop handles
  // its events, so the window stays alive and cerrar can close it; meanwhile
  // only minimizar and cerrar act. False when the method did not end because
  // the screen was closed.
  bool solveInSlices(const std::function<void(long budget)>& attempt, long first, long longest);

  // Reads the entry screen's fields afresh and computes both reports.
  virtual Pages compute() = 0;
  // What the screen paints besides its report (a chart), after computing.
  virtual void draw(const Pages&) {}
  virtual void imprimir();

  template <class EntryType>
  EntryType& entry() const {
    return *dynamic_cast<EntryType*>(Screens::instance().load(info()->entry));
  }
  QHBoxLayout* commandRow() const { return commands_; }

 private:
  ReportBox* report_ = nullptr;
  QHBoxLayout* commands_;
  Report page_;
  bool solving_ = false;
};

}  // namespace vorel::gui
