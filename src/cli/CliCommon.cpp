#include "cli/CliCommon.h"

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

namespace cli {

void forEachInParallel(std::size_t count, const std::function<void(std::size_t)>& work) {
  std::atomic<std::size_t> next{0};
  const auto worker = [&] {
    for (std::size_t i = next++; i < count; i = next++) work(i);
  };
  const std::size_t cores = std::max(1u, std::thread::hardware_concurrency());
  const std::size_t workers = std::max<std::size_t>(1, std::min(cores, count));
  std::vector<std::jthread> threads;
  for (std::size_t i = 1; i < workers; ++i) threads.emplace_back(worker);
  worker();
}

nlohmann::ordered_json errorJson(const LumError& error) {
  nlohmann::ordered_json json{{"domain", error.domain}, {"code", error.code}};
  if (!error.reason.empty()) json["reason"] = error.reason;
  return json;
}

void reportOpenFailure(const std::filesystem::path& path, const LumError& error) {
  std::string line = "lumidate-cli: " + path.string() + ": cannot open (" + error.domain + ' ' +
                     std::to_string(error.code);
  if (!error.reason.empty()) line += ", " + error.reason;
  line += ")\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
}

void printJson(const nlohmann::ordered_json& value) {
  const std::string text = value.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + '\n';
  std::fwrite(text.data(), 1, text.size(), stdout);
}

int finishNow(int status) {
#if defined(__SANITIZE_ADDRESS__)
  return status;
#else
  std::fflush(nullptr);
  ::_exit(status);
#endif
}

}  // namespace cli
