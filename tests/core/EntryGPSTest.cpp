#include <gtest/gtest.h>

#include <cmath>

#include "CatalogueTestEntries.h"
#include "core/OrbIFDTimeStamp.h"
#include "core/OrbTiff.h"

using cattest::rationals;
using cattest::text;

namespace {

constexpr std::int8_t kEndians[] = {kOrbBigEndian, kOrbLittleEndian};

TEST(EntryGPS, DegreesFromThreeRationals) {
  struct Case {
    std::uint16_t tag;
    std::initializer_list<std::uint32_t> r;
    double degrees;
    bool split;  // whether getGPSDegree writes its outputs
    std::uint32_t whole;
    double fraction;
  };
  const Case cases[] = {
      {2, {35, 1, 30, 1, 0, 1}, 35.5, true, 35, 0.5},
      {2, {91, 1, 0, 1, 0, 1}, 91, false, 0, 0},        // beyond 90: outputs untouched
      {2, {90, 1, 0, 1, 0, 1}, 90, true, 90, 0},
      {20, {89, 1, 59, 1, 3600, 60}, 89 + 59 / 60.0 + 60 / 3600.0, true, 90, 0},
      {4, {91, 1, 0, 1, 0, 1}, 91, true, 91, 0},        // longitudes go to 180
      {22, {180, 1, 0, 1, 1, 100}, 180 + 0.01 / 3600, false, 0, 0},
      {2, {35, 1, 30, 0, 36, 1}, 35.01, true, 35, 0.01},  // minutes 30/0 skipped
      {2, {0, 0, 0, 0, 0, 0}, 0, true, 0, 0},
      {4, {1391, 10, 45, 1, 3030, 100}, 139.1 + 0.75 + 30.3 / 3600, true, 139, 0.85 + 30.3 / 3600},
      {2, {0xFFFFFFFF, 1, 0xFFFFFFFF, 1, 0xFFFFFFFF, 1}, 4294967295.0 + 4294967295.0 / 60 + 4294967295.0 / 3600, false, 0, 0},
  };
  for (const std::int8_t endian : kEndians)
    for (const Case& c : cases) {
      SCOPED_TRACE(testing::Message() << "tag " << c.tag << " endian " << int(endian) << " " << c.degrees);
      const OrbIFDEntry e = rationals(endian, c.tag, kGPSIFDID, c.r);
      EXPECT_NEAR(e.GPSDegree(), c.degrees, 1e-9);
      std::uint32_t whole = 7777;
      double fraction = -1;
      e.getGPSDegree(&whole, &fraction);
      EXPECT_EQ(whole, c.split ? c.whole : 7777u);
      if (c.split) {
        EXPECT_NEAR(fraction, c.fraction, 1e-9);
      } else {
        EXPECT_EQ(fraction, -1);
      }
    }
}

TEST(EntryGPS, OnlyPositionEntriesHaveDegrees) {
  const OrbIFDEntry altitude = rationals(kOrbBigEndian, 6, kGPSIFDID, {35, 1, 30, 1, 0, 1});
  const OrbIFDEntry exif = rationals(kOrbBigEndian, 2, kExifIFDID, {35, 1, 30, 1, 0, 1});
  for (const OrbIFDEntry* e : {&altitude, &exif}) {
    EXPECT_EQ(e->GPSDegree(), 0);
    std::uint32_t whole = 5;
    e->getGPSDegree(&whole, nullptr);
    EXPECT_EQ(whole, 5u);
  }
  // A value with fewer than three rationals: the missing ones read as 0/0 and are skipped.
  const OrbIFDEntry shortValue = rationals(kOrbLittleEndian, 2, kGPSIFDID, {35, 1});
  EXPECT_EQ(shortValue.GPSDegree(), 35);
}

TEST(EntryGPS, TimeStamp) {
  for (const std::int8_t endian : kEndians) {
    const OrbIFDEntry e = rationals(endian, 7, kGPSIFDID, {13, 1, 5, 1, 725, 100});
    EXPECT_DOUBLE_EQ(e.GPSTimeStamp(), 47107.25);
    const auto stamp = OrbIFDTimeStamp::timeStampWithEntry(&e);
    ASSERT_TRUE(stamp);
    EXPECT_EQ(stamp->hour(), 13u);
    EXPECT_EQ(stamp->minute(), 5u);
    EXPECT_FLOAT_EQ(*stamp->second(), 7.25f);
    EXPECT_EQ(stamp->secondWithoutSub(), 7);
    EXPECT_EQ(stamp->subSecond(), 25);
    EXPECT_EQ(stamp->stringValue(), "13:05:07.25");
    EXPECT_EQ(e.stringData(), "13:05:07.25");
    std::string h, m, s;
    e.GPSGetTimeStampHour(&h, &m, &s);
    EXPECT_EQ(h + "|" + m + "|" + s, "13|05|07.25");
  }
  // Only a GPSTimeStamp with exactly three rationals is a time of day.
  OrbIFDEntry two = rationals(kOrbBigEndian, 7, kGPSIFDID, {13, 1, 5, 1, 725, 100});
  two.setDataCount(2);
  EXPECT_EQ(two.GPSTimeStamp(), 0);
  EXPECT_EQ(rationals(kOrbBigEndian, 2, kGPSIFDID, {13, 1, 5, 1, 725, 100}).GPSTimeStamp(), 0);
  EXPECT_FALSE(OrbIFDTimeStamp::timeStampWithEntry(nullptr));
}

TEST(EntryGPS, TimeStampTexts) {
  struct Case {
    std::optional<std::uint64_t> hour, minute;
    std::optional<float> second;
    const char* text;
    std::optional<std::int64_t> sub;
  };
  const Case cases[] = {
      {13, 5, 7.25f, "13:05:07.25", 25},
      {{}, {}, {}, "00:00:00.00", {}},
      {1, {}, 59.999f, "01:00:59.00", 0},  // hundredths round to 60.00: the fraction is 0
      {23, 59, 0.5f, "23:59:00.50", 50},
      {0, 0, 0.125f, "00:00:00.12", 12},  // ties round to even
  };
  for (const Case& c : cases) {
    OrbIFDTimeStamp stamp;
    stamp.setHour(c.hour);
    stamp.setMinute(c.minute);
    stamp.setSecond(c.second);
    EXPECT_EQ(stamp.stringValue(), c.text);
    EXPECT_EQ(stamp.subSecond(), c.sub);
  }
}

TEST(EntryGPS, AltitudeReference) {
  for (const std::int8_t endian : kEndians) {
    auto ref = OrbIFDEntry::initWithEndian(endian, 5, kGPSIFDID);
    ref->setGPSAltitudeRef(1);
    EXPECT_EQ(std::vector<std::uint8_t>(ref->dataPtr().begin(), ref->dataPtr().end()),
              (std::vector<std::uint8_t>{1, 0, 0, 0}));
    ref->setGPSAltitudeRef(4);  // not a reference: ignored
    EXPECT_EQ(ref->dataPtr()[0], 1);
    ref->setGPSAltitudeRef(0);
    EXPECT_EQ(ref->dataPtr()[0], 0);
    EXPECT_EQ(ref->stringData(), "Above Sea Level");
  }
}

TEST(EntryGPS, PositionsEqualToTenDecimals) {
  const OrbIFDEntry a = rationals(kOrbBigEndian, 2, kGPSIFDID, {35, 1, 30, 1, 0, 1});
  const OrbIFDEntry b = rationals(kOrbBigEndian, 2, kGPSIFDID, {71, 2, 0, 1, 0, 1});
  EXPECT_TRUE(a.isEqualToEntryByGPSDegree(b));
  EXPECT_TRUE(a.isEqualToValue(b));
  EXPECT_FALSE(a.isEqualToEntry(b));
  // 1e-11 degrees apart: the same to ten decimals; 1e-9 apart: different.
  const OrbIFDEntry near = rationals(kOrbBigEndian, 2, kGPSIFDID, {35, 1, 30, 1, 36, 1000000000});
  const OrbIFDEntry far = rationals(kOrbBigEndian, 2, kGPSIFDID, {35, 1, 30, 1, 36, 10000000});
  EXPECT_TRUE(a.isEqualToValue(near));
  EXPECT_FALSE(a.isEqualToValue(far));
  // Same value in the other byte order, or under another tag: not equal.
  EXPECT_FALSE(a.isEqualToValue(rationals(kOrbLittleEndian, 2, kGPSIFDID, {35, 1, 30, 1, 0, 1})));
  EXPECT_FALSE(a.isEqualToValue(rationals(kOrbBigEndian, 4, kGPSIFDID, {35, 1, 30, 1, 0, 1})));
  // Other entries compare their bytes.
  const OrbIFDEntry alt1 = rationals(kOrbBigEndian, 6, kGPSIFDID, {10, 1});
  const OrbIFDEntry alt2 = rationals(kOrbBigEndian, 6, kGPSIFDID, {20, 2});
  EXPECT_FALSE(alt1.isEqualToEntryByGPSDegree(alt2));
  EXPECT_TRUE(alt1.isEqualToEntryByGPSDegree(alt1));
}

OrbTiff tiffWith(std::initializer_list<OrbIFDEntry> entries) {
  OrbTiff tiff;
  for (const OrbIFDEntry& e : entries) tiff.setEntry(e);
  return tiff;
}

TEST(EntryGPS, PositionOfAStructure) {
  const std::int8_t E = kOrbLittleEndian;
  const OrbIFDEntry lat = rationals(E, 2, kGPSIFDID, {35, 1, 30, 1, 0, 1});
  const OrbIFDEntry lon = rationals(E, 4, kGPSIFDID, {139, 1, 45, 1, 0, 1});
  struct Case {
    const char* latRef;
    const char* lonRef;
    double latitude, longitude;
  };
  const Case cases[] = {
      {"N", "E", 35.5, 139.75}, {"S", "W", -35.5, -139.75}, {"s", "w", 35.5, 139.75}, {"", "X", 35.5, 139.75}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.latRef + std::string("/") + c.lonRef);
    const OrbTiff tiff = tiffWith({text(E, 1, kGPSIFDID, c.latRef), lat, text(E, 3, kGPSIFDID, c.lonRef), lon});
    EXPECT_EQ(tiff.gpsLocationCoordinate(false), (OrbLocationCoordinate{c.latitude, c.longitude}));
    double latitude = 0, longitude = 0;
    EXPECT_TRUE(tiff.getLatitude(&latitude, &longitude));
    EXPECT_EQ(latitude, c.latitude);
    EXPECT_EQ(longitude, c.longitude);
    EXPECT_FALSE(tiff.getLatitude(&latitude, nullptr));
  }
}

TEST(EntryGPS, MissingEntriesGiveNoPosition) {
  const std::int8_t E = kOrbBigEndian;
  const OrbTiff noLonRef = tiffWith({text(E, 1, kGPSIFDID, "S"), rationals(E, 2, kGPSIFDID, {1, 1, 0, 1, 0, 1}),
                                     rationals(E, 4, kGPSIFDID, {2, 1, 0, 1, 0, 1})});
  const OrbLocationCoordinate c = noLonRef.gpsLocationCoordinate(false);
  EXPECT_EQ(c, kOrbLocationCoordinateInvalid);
  EXPECT_FALSE(isValidLocationCoordinate(c));
  double latitude = 9, longitude = 9;
  EXPECT_FALSE(noLonRef.getLatitude(&latitude, &longitude));
  EXPECT_EQ(latitude, 9);
  EXPECT_EQ(longitude, 9);
  EXPECT_EQ(OrbTiff().gpsLocationCoordinate(true), kOrbLocationCoordinateInvalid);

  const OrbTiff destination = tiffWith({text(E, 19, kGPSIFDID, "N"), rationals(E, 20, kGPSIFDID, {1, 1, 0, 1, 0, 1}),
                                        text(E, 21, kGPSIFDID, "W"), rationals(E, 22, kGPSIFDID, {2, 1, 0, 1, 0, 1})});
  EXPECT_EQ(destination.gpsLocationCoordinate(true), (OrbLocationCoordinate{1, -2}));
  EXPECT_EQ(destination.gpsLocationCoordinate(false), kOrbLocationCoordinateInvalid);
  EXPECT_TRUE(isValidLocationCoordinate({90, -180}));
}

}  // namespace
