#include "finish/sheet.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "finish/FormFeinschliff.h"
#include "finish/FormNamenGeben.h"
#include "wizard/fault.h"
#include "wizard/records.h"
#include "wizard/text.h"

namespace bogenwerker {
namespace {

constexpr std::string_view templateFile = "template.htm";

// Replaces the text of one unit of the template. The placeholders that name a list move on through it.
class Placeholders {
 public:
  Placeholders(const FormFeinschliff& values, const FormNamenGeben& person, const std::string& race)
      : v_(values),
        values_{{
            {"#NAME#", person.Namen},
            {"#GSCHLCHT#", person.geschlecht},
            {"#ALTER#", person.alter},
            {"#LOOK#", person.aussehen},
            {"#RASSE#", race},
            {"#konst#", boughtAndModified(v_.Konstitution, v_.ModKonstitution)},
            {"#schnell#", boughtAndModified(v_.Schnelligkeit, v_.ModSchnelligkeit)},
            {"#stark#", boughtAndModified(v_.Stärke, v_.ModStärke)},
            {"#charisma#", boughtAndModified(v_.Charisma, v_.ModCharisma)},
            {"#intell#", boughtAndModified(v_.Intelligenz, v_.ModIntelligenz)},
            {"#will#", boughtAndModified(v_.Willenskraft, v_.ModWillenskraft)},
            {"#magie#", textOf(v_.Magie)},
            {"#reak#", v_.reaktionText()},
            {"#essenz#", v_.essenzText()},
            {"#ini#", v_.initiativeText()},
            {"#astral#", textOf(v_.Astralkampf)},
            {"#kampf#", textOf(v_.Kampfpool)},
            {"#steuer#", textOf(v_.Steuerpool)},
            {"#hacking#", textOf(v_.Hackingpool)},
            {"#zauber#", textOf(v_.Zauberpool)},
            {"#aufgaben#", textOf(v_.Aufgabenpool)},
        }} {}

  // A chain without an early exit: each test sees the text as the one before left it.
  void replace(std::string& text) {
    for (const auto& [placeholder, value] : values_) {
      if (text == placeholder) text = value;
    }
    if (text == "#AFertigkeit#" && ZeileFertigkeit < v_.FertigkeitZaehler) {
      text = v_.FertigkeitName[ZeileFertigkeit] + " (" + v_.SpeziName[ZeileFertigkeit] + ")";
    }
    if (text == "#FStufe#" && ZeileFertigkeit < v_.FertigkeitZaehler) {
      text = boughtAndModified(v_.FertigkeitStufe[ZeileFertigkeit], v_.SpeziStufe[ZeileFertigkeit]);
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
    constexpr std::array<std::string_view, 5> lists = {"#AFertigkeit#", "#FStufe#", "#WFertigkeit#", "#WStufe#",
                                                       "#AUSRÜSTUNG#"};
    if (std::find(lists.begin(), lists.end(), text) != lists.end()) text = ".";  // no entry left
  }

 private:
  const FormFeinschliff& v_;
  std::array<std::pair<std::string_view, std::string>, 21> values_;
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

void writeSheet(Files& files, const FormFeinschliff& values, const FormNamenGeben& person) {
  const std::string priorities = files.read("Prioritäten.txt");
  std::string race;
  Untyped magic;
  Untyped resources;
  RecordReader("Prioritäten.txt", priorities).read(race, magic, resources);

  const std::string page = files.read(templateFile);
  Placeholders placeholders(values, person, race);
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
  files.replace(sheetFileName(person.Namen), sheet, Durability::onDisk);
}

std::string sheetFileName(std::string_view Namen) {
  constexpr std::size_t mostBytes = 200;
  std::string name(utf8Prefix(Namen, mostBytes));
  for (char& c : name) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F ||
        std::string_view("<>:\"/\\|?*").find(c) != std::string_view::npos) {
      c = '_';
    }
  }
  // What goes with this ending is a sheet, a template or nothing of ours: the catalogues and step files end otherwise.
  if (isDeviceName(name) || lowerAscii(name) + ".htm" == templateFile) name.insert(0, 1, '_');
  return name + ".htm";
}

void checkTemplate(Files& files, std::vector<std::string>& faults) {
  try {
    if (looksLikeUnicode(files.read(templateFile))) faults.push_back(savedAsUnicode(templateFile));
  } catch (const Fault& fault) {
    faults.emplace_back(fault.what());
  }
}

}  // namespace bogenwerker
