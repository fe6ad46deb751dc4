#include "decision/valoraciones_screens.h"

#include "decision/pagos_screens.h"

namespace vorel::decision {

void PanelValoraciones::crear(gui::EntryScreen& screen, QVBoxLayout* body, QLineEdit* escala,
                              std::function<void()> rediseñar) {
  const int top = gui::gridRow(screen.fieldGrid(), escala);
  NumAlternativas_ =
      gui::addNumberSelector(screen, top, 3, "NumAlternativas", "Número de Alternativas", 6);
  NumCriterios_ =
      gui::addNumberSelector(screen, top + 1, 3, "NumCriterios", "Número de Criterios", 7);
  auto* reshape = gui::redesignButton(screen, std::move(rediseñar));
  screen.fieldGrid()->addWidget(reshape, top + 2, 3, 1, 2, Qt::AlignLeft);
  screen.fieldGrid()->setColumnMinimumWidth(2, 24);

  // The table: criteria down the rows, alternatives and then the weights across.
  auto* frame = gui::tableFrame(screen);
  gui::createColumnHeads(frame, LblAlternativas_, "LblAlternativas", 7, 96, 0);
  gui::createRowHeads(frame, LblCriterios_, "LblCriterios", 7, 1);
  gui::createCells(frame, C_, "C", 7, 96, 1);
  for (int k = 0; k <= 6; ++k) LblCriterios_(k)->setText("Criterio " + QString::number(k + 1));
  gui::placeTable(body, screen.fieldGrid(), frame);
}

void PanelValoraciones::paintHead(QLabel* head, long backColor) {
  head->setProperty("BackColor", QVariant::fromValue<qlonglong>(backColor));
  gui::paintColumnHead(head, gui::platformColor(backColor));
}

void PanelValoraciones::leer(TablaValoraciones& f) const {
  f.NumAlternativas = NumAlternativas_->currentIndex();
  f.NumCriterios = NumCriterios_->currentIndex();
  leerCeldas(C_, f.C);
  for (std::size_t i = 0; i < 7; ++i) {
    const int row = static_cast<int>(i);
    f.LblCriterios[i] = !LblCriterios_(row)->isHidden();
    QLabel* head = LblAlternativas_(row);
    f.LblAlternativas[i] = {!head->isHidden(), head->text().toStdString(),
                            static_cast<long>(head->property("BackColor").toLongLong())};
  }
}

void PanelValoraciones::escribir(const TablaValoraciones& f) {
  NumAlternativas_->setCurrentIndex(f.NumAlternativas);
  NumCriterios_->setCurrentIndex(f.NumCriterios);
  escribirCeldas(C_, f.C);
  for (std::size_t i = 0; i < 7; ++i) {
    const int row = static_cast<int>(i);
    LblCriterios_(row)->setVisible(f.LblCriterios[i]);
    const auto& head = f.LblAlternativas[i];
    QLabel* label = LblAlternativas_(row);
    label->setText(QString::fromStdString(head.caption));
    paintHead(label, head.BackColor);
    label->setVisible(head.visible);
  }
  if (QWidget* screen = NumAlternativas_->window()) gui::fitToTable(*screen);
}

}  // namespace vorel::decision
