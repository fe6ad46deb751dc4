// The economic order quantity's screens driven offscreen.
#include <gtest/gtest.h>

#include "frame/gui/model_screens.h"
#include "frame/problem_file.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "GI_CantidadEconómicaPedido";
const std::string kSolution = "GI_CantidadEconómicaPedido_Solución";

class EoqScreens : public ScreenTest {
 protected:
  void typeTextbook() {
    screens().show(kEntry);
    const char* values[][2] = {{"D", "1000"}, {"E", "50"},     {"A", "4"},
                               {"TS", "10"},  {"dias", "250"}, {"P", "2"}};
    for (auto& v : values) type(kEntry, v[0], v[1]);
  }
  std::string report() {
    auto* s = dynamic_cast<gui::SolutionScreen*>(screen(kSolution));
    return s ? s->Solucion1()->plainText() : "<no solution screen>";
  }
};

TEST_F(EoqScreens, ComingBackRecomputesFromTheFieldsAsTheyStand) {
  typeTextbook();
  press(kEntry, "Resolver");
  press(kSolution, "volver");
  EXPECT_TRUE(visible(kEntry));
  EXPECT_EQ(text(kEntry, "D"), "1000");
  type(kEntry, "D", "4000");
  press(kEntry, "Resolver");
  EXPECT_NE(report().find(" 316.2278 unidades"), std::string::npos);
}

TEST_F(EoqScreens, NuevoBlanksTheNumbersButNotTheTitle) {
  typeTextbook();
  type(kEntry, "Titulo1", "Almacén");
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Titulo1"), "Almacén");
  for (const char* f : {"D", "E", "A", "TS", "dias", "P"}) EXPECT_EQ(text(kEntry, f), "") << f;
}

// Guardar proposes the title as the file name; abrir offers every file.
TEST_F(EoqScreens, GuardarProposesTheTitleAndAbrirOffersEveryFile) {
  typeTextbook();
  type(kEntry, "Titulo1", "Almacén central");
  const QString path = QString::fromStdString(tempPath("almacen.txt"));
  platform.saveAnswers.push_back(path);
  press(kEntry, "guardar");
  EXPECT_EQ(platform.lastFileName, "Almacén central");
  closeAllProblemFiles();  // a later run
  press(kEntry, "nuevo");
  platform.openAnswers.push_back(path);
  press(kEntry, "abrir");
  EXPECT_EQ(platform.lastFilter, "All Files (*.*)|*.*|");
  EXPECT_EQ(text(kEntry, "D"), "1000");
}

TEST_F(EoqScreens, CancelAndBadFilesLoseNothing) {
  typeTextbook();
  platform.openAnswers.push_back(std::nullopt);  // Cancel
  press(kEntry, "abrir");
  EXPECT_EQ(text(kEntry, "D"), "1000");
  const std::string half = tempPath("half.txt");
  writeBytes(half, "\"Medio\"\r\n\"7\"\r\n");
  platform.openAnswers.push_back(QString::fromStdString(half));
  press(kEntry, "abrir");  // a half-read file leaves a half-filled screen
  EXPECT_EQ(text(kEntry, "Titulo1"), "Medio");
  EXPECT_EQ(text(kEntry, "D"), "7");
  EXPECT_EQ(text(kEntry, "E"), "50");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(EoqScreens, ImprimirPrintsThePageEvenAfterCancel) {
  typeTextbook();
  press(kEntry, "Resolver");
  const QString pdf = QString::fromStdString(tempPath("eoq.pdf"));
  platform.printTo(pdf);
  press(kSolution, "Imprimir");
  press(kSolution, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 2);
  platform.endProcess();
  const std::string text = pdfText(pdf);
  std::size_t first = text.find("CANTIDAD ECONÓMICA DE PEDIDO");
  ASSERT_NE(first, std::string::npos);
  EXPECT_NE(text.find("CANTIDAD ECONÓMICA DE PEDIDO", first + 1), std::string::npos);
  EXPECT_NE(text.find("158.1139"), std::string::npos);
}

}  // namespace
}  // namespace vorel::testing
