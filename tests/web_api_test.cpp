// The browser module's calls, run natively: the same core the page calls,
// answered in JSON.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
  void type(const char* control, const char* text) { ASSERT_TRUE(vorel_set(kEoq, control, text)); }
};

TEST_F(WebApi, TheTreeHoldsEveryScreenAndGreysTheModelsNotDescribed) {
  const std::string tree = vorel_tree();
  int screens = 0;
  for (std::size_t at = 0; (at = tree.find("\"cerrar\":\"", at)) != std::string::npos; ++at)
    ++screens;
  EXPECT_EQ(screens, 86);
  // The order quantity's and simplex's choices open their screens; a model
  // not yet described waits, greyed.
  EXPECT_THAT(tree,
              HasSubstr(R"("name":"Image3","toolTip":"","caption":"Cantidad Económica de )"
                        R"(Pedido","picture":"cep","action":"show","target":"GI_CantidadE)"
                        R"(conómicaPedido","hides":"GI_DemandaIndependiente","enabled":true)"));
  EXPECT_THAT(tree, HasSubstr(R"("name":"Image3","toolTip":"","caption":)"
                              R"("Simplex","picture":"simplex","action":"show","target":"PL_Simp)"
                              R"(lex","hides":"ProgramaciónLineal","enabled":true)"));
  EXPECT_THAT(tree, HasSubstr(R"("toolTip":"Disponible próximamente")"));
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
  // A model still undescribed has no live fields.
  for (const CatalogueEntry& model : catalogue())
    if (!model.form) {
      EXPECT_THAT(std::string(vorel_load(model.screen.c_str())), HasSubstr(R"("error")"));
      EXPECT_FALSE(vorel_set(model.screen.c_str(), "Titulo1", "1"));
      break;
    }
}

TEST_F(WebApi, AnOpenedExampleSolvesToItsGoldenTextAndSavesToTheSameBytes) {
  for (const char* name : {"libro", "limites"}) {
    SCOPED_TRACE(name);
    const std::string file = example(std::string("cep/") + name + ".txt");
    vorel_open(kEoq, file.data(), static_cast<int>(file.size()));
    const char* saved = vorel_save(kEoq);
    EXPECT_EQ(std::string(saved, vorel_size()), file);
    EXPECT_EQ(std::string(vorel_check(kEoq)), R"({"messages":[],"solution":"GI_CantidadEconómicaPedido_Solución"})");
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
            R"(nuevo valor entre 0 y 999.999.999","focus":""}],)"
            R"("solution":"GI_CantidadEconómicaPedido_Solución"})");
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
  EXPECT_EQ(std::string(vorel_check(kEoq)), R"({"messages":[],"solution":"GI_CantidadEconómicaPedido_Solución"})");
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

// Total costs: the options tick one another off, and Resolver shows the
// screen of two options or of three as they say.
TEST(WebApiOptions, TheTickedOptionChoosesTheSolutionScreen) {
  const std::string screen = findModel("costes-totales")->screen;
  const std::string loaded = vorel_load(screen.c_str());
  EXPECT_THAT(loaded, HasSubstr(R"("solutions":{"Select_C_Totales_Sol":{)"));
  EXPECT_THAT(loaded, HasSubstr(R"("Select_C_Totales_Sol1":{)"));
  const std::string file = example("costes-totales/dos-opciones.txt");
  vorel_open(screen.c_str(), file.data(), static_cast<int>(file.size()));
  EXPECT_THAT(std::string(vorel_check(screen.c_str())), HasSubstr(R"("solution":"Select_C_Totales_Sol")"));
  ASSERT_TRUE(vorel_set_checked(screen.c_str(), "Option2", 1));
  const std::string ticked = vorel_edit(screen.c_str(), "Option2");
  EXPECT_THAT(ticked, HasSubstr(R"("Option1":{"checked":false},"Option2":{"checked":true})"));
  EXPECT_THAT(std::string(vorel_check(screen.c_str())), HasSubstr(R"("solution":"Select_C_Totales_Sol1")"));
  vorel_unload(screen.c_str());
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

// Decisions under uncertainty: each page shows its own arrows and volver
// only the first; where forward2 and NoContinuar2 lead depends on Alfa as it
// stands in the fields at the click, not at the activation.
TEST(WebApiBrowsing, UncertaintyPagesOfferTheirArrowsAndReadAlfaAtTheClick) {
  const char* screen = "DecisionIncertidumbre";
  Loaded loaded(screen, "incertidumbre/libro.txt");
  const std::string solved = vorel_solve(screen, 0);
  EXPECT_THAT(screenText(solved), HasSubstr("CRITERIO DE WALD, MAXIMÍN O PESIMISTA"));
  EXPECT_EQ(shownCommands(solved), (Shown{"forward1", "volver"}));
  struct Step {
    const char* alfa;  // typed before the click; null: as it stands
    const char* command;
    const char* page;  // what the page painted says
    Shown shown;
  } steps[] = {
      {nullptr, "forward1", " CRITERIO MAXIMAX U OPTIMISTA", {"Back1", "forward2"}},
      {nullptr, "forward2", "CRITERIO DE SAVAGE", {"Continuar1", "Continuar2"}},
      {nullptr, "Continuar1", "CRITERIO DE HURWICZ", {"NoContinuar2"}},
      {"abc", "NoContinuar2", "CRITERIO DE SAVAGE", {"NoContinuar"}},
      {nullptr, "NoContinuar", " CRITERIO MAXIMAX U OPTIMISTA", {"Back1", "forward2"}},
      {"0.5", "forward2", "CRITERIO DE SAVAGE", {"Continuar1", "Continuar2"}},
      {nullptr, "Continuar2", " CRITERIO MAXIMAX U OPTIMISTA", {"Back1", "forward2"}},
      {nullptr, "Back1", "CRITERIO DE WALD", {"forward1", "volver"}},
  };
  for (const Step& s : steps) {
    SCOPED_TRACE(s.command);
    if (s.alfa) {
      ASSERT_TRUE(vorel_set(screen, "Alfa", s.alfa));
    }
    const std::string answer = vorel_press(screen, s.command);
    EXPECT_THAT(screenText(answer), HasSubstr(s.page));
    EXPECT_EQ(shownCommands(answer), s.shown);
  }
  // An arrow the page does not show leaves it as it is; a name that is no
  // arrow is no command.
  EXPECT_EQ(shownCommands(vorel_press(screen, "Continuar1")), (Shown{"forward1", "volver"}));
  EXPECT_THAT(std::string(vorel_press(screen, "volver")), HasSubstr(R"("error")"));
  // The next activation starts again at Wald.
  vorel_press(screen, "forward1");
  EXPECT_EQ(shownCommands(vorel_solve(screen, 0)), (Shown{"forward1", "volver"}));
}

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

// The ELECTRE tables' column heads carry their captions and back colours in
// the fields; Rediseñar moves "Ponderación" and its colour after the last
// alternative chosen.
TEST(WebApiTable, ElectraHeadsCarryTheirCaptionsAndColours) {
  const char* screen = "DecisionElectra1";
  const std::string loaded = vorel_load(screen);
  EXPECT_THAT(loaded, HasSubstr(R"j("LblAlternativas(3)":{"text":"Alternativa 4","visible":true,)j"
                                R"j("color":"#C0FFC0"},"LblAlternativas(4)":{"text":"Ponderación",)j"
                                R"j("visible":true,"color":"#C0C0FF"})j"));
  // The entry's way back keeps the name the screen knows it by.
  EXPECT_THAT(loaded, HasSubstr(R"j({"name":"Image6","toolTip":"Volver")j"));
  ASSERT_TRUE(vorel_set_index(screen, "NumAlternativas", 1));
  const std::string edited = vorel_edit(screen, "RediseñarTabla");
  EXPECT_THAT(edited, HasSubstr(R"j("LblAlternativas(2)":{"text":"Ponderación","visible":true,)j"
                                R"j("color":"#C0C0FF"},"LblAlternativas(3)":{"text":"Alternativa 4",)j"
                                R"j("visible":false,"color":"#C0FFC0"})j"));
  EXPECT_THAT(edited, HasSubstr(R"j("C3(3)":{"text":"","visible":true},)j"
                                R"j("C4(3)":{"text":"","visible":false})j"));
  ASSERT_TRUE(vorel_set_index(screen, "NumCriterios", -1));
  EXPECT_THAT(std::string(vorel_edit(screen, "RediseñarTabla")),
              HasSubstr(R"j({"messages":[{"text":"Seleccione el número de Criterios","focus":""}])j"));
}

// The layout screens: selectors that shape their tables only through
// Rediseñar Tabla, tables side by side or one below the other, heads over
// several cells, and a method that may never end solved in slices.
TEST(WebApiLayout, RediseñarTablaShapesTheRoutesAndBothBlocksOfDistances) {
  const char* screen = "Distribucion_CargaDistancia";
  const std::string loaded = vorel_load(screen);
  EXPECT_THAT(loaded, HasSubstr(R"j("text":"Secuencia","toolTip":"","buddy":"","row":0,"column":1,)j"
                                R"j("rowSpan":1,"columnSpan":5)j"));
  EXPECT_THAT(loaded, HasSubstr(R"j("tablesAcross":true)j"));
  EXPECT_THAT(loaded, HasSubstr(R"j("action":"edit","target":"rediseñar")j"));
  ASSERT_TRUE(vorel_set_index(screen, "NumActividades", 4));
  ASSERT_TRUE(vorel_set_index(screen, "NumDistancias", 9));
  // The choice alone shapes nothing.
  EXPECT_THAT(std::string(vorel_fields(screen)), HasSubstr(R"j("C5(0)":{"text":"","visible":false})j"));
  const std::string edited = vorel_edit(screen, "rediseñar");
  EXPECT_THAT(edited, HasSubstr(R"j("LblActividades(4)":{"visible":true},"C5(0)":{"text":"","visible":true})j"));
  EXPECT_THAT(edited, HasSubstr(R"j("LblActividades(5)":{"visible":false},"C6(0)":{"text":"","visible":false})j"));
  EXPECT_THAT(edited, HasSubstr(R"j("Lbldistancias(1)":{"visible":true})j"));
  EXPECT_THAT(edited, HasSubstr(R"j("D2(9)":{"text":"","visible":true})j"));
  EXPECT_THAT(edited, HasSubstr(R"j("Distancias(10)":{"text":"","visible":false})j"));
  vorel_unload(screen);
}

TEST(WebApiLayout, TheLowerTablesCaptionsShowWithItsFirstActivity) {
  const char* screen = "Distribucion_Equlibrado";
  const std::string loaded = vorel_load(screen);
  EXPECT_THAT(loaded, HasSubstr(R"j("text":"Actividades Inmediatamente\nAnteriores","toolTip":"",)j"
                                R"j("buddy":"","row":2,"column":0,"rowSpan":5,"columnSpan":1)j"));
  EXPECT_THAT(loaded, HasSubstr(R"j("RotuloTiempos2":{"visible":false})j"));
  ASSERT_TRUE(vorel_set_index(screen, "NumActividades", 7));
  std::string edited = vorel_edit(screen, "rediseñar");
  EXPECT_THAT(edited, HasSubstr(R"j("RotuloTiempos2":{"visible":true},"RotuloAnteriores2":{"visible":true})j"));
  EXPECT_THAT(edited, HasSubstr(R"j("TiempoOperacion(7)":{"text":"","visible":true})j"));
  EXPECT_THAT(edited, HasSubstr(R"j("C1(5)":{"text":"","visible":true})j"));
  EXPECT_THAT(edited, HasSubstr(R"j("C2(5)":{"text":"","visible":false})j"));
  ASSERT_TRUE(vorel_set_index(screen, "NumActividades", 6));
  edited = vorel_edit(screen, "rediseñar");
  EXPECT_THAT(edited, HasSubstr(R"j("RotuloTiempos2":{"visible":false},"RotuloAnteriores2":{"visible":false})j"));
  vorel_unload(screen);
}

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
