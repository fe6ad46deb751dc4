#include "frame/gui/described_screens.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <algorithm>
#include <map>
#include <vector>

#include "frame/gui/captions.h"
#include "frame/gui/picture_button.h"
#include "frame/gui/printing.h"
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

// A list shown open, as tall as its lines (a longer list scrolls); a click
// on a row runs its edit with the row chosen.
QListWidget* listBox(QWidget& screen, const ui::Control& c,
                     const std::function<void(const std::string&)>& runEdit) {
  auto* list = new QListWidget(&screen);
  list->setObjectName(text(c.name));
  for (const std::string& item : c.items) list->addItem(text(item));
  list->setToolTip(text(c.toolTip));
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const int lines = std::max(1, c.height);
  list->setFixedSize(c.width > 0 ? c.width : 64,
                     lines * list->fontMetrics().height() + 2 * list->frameWidth() + 6);
  if (!c.edit.empty())
    QObject::connect(list, &QListWidget::itemClicked, &screen,
                     [runEdit, edit = c.edit] { Screen::run([&] { runEdit(edit); }); });
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

// A panel of an entry screen that a command prints lines on: `width`
// average characters wide and `height` lines high, at least; its text is
// bound to the fields.
class Panel : public QLabel {
 public:
  using QLabel::QLabel;
  QSize base;
  // Never smaller than its lines, whatever room the window has.
  QSize sizeHint() const override { return QLabel::sizeHint().expandedTo(base); }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

QLabel* panel(QWidget* parent, const ui::Control& c) {
  auto* label = new Panel(parent);
  label->setObjectName(text(c.name));
  label->setFont(reportFont(kScreenPointSize));
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  const QFontMetricsF m(label->font());
  label->base = QSize(int(averageCharWidth(m) * c.width) + 16, int(m.lineSpacing() * c.height) + 16);
  label->setStyleSheet(
      "QLabel { background: #FFFFFF; color: #000000; border: 1px solid #D5DAE3;"
      " border-radius: 6px; padding: 8px; }");
  // It keeps its room while hidden, so that the window does not jump.
  QSizePolicy policy = label->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  label->setSizePolicy(policy);
  return label;
}

// A control of a table: the texts above it, column and row headings, cells,
// each over the rows and columns of the table's grid it covers.
void addToTable(QWidget& screen, QFrame* table, std::vector<QWidget*>& above,
                const ui::Control& c, const std::function<void(const std::string&)>& runEdit) {
  QGridLayout* grid = tableGrid(table);
  const auto place = [&](QWidget* w, Qt::Alignment align = {}) {
    grid->addWidget(w, c.row, c.column, c.rowSpan, c.columnSpan, align);
  };
  if (c.row < 0) {
    auto* label = new QLabel(text(c.text), &screen);
    label->setObjectName(text(c.name));
    label->setStyleSheet("font-size: 10pt; color: #2D3748;");
    above.push_back(label);
  } else if (c.kind == ui::ControlKind::Label && c.row == 0) {
    QLabel* head = newColumnHead(table);
    head->setObjectName(text(c.name));
    head->setText(text(c.text));
    head->setToolTip(text(c.toolTip));
    if (c.width > 0) head->setFixedWidth(c.width);
    place(head);
  } else if (c.kind == ui::ControlKind::Label) {
    QLabel* head = newHeading(table);
    head->setObjectName(text(c.name));
    head->setText(text(c.text));
    // A heading over several rows stands at the top of them.
    if (c.rowSpan > 1) head->setAlignment(Qt::AlignRight | Qt::AlignTop);
    place(head);
  } else if (c.kind == ui::ControlKind::Selector) {
    QStringList items;
    for (const std::string& item : c.items) items << text(item);
    QComboBox* list = newSelector(table, items);
    list->setObjectName(text(c.name));
    if (c.width > 0) list->setFixedWidth(c.width);
    list->setToolTip(text(c.toolTip));
    place(list);
  } else if (c.kind == ui::ControlKind::Cell) {
    QLineEdit* cell = newCell(table);
    cell->setObjectName(text(c.name));
    if (c.width > 0) cell->setFixedWidth(c.width);
    cell->setToolTip(text(c.toolTip));
    if (c.locked) {
      cell->setReadOnly(true);
      cell->setFocusPolicy(Qt::NoFocus);
      cell->setStyleSheet("QLineEdit { background: #F1F3F7; }");
    }
    place(cell, Qt::AlignHCenter);
  } else if (c.kind == ui::ControlKind::ListBox) {
    place(listBox(screen, c, runEdit), Qt::AlignTop);
  }
}

}  // namespace

DescribedControls drawDescribed(EntryScreen& screen, QVBoxLayout* body, const ui::Description& d,
                                const std::function<void(const std::string&)>& runEdit) {
  DescribedControls drawn;
  QGridLayout* fields = screen.fieldGrid();
  std::map<std::string, QButtonGroup*> families;
  std::map<std::string, QLabel*> captions;  // labels naming a control drawn here
  // By group: the table and the texts above it.
  std::map<int, std::pair<QFrame*, std::vector<QWidget*>>> tables;
  int lastColumn = 1;
  for (const ui::Control& c : d.controls) {
    if (c.group >= 1) {
      auto& [table, above] = tables[c.group];
      if (!table) table = tableFrame(screen);
      addToTable(screen, table, above, c, runEdit);
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
        w = listBox(screen, c, runEdit);
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
      case ui::ControlKind::ReportBox:
        w = panel(&screen, c);
        break;
      default:
        continue;
    }
    w->setVisible(c.visible);
    fields->addWidget(w, c.row, c.column, c.rowSpan, c.columnSpan, Qt::AlignLeft | Qt::AlignVCenter);
  }
  for (auto& [buddy, label] : captions)
    if (QWidget* w = screen.findChild<QWidget*>(text(buddy))) label->setBuddy(w);
  // The focus coming into a control (or its own text box) runs its focus edit.
  for (const ui::Control& c : d.controls)
    if (!c.focusEdit.empty())
      if (QWidget* w = screen.findChild<QWidget*>(text(c.name)))
        QObject::connect(qApp, &QApplication::focusChanged, w,
                         [w, runEdit, edit = c.focusEdit](QWidget* from, QWidget* to) {
                           const auto inside = [w](QWidget* x) { return x && (x == w || w->isAncestorOf(x)); };
                           if (inside(to) && !inside(from)) Screen::run([&] { runEdit(edit); });
                         });
  // The commands that edit the fields stand beside them, one column apart.
  int commandRow = 0;
  for (const ui::Command& c : d.commands)
    if (c.action == ui::Action::Edit) {
      QPushButton* button = redesignButton(
          screen, [runEdit, edit = c.target] { runEdit(edit); }, text(c.caption), text(c.name));
      button->setToolTip(text(c.toolTip));
      fields->addWidget(button, commandRow, lastColumn + 2, 2, 1, Qt::AlignVCenter);
      commandRow += 2;
      fields->setColumnMinimumWidth(lastColumn + 1, 24);
      fields->setColumnStretch(lastColumn + 3, 1);
    }
  // The tables below the fields, in the order of their groups, each with the
  // text above it: one below the other, or side by side.
  auto* across = d.tablesAcross ? new QHBoxLayout() : nullptr;
  int at = body->indexOf(fields) + 1;
  if (across) {
    across->setSpacing(14);
    body->insertLayout(at++, across);
  }
  for (auto& [group, table] : tables) {
    auto& [frame, above] = table;
    if (!drawn.table) drawn.table = frame;
    drawn.tables.push_back(frame);
    QGridLayout* grid = tableGrid(frame);
    if (!across) grid->setColumnStretch(grid->columnCount(), 1);
    auto* column = across ? new QVBoxLayout() : nullptr;
    if (column) across->addLayout(column);
    // Each text above the table wraps at its width and asks its height there.
    for (QWidget* w : above) {
      QHBoxLayout* text = paragraph(static_cast<QLabel*>(w), 560);
      if (column)
        column->addLayout(text);
      else
        body->insertLayout(at++, text);
    }
    if (column)
      column->addWidget(frame, 0, Qt::AlignTop);
    else
      body->insertWidget(at++, frame);
    if (column) column->addStretch();
  }
  if (across) across->addStretch();
  // A frame takes its name, and its bound visibility alone shows or hides it.
  for (const auto& [group, name] : d.frames)
    if (auto it = tables.find(group); it != tables.end()) {
      QFrame* frame = it->second.first;
      frame->setObjectName(text(name));
      frame->setProperty("marco", true);
      frame->setStyleSheet(frame->styleSheet().replace("QFrame#tabla", "QFrame[marco=\"true\"]"));
    }
  nameChrome(screen, d);
  return drawn;
}

std::vector<std::string> listItems(const QWidget& list) {
  std::vector<std::string> items;
  if (auto* box = qobject_cast<const QComboBox*>(&list))
    for (int i = 0; i < box->count(); ++i) items.push_back(box->itemText(i).toStdString());
  if (auto* open = qobject_cast<const QListWidget*>(&list))
    for (int i = 0; i < open->count(); ++i) items.push_back(open->item(i)->text().toStdString());
  return items;
}

void setListItems(QWidget& list, const std::vector<std::string>& items) {
  if (listItems(list) == items) return;
  QStringList texts;
  for (const std::string& item : items) texts << text(item);
  if (auto* box = qobject_cast<QComboBox*>(&list)) {
    const QString typed = box->currentText();
    box->clear();
    box->addItems(texts);
    if (box->isEditable()) box->setEditText(typed);
  }
  if (auto* open = qobject_cast<QListWidget*>(&list)) {
    open->clear();
    open->addItems(texts);
  }
}

void showTables(const DescribedControls& drawn) {
  for (QFrame* table : drawn.tables) {
    if (table->property("marco").toBool()) continue;
    const auto controls = table->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    table->setVisible(std::any_of(controls.begin(), controls.end(),
                                  [](QWidget* w) { return !w->isHidden(); }));
  }
}

void nameChrome(QWidget& screen, const ui::Description& d) {
  const nav::ScreenInfo* info = nav::findScreen(d.name);
  if (!info) return;
  const std::vector<ui::Command> usual = ui::chrome(*info);
  for (const ui::Command& c : d.chrome)
    for (const ui::Command& u : usual)
      if (u.action == c.action && u.name != c.name) renameChrome(screen, text(u.name), text(c.name));
}

void markCell(QLineEdit* cell, bool marked) {
  cell->setStyleSheet(marked ? QStringLiteral("QLineEdit { background: #FDE9A8; }") : QString());
}

void focusFirstCell(QWidget& screen, const ui::Description& d) {
  for (const ui::Control& c : d.controls)
    if (c.kind == ui::ControlKind::Cell && !c.locked)
      if (auto* cell = screen.findChild<QLineEdit*>(text(c.name)); cell && !cell->isHidden()) {
        cell->setFocus();
        return;
      }
}

long labelColor(const QLabel& label) {
  return static_cast<long>(label.property("BackColor").toLongLong());
}

void paintLabel(QLabel& label, long backColor) {
  label.setProperty("BackColor", QVariant::fromValue<qlonglong>(backColor));
  paintColumnHead(&label, platformColor(backColor));
}

DescribedSolutionBase::DescribedSolutionBase(const ui::Description& d)
    : SolutionScreen(d), description_(d) {
  nameChrome(*this, d);
  int at = 0;
  for (const ui::Command& c : d.commands)
    if (c.action == ui::Action::Browse) {
      auto* button = command(c, [this, name = c.name] {
        if (!solution_) return;
        readEntry();
        bool shown = false;
        try {
          shown = solution_->press(name);
        } catch (...) {
          pressed();
          throw;
        }
        pressed();
        if (shown) showSolution();
      });
      QVBoxLayout* column = captioned(button);
      commandRow()->insertLayout(at++, column);
    } else if (c.action == ui::Action::Show) {
      // Another solution screen of the model, in place of this one.
      auto* button = command(c, [target = c.target, hides = c.hides] {
        if (!hides.empty()) Screens::instance().hide(hides);
        Screens::instance().show(target);
      });
      commandRow()->insertLayout(at++, captioned(button));
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
  if (!ended || !solution_) return;
  if (!solution_->refusal().empty()) {
    // No solution to show: the messages, then back to the entry as it was.
    run([this] {
      for (const Message& m : solution_->refusal()) platform().errorBox(QString::fromStdString(m.text));
      Screens::instance().show(info()->entry);
      Screens::instance().hide(name());
    });
    return;
  }
  SolutionScreen::formActivate();
}

Pages DescribedSolutionBase::compute() {
  offerCommands();
  return solution_->pages();
}

void DescribedSolutionBase::showSolution() {
  Solucion1()->Cls();
  Solucion1()->setReport(solution_->pages().screen);
  setPage(solution_->pages().page);
  draw(solution_->pages());
  offerCommands();
}

void DescribedSolutionBase::offerCommands() {
  // The window's own commands: a page may withhold one (greyed), and volver
  // shows only where the solution leads back from the page on view.
  for (const ui::Command& c : description_.chrome)
    if (auto* button = findChild<QAbstractButton*>(text(c.name))) {
      button->setEnabled(!solution_ || solution_->offers(c.name));
      if (c.action == ui::Action::Volver)
        button->setVisible(solution_ ? solution_->shows(c.name) : c.visible);
    }
  for (const ui::Command& c : description_.commands) {
    if (c.action != ui::Action::Browse && c.action != ui::Action::Show) continue;
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
