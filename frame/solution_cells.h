// A solution whose screen shows its results in cells of its own, laid out by
// the controls of its description (the records of material requirements),
// while its report stays at hand for a copy: what each of them shows.
#pragma once

#include <functional>
#include <string>

namespace vorel {

class SolutionCells {
 public:
  virtual ~SolutionCells() = default;
  // Each control of the solution screen that the solution fills: its name,
  // its text and whether it shows.
  virtual void eachCell(const std::function<void(const std::string& control,
                                                 const std::string& text, bool visible)>& visit)
      const = 0;
};

}  // namespace vorel
