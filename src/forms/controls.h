// The kinds of controls: what each holds, what a program sets, what a player's gesture does to it.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/forms.h"

namespace bogenwerker {

class Frame;
class Label;
class CommandButton;
class OptionButton;
class TextBox;
class ComboBox;
class ListBox;
class PictureBox;
class Line;

// One visit a kind, for a front end that has to tell them apart.
class ControlVisitor {
 public:
  virtual ~ControlVisitor() = default;
  virtual void visit(Frame&) = 0;
  virtual void visit(Label&) = 0;
  virtual void visit(CommandButton&) = 0;
  virtual void visit(OptionButton&) = 0;
  virtual void visit(TextBox&) = 0;
  virtual void visit(ComboBox&) = 0;
  virtual void visit(ListBox&) = 0;
  virtual void visit(PictureBox&) = 0;
  virtual void visit(Line&) = 0;
};

struct FrameDesign {
  std::string_view caption{};
  bool enabled = true;
  std::optional<int> tab{};
  Place at{};
  std::string_view spoken{};
  int margin = 8;  // pixels between outline and content at 100 %
  Stretch stretch{};
};

// Disabling a frame disables whatever is in it; its controls keep their own state.
class Frame final : public Control, public Container {
 public:
  Frame(Container& in, std::string_view name, FrameDesign design);
  [[nodiscard]] std::string_view caption() const { return caption_; }
  [[nodiscard]] std::string_view name() const override { return Control::name(); }
  [[nodiscard]] Form& form() override { return Control::form(); }
  [[nodiscard]] bool isUsable() const override { return Control::isUsable(); }
  [[nodiscard]] int margin() const { return margin_; }
  // The option button that is on among those right inside; null if none is.
  [[nodiscard]] const OptionButton* chosen() const;
  [[nodiscard]] const Stretch& stretch() const override { return stretch_; }
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  std::string_view caption_;
  int margin_;
  Stretch stretch_;
};

struct PictureBoxDesign {
  Place at{};
};

// A mere container of a label.
class PictureBox final : public Control, public Container {
 public:
  PictureBox(Container& in, std::string_view name, PictureBoxDesign design);
  [[nodiscard]] std::string_view name() const override { return Control::name(); }
  [[nodiscard]] Form& form() override { return Control::form(); }
  [[nodiscard]] bool isUsable() const override { return Control::isUsable(); }
  [[nodiscard]] const Stretch& stretch() const override { return stretch_; }
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  Stretch stretch_;
};

// A stroke runs along the middle of its cells, from the edge or the middle of the first to the edge or the middle of
// the last, so that strokes that share a cell can meet in it.
struct LineDesign {
  Place at{};
  enum class Stroke { horizontal, vertical } stroke = Stroke::horizontal;
  enum class End { edge, middle } from = End::edge;
  End to = End::edge;
};

class Line final : public Control {
 public:
  Line(Container& in, std::string_view name, LineDesign design);
  [[nodiscard]] LineDesign::Stroke stroke() const { return design_.stroke; }
  [[nodiscard]] LineDesign::End from() const { return design_.from; }
  [[nodiscard]] LineDesign::End to() const { return design_.to; }
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  LineDesign design_;
};

struct LabelDesign {
  std::string_view caption{};
  bool enabled = true;
  bool bold = false;
  double size = 8.25;  // points
  bool centred = false;
  int characters = 0;  // room kept for at least so many
  std::optional<int> tab{};
  Place at{};
  std::string_view spoken{};
};

class Label final : public Control {
 public:
  Label(Container& in, std::string_view name, LabelDesign design);
  [[nodiscard]] const std::string& caption() const;
  void setCaption(std::string caption) { change(caption_, std::move(caption)); }
  [[nodiscard]] bool isBold() const { return design_.bold; }
  [[nodiscard]] double size() const { return design_.size; }
  [[nodiscard]] bool isCentred() const { return design_.centred; }
  [[nodiscard]] int characters() const { return design_.characters; }
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  void reset() override;
  LabelDesign design_;
  std::string caption_;
};

struct CommandButtonDesign {
  std::string_view caption{};
  int characters = 12;  // room kept for at least so many
  int lines = 1;        // on how many the caption stands
  bool enabled = true;
  std::optional<int> tab{};
  Place at{};
  std::string_view spoken{};
  Handler click{};
  Hint hint{};
};

class CommandButton final : public Control {
 public:
  CommandButton(Container& in, std::string_view name, CommandButtonDesign design);
  [[nodiscard]] std::string_view caption() const { return caption_; }
  [[nodiscard]] int characters() const { return characters_; }
  [[nodiscard]] int lines() const { return lines_; }
  // Why a press would come to nothing, as German sentences for the player; empty where it would not, or where nobody
  // can tell. Worked out anew at every call.
  [[nodiscard]] std::string hint() const;
  // Gesture: the player presses the button.
  Outcome press() { return perform({.verb = Gesture::Verb::click}, click_); }
  Outcome play(const Gesture& gesture) override;
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  std::string_view caption_;
  int characters_;
  int lines_;
  Handler click_;
  Hint hint_;
};

struct OptionButtonDesign {
  std::string_view caption{};
  bool enabled = true;
  std::optional<int> tab{};
  Place at{};
  std::string_view spoken{};
  Handler click{};
};

// Among the option buttons of one container at most one is on.
class OptionButton final : public Control {
 public:
  OptionButton(Container& in, std::string_view name, OptionButtonDesign design);
  [[nodiscard]] std::string_view caption() const { return caption_; }
  [[nodiscard]] bool value() const;
  // By code: raises no Click.
  void setValue(bool value);
  // Gesture: the player switches the option on. One that is on already stays so in silence.
  Outcome choose();
  Outcome play(const Gesture& gesture) override;
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  void reset() override;
  std::string_view caption_;
  Handler click_;
  bool value_ = false;
};

// How many characters a box takes in at most when a player types.
constexpr int mostTypedCharacters = 1000;

struct TextBoxDesign {
  std::string_view text{};
  int characters = 24;         // shown without scrolling, at least
  bool goesIntoRecord = true;  // takes no double quotes then, since a record could not hold them
  bool enabled = true;
  std::optional<int> tab{};
  Place at{};
  std::string_view spoken{};
  Handler change{};
};

class TextBox final : public Control {
 public:
  TextBox(Container& in, std::string_view name, TextBoxDesign design);
  [[nodiscard]] const std::string& text() const;
  void setText(std::string text);
  // False as soon as anything else stands there, and where there was none.
  [[nodiscard]] bool holdsStartingText() const { return !text_.empty() && text_ == design_.text; }
  // How many characters from the start are selected.
  [[nodiscard]] int selLength() const { return selLength_; }
  void setSelLength(int characters) { change(selLength_, characters); }
  [[nodiscard]] int characters() const { return design_.characters; }
  // Gesture: the player replaces the whole text. It passes the gate for typed text; an equal text raises nothing, one
  // that is too long is a fault.
  Outcome type(std::string_view typed);
  Outcome play(const Gesture& gesture) override;
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  void reset() override;
  TextBoxDesign design_;
  std::string text_;
  int selLength_ = 0;
};

struct ComboBoxDesign {
  std::string_view text{};
  std::initializer_list<std::string_view> entries{};
  int characters = 24;  // shown without scrolling, at least
  bool sorted = false;
  bool enabled = true;
  std::optional<int> tab{};
  Place at{};
  std::string_view spoken{};
  Handler click{};
};

// An edit field with a list of entries. A sorted one keeps its entries in the order of a German reader.
class ComboBox final : public Control {
 public:
  ComboBox(Container& in, std::string_view name, ComboBoxDesign design);
  // The entry that was picked or the text that was typed last; ahead of both the initial text.
  [[nodiscard]] const std::string& text() const;
  [[nodiscard]] bool holdsStartingText() const { return !text_.empty() && text_ == designedText_; }
  [[nodiscard]] const std::vector<std::string>& entries() const;
  [[nodiscard]] bool isSorted() const { return sorted_; }
  [[nodiscard]] int characters() const { return characters_; }
  void addItem(std::string entry);
  // Gesture: the player types into the edit field. It passes the gate for typed text, as what goes into a record, and
  // raises nothing; a text that is too long is a fault.
  Outcome type(std::string_view typed);
  // Gesture: the player picks the entry at that place, counted from 0, the one that is picked already included. Unknown
  // beyond the last entry.
  Outcome pick(std::size_t index);
  Outcome play(const Gesture& gesture) override;
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  void reset() override;
  void sortEntries() const;
  std::string_view designedText_;
  std::vector<std::string> designedEntries_;
  int characters_;
  bool sorted_;
  Handler click_;
  std::string text_;
  mutable std::vector<std::string> entries_;  // brought into order when somebody looks at them
  mutable bool inOrder_ = true;
};

struct ListBoxDesign {
  int characters = 32;  // shown without scrolling, at least, and so many
  int lines = 6;
  bool enabled = true;
  std::optional<int> tab{};
  Place at{};
  std::string_view spoken{};
  Handler click{};
};

class ListBox final : public Control {
 public:
  ListBox(Container& in, std::string_view name, ListBoxDesign design);
  [[nodiscard]] const std::vector<std::string>& lines() const;
  [[nodiscard]] int listCount() const { return static_cast<int>(lines().size()); }
  [[nodiscard]] std::optional<std::size_t> selected() const { return selected_; }
  // The selected line, empty if there is none.
  [[nodiscard]] std::string text() const;
  [[nodiscard]] int charactersShown() const { return charactersShown_; }
  [[nodiscard]] int linesShown() const { return linesShown_; }
  void addItem(std::string line);
  void clear();
  // Gesture: the player clicks the line at that place, counted from 0, the selected one included. Unknown beyond the
  // last line.
  Outcome select(std::size_t index);
  Outcome play(const Gesture& gesture) override;
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  void reset() override;
  int charactersShown_;
  int linesShown_;
  Handler click_;
  std::vector<std::string> lines_;
  std::optional<std::size_t> selected_;
};

}  // namespace bogenwerker
