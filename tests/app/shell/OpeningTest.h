#pragma once

#include <QObject>

class OpeningTest : public QObject {
  Q_OBJECT

 private slots:
  void openFolderKeepsPhotosSorted();
  void separateWindowsStopAtFifty();
  void unreadableFileIsReportedAfterTheWindow();
  void droppingOpenFilesAsksThenOpensNothing();
  void handOversCloseTogetherOpenTogether();
  void quitReviewAsksLastOpenedFirst_data();
  void quitReviewAsksLastOpenedFirst();
  void quitWhileACloseSheetIsUpWaitsForIt();
  void quitWithNothingEditedQuits();
  void listSizeIsStoredAndAnnounced();
  void openedFileGoesToOpenRecent();
};
