#pragma once
// Child lookups on a libxml2 element by name.
//
// Names are compared in their qualified form ("rdf:Description"), as XMP
// trees are written. Whitespace-only text between elements is not a child.

#include <string_view>
#include <vector>

#include <libxml/tree.h>

namespace OrbNSXMLElementUtility {

// The node's children in document order, without whitespace-only text.
std::vector<const xmlNode*> children(const xmlNode* node);

// "prefix:name" for a namespaced node, else its name; empty for none.
std::string_view qualifiedName(const xmlNode* node, std::string& storage);

// The first child named `name`, or null.
const xmlNode* orb_childNodeWithName(const xmlNode* element, std::string_view name);

// Every child named `name`, in document order.
std::vector<const xmlNode*> orb_childrenNodeWithName(const xmlNode* element, std::string_view name);

}  // namespace OrbNSXMLElementUtility
