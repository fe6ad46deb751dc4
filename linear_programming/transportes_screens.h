// The transportation problem's screens, drawn from their description
// (linear_programming/transportes_form.h).
#pragma once

namespace vorel::linear_programming {

void registerTransportesScreens();

}  // namespace vorel::linear_programming
