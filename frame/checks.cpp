#include "frame/checks.h"

#include "frame/arith.h"

namespace vorel {

Messages firstFailure(const std::vector<FieldCheck>& checks) {
  std::vector<bool> numeric;
  for (const FieldCheck& c : checks) numeric.push_back(IsNumeric(c.text));
  for (std::size_t i = 0; i < checks.size(); ++i) {
    const FieldCheck& c = checks[i];
    if (!numeric[i]) return {{c.message, ""}};
    const double value = Val(c.text);
    if (value <= 0 || value > c.upper) return {{c.message + c.range, ""}};
  }
  return {};
}

Messages everyBadCell(const std::vector<CellCheck>& cells) {
  Messages messages;
  for (const CellCheck& c : cells) {
    if (!IsNumeric(c.text)) {
      messages.push_back({c.notNumeric, c.focus});
    } else {
      const double value = Val(c.text);
      if (value < -999999999 || value > 999999999) messages.push_back({c.outOfRange, c.focus});
    }
  }
  return messages;
}

std::string element(const std::string& array, int index) {
  return array + "(" + std::to_string(index) + ")";
}

}  // namespace vorel
