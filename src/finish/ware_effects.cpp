#include "finish/ware_effects.h"

#include "values/fault.h"
#include "values/text.h"
#include "zusatzmodul/berechneReaktion.h"

namespace bogenwerker {
namespace {

// The line whose ware has given most Essenz instead of costing it.
std::string mostGivingLine(const std::vector<std::string>& lines, Files& files) {
  std::string buffer;
  std::string name;
  Single least = 0;
  for (const std::string& line : lines) {
    forEachRowNamed<WareRow>(files, "Cyberware.txt", line, buffer, [&](const WareRow& ware) {
      if (ware.essenz >= least) return;
      least = ware.essenz;
      name = utf8FromCp1252(line);
    });
  }
  return name;
}

}  // namespace

void ModifAttribErzeugen(FinalValues& values) {
  values.ModKonstitution = values.Konstitution;
  values.ModSchnelligkeit = values.Schnelligkeit;
  values.ModStärke = values.Stärke;
  values.ModIntelligenz = values.Intelligenz;
  values.ModCharisma = values.Charisma;
  values.ModWillenskraft = values.Willenskraft;
}

void WendeWareAn(FinalValues& values, const std::vector<std::string>& lines, Files& files) {
  values.Initiative = 1;
  std::string buffer;
  for (const std::string& line : lines) {
    for (const char* file : {"Cyberware.txt", "Bioware.txt"}) {
      forEachRowNamed<WareRow>(files, file, line, buffer,
                               [&values](const WareRow& ware) { WendeWerteAn(values, ware.effects); });
    }
  }
  values.ModReaktion = berechneReaktion(values.ModSchnelligkeit - values.ReakAbzugSchnell,
                                        values.ModIntelligenz - values.ReakAbzugIntell) +
                       values.ReakBonus;
}

void WendeWerteAn(FinalValues& values, const WareEffects& ware) {
  values.ModKonstitution += ware.kon;
  values.ModSchnelligkeit += ware.Schnell;
  values.ModStärke += ware.Stark;
  values.ModIntelligenz += ware.Intell;
  values.ModCharisma += ware.Char;
  values.ModWillenskraft += ware.Will;
  values.ReakBonus += ware.reak;

  if (!ware.AnwendaufReak) {
    values.ReakAbzugSchnell = ware.Schnell;
    values.ReakAbzugIntell = ware.Intell;
  }
  const Integer Reaktionsverstärkung = values.Reaktionsverstärkung;
  if (ware.reakRIGGER != 0) {
    values.SpecReaktion = berechneReaktion(values.ModSchnelligkeit, values.ModIntelligenz) + ware.reakRIGGER;
    values.Steuerpool = values.SpecReaktion;
  }
  if (ware.reakDECKER != 0 || Reaktionsverstärkung != 0) {
    values.SpecReaktion =
        berechneReaktion(values.ModSchnelligkeit, values.ModIntelligenz) + ware.reakDECKER + 2 * Reaktionsverstärkung;
  }

  const Integer Initiative = values.Initiative;
  values.ModInitiative = ware.ini + Initiative;
  if (ware.iniRIGGER != 0) values.SpecInitiative = ware.iniRIGGER + Initiative;
  if (ware.iniDECKER != 0 || Reaktionsverstärkung != 0) {
    values.SpecInitiative = ware.iniDECKER + Initiative + Reaktionsverstärkung;
  }
  if (!ware.AnwendaufPools) {
    values.PoolAbzugIntell = ware.Intell;
    values.PoolAbzugCharisma = ware.Char;
    values.PoolAbzugWill = ware.Will;
    values.PoolAbzugSchnell = ware.Schnell;
  }
}

void checkMagie(FinalValues& values, const std::vector<std::string>& lines, Files& files) {
  if (Single(values.Magie.value()) == values.Essenz || values.Magie == 0) return;
  if (values.Essenz >= 32'768) {
    throw Fault(
        filled("„%1“ hat die Essenz so groß gemacht, dass sich die Magie dieses Charakters nicht mehr berechnen "
               "lässt. Da hilft nur, die Zeile in Cyberware.txt zu berichtigen und neu zu beginnen.",
               {mostGivingLine(lines, files)}),
        Fault::Remedy::beginAnew);
  }
  values.Magie = berechneReaktion(double{values.Essenz}, double{values.Essenz});
}

}  // namespace bogenwerker
