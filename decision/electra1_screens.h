// The ELECTRE I screens: DecisionElectra1, where the table of valuations is
// typed (criteria in rows, alternatives in columns, the weights in the column
// after the last alternative), and its solution DecisionElectra1_solucion.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <functional>

#include "decision/electra1.h"
#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"

namespace vorel::decision {

// Pieces of the two decision table screens (this one and the uncertainty
// screen), none of them particular to a model.

// Gives a chrome command the control name this screen knows it by.
void renameChrome(QWidget& screen, const QString& from, const QString& to);
// The row of the fields' grid that holds `w`.
int gridRow(QGridLayout* grid, QWidget* w);
// A labelled selector with the items "1" to `count`, at `row` of the fields'
// grid, beside the text boxes.
QComboBox* addSelector(QWidget& screen, QGridLayout* grid, int row, const QString& objectName,
                       const QString& label, int count);
// The button RediseñarTabla, "Rediseñar Tabla"; its handler runs as a command.
QPushButton* redesignButton(QWidget& screen, std::function<void()> handler);
// The white panel that holds a table of cells.
QFrame* tableFrame(QWidget& screen);
// Puts the table panel below the fields' grid.
void placeTable(QVBoxLayout* body, QGridLayout* fieldGrid, QFrame* table);
// Fits the window to its table after the table changed shape.
void fitToTable(QWidget& screen);
// A colour as the platform stores it, a Long with red in the lowest byte.
QColor platformColor(long backColor);

class Electra1Entry : public gui::ModelEntry<Electra1Fields> {
  Q_OBJECT
public:
  Electra1Entry();
  Electra1Fields fields() const override;
  void setFields(const Electra1Fields& f) override;

protected:
  void nuevo() override;
  void exchange(ProblemFile& file, Electra1Fields& f) override { decision::exchange(file, f); }
  Messages check(const Electra1Fields& f) override { return decision::check(f); }

private:
  void rediseñarTabla();
  // Paints a column head in the back colour the fields hold (blue, green, red).
  static void paintHead(QLabel* head, long backColor);

  gui::TextBindings<Electra1Fields> bindings_;
  QComboBox* NumAlternativas_;
  QComboBox* NumCriterios_;
  std::array<gui::ControlArray<QLineEdit>, 7> C_;  // C_[j - 1] is the array Cj
  gui::ControlArray<QLabel> LblCriterios_;
  gui::ControlArray<QLabel> LblAlternativas_;
};

class Electra1Solution : public gui::SolutionScreen {
  Q_OBJECT
public:
  Electra1Solution();

protected:
  Pages compute() override;
  // The page comes from the results of the last activation and the entry
  // screen's texts as they stand.
  void imprimir() override;

private:
  Electra1Results results_;
};

void registerElectra1Screens();

}  // namespace vorel::decision
