// A player who does anything at random: what holds all the while, and why a button is grey or would do nothing.
#include <gtest/gtest.h>

#include <random>

#include "forms/controls.h"
#include "stage.h"

namespace bogenwerker {
namespace {

// What counts for the character on a form: its numbers, how many lines its lists have, the levels in them. And what
// budgets have left together with what stands in the lists: every name is a price here, or the attribute of a skill.
std::pair<std::string, int> standOf(Form& form) {
  static const std::map<std::string_view, int> budgets = {{"lblMoney", 1},
                                                          {"lblSprachPunkte", 1},
                                                          {"lblWissensPunkte", 1},
                                                          {"lblAktuellFertPunkte", -1},
                                                          {"lblVerbrAttributPunkte", -1}};
  std::pair<std::string, int> stand(form.isLoaded() ? "" : "left", 0);
  for (Control* control : form.isLoaded() ? form.controls() : std::vector<Control*>()) {
    if (const auto* frame = dynamic_cast<Frame*>(control)) stand.first += frame->isEnabled() ? "+" : "-";
    if (const auto* label = dynamic_cast<Label*>(control)) {
      const auto budget = budgets.find(label->name());
      const int factor = budget != budgets.end() ? budget->second : label->name().ends_with("Wert") ? 1 : 0;
      stand.first += label->caption() + ";";
      stand.second += factor * std::atoi(label->caption().c_str());  // NOLINT(cert-err34-c): 0 for a word
    }
    const auto* list = dynamic_cast<ListBox*>(control);
    for (const std::string& line : list == nullptr ? Texts() : list->lines()) {
      int attribute = 0;
      int level = 0;
      const bool isSkill = std::sscanf(line.c_str(), "%*d. %d %*[^S]Stufe: %d", &attribute, &level) == 2;  // NOLINT
      stand.first += std::to_string(level) + "|";
      stand.second += isSkill ? level + std::max(0, level - attribute) : std::atoi(line.c_str());  // NOLINT
    }
  }
  return stand;
}

CommandButton* wayOut(Form& form) {
  for (Control* control : form.controls()) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button != nullptr && button->caption() == "Weiter!") return button;
  }
  return nullptr;
}

std::size_t upTo(std::size_t end) {
  static std::mt19937 random(7);  // NOLINT: the same walk each time
  return std::uniform_int_distribution<std::size_t>(0, std::max(end, std::size_t{1}) - 1)(random);
}

// Any gesture on any control, one that it knows or not. Spends what there is and no more, as far as buttons tell, and
// takes its time to leave. Magie is never chosen: its value is another than that of all others.
Gesture gestureOn(Form& form, const std::string& typed) {
  std::vector<Control*> controls = form.controls();
  std::erase_if(controls, [](auto* control) { return dynamic_cast<const Label*>(control) != nullptr; });
  Control& control = *controls[upTo(controls.size())];
  const std::string name(control.name());
  const auto* const leaving = wayOut(form);
  const bool tooMuch = leaving != nullptr && leaving->hint().find("zu viel") != std::string::npos;
  const bool isRare = name.find(tooMuch ? "Plus" : "Minus") != std::string::npos || name.starts_with("optAF");
  const bool leaves = dynamic_cast<CommandButton*>(&control) != nullptr && (leaving == nullptr || &control == leaving);
  if (name == "optAFMagie" || (isRare && upTo(8) > 0) || (leaves && upTo(2) > 0)) return {};
  const auto* const box = dynamic_cast<ComboBox*>(&control);
  std::string text = upTo(5) == 0 ? "" : name == "txtEquipmentKosten" && upTo(3) == 0 ? "99999" : typed;
  if (box != nullptr && upTo(8) > 0) text = box->entries()[upTo(box->entries().size())];
  const Texts lines = {"click " + name, "type " + name + " " + text, "pick " + name + " " + text,
                       "select " + name + " " + std::to_string(upTo(9))};
  const std::size_t fitting = box != nullptr ? 2 : name.starts_with("txt") ? 1 : name.starts_with("lst") ? 3 : 0;
  return *parseGesture(lines[upTo(8) == 0 ? upTo(lines.size()) : fitting]);
}

// Budgets are conserved, a fault leaves all as it was, hidden forms are deaf, gestures read back equal, and hints tell
// of exactly those presses that come to nothing.
TEST(Walk, AtRandomKeepsWhatHolds) {
  std::map<std::string, int> worked;
  const std::string zeros = ",0,0,0,0,0,0,0,0,0,0,0,0,0,1";
  const std::string shops =
      R"(Lebensstil.txt < "100",100; Connection.txt < "2000",2000; Cyberware.txt < "300",1.1,300)" + zeros +
      R"(; Bioware.txt < "700",2,700)" + zeros +
      R"(; MagicStuff.txt < "500",0,500,1.5 | "600",9,600,0; )"
      R"(Cyberdecks.txt < "9000",5,9000,1 | "9000",5,9000,1; start; )";
  const std::string human = "prio Mensch Vollzauberer 24 40 D; points 4 4 4 4 4 4; cmdWeiter2";
  const std::string rest = "; points 3 3 3 3 3 3; cmdWeiter2; skills; knowledge";
  const std::vector<std::pair<std::string, std::string>> roads = {
      {"die 3", "1"},
      {"prio Zwerg Vollzauberer 18 40 C", "1"},
      {human, "4"},
      {human + "; skills", "4"},
      {"prio Elf MagieE 27 50 D; points 5 4 4 4 5 5; cmdWeiter2; skills; knowledge", "100"},
      {"prio Elf Adept 18 50 D" + rest, "100"},
      {"prio Ork Vollzauberer 18 40 C" + rest, "100"},
      {human + "; skills; knowledge; cmdGoAhead", "\"a\""},
      {human + "; skills; knowledge; cmdGoAhead; cmdOkay", "1"}};
  for (std::size_t round = 0; round < 4 * roads.size(); ++round) {
    const auto& [road, typed] = roads[round % roads.size()];
    Stage stage;
    stage.performAll(shops + road);
    FormsRuntime& runtime = stage.wizard.runtime();
    Form& form = *runtime.visibleForm();
    int budget = standOf(form).second;
    for (int press = 0; press < 4000 && form.isVisible(); ++press) {
      const Gesture gesture = gestureOn(form, typed);
      const bool isClick = gesture.verb == Gesture::Verb::click;
      const auto* button = isClick ? dynamic_cast<CommandButton*>(form.find(gesture.control)) : nullptr;
      const std::string hint = button == nullptr ? "" : button->hint();
      SCOPED_TRACE(road + ": " + lineOf(gesture) + " " + hint);
      ASSERT_EQ(parseGesture(lineOf(gesture)), gesture);
      const auto stand = standOf(form);
      const bool failing = upTo(8) == 0;
      const std::string before = failing ? stage.dump() : "";
      stage.files.failAt(failing ? static_cast<int>(upTo(30)) : -1, EIO);
      if (runtime.play(gesture) == Outcome::takenBack) {
        ASSERT_EQ(stage.dump(), before);
        stage.faults.clear();
      } else if (button != nullptr) {
        ASSERT_EQ(hint.empty(), standOf(form).first != stand.first);
        worked[gesture.control] += hint.empty() ? 1 : 0;
        if (gesture.control == "cmdAddSpruchPunkt" && hint.empty()) budget -= 25000;
      }
      ASSERT_TRUE(stage.faults.empty());
      if (!form.isVisible()) break;
      const Control* const specialising = form.find("frmSpezi");
      ASSERT_TRUE(standOf(form).second == budget || (specialising != nullptr && specialising->isEnabled()));
      if (const auto* leaving = wayOut(form)) {
        ASSERT_EQ(leaving->hint().empty(), leaving->isEnabled());
      }
    }
    for (Form* hidden : stage.wizard.formsInOrder()) {
      for (Control* deaf : hidden->isLoaded() && !hidden->isVisible() ? hidden->controls() : std::vector<Control*>()) {
        ASSERT_NE(deaf->play({.control = std::string(deaf->name())}), Outcome::through) << deaf->name();
      }
    }
  }
  for (const auto& [name, count] : worked) EXPECT_GT(count, 0) << name << " never came to anything";
}

}  // namespace
}  // namespace bogenwerker
