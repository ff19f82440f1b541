// The die of step 5.
#pragma once

#include <cstdint>

namespace bogenwerker {

// 1 to 6, each equally likely, from a generator seeded anew from the system clock at every call.
int wuerfeln();

// The same at that tick of the clock. Even a clock that ticks slower than we throw never gives two throws one seed.
int wuerfelnUm(std::uint64_t tick);

}  // namespace bogenwerker
