#include "formats/RecordText.h"

#include <iconv.h>

#include <cerrno>

namespace orb {
namespace {

const char* iconvName(RecordEncoding encoding) {
  return encoding == RecordEncoding::UTF8 ? "UTF-8" : "MACINTOSH";
}

// One iconv conversion of a whole buffer; nullopt on any invalid or
// unrepresentable sequence (iconv's non-reversible substitutions are not used).
std::optional<std::string> convert(const char* to, const char* from, std::string_view input) {
  iconv_t cd = iconv_open(to, from);
  if (cd == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
  std::string out;
  // UTF-8 needs at most 4 bytes per input byte from either source.
  std::string buffer(input.size() * 4 + 4, '\0');
  char* in = const_cast<char*>(input.data());
  std::size_t inLeft = input.size();
  char* outPtr = buffer.data();
  std::size_t outLeft = buffer.size();
  const std::size_t result = iconv(cd, &in, &inLeft, &outPtr, &outLeft);
  iconv_close(cd);
  if (result == static_cast<std::size_t>(-1) || result > 0 || inLeft != 0) return std::nullopt;
  buffer.resize(buffer.size() - outLeft);
  return buffer;
}

}  // namespace

std::optional<std::string> decodeText(std::span<const std::uint8_t> bytes, RecordEncoding encoding) {
  const std::string_view input(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  return convert("UTF-8", iconvName(encoding), input);
}

std::optional<std::vector<std::uint8_t>> encodeText(std::string_view utf8, RecordEncoding encoding) {
  auto text = convert(iconvName(encoding), "UTF-8", utf8);
  if (!text) return std::nullopt;
  return std::vector<std::uint8_t>(text->begin(), text->end());
}

}  // namespace orb
