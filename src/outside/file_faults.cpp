#include "outside/file_faults.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace bogenwerker {
namespace {

// Behind the name of the file.
struct Sentence {
  int error;
  std::string_view text;
};

// clang-format off
constexpr auto readSentences = std::to_array<Sentence>({
    {ENOENT, " fehlt. Legen Sie die Datei in den Ordner, aus dem der Bogenwerker läuft."},
    {EACCES, " kann nicht gelesen werden: Der Zugriff ist nicht erlaubt. Prüfen Sie die Rechte der Datei und des Ordners."},
    {EPERM, " kann nicht gelesen werden: Der Zugriff ist nicht erlaubt. Prüfen Sie die Rechte der Datei und des Ordners."},
    {EBUSY, " kann nicht gelesen werden: Ein anderes Programm hält die Datei offen. Schließen Sie sie dort und versuchen Sie es noch einmal."},
    {EISDIR, " kann nicht gelesen werden: Unter diesem Namen liegt ein Ordner. Benennen Sie ihn um und legen Sie die Datei an seine Stelle."},
    {cause::notRegular, " kann nicht gelesen werden: Unter diesem Namen liegt keine gewöhnliche Datei. Ersetzen Sie sie durch eine."},
    {EFBIG, " kann nicht gelesen werden: Die Datei ist zu groß. Mehr als 16 Megabyte liest der Bogenwerker nicht."},
    {EIO, " kann nicht gelesen werden: Der Datenträger meldet einen Fehler. Prüfen Sie ihn oder arbeiten Sie in einem anderen Ordner."},
    {EMFILE, " kann nicht gelesen werden: Es sind zu viele Dateien offen. Versuchen Sie es in einem Augenblick noch einmal."},
    {ENFILE, " kann nicht gelesen werden: Es sind zu viele Dateien offen. Versuchen Sie es in einem Augenblick noch einmal."},
    {ELOOP, " kann nicht gelesen werden: Unter diesem Namen liegt ein Verweis, der ins Leere führt. Ersetzen Sie ihn durch eine Datei."},
    {cause::folderGone, " kann nicht gelesen werden: Den Ordner, in dem der Bogenwerker läuft, gibt es nicht mehr. Starten Sie ihn in einem anderen."},
});

constexpr auto writeSentences = std::to_array<Sentence>({
    {EACCES, " kann nicht geschrieben werden: Die Datei ist geschützt. Heben Sie den Schutz auf oder benennen Sie sie um."},
    {EPERM, " kann nicht geschrieben werden: Der Zugriff ist nicht erlaubt. Prüfen Sie die Rechte der Datei und des Ordners."},
    {EROFS, " kann nicht geschrieben werden: Der Datenträger ist schreibgeschützt. Starten Sie den Bogenwerker in einem beschreibbaren Ordner."},
    {ENOSPC, " kann nicht geschrieben werden: Der Datenträger ist voll. Schaffen Sie Platz auf dem Datenträger."},
    {cause::quotaUsedUp, " kann nicht geschrieben werden: Ihr Speicherplatz ist aufgebraucht. Schaffen Sie Platz auf dem Datenträger."},
    {EBUSY, " kann nicht geschrieben werden: Ein anderes Programm hält die Datei offen. Schließen Sie sie dort und versuchen Sie es noch einmal."},
    {EISDIR, " kann nicht geschrieben werden: Unter diesem Namen gibt es schon einen Ordner. Benennen Sie den Ordner um oder verschieben Sie ihn."},
    {EFBIG, " kann nicht geschrieben werden: Das System lässt so große Dateien nicht zu. Heben Sie diese Grenze auf."},
    {EIO, " kann nicht geschrieben werden: Der Datenträger meldet einen Fehler. Prüfen Sie ihn oder arbeiten Sie in einem anderen Ordner."},
    {EMFILE, " kann nicht geschrieben werden: Es sind zu viele Dateien offen. Versuchen Sie es in einem Augenblick noch einmal."},
    {ENFILE, " kann nicht geschrieben werden: Es sind zu viele Dateien offen. Versuchen Sie es in einem Augenblick noch einmal."},
    {ELOOP, " kann nicht geschrieben werden: Unter diesem Namen liegt ein Verweis, der im Kreis führt. Ersetzen Sie ihn durch eine Datei."},
    {ENAMETOOLONG, " kann nicht geschrieben werden: Der Name ist zu lang. Wählen Sie einen kürzeren."},
    {EEXIST, " kann nicht geschrieben werden: „Bogenwerker.neu“ ist im Weg und lässt sich nicht löschen. Benennen Sie um, was diesen Namen trägt."},
    {ENOENT, " kann nicht geschrieben werden: Den Ordner dafür gibt es nicht. Prüfen Sie, wohin der Name führt."},
    {cause::folderGone, " kann nicht geschrieben werden: Den Ordner, in dem der Bogenwerker läuft, gibt es nicht mehr. Legen Sie ihn wieder an oder starten Sie in einem anderen."},
    {cause::folderProtected, " kann nicht geschrieben werden: In diesem Ordner dürfen Sie keine Dateien anlegen. Prüfen Sie seine Rechte."},
});
// clang-format on

std::string sentenceFor(std::string_view file, int error, const auto& sentences, std::string_view otherwise) {
  const auto found =
      std::find_if(sentences.begin(), sentences.end(), [error](const Sentence& row) { return row.error == error; });
  std::string text(file);
  if (found != sentences.end()) return text.append(found->text);
  return text.append(otherwise).append(std::to_string(error)).append(".");
}

}  // namespace

std::string cannotRead(std::string_view file, int error) {
  return sentenceFor(file, error, readSentences, " kann nicht gelesen werden. Das System meldet Fehler ");
}

std::string cannotWrite(std::string_view file, int error) {
  return sentenceFor(file, error, writeSentences, " kann nicht geschrieben werden. Das System meldet Fehler ");
}

}  // namespace bogenwerker
