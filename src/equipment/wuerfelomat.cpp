#include "equipment/wuerfelomat.h"

#include <chrono>
#include <cstdint>
#include <random>

namespace bogenwerker {

int wuerfeln() {
  // Even a clock that ticks slower than we throw never gives two throws one seed.
  static std::uint64_t lastSeed = 0;
  auto seed = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
  if (seed <= lastSeed) seed = lastSeed + 1;
  lastSeed = seed;

  std::seed_seq seeds{static_cast<std::uint32_t>(seed), static_cast<std::uint32_t>(seed >> 32U)};
  std::mt19937 engine(seeds);
  return std::uniform_int_distribution(1, 6)(engine);
}

}  // namespace bogenwerker
