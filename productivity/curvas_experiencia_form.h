// The screens of experience curves as data: C_Experiencia, where the learning
// rate and the units are typed, and its solution C_Experiencia_Sol with the
// chart of the time of each unit.
#pragma once

#include "frame/form.h"
#include "productivity/curvas_experiencia.h"

namespace vorel::productivity {

const Form<ExperienciaFields>& experienciaForm();

}  // namespace vorel::productivity
