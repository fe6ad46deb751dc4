// The browser module's calls, run natively: the same core the page calls,
// answered in JSON.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <set>
#include <string>
#include <tuple>

#include "frame/catalogue.h"
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
};

TEST_F(WebApi, TheTreeHoldsEveryScreenAndEveryModelIsAtHand) {
  const std::string tree = vorel_tree();
  int screens = 0;
  for (std::size_t at = 0; (at = tree.find("\"cerrar\":\"", at)) != std::string::npos; ++at)
    ++screens;
  EXPECT_EQ(screens, 86);
  for (const CatalogueEntry& model : catalogue()) EXPECT_TRUE(model.form) << model.id;
  // The order quantity's and simplex's choices open their screens.
  EXPECT_THAT(tree,
              HasSubstr(R"("name":"Image3","toolTip":"","caption":"Cantidad Económica de )"
                        R"(Pedido","picture":"cep","action":"show","target":"GI_CantidadE)"
                        R"(conómicaPedido","hides":"GI_DemandaIndependiente","enabled":true)"));
  EXPECT_THAT(tree, HasSubstr(R"("name":"Image3","toolTip":"","caption":)"
                              R"("Simplex","picture":"simplex","action":"show","target":"PL_Simp)"
                              R"(lex","hides":"ProgramaciónLineal","enabled":true)"));
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
  EXPECT_FALSE(vorel_set(kEoq, "Q", "1"));
  // A screen that is no model's entry has no live fields.
  EXPECT_THAT(std::string(vorel_load("APrincipal")), HasSubstr(R"("error")"));
  EXPECT_FALSE(vorel_set("APrincipal", "Titulo1", "1"));
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

// Material requirements: selectors that hold their text, a dependency list
// a row, a frame of receipts shown by Mostrar, and records in cells of their
// own, computed when the solution is first loaded and then shown unchanged.
TEST(WebApiMrp, FramesFollowMostrarAndTheRecordsAreComputedOnce) {
  const char* screen = "GI_MRP";
  const std::string loaded = vorel_load(screen);
  EXPECT_THAT(loaded, HasSubstr(R"j("NArt":{"text":"2"},"NSem":{"text":"2"},"NoArticulo":{"text":""})j"));
  EXPECT_THAT(loaded, HasSubstr(R"j("name":"D(2)","text":"","toolTip":"","buddy":"","row":3)j"));
  EXPECT_THAT(loaded, HasSubstr(R"j("items":["X","A"])j"));
  EXPECT_THAT(loaded, HasSubstr(R"j("D1(1)":{"visible":true,"index":-1})j"));
  EXPECT_THAT(loaded, HasSubstr(R"j("frames":{"3":"FrmArticulo(0)","4":"FrmArticulo(1)",)j"));
  EXPECT_THAT(loaded, HasSubstr(R"j("FrmArticulo(0)":{"visible":true},"SemRPX(0)")j"));
  ASSERT_TRUE(vorel_set(screen, "NoArticulo", "ArticuloC"));
  const std::string shown = vorel_edit(screen, "Mostrar");
  EXPECT_THAT(shown, HasSubstr(R"j("FrmArticulo(0)":{"visible":false})j"));
  EXPECT_THAT(shown, HasSubstr(R"j("FrmArticulo(3)":{"visible":true})j"));

  const std::string file = example("mrp/un-nivel.txt");
  vorel_open(screen, file.data(), static_cast<int>(file.size()));
  const std::string solved = vorel_solve(screen, 0);
  EXPECT_THAT(solved, HasSubstr(R"j("LPA(0)":{"text":"100","visible":true})j"));
  EXPECT_THAT(solved, HasSubstr(R"j("LPA(5)":{"text":"","visible":false})j"));
  EXPECT_THAT(solved, HasSubstr(R"j("ArtS(2)":{"text":"B","visible":false})j"));
  EXPECT_THAT(solved, HasSubstr(quoted(golden("mrp/un-nivel.report"))));
  ASSERT_TRUE(vorel_set(screen, "TamañoLote(1)", "L"));
  ASSERT_TRUE(vorel_set(screen, "Titulo1", "Otro"));
  EXPECT_EQ(std::string(vorel_solve(screen, 0)), solved);
  vorel_unload(screen);
}

// The browsing commands a solution answers with, shown or not: the names of
// those shown, volver among them.
std::set<std::string> shownCommands(const std::string& answer) {
  std::set<std::string> shown;
  const std::size_t from = answer.find(R"("commands":{)");
  if (from == std::string::npos) return {"?"};
  const std::string commands = answer.substr(from, answer.find('}', from) - from);
  for (std::size_t at = 0; (at = commands.find(":true", at)) != std::string::npos; ++at) {
    const std::size_t open = commands.rfind('"', commands.rfind('"', at - 1) - 1);
    shown.insert(commands.substr(open + 1, commands.rfind('"', at - 1) - open - 1));
  }
  return shown;
}

// The text of the page a solution paints on the screen (not the printed one).
std::string screenText(const std::string& answer) {
  const std::size_t from = answer.find(R"("text":")");
  const std::size_t to = answer.find(R"(","pageText")");
  return from == std::string::npos || to == std::string::npos ? "?" : answer.substr(from, to - from);
}

// A described screen loaded with one of its examples.
class Loaded {
 public:
  Loaded(const char* screen, const std::string& file) : screen_(screen) {
    vorel_load(screen);
    const std::string bytes = example(file);
    vorel_open(screen, bytes.data(), static_cast<int>(bytes.size()));
  }
  ~Loaded() { vorel_unload(screen_); }
  Loaded(const Loaded&) = delete;
  Loaded& operator=(const Loaded&) = delete;

 private:
  const char* screen_;
};

using Shown = std::set<std::string>;

TEST(WebApiBrowsing, RiskPagesGoForwardAndBackAndVolverOnlyFromTheFirst) {
  const char* screen = "DecisionRiesgoNobayesiano";
  Loaded loaded(screen, "riesgo/libro.txt");
  const std::string solved = vorel_solve(screen, 0);
  EXPECT_THAT(screenText(solved), HasSubstr("CRITERIO DE LA DOMINANCIA SIMPLE"));
  EXPECT_EQ(shownCommands(solved), (Shown{"forward1", "volver"}));
  const std::tuple<const char*, const char*, Shown> steps[] = {
      {"forward1", "DOMINANCIA ESTOC", {"Back1", "forward2"}},
      {"forward2", "CRITERIO DEL VALOR MEDIO", {"back2"}},
      {"back2", "DOMINANCIA ESTOC", {"Back1", "forward2"}},
      {"Back1", "DOMINANCIA SIMPLE", {"forward1", "volver"}},
  };
  for (const auto& [command, page, shown] : steps) {
    SCOPED_TRACE(command);
    const std::string answer = vorel_press(screen, command);
    EXPECT_THAT(screenText(answer), HasSubstr(page));
    EXPECT_EQ(shownCommands(answer), shown);
  }
  // The printed page holds the three criteria whatever the page shown.
  vorel_press(screen, "forward1");
  const std::string answer = vorel_press(screen, "forward2");
  EXPECT_THAT(answer, HasSubstr(quoted(golden("riesgo/libro.page"))));
}

// Line balancing: a method that may never end, solved in slices.
TEST(WebApiLayout, BalancingRunsInSlicesAndACycleNeverEnds) {
  const char* screen = "Distribucion_Equlibrado";
  vorel_load(screen);
  // Activity 1 follows activity 2: the first pass places 2 to 5, the second 1.
  for (int a = 0; a < 5; ++a)
    ASSERT_TRUE(vorel_set(screen, ("TiempoOperacion(" + std::to_string(a) + ")").c_str(), "3"));
  ASSERT_TRUE(vorel_set(screen, "C1(0)", "2"));
  EXPECT_THAT(std::string(vorel_check(screen)), HasSubstr(R"({"messages":[],)"));
  EXPECT_THAT(std::string(vorel_solve(screen, 1)), HasSubstr(R"j("doesNotEnd":true)j"));
  EXPECT_THAT(std::string(vorel_solve(screen, 2)), HasSubstr(R"j("text":"Número de actividades")j"));
  std::string file = example("equilibrado/libro.txt");
  vorel_open(screen, file.data(), static_cast<int>(file.size()));
  EXPECT_THAT(std::string(vorel_solve(screen, 4096)),
              HasSubstr(quoted(golden("equilibrado/libro.report"))));
  file = example("equilibrado/ciclo.txt");
  vorel_open(screen, file.data(), static_cast<int>(file.size()));
  for (double budget : {4096.0, 2097152.0, 0.0})
    EXPECT_THAT(std::string(vorel_solve(screen, budget)), HasSubstr(R"j("doesNotEnd":true)j"));
  vorel_unload(screen);
}

// Control by variables: each chart screen solves its own chart on the live
// fields; the means chart offers what its state says; Recalcular takes
// samples out of the fields the entry then shows, and the page keeps the
// first pass's chart; the deviations chart's Imprimir raises its error.
TEST(WebApiControl, ChartsSolveOnTheirScreenAndRecalcularEditsTheFields) {
  const char* screen = "ControlCal_V";
  Loaded loaded(screen, "control-variables/recalculo-saca-nuevos.txt");
  const std::string medias = vorel_solve_on(screen, "ControlCal_V_Sol", 0);
  EXPECT_THAT(medias, HasSubstr(quoted(golden("control-variables/recalculo-saca-nuevos.report"))));
  EXPECT_EQ(shownCommands(medias), (Shown{"ControlDesviaciones", "Imprimir", "Recalcular",
                                          "Redibujar", "volver"}));
  EXPECT_THAT(medias, Not(HasSubstr(R"("pageChart")")));
  EXPECT_THAT(std::string(vorel_fields(screen)), HasSubstr(R"("Nmuestras":{"text":"9"})"));
  const std::string recalculado = vorel_press(screen, "Recalcular");
  EXPECT_THAT(recalculado, HasSubstr("El punto 4 está fuera de los límites de control"));
  EXPECT_THAT(recalculado, HasSubstr(R"("pageChart")"));
  EXPECT_THAT(std::string(vorel_fields(screen)), HasSubstr(R"("Nmuestras":{"text":"8"})"));
  const std::string desviaciones = vorel_solve_on(screen, "ControlCal_V_Sol2", 0);
  EXPECT_THAT(screenText(desviaciones), HasSubstr("Smedia:"));
  EXPECT_THAT(screenText(desviaciones), Not(HasSubstr("Media:")));
  EXPECT_THAT(std::string(vorel_press(screen, "Imprimir")), HasSubstr(R"("number":91)"));
  // The screen report's title is the one typed on Selec_Van, where it is loaded.
  vorel_load("Selec_Van");
  ASSERT_TRUE(vorel_set("Selec_Van", "Titulo1", "Torno"));
  EXPECT_THAT(screenText(vorel_solve_on(screen, "ControlCal_V_Sol", 0)),
              HasSubstr("Solución al problema:  Torno"));
  vorel_unload("Selec_Van");
}

TEST(WebJson, EscapesTextsAndWritesNumbersExactly) {
  EXPECT_EQ(web::Json().value(std::string("a\"b\\c\r\n\t\x01")).str(), R"("a\"b\\c\r\n\t\u0001")");
  // A number reads back as the same double; those JSON has no word for are null.
  for (double x : {0.1 + 0.2, 1e-300, -2.5e21, 714.2857142857143})
    EXPECT_EQ(std::strtod(web::Json().number(x).str().c_str(), nullptr), x);
  EXPECT_EQ(web::Json().number(std::nan("")).str() + web::Json().number(-1 / 0.0).str(), "nullnull");
}

}  // namespace
}  // namespace vorel
