#include "outside/growing_file.h"

#include <cerrno>

#include "outside/file_faults.h"
#include "values/fault.h"

namespace bogenwerker {

GrowingFile::GrowingFile(Files& files, std::string_view name, std::string_view bytes) : files_(files), name_(name) {
  files_.replace(name_, bytes, Durability::onDisk);
  file_ = files_.openFile(name_.c_str(), Opening::toAppend);
  if (file_ < 0) throw Fault(cannotWrite(name_, errno));
}

GrowingFile::~GrowingFile() { files_.closeFile(file_); }

void GrowingFile::append(std::string_view bytes) {
  if (const int error = files_.writeAll(file_, bytes); error != 0) throw Fault(cannotWrite(name_, error));
}

void GrowingFile::flush() {
  if (files_.flushFile(file_) != 0) throw Fault(cannotWrite(name_, errno));
}

}  // namespace bogenwerker
