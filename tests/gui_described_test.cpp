// Every entry screen drawn from its description, with each of its examples
// opened: no two shown controls overlap, so each caption reads beside its box
// and each cell stands alone.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>

#include "frame/catalogue.h"
#include "tests/gui_support.h"

namespace vorel::testing {
namespace {

using DescribedScreens = ScreenTest;

bool isControl(QWidget* w) {
  return qobject_cast<QLabel*>(w) || qobject_cast<QLineEdit*>(w) || qobject_cast<QComboBox*>(w) ||
         qobject_cast<QAbstractButton*>(w);
}

// The names of the shown controls that overlap another, in pairs.
std::vector<std::string> overlaps(QWidget* window) {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  QCoreApplication::processEvents();
  std::vector<std::pair<QWidget*, QRect>> placed;
  for (QWidget* w : window->findChildren<QWidget*>()) {
    if (!isControl(w) || !w->isVisibleTo(window) || w->width() == 0) continue;
    // A control inside another (a selector's own box) is part of it.
    bool inner = false;
    for (QWidget* p = w->parentWidget(); p && p != window; p = p->parentWidget())
      inner = inner || isControl(p);
    if (!inner) placed.push_back({w, QRect(w->mapTo(window, QPoint(0, 0)), w->size())});
  }
  auto name = [](QWidget* w) {
    auto* label = qobject_cast<QLabel*>(w);
    return (w->objectName().isEmpty() && label ? label->text() : w->objectName()).toStdString();
  };
  std::vector<std::string> found;
  for (std::size_t i = 0; i < placed.size(); ++i)
    for (std::size_t j = i + 1; j < placed.size(); ++j)
      if (placed[i].second.intersects(placed[j].second))
        found.push_back(name(placed[i].first) + " ~ " + name(placed[j].first));
  return found;
}

TEST_F(DescribedScreens, NoShownControlsOverlapWithAnyExampleOpened) {
  int described = 0;
  for (const CatalogueEntry& model : catalogue()) {
    if (!model.form) continue;
    ++described;
    screens().reset();
    gui::Screen* entry = screens().show(model.screen);
    const QDir examples(QString(VOREL_SOURCE_DIR) + "/examples/" + QString::fromStdString(model.id));
    EXPECT_EQ(overlaps(entry), std::vector<std::string>{}) << model.id << " as it opens";
    for (const QString& file : examples.entryList({"*.txt"}, QDir::Files, QDir::Name)) {
      openFile(model.screen, examples.filePath(file));
      EXPECT_EQ(overlaps(entry), std::vector<std::string>{}) << model.id << " " << file.toStdString();
    }
  }
  EXPECT_GE(described, 4);
}

}  // namespace
}  // namespace vorel::testing
