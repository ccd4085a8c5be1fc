#include "core/NSValueIFDItemID.h"

std::string_view OrbBoxedValue::objCType() const {
  return std::holds_alternative<IFDItemID>(value) ? "{_IFDItemID=IS}" : "{_OrbRational=II}";
}

namespace NSValueIFDItemID {

OrbBoxedValue valueWithIFDItemID(IFDItemID itemID) { return {itemID}; }
OrbBoxedValue valueWithIFDID(std::uint32_t ifdID, std::uint16_t ifdTag) { return {IFDItemID{ifdID, ifdTag}}; }

IFDItemID ifdItemID(const OrbBoxedValue& value) {
  const auto* id = std::get_if<IFDItemID>(&value.value);
  return id ? *id : IFDItemID{};
}

OrbBoxedValue valueWithOrbRational(OrbRational rational) { return {rational}; }
OrbBoxedValue valueWithNumerator(std::uint32_t numerator, std::uint32_t denominator) {
  return {OrbRational{numerator, denominator}};
}
OrbBoxedValue zeroRational() { return {OrbRational{0, 1}}; }

OrbRational orbRational(const OrbBoxedValue& value) {
  const auto* r = std::get_if<OrbRational>(&value.value);
  return r ? *r : OrbRational{};
}

}  // namespace NSValueIFDItemID
