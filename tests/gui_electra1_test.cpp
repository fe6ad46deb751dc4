// The ELECTRE I screens driven offscreen: RediseñarTabla's messages, nuevo,
// the heads' colours kept in the problem file, and a selector beyond the
// cells shown (the checks and their focus: electra1_test; the heads' captions
// and colours on Rediseñar: decision.test.mjs).
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>

#include "frame/problem_file.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "DecisionElectra1";
const std::string kSolution = "DecisionElectra1_solucion";

class Electra1Screens : public ScreenTest {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    screens().show(kEntry);
  }
  void openExample(const char* file) { openFile(kEntry, examplePath("electra1", file)); }
  bool shown(const QString& name) { return ScreenTest::shown(kEntry, name); }
  QLabel* head(int i) { return control<QLabel>(kEntry, QString("LblAlternativas(%1)").arg(i)); }
  void select(int alternativas, int criterios) {
    control<QComboBox>(kEntry, "NumAlternativas")->setCurrentIndex(alternativas - 1);
    control<QComboBox>(kEntry, "NumCriterios")->setCurrentIndex(criterios - 1);
  }
  // The colour a column head is painted in, read off its picture.
  QColor headColour(int i) {
    return head(i)->grab().toImage().pixelColor(5, head(i)->height() / 2);
  }
};

TEST_F(Electra1Screens, RediseñarTablaWantsBothNumbers) {
  struct Case {
    int alternativas, criterios;
    const char* message;
  } cases[] = {{0, 2, "Seleccione el número de Alternativas"},
               {0, 0, "Seleccione el número de Alternativas"},
               {1, 0, "Seleccione el número de Criterios"}};
  openExample("libro.txt");
  for (const Case& c : cases) {
    platform.messages.clear();
    select(c.alternativas, c.criterios);
    press(kEntry, "RediseñarTabla");
    EXPECT_EQ(platform.messages, std::vector<std::string>{c.message});
    EXPECT_TRUE(shown("C5(3)"));  // the shape is untouched
    EXPECT_EQ(head(4)->text(), "Ponderación");
  }
}

TEST_F(Electra1Screens, NuevoBlanksAndRestoresTheFirstShapeButKeepsTheTitle) {
  openExample("mayor-tabla.txt");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Título"), "Tabla completa");
  for (const char* f :
       {"escalaValoracion", "IndiceConcordancia", "IndiceDiscordancia", "C1(0)", "C7(6)", "C3(2)"})
    EXPECT_EQ(text(kEntry, f), "") << f;
  EXPECT_EQ(control<QComboBox>(kEntry, "NumAlternativas")->currentText(), "4");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumCriterios")->currentText(), "4");
  EXPECT_TRUE(shown("C5(3)"));
  EXPECT_FALSE(shown("C6(0)"));
  EXPECT_FALSE(shown("C1(4)"));
  EXPECT_EQ(head(4)->text(), "Ponderación");
  EXPECT_FALSE(shown("LblAlternativas(5)"));
}

// A head's own colour goes into the problem file and comes back painted.
TEST_F(Electra1Screens, HeadColoursComeBackFromTheFile) {
  openExample("libro.txt");
  head(0)->setProperty("BackColor", 255);
  const QString saved = QString::fromStdString(tempPath("rojo.txt"));
  platform.saveAnswers.push_back(saved);
  press(kEntry, "guardar");
  press(kEntry, "nuevo");
  head(0)->setProperty("BackColor", 0xC0FFC0);
  closeAllProblemFiles();  // a later run
  openFile(kEntry, saved);
  EXPECT_EQ(head(0)->property("BackColor").toLongLong(), 255);
  EXPECT_EQ(headColour(0), QColor(0xFF, 0, 0));
}

// Six alternatives by the selector over the cells of two: the checks pass on
// what is shown, and the weights read from the empty C7 sum to zero: the
// first concordance is 0 / 0, the platform's overflow.
TEST_F(Electra1Screens, MoreAlternativesChosenThanShownIsAnOverflow) {
  openExample("libro.txt");
  select(2, 2);
  press(kEntry, "RediseñarTabla");
  select(6, 2);
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(platform.runtimeErrors, std::vector<int>{6});
}

}  // namespace
}  // namespace vorel::testing
