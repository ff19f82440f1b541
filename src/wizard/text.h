// Text on its way in and out: code page 1252 on the disk, UTF-8 in the program, German order in sorted boxes.
#pragma once

#include <string>
#include <string_view>

namespace bogenwerker {

// Every byte has a character: the five that code page 1252 leaves open stand for the control characters of their
// number.
std::string utf8FromCp1252(std::string_view bytes);

// Leaves out what code page 1252 does not hold, and every byte that is no sound UTF-8.
std::string cp1252FromUtf8(std::string_view text);

// The gate for all text that a player types: a double quote becomes an apostrophe, since a record could not hold it;
// control characters and characters outside code page 1252 are left out.
std::string gateTyped(std::string_view text);

// True if the bytes hold characters above ASCII and all of them are sound UTF-8, or if they begin with a byte order
// mark of UTF-8 or UTF-16: a file that somebody saved in the wrong encoding.
bool looksLikeUnicode(std::string_view bytes);

// At most that many bytes of the text, cut between two characters.
std::string_view utf8Prefix(std::string_view text, std::size_t bytes);

// What to compare to sort as a German reader expects: umlauts stand beside their base letter, ß beside ss; accents and
// then case (small letters first) only break ties. The same on every machine.
std::string germanSortKey(std::string_view text);

// Plain ASCII case folding, for file names.
std::string lowerAscii(std::string_view text);

}  // namespace bogenwerker
