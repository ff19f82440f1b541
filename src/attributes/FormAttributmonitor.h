// Step 2: the attribute monitor.
#pragma once

#include "forms/controls.h"
#include "values/numbers.h"

namespace bogenwerker {

class FormAktionFertigkeit;

struct AttributmonitorVariables {
  // Points spent plus race modifier.
  Variant NatKonst, NatSchnell, NatStark, NatCharisma, NatIntell, NatWill;
  // Set only when the step is left.
  Variant NatMagie;

 protected:
  // Points spent; without value until the attribute's button is pressed for the first time.
  Variant KonstPunkte, SchnellPunkte, StarkPunkte, CharismaPunkte, IntellPunkte, WillPunkte;
};

// Six attributes, bought point by point. The buttons refuse nothing; checkREGEL alone decides whether the step can be
// left. The race modifiers live in the captions into which step 1 wrote them.
class FormAttributmonitor final : public FormWith<AttributmonitorVariables> {
 public:
  FormAttributmonitor(FormsRuntime& runtime, FormAktionFertigkeit& aktionFertigkeit);

  // clang-format off
  Frame frmAttributmonitor{*this, "frmAttributmonitor", {.caption = "Attributmonitor"}};

  Label max                     {frmAttributmonitor, "max",                      {.caption = "(max. 6)",    .centred = true, .at = {0, 2}}};
  Label lblRassenModCaptionLabel{frmAttributmonitor, "lblRassenModCaptionLabel", {.caption = "Rassenmod.:", .at = {0, 4}}};
  Label lblWelcheRasse          {frmAttributmonitor, "lblWelcheRasse",           {.characters = 8, .at = {0, 5}, .spoken = "Rasse"}};
  Label lblRassenSummeCaption   {frmAttributmonitor, "lblRassenSummeCaption",    {.caption = "SUMME",       .centred = true, .at = {0, 6}}};

  Label         lblKonst        {frmAttributmonitor, "lblKonst",               {.caption = "Konstitution", .at = {1, 0}}};
  CommandButton cmdKonstMinus   {frmAttributmonitor, "cmdKonstMinus",          {.caption = "-", .characters = 3, .tab = 0, .at = {1, 1}, .spoken = "Konstitution minus", .click = [this] { cmdKonstMinus_Click(); }}};
  PictureBox    picKonst        {frmAttributmonitor, "picKonst",               {.at = {1, 2}}};
  Label         lblKonstWert    {picKonst,          "lblKonstWert",            {.caption = "0", .centred = true, .characters = 4, .spoken = "Konstitution, ausgegebene Punkte"}};
  CommandButton cmdKonstPlus    {frmAttributmonitor, "cmdKonstPlus",           {.caption = "+", .characters = 3, .tab = 1, .at = {1, 3}, .spoken = "Konstitution plus", .click = [this] { cmdKonstPlus_Click(); }}};
  Label         lblRasseKonst   {frmAttributmonitor, "lblRasseKonst",          {.caption = "0", .centred = true, .at = {.row = 1, .column = 4, .columns = 2}, .spoken = "Konstitution, Rassenmodifikator"}};
  Label         lblNatKonst     {frmAttributmonitor, "lblNatKonst",            {.caption = "0", .centred = true, .at = {1, 6}, .spoken = "Konstitution, Summe"}};

  Label         lblSchnell      {frmAttributmonitor, "lblSchnell",             {.caption = "Schnelligkeit", .at = {2, 0}}};
  CommandButton cmdSchnellMinus {frmAttributmonitor, "cmdSchnellMinus",        {.caption = "-", .characters = 3, .tab = 2, .at = {2, 1}, .spoken = "Schnelligkeit minus", .click = [this] { cmdSchnellMinus_Click(); }}};
  PictureBox    picSchnell1     {frmAttributmonitor, "picSchnell(1)",          {.at = {2, 2}}};
  Label         lblSchnellWert  {picSchnell1,       "lblSchnellWert",          {.caption = "0", .centred = true, .characters = 4, .spoken = "Schnelligkeit, ausgegebene Punkte"}};
  CommandButton cmdSchnellPlus  {frmAttributmonitor, "cmdSchnellPlus",         {.caption = "+", .characters = 3, .tab = 3, .at = {2, 3}, .spoken = "Schnelligkeit plus", .click = [this] { cmdSchnellPlus_Click(); }}};
  Label         lblRasseSchnell {frmAttributmonitor, "lblRasseSchnell",        {.caption = "0", .centred = true, .at = {.row = 2, .column = 4, .columns = 2}, .spoken = "Schnelligkeit, Rassenmodifikator"}};
  Label         lblNatSchnell   {frmAttributmonitor, "lblNatSchnell",          {.caption = "0", .centred = true, .at = {2, 6}, .spoken = "Schnelligkeit, Summe"}};

  Label         lblStark        {frmAttributmonitor, "lblStark",               {.caption = "Stärke", .at = {3, 0}}};
  CommandButton cmdStarkMinus   {frmAttributmonitor, "cmdStarkMinus",          {.caption = "-", .characters = 3, .tab = 4, .at = {3, 1}, .spoken = "Stärke minus", .click = [this] { cmdStarkMinus_Click(); }}};
  PictureBox    picSchnell0     {frmAttributmonitor, "picSchnell(0)",          {.at = {3, 2}}};
  Label         lblStarkWert    {picSchnell0,       "lblStarkWert",            {.caption = "0", .centred = true, .characters = 4, .spoken = "Stärke, ausgegebene Punkte"}};
  CommandButton cmdStarkPlus    {frmAttributmonitor, "cmdStarkPlus",           {.caption = "+", .characters = 3, .tab = 5, .at = {3, 3}, .spoken = "Stärke plus", .click = [this] { cmdStarkPlus_Click(); }}};
  Label         lblRasseStark   {frmAttributmonitor, "lblRasseStark",          {.caption = "0", .centred = true, .at = {.row = 3, .column = 4, .columns = 2}, .spoken = "Stärke, Rassenmodifikator"}};
  Label         lblNatStark     {frmAttributmonitor, "lblNatStark",            {.caption = "0", .centred = true, .at = {3, 6}, .spoken = "Stärke, Summe"}};

  Label         lblCharisma     {frmAttributmonitor, "lblCharisma",            {.caption = "Charisma", .at = {4, 0}}};
  CommandButton cmdCharismaMinus{frmAttributmonitor, "cmdCharismaMinus",       {.caption = "-", .characters = 3, .tab = 6, .at = {4, 1}, .spoken = "Charisma minus", .click = [this] { cmdCharismaMinus_Click(); }}};
  PictureBox    picSchnell2     {frmAttributmonitor, "picSchnell(2)",          {.at = {4, 2}}};
  Label         lblCharismaWert {picSchnell2,       "lblCharismaWert",         {.caption = "0", .centred = true, .characters = 4, .spoken = "Charisma, ausgegebene Punkte"}};
  CommandButton cmdCharismaPlus {frmAttributmonitor, "cmdCharismaPlus",        {.caption = "+", .characters = 3, .tab = 7, .at = {4, 3}, .spoken = "Charisma plus", .click = [this] { cmdCharismaPlus_Click(); }}};
  Label         lblRasseCharisma{frmAttributmonitor, "lblRasseCharisma",       {.caption = "0", .centred = true, .at = {.row = 4, .column = 4, .columns = 2}, .spoken = "Charisma, Rassenmodifikator"}};
  Label         lblNatCharisma  {frmAttributmonitor, "lblNatCharisma",         {.caption = "0", .centred = true, .at = {4, 6}, .spoken = "Charisma, Summe"}};

  Label         lblIntelligenz  {frmAttributmonitor, "lblIntelligenz",         {.caption = "Intelligenz", .at = {5, 0}}};
  CommandButton cmdIntellMinus  {frmAttributmonitor, "cmdIntellMinus",         {.caption = "-", .characters = 3, .tab = 8, .at = {5, 1}, .spoken = "Intelligenz minus", .click = [this] { cmdIntellMinus_Click(); }}};
  PictureBox    picSchnell3     {frmAttributmonitor, "picSchnell(3)",          {.at = {5, 2}}};
  Label         lblIntellWert   {picSchnell3,       "lblIntellWert",           {.caption = "0", .centred = true, .characters = 4, .spoken = "Intelligenz, ausgegebene Punkte"}};
  CommandButton cmdIntellPlus   {frmAttributmonitor, "cmdIntellPlus",          {.caption = "+", .characters = 3, .tab = 9, .at = {5, 3}, .spoken = "Intelligenz plus", .click = [this] { cmdIntellPlus_Click(); }}};
  Label         lblRasseIntell  {frmAttributmonitor, "lblRasseIntell",         {.caption = "0", .centred = true, .at = {.row = 5, .column = 4, .columns = 2}, .spoken = "Intelligenz, Rassenmodifikator"}};
  Label         lblNatIntell    {frmAttributmonitor, "lblNatIntell",           {.caption = "0", .centred = true, .at = {5, 6}, .spoken = "Intelligenz, Summe"}};

  Label         lblWill         {frmAttributmonitor, "lblWill",                {.caption = "Willenskraft", .at = {6, 0}}};
  CommandButton cmdWillMinus    {frmAttributmonitor, "cmdWillMinus",           {.caption = "-", .characters = 3, .tab = 10, .at = {6, 1}, .spoken = "Willenskraft minus", .click = [this] { cmdWillMinus_Click(); }}};
  PictureBox    picSchnell4     {frmAttributmonitor, "picSchnell(4)",          {.at = {6, 2}}};
  Label         lblWillWert     {picSchnell4,       "lblWillWert",             {.caption = "0", .centred = true, .characters = 4, .spoken = "Willenskraft, ausgegebene Punkte"}};
  CommandButton cmdWillPlus     {frmAttributmonitor, "cmdWillPlus",            {.caption = "+", .characters = 3, .tab = 11, .at = {6, 3}, .spoken = "Willenskraft plus", .click = [this] { cmdWillPlus_Click(); }}};
  Label         lblRasseWill    {frmAttributmonitor, "lblRasseWill",           {.caption = "0", .centred = true, .at = {.row = 6, .column = 4, .columns = 2}, .spoken = "Willenskraft, Rassenmodifikator"}};
  Label         lblNatWill      {frmAttributmonitor, "lblNatWill",             {.caption = "0", .centred = true, .at = {6, 6}, .spoken = "Willenskraft, Summe"}};

  Label lblEssenz    {frmAttributmonitor, "lblEssenz",     {.caption = "Essenz", .at = {7, 0}}};
  Label lblEssenzWert{frmAttributmonitor, "lblEssenzWert", {.caption = "6", .centred = true, .characters = 4, .at = {7, 2}, .spoken = "Essenz"}};
  Label lblMagie     {frmAttributmonitor, "lblMagie",      {.caption = "Magie",  .at = {8, 0}}};
  Label lblMagieWert {frmAttributmonitor, "lblMagieWert",  {.caption = "0", .centred = true, .characters = 4, .at = {8, 2}, .spoken = "Magie"}};

  Label lblVerbrAttributPunkte{frmAttributmonitor, "lblVerbrAttributPunkte", {.caption = "0", .bold = true, .centred = true, .characters = 4, .at = {9, 1}, .spoken = "Ausgegebene Attributpunkte"}};
  Label lblvon                {frmAttributmonitor, "lblvon",                 {.caption = "von", .centred = true, .at = {9, 2}}};
  Label lblTotalAttributPunkte{frmAttributmonitor, "lblTotalAttributPunkte", {.caption = "0", .bold = true, .centred = true, .characters = 4, .at = {9, 3}, .spoken = "Attributpunkte insgesamt"}};

  CommandButton cmdWeiter2{*this, "cmdWeiter2", {.caption = "Weiter!", .enabled = false, .tab = 12, .at = {.row = 1, .align = Place::Align::right}, .click = [this] { cmdWeiter2_Click(); }, .hint = [this] { return whyNotWeiter2(); }}};
  // clang-format on

 private:
  void cmdKonstPlus_Click();
  void cmdKonstMinus_Click();
  void cmdSchnellPlus_Click();
  void cmdSchnellMinus_Click();
  void cmdStarkPlus_Click();
  void cmdStarkMinus_Click();
  void cmdCharismaPlus_Click();
  void cmdCharismaMinus_Click();
  void cmdIntellPlus_Click();
  void cmdIntellMinus_Click();
  void cmdWillPlus_Click();
  void cmdWillMinus_Click();
  void cmdWeiter2_Click();

  void aktualAttrib();
  void vergleicheWert();
  void berechneSumme();
  [[nodiscard]] std::string whyNotWeiter2() const;
  void checkREGEL();

  FormAktionFertigkeit& formAktionFertigkeit;
};

}  // namespace bogenwerker
