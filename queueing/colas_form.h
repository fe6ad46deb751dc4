// The queueing screens as data: TeoriaColas, where the parameters of one
// queue are typed, and TeoriaColas_Solucion, the report of the model they
// choose.
#pragma once

#include "frame/form.h"
#include "queueing/colas.h"

namespace vorel::queueing {

const Form<ColasFields>& colasForm();

}  // namespace vorel::queueing
