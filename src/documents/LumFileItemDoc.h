#pragma once
// One row of the multi-file document: a photo file, its current (possibly
// edited) date texts, and the comparisons the table sorts by.

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QString>

#include "documents/DateTargets.h"
#include "documents/InPlaceWriter.h"
#include "formats/LumImageFile.h"

class LumFileItemDoc : public LumImageFileOwner {
 public:
  // The item owns the image file; the current texts start as its originals.
  LumFileItemDoc(std::filesystem::path url, std::unique_ptr<LumImageFile> imageFile);
  ~LumFileItemDoc() override;
  LumFileItemDoc(const LumFileItemDoc&) = delete;
  LumFileItemDoc& operator=(const LumFileItemDoc&) = delete;

  std::optional<std::filesystem::path> fileURL() const override { return url_; }
  const std::filesystem::path& path() const { return url_; }
  const std::string& fileName() const { return fileName_; }

  LumImageFile& imageFile() const { return *imageFile_; }
  // Shared with background work (thumbnails) that may outlive a replacement.
  std::shared_ptr<LumImageFile> sharedImageFile() const { return imageFile_; }
  // Puts a freshly read model of the same file in place (after a save); the
  // edit mark and the thumbnail are carried over.
  void replaceImageFile(std::unique_ptr<LumImageFile> imageFile);

  // The current texts.
  const std::optional<std::string>& dateText(DateTargets::Index which) const { return texts_[which]; }
  const DateTargets::Texts& dateTexts() const { return texts_; }
  const std::optional<std::string>& dateTimeOriginalString() const { return texts_[DateTargets::Original]; }
  const std::optional<std::string>& dateTimeDigitizedString() const { return texts_[DateTargets::Digitized]; }
  const std::optional<std::string>& dateTimeString() const { return texts_[DateTargets::Edited]; }
  // Sets a current text. A 19-character text replacing one of 20 or more
  // keeps the old text's characters from position 19 on.
  void setDateText(DateTargets::Index which, std::optional<std::string> text);
  void setDateTimeOriginalString(std::optional<std::string> t) { setDateText(DateTargets::Original, std::move(t)); }
  void setDateTimeDigitizedString(std::optional<std::string> t) { setDateText(DateTargets::Digitized, std::move(t)); }
  void setDateTimeString(std::optional<std::string> t) { setDateText(DateTargets::Edited, std::move(t)); }

  // The file's text of a date as it stood when opened (or last saved).
  const std::optional<std::string>& originalText(DateTargets::Index which) const;

  // The edit-target mark, kept on the image file.
  bool isEdit() const { return imageFile_->isEdit(); }
  void setEdit(bool edit) { imageFile_->setEdit(edit); }

  // True when some date the file has differs from its current text.
  bool isEdited() const;
  // True when none of the three current texts is present.
  bool noDateTimes() const;

  // Where the texts that differ from the file's go in it, 19 bytes each.
  std::vector<InPlaceWriter::BytePatch> datePatches() const;

  // Table comparisons: negative, zero or positive like strcmp.
  int compareForFileName(const LumFileItemDoc& other) const;
  int compareForDateTime(const LumFileItemDoc& other) const;
  int compareForDateTimeDigitized(const LumFileItemDoc& other) const;
  int compareForDateTimeOriginal(const LumFileItemDoc& other) const;
  int compareForEdited(const LumFileItemDoc& other) const;
  int compareForEdit(const LumFileItemDoc& other) const;

 private:
  int compareForDate(const LumFileItemDoc& other, DateTargets::Index which) const;

  std::filesystem::path url_;
  // The path never changes, so its name and the texts the name comparison
  // needs are made once rather than on every comparison of a sort.
  std::string fileName_;
  struct NameKey {
    QString text;
    std::string asciiLower;  // lower-cased bytes when the text is all ASCII
    bool ascii = false;
  };
  static NameKey nameKey(const std::string& text);
  static int compareNameKeys(const NameKey& a, const NameKey& b);
  NameKey nameKey_;
  NameKey pathKey_;
  std::shared_ptr<LumImageFile> imageFile_;
  DateTargets::Texts texts_;
};
