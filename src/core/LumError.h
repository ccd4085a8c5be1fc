#pragma once
// An error reported to a caller: a domain text and a code, as the user and
// the command-line tool see them ("LumErrorDomain", -1).

#include <string>

struct LumError {
  std::string domain;
  int code = 0;
  std::string reason;  // optional human-readable detail, empty when none

  friend bool operator==(const LumError&, const LumError&) = default;
};

inline constexpr const char* kLumErrorDomain = "LumErrorDomain";
// Codes of kLumErrorDomain: -1 a format the program does not read, -2 a file
// that cannot be read, -3 a format it knows but does not edit (a video, a
// file cut off before its metadata), with the reason.
inline constexpr int kLumErrorRefused = -3;
inline constexpr const char* kOrbStringNumberErrorDomain = "OrbStringNumberErrorDomain";
