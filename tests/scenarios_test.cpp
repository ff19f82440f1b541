// Scenarios: roads through the wizard with what is to be seen on the way. Each file below tests/scenarios is one test.
// It is in UTF-8, and its lines are gestures as for the headless program, and these:
//   # TEXT                       a comment
//   == TEXT                      begins a case; what stands ahead of the first is played ahead of each
//   data NAME                    writes that file from the lines "| TEXT" behind it, in code page 1252 and with CR LF
//   start, road NAME, die NUMBER begins with the first form; plays tests/roads/NAME.txt; sets how the dice fall
//   20 x GESTURE; GESTURE        several gestures over and over, counted from 0 by a %
//   GESTURE => ANSWER            disabled, unknown or end in place of ok; or "fault TEXT", which leaves all as it was
//   expect NAME VALUE            what a control of the visible form shows, NAME.KEY another value of its in the dump,
//                                NAME+NAME more than one; several values and lines are set apart by " | "
//   expect form NAME, expect message TEXT, expect file NAME with its lines "| TEXT" behind it
// A … at either end of a text stands for anything.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <utility>

#include "headless/gestures.h"
#include "wizard/text.h"
#include "world.h"

namespace bogenwerker {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using Texts = std::vector<std::string>;

const fs::path scenarios = SOURCE_DIR "/tests/scenarios";

struct Step {
  int line = 0;
  std::string text;
  Texts block;  // the lines "| TEXT" behind it
};
using Steps = std::vector<Step>;

[[noreturn]] void fail(const std::string& text) { throw std::runtime_error(text); }

std::string takeUpTo(std::string& text, std::string_view end) {
  const std::size_t at = std::min(text.find(end), text.size());
  const std::string front = text.substr(0, at);
  text.erase(0, at + end.size());
  return front;
}

void compare(const std::string& actual, std::string expected) {
  constexpr std::string_view any = "…";
  const bool front = expected.starts_with(any);
  if (front) expected.erase(0, any.size());
  const bool back = expected.ends_with(any);
  if (back) expected.resize(expected.size() - any.size());
  const bool same = front && back ? actual.find(expected) != actual.npos
                    : front       ? actual.ends_with(expected)
                    : back        ? actual.starts_with(expected)
                                  : actual == expected;
  if (expected.empty() && (front || back)) fail("that expects nothing");
  if (!same) fail("is: " + actual);
}

class Stage : public World {
 public:
  void perform(const Step& step) {
    std::string rest = step.text;
    const std::string verb = takeUpTo(rest, " ");
    if (!step.block.empty() && verb != "data" && !step.text.starts_with("expect file "))
      fail("lines that nobody reads");
    if (verb == "data") writeBytes(rest, cp1252FromUtf8(fileOf(step.block)));
    else if (verb == "road") playRoad(rest);
    else if (verb == "die") die = std::stoi(rest);
    else if (verb == "expect") expect(takeUpTo(rest, " "), rest, step.block);
    else gesture(step.text);
  }
  void end() const {
    if (!messages.empty() || !faults.empty()) fail("a message that nobody expected");
  }

 private:
  static std::string fileOf(const Texts& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += line + "\r\n";
    return bytes;
  }

  void gesture(std::string line) {
    const std::string script = takeUpTo(line, " => ");
    const bool failing = line.starts_with("fault ");
    const std::string before = failing ? dump() : "";
    const Texts replies = script == "start" ? Texts{wizard.start() == faults.empty() ? "ok" : "started"} : play(script);
    for (const std::string& reply : replies) compare(reply, failing || line.empty() ? "ok" : line);
    if (replies.empty()) fail("no gesture");
    if (faults.size() != (failing ? 1U : 0U)) fail(faults.empty() ? "no fault" : faults.front());
    if (!failing) return;
    compare(escaped(faults.front()), line.substr(std::string_view("fault ").size()));
    if (dump() != before) fail("the fault leaves its traces");
    faults.clear();
  }

  void expect(std::string name, const std::string& value, const Texts& block) {
    const Form* const form = wizard.runtime().visibleForm();
    if (name == "form") return compare(std::string(form == nullptr ? "none" : form->name()), value);
    if (name == "file" && block.empty()) fail("that expects nothing");
    if (name == "file") return compare(utf8FromCp1252(fileBytes(value)), fileOf(block));
    if (name == "message") return compare(joined(std::exchange(messages, {})), value);
    std::string shown = shownBy(takeUpTo(name, "+"));
    while (!name.empty()) shown += " | " + shownBy(takeUpTo(name, "+"));
    compare(shown, value);
  }

  std::string shownBy(std::string key) {
    const std::string name = takeUpTo(key, ".");
    for (const json& form : json::parse(dump())) {
      for (const json& control : form["controls"]) {
        if (!form["visible"].get<bool>() || control["name"] != name) continue;
        for (const std::string& one : key.empty() ? Texts{"caption", "lines", "text"} : Texts{key}) {
          if (control.contains(one)) return joined(control[one]);
        }
      }
    }
    fail("no such thing is shown");
  }
  static std::string joined(const json& value) {
    if (!value.is_array()) return value.is_string() ? value.get<std::string>() : value.dump();
    std::string text;
    for (const std::string line : value) text += " | " + line;
    return text.empty() ? text : text.substr(3);
  }
};

// The cases of a file, each with what is ahead of all.
std::vector<Steps> casesOf(const fs::path& file) {
  std::vector<Steps> cases(1);
  int number = 0;
  for (const std::string& line : splitLines(fileBytes(file))) {
    ++number;
    if (line.starts_with("== ")) cases.push_back(cases.front());
    else if (line.starts_with('|') && !cases.back().empty())
      cases.back().back().block.push_back(line.substr(std::min(line.size(), std::size_t{2})));
    else if (!line.empty() && !line.starts_with('#')) cases.back().push_back({number, line, {}});
  }
  if (cases.size() > 1) cases.erase(cases.begin());
  return cases;
}

class Scenarios : public testing::TestWithParam<std::string> {};

TEST_P(Scenarios, GoAsExpected) {
  const std::string file = scenarios / GetParam();
  for (const Steps& steps : casesOf(file)) {
    const bool expects = !steps.empty() && (steps.back().text.starts_with("expect ") ||
                                            steps.back().text.find(" => ") != std::string::npos);
    if (!expects)
      ADD_FAILURE_AT(file.c_str(), steps.empty() ? 1 : steps.back().line) << "a case has to end in what it expects";
    Stage stage;
    Step step;
    try {
      for (const Step& next : steps) {
        const testing::ScopedTrace trace(file.c_str(), next.line, next.text);
        stage.perform(step = next);
      }
      stage.end();
    } catch (const std::exception& error) {
      ADD_FAILURE_AT(file.c_str(), step.line) << step.text << "\n" << error.what();
    }
  }
}

Texts filesBelow(const fs::path& folder) {
  Texts names;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) names.push_back(fs::relative(entry.path(), folder));
  }
  std::sort(names.begin(), names.end());
  return names;
}

INSTANTIATE_TEST_SUITE_P(Played, Scenarios, testing::ValuesIn(filesBelow(scenarios)), [](const auto& row) {
  std::string name = row.param.substr(0, row.param.rfind('.'));
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
});

}  // namespace
}  // namespace bogenwerker
