#pragma once
// Pieces every lumidate-cli command shares that need no Qt, so that the
// program itself can list dates without loading Qt: work spread over all
// cores, the error object and line of a file that cannot be opened, JSON
// output, and the quick end of a command.

#include <cstddef>
#include <filesystem>
#include <functional>

#include <nlohmann/json.hpp>

#include "core/LumError.h"

namespace cli {

// Calls work(i) for every i in [0, count), spread over all cores; returns
// when every call has returned. Each i is taken exactly once.
void forEachInParallel(std::size_t count, const std::function<void(std::size_t)>& work);

// {"domain": ..., "code": ..., "reason": ...} for a file that could not be
// opened (the reason only when there is one).
nlohmann::ordered_json errorJson(const LumError& error);

// "lumidate-cli: PATH: cannot open (LumErrorDomain -1, reason)" on stderr.
void reportOpenFailure(const std::filesystem::path& path, const LumError& error);

// Prints the value indented to standard output. Texts taken from files and
// paths may hold bytes that are not UTF-8; they are replaced, never fatal.
void printJson(const nlohmann::ordered_json& value);

// For a command that has written and reported everything: ends the process
// with status at once and leaves what it built (documents, the models of
// every photo) to the kernel, which releases a whole address space faster
// than destructors free it piece by piece; over 500 photos that is several
// milliseconds. Builds with AddressSanitizer answer status instead, so that
// the normal teardown, and the leak check after it, still run in the tests.
// Streams other than stdio's must be flushed before.
int finishNow(int status);

}  // namespace cli
