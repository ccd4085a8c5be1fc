#include "app/sheets/FileListAlert.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>

FileListAlert::FileListAlert(QWidget* parent, const QString& message, const QString& informativeText,
                             const QStringList& paths)
    : QDialog(parent) {
  setObjectName("fileListAlert");
  setSizeGripEnabled(true);
  auto* grid = new QGridLayout(this);
  auto* icon = new QLabel(this);
  const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxCritical, nullptr, this).pixmap(side, side));
  grid->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);

  auto* text = new QLabel(message, this);
  text->setObjectName("message");
  QFont bold = text->font();
  bold.setBold(true);
  text->setFont(bold);
  text->setWordWrap(true);
  grid->addWidget(text, 0, 1);
  auto* informative = new QLabel(informativeText, this);
  informative->setObjectName("informativeText");
  informative->setWordWrap(true);
  grid->addWidget(informative, 1, 1);

  auto* list = new QListWidget(this);
  list->setObjectName("pathList");
  list->setAccessibleName(message);
  list->addItems(paths);
  grid->addWidget(list, 2, 0, 1, 2);
  grid->setRowStretch(2, 1);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
  ok->setAccessibleName(ok->text());
  ok->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  grid->addWidget(buttons, 3, 0, 1, 2);
  resize(480, 320);
}

void FileListAlert::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  setMinimumSize(size());
}
