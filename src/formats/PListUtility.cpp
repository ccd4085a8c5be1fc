#include "formats/PListUtility.h"

#include <memory>
#include <string_view>

#include "formats/OrbNSXMLElementUtility.h"

namespace PListUtility {
namespace {

std::string text(const xmlChar* chars) { return chars ? reinterpret_cast<const char*>(chars) : std::string(); }

// The node's text content (every descendant text joined).
std::string stringValue(const xmlNode* node) {
  const std::unique_ptr<xmlChar, void (*)(xmlChar*)> content(xmlNodeGetContent(node),
                                                              [](xmlChar* p) { xmlFree(p); });
  return text(content.get());
}

// name="value", with the characters that cannot stand inside the quotes escaped.
std::string attributeText(const xmlAttr* attribute) {
  std::string out;
  if (attribute->ns && attribute->ns->prefix) out = text(attribute->ns->prefix) + ":";
  out += text(attribute->name) + "=\"";
  for (char ch : stringValue(reinterpret_cast<const xmlNode*>(attribute))) {
    switch (ch) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '"': out += "&quot;"; break;
      default: out += ch;
    }
  }
  return out + "\"";
}

std::string header(const xmlDoc* document) {
  std::string out = "<?xml";
  if (document->version) out += " version=\"" + text(document->version) + "\"";
  if (document->encoding) out += " encoding=\"" + text(document->encoding) + "\"";
  return out + "?>\n";
}

std::string doctype(const xmlDtd* dtd) {
  std::string out = "<!DOCTYPE";
  if (dtd->name) out += " " + text(dtd->name);
  if (dtd->ExternalID) out += " PUBLIC \"" + text(dtd->ExternalID) + "\"";
  if (dtd->SystemID) out += " \"" + text(dtd->SystemID) + "\"";
  return out + ">\n";
}

}  // namespace

std::string XMLStringForPList(const xmlDoc* document) {
  if (!document) return {};
  std::string out = header(document);
  const xmlDtd* dtd = xmlGetIntSubset(document);
  if (!dtd) return {};
  out += doctype(dtd);
  const auto top = OrbNSXMLElementUtility::children(reinterpret_cast<const xmlNode*>(document));
  const xmlNode* root = top.empty() ? nullptr : top.front();
  if (!root || root->type != XML_ELEMENT_NODE || !root->properties) return {};
  std::string storage;
  out += "<" + std::string(OrbNSXMLElementUtility::qualifiedName(root, storage)) + " " +
         attributeText(root->properties) + ">\n";
  const auto children = OrbNSXMLElementUtility::children(root);
  out += pXMLStringForPList(children, 0);
  return out + "</plist>";
}

std::optional<std::vector<std::uint8_t>> XMLDataForPList(const xmlDoc* document) {
  const std::string text = XMLStringForPList(document);
  if (text.empty()) return std::nullopt;
  return std::vector<std::uint8_t>(text.begin(), text.end());
}

std::string pXMLStringForPList(std::span<const xmlNode* const> children, unsigned level) {
  std::string out;
  const std::string tabs(level, '\t');
  std::string storage;
  for (const xmlNode* child : children) {
    out += tabs;  // written before the kind is known, so a skipped element leaves them
    const std::string name(OrbNSXMLElementUtility::qualifiedName(child, storage));
    if (name == "dict" || name == "array") {
      const auto grandChildren = OrbNSXMLElementUtility::children(child);
      out += "<" + name + ">\n" + pXMLStringForPList(grandChildren, level + 1) + tabs + "</" + name + ">\n";
    } else if (name == "key" || name == "string") {
      out += "<" + name + ">" + stringValue(child) + "</" + name + ">\n";
    } else if (name == "true" || name == "false") {
      out += "<" + name + "/>\n";
    }
  }
  return out;
}

}  // namespace PListUtility
