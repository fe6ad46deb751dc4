// The simplex method's screens, drawn from their description
// (linear_programming/simplex_form.h).
#pragma once

namespace vorel::linear_programming {

void registerSimplexScreens();

}  // namespace vorel::linear_programming
