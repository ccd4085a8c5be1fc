#include "core/TagCatalogue.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/CodedWords.h"
#include "core/IFDItemID.h"

namespace cat = orb::catalogue;
namespace cw = orb::codedwords;

namespace {

constexpr std::uint32_t T = kTIFFIFDID, E = kExifIFDID, G = kGPSIFDID;

TEST(TagCatalogue, TitlesTypesAndVersions) {
  const std::tuple<std::uint16_t, std::uint32_t, std::uint32_t, const char*, std::uint16_t, std::uint32_t> cases[] = {
      {0x8827, E, 221, "ISO Speed Ratings", kOrbTypeShort, 100}, {0x8827, E, 230, "Photographic Sensitivity", 3, 100},
      {0x8827, T, 230, "(0x8827)", 0, 0}, {0x800D, T, 0, "Image ID", 0, 0},  // titled, untyped
      {0x0214, T, 0, "Reference Black White", kOrbTypeLong, 0},             // LONG on purpose
      {27, G, 0, "GPS Processing Method", kOrbTypeUndefined, 2200}, {32, G, 0, "(0x20)", 0, 0}};
  for (const auto& [tag, ifd, version, title, type, introduced] : cases) {
    EXPECT_EQ(cat::titleWithTag(tag, ifd, version), title);
    EXPECT_EQ(cat::typeWithIFDTag(tag, ifd), type) << title;
    EXPECT_EQ(cat::availableVersionWithIFDTag(tag, ifd), introduced) << title;
  }
}

TEST(TagCatalogue, VersionCompatibilityAndPlaces) {
  const std::tuple<std::uint32_t, std::uint16_t, std::uint32_t, std::optional<std::int64_t>, bool> cases[] = {
      {221, 42036, E, {}, false}, {230, 42036, E, {}, true}, {230, 37893, E, {}, false},
      {100, 41985, E, {}, true}, {2200, 31, G, {}, false}, {0, 42044, T, {}, true},  // 41985: always, though from 2.2
      // LightSource depends on its value.
      {221, 37384, E, 16, false}, {230, 37384, E, 16, true}, {210, 37384, E, 4, false}, {210, 37384, E, 5, true}};
  for (const auto& [version, tag, ifd, light, compatible] : cases)
    EXPECT_EQ(cat::isCompatibleWithVersion(version, tag, ifd, light), compatible) << tag << " v" << version;
  const std::tuple<std::uint16_t, std::uint32_t, bool> places[] = {
      {0x010F, E, false}, {0x9003, T, false}, {0x1234, T, true}, {0x882A, E, true}, {0x010F, G, true}};
  for (const auto& [tag, ifd, correct] : places) EXPECT_EQ(cat::isCorrectTag(tag, ifd), correct) << tag << " in " << ifd;
}

TEST(TagCatalogue, ImageUniqueID) {
  const std::pair<const char*, bool> cases[] = {{"0123456789abcdefABCDEF0123456789", true},
                                                {"0123456789abcdefABCDEF012345678G", false}, {"", false}};
  for (const auto& [text, legal] : cases) {
    LumError error{"untouched", 1, {}};
    EXPECT_EQ(cat::isLegalExifImageUniqueID(std::string_view(text), &error), legal) << text;
    EXPECT_EQ(error, (legal ? LumError{"untouched", 1, {}} : LumError{"OrbStringNumberErrorDomain", -4, {}}));
  }
  LumError error{"untouched", 1, {}};
  EXPECT_FALSE(cat::isLegalExifImageUniqueID(std::nullopt, &error));  // not a text: no error
  EXPECT_EQ(error.domain, "untouched");
}

TEST(CodedWords, WordsAndFallbacks) {
  // Fallbacks: the number, nothing (no absolute unit, or the same words), or
  // a flash value as a whole, never bit by bit; nothing for quantities, tags
  // of another IFD and missing values.
  const std::tuple<std::uint32_t, std::uint16_t, std::vector<std::uint16_t>, std::uint32_t, const char*> cases[] = {
      {T, 274, {6}, 0, "6 Right-Top"}, {T, 274, {0}, 0, "0"}, {T, 296, {1}, 0, ""}, {T, 50741, {2}, 0, ""},
      {E, 37385, {0x59}, 220, "Fired, Auto Mode, Red-eye Reduction Mode"}, {E, 37385, {0x141}, 220, "321"},
      {T, 530, {2, 2}, 0, "YCbCr 4:2:0"}, {T, 530, {4, 2}, 0, "(4 - 2)"},
      // LightSource: some words only from 2.3
      {E, 37384, {16}, 229, "16"}, {E, 37384, {16}, 230, "Warm White Fluorescent"},
      {E, 37384, {13}, 230, "Day White Fluorescent 0230"}, {T, 0x0100, {1}, 0, nullptr}, {E, 274, {1}, 220, nullptr},
      {T, 274, {}, 0, nullptr}};
  for (const auto& [ifd, tag, values, version, word] : cases) {
    const auto got = cw::wordFor(ifd, tag, values, version);
    EXPECT_EQ(got.has_value(), word != nullptr) << tag;
    if (got && word) { EXPECT_EQ(*got, word) << tag; }
  }
}

}  // namespace
