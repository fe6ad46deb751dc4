#include "frame/gui/model_screens.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPointer>
#include <algorithm>
#include <QVBoxLayout>

#include "frame/gui/menus.h"
#include "frame/gui/picture_button.h"

namespace vorel::gui {

namespace {
QLabel* styled(QLabel* label, const char* style) {
  label->setStyleSheet(QString::fromLatin1(style));
  return label;
}
}  // namespace

QVBoxLayout* captioned(QAbstractButton* button) {
  auto* column = new QVBoxLayout();
  column->setSpacing(2);
  column->addWidget(button, 0, Qt::AlignHCenter);
  auto* caption = new QLabel(button->toolTip(), button->parentWidget());
  caption->setStyleSheet("font-size: 8.5pt; color: #4A5568;");
  column->addWidget(caption, 0, Qt::AlignHCenter);
  return column;
}

EntryScreen::EntryScreen(const std::string& name, const QString& title, const QString& intro,
                         const QString& titleField, const QString& titlePreset)
    : Screen(name) {
  setAccent(sectionColor(name));
  setHeading(title);
  if (!intro.isEmpty()) {
    auto* text = styled(new QLabel(intro, this), "font-size: 10pt; color: #2D3748;");
    text->setObjectName("Label1");
    text->setWordWrap(true);
    text->setMaximumWidth(640);
    body()->addWidget(text);
  }
  auto* titleRow = new QHBoxLayout();
  titleRow->addWidget(
      styled(new QLabel("TÍTULO DEL PROBLEMA", this), "font-weight: 600; color: #4A5568;"));
  titleField_ = new QLineEdit(titlePreset, this);
  titleField_->setObjectName(titleField);
  titleField_->setToolTip("Título del Problema");
  titleField_->setMinimumWidth(280);
  titleRow->addWidget(titleField_);
  titleRow->addStretch();
  body()->addLayout(titleRow);

  fields_ = new QGridLayout();
  fields_->setHorizontalSpacing(16);
  fields_->setVerticalSpacing(8);
  body()->addLayout(fields_);
  body()->addStretch();

  auto* commands = new QHBoxLayout();
  commands->setSpacing(18);
  commands->addLayout(captioned(command("nuevo", "cmd-nuevo", "Nuevo", [this] { nuevo(); }, 40)));
  commands->addLayout(captioned(command("abrir", "cmd-abrir", "Abrir", [this] { abrir(); }, 40)));
  commands->addLayout(
      captioned(command("guardar", "cmd-guardar", "Guardar", [this] { guardar(); }, 40)));
  commands->addStretch();
  commands->addLayout(
      captioned(command("Resolver", "cmd-resolver", "Resolver", [this] { resolver(); }, 48)));
  body()->addLayout(commands);
}

QLineEdit* EntryScreen::addField(const QString& objectName, const QString& label,
                                 const QString& toolTip) {
  const int row = fields_->rowCount();
  auto* caption = styled(new QLabel(label, this), "font-size: 10pt; color: #1A202C;");
  auto* box = new QLineEdit(this);
  box->setObjectName(objectName);
  box->setToolTip(toolTip);
  box->setFixedWidth(140);
  box->setAlignment(Qt::AlignRight);
  caption->setBuddy(box);
  fields_->addWidget(caption, row, 0);
  fields_->addWidget(box, row, 1);
  return box;
}

bool EntryScreen::tell(const Messages& messages) {
  for (const Message& m : messages) {
    if (!m.focus.empty())
      if (auto* w = findChild<QWidget*>(QString::fromStdString(m.focus))) w->setFocus();
    platform().errorBox(QString::fromStdString(m.text));
  }
  return messages.empty();
}

void EntryScreen::showSolution(const std::string& solution) {
  Screens& screens = Screens::instance();
  if (info()->resolverStays) {
    screens.show(solution);
  } else {
    screens.hide(name());
    screens.show(solution);
  }
}

SolutionScreen::SolutionScreen(const std::string& name, const QString& label, int columns,
                               int lines, const QString& reportName)
    : Screen(name) {
  setAccent(sectionColor(info() ? info()->entry : name));
  setHeading(label);
  report_ = new ReportBox(reportName, columns, lines, this);
  body()->addWidget(report_);
  commands_ = new QHBoxLayout();
  commands_->addStretch();
  commands_->addLayout(
      captioned(command("Imprimir", "cmd-imprimir", "Imprimir", [this] { imprimir(); }, 40)));
  body()->addLayout(commands_);
}

void SolutionScreen::formActivate() {
  run([this] {
    report_->Cls();
    Pages pages = compute();
    page_ = pages.page;
    report_->setReport(pages.screen);
    draw(pages);
  });
}

bool SolutionScreen::solveInSlices(const std::function<void(long)>& attempt, long first,
                                   long longest) {
  QPointer<SolutionScreen> self(this);
  const std::string screenName = name();
  auto open = [&] { return self && Screens::instance().loaded(screenName) == self.data(); };
  std::vector<std::pair<QAbstractButton*, bool>> locked;
  for (auto* button : findChildren<QAbstractButton*>()) {
    if (button->objectName() == "minimizar" || button->objectName() == "cerrar") continue;
    locked.push_back({button, button->isEnabled()});
    button->setEnabled(false);
  }
  solving_ = true;
  auto unlock = [&] {
    solving_ = false;
    for (auto& [button, enabled] : locked) button->setEnabled(enabled);
  };
  for (long budget = first;; budget = std::min(budget * 2, longest)) {
    try {
      attempt(budget);
      unlock();
      return true;
    } catch (const DoesNotEnd&) {
    } catch (...) {
      unlock();
      throw;
    }
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    if (!open()) return false;
  }
}

void SolutionScreen::imprimir() {
  platform().printerDialog();
  printReport(page_);
}

}  // namespace vorel::gui
