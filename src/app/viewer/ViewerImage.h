#pragma once
// What the image viewer shows of one file, made on a worker thread from
// the file's path alone: the picture as decoded (no scaling, no
// orientation correction) and the camera model of IFD0. The worker never
// sees the document's LumImageFile, which the GUI thread may free while
// the decoding runs.

#include <QImage>
#include <QSize>
#include <QString>

#include <filesystem>

struct ViewerImage {
  QImage picture;  // null when the file cannot be read or decoded
  QString model;   // IFD0's Model as shown to the user; empty without one
};

// Reads and decodes the file at path. Safe on any thread.
ViewerImage readViewerImage(const std::filesystem::path& path);

// The information line: "<width> x <height>", followed by ", <model>" when
// there is a model.
QString viewerInformationText(QSize pixelSize, const QString& model);
