// Total productivity's screens, drawn from their description.
#pragma once

namespace vorel::productivity {

void registerProductividadGlobalScreens();

}  // namespace vorel::productivity
