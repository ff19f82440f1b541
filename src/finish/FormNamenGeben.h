// Between steps 5 and 6: the personal data.
#pragma once

#include <functional>

#include "finish/personal_data.h"
#include "forms/controls.h"

namespace bogenwerker {

// The personal data are read after this form is gone.
class FormNamenGeben final : public FormWith<PersonalData> {
 public:
  explicit FormNamenGeben(FormsRuntime& runtime);

  // The final values wait hidden behind this form and hand in here how to show them.
  void whenDone(std::function<void()> showFinalValues) { showFinalValues_ = std::move(showFinalValues); }

  // clang-format off
  TextBox       txtName      {*this, "txtName",       {.text = "Name des Charakters",     .goesIntoRecord = false, .tab = 0, .at = {.row = 0, .column = 0, .columns = 2}, .spoken = "Name"}};
  TextBox       txtAussehen  {*this, "txtAussehen",   {.text = "Aussehen des Charakters", .goesIntoRecord = false, .tab = 1, .at = {.row = 1, .column = 0, .columns = 2}, .spoken = "Aussehen"}};
  TextBox       txtAlter     {*this, "txtAlter",      {.text = "Alter des Charakters", .characters = 30, .goesIntoRecord = false, .tab = 2, .at = {2, 0}, .spoken = "Alter"}};
  ComboBox      cmbGeschlecht{*this, "cmbGeschlecht", {.text = "Geschlecht", .entries = {"männlich", "weiblich"}, .characters = 20, .tab = 3, .at = {2, 1}, .spoken = "Geschlecht", .click = [this] { cmbGeschlecht_Click(); }}};
  CommandButton cmdOkay      {*this, "cmdOkay",       {.caption = "OK", .tab = 4, .at = {.row = 3, .column = 0, .align = Place::Align::left}, .click = [this] { cmdOkay_Click(); }}};
  // clang-format on

 private:
  void Form_Load() override;
  void cmbGeschlecht_Click();
  void cmdOkay_Click();

  std::function<void()> showFinalValues_;
};

}  // namespace bogenwerker
