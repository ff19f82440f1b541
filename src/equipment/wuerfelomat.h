// The die of step 5.
#pragma once

namespace bogenwerker {

// 1 to 6, each equally likely, from a generator seeded anew from the system clock at every call.
int wuerfeln();

}  // namespace bogenwerker
