#include "web/api.h"

#include <array>
#include <map>
#include <memory>
#include <string>

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "frame/form.h"
#include "frame/live_text.h"
#include "frame/solution_cells.h"
#include "web/chart_json.h"
#include "web/json.h"

namespace vorel::web {
namespace {

std::string answer;  // the last answer, kept until the next call
std::map<std::string, std::unique_ptr<EntryForm>, std::less<>> loaded;
// Until the page measures its font, a character is one column wide: the
// layout is then the plain text's.
std::array<double, 256> ems = [] {
  std::array<double, 256> ones;
  ones.fill(1);
  return ones;
}();
double averageEm = 1;

const char* give(const Json& json) {
  answer = json.str();
  return answer.c_str();
}

const char* failure(std::string_view why) {
  return give(Json().open('{').field("error", why).close('}'));
}

const char* actionName(ui::Action a) {
  switch (a) {
    case ui::Action::Nuevo:
      return "nuevo";
    case ui::Action::Abrir:
      return "abrir";
    case ui::Action::Guardar:
      return "guardar";
    case ui::Action::Resolver:
      return "resolver";
    case ui::Action::Imprimir:
      return "imprimir";
    case ui::Action::Ayuda:
      return "ayuda";
    case ui::Action::Gohome:
      return "gohome";
    case ui::Action::Volver:
      return "volver";
    case ui::Action::Minimizar:
      return "minimizar";
    case ui::Action::Cerrar:
      return "cerrar";
    case ui::Action::Show:
      return "show";
    case ui::Action::Edit:
      return "edit";
    case ui::Action::Browse:
      return "browse";
    case ui::Action::None:
      break;
  }
  return "none";
}

const char* kindName(ui::ControlKind k) {
  switch (k) {
    case ui::ControlKind::Label:
      return "label";
    case ui::ControlKind::TextBox:
      return "textbox";
    case ui::ControlKind::Selector:
      return "selector";
    case ui::ControlKind::Cell:
      return "cell";
    case ui::ControlKind::ReportBox:
      return "report";
    case ui::ControlKind::Option:
      return "option";
    case ui::ControlKind::Check:
      return "check";
    case ui::ControlKind::Chart:
      return "chart";
    case ui::ControlKind::ListBox:
      return "listbox";
  }
  return "label";
}

void write(Json& j, const ui::Control& c) {
  j.open('{')
      .field("kind", kindName(c.kind))
      .field("name", c.name)
      .field("text", c.text)
      .field("toolTip", c.toolTip)
      .field("buddy", c.buddy)
      .field("row", c.row)
      .field("column", c.column)
      .field("rowSpan", c.rowSpan)
      .field("columnSpan", c.columnSpan)
      .field("width", c.width)
      .field("height", c.height)
      .field("visible", c.visible)
      .field("locked", c.locked)
      .field("group", c.group)
      .field("edit", c.edit)
      .field("focusEdit", c.focusEdit)
      .field("family", c.family);
  j.key("items").open('[');
  for (const std::string& item : c.items) j.value(item);
  j.close(']').close('}');
}

void write(Json& j, const ui::Command& c) {
  j.open('{')
      .field("name", c.name)
      .field("toolTip", c.toolTip)
      .field("caption", c.caption)
      .field("picture", c.picture)
      .field("action", actionName(c.action))
      .field("target", c.target)
      .field("hides", c.hides)
      .field("enabled", c.enabled)
      .field("visible", c.visible)
      .field("size", c.size)
      .close('}');
}

template <class T>
void writeList(Json& j, std::string_view key, const std::vector<T>& items) {
  j.key(key).open('[');
  for (const T& item : items) write(j, item);
  j.close(']');
}

void write(Json& j, const ui::Description& d) {
  j.open('{').field("name", d.name).field("heading", d.heading).field("intro", d.intro);
  j.field("activate", d.activate).field("nuevoFocus", d.nuevoFocus);
  j.key("titleLabel");
  write(j, d.titleLabel);
  j.key("titleField");
  write(j, d.titleField);
  writeList(j, "controls", d.controls);
  writeList(j, "chrome", d.chrome);
  writeList(j, "commands", d.commands);
  j.field("tablesAcross", d.tablesAcross);
  j.key("frames").open('{');
  for (const auto& [group, name] : d.frames) j.field(std::to_string(group), name);
  j.close('}');
  j.close('}');
}

const char* cerrarName(nav::Cerrar c) {
  switch (c) {
    case nav::Cerrar::None:
      return "none";
    case nav::Cerrar::Unload:
      return "unload";
    case nav::Cerrar::EndProcess:
      return "end";
  }
  return "none";
}

const char* kindName(nav::Kind k) {
  switch (k) {
    case nav::Kind::Start:
      return "start";
    case nav::Kind::MainMenu:
      return "main";
    case nav::Kind::SectionMenu:
      return "section";
    case nav::Kind::Entry:
      return "entry";
    case nav::Kind::Solution:
      return "solution";
    case nav::Kind::ChartPrint:
      return "chart";
  }
  return "entry";
}

char hexDigit(unsigned v) { return "0123456789ABCDEF"[v & 15]; }

std::string hexColor(unsigned rgb) {
  std::string s = "#";
  for (int shift = 20; shift >= 0; shift -= 4) s += hexDigit(rgb >> shift);
  return s;
}

// A colour as the platform stores it (a Long with red in the lowest byte) for CSS.
std::string platformColor(long bgr) {
  const auto v = static_cast<unsigned long>(bgr);
  return hexColor(static_cast<unsigned>(((v & 0xFF) << 16) | (v & 0xFF00) | ((v >> 16) & 0xFF)));
}

// The advance of a UTF-8 text in ems, from the measured code points.
double emWidth(const std::string& utf8) {
  double width = 0;
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    unsigned code = lead;
    int extra = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    if (extra) code = lead & (0x3F >> extra);
    for (++i; extra-- > 0 && i < utf8.size(); ++i)
      code = (code << 6) | (static_cast<unsigned char>(utf8[i]) & 0x3F);
    width += code < ems.size() ? ems[code] : averageEm;
  }
  return width;
}

void writeLaidOut(Json& j, std::string_view key, const Report& report) {
  const double zone = kZoneColumns * averageEm;
  j.key(key).open('[');
  for (const LaidOutLine& line : layout(report, zone, emWidth)) {
    j.open('[');
    for (const PlacedText& piece : line)
      j.open('{').field("x", piece.x).field("text", piece.text).close('}');
    j.close(']');
  }
  j.close(']');
}

EntryForm* form(const char* screen) {
  auto it = loaded.find(std::string_view(screen));
  return it == loaded.end() ? nullptr : it->second.get();
}

// Another screen's text for a report that carries it: its live fields where
// it is loaded; a screen not loaded holds its presets, as the core's own.
std::optional<std::string> loadedFormText(std::string_view screen, std::string_view control) {
  auto it = loaded.find(screen);
  if (it == loaded.end()) return std::nullopt;
  std::optional<std::string> text;
  it->second->each([&](const ControlState& c) {
    if (c.control == control && c.text) text = *c.text;
  });
  return text;
}
const bool readsLoadedForms = (setLiveTextReader(loadedFormText), true);

// What every bound control of the screen shows: {"D": {"text": "1000"},
// "A1": {"text": "", "visible": false}, "cmbIntervalos": {"index": 0},
// "K": {"text": "", "enabled": false}, "Nu": {"toolTip": "..."}, ...}.
void writeFields(Json& j, EntryForm& f) {
  j.open('{');
  f.each([&j](const ControlState& c) {
    j.key(c.control).open('{');
    if (c.text) j.field("text", *c.text);
    if (c.visible) j.field("visible", *c.visible);
    if (c.index) j.field("index", *c.index);
    if (c.checked) j.field("checked", *c.checked);
    if (c.color) j.field("color", platformColor(*c.color));
    if (c.marked) j.field("marked", *c.marked);
    if (c.enabled) j.field("enabled", *c.enabled);
    if (c.toolTip) j.field("toolTip", *c.toolTip);
    if (c.items) {
      j.key("items").open('[');
      for (const std::string& item : *c.items) j.value(item);
      j.close(']');
    }
    j.close('}');
  });
  j.close('}');
}

const char* fieldsOf(EntryForm& f) {
  Json j;
  writeFields(j, f);
  return give(j);
}

void writeMessages(Json& j, const Messages& messages, const char* key = "messages") {
  j.key(key).open('[');
  for (const Message& m : messages)
    j.open('{').field("text", m.text).field("focus", m.focus).close('}');
  j.close(']');
}

const char* runtimeError(const std::exception& e) {
  const RuntimeError error = platformError(e);
  Json j;
  j.open('{').key("error").open('{');
  j.field("number", error.number())
      .field("title", ui::kRuntimeErrorTitle)
      .field("text", ui::runtimeErrorText(error.number(), error.what()));
  return give(j.close('}').close('}'));
}

// What a solution shows: its pages laid out, their plain text, and whether
// each browsing command of the screen shows.
const char* solutionOf(EntryForm& f, const Solution& solution) {
  const Pages& pages = solution.pages();
  Json j;
  j.open('{');
  writeLaidOut(j, "screen", pages.screen);
  writeLaidOut(j, "page", pages.page);
  j.field("text", renderText(pages.screen)).field("pageText", renderText(pages.page));
  if (!pages.chart.empty()) j.key("chart").raw(chartJson(pages.chart));
  // The chart the page keeps where it is not the one on view.
  if (!(solution.printedChart() == pages.chart))
    j.key("pageChart").raw(chartJson(solution.printedChart()));
  // Results shown in cells of the screen's own: {"NBX(0)": {"text": " 0",
  // "visible": true}, ...}.
  if (const auto* cells = dynamic_cast<const SolutionCells*>(&solution)) {
    j.key("cells").open('{');
    cells->eachCell([&j](const std::string& control, const std::string& text, bool visible) {
      j.key(control).open('{').field("text", text).field("visible", visible).close('}');
    });
    j.close('}');
  }
  j.key("commands").open('{');
  for (const ui::Description* d : f.solutions()) {
    for (const ui::Command& c : d->commands)
      if (c.action == ui::Action::Browse || c.action == ui::Action::Show)
        j.field(c.name, solution.shows(c.name));
  }
  for (const ui::Command& c : f.solution().chrome)
    if (c.action == ui::Action::Volver) j.field(c.name, solution.shows(c.name));
  j.close('}');
  j.key("offered").open('{');
  for (const ui::Command& c : f.solution().chrome) j.field(c.name, solution.offers(c.name));
  j.close('}');
  if (!solution.refusal().empty()) writeMessages(j, solution.refusal(), "refused");
  return give(j.close('}'));
}

}  // namespace
}  // namespace vorel::web

using namespace vorel;
using namespace vorel::web;

extern "C" {

const char* vorel_tree() {
  Json j;
  j.open('{').key("screens").open('[');
  for (const nav::ScreenInfo& s : nav::screens()) {
    j.open('{')
        .field("name", s.name)
        .field("kind", kindName(s.kind))
        .field("caption", s.caption)
        .field("entry", s.entry)
        .field("volver", s.volver)
        .field("cerrar", cerrarName(s.cerrar))
        .field("stays", s.resolverStays)
        .field("help", nav::helpPage(s.name))
        .field("color", hexColor(ui::sectionColor(s.entry.empty() ? s.name : s.entry)));
    // An entry screen's model: its id (its examples' folder) and what a file
    // run presses before Resolver.
    if (const CatalogueEntry* model = findModel(s.name); model && model->screen == s.name)
      j.field("model", model->id).field("presses", model->presses);
    j.key("solutions").open('[');
    for (const std::string& solution : s.solutions) j.value(solution);
    j.close(']');
    writeList(j, "chrome", ui::chrome(s));
    j.close('}');
  }
  j.close(']');
  j.key("start");
  write(j, ui::startScreen());
  j.key("menus").open('{');
  for (const nav::MenuInfo& m : nav::menus()) {
    j.key(m.name);
    write(j, ui::menu(m));
  }
  j.close('}');
  j.field("errorTitle", ui::kErrorTitle).field("helpTitle", ui::kHelpTitle);
  return give(j.close('}'));
}

const char* vorel_load(const char* screen) {
  auto fresh = newEntryForm(screen);
  if (!fresh) return failure("not described");
  EntryForm& f = *(loaded[screen] = std::move(fresh));
  Json j;
  j.open('{').key("entry");
  write(j, f.entry());
  j.key("solutions").open('{');
  for (const ui::Description* d : f.solutions()) {
    j.key(d->name);
    write(j, *d);
  }
  j.close('}');
  j.key("fields");
  writeFields(j, f);
  return give(j.close('}'));
}

void vorel_unload(const char* screen) {
  if (auto it = loaded.find(std::string_view(screen)); it != loaded.end()) loaded.erase(it);
}

int vorel_set(const char* screen, const char* control, const char* text) {
  EntryForm* f = form(screen);
  return f && f->setText(control, text);
}

const char* vorel_fields(const char* screen) {
  EntryForm* f = form(screen);
  return f ? fieldsOf(*f) : failure("not loaded");
}

int vorel_set_index(const char* screen, const char* control, int index) {
  EntryForm* f = form(screen);
  return f && f->setIndex(control, index);
}

const char* vorel_edit(const char* screen, const char* name) {
  EntryForm* f = form(screen);
  if (!f) return failure("not loaded");
  try {
    Messages messages;
    if (!f->edit(name, messages)) return failure("no such edit");
    Json j;
    j.open('{');
    writeMessages(j, messages);
    j.key("fields");
    writeFields(j, *f);
    return give(j.close('}'));
  } catch (const std::exception& e) {
    return runtimeError(e);
  }
}

const char* vorel_nuevo(const char* screen) {
  EntryForm* f = form(screen);
  if (!f) return failure("not loaded");
  f->nuevo();
  return fieldsOf(*f);
}

const char* vorel_check(const char* screen) {
  EntryForm* f = form(screen);
  if (!f) return failure("not loaded");
  try {
    Json j;
    j.open('{');
    writeMessages(j, f->check());
    j.field("solution", f->solutionShown());
    return give(j.close('}'));
  } catch (const std::exception& e) {
    return runtimeError(e);
  }
}

const char* vorel_solve(const char* screen, double stepBudget) {
  EntryForm* f = form(screen);
  if (!f) return failure("not loaded");
  try {
    return solutionOf(*f, f->solve(static_cast<long>(stepBudget)));
  } catch (const DoesNotEnd&) {
    return give(Json().open('{').field("doesNotEnd", true).close('}'));
  } catch (const std::exception& e) {
    return runtimeError(e);
  }
}

const char* vorel_solve_on(const char* screen, const char* solution, double stepBudget) {
  EntryForm* f = form(screen);
  if (!f) return failure("not loaded");
  try {
    return solutionOf(*f, f->solveOn(solution, static_cast<long>(stepBudget)));
  } catch (const DoesNotEnd&) {
    return give(Json().open('{').field("doesNotEnd", true).close('}'));
  } catch (const std::exception& e) {
    return runtimeError(e);
  }
}

const char* vorel_press(const char* screen, const char* command) {
  EntryForm* f = form(screen);
  if (!f) return failure("not loaded");
  Solution* solution = f->lastSolution();
  try {
    if (!solution || !solution->press(command)) return failure("no such command");
    return solutionOf(*f, *solution);
  } catch (const std::exception& e) {
    return runtimeError(e);
  }
}

int vorel_set_checked(const char* screen, const char* control, int checked) {
  EntryForm* f = form(screen);
  return f && f->setChecked(control, checked != 0);
}

const char* vorel_open(const char* screen, const char* bytes, int size) {
  EntryForm* f = form(screen);
  if (!f) return failure("not loaded");
  if (size >= 0 && static_cast<std::size_t>(size) <= kMaxProblemFileBytes)
    f->abrir(std::string(bytes, static_cast<std::size_t>(size)));
  return fieldsOf(*f);
}

const char* vorel_save(const char* screen) {
  EntryForm* f = form(screen);
  answer = f ? f->guardar() : std::string();
  return answer.c_str();
}

int vorel_size() { return static_cast<int>(answer.size()); }

double vorel_metrics(const float* widths) {
  for (std::size_t i = 0; i < ems.size(); ++i) ems[i] = widths[i];
  averageEm =
      averageCharWidth([](const std::string& s) { return ems[static_cast<unsigned char>(s[0])]; });
  return averageEm;
}
}
