#include "games/juegos_n_screens.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

#include "frame/gui/table_screen.h"

namespace vorel::games {

namespace {

const std::string kEntry = "Juegos_n";
const std::string kSolution = "Juegos_n_solucion";

QLabel* caption(QWidget* parent, const QString& text, const char* style) {
  auto* label = new QLabel(text, parent);
  label->setStyleSheet(QString::fromLatin1(style));
  return label;
}

// A head of a row or column: a text box that shows the strategy's name.
QLineEdit* cabecera(QWidget* parent) {
  auto* head = new QLineEdit(parent);
  head->setReadOnly(true);
  head->setFocusPolicy(Qt::NoFocus);
  head->setFixedWidth(64);
  head->setAlignment(Qt::AlignCenter);
  head->setStyleSheet(
      "QLineEdit { font-weight: 600; color: #2D3748; background: #E2E8F0; border: none;"
      " border-radius: 3px; padding: 3px 2px; }");
  return head;
}

}  // namespace

JuegosNEntry::JuegosNEntry()
    : ModelEntry(kEntry, "Juegos con n estrategias",
                 "En este caso se resolverán juegos de suma constante obteniéndo únicamente "
                 "equilibrios en estrategias puras a través del maximin y el minimax. Para obtener "
                 "equilibrios en estrategias mixtas deberemos recurrir a programación lineal.",
                 "Título", "Problema 1") {
  gui::renameChrome(*this, "volver", "Image5");

  NDecA_ =
      gui::addNumberSelector(*this, 0, 0, "NDecA", "Estrategias del Jugador 1", kMaxEstrategias,
                             "Número de decisiones que puede tomar Jugador 1");
  NDecB_ =
      gui::addNumberSelector(*this, 1, 0, "NDecB", "Estrategias del Jugador 2", kMaxEstrategias,
                             "Número de Decisiones que puede tomar Jugador 2");
  auto* reshape = gui::redesignButton(
      *this, [this] { rediseñarTabla(); }, "Rediseñar tabla", "Rediseñar");
  reshape->setToolTip("Ajusta la tabla al número de decisiones deseadas");
  fieldGrid()->addWidget(reshape, 0, 3, 2, 1, Qt::AlignVCenter);
  fieldGrid()->setColumnMinimumWidth(2, 24);
  fieldGrid()->setColumnStretch(4, 1);

  // The table: player 1's strategies A down the rows, player 2's B across.
  // The row of head A(k-1) holds the array Ak, its element i under the head
  // B(i), so that Tabla(a, b) stands in row "A a+1", column "B b+1".
  auto* frame = gui::tableFrame(*this);
  auto* grid = gui::tableGrid(frame);
  const char* grupo = "font-size: 10pt; font-weight: 600; color: #4A5568;";
  grid->addWidget(caption(frame, "Jugador 2", grupo), 0, 1, 1, kMaxEstrategias, Qt::AlignLeft);
  grid->addWidget(caption(frame, "Jugador 1", grupo), 1, 0, Qt::AlignLeft | Qt::AlignBottom);
  cabeceraA_.create(frame, "A", 0, kMaxEstrategias - 1, cabecera);
  cabeceraB_.create(frame, "B", 0, kMaxEstrategias - 1, cabecera);
  for (int k = 1; k <= kMaxEstrategias; ++k)
    fila(k).create(frame, "A" + QString::number(k), 0, kMaxEstrategias - 1, [](QWidget* p) {
      auto* cell = gui::newCell(p);
      cell->setFixedWidth(64);
      return cell;
    });
  for (int i = 0; i < kMaxEstrategias; ++i) {
    cabeceraA_(i)->setText("A" + QString::number(i + 1));
    cabeceraB_(i)->setText("B" + QString::number(i + 1));
    grid->addWidget(cabeceraB_(i), 1, i + 1);
    grid->addWidget(cabeceraA_(i), i + 2, 0);
    for (int k = 1; k <= kMaxEstrategias; ++k) grid->addWidget(fila(k)(i), k + 1, i + 1);
  }
  grid->setColumnStretch(kMaxEstrategias + 1, 1);
  gui::placeTable(body(), fieldGrid(), frame);

  setFields(JuegosNFields{});
}

JuegosNFields JuegosNEntry::fields() const {
  JuegosNFields f;
  f.Título = titleField()->text().toStdString();
  f.NDecA = NDecA_->currentIndex();
  f.NDecB = NDecB_->currentIndex();
  for (int i = 0; i < kMaxEstrategias; ++i) {
    const auto at = static_cast<std::size_t>(i);
    f.A[at] = !cabeceraA_(i)->isHidden();
    f.B[at] = !cabeceraB_(i)->isHidden();
    for (int k = 1; k <= kMaxEstrategias; ++k) {
      const QLineEdit* cell = fila(k)(i);
      f.array(k)[at] = gui::readCell(cell);
    }
  }
  return f;
}

void JuegosNEntry::setFields(const JuegosNFields& f) {
  titleField()->setText(QString::fromStdString(f.Título));
  NDecA_->setCurrentIndex(f.NDecA);
  NDecB_->setCurrentIndex(f.NDecB);
  for (int i = 0; i < kMaxEstrategias; ++i) {
    const auto at = static_cast<std::size_t>(i);
    cabeceraA_(i)->setVisible(f.A[at]);
    cabeceraB_(i)->setVisible(f.B[at]);
    for (int k = 1; k <= kMaxEstrategias; ++k) {
      QLineEdit* cell = fila(k)(i);
      gui::writeCell(cell, f.array(k)[at]);
    }
  }
  gui::fitWindow(*this);
}

void JuegosNEntry::rediseñarTabla() {
  edit([](JuegosNFields& f) {
    games::rediseñar(f);
    return Messages{};
  });
  fila(1)(0)->setFocus();
}

void JuegosNEntry::resolver() {
  // The checks read the table; with more strategies for player 2 than for
  // player 1 the read runs off the working table (the platform's error 9).
  const JuegosNFields f = fields();
  if (!tell(check(f))) return;
  results_ = solve(f);
  showSolution(kSolution);
}

JuegosNSolution::JuegosNSolution() : SolutionScreen(kSolution, "Juego con n estrategias", 84, 32) {}

Pages JuegosNSolution::compute() {
  auto& entrada = entry<JuegosNEntry>();
  const JuegosNFields f = entrada.fields();
  return {report(f, entrada.results()), printout(f, entrada.results())};
}

void registerJuegosNScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(kEntry, [] { return new JuegosNEntry(); });
  screens.add(kSolution, [] { return new JuegosNSolution(); });
}

}  // namespace vorel::games
