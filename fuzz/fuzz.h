// What the fuzz targets share: a folder of their own, promises that end the program when broken, inputs in pieces.
#pragma once

#include <fcntl.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "wizard/environment.h"

namespace bogenwerker {

inline void promise(bool kept, std::string_view what) {
  if (kept) return;
  std::fprintf(stderr, "broken: %.*s\n", static_cast<int>(what.size()), what.data());
  std::abort();
}

// The real disk, in a folder of its own instead of the current one, which is the fuzzer's.
class FolderFiles final : public Files {
 public:
  FolderFiles() {
    std::string pattern =
        (std::filesystem::exists("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path().string()) +
        "/bogenwerker-fuzz-XXXXXX";
    folder_ = std::string(mkdtemp(pattern.data())) + "/";
  }
  ~FolderFiles() override {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  void copyData() {
    for (const auto& entry : std::filesystem::directory_iterator(SOURCE_DIR "/data")) {
      std::filesystem::copy_file(entry.path(), folder_ + entry.path().filename().string(),
                                 std::filesystem::copy_options::overwrite_existing);
    }
  }
  [[nodiscard]] std::vector<std::string> names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }
  void remove(const std::string& name) { std::filesystem::remove(folder_ + name); }

 private:
  int openFile(const char* path, int flags) override { return Files::openFile((folder_ + path).c_str(), flags); }
  int renameFile(const char* from, const char* to) override {
    return Files::renameFile((folder_ + from).c_str(), (folder_ + to).c_str());
  }

  std::string folder_;
};

inline Environment quiet(Files& files, std::string& fault) {
  return {.files = files,
          .numbers = {",", "."},
          .showMessage =
              [&fault](Message kind, std::string_view text) {
                if (kind == Message::fault) fault = text;
              },
          .throwDie = [] { return 3; }};
}

inline std::string_view viewOf(const unsigned char* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};  // NOLINT: bytes are bytes
}

// Takes what stands ahead of the next separator off the input, and the separator.
inline std::string_view takePiece(std::string_view& input, char separator) {
  const std::size_t end = input.find(separator);
  const std::string_view piece = input.substr(0, end);
  input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
  return piece;
}

}  // namespace bogenwerker
