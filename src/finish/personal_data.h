// Who the character is.
#pragma once

#include <string>

namespace bogenwerker {

// Four free texts for the sheet; they change no value of the character.
struct PersonalData {
  std::string Namen;
  std::string alter;
  std::string aussehen;
  std::string geschlecht;
};

}  // namespace bogenwerker
