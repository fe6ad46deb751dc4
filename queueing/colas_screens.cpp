#include "queueing/colas_screens.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vorel::queueing {

namespace {

const std::string kEntry = "TeoriaColas";
const std::string kSolution = "TeoriaColas_Solucion";

const char* kTexto = "font-size: 10pt; color: #1A202C;";

// A caption whose runs of blanks break it into lines: it is made just wide
// enough for its widest part, so the text wraps at the blanks.
QLabel* etiqueta(QWidget* parent, const QString& text, const QString& widest,
                 double pointSize = 10, const char* color = "#1A202C") {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  QFont font = label->font();
  font.setPointSizeF(pointSize);
  label->setFont(font);
  label->setStyleSheet(QStringLiteral("QLabel { color: %1; } QLabel:disabled { color: #A0AEC0; }")
                           .arg(QString::fromLatin1(color)));
  label->setWordWrap(true);
  label->setFixedWidth(QFontMetrics(font).horizontalAdvance(widest) + 8);
  return label;
}

QLineEdit* caja(QWidget* parent, const QString& name) {
  auto* box = new QLineEdit(parent);
  box->setObjectName(name);
  box->setFixedWidth(96);
  box->setAlignment(Qt::AlignRight);
  return box;
}

// A white panel with a small heading, holding a grid.
QGridLayout* panel(QWidget* parent, QHBoxLayout* row, const QString& heading) {
  auto* frame = new QFrame(parent);
  frame->setObjectName("panel");
  frame->setStyleSheet(
      "QFrame#panel { background: #FFFFFF; border: 1px solid #D5DAE3; border-radius: 6px; }");
  auto* outer = new QVBoxLayout(frame);
  outer->setContentsMargins(14, 10, 14, 12);
  outer->setSpacing(8);
  auto* title = new QLabel(heading, frame);
  title->setStyleSheet("font-size: 10pt; font-weight: 600; color: #4A5568;");
  outer->addWidget(title);
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  outer->addLayout(grid);
  outer->addStretch();
  row->addWidget(frame, 0, Qt::AlignTop);
  return grid;
}

QLineEdit* oculta(QWidget* parent, const QString& name) {
  auto* box = new QLineEdit(parent);
  box->setObjectName(name);
  box->hide();
  return box;
}

}  // namespace

ColasEntry::ColasEntry() : ModelEntry(kEntry, "Teoría de Colas", {}, "Título", "Problema 1") {
  bindings_.bind(&ColasFields::Título, titleField());

  auto* row = new QHBoxLayout();
  row->setSpacing(14);
  body()->insertLayout(body()->indexOf(fieldGrid()) + 1, row);

  // The kind of system and the sizes it asks for.
  QGridLayout* sistema = panel(this, row, "Tipo de sistema");
  ColaIlimitada_ = new QRadioButton("Línea de Espera Ilimitada", this);
  ColaIlimitada_->setObjectName("ColaIlimitada");
  ColaLimitada_ = new QRadioButton("Línea de Espera Limitada", this);
  ColaLimitada_->setObjectName("ColaLimitada");
  FuenteFinita_ = new QRadioButton("Fuente de Entrada Finita", this);
  FuenteFinita_->setObjectName("FuenteFinita");
  const std::pair<QRadioButton*, int> opciones[] = {
      {ColaIlimitada_, kColaIlimitada}, {ColaLimitada_, kColaLimitada}, {FuenteFinita_, kFuenteFinita}};
  int at = 0;
  for (auto [button, kind] : opciones) {
    // The choice is kept by the fields, not by the buttons' own grouping, so
    // a file may leave none chosen.
    button->setAutoExclusive(false);
    button->setStyleSheet(kTexto);
    const int sistemaElegido = kind;
    connect(button, &QAbstractButton::clicked, this,
            [this, sistemaElegido] { run([this, sistemaElegido] { elegirSistema(sistemaElegido); }); });
    sistema->addWidget(button, at++, 0, 1, 2);
  }
  K_ = caja(this, "K");
  TamañoCola_ = etiqueta(this, "Tamaño        Línea de Espera", "Línea de Espera");
  TamañoCola_->setObjectName("TamañoCola");
  TamañoCola_->setBuddy(K_);
  sistema->addWidget(TamañoCola_, at, 0);
  sistema->addWidget(K_, at++, 1);
  N_ = caja(this, "N");
  Label8_ = etiqueta(this, "Tamaño         Fuente de entrada", "Fuente de entrada");
  Label8_->setObjectName("Label8");
  Label8_->setBuddy(N_);
  sistema->addWidget(Label8_, at, 0);
  sistema->addWidget(N_, at++, 1);
  bindings_.bind(&ColasFields::K, K_);
  bindings_.bind(&ColasFields::N, N_);

  // The distributions of the times between arrivals and between services.
  QGridLayout* distribuciones = panel(this, row, "Distribuciones");
  LLegadas_ = new QListWidget(this);
  LLegadas_->setObjectName("LLegadas");
  LLegadas_->setFixedSize(64, 26);
  LLegadas_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* llegadas =
      etiqueta(this, "Distribución tiempo entre llegadas", "Distribución tiempo");
  llegadas->setBuddy(LLegadas_);
  distribuciones->addWidget(llegadas, 0, 0);
  distribuciones->addWidget(LLegadas_, 0, 1, Qt::AlignLeft);
  Servicios_ = new QComboBox(this);
  Servicios_->setObjectName("Servicios");
  Servicios_->setFixedWidth(64);
  connect(Servicios_, &QComboBox::activated, this, [this] { run([this] { elegirServicio(); }); });
  auto* servicios =
      etiqueta(this, "Distribución tiempo entre servicios", "Distribución tiempo");
  servicios->setBuddy(Servicios_);
  distribuciones->addWidget(servicios, 1, 0);
  distribuciones->addWidget(Servicios_, 1, 1, Qt::AlignLeft);

  // The rates, the servers and the variance.
  QGridLayout* parametros = panel(this, row, "Parámetros");
  S_ = caja(this, "S");
  bindings_.bind(&ColasFields::S, S_);
  auto* servidores = etiqueta(this, " Número de  Servidores", " Número de  Servidores");
  servidores->setBuddy(S_);
  parametros->addWidget(servidores, 0, 0);
  parametros->addWidget(S_, 0, 1);
  auto* lambda = caja(this, "Lambda");
  bindings_.bind(&ColasFields::Lambda, lambda);
  auto* llegadasTasa = etiqueta(this, " Tasa de Llegadas", " Tasa de Llegadas");
  llegadasTasa->setBuddy(lambda);
  parametros->addWidget(llegadasTasa, 1, 0);
  parametros->addWidget(lambda, 1, 1);
  parametros->addWidget(
      etiqueta(this, "Accesos/unidad de           tiempo", "Servicios/unidad de", 9, "#4A5568"), 1, 2);
  Nu_ = caja(this, "Nu");
  bindings_.bind(&ColasFields::Nu, Nu_);
  LblNu_ = etiqueta(this, "Tasa de Servicios", "Tiempo de Servicio");
  LblNu_->setObjectName("LblNu");
  LblNu_->setBuddy(Nu_);
  parametros->addWidget(LblNu_, 2, 0);
  parametros->addWidget(Nu_, 2, 1);
  parametros->addWidget(
      etiqueta(this, "Servicios/unidad de           tiempo", "Servicios/unidad de", 9, "#4A5568"), 2, 2);
  VarTS_ = caja(this, "VarTS");
  bindings_.bind(&ColasFields::VarTS, VarTS_);
  LblVar_ = etiqueta(this, "Varianza", "Tiempo de Servicio");
  LblVar_->setObjectName("LblVar");
  LblVar_->setBuddy(VarTS_);
  parametros->addWidget(LblVar_, 3, 0);
  parametros->addWidget(VarTS_, 3, 1);
  row->addStretch();

  // The working fields the screen keeps out of sight.
  bindings_.bind(&ColasFields::Tipo, oculta(this, "Tipo"));
  bindings_.bind(&ColasFields::Estado, oculta(this, "Estado"));
  bindings_.bind(&ColasFields::Probabilidad, oculta(this, "Probabilidad"));
  bindings_.bind(&ColasFields::DistribuciónTS, oculta(this, "DistribuciónTS"));
  bindings_.bind(&ColasFields::Ro, oculta(this, "Ro"));

  ColasFields f;
  f.LblNu.clear();  // the caption the first arrival puts
  setFields(f);
}

ColasFields ColasEntry::fields() const {
  ColasFields f;
  bindings_.read(f);
  f.SEnabled = S_->isEnabled();
  f.ColaIlimitada = ColaIlimitada_->isChecked();
  f.ColaLimitada = ColaLimitada_->isChecked();
  f.FuenteFinita = FuenteFinita_->isChecked();
  f.KEnabled = K_->isEnabled();
  f.TamañoColaEnabled = TamañoCola_->isEnabled();
  f.NEnabled = N_->isEnabled();
  f.Label8Enabled = Label8_->isEnabled();
  f.LblNu = LblNu_->text().toStdString();
  f.NuToolTip = Nu_->toolTip().toStdString();
  f.VarTSEnabled = VarTS_->isEnabled();
  f.LblVarEnabled = LblVar_->isEnabled();
  f.Servicios = Servicios_->currentIndex();
  f.ServiciosEnabled = Servicios_->isEnabled();
  return f;
}

void ColasEntry::setFields(const ColasFields& f) {
  bindings_.write(f);
  S_->setEnabled(f.SEnabled);
  ColaIlimitada_->setChecked(f.ColaIlimitada);
  ColaLimitada_->setChecked(f.ColaLimitada);
  FuenteFinita_->setChecked(f.FuenteFinita);
  K_->setEnabled(f.KEnabled);
  TamañoCola_->setEnabled(f.TamañoColaEnabled);
  N_->setEnabled(f.NEnabled);
  Label8_->setEnabled(f.Label8Enabled);
  LblNu_->setText(QString::fromStdString(f.LblNu));
  Nu_->setToolTip(QString::fromStdString(f.NuToolTip));
  VarTS_->setEnabled(f.VarTSEnabled);
  LblVar_->setEnabled(f.LblVarEnabled);
  Servicios_->setCurrentIndex(f.Servicios);
  Servicios_->setEnabled(f.ServiciosEnabled);
}

void ColasEntry::formActivate() {
  run([this] {
    LLegadas_->clear();
    for (const char* item : kLLegadas) LLegadas_->addItem(QString::fromLatin1(item));
    Servicios_->clear();
    for (const Servicio& s : kServicios) Servicios_->addItem(QString::fromLatin1(s.item));
    ColasFields f = fields();
    queueing::formActivate(f);
    setFields(f);
  });
}

void ColasEntry::elegirSistema(int sistema) {
  ColasFields f = fields();
  elegir(f, sistema);
  setFields(f);
}

void ColasEntry::elegirServicio() {
  ColasFields f = fields();
  serviciosClick(f);
  setFields(f);
}

void ColasEntry::resolver() {
  ColasFields f = fields();
  if (!tell(check(f))) return;
  anotar(f);  // Ro and the model number, for the solution screen
  setFields(f);
  showSolution(kSolution);
}

ColasSolution::ColasSolution() : SolutionScreen(kSolution, "Teoría de Colas", 100, 36) {
  if (auto* back = findChild<QAbstractButton*>("volver")) back->setObjectName("back2");
}

Pages ColasSolution::compute() {
  const ColasFields f = entry<ColasEntry>().fields();
  results_ = solve(f);
  return {report(f, results_), printout(f, results_)};
}

void registerColasScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(kEntry, [] { return new ColasEntry(); });
  screens.add(kSolution, [] { return new ColasSolution(); });
}

}  // namespace vorel::queueing
