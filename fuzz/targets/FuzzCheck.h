#pragma once
// What a fuzz target does when a property that must hold for every input
// fails: print the property and abort, so libFuzzer keeps the input as a
// crasher and the replay in the test suite fails on it.

#include <cstdio>
#include <cstdlib>
#include <string_view>

#define FUZZ_CHECK(condition)                                                                   \
  do {                                                                                          \
    if (!(condition)) {                                                                         \
      std::fprintf(stderr, "%s:%d: property failed: %s\n", __FILE__, __LINE__, #condition);     \
      std::abort();                                                                             \
    }                                                                                           \
  } while (0)

namespace fuzzcheck {

inline bool allDigits(std::string_view s) {
  for (const char c : s)
    if (c < '0' || c > '9') return false;
  return true;
}

// "yyyy:MM:dd HH:mm:ss" exactly: digits with ':' and ' ' in their places.
inline bool isExifDateText(std::string_view s) {
  if (s.size() != 19) return false;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const char want = (i == 4 || i == 7 || i == 13 || i == 16) ? ':' : i == 10 ? ' ' : '0';
    if (want == '0' ? !allDigits(s.substr(i, 1)) : s[i] != want) return false;
  }
  return true;
}

}  // namespace fuzzcheck
