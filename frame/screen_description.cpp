#include "frame/screen_description.h"

namespace vorel::ui {

namespace {

struct Topic {
  const char* screen;
  const char* picture;
};

// The picture of each choice, by the screen it opens.
constexpr Topic kPictures[] = {
    {"ProgramaciónLineal", "programacion-lineal"},
    {"DecisionTeoria", "teoria-decision"},
    {"Juegos", "teoria-juegos"},
    {"TeoriaColas", "teoria-colas"},
    {"GestiónDeInventarios", "inventarios"},
    {"Localizacion_P", "localizacion"},
    {"SelecEquipos", "seleccion-equipos"},
    {"ControlCal", "control-calidad"},
    {"Productividad", "productividad"},
    {"C_Experiencia", "curvas-experiencia"},
    {"DistribucionFisica", "distribucion-fisica"},
    {"PL_Simplex", "simplex"},
    {"PL_Asignación", "asignacion"},
    {"PL_Transportes", "transporte"},
    {"DecisionRiesgoNobayesiano", "riesgo"},
    {"DecisionIncertidumbre", "incertidumbre"},
    {"DecisionMulticriterio", "multicriterio"},
    {"DecisionElectra1", "electra1"},
    {"DecisionElectra2", "electra2"},
    {"GI_DemandaIndependiente", "demanda-independiente"},
    {"GI_MRP", "mrp"},
    {"GI_CantidadEconómicaPedido", "cep"},
    {"GI_CEPGradual", "cep-gradual"},
    {"GI_CEPRuptura", "cep-ruptura"},
    {"GI_CEPDescuento", "cep-descuento"},
    {"Juegos_2", "juegos-2"},
    {"Juegos_3", "juegos-3"},
    {"Juegos_n", "juegos-n"},
    {"Localizacion_CG", "centro-gravedad"},
    {"Localizacion_PF", "localizacion-factores"},
    {"Selec_Pond", "equipos-factores"},
    {"Selec_Van", "van"},
    {"Select_C_Totales", "costes-totales"},
    {"ControlCal_V", "control-variables"},
    {"ControlCal_AtribP", "control-atributos"},
    {"ControlCal_NDef", "control-defectos"},
    {"Productividad_Simple", "productividad-parcial"},
    {"Productividad_Global", "productividad-global"},
    {"Distribucion_CargaDistancia", "carga-distancia"},
    {"Distribucion_Equlibrado", "equilibrado"},
};

struct Section {
  const char* prefix;
  unsigned color;
};

// Section colours, by the first letters of a screen's name.
constexpr Section kSections[] = {
    {"PL_", 0x3B6FD8},
    {"ProgramaciónLineal", 0x3B6FD8},
    {"Decision", 0x8A4FD1},
    {"Juegos", 0xD9495B},
    {"TeoriaColas", 0x1FA6A6},
    {"GI_", 0xE38B2C},
    {"GestiónDeInventarios", 0xE38B2C},
    {"Localizacion", 0x2E9E5B},
    {"Selec", 0x5A6B7D},
    {"ControlC", 0xC23C8C},
    {"Productividad", 0xD4A017},
    {"C_Experiencia", 0x3C8DBC},
    {"Distribucion", 0x7A5C3E},
};

Command picture(std::string name, std::string toolTip, std::string art, Action action, int size) {
  Command c;
  c.name = std::move(name);
  c.toolTip = toolTip;
  c.caption = std::move(toolTip);
  c.picture = std::move(art);
  c.action = action;
  c.size = size;
  return c;
}

Control label(std::string name, std::string text) {
  Control c;
  c.kind = ControlKind::Label;
  c.name = std::move(name);
  c.text = std::move(text);
  return c;
}

}  // namespace

std::string runtimeErrorText(int number, const std::string& text) {
  return "Error en tiempo de ejecución '" + std::to_string(number) + "':\n\n" + text;
}

std::string choicePicture(std::string_view target) {
  if (target.empty()) return "juegos-tira";
  for (const Topic& t : kPictures)
    if (target == t.screen) return t.picture;
  return "volver";
}

unsigned sectionColor(std::string_view screen) {
  for (const Section& s : kSections)
    if (screen.substr(0, std::string_view(s.prefix).size()) == s.prefix) return s.color;
  return 0x2F3A4A;
}

std::vector<Command> chrome(const nav::ScreenInfo& screen) {
  const bool mainMenu = screen.kind == nav::Kind::MainMenu;
  const bool sectionMenu = screen.kind == nav::Kind::SectionMenu;
  constexpr int size = 30;
  std::vector<Command> commands;
  if (screen.ayuda)
    commands.push_back(
        picture(mainMenu ? "Image7" : "ayuda", "Ayuda", "cmd-ayuda", Action::Ayuda, size));
  if (screen.gohome)
    commands.push_back(picture("gohome", "Pantalla de Inicio", "cmd-gohome", Action::Gohome, size));
  // The section menus' volver is one of their pictures, not a window command.
  if (!screen.volver.empty() && !sectionMenu)
    commands.push_back(picture("volver", "Volver", "cmd-volver", Action::Volver, size));
  if (screen.minimizar)
    commands.push_back(picture(mainMenu      ? "Image11"
                               : sectionMenu ? "Minimiz"
                                             : "minimizar",
                               "Minimizar", "cmd-minimizar", Action::Minimizar, size));
  if (screen.cerrar != nav::Cerrar::None)
    commands.push_back(
        picture(mainMenu ? "Image10" : "cerrar", "Cerrar", "cmd-cerrar", Action::Cerrar, size));
  return commands;
}

std::vector<Command> entryCommands() {
  return {picture("nuevo", "Nuevo", "cmd-nuevo", Action::Nuevo, 40),
          picture("abrir", "Abrir", "cmd-abrir", Action::Abrir, 40),
          picture("guardar", "Guardar", "cmd-guardar", Action::Guardar, 40),
          picture("Resolver", "Resolver", "cmd-resolver", Action::Resolver, 48)};
}

Command imprimir() { return picture("Imprimir", "Imprimir", "cmd-imprimir", Action::Imprimir, 40); }

Description startScreen() {
  Description d;
  d.name = "AInicio";
  d.controls = {label("Label1", "Vorel"), label("Label2", "Aula de Gestión Productiva"),
                label("Label3", "Versión 1.1 (2004)"), label("Label4", "Elaborado por:"),
                label("Label5", "Equipo de desarrollo de Vorel")};
  d.commands = {picture("Image1", "", "logo", Action::None, 96),
                picture("Image2", "", "inicio-collage", Action::None, 150)};
  return d;
}

Description menu(const nav::MenuInfo& m) {
  Description d;
  d.name = m.name;
  const bool mainMenu = m.name == "APrincipal";
  if (const nav::ScreenInfo* info = nav::findScreen(m.name)) d.chrome = chrome(*info);
  if (mainMenu) {
    d.controls = {label("Label1", "Vorel"), label("Label2", "Aula de Gestión Productiva")};
    d.commands.push_back(picture("Image1", "", "logo", Action::None, 64));
  } else {
    d.heading = m.title;
    d.intro = m.intro;
  }
  const int size = mainMenu ? 76 : 64;
  for (const nav::MenuChoice& choice : m.choices) {
    const std::string art = choice.label == "Volver" ? "volver" : choicePicture(choice.target);
    Command c = picture(choice.picture, "", art, Action::Show, size);
    c.caption = choice.label;
    c.target = choice.target;
    c.hides = choice.hides;
    d.commands.push_back(std::move(c));
  }
  return d;
}

Command editCommand(std::string name, std::string caption, std::string target,
                    std::string toolTip) {
  Command c;
  c.target = target.empty() ? name : std::move(target);
  c.name = std::move(name);
  c.caption = std::move(caption);
  c.toolTip = std::move(toolTip);
  c.action = Action::Edit;
  return c;
}

Command browseCommand(std::string name, std::string picture, std::string toolTip,
                      bool visible) {
  Command c;
  c.name = std::move(name);
  c.caption = c.toolTip = std::move(toolTip);
  c.picture = std::move(picture);
  c.action = Action::Browse;
  c.visible = visible;
  c.size = 40;
  return c;
}

Description fieldEntry(std::string_view screen, std::string heading, std::string intro,
                       std::string titleName, std::string titlePreset,
                       const std::vector<FieldLabel>& fields) {
  Description d;
  d.name = screen;
  d.heading = std::move(heading);
  d.intro = std::move(intro);
  if (const nav::ScreenInfo* info = nav::findScreen(screen)) d.chrome = chrome(*info);
  d.titleLabel = label("", kTituloCaption);
  d.titleField.kind = ControlKind::TextBox;
  d.titleField.name = std::move(titleName);
  d.titleField.text = std::move(titlePreset);
  d.titleField.toolTip = kTituloToolTip;
  d.titleField.width = 280;
  d.titleLabel.buddy = d.titleField.name;
  int row = 0;
  for (const FieldLabel& f : fields) {
    Control caption = label("", f.label);
    caption.buddy = f.name;
    caption.row = row;
    Control box;
    box.kind = ControlKind::TextBox;
    box.name = f.name;
    box.row = row++;
    box.column = 1;
    box.width = 140;
    d.controls.push_back(std::move(caption));
    d.controls.push_back(std::move(box));
  }
  d.commands = entryCommands();
  return d;
}

Description reportSolution(std::string_view screen, std::string heading, int columns, int lines) {
  Description d;
  d.name = screen;
  d.heading = std::move(heading);
  if (const nav::ScreenInfo* info = nav::findScreen(screen)) d.chrome = chrome(*info);
  Control box;
  box.kind = ControlKind::ReportBox;
  box.name = "Solucion1";
  box.width = columns;
  box.height = lines;
  d.controls.push_back(std::move(box));
  d.commands = {imprimir()};
  return d;
}

Control control(ControlKind kind, std::string name, std::string text, int group, int row,
                int column, int width) {
  Control c;
  c.kind = kind;
  c.name = std::move(name);
  c.text = std::move(text);
  c.group = group;
  c.row = row;
  c.column = column;
  c.width = width;
  return c;
}

}  // namespace vorel::ui
