#pragma once
// Sets TZ for the lifetime of a test and puts the previous value back, so
// tests that read the local zone pass in any machine zone.

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace lumtest {

class ZoneGuard {
 public:
  explicit ZoneGuard(const char* zone) {
    if (const char* old = std::getenv("TZ")) previous_ = old;
    setenv("TZ", zone, 1), tzset();
  }
  ~ZoneGuard() { previous_ ? setenv("TZ", previous_->c_str(), 1) : unsetenv("TZ"), tzset(); }
  ZoneGuard(const ZoneGuard&) = delete;
  ZoneGuard& operator=(const ZoneGuard&) = delete;

 private:
  std::optional<std::string> previous_;
};

}  // namespace lumtest
