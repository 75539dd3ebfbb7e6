#include "support/fakes.h"

#include "store/schema.h"
#include "store/store_file.h"

namespace veroxia::testing {

TempStore::TempStore() : TempStore(true) {}

TempStore::TempStore(bool create) {
  vars.AppDir = dir_.path();
  if (create) CreateStore(Path(), StorePassword());
}

QString TempStore::Path() const { return StorePath(dir_.path()); }

Database& TempStore::Open() {
  if (!vars.StoreConnection) {
    vars.StoreConnection = Database::Open(Path(), StorePassword());
    vars.StoreOpen = true;
  }
  return *vars.StoreConnection;
}

}  // namespace veroxia::testing
