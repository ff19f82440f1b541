// All that this room says to the player, each sentence whole. What stands for %1, %2 is told by what is filled in.
#pragma once

#include <string_view>

namespace bogenwerker::sentences {

using Text = std::string_view;

// Of a file.
constexpr Text missing =
    "%1 fehlt im Ordner „%2“. Beim nächsten Start mit ./run oder aus dem Menü liegt die mitgelieferte Datei wieder "
    "darin.";
constexpr Text savedAsUnicode =
    "%1: Die Datei ist als Unicode (UTF-8 oder UTF-16) gespeichert. Bitte speichern Sie sie in der Kodierung „ANSI“ "
    "(Windows-1252, Westeuropäisch). Wie das geht, steht in kataloge.md unter „Speichern“.";
constexpr Text noTextFile =
    "%1: Das ist keine Textdatei, auch wenn sie so heißt. Bitte speichern Sie sie als reinen Text. Wie das geht, steht "
    "in kataloge.md unter „Speichern“.";
constexpr Text otherSeparatorEverywhere =
    "%1: In der ganzen Datei trennen Strichpunkte oder Tabulatoren die Felder. Bitte ersetzen Sie alle durch Kommas.";
constexpr Text tooManyRows = "%1: %2 Einträge. Platz ist für höchstens %3.";
constexpr Text soManyFaults = "%1: Nach so vielen Fehlern endet hier die Prüfung.";

// Where in a file, ahead of what is told of it.
constexpr Text inLine = "%1, Zeile %2: %3";
constexpr Text inField = "%1, Zeile %2, Feld %3: %4";

// Of a line that could not be read.
constexpr Text oneField = "1 Feld statt %2.";
constexpr Text otherFields = "%1 Felder statt %2.";
constexpr Text emptyLine = "Die Zeile ist leer. Bitte löschen.";
constexpr Text comment = "Kommentare gibt es hier nicht. Bitte löschen.";
constexpr Text heading = "Eine Überschrift? Bitte löschen.";
constexpr Text curlyQuotes = "Bitte gerade Anführungszeichen (\") statt der typografischen.";
constexpr Text tripledQuotes = R"(Bitte "Name" statt """Name""". Hat eine Tabellenkalkulation die Datei gespeichert?)";
constexpr Text brokenInTwo = "Die Zeile ist umbrochen: Der Rest des Eintrags steht in Zeile %1. Bitte verbinden.";
constexpr Text commaAtTheEnd = "Am Ende steht ein Komma zu viel.";
constexpr Text decimalComma = "Dezimalkomma? Hier gilt der Punkt.";
constexpr Text otherSeparator = "Die Felder trennt ein Komma.";
constexpr Text somethingMissing = "Fehlt ein Komma oder ein Anführungszeichen?";
constexpr Text noName = "Der Name fehlt.";
constexpr Text quoteInName = "Im Namen steht ein Anführungszeichen.";
constexpr Text lineEndInName = "Im Namen endet die Zeile. Fehlt ein Anführungszeichen?";

// Of a row that loads and looks like a slip.
constexpr Text groupedPrice = "„%1“ kostet so %2 Y. Einen Tausenderpunkt gibt es hier nicht.";
constexpr Text behindQuote = "Hinter dem Anführungszeichen steht noch „%1“. Das liest der Bogenwerker nicht.";
constexpr Text sameName = "„%1“ heißt schon ein Eintrag in %2, Zeile %3. Gleiche Namen zahlen oder wirken doppelt.";
constexpr Text curlyName = "Die typografischen Anführungszeichen gehören so zum Namen. Gemeint sind wohl gerade (\").";
constexpr Text emptyField = "Das Feld ist leer und zählt als 0.";
constexpr Text otherCostInName = "Im Namen steht „%1“, bezahlt wird „%2“.";
constexpr Text tooMuchMoney = "Das kann niemand kaufen: So viel Geld hat keiner.";
constexpr Text tooMuchEssenz = "Das kann niemand kaufen: So viel Essenz hat keiner übrig.";
constexpr Text tooMuchBioIndex = "Das kann niemand kaufen: So viel Bio-Index hat keiner übrig.";
constexpr Text tooManyKraftpunkte = "Das kann niemand kaufen: So viele Kraftpunkte hat keiner.";
constexpr Text bothKindsOfPoints = "Das kann niemand kaufen: Spruchpunkte und Kraftpunkte zugleich hat keiner.";
constexpr Text tooLarge = "Mit so großen Werten kann der Bogenwerker nach dem Kauf nicht mehr rechnen.";

}  // namespace bogenwerker::sentences
