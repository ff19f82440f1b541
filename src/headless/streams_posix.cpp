// Standard output that nobody reads any more fails like a full one, instead of ending the program by a signal.
#include <csignal>

namespace {

[[maybe_unused]] const auto failsInstead = std::signal(SIGPIPE, SIG_IGN);

}  // namespace
