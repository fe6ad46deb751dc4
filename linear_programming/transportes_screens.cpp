#include "linear_programming/transportes_screens.h"

#include <QLineEdit>

#include "frame/checks.h"
#include "frame/gui/described_screens.h"
#include "linear_programming/transportes_form.h"

namespace vorel::linear_programming {

namespace {

// The entry as described, its supplies and demands in bold type so that they
// stand apart from the costs.
class TransportesEntry : public gui::DescribedEntry<TransportesFields> {
 public:
  TransportesEntry() : DescribedEntry(transportesForm()) { setFields(TransportesFields{}); }

  void setFields(const TransportesFields& f) override {
    DescribedEntry::setFields(f);
    for (int j = 0; j < kTransportesArrays; ++j)
      for (int i = 0; i < kTransportesArrays; ++i)
        if (auto* cell = qobject_cast<QLineEdit*>(control(element("C" + std::to_string(j + 1), i))))
          gui::markTotalCell(cell, celdaDeTotal(f, j, i));
  }
};

}  // namespace

void registerTransportesScreens() {
  const Form<TransportesFields>& form = transportesForm();
  gui::Screens& screens = gui::Screens::instance();
  screens.add(form.entry.name, [] { return new TransportesEntry(); });
  screens.add(form.solution.name, [&form] { return new gui::DescribedSolution<TransportesFields>(form); });
}

}  // namespace vorel::linear_programming
