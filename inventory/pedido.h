// What the economic order quantity models share: the words with which they
// check their common fields, the way the models with gradual supply, with
// shortages and with discounts run those checks, and the data lines that the
// first two print alike.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "frame/checks.h"
#include "frame/model.h"

namespace vorel::inventory {

// A field that the order-quantity models check with the same words: its
// message, the range that its second message adds, and its upper bound.
struct CampoComun {
  const char* mensaje;
  const char* rango;
  double tope;
};

namespace campos {
inline constexpr CampoComun D{"Valor de la demanda (D) no válido. Introduce un nuevo valor",
                              " entre 0 y 999.999.999", 999999999};
inline constexpr CampoComun E{"Valor del coste de emisión (E) no válido. Introduce un nuevo valor",
                              " entre 0 y 999.999.999", 999999999};
inline constexpr CampoComun A{
    "Valor del coste de almacenamiento (A) no válido. Introduce un nuevo valor",
    " entre 0 y 999.999.999", 999999999};
inline constexpr CampoComun TS{
    "Valor del Tiempo de Suministro (Ts) no válido. Introduce un nuevo valor", " entre 0 y 999",
    999};
inline constexpr CampoComun dias{"Valor del Período de Gestión no válido. Introduce un nuevo valor",
                                 " entre 0 y 365", 365};
inline constexpr CampoComun P{"Valor del Coste unitario no válido. Introduce un nuevo valor",
                              " entre 0 y 999.999.999", 999999999};
}  // namespace campos

// The simple model's check of a field: the frame's first-failure family, in
// which 0 gets the message with its range.
FieldCheck rango(const std::string& texto, const CampoComun& campo);

// One check of Resolver: whether it fails, tried only when every check
// before it passed, and the message it then shows.
struct Prueba {
  std::function<bool()> falla;
  std::string mensaje;
};
// The message of the first check that fails, without focus; none when all pass.
Messages primerFallo(const std::vector<Prueba>& pruebas);

// The two checks of a field in the models with gradual supply, shortages and
// discounts: a text that is not numeric or whose Val is not above 0 gets the
// message, a Val above `tope` the message with `rango`.
void positivo(std::vector<Prueba>& pruebas, const std::string& texto, double tope,
              const std::string& mensaje, const std::string& rango);
void positivo(std::vector<Prueba>& pruebas, const std::string& texto, const CampoComun& campo);

// The rule of these reports, with one blank after its underscores.
void regla(Report& out);

// Data and result lines that the models with gradual supply and with
// shortages print alike; the fields as typed, the results through Str.
void lineasCostes(Report& out, const std::string& D, const std::string& E, const std::string& A);
void lineasSuministro(Report& out, const std::string& TS, const std::string& P);
void lineaPedidosAlAño(Report& out, float n);
void lineaReaprovisionamiento(Report& out, float TR);

}  // namespace vorel::inventory
