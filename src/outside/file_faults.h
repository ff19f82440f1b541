// What is told of a file that could not be read or written.
#pragma once

#include <string>
#include <string_view>

namespace bogenwerker {

// Causes that errno has no number for on every system, beside its own.
namespace cause {
constexpr int notRegular = -1;  // a pipe, a socket, a device
constexpr int quotaUsedUp = -2;
constexpr int folderGone = -3;       // the folder that the program runs in
constexpr int folderProtected = -4;  // no file can be made in it
}  // namespace cause

// A whole text of German: the file, what happened, what the player can do. The error is one of errno's or one of these.
std::string cannotRead(std::string_view file, int error);
std::string cannotWrite(std::string_view file, int error);

}  // namespace bogenwerker
