// The browser edition's calls into the core, built as WebAssembly. Texts go in
// and out as UTF-8; answers are JSON, valid until the next call. Each loaded
// entry screen keeps its fields here, as the desktop keeps them in its widgets.
#pragma once

extern "C" {

// The screen tree: every screen with its chrome and navigation, the start
// screen and the menus, described.
const char* vorel_tree();
// Loads an entry screen afresh, as its first show does: its description, its
// solution screens' by name ({"entry", "solutions": {name: description},
// "fields"}), and its fields. {"error"} where it is not described.
const char* vorel_load(const char* screen);
void vorel_unload(const char* screen);
// A text box's text; false where the screen has no such box.
int vorel_set(const char* screen, const char* control, const char* text);
// A selector's list index; false where the screen has no such selector.
int vorel_set_index(const char* screen, const char* control, int index);
// What every bound control shows: {"D": {"text"}, "A1": {"text", "visible"},
// "cmbIntervalos": {"index"}, "Intervalo1": {"visible"}}.
const char* vorel_fields(const char* screen);
// An option's or a check box's tick; false where the screen has no such control.
int vorel_set_checked(const char* screen, const char* control, int checked);
// Runs an edit of the fields by name (a selector's click): {"messages",
// "fields"}.
const char* vorel_edit(const char* screen, const char* name);
const char* vorel_nuevo(const char* screen);
// Resolver's checks, and the solution screen the fields call for:
// {"messages": [{"text", "focus"}], "solution"}.
const char* vorel_check(const char* screen);
// The solution screen's activation: the report and the printed page, laid out
// in zones, and whether each browsing command shows ({"screen": [[{"x",
// "text"}]], "page": ..., "text", "pageText", "commands": {"Back1": false}}),
// or {"error": {"number", "title", "text"}} for a run-time error. A method
// that may never end stops once `stepBudget` steps are spent (0: no bound)
// and answers {"doesNotEnd": true}: the page tries again with more.
const char* vorel_solve(const char* screen, double stepBudget);
// The activation of the solution screen `solution` of the entry `screen`, as
// vorel_solve; a model whose charts open from another solves each its own way.
const char* vorel_solve_on(const char* screen, const char* solution, double stepBudget);
// A browsing command of the solution screen: the solution as vorel_solve
// gives it.
const char* vorel_press(const char* screen, const char* command);
// abrir of a file's bytes (Windows-1252): the fields as they stand after it.
const char* vorel_open(const char* screen, const char* bytes, int size);
// guardar: the bytes of the file; vorel_size() gives their count.
const char* vorel_save(const char* screen);
int vorel_size();
// The advances of the code points 0 to 255 in the report font, in ems; the
// layout of reports measures with them (others take the average width).
// Gives the font's average character width in ems: a zone is 14 of them.
double vorel_metrics(const float* widths);
}
