// Rows: what a player does, and what is then to be seen. Each file below tests/rows is one test, each line of it a row,
// played on a stage of its own; a line that begins with a blank goes on with the one before it. "let NAME: TEXT" puts
// the text for every <NAME> below. Parts as stage.h has them are set apart by "; ", and "20{PART; PART}" is them over
// and over, counted from 0 by a %; lines of a file likewise.
#include <gtest/gtest.h>

#include "stage.h"

namespace bogenwerker {
namespace {

// "2{A%; B}" is "A0; B; A1; B".
std::string unrolled(std::string row) {
  static const std::regex loop("([0-9]+)\\{([^}]*)\\}");
  for (std::smatch match; std::regex_search(row, match, loop);) {
    std::string text;
    for (int i = 0; i < std::stoi(match[1]); ++i) {
      text += (i == 0 ? "" : match[2].str()[0] == '"' ? " | " : "; ") + replaced(match[2], "%", std::to_string(i));
    }
    row.replace(static_cast<std::size_t>(match.position()), match[0].str().size(), text);
  }
  return row;
}

class Rows : public testing::TestWithParam<std::string> {};

TEST_P(Rows, GoAsTold) {
  const std::string file = SOURCE_DIR "/tests/rows/" + GetParam() + ".txt";
  const Texts lines = splitLines(fileBytes(file));
  std::map<std::string, std::string> lets;
  for (std::size_t i = 0; i < lines.size();) {
    const auto number = static_cast<int>(i + 1);
    std::string row = lines[i];
    while (++i < lines.size() && lines[i].starts_with(' ')) row += lines[i].substr(lines[i].find_first_not_of(' ') - 1);
    if (row.empty() || row.starts_with('#')) continue;
    for (const auto& [name, text] : lets) row = replaced(row, "<" + name + ">", text);
    if (const std::size_t colon = row.find(": "); row.starts_with("let ")) {
      lets[row.substr(4, colon - 4)] = row.substr(colon + 2);
      continue;
    }
    Stage stage;
    const Texts parts = split(unrolled(row), "; ");
    for (const std::string& part : parts) {
      try {
        stage.perform(part);
      } catch (const std::exception& difference) {
        ADD_FAILURE_AT(file.c_str(), number) << part << '\n' << difference.what();
        break;
      }
    }
  }
}

Texts rowFiles() {
  Texts names;
  for (const auto& entry : std::filesystem::directory_iterator(SOURCE_DIR "/tests/rows")) {
    names.push_back(entry.path().stem().string());
  }
  return names;
}
INSTANTIATE_TEST_SUITE_P(Steps, Rows, testing::ValuesIn(rowFiles()), [](const auto& row) { return row.param; });

}  // namespace
}  // namespace bogenwerker
