#include "decision/electra1_screens.h"

#include <QFrame>
#include <QPushButton>

#include "frame/gui/screen.h"

namespace vorel::decision {


Electra1Entry::Electra1Entry()
    : ModelEntry("DecisionElectra1", "Electra 1",
                 "Permite guiar al decisor hacia la elección de una alternativa de entre un "
                 "conjunto de ellas utilizando criterios de decisión no agregables.",
                 "Título", "Problema 1") {
  gui::renameChrome(*this, "volver", "Image6");
  bindings_.bind(&Electra1Fields::Título, titleField());
  QLineEdit* escala = addField("escalaValoracion", "Escala de Valoración", "Escala de valoración");
  bindings_.bind(&Electra1Fields::escalaValoracion, escala);
  bindings_.bind(&Electra1Fields::IndiceConcordancia,
                 addField("IndiceConcordancia", "Límite de Concordancia",
                          "Índice de concordancia en tanto por uno"));
  bindings_.bind(&Electra1Fields::IndiceDiscordancia,
                 addField("IndiceDiscordancia", "Límite de Discordancia",
                          "Índice de Discordancia en tanto por uno"));

  const int top = gui::gridRow(fieldGrid(), escala);
  NumAlternativas_ =
      gui::addNumberSelector(*this, top, 3, "NumAlternativas", "Número de Alternativas", 6);
  NumCriterios_ =
      gui::addNumberSelector(*this, top + 1, 3, "NumCriterios", "Número de Criterios", 7);
  auto* reshape = gui::redesignButton(*this, [this] { rediseñarTabla(); });
  fieldGrid()->addWidget(reshape, top + 2, 3, 1, 2, Qt::AlignLeft);
  fieldGrid()->setColumnMinimumWidth(2, 24);

  // The table: criteria down the rows, alternatives and then the weights across.
  auto* frame = gui::tableFrame(*this);
  gui::createColumnHeads(frame, LblAlternativas_, "LblAlternativas", 7, 96, 0);
  gui::createRowHeads(frame, LblCriterios_, "LblCriterios", 7, 1);
  gui::createCells(frame, C_, "C", 7, 96, 1);
  for (int k = 0; k <= 6; ++k) LblCriterios_(k)->setText("Criterio " + QString::number(k + 1));
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(Electra1Fields{});
}

void Electra1Entry::paintHead(QLabel* head, long backColor) {
  head->setProperty("BackColor", QVariant::fromValue<qlonglong>(backColor));
  gui::paintColumnHead(head, gui::platformColor(backColor));
}

Electra1Fields Electra1Entry::fields() const {
  Electra1Fields f;
  bindings_.read(f);
  f.NumAlternativas = NumAlternativas_->currentIndex();
  f.NumCriterios = NumCriterios_->currentIndex();
  for (std::size_t i = 0; i < 7; ++i) {
    const int row = static_cast<int>(i);
    for (std::size_t j = 0; j < 7; ++j) {
      QLineEdit* cell = C_[j](row);
      f.C[j][i] = gui::readCell(cell);
    }
    f.LblCriterios[i] = !LblCriterios_(row)->isHidden();
    QLabel* head = LblAlternativas_(row);
    f.LblAlternativas[i] = {!head->isHidden(), head->text().toStdString(),
                            static_cast<long>(head->property("BackColor").toLongLong())};
  }
  return f;
}

void Electra1Entry::setFields(const Electra1Fields& f) {
  bindings_.write(f);
  NumAlternativas_->setCurrentIndex(f.NumAlternativas);
  NumCriterios_->setCurrentIndex(f.NumCriterios);
  for (std::size_t i = 0; i < 7; ++i) {
    const int row = static_cast<int>(i);
    for (std::size_t j = 0; j < 7; ++j) {
      QLineEdit* cell = C_[j](row);
      gui::writeCell(cell, f.C[j][i]);
    }
    LblCriterios_(row)->setVisible(f.LblCriterios[i]);
    const auto& head = f.LblAlternativas[i];
    QLabel* label = LblAlternativas_(row);
    label->setText(QString::fromStdString(head.caption));
    paintHead(label, head.BackColor);
    label->setVisible(head.visible);
  }
  gui::fitToTable(*this);
}

void Electra1Entry::rediseñarTabla() {
  if (edit([](Electra1Fields& f) { return rediseñar(f); })) C_[0](0)->setFocus();
}

Electra1Solution::Electra1Solution()
    : SolutionScreen("DecisionElectra1_solucion", "Electra 1", 86, 52) {}

Pages Electra1Solution::compute() {
  const Electra1Fields f = entry<Electra1Entry>().fields();
  results_ = solve(f);
  return {report(f, results_), printout(f, results_)};
}

void Electra1Solution::imprimir() {
  gui::platform().printerDialog();
  gui::printReport(printout(entry<Electra1Entry>().fields(), results_));
}

void registerElectra1Screens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("DecisionElectra1", [] { return new Electra1Entry(); });
  screens.add("DecisionElectra1_solucion", [] { return new Electra1Solution(); });
}

}  // namespace vorel::decision
