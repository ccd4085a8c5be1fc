#pragma once

#include <QObject>

class WindowsTest : public QObject {
  Q_OBJECT

 private slots:
  void closeSheetSaveWritesAndCloses();
  void cancelledLoadOpensNothing();
  void progressWindowCountsWithSeparators();
  void filesDroppedOnAWindowOpenAsDropped();
  void openDialogTakesFilesAndFolders();
  void failureListAlertShowsEveryPath();
};
