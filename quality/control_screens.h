// The screens of quality control, drawn from their descriptions
// (quality/control_forms.h): each entry with its table of samples, and the
// chart screens, whose activations and Recalcular take the samples outside
// the limits out of the entry screen itself.
#pragma once

namespace vorel::quality {

void registerVariablesScreens();
void registerAtributosScreens();
void registerDefectosScreens();

}  // namespace vorel::quality
