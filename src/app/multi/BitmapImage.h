#pragma once
// Turns a decoded bitmap into a QImage. Safe on any thread (QImage is not a
// GUI-thread object), so thumbnail workers convert before handing back.

#include <QImage>

namespace lum {
struct Bitmap;
}

// A null image when the bitmap's layout is not one the decoders produce.
QImage imageFromBitmap(const lum::Bitmap& bitmap);
