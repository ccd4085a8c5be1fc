// Runs a fuzz target over files instead of generated inputs, so that the
// normal test suite replays every crasher the fuzzers ever found (and the
// seeds) without needing libFuzzer. Arguments are files or folders.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

int replay(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  // Copy into an exactly sized heap block so AddressSanitizer sees its end.
  std::vector<std::uint8_t> exact(bytes.begin(), bytes.end());
  LLVMFuzzerTestOneInput(exact.empty() ? nullptr : exact.data(), exact.size());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  int count = 0;
  for (int i = 1; i < argc; ++i) {
    const std::filesystem::path arg = argv[i];
    std::error_code ec;
    if (std::filesystem::is_directory(arg, ec)) {
      for (const auto& e : std::filesystem::recursive_directory_iterator(arg, ec))
        if (e.is_regular_file()) count += replay(e.path());
    } else if (std::filesystem::is_regular_file(arg, ec)) {
      count += replay(arg);
    }
  }
  std::printf("replayed %d inputs\n", count);
  return 0;
}
