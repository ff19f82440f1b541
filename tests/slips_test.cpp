// What is told, ahead of the first form, of a catalogue that a player has changed: its faults, or else its slips.
#include <gtest/gtest.h>

#include "catalogues/check.h"
#include "values/text.h"
#include "world.h"

namespace bogenwerker {
namespace {

// The lines that tell of a file with these rows, a | between them, all other files being as shipped.
std::string told(const std::string& file, std::string rows) {
  World world;
  for (std::size_t at = 0; (at = rows.find('|', at)) != rows.npos;) rows.replace(at, 1, "\r\n");
  writeBytes(file, cp1252FromUtf8(rows));
  std::vector<std::string> lines;
  checkCatalogues(world.files, lines);
  if (lines.empty()) lines = splitLines(world.wizard.slips());
  std::string text;
  for (const std::string& line : lines) text += line.starts_with(file) ? line.substr(file.size()) + "|" : "";
  return text;
}

struct Case {
  const char *file, *rows, *told;
};

// clang-format off
const std::vector<Case> cases = {
    {"Connection.txt", "Name,Preis|# teuer, aber gut|\"A\",5,|\"B\";5|\"\"\"C\"\"\",5|D,y|", ", Zeile 1: Eine Überschrift? Bitte löschen.|, Zeile 2: Kommentare gibt es hier nicht. Bitte löschen.|, Zeile 3: 3 Felder statt 2. Am Ende steht ein Komma zu viel.|, Zeile 4: 1 Feld statt 2. Die Felder trennt ein Komma.|, Zeile 5: Bitte \"Name\" statt \"\"\"Name\"\"\". Hat eine Tabellenkalkulation die Datei gespeichert?|, Zeile 6, Feld 2: „y“ ist keine Zahl.|"},
    {"Connection.txt", "„A, B“,5|\"C“,5|\"D\",5|", ", Zeile 1: Bitte gerade Anführungszeichen (\") statt der typografischen.|, Zeile 2: Bitte gerade Anführungszeichen (\") statt der typografischen.|"},
    {"Connection.txt", "\"A\";5|\"B\";5,5|", ": In der ganzen Datei trennen Strichpunkte oder Tabulatoren die Felder. Bitte ersetzen Sie alle durch Kommas.|"},
    {"Cyberdecks.txt", "\"A\",1,|2,3|\"B\",x,0,0|", ", Zeile 1: Die Zeile ist umbrochen: Der Rest des Eintrags steht in Zeile 2. Bitte verbinden.|, Zeile 3, Feld 2: „x“ ist keine ganze Zahl von -32768 bis 32767.|"},
    {"Connection.txt", "{\\rtf1 \"A\",5}|", ": Das ist keine Textdatei, auch wenn sie so heißt. Bitte speichern Sie sie als reinen Text. Wie das geht, steht in kataloge.md unter „Speichern“.|"},

    {"Connection.txt", "\"A\",2.805|\"B / 2.800 Y\",2.800|\"C\" (neu) ,5|\"D\"|5|\"d\",5|\"D\",6|„E“,5|\"F\",1000000|\"G\",1000000.01|", ", Zeile 1, Feld 2: „2.805“ kostet so 2,805 Y. Einen Tausenderpunkt gibt es hier nicht.|, Zeile 2, Feld 2: „2.800“ kostet so 2,80 Y. Einen Tausenderpunkt gibt es hier nicht.|, Zeile 3, Feld 1: Hinter dem Anführungszeichen steht noch „(neu)“. Das liest der Bogenwerker nicht.|, Zeile 7: „D“ heißt schon ein Eintrag in Connection.txt, Zeile 4. Gleiche Namen zahlen oder wirken doppelt.|, Zeile 8, Feld 1: Die typografischen Anführungszeichen gehören so zum Namen. Gemeint sind wohl gerade (\").|, Zeile 10: Das kann niemand kaufen: So viel Geld hat keiner.|"},
    {"MagicStuff.txt", "\"A (1.400 Y / 2 SP)\",1,140,0|\"B (0,25 KP)\",0,0,0.5|\"C (3 SP, 4 Yen, 5 Y)\",3,5,0|", ", Zeile 1: Im Namen steht „1.400 Y“, bezahlt wird „140 Y“.|, Zeile 1: Im Namen steht „2 SP“, bezahlt wird „1 SP“.|, Zeile 2: Im Namen steht „0,25 KP“, bezahlt wird „0,5 KP“.|"},
    {"MagicStuff.txt", "\"A\",1,0,0.25|\"B\",0,0,6|\"C\",0,0,6.25|\"D\",75,0,0|\"E\",75,1,0|", ", Zeile 1: Das kann niemand kaufen: Spruchpunkte und Kraftpunkte zugleich hat keiner.|, Zeile 3: Das kann niemand kaufen: So viele Kraftpunkte hat keiner.|, Zeile 5: Das kann niemand kaufen: So viel Geld hat keiner.|"},
    {"Cyberware.txt", "\"A\",5.9,1,0,0,0,0,0,0,0,0,0,0,0,0,0,1|\"B\",6,1,0,0,0,0,0,0,0,0,0,0,0,0,0,1|\"C\",-40000,1,0,0,0,0,0,0,0,0,0,0,0,0,0,1|\"D\",1,1,0,-11000,0,11000,0,11000,0,0,0,0,0,0,0,1|", ", Zeile 2: Das kann niemand kaufen: So viel Essenz hat keiner übrig.|, Zeile 3: Mit so großen Werten kann der Bogenwerker nach dem Kauf nicht mehr rechnen.|, Zeile 4: Mit so großen Werten kann der Bogenwerker nach dem Kauf nicht mehr rechnen.|"},
    {"Bioware.txt", "\"A\",8.9,1,0,0,0,0,0,0,0,0,0,0,0,0,0,1|\"B\",9,1,0,0,0,0,0,0,0,0,0,0,0,0,0,1|\"Zahntresor\",1,1,0,0,0,0,0,0,0,0,0,0,0,0,0,1", ", Zeile 2: Das kann niemand kaufen: So viel Bio-Index hat keiner übrig.|, Zeile 3: „Zahntresor“ heißt schon ein Eintrag in Cyberware.txt, Zeile 56. Gleiche Namen zahlen oder wirken doppelt.|"},
    {"Cyberdecks.txt", "\"A\",1,,3|\"B\",1,2,\"\"|\"C\",1,1,16383|\"D\",32767,1,0|", ", Zeile 1, Feld 3: Das Feld ist leer und zählt als 0.|, Zeile 2, Feld 4: Das Feld ist leer und zählt als 0.|, Zeile 3: Mit so großen Werten kann der Bogenwerker nach dem Kauf nicht mehr rechnen.|, Zeile 4: Mit so großen Werten kann der Bogenwerker nach dem Kauf nicht mehr rechnen.|"},
};
// clang-format on

TEST(Slips, AndFaultsAreToldForWhatTheyAre) {
  for (const Case& slip : cases) EXPECT_EQ(told(slip.file, slip.rows), slip.told) << slip.rows;
  EXPECT_EQ(World().wizard.slips(), "") << "as shipped";
}

}  // namespace
}  // namespace bogenwerker
