#include "layout/indice.h"

#include <cmath>

namespace vorel::facility {

long indice(double x, long first, long last) {
  if (!std::isfinite(x) || x < -2147483648.5 || x >= 2147483647.5) raise(err::Overflow);
  const long i = static_cast<long>(std::nearbyint(x));
  if (i < first || i > last) raise(err::Subscript);
  return i;
}

}  // namespace vorel::facility
