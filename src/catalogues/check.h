// The check ahead of the first form: what of the player's files cannot be played with.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "outside/files.h"

namespace bogenwerker {

// Reads a file of text in code page 1252. Where it is missing or something else, false, and a line of German more.
bool readText(Files& files, std::string_view file, std::string& bytes, std::vector<std::string>& faults);

// Appends what is wrong with the player's six files, a line of German for each fault with file, line and field. A name
// that stands twice is no fault.
void checkCatalogues(Files& files, std::vector<std::string>& faults);

// A mark of all that the six files hold. Throws Fault.
std::string markOfCatalogues(Files& files);

}  // namespace bogenwerker
