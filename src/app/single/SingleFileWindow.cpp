#include "app/single/SingleFileWindow.h"

#include <QAction>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/AppActions.h"
#include "app/MenuBar.h"
#include "app/Prompts.h"
#include "datetime/DateAdditions.h"
#include "documents/LumLocalized.h"

namespace {
// The labels of the three dates, in the order of DateTargets::Index.
constexpr std::array<const char*, DateTargets::kCount> kDateNames{"DateTimeOriginal", "DateTimeDigitized",
                                                                  "DateTime"};
}  // namespace

SingleFileWindow::SingleFileWindow(std::unique_ptr<LumSingleFileDoc> document, AppContext& context, QWidget* parent)
    : DocumentWindow(context, parent), document_(std::move(document)) {
  setObjectName("singleFileWindow");
  const std::filesystem::path path = document_->fileURL().value_or(std::filesystem::path());
  setWindowTitle(QString::fromStdString(path.filename().string()) + QStringLiteral("[*]"));
  setWindowFilePath(QString::fromStdString(path.string()));

  auto* central = new QWidget(this);
  auto* column = new QVBoxLayout(central);
  auto* name = new QLabel(QString::fromStdString(path.filename().string()), central);
  name->setObjectName("fileName");
  QFont bold = name->font();
  bold.setBold(true);
  name->setFont(bold);
  column->addWidget(name);
  auto* where = new QLabel(QString::fromStdString(path.parent_path().string()), central);
  where->setObjectName("filePath");
  where->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  column->addWidget(where);

  auto* form = new QFormLayout;
  for (std::size_t i = 0; i < kDateNames.size(); ++i) {
    dateLabels_[i] = new QLabel(central);
    dateLabels_[i]->setObjectName(kDateNames[i]);
    dateLabels_[i]->setAccessibleName(kDateNames[i]);
    dateLabels_[i]->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    form->addRow(QString::fromLatin1(kDateNames[i]), dateLabels_[i]);
  }
  column->addLayout(form);
  column->addStretch();
  saveButton_ = new QPushButton(LumLocalized::text("Save"), central);
  saveButton_->setObjectName("saveFileButton");
  saveButton_->setAccessibleName(saveButton_->text());
  column->addWidget(saveButton_, 0, Qt::AlignRight);
  setCentralWidget(central);

  buildActions();
  connect(document_.get(), &LumSingleFileDoc::datesChanged, this, &SingleFileWindow::showDates);
  connect(document_.get(), &LumSingleFileDoc::saveFinished, this, &SingleFileWindow::saveFinished);
  showDates();
}

SingleFileWindow::~SingleFileWindow() = default;

void SingleFileWindow::buildActions() {
  auto* close = new QAction(tr("&Close"), this);
  close->setShortcut(QKeySequence::Close);
  connect(close, &QAction::triggered, this, &QWidget::close);
  auto* save = new QAction(LumLocalized::text("Save"), this);
  save->setShortcut(QKeySequence::Save);
  connect(save, &QAction::triggered, this, [this] { document_->saveDocument(); });
  connect(saveButton_, &QPushButton::clicked, save, &QAction::trigger);
  const auto updateSave = [this, save] {
    save->setEnabled(document_->validateMenuItem(LumSingleFileDoc::MenuCommand::Save));
    saveButton_->setEnabled(save->isEnabled());
  };
  connect(document_.get(), &LumSingleFileDoc::datesChanged, save, updateSave);
  connect(&document_->undoStack(), &QUndoStack::indexChanged, save, updateSave);
  updateSave();
  addActions({close, save});
  buildMenuBar(*this, context().actions, WindowMenuActions{close, save, nullptr, nullptr, {}});
}

void SingleFileWindow::showDates() {
  for (std::size_t i = 0; i < dateLabels_.size(); ++i) {
    const OrbDatePicker& picker = document_->picker(static_cast<DateTargets::Index>(i));
    const std::optional<Instant> date = picker.isEnabled() ? picker.dateValue() : std::nullopt;
    dateLabels_[i]->setText(date ? QString::fromStdString(DateAdditions::tiffDateString(*date))
                                 : LumLocalized::text("No Date-Time"));
  }
  setWindowModified(document_->hasEditedFile());
}

std::vector<std::filesystem::path> SingleFileWindow::openFiles() const {
  if (const auto url = document_->fileURL()) return {*url};
  return {};
}

std::optional<DocumentWindow::CloseTexts> SingleFileWindow::closeAlertTexts() const {
  return closeTextsFrom(document_->getTitleForAlertWhenCloseDociment());
}

void SingleFileWindow::saveAllForClose(bool quitting) {
  savingForClose_ = true;
  document_->saveFileAll(false, true, quitting);
}

void SingleFileWindow::saveFinished(const LumSingleFileDoc::SaveOutcome& outcome) {
  showDates();
  if (outcome.alert)
    context().prompts.showCriticalAlert(this, {outcome.alert->message, outcome.alert->informativeText, {}});
  if (std::exchange(savingForClose_, false)) closeSaveFinished(outcome.saved);
}
