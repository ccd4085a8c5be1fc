#include "formats/OrbNSXMLElementUtility.h"

#include <string>

namespace OrbNSXMLElementUtility {

std::vector<const xmlNode*> children(const xmlNode* node) {
  std::vector<const xmlNode*> out;
  if (!node) return out;
  for (const xmlNode* child = node->children; child; child = child->next) {
    if (child->type == XML_DTD_NODE) continue;
    if (child->type == XML_TEXT_NODE && xmlIsBlankNode(child)) continue;
    out.push_back(child);
  }
  return out;
}

std::string_view qualifiedName(const xmlNode* node, std::string& storage) {
  if (!node || !node->name || node->type == XML_TEXT_NODE || node->type == XML_COMMENT_NODE) return {};
  const auto* name = reinterpret_cast<const char*>(node->name);
  if (!node->ns || !node->ns->prefix) return name;
  storage = reinterpret_cast<const char*>(node->ns->prefix);
  storage += ':';
  storage += name;
  return storage;
}

const xmlNode* orb_childNodeWithName(const xmlNode* element, std::string_view name) {
  std::string storage;
  for (const xmlNode* child : children(element))
    if (qualifiedName(child, storage) == name) return child;
  return nullptr;
}

std::vector<const xmlNode*> orb_childrenNodeWithName(const xmlNode* element, std::string_view name) {
  std::vector<const xmlNode*> out;
  std::string storage;
  for (const xmlNode* child : children(element))
    if (qualifiedName(child, storage) == name) out.push_back(child);
  return out;
}

}  // namespace OrbNSXMLElementUtility
