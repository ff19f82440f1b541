#include "finish/sheet.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "catalogues/check.h"
#include "outside/records.h"
#include "values/text.h"

namespace bogenwerker {
namespace {

constexpr std::string_view templateFile = "template.htm";

// Replaces the text of one unit of the template. The placeholders that name a list move on through it.
class Placeholders {
 public:
  Placeholders(const FinalValues& values, const PersonalData& person, const std::string& race,
               const NumberLocale& numbers)
      : v_(values),
        values_{{"#NAME#", person.Namen},
                {"#GSCHLCHT#", person.geschlecht},
                {"#ALTER#", person.alter},
                {"#LOOK#", person.aussehen},
                {"#RASSE#", race}} {
    for (const FinalValue& value : finalValues) {
      values_.emplace_back(value.placeholder, value.text(values, numbers).onSheet);
    }
  }

  // A chain without an early exit: each test sees the text as the one before left it.
  void replace(std::string& text) {
    for (const auto& [placeholder, value] : values_) {
      if (text == placeholder) text = value;
    }
    if (text == "#AFertigkeit#" && ZeileFertigkeit < v_.FertigkeitZaehler) {
      text = v_.FertigkeitName[ZeileFertigkeit] + " (" + v_.SpeziName[ZeileFertigkeit] + ")";
    }
    if (text == "#FStufe#" && ZeileFertigkeit < v_.FertigkeitZaehler) {
      text = withBracket(v_.FertigkeitStufe[ZeileFertigkeit], v_.SpeziStufe[ZeileFertigkeit]);
      ++ZeileFertigkeit;
    }
    // Languages follow the knowledge skills: their tests find only what those of the skills left.
    if (text == "#WFertigkeit#" && ZeileWissen < v_.WissensZaehler) text = v_.WissensName[ZeileWissen];
    if (text == "#WStufe#" && ZeileWissen < v_.WissensZaehler) {
      text = textOf(v_.WissensStufe[ZeileWissen]);
      ++ZeileWissen;
    }
    if (text == "#WFertigkeit#" && ZeileSprache < v_.SprachZaehler) text = v_.SprachName[ZeileSprache];
    if (text == "#WStufe#" && ZeileSprache < v_.SprachZaehler) {
      text = textOf(v_.SprachStufe[ZeileSprache]);
      ++ZeileSprache;
    }
    if (text == "#AUSRÜSTUNG#" && ZeileAusruestung < v_.AusruestungsZaehler) {
      text = v_.AusruestungsZeile[ZeileAusruestung];
      ++ZeileAusruestung;
    }
    constexpr auto lists =
        std::to_array<std::string_view>({"#AFertigkeit#", "#FStufe#", "#WFertigkeit#", "#WStufe#", "#AUSRÜSTUNG#"});
    if (std::find(lists.begin(), lists.end(), text) != lists.end()) text = ".";  // no entry left
  }

 private:
  const FinalValues& v_;
  std::vector<std::pair<std::string_view, std::string>> values_;
  Integer ZeileFertigkeit = 1;
  Integer ZeileWissen = 1;
  Integer ZeileSprache = 1;
  Integer ZeileAusruestung = 1;
};

// Names of devices on another system, with or without an ending, in any case.
bool isDeviceName(std::string_view name) {
  constexpr std::array<std::string_view, 6> devices = {"con", "prn", "aux", "nul", "conin$", "conout$"};
  std::string stem = lowerAscii(name.substr(0, name.find('.')));
  stem.resize(stem.find_last_not_of(' ') + 1);
  if (std::find(devices.begin(), devices.end(), stem) != devices.end()) return true;
  const bool numbered = stem.starts_with("com") || stem.starts_with("lpt");
  if (!numbered) return false;
  const std::string_view number = std::string_view(stem).substr(3);
  constexpr std::array<std::string_view, 3> raised = {"¹", "²", "³"};
  return (number.size() == 1 && number[0] >= '0' && number[0] <= '9') ||
         std::find(raised.begin(), raised.end(), number) != raised.end();
}

}  // namespace

std::string writeSheet(const Environment& environment, const FinalValues& values, const PersonalData& person) {
  Files& files = environment.files;
  const std::string priorities = files.read("Prioritäten.txt");
  std::string race;
  Untyped magic;
  Untyped resources;
  RecordReader("Prioritäten.txt", priorities).read(race, magic, resources);

  const std::string page = files.read(templateFile);
  Placeholders placeholders(values, person, race, environment.numbers);
  std::string sheet;
  sheet.reserve(page.size() + page.size() / 4);
  for (RecordReader reader(templateFile, page); !reader.atEnd();) {
    const std::string_view unit = reader.readRaw();
    if (unit.starts_with('#')) {
      std::string text = utf8FromCp1252(unit);
      placeholders.replace(text);
      sheet.append(cp1252FromUtf8(text)).append("\r\n");
    } else {
      sheet.append(unit).append("\r\n");
    }
  }
  std::string file = sheetFileName(person.Namen);
  files.replace(file, sheet, Durability::onDisk);
  return file;
}

std::string sheetFileName(std::string_view Namen) {
  constexpr std::string_view ending = ".htm";
  constexpr std::size_t mostBytes = 255;
  constexpr std::size_t mostAheadOfMark = 242;
  std::string name(Namen);
  for (char& c : name) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F ||
        std::string_view("<>:\"/\\|?*").find(c) != std::string_view::npos) {
      c = '_';
    }
  }
  // What goes with this ending is a sheet, a template or nothing of ours: the catalogues and step files end otherwise.
  if (isDeviceName(name) || lowerAscii(name).append(ending) == templateFile) name.insert(0, 1, '_');
  if (name != Namen || name.size() + ending.size() > mostBytes) {
    name = std::string(utf8Prefix(name, mostAheadOfMark)) + "_" + markOf(Namen);
  }
  return name.append(ending);
}

void checkTemplate(Files& files, std::vector<std::string>& faults) {
  std::string bytes;
  readText(files, templateFile, bytes, faults);
}

}  // namespace bogenwerker
