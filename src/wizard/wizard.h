// The seven forms together, in the order of the wizard.
#pragma once

#include "attributes/FormAttributmonitor.h"
#include "equipment/FormAusruestung.h"
#include "finish/FormFeinschliff.h"
#include "finish/FormNamenGeben.h"
#include "forms/forms.h"
#include "priorities/FormPrioritaeten.h"
#include "skills/FormAktionFertigkeit.h"
#include "skills/FormWissensfertigkeit.h"

namespace bogenwerker {

// One character's way from the first form to the sheet. It controls nothing: every form hands over by itself to the
// later ones that it is given here, which is why they are made last to first.
class Wizard {
 public:
  explicit Wizard(Environment environment) : environment_(std::move(environment)) {}

  [[nodiscard]] FormsRuntime& runtime() { return runtime_; }

  // Checks what the player's folder holds and shows the first form. False if the folder cannot be played with: then
  // one message has told why, and no form is loaded.
  bool start();
  // What in the player's catalogues can be played with and looks like a slip, as a text ahead of the question whether
  // to begin; empty if nothing does.
  [[nodiscard]] std::string slips();

  // In the order in which the player meets them, formFeinschliff last: it loads before the personal data are shown.
  [[nodiscard]] std::vector<Form*> formsInOrder();

 private:
  const Environment environment_;
  FormsRuntime runtime_{[this](std::string_view fault) { environment_.showMessage(Message::fault, fault); }};

 public:
  FormNamenGeben formNamenGeben{runtime_};
  FormFeinschliff formFeinschliff{runtime_, environment_, formNamenGeben};
  FormAusrüstung formAusrüstung{runtime_, environment_, formFeinschliff, formNamenGeben};
  FormWissensfertigkeit formWissensfertigkeit{runtime_, environment_, formAusrüstung};
  FormAktionFertigkeit formAktionFertigkeit{runtime_, environment_, formWissensfertigkeit};
  FormAttributmonitor formAttributmonitor{runtime_, formAktionFertigkeit};
  FormPrioritäten formPrioritäten{runtime_, environment_, formAttributmonitor, formAktionFertigkeit};
};

}  // namespace bogenwerker
