#include "wizard/journal.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "catalogues/check.h"
#include "values/fault.h"
#include "values/text.h"
#include "wizard/wizard.h"

namespace bogenwerker {
namespace {

constexpr std::string_view program = "# Bogenwerker ";
constexpr std::string_view catalogues = "# Kataloge ";
constexpr std::string_view die = "# Wurf ";

// Nothing if they cannot be read: whoever needs them will be told so in time.
std::string lineOfCatalogues(Files& files) {
  try {
    return std::string(catalogues) + markOfCatalogues(files) + "\n";
  } catch (const Fault&) {
    return {};
  }
}

bool isComment(std::string_view line) { return line.empty() || line.starts_with('#'); }

// The next line without its end, which is LF or CR LF, or nothing where no whole one is left.
std::optional<std::string> takeLine(std::string_view& lines) {
  const std::size_t end = lines.find('\n');
  if (end == lines.npos) return {};
  std::string_view line = lines.substr(0, end);
  lines.remove_prefix(end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return std::string(line);
}

bool holdsGesture(std::string_view lines) {
  while (const auto line = takeLine(lines)) {
    if (!isComment(*line)) return true;
  }
  return false;
}

}  // namespace

Environment Journal::around(Environment environment) {
  tell_ = environment.showMessage;
  die_ = std::move(environment.throwDie);
  environment.showMessage = [this](Message kind, std::string_view text) {
    if (!isPlaying_) tell_(kind, text);
  };
  environment.throwDie = [this] { return throwDie(); };
  return environment;
}

void Journal::resume(Wizard& wizard, const std::function<bool()>& wantsToGoOn) {
  std::string lines;
  try {
    lines = files_.read(fileName);
  } catch (const Fault& fault) {
    std::error_code unknown;
    isOff_ = std::filesystem::exists(fileName, unknown);
    if (isOff_) tell_(Message::fault, fault.what());
    return;
  }
  if (!holdsGesture(lines) || !wantsToGoOn()) return;
  const std::string report = playBack(wizard, lines);
  if (!report.empty()) tell_(Message::fault, report);
}

std::string Journal::playBack(Wizard& wizard, std::string_view lines) {
  isPlaying_ = true;
  bool fits = true;
  bool isOfTheseCatalogues = true;
  const std::string ours = lineOfCatalogues(files_);
  while (fits) {
    const auto line = takeLine(lines);
    if (!line) break;
    if (line->starts_with(catalogues)) isOfTheseCatalogues = *line + "\n" == ours;
    else fits = playLine(wizard.runtime(), *line);
  }
  isPlaying_ = false;

  const Form* form = wizard.runtime().visibleForm();
  const std::string step = form == nullptr ? std::string() : quoted(form->caption());
  std::string report;
  if (!fits) {
    report = "Der Charakter ließ sich nur bis " + step +
             " wiederherstellen: Was er danach tat, passt nicht mehr zum Bogenwerker oder zu den Katalogen.";
  } else if (!lines.empty()) {
    report = "Der Charakter steht wieder in " + step + ", nur die letzte Eingabe ging verloren.";
  } else if (!isOfTheseCatalogues && wizard.formAusrüstung.state() != Form::State::notLoaded) {
    report = "Die Kataloge sind seither geändert worden: Bitte prüfen Sie, was der Charakter gekauft hat.";
  }
  return report;
}

bool Journal::playLine(FormsRuntime& runtime, const std::string& line) {
  if (isComment(line)) {
    const std::string_view number = std::string_view(line).substr(std::min(line.size(), die.size()));
    if (!line.starts_with(die) || number.size() != 1 || number[0] < '1' || number[0] > '6') return true;
    thrown_.push_back(number[0] - '0');
    kept_ += line + "\n";
    return true;
  }
  const std::optional<Gesture> gesture = parseGesture(line);
  if (!gesture || gesture->verb == Gesture::Verb::close) return false;
  if (runtime.play(*gesture) != Outcome::through) return false;
  kept_ += std::exchange(pending_, {}) + line + "\n";
  return true;
}

void Journal::record(FormsRuntime& runtime, std::function<void(std::string_view)> tellLost) {
  if (isOff_) return;
  kept_.insert(0, std::string(program) + BOGENWERKER_VERSION + "\n" + lineOfCatalogues(files_));
  tellLost_ = std::move(tellLost);
  visible_ = runtime.visibleForm();
  runtime_ = &runtime;
  runtime.attach(*this);
}

void Journal::interrupt() {
  if (runtime_ == nullptr) return;
  runtime_->detach(*this);
  runtime_ = nullptr;
  if (file_) orLose([this] { file_->flush(); });
  file_.reset();
}

int Journal::throwDie() {
  if (!thrown_.empty()) {
    const int fallen = thrown_.front();
    thrown_.pop_front();
    return fallen;
  }
  const int fallen = die_();
  pending_.append(die).append(std::to_string(fallen)).append("\n");
  return fallen;
}

// Dice that were thrown lie on the table even where a fault took the gesture back.
void Journal::gestureEnded(const Gesture& gesture, Outcome outcome) {
  if (runtime_->isOver()) return forget();
  std::string lines = std::exchange(pending_, {});
  if (outcome == Outcome::through) lines += lineOf(gesture) + "\n";
  if (!lines.empty()) write(lines);

  if (std::exchange(visible_, runtime_->visibleForm()) == runtime_->visibleForm()) return;
  if (file_) orLose([this] { file_->flush(); });
  if (!isKept() && tellLost_) {
    std::exchange(tellLost_, {})(
        "Dieser Charakter wird nicht mehr gesichert, denn Bogenwerker.spiel lässt sich nicht schreiben; weiterspielen "
        "können Sie trotzdem.");
  }
}

void Journal::write(std::string_view lines) {
  if (!isKept()) return;
  orLose([this, lines] {
    if (file_) file_->append(lines);
    else file_.emplace(files_, fileName, std::exchange(kept_, {}).append(lines));
  });
}

template <class Action>
void Journal::orLose(Action action) {
  try {
    action();
  } catch (const Fault&) {
    file_.reset();
    isLost_ = true;
  }
}

void Journal::forget() {
  file_.reset();
  files_.remove(fileName);
}

}  // namespace bogenwerker
