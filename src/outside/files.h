// The files in the player's folder: read whole, put in place whole.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace bogenwerker {

// What a file is opened for. A new one must not be there yet, one that grows must be.
enum class Opening { toRead, toMake, toAppend };

// Step files need not outlive a loss of power, as no later run reads them; the sheet must.
enum class Durability { untilPowerLoss, onDisk };

// Names are plain, without a path, in UTF-8; all files lie in the current directory of the process. Every operation
// throws Fault with a text that names the file and says what the player can do.
//
// The protected functions are one system call each, results and errno as on POSIX: the seam at which a test lets the
// disk fail. They and the private ones without a state stand in one file a system.
class Files {
 public:
  Files() = default;
  virtual ~Files();
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  // Holds the folder for this run, until the object or the process is gone, however it ends. False where another run
  // holds it. A file system that knows no locks is played on without.
  [[nodiscard]] bool holdFolder();

  // The bytes of a file of at most 16 MiB.
  [[nodiscard]] std::string read(std::string_view name);
  // The same into a buffer that keeps its memory from call to call.
  void read(std::string_view name, std::string& bytes);

  // Writes the bytes to Bogenwerker.neu beside the file and renames that: at every moment the name stands for the old
  // file or for the new one. A file that must not be written is left alone, one that is replaced keeps its mode, and a
  // symbolic link stays one: what it leads to is replaced.
  void replace(std::string_view name, std::string_view bytes, Durability durability);

  // Whether it was there or not; one that cannot be removed stays in silence.
  void remove(std::string_view name) { removeFile(std::string(name).c_str()); }

 protected:
  virtual int openFile(const char* path, Opening opening);
  virtual ssize_t readFile(int file, char* bytes, std::size_t most);
  virtual ssize_t writeFile(int file, const char* bytes, std::size_t count);
  virtual int flushFile(int file);
  virtual int closeFile(int file);
  virtual int renameFile(const char* from, const char* to);
  // -1 where a file is there and must not be written.
  virtual int checkWritable(const char* path);
  // Gives a new file the mode of the one that it is to replace, if there is one.
  virtual int copyMode(int file, const char* from);
  // -1 and EWOULDBLOCK where another run holds the folder.
  virtual int lockFolder();

 private:
  friend class GrowingFile;
  // In bytes; -1 and errno where it is no file to read.
  static std::int64_t sizeOf(int file);
  static void removeFile(const char* path);
  // Where the name leads: itself, or what a symbolic link stands for, there yet or not. Empty and errno for a circle.
  static std::string followLinks(const std::string& name);
  // What stands behind a failure to open or to make a file, where the number alone would mislead.
  static int causeOf(int error, const std::string& path, Opening opening);
  // A new name has to reach the disk too. Some file systems refuse to flush a folder; that is no loss.
  void flushFolderOf(const std::string& path);
  // 0, or what failed as errno has it.
  int writeAll(int file, std::string_view bytes);
  void writeWhole(int file, std::string_view bytes, Durability durability);

  std::intptr_t lock_ = -1;
};

}  // namespace bogenwerker
