// The queueing screens, drawn from their description (queueing/colas_form.h).
#pragma once

namespace vorel::queueing {

void registerColasScreens();

}  // namespace vorel::queueing
