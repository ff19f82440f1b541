// What lies in the player's folder, and what the machine does to a run there.
#include "outside/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdio>
#include <filesystem>

#include "finish/sheet.h"
#include "values/fault.h"
#include "world.h"

namespace bogenwerker {
namespace {

TEST(SheetFileName, IsAPlainNameOfItsOwn) {
  const std::string longest(251, 'x');
  std::string umlauts = "a";
  for (int i = 0; i < 150; ++i) umlauts += "ä";
  // clang-format off
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"Anna Müller", "Anna Müller.htm"}, {"", ".htm"}, {"..", "...htm"}, {"a_b", "a_b.htm"}, {"com", "com.htm"},
      {"Conny", "Conny.htm"}, {longest, longest + ".htm"}, {"a/b", "a_b_3a8e75c1.htm"}, {"a:b", "a_b_08bd8540.htm"},
      {"<b>|\"", "_b____a8eac601.htm"}, {"../../etc/x", ".._.._etc_x_66e4f158.htm"}, {"CON", "_CON_3367e86b.htm"},
      {"template", "_template_694aaa0b.htm"}, {"nul.alt", "_nul.alt_c4419929.htm"}, {"LPT¹", "_LPT¹_013a4fea.htm"},
      {"Com9", "_Com9_a96f4dc5.htm"}, {umlauts, umlauts.substr(0, 241) + "_77726274.htm"}};
  // clang-format on
  for (const auto& [typed, file] : rows) EXPECT_EQ(sheetFileName(typed), file);
}

std::string faultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.what();
  }
  return "none";
}

TEST(Files, LeaveWhatThePlayerProtectedAndKeepLinksAndModes) {
  const TemporaryFolder folder;
  FaultyFiles files;
  std::filesystem::create_directory("elsewhere");
  writeBytes("elsewhere/sheet", "old");
  chmod("elsewhere/sheet", 0640);
  std::filesystem::create_symlink("elsewhere/sheet", "sheet.htm");
  std::filesystem::create_symlink("round.htm", "round.htm");
  files.replace("sheet.htm", "new", Durability::onDisk);
  EXPECT_EQ(files.otherFlushes, 1) << "the folder's, for the new name";
  EXPECT_TRUE(std::filesystem::is_symlink("sheet.htm"));
  EXPECT_EQ(fileBytes("elsewhere/sheet"), "new");
  EXPECT_EQ(std::filesystem::status("elsewhere/sheet").permissions(), std::filesystem::perms(0640));

  std::filesystem::create_directory("folder.htm");
  EXPECT_EQ(mkfifo("pipe.txt", 0600), 0);
  const auto write = [&files](const char* name) { files.replace(name, "new", Durability::untilPowerLoss); };
  const std::vector<std::pair<std::string, std::string>> rows = {
      {faultOf([&] { write("folder.htm"); }), "Unter diesem Namen gibt es schon einen Ordner."},
      {faultOf([&] { write("round.htm"); }), "ein Verweis, der im Kreis führt."},
      {faultOf([&] { (void)files.read("folder.htm"); }), "Unter diesem Namen liegt ein Ordner."},
      {faultOf([&] { (void)files.read("pipe.txt"); }), "keine gewöhnliche Datei."},
      {(std::filesystem::create_directories("Bogenwerker.neu/full"), faultOf([&] { write("new.htm"); })),
       "„Bogenwerker.neu“ ist im Weg"}};
  for (const auto& [fault, text] : rows) EXPECT_NE(fault.find(text), std::string::npos) << fault << text;
}

// The status of a command line that runs the built program in this folder, and all that it printed.
std::pair<int, std::string> outcomeOf(const std::string& commands) {
  FILE* output = popen(("P() { '" HEADLESS "'; }; exec 2>&1; " + commands).c_str(), "r");
  std::string printed(100'000, '\0');
  printed.resize(std::fread(printed.data(), 1, printed.size(), output));
  return {WEXITSTATUS(pclose(output)), printed};
}

TEST(Process, TellsAScriptHowItEnded) {
  World world;
  ASSERT_TRUE(world.wizard.start());
  std::filesystem::copy(SOURCE_DIR "/data", "other");
  const std::string character = "'" SOURCE_DIR "/examples/tuersteher/gestures.txt'";
  const std::vector<std::tuple<std::string, int, std::string>> rows = {
      {"P </dev/null", 1, "fault In diesem Ordner läuft der Bogenwerker schon."},
      {"cd other; echo dump | P >/dev/full", 1, ""},
      {"cd other; echo dump | P >&-", 1, ""},
      {"cd other; (ulimit -f 0; P <" + character + ")", 0, "Das System lässt so große Dateien nicht zu."},
      {"cd other; P <" + character, 0, "/other/Bruno Wackernagel.htm\n"},
      {"mkdir gone; cd gone; rmdir ../gone; P", 1, "gibt es nicht mehr."}};
  for (const auto& [commands, status, text] : rows) {
    const auto [ended, printed] = outcomeOf(commands);
    EXPECT_EQ(ended, status) << commands << printed;
    EXPECT_NE(printed.find(text), std::string::npos) << commands << printed;
  }
}

}  // namespace
}  // namespace bogenwerker
