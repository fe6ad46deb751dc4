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

  auto place = [](QWidget* w, int x, int y, int width, int height = kRow - 1) {
    w->setGeometry(x, y, width, height);
  };
  const std::pair<const char*, const char*> heads[5] = {{"Articulo", "Artículo"},
                                                        {"Inventario", "Stock"},
                                                        {"SS", "S.S."},
                                                        {"Tiempo", "T.S."},
                                                        {"Label1", "Semanas"}};
  const int headX[5] = {4, 60, 110, 150, kWeekX};
  for (int h = 0; h < 5; ++h) {
    auto* label = caption(Picture1_, heads[h].second, heads[h].first);
    place(label, headX[h], 2, h == 4 ? kWeekStep * kMrpWeeks : h == 0 ? 52 : h == 1 ? 46 : 36);
    heads_ << label;
  }
  heads_[3]->setToolTip("Tiempo de Suministro");
  Semana_.create(Picture1_, "Semana", 0, kMrpWeeks - 1, [](QWidget* p) { return caption(p, {}); });
  for (int j = 0; j < kMrpWeeks; ++j) {
    Semana_(j)->setText(QString::number(j + 1));
    place(Semana_(j), kWeekX + kWeekStep * j, 22, kWeekStep - 4);
  }
  auto heads4 = [&](gui::ControlArray<QLineEdit>& a, const char* name, int x, int width) {
    a.create(Picture1_, name, 0, kMrpArticles - 1, [](QWidget* p) { return cell(p, 40); });
    for (int k = 0; k < kMrpArticles; ++k) {
      a(k)->setReadOnly(true);
      place(a(k), x, kTop + kBlock * k, width);
    }
  };
  heads4(ArtS_, "ArtS", 4, 52);
  heads4(Stock_, "Stock", 60, 46);
  heads4(StockSeg_, "StockSeg", 110, 36);
  heads4(TSS_, "TSS", 150, 36);
  for (int k = 0; k < kMrpArticles; ++k) TSS_(k)->setToolTip("Tiempo de Suministro");
  for (int r = 0; r < 5; ++r) {
    rowLabels_[at(r)].create(Picture1_, kMrpRowNames[r], 0, kMrpArticles - 1,
                             [](QWidget* p) { return caption(p, {}); });
    for (int k = 0; k < kMrpArticles; ++k) {
      QLabel* label = rowLabels_[at(r)](k);
      label->setText(kMrpRowCaptions[r]);
      label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
      const int y = kTop + kBlock * k + 22 + kRow * r;
      place(label, 8, y, kWeekX - 12);
      auto& cells = cells_[at(r)][at(k)];
      cells.create(Picture1_, kMrpCellPrefixes[r] + qs(mrpLetter(k)), 0, kMrpWeeks - 1,
                   [](QWidget* p) { return cell(p, 58); });
      for (int j = 0; j < kMrpWeeks; ++j) place(cells(j), kWeekX + kWeekStep * j, y, kWeekStep - 4);
    }
  }
  for (int b = 4; b <= 10; ++b) {
    auto* line = new QFrame(Picture1_);
    line->setObjectName(QStringLiteral("Image%1").arg(b));
    line->setStyleSheet("background: #4A5568;");
    place(line, 4, kTop + kBlock * b - 6, kWeekX + kWeekStep * kMrpWeeks - 8, 2);
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
  for (int k = 0; k < kMrpArticles; ++k) {
    const bool row = k < articles_;
    for (auto* head : {ArtS_(k), Stock_(k), StockSeg_(k), TSS_(k)}) head->setVisible(row);
    for (int r = 0; r < 5; ++r) {
      rowLabels_[at(r)](k)->setVisible(row);
      for (int j = 0; j < kMrpWeeks; ++j) cells_[at(r)][at(k)](j)->setVisible(row && j < weeks_);
    }
  }
  gui::fitToTable(*this);
}

void MrpSolution::write(const MrpRecords& r) {
  for (int k = 0; k < kMrpArticles; ++k) {
    const std::size_t c = at(k);
    ArtS_(k)->setText(qs(r.ArtS[c]));
    Stock_(k)->setText(qs(r.Stock[c]));
    StockSeg_(k)->setText(qs(r.StockSeg[c]));
    TSS_(k)->setText(qs(r.TSS[c]));
    const MrpGrid<std::string>* rows[5] = {&r.NB, &r.RP, &r.ID, &r.NN, &r.LP};
    for (int row = 0; row < 5; ++row)
      for (int j = 0; j < kMrpWeeks; ++j)
        cells_[at(row)][c](j)->setText(qs((*rows[row])[c][at(j)]));
  }
}

MrpRecords MrpSolution::read() const {
  MrpRecords r;
  r.articles = articles_;
  r.weeks = weeks_;
  for (int k = 0; k < kMrpArticles; ++k) {
    const std::size_t c = at(k);
    r.ArtS[c] = ArtS_(k)->text().toStdString();
    r.Stock[c] = Stock_(k)->text().toStdString();
    r.StockSeg[c] = StockSeg_(k)->text().toStdString();
    r.TSS[c] = TSS_(k)->text().toStdString();
    MrpGrid<std::string>* rows[5] = {&r.NB, &r.RP, &r.ID, &r.NN, &r.LP};
    for (int row = 0; row < 5; ++row)
      for (int j = 0; j < kMrpWeeks; ++j)
        (*rows[row])[c][at(j)] = cells_[at(row)][c](j)->text().toStdString();
  }
  return r;
}

void MrpSolution::formLoad() { SolutionScreen::formActivate(); }

Pages MrpSolution::compute() {
  const MrpFields f = entry<gui::DescribedEntry<MrpFields>>().fields();
  const MrpRecords records = solve(f);
  articles_ = records.articles;
  weeks_ = records.weeks;
  write(records);
  layOut(f);
  // What the screen shows is what its cells hold.
  const MrpRecords shown = read();
  return {report(f, shown), printout(f, shown)};
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
  for (int j = 0; j < std::min(weeks_, kMrpWeeks); ++j)
    gui::paintColumnHead(Semana_(j), QColor(0xE0, 0xE0, 0xE0));
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
