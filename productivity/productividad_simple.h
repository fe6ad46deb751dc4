// Partial productivity: the output of one productive factor over two years,
// and the rate at which it changed.
#pragma once

#include <string>

#include "frame/model.h"

namespace vorel::productivity {

// The entry screen Productividad_Simple: every number lives as text.
struct ProductividadSimpleFields {
  std::string Titulo1 = "Problema 1";
  std::string Anio0, Anio1;              // the names of the two years
  std::string Factores0, Factores1;      // productive factors used each year
  std::string Produccion0, Produccion1;  // output of each year
};

// The solution screen's results, in single precision.
struct ProductividadSimpleResults {
  float P0 = 0, P1 = 0, Tasa = 0;
};

// Resolver: the first failure, or none. An empty field has its own message;
// a field that is not a number, or not above 0, or above 999999999, is not
// valid, so that no productivity divides by zero.
Messages check(const ProductividadSimpleFields& f);
ProductividadSimpleResults solve(const ProductividadSimpleFields& f);
Report report(const ProductividadSimpleFields& f, const ProductividadSimpleResults& r);
Report printout(const ProductividadSimpleFields& f, const ProductividadSimpleResults& r);
Pages solveAndReport(ProductividadSimpleFields& f);
void exchange(ProblemFile& file, ProductividadSimpleFields& f);  // guardar and abrir
void nuevo(ProductividadSimpleFields& f);

}  // namespace vorel::productivity
