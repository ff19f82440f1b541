#include "wizard/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include "wizard/fault.h"

namespace bogenwerker {
namespace {

constexpr std::size_t mostBytes = 16U << 20U;
constexpr int notRegular = -1;  // beside the numbers of errno

struct Reason {
  int error;
  std::string_view what;
  std::string_view advice;
};

constexpr std::string_view checkRights = "Prüfen Sie die Rechte der Datei und des Ordners.";
constexpr std::string_view makeRoom = "Schaffen Sie Platz auf dem Datenträger.";
constexpr std::string_view tryAgain = "Versuchen Sie es in einem Augenblick noch einmal.";

constexpr std::array<Reason, 15> reasons = {{
    {ENOENT, "Die Datei fehlt.", "Legen Sie die Datei in den Ordner, aus dem der Bogenwerker läuft."},
    {EACCES, "Der Zugriff ist nicht erlaubt.", checkRights},
    {EPERM, "Der Zugriff ist nicht erlaubt.", checkRights},
    {EROFS, "Der Datenträger ist schreibgeschützt.", "Starten Sie den Bogenwerker in einem beschreibbaren Ordner."},
    {ENOSPC, "Der Datenträger ist voll.", makeRoom},
    {EDQUOT, "Ihr Speicherplatz ist aufgebraucht.", makeRoom},
    {EISDIR, "Unter diesem Namen gibt es schon einen Ordner.", "Benennen Sie den Ordner um oder verschieben Sie ihn."},
    {notRegular, "Unter diesem Namen liegt keine gewöhnliche Datei.", "Ersetzen Sie sie durch eine Datei."},
    {EFBIG, "Die Datei ist zu groß.", "Mehr als 16 Megabyte liest und schreibt der Bogenwerker nicht."},
    {EIO, "Der Datenträger meldet einen Fehler.", "Prüfen Sie ihn oder arbeiten Sie in einem anderen Ordner."},
    {EMFILE, "Es sind zu viele Dateien offen.", tryAgain},
    {ENFILE, "Es sind zu viele Dateien offen.", tryAgain},
    {ELOOP, "Unter diesem Namen liegt ein Verweis, der ins Leere führt.", "Ersetzen Sie ihn durch eine Datei."},
    {ENAMETOOLONG, "Der Name ist zu lang.", "Wählen Sie einen kürzeren."},
    {EEXIST, "„Bogenwerker.neu“ ist im Weg.", "Benennen Sie den Ordner dieses Namens um."},
}};

[[noreturn]] void throwFault(std::string_view name, std::string_view doing, int error) {
  std::string text = std::string(name) + " kann nicht " + std::string(doing) + " werden: ";
  for (const Reason& reason : reasons) {
    if (reason.error != error) continue;
    throw Fault(text.append(reason.what).append(" ").append(reason.advice));
  }
  throw Fault(text + "Das System meldet Fehler " + std::to_string(error) + ".");
}

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

std::string Files::read(std::string_view name) {
  std::string bytes;
  read(name, bytes);
  return bytes;
}

void Files::read(std::string_view name, std::string& bytes) {
  // Without waiting: a pipe of that name must not hold the wizard up.
  const int file = openFile(std::string(name).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) throwFault(name, "gelesen", errno);
  const Finally closing([this, file] { closeFile(file); });

  struct stat status {};
  if (fstat(file, &status) != 0) throwFault(name, "gelesen", errno);
  if (!S_ISREG(status.st_mode)) throwFault(name, "gelesen", S_ISDIR(status.st_mode) ? EISDIR : notRegular);
  if (static_cast<std::size_t>(status.st_size) > mostBytes) throwFault(name, "gelesen", EFBIG);

  // One byte more than the size, so that the end shows in the same call.
  bytes.resize(static_cast<std::size_t>(status.st_size) + 1);
  std::size_t count = 0;
  while (true) {
    const ssize_t more = readFile(file, bytes.data() + count, bytes.size() - count);
    if (more < 0 && errno == EINTR) continue;
    if (more < 0) throwFault(name, "gelesen", errno);
    count += static_cast<std::size_t>(more);
    const bool hasRoom = count < bytes.size();
    if (more == 0 || (hasRoom && count == static_cast<std::size_t>(status.st_size))) break;
    if (count > mostBytes) throwFault(name, "gelesen", EFBIG);
    if (count == bytes.size()) bytes.resize(2 * count);
  }
  bytes.resize(count);
}

void Files::replace(std::string_view name, std::string_view bytes, Durability durability) {
  const std::string target(name);
  // One name for all files, so that the next write takes away what a run that was killed has left behind.
  const std::string temporary = "Bogenwerker.neu";
  constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
  int file = openFile(temporary.c_str(), flags);
  if (file < 0 && errno == EEXIST) {
    unlink(temporary.c_str());
    file = openFile(temporary.c_str(), flags);
  }
  if (file < 0) throwFault(name, "geschrieben", errno);
  try {
    writeWhole(file, bytes, durability);
    if (renameFile(temporary.c_str(), target.c_str()) != 0) throw std::system_error(errno, std::system_category());
  } catch (const std::system_error& error) {
    unlink(temporary.c_str());
    throwFault(name, "geschrieben", error.code().value());
  }
  if (durability == Durability::untilPowerLoss) return;

  // The new name itself has to reach the disk too. Some file systems refuse to flush a folder; that is no loss.
  const int folder = open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  fsync(folder);
  close(folder);
}

void Files::writeWhole(int file, std::string_view bytes, Durability durability) {
  int error = 0;
  while (!bytes.empty() && error == 0) {
    const ssize_t count = writeFile(file, bytes.data(), bytes.size());
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    else if (count == 0) error = ENOSPC;
    else if (errno != EINTR) error = errno;
  }
  if (error == 0 && durability == Durability::onDisk && flushFile(file) != 0) error = errno;
  if (closeFile(file) != 0 && error == 0) error = errno;
  if (error != 0) throw std::system_error(error, std::system_category());
}

int Files::openFile(const char* path, int flags) { return open(path, flags, 0666); }
ssize_t Files::readFile(int file, char* bytes, std::size_t most) { return ::read(file, bytes, most); }
ssize_t Files::writeFile(int file, const char* bytes, std::size_t count) { return ::write(file, bytes, count); }
int Files::flushFile(int file) { return fsync(file); }
int Files::closeFile(int file) { return close(file); }
int Files::renameFile(const char* from, const char* to) { return std::rename(from, to); }

}  // namespace bogenwerker
