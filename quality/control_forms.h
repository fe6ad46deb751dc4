// The screens of quality control as data: the entries ControlCal_V,
// ControlCal_AtribP and ControlCal_NDef, each with its table of up to 45
// samples in three blocks of 15 rows, and their chart solution screens, whose
// solutions work on the entry's own fields: the samples outside the limits
// leave the entry, and Recalcular computes again on what is left.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "frame/form.h"
#include "quality/control_atributos.h"
#include "quality/control_defectos.h"
#include "quality/control_variables.h"

namespace vorel::quality {

const Form<VariablesFields>& variablesForm();
const Form<AtributosFields>& atributosForm();
const Form<DefectosFields>& defectosForm();

// The activation of a chart screen on the entry's fields, which it changes
// (also where it ends in a run-time error, with what it took out before).
// Its Recalcular is a command pressed on the solution. `title` heads the
// screen reports of control by variables.
std::unique_ptr<Solution> variablesChart(VariablesFields& f, std::string_view screen,
                                         const std::string& title);
std::unique_ptr<Solution> atributosChart(AtributosFields& f, std::string_view screen);
std::unique_ptr<Solution> defectosChart(DefectosFields& f, std::string_view screen);

}  // namespace vorel::quality
