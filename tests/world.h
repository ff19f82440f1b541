// A wizard in a folder of its own: catalogues as shipped, dice that are known, a disk that can fail.
#pragma once

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "headless/dump.h"
#include "headless/gestures.h"
#include "outside/files.h"
#include "wizard/wizard.h"

namespace bogenwerker {

// The real disk, until told to fail. Every system call counts, so that a test can let each one fail in turn.
class FaultyFiles final : public Files {
 public:
  // The call with that number from now on, counted from 0, fails once with that errno.
  void failAt(int call, int error) {
    calls_ = 0;
    failing_ = call;
    error_ = error;
  }
  [[nodiscard]] int calls() const { return calls_; }
  std::size_t mostPerWrite = static_cast<std::size_t>(-1);
  int otherFlushes = 0;  // of folders, which may fail in silence, and of what grows: they do not count as calls

 private:
  bool fails() {
    if (calls_++ != failing_) return false;
    errno = error_;
    return true;
  }
  int openFile(const char* path, Opening opening) override {
    const int file = fails() ? -1 : Files::openFile(path, opening);
    writing_ = opening == Opening::toMake ? file : -1;  // never two files are open at once
    return file;
  }
  ssize_t readFile(int file, char* bytes, std::size_t most) override {
    return fails() ? -1 : Files::readFile(file, bytes, most);
  }
  ssize_t writeFile(int file, const char* bytes, std::size_t count) override {
    return fails() ? -1 : Files::writeFile(file, bytes, std::min(count, mostPerWrite));
  }
  int flushFile(int file) override {
    if (file == writing_ && fails()) return -1;
    otherFlushes += file == writing_ ? 0 : 1;
    return Files::flushFile(file);
  }
  int closeFile(int file) override {
    const int result = Files::closeFile(file);  // the descriptor is gone either way, as with the real call
    // What was only read is whole whatever close says.
    return std::exchange(writing_, -1) == file && fails() ? -1 : result;
  }
  int renameFile(const char* from, const char* to) override { return fails() ? -1 : Files::renameFile(from, to); }
  int checkWritable(const char* path) override { return fails() ? -1 : Files::checkWritable(path); }
  int copyMode(int file, const char* from) override { return fails() ? -1 : Files::copyMode(file, from); }

  int writing_ = -1;
  int calls_ = 0;
  int failing_ = -1;
  int error_ = 0;
};

// Makes a folder below the system's temporary one, goes there, and takes the folder away in the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    do path_ = std::filesystem::temp_directory_path() / ("bogenwerker-" + std::to_string(random()));
    while (!std::filesystem::create_directory(path_));
    std::filesystem::current_path(path_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::current_path("/", ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

 private:
  std::filesystem::path path_;
};

// A path from UTF-8, wherever that is not what the system takes bytes for.
inline std::filesystem::path pathOf(const std::string& name) { return std::u8string(name.begin(), name.end()); }

// The bytes of a file, empty if there is none.
inline std::string fileBytes(const std::string& name) {
  std::ifstream file(pathOf(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
inline void writeBytes(const std::string& name, const std::string& bytes) {
  std::ofstream(pathOf(name), std::ios::binary) << bytes;
}

inline std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// The bytes of every file in a folder, by its name.
inline std::map<std::string, std::string> filesIn(const std::filesystem::path& folder = ".") {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    files[entry.path().filename().string()] = fileBytes(entry.path().string());
  return files;
}

inline void copyShippedData() { std::filesystem::copy(SOURCE_DIR "/data", "."); }

struct World : private TemporaryFolder {
  World() { copyShippedData(); }
  // Carries out gestures, a line each, and gives back the replies.
  std::vector<std::string> play(const std::string& script) {
    std::vector<std::string> replies;
    for (const std::string& gesture : splitLines(script)) {
      if (wizard.runtime().visibleForm() == nullptr) return {"no form is shown"};
      if (auto reply = carryOut(wizard, gesture)) replies.push_back(std::move(*reply));
    }
    return replies;
  }
  [[nodiscard]] std::string dump() { return dumpOf(wizard); }

  FaultyFiles files;
  std::vector<std::string> messages, faults;
  std::function<void(Message, std::string_view)> showMessage = [this](Message kind, std::string_view text) {
    (kind == Message::fault ? faults : messages).emplace_back(text);
  };
  int die = 3;
  Wizard wizard{{.files = files,
                 .numbers = {",", "."},  // as a German player has them
                 .showMessage = [this](Message kind, std::string_view text) { showMessage(kind, text); },
                 .throwDie = [this] { return die; }}};
};

}  // namespace bogenwerker
