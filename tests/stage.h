// A player on a stage of its own: what is done and what is then to be seen, in parts of text. A part is
//   any gesture of the headless program, in short NAME (a click), NAME*3, NAME: TYPED, NAME! PICKED, NAME@2 (a line);
//     with " => REPLY" where that is not ok, or " => fault TEXT", which has to leave everything as it was; or
//   start; die 6; prio Elf Adept 18 40 D; points 3 3 3 3 3 3; skills; knowledge (these two spend all and go on); or
//   FILE < LINE | LINE: writes a file, in code page 1252 and with CR LF; or
//   NAME NAME.KEY = VALUE | VALUE: what controls of the visible form show, KEY as in the dump; or a FILE; message;
//     form; forms, all that are loaded; table, a hash of the whole control table; slips, told of the catalogues.
// A … in what is expected stands for anything.
#pragma once

#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <utility>

#include "values/text.h"
#include "world.h"

namespace bogenwerker {

using nlohmann::json;
using Texts = std::vector<std::string>;

inline Texts split(std::string_view text, std::string_view separator) {
  Texts parts;
  for (std::size_t end = 0; (end = text.find(separator)) != text.npos; text.remove_prefix(end + separator.size())) {
    parts.emplace_back(text.substr(0, end));
  }
  parts.emplace_back(text);
  return parts;
}

inline std::string replaced(std::string text, const std::string& what, const std::string& with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != text.npos; at += with.size())
    text.replace(at, what.size(), with);
  return text;
}

inline void compare(const std::string& actual, const std::string& expected) {
  const Texts pieces = split(expected, "…");
  bool same = actual.starts_with(pieces.front()) && actual.ends_with(pieces.back());
  std::size_t at = 0;
  for (const std::string& piece : pieces) {
    at = std::min(actual.find(piece, at), actual.size());
    same = same && actual.compare(at, piece.size(), piece) == 0;
    at += piece.size();
  }
  if (!same || (pieces.size() == 1 && actual != expected)) throw std::runtime_error("is: " + actual);
}

class Stage : public World {
 public:
  void perform(const std::string& part) {
    std::istringstream words(part);
    std::string word;
    words >> word;
    if (const Texts sides = split(part, " < "); sides.size() > 1) {
      writeBytes(sides[0], cp1252FromUtf8(linesOf(sides[1])));
    } else if (const Texts values = split(part, " = "); values.size() > 1) {
      const bool isFile = values[0].ends_with(".txt") || values[0].ends_with(".htm");
      if (isFile) compare(utf8FromCp1252(fileBytes(values[0])), linesOf(values[1]));
      else compare(shownBy(values[0]), values[1]);
    } else if (word == "die") {
      words >> die;
    } else if (word == "prio") {
      for (const std::string column : {"optRasse", "opt", "optAttribute", "optFertigkeiten", "optRess"}) {
        words >> word;
        gesture(column + word);
      }
      gesture("cmdWeiter1");
    } else if (word == "points") {
      for (const std::string name : {"Konst", "Schnell", "Stark", "Charisma", "Intell", "Will"}) {
        words >> word;
        gesture("cmd" + name + (word[0] == '-' ? "Minus*" : "Plus*") + word.substr(word[0] == '-' ? 1 : 0));
      }
    } else if (word == "skills") {
      learn(std::stoi(shownBy("lblTotalFertigkeitenPunkte")), std::stoi(shownBy("lblREMkonst")), "cmdFertigkeitPlus*",
            "txtAFertigkeit: Fertigkeit %; optAFKonst; cmdAddFertigkeit; lstAFertigkeiten@%");
      gesture("cmddisformisready");
    } else if (word == "knowledge") {
      const int mind = std::stoi(shownBy("lblWissensPunkte")) / 5;
      learn(5 * mind, mind, "cmdPlusWFert*", "txtWFertigkeit: Wissen %; cmdAddWFertigkeit; lstWFertigkeiten@%");
      learn(mind * 3 / 2, mind, "cmdPlusWFert*", "txtSprache: Sprache %; cmdAddSprache; lstSprachen@%");
      gesture("cmdGoAhead");
    } else {
      const Texts told = split(part, " => ");
      gesture(told.front(), told.size() > 1 ? told.back() : "ok");
    }
  }
  // Parts set apart by "; ".
  void performAll(const std::string& parts) {
    for (const std::string& part : split(parts, "; ")) perform(part);
  }

 private:
  static std::string linesOf(const std::string& text) {
    return text.empty() ? text : replaced(text, " | ", "\r\n") + "\r\n";
  }

  // Spends the points on skills up to the level at which the price doubles.
  void learn(int points, int level, const std::string& plus, const std::string& add) {
    for (int i = 0; points > 0; ++i, points -= level) {
      performAll(replaced(add, "%", std::to_string(i)) + "; " + plus + std::to_string(std::min(points, level)));
    }
  }

  void gesture(const std::string& told, const std::string& expected = "ok") {
    static const std::regex shape("([^ :!@*]*)([ :!@*]?) ?(.*)");
    static const std::map<std::string, std::string> verbs = {{":", "type "}, {"!", "pick "}, {"@", "select "}};
    std::smatch parts;
    std::regex_match(told, parts, shape);
    const auto verb = verbs.find(parts[2]);
    std::string line = parts[2] == " " || told == "close" ? told : "click " + parts[1].str();
    if (verb != verbs.end()) line = verb->second + parts[1].str() + " " + parts[3].str();

    const bool failing = expected.starts_with("fault ");
    const std::string before = failing ? dump() : "";
    for (int times = parts[2] == "*" ? std::stoi(parts[3]) : 1; times > 0; --times) {
      if (told == "start") wizard.start();
      else compare(play(line).back(), failing ? "ok" : expected);
    }
    if (faults.empty() == failing) throw std::runtime_error(failing ? "no fault" : faults.front());
    if (failing) compare("fault " + escaped(std::exchange(faults, {}).front()), expected);
    if (failing && dump() != before) throw std::runtime_error("the fault leaves its traces");
  }

  std::string shownBy(const std::string& names) {
    if (names == "message") return joined(std::exchange(messages, {}));
    if (names == "slips") return wizard.slips().empty() ? "none" : joined(splitLines(wizard.slips()));
    std::string texts;
    for (const std::string& name : split(names, " ")) {
      Texts keys = split(name, ".");
      if (keys.size() == 1) keys.insert(keys.end(), {"caption", "lines", "text"});
      for (const json& form : json::parse(dump())) {
        const bool visible = form["visible"];
        if (name == "forms" || (name == "form" && visible)) texts += " | " + form["name"].get<std::string>();
        std::uint32_t hash = 0;
        for (json control : visible ? form["controls"] : json::array()) {
          const auto key = std::find_if(keys.begin() + 1, keys.end(), [&](auto& one) { return control.contains(one); });
          if (control["name"] == keys[0] && key != keys.end()) texts += " | " + joined(control[*key]);
          control.erase("entries");
          for (const char c : control.dump()) hash = hash * 31 + static_cast<unsigned char>(c);
        }
        if (name == "table" && visible) texts += " | " + std::to_string(hash);
      }
    }
    return texts.empty() ? "nothing of that name is shown" : texts.substr(3);
  }
  static std::string joined(const json& value) {
    if (!value.is_array()) return value.is_string() ? value.get<std::string>() : value.dump();
    std::string text;
    for (const std::string line : value) text += " | " + line;
    return text.substr(std::min(text.size(), std::size_t{3}));
  }
};

}  // namespace bogenwerker
