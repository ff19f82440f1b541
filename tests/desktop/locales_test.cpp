// Both front ends under the locales of several countries. They are built here, as a machine may have none of them.
#include <cstdlib>
#include <regex>

#include "hands.h"
#include "outside/locale.h"

namespace bogenwerker {
namespace {

// LC_ALL, LC_NUMERIC and LANG, an amount that is typed, and what is left of 400000.
// clang-format off
const std::vector<std::array<std::string, 5>> rows = {
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

TEST(Locales, bothFrontEndsTakeAndShowTheSameAmounts) {
  const TemporaryFolder folder;
  const auto build =
      "for each in de_DE.UTF-8 de_AT.ISO-8859-1 de_CH.UTF-8 fr_FR.UTF-8 fr_FR.ISO-8859-1 ar_EG.UTF-8 "
      "ps_AF.UTF-8; do localedef -i ${each%.*} -f ${each#*.} ./$each || exit; done >localedef.log 2>&1";
  if (std::system(build) != 0) GTEST_SKIP() << "this machine builds no locales: " << fileBytes("localedef.log");
  setenv("LOCPATH", std::filesystem::current_path().c_str(), 1);
  const std::string zauberin = scriptOf("zauberin");
  const std::string toStep5 = zauberin.substr(0, zauberin.find("# Schritt 5"));
  for (const auto& [all, numeric, language, typed, left] : rows) {
    SCOPED_TRACE(all + numeric + language + " " + typed);
    const World alone;
    setenv("LC_ALL", all.c_str(), 1);
    setenv("LC_NUMERIC", numeric.c_str(), 1);
    setenv("LANG", language.c_str(), 1);
    const std::string buys = "type txtEquipment A\ntype txtEquipmentKosten " + typed + "\nclick cmdAddEquipment\n";
    writeBytes("script", toStep5 + buys + "dump\n");
    EXPECT_EQ(std::system(HEADLESS " <script >replies"), 0);
    EXPECT_TRUE(std::regex_search(fileBytes("replies"), std::regex(R"("lblMoney"[^}]*"caption":")" + left + '"')));
    const Screen screen("formAusrüstung", toStep5, systemNumberLocale());
    play(buys);
    EXPECT_EQ(fromQt(shown<QLabel>("lblMoney").text()), left);
  }
}

}  // namespace
}  // namespace bogenwerker
