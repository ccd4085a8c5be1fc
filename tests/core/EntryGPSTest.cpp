#include <gtest/gtest.h>

#include "CatalogueTestEntries.h"
#include "core/OrbIFDTimeStamp.h"
#include "core/OrbTiff.h"

using cattest::rationals;
using cattest::text;

namespace {

constexpr std::int8_t B = kOrbBigEndian, L = kOrbLittleEndian;

TEST(EntryGPS, DegreesFromThreeRationals) {
  // Beyond 90 a latitude leaves the outputs untouched, longitudes go to 180;
  // minutes of 30/0 are skipped; missing rationals read as 0/0; the altitude
  // is no position. split: whether getGPSDegree writes its outputs.
  struct Case { std::uint16_t tag; std::initializer_list<std::uint32_t> r; double degrees; bool split;
                std::uint32_t whole; double fraction; };
  const Case cases[] = {
      {2, {35, 1, 30, 1, 0, 1}, 35.5, true, 35, 0.5}, {2, {91, 1, 0, 1, 0, 1}, 91, false, 0, 0},
      {20, {89, 1, 59, 1, 3600, 60}, 89 + 59 / 60.0 + 1 / 60.0, true, 90, 0}, {4, {91, 1, 0, 1, 0, 1}, 91, true, 91, 0},
      {22, {180, 1, 0, 1, 1, 100}, 180 + 0.01 / 3600, false, 0, 0}, {2, {35, 1, 30, 0, 36, 1}, 35.01, true, 35, 0.01},
      {2, {35, 1}, 35, true, 35, 0}, {6, {35, 1, 30, 1, 0, 1}, 0, false, 0, 0}};
  for (const std::int8_t endian : {B, L})
    for (const Case& c : cases) {
      SCOPED_TRACE(testing::Message() << "tag " << c.tag << " endian " << int(endian) << " " << c.degrees);
      const OrbIFDEntry e = rationals(endian, c.tag, kGPSIFDID, c.r);
      EXPECT_NEAR(e.GPSDegree(), c.degrees, 1e-9);
      std::uint32_t whole = 7777;
      double fraction = -1;
      e.getGPSDegree(&whole, &fraction);
      EXPECT_EQ(whole, c.split ? c.whole : 7777u);
      EXPECT_NEAR(fraction, c.split ? c.fraction : -1, 1e-9);
    }
}

TEST(EntryGPS, TimeStamp) {
  const OrbIFDEntry e = rationals(L, 7, kGPSIFDID, {13, 1, 5, 1, 725, 100});
  EXPECT_DOUBLE_EQ(e.GPSTimeStamp(), 47107.25);
  const auto stamp = OrbIFDTimeStamp::timeStampWithEntry(&e);
  EXPECT_EQ(std::tuple(stamp->hour(), stamp->minute(), *stamp->second(), stamp->subSecond()),
            std::tuple(13u, 5u, 7.25f, 25));
  std::string h, m, s;
  e.GPSGetTimeStampHour(&h, &m, &s);
  EXPECT_EQ(h + "|" + m + "|" + s, "13|05|07.25");
  // Only a GPSTimeStamp with exactly three rationals is a time of day.
  OrbIFDEntry two = rationals(B, 7, kGPSIFDID, {13, 1, 5, 1, 725, 100});
  two.setDataCount(2);
  EXPECT_EQ(two.GPSTimeStamp(), 0);
  EXPECT_FALSE(OrbIFDTimeStamp::timeStampWithEntry(nullptr));
  // Absent parts count as 0; hundredths that round up to a whole second show 00.
  OrbIFDTimeStamp partial;
  partial.setHour(1);
  partial.setSecond(59.999f);
  EXPECT_EQ(partial.stringValue(), "01:00:59.00");
  // An altitude reference is 0 or 1; anything else is ignored.
  auto ref = OrbIFDEntry::initWithEndian(L, 5, kGPSIFDID);
  ref->setGPSAltitudeRef(1);
  ref->setGPSAltitudeRef(4);
  EXPECT_EQ(ref->dataPtr()[0], 1);
}

TEST(EntryGPS, PositionsEqualToTenDecimals) {
  const auto lat = [](std::int8_t endian, std::uint16_t tag, std::initializer_list<std::uint32_t> r) {
    return rationals(endian, tag, kGPSIFDID, r);
  };
  const OrbIFDEntry a = lat(B, 2, {35, 1, 30, 1, 0, 1});
  EXPECT_TRUE(a.isEqualToValue(lat(B, 2, {71, 2, 0, 1, 0, 1})));
  // 1e-11 degrees apart: the same to ten decimals; 1e-9 apart: different.
  EXPECT_TRUE(a.isEqualToValue(lat(B, 2, {35, 1, 30, 1, 36, 1000000000})));
  EXPECT_FALSE(a.isEqualToValue(lat(B, 2, {35, 1, 30, 1, 36, 10000000})));
  EXPECT_FALSE(a.isEqualToValue(lat(B, 4, {35, 1, 30, 1, 0, 1})));
  // Other entries compare their bytes.
  EXPECT_FALSE(lat(B, 6, {10, 1}).isEqualToEntryByGPSDegree(lat(B, 6, {20, 2})));
}

TEST(EntryGPS, PositionOfAStructure) {
  const auto tiffWith = [&](const char* latRef, const char* lonRef, bool destination = false) {
    const std::uint16_t base = destination ? 19 : 1;
    OrbTiff tiff;
    tiff.setEntry(rationals(L, base + 1, kGPSIFDID, {35, 1, 30, 1, 0, 1}));
    tiff.setEntry(rationals(L, base + 3, kGPSIFDID, {139, 1, 45, 1, 0, 1}));
    if (latRef) tiff.setEntry(text(L, base, kGPSIFDID, latRef));
    if (lonRef) tiff.setEntry(text(L, base + 2, kGPSIFDID, lonRef));
    return tiff;
  };
  const std::tuple<const char*, const char*, OrbLocationCoordinate> cases[] = {
      {"S", "W", {-35.5, -139.75}}, {"s", "w", {35.5, 139.75}},  // only upper-case letters turn the sign
      {"S", nullptr, kOrbLocationCoordinateInvalid}};
  for (const auto& [latRef, lonRef, expected] : cases) {
    const OrbTiff tiff = tiffWith(latRef, lonRef);
    EXPECT_EQ(tiff.gpsLocationCoordinate(false), expected) << latRef;
    double latitude = 9, longitude = 9;
    EXPECT_EQ(tiff.getLatitude(&latitude, &longitude), lonRef != nullptr);
    EXPECT_EQ((OrbLocationCoordinate{latitude, longitude}), (lonRef ? expected : OrbLocationCoordinate{9, 9}));
  }
  EXPECT_FALSE(isValidLocationCoordinate(kOrbLocationCoordinateInvalid));
  EXPECT_EQ(tiffWith("N", "W", true).gpsLocationCoordinate(true), (OrbLocationCoordinate{35.5, -139.75}));
  EXPECT_EQ(tiffWith("N", "W", true).gpsLocationCoordinate(false), kOrbLocationCoordinateInvalid);
}

}  // namespace
