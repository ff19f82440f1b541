#include "world.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

#include "headless/dump.h"
#include "headless/gestures.h"

namespace bogenwerker {

bool FaultyFiles::fails() {
  if (calls_++ != failing_) return false;
  errno = error_;
  return true;
}

int FaultyFiles::openFile(const char* path, int flags) {
  if (fails()) return -1;
  const int file = Files::openFile(path, flags);
  writing_ = (flags & O_ACCMODE) == O_WRONLY ? file : -1;  // never two files are open at once
  return file;
}
ssize_t FaultyFiles::readFile(int file, char* bytes, std::size_t most) {
  return fails() ? -1 : Files::readFile(file, bytes, most);
}
ssize_t FaultyFiles::writeFile(int file, const char* bytes, std::size_t count) {
  return fails() ? -1 : Files::writeFile(file, bytes, std::min(count, mostPerWrite_));
}
int FaultyFiles::flushFile(int file) { return fails() ? -1 : Files::flushFile(file); }
int FaultyFiles::closeFile(int file) {
  if (file != writing_) return Files::closeFile(file);  // what was only read is whole whatever close says
  const bool failing = fails();                         // the descriptor is gone either way, as with the real call
  const int error = errno;
  const int result = Files::closeFile(file);
  if (failing) errno = error;
  return failing ? -1 : result;
}
int FaultyFiles::renameFile(const char* from, const char* to) { return fails() ? -1 : Files::renameFile(from, to); }

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "bogenwerker-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = pattern;
  std::filesystem::current_path(path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::current_path("/", ignored);
  std::filesystem::remove_all(path_, ignored);
}

World::World()
    : wizard({.files = files,
              .numbers = numbers,
              .showMessage =
                  [this](Message kind, std::string_view text) {
                    (kind == Message::fault ? faults : messages).emplace_back(text);
                  },
              .throwDie = [this] { return die; }}) {
  copyShippedData();
}

namespace {

// The gestures that one line of a script tells.
std::vector<std::string> gesturesOf(const std::string& line) {
  static const std::regex repeated("([0-9]+) x (.*)");
  std::smatch match;
  if (!std::regex_match(line, match, repeated)) return {line};
  std::vector<std::string> gestures;
  for (int i = 0; i < std::stoi(match[1]); ++i) {
    std::string rest = std::regex_replace(match[2].str(), std::regex("%"), std::to_string(i));
    for (std::size_t end = 0; (end = rest.find("; ")) != rest.npos; rest.erase(0, end + 2)) {
      gestures.push_back(rest.substr(0, end));
    }
    gestures.push_back(rest);
  }
  return gestures;
}

}  // namespace

std::vector<std::string> World::play(std::string_view script) {
  std::vector<std::string> replies;
  for (const std::string& line : splitLines(std::string(script))) {
    for (const std::string& gesture : gesturesOf(line)) {
      if (wizard.runtime().visibleForm() == nullptr) return {"no form is shown"};
      if (auto reply = carryOut(wizard, gesture)) replies.push_back(std::move(*reply));
    }
  }
  return replies;
}

void World::playOk(std::string_view script) {
  for (const std::string& line : splitLines(std::string(script))) {
    for (const std::string& reply : play(line)) {
      if (reply != "ok") ADD_FAILURE() << line << ": " << reply;
    }
  }
}

void World::playRoad(const std::string& name) {
  const std::string script = fileBytes(SOURCE_DIR "/tests/roads/" + name + ".txt");
  if (script.empty()) ADD_FAILURE() << "there is no road " << name;
  playOk(script);
}

std::string World::dump() { return dumpOf(wizard); }

std::string fileBytes(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

void writeBytes(const std::string& name, std::string_view bytes) {
  std::ofstream(name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void copyShippedData() {
  for (const auto& entry : std::filesystem::directory_iterator(SOURCE_DIR "/data")) {
    std::filesystem::copy_file(entry.path(), entry.path().filename(),
                               std::filesystem::copy_options::overwrite_existing);
  }
}

std::vector<std::string> fileNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(".")) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace bogenwerker
