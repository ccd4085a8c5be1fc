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
inline constexpr const char* kOrbStringNumberErrorDomain = "OrbStringNumberErrorDomain";
