// The data sheet: a template with its placeholders replaced.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "wizard/files.h"

namespace bogenwerker {

class FormFeinschliff;
class FormNamenGeben;

// Reads the race from Prioritäten.txt and the template, and writes the sheet, flushed to the disk. Values go in
// unchanged, nothing is escaped for HTML. Reads no control. Throws Fault.
void writeSheet(Files& files, const FormFeinschliff& values, const FormNamenGeben& person);

// The file that the sheet of a character goes to: the name as typed with ".htm" behind it where that makes a plain file
// name of its own on any system, else a safe one beside it. Never a path, never the template.
std::string sheetFileName(std::string_view Namen);

// Appends what is wrong with the template, a line of German for each fault. One that misses placeholders is no fault.
void checkTemplate(Files& files, std::vector<std::string>& faults);

}  // namespace bogenwerker
