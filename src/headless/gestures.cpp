#include "headless/gestures.h"

#include <algorithm>
#include <charconv>

#include "headless/dump.h"
#include "wizard/controls.h"

namespace bogenwerker {
namespace {

constexpr std::string_view ok = "ok";
constexpr std::string_view disabled = "disabled";
constexpr std::string_view unknown = "unknown";

// Takes what stands ahead of the first blank, and the blank.
std::string_view takeWord(std::string_view& line) {
  const std::size_t blank = line.find(' ');
  const std::string_view word = line.substr(0, blank);
  line.remove_prefix(blank == std::string_view::npos ? line.size() : blank + 1);
  return word;
}

// One verb on a control. Kinds that do not know the verb answer unknown.
class Gesture : public ControlVisitor {
 public:
  std::string_view on(Control& control) {
    control.accept(*this);
    return reply_;
  }

 protected:
  void visit(Frame&) override {}
  void visit(Label&) override {}
  void visit(CommandButton&) override {}
  void visit(OptionButton&) override {}
  void visit(TextBox&) override {}
  void visit(ComboBox&) override {}
  void visit(ListBox&) override {}
  void visit(PictureBox&) override {}
  void visit(Line&) override {}
  void answer(bool reached) { reply_ = reached ? ok : disabled; }

  std::string_view reply_ = unknown;
};

class Click final : public Gesture {
  void visit(CommandButton& button) override { answer(button.press()); }
  void visit(OptionButton& option) override { answer(option.choose()); }
};

class Type final : public Gesture {
 public:
  explicit Type(std::string_view text) : text_(text) {}

 private:
  void visit(TextBox& box) override { answer(box.type(text_)); }
  void visit(ComboBox& box) override { answer(box.type(text_)); }
  std::string_view text_;
};

class Pick final : public Gesture {
 public:
  explicit Pick(std::string_view text) : text_(text) {}

 private:
  void visit(ComboBox& box) override {
    if (!box.isUsable()) return answer(false);
    const auto& entries = box.entries();
    const auto found = std::find(entries.begin(), entries.end(), text_);
    if (found != entries.end()) answer(box.pick(static_cast<std::size_t>(found - entries.begin())));
  }
  std::string_view text_;
};

class Select final : public Gesture {
 public:
  explicit Select(std::optional<std::size_t> index) : index_(index) {}

 private:
  void visit(ListBox& box) override {
    if (!box.isUsable()) return answer(false);
    if (index_ && *index_ < box.lines().size()) answer(box.select(*index_));
  }
  std::optional<std::size_t> index_;
};

std::optional<std::size_t> indexOf(std::string_view digits) {
  std::size_t index = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
  if (error != std::errc{} || end != digits.data() + digits.size()) return {};
  return index;
}

std::string_view carryOutOn(Control& control, std::string_view verb, std::string_view rest) {
  if (verb == "click") return Click().on(control);
  if (verb == "type") return Type(rest).on(control);
  if (verb == "pick") return Pick(rest).on(control);
  if (verb == "select") return Select(indexOf(rest)).on(control);
  return unknown;
}

}  // namespace

std::optional<std::string> carryOut(Wizard& wizard, std::string_view line) {
  if (line.empty() || line.starts_with('#')) return {};
  FormsRuntime& runtime = wizard.runtime();
  if (line == "dump") return dumpOf(wizard);
  if (line == "close") {
    runtime.close();
    return "end";
  }
  const Form* form = runtime.visibleForm();
  const std::string_view verb = takeWord(line);
  const std::string_view name = verb == "click" ? line : takeWord(line);
  for (Control* control : form->controls()) {
    if (control->name() != name) continue;
    const std::string_view reply = carryOutOn(*control, verb, line);
    return std::string(runtime.isOver() ? "end" : reply);
  }
  return std::string(unknown);
}

std::string escaped(std::string_view text) {
  std::string oneLine;
  for (const char c : text) {
    if (c == '\n') oneLine += "\\n";
    else if (c == '\\') oneLine += "\\\\";
    else oneLine += c;
  }
  return oneLine;
}

}  // namespace bogenwerker
