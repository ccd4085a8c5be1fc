#include "documents/LumNotificationCenter.h"

LumNotificationCenter& LumNotificationCenter::defaultCenter() {
  static LumNotificationCenter center;
  return center;
}

void LumNotificationCenter::post(const QString& name, const void* object) { emit posted(name, object); }
