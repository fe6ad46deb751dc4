// The screen tree as data. The tables below are written in the order the
// program presents them: the start screen, the main menu, the section menus,
// then each model's entry screen followed by its solution screens and the
// chart print screens those solution screens use.
#include "frame/navigation.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>

namespace vorel::nav {
namespace {

// Screens whose cerrar ends the whole process at once. Everywhere else
// cerrar unloads only its own screen (or there is no cerrar at all).
constexpr const char* kEndsProcess[] = {
    "ControlCal", "Juegos", "SelecEquipos",
    // location and equipment selection, entry and solution screens
    // (Select_C_Totales_Sol unloads only, unlike its three-option sibling)
    "Localizacion_CG", "Localizacion_CG_Solucion", "Localizacion_PF", "Localizacion_PF_Solucion",
    "Selec_Pond", "Selec_Pond_Solucion", "Selec_Van", "Selec_Van_Solucion", "Select_C_Totales",
    "Select_C_Totales_Sol1",
    // quality control, entry and solution screens
    "ControlCal_V", "ControlCal_V_Sol", "ControlCal_V_Sol2", "ControlCal_V_Sol3",
    "ControlCal_AtribP", "ControlCAl_AtribP_Sol", "ControlCal_AtribNP_Sol", "ControlCal_NDef",
    "ControlCal_NDef_Sol", "ControlCal_NDef_Sol1",
    // the rest
    "C_Experiencia", "C_Experiencia_Sol", "GI_MRP", "GI_MRP_Solucion1", "Juegos_2",
    "Juegos_2_Solucion", "Juegos_3", "Juegos_3_Solucion"};

Cerrar cerrarOf(std::string_view name) {
  for (const char* n : kEndsProcess)
    if (name == n) return Cerrar::EndProcess;
  return Cerrar::Unload;
}

// Marker for a solution screen whose volver goes back to its entry screen.
constexpr const char* kToEntry = "\x01";

struct Sol {
  const char* name;
  const char* caption = "Solución";
  const char* volver = kToEntry;  // "" = no volver on this screen
};

struct Model {
  const char* entry;
  const char* caption;
  const char* volver;                 // "" = no volver on the entry screen
  std::vector<Sol> solutions;         // every solution screen of the model
  std::vector<const char*> resolver;  // those Resolver shows; empty = all of them
  bool stays = false;
  std::vector<const char*> charts = {};
};

const std::vector<Model>& models() {
  static const std::vector<Model> m = {
      {"PL_Simplex", "Simplex", "ProgramaciónLineal", {{"PL_Simplex_Solucion", "Form1"}}, {}},
      {"PL_Transportes",
       "Problema del Transporte",
       "ProgramaciónLineal",
       {{"PL_Transportes_Solución"}},
       {}},
      {"PL_Asignación",
       "Problemas de Asignación",
       "ProgramaciónLineal",
       {{"PL_Asignación_Solución"}},
       {}},
      {"DecisionIncertidumbre",
       "Toma de Decisiones en Ambiente de Incertidumbre",
       "DecisionTeoria",
       {{"DecisionIncertidumbre_solucion"}},
       {}},
      {"DecisionRiesgoNobayesiano",
       "Toma de decisiones en Ambiente de Riesgo",
       "DecisionTeoria",
       {{"DecisionRiesgoNobayesiano_solucion"}},
       {}},
      {"DecisionElectra1",
       "Método multicriterio Electra 1",
       "DecisionMulticriterio",
       {{"DecisionElectra1_solucion"}},
       {}},
      {"DecisionElectra2",
       "Método multicriterio: Electra 2",
       "DecisionMulticriterio",
       {{"DecisionElectra2_solucion"}},
       {}},
      {"Juegos_2", " Juegos con 2 jugadores", "Juegos", {{"Juegos_2_Solucion"}}, {}},
      {"Juegos_3", "Juegos con 3 jugadores", "Juegos", {{"Juegos_3_Solucion"}}, {}},
      {"Juegos_n", "Juegos con n Estrategias", "Juegos", {{"Juegos_n_solucion"}}, {}},
      {"TeoriaColas", "Teoría de Colas", "", {{"TeoriaColas_Solucion"}}, {}},
      {"GI_CantidadEconómicaPedido",
       "Cantidad Económica de Pedido",
       "GI_DemandaIndependiente",
       {{"GI_CantidadEconómicaPedido_Solución", "Solución "}},
       {}},
      {"GI_CEPGradual",
       "Cantidad Económica de Pedido con Suministro Gradual",
       "GI_DemandaIndependiente",
       {{"GI_CEPGradual_Solución"}},
       {}},
      {"GI_CEPRuptura",
       "Cantidad Económica de Pedido con Ruptura",
       "GI_DemandaIndependiente",
       {{"GI_CEPRuptura_Solución"}},
       {}},
      {"GI_CEPDescuento",
       "Cantidad Económica de Pedido con Descuento",
       "GI_DemandaIndependiente",
       {{"GI_CEPDescuento_Solución"}},
       {}},
      {"GI_MRP", "MRP", "GestiónDeInventarios", {{"GI_MRP_Solucion1", "Solución", ""}}, {}, true},
      {"Localizacion_CG",
       "Localización por Centro de Gravedad",
       "Localizacion_P",
       {{"Localizacion_CG_Solucion"}},
       {},
       true},
      {"Localizacion_PF",
       "Localización por Ponderación de Factores",
       "Localizacion_P",
       {{"Localizacion_PF_Solucion"}},
       {}},
      {"Selec_Pond",
       "Criterio de Ponderación de Factores",
       "SelecEquipos",
       {{"Selec_Pond_Solucion"}},
       {},
       true},
      {"Selec_Van", "Criterio del Van", "SelecEquipos", {{"Selec_Van_Solucion"}}, {}, true},
      {"Select_C_Totales",
       "Costes Totales",
       "SelecEquipos",
       {{"Select_C_Totales_Sol"}, {"Select_C_Totales_Sol1", "Solución   "}},
       {},
       false,
       {"Select_C_Totales_Sol_Imprimir", "Select_C_Totales_Sol1_Imprimir"}},
      // Resolver shows only the chart of means; the other two charts are
      // reached from it, and their volver goes back to it.
      {"ControlCal_V",
       "Control por Variables. Control de Medias.",
       "ControlCal",
       {{"ControlCal_V_Sol"},
        {"ControlCal_V_Sol2", "Solución", "ControlCal_V_Sol"},
        {"ControlCal_V_Sol3", "Solución", "ControlCal_V_Sol"}},
       {"ControlCal_V_Sol"},
       false,
       {"ControlCal_V_Sol_Imprimir", "ControlCal_V_Sol2_Imprimir", "ControlCal_V_Sol3_Imprimir"}},
      {"ControlCal_AtribP",
       "Control por Atributos",
       "ControlCal",
       {{"ControlCAl_AtribP_Sol"}, {"ControlCal_AtribNP_Sol", "Solución", "ControlCal_AtribP"}},
       {},
       false,
       {"ControlCal_AtribP_Sol_Imprimir", "ControlCal_AtribNP_Sol_Imprimir"}},
      {"ControlCal_NDef",
       "Control por Número de Defectos",
       "ControlCal",
       {{"ControlCal_NDef_Sol"}, {"ControlCal_NDef_Sol1"}},
       {},
       false,
       {"ControlCal_NDef_Sol_Imprimir", "ControlCal_NDef_Sol1_Imprimir"}},
      {"Productividad_Simple",
       "Productividad Parcial",
       "Productividad",
       {{"Productividad_Simple_Solucion", "Solución "}},
       {}},
      {"Productividad_Global",
       "Productividad Global",
       "Productividad",
       {{"Productividad_Global_Solucion"}},
       {}},
      {"C_Experiencia",
       "Curvas de Experiencia",
       "",
       {{"C_Experiencia_Sol", "Solución "}},
       {},
       false,
       {"C_Experiencia_Sol_Imprimir"}},
      {"Distribucion_CargaDistancia",
       "Análisis Carga-Distancia",
       "DistribucionFisica",
       {{"Distribucion_Cargadistancia_Solucion"}},
       {}},
      {"Distribucion_Equlibrado",
       "Equilibrado de Líneas de Fabricación o Montaje",
       "DistribucionFisica",
       {{"Distribucion_Equilibrado_Solucion"}},
       {}},
  };
  return m;
}

MenuChoice pick(std::string_view picture, std::string_view label, std::string_view target,
                std::string_view hides) {
  return MenuChoice{std::string(picture), std::string(label), std::string(target),
                    std::string(hides)};
}

std::vector<MenuInfo> buildMenus() {
  std::vector<MenuInfo> out;

  MenuInfo main{"APrincipal", "Vorel", "", {}};
  for (auto [picture, label, target] : std::initializer_list<std::array<const char*, 3>>{
           {"Picture2", "Programación Lineal", "ProgramaciónLineal"},
           {"Image12", "Teoría de  la Decisión", "DecisionTeoria"},
           {"Picture3", "Teoría de Juegos", "Juegos"},
           {"Image5", "Teoría de Colas", "TeoriaColas"},
           {"Image6", "Gestión de Inventarios", "GestiónDeInventarios"},
           {"Image4", "Localización", "Localizacion_P"},
           {"Image9", "Selección de Equipos y Tecnología", "SelecEquipos"},
           {"Image14", "Control Estadístico de Calidad", "ControlCal"},
           {"Image8", "Productividad", "Productividad"},
           {"Image13", "Curvas de Experiencia", "C_Experiencia"},
           {"Image15", "Distribución Física de las Instalaciones", "DistribucionFisica"}})
    main.choices.push_back(pick(picture, label, target, "APrincipal"));
  out.push_back(std::move(main));

  // A section menu whose pictures each show their target and hide the menu.
  struct Section {
    const char* name;
    const char* title;
    const char* intro;
    std::initializer_list<std::array<const char*, 3>> choices;
  };
  const Section sections[] = {
      {"ProgramaciónLineal",
       "Programación Lineal",
       "La Programación Lineal estudia problemas de asignación de recursos limitados entre "
       "actividades competitivas de forma óptima, para ello emplea un modelo matemático que "
       "describirá la esencia del problema a tratar",
       {{"Image3", "Simplex", "PL_Simplex"},
        {"Image7", "Problemas de Asignación", "PL_Asignación"},
        {"Image8", "Problema del Transporte", "PL_Transportes"}}},
      {"DecisionTeoria",
       "Teoría de la Decisión",
       "La teoría de la decisión hace referencia al proceso de elección de la mejor alternativa "
       "dentro de un conjunto de opciones",
       {{"Image3", "Toma de decisiones en ambiente de riesgo", "DecisionRiesgoNobayesiano"},
        {"Image7", "Toma de decisiones en ambiente de incertidumbre", "DecisionIncertidumbre"},
        {"Image8", "Métodos multicriterio", "DecisionMulticriterio"}}},
      // The window caption of this menu is an unrelated sentence (see
      // screens()); the title shown on it is the menu's own name.
      {"DecisionMulticriterio",
       "Métodos multicriterio",
       "El análisis multicriterio permite atendiendo a distintos criterios clasificar distintos "
       "proyectos o alternativas existentes o bien discriminar entre ellas eligiendo la más "
       "adecuada",
       {{"Image3", "Electra 1", "DecisionElectra1"},
        {"Image7", "Electra 2", "DecisionElectra2"},
        {"Image8", "Volver", "DecisionTeoria"}}},
      {"GestiónDeInventarios",
       "Gestión de Inventarios",
       "Se puede definir el inventario como un conjunto de artículos acumulados o almacenados en "
       "espera de una posterior utilización, en definitiva, de una posterior demanda. Su "
       "principal función es adecuar un flujo de producción y un flujo de demanda de diferente "
       "frecuencia temporal",
       {{"Image3", "Inventarios con demanda independiente", "GI_DemandaIndependiente"},
        {"Image7", "Inventarios con demanda dependiente: MRP", "GI_MRP"}}},
      {"GI_DemandaIndependiente",
       "Inventarios con Demanda Independiente",
       "En la gestión de inventarios con demanda independiente, la demanda de un artículo no "
       "depende de la demanda del resto de artículos",
       {{"Image3", "Cantidad Económica de Pedido", "GI_CantidadEconómicaPedido"},
        {"Image9", "Cantidad Económica de Pedido con Suministro Gradual", "GI_CEPGradual"},
        {"Image8", "Cantidad Económica de Pedido con Ruptura", "GI_CEPRuptura"},
        {"Image7", "Cantidad Económica de Pedido con Descuentos", "GI_CEPDescuento"},
        {"Image11", "Volver", "GestiónDeInventarios"}}},
      {"Juegos",
       "Teoría de Juegos",
       "Un juego es cualquier situación gobernada por unas reglas con un resultado definido y "
       "caracterizado por una independencia estratégica. Mediante Teoría de Juegos se indicarán "
       "las posibles estrategias que podrá seguir cada jugador en función de la "
       "interdependencia con los demás jugadores.",
       {{"Image6", "Juegos con 2  jugadores", "Juegos_2"},
        {"Image5", "Juegos con 3 jugadores", "Juegos_3"},
        {"Image4", "Juegos con n estrategias", "Juegos_n"},
        // The decorative strip: a click hides the menu and shows nothing.
        {"Image7", "", ""}}},
      {"Localizacion_P",
       "Localización",
       "La decisión de localización de la empresa es la determinación de aquel lugar que, "
       "considerando todos los factores, ocasionará el coste mínimo del producto a fabricar, con "
       "objeto de obtener los máximos beneficios empresariales, proporcionando a su vez la "
       "máxima satisfacción posible a los clientes",
       {{"Image8", "Centro de Gravedad", "Localizacion_CG"},
        {"Image4", "Ponderación de Factores", "Localizacion_PF"}}},
      {"SelecEquipos",
       "Selección de Equipos y Tecnología",
       "Este tipo de problemas permite decidir qué máquina o tecnología adquirir, hace posible  "
       "la selección entre las distintas ofertas que se nos presentan.",
       {{"Image7", "Criterio de Ponderación de Factores", "Selec_Pond"},
        {"Image6", "Criterio del VAN", "Selec_Van"},
        {"Image8", "Costes Totales", "Select_C_Totales"}}},
      {"ControlCal",
       "Control Estadístico de la Calidad",
       "El Control Estadístico de la Calidad se puede realizar observando en cada elemento: una "
       "característica medible, o bien un atributo o una característica cualitativa o de otro "
       "modo examinando el número total de defectos que presenta el producto. Estos tres tipos "
       "de control estadístico se podrán resolver a continuación.",
       {{"Image1", "Control por Variables", "ControlCal_V"},
        {"Image2", "Control por Atributos", "ControlCal_AtribP"},
        {"Image5", "Control por Número de Defectos", "ControlCal_NDef"}}},
      {"Productividad",
       "Productividad",
       "Productividad es la forma de medir la eficiencia de la función de producción de una "
       "organización. Se define como la relación entre la producción de un período y la cantidad "
       "de recursos consumidos para alcanzarla.",
       {{"Image6", "Productividad Parcial", "Productividad_Simple"},
        {"Image7", "Productividad Global", "Productividad_Global"}}},
      {"DistribucionFisica",
       "Distribución Física de las Instalaciones ",
       "Se define la distribución en planta como la ubicación de las distintas máquinas, puestos "
       "de trabajo, áreas de servicio al cliente, almacenes, oficinas, flujo de materiales, etc. "
       "dentro de los edificios de la empresa de forma que se consiga el mejor funcionamiento de "
       "las instalaciones.",
       {{"Image7", "Análisis Carga-Distancia", "Distribucion_CargaDistancia"},
        {"Image8", "Equilibrado de Líneas de fabricación y montaje", "Distribucion_Equlibrado"}}},
  };
  for (const Section& s : sections) {
    MenuInfo m{s.name, s.title, s.intro, {}};
    for (auto [picture, label, target] : s.choices) {
      std::string_view hides = s.name;
      // Kept as it is: this picture hides the menu above instead of its own,
      // so the section menu stays on screen behind the model.
      if (hides == "GI_DemandaIndependiente" && std::string_view(picture) == "Image8")
        hides = "GestiónDeInventarios";
      m.choices.push_back(pick(picture, label, target, hides));
    }
    out.push_back(std::move(m));
  }
  return out;
}

// Window captions of the section menus, where they differ from the title.
const char* menuCaption(const MenuInfo& m) {
  if (m.name == "DecisionMulticriterio")
    return "Teoría de Colas. Este tipo de problemas proporcionan información crucial ";
  return m.title.c_str();
}

// Two section menus have a Volver among their pictures.
std::string menuVolver(const MenuInfo& m) {
  for (const MenuChoice& c : m.choices)
    if (c.label == "Volver") return c.target;
  return "";
}

std::vector<ScreenInfo> buildScreens() {
  std::vector<ScreenInfo> out;
  // The start screen has no chrome at all; its timer moves on to the main menu.
  out.push_back({"AInicio", Kind::Start, "Vorel", "", "", Cerrar::None, false, false, false, {}});
  // The main menu's chrome is cerrar (unload), minimizar and ayuda; no gohome.
  out.push_back(
      {"APrincipal", Kind::MainMenu, "Vorel", "", "", Cerrar::Unload, true, false, true, {}});
  for (const MenuInfo& m : menus()) {
    if (m.name == "APrincipal") continue;
    out.push_back({m.name,
                   Kind::SectionMenu,
                   menuCaption(m),
                   "",
                   menuVolver(m),
                   cerrarOf(m.name),
                   true,
                   true,
                   true,
                   {}});
  }
  for (const Model& model : models()) {
    ScreenInfo entry{model.entry,           Kind::Entry, model.caption, "",   model.volver,
                     cerrarOf(model.entry), true,        true,          true, {}};
    if (model.resolver.empty()) {
      for (const Sol& s : model.solutions) entry.solutions.emplace_back(s.name);
    } else {
      for (const char* s : model.resolver) entry.solutions.emplace_back(s);
    }
    entry.resolverStays = model.stays;
    out.push_back(std::move(entry));
    for (const Sol& s : model.solutions) {
      const std::string volver = std::string_view(s.volver) == kToEntry ? model.entry : s.volver;
      out.push_back({s.name,
                     Kind::Solution,
                     s.caption,
                     model.entry,
                     volver,
                     cerrarOf(s.name),
                     true,
                     true,
                     false,
                     {}});
    }
    // Chart print screens only carry a picture to the printer: never shown,
    // no commands of their own.
    for (const char* c : model.charts)
      out.push_back(
          {c, Kind::ChartPrint, "Form2", model.entry, "", Cerrar::None, false, false, false, {}});
  }
  return out;
}

}  // namespace

const std::vector<MenuInfo>& menus() {
  static const std::vector<MenuInfo> m = buildMenus();
  return m;
}

const MenuInfo* findMenu(std::string_view name) {
  const auto& all = menus();
  auto it = std::find_if(all.begin(), all.end(), [&](const MenuInfo& m) { return m.name == name; });
  return it == all.end() ? nullptr : &*it;
}

const std::vector<ScreenInfo>& screens() {
  static const std::vector<ScreenInfo> s = buildScreens();
  return s;
}

const ScreenInfo* findScreen(std::string_view name) {
  const auto& all = screens();
  auto it =
      std::find_if(all.begin(), all.end(), [&](const ScreenInfo& s) { return s.name == name; });
  return it == all.end() ? nullptr : &*it;
}

std::string helpPage(std::string_view screen) {
  const ScreenInfo* info = findScreen(screen);
  if (!info || info->kind == Kind::Start || info->kind == Kind::MainMenu) return "VorelAyuda.html";
  const std::string& name = info->entry.empty() ? info->name : info->entry;
  // The accented letters of the screen names, in UTF-8, and their plain forms.
  static const std::pair<std::string_view, char> kPlain[] = {{"á", 'a'}, {"é", 'e'}, {"í", 'i'},
                                                             {"ó", 'o'}, {"ú", 'u'}, {"ñ", 'n'}};
  std::string page;
  for (std::size_t i = 0; i < name.size();) {
    bool folded = false;
    for (const auto& [accented, plain] : kPlain)
      if (name.compare(i, accented.size(), accented) == 0) {
        page += plain;
        i += accented.size();
        folded = true;
        break;
      }
    if (!folded) page += name[i++];
  }
  return page + ".html";
}

}  // namespace vorel::nav
