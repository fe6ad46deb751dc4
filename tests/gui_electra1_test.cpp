// The ELECTRE I screens driven offscreen: the controls' tips, the checks with
// the focus they leave, RediseñarTabla with the heads' captions and colours,
// nuevo, and the colours kept in the problem file.
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

TEST_F(Electra1Screens, ControlsCarryTheirNamesAndTips) {
  const char* tips[][2] = {{"Image6", "Volver"},
                           {"escalaValoracion", "Escala de valoración"},
                           {"IndiceConcordancia", "Índice de concordancia en tanto por uno"},
                           {"IndiceDiscordancia", "Índice de Discordancia en tanto por uno"}};
  for (auto& t : tips) {
    ASSERT_NE(control(kEntry, t[0]), nullptr) << t[0];
    EXPECT_EQ(control(kEntry, t[0])->toolTip(), t[1]);
  }
  EXPECT_EQ(control<QAbstractButton>(kEntry, "RediseñarTabla")->text(), "Rediseñar Tabla");
  EXPECT_EQ(control<QComboBox>(kEntry, "NumAlternativas")->count(), 6);
  EXPECT_EQ(control<QComboBox>(kEntry, "NumCriterios")->count(), 7);
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Método multicriterio Electra 1");
  press(kEntry, "Image6");
  EXPECT_TRUE(visible("DecisionMulticriterio"));
  EXPECT_FALSE(visible(kEntry));
}

// One message each, and the focus goes where the core says: to the offending
// field, or nowhere after the range message of the scale (it stays on the
// title). The shape read from the file decides which cells are looked at (the
// checks, their order and their focus: the core suite).
TEST_F(Electra1Screens, ChecksTellTheFirstFailureAndMoveTheFocus) {
  struct Case {
    const char* focus;  // the cells of C7 are those of the six alternatives of mayor-tabla
    std::vector<std::pair<const char*, const char*>> edits;
    std::string message;  // empty: solves
  } cases[] = {
      {"Título",
       {{"escalaValoracion", "1e10"}},
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendico "
       "entre 0 y 999999999"},
      {"C2(0)",
       {{"C2(0)", "a"}, {"C1(1)", ""}},
       "Debe completar la tabla de escalas de valoración"},
      {"C7(6)", {{"C7(6)", ""}}, "Debe completar la fila de ponderaciones"},
      // Row 5 and column 6 are hidden with four criteria and four alternatives.
      {"Título", {{"C1(5)", "no es un número"}, {"C6(0)", "x"}}, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    screens().reset();
    platform.messages.clear();
    openExample(QString(c.focus).startsWith("C7") ? "mayor-tabla.txt" : "libro.txt");
    for (auto [name, value] : c.edits) type(kEntry, name, value);
    control(kEntry, "Título")->setFocus();
    press(kEntry, "Resolver");
    if (c.message.empty()) {
      EXPECT_TRUE(platform.messages.empty());
      EXPECT_TRUE(visible(kSolution));
      continue;
    }
    EXPECT_EQ(platform.messages, std::vector<std::string>{c.message});
    EXPECT_EQ(focused(kEntry), c.focus);
    EXPECT_TRUE(visible(kEntry));
    EXPECT_FALSE(visible(kSolution));
  }
}

TEST_F(Electra1Screens, ComingBackRecomputesFromTheFieldsAsTheyStand) {
  openExample("libro.txt");
  press(kEntry, "Resolver");
  press(kSolution, "volver");
  EXPECT_TRUE(visible(kEntry));
  type(kEntry, "IndiceConcordancia", "1");
  type(kEntry, "IndiceDiscordancia", "0");
  press(kEntry, "Resolver");
  // No alternative wins every criterion: nothing outranks.
  EXPECT_NE(painted(kSolution).find("No existen alternativas sobreclasificadas"),
            std::string::npos);
}

// RediseñarTabla shows NA alternatives and the weights after them, over NC
// criteria; the heads take their captions and colours; no text is lost.
TEST_F(Electra1Screens, RediseñarTablaReshapesAndRecolours) {
  openExample("libro.txt");
  const std::pair<int, int> shapes[] = {{1, 1}, {2, 6}, {6, 7}, {4, 4}};
  for (auto [na, nc] : shapes) {
    SCOPED_TRACE(std::to_string(na) + "x" + std::to_string(nc));
    select(na, nc);
    control(kEntry, "Título")->setFocus();
    press(kEntry, "RediseñarTabla");
    EXPECT_TRUE(platform.messages.empty());
    for (int i = 0; i < 7; ++i) {
      EXPECT_EQ(shown(QString("LblCriterios(%1)").arg(i)), i < nc) << i;
      EXPECT_EQ(!head(i)->isHidden(), i <= na) << i;
      EXPECT_EQ(head(i)->text(),
                i == na ? QString("Ponderación") : QString("Alternativa %1").arg(i + 1));
      EXPECT_EQ(head(i)->property("BackColor").toLongLong(), i == na ? 0xFFC0C0 : 0xC0FFC0);
      for (int j = 1; j <= 7; ++j)
        EXPECT_EQ(shown(QString("C%1(%2)").arg(j).arg(i)), j <= na + 1 && i < nc) << j << "," << i;
    }
    EXPECT_EQ(focused(kEntry), "C1(0)");
  }
  EXPECT_EQ(text(kEntry, "C4(3)"), "8");
  EXPECT_EQ(text(kEntry, "C5(3)"), "1");
  // The stored colours are blue-green-red: the weights' head shows light blue.
  EXPECT_EQ(headColour(4), QColor(0xC0, 0xC0, 0xFF));
  EXPECT_EQ(headColour(0), QColor(0xC0, 0xFF, 0xC0));
}

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
