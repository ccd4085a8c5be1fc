#pragma once
// The application-wide notification centre: one object, one signal.
//
// A poster names what happened and passes the object it concerns (compared by
// identity by the receivers, never dereferenced by the centre). Receivers
// connect to posted() and look at the name.

#include <QObject>
#include <QString>

inline constexpr const char* kLumDocumentDidChangeNotification = "LumDocumentDidChangeNotification";
inline constexpr const char* kLumImageFileDidChangeNotification = "LumImageFileDidChangeNotification";
inline constexpr const char* kLumImageFileDidSaveNotification = "LumImageFileDidSaveNotification";
inline constexpr const char* kLumListSizeDidChangeNotification = "LumListSizeDidChangeNotification";

class LumNotificationCenter : public QObject {
  Q_OBJECT

 public:
  // The one centre of the application, made on first use.
  static LumNotificationCenter& defaultCenter();

  void post(const QString& name, const void* object = nullptr);

 signals:
  void posted(const QString& name, const void* object);

 private:
  LumNotificationCenter() = default;
};
