// Screens as data: the controls, texts and commands of a screen, written once
// and drawn by both the desktop (Qt) and the browser. A description holds no
// behaviour beyond naming what each command does; the frames of the two
// editions carry the commands out on the core.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/navigation.h"

namespace vorel::ui {

// What a command picture does.
enum class Action {
  Nuevo,
  Abrir,
  Guardar,
  Resolver,
  Imprimir,
  Ayuda,
  Gohome,
  Volver,
  Minimizar,
  Cerrar,
  Show,  // a menu's picture: shows `target`, hides `hides`
  Edit,  // an entry screen's command that runs the edit of the fields named `target`
         // (Rediseñar), then puts the focus in the first visible cell of the table
  Browse,  // a solution screen's browsing command: the solution shows another page
  None,  // a picture that does nothing when clicked
};

// A picture that acts as a command.
struct Command {
  std::string name;     // its control name: "nuevo", "Image7"
  std::string toolTip;  // "Nuevo"
  std::string caption;  // the text beside or below the picture
  std::string picture;  // the picture's name among the program's pictures: "cmd-nuevo"
  Action action = Action::None;
  std::string target, hides;  // Show: what it shows and what it hides (see nav::MenuChoice)
  bool enabled = true;
  bool visible = true;  // a browsing command: whether it shows before the solution says
  int size = 36;  // the picture's side in pixels at scale 1
};

enum class ControlKind {
  Label,      // a text
  TextBox,    // a field typed by the student
  Selector,   // a list to choose from (a combo box)
  Cell,       // a text box of a table
  ReportBox,  // the box a solution screen paints its report on
  Option,     // a choice among the options of the same `family` (a radio button)
  Check,      // a box ticked or not
  Chart,      // the chart a solution screen draws beside its report
  ListBox,    // a list shown open, `height` lines tall, its items all in view
};

struct Control {
  ControlKind kind = ControlKind::Label;
  std::string name;     // its control name ("D", "Label1"); may be empty for a plain label
  std::string text;     // a label's caption, a text box's preset
  std::string toolTip;  // a text box's tool-tip
  std::string buddy;    // a label that names a text box: that box's name
  // The place on a grid of the screen: `group` 0 is the grid of fields
  // (labels in column 0, boxes in column 1), 1 the table below it (its row -1
  // is a text above it), 2 and on further tables after it (see
  // Description::tablesAcross); the title row, the intro and the report box
  // lie outside them all. A table's labels in row 0 are column heads.
  int group = 0;
  int row = 0, column = 0;
  int rowSpan = 1, columnSpan = 1;  // the rows and columns of its grid it covers
  // A text box's width in pixels at scale 1; a report box's in average
  // character widths, its height in lines; a list box's height in lines. A
  // label given a width breaks into lines at the runs of blanks of its text
  // (the desktop makes it that wide at least; the browser breaks it as the
  // page's width asks).
  int width = 0, height = 0;
  bool visible = true;
  bool locked = false;  // a cell the program fills, never typed into
  std::vector<std::string> items;  // a selector's list
  // A selector, option or check box: the edit of the fields its click runs
  // (see Form::edits), after the click has set its index or its tick.
  std::string edit;
  // The edit its taking the focus runs (a list that brings its group to its row).
  std::string focusEdit;
  std::string family;  // an option: the set of options it excludes the others of
};

struct Description {
  std::string name;     // the screen: "GI_CantidadEconómicaPedido"
  std::string heading;  // the title shown in the window's band
  std::string intro;    // the introductory text under it, if any
  // The title field of an entry screen: its caption, control and preset.
  Control titleLabel, titleField;
  std::vector<Control> controls;  // in reading order
  std::vector<Command> chrome;    // the window's own commands in the header band
  std::vector<Command> commands;  // the screen's commands, or a menu's pictures
  // Where an entry screen has several tables: side by side (else one below
  // the other).
  bool tablesAcross = false;
  // An entry screen: the edit of the fields (see Form::edits) that each
  // arrival on the screen runs, the first included; none where empty.
  std::string activate;
  // An entry screen: the control nuevo leaves the focus in, if any.
  std::string nuevoFocus;
  // Tables shown or hidden as a whole, as a frame is: a group and the name
  // its visibility is bound by. Another table shows where a control of it does.
  std::vector<std::pair<int, std::string>> frames;
};

// A control of `kind` at its place on a grid of the screen (see Control).
// `width` as Control::width says.
Control control(ControlKind kind, std::string name, std::string text, int group, int row,
                int column, int width = 0);

// An entry screen's command beside its fields that runs the edit `target`
// (its own name where empty) as Rediseñar does.
Command editCommand(std::string name, std::string caption, std::string target = "",
                    std::string toolTip = "");

// A solution screen's browsing arrow, its tool-tip also its caption.
Command browseCommand(std::string name, std::string picture, std::string toolTip,
                      bool visible = false);

// The texts of the frame that every screen shares.
inline constexpr char kTituloCaption[] = "TÍTULO DEL PROBLEMA";
inline constexpr char kTituloToolTip[] = "Título del Problema";
inline constexpr char kErrorTitle[] = "Error";  // every check's message box
inline constexpr char kRuntimeErrorTitle[] = "Vorel";
inline constexpr char kHelpTitle[] = "Ayuda de Vorel";  // the help window
// The text of the box that reports a run-time error.
std::string runtimeErrorText(int number, const std::string& text);

// The window's own commands of a screen, as the screen tree gives them.
std::vector<Command> chrome(const nav::ScreenInfo& screen);
// nuevo, abrir, guardar and Resolver of an entry screen.
std::vector<Command> entryCommands();
// Imprimir of a solution screen.
Command imprimir();

// The start screen, the main menu and the section menus.
Description startScreen();
Description menu(const nav::MenuInfo& menu);

// An entry screen of text fields: the title row, then one labelled box per
// field, in order. `fields` are {control, label} pairs.
struct FieldLabel {
  const char* name;
  const char* label;
};
Description fieldEntry(std::string_view screen, std::string heading, std::string intro,
                       std::string titleName, std::string titlePreset,
                       const std::vector<FieldLabel>& fields);
// A solution screen with its title label, its report box sized for the
// largest report (`columns` by `lines`) and Imprimir.
Description reportSolution(std::string_view screen, std::string label, int columns, int lines);

// The picture of a menu's choice, by the screen it opens, and the colour of a
// screen's section (0xRRGGBB).
std::string choicePicture(std::string_view target);
unsigned sectionColor(std::string_view screen);

}  // namespace vorel::ui
