// A wizard in a folder of its own: catalogues as shipped, dice that are known, a disk that can fail.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "sequence/wizard.h"
#include "wizard/files.h"

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
  void heal() { failing_ = -1; }
  [[nodiscard]] int calls() const { return calls_; }
  // Every write passes on at most that many bytes.
  void setMostPerWrite(std::size_t bytes) { mostPerWrite_ = bytes; }

 private:
  int openFile(const char* path, int flags) override;
  ssize_t readFile(int file, char* bytes, std::size_t most) override;
  ssize_t writeFile(int file, const char* bytes, std::size_t count) override;
  int flushFile(int file) override;
  int closeFile(int file) override;
  int renameFile(const char* from, const char* to) override;
  bool fails();

  int writing_ = -1;
  int calls_ = 0;
  int failing_ = -1;
  int error_ = 0;
  std::size_t mostPerWrite_ = static_cast<std::size_t>(-1);
};

// Makes a folder below the system's temporary one, goes there, and takes the folder away in the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

 private:
  std::string path_;
};

class World {
 public:
  World();

  // Carries out a script of gestures, a line each, and gives back the replies. A line may also tell several gestures at
  // once: "3 x click one; type two %" is both of them three times over, with 0, 1, 2 for the %.
  std::vector<std::string> play(std::string_view script);
  // The same, and every reply has to be ok.
  void playOk(std::string_view script);
  // Plays tests/roads/NAME.txt, which leads from the first form to where it says.
  void playRoad(const std::string& name);

  // The state of all loaded forms as one line of JSON.
  [[nodiscard]] std::string dump();

 private:
  TemporaryFolder folder_;

 public:
  FaultyFiles files;
  std::vector<std::string> messages;
  std::vector<std::string> faults;
  int die = 3;
  NumberLocale numbers{",", "."};  // as a German player has them
  Wizard wizard;
};

// Names a test by the name of its row.
constexpr auto rowName = [](const auto& row) { return std::string(row.param.name); };

// The bytes of a file in the current folder, empty if there is none.
std::string fileBytes(const std::string& name);
std::vector<std::string> splitLines(const std::string& text);
void writeBytes(const std::string& name, std::string_view bytes);
void copyShippedData();
// Names of all files in the current folder, sorted.
std::vector<std::string> fileNames();

}  // namespace bogenwerker
