#pragma once
// One running program per user: the first process holds a lock file and
// listens on a local socket; a later one hands its paths over to it (a
// version byte, then the list of absolute paths) and exits.
//
// A lock or a socket left behind by a process that crashed must not block
// the next start: the lock of a process that no longer runs counts as
// stale, and the holder of the lock removes any old socket before it
// listens.

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QStringList>

#include <memory>

class SingleInstance : public QObject {
  Q_OBJECT

 public:
  static constexpr quint8 kProtocolVersion = 1;

  // The lock and the socket are directory/name.lock and directory/name.socket.
  SingleInstance(const QString& directory, const QString& name, QObject* parent = nullptr);
  ~SingleInstance() override;

  // The user's runtime folder and a name of the user's own.
  static QString defaultDirectory();
  static QString defaultName();

  // True when this process is the first one: it holds the lock and listens.
  bool start();
  bool isPrimary() const { return server_ != nullptr; }
  // Sends paths to the first process; true when they were delivered.
  bool handOver(const QStringList& paths, int timeoutMs = 3000) const;

  QString socketPath() const { return socketPath_; }
  QString lockPath() const { return lockPath_; }

 signals:
  void filesHandedOver(const QStringList& paths);

 private:
  void acceptConnection();

  QString socketPath_;
  QString lockPath_;
  std::unique_ptr<QLockFile> lock_;
  std::unique_ptr<QLocalServer> server_;
};
