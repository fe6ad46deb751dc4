#include "decision/incertidumbre_screens.h"

#include "frame/gui/table_screen.h"

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
  QFrame* frame =
      tablaPagos(*this, LblEstados_, "LblEstados", LblAlternativas_, "LblAlternativas", 7);
  gui::createCells(frame, C_, "C", 7, 96, 2);
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(IncertidumbreFields{});
}

IncertidumbreFields IncertidumbreEntry::fields() const {
  IncertidumbreFields f;
  bindings_.read(f);
  f.NumAlternativas = NumAlternativas_->currentIndex();
  f.NumEstados = NumEstados_->currentIndex();
  leerCeldas(C_, f.C);
  for (std::size_t i = 0; i < 7; ++i) {
    const int row = static_cast<int>(i);
    f.LblEstados[i] = !LblEstados_(row)->isHidden();
    f.LblAlternativas[i] = !LblAlternativas_(row)->isHidden();
  }
  return f;
}

void IncertidumbreEntry::setFields(const IncertidumbreFields& f) {
  bindings_.write(f);
  NumAlternativas_->setCurrentIndex(f.NumAlternativas);
  NumEstados_->setCurrentIndex(f.NumEstados);
  escribirCeldas(C_, f.C);
  for (std::size_t i = 0; i < 7; ++i) {
    const int row = static_cast<int>(i);
    LblEstados_(row)->setVisible(f.LblEstados[i]);
    LblAlternativas_(row)->setVisible(f.LblAlternativas[i]);
  }
  gui::fitToTable(*this);
}

void IncertidumbreEntry::rediseñarTabla() {
  if (edit([](IncertidumbreFields& f) { return rediseñar(f); })) C_[0](0)->setFocus();
}

IncertidumbreSolution::IncertidumbreSolution()
    : PaginasSolution("DecisionIncertidumbre_solucion",
                      "Toma de decisiones en ambiente de incertidumbre", 86, 46) {
  // Backward steps first, then forward ones; only one or two show at a time.
  crearFlechas({
      {int(Boton::Back1), "Back1", "cmd-back", "Criterio Wald, Maximin o Pesimista"},
      {int(Boton::Continuar2), "Continuar2", "cmd-back", "Criterio Maximax u Optimista"},
      {int(Boton::NoContinuar), "NoContinuar", "cmd-back", "Criterio Maximax u Optimista"},
      {int(Boton::NoContinuar2), "NoContinuar2", "cmd-back",
       "Criterio de Laplace, Criterio de savaje"},
      {int(Boton::forward1), "forward1", "cmd-forward", "Criterio Maximax u Optimista"},
      {int(Boton::forward2), "forward2", "cmd-forward", "Criterio de Laplace, Criterio de savaje"},
      {int(Boton::Continuar1), "Continuar1", "cmd-forward", "Criterio de Hurwicz"},
  });
  mostrarBotones();
}

Pages IncertidumbreSolution::compute() {
  const IncertidumbreFields f = entry<IncertidumbreEntry>().fields();
  results_ = solve(f);
  navegacion_ = {};
  mostrarBotones();
  return {report(f, results_), printout(f, results_)};
}

void IncertidumbreSolution::pulsar(int boton) {
  const IncertidumbreFields f = entry<IncertidumbreEntry>().fields();
  navegacion_ = decision::pulsar(navegacion_, static_cast<Boton>(boton), f);
  pintar(pagina(f, results_, navegacion_.pagina));
  mostrarBotones();
}

void IncertidumbreSolution::mostrarBotones() {
  const Botones visibles = botonesVisibles(navegacion_);
  mostrarFlechas([&](int boton) { return visible(visibles, static_cast<Boton>(boton)); },
                 visibles.volver);
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
