#pragma once
// Pieces every lumidate-cli command shares: work spread over all cores, the
// error object and line of a file that cannot be opened, and JSON output.

#include <QString>

#include <cstddef>
#include <filesystem>
#include <functional>

#include <nlohmann/json.hpp>

#include "core/LumError.h"

namespace cli {

// Calls work(i) for every i in [0, count), spread over all cores; returns
// when every call has returned. Each i is taken exactly once.
void forEachInParallel(std::size_t count, const std::function<void(std::size_t)>& work);

QString displayPath(const std::filesystem::path& path);

// {"domain": ..., "code": ...} for a file that could not be opened.
nlohmann::ordered_json errorJson(const LumError& error);

// "lumidate-cli: PATH: cannot open (LumErrorDomain -1, reason)" on stderr.
void reportOpenFailure(const std::filesystem::path& path, const LumError& error);

// Prints the value indented to standard output. Texts taken from files and
// paths may hold bytes that are not UTF-8; they are replaced, never fatal.
void printJson(const nlohmann::ordered_json& value);

}  // namespace cli
