// The index of an array element given as a number, as the layout models use
// the departments and activities typed in their cells.
#pragma once

#include "frame/arith.h"

namespace vorel::facility {

// A Double used as an array index is converted to a Long: rounded half to
// even, an overflow beyond 32 bits; an index outside first..last is error 9.
long indice(double x, long first, long last);

}  // namespace vorel::facility
