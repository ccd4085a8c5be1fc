#pragma once
// Makes a batch of written files durable together.
//
// Flushing each file on its own costs the disk one cache flush a file; a
// folder of photos would spend most of its save waiting on them. Instead the
// files of a batch are written first and then flushed with one syncfs(2) per
// file system they lie on, which writes their pages out together and flushes
// the disk's cache once. Each file's own descriptor then tells whether the
// writeback of its pages failed, so a failure is charged to the files it
// touched and nothing else.

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "documents/InPlaceWriter.h"

namespace InPlaceWriter {

// The call that makes a whole file system durable through one of its files;
// tests replace it to make a flush fail. Same contract as syncfs(2): 0, or -1
// with errno set.
using FlushFunction = std::function<int(int fd)>;

// Flushes the written files (each still open from writeWithoutFlush) and
// closes them. Answers, in the same order, an empty reason for a file whose
// bytes are on the disk, else why they may not be. A flush that fails gives
// its reason to every file of its file system in the batch.
std::vector<std::string> flushTogether(std::span<OpenFile> files, const FlushFunction& flush = {});

}  // namespace InPlaceWriter
