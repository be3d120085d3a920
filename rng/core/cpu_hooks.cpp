// The test controls of the processor queries and of RDRAND, at their defaults.
#include "rng/core/cpu_hooks.h"

namespace brenn::rng::testing {

uint32_t hiddenFeatures = 0;
RdrandStep rdrandStep = nullptr;

} // namespace brenn::rng::testing
