#include "documents/LumFileItemDoc.h"

#include <QString>

#include "documents/DateRewrite.h"

namespace {

constexpr LumDateField kFields[DateTargets::kCount] = {LumDateField::DateTimeOriginal, LumDateField::DateTimeDigitized,
                                                       LumDateField::DateTime};

int sign(int value) { return (value > 0) - (value < 0); }


}  // namespace

LumFileItemDoc::LumFileItemDoc(std::filesystem::path url, std::unique_ptr<LumImageFile> imageFile)
    : url_(std::move(url)),
      fileName_(url_.filename().string()),
      nameKey_(nameKey(fileName_)),
      pathKey_(nameKey(url_.string())),
      imageFile_(std::move(imageFile)) {
  imageFile_->setOwnerDocument(this);
  for (const DateTargets::Target& t : DateTargets::kTargets) texts_[t.index] = originalText(t.index);
}

LumFileItemDoc::~LumFileItemDoc() = default;

void LumFileItemDoc::replaceImageFile(std::unique_ptr<LumImageFile> imageFile) {
  const bool edit = isEdit();
  if (!imageFile->thumbnail()) imageFile->setThumbnail(imageFile_->thumbnail());
  imageFile_ = std::move(imageFile);
  imageFile_->setOwnerDocument(this);
  imageFile_->setEdit(edit);
}

void LumFileItemDoc::setDateText(DateTargets::Index which, std::optional<std::string> text) {
  std::optional<std::string>& stored = texts_[which];
  if (text && stored && stored->size() >= 20 && text->size() == 19) {
    stored = *text + stored->substr(19);
    return;
  }
  stored = std::move(text);
}

const std::optional<std::string>& LumFileItemDoc::originalText(DateTargets::Index which) const {
  return imageFile_->originalString(kFields[which]);
}

bool LumFileItemDoc::isEdited() const {
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    const std::optional<std::string>& original = originalText(t.index);
    if (original && original != texts_[t.index]) return true;
  }
  return false;
}

bool LumFileItemDoc::noDateTimes() const {
  for (const std::optional<std::string>& text : texts_)
    if (text) return false;
  return true;
}

std::vector<InPlaceWriter::BytePatch> LumFileItemDoc::datePatches() const {
  // Only the texts a user's action changed: a date left as the file has it
  // is not written, not even with its own bytes.
  DateTargets::Texts changed;
  for (const DateTargets::Target& t : DateTargets::kTargets)
    if (texts_[t.index] != originalText(t.index)) changed[t.index] = texts_[t.index];
  return DateRewrite::patchesForTexts(DateRewrite::locationsOf(*imageFile_), changed);
}

LumFileItemDoc::NameKey LumFileItemDoc::nameKey(const std::string& text) {
  NameKey key{QString::fromStdString(text), {}, true};
  key.asciiLower.reserve(text.size());
  for (const char c : text) {
    if (static_cast<unsigned char>(c) >= 0x80) return {key.text, {}, false};
    key.asciiLower.push_back(c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
  }
  return key;
}

// Qt's case-insensitive comparison folds each UTF-16 unit and then compares
// lengths; for ASCII text that is the order of the lower-cased bytes, which
// costs far less than folding both texts again on every comparison of a sort.
int LumFileItemDoc::compareNameKeys(const NameKey& a, const NameKey& b) {
  if (a.ascii && b.ascii) return sign(a.asciiLower.compare(b.asciiLower));
  return sign(a.text.compare(b.text, Qt::CaseInsensitive));
}

int LumFileItemDoc::compareForFileName(const LumFileItemDoc& other) const {
  if (const int byName = compareNameKeys(nameKey_, other.nameKey_)) return byName;
  return compareNameKeys(pathKey_, other.pathKey_);
}

int LumFileItemDoc::compareForDate(const LumFileItemDoc& other, DateTargets::Index which) const {
  const std::optional<std::string>& mine = texts_[which];
  const std::optional<std::string>& theirs = other.texts_[which];
  if (mine && theirs) return sign(mine->compare(*theirs));
  if (mine) return -1;  // a date sorts before no date
  if (theirs) return 1;
  return 0;
}

int LumFileItemDoc::compareForDateTime(const LumFileItemDoc& o) const { return compareForDate(o, DateTargets::Edited); }
int LumFileItemDoc::compareForDateTimeDigitized(const LumFileItemDoc& o) const {
  return compareForDate(o, DateTargets::Digitized);
}
int LumFileItemDoc::compareForDateTimeOriginal(const LumFileItemDoc& o) const {
  return compareForDate(o, DateTargets::Original);
}

int LumFileItemDoc::compareForEdited(const LumFileItemDoc& other) const {
  if (isEdited() != other.isEdited()) return isEdited() ? -1 : 1;
  return compareForFileName(other);
}

int LumFileItemDoc::compareForEdit(const LumFileItemDoc& other) const {
  if (isEdit() != other.isEdit()) return isEdit() ? -1 : 1;
  return compareForFileName(other);
}
