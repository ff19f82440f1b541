// The calls of Files, and what they stand on, as Windows has them. A handle fits into an int by the word of the system.
#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "outside/file_faults.h"
#include "outside/files.h"

namespace bogenwerker {
namespace {

struct Translation {
  DWORD error;
  int number;
};

constexpr DWORD diskQuotaExceeded = 1295;  // the headers of MinGW 10 lack its name
constexpr std::array<Translation, 18> translations = {{
    {ERROR_FILE_NOT_FOUND, ENOENT},
    {ERROR_PATH_NOT_FOUND, ENOENT},
    {ERROR_ACCESS_DENIED, EACCES},
    {ERROR_DIRECTORY, EISDIR},
    {ERROR_SHARING_VIOLATION, EBUSY},
    {ERROR_LOCK_VIOLATION, EBUSY},
    {ERROR_USER_MAPPED_FILE, EBUSY},
    {ERROR_FILE_EXISTS, EEXIST},
    {ERROR_ALREADY_EXISTS, EEXIST},
    {ERROR_WRITE_PROTECT, EROFS},
    {ERROR_DISK_FULL, ENOSPC},
    {ERROR_HANDLE_DISK_FULL, ENOSPC},
    {diskQuotaExceeded, cause::quotaUsedUp},
    {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
    {ERROR_FILE_TOO_LARGE, EFBIG},
    {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
    {ERROR_INVALID_NAME, ENAMETOOLONG},
    {ERROR_CANT_RESOLVE_FILENAME, ELOOP},
}};

int numberOf(DWORD error) {
  const auto* found =
      std::find_if(translations.begin(), translations.end(), [error](const auto& row) { return row.error == error; });
  return found == translations.end() ? EIO : found->number;
}

int fail(DWORD error) {
  errno = numberOf(error);
  return -1;
}

DWORD atOnce(std::size_t count) { return static_cast<DWORD>(std::min<std::size_t>(count, 1U << 30U)); }

// The whole path of a plain name in a form that has no limit of 260 characters and no names of devices.
std::wstring pathOf(std::string_view name) {
  std::error_code ignored;
  std::wstring folder = std::filesystem::current_path(ignored).wstring();
  if (folder.starts_with(LR"(\\)") && !folder.starts_with(LR"(\\?\)")) folder.replace(0, 1, LR"(\\?\UNC)");
  else if (!folder.starts_with(LR"(\\?\)")) folder.insert(0, LR"(\\?\)");
  if (!folder.ends_with(L'\\')) folder += L'\\';
  return folder + std::filesystem::path(std::u8string(name.begin(), name.end())).wstring();
}

// What another program refuses because it looks at a fresh file for a moment, as scanners do, is tried for 0.2 s.
template <class Attempt>
DWORD insist(Attempt attempt) {
  constexpr int attempts = 20;
  DWORD error = attempt();
  for (int i = 0; i < attempts && (error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED); ++i) {
    Sleep(10);
    error = attempt();
  }
  return error;
}

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// A move onto a file that another program holds is refused as if for its rights; only opening it tells them apart.
DWORD reasonOfRefusal(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return ERROR_ACCESS_DENIED;
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return ERROR_DIRECTORY;
  HANDLE file = CreateFileW(path.c_str(), DELETE, shareAll, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return GetLastError();
  CloseHandle(file);
  return ERROR_ACCESS_DENIED;
}

}  // namespace

int Files::openFile(const char* path, Opening opening) {
  const bool reading = opening == Opening::toRead;
  const DWORD access = reading ? GENERIC_READ : opening == Opening::toAppend ? FILE_APPEND_DATA : GENERIC_WRITE;
  const std::wstring whole = pathOf(path);
  HANDLE file = INVALID_HANDLE_VALUE;
  const DWORD error = insist([&]() -> DWORD {
    // The last flag opens folders too, so that they are told as what they are.
    file = CreateFileW(whole.c_str(), access, reading ? shareAll : FILE_SHARE_READ, nullptr,
                       opening == Opening::toMake ? CREATE_NEW : OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    return file == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_SUCCESS;
  });
  if (error != ERROR_SUCCESS) return fail(error);
  return static_cast<int>(HandleToLong(file));
}

ssize_t Files::readFile(int file, char* bytes, std::size_t most) {
  DWORD count = 0;
  if (ReadFile(LongToHandle(file), bytes, atOnce(most), &count, nullptr) == 0) return fail(GetLastError());
  return static_cast<ssize_t>(count);
}

ssize_t Files::writeFile(int file, const char* bytes, std::size_t count) {
  DWORD written = 0;
  if (WriteFile(LongToHandle(file), bytes, atOnce(count), &written, nullptr) == 0) return fail(GetLastError());
  return static_cast<ssize_t>(written);
}

int Files::flushFile(int file) { return FlushFileBuffers(LongToHandle(file)) != 0 ? 0 : fail(GetLastError()); }
int Files::closeFile(int file) { return CloseHandle(LongToHandle(file)) != 0 ? 0 : fail(GetLastError()); }

int Files::renameFile(const char* from, const char* to) {
  const std::wstring source = pathOf(from);
  const std::wstring target = pathOf(to);
  constexpr DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  const DWORD error = insist([&]() -> DWORD {
    return MoveFileExW(source.c_str(), target.c_str(), flags) != 0 ? ERROR_SUCCESS : GetLastError();
  });
  if (error == ERROR_SUCCESS) return 0;
  return fail(error == ERROR_ACCESS_DENIED ? reasonOfRefusal(target) : error);
}

std::int64_t Files::sizeOf(int file) {
  if (GetFileType(LongToHandle(file)) != FILE_TYPE_DISK) {
    errno = cause::notRegular;
    return -1;
  }
  BY_HANDLE_FILE_INFORMATION information{};
  if (GetFileInformationByHandle(LongToHandle(file), &information) == 0) return fail(GetLastError());
  if ((information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return fail(ERROR_DIRECTORY);
  return static_cast<std::int64_t>(std::uint64_t{information.nFileSizeHigh} << 32U | information.nFileSizeLow);
}

void Files::removeFile(const char* path) { DeleteFileW(pathOf(path).c_str()); }

std::string Files::followLinks(const std::string& name) { return name; }

int Files::causeOf(int error, const std::string& /*path*/, Opening opening) {
  return opening == Opening::toMake && error == EACCES ? cause::folderProtected : error;
}

int Files::checkWritable(const char* path) {
  const DWORD attributes = GetFileAttributesW(pathOf(path).c_str());
  const bool isProtected = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
  return isProtected ? fail(ERROR_ACCESS_DENIED) : 0;
}

// Rights come from the folder here.
int Files::copyMode(int /*file*/, const char* /*from*/) { return 0; }

// A file of its own that nobody else can open, and that goes with the process.
int Files::lockFolder() {
  HANDLE file = CreateFileW(pathOf("Bogenwerker.sperre").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                            FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    errno = GetLastError() == ERROR_SHARING_VIOLATION ? EWOULDBLOCK : EIO;
    return -1;
  }
  lock_ = HandleToLong(file);
  return 0;
}

Files::~Files() {
  if (lock_ >= 0) CloseHandle(LongToHandle(static_cast<long>(lock_)));
}

// Moving a file writes its new name through.
void Files::flushFolderOf(const std::string& /*path*/) {}

}  // namespace bogenwerker
