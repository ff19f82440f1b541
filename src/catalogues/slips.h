// Rows that load and look like a slip of the player who wrote them.
#pragma once

#include <string>
#include <vector>

#include "outside/files.h"
#include "values/numbers.h"

namespace bogenwerker {

// The most that any character can spend on a purchase.
struct Means {
  Currency ressourcen;
  Single essenz = 0;    // of which something has to be left
  Single bioIndex = 0;  // of which something has to be left
  Integer spruchpunkte;
  Currency preisSpruchpunkt;  // of each one more
  Single kraftpunkte = 0;
};

// A line of German for each slip in the six catalogues, with file and line. Looks no further in a file that has changed
// since the check and cannot be read: step 5 will tell.
std::vector<std::string> findSlips(Files& files, const Means& most);

}  // namespace bogenwerker
