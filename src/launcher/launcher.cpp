// What the menu, a link and a double click start: the wizard in a folder of the player's own, with the catalogues and
// the template in it. The folder is Bogenwerker among the player's documents, or the one given as argument.
#include <windows.h>
// After it:
#include <bcrypt.h>
#include <shellapi.h>
#include <shlobj.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;

// What is told the player, in words of ours.
struct Refusal {
  std::wstring text;
};

void tell(const std::wstring& text, UINT icon) { MessageBoxW(nullptr, text.c_str(), L"Bogenwerker", MB_OK | icon); }

fs::path ownFolder() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return fs::path(path).parent_path();
}

fs::path playersFolder() {
  int count = 0;
  LPWSTR* arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  const fs::path given = count > 1 ? fs::absolute(arguments[1]) : fs::path();
  LocalFree(arguments);
  if (!given.empty()) return given;
  PWSTR documents = nullptr;
  if (FAILED(SHGetKnownFolderPath(FOLDERID_Documents, KF_FLAG_CREATE, nullptr, &documents))) {
    throw Refusal{L"Windows nennt keinen Ordner für Ihre Dokumente."};
  }
  const fs::path folder = fs::path(documents) / L"Bogenwerker";
  CoTaskMemFree(documents);
  return folder;
}

std::string bytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// SHA-256 and name as the line of a list that sha256sum would write.
std::string lineOf(const fs::path& path, const std::string& name) {
  std::string bytes = bytesOf(path);
  std::array<UCHAR, 32> sum{};
  BCRYPT_ALG_HANDLE algorithm = nullptr;
  if (BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, 0) < 0 ||
      BCryptHash(algorithm, nullptr, 0, reinterpret_cast<PUCHAR>(bytes.data()), static_cast<ULONG>(bytes.size()),
                 sum.data(), static_cast<ULONG>(sum.size())) < 0) {
    throw Refusal{L"Windows kann keine Prüfsummen bilden."};
  }
  BCryptCloseAlgorithmProvider(algorithm, 0);
  std::string line;
  for (const UCHAR byte : sum) line.append({"0123456789abcdef"[byte / 16], "0123456789abcdef"[byte % 16]});
  return line + "  " + name + "\n";
}

// A file comes into its place whole.
void put(const fs::path& from, const fs::path& to) {
  const fs::path copy = to.wstring() + L".kopie";
  fs::copy_file(from, copy, fs::copy_options::overwrite_existing);
  fs::permissions(copy, fs::perms::owner_write, fs::perm_options::add);
  fs::rename(copy, to);
}

// Copies the catalogues and the template that the folder lacks. After an update, a file that the player left alone is
// renewed; beside one that the player changed the new one is laid as NAME.neu, once. What was given last stands in
// .geliefert. Gives back the names of the files that were laid beside.
std::wstring supply(const fs::path& shipped, const fs::path& folder) {
  fs::create_directories(folder);
  const fs::path list = folder / L".geliefert";
  const std::string given = bytesOf(list);
  std::string giving;
  std::wstring kept;
  for (const auto& entry : fs::directory_iterator(shipped)) {
    const std::string name = entry.path().filename().string();
    const fs::path own = folder / entry.path().filename();
    const std::string line = lineOf(entry.path(), name);
    giving += line;
    if (!fs::exists(own)) {
      put(entry.path(), own);
    } else if (given.find(line) == given.npos) {
      const std::string ownLine = lineOf(own, name);
      if (given.find(ownLine) != given.npos) {
        put(entry.path(), own);
      } else if (ownLine != line) {
        put(entry.path(), own.wstring() + L".neu");
        kept += L"\n" + entry.path().filename().wstring();
      }
    }
  }
  if (giving != given) std::ofstream(list, std::ios::binary) << giving;
  return kept;
}

// The taskbar would pin the wizard itself, which then starts in no folder of the player's: so it offers no pin, and the
// menu's link is what can be pinned.
void start(fs::path program, const fs::path& folder) {
  std::wstring id = L"Bogenwerker";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.lpTitle = id.data();
  constexpr DWORD titleIsId = 0x1000;  // the headers of MinGW 10 lack their names
  constexpr DWORD preventPinning = 0x2000;
  startup.dwFlags = titleIsId | preventPinning;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup,
                     &process) == 0) {
    throw Refusal{L"Windows startet „" + program.make_preferred().wstring() + L"“ nicht (Fehler " +
                  std::to_wstring(GetLastError()) +
                  L"). Liegt alles beisammen, wie es ausgepackt oder eingerichtet wurde?"};
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  fs::path folder;
  try {
    folder = playersFolder();
    const fs::path own = ownFolder();
    const std::wstring kept = supply(own / L"share" / L"bogenwerker", folder);
    if (!kept.empty()) {
      const std::wstring stays =
          L"Diese Dateien haben Sie geändert. Sie bleiben so; die neue Fassung liegt daneben, mit .neu am Ende:\n";
      tell(stays + kept, MB_ICONINFORMATION);
    }
    start(own / L"bin" / L"bogenwerker.exe", folder);
    return 0;
  } catch (const Refusal& refusal) {
    tell(refusal.text, MB_ICONERROR);
  } catch (const fs::filesystem_error& error) {
    tell(L"Der Ordner „" + folder.make_preferred().wstring() + L"“ lässt sich nicht füllen (Fehler " +
             std::to_wstring(error.code().value()) + L" bei „" + error.path1().filename().wstring() +
             L"“). Dürfen Sie dort schreiben, ist noch Platz, und lässt der überwachte Ordnerzugriff von Windows den "
             L"Bogenwerker zu?",
         MB_ICONERROR);
  }
  return 1;
}
