#include "documents/LumCTISheet.h"

#include "datetime/DateAdditions.h"
#include "datetime/TimeZone.h"
#include "documents/DateTextRules.h"
#include "documents/LumDateLimits.h"
#include "documents/LumSingleFileDoc.h"

void LumCTISheet::setUpWithOriginalDate(std::optional<Instant> original, std::optional<Instant> digitized,
                                        std::optional<Instant> edited) {
  dates_ = {original, digitized, edited};
  _changeDateByUI();
}

bool LumCTISheet::controlTextDidChange(Field field, long value) {
  if (!LumDateLimits::kIntervalFieldLimits[field].accepts(value)) return false;
  fields_[field] = value;
  _changeDateByUI();
  return true;
}

void LumCTISheet::selectChangeDateMode(int tag) {
  forward_ = tag == kForwardTag;
  _changeDateByUI();
}

void LumCTISheet::selectTarget(DateTargets::Index which, bool checked) {
  const unsigned bit = DateTargets::kTargets[which].maskBit;
  targetMask_ = checked ? (targetMask_ | bit) : (targetMask_ & ~bit);
  _changeDateByUI();
}

bool LumCTISheet::isTarget(DateTargets::Index which) const {
  return (targetMask_ & DateTargets::kTargets[which].maskBit) != 0;
}

LumCTISheet::Preview LumCTISheet::previewOf(const Instant& shifted) {
  const TimeZone utc = TimeZone::gmt();
  bool bc = false;
  DateAdditions::getYear(shifted, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &utc, &bc);
  Preview preview;
  preview.outOfRange = !LumDateLimits::isInRange(shifted);
  preview.text = (bc ? "-" : "") + DateAdditions::tiffDateString(shifted);
  if (preview.outOfRange) preview.text = kOutOfRangeMark + preview.text;
  return preview;
}

void LumCTISheet::_changeDateByUI() {
  // The same arithmetic as the document's shift, so OK does what is shown.
  const DateTextRules::Offsets offsets = DateTextRules::directed(fields_, forward_);
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    Preview& preview = previews_[t.index];
    preview = {};
    if (!isTarget(t.index) || !dates_[t.index]) continue;
    const std::optional<Instant> shifted = DateTextRules::shiftedDate(*dates_[t.index], offsets);
    // A start the arithmetic refuses cannot give a date inside the range.
    preview = shifted ? previewOf(*shifted) : Preview{kOutOfRangeMark, true};
  }
}

bool LumCTISheet::validateOKButton() const {
  for (const Preview& preview : previews_)
    if (preview.outOfRange) return false;
  return true;
}

void LumCTISheet::closeCTISheet(int tag, LumSingleFileDoc* document) {
  if (tag == kOKTag && document && validateOKButton())
    document->changeDateWithYears(fields_[Year], fields_[Month], fields_[Day], fields_[Hour], fields_[Minute],
                                  fields_[Second], forward_, targetMask_);
  dates_ = {};
  fields_ = {};
  focusedField_ = Year;
  _changeDateByUI();
}
