// The screen tree as data: every screen of the program, its caption, its
// chrome, what `volver` shows, what `cerrar` does, and the menus' choices.
// The desktop program builds its windows and wiring from these tables.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorel::nav {

enum class Kind { Start, MainMenu, SectionMenu, Entry, Solution, ChartPrint };

enum class Cerrar {
  None,        // no cerrar button (start screen, chart print screens)
  Unload,      // Unload Me: the screen is destroyed, the process lives on
  EndProcess,  // the process ends at once
};

struct ScreenInfo {
  std::string name;  // "GI_CantidadEconómicaPedido"
  Kind kind;
  std::string caption;  // the window caption
  std::string entry;    // for solution and chart print screens: their model's entry screen
  std::string volver;   // the screen volver shows; empty where there is no volver
  Cerrar cerrar;
  bool minimizar;  // has minimizar (or Minimiz)
  bool gohome;     // has gohome
  bool ayuda;      // has ayuda
  // Entry screens: the solution screens Resolver may show, and whether Resolver
  // leaves the entry screen visible behind them ("stays").
  std::vector<std::string> solutions;
  bool resolverStays = false;
};

// A picture of a menu: it shows `target` and hides `hides` (normally the menu
// itself; see the kept quirks). An empty target shows nothing.
struct MenuChoice {
  std::string picture;  // control name: "Image3"
  std::string label;    // "Simplex"
  std::string target;
  std::string hides;
};

struct MenuInfo {
  std::string name;   // "ProgramaciónLineal"
  std::string title;  // the title label shown on the menu
  std::string intro;  // the introductory text; empty on the main menu
  std::vector<MenuChoice> choices;
};

const std::vector<ScreenInfo>& screens();  // all 86, start screen first
const ScreenInfo* findScreen(std::string_view name);
const std::vector<MenuInfo>& menus();  // APrincipal and the eleven section menus
const MenuInfo* findMenu(std::string_view name);

// The help page of a screen, a file of the help folder: the main menu's is
// "VorelAyuda.html"; a model's screens share their entry screen's page; every
// other page is named after its screen without accents ("GestionDeInventarios.html").
std::string helpPage(std::string_view screen);

}  // namespace vorel::nav
