#include "outside/files.h"

#include <cerrno>
#include <system_error>

#include "outside/file_faults.h"
#include "values/fault.h"

namespace bogenwerker {
namespace {

constexpr std::size_t mostBytes = 16U << 20U;

// Runs its action on the way out, whichever way that is.
template <class Action>
class Finally {
 public:
  explicit Finally(Action action) : action_(std::move(action)) {}
  ~Finally() { action_(); }
  Finally(const Finally&) = delete;
  Finally& operator=(const Finally&) = delete;

 private:
  Action action_;
};

}  // namespace

bool Files::holdFolder() { return lock_ >= 0 || lockFolder() == 0 || errno != EWOULDBLOCK; }

std::string Files::read(std::string_view name) {
  std::string bytes;
  read(name, bytes);
  return bytes;
}

void Files::read(std::string_view name, std::string& bytes) {
  const int file = openFile(std::string(name).c_str(), Opening::toRead);
  if (file < 0) throw Fault(cannotRead(name, causeOf(errno, std::string(name), Opening::toRead)));
  const Finally closing([this, file] { closeFile(file); });

  const std::int64_t size = sizeOf(file);
  if (size < 0) throw Fault(cannotRead(name, errno));
  if (static_cast<std::size_t>(size) > mostBytes) throw Fault(cannotRead(name, EFBIG));

  // One byte more than the size, so that the end shows in the same call.
  bytes.resize(static_cast<std::size_t>(size) + 1);
  std::size_t count = 0;
  while (true) {
    const ssize_t more = readFile(file, bytes.data() + count, bytes.size() - count);
    if (more < 0 && errno == EINTR) continue;
    if (more < 0) throw Fault(cannotRead(name, errno));
    count += static_cast<std::size_t>(more);
    const bool hasRoom = count < bytes.size();
    if (more == 0 || (hasRoom && count == static_cast<std::size_t>(size))) break;
    if (count > mostBytes) throw Fault(cannotRead(name, EFBIG));
    if (count == bytes.size()) bytes.resize(2 * count);
  }
  bytes.resize(count);
}

void Files::replace(std::string_view name, std::string_view bytes, Durability durability) {
  const std::string target = followLinks(std::string(name));
  if (target.empty() || checkWritable(target.c_str()) != 0) throw Fault(cannotWrite(name, errno));
  // One name for all files of a folder, so that the next write takes away what a run that was killed has left behind.
  const std::string temporary = target.substr(0, target.rfind('/') + 1) + "Bogenwerker.neu";
  int file = openFile(temporary.c_str(), Opening::toMake);
  if (file < 0 && errno == EEXIST) {
    removeFile(temporary.c_str());
    file = openFile(temporary.c_str(), Opening::toMake);
  }
  if (file < 0) throw Fault(cannotWrite(name, causeOf(errno, temporary, Opening::toMake)));
  try {
    if (copyMode(file, target.c_str()) != 0) {
      const int error = errno;
      closeFile(file);
      throw std::system_error(error, std::system_category());
    }
    writeWhole(file, bytes, durability);
    if (renameFile(temporary.c_str(), target.c_str()) != 0) throw std::system_error(errno, std::system_category());
  } catch (const std::system_error& error) {
    removeFile(temporary.c_str());
    throw Fault(cannotWrite(name, error.code().value()));
  }
  if (durability == Durability::onDisk) flushFolderOf(target);
}

int Files::writeAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = writeFile(file, bytes.data(), bytes.size());
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    else if (count == 0) return ENOSPC;
    else if (errno != EINTR) return errno;
  }
  return 0;
}

void Files::writeWhole(int file, std::string_view bytes, Durability durability) {
  int error = writeAll(file, bytes);
  if (error == 0 && durability == Durability::onDisk && flushFile(file) != 0) error = errno;
  if (closeFile(file) != 0 && error == 0) error = errno;
  if (error != 0) throw std::system_error(error, std::system_category());
}

}  // namespace bogenwerker
