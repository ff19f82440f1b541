#include "finish/pools.h"

#include "zusatzmodul/berechneReaktion.h"

namespace bogenwerker {
namespace {

// A pool is a sum divided and rounded down.
Integer poolOf(Integer sum, int divisor) {
  const double quotient = static_cast<double>(sum.value()) / divisor;
  return berechneReaktion(quotient, quotient);
}

}  // namespace

void BerechneKampfPool(FinalValues& v) {
  v.Kampfpool = poolOf(v.ModIntelligenz + v.ModSchnelligkeit + v.ModWillenskraft - v.PoolAbzugIntell -
                           v.PoolAbzugSchnell - v.PoolAbzugWill,
                       2);
}

void BerechneZauberPool(FinalValues& v) {
  if (v.Magie == 0) return;
  v.Zauberpool = poolOf(v.ModWillenskraft + v.ModIntelligenz + v.Magie - v.PoolAbzugIntell - v.PoolAbzugWill, 3);
}

void BerechneAstralKampfPool(FinalValues& v) {
  if (v.Magie == 0) return;
  v.Astralkampf = poolOf(
      v.ModIntelligenz - v.PoolAbzugIntell + v.ModCharisma - v.PoolAbzugCharisma + v.ModWillenskraft - v.PoolAbzugWill,
      2);
}

void BerechneHackingPool(FinalValues& v) {
  if (v.MPCP == 0) return;
  v.Hackingpool = poolOf(v.ModIntelligenz - v.PoolAbzugIntell + v.MPCP, 3);
}

}  // namespace bogenwerker
