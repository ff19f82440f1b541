// The rules of controls and forms that no form of the wizard shows clearly, on forms made for it.
#include <gtest/gtest.h>

#include "forms/controls.h"
#include "stage.h"
#include "values/fault.h"

namespace bogenwerker {
namespace {

constexpr Outcome through = Outcome::through;

struct SampleVariables {
  int clicks = 0;
};
class SampleForm final : public FormWith<SampleVariables> {
 public:
  explicit SampleForm(FormsRuntime& runtime) : FormWith(runtime, "sample", {.caption = "Sample"}) {}
  Frame frame{*this, "frame", {.caption = "Frame"}};
  Label label{frame, "label", {.caption = "label"}};
  OptionButton one{frame, "one", {.click = [this] { ++clicks; }}};
  OptionButton two{frame, "two", {.click = [this] { ++clicks; }}};
  OptionButton apart{*this, "apart", {.click = [this] { ++clicks; }}};
  TextBox text{*this, "text", {.text = "start", .change = [this] { ++clicks; }}};
  ComboBox box{*this, "box", {.text = "initial", .entries = {"kept"}, .sorted = true, .click = [this] { ++clicks; }}};
  ListBox list{*this, "list", {.click = [this] { ++clicks; }}};
  CommandButton button{*this, "button", {.click = [this] { pressed(); }}};
  std::function<void()> pressed;

  // What a player sees of it.
  [[nodiscard]] std::string shown() {
    std::string all = label.caption() + "|" + text.text() + "|" + std::to_string(text.selLength()) + "|" + box.text() +
                      "|" + list.text() + "|" + std::to_string(clicks) + (frame.isEnabled() ? "|" : "|closed");
    for (const OptionButton* option : {&one, &two, &apart}) all += option->value() ? "*" : "-";
    for (const std::string& entry : box.entries()) all += "|" + entry;
    for (const std::string& line : list.lines()) all += "|" + line;
    return all;
  }
};

class FormsTest : public testing::Test {
 protected:
  Texts told;
  FormsRuntime runtime{[this](std::string_view text) { told.emplace_back(text); }};
  SampleForm form{runtime};
  SampleForm second{runtime};
  void SetUp() override { form.setVisible(true); }
};

TEST_F(FormsTest, GesturesDoWhatTheyShouldAndNoMore) {
  form.text.setSelLength(5);
  for (const char* entry : {"Zebra", "Äpfel", "affe"}) form.box.addItem(entry);
  form.list.addItem("line");
  const std::string longest = utf8FromCp1252(std::string(mostTypedCharacters, '\xE4'));
  const std::vector<std::tuple<std::string, Outcome, std::string>> rows = {
      {"type text start", through, "label|start|0|initial||0|---|affe|Äpfel|kept|Zebra|line"},
      {"type text st\"art", through, "label|st'art|0|initial||1|---…"},
      {"type box t\"yp\ned", through, "…|t'yp ed||1|---…"},
      {"pick box Äpfel", through, "…|Äpfel||2|---…"},
      {"pick box Äpfel", through, "…|Äpfel||3|---…"},
      {"select list 0", through, "…|line|4|---…"},
      {"select list 0", through, "…|line|5|---…"},
      {"select list 1", Outcome::unknown, "…|line|5|---…"},
      {"click one", through, "…|6|*--…"},
      {"click apart", through, "…|7|*-*…"},
      {"click two", through, "…|8|-**…"},
      {"click two", through, "…|8|-**…"},
      {"type text " + longest, through, "…|9|-**…"},
      {"type text b" + longest, Outcome::takenBack, "label|" + longest + "|0|…|9|-**…"},
      {"type box b" + longest, Outcome::takenBack, "…|Äpfel|line|9|-**…"}};
  for (const auto& [line, outcome, shown] : rows) {
    EXPECT_EQ(runtime.play(*parseGesture(line)), outcome) << line;
    EXPECT_NO_THROW(compare(form.shown(), shown)) << line << '\n' << form.shown();
  }
  form.two.setValue(false);
  form.list.clear();
  form.frame.setEnabled(false);
  EXPECT_EQ(form.one.choose(), Outcome::refused);
  EXPECT_NO_THROW(compare(form.shown(), "label|…|Äpfel||9|closed--*|affe|Äpfel|kept|Zebra")) << form.shown();
}

// An observer hears of what changed, and of nothing else.
class Recorder final : public Observer {
 public:
  std::string heard;
  void formChanged(Form& f) override { heard += f.isVisible() ? "show " : "hide "; }
  void formUnloaded(Form&) override { heard += "unload "; }
  void controlChanged(Control& c) override { heard += std::string(c.name()) + " "; }
};

TEST_F(FormsTest, AFaultLeavesEverythingAsItWas) {
  form.list.addItem("kept");
  EXPECT_EQ(form.list.select(0), through);
  Recorder recorder;
  runtime.attach(recorder);
  const std::string before = form.shown();
  form.pressed = [this] {
    EXPECT_NE(form.two.choose(), through) << "a gesture within a gesture";
    for (SampleForm* spoilt : {&form, &second}) {
      ++spoilt->clicks;
      spoilt->label.setCaption("spoilt");
      spoilt->text.setText("spoilt");
      spoilt->text.setSelLength(3);
      spoilt->list.clear();
      spoilt->list.addItem("spoilt");
      spoilt->box.addItem("a first one");
      spoilt->one.setValue(true);
      spoilt->frame.setEnabled(false);
    }
    form.setVisible(false);
    second.setVisible(true);
    form.unload();
    throw Fault("broken");
  };
  for (std::size_t press = 1; press <= 2; ++press) {
    EXPECT_EQ(form.button.press(), Outcome::takenBack);
    EXPECT_EQ(told.size(), press);
    EXPECT_EQ(form.shown(), before);
    EXPECT_TRUE(form.isVisible() && !runtime.isOver() && second.state() == Form::State::notLoaded);
  }
  for (const char* never : {"hide", "unload", "apart", "button"})
    EXPECT_EQ(recorder.heard.find(never), std::string::npos);
  EXPECT_EQ(second.shown(), "label|start|0|initial||0|---|kept");
  EXPECT_EQ(runtime.perform({}, [] { throw std::bad_alloc(); }), Outcome::takenBack);
}

}  // namespace
}  // namespace bogenwerker
