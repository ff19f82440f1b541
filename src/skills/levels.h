// What all kinds of skills have in common: the price of a level, the room in a list, the number at the head of its
// lines, and what a player is told where a button does nothing.
#pragma once

#include <string>
#include <string_view>

#include "forms/controls.h"
#include "values/numbers.h"

namespace bogenwerker {

constexpr int highestLevel = 6;
constexpr int mostEntries = 30;  // of a list

// Whether the entry of that number has a place in its list.
constexpr bool hasRoom(Integer number) { return number <= mostEntries; }

// A level above the value of the skill's attribute costs 2 points, any other 1. What raising to a level costs is what
// lowering from it gives back.
constexpr Integer priceOfLevel(Integer level, Integer attribute) { return level > attribute ? 2 : 1; }

// Why the level of an entry cannot change; empty if it can.
std::string whyNotRaise(const std::string& name, Integer level);
std::string whyNotLower(const std::string& name, Integer level);

// Why the button does not add an entry of that number under that name; empty if it does.
std::string whyNotAdd(const TextBox& name, const CommandButton& button, Integer number);

inline constexpr const char* clickALine = "Klicken Sie erst eine Zeile der Liste an.";

// The number that stands ahead of the first point of a list line, of one or two digits.
Integer numberOfLine(std::string_view line);

}  // namespace bogenwerker
