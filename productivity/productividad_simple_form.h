// The screens of partial productivity as data: Productividad_Simple, the two
// years side by side, and its solution Productividad_Simple_Solucion.
#pragma once

#include "frame/form.h"
#include "productivity/productividad_simple.h"

namespace vorel::productivity {

const Form<ProductividadSimpleFields>& productividadSimpleForm();

}  // namespace vorel::productivity
