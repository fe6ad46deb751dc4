#include "frame/navigation.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace vorel::nav {
namespace {

using Names = std::vector<std::string>;

const ScreenInfo& screen(const std::string& name) {
  const ScreenInfo* s = findScreen(name);
  if (s == nullptr) throw std::runtime_error("no screen " + name);
  return *s;
}

Names namesOf(Kind kind) {
  Names out;
  for (const ScreenInfo& s : screens())
    if (s.kind == kind) out.push_back(s.name);
  return out;
}

// Every row names a screen of `kind`; the rows are those screens in tree order.
template <typename Row>
void forEachRow(Kind kind, const std::vector<Row>& rows, auto check) {
  Names names;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    names.push_back(row.name);
    const ScreenInfo& s = screen(row.name);
    EXPECT_EQ(s.kind, kind);
    check(s, row);
  }
  EXPECT_EQ(namesOf(kind), names);
}

TEST(Navigation, EntryScreensFollowTheModelsTable) {
  // Entry screen, caption, what volver shows ("": no volver), the solution screens Resolver
  // shows. The deviation and range charts of ControlCal_V come from its chart of means.
  struct Row {
    const char *name, *caption, *volver;
    Names solutions;
  };
  const std::vector<Row> rows = {
      // clang-format off
      {"PL_Simplex", "Simplex", "ProgramaciónLineal", {"PL_Simplex_Solucion"}},
      {"PL_Transportes", "Problema del Transporte", "ProgramaciónLineal",
       {"PL_Transportes_Solución"}},
      {"PL_Asignación", "Problemas de Asignación", "ProgramaciónLineal",
       {"PL_Asignación_Solución"}},
      {"DecisionIncertidumbre", "Toma de Decisiones en Ambiente de Incertidumbre", "DecisionTeoria",
       {"DecisionIncertidumbre_solucion"}},
      {"DecisionRiesgoNobayesiano", "Toma de decisiones en Ambiente de Riesgo", "DecisionTeoria",
       {"DecisionRiesgoNobayesiano_solucion"}},
      {"DecisionElectra1", "Método multicriterio Electra 1", "DecisionMulticriterio",
       {"DecisionElectra1_solucion"}},
      {"DecisionElectra2", "Método multicriterio: Electra 2", "DecisionMulticriterio",
       {"DecisionElectra2_solucion"}},
      {"Juegos_2", " Juegos con 2 jugadores", "Juegos", {"Juegos_2_Solucion"}},
      {"Juegos_3", "Juegos con 3 jugadores", "Juegos", {"Juegos_3_Solucion"}},
      {"Juegos_n", "Juegos con n Estrategias", "Juegos", {"Juegos_n_solucion"}},
      {"TeoriaColas", "Teoría de Colas", "", {"TeoriaColas_Solucion"}},
      {"GI_CantidadEconómicaPedido", "Cantidad Económica de Pedido", "GI_DemandaIndependiente",
       {"GI_CantidadEconómicaPedido_Solución"}},
      {"GI_CEPGradual", "Cantidad Económica de Pedido con Suministro Gradual",
       "GI_DemandaIndependiente", {"GI_CEPGradual_Solución"}},
      {"GI_CEPRuptura", "Cantidad Económica de Pedido con Ruptura", "GI_DemandaIndependiente",
       {"GI_CEPRuptura_Solución"}},
      {"GI_CEPDescuento", "Cantidad Económica de Pedido con Descuento", "GI_DemandaIndependiente",
       {"GI_CEPDescuento_Solución"}},
      {"GI_MRP", "MRP", "GestiónDeInventarios", {"GI_MRP_Solucion1"}},
      {"Localizacion_CG", "Localización por Centro de Gravedad", "Localizacion_P",
       {"Localizacion_CG_Solucion"}},
      {"Localizacion_PF", "Localización por Ponderación de Factores", "Localizacion_P",
       {"Localizacion_PF_Solucion"}},
      {"Selec_Pond", "Criterio de Ponderación de Factores", "SelecEquipos",
       {"Selec_Pond_Solucion"}},
      {"Selec_Van", "Criterio del Van", "SelecEquipos", {"Selec_Van_Solucion"}},
      {"Select_C_Totales", "Costes Totales", "SelecEquipos",
       {"Select_C_Totales_Sol", "Select_C_Totales_Sol1"}},
      {"ControlCal_V", "Control por Variables. Control de Medias.", "ControlCal",
       {"ControlCal_V_Sol"}},
      {"ControlCal_AtribP", "Control por Atributos", "ControlCal",
       {"ControlCAl_AtribP_Sol", "ControlCal_AtribNP_Sol"}},
      {"ControlCal_NDef", "Control por Número de Defectos", "ControlCal",
       {"ControlCal_NDef_Sol", "ControlCal_NDef_Sol1"}},
      {"Productividad_Simple", "Productividad Parcial", "Productividad",
       {"Productividad_Simple_Solucion"}},
      {"Productividad_Global", "Productividad Global", "Productividad",
       {"Productividad_Global_Solucion"}},
      {"C_Experiencia", "Curvas de Experiencia", "", {"C_Experiencia_Sol"}},
      {"Distribucion_CargaDistancia", "Análisis Carga-Distancia", "DistribucionFisica",
       {"Distribucion_Cargadistancia_Solucion"}},
      {"Distribucion_Equlibrado", "Equilibrado de Líneas de Fabricación o Montaje",
       "DistribucionFisica", {"Distribucion_Equilibrado_Solucion"}},
      // clang-format on
  };
  // The entry screens that stay visible behind their solutions.
  const std::set<std::string> stays = {"GI_MRP", "Localizacion_CG", "Selec_Pond", "Selec_Van"};
  ASSERT_EQ(rows.size(), 29u);
  forEachRow(Kind::Entry, rows, [&](const ScreenInfo& s, const Row& row) {
    EXPECT_EQ(s.caption, row.caption);
    EXPECT_EQ(s.volver, row.volver);
    EXPECT_EQ(s.solutions, row.solutions);
    EXPECT_EQ(s.resolverStays, stays.contains(row.name));
    EXPECT_EQ(s.entry, "");
  });
}

TEST(Navigation, SolutionAndChartPrintScreens) {
  // Caption and what volver shows; the entry each belongs to is checked by the tree order.
  struct Row {
    const char *name, *caption, *volver;
  };
  const std::vector<Row> rows = {
      // clang-format off
      {"PL_Simplex_Solucion", "Form1", "PL_Simplex"},
      {"PL_Transportes_Solución", "Solución", "PL_Transportes"},
      {"PL_Asignación_Solución", "Solución", "PL_Asignación"},
      {"DecisionIncertidumbre_solucion", "Solución", "DecisionIncertidumbre"},
      {"DecisionRiesgoNobayesiano_solucion", "Solución", "DecisionRiesgoNobayesiano"},
      {"DecisionElectra1_solucion", "Solución", "DecisionElectra1"},
      {"DecisionElectra2_solucion", "Solución", "DecisionElectra2"},
      {"Juegos_2_Solucion", "Solución", "Juegos_2"},
      {"Juegos_3_Solucion", "Solución", "Juegos_3"},
      {"Juegos_n_solucion", "Solución", "Juegos_n"},
      {"TeoriaColas_Solucion", "Solución", "TeoriaColas"},
      {"GI_CantidadEconómicaPedido_Solución", "Solución ", "GI_CantidadEconómicaPedido"},
      {"GI_CEPGradual_Solución", "Solución", "GI_CEPGradual"},
      {"GI_CEPRuptura_Solución", "Solución", "GI_CEPRuptura"},
      {"GI_CEPDescuento_Solución", "Solución", "GI_CEPDescuento"},
      {"GI_MRP_Solucion1", "Solución", ""},
      {"Localizacion_CG_Solucion", "Solución", "Localizacion_CG"},
      {"Localizacion_PF_Solucion", "Solución", "Localizacion_PF"},
      {"Selec_Pond_Solucion", "Solución", "Selec_Pond"},
      {"Selec_Van_Solucion", "Solución", "Selec_Van"},
      {"Select_C_Totales_Sol", "Solución", "Select_C_Totales"},
      {"Select_C_Totales_Sol1", "Solución   ", "Select_C_Totales"},
      {"ControlCal_V_Sol", "Solución", "ControlCal_V"},
      {"ControlCal_V_Sol2", "Solución", "ControlCal_V_Sol"},
      {"ControlCal_V_Sol3", "Solución", "ControlCal_V_Sol"},
      {"ControlCAl_AtribP_Sol", "Solución", "ControlCal_AtribP"},
      {"ControlCal_AtribNP_Sol", "Solución", "ControlCal_AtribP"},
      {"ControlCal_NDef_Sol", "Solución", "ControlCal_NDef"},
      {"ControlCal_NDef_Sol1", "Solución", "ControlCal_NDef"},
      {"Productividad_Simple_Solucion", "Solución ", "Productividad_Simple"},
      {"Productividad_Global_Solucion", "Solución", "Productividad_Global"},
      {"C_Experiencia_Sol", "Solución ", "C_Experiencia"},
      {"Distribucion_Cargadistancia_Solucion", "Solución", "Distribucion_CargaDistancia"},
      {"Distribucion_Equilibrado_Solucion", "Solución", "Distribucion_Equlibrado"},
      // clang-format on
  };
  forEachRow(Kind::Solution, rows, [](const ScreenInfo& s, const Row& row) {
    EXPECT_EQ(s.caption, row.caption);
    EXPECT_EQ(s.volver, row.volver);
    EXPECT_FALSE(s.resolverStays);
  });
  // The chart print screens carry only a picture (their chrome and cerrar: below).
  EXPECT_EQ(namesOf(Kind::ChartPrint),
            (Names{"Select_C_Totales_Sol_Imprimir", "Select_C_Totales_Sol1_Imprimir",
                   "ControlCal_V_Sol_Imprimir", "ControlCal_V_Sol2_Imprimir",
                   "ControlCal_V_Sol3_Imprimir", "ControlCal_AtribP_Sol_Imprimir",
                   "ControlCal_AtribNP_Sol_Imprimir", "ControlCal_NDef_Sol_Imprimir",
                   "ControlCal_NDef_Sol1_Imprimir", "C_Experiencia_Sol_Imprimir"}));
  for (const std::string& name : namesOf(Kind::ChartPrint)) {
    const ScreenInfo& s = screen(name);
    EXPECT_EQ(s.caption, "Form2") << name;
    EXPECT_EQ(s.volver, "") << name;
  }
}

TEST(Navigation, MenusFollowTheMenuTables) {
  // Caption, title, volver, intro and the pictures' (picture, label, target). A picture hides
  // its own menu but for the kept quirk of GI_CEPRuptura, which hides GestiónDeInventarios.
  struct Row {
    const char *name, *caption, *title, *volver, *intro;
    std::vector<std::array<const char*, 3>> choices;
  };
  const std::vector<Row> rows = {
      // clang-format off
      {"APrincipal", "Vorel", "Vorel", "", "",
       {{"Picture2", "Programación Lineal", "ProgramaciónLineal"},
        {"Image12", "Teoría de  la Decisión", "DecisionTeoria"},
        {"Picture3", "Teoría de Juegos", "Juegos"}, {"Image5", "Teoría de Colas", "TeoriaColas"},
        {"Image6", "Gestión de Inventarios", "GestiónDeInventarios"},
        {"Image4", "Localización", "Localizacion_P"},
        {"Image9", "Selección de Equipos y Tecnología", "SelecEquipos"},
        {"Image14", "Control Estadístico de Calidad", "ControlCal"},
        {"Image8", "Productividad", "Productividad"},
        {"Image13", "Curvas de Experiencia", "C_Experiencia"},
        {"Image15", "Distribución Física de las Instalaciones", "DistribucionFisica"}}},
      {"ProgramaciónLineal", "Programación Lineal", "Programación Lineal", "",
       "La Programación Lineal estudia problemas de asignación de recursos limitados entre "
       "actividades competitivas de forma óptima, para ello emplea un modelo matemático que "
       "describirá la esencia del problema a tratar",
       {{"Image3", "Simplex", "PL_Simplex"}, {"Image7", "Problemas de Asignación", "PL_Asignación"},
        {"Image8", "Problema del Transporte", "PL_Transportes"}}},
      {"DecisionTeoria", "Teoría de la Decisión", "Teoría de la Decisión", "",
       "La teoría de la decisión hace referencia al proceso de elección de la mejor alternativa "
       "dentro de un conjunto de opciones",
       {{"Image3", "Toma de decisiones en ambiente de riesgo", "DecisionRiesgoNobayesiano"},
        {"Image7", "Toma de decisiones en ambiente de incertidumbre", "DecisionIncertidumbre"},
        {"Image8", "Métodos multicriterio", "DecisionMulticriterio"}}},
      // Kept quirk: the caption of the multicriteria menu speaks of queues; its title does not.
      {"DecisionMulticriterio",
       "Teoría de Colas. Este tipo de problemas proporcionan información crucial ",
       "Métodos multicriterio", "DecisionTeoria",
       "El análisis multicriterio permite atendiendo a distintos criterios clasificar distintos "
       "proyectos o alternativas existentes o bien discriminar entre ellas eligiendo la más "
       "adecuada",
       {{"Image3", "Electra 1", "DecisionElectra1"}, {"Image7", "Electra 2", "DecisionElectra2"},
        {"Image8", "Volver", "DecisionTeoria"}}},
      {"GestiónDeInventarios", "Gestión de Inventarios", "Gestión de Inventarios", "",
       "Se puede definir el inventario como un conjunto de artículos acumulados o almacenados en "
       "espera de una posterior utilización, en definitiva, de una posterior demanda. Su "
       "principal función es adecuar un flujo de producción y un flujo de demanda de diferente "
       "frecuencia temporal",
       {{"Image3", "Inventarios con demanda independiente", "GI_DemandaIndependiente"},
        {"Image7", "Inventarios con demanda dependiente: MRP", "GI_MRP"}}},
      {"GI_DemandaIndependiente", "Inventarios con Demanda Independiente",
       "Inventarios con Demanda Independiente", "GestiónDeInventarios",
       "En la gestión de inventarios con demanda independiente, la demanda de un artículo no "
       "depende de la demanda del resto de artículos",
       {{"Image3", "Cantidad Económica de Pedido", "GI_CantidadEconómicaPedido"},
        {"Image9", "Cantidad Económica de Pedido con Suministro Gradual", "GI_CEPGradual"},
        {"Image8", "Cantidad Económica de Pedido con Ruptura", "GI_CEPRuptura"},
        {"Image7", "Cantidad Económica de Pedido con Descuentos", "GI_CEPDescuento"},
        {"Image11", "Volver", "GestiónDeInventarios"}}},
      // Kept quirk: the decorative strip Image7 hides the menu and shows nothing.
      {"Juegos", "Teoría de Juegos", "Teoría de Juegos", "",
       "Un juego es cualquier situación gobernada por unas reglas con un resultado definido y "
       "caracterizado por una independencia estratégica. Mediante Teoría de Juegos se indicarán "
       "las posibles estrategias que podrá seguir cada jugador en función de la interdependencia "
       "con los demás jugadores.",
       {{"Image6", "Juegos con 2  jugadores", "Juegos_2"},
        {"Image5", "Juegos con 3 jugadores", "Juegos_3"},
        {"Image4", "Juegos con n estrategias", "Juegos_n"}, {"Image7", "", ""}}},
      {"Localizacion_P", "Localización", "Localización", "",
       "La decisión de localización de la empresa es la determinación de aquel lugar que, "
       "considerando todos los factores, ocasionará el coste mínimo del producto a fabricar, con "
       "objeto de obtener los máximos beneficios empresariales, proporcionando a su vez la máxima "
       "satisfacción posible a los clientes",
       {{"Image8", "Centro de Gravedad", "Localizacion_CG"},
        {"Image4", "Ponderación de Factores", "Localizacion_PF"}}},
      {"SelecEquipos", "Selección de Equipos y Tecnología", "Selección de Equipos y Tecnología", "",
       "Este tipo de problemas permite decidir qué máquina o tecnología adquirir, hace posible  "
       "la selección entre las distintas ofertas que se nos presentan.",
       {{"Image7", "Criterio de Ponderación de Factores", "Selec_Pond"},
        {"Image6", "Criterio del VAN", "Selec_Van"},
        {"Image8", "Costes Totales", "Select_C_Totales"}}},
      {"ControlCal", "Control Estadístico de la Calidad", "Control Estadístico de la Calidad", "",
       "El Control Estadístico de la Calidad se puede realizar observando en cada elemento: una "
       "característica medible, o bien un atributo o una característica cualitativa o de otro "
       "modo examinando el número total de defectos que presenta el producto. Estos tres tipos de "
       "control estadístico se podrán resolver a continuación.",
       {{"Image1", "Control por Variables", "ControlCal_V"},
        {"Image2", "Control por Atributos", "ControlCal_AtribP"},
        {"Image5", "Control por Número de Defectos", "ControlCal_NDef"}}},
      {"Productividad", "Productividad", "Productividad", "",
       "Productividad es la forma de medir la eficiencia de la función de producción de una "
       "organización. Se define como la relación entre la producción de un período y la cantidad "
       "de recursos consumidos para alcanzarla.",
       {{"Image6", "Productividad Parcial", "Productividad_Simple"},
        {"Image7", "Productividad Global", "Productividad_Global"}}},
      {"DistribucionFisica", "Distribución Física de las Instalaciones ",
       "Distribución Física de las Instalaciones ", "",
       "Se define la distribución en planta como la ubicación de las distintas máquinas, puestos "
       "de trabajo, áreas de servicio al cliente, almacenes, oficinas, flujo de materiales, etc. "
       "dentro de los edificios de la empresa de forma que se consiga el mejor funcionamiento de "
       "las instalaciones.",
       {{"Image7", "Análisis Carga-Distancia", "Distribucion_CargaDistancia"},
        {"Image8", "Equilibrado de Líneas de fabricación y montaje", "Distribucion_Equlibrado"}}},
      // clang-format on
  };
  Names names;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    names.push_back(row.name);
    const MenuInfo* m = findMenu(row.name);
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->title, row.title);
    EXPECT_EQ(m->intro, row.intro);
    ASSERT_EQ(m->choices.size(), row.choices.size());
    for (size_t i = 0; i < row.choices.size(); ++i) {
      const auto& [picture, label, target] = row.choices[i];
      const MenuChoice& c = m->choices[i];
      const char* hides =
          std::string(target) == "GI_CEPRuptura" ? "GestiónDeInventarios" : row.name;
      EXPECT_EQ((Names{c.picture, c.label, c.target, c.hides}),
                (Names{picture, label, target, hides}));
    }
    const ScreenInfo& s = screen(row.name);
    EXPECT_EQ(s.kind, names.size() == 1 ? Kind::MainMenu : Kind::SectionMenu);
    EXPECT_EQ(s.caption, row.caption);
    EXPECT_EQ(s.volver, row.volver);
    EXPECT_EQ(s.entry, "");
    EXPECT_TRUE(s.solutions.empty());
  }
  Names actual;
  for (const MenuInfo& m : menus()) actual.push_back(m.name);
  EXPECT_EQ(actual, names);
  EXPECT_EQ(namesOf(Kind::SectionMenu), Names(names.begin() + 1, names.end()));
}

TEST(Navigation, EightySixUniqueScreensInTreeOrder) {
  const auto& all = screens();
  ASSERT_EQ(all.size(), 86u);
  std::set<std::string> unique;
  for (const ScreenInfo& s : all) unique.insert(s.name);
  EXPECT_EQ(unique.size(), 86u);
  EXPECT_EQ(namesOf(Kind::Start), Names{"AInicio"});
  EXPECT_EQ(all[0].name, "AInicio");
  EXPECT_EQ(all[1].name, "APrincipal");
  for (size_t i = 2; i < 13; ++i) EXPECT_EQ(all[i].kind, Kind::SectionMenu) << all[i].name;
  // After the menus, each entry screen is followed by the screens of its model.
  EXPECT_EQ(all[13].kind, Kind::Entry);
  std::string current;
  for (size_t i = 13; i < all.size(); ++i) {
    if (all[i].kind == Kind::Entry) current = all[i].name;
    EXPECT_EQ(all[i].entry, all[i].kind == Kind::Entry ? "" : current) << all[i].name;
  }
}

TEST(Navigation, EveryNameReferredToIsAScreen) {
  auto resolves = [](const std::string& name) { return findScreen(name) != nullptr; };
  for (const ScreenInfo& s : screens()) {
    SCOPED_TRACE(s.name);
    EXPECT_TRUE(s.volver.empty() || resolves(s.volver)) << s.volver;
    EXPECT_EQ(s.kind == Kind::Entry, !s.solutions.empty());
  }
  for (const MenuInfo& m : menus())
    for (const MenuChoice& c : m.choices)
      EXPECT_TRUE(c.target.empty() || resolves(c.target)) << c.target;
  EXPECT_EQ(findScreen("NoSuchScreen"), nullptr);
  EXPECT_EQ(findScreen(""), nullptr);
  EXPECT_EQ(findMenu("PL_Simplex"), nullptr);
}

TEST(Navigation, CerrarEndsTheProcessOnExactlyTheListedScreens) {
  // clang-format off
  const std::set<std::string> ends = {
      "ControlCal", "Juegos", "SelecEquipos", "Localizacion_CG", "Localizacion_CG_Solucion",
      "Localizacion_PF", "Localizacion_PF_Solucion", "Selec_Pond", "Selec_Pond_Solucion",
      "Selec_Van", "Selec_Van_Solucion", "Select_C_Totales", "Select_C_Totales_Sol1",
      "ControlCal_V", "ControlCal_V_Sol", "ControlCal_V_Sol2", "ControlCal_V_Sol3",
      "ControlCal_AtribP", "ControlCAl_AtribP_Sol", "ControlCal_AtribNP_Sol", "ControlCal_NDef",
      "ControlCal_NDef_Sol", "ControlCal_NDef_Sol1", "C_Experiencia", "C_Experiencia_Sol",
      "GI_MRP", "GI_MRP_Solucion1", "Juegos_2", "Juegos_2_Solucion", "Juegos_3",
      "Juegos_3_Solucion"};
  // clang-format on
  std::set<std::string> actual;
  for (const ScreenInfo& s : screens()) {
    if (s.cerrar == Cerrar::EndProcess) actual.insert(s.name);
    const bool none = s.kind == Kind::Start || s.kind == Kind::ChartPrint;
    EXPECT_EQ(s.cerrar == Cerrar::None, none) << s.name;  // the others unload themselves
  }
  EXPECT_EQ(actual, ends);
}

TEST(Navigation, ChromeOfEachKindOfScreen) {
  // Minimizar everywhere but the start and chart print screens; gohome below the main menu;
  // ayuda on the main menu, the section menus and the entry screens only.
  for (const ScreenInfo& s : screens()) {
    const bool chrome = s.kind != Kind::Start && s.kind != Kind::ChartPrint;
    EXPECT_EQ(s.minimizar, chrome) << s.name;
    EXPECT_EQ(s.gohome, chrome && s.kind != Kind::MainMenu) << s.name;
    EXPECT_EQ(s.ayuda,
              s.kind == Kind::MainMenu || s.kind == Kind::SectionMenu || s.kind == Kind::Entry)
        << s.name;
  }
  EXPECT_EQ(screen("AInicio").volver, "");
  EXPECT_EQ(screen("APrincipal").volver, "");
}

}  // namespace
}  // namespace vorel::nav
