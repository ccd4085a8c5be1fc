#include "app/startup/OpenQueue.h"

OpenQueue::OpenQueue(QObject* parent) : QObject(parent) {
  timer_.setSingleShot(true);
  timer_.setInterval(kDelayMs);
  connect(&timer_, &QTimer::timeout, this, [this] {
    if (!waiting_.isEmpty()) emit ready(std::exchange(waiting_, {}));
  });
}

void OpenQueue::add(const QStringList& paths) {
  waiting_ << paths;
  timer_.start();
}
