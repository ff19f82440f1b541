// The protocol of the headless program, and through it the control tables of all forms.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "headless/gestures.h"
#include "world.h"

namespace bogenwerker {
namespace {

using nlohmann::json;
using Texts = std::vector<std::string>;

class Headless : public testing::Test, public World {
 protected:
  void SetUp() override { ASSERT_TRUE(wizard.start()); }
};

TEST_F(Headless, TellsOkDisabledAndUnknownApart) {
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"click optRasseElf", "ok"},       {"click optRasseElf", "ok"},       {"click optRasseA", "disabled"},
      {"click cmdWeiter1", "disabled"},  {"click cmdWeiter2", "unknown"},   {"click frmRasse", "unknown"},
      {"click", "unknown"},              {"click optRasseElf ", "unknown"}, {"Click optRasseElf", "unknown"},
      {"type optRasseElf x", "unknown"}, {"pick optRasseA x", "unknown"},   {"select cmdWeiter1 0", "unknown"},
      {" click optRasseElf", "unknown"}, {"dump ", "unknown"},              {"press cmdWeiter1", "unknown"}};
  for (const auto& [line, reply] : rows) EXPECT_EQ(play(line), Texts{reply}) << line;
  EXPECT_TRUE(play("# a comment\n\n").empty());
}

TEST_F(Headless, DisabledComesAheadOfLookingForAnEntry) {
  playOk(road::priorities("optRasseMensch", "optMagieC", "optAttribute21", "optFertigkeiten50", "optRessB") +
         road::attributes({3, 4, 3, 4, 4, 3}) + road::skills(50, 3) + road::knowledge(4));
  EXPECT_EQ(play("pick cmbMagic gibt es nicht\ntype cmbMagic x\npick cmbCyberware gibt es nicht\nselect lstAusrüstung 2\n"
                 "select lstAusrüstung 1x\nselect lstAusrüstung -1\nselect lstAusrüstung 1\nselect lstAusrüstung 1"),
            (Texts{"disabled", "disabled", "unknown", "unknown", "unknown", "unknown", "ok", "ok"}));
}

TEST_F(Headless, CloseEndsWithAllForms) {
  playOk(road::priorities("optRasseMensch", "optMagieC", "optAttribute21", "optFertigkeiten50", "optRessB"));
  EXPECT_EQ(play("close"), Texts{"end"});
  EXPECT_TRUE(wizard.runtime().isOver());
}

TEST(Escaped, KeepsATextOnOneLine) { EXPECT_EQ(escaped("a\nb\\n"), "a\\nb\\\\n"); }

// A line of the control table for a control of a dump.
std::string tableLine(const json& control, const std::string& form) {
  std::ostringstream line;
  const std::string kind = control["kind"];
  line << control["name"].get<std::string>() << '\t' << kind << '\t' << control["in"].get<std::string>() << '\t'
       << (control["tab"].is_null() ? "-" : std::to_string(control["tab"].get<int>())) << '\t';
  const bool isList = kind == "ListBox";
  if (control.contains("caption")) line << control["caption"].get<std::string>();
  else if (control.contains("text") && !isList) line << control["text"].get<std::string>();
  std::string marks;
  if (control.contains("enabled") && !control["enabled"].get<bool>()) marks += " disabled";
  if (control.value("bold", false)) marks += " bold";
  if (control.value("sorted", false)) marks += " sorted";
  if (control.value("size", 8.25) != 8.25) marks += " size=15.75";
  if (control.value("value", false)) marks += " on in " + form;
  if (!marks.empty()) line << '\t' << marks.substr(1);
  return line.str();
}

std::map<std::string, Texts> controlTables() {
  std::map<std::string, Texts> tables;
  std::ifstream file(SOURCE_DIR "/tests/control_tables.txt");
  std::string form;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("form form")) form = line.substr(5);
    else if (!line.starts_with("#")) tables[form].push_back(line);
  }
  return tables;
}

TEST_F(Headless, EveryFormArrivesAsItsControlTableHasIt) {
  const std::vector<std::string> passages = {
      "", road::priorities("optRasseMensch", "optVollzauberer", "optAttribute21", "optFertigkeiten34", "optRessB"),
      road::attributes({3, 4, 3, 4, 4, 3}), road::skills(34, 3), road::knowledge(4), "click cmdGoAhead\n",
      "click cmdOkay\n"};
  std::map<std::string, Texts> tables = controlTables();
  ASSERT_EQ(tables.size(), passages.size());
  std::size_t compared = 0;
  for (const std::string& passage : passages) {
    playOk(passage);
    for (const json& form : json::parse(dump())) {
      if (!form["visible"].get<bool>()) continue;
      const std::string name = form["name"];
      const Texts& table = tables[name];
      ASSERT_EQ(form["controls"].size(), table.size()) << name;
      for (const json& control : form["controls"]) {
        std::string line = tableLine(control, name);
        const auto expected = std::find_if(table.begin(), table.end(), [&](const std::string& row) {
          return row.starts_with(control["name"].get<std::string>() + "\t");
        });
        ASSERT_NE(expected, table.end()) << line;
        const std::size_t filled = expected->find("\t*");
        if (filled != expected->npos) line.replace(filled + 1, line.find('\t', filled + 1) - filled - 1, "*");
        EXPECT_EQ(line, *expected) << name;
        ++compared;
      }
    }
  }
  EXPECT_EQ(compared, 233U);
}

}  // namespace
}  // namespace bogenwerker
