#include "frame/gui/described_screens.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>
#include <algorithm>
#include <map>

#include "frame/gui/captions.h"
#include "frame/gui/picture_button.h"
#include "frame/gui/table_screen.h"

namespace vorel::gui {

namespace {

QString text(const std::string& s) { return QString::fromStdString(s); }

QLabel* fieldLabel(QWidget* parent, const ui::Control& c) {
  auto* label = new QLabel(text(c.text), parent);
  label->setObjectName(text(c.name));
  label->setStyleSheet("QLabel { font-size: 10pt; color: #1A202C; } QLabel:disabled { color: #A0AEC0; }");
  if (c.width > 0) wrapAtBlankRuns(label, c.width);
  return label;
}

// A list shown open: as tall as its lines, its items all in view.
QListWidget* listBox(QWidget& screen, const ui::Control& c) {
  auto* list = new QListWidget(&screen);
  list->setObjectName(text(c.name));
  for (const std::string& item : c.items) list->addItem(text(item));
  list->setToolTip(text(c.toolTip));
  list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const int lines = std::max(1, c.height);
  list->setFixedSize(c.width > 0 ? c.width : 64,
                     lines * list->fontMetrics().height() + 2 * list->frameWidth() + 6);
  return list;
}

QComboBox* selector(QWidget& screen, const ui::Control& c,
                    const std::function<void(const std::string&)>& runEdit) {
  QStringList items;
  for (const std::string& item : c.items) items << text(item);
  QComboBox* list = newSelector(&screen, items);
  list->setObjectName(text(c.name));
  if (c.width > 0) list->setFixedWidth(c.width);
  list->setToolTip(text(c.toolTip));
  // A click runs its edit with the choice made, nothing more.
  if (!c.edit.empty())
    QObject::connect(list, &QComboBox::activated, &screen,
                     [runEdit, edit = c.edit] { Screen::run([&] { runEdit(edit); }); });
  return list;
}

QAbstractButton* tick(QWidget& screen, const ui::Control& c,
                      const std::function<void(const std::string&)>& runEdit) {
  QAbstractButton* button = c.kind == ui::ControlKind::Option
                                ? static_cast<QAbstractButton*>(new QRadioButton(text(c.text), &screen))
                                : new QCheckBox(text(c.text), &screen);
  button->setObjectName(text(c.name));
  button->setToolTip(text(c.toolTip));
  button->setStyleSheet("font-size: 10pt; color: #1A202C;");
  if (!c.edit.empty())
    QObject::connect(button, &QAbstractButton::clicked, &screen,
                     [runEdit, edit = c.edit] { Screen::run([&] { runEdit(edit); }); });
  return button;
}

// A control of the table: the text above it, column and row headings, cells.
void addToTable(QWidget& screen, QFrame* table, QWidget*& above, const ui::Control& c) {
  QGridLayout* grid = tableGrid(table);
  if (c.row < 0) {
    auto* label = new QLabel(text(c.text), &screen);
    label->setObjectName(text(c.name));
    label->setWordWrap(true);
    label->setMaximumWidth(560);
    label->setStyleSheet("font-size: 10pt; color: #2D3748;");
    above = label;
  } else if (c.kind == ui::ControlKind::Label && c.row == 0) {
    QLabel* head = newColumnHead(table);
    head->setObjectName(text(c.name));
    head->setText(text(c.text));
    if (c.width > 0) head->setFixedWidth(c.width);
    grid->addWidget(head, 0, c.column);
  } else if (c.kind == ui::ControlKind::Label) {
    QLabel* head = newHeading(table);
    head->setObjectName(text(c.name));
    head->setText(text(c.text));
    grid->addWidget(head, c.row, c.column);
  } else if (c.kind == ui::ControlKind::Cell) {
    QLineEdit* cell = newCell(table);
    cell->setObjectName(text(c.name));
    if (c.width > 0) cell->setFixedWidth(c.width);
    cell->setToolTip(text(c.toolTip));
    grid->addWidget(cell, c.row, c.column);
  }
}

}  // namespace

DescribedControls drawDescribed(EntryScreen& screen, QVBoxLayout* body, const ui::Description& d,
                                const std::function<void(const std::string&)>& runEdit) {
  DescribedControls drawn;
  QGridLayout* fields = screen.fieldGrid();
  std::map<std::string, QButtonGroup*> families;
  std::map<std::string, QLabel*> captions;  // labels naming a control drawn here
  QWidget* above = nullptr;
  int lastColumn = 1;
  for (const ui::Control& c : d.controls) {
    if (c.group == 1) {
      if (!drawn.table) drawn.table = tableFrame(screen);
      addToTable(screen, drawn.table, above, c);
      continue;
    }
    lastColumn = std::max(lastColumn, c.column);
    QWidget* w = nullptr;
    switch (c.kind) {
      case ui::ControlKind::TextBox:  // drawn by the frame's entry screen
        continue;
      case ui::ControlKind::Label: {
        const bool namesTextBox = std::any_of(d.controls.begin(), d.controls.end(), [&](auto& t) {
          return t.kind == ui::ControlKind::TextBox && t.name == c.buddy;
        });
        if (namesTextBox) continue;
        QLabel* label = fieldLabel(&screen, c);
        if (!c.buddy.empty()) captions[c.buddy] = label;
        w = label;
        break;
      }
      case ui::ControlKind::Selector:
        w = selector(screen, c, runEdit);
        break;
      case ui::ControlKind::ListBox:
        w = listBox(screen, c);
        break;
      case ui::ControlKind::Option:
      case ui::ControlKind::Check: {
        auto* button = tick(screen, c, runEdit);
        // Options of no family are chosen by their edits alone, and may all
        // stand unchosen.
        if (c.kind == ui::ControlKind::Option && c.family.empty()) {
          button->setAutoExclusive(false);
        } else if (c.kind == ui::ControlKind::Option) {
          QButtonGroup*& family = families[c.family];
          if (!family) family = new QButtonGroup(&screen);
          family->addButton(button);
        }
        w = button;
        break;
      }
      default:
        continue;
    }
    w->setVisible(c.visible);
    fields->addWidget(w, c.row, c.column, Qt::AlignLeft | Qt::AlignVCenter);
  }
  for (auto& [buddy, label] : captions)
    if (QWidget* w = screen.findChild<QWidget*>(text(buddy))) label->setBuddy(w);
  // The commands that edit the fields stand beside them, one column apart.
  int commandRow = 0;
  for (const ui::Command& c : d.commands)
    if (c.action == ui::Action::Edit) {
      QPushButton* button = redesignButton(
          screen, [runEdit, edit = c.target] { runEdit(edit); }, text(c.caption), text(c.name));
      button->setToolTip(text(c.toolTip));
      fields->addWidget(button, commandRow++, lastColumn + 2, 2, 1, Qt::AlignVCenter);
      fields->setColumnMinimumWidth(lastColumn + 1, 24);
      fields->setColumnStretch(lastColumn + 3, 1);
    }
  if (drawn.table) {
    QGridLayout* grid = tableGrid(drawn.table);
    grid->setColumnStretch(grid->columnCount(), 1);
    placeTable(body, fields, drawn.table);
    if (above) body->insertWidget(body->indexOf(drawn.table), above);
  }
  return drawn;
}

void focusFirstCell(QWidget& screen, const ui::Description& d) {
  for (const ui::Control& c : d.controls)
    if (c.kind == ui::ControlKind::Cell)
      if (auto* cell = screen.findChild<QLineEdit*>(text(c.name)); cell && !cell->isHidden()) {
        cell->setFocus();
        return;
      }
}

DescribedSolutionBase::DescribedSolutionBase(const ui::Description& d)
    : SolutionScreen(d), description_(d) {
  // The window's commands take the names the description gives them, where
  // it renames one of the screen tree's (its commands in the same order).
  if (info()) {
    const std::vector<ui::Command> tree = ui::chrome(*info());
    for (std::size_t i = 0; i < tree.size() && i < d.chrome.size(); ++i)
      if (tree[i].name != d.chrome[i].name)
        if (auto* button = findChild<QAbstractButton*>(text(tree[i].name)))
          button->setObjectName(text(d.chrome[i].name));
  }
  int at = 0;
  for (const ui::Command& c : d.commands)
    if (c.action == ui::Action::Browse) {
      auto* button = command(c, [this, name = c.name] {
        if (solution_ && solution_->press(name)) showSolution();
      });
      QVBoxLayout* column = captioned(button);
      commandRow()->insertLayout(at++, column);
    }
  offerCommands();
}

void DescribedSolutionBase::formActivate() {
  bool ended = false;
  run([&] {
    Solucion1()->Cls();
    solution_.reset();
    std::unique_ptr<Solution> solved;
    // 4096 steps, then twice as many each time up to two million; the screen
    // may be closed meanwhile, and then nothing of it is touched again.
    ended = solveInSlices([&](long budget) { solved = solveWith(budget); }, 1L << 12, 1L << 21);
    if (ended) solution_ = std::move(solved);
  });
  if (ended && solution_) SolutionScreen::formActivate();
}

Pages DescribedSolutionBase::compute() {
  offerCommands();
  return solution_->pages();
}

void DescribedSolutionBase::showSolution() {
  Solucion1()->Cls();
  Solucion1()->setReport(solution_->pages().screen);
  setPage(solution_->pages().page);
  offerCommands();
}

void DescribedSolutionBase::offerCommands() {
  for (const ui::Command& c : description_.commands) {
    if (c.action != ui::Action::Browse) continue;
    auto* button = findChild<QAbstractButton*>(text(c.name));
    if (!button) continue;
    const bool shown = solution_ ? solution_->shows(c.name) : c.visible;
    button->setVisible(shown);
    // The caption below the picture goes with it.
    for (auto* caption : findChildren<QLabel*>())
      if (caption->property("captionOf").toString() == button->objectName())
        caption->setVisible(shown);
  }
}

}  // namespace vorel::gui
