// Standard input and output as bytes, before main begins: in text mode a line would end in CR and LF, and the input at
// its first byte 26.
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>

namespace {

[[maybe_unused]] const bool asBytes = [] {
  SetConsoleOutputCP(CP_UTF8);
  return _setmode(_fileno(stdin), _O_BINARY) != -1 && _setmode(_fileno(stdout), _O_BINARY) != -1;
}();

}  // namespace
