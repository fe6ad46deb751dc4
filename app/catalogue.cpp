// The catalogue: every model's own entry, in the order of models.def.
#include "frame/catalogue.h"

#define VOREL_MODEL(subsystem, name, screens) \
  namespace vorel::subsystem {                \
  CatalogueEntry catalogue##name();           \
  }
#include "app/models.def"
#undef VOREL_MODEL

namespace vorel {

const std::vector<CatalogueEntry>& catalogue() {
  static const std::vector<CatalogueEntry> all = {
#define VOREL_MODEL(subsystem, name, screens) subsystem::catalogue##name(),
#include "app/models.def"
#undef VOREL_MODEL
  };
  return all;
}

const CatalogueEntry* findModel(const std::string& idOrScreen) {
  for (const CatalogueEntry& m : catalogue())
    if (m.id == idOrScreen || m.screen == idOrScreen) return &m;
  return nullptr;
}

std::unique_ptr<EntryForm> newEntryForm(const std::string& screen) {
  const CatalogueEntry* model = findModel(screen);
  return model && model->form && model->screen == screen ? model->form() : nullptr;
}

}  // namespace vorel
