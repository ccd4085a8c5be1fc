#include "documents/BatchFlush.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <map>
#include <system_error>

namespace InPlaceWriter {
namespace {

std::string systemReason(int error) { return std::system_category().message(error ? error : EIO); }

// The files of the batch by the file system they lie on. A file whose
// descriptor cannot even be asked is answered at once.
std::map<dev_t, std::vector<std::size_t>> byFileSystem(std::span<OpenFile> files, std::vector<std::string>& reasons) {
  std::map<dev_t, std::vector<std::size_t>> groups;
  for (std::size_t i = 0; i < files.size(); ++i) {
    struct stat st {};
    if (!files[i].isOpen() || ::fstat(files[i].fd(), &st) != 0) reasons[i] = systemReason(errno);
    else groups[st.st_dev].push_back(i);
  }
  return groups;
}

// Waits for any writeback of the file still under way and answers the error
// of any writeback of its pages since the descriptor was opened. After the
// file system's flush there is nothing left to write, and unlike fdatasync
// this asks the disk for no cache flush of its own.
int writebackError(int fd) {
  constexpr unsigned kWaitAndWrite =
      SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
  return ::sync_file_range(fd, 0, 0, kWaitAndWrite) == 0 ? 0 : errno;
}

}  // namespace

std::vector<std::string> flushTogether(std::span<OpenFile> files, const FlushFunction& flush) {
  std::vector<std::string> reasons(files.size());
  for (const auto& [device, members] : byFileSystem(files, reasons)) {
    // One syncfs writes out every file of the batch on this file system and
    // flushes the disk's cache; its failure (the flush itself, or an error
    // the file system met) may concern any of them. A failed writeback of a
    // file's own pages shows on that file's descriptor, whichever file's
    // descriptor the syncfs went through.
    const int status = flush ? flush(files[members.front()].fd()) : ::syncfs(files[members.front()].fd());
    const std::string failed = status == 0 ? std::string() : systemReason(errno);
    for (const std::size_t i : members) {
      if (!failed.empty()) reasons[i] = failed;
      else if (const int error = writebackError(files[i].fd())) reasons[i] = systemReason(error);
    }
  }
  for (OpenFile& file : files) file.close();
  return reasons;
}

}  // namespace InPlaceWriter
