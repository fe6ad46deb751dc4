// The two validation families that Resolver uses.
#pragma once

#include <string>
#include <vector>

#include "frame/model.h"

namespace vorel {

// Field by field, first failure ends: every field's numeric state is taken
// first; then, in order, a field that is not numeric gives `message`, and one
// whose Val is not above 0 or is above `upper` gives `message + range`.
struct FieldCheck {
  const std::string& text;
  double upper;
  std::string message;
  std::string range;
};
Messages firstFailure(const std::vector<FieldCheck>& checks);

// Table by table, every bad cell told: a cell that is not numeric gives
// `notNumeric`, one whose Val lies outside -999999999..999999999 gives
// `outOfRange`; each message takes focus to its cell.
struct CellCheck {
  const std::string& text;
  std::string focus;  // "X1(0)"
  std::string notNumeric;
  std::string outOfRange;
};
Messages everyBadCell(const std::vector<CellCheck>& cells);

// The name of an element of a control array, as focus and object names use it.
std::string element(const std::string& array, int index);

}  // namespace vorel
