// The material requirements screens as data: GI_MRP, its selectors, the
// article table, the master production schedule and a frame of scheduled
// receipts per article; and GI_MRP_Solucion1, the records laid out in cells.
#pragma once

#include <functional>
#include <string>

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

// What each control of the records on the solution screen shows: its name,
// its text and whether it shows (the rows of the articles in use and, in
// them, the weeks in use).
void eachRecordCell(const MrpRecords& r,
                    const std::function<void(const std::string& control,
                                             const std::string& text, bool visible)>& visit);

// The names of the record rows' labels and cells: "NecesidadesBrutas" and
// "NB" for the gross requirements, ... "LanzamientoP" and "LP".
inline constexpr const char* kMrpRowNames[5] = {"NecesidadesBrutas", "RProgramadas",
                                                "InventarioDisp", "NecesidadesN", "LanzamientoP"};
inline constexpr const char* kMrpCellPrefixes[5] = {"NB", "RP", "ID", "NN", "LP"};
inline constexpr const char* kMrpRowCaptions[5] = {"Necesidades Brutas", "R. Programadas",
                                                   "Inventario Disp.", "Necesidades Netas",
                                                   "Lanzamiento Pedido"};

}  // namespace vorel::inventory
