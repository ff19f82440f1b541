// A file that grows bit by bit while the program runs.
#pragma once

#include <string>
#include <string_view>

#include "outside/files.h"

namespace bogenwerker {

// What was added stays in the file, however the process ends. The faults leave the object fit for nothing but its end.
class GrowingFile {
 public:
  // Puts a file of that name in place, on the disk, that holds those bytes, and keeps it open. Throws Fault.
  GrowingFile(Files& files, std::string_view name, std::string_view bytes);
  ~GrowingFile();
  GrowingFile(const GrowingFile&) = delete;
  GrowingFile& operator=(const GrowingFile&) = delete;

  // In one call to the system, as a rule. Throws Fault.
  void append(std::string_view bytes);
  // Brings all of it to the disk, where it outlives a loss of power. Throws Fault.
  void flush();

 private:
  Files& files_;
  std::string name_;
  int file_;
};

}  // namespace bogenwerker
