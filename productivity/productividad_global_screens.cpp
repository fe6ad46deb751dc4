#include "productivity/productividad_global_screens.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <tuple>

#include "frame/gui/table_screen.h"

namespace vorel::productivity {

namespace {

using F = ProductividadGlobalFields;

QLabel* rotulo(QWidget* parent, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setStyleSheet("font-size: 10pt; color: #1A202C;");
  return label;
}

// A box the program fills: the row numbers, the counts and the results.
QLineEdit* casilla(QWidget* parent, const QString& name, int width) {
  auto* box = new QLineEdit(parent);
  box->setObjectName(name);
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::NoFocus);
  box->setFixedWidth(width);
  box->setAlignment(Qt::AlignRight);
  return box;
}

}  // namespace

ProductividadGlobalEntry::ProductividadGlobalEntry()
    : ModelEntry("Productividad_Global", "Productividad Global",
                 "La productividad global relaciona el valor de todos los productos con el de "
                 "todos los factores consumidos; valorando ambos años a los precios del año 0 se "
                 "obtienen el índice y la tasa de productividad global",
                 "Titulo1", "Problema 1") {
  bindings_.bind(&F::Titulo1, titleField());
  for (auto [member, name, caption, tip] :
       {std::tuple{&F::TxtCasoO, "TxtCasoO", "Año 0", "Nombre del año 0"},
        std::tuple{&F::TxtCaso1, "TxtCaso1", "Año 1", "Nombre del año 1"}}) {
    QLineEdit* box = addField(name, caption, tip);
    fieldGrid()->setAlignment(box, Qt::AlignLeft);
    bindings_.bind(member, box);
  }
  fieldGrid()->setColumnStretch(2, 1);

  // One panel per group: three parallel lists whose texts are the row being
  // typed, the number of the row in hand and how many rows there are.
  auto* frame = gui::tableFrame(*this);
  auto* grid = gui::tableGrid(frame);
  const QString cabeceras[] = {"Unidades físicas año 0", "Precio unitario año 0",
                               "Unidades físicas año 1"};
  for (int c = 0; c < 3; ++c) {
    auto* head = gui::newColumnHead(frame);
    head->setText(cabeceras[c]);
    grid->addWidget(head, 0, c + 1);
  }
  grid->addWidget(rotulo(frame, "Nº"), 0, 4, Qt::AlignHCenter);
  grid->addWidget(rotulo(frame, "Total"), 0, 5, Qt::AlignHCenter);
  const struct {
    Grupo grupo;
    const char* titulo;
    const char *uf0, *pu0, *uf1, *numero, *total, *cuenta;
    Lista F::*l0;
    Lista F::*p0;
    Lista F::*l1;
    std::string F::*fila;
    std::string F::*filas;
    std::string F::*contador;
  } grupos[] = {
      {Grupo::Inputs, "Factores (inputs)", "CmbUFI0", "CmbPUI0", "CmbUFI1", "TxtFact", "TxtFT",
       "numeroimput", &F::CmbUFI0, &F::CmbPUI0, &F::CmbUFI1, &F::TxtFact, &F::TxtFT,
       &F::numeroimput},
      {Grupo::Outputs, "Productos (outputs)", "CmbUFO0", "CmbPUO0", "CmbUFO1", "TxtProd", "TxtPT",
       "numerooutput", &F::CmbUFO0, &F::CmbPUO0, &F::CmbUFO1, &F::TxtProd, &F::TxtPT,
       &F::numerooutput},
  };
  int row = 1;
  for (const auto& g : grupos) {
    auto* heading = gui::newHeading(frame);
    heading->setText(g.titulo);
    heading->setAlignment(Qt::AlignRight | Qt::AlignTop);
    grid->addWidget(heading, row, 0, 2, 1);
    int column = 1;
    for (auto [name, member] : {std::pair{g.uf0, g.l0}, {g.pu0, g.p0}, {g.uf1, g.l1}}) {
      QComboBox* box = lista(name, member, g.grupo);
      grid->addWidget(box, row, column);
      grid->addWidget(filas(box, g.grupo), row + 1, column++);
    }
    auto* numero = casilla(frame, g.numero, 48);
    auto* total = casilla(frame, g.total, 48);
    auto* cuenta = casilla(frame, g.cuenta, 48);
    cuenta->hide();  // the count the program keeps; Total shows it
    grid->addWidget(numero, row, 4);
    grid->addWidget(total, row, 5);
    bindings_.bind(g.fila, numero);
    bindings_.bind(g.filas, total);
    bindings_.bind(g.contador, cuenta);
    row += 2;
  }

  // The commands on the rows in hand.
  auto* botones = new QHBoxLayout;
  botones->setSpacing(10);
  const struct {
    const char *name, *text, *tip;
    Messages (*accion)(F&);
  } comandos[] = {
      {"AÑADIR", "Añadir", "Añade la fila del input y la del output a sus listas", añadir},
      {"Sustituir", "Sustituir", "Sustituye la fila en mano por los valores escritos", sustituir},
      {"eliminar", "Eliminar", "Elimina la fila en mano de sus listas",
       [](F& f) {
         eliminar(f);
         return Messages{};
       }},
  };
  for (const auto& c : comandos) {
    auto* button = gui::redesignButton(
        *this, [this, accion = c.accion] { edit(accion); }, c.text, c.name);
    button->setToolTip(c.tip);
    botones->addWidget(button);
  }
  botones->addStretch(1);
  grid->addLayout(botones, row++, 1, 1, 5);

  // The results that Resolver writes.
  const struct {
    const char *name, *caption;
    std::string F::*member;
  } resultados[] = {
      {"PO", "Productividad global año 0", &F::PO},
      {"P1", "Productividad global año 1", &F::P1},
      {"IPG", "Índice de productividad global", &F::IPG},
      {"TPG", "Tasa de productividad global", &F::TPG},
  };
  for (const auto& r : resultados) {
    grid->addWidget(rotulo(frame, r.caption), row, 0, Qt::AlignRight);
    auto* box = casilla(frame, r.name, 120);
    grid->addWidget(box, row++, 1);
    bindings_.bind(r.member, box);
  }
  grid->setColumnStretch(6, 1);
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(F{});
}

QComboBox* ProductividadGlobalEntry::lista(const char* name, Lista F::*member, Grupo g) {
  auto* box = new QComboBox(this);
  box->setObjectName(name);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setFixedWidth(150);
  box->setMaxVisibleItems(12);
  box->installEventFilter(this);
  box->lineEdit()->installEventFilter(this);
  // Click on a row: the three lists of the group go to it.
  connect(box, &QComboBox::activated, this, [this, g](int fila) {
    gui::Screen::run([this, g, fila] {
      edit([g, fila](F& f) {
        seleccionar(f, g, fila);
        return Messages{};
      });
    });
  });
  combos_.push_back({member, g, box});
  return box;
}

QListView* ProductividadGlobalEntry::filas(QComboBox* box, Grupo g) {
  // The rows of a list in sight, below its box (which shows only the row
  // being typed): the same items, and a click picks a row as in the box.
  auto* view = new QListView(this);
  view->setObjectName(box->objectName() + "_filas");
  view->setModel(box->model());
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view->setFocusPolicy(Qt::NoFocus);
  view->setFixedSize(box->width(), 5 * (view->fontMetrics().height() + 3) + 2 * view->frameWidth());
  view->setToolTip(box->toolTip());
  connect(view, &QListView::clicked, this, [this, box, g](const QModelIndex& at) {
    gui::Screen::run([this, box, g, fila = at.row()] {
      box->setCurrentIndex(fila);
      edit([g, fila](F& f) {
        seleccionar(f, g, fila);
        return Messages{};
      });
    });
  });
  auto follow = [box, view](int fila) { view->setCurrentIndex(box->model()->index(fila, 0)); };
  connect(box, &QComboBox::currentIndexChanged, view, follow);
  return view;
}

bool ProductividadGlobalEntry::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn)
    for (const Combo& c : combos_)
      if (watched == c.box || watched == c.box->lineEdit()) {
        const int fila = c.box->currentIndex();
        const Grupo g = c.grupo;
        edit([g, fila](F& f) {
          enfocar(f, g, fila);
          return Messages{};
        });
        break;
      }
  return ModelEntry::eventFilter(watched, event);
}

F ProductividadGlobalEntry::fields() const {
  F f;
  bindings_.read(f);
  for (const Combo& c : combos_) {
    Lista& l = f.*(c.lista);
    l.text = c.box->currentText().toStdString();
    l.ListIndex = c.box->currentIndex();
    for (int i = 0; i < c.box->count(); ++i) l.items.push_back(c.box->itemText(i).toStdString());
  }
  f.grupo = property("grupo").toInt() == 1 ? Grupo::Outputs : Grupo::Inputs;
  return f;
}

void ProductividadGlobalEntry::setFields(const F& f) {
  bindings_.write(f);
  for (const Combo& c : combos_) {
    const Lista& l = f.*(c.lista);
    QStringList items;
    for (const std::string& s : l.items) items << QString::fromStdString(s);
    if (c.box->count() != items.size() || [&] {
          for (int i = 0; i < items.size(); ++i)
            if (c.box->itemText(i) != items[i]) return true;
          return false;
        }()) {
      c.box->clear();
      c.box->addItems(items);
    }
    c.box->setCurrentIndex(l.ListIndex);
    c.box->setEditText(QString::fromStdString(l.text));
  }
  setProperty("grupo", f.grupo == Grupo::Outputs ? 1 : 0);
}

void ProductividadGlobalEntry::resolver() {
  if (edit([](F& f) {
        productivity::resolver(f);
        return Messages{};
      }))
    showSolution(info()->solutions.front());
}

ProductividadGlobalSolution::ProductividadGlobalSolution()
    : SolutionScreen("Productividad_Global_Solucion", "Productividad Global", 96, 28) {}

Pages ProductividadGlobalSolution::compute() {
  const F f = entry<ProductividadGlobalEntry>().fields();
  return {report(f), printout(f)};
}

void registerProductividadGlobalScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Productividad_Global", [] { return new ProductividadGlobalEntry(); });
  screens.add("Productividad_Global_Solucion", [] { return new ProductividadGlobalSolution(); });
}

}  // namespace vorel::productivity
