// Text on its way in and out: code page 1252 on the disk, UTF-8 in the program, German order in sorted boxes.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace bogenwerker {

// Every byte has a character: the five that code page 1252 leaves open stand for the control characters of their
// number.
std::string utf8FromCp1252(std::string_view bytes);

// Leaves out what code page 1252 does not hold, and every byte that is no sound UTF-8.
std::string cp1252FromUtf8(std::string_view text);

// The gate for all text that a player types or pastes: only what code page 1252 holds comes through, and nothing that a
// player can see is lost. Letters in two pieces are put together; a character that looks like one of the code page
// becomes that one; a line break or tab becomes a blank; any other character becomes a question mark. What nobody sees
// goes. Text that has passed comes through unchanged.
std::string gateTyped(std::string_view text);

// The text as a record can hold it: with apostrophes for double quotes.
std::string withoutDoubleQuotes(std::string text);

// How many characters are in the text, which is sound UTF-8.
std::size_t characterCount(std::string_view text);

// True if the bytes hold characters above ASCII and all of them are sound UTF-8, or if they begin with a byte order
// mark of UTF-8 or UTF-16: a file that somebody saved in the wrong encoding.
bool looksLikeUnicode(std::string_view bytes);

// At most that many bytes of the text, cut between two characters.
std::string_view utf8Prefix(std::string_view text, std::size_t bytes);

// What to compare to sort as a German reader expects: umlauts stand beside their base letter, ß beside ss; accents and
// then case (small letters first) only break ties. The same on every machine.
std::string germanSortKey(std::string_view text);

// „Text“, as German quotes it.
std::string quoted(std::string_view text);

// What a budget has left as a sentence: "Noch 7 Punkte frei.", "1 Punkt zu viel ausgegeben.", empty at 0.
std::string pointsLeft(int left, std::string_view point, std::string_view points);

// The text with the first value for every %1 in it, the second for %2, and so on up to %9.
std::string filled(std::string_view text, std::initializer_list<std::string_view> values);

// A mark of the text: FNV-1a of 32 bits, as eight hexadecimal digits.
std::string markOf(std::string_view text);

// Plain ASCII case folding, for file names.
std::string lowerAscii(std::string_view text);

}  // namespace bogenwerker
