// The files in the player's folder: read whole, put in place whole.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace bogenwerker {

// Step files need not outlive a loss of power, as no later run reads them; the sheet must.
enum class Durability { untilPowerLoss, onDisk };

// Names are plain, without a path, in UTF-8; all files lie in the current directory of the process. Every operation
// throws Fault with a text that names the file and says what the player can do.
//
// The protected functions are one system call each, results and errno as there: the seam at which a test lets the disk
// fail.
class Files {
 public:
  Files() = default;
  virtual ~Files() = default;
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  // The bytes of a file of at most 16 MiB.
  [[nodiscard]] std::string read(std::string_view name);
  // The same into a buffer that keeps its memory from call to call.
  void read(std::string_view name, std::string& bytes);

  // Writes the bytes to Bogenwerker.neu beside the file and renames that: at every moment the name stands for the old
  // file or for the new one. A symbolic link of that name is replaced, never followed.
  void replace(std::string_view name, std::string_view bytes, Durability durability);

 protected:
  virtual int openFile(const char* path, int flags);
  virtual ssize_t readFile(int file, char* bytes, std::size_t most);
  virtual ssize_t writeFile(int file, const char* bytes, std::size_t count);
  virtual int flushFile(int file);
  virtual int closeFile(int file);
  virtual int renameFile(const char* from, const char* to);

 private:
  void writeWhole(int file, std::string_view bytes, Durability durability);
};

}  // namespace bogenwerker
