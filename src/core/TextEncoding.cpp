#include "core/TextEncoding.h"

#include <iconv.h>

#include <cerrno>
#include <vector>

namespace TextEncoding {
namespace {

const char* iconvName(std::uint32_t encoding) {
  switch (encoding) {
    case 1: return "ASCII";
    case 4: return "UTF-8";
    case 8: return "SHIFT_JIS";
    case 10: return "UTF-16BE";
    case 21: return "ISO-2022-JP";
    default: return nullptr;
  }
}

// Converts the whole input or fails; never a partial result.
std::optional<std::string> convert(const char* from, const char* to, std::string_view input) {
  iconv_t cd = iconv_open(to, from);
  if (cd == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
  std::string out;
  std::vector<char> in(input.begin(), input.end());
  char* inPtr = in.data();
  std::size_t inLeft = in.size();
  char buffer[256];
  bool ok = true;
  // The final call with null input flushes shift states (ISO-2022-JP).
  for (bool flushing = false;;) {
    char* outPtr = buffer;
    std::size_t outLeft = sizeof buffer;
    const std::size_t rc = flushing ? iconv(cd, nullptr, nullptr, &outPtr, &outLeft)
                                    : iconv(cd, &inPtr, &inLeft, &outPtr, &outLeft);
    out.append(buffer, static_cast<std::size_t>(outPtr - buffer));
    if (rc == static_cast<std::size_t>(-1)) {
      if (errno == E2BIG) continue;
      ok = false;
      break;
    }
    if (flushing) break;
    if (inLeft == 0) flushing = true;
  }
  iconv_close(cd);
  if (!ok) return std::nullopt;
  return out;
}

std::string_view asChars(std::span<const std::uint8_t> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace

bool isASCII(std::string_view text) {
  for (unsigned char c : text)
    if (c >= 0x80) return false;
  return true;
}

bool isValidUTF8(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size()) {
    const auto c = static_cast<unsigned char>(text[i]);
    std::size_t extra = 0;
    std::uint32_t cp = 0;
    if (c < 0x80) { ++i; continue; }
    if ((c & 0xE0) == 0xC0) { extra = 1; cp = c & 0x1F; }
    else if ((c & 0xF0) == 0xE0) { extra = 2; cp = c & 0x0F; }
    else if ((c & 0xF8) == 0xF0) { extra = 3; cp = c & 0x07; }
    else return false;
    if (text.size() - i <= extra) return false;
    for (std::size_t k = 1; k <= extra; ++k) {
      const auto cc = static_cast<unsigned char>(text[i + k]);
      if ((cc & 0xC0) != 0x80) return false;
      cp = (cp << 6) | (cc & 0x3F);
    }
    // Overlong forms, surrogates and values past U+10FFFF are not UTF-8.
    static constexpr std::uint32_t kMin[] = {0, 0x80, 0x800, 0x10000};
    if (cp < kMin[extra] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return false;
    i += extra + 1;
  }
  return true;
}

std::optional<std::string> encode(std::string_view utf8, std::uint32_t encoding) {
  const char* name = iconvName(encoding);
  if (!name || !isValidUTF8(utf8)) return std::nullopt;
  if (encoding == 4) return std::string(utf8);
  return convert("UTF-8", name, utf8);
}

std::optional<std::string> decode(std::span<const std::uint8_t> bytes, std::uint32_t encoding) {
  const char* name = iconvName(encoding);
  if (!name) return std::nullopt;
  if (encoding == 4) {
    if (!isValidUTF8(asChars(bytes))) return std::nullopt;
    return std::string(asChars(bytes));
  }
  return convert(name, "UTF-8", asChars(bytes));
}

std::optional<std::string> decodeUTF16(std::span<const std::uint8_t> bytes, bool bigEndian) {
  return convert(bigEndian ? "UTF-16BE" : "UTF-16LE", "UTF-8", asChars(bytes));
}

std::string readableText(std::span<const std::uint8_t> bytes) {
  if (isValidUTF8(asChars(bytes))) return std::string(asChars(bytes));
  std::string out;
  for (std::uint8_t b : bytes) {
    if (b < 0x80) {
      out.push_back(static_cast<char>(b));
    } else {
      out.push_back(static_cast<char>(0xC0 | (b >> 6)));
      out.push_back(static_cast<char>(0x80 | (b & 0x3F)));
    }
  }
  return out;
}

}  // namespace TextEncoding
