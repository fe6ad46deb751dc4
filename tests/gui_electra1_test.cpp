// The ELECTRE I screens driven offscreen: every example through abrir and
// Resolver, the checks with the focus they leave, RediseñarTabla and nuevo,
// the problem file, and the printed page.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>

#include "frame/gui/model_screens.h"
#include "frame/problem_file.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "DecisionElectra1";
const std::string kSolution = "DecisionElectra1_solucion";
const QString kExamples = QString(VOREL_SOURCE_DIR) + "/examples/electra1/";

class Electra1Screens : public ScreenTest {
protected:
  void open(const QString& file) {
    if (!screen(kEntry)) screens().show(kEntry);
    platform.openAnswers.push_back(kExamples + file);
    press(kEntry, "abrir");
  }
  template <class W = QWidget>
  W* control(const QString& name) {
    auto* s = screen(kEntry);
    return s ? s->findChild<W*>(name) : nullptr;
  }
  bool shown(const QString& name) {
    auto* w = control(name);
    return w && !w->isHidden();
  }
  void select(const QString& combo, int index) {
    control<QComboBox>(combo)->setCurrentIndex(index);
  }
  QString focused() {
    QWidget* w = screen(kEntry)->focusWidget();
    return w ? w->objectName() : QString("<none>");
  }
  gui::SolutionScreen* solution() { return dynamic_cast<gui::SolutionScreen*>(screen(kSolution)); }
  std::string report() { return solution() ? solution()->Solucion1()->plainText() : "<none>"; }
  // The colour a column head is painted in, read off its picture.
  QColor painted(const QString& head) {
    auto* label = control<QLabel>(head);
    return label->grab().toImage().pixelColor(5, label->height() / 2);
  }
};

TEST_F(Electra1Screens, ControlsCarryTheirNamesAndTips) {
  screens().show(kEntry);
  struct Case {
    const char* control;
    const char* tip;
  } cases[] = {{"Image6", "Volver"},
               {"escalaValoracion", "Escala de valoración"},
               {"IndiceConcordancia", "Índice de concordancia en tanto por uno"},
               {"IndiceDiscordancia", "Índice de Discordancia en tanto por uno"}};
  for (const Case& c : cases) {
    ASSERT_NE(control(c.control), nullptr) << c.control;
    EXPECT_EQ(control(c.control)->toolTip(), c.tip);
  }
  EXPECT_EQ(control<QAbstractButton>("RediseñarTabla")->text(), "Rediseñar Tabla");
  EXPECT_EQ(control<QComboBox>("NumAlternativas")->count(), 6);
  EXPECT_EQ(control<QComboBox>("NumCriterios")->count(), 7);
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Método multicriterio Electra 1");
  press(kEntry, "Image6");
  EXPECT_TRUE(visible("DecisionMulticriterio"));
  EXPECT_FALSE(visible(kEntry));
}

// Every example solves on the screens as on the command line: the painted
// report and the kept page read as the golden texts; a refused problem tells
// the same message; a division by zero is the platform's error 11.
TEST_F(Electra1Screens, EveryExampleReadsAsItsGoldenText) {
  const QStringList files = QDir(kExamples).entryList(QDir::Files, QDir::Name);
  ASSERT_GE(files.size(), 8);
  for (const QString& file : files) {
    SCOPED_TRACE(file.toStdString());
    screens().reset();
    closeAllProblemFiles();
    platform.messages.clear();
    platform.runtimeErrors.clear();
    open(file);
    press(kEntry, "Resolver");
    const std::string base = std::string(VOREL_SOURCE_DIR) + "/tests/golden/electra1/" +
                             QFileInfo(file).completeBaseName().toStdString();
    const std::string golden = readBytes(base + ".report");
    if (golden.rfind("[salida 1]\n", 0) == 0) {
      std::string told;
      for (const auto& m : platform.messages) told += m + "\n";
      EXPECT_EQ(told, golden.substr(11));
      EXPECT_TRUE(visible(kEntry));
      EXPECT_FALSE(visible(kSolution));
    } else if (golden.rfind("[salida 3]\n", 0) == 0) {
      ASSERT_EQ(platform.runtimeErrors.size(), 1u);
      EXPECT_EQ("Error " + std::to_string(platform.runtimeErrors[0]),
                golden.substr(11, golden.find(':') - 11));
    } else {
      EXPECT_TRUE(platform.messages.empty());
      EXPECT_FALSE(visible(kEntry));
      EXPECT_TRUE(visible(kSolution));
      EXPECT_EQ(report(), golden);
      EXPECT_EQ(renderText(solution()->page()), readBytes(base + ".page"));
    }
  }
}

// The checks in their order, one message each, and where the focus goes:
// to the offending field, except after the range messages of the scale and
// of the concordance, where it stays (here, on the title).
TEST_F(Electra1Screens, ChecksTellTheFirstFailureAndMoveTheFocus) {
  struct Case {
    const char* file;
    std::vector<std::pair<const char*, const char*>> edits;
    const char* message;
    const char* focus;
  } cases[] = {
      {"libro.txt", {{"escalaValoracion", "diez"}},
       "Debe introducir el valor de la escala de valoración", "escalaValoracion"},
      {"libro.txt", {{"escalaValoracion", "-1"}, {"IndiceConcordancia", ""}},
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendico "
       "entre 0 y 999999999",
       "Título"},
      {"libro.txt", {{"escalaValoracion", "1e10"}},
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendico "
       "entre 0 y 999999999",
       "Título"},
      {"libro.txt", {{"IndiceConcordancia", ""}},
       "Debe introducir el valor del índice de concordancia", "IndiceConcordancia"},
      {"libro.txt", {{"IndiceConcordancia", "1.5"}},
       "el valor del índice de concordancia no es correcto, debe introducir un valor comprendido "
       "entre 0 y 1",
       "Título"},
      {"libro.txt", {{"IndiceDiscordancia", "x"}},
       "Debe introducir el valor del índice de discordancia", "IndiceDiscordancia"},
      {"libro.txt", {{"IndiceDiscordancia", "-0.1"}},
       "el valor del índice dediscordancia no es correcto, debe introducir un valor comprendido "
       "entre 0 y 1",
       "IndiceDiscordancia"},
      {"libro.txt", {{"C1(2)", ""}, {"C3(3)", "x"}},
       "Debe completar la tabla de escalas de valoración ", "C1(2)"},
      {"libro.txt", {{"C3(1)", "1e12"}, {"C1(2)", ""}},
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendido "
       "entre -999999999 y 999999999",
       "C3(1)"},
      {"libro.txt", {{"C2(0)", "a"}, {"C1(1)", ""}},
       "Debe completar la tabla de escalas de valoración", "C2(0)"},
      // With four alternatives the weights stand in C5 and speak as the table.
      {"libro.txt", {{"C5(3)", ""}}, "Debe completar la tabla de escalas de valoración", "C5(3)"},
      {"libro.txt", {{"C5(0)", "-2e9"}},
       "El valor de la escala de valoración no es correcto, debe introducir un valor comprendido "
       "entre -999999999 y 999999999",
       "C5(0)"},
      // With six alternatives they stand in C7 and speak of the weights.
      {"mayor-tabla.txt", {{"C7(6)", ""}}, "Debe completar la fila de ponderaciones", "C7(6)"},
      {"mayor-tabla.txt", {{"C7(0)", "2e9"}},
       "El valor de la ponderación no es correcto, debe introducir un valor comprendido entre "
       "-999999999 y 999999999",
       "C7(0)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    screens().reset();
    closeAllProblemFiles();
    platform.messages.clear();
    open(c.file);
    for (auto [name, value] : c.edits) type(kEntry, name, value);
    control("Título")->setFocus();
    press(kEntry, "Resolver");
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0], c.message);
    EXPECT_EQ(focused(), c.focus);
    EXPECT_TRUE(visible(kEntry));
    EXPECT_FALSE(visible(kSolution));
  }
}

TEST_F(Electra1Screens, HiddenCellsAreNotLookedAt) {
  open("libro.txt");
  type(kEntry, "C1(5)", "no es un número");  // row 5 is hidden with four criteria
  type(kEntry, "C6(0)", "x");                // column 6 is hidden with four alternatives
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(visible(kSolution));
}

TEST_F(Electra1Screens, ComingBackRecomputesFromTheFieldsAsTheyStand) {
  open("libro.txt");
  press(kEntry, "Resolver");
  EXPECT_NE(report().find("La alternativa 3 domina a la alternativa 2 "), std::string::npos);
  press(kSolution, "volver");
  EXPECT_TRUE(visible(kEntry));
  EXPECT_EQ(text(kEntry, "IndiceConcordancia"), "0.6");
  type(kEntry, "IndiceConcordancia", "1");
  type(kEntry, "IndiceDiscordancia", "0");
  press(kEntry, "Resolver");
  // No alternative wins every criterion: nothing outranks, all are in the kernel.
  const std::string text = report();
  EXPECT_NE(text.find("No existen alternativas sobreclasificadas"), std::string::npos);
  for (const char* line : {"Alternativa 1 ", "Alternativa 2 ", "Alternativa 3 ", "Alternativa 4 "})
    EXPECT_NE(text.find(line), std::string::npos) << line;
}

// RediseñarTabla shows NA alternatives and the weights after them, over NC
// criteria; the heads take their captions and colours; no text is lost.
TEST_F(Electra1Screens, RediseñarTablaReshapesAndRecolours) {
  struct Case {
    int na, nc;
  } cases[] = {{1, 1}, {2, 6}, {6, 7}, {4, 4}};
  open("libro.txt");
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.na) + "x" + std::to_string(c.nc));
    select("NumAlternativas", c.na - 1);
    select("NumCriterios", c.nc - 1);
    control("Título")->setFocus();
    press(kEntry, "RediseñarTabla");
    EXPECT_TRUE(platform.messages.empty());
    for (int i = 0; i < 7; ++i) {
      EXPECT_EQ(shown(QString("LblCriterios(%1)").arg(i)), i < c.nc) << i;
      auto* head = control<QLabel>(QString("LblAlternativas(%1)").arg(i));
      EXPECT_EQ(!head->isHidden(), i <= c.na) << i;
      EXPECT_EQ(head->text(), i == c.na ? QString("Ponderación")
                                        : QString("Alternativa %1").arg(i + 1));
      EXPECT_EQ(head->property("BackColor").toLongLong(), i == c.na ? 0xFFC0C0 : 0xC0FFC0);
      for (int j = 1; j <= 7; ++j)
        EXPECT_EQ(shown(QString("C%1(%2)").arg(j).arg(i)), j <= c.na + 1 && i < c.nc)
            << j << "," << i;
    }
    EXPECT_EQ(focused(), "C1(0)");
  }
  // The texts outlived the small shapes.
  EXPECT_EQ(text(kEntry, "C4(3)"), "8");
  EXPECT_EQ(text(kEntry, "C5(3)"), "1");
  // The stored colours are blue-green-red: the weights' head shows light blue.
  EXPECT_EQ(painted("LblAlternativas(4)"), QColor(0xC0, 0xC0, 0xFF));
  EXPECT_EQ(painted("LblAlternativas(0)"), QColor(0xC0, 0xFF, 0xC0));
}

TEST_F(Electra1Screens, RediseñarTablaWantsBothNumbers) {
  struct Case {
    int alternativas, criterios;
    const char* message;
  } cases[] = {{-1, 2, "Seleccione el número de Alternativas"},
               {-1, -1, "Seleccione el número de Alternativas"},
               {1, -1, "Seleccione el número de Criterios"}};
  open("libro.txt");
  for (const Case& c : cases) {
    platform.messages.clear();
    select("NumAlternativas", c.alternativas);
    select("NumCriterios", c.criterios);
    press(kEntry, "RediseñarTabla");
    EXPECT_EQ(platform.messages, std::vector<std::string>{c.message});
    EXPECT_TRUE(shown("C5(3)"));  // the shape is untouched
    EXPECT_EQ(control<QLabel>("LblAlternativas(4)")->text(), "Ponderación");
  }
}

TEST_F(Electra1Screens, NuevoBlanksAndRestoresTheFirstShapeButKeepsTheTitle) {
  open("mayor-tabla.txt");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Título"), "Tabla completa");
  for (const char* f : {"escalaValoracion", "IndiceConcordancia", "IndiceDiscordancia", "C1(0)",
                        "C7(6)", "C3(2)"})
    EXPECT_EQ(text(kEntry, f), "") << f;
  EXPECT_EQ(control<QComboBox>("NumAlternativas")->currentText(), "4");
  EXPECT_EQ(control<QComboBox>("NumCriterios")->currentText(), "4");
  EXPECT_TRUE(shown("C5(3)"));
  EXPECT_FALSE(shown("C6(0)"));
  EXPECT_FALSE(shown("C1(4)"));
  EXPECT_EQ(control<QLabel>("LblAlternativas(4)")->text(), "Ponderación");
  EXPECT_FALSE(shown("LblAlternativas(5)"));
}

// guardar writes the bytes that the example holds; the file opens in a later
// run, not in the same one, and brings back hidden cells with their texts and
// the heads' captions and colours as they were, without reshaping.
TEST_F(Electra1Screens, ProblemFileRoundTrip) {
  open("libro.txt");
  const QString path = QString::fromStdString(tempPath("proveedor.txt"));
  platform.saveAnswers.push_back(path);
  press(kEntry, "guardar");
  EXPECT_EQ(platform.lastFilter, "All Files (*.*)|*.*|Text _Files (*.txt)|*");
  EXPECT_EQ(platform.lastFilterIndex, 2);
  EXPECT_EQ(platform.lastFileName, "Elección de proveedor");
  EXPECT_EQ(readBytes(path.toStdString()), readBytes((kExamples + "libro.txt").toStdString()));

  // An odd state: a small shape over old texts, a head of a colour of its own.
  select("NumAlternativas", 1);
  select("NumCriterios", 1);
  press(kEntry, "RediseñarTabla");
  select("NumAlternativas", 5);
  control<QLabel>("LblAlternativas(0)")->setProperty("BackColor", 255);
  const QString odd = QString::fromStdString(tempPath("raro.txt"));
  platform.saveAnswers.push_back(odd);
  press(kEntry, "guardar");

  press(kEntry, "nuevo");
  platform.openAnswers.push_back(odd);
  press(kEntry, "abrir");  // still open for writing in this run: nothing happens
  EXPECT_EQ(platform.lastFilter, "All Files (*.*)|*.*|");
  EXPECT_EQ(text(kEntry, "escalaValoracion"), "");

  closeAllProblemFiles();  // a later run
  platform.openAnswers.push_back(odd);
  press(kEntry, "abrir");
  EXPECT_EQ(text(kEntry, "escalaValoracion"), "10");
  EXPECT_EQ(control<QComboBox>("NumAlternativas")->currentText(), "6");
  EXPECT_EQ(control<QComboBox>("NumCriterios")->currentText(), "2");
  EXPECT_EQ(text(kEntry, "C4(3)"), "8");
  EXPECT_FALSE(shown("C4(3)"));
  EXPECT_TRUE(shown("C3(1)"));
  EXPECT_FALSE(shown("C4(0)"));
  EXPECT_EQ(control<QLabel>("LblAlternativas(2)")->text(), "Ponderación");
  EXPECT_EQ(control<QLabel>("LblAlternativas(0)")->property("BackColor").toLongLong(), 255);
  EXPECT_EQ(painted("LblAlternativas(0)"), QColor(0xFF, 0, 0));

  // Six alternatives by the combo over the cells of two: the checks pass on
  // what is shown, and the weights read from the empty C7 sum to zero: the
  // first concordance is 0 / 0, the platform's overflow.
  platform.messages.clear();
  press(kEntry, "Resolver");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(platform.runtimeErrors, std::vector<int>{6});
}

TEST_F(Electra1Screens, CancelAndBadFilesLoseNothing) {
  open("libro.txt");
  platform.openAnswers.push_back(std::nullopt);
  press(kEntry, "abrir");
  EXPECT_EQ(text(kEntry, "C1(0)"), "8");
  const std::string half = tempPath("medio.txt");
  writeBytes(half, "\"Medio\"\r\n1\r\n9\r\n\"5\"\r\n");  // no such list index: the read stops
  platform.openAnswers.push_back(QString::fromStdString(half));
  press(kEntry, "abrir");
  EXPECT_EQ(text(kEntry, "Título"), "Medio");
  EXPECT_EQ(control<QComboBox>("NumCriterios")->currentText(), "2");
  EXPECT_EQ(control<QComboBox>("NumAlternativas")->currentText(), "4");
  EXPECT_EQ(text(kEntry, "escalaValoracion"), "10");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Electra1Screens, ImprimirPrintsTheReportUnderItsHead) {
  open("libro.txt");
  press(kEntry, "Resolver");
  const QString pdf = QString::fromStdString(tempPath("electra1.pdf"));
  platform.printTo(pdf);
  press(kSolution, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 1);
  platform.endProcess();
  const std::string text = pdfText(pdf);
  const std::size_t head = text.find("ELECTRA 1");
  ASSERT_NE(head, std::string::npos);
  std::size_t at = head;
  for (const char* line :
       {"Solución al problema: Elección de proveedor", "Numero de alternativas:",
        "Límite de discordancia", "SOBRECLASIFICACIÓN", "La alternativa 1 domina a la alternativa 3",
        "La alternativa 3 domina a la alternativa 4", "NÚCLEO", "Alternativa 1"}) {
    at = text.find(line, at);
    ASSERT_NE(at, std::string::npos) << line;
  }
  EXPECT_EQ(text.find(std::string(67, '_')), std::string::npos);  // the page's rule is shorter
  EXPECT_NE(text.find(std::string(66, '_')), std::string::npos);
}

}  // namespace
}  // namespace vorel::testing
