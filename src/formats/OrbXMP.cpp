#include "formats/OrbXMP.h"

namespace OrbXMP {

const Object* children(const Object& dictionary) {
  const auto it = dictionary.dictionary.find("children");
  return it == dictionary.dictionary.end() ? nullptr : &it->second;
}

}  // namespace OrbXMP
