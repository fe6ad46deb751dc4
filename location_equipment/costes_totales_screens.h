// The total cost screens: Select_C_Totales, where two or three options are
// typed, and its solutions Select_C_Totales_Sol (two options) and
// Select_C_Totales_Sol1 (three), each with the chart of the total cost lines;
// all drawn from their descriptions.
#pragma once

namespace vorel::location_equipment {

void registerCostesTotalesScreens();

}  // namespace vorel::location_equipment
