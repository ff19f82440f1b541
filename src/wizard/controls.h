// The kinds of controls: what each holds, what a program sets, what a player's gesture does to it.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "wizard/forms.h"

namespace bogenwerker {

using Handler = std::function<void()>;

// Where a control lies: a cell of its container's grid, counted from 0 at the upper left.
struct Place {
  int row = 0;
  int column = 0;
  int rows = 1;
  int columns = 1;
  enum class Align { fill, left, right, centre, top, bottom } align = Align::fill;
};

class Frame;
class Label;
class CommandButton;
class OptionButton;
class TextBox;
class ComboBox;
class ListBox;
class PictureBox;
class Line;

// One visit a kind: the only way to tell kinds apart.
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

// What all kinds have. Reading or setting any of it loads the form. Setting an equal value is silent. The gestures of
// the kinds return false where the control, or a frame around it, is disabled: then nothing happened.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  [[nodiscard]] std::string_view name() const { return name_; }
  [[nodiscard]] Container& container() { return in_; }
  [[nodiscard]] Form& form() { return form_; }
  [[nodiscard]] const Place& place() const { return place_; }
  [[nodiscard]] std::optional<int> tab() const { return tab_; }
  // What a screen reader says where caption and frame do not make it clear; else empty.
  [[nodiscard]] std::string_view spoken() const { return spoken_; }

  // The control's own state, whatever the frames around it are.
  [[nodiscard]] bool isEnabled() const;
  void setEnabled(bool enabled);
  // False if this or a frame around it is disabled.
  [[nodiscard]] bool isUsable() const;

  virtual void accept(ControlVisitor& visitor) = 0;

 protected:
  struct Basics {
    bool enabled;
    std::optional<int> tab;
    Place place;
    std::string_view spoken;
  };
  Control(Container& in, std::string_view name, Basics basics);

  // Puts all state back to the design.
  virtual void reset() { enabled_ = designedEnabled_; }

  // The one way in which state changes: it loads the form, it can be taken back, and the view hears of it.
  template <class T>
  void change(T& state, T value) {
    form_.ensureLoaded();
    if (state == value) return;
    std::swap(state, value);
    noteChange([&state, before = std::move(value)]() mutable { state = std::move(before); });
  }
  // For changes of another shape. The undo puts the state back and nothing else.
  template <class Undo>
  void noteChange(Undo undo) {
    markChanged();
    if (form_.isFresh_) return;  // its load is taken back as a whole
    form_.runtime_.remember([this, undo = std::move(undo)]() mutable {
      undo();
      markChanged();
    });
  }
  void markChanged() { form_.runtime_.markChanged(*this); }
  void touch() const { form_.ensureLoaded(); }
  // Carries out a gesture if the control can be used.
  bool gesture(const Handler& action);

 private:
  friend class Form;
  friend class FormsRuntime;

  Container& in_;
  Form& form_;
  std::string_view name_;
  std::string_view spoken_;
  Place place_;
  std::optional<int> tab_;
  bool designedEnabled_;
  bool enabled_;
  bool isMarked_ = false;
};

// ---------------------------------------------------------------------------------------------------------------------

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
};

class CommandButton final : public Control {
 public:
  CommandButton(Container& in, std::string_view name, CommandButtonDesign design);
  [[nodiscard]] std::string_view caption() const { return caption_; }
  [[nodiscard]] int characters() const { return characters_; }
  [[nodiscard]] int lines() const { return lines_; }
  // Gesture: the player presses the button.
  bool press() { return gesture(click_); }
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  std::string_view caption_;
  int characters_;
  int lines_;
  Handler click_;
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
  bool choose();
  void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

 private:
  void reset() override;
  std::string_view caption_;
  Handler click_;
  bool value_ = false;
};

struct TextBoxDesign {
  std::string_view text{};
  int characters = 24;  // shown without scrolling, at least
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
  // How many characters from the start are selected.
  [[nodiscard]] int selLength() const { return selLength_; }
  void setSelLength(int characters) { change(selLength_, characters); }
  [[nodiscard]] int characters() const { return design_.characters; }
  // Gesture: the player replaces the whole text. It passes the gate for typed text; an equal text raises nothing.
  bool type(std::string_view typed);
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
  [[nodiscard]] const std::vector<std::string>& entries() const;
  [[nodiscard]] bool isSorted() const { return sorted_; }
  [[nodiscard]] int characters() const { return characters_; }
  void addItem(std::string entry);
  // Gesture: the player types into the edit field. It passes the gate for typed text and raises nothing.
  bool type(std::string_view typed);
  // Gesture: the player picks the entry at that place, the one that is picked already included.
  bool pick(std::size_t index);
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
  // Gesture: the player clicks a line, the selected one included.
  bool select(std::size_t index);
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
