// The screens of total productivity as data: Productividad_Global, where the
// inputs and the outputs are typed row by row into parallel lists, and its
// solution Productividad_Global_Solucion.
#pragma once

#include "frame/form.h"
#include "productivity/productividad_global.h"

namespace vorel::productivity {

const Form<ProductividadGlobalFields>& productividadGlobalForm();

}  // namespace vorel::productivity
