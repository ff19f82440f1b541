// What assistive technology is told where the toolkit's own answer would be wrong.
#pragma once

namespace bogenwerker {

// Once for the whole application; more often does no harm.
void installAccessibles();

}  // namespace bogenwerker
