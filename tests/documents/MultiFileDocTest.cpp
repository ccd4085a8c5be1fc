#include "documents/LumMultiFileDoc.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

#include <functional>

#include "PhotoFiles.h"

using namespace doctest_support;
using Doc = LumMultiFileDoc;

namespace {

const std::string kA = "2020:01:31 10:00:00";
const std::string kB = "2019:12:31 23:30:00";
const std::string kC = "2021:06:15 08:00:00";
// Texts cameras write that the lenient reader rolls over when it shows them.
const std::string kZero = "0000:00:00 00:00:00", kLeap = "2019:02:29 10:00:00", kSixty = "2019:03:07 09:05:60";

struct DocFixture : ::testing::Test {
  TempFolder folder;

  std::unique_ptr<Doc> open(const std::vector<std::pair<std::string, PhotoDates>>& photos) {
    std::vector<std::unique_ptr<LumFileItemDoc>> items;
    for (const auto& [name, dates] : photos) items.push_back(openItem(writePhoto(folder, name, dates)));
    for (const auto& item : items) EXPECT_TRUE(item);
    return std::make_unique<Doc>(std::move(items));
  }
  static DateTargets::Texts texts(const Doc& doc, const std::string& name) {
    for (int row = 0; row < doc.rowCount(); ++row)
      if (doc.item(row).fileName() == name) return doc.item(row).dateTexts();
    ADD_FAILURE() << name;
    return {};
  }
};

using Texts = DateTargets::Texts;
const std::optional<std::string> kNo;

struct ApplyCase {
  const char* name;
  LumActionMode mode;
  std::array<long, 6> fields;
  unsigned mask;
  QString actionName;
  Texts a, b, c;  // expected texts of a.jpg, b.jpg, c.jpg after applying
};

TEST_F(DocFixture, ApplyUndoRedoOverSeveralFiles) {
  const std::vector<ApplyCase> cases{
      {"forward", LumActionMode::Forward, {0, 1, 0, 1, 2, 3}, 7, "Forward (null)",
       {"2020:02:29 11:02:03", "2020:02:29 11:02:03", "2020:02:29 11:02:03"},
       {"2020:02:01 00:32:03", kNo, "2020:02:01 00:32:03"},
       {"2021:07:15 09:02:03", "2021:07:15 09:02:03", kNo}},
      {"backward, original only", LumActionMode::Backward, {1, 0, 1, 0, 0, 0}, 1, "Backward (null)",
       {"2019:01:30 10:00:00", kA, kA}, {"2018:12:30 23:30:00", kNo, kB}, {"2020:06:14 08:00:00", kC, kNo}},
      {"set time, edited only", LumActionMode::SetTime, {2000, 2, 29, 12, 0, 0}, 4, "Set Time 2000:02:29 12:00:00",
       {kA, kA, "2000:02:29 12:00:00"}, {kB, kNo, "2000:02:29 12:00:00"}, {kC, kC, kNo}},
  };
  for (const ApplyCase& c : cases) {
    SCOPED_TRACE(c.name);
    const auto doc = open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kNo, kB}}, {"c.jpg", {kC, kC, kNo}}});
    doc->setEditStateOnAllFiles();
    doc->changeActionMode(c.mode);
    doc->setEditTargetMask(c.mask);
    doc->setFieldValues(c.fields);
    ASSERT_TRUE(doc->validateApllyButton().enabled);
    doc->applyToAllFiles();

    EXPECT_EQ(texts(*doc, "a.jpg"), c.a);
    EXPECT_EQ(texts(*doc, "b.jpg"), c.b);
    EXPECT_EQ(texts(*doc, "c.jpg"), c.c);
    ASSERT_EQ(doc->undoStack().count(), 1);
    EXPECT_EQ(doc->undoStack().undoText(), c.actionName);
    EXPECT_EQ(doc->editedFileCount(), c.mode == LumActionMode::SetTime ? 2u : 3u);
    if (c.mode != LumActionMode::SetTime) {
      EXPECT_EQ(doc->fieldValues(), (std::array<long, 6>{}));
    }

    doc->undoStack().undo();  // one step back for every file
    EXPECT_EQ(texts(*doc, "a.jpg"), (Texts{kA, kA, kA}));
    EXPECT_EQ(texts(*doc, "b.jpg"), (Texts{kB, kNo, kB}));
    EXPECT_EQ(texts(*doc, "c.jpg"), (Texts{kC, kC, kNo}));
    EXPECT_FALSE(doc->hasEditedFile());

    doc->undoStack().redo();
    EXPECT_EQ(texts(*doc, "a.jpg"), c.a);
    EXPECT_EQ(texts(*doc, "b.jpg"), c.b);
    EXPECT_EQ(texts(*doc, "c.jpg"), c.c);
  }
}

TEST_F(DocFixture, RangeCheckDisablesApplyAndShowsTheWarning) {
  // The zero date is passed over: it never counts as leaving the range.
  const auto doc = open({{"early.jpg", {"0001:06:01 00:00:00", kNo, kA}}, {"b.jpg", {kB, kB, kB}},
                         {"z.jpg", {kZero, kZero, kZero}}});
  doc->setEditStateOnAllFiles();
  QSignalSpy beeps(doc.get(), &Doc::beep);

  // All zero: disabled without a warning.
  EXPECT_FALSE(doc->validateApllyButton().enabled);
  EXPECT_FALSE(doc->validateApllyButton().warningShown);

  doc->changeActionMode(LumActionMode::Backward);
  doc->setFieldValue(Doc::Year, 1);
  EXPECT_FALSE(doc->validateApllyButton().enabled);
  EXPECT_TRUE(doc->validateApllyButton().warningShown);
  EXPECT_EQ(beeps.count(), 1);
  ASSERT_EQ(doc->illegalChangeDates().size(), 1u);
  EXPECT_EQ(doc->illegalChangeDates()[0].which, DateTargets::Original);

  doc->setEditTargetMask(2 | 4);  // original unchecked: nothing leaves the range
  EXPECT_TRUE(doc->validateApllyButton().enabled);
  EXPECT_FALSE(doc->validateApllyButton().warningShown);

  doc->setEditTargetMask(7);
  doc->setEditTarget(*doc->rowOf(doc->itemForURL(folder / "early.jpg")), false);  // not marked: not checked
  EXPECT_TRUE(doc->validateApllyButton().enabled);
  doc->applyToAllFiles();
  EXPECT_EQ(texts(*doc, "z.jpg"), (Texts{kZero, kZero, kZero}));
  EXPECT_EQ(texts(*doc, "b.jpg")[0], "2018:12:31 23:30:00");
}

TEST_F(DocFixture, RestoreBringsBackTheFileDatesAndIsUndoable) {
  const auto doc = open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kNo, kB}}});
  doc->setEditStateOnAllFiles();
  doc->setFieldValue(Doc::Minute, 5);
  doc->applyToAllFiles();
  ASSERT_TRUE(doc->hasEditedFile());

  doc->setSelectedRows({*doc->rowOf(doc->itemForURL(folder / "a.jpg"))});
  EXPECT_EQ(doc->validateMenuItem(Doc::MenuCommand::RestoreSelected).title, "Restore Selected Files");
  doc->restoreSelectedFiles();
  EXPECT_EQ(texts(*doc, "a.jpg"), (Texts{kA, kA, kA}));
  EXPECT_EQ(doc->editedFileCount(), 1u);

  doc->restoreAllFiles();
  EXPECT_FALSE(doc->hasEditedFile());
  EXPECT_EQ(doc->undoStack().count(), 3);
  doc->undoStack().undo();
  EXPECT_EQ(doc->editedFileCount(), 1u);
}

struct TypedCase {
  const char* typed;
  const char* column;
  bool shift;
  Doc::TypedResult result;
  Texts after;
};

TEST_F(DocFixture, TypedText) {
  const std::vector<TypedCase> cases{
      {"2021/3/4 5:06:07", "DateTimeOriginal", false, Doc::TypedResult::Applied, {"2021:03:04 05:06:07", kB, kB}},
      {"2021/3/4 5:06:07", "DateTime", false, Doc::TypedResult::Applied, {kB, kB, "2021:03:04 05:06:07"}},
      {"2021/3/4 5:06:07", "DateTimeDigitized", true, Doc::TypedResult::Applied,
       {"2021:03:04 05:06:07", "2021:03:04 05:06:07", "2021:03:04 05:06:07"}},
      {"2021/3/4", "DateTimeOriginal", false, Doc::TypedResult::Refused, {kB, kB, kB}},
      {"2019:12:31 23:30:00", "DateTimeOriginal", false, Doc::TypedResult::Ignored, {kB, kB, kB}},  // unchanged
      {"2021/3/4 5:06:07", "FileName", false, Doc::TypedResult::Ignored, {kB, kB, kB}},
  };
  for (const TypedCase& c : cases) {
    SCOPED_TRACE(std::string(c.typed) + " in " + c.column);
    const auto doc = open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
    QSignalSpy beeps(doc.get(), &Doc::beep);
    const int row = *doc->rowOf(doc->itemForURL(folder / "b.jpg"));
    EXPECT_EQ(doc->controlTextDidEndEditing(row, c.column, c.typed, c.shift), c.result);
    EXPECT_EQ(texts(*doc, "b.jpg"), c.after);
    EXPECT_EQ(beeps.count(), c.result == Doc::TypedResult::Refused ? 1 : 0);
    EXPECT_EQ(doc->undoStack().count(), c.result == Doc::TypedResult::Applied ? 1 : 0);
    if (c.result == Doc::TypedResult::Applied) {
      EXPECT_EQ(doc->selectedRows(), std::vector<int>{*doc->rowOf(doc->itemForURL(folder / "b.jpg"))});
      doc->undoStack().undo();
      EXPECT_EQ(texts(*doc, "b.jpg"), (Texts{kB, kB, kB}));
    }
  }
}

TEST_F(DocFixture, SortingByDateKeepsUndatedFilesLastAndTheSelectionFollows) {
  const auto doc = open({{"n1.jpg", {kA, kA, kNo}}, {"late.jpg", {kC, kC, kC}}, {"n2.jpg", {kA, kA, kNo}},
                         {"early.jpg", {kB, kB, kB}}});
  EXPECT_EQ(doc->item(0).fileName(), "early.jpg");  // initial order: file name first
  doc->setSelectedRows({*doc->rowOf(doc->itemForURL(folder / "n2.jpg"))});
  doc->tableViewSortDescriptorsDidChange({{"DateTime", true}});
  std::vector<std::string> order;
  for (int row = 0; row < doc->rowCount(); ++row) order.push_back(doc->item(row).fileName());
  EXPECT_EQ(order, (std::vector<std::string>{"early.jpg", "late.jpg", "n1.jpg", "n2.jpg"}));  // ties keep their order
  EXPECT_EQ(doc->selectedRows(), std::vector<int>{3});
  doc->tableViewSortDescriptorsDidChange({{"DateTime", false}});
  EXPECT_EQ(doc->item(0).fileName(), "n1.jpg");
  EXPECT_EQ(doc->item(3).fileName(), "early.jpg");
}

TEST_F(DocFixture, TitleCloseAlertAndMenus) {
  const auto doc = open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
  EXPECT_EQ(doc->windowTitle(), "a.jpg (2 images)");
  EXPECT_FALSE(doc->getTitleForAlertWhenCloseDociment());
  EXPECT_FALSE(doc->validateMenuItem(Doc::MenuCommand::SaveAll).enabled);
  EXPECT_FALSE(doc->validateMenuItem(Doc::MenuCommand::EditOnSelected).enabled);
  EXPECT_FALSE(doc->validateMenuItem(Doc::MenuCommand::SaveAs).enabled);

  doc->setSelectedRows({1});
  EXPECT_EQ(doc->windowTitle(), "b.jpg (2 images)");
  EXPECT_EQ(*doc->fileURL(), folder / "b.jpg");
  doc->controlTextDidEndEditing(1, "DateTime", "2001:01:01 01:01:01", false);
  auto alert = doc->getTitleForAlertWhenCloseDociment();
  ASSERT_TRUE(alert);
  EXPECT_EQ(alert->title,
            "The document \"b.jpg\" has unsaved changes. Do you want to save the changes before closing?");
  EXPECT_EQ(alert->message, "Your changes will be lost if you don't save them.");
  EXPECT_TRUE(doc->validateMenuItem(Doc::MenuCommand::Save).enabled);
  doc->setSelectedRows({0});
  EXPECT_FALSE(doc->validateMenuItem(Doc::MenuCommand::Save).enabled);

  doc->controlTextDidEndEditing(0, "DateTime", "2001:01:01 01:01:01", false);
  alert = doc->getTitleForAlertWhenCloseDociment();
  ASSERT_TRUE(alert);
  EXPECT_EQ(alert->title,
            "There are multiple documents with unsaved changes. Do you want to save them before closing?");
}

TEST_F(DocFixture, SetTimeFieldLimitsAndEndOfEditing) {
  const auto doc = open({{"a.jpg", {kA, kA, kA}}});
  EXPECT_EQ(doc->_changeNumberFormatter()[Doc::Day].maximum, 3652058);
  doc->changeActionMode(LumActionMode::SetTime);
  doc->setFieldValues({2023, 2, 10, 0, 0, 0});
  EXPECT_EQ(doc->_changeNumberFormatter()[Doc::Day].maximum, 28);
  EXPECT_EQ(doc->_changeNumberFormatter()[Doc::Month].maximum, 12);
  doc->endSetTimeFieldEditing(Doc::Year, 2024);
  QSignalSpy beeps(doc.get(), &Doc::beep);
  doc->endSetTimeFieldEditing(Doc::Month, 13);  // refused: the remembered month comes back
  EXPECT_EQ(beeps.count(), 1);
  EXPECT_NE(doc->fieldValue(Doc::Month), 13);
  doc->endSetTimeFieldEditing(Doc::Year, std::nullopt);
  EXPECT_EQ(doc->fieldValue(Doc::Year), 2024);
  EXPECT_TRUE(doc->validateApllyButton().enabled);
  doc->changeActionMode(LumActionMode::Forward);
  EXPECT_EQ(doc->fieldValues(), (std::array<long, 6>{}));
}

// Each file holds one of the rolled-over texts in the two dates an action on
// DateTimeOriginal leaves alone; after the save, the bytes on disk are those
// of a photo built with the expected texts.
TEST_F(DocFixture, OnlyTheDatesAnActionChangedAreWritten) {
  using Act = std::function<void(Doc&)>;
  const auto apply = [](LumActionMode mode, std::array<long, 6> fields, unsigned mask) -> Act {
    return [=](Doc& doc) {
      doc.changeActionMode(mode);
      doc.setEditTargetMask(mask);
      doc.setFieldValues(fields);
      ASSERT_TRUE(doc.validateApllyButton().enabled);
      doc.applyToAllFiles();
    };
  };
  const Act typeOriginal = [](Doc& doc) {
    for (int row = 0; row < doc.rowCount(); ++row)
      EXPECT_EQ(doc.controlTextDidEndEditing(row, "DateTimeOriginal", "2000/2/29 12:00:00", false),
                Doc::TypedResult::Applied);
  };
  const std::string later = "2020:01:31 11:00:00", set = "2000:02:29 12:00:00";
  const struct {
    const char* name;
    Act act;
    std::string original;
    std::array<std::string, 3> others;  // the other two dates of each file after the action
  } cases[] = {
      {"shift original", apply(LumActionMode::Forward, {0, 0, 0, 1, 0, 0}, 1), later, {kZero, kLeap, kSixty}},
      {"set original", apply(LumActionMode::SetTime, {2000, 2, 29, 12, 0, 0}, 1), set, {kZero, kLeap, kSixty}},
      {"type original", typeOriginal, set, {kZero, kLeap, kSixty}},
      {"shift all", apply(LumActionMode::Forward, {0, 0, 0, 1, 0, 0}, 7), later,
       {kZero, "2019:03:01 11:00:00", "2019:03:07 10:06:00"}},
  };
  const std::array<std::string, 3> names{"z.jpg", "l.jpg", "s.jpg"}, texts{kZero, kLeap, kSixty};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto doc = open({{names[0], {kA, kZero, kZero}}, {names[1], {kA, kLeap, kLeap}},
                           {names[2], {kA, kSixty, kSixty}}});
    doc->setEditStateOnAllFiles();
    c.act(*doc);
    QSignalSpy finished(doc.get(), &Doc::saveFinished);
    doc->saveAllDocuments();
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(20000));
    for (std::size_t i = 0; i < names.size(); ++i) {
      EXPECT_EQ(readBytes(folder / names[i]), photoBytes({c.original, c.others[i], c.others[i]})) << names[i];
    }
  }
}

}  // namespace
