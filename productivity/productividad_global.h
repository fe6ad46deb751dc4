// Total productivity: the outputs and the inputs of two years, each valued at
// the unit prices of year 0; the ratio of their values is the global
// productivity of each year, and from the two follow an index and a rate.
#pragma once

#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel::productivity {

inline constexpr int kMaxElementosLista = 255;

// A combo box of the entry screen: the text typed in it and its list.
struct Lista {
  std::string text;
  std::vector<std::string> items;
  int ListIndex = -1;  // the row in hand; -1 for none
};

enum class Grupo { Inputs, Outputs };

// The entry screen Productividad_Global. The lists of a group run parallel,
// one row per input (factor) or output (product); the combos' texts are the
// row being typed.
struct ProductividadGlobalFields {
  std::string Titulo1 = "Problema 1";
  std::string TxtCasoO, TxtCaso1;        // the names of year 0 and year 1
  std::string TxtFact, TxtProd;          // the number of the row in hand of each group
  std::string TxtFT = "0", TxtPT = "0";  // how many rows each group has
  Lista CmbUFI0, CmbUFI1, CmbPUI0;       // inputs: units of year 0, of year 1, price of year 0
  Lista CmbUFO0, CmbUFO1, CmbPUO0;       // outputs: the same
  std::string numeroimput = "0", numerooutput = "0";
  std::string PO, P1, IPG, TPG;  // the results that Resolver writes
  Grupo grupo = Grupo::Inputs;   // the group whose list last took the focus
};

// The three lists of a group, in the order of the problem file: units of
// year 0, price of year 0, units of year 1.
struct ListasGrupo {
  Lista *UF0, *PU0, *UF1;
};
ListasGrupo listas(ProductividadGlobalFields& f, Grupo g);

// AÑADIR: checks the input row and then the output row, and adds both.
Messages añadir(ProductividadGlobalFields& f);
// Sustituir: replaces the row in hand of the group in hand with its texts;
// with no row in hand, or nothing typed, it asks for the new values.
Messages sustituir(ProductividadGlobalFields& f);
// eliminar: removes the row in hand of the group in hand; none, nothing.
void eliminar(ProductividadGlobalFields& f);
// Click on a row of a list: the three lists of its group go to that row,
// whose values fill their texts.
void seleccionar(ProductividadGlobalFields& f, Grupo g, int fila);
// GotFocus on a list of a group with a row in hand: the other two lists go
// to its row, the row's number shows and the group is in hand; the texts
// being typed stay. A list with no row in hand changes nothing.
void enfocar(ProductividadGlobalFields& f, Grupo g, int fila);
void nuevo(ProductividadGlobalFields& f);

Messages check(const ProductividadGlobalFields& f);  // Resolver has no checks of its own
// Resolver: the global productivities PO and P1, the index IPG and the rate
// TPG, written into their boxes. Empty lists divide 0 by 0.
void resolver(ProductividadGlobalFields& f);
Report report(const ProductividadGlobalFields& f);    // Solucion1, from the boxes
Report printout(const ProductividadGlobalFields& f);  // Imprimir
Pages solveAndReport(ProductividadGlobalFields& f);
void exchange(ProblemFile& file, ProductividadGlobalFields& f);  // guardar and abrir

}  // namespace vorel::productivity
