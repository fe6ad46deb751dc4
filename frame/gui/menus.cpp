#include "frame/gui/menus.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "frame/gui/picture_button.h"

// The pictures live in the library's resources, which a static link must pull in.
static void initPictures() { Q_INIT_RESOURCE(vorel); }

namespace vorel::gui {

namespace {

struct Topic {
  const char* screen;
  const char* picture;
};

// The picture of each choice, by the screen it opens.
constexpr Topic kPictures[] = {
    {"ProgramaciónLineal", "programacion-lineal"},
    {"DecisionTeoria", "teoria-decision"},
    {"Juegos", "teoria-juegos"},
    {"TeoriaColas", "teoria-colas"},
    {"GestiónDeInventarios", "inventarios"},
    {"Localizacion_P", "localizacion"},
    {"SelecEquipos", "seleccion-equipos"},
    {"ControlCal", "control-calidad"},
    {"Productividad", "productividad"},
    {"C_Experiencia", "curvas-experiencia"},
    {"DistribucionFisica", "distribucion-fisica"},
    {"PL_Simplex", "simplex"},
    {"PL_Asignación", "asignacion"},
    {"PL_Transportes", "transporte"},
    {"DecisionRiesgoNobayesiano", "riesgo"},
    {"DecisionIncertidumbre", "incertidumbre"},
    {"DecisionMulticriterio", "multicriterio"},
    {"DecisionElectra1", "electra1"},
    {"DecisionElectra2", "electra2"},
    {"GI_DemandaIndependiente", "demanda-independiente"},
    {"GI_MRP", "mrp"},
    {"GI_CantidadEconómicaPedido", "cep"},
    {"GI_CEPGradual", "cep-gradual"},
    {"GI_CEPRuptura", "cep-ruptura"},
    {"GI_CEPDescuento", "cep-descuento"},
    {"Juegos_2", "juegos-2"},
    {"Juegos_3", "juegos-3"},
    {"Juegos_n", "juegos-n"},
    {"Localizacion_CG", "centro-gravedad"},
    {"Localizacion_PF", "localizacion-factores"},
    {"Selec_Pond", "equipos-factores"},
    {"Selec_Van", "van"},
    {"Select_C_Totales", "costes-totales"},
    {"ControlCal_V", "control-variables"},
    {"ControlCal_AtribP", "control-atributos"},
    {"ControlCal_NDef", "control-defectos"},
    {"Productividad_Simple", "productividad-parcial"},
    {"Productividad_Global", "productividad-global"},
    {"Distribucion_CargaDistancia", "carga-distancia"},
    {"Distribucion_Equlibrado", "equilibrado"},
};

struct Section {
  const char* prefix;
  QRgb color;
};

// Section colours, by the first letters of a screen's name.
constexpr Section kSections[] = {
    {"PL_", 0x3B6FD8},
    {"ProgramaciónLineal", 0x3B6FD8},
    {"Decision", 0x8A4FD1},
    {"Juegos", 0xD9495B},
    {"TeoriaColas", 0x1FA6A6},
    {"GI_", 0xE38B2C},
    {"GestiónDeInventarios", 0xE38B2C},
    {"Localizacion", 0x2E9E5B},
    {"Selec", 0x5A6B7D},
    {"ControlC", 0xC23C8C},
    {"Productividad", 0xD4A017},
    {"C_Experiencia", 0x3C8DBC},
    {"Distribucion", 0x7A5C3E},
};

}  // namespace

QString choicePicture(const std::string& target) {
  if (target.empty()) return QStringLiteral("juegos-tira");
  for (const Topic& t : kPictures)
    if (target == t.screen) return QString::fromLatin1(t.picture);
  return QStringLiteral("volver");
}

QColor sectionColor(const std::string& screen) {
  for (const Section& s : kSections)
    if (screen.rfind(s.prefix, 0) == 0) return QColor(s.color);
  return QColor(0x2F, 0x3A, 0x4A);
}

StartScreen::StartScreen() : Screen("AInicio") {
  setFixedSize(560, 400);
  setAccent(QColor(0x2F, 0x3A, 0x4A));
  auto* logoRow = new QHBoxLayout();
  auto* logo = new PictureButton("logo", 96, this);
  logo->setObjectName("Image1");
  logo->setEnabled(true);
  logo->setCursor(Qt::ArrowCursor);
  logoRow->addWidget(logo);
  auto* titles = new QVBoxLayout();
  auto* name = new QLabel("Vorel", this);
  name->setObjectName("Label1");
  name->setStyleSheet("font-size: 34pt; font-weight: 600; color: #2F3A4A;");
  auto* subtitle = new QLabel("Aula de Gestión Productiva", this);
  subtitle->setObjectName("Label2");
  subtitle->setStyleSheet("font-size: 14pt; color: #4A5568;");
  auto* version = new QLabel("Versión 1.1 (2004)", this);
  version->setObjectName("Label3");
  version->setStyleSheet("color: #718096;");
  titles->addWidget(name);
  titles->addWidget(subtitle);
  titles->addWidget(version);
  logoRow->addLayout(titles);
  logoRow->addStretch();
  body()->addLayout(logoRow);
  auto* collage = new PictureButton("inicio-collage", 150, this);
  collage->setObjectName("Image2");
  collage->setFixedSize(240, 150);
  collage->setCursor(Qt::ArrowCursor);
  body()->addWidget(collage, 0, Qt::AlignHCenter);
  auto* madeBy = new QLabel("Elaborado por:", this);
  madeBy->setObjectName("Label4");
  madeBy->setStyleSheet("color: #4A5568; font-weight: 600;");
  auto* authors = new QLabel("Equipo de desarrollo de Vorel", this);
  authors->setObjectName("Label5");
  authors->setStyleSheet("color: #4A5568;");
  body()->addWidget(madeBy);
  body()->addWidget(authors);
  Temporizador = new QTimer(this);
  Temporizador->setObjectName("Temporizador");
  Temporizador->setInterval(2000);
  connect(Temporizador, &QTimer::timeout, this, [this] {
    run([this] {
      Temporizador->stop();
      Screens::instance().hide("AInicio");
      Screens::instance().show("APrincipal");
    });
  });
  Temporizador->start();
}

MenuScreen::MenuScreen(const nav::MenuInfo& menu) : Screen(menu.name) {
  const bool mainMenu = menu.name == "APrincipal";
  setAccent(sectionColor(menu.name));
  setHeading(mainMenu ? QString() : QString::fromStdString(menu.title));
  if (mainMenu) {
    auto* titleRow = new QHBoxLayout();
    auto* logo = new PictureButton("logo", 64, this);
    logo->setObjectName("Image1");
    logo->setCursor(Qt::ArrowCursor);
    titleRow->addWidget(logo);
    auto* titles = new QVBoxLayout();
    auto* title = new QLabel("Vorel", this);
    title->setObjectName("Label1");
    title->setStyleSheet("font-size: 26pt; font-weight: 600; color: #2F3A4A;");
    auto* subtitle = new QLabel("Aula de Gestión Productiva", this);
    subtitle->setObjectName("Label2");
    subtitle->setStyleSheet("font-size: 13pt; color: #4A5568;");
    titles->addWidget(title);
    titles->addWidget(subtitle);
    titleRow->addLayout(titles);
    titleRow->addStretch();
    body()->addLayout(titleRow);
  } else {
    auto* intro = new QLabel(QString::fromStdString(menu.intro), this);
    intro->setObjectName("Label1");
    intro->setWordWrap(true);
    intro->setStyleSheet("font-size: 10.5pt; color: #2D3748;");
    intro->setMaximumWidth(620);
    body()->addWidget(intro);
  }
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(18);
  grid->setVerticalSpacing(12);
  const int columns = mainMenu ? 4 : menu.choices.size() > 3 ? 2 : 1;
  const int size = mainMenu ? 76 : 64;
  int at = 0;
  Screens& screens = Screens::instance();
  for (const nav::MenuChoice& choice : menu.choices) {
    const bool strip = choice.target.empty();
    const std::string target = choice.target, hides = choice.hides, self = menu.name;
    const QString art = choice.label == "Volver" ? QStringLiteral("volver") : choicePicture(target);
    auto* picture = command(
        QString::fromStdString(choice.picture), art, {},
        [&screens, target, hides] {
          // The main menu hides first; section menus show first.
          if (hides == "APrincipal") screens.hide(hides);
          if (!target.empty()) screens.show(target);
          if (hides != "APrincipal") screens.hide(hides);
        },
        size);
    if (strip) {
      picture->setFixedSize(size * 4, size / 2);
      body()->addWidget(picture);
      continue;
    }
    const bool builtYet = screens.available(target) || nav::findMenu(target);
    picture->setEnabled(builtYet);
    if (!builtYet) picture->setToolTip("Disponible próximamente");
    auto* label = new QLabel(QString::fromStdString(choice.label), this);
    label->setWordWrap(true);
    label->setEnabled(builtYet);
    label->setStyleSheet(builtYet ? "font-size: 10.5pt; color: #1A202C;"
                                  : "font-size: 10.5pt; color: #A0AEC0;");
    label->setMinimumWidth(mainMenu ? 150 : 260);
    label->setMaximumWidth(mainMenu ? 170 : 300);
    const int row = at / columns, column = (at % columns) * 2;
    grid->addWidget(picture, row, column);
    grid->addWidget(label, row, column + 1);
    ++at;
  }
  body()->addLayout(grid);
  body()->addStretch();
}

void registerMenuScreens() {
  initPictures();
  Screens& screens = Screens::instance();
  screens.add("AInicio", [] { return new StartScreen(); });
  for (const nav::MenuInfo& menu : nav::menus())
    screens.add(menu.name, [&menu] { return new MenuScreen(menu); });
}

}  // namespace vorel::gui
