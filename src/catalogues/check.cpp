#include "catalogues/check.h"

#include <filesystem>
#include <optional>

#include "catalogues/catalogues.h"
#include "catalogues/diagnosis.h"
#include "catalogues/sentences.h"
#include "values/fault.h"
#include "values/text.h"

namespace bogenwerker {
namespace {

// The folder that a file should lie in and does not; nothing where something else keeps it from being read.
std::optional<std::string> folderWithout(std::string_view file) {
  std::error_code error;
  const bool isThere = std::filesystem::exists(std::filesystem::symlink_status(file, error));
  const std::u8string folder = std::filesystem::current_path(error).u8string();
  if (isThere || error) return std::nullopt;
  return std::string(folder.begin(), folder.end());
}

template <class Row>
void checkCatalogue(Files& files, std::string_view file, int mostRows, std::vector<std::string>& faults) {
  std::string bytes;
  if (!readText(files, file, bytes, faults)) return;

  constexpr int mostFaults = 100;  // some other file of that name would keep the player waiting
  CatalogueReader reader(file, bytes);
  const std::size_t before = faults.size();
  int rows = 0;
  for (int found = 0; !reader.atEnd() && found < mostFaults; ++rows) {
    try {
      Row row;
      reader.read(row);
    } catch (const Fault& fault) {
      ++found;
      faults.emplace_back(fault.what());
      reader.goOn();
    }
  }
  if (faults.size() > before && hasOtherSeparator(bytes, Row::fields)) {
    faults.resize(before);
    faults.push_back(filled(sentences::otherSeparatorEverywhere, {file}));
    return;
  }
  if (!reader.atEnd()) faults.push_back(filled(sentences::soManyFaults, {file}));
  else if (rows > mostRows) faults.push_back(tooManyRows(file, rows, mostRows));
}

}  // namespace

bool readText(Files& files, std::string_view file, std::string& bytes, std::vector<std::string>& faults) {
  try {
    files.read(file, bytes);
  } catch (const Fault& fault) {
    const std::optional<std::string> folder = folderWithout(file);
    faults.push_back(folder ? filled(sentences::missing, {file, *folder}) : fault.what());
    return false;
  }
  if (looksLikeUnicode(bytes)) faults.push_back(filled(sentences::savedAsUnicode, {file}));
  else if (isNoText(bytes)) faults.push_back(filled(sentences::noTextFile, {file}));
  else return true;
  return false;
}

void checkCatalogues(Files& files, std::vector<std::string>& faults) {
  checkCatalogue<PriceRow>(files, "Lebensstil.txt", mostLebensstile, faults);
  checkCatalogue<PriceRow>(files, "Connection.txt", mostConnections, faults);
  checkCatalogue<MagicRow>(files, "MagicStuff.txt", mostMagicStuff, faults);
  checkCatalogue<WareRow>(files, "Cyberware.txt", mostCyberware, faults);
  checkCatalogue<WareRow>(files, "Bioware.txt", mostBioware, faults);
  checkCatalogue<DeckRow>(files, "Cyberdecks.txt", mostCyberdecks, faults);
}

std::string markOfCatalogues(Files& files) {
  std::string all;
  for (const char* file :
       {"Lebensstil.txt", "Connection.txt", "MagicStuff.txt", "Cyberware.txt", "Bioware.txt", "Cyberdecks.txt"}) {
    all += files.read(file);
  }
  return markOf(all);
}

}  // namespace bogenwerker
