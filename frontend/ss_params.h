// The parameter arrays of the robust and derived statistics entries: a count, an
// array, and a range for each place. A count outside 0 to the number of places, a null
// array with a count above 0, and a value outside its range are refused before the
// service sees them.
#pragma once

#include <cmath>
#include <cstdint>

#include "brenn/brenn_status.h"

namespace brenn::fe {

// The range of one parameter: above (or from) lo, below (or up to) hi, whole or not.
struct ParamRange {
    double lo, hi;
    bool loOpen, hiOpen, whole;
};

inline bool InRange(double v, const ParamRange& r) {
    if (r.loOpen ? !(v > r.lo) : !(v >= r.lo)) return false;
    if (r.hiOpen ? !(v < r.hi) : !(v <= r.hi)) return false;
    return !r.whole || v == std::floor(v);
}

template <class T, int N>
int CheckParams(int64_t count, const T* params, const ParamRange (&ranges)[N]) {
    if (count < 0 || count > N) return BRENN_ERR_BAD_SIZE;
    if (count > 0 && params == nullptr) return BRENN_ERR_NULL_POINTER;
    // k < N again, though count <= N already holds: the compiler's bounds warning
    // cannot see through the early return
    for (int k = 0; k < N && k < count; ++k)
        if (!InRange(static_cast<double>(params[k]), ranges[k])) return BRENN_ERR_BAD_ARGUMENT;
    return BRENN_OK;
}

} // namespace brenn::fe
