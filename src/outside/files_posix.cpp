// The calls of Files, and what they stand on, as POSIX has them.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>

#include "outside/file_faults.h"
#include "outside/files.h"

namespace bogenwerker {
namespace {

template <class Result>
Result told(Result result) {
  if (result < 0 && errno == EDQUOT) errno = cause::quotaUsedUp;
  return result;
}

// A write beyond the user's limit of a file's size fails like any other, instead of ending the program.
[[maybe_unused]] const auto failsInstead = std::signal(SIGXFSZ, SIG_IGN);

}  // namespace

Files::~Files() {
  if (lock_ >= 0) close(static_cast<int>(lock_));
}

int Files::openFile(const char* path, Opening opening) {
  // Without waiting: a pipe of that name must not hold the wizard up.
  if (opening == Opening::toRead) return open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (opening == Opening::toAppend) return told(open(path, O_WRONLY | O_APPEND | O_CLOEXEC));
  return told(open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
}

ssize_t Files::readFile(int file, char* bytes, std::size_t most) { return ::read(file, bytes, most); }
ssize_t Files::writeFile(int file, const char* bytes, std::size_t count) { return told(::write(file, bytes, count)); }
int Files::flushFile(int file) { return told(fsync(file)); }
int Files::closeFile(int file) { return told(close(file)); }
int Files::renameFile(const char* from, const char* to) { return told(std::rename(from, to)); }

std::int64_t Files::sizeOf(int file) {
  struct stat status {};
  if (fstat(file, &status) != 0) return -1;
  if (S_ISREG(status.st_mode)) return status.st_size;
  errno = S_ISDIR(status.st_mode) ? EISDIR : cause::notRegular;
  return -1;
}

// The folder itself bears the lock: no file of its own, and gone with the process.
int Files::lockFolder() {
  const int folder = open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return -1;
  if (flock(folder, LOCK_EX | LOCK_NB) != 0) {
    const int error = errno;
    close(folder);
    errno = error;
    return -1;
  }
  lock_ = folder;
  return 0;
}

int Files::checkWritable(const char* path) { return access(path, W_OK) == 0 || errno == ENOENT ? 0 : -1; }

int Files::copyMode(int file, const char* from) {
  struct stat before {};
  struct stat now {};
  if (stat(from, &before) != 0) return errno == ENOENT ? 0 : -1;
  if (fstat(file, &now) != 0) return -1;
  constexpr mode_t permissions = 07777;
  return ((before.st_mode ^ now.st_mode) & permissions) == 0 ? 0 : fchmod(file, before.st_mode & permissions);
}

void Files::removeFile(const char* path) { unlink(path); }

std::string Files::followLinks(const std::string& name) {
  std::filesystem::path path(name);
  for (int links = 0; links < 40; ++links) {
    std::error_code isNoLink;
    const std::filesystem::path next = std::filesystem::read_symlink(path, isNoLink);
    if (isNoLink) return path.string();
    path = path.parent_path() / next;
  }
  errno = ELOOP;
  return {};
}

int Files::causeOf(int error, const std::string& path, Opening opening) {
  std::error_code gone;
  if (error == ENOENT && (std::filesystem::current_path(gone).empty() || gone)) return cause::folderGone;
  if (error == ENXIO) return cause::notRegular;
  const bool isMaking = opening == Opening::toMake;
  if (isMaking && (error == EACCES || error == EPERM)) return cause::folderProtected;
  if (!isMaking && error == ENOENT && std::filesystem::is_symlink(path, gone)) return ELOOP;
  return error;
}

void Files::flushFolderOf(const std::string& path) {
  const std::string folder = path.substr(0, path.rfind('/') + 1) + ".";
  const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (file < 0) return;
  flushFile(file);
  close(file);
}

}  // namespace bogenwerker
