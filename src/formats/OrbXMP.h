#pragma once
// XMP data held as a tree of dictionaries, arrays and texts, and the one
// accessor the records need on it.

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace OrbXMP {

// A node of the tree: a text, an array of nodes or a dictionary of nodes.
struct Object {
  std::string text;
  std::vector<Object> array;
  std::map<std::string, Object, std::less<>> dictionary;
};

// The value stored under the key "children", or null.
const Object* children(const Object& dictionary);

}  // namespace OrbXMP
