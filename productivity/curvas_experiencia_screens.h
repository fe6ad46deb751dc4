// The experience curve screens, drawn from their description.
#pragma once

namespace vorel::productivity {

void registerExperienciaScreens();

}  // namespace vorel::productivity
