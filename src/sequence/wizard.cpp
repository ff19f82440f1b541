#include "sequence/wizard.h"

#include "catalogues/catalogues.h"
#include "finish/sheet.h"

namespace bogenwerker {
namespace {

constexpr std::size_t mostFaultsShown = 10;

std::string startMessage(const std::vector<std::string>& faults) {
  std::string text = "Der Bogenwerker kann so nicht beginnen:\n";
  for (std::size_t i = 0; i < faults.size() && i < mostFaultsShown; ++i) text += "\n" + faults[i];
  if (faults.size() > mostFaultsShown) {
    text += "\n… und " + std::to_string(faults.size() - mostFaultsShown) + " weitere.";
  }
  return text + "\n\nBitte beheben Sie das und starten Sie dann neu.";
}

}  // namespace

bool Wizard::start() {
  std::vector<std::string> faults;
  checkCatalogues(runtime_.environment().files, faults);
  checkTemplate(runtime_.environment().files, faults);
  if (!faults.empty()) {
    runtime_.environment().showMessage(Message::fault, startMessage(faults));
    return false;
  }
  formPrioritäten.setVisible(true);
  return true;
}

std::vector<Form*> Wizard::formsInOrder() {
  return {&formPrioritäten, &formAttributmonitor, &formAktionFertigkeit, &formWissensfertigkeit,
          &formAusrüstung,  &formNamenGeben,      &formFeinschliff};
}

}  // namespace bogenwerker
