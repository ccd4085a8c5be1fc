#pragma once
// Writes a parsed property-list document back as text with tab indentation.
//
// The writer knows only dict, array, key, string, true and false: any other
// element (integer, real, date, data, ...) is left out, and the tabs already
// written for it stay and run into the next line. Texts are written as they
// stand, without escaping. Property lists this writer reads back are made of
// the kinds it knows, so the losses are accepted rather than guessed at.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <libxml/tree.h>

namespace PListUtility {

// The document as property-list text: XML declaration, DOCTYPE, the root with
// its first attribute, its children, and "</plist>". Empty text when the
// document has no DTD, no root, or a root without attributes.
std::string XMLStringForPList(const xmlDoc* document);

// That text as UTF-8 bytes; nullopt when it is empty.
std::optional<std::vector<std::uint8_t>> XMLDataForPList(const xmlDoc* document);

// The text of `children` at indentation `level` (tabs).
std::string pXMLStringForPList(std::span<const xmlNode* const> children, unsigned level);

}  // namespace PListUtility
