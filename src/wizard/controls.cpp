#include "wizard/controls.h"

#include <algorithm>
#include <cassert>

#include "wizard/text.h"

namespace bogenwerker {

Control::Control(Container& in, std::string_view name, Basics basics)
    : in_(in),
      form_(in.form()),
      name_(name),
      spoken_(basics.spoken),
      place_(basics.place),
      tab_(basics.tab),
      designedEnabled_(basics.enabled),
      enabled_(basics.enabled) {
  form_.controls_.push_back(this);
}

bool Control::isEnabled() const {
  touch();
  return enabled_;
}

void Control::setEnabled(bool enabled) { change(enabled_, enabled); }

bool Control::isUsable() const { return isEnabled() && in_.isUsable(); }

bool Control::gesture(const Handler& action) {
  if (!form_.isVisible() || !isUsable()) return false;
  if (action) form_.runtime_.perform(form_, action);
  return true;
}

Frame::Frame(Container& in, std::string_view name, FrameDesign design)
    : Control(in, name, {design.enabled, design.tab, design.at, design.spoken}),
      caption_(design.caption),
      margin_(design.margin),
      stretch_(std::move(design.stretch)) {}

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
      click_(std::move(design.click)) {}

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

bool OptionButton::choose() {
  return gesture([this] {
    if (value_) return;
    setValue(true);
    if (click_) click_();
  });
}

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

bool TextBox::type(std::string_view typed) {
  return gesture([this, typed] {
    setSelLength(0);
    setText(gateTyped(typed));
  });
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

bool ComboBox::type(std::string_view typed) {
  return gesture([this, typed] { change(text_, gateTyped(typed)); });
}

bool ComboBox::pick(std::size_t index) {
  return gesture([this, index] {
    assert(index < entries().size());
    change(text_, std::string(entries()[index]));
    if (click_) click_();
  });
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

bool ListBox::select(std::size_t index) {
  return gesture([this, index] {
    assert(index < lines_.size());
    change(selected_, std::optional(index));
    if (click_) click_();
  });
}

void ListBox::reset() {
  Control::reset();
  lines_.clear();
  selected_.reset();
}

}  // namespace bogenwerker
