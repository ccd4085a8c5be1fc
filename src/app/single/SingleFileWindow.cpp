#include "app/single/SingleFileWindow.h"

#include <QAction>
#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/AppActions.h"
#include "app/Appearance.h"
#include "app/MenuBar.h"
#include "app/Prompts.h"
#include "app/sheets/ChangeByIntervalSheet.h"
#include "app/single/PhotoView.h"
#include "app/widgets/DatePickerWidget.h"
#include "documents/LumLocalized.h"

namespace {

// The labels shown beside the pickers, in the order of DateTargets::Index;
// each picker is named after its label without the colon.
constexpr std::array<const char*, DateTargets::kCount> kPickerLabels{"Date Time Original:", "Date Time Digitized:",
                                                                     "Date Time Edited:"};
constexpr std::array<const char*, DateTargets::kCount> kPickerNames{"originalPicker", "digitizedPicker",
                                                                    "editedPicker"};

QPushButton* makeButton(const QString& text, const char* name, QWidget* parent) {
  auto* button = new QPushButton(text, parent);
  button->setObjectName(name);
  button->setAccessibleName(QString(text).remove(QLatin1Char('&')));
  return button;
}

}  // namespace

SingleFileWindow::SingleFileWindow(std::unique_ptr<LumSingleFileDoc> document, AppContext& context, QWidget* parent)
    : DocumentWindow(context, parent), document_(std::move(document)) {
  document_->setDarkMode(Appearance::isDark());
  setObjectName("singleFileWindow");
  const std::filesystem::path path = document_->fileURL().value_or(std::filesystem::path());
  setWindowTitle(QString::fromStdString(path.filename().string()) + QStringLiteral("[*]"));
  setWindowFilePath(QString::fromStdString(path.string()));
  resize(560, 620);

  auto* central = new QWidget(this);
  auto* column = new QVBoxLayout(central);
  photo_ = new PhotoView(central);
  column->addWidget(photo_, 1);
  column->addSpacing(8);
  column->addWidget(buildDates(central));
  column->addSpacing(4);
  column->addLayout(buildButtons(central));
  setCentralWidget(central);
  sheet_ = new ChangeByIntervalSheet(sheetModel_, this);
  connect(sheet_, &QDialog::finished, this, [this] {
    raise();
    activateWindow();
  });

  buildActions();
  connect(document_.get(), &LumSingleFileDoc::datesChanged, this, &SingleFileWindow::showDocument);
  connect(&document_->undoStack(), &QUndoStack::indexChanged, this, &SingleFileWindow::showStates);
  connect(document_.get(), &LumSingleFileDoc::saveFinished, this, &SingleFileWindow::saveFinished);
  connect(this, &DocumentWindow::windowClosing, this, &SingleFileWindow::windowClosing);
  showDocument();
  if (!path.empty()) photo_->load(path);
}

SingleFileWindow::~SingleFileWindow() {
  // The pickers and the sheet refer to the document's models: they go
  // first, and the document's last signals (its undo history is cleared as
  // it goes) reach no widget.
  QObject::disconnect(document_.get(), nullptr, this, nullptr);
  QObject::disconnect(&document_->undoStack(), nullptr, this, nullptr);
  std::unique_ptr<QWidget> central(takeCentralWidget());
}

QWidget* SingleFileWindow::buildDates(QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setColumnStretch(2, 1);
  for (std::size_t i = 0; i < pickers_.size(); ++i) {
    const auto which = static_cast<DateTargets::Index>(i);
    const QString label = LumLocalized::text(kPickerLabels[i]);
    auto* name = new QLabel(label, box);
    pickers_[i] = new DatePickerWidget(document_->picker(which), QString(label).remove(QLatin1Char(':')), box);
    pickers_[i]->setObjectName(kPickerNames[i]);
    name->setBuddy(pickers_[i]);
    grid->addWidget(name, static_cast<int>(i), 0, Qt::AlignRight);
    grid->addWidget(pickers_[i], static_cast<int>(i), 1);
  }
  return box;
}

QLayout* SingleFileWindow::buildButtons(QWidget* parent) {
  auto* row = new QHBoxLayout;
  link_ = makeButton(LumLocalized::text("Synchronize"), "linkButton", parent);
  link_->setCheckable(true);
  link_->setChecked(document_->isLinked());
  connect(link_, &QPushButton::toggled, this, [this](bool on) { document_->setLinked(on); });
  interval_ = makeButton(tr("Change by Interval..."), "intervalButton", parent);
  connect(interval_, &QPushButton::clicked, this, &SingleFileWindow::showIntervalSheet);
  restore_ = makeButton(tr("Restore"), "restoreButton", parent);
  connect(restore_, &QPushButton::clicked, this, [this] { document_->restore(); });
  saveButton_ = makeButton(LumLocalized::text("Save"), "saveFileButton", parent);
  row->addWidget(link_);
  row->addWidget(interval_);
  row->addWidget(restore_);
  row->addStretch(1);
  row->addWidget(saveButton_);
  return row;
}

void SingleFileWindow::buildActions() {
  auto* close = new QAction(tr("&Close"), this);
  close->setShortcut(QKeySequence::Close);
  connect(close, &QAction::triggered, this, &QWidget::close);
  save_ = new QAction(LumLocalized::text("Save"), this);
  save_->setShortcut(QKeySequence::Save);
  connect(save_, &QAction::triggered, this, [this] { document_->saveDocument(); });
  connect(saveButton_, &QPushButton::clicked, save_, &QAction::trigger);
  revert_ = new QAction(tr("Re&vert to Saved"), this);
  connect(revert_, &QAction::triggered, restore_, &QPushButton::click);
  auto* interval = new QAction(tr("Change by &Interval..."), this);
  interval->setShortcut(Qt::CTRL | Qt::Key_I);
  connect(interval, &QAction::triggered, interval_, &QPushButton::click);
  auto* link = new QAction(LumLocalized::text("Synchronize"), this);
  link->setCheckable(true);
  link->setShortcut(Qt::CTRL | Qt::Key_L);
  connect(link, &QAction::toggled, link_, &QPushButton::setChecked);
  connect(link_, &QPushButton::toggled, link, &QAction::setChecked);
  addActions({close, save_, revert_, interval, link});
  buildMenuBar(*this, context().actions, WindowMenuActions{close, save_, nullptr, revert_, nullptr, {link, interval}});
}

void SingleFileWindow::showIntervalSheet() {
  // A field still being typed in ends its editing first, so the sheet
  // starts from the value the picker shows.
  if (QWidget* focused = focusWidget()) focused->clearFocus();
  sheet_->openFor(*document_);
}

void SingleFileWindow::showDocument() {
  for (DatePickerWidget* picker : pickers_) picker->refresh();
  showStates();
}

void SingleFileWindow::showStates() {
  const bool edited = document_->hasEditedFile();
  save_->setEnabled(document_->validateMenuItem(LumSingleFileDoc::MenuCommand::Save));
  saveButton_->setEnabled(save_->isEnabled());
  revert_->setEnabled(edited);
  link_->setEnabled(document_->isLinkEnabled());
  interval_->setEnabled(document_->isChangeByIntervalEnabled());
  setWindowModified(edited);
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
  showDocument();
  if (outcome.alert)
    context().prompts.showCriticalAlert(this, {outcome.alert->message, outcome.alert->informativeText, {}});
  if (std::exchange(savingForClose_, false)) closeSaveFinished(outcome.saved);
}

void SingleFileWindow::changeEvent(QEvent* event) {
  DocumentWindow::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) document_->appEffectiveAppearanceDidChange(Appearance::isDark());
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) document_->windowDidBecomeMain();
}

void SingleFileWindow::windowClosing() {
  // The document is the only one when no other document window is shown.
  bool onlyDocument = true;
  for (QWidget* top : QApplication::topLevelWidgets())
    if (top != this && top->isVisible() && qobject_cast<DocumentWindow*>(top)) onlyDocument = false;
  document_->windowWillClose(isActiveWindow(), onlyDocument);
}

const LumImageFile* SingleFileWindow::selectedImageFile() const { return document_->selectedImageFile(); }
