#pragma once
// Files handed to the program (at launch or by a later process) wait a
// moment, so that files arriving in several calls open together: 0.25 s
// after the last arrival they are released at once.

#include <QObject>
#include <QStringList>
#include <QTimer>

class OpenQueue : public QObject {
  Q_OBJECT

 public:
  static constexpr int kDelayMs = 250;

  explicit OpenQueue(QObject* parent = nullptr);

  void add(const QStringList& paths);
  bool isEmpty() const { return waiting_.isEmpty(); }

 signals:
  void ready(const QStringList& paths);

 private:
  QStringList waiting_;
  QTimer timer_;
};
