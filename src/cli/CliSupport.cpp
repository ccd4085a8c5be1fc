#include "cli/CliSupport.h"

#include <QTextStream>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

namespace cli {

std::optional<int> parseCommandLine(QCommandLineParser& parser, const QStringList& args, const Usage& usage) {
  if (!parser.parse(args)) return usageError(usage, parser.errorText());
  if (!parser.isSet("help")) return std::nullopt;
  QString help = parser.helpText();
  help.replace(0, help.indexOf('\n'), QStringLiteral("Usage: ") + usage.synopsis);
  QTextStream(stdout) << help << usage.examples;
  return 0;
}

int usageError(const Usage& usage, const QString& message) {
  QTextStream(stderr) << "lumidate-cli " << usage.command << ": " << message << "\nUsage: " << usage.synopsis << '\n';
  return 2;
}

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

QString displayPath(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

nlohmann::ordered_json errorJson(const LumError& error) {
  return {{"domain", error.domain}, {"code", error.code}};
}

void reportOpenFailure(const std::filesystem::path& path, const LumError& error) {
  QTextStream err(stderr);
  err << "lumidate-cli: " << displayPath(path) << ": cannot open (" << QString::fromStdString(error.domain) << ' '
      << error.code;
  if (!error.reason.empty()) err << ", " << QString::fromStdString(error.reason);
  err << ")\n";
}

int finishNow(int status) {
#if defined(__SANITIZE_ADDRESS__)
  return status;
#else
  std::fflush(nullptr);
  ::_exit(status);
#endif
}

void printJson(const nlohmann::ordered_json& value) {
  const std::string text = value.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + '\n';
  std::fwrite(text.data(), 1, text.size(), stdout);
}

}  // namespace cli
