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
#include "frame/gui/table_screen.h"

namespace vorel::decision {

class Electra1Entry : public gui::ModelEntry<Electra1Fields> {
  Q_OBJECT
public:
  Electra1Entry();
  Electra1Fields fields() const override;
  void setFields(const Electra1Fields& f) override;

protected:
  void nuevo(Electra1Fields& f) override { decision::nuevo(f); }
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
