// The browser module's calls, run natively: the same core the page calls,
// answered in JSON.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "frame/form.h"
#include "tests/test_support.h"
#include "web/api.h"
#include "web/json.h"

namespace vorel {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

const char* kEoq = "GI_CantidadEconómicaPedido";

std::string quoted(const std::string& text) { return web::Json().value(text).str(); }

std::string example(const std::string& path) {
  return testing::readBytes(std::string(VOREL_SOURCE_DIR) + "/examples/" + path);
}

std::string golden(const std::string& path) {
  return testing::readBytes(std::string(VOREL_SOURCE_DIR) + "/tests/golden/" + path);
}

class WebApi : public ::testing::Test {
 protected:
  void SetUp() override { vorel_load(kEoq); }
  void TearDown() override { vorel_unload(kEoq); }
  void type(const char* control, const char* text) { ASSERT_TRUE(vorel_set(kEoq, control, text)); }
};

TEST_F(WebApi, TheTreeHoldsEveryScreenAndGreysTheModelsNotDescribed) {
  const std::string tree = vorel_tree();
  int screens = 0;
  for (std::size_t at = 0; (at = tree.find("\"cerrar\":\"", at)) != std::string::npos; ++at)
    ++screens;
  EXPECT_EQ(screens, 86);
  // The order quantity's choice opens its screen; simplex's waits for its description.
  EXPECT_THAT(tree,
              HasSubstr(R"("name":"Image3","toolTip":"","caption":"Cantidad Económica de )"
                        R"(Pedido","picture":"cep","action":"show","target":"GI_CantidadE)"
                        R"(conómicaPedido","hides":"GI_DemandaIndependiente","enabled":true)"));
  EXPECT_THAT(tree, HasSubstr(R"("name":"Image3","toolTip":"Disponible próximamente","caption":)"
                              R"("Simplex","picture":"simplex","action":"show","target":"PL_Simp)"
                              R"(lex","hides":"ProgramaciónLineal","enabled":false)"));
  // The kept quirk: DecisionMulticriterio's odd caption, and the chrome's names.
  EXPECT_THAT(tree, HasSubstr("Teoría de Colas. Este tipo de problemas proporcionan información "
                              "crucial "));
  EXPECT_THAT(tree, HasSubstr(R"({"name":"Image10","toolTip":"Cerrar")"));
}

TEST_F(WebApi, LoadingDescribesTheScreensAndStartsFromThePresets) {
  vorel_unload(kEoq);
  const std::string loaded = vorel_load(kEoq);
  EXPECT_THAT(loaded, HasSubstr(R"("fields":{"Titulo1":{"text":"Problema1"},"D":{"text":""},)"
                                R"("E":{"text":""},"A":{"text":""},"TS":{"text":""},)"
                                R"("dias":{"text":""},"P":{"text":""}})"));
  EXPECT_THAT(loaded, HasSubstr(R"j("text":"Tiempo de suministro (en días)")j"));
  EXPECT_THAT(loaded, HasSubstr(R"("name":"Solucion1")"));
  EXPECT_THAT(std::string(vorel_load("PL_Simplex")), HasSubstr(R"("error")"));
  EXPECT_FALSE(vorel_set(kEoq, "Q", "1"));
  EXPECT_FALSE(vorel_set("PL_Simplex", "D", "1"));
}

TEST_F(WebApi, AnOpenedExampleSolvesToItsGoldenTextAndSavesToTheSameBytes) {
  for (const char* name : {"libro", "limites"}) {
    SCOPED_TRACE(name);
    const std::string file = example(std::string("cep/") + name + ".txt");
    vorel_open(kEoq, file.data(), static_cast<int>(file.size()));
    const char* saved = vorel_save(kEoq);
    EXPECT_EQ(std::string(saved, vorel_size()), file);
    EXPECT_EQ(std::string(vorel_check(kEoq)), R"({"messages":[]})");
    const std::string solved = vorel_solve(kEoq, 0);
    EXPECT_THAT(solved, HasSubstr(quoted(golden(std::string("cep/") + name + ".report"))));
    EXPECT_THAT(solved, HasSubstr(quoted(golden(std::string("cep/") + name + ".page"))));
  }
}

TEST_F(WebApi, ChecksTellTheFirstFailureAndNuevoKeepsTheTitle) {
  type("Titulo1", "Mi problema");
  type("D", "1000");
  type("E", "0");
  EXPECT_EQ(std::string(vorel_check(kEoq)),
            R"({"messages":[{"text":"Valor del coste de emisión (E) no válido. Introduce un )"
            R"(nuevo valor entre 0 y 999.999.999","focus":""}]})");
  EXPECT_THAT(std::string(vorel_nuevo(kEoq)),
              HasSubstr(R"({"Titulo1":{"text":"Mi problema"},"D":{"text":""},"E":{"text":""})"));
}

TEST_F(WebApi, ReportsAreLaidOutInZonesOfTheMeasuredFont) {
  const std::string file = example("cep/libro.txt");
  vorel_open(kEoq, file.data(), static_cast<int>(file.size()));
  // Unmeasured, a character is a column: the first zone starts at 14.
  EXPECT_THAT(std::string(vorel_solve(kEoq, 0)),
              HasSubstr(R"([{"x":14,"text":"Solución al problema:  Problema1"}])"));
  float widths[256];
  for (float& w : widths) w = 0.5f;
  widths[static_cast<unsigned char>(' ')] = 0.25f;
  vorel_metrics(widths);
  // The average weighs the blank at 166 and the letters at 834 thousandths:
  // 0.458500 em, a zone of 6.419 em.
  EXPECT_THAT(std::string(vorel_solve(kEoq, 0)),
              HasSubstr(R"([{"x":6.419,"text":"Solución al problema:  Problema1"}])"));
  for (float& w : widths) w = 1;
  vorel_metrics(widths);
}

TEST_F(WebApi, ARunTimeErrorComesBackAsTheBoxThePlatformShows) {
  for (auto [control, text] : {std::pair{"D", "999999999"},
                               {"E", "999999999"},
                               {"A", "1E-300"},
                               {"TS", "1"},
                               {"dias", "1"},
                               {"P", "1"}})
    type(control, text);
  EXPECT_EQ(std::string(vorel_check(kEoq)), R"({"messages":[]})");
  EXPECT_EQ(std::string(vorel_solve(kEoq, 0)),
            R"({"error":{"number":6,"title":"Vorel","text":"Error en tiempo de ejecución )"
            R"('6':\n\nDesbordamiento"}})");
}

// The discount table: a selector whose click shows the rows of the chosen
// number of intervals, cells with their visibility, row headings.
TEST(WebApiTable, TheSelectorsClickShowsTheChosenRows) {
  const char* screen = "GI_CEPDescuento";
  const std::string loaded = vorel_load(screen);
  EXPECT_THAT(loaded, HasSubstr(R"("kind":"selector","name":"cmbIntervalos")"));
  EXPECT_THAT(loaded, HasSubstr(R"("items":["2","3","4"])"));
  EXPECT_THAT(loaded, HasSubstr(R"("cmbIntervalos":{"index":0},"Intervalo1":{"visible":true},)"));
  EXPECT_THAT(loaded, HasSubstr(R"("C1":{"text":"","visible":false})"));
  ASSERT_TRUE(vorel_set_index(screen, "cmbIntervalos", 1));
  EXPECT_FALSE(vorel_set_index(screen, "D", 1));
  const std::string edited = vorel_edit(screen, "cmbIntervalos");
  EXPECT_THAT(edited, HasSubstr(R"({"messages":[],"fields":{)"));
  EXPECT_THAT(edited, HasSubstr(R"("Intervalo3":{"visible":true},"C1":{"text":"","visible":true})"));
  EXPECT_THAT(edited, HasSubstr(R"("Intervalo4":{"visible":false},"D1":{"text":"","visible":false})"));
  EXPECT_THAT(std::string(vorel_edit(screen, "Rediseñar")), HasSubstr(R"("error")"));
  vorel_unload(screen);
}

// The queues: an open list, options the fields choose, controls enabled and
// relabelled by the fields, the edit each arrival runs, and Resolver writing
// the model it chose into the entry's hidden fields.
TEST(WebApiColas, TheFieldsEnableTheControlsAndResolverWritesTheModel) {
  const char* screen = "TeoriaColas";
  const std::string loaded = vorel_load(screen);
  EXPECT_THAT(loaded, HasSubstr(R"("activate":"llegada")"));
  EXPECT_THAT(loaded, HasSubstr(R"("kind":"listbox","name":"LLegadas")"));
  EXPECT_THAT(loaded, HasSubstr(R"("K":{"text":"","enabled":false})"));
  EXPECT_THAT(loaded, HasSubstr(R"("name":"back2")"));
  const std::string arrived = vorel_edit(screen, "llegada");
  EXPECT_THAT(arrived, HasSubstr(R"("ColaIlimitada":{"checked":true})"));
  EXPECT_THAT(arrived, HasSubstr(R"("Servicios":{"index":0,"enabled":true})"));
  ASSERT_TRUE(vorel_set_checked(screen, "ColaLimitada", 1));
  const std::string limited = vorel_edit(screen, "ColaLimitada");
  EXPECT_THAT(limited, HasSubstr(R"("ColaIlimitada":{"checked":false},"ColaLimitada":{"checked":true})"));
  EXPECT_THAT(limited, HasSubstr(R"("TamañoCola":{"enabled":true},"K":{"text":"","enabled":true})"));
  EXPECT_THAT(limited, HasSubstr(R"("Servicios":{"index":0,"enabled":false})"));
  ASSERT_TRUE(vorel_set_index(screen, "Servicios", 1));
  const std::string general = vorel_edit(screen, "Servicios");
  EXPECT_THAT(general, HasSubstr(R"("S":{"text":"1","enabled":false})"));
  EXPECT_THAT(general, HasSubstr(
      R"("LblNu":{"text":"Valor esperado"},"Nu":{"text":"","toolTip":"Número medio de clientes atendidos por hora"})"));
  for (auto [control, text] :
       {std::pair{"S", "2"}, {"K", "4"}, {"Lambda", "3"}, {"Nu", "2"}, {"VarTS", "1"}})
    ASSERT_TRUE(vorel_set(screen, control, text));
  EXPECT_THAT(std::string(vorel_check(screen)), HasSubstr(R"("messages":[])"));
  EXPECT_THAT(std::string(vorel_solve(screen, 0)), HasSubstr("Modelo M/M/s/K"));
  EXPECT_THAT(std::string(vorel_fields(screen)), HasSubstr(R"("Tipo":{"text":"6"})"));
  vorel_unload(screen);
}

TEST(WebJson, EscapesWhatJsonCannotHoldRaw) {
  EXPECT_EQ(web::Json().value(std::string("a\"b\\c\r\n\t\x01")).str(), R"("a\"b\\c\r\n\t\u0001")");
}

}  // namespace
}  // namespace vorel
