// The property-list writer on any parsed XML document.
//
// Must hold: the writer answers for every tree libxml2 builds; a non-empty
// answer is a whole property list (declaration first, "</plist>" last) and
// the byte form is the same text.
#include <libxml/parser.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "FuzzCheck.h"
#include "formats/PListUtility.h"

namespace {

struct Document {
  explicit Document(xmlDoc* d) : doc(d) {}
  ~Document() {
    if (doc) xmlFreeDoc(doc);
  }
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  xmlDoc* doc;
};

void silence(void*, const char*, ...) {}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  xmlSetGenericErrorFunc(nullptr, silence);
  // No network and no entity expansion: the writer sees the tree as parsed.
  const Document parsed(xmlReadMemory(reinterpret_cast<const char*>(data), static_cast<int>(size), "fuzz.plist",
                                      nullptr, XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
  if (!parsed.doc) return 0;
  const std::string text = PListUtility::XMLStringForPList(parsed.doc);
  const auto bytes = PListUtility::XMLDataForPList(parsed.doc);
  if (text.empty()) {
    FUZZ_CHECK(!bytes.has_value());
    return 0;
  }
  FUZZ_CHECK(std::string_view(text).starts_with("<?xml"));
  FUZZ_CHECK(std::string_view(text).find("</plist>") != std::string_view::npos);
  FUZZ_CHECK(bytes && std::string(bytes->begin(), bytes->end()) == text);
  return 0;
}
