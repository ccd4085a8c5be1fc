#include "documents/LumMultiFileDoc.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

#include "PhotoFiles.h"

using namespace doctest_support;
using Doc = LumMultiFileDoc;

namespace {

const std::string kA = "2020:01:31 10:00:00", kB = "2019:12:31 23:30:00", kC = "2021:06:15 08:00:00";
// Texts cameras write that the lenient reader rolls over when it shows them.
const std::string kZero = "0000:00:00 00:00:00", kLeap = "2019:02:29 10:00:00", kSixty = "2019:03:07 09:05:60";

struct DocFixture : ::testing::Test {
  TempFolder folder;

  void SetUp() override { ensureApplication(); }
  std::unique_ptr<Doc> open(const std::vector<std::pair<std::string, PhotoDates>>& photos) {
    auto doc = openPhotos(folder, photos);
    EXPECT_EQ(doc->rowCount(), static_cast<int>(photos.size()));
    return doc;
  }
  DateTargets::Texts texts(const Doc& doc, const std::string& name) const {
    const LumFileItemDoc* item = doc.itemForURL(folder / name);
    return item ? item->dateTexts() : DateTargets::Texts{};
  }
};

using Texts = DateTargets::Texts;
const std::optional<std::string> kNo;

// Each file holds one of the texts the lenient reader rolls over; after
// apply, undo and redo, the save leaves on disk exactly a photo built with
// the expected texts: a date the action left alone keeps its bytes, the
// zero date is passed over by a shift and filled by a set.
TEST_F(DocFixture, ApplyUndoRedoOverSeveralFiles) {
  const std::array<std::string, 3> names{"a.jpg", "b.jpg", "c.jpg"};
  const std::array<PhotoDates, 3> opened{{{kA, kZero, kA}, {kB, kNo, kLeap}, {kC, kSixty, kNo}}};
  const std::string set = "2000:02:29 12:00:00";
  const struct { LumActionMode mode; std::array<long, 6> fields; unsigned mask; QString actionName;
    std::array<PhotoDates, 3> after; } cases[] = {
      {LumActionMode::Forward, {0, 1, 0, 1, 2, 3}, 7, "Forward (null)",
       {{{"2020:02:29 11:02:03", kZero, "2020:02:29 11:02:03"}, {"2020:02:01 00:32:03", kNo, "2019:04:01 11:02:03"},
         {"2021:07:15 09:02:03", "2019:04:07 10:08:03", kNo}}}},
      {LumActionMode::Backward, {1, 0, 1, 0, 0, 0}, 1, "Backward (null)",
       {{{"2019:01:30 10:00:00", kZero, kA}, {"2018:12:30 23:30:00", kNo, kLeap},
         {"2020:06:14 08:00:00", kSixty, kNo}}}},
      {LumActionMode::SetTime, {2000, 2, 29, 12, 0, 0}, 6, "Set Time " + QString::fromStdString(set),
       {{{kA, set, set}, {kB, kNo, set}, {kC, set, kNo}}}},
  };
  const auto expectTexts = [&](const Doc& doc, const std::array<PhotoDates, 3>& dates) {
    for (std::size_t i = 0; i < names.size(); ++i)
      EXPECT_EQ(texts(doc, names[i]), (Texts{dates[i].original, dates[i].digitized, dates[i].edited})) << names[i];
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.actionName.toStdString());
    const auto doc = open({{names[0], opened[0]}, {names[1], opened[1]}, {names[2], opened[2]}});
    doc->setEditStateOnAllFiles();
    doc->changeActionMode(c.mode);
    doc->setEditTargetMask(c.mask);
    doc->setFieldValues(c.fields);
    ASSERT_TRUE(doc->validateApllyButton().enabled);
    doc->applyToAllFiles();
    expectTexts(*doc, c.after);
    EXPECT_EQ(doc->undoStack().undoText(), c.actionName);
    EXPECT_EQ(doc->editedFileCount(), 3u);
    EXPECT_EQ(doc->fieldValues() == (std::array<long, 6>{}), c.mode != LumActionMode::SetTime);

    doc->undoStack().undo();  // one step back for every file
    expectTexts(*doc, opened);
    EXPECT_FALSE(doc->hasEditedFile());
    doc->undoStack().redo();

    QSignalSpy finished(doc.get(), &Doc::saveFinished);
    doc->saveAllDocuments();
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(20000));
    for (std::size_t i = 0; i < names.size(); ++i)
      EXPECT_EQ(readBytes(folder / names[i]), photoBytes(c.after[i])) << names[i];
  }
}

TEST_F(DocFixture, RangeCheckDisablesApplyAndShowsTheWarning) {
  // The zero date is passed over: it never counts as leaving the range.
  const auto doc = open({{"early.jpg", {"0001:06:01 00:00:00", kNo, kA}}, {"z.jpg", {kZero, kZero, kZero}}});
  doc->setEditStateOnAllFiles();
  QSignalSpy beeps(doc.get(), &Doc::beep);
  EXPECT_FALSE(doc->validateApllyButton().enabled || doc->validateApllyButton().warningShown);  // all zero
  doc->changeActionMode(LumActionMode::Backward);
  doc->setFieldValue(Doc::Year, 1);
  EXPECT_TRUE(!doc->validateApllyButton().enabled && doc->validateApllyButton().warningShown);
  EXPECT_EQ(beeps.count(), 1);
  ASSERT_EQ(doc->illegalChangeDates().size(), 1u);
  EXPECT_EQ(doc->illegalChangeDates()[0].which, DateTargets::Original);
  // (Unchecking the original date is the window suite's.)
  doc->setEditTarget(*doc->rowOf(doc->itemForURL(folder / "early.jpg")), false);  // not marked: not checked
  EXPECT_TRUE(doc->validateApllyButton().enabled);
}

TEST_F(DocFixture, TypedText) {
  const struct { const char* typed; const char* column; bool shift; Doc::TypedResult result; Texts after; } cases[] = {
      {"2021/3/4 5:06:07", "DateTimeOriginal", false, Doc::TypedResult::Applied, {"2021:03:04 05:06:07", kB, kB}},
      {"2021/3/4 5:06:07", "DateTimeDigitized", true, Doc::TypedResult::Applied,
       {"2021:03:04 05:06:07", "2021:03:04 05:06:07", "2021:03:04 05:06:07"}},
      {"2021/3/4", "DateTimeOriginal", false, Doc::TypedResult::Refused, {kB, kB, kB}},
      {"2019:12:31 23:30:00", "DateTimeOriginal", false, Doc::TypedResult::Ignored, {kB, kB, kB}},  // unchanged
      {"2021/3/4 5:06:07", "FileName", false, Doc::TypedResult::Ignored, {kB, kB, kB}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.typed) + " in " + c.column);
    const auto doc = open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
    QSignalSpy beeps(doc.get(), &Doc::beep);
    const int row = *doc->rowOf(doc->itemForURL(folder / "b.jpg"));
    EXPECT_EQ(doc->controlTextDidEndEditing(row, c.column, c.typed, c.shift), c.result);
    EXPECT_EQ(texts(*doc, "b.jpg"), c.after);
    EXPECT_EQ(beeps.count(), c.result == Doc::TypedResult::Refused ? 1 : 0);
    EXPECT_EQ(doc->undoStack().count(), c.result == Doc::TypedResult::Applied ? 1 : 0);
    if (c.result != Doc::TypedResult::Applied) continue;
    EXPECT_EQ(doc->selectedRows(), std::vector<int>{row});
    doc->undoStack().undo();
    EXPECT_EQ(texts(*doc, "b.jpg"), (Texts{kB, kB, kB}));
  }
}

// One document through its title, close alert, menus, restore and the set
// time fields.
TEST_F(DocFixture, TitleAlertMenusRestoreAndSetTimeFields) {
  const auto doc = open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
  EXPECT_EQ(doc->windowTitle(), "a.jpg (2 images)");
  EXPECT_FALSE(doc->getTitleForAlertWhenCloseDociment());
  for (const auto command : {Doc::MenuCommand::SaveAll, Doc::MenuCommand::EditOnSelected, Doc::MenuCommand::SaveAs})
    EXPECT_FALSE(doc->validateMenuItem(command).enabled);
  doc->setSelectedRows({1});
  EXPECT_EQ(doc->windowTitle(), "b.jpg (2 images)");
  doc->controlTextDidEndEditing(1, "DateTime", "2001:01:01 01:01:01", false);
  EXPECT_EQ(doc->getTitleForAlertWhenCloseDociment().value_or(Doc::CloseAlertTexts{}).title,
            "The document \"b.jpg\" has unsaved changes. Do you want to save the changes before closing?");
  EXPECT_TRUE(doc->validateMenuItem(Doc::MenuCommand::Save).enabled);
  doc->setSelectedRows({0});
  EXPECT_FALSE(doc->validateMenuItem(Doc::MenuCommand::Save).enabled);
  doc->controlTextDidEndEditing(0, "DateTime", "2001:01:01 01:01:01", false);
  EXPECT_EQ(doc->getTitleForAlertWhenCloseDociment().value_or(Doc::CloseAlertTexts{}).title,
            "There are multiple documents with unsaved changes. Do you want to save them before closing?");

  // Restore brings back the file's dates, and is undoable.
  doc->setSelectedRows({0});
  EXPECT_EQ(doc->validateMenuItem(Doc::MenuCommand::RestoreSelected).title, "Restore Selected Files");
  doc->restoreSelectedFiles();
  EXPECT_EQ(texts(*doc, "a.jpg"), (Texts{kA, kA, kA}));
  EXPECT_EQ(doc->editedFileCount(), 1u);
  doc->restoreAllFiles();
  EXPECT_FALSE(doc->hasEditedFile());
  EXPECT_EQ(doc->undoStack().count(), 4);
  doc->undoStack().undo();
  EXPECT_EQ(doc->editedFileCount(), 1u);

  doc->changeActionMode(LumActionMode::SetTime);
  doc->setFieldValues({2023, 2, 10, 0, 0, 0});
  EXPECT_EQ(doc->_changeNumberFormatter()[Doc::Day].maximum, 28);
  doc->endSetTimeFieldEditing(Doc::Year, 2024);
  QSignalSpy beeps(doc.get(), &Doc::beep);
  doc->endSetTimeFieldEditing(Doc::Month, 13);  // refused: the remembered month comes back
  EXPECT_EQ(beeps.count(), 1);
  EXPECT_NE(doc->fieldValue(Doc::Month), 13);
  doc->endSetTimeFieldEditing(Doc::Year, std::nullopt);  // an emptied field keeps its value
  EXPECT_EQ(doc->fieldValue(Doc::Year), 2024);
  EXPECT_TRUE(doc->validateApllyButton().enabled);
  doc->changeActionMode(LumActionMode::Forward);
  EXPECT_EQ(doc->fieldValues(), (std::array<long, 6>{}));
}

}  // namespace
