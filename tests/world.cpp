#include "world.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

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
  const bool failing = fails();  // the descriptor is gone either way, as with the real call
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
              .showMessage = [this](Message kind,
                                    std::string_view text) { (kind == Message::fault ? faults : messages).emplace_back(text); },
              .throwDie = [this] { return die; }}) {
  copyShippedData();
}

std::vector<std::string> World::play(std::string_view script) {
  std::vector<std::string> replies;
  std::istringstream lines{std::string(script)};
  for (std::string line; std::getline(lines, line);) {
    if (auto reply = carryOut(wizard, line)) replies.push_back(std::move(*reply));
  }
  return replies;
}

void World::playOk(std::string_view script) {
  std::istringstream lines{std::string(script)};
  for (std::string line; std::getline(lines, line);) {
    const auto reply = carryOut(wizard, line);
    if (reply && *reply != "ok") ADD_FAILURE() << line << ": " << *reply;
  }
}

std::string World::dump() { return play("dump").at(0); }

std::string fileBytes(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void writeBytes(const std::string& name, std::string_view bytes) {
  std::ofstream(name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void copyShippedData() {
  for (const auto& entry : std::filesystem::directory_iterator(SOURCE_DIR "/data")) {
    std::filesystem::copy_file(entry.path(), entry.path().filename(), std::filesystem::copy_options::overwrite_existing);
  }
}

std::vector<std::string> fileNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(".")) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

namespace road {

std::string press(std::string_view button, int times) {
  std::string script;
  while (times-- > 0) script.append("click ").append(button).append("\n");
  return script;
}

std::string priorities(std::string_view race, std::string_view magic, std::string_view attributes,
                       std::string_view skills, std::string_view resources) {
  std::string script;
  for (const std::string_view option : {race, magic, attributes, skills, resources}) script += press(option, 1);
  return script + "click cmdWeiter1\n";
}

std::string attributes(std::vector<int> points) {
  constexpr std::array<std::string_view, 6> names = {"Konst", "Schnell", "Stark", "Charisma", "Intell", "Will"};
  std::string script;
  for (std::size_t i = 0; i < names.size(); ++i) script += press("cmd" + std::string(names[i]) + "Plus", points[i]);
  return script + "click cmdWeiter2\n";
}

std::string skills(int points, int konstitution) {
  std::string script;
  for (int number = 1; points > 0; ++number) {
    const int levels = std::min({points, konstitution, 6});
    script += "type txtAFertigkeit Fertigkeit " + std::to_string(number) + "\nclick optAFKonst\nclick cmdAddFertigkeit\n";
    script += "select lstAFertigkeiten " + std::to_string(number - 1) + "\n" + press("cmdFertigkeitPlus", levels);
    points -= levels;
  }
  return script + "click cmddisformisready\n";
}

std::string knowledge(int intelligenz) {
  const int language = intelligenz * 3 / 2;
  std::string script;
  const auto spend = [&script, intelligenz](int points, std::string_view box, std::string_view button,
                                            std::string_view list) {
    for (int number = 1; points > 0; ++number) {
      const int levels = std::min({points, intelligenz, 6});
      script.append("type ").append(box).append(" Eintrag ").append(std::to_string(number)).append("\nclick ");
      script.append(button).append("\nselect ").append(list).append(" ").append(std::to_string(number - 1)).append("\n");
      script += press("cmdPlusWFert", levels);
      points -= levels;
    }
  };
  spend(language, "txtSprache", "cmdAddSprache", "lstSprachen");
  spend(intelligenz * 5, "txtWFertigkeit", "cmdAddWFertigkeit", "lstWFertigkeiten");
  return script + "click cmdGoAhead\n";
}

}  // namespace road

}  // namespace bogenwerker
