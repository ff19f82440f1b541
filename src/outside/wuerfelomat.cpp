#include "outside/wuerfelomat.h"

#include <chrono>
#include <random>

namespace bogenwerker {

int wuerfeln() {
  return wuerfelnUm(static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}

int wuerfelnUm(std::uint64_t tick) {
  static std::uint64_t lastSeed = 0;
  const std::uint64_t seed = tick <= lastSeed ? lastSeed + 1 : tick;
  lastSeed = seed;

  std::seed_seq seeds{static_cast<std::uint32_t>(seed), static_cast<std::uint32_t>(seed >> 32U)};
  std::mt19937 engine(seeds);
  return std::uniform_int_distribution(1, 6)(engine);
}

}  // namespace bogenwerker
