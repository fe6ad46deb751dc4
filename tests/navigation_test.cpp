#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "frame/navigation.h"

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

// The models: entry screen, caption, what volver shows ("" = no volver),
// the solution screens Resolver shows, and whether the entry stays visible.
struct EntryRow {
  const char* entry;
  const char* caption;
  const char* volver;
  Names solutions;
  bool stays;
};

const std::vector<EntryRow>& entryRows() {
  static const std::vector<EntryRow> rows = {
      {"PL_Simplex", "Simplex", "ProgramaciónLineal", {"PL_Simplex_Solucion"}, false},
      {"PL_Transportes", "Problema del Transporte", "ProgramaciónLineal",
       {"PL_Transportes_Solución"}, false},
      {"PL_Asignación", "Problemas de Asignación", "ProgramaciónLineal",
       {"PL_Asignación_Solución"}, false},
      {"DecisionIncertidumbre", "Toma de Decisiones en Ambiente de Incertidumbre",
       "DecisionTeoria", {"DecisionIncertidumbre_solucion"}, false},
      {"DecisionRiesgoNobayesiano", "Toma de decisiones en Ambiente de Riesgo", "DecisionTeoria",
       {"DecisionRiesgoNobayesiano_solucion"}, false},
      {"DecisionElectra1", "Método multicriterio Electra 1", "DecisionMulticriterio",
       {"DecisionElectra1_solucion"}, false},
      {"DecisionElectra2", "Método multicriterio: Electra 2", "DecisionMulticriterio",
       {"DecisionElectra2_solucion"}, false},
      {"Juegos_2", " Juegos con 2 jugadores", "Juegos", {"Juegos_2_Solucion"}, false},
      {"Juegos_3", "Juegos con 3 jugadores", "Juegos", {"Juegos_3_Solucion"}, false},
      {"Juegos_n", "Juegos con n Estrategias", "Juegos", {"Juegos_n_solucion"}, false},
      {"TeoriaColas", "Teoría de Colas", "", {"TeoriaColas_Solucion"}, false},
      {"GI_CantidadEconómicaPedido", "Cantidad Económica de Pedido", "GI_DemandaIndependiente",
       {"GI_CantidadEconómicaPedido_Solución"}, false},
      {"GI_CEPGradual", "Cantidad Económica de Pedido con Suministro Gradual",
       "GI_DemandaIndependiente", {"GI_CEPGradual_Solución"}, false},
      {"GI_CEPRuptura", "Cantidad Económica de Pedido con Ruptura", "GI_DemandaIndependiente",
       {"GI_CEPRuptura_Solución"}, false},
      {"GI_CEPDescuento", "Cantidad Económica de Pedido con Descuento",
       "GI_DemandaIndependiente", {"GI_CEPDescuento_Solución"}, false},
      {"GI_MRP", "MRP", "GestiónDeInventarios", {"GI_MRP_Solucion1"}, true},
      {"Localizacion_CG", "Localización por Centro de Gravedad", "Localizacion_P",
       {"Localizacion_CG_Solucion"}, true},
      {"Localizacion_PF", "Localización por Ponderación de Factores", "Localizacion_P",
       {"Localizacion_PF_Solucion"}, false},
      {"Selec_Pond", "Criterio de Ponderación de Factores", "SelecEquipos",
       {"Selec_Pond_Solucion"}, true},
      {"Selec_Van", "Criterio del Van", "SelecEquipos", {"Selec_Van_Solucion"}, true},
      {"Select_C_Totales", "Costes Totales", "SelecEquipos",
       {"Select_C_Totales_Sol", "Select_C_Totales_Sol1"}, false},
      // The deviation and range charts are reached from the chart of means,
      // not from Resolver.
      {"ControlCal_V", "Control por Variables. Control de Medias.", "ControlCal",
       {"ControlCal_V_Sol"}, false},
      {"ControlCal_AtribP", "Control por Atributos", "ControlCal",
       {"ControlCAl_AtribP_Sol", "ControlCal_AtribNP_Sol"}, false},
      {"ControlCal_NDef", "Control por Número de Defectos", "ControlCal",
       {"ControlCal_NDef_Sol", "ControlCal_NDef_Sol1"}, false},
      {"Productividad_Simple", "Productividad Parcial", "Productividad",
       {"Productividad_Simple_Solucion"}, false},
      {"Productividad_Global", "Productividad Global", "Productividad",
       {"Productividad_Global_Solucion"}, false},
      {"C_Experiencia", "Curvas de Experiencia", "", {"C_Experiencia_Sol"}, false},
      {"Distribucion_CargaDistancia", "Análisis Carga-Distancia", "DistribucionFisica",
       {"Distribucion_Cargadistancia_Solucion"}, false},
      {"Distribucion_Equlibrado", "Equilibrado de Líneas de Fabricación o Montaje",
       "DistribucionFisica", {"Distribucion_Equilibrado_Solucion"}, false},
  };
  return rows;
}

TEST(Navigation, EntryScreensFollowTheModelsTable) {
  ASSERT_EQ(entryRows().size(), 29u);
  Names expectedOrder;
  for (const EntryRow& row : entryRows()) {
    SCOPED_TRACE(row.entry);
    expectedOrder.push_back(row.entry);
    const ScreenInfo& s = screen(row.entry);
    EXPECT_EQ(s.kind, Kind::Entry);
    EXPECT_EQ(s.caption, row.caption);
    EXPECT_EQ(s.volver, row.volver);
    EXPECT_EQ(s.solutions, row.solutions);
    EXPECT_EQ(s.resolverStays, row.stays);
    EXPECT_EQ(s.entry, "");
  }
  EXPECT_EQ(namesOf(Kind::Entry), expectedOrder);
}

TEST(Navigation, SolutionScreensCaptionsEntriesAndVolver) {
  struct Row {
    const char* name;
    const char* caption;
    const char* entry;
    const char* volver;
  };
  const Row rows[] = {
      {"PL_Simplex_Solucion", "Form1", "PL_Simplex", "PL_Simplex"},
      {"PL_Transportes_Solución", "Solución", "PL_Transportes", "PL_Transportes"},
      {"PL_Asignación_Solución", "Solución", "PL_Asignación", "PL_Asignación"},
      {"DecisionIncertidumbre_solucion", "Solución", "DecisionIncertidumbre",
       "DecisionIncertidumbre"},
      {"DecisionRiesgoNobayesiano_solucion", "Solución", "DecisionRiesgoNobayesiano",
       "DecisionRiesgoNobayesiano"},
      {"DecisionElectra1_solucion", "Solución", "DecisionElectra1", "DecisionElectra1"},
      {"DecisionElectra2_solucion", "Solución", "DecisionElectra2", "DecisionElectra2"},
      {"Juegos_2_Solucion", "Solución", "Juegos_2", "Juegos_2"},
      {"Juegos_3_Solucion", "Solución", "Juegos_3", "Juegos_3"},
      {"Juegos_n_solucion", "Solución", "Juegos_n", "Juegos_n"},
      {"TeoriaColas_Solucion", "Solución", "TeoriaColas", "TeoriaColas"},
      {"GI_CantidadEconómicaPedido_Solución", "Solución ", "GI_CantidadEconómicaPedido",
       "GI_CantidadEconómicaPedido"},
      {"GI_CEPGradual_Solución", "Solución", "GI_CEPGradual", "GI_CEPGradual"},
      {"GI_CEPRuptura_Solución", "Solución", "GI_CEPRuptura", "GI_CEPRuptura"},
      {"GI_CEPDescuento_Solución", "Solución", "GI_CEPDescuento", "GI_CEPDescuento"},
      {"GI_MRP_Solucion1", "Solución", "GI_MRP", ""},
      {"Localizacion_CG_Solucion", "Solución", "Localizacion_CG", "Localizacion_CG"},
      {"Localizacion_PF_Solucion", "Solución", "Localizacion_PF", "Localizacion_PF"},
      {"Selec_Pond_Solucion", "Solución", "Selec_Pond", "Selec_Pond"},
      {"Selec_Van_Solucion", "Solución", "Selec_Van", "Selec_Van"},
      {"Select_C_Totales_Sol", "Solución", "Select_C_Totales", "Select_C_Totales"},
      {"Select_C_Totales_Sol1", "Solución   ", "Select_C_Totales", "Select_C_Totales"},
      {"ControlCal_V_Sol", "Solución", "ControlCal_V", "ControlCal_V"},
      {"ControlCal_V_Sol2", "Solución", "ControlCal_V", "ControlCal_V_Sol"},
      {"ControlCal_V_Sol3", "Solución", "ControlCal_V", "ControlCal_V_Sol"},
      {"ControlCAl_AtribP_Sol", "Solución", "ControlCal_AtribP", "ControlCal_AtribP"},
      {"ControlCal_AtribNP_Sol", "Solución", "ControlCal_AtribP", "ControlCal_AtribP"},
      {"ControlCal_NDef_Sol", "Solución", "ControlCal_NDef", "ControlCal_NDef"},
      {"ControlCal_NDef_Sol1", "Solución", "ControlCal_NDef", "ControlCal_NDef"},
      {"Productividad_Simple_Solucion", "Solución ", "Productividad_Simple",
       "Productividad_Simple"},
      {"Productividad_Global_Solucion", "Solución", "Productividad_Global",
       "Productividad_Global"},
      {"C_Experiencia_Sol", "Solución ", "C_Experiencia", "C_Experiencia"},
      {"Distribucion_Cargadistancia_Solucion", "Solución", "Distribucion_CargaDistancia",
       "Distribucion_CargaDistancia"},
      {"Distribucion_Equilibrado_Solucion", "Solución", "Distribucion_Equlibrado",
       "Distribucion_Equlibrado"},
  };
  Names expected;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    expected.push_back(row.name);
    const ScreenInfo& s = screen(row.name);
    EXPECT_EQ(s.kind, Kind::Solution);
    EXPECT_EQ(s.caption, row.caption);
    EXPECT_EQ(s.entry, row.entry);
    EXPECT_EQ(s.volver, row.volver);
    EXPECT_TRUE(s.solutions.empty());
    EXPECT_FALSE(s.resolverStays);
  }
  EXPECT_EQ(namesOf(Kind::Solution), expected);
}

TEST(Navigation, ChartPrintScreensCarryOnlyAPicture) {
  const std::pair<const char*, const char*> rows[] = {
      {"Select_C_Totales_Sol_Imprimir", "Select_C_Totales"},
      {"Select_C_Totales_Sol1_Imprimir", "Select_C_Totales"},
      {"ControlCal_V_Sol_Imprimir", "ControlCal_V"},
      {"ControlCal_V_Sol2_Imprimir", "ControlCal_V"},
      {"ControlCal_V_Sol3_Imprimir", "ControlCal_V"},
      {"ControlCal_AtribP_Sol_Imprimir", "ControlCal_AtribP"},
      {"ControlCal_AtribNP_Sol_Imprimir", "ControlCal_AtribP"},
      {"ControlCal_NDef_Sol_Imprimir", "ControlCal_NDef"},
      {"ControlCal_NDef_Sol1_Imprimir", "ControlCal_NDef"},
      {"C_Experiencia_Sol_Imprimir", "C_Experiencia"},
  };
  Names expected;
  for (const auto& [name, entry] : rows) {
    SCOPED_TRACE(name);
    expected.push_back(name);
    const ScreenInfo& s = screen(name);
    EXPECT_EQ(s.kind, Kind::ChartPrint);
    EXPECT_EQ(s.caption, "Form2");
    EXPECT_EQ(s.entry, entry);
    EXPECT_EQ(s.volver, "");
    EXPECT_EQ(s.cerrar, Cerrar::None);
    EXPECT_FALSE(s.gohome);
    EXPECT_FALSE(s.ayuda);
  }
  EXPECT_EQ(namesOf(Kind::ChartPrint), expected);
}

TEST(Navigation, MainMenuPicturesHideTheMainMenu) {
  const MenuInfo* m = findMenu("APrincipal");
  ASSERT_NE(m, nullptr);
  EXPECT_EQ(m->title, "Vorel");
  EXPECT_EQ(m->intro, "");
  const MenuChoice expected[] = {
      {"Picture2", "Programación Lineal", "ProgramaciónLineal", "APrincipal"},
      {"Image12", "Teoría de  la Decisión", "DecisionTeoria", "APrincipal"},
      {"Picture3", "Teoría de Juegos", "Juegos", "APrincipal"},
      {"Image5", "Teoría de Colas", "TeoriaColas", "APrincipal"},
      {"Image6", "Gestión de Inventarios", "GestiónDeInventarios", "APrincipal"},
      {"Image4", "Localización", "Localizacion_P", "APrincipal"},
      {"Image9", "Selección de Equipos y Tecnología", "SelecEquipos", "APrincipal"},
      {"Image14", "Control Estadístico de Calidad", "ControlCal", "APrincipal"},
      {"Image8", "Productividad", "Productividad", "APrincipal"},
      {"Image13", "Curvas de Experiencia", "C_Experiencia", "APrincipal"},
      {"Image15", "Distribución Física de las Instalaciones", "DistribucionFisica",
       "APrincipal"},
  };
  ASSERT_EQ(m->choices.size(), std::size(expected));
  for (size_t i = 0; i < std::size(expected); ++i) {
    SCOPED_TRACE(expected[i].picture);
    EXPECT_EQ(m->choices[i].picture, expected[i].picture);
    EXPECT_EQ(m->choices[i].label, expected[i].label);
    EXPECT_EQ(m->choices[i].target, expected[i].target);
    EXPECT_EQ(m->choices[i].hides, expected[i].hides);
  }
  const ScreenInfo& s = screen("APrincipal");
  EXPECT_EQ(s.kind, Kind::MainMenu);
  EXPECT_EQ(s.caption, "Vorel");
}

// Section menus: window caption, title, volver, introductory text and
// choices (picture, label, target, hidden screen).
struct MenuRow {
  const char* name;
  const char* caption;
  const char* title;
  const char* volver;
  const char* intro;
  std::vector<MenuChoice> choices;
};

const std::vector<MenuRow>& menuRows() {
  static const std::vector<MenuRow> rows = {
      {"ProgramaciónLineal", "Programación Lineal", "Programación Lineal", "",
       "La Programación Lineal estudia problemas de asignación de recursos limitados entre "
       "actividades competitivas de forma óptima, para ello emplea un modelo matemático que "
       "describirá la esencia del problema a tratar",
       {{"Image3", "Simplex", "PL_Simplex", "ProgramaciónLineal"},
        {"Image7", "Problemas de Asignación", "PL_Asignación", "ProgramaciónLineal"},
        {"Image8", "Problema del Transporte", "PL_Transportes", "ProgramaciónLineal"}}},
      {"DecisionTeoria", "Teoría de la Decisión", "Teoría de la Decisión", "",
       "La teoría de la decisión hace referencia al proceso de elección de la mejor alternativa "
       "dentro de un conjunto de opciones",
       {{"Image3", "Toma de decisiones en ambiente de riesgo", "DecisionRiesgoNobayesiano",
         "DecisionTeoria"},
        {"Image7", "Toma de decisiones en ambiente de incertidumbre", "DecisionIncertidumbre",
         "DecisionTeoria"},
        {"Image8", "Métodos multicriterio", "DecisionMulticriterio", "DecisionTeoria"}}},
      {"DecisionMulticriterio",
       "Teoría de Colas. Este tipo de problemas proporcionan información crucial ",
       "Métodos multicriterio", "DecisionTeoria",
       "El análisis multicriterio permite atendiendo a distintos criterios clasificar distintos "
       "proyectos o alternativas existentes o bien discriminar entre ellas eligiendo la más "
       "adecuada",
       {{"Image3", "Electra 1", "DecisionElectra1", "DecisionMulticriterio"},
        {"Image7", "Electra 2", "DecisionElectra2", "DecisionMulticriterio"},
        {"Image8", "Volver", "DecisionTeoria", "DecisionMulticriterio"}}},
      {"GestiónDeInventarios", "Gestión de Inventarios", "Gestión de Inventarios", "",
       "Se puede definir el inventario como un conjunto de artículos acumulados o almacenados en "
       "espera de una posterior utilización, en definitiva, de una posterior demanda. Su "
       "principal función es adecuar un flujo de producción y un flujo de demanda de diferente "
       "frecuencia temporal",
       {{"Image3", "Inventarios con demanda independiente", "GI_DemandaIndependiente",
         "GestiónDeInventarios"},
        {"Image7", "Inventarios con demanda dependiente: MRP", "GI_MRP",
         "GestiónDeInventarios"}}},
      {"GI_DemandaIndependiente", "Inventarios con Demanda Independiente",
       "Inventarios con Demanda Independiente", "GestiónDeInventarios",
       "En la gestión de inventarios con demanda independiente, la demanda de un artículo no "
       "depende de la demanda del resto de artículos",
       {{"Image3", "Cantidad Económica de Pedido", "GI_CantidadEconómicaPedido",
         "GI_DemandaIndependiente"},
        {"Image9", "Cantidad Económica de Pedido con Suministro Gradual", "GI_CEPGradual",
         "GI_DemandaIndependiente"},
        {"Image8", "Cantidad Económica de Pedido con Ruptura", "GI_CEPRuptura",
         "GestiónDeInventarios"},
        {"Image7", "Cantidad Económica de Pedido con Descuentos", "GI_CEPDescuento",
         "GI_DemandaIndependiente"},
        {"Image11", "Volver", "GestiónDeInventarios", "GI_DemandaIndependiente"}}},
      {"Juegos", "Teoría de Juegos", "Teoría de Juegos", "",
       "Un juego es cualquier situación gobernada por unas reglas con un resultado definido y "
       "caracterizado por una independencia estratégica. Mediante Teoría de Juegos se indicarán "
       "las posibles estrategias que podrá seguir cada jugador en función de la "
       "interdependencia con los demás jugadores.",
       {{"Image6", "Juegos con 2  jugadores", "Juegos_2", "Juegos"},
        {"Image5", "Juegos con 3 jugadores", "Juegos_3", "Juegos"},
        {"Image4", "Juegos con n estrategias", "Juegos_n", "Juegos"},
        {"Image7", "", "", "Juegos"}}},
      {"Localizacion_P", "Localización", "Localización", "",
       "La decisión de localización de la empresa es la determinación de aquel lugar que, "
       "considerando todos los factores, ocasionará el coste mínimo del producto a fabricar, con "
       "objeto de obtener los máximos beneficios empresariales, proporcionando a su vez la "
       "máxima satisfacción posible a los clientes",
       {{"Image8", "Centro de Gravedad", "Localizacion_CG", "Localizacion_P"},
        {"Image4", "Ponderación de Factores", "Localizacion_PF", "Localizacion_P"}}},
      {"SelecEquipos", "Selección de Equipos y Tecnología", "Selección de Equipos y Tecnología",
       "",
       "Este tipo de problemas permite decidir qué máquina o tecnología adquirir, hace posible  "
       "la selección entre las distintas ofertas que se nos presentan.",
       {{"Image7", "Criterio de Ponderación de Factores", "Selec_Pond", "SelecEquipos"},
        {"Image6", "Criterio del VAN", "Selec_Van", "SelecEquipos"},
        {"Image8", "Costes Totales", "Select_C_Totales", "SelecEquipos"}}},
      {"ControlCal", "Control Estadístico de la Calidad", "Control Estadístico de la Calidad", "",
       "El Control Estadístico de la Calidad se puede realizar observando en cada elemento: una "
       "característica medible, o bien un atributo o una característica cualitativa o de otro "
       "modo examinando el número total de defectos que presenta el producto. Estos tres tipos "
       "de control estadístico se podrán resolver a continuación.",
       {{"Image1", "Control por Variables", "ControlCal_V", "ControlCal"},
        {"Image2", "Control por Atributos", "ControlCal_AtribP", "ControlCal"},
        {"Image5", "Control por Número de Defectos", "ControlCal_NDef", "ControlCal"}}},
      {"Productividad", "Productividad", "Productividad", "",
       "Productividad es la forma de medir la eficiencia de la función de producción de una "
       "organización. Se define como la relación entre la producción de un período y la "
       "cantidad de recursos consumidos para alcanzarla.",
       {{"Image6", "Productividad Parcial", "Productividad_Simple", "Productividad"},
        {"Image7", "Productividad Global", "Productividad_Global", "Productividad"}}},
      {"DistribucionFisica", "Distribución Física de las Instalaciones ",
       "Distribución Física de las Instalaciones ", "",
       "Se define la distribución en planta como la ubicación de las distintas máquinas, puestos "
       "de trabajo, áreas de servicio al cliente, almacenes, oficinas, flujo de materiales, etc. "
       "dentro de los edificios de la empresa de forma que se consiga el mejor funcionamiento de "
       "las instalaciones.",
       {{"Image7", "Análisis Carga-Distancia", "Distribucion_CargaDistancia",
         "DistribucionFisica"},
        {"Image8", "Equilibrado de Líneas de fabricación y montaje", "Distribucion_Equlibrado",
         "DistribucionFisica"}}},
  };
  return rows;
}

TEST(Navigation, SectionMenusFollowTheMenuTables) {
  ASSERT_EQ(menuRows().size(), 11u);
  Names expectedOrder = {"APrincipal"};
  for (const MenuRow& row : menuRows()) {
    SCOPED_TRACE(row.name);
    expectedOrder.push_back(row.name);
    const MenuInfo* m = findMenu(row.name);
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->title, row.title);
    EXPECT_EQ(m->intro, row.intro);
    ASSERT_EQ(m->choices.size(), row.choices.size());
    for (size_t i = 0; i < row.choices.size(); ++i) {
      SCOPED_TRACE(row.choices[i].picture);
      EXPECT_EQ(m->choices[i].picture, row.choices[i].picture);
      EXPECT_EQ(m->choices[i].label, row.choices[i].label);
      EXPECT_EQ(m->choices[i].target, row.choices[i].target);
      EXPECT_EQ(m->choices[i].hides, row.choices[i].hides);
    }
    const ScreenInfo& s = screen(row.name);
    EXPECT_EQ(s.kind, Kind::SectionMenu);
    EXPECT_EQ(s.caption, row.caption);
    EXPECT_EQ(s.volver, row.volver);
    EXPECT_EQ(s.entry, "");
    EXPECT_TRUE(s.solutions.empty());
  }
  Names actualOrder;
  for (const MenuInfo& m : menus()) actualOrder.push_back(m.name);
  EXPECT_EQ(actualOrder, expectedOrder);
  expectedOrder.erase(expectedOrder.begin());
  EXPECT_EQ(namesOf(Kind::SectionMenu), expectedOrder);
}

TEST(Navigation, KeptQuirksOfTheMenus) {
  // The odd caption of the multicriteria menu is kept; its title is not.
  EXPECT_EQ(screen("DecisionMulticriterio").caption,
            "Teoría de Colas. Este tipo de problemas proporcionan información crucial ");
  EXPECT_EQ(findMenu("DecisionMulticriterio")->title, "Métodos multicriterio");
  // Opening EOQ with shortages hides the inventory menu, not its own menu.
  int ruptura = 0;
  for (const MenuChoice& c : findMenu("GI_DemandaIndependiente")->choices) {
    if (c.target == "GI_CEPRuptura") {
      ++ruptura;
      EXPECT_EQ(c.picture, "Image8");
      EXPECT_EQ(c.hides, "GestiónDeInventarios");
    } else {
      EXPECT_EQ(c.hides, "GI_DemandaIndependiente") << c.picture;
    }
  }
  EXPECT_EQ(ruptura, 1);
  // The decorative strip of the games menu hides the menu and shows nothing.
  const auto& juegos = findMenu("Juegos")->choices;
  auto strip = std::find_if(juegos.begin(), juegos.end(),
                            [](const MenuChoice& c) { return c.picture == "Image7"; });
  ASSERT_NE(strip, juegos.end());
  EXPECT_EQ(strip->label, "");
  EXPECT_EQ(strip->target, "");
  EXPECT_EQ(strip->hides, "Juegos");
}

TEST(Navigation, EightySixUniqueScreensInTreeOrder) {
  const auto& all = screens();
  ASSERT_EQ(all.size(), 86u);
  std::set<std::string> unique;
  for (const ScreenInfo& s : all) unique.insert(s.name);
  EXPECT_EQ(unique.size(), 86u);

  EXPECT_EQ(all[0].name, "AInicio");
  EXPECT_EQ(all[0].kind, Kind::Start);
  EXPECT_EQ(all[1].name, "APrincipal");
  for (size_t i = 2; i < 13; ++i) EXPECT_EQ(all[i].kind, Kind::SectionMenu) << all[i].name;
  EXPECT_EQ(namesOf(Kind::Start).size(), 1u);
  EXPECT_EQ(namesOf(Kind::MainMenu).size(), 1u);
  EXPECT_EQ(namesOf(Kind::Entry).size(), 29u);
  EXPECT_EQ(namesOf(Kind::Solution).size(), 34u);
  EXPECT_EQ(namesOf(Kind::ChartPrint).size(), 10u);

  // After the menus, each entry screen is followed by the screens of its model.
  std::string current;
  for (size_t i = 13; i < all.size(); ++i) {
    if (all[i].kind == Kind::Entry) {
      current = all[i].name;
    } else {
      EXPECT_EQ(all[i].entry, current) << all[i].name;
    }
  }
  EXPECT_EQ(all[13].kind, Kind::Entry);
}

TEST(Navigation, EveryNameReferredToIsAScreen) {
  auto resolves = [](const std::string& name) { return findScreen(name) != nullptr; };
  for (const ScreenInfo& s : screens()) {
    SCOPED_TRACE(s.name);
    if (!s.volver.empty()) {
      EXPECT_TRUE(resolves(s.volver)) << s.volver;
    }
    if (!s.entry.empty()) {
      EXPECT_TRUE(resolves(s.entry)) << s.entry;
      EXPECT_EQ(findScreen(s.entry)->kind, Kind::Entry);
    }
    for (const std::string& sol : s.solutions) {
      ASSERT_TRUE(resolves(sol)) << sol;
      EXPECT_EQ(findScreen(sol)->kind, Kind::Solution);
      EXPECT_EQ(findScreen(sol)->entry, s.name);
    }
    EXPECT_EQ(s.kind == Kind::Entry, !s.solutions.empty());
  }
  for (const MenuInfo& m : menus()) {
    SCOPED_TRACE(m.name);
    EXPECT_TRUE(resolves(m.name));
    for (const MenuChoice& c : m.choices) {
      if (!c.target.empty()) {
        EXPECT_TRUE(resolves(c.target)) << c.target;
      }
      EXPECT_TRUE(resolves(c.hides)) << c.hides;
    }
  }
  EXPECT_EQ(findScreen("NoSuchScreen"), nullptr);
  EXPECT_EQ(findScreen(""), nullptr);
  EXPECT_EQ(findMenu("PL_Simplex"), nullptr);
}

TEST(Navigation, CerrarEndsTheProcessOnExactlyTheListedScreens) {
  const std::set<std::string> ends = {
      "ControlCal", "Juegos", "SelecEquipos",
      "Localizacion_CG", "Localizacion_CG_Solucion", "Localizacion_PF",
      "Localizacion_PF_Solucion", "Selec_Pond", "Selec_Pond_Solucion", "Selec_Van",
      "Selec_Van_Solucion", "Select_C_Totales", "Select_C_Totales_Sol1",
      "ControlCal_V", "ControlCal_V_Sol", "ControlCal_V_Sol2", "ControlCal_V_Sol3",
      "ControlCal_AtribP", "ControlCAl_AtribP_Sol", "ControlCal_AtribNP_Sol",
      "ControlCal_NDef", "ControlCal_NDef_Sol", "ControlCal_NDef_Sol1",
      "C_Experiencia", "C_Experiencia_Sol", "GI_MRP", "GI_MRP_Solucion1",
      "Juegos_2", "Juegos_2_Solucion", "Juegos_3", "Juegos_3_Solucion"};
  std::set<std::string> actual;
  for (const ScreenInfo& s : screens()) {
    if (s.cerrar == Cerrar::EndProcess) actual.insert(s.name);
    const bool none = s.kind == Kind::Start || s.kind == Kind::ChartPrint;
    EXPECT_EQ(s.cerrar == Cerrar::None, none) << s.name;
  }
  EXPECT_EQ(actual, ends);
  EXPECT_EQ(screen("Select_C_Totales_Sol").cerrar, Cerrar::Unload);
  EXPECT_EQ(screen("APrincipal").cerrar, Cerrar::Unload);
  EXPECT_EQ(screen("Localizacion_P").cerrar, Cerrar::Unload);
  EXPECT_EQ(screen("Juegos_n").cerrar, Cerrar::Unload);
}

TEST(Navigation, ChromeOfEachKindOfScreen) {
  struct Row {
    const char* name;
    bool minimizar, gohome, ayuda;
  };
  const Row rows[] = {
      {"AInicio", false, false, false},
      {"APrincipal", true, false, true},
      {"ProgramaciónLineal", true, true, true},
      {"DecisionMulticriterio", true, true, true},
      {"Juegos", true, true, true},
      {"PL_Simplex", true, true, true},
      {"TeoriaColas", true, true, true},
      {"GI_MRP", true, true, true},
      {"PL_Simplex_Solucion", true, true, false},
      {"GI_MRP_Solucion1", true, true, false},
      {"ControlCal_V_Sol3", true, true, false},
      {"C_Experiencia_Sol_Imprimir", false, false, false},
      {"ControlCal_NDef_Sol1_Imprimir", false, false, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const ScreenInfo& s = screen(row.name);
    EXPECT_EQ(s.minimizar, row.minimizar);
    EXPECT_EQ(s.gohome, row.gohome);
    EXPECT_EQ(s.ayuda, row.ayuda);
  }
  // Help is on the main menu, the section menus and the entry screens only:
  // 1 + 11 + 29 buttons.
  int ayuda = 0;
  for (const ScreenInfo& s : screens()) ayuda += s.ayuda ? 1 : 0;
  EXPECT_EQ(ayuda, 41);
  EXPECT_EQ(screen("AInicio").volver, "");
  EXPECT_EQ(screen("APrincipal").volver, "");
}

}  // namespace
}  // namespace vorel::nav
