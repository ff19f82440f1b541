// How the player's system writes numbers.
#pragma once

#include <optional>
#include <string>

#include "values/numbers.h"

namespace bogenwerker {

// The locale that the environment names (LC_ALL, LC_NUMERIC, LANG, the first of them that is set). Where it is not
// installed on this machine, the language and the country alone decide, so that a German player without German locales
// still gets commas. The separators are such as a player can type: a decimal separator that code page 1252 does not
// hold makes it the locale C.
NumberLocale systemNumberLocale();

// The separators of a locale as the system has them, in UTF-8; nothing for one that is not installed. An empty name
// asks for what the player has set where no environment names any.
std::optional<NumberLocale> installedNumberLocale(const std::string& name);

}  // namespace bogenwerker
