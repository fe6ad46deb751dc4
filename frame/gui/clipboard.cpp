#include "frame/gui/clipboard.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QImage>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QPointer>
#include <QRegularExpression>
#include <algorithm>
#include <functional>

#include "frame/gui/chart_view.h"
#include "frame/gui/model_screens.h"
#include "frame/gui/platform.h"
#include "frame/gui/report_box.h"
#include "frame/spreadsheet.h"

namespace vorel::gui {

namespace {

// An element of a control array is named "Name(i)"; a plain text box is not.
bool arrayElement(const QWidget* w) {
  static const QRegularExpression name(QStringLiteral("^.+\\(-?\\d+\\)$"));
  return name.match(w->objectName()).hasMatch();
}

bool tableMember(const QWidget* w) {
  return (qobject_cast<const QLineEdit*>(w) || qobject_cast<const QComboBox*>(w)) &&
         arrayElement(w);
}

// A table cell the student types in.
bool writable(const QWidget* w) {
  auto* box = qobject_cast<const QLineEdit*>(w);
  return box && !box->isReadOnly() && box->isEnabled();
}

// The columns a table declared, kept as a child of its panel.
class TableOrder : public QObject {
 public:
  explicit TableOrder(QWidget* table) : QObject(table) { setObjectName(kName); }
  static TableOrder* of(const QWidget* table) {
    return dynamic_cast<TableOrder*>(table->findChild<QObject*>(kName, Qt::FindDirectChildrenOnly));
  }
  std::vector<std::vector<QPointer<QWidget>>> columns;

 private:
  static constexpr auto kName = "ordenDeLaTabla";
};

TableGrid declaredGrid(const TableOrder& order) {
  TableGrid g;
  for (std::size_t c = 0; c < order.columns.size(); ++c)
    for (std::size_t r = 0; r < order.columns[c].size(); ++r) {
      QWidget* w = order.columns[c][r];
      if (!w || w->isHidden()) continue;
      g.rows = std::max(g.rows, int(r) + 1);
      g.columns = std::max(g.columns, int(c) + 1);
    }
  g.cells.assign(std::size_t(g.rows), std::vector<QWidget*>(std::size_t(g.columns), nullptr));
  for (std::size_t c = 0; c < order.columns.size(); ++c)
    for (std::size_t r = 0; r < order.columns[c].size(); ++r) {
      QWidget* w = order.columns[c][r];
      if (w && !w->isHidden()) g.cells[r][c] = w;
    }
  return g;
}

// The band (row or column) of each of `spans` ([begin, end) on one axis):
// spans that overlap share a band; bands are numbered in screen order.
std::vector<int> bands(const std::vector<std::pair<int, int>>& spans, int& count) {
  std::vector<std::size_t> order(spans.size());
  for (std::size_t k = 0; k < order.size(); ++k) order[k] = k;
  std::sort(order.begin(), order.end(),
            [&spans](std::size_t a, std::size_t b) { return spans[a] < spans[b]; });
  std::vector<int> band(spans.size(), 0);
  count = 0;
  int end = 0;
  for (std::size_t k : order) {
    if (count == 0 || spans[k].first >= end) {
      ++count;
      end = spans[k].second;
    } else {
      end = std::max(end, spans[k].second);
    }
    band[k] = count - 1;
  }
  return band;
}

// The table as it stands on the screen: the shown cells of one parent, in
// rows and columns of their places.
TableGrid screenGrid(QWidget* parent) {
  if (QLayout* l = parent->window()->layout()) l->activate();
  if (QLayout* l = parent->layout()) l->activate();
  std::vector<QWidget*> members;
  for (QWidget* w : parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
    if (tableMember(w) && !w->isHidden()) members.push_back(w);
  std::vector<std::pair<int, int>> xs, ys;
  for (QWidget* w : members) {
    const QRect r = w->geometry();
    xs.emplace_back(r.left(), r.left() + std::max(1, r.width()));
    ys.emplace_back(r.top(), r.top() + std::max(1, r.height()));
  }
  TableGrid g;
  const std::vector<int> column = bands(xs, g.columns), row = bands(ys, g.rows);
  g.cells.assign(std::size_t(g.rows), std::vector<QWidget*>(std::size_t(g.columns), nullptr));
  for (std::size_t k = 0; k < members.size(); ++k) {
    QWidget*& at = g.cells[std::size_t(row[k])][std::size_t(column[k])];
    if (!at) at = members[k];
  }
  return g;
}

bool hasRedesign(const QWidget* screen) {
  for (auto* b : screen->findChildren<QAbstractButton*>())
    if (b->objectName().startsWith(QStringLiteral("Rediseñar")) && !b->isHidden()) return true;
  return false;
}

std::string cellText(const QWidget* w) {
  if (auto* box = qobject_cast<const QLineEdit*>(w)) return box->text().toStdString();
  if (auto* combo = qobject_cast<const QComboBox*>(w)) return combo->currentText().toStdString();
  return {};
}

template <class W>
W* enclosing(QObject* o) {
  for (; o; o = o->parent())
    if (auto* w = qobject_cast<W*>(o)) return w;
  return nullptr;
}

void toClipboard(QMimeData* data) { QGuiApplication::clipboard()->setMimeData(data); }
void toClipboard(const QString& text) { QGuiApplication::clipboard()->setText(text); }

// The cells chosen with Shift+click: a rectangle of one table from the cell
// that had the focus to the one clicked, tinted while chosen.
class Choice {
 public:
  bool holds(const QLineEdit* cell) const {
    return table_ && cell->parentWidget() == table_ && !tinted_.empty();
  }
  QLineEdit* anchor() const { return tinted_.empty() ? nullptr : anchor_.data(); }
  void choose(QLineEdit* anchor, QLineEdit* to) {
    clear();
    anchor_ = anchor;
    const TableGrid g = tableOf(anchor);
    const auto [r0, c0] = g.find(anchor);
    const auto [r1, c1] = g.find(to);
    if (r0 < 0 || r1 < 0) return;
    table_ = anchor->parentWidget();
    top_ = std::min(r0, r1), left_ = std::min(c0, c1);
    bottom_ = std::max(r0, r1), right_ = std::max(c0, c1);
    for (int r = top_; r <= bottom_; ++r)
      for (int c = left_; c <= right_; ++c)
        if (auto* box = qobject_cast<QLineEdit*>(g.at(r, c))) {
          tinted_.push_back({box, box->palette()});
          QPalette p = box->palette();
          p.setColor(QPalette::Base, QColor(0xCF, 0xE0, 0xFA));
          box->setPalette(p);
        }
  }
  void clear() {
    for (auto& [box, palette] : tinted_)
      if (box) box->setPalette(palette);
    tinted_.clear();
    table_ = nullptr;
  }
  QString text(QLineEdit* cell) const {
    const TableGrid g = tableOf(cell);
    Block block;
    for (int r = top_; r <= bottom_; ++r) {
      block.emplace_back();
      for (int c = left_; c <= right_; ++c) block.back().push_back(cellText(g.at(r, c)));
    }
    return blockText(block);
  }

 private:
  QPointer<QWidget> table_;
  QPointer<QLineEdit> anchor_;
  int top_ = 0, left_ = 0, bottom_ = 0, right_ = 0;
  std::vector<std::pair<QPointer<QLineEdit>, QPalette>> tinted_;
};

Choice& choice() {
  static Choice& c = *new Choice();  // outlives the application's widgets and palettes
  return c;
}

QLineEdit* tableCell(QObject* o) {
  auto* box = qobject_cast<QLineEdit*>(o);
  return box && arrayElement(box) && box->parentWidget() ? box : nullptr;
}

// The first table cell shown on a screen.
QLineEdit* firstCell(QWidget* screen) {
  for (QLineEdit* box : screen->findChildren<QLineEdit*>())
    if (tableCell(box) && box->isVisibleTo(screen)) return box;
  return nullptr;
}

void popUp(QMenu* menu, const QPoint& at) {
  menu->exec(at);
  delete menu;
}

class ClipboardFilter : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* o, QEvent* e) override {
    if (!o->isWidgetType()) return false;
    switch (e->type()) {
      case QEvent::KeyPress:
        return key(static_cast<QWidget*>(o), static_cast<QKeyEvent*>(e));
      case QEvent::MouseButtonPress:
        return press(static_cast<QWidget*>(o), static_cast<QMouseEvent*>(e));
      case QEvent::ContextMenu:
        return menu(static_cast<QWidget*>(o), static_cast<QContextMenuEvent*>(e));
      case QEvent::FocusIn:
        focusIn(static_cast<QWidget*>(o));
        return false;
      default:
        return false;
    }
  }

 private:
  bool key(QWidget* w, QKeyEvent* e) {
    const bool copy = e->matches(QKeySequence::Copy), paste = e->matches(QKeySequence::Paste);
    // Any key but Ctrl+C ends a choice of cells, before it can act on them.
    const bool modifierOnly = e->key() == Qt::Key_Shift || e->key() == Qt::Key_Control ||
                              e->key() == Qt::Key_Alt || e->key() == Qt::Key_Meta;
    if (!copy && !modifierOnly) choice().clear();
    if (QLineEdit* cell = tableCell(w)) {
      focusIn(cell);
      if (copy) {
        toClipboard(cellCopyText(cell));
        return true;
      }
      if (paste && !cell->isReadOnly()) {
        pasteIntoTable(cell, QGuiApplication::clipboard()->text());
        return true;
      }
      return false;
    }
    if (!copy) return false;
    auto* solution = qobject_cast<SolutionScreen*>(w->window());
    if (!solution) return false;
    // A text box of the screen with text chosen copies that text itself.
    if (auto* box = qobject_cast<QLineEdit*>(w); box && box->hasSelectedText()) return false;
    ReportBox* report = solution->Solucion1();
    if (auto* chart = enclosing<ChartView>(w))
      toClipboard(chartMimeData(chart->data()));
    else if (report && !report->isHidden())
      toClipboard(reportMimeData(*report));
    else if (QLineEdit* cell = firstCell(solution))  // records in cells of their own (MRP)
      toClipboard(tableText(cell));
    return true;
  }

  // The click gives the focus before the filter sees it: the choice runs
  // from the cell that had it before, or from where the choice began.
  bool press(QWidget* w, QMouseEvent* e) {
    QLineEdit* cell = tableCell(w);
    if (e->button() != Qt::LeftButton) return false;
    QLineEdit* anchor = choice().anchor();
    if (!anchor || !cell || anchor->parentWidget() != cell->parentWidget())
      anchor = current_ == cell ? before_ : current_;
    if (cell && anchor && anchor != cell && (e->modifiers() & Qt::ShiftModifier) &&
        anchor->parentWidget() == cell->parentWidget() && !anchor->isHidden()) {
      choice().choose(anchor, cell);
      cell->setFocus(Qt::MouseFocusReason);
      focusIn(cell);
      return true;
    }
    choice().clear();
    focusIn(cell);
    return false;
  }

  // A cell takes the focus, or is typed in or clicked where the window is not
  // active and no focus event comes.
  void focusIn(QWidget* w) {
    if (QLineEdit* cell = tableCell(w); cell && cell != current_) {
      before_ = current_;
      current_ = cell;
    }
  }

  QPointer<QLineEdit> current_, before_;  // the table cells that had the focus last

  bool menu(QWidget* w, QContextMenuEvent* e) {
    if (QLineEdit* cell = tableCell(w)) {
      popUp(cellMenu(cell), e->globalPos());
      return true;
    }
    if (auto* chart = enclosing<ChartView>(w)) {
      popUp(chartMenu(chart), e->globalPos());
      return true;
    }
    if (auto* box = enclosing<ReportBox>(w)) {
      popUp(reportMenu(box), e->globalPos());
      return true;
    }
    return false;
  }
};

}  // namespace

void installClipboard() {
  static QPointer<ClipboardFilter> filter;
  if (filter || !qApp) return;
  filter = new ClipboardFilter(qApp);
  qApp->installEventFilter(filter);
}

Block parseBlock(const QString& text) { return vorel::parseBlock(text.toStdString()); }

QString blockText(const Block& block) { return QString::fromStdString(vorel::blockText(block)); }

QWidget* TableGrid::at(int row, int column) const {
  if (row < 0 || column < 0 || row >= rows || column >= columns) return nullptr;
  return cells[std::size_t(row)][std::size_t(column)];
}

std::pair<int, int> TableGrid::find(const QWidget* w) const {
  for (int r = 0; r < rows; ++r)
    for (int c = 0; c < columns; ++c)
      if (cells[std::size_t(r)][std::size_t(c)] == w) return {r, c};
  return {-1, -1};
}

TableGrid tableOf(QLineEdit* cell) {
  if (!tableCell(cell) || cell->isHidden()) return {};
  QWidget* parent = cell->parentWidget();
  if (auto* order = TableOrder::of(parent)) {
    TableGrid g = declaredGrid(*order);
    if (g.find(cell).first >= 0) return g;
  }
  return screenGrid(parent);
}

void setTableColumns(QWidget* table, const std::vector<std::vector<QWidget*>>& columns) {
  auto* order = TableOrder::of(table);
  if (!order) order = new TableOrder(table);
  order->columns.clear();
  for (const auto& column : columns) order->columns.emplace_back(column.begin(), column.end());
}

bool pasteIntoTable(QLineEdit* cell, const QString& text) {
  const Block block = parseBlock(text);
  if (block.empty() || cell->isReadOnly()) return false;
  if (block.size() == 1 && block[0].size() == 1) {
    cell->insert(
        QString::fromStdString(block[0][0]));  // as a text box pastes: over the chosen text
    return true;
  }
  const TableGrid g = tableOf(cell);
  const auto [top, left] = g.find(cell);
  if (top < 0) return false;
  const std::string refusal =
      pasteRefusal(block, top, left, g.rows, g.columns, hasRedesign(cell->window()));
  if (!refusal.empty()) {
    platform().errorBox(QString::fromStdString(refusal));
    return false;
  }
  for (std::size_t r = 0; r < block.size(); ++r)
    for (std::size_t c = 0; c < block[r].size(); ++c) {
      QWidget* target = g.at(top + int(r), left + int(c));
      if (writable(target))
        static_cast<QLineEdit*>(target)->setText(QString::fromStdString(block[r][c]));
    }
  return true;
}

QString cellCopyText(QLineEdit* cell) {
  if (choice().holds(cell)) return choice().text(cell);
  return cell->hasSelectedText() ? cell->selectedText() : cell->text();
}

QString tableText(QLineEdit* cell) {
  const TableGrid g = tableOf(cell);
  Block block;
  for (int r = 0; r < g.rows; ++r) {
    block.emplace_back();
    for (int c = 0; c < g.columns; ++c) block.back().push_back(cellText(g.at(r, c)));
  }
  return blockText(block);
}

QMimeData* reportMimeData(const ReportBox& box) {
  auto* data = new QMimeData();
  data->setText(QString::fromStdString(box.plainText()));
  return data;
}

QString chartText(const Chart& chart) { return QString::fromStdString(renderTable(chart)); }

QMimeData* chartMimeData(const Chart& chart) {
  QImage picture(kChartPictureSize, QImage::Format_ARGB32);
  picture.fill(Qt::white);
  {
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintChart(painter, chart, QRectF(QPointF(0, 0), QSizeF(kChartPictureSize)));
  }
  auto* data = new QMimeData();
  data->setImageData(picture);
  data->setText(chartText(chart));
  return data;
}

QMenu* cellMenu(QLineEdit* cell) {
  // The menu a text box has, in the program's Spanish, its Copiar and Pegar
  // acting on the table.
  auto* menu = new QMenu(cell);
  auto add = [menu, cell](const char* text, const char* name, QKeySequence::StandardKey key,
                          bool enabled, std::function<void()> act) {
    QAction* action = menu->addAction(QString::fromUtf8(text));
    action->setObjectName(QString::fromUtf8(name));
    if (key != QKeySequence::UnknownKey) action->setShortcut(key);
    action->setEnabled(enabled);
    QObject::connect(action, &QAction::triggered, cell, std::move(act));
  };
  const bool editable = !cell->isReadOnly(), chosen = cell->hasSelectedText();
  add("&Deshacer", "deshacer", QKeySequence::Undo, editable && cell->isUndoAvailable(),
      [cell] { cell->undo(); });
  add("&Rehacer", "rehacer", QKeySequence::Redo, editable && cell->isRedoAvailable(),
      [cell] { cell->redo(); });
  menu->addSeparator();
  add("Cor&tar", "cortar", QKeySequence::Cut, editable && chosen, [cell] { cell->cut(); });
  add("&Copiar", "copiar", QKeySequence::Copy, choice().holds(cell) || !cell->text().isEmpty(),
      [cell] { toClipboard(cellCopyText(cell)); });
  add("&Pegar", "pegar", QKeySequence::Paste,
      editable && !QGuiApplication::clipboard()->text().isEmpty(),
      [cell] { pasteIntoTable(cell, QGuiApplication::clipboard()->text()); });
  add("Eliminar", "eliminar", QKeySequence::UnknownKey, editable && chosen,
      [cell] { cell->del(); });
  menu->addSeparator();
  add("Seleccionar todo", "seleccionar-todo", QKeySequence::SelectAll, !cell->text().isEmpty(),
      [cell] { cell->selectAll(); });
  add("Copiar tabla", "copiar-tabla", QKeySequence::UnknownKey, true,
      [cell] { toClipboard(tableText(cell)); });
  return menu;
}

QMenu* reportMenu(ReportBox* box) {
  auto* menu = new QMenu(box);
  QAction* copy = menu->addAction(QStringLiteral("Copiar"));
  copy->setObjectName(QStringLiteral("Copiar"));
  QObject::connect(copy, &QAction::triggered, box, [box] { toClipboard(reportMimeData(*box)); });
  return menu;
}

QMenu* chartMenu(ChartView* chart) {
  auto* menu = new QMenu(chart);
  QAction* copy = menu->addAction(QStringLiteral("Copiar"));
  copy->setObjectName(QStringLiteral("Copiar"));
  QObject::connect(copy, &QAction::triggered, chart,
                   [chart] { toClipboard(chartMimeData(chart->data())); });
  return menu;
}

}  // namespace vorel::gui
