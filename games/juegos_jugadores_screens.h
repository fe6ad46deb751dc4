// The screens of games of two and of three players: Juegos_2 and Juegos_3,
// where the payoffs are typed in a table (J1's decisions down the rows, J2's
// across, one table for each decision of J3) and the two commands show the
// pure and the mixed equilibria on panels; and their reports.
#pragma once

#include <QFrame>
#include <QLineEdit>
#include <array>

#include "frame/gui/model_screens.h"
#include "games/juegos_2.h"
#include "games/juegos_3.h"

namespace vorel::games {

// A panel that a command prints on (SPuras, SMixtas), a zone being 14 average
// character widths of the report font.
class PanelEquilibrios : public QWidget {
  Q_OBJECT
 public:
  PanelEquilibrios(const QString& objectName, int columns, int lines, QWidget* parent);
  void setReport(const Report& report);
  std::string plainText() const { return renderText(report_); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Report report_;
  int columnsWide_ = 0;
};

// The entry screen of a game of J players: the table, EstPuras and EstMixtas
// with their frames, and what the two commands keep for the report.
template <class Fields, class Estado, std::size_t J>
class EquilibriosEntry : public gui::ModelEntry<Fields> {
 public:
  EquilibriosEntry(const std::string& name, const QString& heading, const QString& intro,
                   const std::array<const char*, kCeldas<J>>& nombres);
  Fields fields() const override;
  void setFields(const Fields& f) override;
  const Estado& estado() const { return estado_; }

 protected:
  void nuevo(Fields& f) override { games::nuevo(f, estado_); }
  void nuevo() override;
  // Resolver reports what the commands computed: one of them must have run.
  Messages check(const Fields&) override { return games::resolver(estado_.Calculado); }

 private:
  void comando(bool puras);  // EstPuras or EstMixtas
  void pintar();             // the frames, their panels and the cells of the pure equilibria

  std::array<std::array<QLineEdit*, J>, kCeldas<J>> pagos_{};
  QFrame* marcoPuras_;
  QFrame* marcoMixtas_;
  PanelEquilibrios* SPuras_;
  PanelEquilibrios* SMixtas_;
  Estado estado_;
};

using Juegos2Entry = EquilibriosEntry<Juegos2Fields, Juegos2Estado, 2>;
using Juegos3Entry = EquilibriosEntry<Juegos3Fields, Juegos3Estado, 3>;

// The report of either game, read from its entry screen at each activation.
template <class Entry>
class EquilibriosSolution : public gui::SolutionScreen {
 public:
  EquilibriosSolution(const std::string& name, const QString& heading, int lines)
      : SolutionScreen(name, heading, 90, lines) {}

 protected:
  Pages compute() override {
    const auto& entrada = entry<Entry>();
    const auto f = entrada.fields();
    return {games::report(f, entrada.estado()), games::printout(f, entrada.estado())};
  }
};

void registerJuegos2Screens();
void registerJuegos3Screens();

}  // namespace vorel::games
