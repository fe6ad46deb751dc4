#include "productivity/productividad_global.h"

#include "frame/arith.h"
#include "frame/catalogue.h"
#include "productivity/productividad_global_form.h"

namespace vorel::productivity {

namespace {

const char* palabra(Grupo g) { return g == Grupo::Inputs ? "input" : "output"; }

// The checks of the row typed in a group: each of its three texts, empty or
// not a valid value, in the order of the lists. AÑADIR writes "El Valor" with
// a capital for the units of year 0 of an input; Sustituir and the outputs
// do not.
Messages comprobarFila(ProductividadGlobalFields& f, Grupo g, bool alSustituir) {
  const ListasGrupo l = listas(f, g);
  const std::string w = palabra(g);
  const std::string valor = g == Grupo::Inputs && !alSustituir ? "El Valor" : "El valor";
  const std::string prefijo = g == Grupo::Inputs ? "CmbUFI" : "CmbUFO";
  struct Texto {
    const Lista* lista;
    std::string focus, vacio, incorrecto;
  };
  const Texto textos[] = {
      {l.UF0, prefijo + "0",
       "El valor de las unidades físicas del " + w +
           " correspondiente al año 0 no existe, introduzca un valor comprendido entre 0 y 9999999",
       valor + " de las unidades físicas del " + w +
           " correspondiente al año 0 no es correcto, introduzca un nuevo valor comprendido entre "
           "0 y 999999999"},
      {l.PU0, g == Grupo::Inputs ? "CmbPUI0" : "CmbPUO0",
       "El valor correspondiente al precio unitario del " + w +
           " no existe, introduzca un valor comprendido entre 0 y 9999999",
       "El valor correspondiente al precio unitario del " + w +
           " no es correcto, introduzca un nuevo valor comprendido entre 0 y 999999999"},
      {l.UF1, prefijo + "1",
       "El valor de las unidades físicas del " + w +
           " correspondiente al año 1 no existe, introduzca un valor comprendido entre 0 y 9999999",
       "El valor de las unidades físicas del " + w +
           " correspondiente al año 1 no es correcto, introduzca un nuevo valor comprendido entre "
           "0 y 999999999"},
  };
  for (const Texto& t : textos) {
    const std::string& text = t.lista->text;
    if (text.empty()) return {{t.vacio, t.focus}};
    if (!IsNumeric(text)) return {{t.incorrecto, t.focus}};
    const double v = Val(text);
    if (v <= 0 || v > 999999999) return {{t.incorrecto, t.focus}};
  }
  return {};
}

Messages comprobarEspacio(ProductividadGlobalFields& f, Grupo g) {
  if (listas(f, g).UF0->items.size() < kMaxElementosLista) return {};
  return {{g == Grupo::Inputs
               ? "Se ha superado el número máximo de elementos en la lista, no puede introducir "
                 "ningún elemento más"
               : "Se ha superado el número máximo de elementos en la lista, no puede introducir "
                 "nungún elemento más",
           ""}};
}

std::string& numeroFila(ProductividadGlobalFields& f, Grupo g) {
  return g == Grupo::Inputs ? f.TxtFact : f.TxtProd;
}

// The counts of a group follow the length of its lists.
void contar(ProductividadGlobalFields& f, Grupo g) {
  const std::string n = std::to_string(listas(f, g).UF0->items.size());
  if (g == Grupo::Inputs) {
    f.numeroimput = f.TxtFT = n;
  } else {
    f.numerooutput = f.TxtPT = n;
  }
}

void agregar(ProductividadGlobalFields& f, Grupo g) {
  const ListasGrupo l = listas(f, g);
  for (Lista* lista : {l.UF0, l.PU0, l.UF1}) {
    lista->items.push_back(lista->text);
    lista->text.clear();
  }
  contar(f, g);
}

// A number put into a text box, as the platform converts it: no leading
// blank, and a zero before the point of a fraction ("0.5", "-0.25").
std::string comoTexto(float x) {
  std::string s = Str(x);
  if (s.front() == ' ') s.erase(0, 1);
  if (s.front() == '.') s.insert(0, "0");
  if (s.rfind("-.", 0) == 0) s.insert(1, "0");
  return s;
}

// The value of a group's rows at the prices of year 0, for the units of year 0 or 1.
float valor(const std::vector<std::string>& unidades, const std::vector<std::string>& precios) {
  float total = 0;
  for (std::size_t i = 0; i < unidades.size() && i < precios.size(); ++i)
    total = Sng(double(total) + checked(Val(unidades[i]) * Val(precios[i])));
  return total;
}

void cuerpo(Report& out, const ProductividadGlobalFields& f) {
  out.heading(f.Titulo1);
  out.line(Z, "Año 0:", Z, Z, Z, f.TxtCasoO);
  out.line(Z, "Año 1:", Z, Z, Z, f.TxtCaso1);
  out.line(Z, "Número de Factores:", Z, Z, f.numeroimput);
  out.line(Z, "Número de Productos:", Z, Z, f.numerooutput);
  out.rule();
  out.line(Z, "Productividad Global del Año " + f.TxtCasoO + ":", Z, Z, f.PO);
  out.line(Z, "Productividad Global del Año " + f.TxtCaso1 + ":", Z, Z, f.P1);
  out.line(Z, "Índice de Productividad Global:", Z, Z, f.IPG);
  out.line(Z, "Tasa de Productividad Global:", Z, Z, f.TPG);
}

}  // namespace

ListasGrupo listas(ProductividadGlobalFields& f, Grupo g) {
  if (g == Grupo::Inputs) return {&f.CmbUFI0, &f.CmbPUI0, &f.CmbUFI1};
  return {&f.CmbUFO0, &f.CmbPUO0, &f.CmbUFO1};
}

Messages añadir(ProductividadGlobalFields& f) {
  for (Grupo g : {Grupo::Inputs, Grupo::Outputs}) {
    if (Messages m = comprobarEspacio(f, g); !m.empty()) return m;
    if (Messages m = comprobarFila(f, g, false); !m.empty()) return m;
  }
  agregar(f, Grupo::Inputs);
  agregar(f, Grupo::Outputs);
  return {};
}

Messages sustituir(ProductividadGlobalFields& f) {
  const ListasGrupo l = listas(f, f.grupo);
  const int fila = l.UF0->ListIndex;
  const bool enBlanco = l.UF0->text.empty() && l.PU0->text.empty() && l.UF1->text.empty();
  if (fila < 0 || fila >= static_cast<int>(l.UF0->items.size()) || enBlanco)
    return {{std::string("Introduzca los nuevos valores de las unidades físicas del ") +
                 palabra(f.grupo) + " y del precio unitario del mismo",
             ""}};
  if (Messages m = comprobarFila(f, f.grupo, true); !m.empty()) return m;
  for (Lista* lista : {l.UF0, l.PU0, l.UF1}) {
    item(lista->items, fila) = lista->text;
    lista->ListIndex = fila;
  }
  return {};
}

void eliminar(ProductividadGlobalFields& f) {
  const ListasGrupo l = listas(f, f.grupo);
  const int fila = l.UF0->ListIndex;
  if (fila < 0) return;
  for (Lista* lista : {l.UF0, l.PU0, l.UF1}) {
    if (fila < static_cast<int>(lista->items.size()))
      lista->items.erase(lista->items.begin() + fila);
    lista->ListIndex = -1;
  }
  numeroFila(f, f.grupo).clear();
  contar(f, f.grupo);
}

void seleccionar(ProductividadGlobalFields& f, Grupo g, int fila) {
  const ListasGrupo l = listas(f, g);
  f.grupo = g;
  if (fila < 0 || fila >= static_cast<int>(l.UF0->items.size())) return;
  for (Lista* lista : {l.UF0, l.PU0, l.UF1}) {
    lista->ListIndex = fila;
    lista->text = item(lista->items, fila);
  }
  numeroFila(f, g) = std::to_string(fila + 1);
}

void enfocar(ProductividadGlobalFields& f, Grupo g, int fila) {
  const ListasGrupo l = listas(f, g);
  if (fila < 0 || fila >= static_cast<int>(l.UF0->items.size())) return;
  f.grupo = g;
  for (Lista* lista : {l.UF0, l.PU0, l.UF1}) lista->ListIndex = fila;
  numeroFila(f, g) = std::to_string(fila + 1);
}

void nuevo(ProductividadGlobalFields& f) {
  const std::string titulo = f.Titulo1;
  f = ProductividadGlobalFields{};
  f.Titulo1 = titulo;
}

Messages check(const ProductividadGlobalFields&) { return {}; }

void resolver(ProductividadGlobalFields& f) {
  const float A0 = valor(f.CmbUFO0.items, f.CmbPUO0.items);
  const float A1 = valor(f.CmbUFO1.items, f.CmbPUO0.items);
  const float B0 = valor(f.CmbUFI0.items, f.CmbPUI0.items);
  const float B1 = valor(f.CmbUFI1.items, f.CmbPUI0.items);
  f.PO = comoTexto(Sng(divide(A0, B0)));
  f.P1 = comoTexto(Sng(divide(A1, B1)));
  // The index and the rate read the two productivities back from their boxes.
  const double PO = Val(f.PO), P1 = Val(f.P1);
  f.IPG = comoTexto(Sng(divide(P1, PO)));
  f.TPG = comoTexto(Sng(divide(checked(P1 - PO), PO)));
}

Report report(const ProductividadGlobalFields& f) {
  Report out;
  out.blankLines(7);
  cuerpo(out, f);
  return out;
}

Report printout(const ProductividadGlobalFields& f) {
  Report out = pageHead("PRODUCTIVIDAD GLOBAL");
  cuerpo(out, f);
  return out;
}

Pages solveAndReport(ProductividadGlobalFields& f) {
  resolver(f);
  return {report(f), printout(f)};
}

void exchange(ProblemFile& file, ProductividadGlobalFields& f) {
  for (std::string* s :
       {&f.Titulo1, &f.TxtCasoO, &f.TxtCaso1, &f.TxtFact, &f.TxtProd, &f.TxtFT, &f.TxtPT})
    file.text(*s);
  for (Grupo g : {Grupo::Inputs, Grupo::Outputs}) {
    file.text(g == Grupo::Inputs ? f.numeroimput : f.numerooutput);
    const ListasGrupo l = listas(f, g);
    for (Lista* lista : {l.UF0, l.PU0, l.UF1}) file.text(lista->text);
  }
  for (Grupo g : {Grupo::Inputs, Grupo::Outputs}) {
    const ListasGrupo l = listas(f, g);
    if (!file.reading()) {
      // A list left shorter than its group's first by a half-read file gives blanks.
      for (std::size_t i = 0; i < l.UF0->items.size(); ++i)
        for (Lista* lista : {l.UF0, l.PU0, l.UF1}) {
          std::string valor = i < lista->items.size() ? lista->items[i] : "";
          file.text(valor);
        }
      continue;
    }
    // The rows the count says, never more than a list holds, each stored as
    // it is read.
    double filas = 0;
    try {
      filas = CInt(Val(g == Grupo::Inputs ? f.numeroimput : f.numerooutput));
    } catch (const RuntimeError&) {
      throw ReadFailed{};
    }
    if (filas < 0 || filas > kMaxElementosLista) throw ReadFailed{};
    for (Lista* lista : {l.UF0, l.PU0, l.UF1}) {
      lista->items.clear();
      lista->ListIndex = -1;
    }
    for (int i = 0; i < filas; ++i)
      for (Lista* lista : {l.UF0, l.PU0, l.UF1}) {
        std::string valor;
        file.text(valor);
        lista->items.push_back(valor);
      }
  }
}

CatalogueEntry catalogueProductividadGlobal() {
  return catalogued("productividad-global", productividadGlobalForm());
}

}  // namespace vorel::productivity
