// Numbers, records, files, forms.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cmath>
#include <filesystem>
#include <limits>
#include <random>
#include <tuple>

#include "wizard/fault.h"
#include "wizard/numbered_array.h"
#include "wizard/records.h"
#include "wizard/text.h"
#include "world.h"

namespace bogenwerker {
namespace {

const NumberLocale german{",", "."};
const NumberLocale point{".", ""};

TEST(Integer, OverflowIsAFaultAndNeverAWrap) {
  const Integer most = 32767;
  EXPECT_EQ(Integer(-32768).value(), -32768);
  EXPECT_THROW(most + 1, Fault);
  EXPECT_THROW(Integer(-32768) - 1, Fault);
  EXPECT_THROW(Integer(300) * 300, Fault);
  EXPECT_THROW(Integer(70000), Fault);
  EXPECT_THROW(Variant(most) + Variant(1), Fault);
  NumberedArray<Integer, 30> list;
  EXPECT_THROW(list[31], Fault);
  EXPECT_THROW(list[-1], Fault);
}

TEST(Currency, ExactAndCheckedToTheLastDigit) {
  const auto most = Currency::ofTenThousandths(std::numeric_limits<std::int64_t>::max());
  const auto least = Currency::ofTenThousandths(std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(textOf(most, german), "922337203685477,5807");
  EXPECT_EQ(textOf(least, point), "-922337203685477.5808");
  EXPECT_THROW(most + Currency::ofTenThousandths(1), Fault);
  EXPECT_THROW(least - Currency(1), Fault);
}

TEST(Currency, DividesWithTiesToTheEvenDigit) {
  const std::vector<std::pair<std::int64_t, std::int64_t>> rows = {
      {123450000, 12345000}, {12345, 1234}, {12355, 1236}, {12346, 1235}, {-12345, -1234}};
  for (const auto& [count, tenth] : rows) EXPECT_EQ((Currency::ofTenThousandths(count) / 10).tenThousandths(), tenth);
}

TEST(Currency, IsTypedByTheLocale) {
  constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
  // clang-format off
  const std::vector<std::pair<const char*, std::optional<std::int64_t>>> rows = {
      {"1500", 15000000}, {"12,5", 125000}, {"-50", -500000}, {"+5", 50000}, {"  5  ", 50000}, {",5", 5000},
      {"1.234.567,89", 12345678900}, {"1.00", {}}, {"1.0000", {}}, {"1.0000.000", {}}, {".500", {}}, {"1,000.000", {}},
      {"1 000", {}}, {",", {}}, {"-", {}}, {"", {}}, {"12x", {}}, {"1e3", {}},
      {"0,00005", 0}, {"0,00015", 2}, {"-0,00015", -2}, {"0,000050001", 1},
      {"922337203685477,5807", most}, {"-922337203685477,5808", -most - 1}, {"922337203685477,5808", {}},
      {"922337203685477,58075", {}}, {"99999999999999999999999999", {}}};
  // clang-format on
  for (const auto& [typed, count] : rows) {
    const auto amount = currencyOf(typed, german);
    EXPECT_EQ(amount ? std::optional(amount->tenThousandths()) : std::nullopt, count) << typed;
  }
}

TEST(Single, ReadsPlainWithSevenDigits) {
  // clang-format off
  const std::vector<std::pair<Single, const char*>> rows = {
      {6.0F, "6"}, {0.0F, "0"}, {-0.0F, "0"}, {0.25F, "0,25"}, {-1.5F, "-1,5"}, {1e-9F, "0,000000001"},
      {123456789.0F, "123456800"}, {9.9999999F, "10"}, {6.0F - 0.2F, "5,8"}, {6.0F - 5.9F, "0,0999999"}};
  // clang-format on
  for (const auto& [value, text] : rows) EXPECT_EQ(textOf(value, german), text);
}

TEST(Rounding, HundredthsTieToEven) {
  EXPECT_EQ(textOf(roundToHundredths(5.125F), german), "5,12");
  EXPECT_EQ(textOf(roundToHundredths(5.375F), german), "5,38");
  EXPECT_EQ(textOf(roundToHundredths(5.299999F), german), "5,3");
  EXPECT_EQ(textOf(roundToHundredths(0.004F), german), "0");
  EXPECT_EQ(roundToInteger(2.5), 2);
  EXPECT_EQ(roundToInteger(-0.5), 0);
  EXPECT_THROW(roundToInteger(40000), Fault);
  EXPECT_THROW(roundToInteger(std::nan("")), Fault);
  EXPECT_THROW((void)textOf(std::numeric_limits<Single>::infinity(), german), Fault);
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(Text, Cp1252GoesBothWaysForEveryByte) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(cp1252FromUtf8(utf8FromCp1252(bytes)), bytes);
  EXPECT_EQ(utf8FromCp1252("\xE4\x80\xFC"), "ä€ü");
  EXPECT_EQ(cp1252FromUtf8("aд\xF0\x9F\x8F\xB9z"), "az");
}

TEST(Text, GatePassesWhatARecordCanHold) {
  // clang-format off
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"die \"Nadel\"", "die 'Nadel'"}, {"a\tb\nc\x7F", "abc"}, {"a\xC2\x81z", "az"}, {"Дракон €5 – ß", " €5 – ß"},
      {"a\xCC\x88", "a"}, {"a\xC3", "a"}, {"\xC0\xAF/", "/"}, {" a, b ", " a, b "}};
  // clang-format on
  for (const auto& [typed, passed] : rows) EXPECT_EQ(gateTyped(typed), passed) << typed;
}

TEST(Text, SortsAsAGermanReaderExpects) {
  std::vector<std::string> names = {"Zahn",    "Ärger",    "arg",     "Arg",   "Argus",   "Öl",  "Ofen", "Straße",
                                    "Strasse", "Strassen", "2. Auge", "ärger", "Überzug", "Uhr", "(alt)"};
  std::sort(names.begin(), names.end(), [](auto& a, auto& b) { return germanSortKey(a) < germanSortKey(b); });
  const std::vector<std::string> expected = {"(alt)",  "2. Auge",  "arg",     "Arg", "ärger",
                                             "Ärger",  "Argus",    "Ofen",    "Öl",  "Strasse",
                                             "Straße", "Strassen", "Überzug", "Uhr", "Zahn"};
  EXPECT_EQ(names, expected);
}

TEST(Text, TellsUtf8FilesFromOurs) {
  EXPECT_TRUE(looksLikeUnicode("\xEF\xBB\xBF\"abc\""));
  EXPECT_TRUE(looksLikeUnicode("Drähte"));
  EXPECT_FALSE(looksLikeUnicode("Dr\xE4hte"));
  EXPECT_FALSE(looksLikeUnicode("Drähte und Dr\xE4hte"));
  EXPECT_FALSE(looksLikeUnicode("plain"));
}

// ---------------------------------------------------------------------------------------------------------------------

using Texts = std::vector<std::string>;

TEST(Records, FieldsAreTakenByTheRules) {
  // clang-format off
  const std::vector<std::pair<std::string, Texts>> rows = {
      {"\"a, b\",\"\"\r\n", {"a, b", ""}}, {"a b ,c\r\n", {"a b ", "c"}}, {"  a,   \"b\"\r\n", {"a", "b"}},
      {"\"a\" lost,b\r\n", {"a", "b"}}, {"a\"b\"\r\n", {"a\"b\""}}, {"\r\na\r\n", {"", "a"}},
      {"a,,b,\r\n", {"a", "", "b", ""}}, {"a\nb\n", {"a", "b"}}, {"a\rb", {"a", "b"}}, {"a,b", {"a", "b"}},
      {"\"a\r\nb\",c", {"a\r\nb", "c"}}, {"\"a,b\r\n", {"a,b\r\n"}}, {"a,", {"a"}}, {"", {}},
      {"\xC4pfel,\"\xDF\"\r\n", {"Äpfel", "ß"}}};
  // clang-format on
  for (const auto& [bytes, fields] : rows) {
    RecordReader reader("x", bytes);
    Texts taken;
    while (!reader.atEnd()) reader.read(taken.emplace_back());
    EXPECT_EQ(taken, fields) << bytes;
  }
}

TEST(Records, NumbersTakeThePointAndNothingElse) {
  const std::string bytes = "5,+7,-3 ,\"4\",2.0,,\r\n0.5,.25,1e1,1000000,0.00005,-1.5\r\n#TRUE#,#FALSE# ,0,2,\r\n";
  RecordReader reader("x", bytes);
  Integer a, b, c, d, e, f, g;
  reader.read(a, b, c, d, e, f, g);
  EXPECT_EQ(std::vector({a, b, c, d, e, f, g}), (std::vector<Integer>{5, 7, -3, 4, 2, 0, 0}));
  Single h = 0, i = 0, j = 0;
  Currency k, l, m;
  reader.read(h, i, j, k, l, m);
  EXPECT_EQ(std::vector({h, i, j}), (std::vector<Single>{0.5F, 0.25F, 10.0F}));
  EXPECT_EQ(std::vector({k, l, m}), (std::vector<Currency>{1000000, 0, Currency::ofTenThousandths(-15000)}));
  bool n = false, o = true, p = true, q = false, r = true;
  reader.read(n, o, p, q, r);
  EXPECT_TRUE(n && !o && !p && q && !r);
  EXPECT_TRUE(reader.atEnd());
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
  EXPECT_EQ(faultOf<Integer>("a,b"), "Datei.txt, Zeile 1, Feld 2: „b“ ist keine ganze Zahl von -32768 bis 32767.");
  for (const char* bad : {"a,2.5", "a,40000", "a,--1", "a,+-1", "a,1 2", "a,5.x", "a,0x1"})
    EXPECT_NE(faultOf<Integer>(bad), "none") << bad;
  for (const char* bad : {"a,nan", "a,inf", "a,1e99", "a,x", "a,1;5"}) EXPECT_NE(faultOf<Single>(bad), "none") << bad;
  for (const char* bad : {"a,1e3", "a,1.000.000", "a,9999999999999999", "a,-"})
    EXPECT_NE(faultOf<Currency>(bad), "none") << bad;
  for (const char* bad : {"a,ja", "a,#true#", "a,#TRUE#x"}) EXPECT_NE(faultOf<bool>(bad), "none") << bad;
}

TEST(Records, WhatIsWrittenReadsBackEqual) {
  const TemporaryFolder folder;
  Files files;
  std::mt19937 random(20);
  const auto upTo = [&random](int most) { return std::uniform_int_distribution(0, most)(random); };
  for (int round = 0; round < 300; ++round) {
    std::string typed;
    for (int length = upTo(12); length > 0; --length) typed += static_cast<char>(upTo(255));
    const std::string text = gateTyped(utf8FromCp1252(typed));
    const Integer whole = upTo(65535) - 32768;
    const auto money = Currency::ofTenThousandths(std::uniform_int_distribution<std::int64_t>(
        std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max())(random));
    const Single single = static_cast<Single>(upTo(2'000'000) - 1'000'000) / 1000.0F;
    RecordWriter writer(files, "x.txt");
    writer.write(text, whole, money, single, text);
    writer.write(whole);
    writer.close();

    const std::string bytes = files.read("x.txt");
    RecordReader reader("x.txt", bytes);
    std::string text1, text2;
    Integer whole1, whole2;
    Currency money1;
    Single single1 = 0;
    reader.read(text1, whole1, money1, single1, text2);
    reader.read(whole2);
    EXPECT_EQ(std::tie(text1, whole1, money1, single1, text2, whole2),
              std::tie(text, whole, money, single, text, whole));
    EXPECT_TRUE(reader.atEnd());
  }
}

TEST(Records, AreWrittenByTheByte) {
  const TemporaryFolder folder;
  Files files;
  RecordWriter writer(files, "x.txt");
  writer.write("Ork", "", Currency(90000), Integer(-3), Currency::ofTenThousandths(12300));
  writer.write("Äpfel, grün", 6.0F - 0.7F, 0.5F, -0.25F);
  writer.close();
  EXPECT_EQ(fileBytes("x.txt"), "\"Ork\",\"\",90000,-3,1.23\r\n\"\xC4pfel, gr\xFCn\",5.3,0.5,-0.25\r\n");
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(Files, ReplaceIsWholeAndLeavesNoLitter) {
  const TemporaryFolder folder;
  FaultyFiles files;
  writeBytes("Bogenwerker.neu", "left by a run that was killed");
  files.setMostPerWrite(3);
  files.replace("old.txt", "new content", Durability::onDisk);
  EXPECT_EQ(fileBytes("old.txt"), "new content");
  EXPECT_EQ(fileNames(), Texts{"old.txt"});

  files.failAt(1000, EIO);
  files.replace("old.txt", "new content", Durability::onDisk);
  const int calls = files.calls();
  ASSERT_GE(calls, 5);
  for (int call = 0; call < calls; ++call) {
    files.failAt(call, ENOSPC);
    EXPECT_THROW(files.replace("old.txt", "not to come", Durability::onDisk), Fault) << call;
    EXPECT_EQ(fileBytes("old.txt"), "new content") << call;
    EXPECT_EQ(fileNames(), Texts{"old.txt"}) << call;
  }
}

TEST(Files, NeverFollowsALinkNorWaitsForAPipe) {
  const TemporaryFolder folder;
  Files files;
  writeBytes("precious", "keep me");
  std::filesystem::create_symlink("precious", "sheet.htm");
  files.replace("sheet.htm", "sheet", Durability::untilPowerLoss);
  EXPECT_EQ(fileBytes("precious"), "keep me");
  EXPECT_FALSE(std::filesystem::is_symlink("sheet.htm"));

  std::filesystem::create_directory("folder.htm");
  EXPECT_THROW(files.replace("folder.htm", "sheet", Durability::untilPowerLoss), Fault);
  EXPECT_THROW((void)files.read("folder.htm"), Fault);
  ASSERT_EQ(mkfifo("pipe.txt", 0600), 0);
  EXPECT_THROW((void)files.read("pipe.txt"), Fault);
}

// ---------------------------------------------------------------------------------------------------------------------

struct SampleVariables {
  int clicks = 0;
  bool wasLoaded = false;
};
class SampleForm final : public FormWith<SampleVariables> {
 public:
  explicit SampleForm(FormsRuntime& runtime) : FormWith(runtime, "sample", {.caption = "Sample"}) {}
  Frame frame{*this, "frame", {.caption = "Frame"}};
  OptionButton one{frame, "one", {.click = [this] { ++clicks; }}};
  OptionButton two{frame, "two", {.click = [this] { ++clicks; }}};
  OptionButton apart{*this, "apart", {.click = [this] { ++clicks; }}};
  TextBox text{*this, "text", {.text = "start", .change = [this] { ++clicks; }}};
  ComboBox box{*this, "box", {.text = "initial", .sorted = true, .click = [this] { ++clicks; }}};
  ListBox list{*this, "list", {.click = [this] { ++clicks; }}};
  CommandButton fails{*this, "fails", {.click = [this] { failAfterChanges(); }}};
  SampleForm* other = nullptr;

 private:
  void Form_Load() override { wasLoaded = true; }
  void failAfterChanges() {
    ++clicks;
    text.setText("changed");
    list.clear();
    list.addItem("changed");
    box.addItem("changed");
    one.setValue(true);
    frame.setEnabled(false);
    other->list.addItem("loads it");
    setVisible(false);
    other->setVisible(true);
    unload();
    throw Fault("broken");
  }
};

class FormsTest : public testing::Test {
 protected:
  Files files;
  std::vector<std::string> shown;
  FormsRuntime runtime{{.files = files,
                        .numbers = {},
                        .showMessage = [this](Message, std::string_view text) { shown.emplace_back(text); },
                        .throwDie = nullptr}};
  SampleForm form{runtime};
  SampleForm second{runtime};
  void SetUp() override {
    form.setVisible(true);
    form.other = &second;
  }
};

TEST_F(FormsTest, OptionsExcludeEachOtherWithinTheirContainerOnly) {
  EXPECT_TRUE(form.one.choose() && form.apart.choose() && form.two.choose() && form.two.choose());
  EXPECT_TRUE(!form.one.value() && form.two.value() && form.apart.value());
  form.two.setValue(false);
  EXPECT_EQ(form.clicks, 3);
  form.frame.setEnabled(false);
  EXPECT_FALSE(form.one.choose());
  EXPECT_TRUE(form.one.isEnabled());
}

TEST_F(FormsTest, TypingRaisesChangeOnlyForAnotherText) {
  form.text.setSelLength(5);
  EXPECT_TRUE(form.text.type("start"));
  EXPECT_EQ(std::pair(form.clicks, form.text.selLength()), std::pair(0, 0));
  EXPECT_TRUE(form.text.type("st\"art"));
  EXPECT_EQ(form.text.text(), "st'art");
  EXPECT_TRUE(form.box.type("typed"));
  EXPECT_EQ(form.clicks, 1);
}

TEST_F(FormsTest, SortedBoxesAndListsKeepTheirRules) {
  for (const char* entry : {"Zebra", "Äpfel", "affe"}) form.box.addItem(entry);
  EXPECT_EQ(form.box.entries(), (Texts{"affe", "Äpfel", "Zebra"}));
  EXPECT_TRUE(form.box.pick(1) && form.box.pick(1));
  EXPECT_EQ(form.box.text(), "Äpfel");
  form.list.addItem("first");
  form.list.addItem("second");
  EXPECT_TRUE(form.list.select(1) && form.list.select(1));
  EXPECT_EQ(form.clicks, 4);
  form.list.clear();
  EXPECT_EQ(form.list.text(), "");
}

// What a view would show has to come back too: it hears of all that changed, and of nothing else.
class RecordingView final : public View {
 public:
  Texts heard;
  void formLoaded(Form& f) override { heard.push_back("+" + std::string(f.name())); }
  void formChanged(Form& f) override { heard.push_back(f.isVisible() ? "show" : "hide"); }
  void formUnloaded(Form& f) override { heard.push_back("-" + std::string(f.name())); }
  void controlChanged(Control& c) override { heard.emplace_back(c.name()); }
};

TEST_F(FormsTest, AFaultLeavesEverythingAsItWas) {
  form.list.addItem("kept");
  form.box.addItem("kept");
  RecordingView view;
  runtime.attach(&view);
  EXPECT_EQ(view.heard, (Texts{"+sample", "show"}));
  view.heard.clear();

  EXPECT_TRUE(form.fails.press());
  EXPECT_EQ(shown.size(), 1U);
  EXPECT_EQ(form.clicks, 0);
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(form.text.text(), "start");
  EXPECT_EQ(form.list.lines(), Texts{"kept"});
  EXPECT_EQ(form.box.entries(), Texts{"kept"});
  EXPECT_FALSE(form.one.value());
  EXPECT_TRUE(form.frame.isEnabled());
  EXPECT_EQ(second.state(), Form::State::notLoaded);
  EXPECT_FALSE(second.wasLoaded);
  EXPECT_FALSE(runtime.isOver());
  EXPECT_TRUE(runtime.isUntouched());
  for (const std::string& heard : view.heard)
    EXPECT_TRUE(heard != "show" && heard != "hide" && heard[0] != '-') << heard;
  second.setVisible(false);
  EXPECT_TRUE(second.list.lines().empty());
}

TEST_F(FormsTest, ClosingEndsWithAllHiddenForms) {
  second.setVisible(false);
  EXPECT_TRUE(runtime.isUntouched());
  EXPECT_FALSE(second.one.choose()) << "a hidden form takes no gestures";
  runtime.close();
  EXPECT_TRUE(runtime.isOver());
  EXPECT_EQ(runtime.visibleForm(), nullptr);
}

}  // namespace
}  // namespace bogenwerker
