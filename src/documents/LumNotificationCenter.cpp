#include "documents/LumNotificationCenter.h"

LumNotificationCenter& LumNotificationCenter::defaultCenter() {
  static LumNotificationCenter& center = [] () -> LumNotificationCenter& {
    // Receivers on other threads (queued connections) need the argument type known.
    qRegisterMetaType<const void*>("const void*");
    static LumNotificationCenter instance;
    return instance;
  }();
  return center;
}

void LumNotificationCenter::post(const QString& name, const void* object) { emit posted(name, object); }
