#include "decision/riesgo_screens.h"

#include "frame/gui/table_screen.h"

namespace vorel::decision {

RiesgoEntry::RiesgoEntry()
    : ModelEntry("DecisionRiesgoNobayesiano", "Toma de Decisiones en Ambiente de Riesgo",
                 "Un ambiente de riesgo queda definido cuando suponemos que cada uno de las "
                 "posibles situaciones que se pueden presentar aun siendo desconocidas quedan "
                 "definidas por una distribución de probabilidad conocida",
                 "Título", "Problema 1") {
  gui::renameChrome(*this, "volver", "Image5");
  bindings_.bind(&RiesgoFields::Título, titleField());
  const int top = gui::gridRow(fieldGrid(), titleField());
  NumAlternativas_ =
      gui::addNumberSelector(*this, top, 3, "NumAlternativas", "Número de Alternativas", 7);
  NumEstados_ = gui::addNumberSelector(*this, top + 1, 3, "NumEstados",
                                       "Número de Estados de la Naturaleza", 8);
  fieldGrid()->addWidget(gui::redesignButton(*this, [this] { rediseñarTabla(); }), top + 2, 3, 1, 2,
                         Qt::AlignLeft);
  fieldGrid()->setColumnMinimumWidth(2, 24);

  // The table: alternatives down the rows, then the probabilities; states across.
  QFrame* frame = tablaPagos(*this, LblEstado_, "LblEstado", lblAlternativa_, "lblAlternativa", 8);
  gui::createCells(frame, C_, "C", 8, 96, 2);
  auto* leyenda = new QLabel(
      "Ps: Probalididad de ocurrencia de los diferentes estados de la naturaleza", frame);
  leyenda->setObjectName("Label7");
  leyenda->setStyleSheet("font-size: 9pt; color: #4A5568;");
  gui::tableGrid(frame)->addWidget(leyenda, 10, 0, 1, 9, Qt::AlignLeft);
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(RiesgoFields{});
}

RiesgoFields RiesgoEntry::fields() const {
  RiesgoFields f;
  bindings_.read(f);
  f.NumAlternativas = NumAlternativas_->currentIndex();
  f.NumEstados = NumEstados_->currentIndex();
  leerCeldas(C_, f.C);
  for (std::size_t i = 0; i < 8; ++i) {
    const int row = static_cast<int>(i);
    f.LblEstado[i] = !LblEstado_(row)->isHidden();
    f.lblAlternativa[i] = !lblAlternativa_(row)->isHidden();
    f.lblAlternativaCaption[i] = lblAlternativa_(row)->text().toStdString();
  }
  return f;
}

void RiesgoEntry::setFields(const RiesgoFields& f) {
  bindings_.write(f);
  NumAlternativas_->setCurrentIndex(f.NumAlternativas);
  NumEstados_->setCurrentIndex(f.NumEstados);
  escribirCeldas(C_, f.C);
  for (std::size_t i = 0; i < 8; ++i) {
    const int row = static_cast<int>(i);
    LblEstado_(row)->setVisible(f.LblEstado[i]);
    lblAlternativa_(row)->setVisible(f.lblAlternativa[i]);
    lblAlternativa_(row)->setText(QString::fromStdString(f.lblAlternativaCaption[i]));
    // The row of probabilities is tinted, as a row apart from the results.
    for (auto& column : C_) gui::markTotalCell(column(row), f.lblAlternativaCaption[i] == "Ps");
  }
  gui::fitToTable(*this);
}

void RiesgoEntry::rediseñarTabla() {
  if (edit([](RiesgoFields& f) { return rediseñar(f); })) C_[0](0)->setFocus();
}

RiesgoSolution::RiesgoSolution()
    : PaginasSolution("DecisionRiesgoNobayesiano_solucion",
                      "Toma de decisiones en ambiente de riesgo", 86, 50) {
  crearFlechas({
      {int(BotonRiesgo::Back1), "Back1", "cmd-back", "Criterio de la dominancia simple"},
      {int(BotonRiesgo::back2), "back2", "cmd-back", "Criterio de la dominancia estocástica"},
      {int(BotonRiesgo::forward1), "forward1", "cmd-forward",
       "Criterio de la dominancia estocástica"},
      {int(BotonRiesgo::forward2), "forward2", "cmd-forward", "Criterio del valor medio"},
  });
  mostrarBotones();
}

Pages RiesgoSolution::compute() {
  const RiesgoFields f = entry<RiesgoEntry>().fields();
  results_ = solve(f);
  pagina_ = PaginaRiesgo::DominanciaSimple;
  mostrarBotones();
  return {report(f, results_), printout(f, results_)};
}

void RiesgoSolution::pulsar(int boton) {
  pagina_ = decision::pulsar(pagina_, static_cast<BotonRiesgo>(boton));
  pintar(pagina(entry<RiesgoEntry>().fields(), results_, pagina_));
  mostrarBotones();
}

void RiesgoSolution::mostrarBotones() {
  mostrarFlechas([this](int boton) { return visible(pagina_, static_cast<BotonRiesgo>(boton)); },
                 volverVisible(pagina_));
}

void RiesgoSolution::imprimir() {
  gui::platform().printerDialog();
  gui::printReport(printout(entry<RiesgoEntry>().fields(), results_));
}

void registerRiesgoScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("DecisionRiesgoNobayesiano", [] { return new RiesgoEntry(); });
  screens.add("DecisionRiesgoNobayesiano_solucion", [] { return new RiesgoSolution(); });
}

}  // namespace vorel::decision
