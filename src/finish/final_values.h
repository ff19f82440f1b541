// The finished character: what step 6 shows and the sheet prints, with no form and no template in sight.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "values/numbered_array.h"
#include "values/numbers.h"

namespace bogenwerker {

// A variable that nothing has set yet holds 0. Each counter holds the next free index of its lists.
struct FinalValues {
  // As bought.
  Integer Konstitution, Schnelligkeit, Stärke, Intelligenz, Charisma, Willenskraft, Reaktion;
  Integer Initiative;
  Single Essenz = 0;
  Integer Magie;

  // With all ware.
  Integer ModKonstitution, ModSchnelligkeit, ModStärke, ModIntelligenz, ModCharisma, ModWillenskraft;
  Integer ModReaktion, ModInitiative;
  // With rigger or decker ware.
  Integer SpecReaktion, SpecInitiative;

  // What of the ware does not count for ModReaktion or for the pools. The last such row decides.
  Integer ReakBonus, ReakAbzugSchnell, ReakAbzugIntell;
  Integer PoolAbzugIntell, PoolAbzugCharisma, PoolAbzugWill, PoolAbzugSchnell;

  // Nothing where the character has no such pool.
  std::optional<Integer> Kampfpool, Steuerpool, Zauberpool, Astralkampf, Hackingpool, Aufgabenpool;
  Integer MPCP, Reaktionsverstärkung;

  NumberedArray<std::string, 1000> AusruestungsZeile;
  Integer AusruestungsZaehler = 1;

  NumberedArray<std::string, 30> FertigkeitName;
  NumberedArray<std::string, 30> SpeziName;
  NumberedArray<Integer, 30> FertigkeitStufe;
  NumberedArray<Integer, 30> SpeziStufe;
  Integer FertigkeitZaehler = 1;

  NumberedArray<std::string, 30> WissensName;
  NumberedArray<Integer, 30> WissensStufe;
  Integer WissensZaehler = 1;

  NumberedArray<std::string, 30> SprachName;
  NumberedArray<Integer, 30> SprachStufe;
  Integer SprachZaehler = 1;
};

// A value as text: on the form, and on the sheet where that differs.
struct FinalText {
  FinalText(std::string text) : onForm(std::move(text)), onSheet(onForm) {}  // NOLINT: meant to be implicit
  // An empty box on the form, 0 on the sheet.
  FinalText(std::optional<Integer> pool)  // NOLINT: meant to be implicit
      : onForm(pool ? textOf(*pool) : std::string()), onSheet(textOf(pool.value_or(0))) {}

  std::string onForm;
  std::string onSheet;
};

// "6 (8)": a value, and the one that counts instead under some condition.
std::string withBracket(Integer value, Integer inBrackets);
std::string reaktionText(const FinalValues& values);
std::string initiativeText(const FinalValues& values);
std::string essenzText(Single Essenz, const NumberLocale& locale);

// One value of the character, told once for the form and for the sheet.
struct FinalValue {
  std::string_view placeholder;  // of the template
  std::string_view control;      // of step 6
  FinalText (*text)(const FinalValues& values, const NumberLocale& locale);
};

// In the order in which a text of the sheet is tested against the placeholders.
// clang-format off
inline constexpr auto finalValues = std::to_array<FinalValue>({
    {"#konst#",    "lblKonstitution",  [](const FinalValues& v, const NumberLocale&)   -> FinalText { return withBracket(v.Konstitution, v.ModKonstitution); }},
    {"#schnell#",  "lblSchnelligkeit", [](const FinalValues& v, const NumberLocale&)   -> FinalText { return withBracket(v.Schnelligkeit, v.ModSchnelligkeit); }},
    {"#stark#",    "lblStärke",        [](const FinalValues& v, const NumberLocale&)   -> FinalText { return withBracket(v.Stärke, v.ModStärke); }},
    {"#charisma#", "lblCharisma",      [](const FinalValues& v, const NumberLocale&)   -> FinalText { return withBracket(v.Charisma, v.ModCharisma); }},
    {"#intell#",   "lblIntelligenz",   [](const FinalValues& v, const NumberLocale&)   -> FinalText { return withBracket(v.Intelligenz, v.ModIntelligenz); }},
    {"#will#",     "lblWillenskraft",  [](const FinalValues& v, const NumberLocale&)   -> FinalText { return withBracket(v.Willenskraft, v.ModWillenskraft); }},
    {"#magie#",    "lblMagie",         [](const FinalValues& v, const NumberLocale&)   -> FinalText { return textOf(v.Magie); }},
    {"#reak#",     "lblReaktion",      [](const FinalValues& v, const NumberLocale&)   -> FinalText { return reaktionText(v); }},
    {"#essenz#",   "lblEssenz",        [](const FinalValues& v, const NumberLocale& l) -> FinalText { return essenzText(v.Essenz, l); }},
    {"#ini#",      "lblInitiative",    [](const FinalValues& v, const NumberLocale&)   -> FinalText { return initiativeText(v); }},
    {"#astral#",   "txtAstralkampf",   [](const FinalValues& v, const NumberLocale&)   -> FinalText { return v.Astralkampf; }},
    {"#kampf#",    "txtKampfpool",     [](const FinalValues& v, const NumberLocale&)   -> FinalText { return v.Kampfpool; }},
    {"#steuer#",   "txtSteuerpool",    [](const FinalValues& v, const NumberLocale&)   -> FinalText { return v.Steuerpool; }},
    {"#hacking#",  "txtHackingpool",   [](const FinalValues& v, const NumberLocale&)   -> FinalText { return v.Hackingpool; }},
    {"#zauber#",   "txtZauberpool",    [](const FinalValues& v, const NumberLocale&)   -> FinalText { return v.Zauberpool; }},
    {"#aufgaben#", "txtAufgabenpool",  [](const FinalValues& v, const NumberLocale&)   -> FinalText { return v.Aufgabenpool; }},
});
// clang-format on

}  // namespace bogenwerker
