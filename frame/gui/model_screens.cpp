#include "frame/gui/model_screens.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>
#include <algorithm>

#include "frame/gui/captions.h"
#include "frame/gui/menus.h"
#include "frame/gui/table_screen.h"
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
  caption->setProperty("captionOf", button->objectName());
  column->addWidget(caption, 0, Qt::AlignHCenter);
  return column;
}

EntryScreen::EntryScreen(const std::string& name, const QString& title, const QString& intro,
                         const QString& titleField, const QString& titlePreset)
    : EntryScreen(ui::fieldEntry(name, title.toStdString(), intro.toStdString(),
                                 titleField.toStdString(), titlePreset.toStdString(), {})) {}

EntryScreen::EntryScreen(const ui::Description& d) : Screen(d.name) {
  setAccent(sectionColor(d.name));
  setHeading(QString::fromStdString(d.heading));
  if (!d.intro.empty()) {
    auto* text = styled(new QLabel(QString::fromStdString(d.intro), this),
                        "font-size: 10pt; color: #2D3748;");
    text->setObjectName("Label1");
    body()->addLayout(paragraph(text, 640));
  }
  auto* titleRow = new QHBoxLayout();
  titleRow->addWidget(styled(new QLabel(QString::fromStdString(d.titleLabel.text), this),
                             "font-weight: 600; color: #4A5568;"));
  titleField_ = new QLineEdit(QString::fromStdString(d.titleField.text), this);
  titleField_->setObjectName(QString::fromStdString(d.titleField.name));
  titleField_->setToolTip(QString::fromStdString(d.titleField.toolTip));
  titleField_->setMinimumWidth(d.titleField.width);
  titleRow->addWidget(titleField_);
  titleRow->addStretch();
  body()->addLayout(titleRow);

  fields_ = new QGridLayout();
  fields_->setHorizontalSpacing(16);
  fields_->setVerticalSpacing(8);
  body()->addLayout(fields_);
  // Each text box at its place on the grid, its caption at the caption's.
  for (const ui::Control& c : d.controls)
    if (c.kind == ui::ControlKind::TextBox) {
      const ui::Control* caption = nullptr;
      for (const ui::Control& l : d.controls)
        if (l.kind == ui::ControlKind::Label && l.buddy == c.name) caption = &l;
      auto* box = new QLineEdit(this);
      box->setObjectName(QString::fromStdString(c.name));
      box->setToolTip(QString::fromStdString(c.toolTip));
      box->setFixedWidth(c.width > 0 ? c.width : 140);
      box->setAlignment(Qt::AlignRight);
      box->setVisible(c.visible);
      fields_->addWidget(box, c.row, c.column);
      if (!caption) continue;
      auto* label = styled(new QLabel(QString::fromStdString(caption->text), this),
                           "QLabel { font-size: 10pt; color: #1A202C; }"
                           " QLabel:disabled { color: #A0AEC0; }");
      label->setObjectName(QString::fromStdString(caption->name));
      if (caption->width > 0) wrapAtBlankRuns(label, caption->width);
      label->setBuddy(box);
      label->setVisible(caption->visible && c.visible);
      fields_->addWidget(label, caption->row, caption->column);
    }
  body()->addStretch();

  auto* commands = new QHBoxLayout();
  commands->setSpacing(18);
  for (const ui::Command& c : d.commands) {
    if (c.action == ui::Action::Edit) continue;  // beside the fields: see drawDescribed
    if (c.action == ui::Action::Resolver) commands->addStretch();
    commands->addLayout(captioned(command(c, [this, action = c.action] {
      switch (action) {
        case ui::Action::Nuevo:
          return nuevo();
        case ui::Action::Abrir:
          return abrir();
        case ui::Action::Guardar:
          return guardar();
        case ui::Action::Resolver:
          return resolver();
        default:
          return;
      }
    })));
  }
  body()->addLayout(commands);
}

QLineEdit* EntryScreen::addField(const QString& objectName, const QString& label,
                                 const QString& toolTip, int row) {
  if (row < 0) row = fields_->count() ? fields_->rowCount() : 0;
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
    ++told_;
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
    : SolutionScreen(ui::reportSolution(name, label.toStdString(), columns, lines), reportName) {}

SolutionScreen::SolutionScreen(const ui::Description& d, const QString& reportName)
    : Screen(d.name) {
  setAccent(sectionColor(info() ? info()->entry : d.name));
  setHeading(QString::fromStdString(d.heading));
  for (const ui::Control& c : d.controls)
    if (c.kind == ui::ControlKind::ReportBox) {
      report_ = new ReportBox(reportName.isEmpty() ? QString::fromStdString(c.name) : reportName,
                              c.width, c.height, this);
      report_->setAccessibleName(QString::fromStdString(d.heading));
      body()->addWidget(report_);
    }
  commands_ = new QHBoxLayout();
  commands_->addStretch();
  for (const ui::Command& c : d.commands)
    if (c.action == ui::Action::Imprimir)
      commands_->addLayout(captioned(command(c, [this] { imprimir(); })));
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
  fitWindow(*this);  // to this report
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
  // A slice grows while it takes less than a frame or two, so the window
  // answers promptly however costly each step of the method is.
  constexpr qint64 kSliceMilliseconds = 30;
  QElapsedTimer timer;
  for (long budget = first;; budget = timer.elapsed() < kSliceMilliseconds
                                          ? std::min(budget * 2, longest)
                                          : budget) {
    try {
      timer.start();
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
