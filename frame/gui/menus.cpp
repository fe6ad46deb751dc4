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

QString text(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

QString choicePicture(const std::string& target) { return text(ui::choicePicture(target)); }

QColor sectionColor(const std::string& screen) { return QColor(QRgb(ui::sectionColor(screen))); }

StartScreen::StartScreen() : Screen("AInicio") {
  const ui::Description d = ui::startScreen();
  auto label = [&](int i, const char* style) {
    auto* l = new QLabel(text(d.controls[i].text), this);
    l->setObjectName(text(d.controls[i].name));
    l->setStyleSheet(style);
    return l;
  };
  auto picture = [&](int i) {
    auto* p = command(d.commands[i], [] {});
    p->setCursor(Qt::ArrowCursor);
    return p;
  };
  // Its size as drawn, or the whole screen where that is smaller.
  setMinimumSize(QSize(560, 400).boundedTo(screenArea(*this).size()));
  setAccent(QColor(0x2F, 0x3A, 0x4A));
  auto* logoRow = new QHBoxLayout();
  logoRow->addWidget(picture(0));
  auto* titles = new QVBoxLayout();
  titles->addWidget(label(0, "font-size: 34pt; font-weight: 600; color: #2F3A4A;"));
  titles->addWidget(label(1, "font-size: 14pt; color: #4A5568;"));
  titles->addWidget(label(2, "color: #718096;"));
  logoRow->addLayout(titles);
  logoRow->addStretch();
  body()->addLayout(logoRow);
  auto* collage = picture(1);
  collage->setFixedSize(240, 150);
  body()->addWidget(collage, 0, Qt::AlignHCenter);
  body()->addWidget(label(3, "color: #4A5568; font-weight: 600;"));
  body()->addWidget(label(4, "color: #4A5568;"));
  Temporizador = new QTimer(this);
  Temporizador->setObjectName("Temporizador");
  Temporizador->setInterval(2000);
  connect(Temporizador, &QTimer::timeout, this, [this] {
    // An unloaded screen awaiting deletion has no timer running any more.
    if (Screens::instance().loaded("AInicio") != this) return Temporizador->stop();
    run([this] {
      Temporizador->stop();
      Screens::instance().hide("AInicio");
      Screens::instance().show("APrincipal");
    });
  });
  Temporizador->start();
}

MenuScreen::MenuScreen(const nav::MenuInfo& menu) : Screen(menu.name) {
  const ui::Description d = ui::menu(menu);
  const bool mainMenu = menu.name == "APrincipal";
  setAccent(sectionColor(menu.name));
  setHeading(text(d.heading));
  auto label = [&](const ui::Control& c, const char* style) {
    auto* l = new QLabel(text(c.text), this);
    l->setObjectName(text(c.name));
    l->setStyleSheet(style);
    return l;
  };
  std::size_t firstChoice = 0;
  if (mainMenu) {
    auto* titleRow = new QHBoxLayout();
    auto* logo = command(d.commands[firstChoice++], [] {});
    logo->setEnabled(true);
    logo->setCursor(Qt::ArrowCursor);
    titleRow->addWidget(logo);
    auto* titles = new QVBoxLayout();
    titles->addWidget(label(d.controls[0], "font-size: 26pt; font-weight: 600; color: #2F3A4A;"));
    titles->addWidget(label(d.controls[1], "font-size: 13pt; color: #4A5568;"));
    titleRow->addLayout(titles);
    titleRow->addStretch();
    body()->addLayout(titleRow);
  } else {
    auto* intro = new QLabel(text(d.intro), this);
    intro->setObjectName("Label1");
    intro->setStyleSheet("font-size: 10.5pt; color: #2D3748;");
    body()->addLayout(paragraph(intro, 620));
  }
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(18);
  grid->setVerticalSpacing(12);
  const int choices = static_cast<int>(d.commands.size() - firstChoice);
  const int columns = mainMenu ? 4 : choices > 3 ? 2 : 1;
  int at = 0;
  Screens& screens = Screens::instance();
  for (std::size_t i = firstChoice; i < d.commands.size(); ++i) {
    const ui::Command& choice = d.commands[i];
    const std::string target = choice.target, hides = choice.hides;
    auto* picture = command(choice, [&screens, target, hides] {
      // The main menu hides first; section menus show first.
      if (hides == "APrincipal") screens.hide(hides);
      if (!target.empty()) screens.show(target);
      if (hides != "APrincipal") screens.hide(hides);
    });
    if (target.empty()) {  // the decorative strip
      picture->setFixedSize(choice.size * 4, choice.size / 2);
      body()->addWidget(picture);
      continue;
    }
    auto* caption = new QLabel(text(choice.caption), this);
    caption->setWordWrap(true);
    caption->setEnabled(choice.enabled);
    caption->setStyleSheet(choice.enabled ? "font-size: 10.5pt; color: #1A202C;"
                                          : "font-size: 10.5pt; color: #A0AEC0;");
    caption->setMinimumWidth(mainMenu ? 150 : 260);
    caption->setMaximumWidth(mainMenu ? 170 : 300);
    const int row = at / columns, column = (at % columns) * 2;
    grid->addWidget(picture, row, column);
    grid->addWidget(caption, row, column + 1);
    ++at;
  }
  // A window wider than the choices (for its heading) leaves the room after
  // them, not between a picture and its caption.
  grid->setColumnStretch(columns * 2, 1);
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
