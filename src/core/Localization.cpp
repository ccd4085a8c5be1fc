#include "core/Localization.h"

#include <memory>
#include <mutex>
#include <shared_mutex>

namespace Localization {
namespace {

struct Hook {
  std::shared_mutex mutex;
  Lookup lookup;
};

Hook& hook() {
  static Hook instance;
  return instance;
}

}  // namespace

std::string localizedString(std::string_view table, std::string_view key) {
  Hook& h = hook();
  std::shared_lock lock(h.mutex);
  if (h.lookup) {
    if (auto text = h.lookup(table, key)) return *text;
  }
  return std::string(key);
}

void setLookup(Lookup lookup) {
  Hook& h = hook();
  std::unique_lock lock(h.mutex);
  h.lookup = std::move(lookup);
}

}  // namespace Localization
