#include "decision/incertidumbre_screens.h"

#include <QHBoxLayout>

#include "decision/electra1_screens.h"  // the pieces of the decision tables
#include "frame/gui/picture_button.h"

namespace vorel::decision {

IncertidumbreEntry::IncertidumbreEntry()
    : ModelEntry("DecisionIncertidumbre", "Toma de Decisiones en Ambiente de Incertidumbre", {},
                 "Título", "Problema 1") {
  gui::renameChrome(*this, "volver", "Image5");
  bindings_.bind(&IncertidumbreFields::Título, titleField());
  QLineEdit* alfa = addField("Alfa", "Coeficiente de Optimismo");
  bindings_.bind(&IncertidumbreFields::Alfa, alfa);
  const int top = gui::gridRow(fieldGrid(), alfa);
  NumAlternativas_ =
      gui::addNumberSelector(*this, top, 3, "NumAlternativas", "Número de Alternativas", 7);
  NumEstados_ = gui::addNumberSelector(*this, top + 1, 3, "NumEstados",
                            "Número de Estados de la Naturaleza", 7);
  fieldGrid()->addWidget(gui::redesignButton(*this, [this] { rediseñarTabla(); }), top + 2, 3, 1, 2,
                         Qt::AlignLeft);
  fieldGrid()->setColumnMinimumWidth(2, 24);

  // The table: alternatives down the rows, states of nature across.
  auto* frame = gui::tableFrame(*this);
  auto* grid = gui::tableGrid(frame);
  auto* estados = new QLabel("Estados de la Naturaleza", frame);
  estados->setObjectName("LblGrupoEstados");
  estados->setStyleSheet("font-size: 10pt; font-weight: 600; color: #4A5568;");
  grid->addWidget(estados, 0, 1, 1, 7, Qt::AlignLeft);
  auto* alternativas = new QLabel("Alternativas", frame);
  alternativas->setObjectName("LblGrupoAlternativas");
  alternativas->setStyleSheet("font-size: 10pt; font-weight: 600; color: #4A5568;");
  grid->addWidget(alternativas, 1, 0, Qt::AlignLeft | Qt::AlignBottom);

  gui::createColumnHeads(frame, LblEstados_, "LblEstados", 7, 96, 1);
  gui::createRowHeads(frame, LblAlternativas_, "LblAlternativas", 7, 2);
  gui::createCells(frame, C_, "C", 7, 96, 2);
  for (int k = 0; k <= 6; ++k) {
    LblEstados_(k)->setText("Estado " + QString::number(k + 1));
    LblAlternativas_(k)->setText("Alternativa " + QString::number(k + 1));
  }
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(IncertidumbreFields{});
}

IncertidumbreFields IncertidumbreEntry::fields() const {
  IncertidumbreFields f;
  bindings_.read(f);
  f.NumAlternativas = NumAlternativas_->currentIndex();
  f.NumEstados = NumEstados_->currentIndex();
  for (std::size_t i = 0; i < 7; ++i) {
    const int row = static_cast<int>(i);
    for (std::size_t j = 0; j < 7; ++j) {
      QLineEdit* cell = C_[j](row);
      f.C[j][i] = gui::readCell(cell);
    }
    f.LblEstados[i] = !LblEstados_(row)->isHidden();
    f.LblAlternativas[i] = !LblAlternativas_(row)->isHidden();
  }
  return f;
}

void IncertidumbreEntry::setFields(const IncertidumbreFields& f) {
  bindings_.write(f);
  NumAlternativas_->setCurrentIndex(f.NumAlternativas);
  NumEstados_->setCurrentIndex(f.NumEstados);
  for (std::size_t i = 0; i < 7; ++i) {
    const int row = static_cast<int>(i);
    for (std::size_t j = 0; j < 7; ++j) {
      QLineEdit* cell = C_[j](row);
      gui::writeCell(cell, f.C[j][i]);
    }
    LblEstados_(row)->setVisible(f.LblEstados[i]);
    LblAlternativas_(row)->setVisible(f.LblAlternativas[i]);
  }
  gui::fitToTable(*this);
}

void IncertidumbreEntry::rediseñarTabla() {
  if (edit([](IncertidumbreFields& f) { return rediseñar(f); })) C_[0](0)->setFocus();
}

IncertidumbreSolution::IncertidumbreSolution()
    : SolutionScreen("DecisionIncertidumbre_solucion",
                     "Toma de decisiones en ambiente de incertidumbre", 86, 46) {
  struct Definicion {
    Boton boton;
    const char* name;
    const char* picture;
    const char* toolTip;
  };
  // Backward steps first, then forward ones; only one or two show at a time.
  const Definicion definiciones[] = {
      {Boton::Back1, "Back1", "cmd-back", "Criterio Wald, Maximin o Pesimista"},
      {Boton::Continuar2, "Continuar2", "cmd-back", "Criterio Maximax u Optimista"},
      {Boton::NoContinuar, "NoContinuar", "cmd-back", "Criterio Maximax u Optimista"},
      {Boton::NoContinuar2, "NoContinuar2", "cmd-back", "Criterio de Laplace, Criterio de savaje"},
      {Boton::forward1, "forward1", "cmd-forward", "Criterio Maximax u Optimista"},
      {Boton::forward2, "forward2", "cmd-forward", "Criterio de Laplace, Criterio de savaje"},
      {Boton::Continuar1, "Continuar1", "cmd-forward", "Criterio de Hurwicz"},
  };
  int at = 0;
  for (const Definicion& d : definiciones) {
    const Boton boton = d.boton;
    auto* button = command(d.name, d.picture, d.toolTip, [this, boton] { pulsarBoton(boton); }, 40);
    QVBoxLayout* column = gui::captioned(button);
    auto* caption = qobject_cast<QLabel*>(column->itemAt(1)->widget());
    caption->setFixedWidth(130);
    caption->setWordWrap(true);
    caption->setAlignment(Qt::AlignHCenter);
    commandRow()->insertLayout(at++, column);
    botones_[static_cast<std::size_t>(boton)] = {button, caption};
  }
  mostrarBotones();
}

Pages IncertidumbreSolution::compute() {
  const IncertidumbreFields f = entry<IncertidumbreEntry>().fields();
  results_ = solve(f);
  navegacion_ = {};
  mostrarBotones();
  return {report(f, results_), printout(f, results_)};
}

void IncertidumbreSolution::pulsarBoton(Boton boton) {
  const IncertidumbreFields f = entry<IncertidumbreEntry>().fields();
  navegacion_ = pulsar(navegacion_, boton, f);
  Solucion1()->Cls();
  Solucion1()->setReport(pagina(f, results_, navegacion_.pagina));
  mostrarBotones();
}

void IncertidumbreSolution::mostrarBotones() {
  const Botones visibles = botonesVisibles(navegacion_);
  for (std::size_t k = 0; k < botones_.size(); ++k) {
    const bool shown = visible(visibles, static_cast<Boton>(k));
    botones_[k].button->setVisible(shown);
    botones_[k].caption->setVisible(shown);
  }
  if (auto* volver = findChild<QAbstractButton*>("volver")) volver->setVisible(visibles.volver);
}

void IncertidumbreSolution::imprimir() {
  gui::platform().printerDialog();
  gui::printReport(printout(entry<IncertidumbreEntry>().fields(), results_));
}

void registerIncertidumbreScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("DecisionIncertidumbre", [] { return new IncertidumbreEntry(); });
  screens.add("DecisionIncertidumbre_solucion", [] { return new IncertidumbreSolution(); });
}

}  // namespace vorel::decision
