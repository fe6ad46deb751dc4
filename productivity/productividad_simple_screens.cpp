#include "productivity/productividad_simple_screens.h"

#include <QLabel>

namespace vorel::productivity {

namespace {

QLabel* rotulo(QWidget* parent, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setStyleSheet("font-size: 10pt; color: #1A202C;");
  return label;
}

}  // namespace

ProductividadSimpleEntry::ProductividadSimpleEntry()
    : ModelEntry("Productividad_Simple", "Productividad Parcial",
                 "La productividad parcial relaciona la producción de un período con la cantidad "
                 "consumida de un solo factor productivo; comparando dos años se obtiene su tasa "
                 "de variación",
                 "Titulo1", "Problema 1") {
  bindings_.bind(&ProductividadSimpleFields::Titulo1, titleField());
  // The two years side by side: the year's name, its factors and its output.
  QGridLayout* grid = fieldGrid();
  const int top = grid->rowCount();
  grid->addWidget(rotulo(this, "Año 0"), top, 1, Qt::AlignHCenter);
  grid->addWidget(rotulo(this, "Año 1"), top, 2, Qt::AlignHCenter);
  const struct {
    const char* caption;
    std::string ProductividadSimpleFields::*año0;
    std::string ProductividadSimpleFields::*año1;
    const char *nombre0, *nombre1, *ayuda;
  } filas[] = {
      {"Año", &ProductividadSimpleFields::Anio0, &ProductividadSimpleFields::Anio1, "Anio0",
       "Anio1", "Nombre del año"},
      {"Factores productivos (unidades)", &ProductividadSimpleFields::Factores0,
       &ProductividadSimpleFields::Factores1, "Factores0", "Factores1",
       "Unidades del factor productivo consumidas en el año"},
      {"Producción (unidades)", &ProductividadSimpleFields::Produccion0,
       &ProductividadSimpleFields::Produccion1, "Produccion0", "Produccion1",
       "Unidades producidas en el año"},
  };
  int row = top + 1;
  for (const auto& fila : filas) {
    grid->addWidget(rotulo(this, fila.caption), row, 0);
    for (auto [member, name, column] :
         {std::tuple{fila.año0, fila.nombre0, 1}, std::tuple{fila.año1, fila.nombre1, 2}}) {
      auto* box = new QLineEdit(this);
      box->setObjectName(name);
      box->setToolTip(fila.ayuda);
      box->setFixedWidth(140);
      box->setAlignment(Qt::AlignRight);
      grid->addWidget(box, row, column);
      bindings_.bind(member, box);
    }
    ++row;
  }
  grid->setColumnStretch(3, 1);
}

ProductividadSimpleFields ProductividadSimpleEntry::fields() const {
  ProductividadSimpleFields f;
  bindings_.read(f);
  return f;
}

void ProductividadSimpleEntry::setFields(const ProductividadSimpleFields& f) { bindings_.write(f); }

ProductividadSimpleSolution::ProductividadSimpleSolution()
    : SolutionScreen("Productividad_Simple_Solucion", "Productividad Parcial", 96, 28) {}

Pages ProductividadSimpleSolution::compute() {
  ProductividadSimpleFields f = entry<ProductividadSimpleEntry>().fields();
  return solveAndReport(f);
}

void registerProductividadSimpleScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Productividad_Simple", [] { return new ProductividadSimpleEntry(); });
  screens.add("Productividad_Simple_Solucion", [] { return new ProductividadSimpleSolution(); });
}

}  // namespace vorel::productivity
