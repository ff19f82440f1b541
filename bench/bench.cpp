// How long the wizard takes where catalogues and lists are full, each figure beside its floor. Files lie in
// memory-backed storage where there is any, so that the figures are those of the program and not of a disk.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "catalogues/check.h"
#include "headless/gestures.h"
#include "values/text.h"
#include "wizard/journal.h"
#include "wizard/wizard.h"

namespace bogenwerker {
namespace {

namespace fs = std::filesystem;

void writeBytes(const fs::path& name, std::string_view bytes) {
  std::ofstream(name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string fileBytes(const fs::path& name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Goes to a new folder with the shipped data, and takes it away in the end.
class Folder {
 public:
  Folder() {
    std::string pattern = (fs::exists("/dev/shm") ? "/dev/shm" : fs::temp_directory_path().string()) + "/bench-XXXXXX";
    path_ = mkdtemp(pattern.data());
    for (const auto& entry : fs::directory_iterator(SOURCE_DIR "/data")) {
      fs::copy_file(entry.path(), path_ / entry.path().filename());
    }
    fs::current_path(path_);
  }
  ~Folder() {
    fs::current_path("/");
    fs::remove_all(path_);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

 private:
  fs::path path_;
};

// As long as a shipped row, with umlauts in every third name.
std::string wareName(std::string_view kind, int number) {
  return std::string(kind) + (number % 3 == 0 ? "gestärkt Nr. " : "gestreckt Nr. ") + std::to_string(number) +
         " (Sch+1 Int+2)";
}

std::string wareRows(std::string_view kind, int count) {
  std::string rows;
  for (int i = 1; i <= count; ++i) {
    rows += "\"" + cp1252FromUtf8(wareName(kind, i)) + "\",0." + std::to_string(i % 90 + 1) + "," +
            std::to_string(i * 130) + ",0,1,0,2,0,-1,0,0," + std::to_string(i % 3) + ",1,0,0,#TRUE#,#" +
            (i % 4 == 0 ? "FALSE" : "TRUE") + "#\r\n";
  }
  return rows;
}

void fillCatalogues() {
  writeBytes("Cyberware.txt", wareRows("Knochen", mostCyberware));
  writeBytes("Bioware.txt", wareRows("Sehne", mostBioware));
  std::string decks;
  for (int i = 1; i <= mostCyberdecks; ++i) decks += "\"Deck Nr. " + std::to_string(i) + "\",4,16500,1\r\n";
  writeBytes("Cyberdecks.txt", decks);
}

Environment quiet(Files& files) {
  return {.files = files,
          .numbers = {",", "."},
          .showMessage = [](Message, std::string_view) {},
          .throwDie = [] { return 3; }};
}

// Time that this thread has worked: what others do on the machine stays out of it. In seconds.
double workedSoFar() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// ---------------------------------------------------------------------------------------------------------------------

// Byte by byte, and with the length of every line, as a reader of lines needs it.
void ScanForLineEnds(benchmark::State& state) {
  const std::string bytes = wareRows("Knochen", mostCyberware);
  for (auto _ : state) {
    std::size_t longest = 0;
    std::size_t start = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      if (bytes[i] != '\n') continue;
      longest = std::max(longest, i - start);
      start = i + 1;
    }
    benchmark::DoNotOptimize(longest);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(ScanForLineEnds);

// One pass over a full catalogue with all fields converted: to stay within 6 times the scan.
void ReadCyberware(benchmark::State& state) {
  const std::string bytes = wareRows("Knochen", mostCyberware);
  for (auto _ : state) {
    CatalogueReader reader("Cyberware.txt", bytes);
    for (WareRow row; !reader.atEnd();) {
      reader.read(row);
      benchmark::DoNotOptimize(row);
    }
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(ReadCyberware);

// ---------------------------------------------------------------------------------------------------------------------

// Reading the full catalogues for the check ahead of the first form, and once more for what looks like a slip: each to
// stay within a few milliseconds.
void CheckFullCatalogues(benchmark::State& state) {
  const Folder folder;
  fillCatalogues();
  Files files;
  std::vector<std::string> faults;
  for (auto _ : state) checkCatalogues(files, faults);
  if (!faults.empty()) state.SkipWithError("a catalogue could not be read");
}
BENCHMARK(CheckFullCatalogues)->Unit(benchmark::kMicrosecond);

void FindSlipsInFullCatalogues(benchmark::State& state) {
  const Folder folder;
  fillCatalogues();
  Files files;
  Wizard wizard(quiet(files));
  for (auto _ : state) {
    if (!wizard.slips().empty()) state.SkipWithError("a row looks like a slip");
  }
}
BENCHMARK(FindSlipsInFullCatalogues)->Unit(benchmark::kMicrosecond);

// ---------------------------------------------------------------------------------------------------------------------

// Merely opening, reading and closing what step 6 does for every line.
void OpenReadCloseForEveryLine(benchmark::State& state) {
  const Folder folder;
  fillCatalogues();
  Files files;
  std::string buffer;
  for (auto _ : state) {
    const double start = workedSoFar();
    for (std::int64_t line = 0; line < state.range(0); ++line) {
      for (const char* file : {"Cyberdecks.txt", "Cyberware.txt", "Bioware.txt"}) files.read(file, buffer);
      benchmark::DoNotOptimize(buffer);
    }
    state.SetIterationTime(workedSoFar() - start);
  }
}
BENCHMARK(OpenReadCloseForEveryLine)->Arg(3)->Arg(60)->Arg(1000)->Unit(benchmark::kMicrosecond)->UseManualTime();

std::string freeText(int line) { return "Ein Andenken aus Haus " + std::to_string(line); }
std::string ware(int line) {
  const int number = line * 617 % (mostCyberware + mostBioware);  // all over both catalogues
  return number < mostCyberware ? wareName("Knochen", number + 1) : wareName("Sehne", number - mostCyberware + 1);
}

// The statement of the way out of step 5 that loads step 6, for so many lines of equipment: to stay within 2 times the
// mere reading where the lines are free text, within 4 times where all of them are ware.
void LoadStepSix(benchmark::State& state, std::string (*lineOf)(int)) {
  const Folder folder;
  fillCatalogues();
  Files files;
  RecordWriter equipment(files, "Ausrüstung.txt");
  for (int line = 0; line < state.range(0); ++line) equipment.write(lineOf(line));
  equipment.close();
  writeBytes("Essenz.txt", "6,9\r\n");
  writeBytes("Attribute.txt",
             "\"1\",5\r\n\"2\",5\r\n\"3\",5\r\n\"4\",5\r\n\"Intelligenz\",5\r\n\"6\",5\r\n\"7\",6\r\n\"8\",5\r\n");
  for (const char* file : {"Fertigkeiten.txt", "Wissensfertigkeiten.txt", "Sprachen.txt"}) writeBytes(file, "");

  for (auto _ : state) {
    Wizard wizard(quiet(files));
    const double start = workedSoFar();
    wizard.runtime().perform({}, [&wizard] { wizard.formFeinschliff.setVisible(false); });
    state.SetIterationTime(workedSoFar() - start);
    if (!wizard.formNamenGeben.isVisible()) state.SkipWithError("step 6 was not reached");
  }
}
BENCHMARK_CAPTURE(LoadStepSix, free_text, freeText)
    ->Arg(3)
    ->Arg(60)
    ->Arg(1000)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime();
BENCHMARK_CAPTURE(LoadStepSix, ware, ware)->Arg(3)->Arg(60)->Arg(1000)->Unit(benchmark::kMicrosecond)->UseManualTime();

// ---------------------------------------------------------------------------------------------------------------------

// A pick and a purchase of the row that stands last in a full catalogue.
void PickAndBuyInStepFive(benchmark::State& state) {
  const Folder folder;
  fillCatalogues();
  Files files;
  RecordWriter priorities(files, "Prioritäten.txt");
  priorities.write("Elf", "Aspekt", Currency(1'000'000));
  priorities.close();
  Wizard wizard(quiet(files));
  FormAusrüstung& form = wizard.formAusrüstung;
  form.setVisible(true);
  for (auto _ : state) {
    form.cmbCyberware.pick(form.cmbCyberware.entries().size() - 1);
    form.cmdAddCyberware.press();
  }
}
BENCHMARK(PickAndBuyInStepFive);

// The players' examples from the check of the folder to the sheet, one after the other: a thousand in a second.
void WholeCharacters(benchmark::State& state) {
  const Folder folder;
  std::vector<std::vector<std::string>> scripts;
  for (const auto& entry : fs::directory_iterator(SOURCE_DIR "/examples")) {
    scripts.emplace_back();
    std::istringstream stream(fileBytes(entry.path() / "gestures.txt"));
    for (std::string line; std::getline(stream, line);) scripts.back().push_back(line);
  }
  Files files;
  std::size_t next = 0;
  for (auto _ : state) {
    Wizard wizard(quiet(files));
    wizard.start();
    for (const std::string& line : scripts[next]) benchmark::DoNotOptimize(carryOut(wizard, line));
    if (!wizard.runtime().isOver()) state.SkipWithError("a character was not finished");
    next = (next + 1) % scripts.size();
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(WholeCharacters)->Unit(benchmark::kMicrosecond);

// ---------------------------------------------------------------------------------------------------------------------

// The line that the journal adds at a press, merely written.
void WriteOneLine(benchmark::State& state) {
  const Folder folder;
  const std::string_view line = "click optRasseElf\n";
  const int file = open("lines", O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  for (auto _ : state) {
    if (write(file, line.data(), line.size()) < 0) state.SkipWithError("the line was not written");
  }
  close(file);
}
BENCHMARK(WriteOneLine);

// A press that stays on its form, without and with a journal: the journal to cost no more than two bare writes.
void PressAnOption(benchmark::State& state) {
  const Folder folder;
  Files files;
  Journal journal(files);
  const bool isKept = state.range(0) != 0;
  Wizard wizard(isKept ? journal.around(quiet(files)) : quiet(files));
  wizard.start();
  if (isKept) journal.record(wizard.runtime(), [](std::string_view) {});
  const std::array options = {Gesture{.control = "optRasseElf"}, Gesture{.control = "optRasseOrk"}};
  std::size_t next = 0;
  for (auto _ : state) {
    if (wizard.runtime().play(options.at(next ^= 1)) != Outcome::through) state.SkipWithError("nothing was pressed");
  }
  if (isKept != journal.isKept()) state.SkipWithError("the journal was lost");
}
BENCHMARK(PressAnOption)->ArgName("journal")->Arg(0)->Arg(1);

}  // namespace
}  // namespace bogenwerker

BENCHMARK_MAIN();
