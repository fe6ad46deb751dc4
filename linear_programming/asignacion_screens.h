// The assignment problem's screens, drawn from their description
// (linear_programming/asignacion_form.h).
#pragma once

namespace vorel::linear_programming {

void registerAsignacionScreens();

}  // namespace vorel::linear_programming
