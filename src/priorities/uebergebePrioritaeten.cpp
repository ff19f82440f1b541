#include "priorities/uebergebePrioritaeten.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "attributes/FormAttributmonitor.h"
#include "outside/records.h"
#include "skills/FormAktionFertigkeit.h"

namespace bogenwerker {
namespace {

struct RaceModifiers {
  std::string_view Rasse;
  int Konst, Schnell, Stark, Charisma, Intell, Will;
};

constexpr std::array<RaceModifiers, 5> raceModifiers = {{
    {"Mensch", 0, 0, 0, 0, 0, 0},
    {"Troll", +5, -1, +4, -2, -2, 0},
    {"Elf", 0, +1, 0, +2, 0, 0},
    {"Zwerg", +1, 0, +2, 0, 0, +1},
    {"Ork", +3, 0, +2, -1, -1, 0},
}};

}  // namespace

void uebergebePrioritaeten(const std::string& Rasse, const std::string& Magie, Integer AttributPunkte,
                           Integer FertigkeitenPunkte, Currency Ressourcen, FormAttributmonitor& formAttributmonitor,
                           FormAktionFertigkeit& formAktionFertigkeit, Files& files) {
  formAttributmonitor.lblWelcheRasse.setCaption(Rasse);
  formAttributmonitor.lblTotalAttributPunkte.setCaption(textOf(AttributPunkte));
  if (Magie != "D" && Magie != "C" && Magie != "E") formAttributmonitor.lblMagieWert.setCaption("6");

  const auto* modifiers = std::find_if(raceModifiers.begin(), raceModifiers.end(),
                                       [&Rasse](const RaceModifiers& row) { return row.Rasse == Rasse; });
  if (modifiers == raceModifiers.end()) modifiers = raceModifiers.begin();
  formAttributmonitor.lblRasseKonst.setCaption(textOf(Integer(modifiers->Konst)));
  formAttributmonitor.lblRasseSchnell.setCaption(textOf(Integer(modifiers->Schnell)));
  formAttributmonitor.lblRasseStark.setCaption(textOf(Integer(modifiers->Stark)));
  formAttributmonitor.lblRasseCharisma.setCaption(textOf(Integer(modifiers->Charisma)));
  formAttributmonitor.lblRasseIntell.setCaption(textOf(Integer(modifiers->Intell)));
  formAttributmonitor.lblRasseWill.setCaption(textOf(Integer(modifiers->Will)));

  formAktionFertigkeit.lblTotalFertigkeitenPunkte.setCaption(textOf(FertigkeitenPunkte));

  RecordWriter writer(files, "Prioritäten.txt");
  writer.write(Rasse, Magie, Ressourcen);
  writer.close();
}

}  // namespace bogenwerker
