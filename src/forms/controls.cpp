#include "forms/controls.h"

#include <algorithm>

#include "values/fault.h"
#include "values/text.h"

namespace bogenwerker {

using Verb = Gesture::Verb;

namespace {

// A text of millions of characters would be carried through every later step.
void expectRoomFor(std::string_view text) {
  const std::size_t count = characterCount(text);
  if (count <= mostTypedCharacters) return;
  throw Fault("In dieses Feld passen höchstens " + std::to_string(mostTypedCharacters) + " Zeichen, dieser Text hat " +
              std::to_string(count) + ". Bitte kürzen Sie ihn.");
}

}  // namespace

Frame::Frame(Container& in, std::string_view name, FrameDesign design)
    : Control(in, name, {design.enabled, design.tab, design.at, design.spoken}),
      caption_(design.caption),
      margin_(design.margin),
      stretch_(std::move(design.stretch)) {}

const OptionButton* Frame::chosen() const {
  for (Control* control : Control::form().controls()) {
    const auto* option = dynamic_cast<OptionButton*>(control);
    if (option != nullptr && &control->container() == this && option->value()) return option;
  }
  return nullptr;
}

PictureBox::PictureBox(Container& in, std::string_view name, PictureBoxDesign design)
    : Control(in, name, {true, {}, design.at, {}}) {}

Line::Line(Container& in, std::string_view name, LineDesign design)
    : Control(in, name, {true, {}, design.at, {}}), design_(design) {}

Label::Label(Container& in, std::string_view name, LabelDesign design)
    : Control(in, name, {design.enabled, design.tab, design.at, design.spoken}),
      design_(design),
      caption_(design.caption) {}

const std::string& Label::caption() const {
  touch();
  return caption_;
}

void Label::reset() {
  Control::reset();
  caption_ = design_.caption;
}

CommandButton::CommandButton(Container& in, std::string_view name, CommandButtonDesign design)
    : Control(in, name, {design.enabled, design.tab, design.at, design.spoken}),
      caption_(design.caption),
      characters_(design.characters),
      lines_(design.lines),
      click_(std::move(design.click)),
      hint_(std::move(design.hint)) {}

std::string CommandButton::hint() const {
  if (!hint_ || !form().isLoaded()) return {};
  try {
    return hint_();
  } catch (const Fault& fault) {
    return fault.what();  // the press would end in it
  }
}

Outcome CommandButton::play(const Gesture& gesture) { return gesture.verb == Verb::click ? press() : Outcome::unknown; }

OptionButton::OptionButton(Container& in, std::string_view name, OptionButtonDesign design)
    : Control(in, name, {design.enabled, design.tab, design.at, design.spoken}),
      caption_(design.caption),
      click_(std::move(design.click)) {}

bool OptionButton::value() const {
  touch();
  return value_;
}

void OptionButton::setValue(bool value) {
  change(value_, value);
  if (!value_) return;
  for (Control* sibling : form().controls()) {
    auto* option = dynamic_cast<OptionButton*>(sibling);
    if (option != nullptr && option != this && &option->container() == &container()) option->setValue(false);
  }
}

Outcome OptionButton::choose() {
  return perform({.verb = Verb::click}, [this] {
    if (value_) return;
    setValue(true);
    if (click_) click_();
  });
}

Outcome OptionButton::play(const Gesture& gesture) { return gesture.verb == Verb::click ? choose() : Outcome::unknown; }

void OptionButton::reset() {
  Control::reset();
  value_ = false;
}

TextBox::TextBox(Container& in, std::string_view name, TextBoxDesign design)
    : Control(in, name, {design.enabled, design.tab, design.at, design.spoken}),
      design_(std::move(design)),
      text_(design_.text) {}

const std::string& TextBox::text() const {
  touch();
  return text_;
}

void TextBox::setText(std::string text) {
  if (text == this->text()) return;
  change(text_, std::move(text));
  if (design_.change) design_.change();
}

Outcome TextBox::type(std::string_view typed) {
  std::string text = gateTyped(typed);
  if (design_.goesIntoRecord) text = withoutDoubleQuotes(std::move(text));
  return perform({.verb = Verb::type, .text = text}, [this, &text] {
    expectRoomFor(text);
    setSelLength(0);
    setText(std::move(text));
  });
}

Outcome TextBox::play(const Gesture& gesture) {
  return gesture.verb == Verb::type ? type(gesture.text) : Outcome::unknown;
}

void TextBox::reset() {
  Control::reset();
  text_ = design_.text;
  selLength_ = 0;
}

ComboBox::ComboBox(Container& in, std::string_view name, ComboBoxDesign design)
    : Control(in, name, {design.enabled, design.tab, design.at, design.spoken}),
      designedText_(design.text),
      designedEntries_(design.entries.begin(), design.entries.end()),
      characters_(design.characters),
      sorted_(design.sorted),
      click_(std::move(design.click)),
      text_(design.text),
      entries_(designedEntries_) {}

const std::string& ComboBox::text() const {
  touch();
  return text_;
}

const std::vector<std::string>& ComboBox::entries() const {
  touch();
  if (!inOrder_) sortEntries();
  return entries_;
}

void ComboBox::addItem(std::string entry) {
  touch();
  inOrder_ = !sorted_;
  entries_.push_back(entry);
  noteChange([this, added = std::move(entry)] {
    const auto last = std::find(entries_.rbegin(), entries_.rend(), added);
    entries_.erase(std::prev(last.base()));
  });
}

Outcome ComboBox::type(std::string_view typed) {
  std::string text = withoutDoubleQuotes(gateTyped(typed));
  return perform({.verb = Verb::type, .text = text}, [this, &text] {
    expectRoomFor(text);
    change(text_, std::move(text));
  });
}

Outcome ComboBox::pick(std::size_t index) {
  if (!isWithinReach()) return Outcome::refused;
  if (index >= entries().size()) return Outcome::unknown;
  const std::string entry = entries()[index];
  return perform({.verb = Verb::pick, .text = entry}, [this, &entry] {
    change(text_, entry);
    if (click_) click_();
  });
}

Outcome ComboBox::play(const Gesture& gesture) {
  if (gesture.verb == Verb::type) return type(gesture.text);
  if (gesture.verb != Verb::pick) return Outcome::unknown;
  const auto found = std::find(entries().begin(), entries().end(), gesture.text);
  return pick(static_cast<std::size_t>(found - entries().begin()));
}

void ComboBox::sortEntries() const {
  std::vector<std::pair<std::string, std::size_t>> keys;
  keys.reserve(entries_.size());
  for (const std::string& entry : entries_) keys.emplace_back(germanSortKey(entry), keys.size());
  std::sort(keys.begin(), keys.end());
  std::vector<std::string> sorted;
  sorted.reserve(entries_.size());
  for (const auto& [key, index] : keys) sorted.push_back(std::move(entries_[index]));
  entries_ = std::move(sorted);
  inOrder_ = true;
}

void ComboBox::reset() {
  Control::reset();
  text_ = designedText_;
  entries_ = designedEntries_;
  inOrder_ = true;
}

ListBox::ListBox(Container& in, std::string_view name, ListBoxDesign design)
    : Control(in, name, {design.enabled, design.tab, design.at, design.spoken}),
      charactersShown_(design.characters),
      linesShown_(design.lines),
      click_(std::move(design.click)) {}

const std::vector<std::string>& ListBox::lines() const {
  touch();
  return lines_;
}

std::string ListBox::text() const { return selected_ ? lines()[*selected_] : std::string(); }

void ListBox::addItem(std::string line) {
  touch();
  lines_.push_back(std::move(line));
  noteChange([this] { lines_.pop_back(); });
}

void ListBox::clear() {
  change(selected_, {});
  change(lines_, {});
}

Outcome ListBox::select(std::size_t index) {
  if (!isWithinReach()) return Outcome::refused;
  if (index >= lines_.size()) return Outcome::unknown;
  return perform({.verb = Verb::select, .index = index}, [this, index] {
    change(selected_, std::optional(index));
    if (click_) click_();
  });
}

Outcome ListBox::play(const Gesture& gesture) {
  return gesture.verb == Verb::select ? select(gesture.index) : Outcome::unknown;
}

void ListBox::reset() {
  Control::reset();
  lines_.clear();
  selected_.reset();
}

}  // namespace bogenwerker
