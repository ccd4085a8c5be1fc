#pragma once
// Boxing of IFDItemID and OrbRational into one value type, for containers
// that hold either (the type text says which, as the platform encodes it).

#include <string_view>
#include <variant>

#include "core/IFDItemID.h"

struct OrbBoxedValue {
  std::variant<IFDItemID, OrbRational> value;

  // "{_IFDItemID=IS}" or "{_OrbRational=II}".
  std::string_view objCType() const;
  friend bool operator==(const OrbBoxedValue&, const OrbBoxedValue&) = default;
};

namespace NSValueIFDItemID {

OrbBoxedValue valueWithIFDItemID(IFDItemID itemID);
OrbBoxedValue valueWithIFDID(std::uint32_t ifdID, std::uint16_t ifdTag);
// The pair held; a zero pair when the value holds a rational.
IFDItemID ifdItemID(const OrbBoxedValue& value);

OrbBoxedValue valueWithOrbRational(OrbRational rational);
OrbBoxedValue valueWithNumerator(std::uint32_t numerator, std::uint32_t denominator);
// 0/1.
OrbBoxedValue zeroRational();
// The rational held; 0/0 when the value holds an item id.
OrbRational orbRational(const OrbBoxedValue& value);

}  // namespace NSValueIFDItemID
