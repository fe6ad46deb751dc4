#include "frame/gui/keyboard.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <algorithm>
#include <map>
#include <vector>

#include "frame/gui/picture_button.h"
#include "frame/gui/screen.h"

namespace vorel::gui {

namespace {

// A control with its place on the window.
struct Placed {
  QWidget* w;
  QRect r;
};
using Line = std::vector<Placed>;

// Groups by lines: the topmost item opens a line and takes in every item whose
// middle lies within its height; each line reads left to right.
std::vector<Line> lines(std::vector<Placed> items) {
  std::stable_sort(items.begin(), items.end(), [](const Placed& a, const Placed& b) {
    return a.r.top() != b.r.top() ? a.r.top() < b.r.top() : a.r.left() < b.r.left();
  });
  std::vector<Line> out;
  int bottom = 0;
  for (const Placed& p : items) {
    if (out.empty() || p.r.center().y() > bottom) {
      out.push_back({});
      bottom = p.r.bottom();
    }
    out.back().push_back(p);
  }
  for (Line& line : out)
    std::stable_sort(line.begin(), line.end(),
                     [](const Placed& a, const Placed& b) { return a.r.left() < b.r.left(); });
  return out;
}

QRect placeOn(QWidget* w, QWidget* window) { return {w->mapTo(window, QPoint(0, 0)), w->size()}; }

// A widget inside another control (the text box of a selector) is reached
// through that control.
bool insideControl(QWidget* w, QWidget* window) {
  for (QWidget* p = w->parentWidget(); p && p != window; p = p->parentWidget())
    if (qobject_cast<QComboBox*>(p) || qobject_cast<QAbstractSpinBox*>(p)) return true;
  return false;
}

bool takesTab(QWidget* w, QWidget* window) {
  return (w->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && w->isEnabled() &&
         w->isVisibleTo(window) && !w->focusProxy() && !insideControl(w, window);
}

bool inBand(QWidget* w, QWidget* window) {
  for (QWidget* p = w->parentWidget(); p && p != window; p = p->parentWidget())
    if (p->objectName() == QLatin1String("band")) return true;
  return false;
}

// "r(12)": 12; -1 for a control that is not an element of a control array.
int arrayIndex(const QWidget* w) {
  static const QRegularExpression element(QStringLiteral("^.+\\((\\d+)\\)$"));
  const auto m = element.match(w->objectName());
  return m.hasMatch() ? m.captured(1).toInt() : -1;
}

// A table's controls: row by row. Where every control is an element of a
// control array and the elements of one index share a line, the index is the
// row, and the rows are read in its order even where they wrap into blocks
// side by side; otherwise lines as they lie.
QList<QWidget*> tableOrder(std::vector<Placed> cells) {
  std::map<int, std::vector<Placed>> rows;
  bool byIndex = true;
  for (const Placed& p : cells) {
    const int i = arrayIndex(p.w);
    if (i < 0) {
      byIndex = false;
      break;
    }
    rows[i].push_back(p);
  }
  if (byIndex)
    for (auto& [index, row] : rows)
      for (const Placed& p : row)
        if (p.r.center().y() < row.front().r.top() || p.r.center().y() > row.front().r.bottom())
          byIndex = false;
  QList<QWidget*> out;
  if (byIndex) {
    for (auto& [index, row] : rows) {
      std::stable_sort(row.begin(), row.end(),
                       [](const Placed& a, const Placed& b) { return a.r.left() < b.r.left(); });
      for (const Placed& p : row) out << p.w;
    }
    return out;
  }
  for (const Line& line : lines(std::move(cells)))
    for (const Placed& p : line) out << p.w;
  return out;
}

// The controls of `window` that Tab reaches, the band's commands apart.
std::vector<Placed> reachable(QWidget* window, bool band) {
  std::vector<Placed> out;
  for (QWidget* w : window->findChildren<QWidget*>())
    if (takesTab(w, window) && inBand(w, window) == band) out.push_back({w, placeOn(w, window)});
  return out;
}

}  // namespace

QWidget* tableOf(QWidget* w) {
  for (QWidget* p = w ? w->parentWidget() : nullptr; p && !p->isWindow(); p = p->parentWidget())
    if (p->objectName() == QLatin1String("tabla")) return p;
  return nullptr;
}

QList<QWidget*> readingOrder(QWidget* window) {
  // Places are read where the layouts put them: lay out first what is pending
  // (the body inside its scroll area lays out after the window does).
  for (QLayout* layout : window->findChildren<QLayout*>()) layout->activate();
  // Places as they will be drawn, after a Rediseñar that has just shown cells.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  // Each table stands in the window's lines as one block, at its panel's place.
  std::vector<Placed> units;
  std::map<QWidget*, std::vector<Placed>> tables;
  for (const Placed& p : reachable(window, false)) {
    if (QWidget* table = tableOf(p.w)) {
      if (!tables.count(table)) units.push_back({table, placeOn(table, window)});
      tables[table].push_back(p);
    } else {
      units.push_back(p);
    }
  }
  QList<QWidget*> order;
  for (const Line& line : lines(std::move(units)))
    for (const Placed& p : line) {
      auto t = tables.find(p.w);
      if (t != tables.end())
        order << tableOrder(t->second);
      else
        order << p.w;
    }
  for (const Line& line : lines(reachable(window, true)))
    for (const Placed& p : line) order << p.w;
  return order;
}

bool stepFocus(QWidget* window, bool forward) {
  const QList<QWidget*> order = readingOrder(window);
  if (order.isEmpty()) return false;
  QWidget* current = window->focusWidget();
  qsizetype at = -1;
  for (QWidget* w = current; w && w != window && at < 0; w = w->parentWidget())
    at = order.indexOf(w);
  const qsizetype n = order.size();
  const qsizetype next = at < 0 ? (forward ? 0 : n - 1) : (at + (forward ? 1 : n - 1)) % n;
  order[next]->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

QWidget* firstCell(QWidget* window) {
  for (QWidget* w : readingOrder(window))
    if (tableOf(w) && qobject_cast<QLineEdit*>(w)) return w;
  return nullptr;
}

// ---- Screen readers ----

namespace {

const char kDerived[] = "vorelDerivedName";

QString plain(QString text) {
  text.remove(QRegularExpression(QStringLiteral("<[^>]*>")));  // a rich-text caption
  text.replace(QLatin1String("&&"), QLatin1String("\x01"));
  text.remove(QLatin1Char('&'));
  text.replace(QLatin1String("\x01"), QLatin1String("&"));
  return text.simplified();
}

QString buddyText(QWidget* w, const QList<QLabel*>& labels) {
  for (QLabel* l : labels)
    if (l->buddy() == w && !plain(l->text()).isEmpty()) return plain(l->text());
  return {};
}

// The text a heading shows: a label's, or a box's the student cannot type in.
QString headingText(QWidget* w) {
  if (auto* label = qobject_cast<QLabel*>(w)) return plain(label->text());
  if (auto* box = qobject_cast<QLineEdit*>(w);
      box && box->isReadOnly() && box->focusPolicy() == Qt::NoFocus)
    return plain(box->text());
  return {};
}

// The headings of a cell: the nearest shown heading on its line to its left,
// and the nearest above it in its column, among the controls beside it.
QString headings(QWidget* cell) {
  QWidget* parent = cell->parentWidget();
  if (!parent) return {};
  const QRect at = cell->geometry();
  QWidget *left = nullptr, *above = nullptr;
  for (QWidget* head : parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (head == cell || head->isHidden() || headingText(head).isEmpty()) continue;
    const QRect r = head->geometry();
    const bool sameLine = (r.center().y() >= at.top() && r.center().y() <= at.bottom()) ||
                          (at.center().y() >= r.top() && at.center().y() <= r.bottom());
    const bool sameColumn = r.left() <= at.right() && at.left() <= r.right();
    if (sameLine && r.right() < at.left() && (!left || r.right() > left->geometry().right()))
      left = head;
    if (sameColumn && r.bottom() < at.top() && (!above || r.bottom() > above->geometry().bottom()))
      above = head;
  }
  QStringList parts;
  if (left) parts << headingText(left);
  if (above) parts << headingText(above);
  return parts.join(QLatin1String(", "));
}

QString derivedName(QWidget* w, const QList<QLabel*>& labels) {
  QString name;
  if (auto* button = qobject_cast<QAbstractButton*>(w)) name = plain(button->text());
  if (name.isEmpty()) name = buddyText(w, labels);
  if (name.isEmpty()) name = headings(w);
  if (name.isEmpty()) name = plain(w->toolTip());
  return name;
}

bool isControl(QWidget* w) {
  return qobject_cast<QAbstractButton*>(w) || qobject_cast<QLineEdit*>(w) ||
         qobject_cast<QComboBox*>(w) || qobject_cast<QAbstractSpinBox*>(w) ||
         (w->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

}  // namespace

void nameControls(QWidget* window) {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  const QList<QLabel*> labels = window->findChildren<QLabel*>();
  for (QWidget* w : window->findChildren<QWidget*>()) {
    if (!isControl(w) || insideControl(w, window)) continue;
    const bool derived = w->property(kDerived).toBool();
    if (!derived && !w->accessibleName().isEmpty()) continue;  // named by its screen
    const QString name = derivedName(w, labels);
    if (name.isEmpty()) continue;
    w->setAccessibleName(name);
    const QString tip = plain(w->toolTip());
    w->setAccessibleDescription(tip != name ? tip : QString());
    w->setProperty(kDerived, true);
  }
  // The text box of a selector one types in is read as its selector.
  for (QComboBox* combo : window->findChildren<QComboBox*>())
    if (QLineEdit* box = combo->lineEdit()) {
      box->setAccessibleName(combo->accessibleName());
      box->setAccessibleDescription(combo->accessibleDescription());
    }
}

// ---- Arrows and Enter ----

namespace {

// The cell beside `cell` in its table: `dx` steps along its line, or `dy`
// lines up or down to the cell nearest below or above it.
QWidget* neighbour(QLineEdit* cell, QWidget* table, int dx, int dy) {
  std::vector<Placed> cells;
  for (QLineEdit* c : table->findChildren<QLineEdit*>())
    if (takesTab(c, table)) cells.push_back({c, placeOn(c, table)});
  const std::vector<Line> rows = lines(std::move(cells));
  for (std::size_t y = 0; y < rows.size(); ++y)
    for (std::size_t x = 0; x < rows[y].size(); ++x) {
      if (rows[y][x].w != cell) continue;
      if (dx) {
        const long to = long(x) + dx;
        return to >= 0 && to < long(rows[y].size()) ? rows[y][std::size_t(to)].w : nullptr;
      }
      const long to = long(y) + dy;
      if (to < 0 || to >= long(rows.size())) return nullptr;
      const int middle = rows[y][x].r.center().x();
      QWidget* best = nullptr;
      int distance = 0;
      for (const Placed& p : rows[std::size_t(to)])
        if (!best || std::abs(p.r.center().x() - middle) < distance)
          best = p.w, distance = std::abs(p.r.center().x() - middle);
      return best;
    }
  return nullptr;
}

class Keyboard : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !object->isWidgetType()) return false;
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->modifiers() & ~Qt::KeypadModifier) return false;
    auto* w = static_cast<QWidget*>(object);
    if (!qobject_cast<Screen*>(w->window())) return false;
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      auto* button = qobject_cast<QAbstractButton*>(w);
      if (button && (qobject_cast<PictureButton*>(w) || qobject_cast<QPushButton*>(w)) &&
          button->isEnabled()) {
        button->click();
        return true;
      }
      return false;
    }
    auto* cell = qobject_cast<QLineEdit*>(w);
    QWidget* table = tableOf(cell);
    if (!table) return false;
    QWidget* to = nullptr;
    switch (key->key()) {
      case Qt::Key_Up:
        to = neighbour(cell, table, 0, -1);
        break;
      case Qt::Key_Down:
        to = neighbour(cell, table, 0, 1);
        break;
      case Qt::Key_Left:
        if (cell->cursorPosition() == 0 && !cell->hasSelectedText())
          to = neighbour(cell, table, -1, 0);
        break;
      case Qt::Key_Right:
        if (cell->cursorPosition() == cell->text().size()) to = neighbour(cell, table, 1, 0);
        break;
      default:
        return false;
    }
    if (!to) return false;
    to->setFocus(Qt::TabFocusReason);  // its text selected, as Tab leaves it
    return true;
  }
};

}  // namespace

void installKeyboard() {
  static Keyboard* keyboard = nullptr;
  if (keyboard || !qApp) return;
  keyboard = new Keyboard(qApp);
  qApp->installEventFilter(keyboard);
}

}  // namespace vorel::gui
