// Both front ends under the locales of several countries. They are built here, as a machine may have none of them.
#include <gtest/gtest.h>

#include <QLabel>
#include <cstdlib>
#include <filesystem>
#include <regex>

#include "hands.h"
#include "outside/locale.h"

namespace bogenwerker {
namespace {

// LC_ALL, LC_NUMERIC and LANG, an amount that is typed, and what is left of 400000.
using Row = std::array<std::string, 5>;
// clang-format off
const std::vector<Row> rows = {
    {"C",                "de_DE.UTF-8", "de_DE.UTF-8", "1000.5",       "398999.5"},
    {"C.UTF-8",          "",            "",            "1,000",        "400000"},
    {"de_DE.UTF-8",      "C",           "C",           "1.000,5",      "398999,5"},
    {"de_AT.ISO-8859-1", "",            "",            "1.000,5",      "398999,5"},
    {"",                 "de_CH.UTF-8", "de_DE.UTF-8", "1'000.5",      "398999.5"},
    {"",                 "",            "de_CH.UTF-8", "1’000.5",      "398999.5"},
    {"fr_FR.UTF-8",      "",            "",            "1\u202F000,5", "398999,5"},
    {"fr_FR.ISO-8859-1", "",            "",            "−1 000,5",     "401000,5"},
    {"ar_EG.UTF-8",      "",            "",            "1,000.5",      "398999.5"},
    {"ps_AF.UTF-8",      "",            "",            "12٫5",         "400000"},
    {"ps_AF.UTF-8",      "",            "",            "1000.5",       "398999.5"},
    {"de.UTF-8",         "",            "",            "1.000,5",      "398999,5"},  // these two are not installed
    {"de_LI.UTF-8",      "de_DE.UTF-8", "",            "1'000.5",      "398999.5"}};
// clang-format on

// What the program without a screen has left of the money.
std::string leftWithoutAScreen(const std::string& script) {
  const World world;
  writeBytes("script", script + "dump\n");
  EXPECT_EQ(std::system(HEADLESS " <script >replies"), 0);
  const std::string replies = fileBytes("replies");
  std::smatch label;
  std::regex_search(replies, label, std::regex(R"("lblMoney"[^}]*"caption":"([^"]*))"));
  return label[1];
}

TEST(Locales, bothFrontEndsTakeAndShowTheSameAmounts) {
  const TemporaryFolder folder;
  std::string missing;
  for (const std::string locale : {"de_DE.UTF-8", "de_AT.ISO-8859-1", "de_CH.UTF-8", "fr_FR.UTF-8", "fr_FR.ISO-8859-1",
                                   "ar_EG.UTF-8", "ps_AF.UTF-8"}) {
    const std::string build = "localedef -i " + locale.substr(0, 5) + " -f " + locale.substr(6) + " ./" + locale;
    if (std::system((build + " >localedef.log 2>&1").c_str()) != 0) missing += locale + " ";
  }
  setenv("LOCPATH", std::filesystem::current_path().c_str(), 1);
  const std::string zauberin = Screen::scriptOf("zauberin");
  const std::string toStep5 = zauberin.substr(0, zauberin.find("# Schritt 5"));
  for (const auto& [all, numeric, language, typed, left] : rows) {
    const std::string& chosen = !all.empty() ? all : !numeric.empty() ? numeric : language;
    if (missing.find(chosen + " ") != missing.npos) continue;
    SCOPED_TRACE(chosen + " " + typed);
    setenv("LC_ALL", all.c_str(), 1);
    setenv("LC_NUMERIC", numeric.c_str(), 1);
    setenv("LANG", language.c_str(), 1);
    const std::string buys = "type txtEquipment A\ntype txtEquipmentKosten " + typed + "\nclick cmdAddEquipment\n";
    EXPECT_EQ(leftWithoutAScreen(toStep5 + buys), left);
    const Screen screen("formAusrüstung", toStep5, systemNumberLocale());
    mouse.play(buys);
    EXPECT_EQ(dynamic_cast<QLabel&>(shownWidget("lblMoney")).text().toStdString(), left);
  }
  if (!missing.empty()) GTEST_SKIP() << "cannot be built on this machine: " << missing;
}

}  // namespace
}  // namespace bogenwerker
