#pragma once

#include <QObject>

class StartupTest : public QObject {
  Q_OBJECT

 private slots:
  void settingsDefaults();
  void oldTableLayoutIsDroppedOnce_data();
  void oldTableLayoutIsDroppedOnce();
  void secondInstanceHandsItsFilesOver();
  void staleLockAndSocketDoNotBlock();
  void helpAndVersionNeedNoDisplay_data();
  void helpAndVersionNeedNoDisplay();
};
