#include "inventory/mrp_screens.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>

#include "frame/gui/described_screens.h"
#include "frame/gui/printing.h"
#include "frame/gui/table_screen.h"

namespace vorel::inventory {

namespace {

const std::string kEntry = "GI_MRP";
const std::string kSolution = "GI_MRP_Solucion1";

QString qs(const std::string& s) { return QString::fromStdString(s); }
std::size_t at(int k) { return static_cast<std::size_t>(k); }

QLabel* caption(QWidget* parent, const QString& text, const QString& name = {}) {
  auto* label = gui::newHeading(parent);
  label->setText(text);
  if (!name.isEmpty()) label->setObjectName(name);
  return label;
}

QLineEdit* cell(QWidget* parent, int width) {
  auto* box = gui::newCell(parent);
  box->setFixedWidth(width);
  return box;
}

}  // namespace

// The solution: the records on Picture1, seen through a window that the
// scroll bar moves them in.
namespace {
constexpr int kTwipsPerPixel = 15;
constexpr int kTop = 44, kBlock = 130, kRow = 20, kWeekX = 196, kWeekStep = 62;
constexpr int kFormViewport = 560, kFormMaximum = 10;  // the form as designed, 2 to 4 articles
}  // namespace

MrpSolution::MrpSolution() : SolutionScreen(mrpForm().solution) {
  // The records are cells of their own; the hidden report box keeps their text.
  Solucion1()->hide();
  Image1_ = new QLabel(this);
  Image1_->setObjectName("Image1");
  Image1_->setFixedHeight(4);
  Image1_->setStyleSheet("background: #A0AEC0;");
  body()->insertWidget(0, Image1_);

  auto* row = new QHBoxLayout();
  viewport_ = new QWidget(this);
  viewport_->setObjectName("registros");
  viewport_->setFixedWidth(kWeekX + kWeekStep * kMrpWeeks + 8);
  viewport_->setStyleSheet("QWidget#registros { background: #FFFFFF; }");
  Picture1_ = new QWidget(viewport_);
  Picture1_->setObjectName("Picture1");
  Picture1_->setGeometry(0, 0, viewport_->width(), kTop + kBlock * kMrpArticles);
  // The records' rows stand kRow apart: their cells take a thin border and no
  // inner padding, so a row holds a whole line of figures.
  Picture1_->setStyleSheet(
      "QLineEdit { border: 1px solid #A0AEC0; border-radius: 2px; padding: 0px 2px;"
      " background: #FFFFFF; }"
      "QLineEdit:focus { border: 1px solid #1E5AD6; }");
  VScroll1_ = new QScrollBar(Qt::Vertical, this);
  VScroll1_->setObjectName("VScroll1");
  VScroll1_->setMaximum(kFormMaximum);
  row->addWidget(viewport_);
  row->addWidget(VScroll1_);
  body()->insertLayout(1, row);
  connect(VScroll1_, &QScrollBar::valueChanged, this, [this](int value) {
    run([&] { Picture1_->move(Picture1_->x(), mrpPictureTop(value) / kTwipsPerPixel); });
  });

  // The heads, the weeks and the records as the description names them, each
  // at the place on Picture1 that its row and column stand for: the four head
  // columns, then a column a week; the heads' two rows, then six rows an
  // article (its head cells and its five rows).
  constexpr int kHeadX[4] = {4, 60, 110, 150};
  for (const ui::Control& c : mrpForm().solution.controls) {
    if (c.group != 1) continue;
    const int x = c.column < 4 ? kHeadX[c.column] : kWeekX + kWeekStep * (c.column - 4);
    const int k = (c.row - 2) / 6, line = (c.row - 2) % 6;
    const int y = c.row < 2 ? 2 + 20 * c.row
                  : line == 0 ? kTop + kBlock * k
                              : kTop + kBlock * k + 22 + kRow * (line - 1);
    QWidget* w = nullptr;
    int width = c.width > 0 ? c.width : kWeekStep - 4;
    if (c.kind == ui::ControlKind::Cell) {
      QLineEdit* box = cell(Picture1_, width);
      box->setReadOnly(c.column < 4);  // an article's head cells
      w = box;
    } else {
      QLabel* label = caption(Picture1_, qs(c.text));
      if (c.row == 0) heads_ << label;
      if (c.row == 1) weekHeads_ << label;
      if (c.columnSpan > 1) width = c.row == 0 ? kWeekStep * kMrpWeeks : kWeekX - 12;
      if (c.row >= 2) {  // a row's label, from its left
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        w = label;
        w->setGeometry(8, y, width, kRow - 1);
        w->setObjectName(qs(c.name));
        continue;
      }
      w = label;
    }
    w->setObjectName(qs(c.name));
    w->setToolTip(qs(c.toolTip));
    w->setGeometry(x, y, width, kRow - 1);
  }
  for (int b = 4; b <= 10; ++b) {
    auto* line = new QFrame(Picture1_);
    line->setObjectName(QStringLiteral("Image%1").arg(b));
    line->setStyleSheet("background: #4A5568;");
    line->setGeometry(4, kTop + kBlock * b - 6, kWeekX + kWeekStep * kMrpWeeks - 8, 2);
    images_[at(b - 4)] = line;
  }
}

void MrpSolution::layOut(const MrpFields& f) {
  const double n = Val(f.NArt);
  const MrpScroll scroll = mrpScroll(n);
  VScroll1_->setMinimum(0);
  if (scroll.maximum) VScroll1_->setMaximum(*scroll.maximum);
  VScroll1_->setPageStep(20);
  VScroll1_->setSingleStep(10);
  Picture1_->move(0, 0);
  VScroll1_->setVisible(scroll.visible);
  const int extent = kTop + kBlock * std::max(articles_, 1);
  // Without a scroll bar (fewer than four articles) the window shows the
  // records and no blank below them.
  viewport_->setFixedHeight(scroll.maximum ? extent - *scroll.maximum * 20 / kTwipsPerPixel
                            : scroll.visible ? kFormViewport
                                             : std::min(kFormViewport, extent));
  for (int b = 4; b <= 10; ++b) images_[at(b - 4)]->setVisible(b <= articles_);
  gui::fitToTable(*this);
}

void MrpSolution::formLoad() { SolutionScreen::formActivate(); }

Pages MrpSolution::compute() {
  const MrpFields f = entry<gui::DescribedEntry<MrpFields>>().fields();
  const MrpLoadedSolution loaded(f);
  articles_ = loaded.records.articles;
  weeks_ = loaded.records.weeks;
  eachRecordCell(loaded.records, [this](const std::string& name, const std::string& text,
                                        bool visible) {
    QWidget* w = Picture1_->findChild<QWidget*>(qs(name));
    if (auto* box = qobject_cast<QLineEdit*>(w)) box->setText(qs(text));
    if (auto* label = qobject_cast<QLabel*>(w)) label->setText(qs(text));
    if (w) w->setVisible(visible);
  });
  layOut(f);
  return loaded.pages;
}

void MrpSolution::imprimir() {
  gui::platform().printerDialog();
  Picture1_->move(350 / kTwipsPerPixel, 400 / kTwipsPerPixel);
  QList<QWidget*> hidden{Image1_,
                         VScroll1_,
                         findChild<QWidget*>("Imprimir"),
                         findChild<QWidget*>("minimizar"),
                         findChild<QWidget*>("cerrar"),
                         findChild<QWidget*>("gohome")};
  for (QLabel* label : findChildren<QLabel*>())  // the command's caption goes with it
    if (label->text() == "Imprimir") hidden << label;
  for (QFrame* image : images_) image->hide();
  for (QWidget* w : hidden)
    if (w) w->hide();
  for (QLabel* head : heads_) gui::paintColumnHead(head, QColor(0xE0, 0xE0, 0xE0));
  for (int j = 0; j < std::min(weeks_, static_cast<int>(weekHeads_.size())); ++j)
    gui::paintColumnHead(weekHeads_[j], QColor(0xE0, 0xE0, 0xE0));
  // The form, as tall as 15500 twips, goes on the paper as it stands.
  const int height = 15500 / kTwipsPerPixel;
  viewport_->setFixedHeight(std::max(height - 120, 0));
  gui::fitToTable(*this);
  QImage form = grab().toImage();
  constexpr int kPaperWidth = 720;  // 7.5 inches: the form shrinks to the paper's width
  if (form.width() > kPaperWidth) form = form.scaledToWidth(kPaperWidth, Qt::SmoothTransformation);
  gui::printChartPage(Report{}, form, 0, 0);
  Picture1_->move(0, 0);
  for (QWidget* w : hidden)
    if (w) w->show();
}

void registerMrpScreens() {
  gui::Screens& screens = gui::Screens::instance();
  screens.add(kEntry, [] { return new gui::DescribedEntry<MrpFields>(mrpForm()); });
  screens.add(kSolution, [] { return new MrpSolution(); });
}

}  // namespace vorel::inventory
