// Property-list text from a parsed document, and child lookups by name.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "formats/OrbNSXMLElementUtility.h"
#include "formats/PListUtility.h"

namespace {

using DocPtr = std::unique_ptr<xmlDoc, void (*)(xmlDoc*)>;

DocPtr parse(const std::string& xml) {
  // Blank text between elements is dropped, as the writer expects.
  return DocPtr(xmlReadMemory(xml.data(), static_cast<int>(xml.size()), nullptr, nullptr, XML_PARSE_NOBLANKS | XML_PARSE_NONET),
                xmlFreeDoc);
}

const std::string kHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
const std::string kDoctype =
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n";

// Elements the writer does not know leave their tabs behind.
TEST(PListText, DocumentWithDictKeyAndString) {
  const auto doc = parse(kHeader + kDoctype +
                         "<plist version=\"1.0\" extra=\"dropped\"><dict><key>Name</key><string>a &lt; b</string>"
                         "<key>On</key><true/><array><false/></array><key>n</key><integer>5</integer></dict></plist>");
  ASSERT_TRUE(doc);
  EXPECT_EQ(PListUtility::XMLStringForPList(doc.get()),
            kHeader + kDoctype +
                "<plist version=\"1.0\">\n<dict>\n\t<key>Name</key>\n\t<string>a < b</string>\n\t<key>On</key>\n"
                "\t<true/>\n\t<array>\n\t\t<false/>\n\t</array>\n\t<key>n</key>\n\t</dict>\n</plist>");
}

TEST(PListText, EmptyWithoutDTDOrRootAttributes) {
  const auto noDTD = parse(kHeader + "<plist version=\"1.0\"><dict/></plist>");
  const auto noAttributes = parse(kHeader + kDoctype + "<plist><dict/></plist>");
  EXPECT_EQ(PListUtility::XMLStringForPList(noDTD.get()) + PListUtility::XMLStringForPList(noAttributes.get()) +
                PListUtility::XMLStringForPList(nullptr), "");
  EXPECT_FALSE(PListUtility::XMLDataForPList(noDTD.get()));
  // The closing tag is always </plist>, whatever the root is called.
  const auto other = parse(kHeader + "<!DOCTYPE root>\n<root a=\"1\"/>");
  EXPECT_EQ(PListUtility::XMLStringForPList(other.get()), kHeader + "<!DOCTYPE root>\n<root a=\"1\">\n</plist>");
}

TEST(XMLChildren, LookupByQualifiedName) {
  const auto doc = parse(
      "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\" xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
      "<rdf:RDF><rdf:Description n=\"1\"/><rdf:Other/><rdf:Description n=\"2\"/></rdf:RDF></x:xmpmeta>");
  const xmlNode* root = xmlDocGetRootElement(doc.get());
  const xmlNode* rdf = OrbNSXMLElementUtility::orb_childNodeWithName(root, "rdf:RDF");
  ASSERT_TRUE(rdf);
  const auto descriptions = OrbNSXMLElementUtility::orb_childrenNodeWithName(rdf, "rdf:Description");
  ASSERT_EQ(descriptions.size(), 2u);
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(descriptions[1]->properties->children->content)), "2");
  EXPECT_EQ(OrbNSXMLElementUtility::orb_childNodeWithName(rdf, "Description"), nullptr);
  EXPECT_TRUE(OrbNSXMLElementUtility::orb_childrenNodeWithName(rdf, "rdf:Missing").empty());
}

}  // namespace
