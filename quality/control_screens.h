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
};

// A legend below the table `after`.
QLabel* legend(QWidget* screen, QVBoxLayout* body, QWidget* after, const QString& name,
               const QString& text);
// An option of the entry, under the field grid.
QRadioButton* option(gui::EntryScreen& screen, const QString& name, const QString& text);

void readVisible(const gui::ControlArray<QLabel>& labels, bool* into);
void writeVisible(const gui::ControlArray<QLabel>& labels, const bool* from);

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

}  // namespace vorel::quality
