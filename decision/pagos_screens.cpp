#include "decision/pagos_screens.h"

#include <QGridLayout>

#include "frame/gui/picture_button.h"

namespace vorel::decision {

QFrame* tablaPagos(QWidget& screen, gui::ControlArray<QLabel>& estados,
                   const QString& nombreEstados, gui::ControlArray<QLabel>& alternativas,
                   const QString& nombreAlternativas, int n) {
  auto* frame = gui::tableFrame(screen);
  auto* grid = gui::tableGrid(frame);
  auto* grupoEstados = new QLabel("Estados de la Naturaleza", frame);
  grupoEstados->setObjectName("LblGrupoEstados");
  grupoEstados->setStyleSheet("font-size: 10pt; font-weight: 600; color: #4A5568;");
  grid->addWidget(grupoEstados, 0, 1, 1, n, Qt::AlignLeft);
  auto* grupoAlternativas = new QLabel("Alternativas", frame);
  grupoAlternativas->setObjectName("LblGrupoAlternativas");
  grupoAlternativas->setStyleSheet("font-size: 10pt; font-weight: 600; color: #4A5568;");
  grid->addWidget(grupoAlternativas, 1, 0, Qt::AlignLeft | Qt::AlignBottom);

  gui::createColumnHeads(frame, estados, nombreEstados, n, 96, 1);
  gui::createRowHeads(frame, alternativas, nombreAlternativas, n, 2);
  for (int k = 0; k < n; ++k) {
    estados(k)->setText("Estado " + QString::number(k + 1));
    alternativas(k)->setText("Alternativa " + QString::number(k + 1));
  }
  return frame;
}

void PaginasSolution::crearFlechas(std::initializer_list<Flecha> flechas) {
  int at = 0;
  for (const Flecha& f : flechas) {
    const int id = f.id;
    auto* button = command(
        f.name, f.picture, f.toolTip, [this, id] { pulsar(id); }, 40);
    QVBoxLayout* column = gui::captioned(button);
    auto* caption = qobject_cast<QLabel*>(column->itemAt(1)->widget());
    caption->setFixedWidth(130);
    caption->setWordWrap(true);
    caption->setAlignment(Qt::AlignHCenter);
    commandRow()->insertLayout(at++, column);
    flechas_.push_back({id, button, caption});
  }
}

void PaginasSolution::mostrarFlechas(const std::function<bool(int)>& visible, bool volver) {
  for (const Mostrada& b : flechas_) {
    const bool shown = visible(b.id);
    b.button->setVisible(shown);
    b.caption->setVisible(shown);
  }
  if (auto* button = findChild<QAbstractButton*>("volver")) button->setVisible(volver);
}

void PaginasSolution::pintar(const Report& pagina) {
  Solucion1()->Cls();
  Solucion1()->setReport(pagina);
}

}  // namespace vorel::decision
