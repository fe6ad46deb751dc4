#include "layout/carga_distancia_screens.h"

#include <QFrame>
#include <QHBoxLayout>

#include "frame/gui/table_screen.h"

namespace vorel::facility {

namespace {

QLineEdit* celda(QWidget* parent, int width) {
  auto* cell = gui::newCell(parent);
  cell->setFixedWidth(width);
  return cell;
}

}  // namespace

CargaDistanciaEntry::CargaDistanciaEntry()
    : ModelEntry("Distribucion_CargaDistancia", "Análisis Carga-Distancia", "", "Título",
                 "Problema 1") {
  bindings_.bind(&CargaDistanciaFields::Título, titleField());
  NumActividades_ =
      gui::addNumberSelector(*this, 0, 0, "NumActividades", "Número de Productos", kMaxProductos);
  NumDistancias_ = gui::addNumberSelector(*this, 1, 0, "NumDistancias", "Número de Distancias",
                                          kMaxFilasDistancia);
  auto* reshape = gui::redesignButton(*this, [this] { rediseñarTabla(); });
  fieldGrid()->addWidget(reshape, 2, 0, 1, 2, Qt::AlignLeft);
  fieldGrid()->setColumnStretch(2, 1);

  // The products: one row each, its route of five departments and its production.
  auto* productos = gui::tableFrame(*this);
  QGridLayout* grid = gui::tableGrid(productos);
  auto* secuencia = gui::newColumnHead(productos);
  secuencia->setText("Secuencia");
  grid->addWidget(secuencia, 0, 1, 1, kPasosRuta);
  auto* produccion = gui::newColumnHead(productos);
  produccion->setText("Producción");
  grid->addWidget(produccion, 0, kPasosRuta + 1);
  gui::createRowHeads(productos, LblActividades_, "LblActividades", kMaxProductos, 1);
  for (int k = 1; k <= kMaxProductos; ++k) {
    LblActividades_(k - 1)->setText("Producto " + QString::number(k));
    auto& ruta = C_[static_cast<std::size_t>(k - 1)];
    ruta.create(productos, "C" + QString::number(k), 0, kPasosRuta - 1,
                [](QWidget* p) { return celda(p, 44); });
    for (int r = 0; r < kPasosRuta; ++r) grid->addWidget(ruta(r), k, r + 1);
  }
  Produccion_.create(productos, "Produccion", 0, kMaxProductos - 1,
                     [](QWidget* p) { return celda(p, 96); });
  for (int i = 0; i < kMaxProductos; ++i) grid->addWidget(Produccion_(i), i + 1, kPasosRuta + 1);
  grid->setRowStretch(kMaxProductos + 1, 1);

  // The distances between pairs of departments, in two blocks of rows.
  auto* distancias = gui::tableFrame(*this);
  grid = gui::tableGrid(distancias);
  LblDepartamentos_.create(distancias, "LblDepartamentos", 0, 1, gui::newColumnHead);
  Lbldistancias_.create(distancias, "Lbldistancias", 0, 1, gui::newColumnHead);
  for (int b = 0; b < 2; ++b) {
    LblDepartamentos_(b)->setText("Departamentos");
    Lbldistancias_(b)->setText("Distancia");
    grid->addWidget(LblDepartamentos_(b), 0, 3 * b, 1, 2);
    grid->addWidget(Lbldistancias_(b), 0, 3 * b + 2);
  }
  auto crear = [&](gui::ControlArray<QLineEdit>& array, const char* name, int width) {
    array.create(distancias, name, 0, kMaxFilasDistancia - 1,
                 [width](QWidget* p) { return celda(p, width); });
  };
  crear(D1_, "D1", 44);
  crear(D2_, "D2", 44);
  crear(Distancias_, "Distancias", 96);
  for (int t = 0; t < kMaxFilasDistancia; ++t) {
    const int bloque = t / kFilasPrimerBloque, fila = t % kFilasPrimerBloque + 1;
    grid->addWidget(D1_(t), fila, 3 * bloque);
    grid->addWidget(D2_(t), fila, 3 * bloque + 1);
    grid->addWidget(Distancias_(t), fila, 3 * bloque + 2);
  }
  grid->setColumnMinimumWidth(2, 110);
  grid->setRowStretch(kFilasPrimerBloque + 1, 1);

  auto* tablas = new QHBoxLayout();
  tablas->setSpacing(14);
  tablas->addWidget(productos, 0, Qt::AlignTop);
  tablas->addWidget(distancias, 0, Qt::AlignTop);
  tablas->addStretch();
  body()->insertLayout(body()->indexOf(fieldGrid()) + 1, tablas);

  setFields(CargaDistanciaFields{});
}

CargaDistanciaFields CargaDistanciaEntry::fields() const {
  CargaDistanciaFields f;
  bindings_.read(f);
  f.NumActividades = NumActividades_->currentIndex();
  f.NumDistancias = NumDistancias_->currentIndex();
  for (int k = 0; k < kMaxProductos; ++k) {
    for (int r = 0; r < kPasosRuta; ++r) item(item(f.C, k), r) = gui::readCell(C_[k](r));
    item(f.Produccion, k) = gui::readCell(Produccion_(k));
    item(f.LblActividades, k) = !LblActividades_(k)->isHidden();
  }
  for (int t = 0; t < kMaxFilasDistancia; ++t) {
    item(f.D1, t) = gui::readCell(D1_(t));
    item(f.D2, t) = gui::readCell(D2_(t));
    item(f.Distancias, t) = gui::readCell(Distancias_(t));
  }
  for (int b = 0; b < 2; ++b) {
    item(f.LblDepartamentos, b) = !LblDepartamentos_(b)->isHidden();
    item(f.Lbldistancias, b) = !Lbldistancias_(b)->isHidden();
  }
  return f;
}

void CargaDistanciaEntry::setFields(const CargaDistanciaFields& f) {
  bindings_.write(f);
  NumActividades_->setCurrentIndex(f.NumActividades);
  NumDistancias_->setCurrentIndex(f.NumDistancias);
  for (int k = 0; k < kMaxProductos; ++k) {
    for (int r = 0; r < kPasosRuta; ++r) gui::writeCell(C_[k](r), item(item(f.C, k), r));
    gui::writeCell(Produccion_(k), item(f.Produccion, k));
    LblActividades_(k)->setVisible(item(f.LblActividades, k));
  }
  for (int t = 0; t < kMaxFilasDistancia; ++t) {
    gui::writeCell(D1_(t), item(f.D1, t));
    gui::writeCell(D2_(t), item(f.D2, t));
    gui::writeCell(Distancias_(t), item(f.Distancias, t));
  }
  for (int b = 0; b < 2; ++b) {
    LblDepartamentos_(b)->setVisible(item(f.LblDepartamentos, b));
    Lbldistancias_(b)->setVisible(item(f.Lbldistancias, b));
  }
  gui::fitToTable(*this);
}

void CargaDistanciaEntry::rediseñarTabla() {
  if (edit([](CargaDistanciaFields& f) {
        rediseñar(f);
        return Messages{};
      }))
    C_[0](0)->setFocus();
}

CargaDistanciaSolution::CargaDistanciaSolution()
    : SolutionScreen("Distribucion_Cargadistancia_Solucion", "Análisis Carga-Distancia", 96, 34) {}

Pages CargaDistanciaSolution::compute() {
  CargaDistanciaFields f = entry<CargaDistanciaEntry>().fields();
  return solveAndReport(f);
}

void registerCargaDistanciaScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Distribucion_CargaDistancia", [] { return new CargaDistanciaEntry(); });
  screens.add("Distribucion_Cargadistancia_Solucion", [] { return new CargaDistanciaSolution(); });
}

}  // namespace vorel::facility
