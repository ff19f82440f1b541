// What the choice of step 1 is worth: race modifiers, magic value, budgets.
#pragma once

#include <string>

#include "outside/files.h"
#include "values/numbers.h"

namespace bogenwerker {

class FormAktionFertigkeit;
class FormAttributmonitor;

// Fills the labels of step 2 and the budget of step 3, which loads that form, and writes Prioritäten.txt. Throws Fault
// if the file cannot be written.
void uebergebePrioritaeten(const std::string& Rasse, const std::string& Magie, Integer AttributPunkte,
                           Integer FertigkeitenPunkte, Currency Ressourcen, FormAttributmonitor& formAttributmonitor,
                           FormAktionFertigkeit& formAktionFertigkeit, Files& files);

}  // namespace bogenwerker
