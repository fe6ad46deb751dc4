#include "inventory/pedido.h"

#include "frame/arith.h"

namespace vorel::inventory {

FieldCheck rango(const std::string& texto, const CampoComun& campo) {
  return {texto, campo.tope, campo.mensaje, campo.rango};
}

Messages primerFallo(const std::vector<Prueba>& pruebas) {
  for (const Prueba& p : pruebas)
    if (p.falla()) return {{p.mensaje, ""}};
  return {};
}

void positivo(std::vector<Prueba>& pruebas, const std::string& texto, double tope,
              const std::string& mensaje, const std::string& rango) {
  pruebas.push_back({[&texto] { return !IsNumeric(texto) || Val(texto) <= 0; }, mensaje});
  pruebas.push_back({[&texto, tope] { return Val(texto) > tope; }, mensaje + rango});
}

void positivo(std::vector<Prueba>& pruebas, const std::string& texto, const CampoComun& campo) {
  positivo(pruebas, texto, campo.tope, campo.mensaje, campo.rango);
}

void regla(Report& out) { out.line(Z, kRule + " "); }

void lineasCostes(Report& out, const std::string& D, const std::string& E, const std::string& A) {
  out.line(Z, "Demanda anual:", Z, Z, D, " unidades");
  out.line(Z, "Coste de emisión por pedido:", Z, E, " u.m.");
  out.line(Z, "Coste de almacenamiento por unidad y año:", A, " u.m.");
}

void lineasSuministro(Report& out, const std::string& TS, const std::string& P) {
  out.line(Z, "Tiempo de suministro (días):", Z, Z, TS, " días");
  out.line(Z, "Coste unitario:", Z, Z, P, " u.m.");
}

void lineaPedidosAlAño(Report& out, float n) {
  out.line(Z, "Número de pedidos al año (n):", Z, Str(n));
}

void lineaReaprovisionamiento(Report& out, float TR) {
  out.line(Z, "Tiempo de Reaprovisionamiento (TR):", Z, Str(TR), " días");
}

}  // namespace vorel::inventory
