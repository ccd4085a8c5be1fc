#pragma once
// The change-by-interval sheet without its widgets: a mode (backward or
// forward), six interval counts within the shared field limits, three target
// check boxes, and a live preview of each checked date shifted by the counts.
// A preview leaving the program's range of dates is flagged, and OK is
// enabled only while no checked date is out of range. Closing with OK shifts
// the current single-file document's dates; OK and Cancel both reset the
// sheet for its next use.

#include <array>
#include <optional>
#include <string>

#include "datetime/Instant.h"
#include "documents/DateTargets.h"

class LumSingleFileDoc;

class LumCTISheet {
 public:
  enum Field { Year = 0, Month, Day, Hour, Minute, Second };
  static constexpr int kFieldCount = 6;
  // Pop-up tags of the mode, and the tag of the OK button.
  static constexpr int kBackwardTag = 0, kForwardTag = 1, kOKTag = 1;
  // Put in front of an out-of-range preview (U+2757 heavy exclamation mark).
  static constexpr const char* kOutOfRangeMark = "\xE2\x9D\x97";

  using Dates = std::array<std::optional<Instant>, DateTargets::kCount>;
  struct Preview {
    std::string text;  // empty for an unchecked date or one without a value
    bool outOfRange = false;
  };

  // Keeps the dates the document will shift (its valuesForIntervalSheet:
  // none for a date that is left alone) and shows their previews.
  void setUpWithOriginalDate(std::optional<Instant> original, std::optional<Instant> digitized,
                             std::optional<Instant> edited);
  const Dates& dates() const { return dates_; }

  // A count typed into a field; false (and the field unchanged) when it lies
  // outside the field's limits.
  bool controlTextDidChange(Field field, long value);
  long fieldValue(Field field) const { return fields_[field]; }

  void selectChangeDateMode(int tag);
  bool isForward() const { return forward_; }

  void selectTarget(DateTargets::Index which, bool checked);
  bool isTarget(DateTargets::Index which) const;
  unsigned targetMask() const { return targetMask_; }

  // Recomputes the three previews and the out-of-range flags.
  void _changeDateByUI();
  const Preview& preview(DateTargets::Index which) const { return previews_[which]; }
  bool validateOKButton() const;

  // OK (tag 1) shifts the document's dates (when there is one); any tag ends
  // the sheet: the dates are dropped, the counts set to 0 and the cursor put
  // in the year field.
  void closeCTISheet(int tag, LumSingleFileDoc* document);
  Field focusedField() const { return focusedField_; }

  // The preview of a shifted date: "yyyy:MM:dd HH:mm:ss", "-" in front
  // before year 1, the mark in front when out of range.
  static Preview previewOf(const Instant& shifted);

 private:
  Dates dates_{};
  std::array<long, kFieldCount> fields_{};
  bool forward_ = true;
  unsigned targetMask_ = DateTargets::kAllMask;
  std::array<Preview, DateTargets::kCount> previews_{};
  Field focusedField_ = Year;
};
