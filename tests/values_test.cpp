// Numbers, text and records at their edges: a row a case.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "catalogues/catalogues.h"
#include "outside/records.h"
#include "outside/wuerfelomat.h"
#include "values/fault.h"
#include "values/numbered_array.h"
#include "values/text.h"
#include "world.h"
#include "zusatzmodul/berechneReaktion.h"

namespace bogenwerker {
namespace {

const NumberLocale german{",", "."};
constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
const auto money = &Currency::ofTenThousandths;

TEST(Values, BeyondTheirRangeAreAFaultAndNeverAWrap) {
  EXPECT_EQ(Integer(-32768).value(), -32768);
  EXPECT_THROW(Integer(32767) + 1, Fault);
  EXPECT_THROW(Integer(-32768) - 1, Fault);
  EXPECT_THROW(Integer(300) * 300, Fault);
  EXPECT_THROW(Integer(70000), Fault);
  EXPECT_THROW(Variant(32767) + Variant(1), Fault);
  EXPECT_THROW(integerOf(""), Fault);
  EXPECT_THROW(money(most) + money(1), Fault);
  EXPECT_THROW(money(-most - 1) - Currency(1), Fault);
  EXPECT_THROW(roundToInteger(40000), Fault);
  EXPECT_THROW(roundToInteger(std::nan("")), Fault);
  EXPECT_THROW((void)textOf(std::numeric_limits<Single>::infinity(), german), Fault);
  NumberedArray<Integer, 30> list;
  EXPECT_EQ(list[30], 0);
  EXPECT_THROW(list[31], Fault);
  EXPECT_THROW(list[-1], Fault);
}

TEST(Values, RoundToTheEvenDigit) {
  // clang-format off
  for (const auto& [count, tenth] : {std::pair(123450000, 12345000), {12345, 1234}, {12355, 1236}, {12346, 1235}, {-12345, -1234}})
    EXPECT_EQ(money(count) / 10, money(tenth));
  for (const auto& [value, text] : {std::pair(5.125F, "5,12"), {5.375F, "5,38"}, {5.299999F, "5,3"}, {0.004F, "0"}})
    EXPECT_EQ(textOf(roundToHundredths(value), german), text);
  for (const auto& [value, whole] : {std::pair(2.5, 2), {3.5, 4}, {-0.5, 0}, {-1.5, -2}}) EXPECT_EQ(roundToInteger(value), whole);
  // Half the sum of two values goes down, toward minus infinity.
  for (const auto& [a, b, half] : {std::array{4.0, 5.0, 4.0}, {5, 6, 5}, {-1, 0, -1}, {-3, 0, -2}, {-2, 0, -1}, {4.8, 4.8, 4}, {-1.0 / 3, -1.0 / 3, -1}, {32767, 32767, 32767}})
    EXPECT_EQ(berechneReaktion(a, b).value(), half) << a << " " << b;
}

TEST(Values, AmountsAreTypedByTheLocale) {
  const std::vector<std::pair<const char*, std::optional<std::int64_t>>> rows = {
      {"1500", 15000000}, {"12,5", 125000}, {"-50", -500000}, {"+5", 50000}, {"  5  ", 50000}, {",5", 5000},
      {"1.234.567,89", 12345678900}, {"1.00", {}}, {"1.0000", {}}, {"1.0000.000", {}}, {".500", {}}, {"1,000.000", {}},
      {"1 000", {}}, {",", {}}, {"-", {}}, {"", {}}, {"12x", {}}, {"1e3", {}},
      {"0,00005", 0}, {"0,00015", 2}, {"-0,00015", -2}, {"0,000050001", 1},
      {"922337203685477,5807", most}, {"-922337203685477,5808", -most - 1}, {"922337203685477,5808", {}},
      {"922337203685477,58075", {}}, {"1844674407370955,16155", {}}, {"99999999999999999999999999", {}}};
  for (const auto& [typed, count] : rows) {
    const auto amount = currencyOf(typed, german);
    EXPECT_EQ(amount ? std::optional(amount->tenThousandths()) : std::nullopt, count) << typed;
  }
  // Each blank goes for any other, and each apostrophe.
  EXPECT_EQ(currencyOf("\u00A0-1\u202F000 000 ", {",", "\u00A0"}), Currency(-1000000));
  EXPECT_EQ(currencyOf("1'000’000", {".", "’"}), Currency(1000000));
  EXPECT_EQ(currencyOf("1'000", {",", " "}), std::nullopt);
}

TEST(Values, ReadPlain) {
  const std::vector<std::pair<Single, const char*>> rows = {
      {6.0F, "6"}, {0.0F, "0"}, {-0.0F, "0"}, {0.25F, "0,25"}, {-1.5F, "-1,5"}, {1e-9F, "0,000000001"},
      {123456789.0F, "123456800"}, {9.9999999F, "10"}, {6.0F - 0.2F, "5,8"}, {6.0F - 5.9F, "0,0999999"}};
  for (const auto& [value, text] : rows) EXPECT_EQ(textOf(value, german), text);
  EXPECT_EQ(textOf(money(most), german), "922337203685477,5807");
  EXPECT_EQ(textOf(money(-most - 1), {}), "-922337203685477.5808");
}

TEST(Text, GatePassesWhatCanBeStoredAndLosesNothingThatIsSeen) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"die \"Nadel\", „Öse“", "die \"Nadel\", „Öse“"}, {" a\tb\nc\r\nd\r\u2028e ", " a b c d  e "},
      {"a\x7F\x1B\u0081z", "az"}, {"\uFEFFa\u200B\u200F\u202Ez\u202C\uFE0F", "az"}, {"soft\u00ADy", "soft\u00ADy"},
      {"Łukasz €5 – дß", "?ukasz €5 – ?ß"}, {"🏹‼", "??"}, {"a\xC3", "a?"}, {"\xC0\xAF.", "??."}, {"12٫5", "12?5"},
      {"\xE0\x81\x81.", "???."}, {"u\u0308U\u0308 Z\u030C c\u0327 x\u0308 \u0308", "üÜ Ž ç x? ?"}, {"u\u0308\u0308", "ü?"},
      {"−5‑12\u202F000\u2009Y", "-5-12\u00A0000 Y"}, {"D\u02BCArc 5\u2032 6\u2033", "D'Arc 5' 6\""},
      {"Graﬁk, GROẞ", "Grafik, GROSS"}};
  for (const auto& [typed, passed] : rows) {
    EXPECT_EQ(gateTyped(typed), passed) << typed;
    EXPECT_EQ(gateTyped(passed), passed);
  }
}

TEST(Text, GoesBothWaysForEveryByteAndIsToldFromUnicode) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(cp1252FromUtf8(utf8FromCp1252(bytes)), bytes);
  EXPECT_EQ(utf8FromCp1252("\xE4\x80\xFC"), "ä€ü");
  EXPECT_EQ(cp1252FromUtf8("aд\xF0\x9F\x8F\xB9z"), "az");
  for (const char* unicode : {"\xEF\xBB\xBF\"abc\"", "\xFF\xFE", "\xFE\xFF", "Drähte"}) EXPECT_TRUE(looksLikeUnicode(unicode));
  for (const char* ours : {"Dr\xE4hte", "Drähte und Dr\xE4hte", "plain", "\xED\xA0\x80", "\xE0\x80\xAF"}) EXPECT_FALSE(looksLikeUnicode(ours));
}

TEST(Text, SortsAsAGermanReaderExpects) {
  const std::vector<std::string> names = {"(alt)", "2. Auge", "arg", "Arg", "ärger", "Ärger", "Argus", "Ofen", "Öl", "Strasse", "Straße",
                                          "Strassen", "Überzug", "Uhr", "Zahn"};
  std::vector<std::string> sorted(names.rbegin(), names.rend());
  std::sort(sorted.begin(), sorted.end(), [](auto& a, auto& b) { return germanSortKey(a) < germanSortKey(b); });
  EXPECT_EQ(sorted, names);
}
// clang-format on

using Texts = std::vector<std::string>;

// All fields of such a type.
template <class Target>
std::vector<Target> take(const std::string& bytes) {
  RecordReader reader("Datei.txt", bytes);
  std::vector<Target> taken;
  while (!reader.atEnd()) reader.read(taken.emplace_back());
  return taken;
}

TEST(Records, FieldsAreTakenByTheRules) {
  // clang-format off
  const std::vector<std::pair<std::string, Texts>> rows = {
      {"\"a, b\",\"\"\r\n", {"a, b", ""}}, {"a b ,c\r\n", {"a b ", "c"}}, {"  a,   \"b\"\r\n", {"a", "b"}},
      {"\"a\" lost,b\r\n", {"a", "b"}}, {"a\"b\"\r\n", {"a\"b\""}}, {"\r\na\r\n", {"", "a"}},
      {"a,,b,\r\n", {"a", "", "b", ""}}, {"a\nb\n", {"a", "b"}}, {"a\rb", {"a", "b"}}, {"a,b", {"a", "b"}},
      {"\"a\r\nb\",c", {"a\r\nb", "c"}}, {"\"a,b\r\n", {"a,b\r\n"}}, {"a,", {"a"}}, {"", {}},
      {"\xC4pfel,\"\xDF\"\r\n", {"Äpfel", "ß"}}};
  for (const auto& [bytes, fields] : rows) EXPECT_EQ(take<std::string>(bytes), fields) << bytes;
  EXPECT_EQ(take<Integer>("5,+7,-3 ,\"4\",2.0,,"), (std::vector<Integer>{5, 7, -3, 4, 2, 0}));
  EXPECT_EQ(take<Single>("0.5,.25,1e1"), (std::vector<Single>{0.5F, 0.25F, 10.0F}));
  EXPECT_EQ(take<Currency>("1000000,0.00005,-1.5"), (std::vector<Currency>{1000000, 0, Currency::ofTenThousandths(-15000)}));
  RecordReader truths("x", "#TRUE#,#FALSE# ,0,2,\r\n");
  bool a = false, b = true, c = true, d = false, e = true;
  truths.read(a, b, c, d, e);
  EXPECT_TRUE(a && !b && !c && d && !e && truths.atEnd());
}

template <class Target>
std::string faultOf(const std::string& bytes) {
  RecordReader reader("Datei.txt", bytes);
  std::string name;
  Target target{};
  try {
    reader.read(name, target);
  } catch (const Fault& fault) {
    return fault.what();
  }
  return "none";
}

TEST(Records, FaultsNameFileLineAndField) {
  EXPECT_EQ(faultOf<Integer>("\r\n"), "Datei.txt, Zeile 2, Feld 2: Hier endet die Datei mitten in einem Eintrag.");
  EXPECT_EQ(faultOf<Integer>("a,b\tc"), "Datei.txt, Zeile 1, Feld 2: „b⇥c“ ist keine ganze Zahl von -32768 bis 32767.");
  EXPECT_EQ(faultOf<Integer>("a\r\n\"b\r\nc\""), "Datei.txt, Zeile 2, Feld 2: Das Anführungszeichen am Ende fehlt.");
  EXPECT_EQ(faultOf<Single>("a," + std::string(70, 'x')), "Datei.txt, Zeile 1, Feld 2: „" + std::string(60, 'x') + "…“ ist keine Zahl.");
  for (const char* bad : {"a,2.5", "a,40000", "a,--1", "a,+-1", "a,1 2", "a,5.x", "a,0x1"}) EXPECT_NE(faultOf<Integer>(bad), "none") << bad;
  for (const char* bad : {"a,nan", "a,inf", "a,1e99", "a,x", "a,1;5"}) EXPECT_NE(faultOf<Single>(bad), "none") << bad;
  for (const char* bad : {"a,1e3", "a,1.000.000", "a,9999999999999999", "a,-"}) EXPECT_NE(faultOf<Currency>(bad), "none") << bad;
  for (const char* bad : {"a,ja", "a,#true#", "a,#TRUE#x"}) EXPECT_NE(faultOf<bool>(bad), "none") << bad;
  // clang-format on
}

// From one tick of the clock even, since no seed is used twice.
TEST(Dice, AreFair) {
  std::array<int, 7> count{};
  for (int i = 0; i < 6000; ++i) ++count.at(static_cast<std::size_t>(wuerfelnUm(0)));
  for (std::size_t face = 1; face <= 6; ++face) EXPECT_NEAR(count.at(face), 1000, 200) << face;
}

}  // namespace
}  // namespace bogenwerker
