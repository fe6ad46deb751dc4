#include "games/juegos_jugadores_screens.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "frame/gui/printing.h"
#include "frame/gui/table_screen.h"

namespace vorel::games {

namespace {

QLabel* rotulo(QWidget* parent, const QString& text, const char* style) {
  auto* label = new QLabel(text, parent);
  label->setStyleSheet(QString::fromLatin1(style));
  return label;
}

const char* kGrupo = "font-size: 10pt; font-weight: 600; color: #4A5568;";
const char* kCabeza =
    "font-weight: 600; color: #2D3748; background: #E2E8F0;"
    " border-radius: 3px; padding: 3px 8px;";
const char* kBlanco = "QLineEdit { background: #FFFFFF; }";
const char* kResaltado = "QLineEdit { background: #FDE9A8; }";

// The heads of a table's columns (J2's decisions) and the corner that tells
// the order of the payoffs in each cell, as the report writes them.
void cabeceras(QGridLayout* grid, QWidget* parent, std::size_t jugadores) {
  const QString orden = jugadores == 2 ? "(J1,J2)" : "(J1,J2,J3)";
  grid->addWidget(rotulo(parent, "Jugador 2", kGrupo), 0, 1, 1, 2, Qt::AlignHCenter);
  grid->addWidget(rotulo(parent, orden, "color: #4A5568;"), 1, 0, Qt::AlignCenter);
  for (int d = 0; d < 2; ++d)
    grid->addWidget(rotulo(parent, QString("Decisión %1").arg(d + 1), kCabeza), 1, d + 1,
                    Qt::AlignHCenter);
}

}  // namespace

PanelEquilibrios::PanelEquilibrios(const QString& objectName, int columns, int lines,
                                   QWidget* parent)
    : QWidget(parent) {
  setObjectName(objectName);
  const QFontMetricsF m(gui::reportFont(gui::kScreenPointSize));
  columnsWide_ = int(gui::averageCharWidth(m) * columns) + 8;
  setFixedSize(columnsWide_, int(m.lineSpacing() * lines) + 8);
  setFont(gui::reportFont(gui::kScreenPointSize));
}

void PanelEquilibrios::setReport(const Report& report) {
  report_ = report;
  // At least `columns` wide, and wider where a line is longer, so that no
  // sentence the command prints is cut at the panel's edge.
  const QFontMetricsF m(font());
  auto width = [&m](const std::string& s) {
    return m.horizontalAdvance(QString::fromStdString(s));
  };
  double widest = 0;
  for (const LaidOutLine& line :
       vorel::layout(report_, kZoneColumns * gui::averageCharWidth(m), width))
    if (!line.empty()) widest = std::max(widest, line.back().x + width(line.back().text));
  setFixedWidth(std::max(columnsWide_, int(std::ceil(widest)) + 8));
  update();
}

void PanelEquilibrios::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), Qt::white);
  p.setPen(Qt::black);
  p.setFont(font());
  gui::paintReport(p, report_, 4);
}

template <class Fields, class Estado, std::size_t J>
EquilibriosEntry<Fields, Estado, J>::EquilibriosEntry(
    const std::string& name, const QString& heading, const QString& intro,
    const std::array<const char*, kCeldas<J>>& nombres)
    : gui::ModelEntry<Fields>(name, heading, intro, "Titulo1", "Problema1") {
  // One table for each decision of J3 (a single one with two players): J1's
  // decisions down the rows, J2's across, each cell "( J1 , J2 , J3 )".
  auto* tablas = new QVBoxLayout();
  tablas->setSpacing(10);
  for (std::size_t t = 0; t < kCeldas<J> / 4; ++t) {
    auto* frame = gui::tableFrame(*this);
    auto* grid = gui::tableGrid(frame);
    grid->setHorizontalSpacing(18);
    if (J == 3)
      grid->addWidget(rotulo(frame, QString("Jugador 3: Decisión %1").arg(t + 1), kGrupo), 0, 0);
    cabeceras(grid, frame, J);
    grid->addWidget(rotulo(frame, "Jugador 1", kGrupo), 2, 0, Qt::AlignLeft);
    for (int fila = 0; fila < 2; ++fila) {
      grid->addWidget(rotulo(frame, QString("Decisión %1").arg(fila + 1), kCabeza), fila + 3, 0,
                      Qt::AlignRight);
      for (int columna = 0; columna < 2; ++columna) {
        const std::size_t c = t * 4 + std::size_t(fila) * 2 + std::size_t(columna);
        auto* celda = new QHBoxLayout();
        celda->setSpacing(3);
        celda->addWidget(rotulo(frame, "(", ""));
        for (std::size_t j = 0; j < J; ++j) {
          if (j) celda->addWidget(rotulo(frame, ",", ""));
          auto* box = gui::newCell(frame);
          box->setFixedWidth(58);
          box->setObjectName(QString::fromStdString(element(nombres[c], int(j))));
          box->setStyleSheet(kBlanco);
          pagos_[c][j] = box;
          celda->addWidget(box);
        }
        celda->addWidget(rotulo(frame, ")", ""));
        grid->addLayout(celda, fila + 3, columna + 1);
      }
    }
    grid->setColumnStretch(3, 1);
    tablas->addWidget(frame);
  }
  this->fieldGrid()->addLayout(tablas, 0, 0, 1, 2);

  // The two commands, each above the frame of its panel; a frame is shown
  // once its command has run.
  auto orden = [this](const QString& objectName, const QString& text, bool puras) {
    return gui::redesignButton(
        *this, [this, puras] { comando(puras); }, text, objectName);
  };
  auto marco = [this](const QString& objectName, PanelEquilibrios* panel) {
    auto* frame = new QFrame(this);
    frame->setObjectName(objectName);
    frame->setStyleSheet(
        "QFrame#" + objectName +
        " { border: 1px solid #D5DAE3; border-radius: 6px; background: #F7F9FC; }");
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(8, 8, 8, 8);
    panel->setParent(frame);
    layout->addWidget(panel);
    return frame;
  };
  SPuras_ = new PanelEquilibrios("SPuras", 40, J == 2 ? 4 : 8, this);
  SMixtas_ = new PanelEquilibrios("SMixtas", 40, J == 2 ? 8 : 6, this);
  marcoPuras_ = marco("EquilibriosPuras", SPuras_);
  marcoMixtas_ = marco("EquilibriosMixtas", SMixtas_);
  auto* grid = this->fieldGrid();
  grid->addWidget(orden("EstPuras", "Equilibrios en Estrategias Puras", true), 1, 0, Qt::AlignLeft);
  grid->addWidget(orden("EstMixtas", "Equilibrios en Estrategias Mixtas", false), 1, 1,
                  Qt::AlignLeft);
  grid->addWidget(marcoPuras_, 2, 0, Qt::AlignLeft | Qt::AlignTop);
  grid->addWidget(marcoMixtas_, 2, 1, Qt::AlignLeft | Qt::AlignTop);
  // The frames keep their room while hidden, so the window does not jump.
  for (QFrame* frame : {marcoPuras_, marcoMixtas_}) {
    QSizePolicy policy = frame->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    frame->setSizePolicy(policy);
  }
  pintar();
}

template <class Fields, class Estado, std::size_t J>
Fields EquilibriosEntry<Fields, Estado, J>::fields() const {
  Fields f;
  f.Titulo1 = this->titleField()->text().toStdString();
  auto celdas = f.celdas();
  for (std::size_t c = 0; c < kCeldas<J>; ++c)
    for (std::size_t j = 0; j < J; ++j) (*celdas[c])[j] = pagos_[c][j]->text().toStdString();
  return f;
}

template <class Fields, class Estado, std::size_t J>
void EquilibriosEntry<Fields, Estado, J>::setFields(const Fields& f) {
  this->titleField()->setText(QString::fromStdString(f.Titulo1));
  const auto celdas = f.celdas();
  for (std::size_t c = 0; c < kCeldas<J>; ++c)
    for (std::size_t j = 0; j < J; ++j)
      pagos_[c][j]->setText(QString::fromStdString((*celdas[c])[j]));
}

template <class Fields, class Estado, std::size_t J>
void EquilibriosEntry<Fields, Estado, J>::nuevo() {
  gui::ModelEntry<Fields>::nuevo();
  pintar();
}

template <class Fields, class Estado, std::size_t J>
void EquilibriosEntry<Fields, Estado, J>::comando(bool puras) {
  const Fields f = fields();
  const Messages m = puras ? estPuras(f, estado_) : estMixtas(f, estado_);
  pintar();
  this->tell(m);
}

// The cells that the shown panel of EstPuras lists are painted as equilibria;
// nuevo, which hides the frame, turns every cell white again.
template <class Fields, class Estado, std::size_t J>
void EquilibriosEntry<Fields, Estado, J>::pintar() {
  marcoPuras_->setVisible(estado_.EquilibriosPuras.visible);
  marcoMixtas_->setVisible(estado_.EquilibriosMixtas.visible);
  SPuras_->setReport(estado_.EquilibriosPuras.lineas);
  SMixtas_->setReport(estado_.EquilibriosMixtas.lineas);
  for (std::size_t c = 0; c < kCeldas<J>; ++c) {
    const bool equilibrio = estado_.EquilibriosPuras.visible && estado_.Puro[c] == 1;
    for (QLineEdit* box : pagos_[c]) box->setStyleSheet(equilibrio ? kResaltado : kBlanco);
  }
}

template class EquilibriosEntry<Juegos2Fields, Juegos2Estado, 2>;
template class EquilibriosEntry<Juegos3Fields, Juegos3Estado, 3>;

void registerJuegos2Screens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Juegos_2", [] {
    return new Juegos2Entry("Juegos_2", "Juegos con 2 jugadores",
                            "Se determinan los equilibrios existentes, tanto en estrategias puras "
                            "como en estrategias mixtas, para juegos de 2 jugadores con 2 "
                            "estrategias (2x2). ",
                            {"E1", "E2", "E3", "E4"});
  });
  screens.add("Juegos_2_Solucion", [] {
    return new EquilibriosSolution<Juegos2Entry>("Juegos_2_Solucion", "Juegos con 2 jugadores", 34);
  });
}

void registerJuegos3Screens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add("Juegos_3", [] {
    return new Juegos3Entry("Juegos_3", "Juegos con 3 jugadores",
                            "Se determinan los equilibrios existentes, tanto en estrategias puras "
                            "como en estrategias mixtas para juegos de 3 jugadores con 2 "
                            "estrategias (3x2).",
                            {"E1", "E2", "E3", "E4", "E11", "E21", "E31", "E41"});
  });
  screens.add("Juegos_3_Solucion", [] {
    return new EquilibriosSolution<Juegos3Entry>("Juegos_3_Solucion", "Juegos con 3 jugadores", 44);
  });
}

}  // namespace vorel::games
