#include "app/startup/SingleInstance.h"

#include <QDataStream>
#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>

SingleInstance::SingleInstance(const QString& directory, const QString& name, QObject* parent)
    : QObject(parent),
      socketPath_(QDir(directory).filePath(name + QStringLiteral(".socket"))),
      lockPath_(QDir(directory).filePath(name + QStringLiteral(".lock"))) {}

SingleInstance::~SingleInstance() = default;

QString SingleInstance::defaultDirectory() {
  QString dir = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  return dir.isEmpty() ? QDir::tempPath() : dir;
}

QString SingleInstance::defaultName() {
  const QString user = qEnvironmentVariable("USER", QStringLiteral("user"));
  return QStringLiteral("org.lumidate.Lumidate-") + user;
}

bool SingleInstance::start() {
  auto lock = std::make_unique<QLockFile>(lockPath_);
  // tryLock takes over a lock whose process is gone (QLockFile checks it).
  if (!lock->tryLock(0)) return false;
  lock_ = std::move(lock);
  // Holding the lock, no other instance listens: any socket file is stale.
  QLocalServer::removeServer(socketPath_);
  auto server = std::make_unique<QLocalServer>();
  server->setSocketOptions(QLocalServer::UserAccessOption);
  if (!server->listen(socketPath_)) {
    qWarning("lumidate: cannot listen on %s: %s", qPrintable(socketPath_), qPrintable(server->errorString()));
    return true;  // still the first instance, only without hand-overs
  }
  connect(server.get(), &QLocalServer::newConnection, this, &SingleInstance::acceptConnection);
  server_ = std::move(server);
  return true;
}

bool SingleInstance::handOver(const QStringList& paths, int timeoutMs) const {
  QLocalSocket socket;
  socket.connectToServer(socketPath_);
  if (!socket.waitForConnected(timeoutMs)) return false;
  QByteArray message;
  QDataStream out(&message, QIODevice::WriteOnly);
  out << kProtocolVersion << paths;
  socket.write(message);
  if (!socket.waitForBytesWritten(timeoutMs)) return false;
  socket.disconnectFromServer();
  return true;
}

void SingleInstance::acceptConnection() {
  while (QLocalSocket* socket = server_->nextPendingConnection()) {
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    auto stream = std::make_shared<QDataStream>(socket);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket, stream] {
      stream->startTransaction();
      quint8 version = 0;
      QStringList paths;
      *stream >> version >> paths;
      if (!stream->commitTransaction()) return;  // more bytes to come
      if (version == kProtocolVersion) emit filesHandedOver(paths);
      socket->disconnectFromServer();
    });
  }
}
