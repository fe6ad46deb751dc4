// What the screens of quality control share: the table of up to 45 samples in
// three blocks of 15 rows, and the chart solution screen with its report, its
// chart, Recalcular and Imprimir of the chart page.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <array>
#include <map>

#include "frame/gui/chart_screen.h"
#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "frame/gui/picture_button.h"
#include "frame/gui/table_screen.h"
#include "quality/control.h"

namespace vorel::quality {

// The samples' table: the row numbers K(i) and two columns of cells, each
// row of a block below the heads of its block (Lblk(b) and the heads of the
// columns; the second column has two heads, one shown at a time, where the
// model names it in two ways).
struct SampleTable {
  QFrame* frame = nullptr;
  gui::ControlArray<QLabel> K;
  gui::ControlArray<QLineEdit> first, second;
  gui::ControlArray<QLabel> Lblk, headFirst, headSecond, headOther;
  // `other` empty: no second head of the second column.
  void create(gui::EntryScreen& screen, QVBoxLayout* body, const QString& firstName,
              const QString& secondName, const QString& headFirstName, const QString& headFirstText,
              const QString& headSecondName, const QString& headSecondText,
              const QString& otherName = {}, const QString& otherText = {});
  // The fields of the table: K, the two columns, and the heads in the order
  // Lblk, headFirst, headSecond, headOther.
  void read(Rows& K, Column& firstCells, Column& secondCells,
            std::initializer_list<Heads*> heads) const;
  void write(const Rows& K, const Column& firstCells, const Column& secondCells,
             std::initializer_list<const Heads*> heads);
};

// A legend below the table `after`.
QLabel* legend(QWidget* screen, QVBoxLayout* body, QWidget* after, const QString& name,
               const QString& text);
// An option of the entry, under the field grid.
QRadioButton* option(gui::EntryScreen& screen, const QString& name, const QString& text);

void readVisible(const gui::ControlArray<QLabel>& labels, bool* into);
void writeVisible(const gui::ControlArray<QLabel>& labels, const bool* from);

// The two options of an entry, written as a file may leave them: both off
// together too.
void writeOptions(QRadioButton* Option1, QRadioButton* Option2, bool first, bool second);

// The model's own functions over its fields, found by the type of the fields
// from the entry screens, whose members of the same names hide them.
template <class Fields>
void modelNuevo(Fields& f) {
  nuevo(f);
}
template <class Fields>
void modelExchange(ProblemFile& file, Fields& f) {
  exchange(file, f);
}
template <class Fields>
Messages modelCheck(const Fields& f) {
  return check(f);
}

// An entry screen of control: the model's nuevo, check and problem file, its
// two options, whose click runs the model's optionClick, the number of
// samples with Rediseñar beside it, and the table of samples.
template <class Fields>
class ControlEntry : public gui::ModelEntry<Fields> {
 protected:
  using gui::ModelEntry<Fields>::ModelEntry;
  void nuevo(Fields& f) override { modelNuevo(f); }
  using gui::ModelEntry<Fields>::nuevo;
  void exchange(ProblemFile& file, Fields& f) override { modelExchange(file, f); }
  Messages check(const Fields& f) override { return modelCheck(f); }

  void addOptions(const QString& first, const QString& second) {
    Option1_ = option(*this, "Option1", first);
    Option2_ = option(*this, "Option2", second);
    for (auto [button, chosen] : {std::pair{Option1_, false}, std::pair{Option2_, true}})
      QObject::connect(button, &QRadioButton::clicked, this, [this, chosen] {
        this->edit([chosen](Fields& f) {
          optionClick(f, chosen);
          return Messages{};
        });
      });
  }
  // Rediseñar beside Nmuestras_, over `rows` rows of the field grid.
  void addRediseñar(int rows) {
    auto* reshape = gui::redesignButton(
        *this,
        [this] {
          this->edit([](Fields& f) {
            rediseñar(f);
            return Messages{};
          });
        },
        "Rediseñar", "Rediseñar");
    this->fieldGrid()->addWidget(reshape, gui::gridRow(this->fieldGrid(), Nmuestras_), 2, rows, 1);
    this->fieldGrid()->setColumnStretch(3, 1);
  }

  QRadioButton *Option1_ = nullptr, *Option2_ = nullptr;
  QLineEdit* Nmuestras_ = nullptr;
  SampleTable table_;
};

// A chart's computation on the fields of the entry screen `entry`, which
// takes them back also when the computation fails: the samples taken out
// before an error stay out. The fields as the computation left them.
template <class Entry, class Run>
auto onEntry(const std::string& entry, Run run) {
  auto& screen = *dynamic_cast<Entry*>(gui::Screens::instance().load(entry));
  auto f = screen.fields();
  Painted painted;
  try {
    painted = run(f);
  } catch (...) {
    screen.setFields(f);
    throw;
  }
  screen.setFields(f);
  return std::pair{painted, f};
}

// The title of the screen reports: Titulo1 of Selec_Van (loading that screen
// as reading its control does).
std::string selecVanTitulo1();

// A chart solution screen: Label1, Label2 with the chart's name, the report
// Solucion1, the chart MSChart1, Recalcular and Imprimir of the chart page.
// Subclasses compute through their model.
class ControlSolution : public gui::ChartSolutionScreen {
  Q_OBJECT
 public:
  ControlSolution(const std::string& name, const QString& label2);
  const ControlScreen& state() const { return *state_; }

 protected:
  // Paints a Recalcular's report and draws its chart, which is not kept: the
  // page keeps the first pass's matrix, and prints `page`.
  void show(const Painted& painted, Report page);
  void showCommands();
  // Puts a command in the row of commands, with its name below it; shows or
  // hides the two together.
  void placeCommand(gui::PictureButton* button);
  void setShown(gui::PictureButton* button, bool shown);
  virtual void recalcular() = 0;

  ControlScreen* state_ = nullptr;  // the screen-level variables, in the subclass
  gui::PictureButton* Recalcular_;

 private:
  std::map<gui::PictureButton*, QWidget*> captions_;
};

// The solution screen of the chart that Option1, or with `second` Option2,
// of the entry `entry` chooses: the model's activate, recalcular and
// printout over the entry's fields.
template <class Entry>
class OptionChartSolution : public ControlSolution {
 public:
  OptionChartSolution(std::string entry, const std::string& name, const QString& label2,
                      bool second)
      : ControlSolution(name, label2), entry_(std::move(entry)), second_(second) {
    state_ = &screen_;
  }

 protected:
  Pages compute() override {
    const auto [painted, f] =
        onEntry<Entry>(entry_, [this](auto& in) { return modelActivate(second_, in, screen_); });
    showCommands();
    return {painted.report, modelPrintout(second_, f, screen_), painted.chart};
  }
  void recalcular() override {
    const auto [painted, f] =
        onEntry<Entry>(entry_, [this](auto& in) { return modelRecalcular(second_, in, screen_); });
    show(painted, modelPrintout(second_, f, screen_));
  }

 private:
  std::string entry_;
  bool second_;
  ControlScreen screen_;
};

}  // namespace vorel::quality
