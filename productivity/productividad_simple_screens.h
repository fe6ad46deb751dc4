// Partial productivity's screens, drawn from their descriptions
// (productividad_simple_form.h).
#pragma once

namespace vorel::productivity {

void registerProductividadSimpleScreens();

}  // namespace vorel::productivity
