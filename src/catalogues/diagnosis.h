// What a player has likely done to a line that could not be read.
#pragma once

#include <string>
#include <string_view>

namespace bogenwerker {

// How many fields the line holds by itself.
int countFields(std::string_view line);

// True for the quotation marks that a word processor sets.
bool beginsWithCurlyQuote(std::string_view text);

// True if an editor has broken one row into these two lines.
bool isBrokenRow(std::string_view line, std::string_view next, int fields);

// What is wrong with a line that holds another number of fields than wanted, in German.
std::string whyWrongCount(std::string_view line, int number, int wanted);

// The fault of a line with the right number of fields, or what the looks of the line tell better, in German.
std::string whyUnreadable(std::string_view file, std::string_view line, int number, std::string_view fault);

// True if every line sets its fields apart with semicolons or tabs, as spreadsheets write them.
bool hasOtherSeparator(std::string_view bytes, int fields);

// True for what a word processor or a spreadsheet saves unless told otherwise.
bool isNoText(std::string_view bytes);

}  // namespace bogenwerker
