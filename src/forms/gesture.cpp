#include "forms/gesture.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace bogenwerker {
namespace {

using Verb = Gesture::Verb;

constexpr auto verbs = std::to_array<std::pair<std::string_view, Verb>>({
    {"click", Verb::click},
    {"type", Verb::type},
    {"pick", Verb::pick},
    {"select", Verb::select},
    {"close", Verb::close},
});

// Takes what stands ahead of the first blank, and the blank.
std::string_view takeWord(std::string_view& line) {
  const std::size_t blank = line.find(' ');
  const std::string_view word = line.substr(0, blank);
  line.remove_prefix(blank == line.npos ? line.size() : blank + 1);
  return word;
}

std::size_t indexOf(std::string_view digits) {
  std::size_t index = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
  return error == std::errc{} && end == digits.data() + digits.size() ? index : Gesture::noLine;
}

}  // namespace

std::optional<Gesture> parseGesture(std::string_view line) {
  if (line == "close") return Gesture{.verb = Verb::close};
  const std::string_view word = takeWord(line);
  const auto* verb = std::find_if(verbs.begin(), verbs.end(), [word](const auto& row) { return row.first == word; });
  if (verb == verbs.end()) return {};
  switch (verb->second) {
    case Verb::click: return Gesture{.verb = Verb::click, .control = std::string(line)};
    case Verb::type:
    case Verb::pick: {
      const std::string_view control = takeWord(line);
      return Gesture{.verb = verb->second, .control = std::string(control), .text = std::string(line)};
    }
    case Verb::select: {
      const std::string_view control = takeWord(line);
      return Gesture{.verb = Verb::select, .control = std::string(control), .index = indexOf(line)};
    }
    case Verb::close: return {};  // it stands alone
  }
  return {};
}

std::string lineOf(const Gesture& gesture) {
  const auto* verb =
      std::find_if(verbs.begin(), verbs.end(), [&gesture](const auto& row) { return row.second == gesture.verb; });
  std::string line(verb->first);
  if (gesture.verb == Verb::close) return line;
  line.append(" ").append(gesture.control);
  if (gesture.verb == Verb::select) line.append(" ").append(std::to_string(gesture.index));
  if (gesture.verb == Verb::type || gesture.verb == Verb::pick) line.append(" ").append(gesture.text);
  return line;
}

}  // namespace bogenwerker
