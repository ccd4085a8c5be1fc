#include "ViewerShots.h"

#include <QPalette>
#include <QSignalSpy>
#include <QTest>

#include <fstream>
#include <iterator>
#include <memory>

#include "ScreenshotSession.h"
#include "app/preferences/Settings.h"
#include "app/viewer/ImageWindow.h"
#include "documents/LumFileItemDoc.h"
#include "formats/LumImageFile.h"
#include "support/JpegBuilder.h"

namespace fs = std::filesystem;

namespace Screenshots {

namespace {

lumtest::Bytes readAll(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// A sample's picture under an Exif block naming the camera, as a camera
// writes it (the samples themselves carry no model).
fs::path writePhotoWithModel(const fs::path& samples) {
  const lumtest::Bytes picture = lumtest::jpegBody(readAll(samples / "IMG_0001.jpg"));
  const std::vector<lumtest::AsciiEntry> ifd0{{0x010F, std::string("Lumidate Samples\0", 17)},
                                              {0x0110, std::string("Sample Camera S1\0", 17)},
                                              {0x0132, std::string("2019:07:20 09:15:00\0", 20)}};
  const lumtest::Bytes bytes = lumtest::JpegBuilder().exif(lumtest::exifTiff(ifd0, {})).raw(picture).build(false);
  const fs::path path = samples / "DSC_0042.jpg";
  std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()),
                                              static_cast<std::streamsize>(bytes.size()));
  return path;
}

}  // namespace

void shootViewer(Session& session, Settings& settings, const fs::path& samples) {
  const fs::path path = writePhotoWithModel(samples);
  LumError error;
  std::unique_ptr<LumImageFile> file = LumImageFile::imageFileWithURL(path, &error);
  if (!file) return;
  const LumFileItemDoc item(path, std::move(file));

  settings.setShowInformation(true);
  ImageWindow window(settings);
  window.resize(360, 260);
  QSignalSpy shown(&window, &ImageWindow::imageShown);
  window.showWindowWithImageFile(&item.imageFile());
  if (!shown.wait(20000)) return;
  session.shoot(QStringLiteral("viewer"), window);

  useStableLook(true);
  if (!QTest::qWaitFor([&] { return window.palette().color(QPalette::Window).lightness() < 128; }, 20000)) return;
  window.repaint();
  session.shoot(QStringLiteral("viewer-dark"), window);
  useStableLook(false);
  window.setImageFile(nullptr);
}

}  // namespace Screenshots
