// HEIC, HEIF and AVIF through libheif: the primary image, or for a small box
// the smallest of its thumbnails that gives exactly the size the primary
// image would get there.
#include <libheif/heif.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "formats/DecodedBitmap.h"
#include "formats/ImageDecoder.h"
#include "tools/Resizing.h"

namespace ImageDecoder {

namespace {

struct HeifFree {
  void operator()(heif_context* context) const { heif_context_free(context); }
  void operator()(heif_image_handle* handle) const { heif_image_handle_release(handle); }
  void operator()(heif_image* image) const { heif_image_release(image); }
};
using Context = std::unique_ptr<heif_context, HeifFree>;
using Handle = std::unique_ptr<heif_image_handle, HeifFree>;
using Image = std::unique_ptr<heif_image, HeifFree>;

bool ok(heif_error error) { return error.code == heif_error_Ok; }

long long pixelsOf(heif_image_handle* handle) {
  return static_cast<long long>(heif_image_handle_get_width(handle)) * heif_image_handle_get_height(handle);
}

// The size an image of width x height gets in the box, never enlarged.
Resizing::PixelSize boxed(heif_image_handle* handle, int boxWidth, int boxHeight) {
  const int width = heif_image_handle_get_width(handle), height = heif_image_handle_get_height(handle);
  return Resizing::newSize(width, height, boxWidth, boxHeight, false).value_or(Resizing::PixelSize{width, height});
}

// A thumbnail padded with bars to another shape, or one smaller than the
// box needs, is not used.
Handle thumbnailFor(heif_image_handle* primary, int boxWidth, int boxHeight) {
  const int count = heif_image_handle_get_number_of_thumbnails(primary);
  if (boxWidth <= 0 || boxHeight <= 0 || count <= 0) return nullptr;
  const Resizing::PixelSize wanted = boxed(primary, boxWidth, boxHeight);
  std::vector<heif_item_id> ids(static_cast<std::size_t>(count));
  heif_image_handle_get_list_of_thumbnail_IDs(primary, ids.data(), count);
  Handle best;
  for (const heif_item_id id : ids) {
    heif_image_handle* found = nullptr;
    if (!ok(heif_image_handle_get_thumbnail(primary, id, &found))) continue;
    Handle thumbnail(found);
    if (heif_image_handle_get_width(found) < wanted.width || heif_image_handle_get_height(found) < wanted.height ||
        boxed(found, boxWidth, boxHeight) != wanted)
      continue;
    if (!best || pixelsOf(found) < pixelsOf(best.get())) best = std::move(thumbnail);
  }
  return best;
}

std::shared_ptr<const lum::Bitmap> decodeHandle(heif_image_handle* handle) {
  if (pixelsOf(handle) > kMaxDecodedPixels) return nullptr;
  const bool alpha = heif_image_handle_has_alpha_channel(handle) != 0;
  heif_image* decoded = nullptr;
  if (!ok(heif_decode_image(handle, &decoded, heif_colorspace_RGB,
                            alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, nullptr)))
    return nullptr;
  const Image image(decoded);
  int stride = 0;
  const std::uint8_t* plane = heif_image_get_plane_readonly(image.get(), heif_channel_interleaved, &stride);
  // A coded picture larger than the image (a thumbnail coded as a padded
  // square) is cut to the image's size.
  const int width = std::min(heif_image_get_width(image.get(), heif_channel_interleaved),
                             heif_image_handle_get_width(handle));
  const int height = std::min(heif_image_get_height(image.get(), heif_channel_interleaved),
                              heif_image_handle_get_height(handle));
  auto bitmap = blankBitmap(width, height, alpha ? 4 : 3, alpha ? lum::AlphaInfo::Last : lum::AlphaInfo::None);
  if (!plane || !bitmap || stride < bitmap->bytesPerRow) return nullptr;
  for (int y = 0; y < bitmap->height; ++y)
    std::memcpy(bitmap->pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap->bytesPerRow),
                plane + static_cast<std::size_t>(y) * static_cast<std::size_t>(stride),
                static_cast<std::size_t>(bitmap->bytesPerRow));
  return bitmap;
}

}  // namespace

std::shared_ptr<const lum::Bitmap> decodeHEIF(orb::ByteView bytes, int boxWidth, int boxHeight) {
  const Context context(heif_context_alloc());
  if (!context || bytes.empty() ||
      !ok(heif_context_read_from_memory_without_copy(context.get(), bytes.data(), bytes.size(), nullptr)))
    return nullptr;
  heif_image_handle* found = nullptr;
  if (!ok(heif_context_get_primary_image_handle(context.get(), &found))) return nullptr;
  const Handle primary(found);
  if (const Handle thumbnail = thumbnailFor(primary.get(), boxWidth, boxHeight))
    if (auto bitmap = decodeHandle(thumbnail.get())) return bitmap;
  return decodeHandle(primary.get());
}

}  // namespace ImageDecoder
