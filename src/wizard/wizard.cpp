#include "wizard/wizard.h"

#include "catalogues/check.h"
#include "catalogues/slips.h"
#include "finish/sheet.h"

namespace bogenwerker {
namespace {

constexpr Currency mostRessourcen = 1'000'000;

// Ten of them at most, a line each, and how many more there are.
std::string listed(const std::vector<std::string>& lines) {
  constexpr std::size_t mostShown = 10;
  std::string text;
  for (std::size_t i = 0; i < lines.size() && i < mostShown; ++i) text += "\n" + lines[i];
  if (lines.size() > mostShown) text += "\n… und " + std::to_string(lines.size() - mostShown) + " weitere.";
  return text;
}

}  // namespace

bool Wizard::start() {
  if (!environment_.files.holdFolder()) {
    environment_.showMessage(Message::fault,
                             "In diesem Ordner läuft der Bogenwerker schon. Spielen Sie dort weiter oder beenden Sie "
                             "ihn, oder starten Sie diesen hier in einem anderen Ordner.");
    return false;
  }
  std::vector<std::string> faults;
  checkCatalogues(environment_.files, faults);
  checkTemplate(environment_.files, faults);
  if (!faults.empty()) {
    environment_.showMessage(Message::fault, "Der Bogenwerker kann so nicht beginnen:\n" + listed(faults) +
                                                 "\n\nBitte beheben Sie das und starten Sie dann neu.");
    return false;
  }
  formPrioritäten.setVisible(true);
  return true;
}

std::string Wizard::slips() {
  const std::vector<std::string> found = findSlips(environment_.files, {.ressourcen = mostRessourcen,
                                                                        .essenz = startEssenz,
                                                                        .bioIndex = startBioIndex,
                                                                        .spruchpunkte = mostSpruchpunkte,
                                                                        .preisSpruchpunkt = priceOfSpellPoint,
                                                                        .kraftpunkte = startKraftpunkte});
  if (found.empty()) return {};
  return "In den Katalogen sieht manches nach einem Versehen aus:\n" + listed(found) +
         "\n\nSie können trotzdem beginnen. Dann gilt, was dort steht.";
}

std::vector<Form*> Wizard::formsInOrder() {
  return {&formPrioritäten, &formAttributmonitor, &formAktionFertigkeit, &formWissensfertigkeit,
          &formAusrüstung,  &formNamenGeben,      &formFeinschliff};
}

}  // namespace bogenwerker
