// The control tables of all forms, as the headless program dumps them.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "headless/gestures.h"
#include "world.h"

namespace bogenwerker {
namespace {

using nlohmann::json;
using Texts = std::vector<std::string>;

TEST(Escaped, KeepsATextOnOneLine) { EXPECT_EQ(escaped("a\nb\\n"), "a\\nb\\\\n"); }

// The row of the control table for a control of a dump.
std::string tableRow(const json& control) {
  std::ostringstream row;
  const std::string kind = control["kind"];
  row << control["name"].get<std::string>() << '\t' << kind << '\t' << control["in"].get<std::string>() << '\t'
      << (control["tab"].is_null() ? "-" : control["tab"].dump()) << '\t'
      << control.value("caption", kind == "ListBox" ? "" : control.value("text", ""));
  std::string marks;
  if (!control.value("enabled", true)) marks += " disabled";
  if (control.value("bold", false)) marks += " bold";
  if (control.value("sorted", false)) marks += " sorted";
  if (control.value("size", 8.25) != 8.25) marks += " size=" + control["size"].dump();
  if (control.value("value", false)) marks += " on";
  return row.str() + (marks.empty() ? "" : "\t" + marks.substr(1));
}

std::map<std::string, Texts> controlTables() {
  std::map<std::string, Texts> tables;
  std::string form;
  for (const std::string& line : splitLines(fileBytes(SOURCE_DIR "/tests/control_tables.txt"))) {
    if (line.starts_with("form form")) form = line.substr(5);
    else if (!line.starts_with("#")) tables[form].push_back(line);
  }
  return tables;
}

TEST(ControlTables, AreWhatThePlayerMeetsOnArrival) {
  World world;
  ASSERT_TRUE(world.wizard.start());
  const std::map<std::string, Texts> tables = controlTables();
  const Form* shown = nullptr;
  std::size_t compared = 0;
  for (const std::string& gesture : splitLines(fileBytes(SOURCE_DIR "/examples/zauberin/gestures.txt"))) {
    if (std::exchange(shown, world.wizard.runtime().visibleForm()) != world.wizard.runtime().visibleForm()) {
      for (const json& form : json::parse(world.dump())) {
        if (!form["visible"].get<bool>()) continue;
        const Texts& table = tables.at(form["name"]);
        ASSERT_EQ(form["controls"].size(), table.size()) << form["name"];
        for (const json& control : form["controls"]) {
          std::string row = tableRow(control);
          const auto expected = std::find_if(table.begin(), table.end(), [&](const std::string& other) {
            return other.starts_with(control["name"].get<std::string>() + "\t");
          });
          ASSERT_NE(expected, table.end()) << row;
          const std::size_t filled = expected->find("\t*");
          if (filled != expected->npos) row.replace(filled + 1, row.find('\t', filled + 1) - filled - 1, "*");
          EXPECT_EQ(row, *expected) << form["name"];
          ++compared;
        }
      }
    }
    world.play(gesture);
  }
  EXPECT_EQ(compared, 233U);
}

}  // namespace
}  // namespace bogenwerker
