// The data sheet: a template with its placeholders replaced.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "finish/final_values.h"
#include "finish/personal_data.h"
#include "outside/environment.h"

namespace bogenwerker {

// Reads the race from Prioritäten.txt and the template, and writes the sheet, flushed to the disk. Values go in
// unchanged, nothing is escaped for HTML. Gives back the name of the file. Throws Fault.
std::string writeSheet(const Environment& environment, const FinalValues& values, const PersonalData& person);

// The file that the sheet of a character goes to: the name as typed with ".htm" behind it where every system takes that
// as a plain file name of its own. Else what no system takes is replaced, what is too long is cut, and a mark of the
// whole name goes ahead of the ending, so that two names never share a sheet. Never a path, never the template.
std::string sheetFileName(std::string_view Namen);

// Appends what is wrong with the template, a line of German for each fault. One that misses placeholders is no fault.
void checkTemplate(Files& files, std::vector<std::string>& faults);

}  // namespace bogenwerker
