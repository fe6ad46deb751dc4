// The material requirements screens as data: GI_MRP, its selectors, the
// article table, the master production schedule and a frame of scheduled
// receipts per article; and GI_MRP_Solucion1, the records laid out in cells.
#pragma once

#include "frame/form.h"
#include "inventory/mrp.h"

namespace vorel::inventory {

// What the solution screen computed when it was loaded (see
// MrpFields::solutionLoaded): the records and their pages.
class MrpLoadedSolution {
 public:
  explicit MrpLoadedSolution(const MrpFields& f)
      : records(solve(f)), pages{report(f, records), printout(f, records)} {}
  const MrpRecords records;
  const Pages pages;
};

const Form<MrpFields>& mrpForm();

// The names of the record rows' labels and cells: "NecesidadesBrutas" and
// "NB" for the gross requirements, ... "LanzamientoP" and "LP".
inline constexpr const char* kMrpRowNames[5] = {"NecesidadesBrutas", "RProgramadas",
                                                "InventarioDisp", "NecesidadesN", "LanzamientoP"};
inline constexpr const char* kMrpCellPrefixes[5] = {"NB", "RP", "ID", "NN", "LP"};
inline constexpr const char* kMrpRowCaptions[5] = {"Necesidades Brutas", "R. Programadas",
                                                   "Inventario Disp.", "Necesidades Netas",
                                                   "Lanzamiento Pedido"};

}  // namespace vorel::inventory
