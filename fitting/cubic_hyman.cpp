// The Hyman cubic: Bessel's derivatives (cubic_bessel.h) and the end routines, then
// Hyman's filter for monotony. Where the two slopes at a node have one sign the
// derivative is cut to 3*min(|m[i-1]|, |m[i]|) in magnitude and set to zero when its
// own sign is the other one; where a slope is zero (a flat side) it becomes zero; at an
// extremum (slopes of opposite signs) it stays. At an end the one slope limits in the
// same way, except a first derivative that the condition gives, which is kept. A
// Hermite cell whose end derivatives have the cell's sign and at most three times its
// slope is monotone, so monotone data give monotone cells.
#include <cmath>

#include "fitting/cubic_bessel.h"

namespace brenn::fit {
namespace {

// The derivative d between slopes ml and mr, filtered.
template <typename T>
inline T HymanFilter(T d, T ml, T mr) {
    if (ml > T(0) && mr > T(0)) return d <= T(0) ? T(0) : std::fmin(d, T(3) * std::fmin(ml, mr));
    if (ml < T(0) && mr < T(0)) return d >= T(0) ? T(0) : std::fmax(d, T(3) * std::fmax(ml, mr));
    if (ml == T(0) || mr == T(0)) return T(0);
    return d;
}

struct Hyman : BesselRule {
    static constexpr int64_t kLeastNx = 4;

    template <typename T>
    static void Finish(const CubicEnd<T>& e, int bcColumn) {
        int64_t n = e.nx;
        const T* m = e.m;
        bool leftGiven = bcColumn == 2 || bcColumn == 3;
        bool rightGiven = bcColumn == 2 || bcColumn == 4;
        for (int64_t i = 1; i + 1 < n; ++i)
            e.d[i] = HymanFilter(e.d[i], m[i - 1], m[i]);
        if (bcColumn == 6) {
            e.d[0] = e.d[n - 1] = HymanFilter(e.d[0], m[n - 2], m[0]);
            return;
        }
        // An end has the one slope: the filter with that slope on both sides.
        if (!leftGiven) e.d[0] = HymanFilter(e.d[0], m[0], m[0]);
        if (!rightGiven) e.d[n - 1] = HymanFilter(e.d[n - 1], m[n - 2], m[n - 2]);
    }
};

} // namespace
} // namespace brenn::fit

BRENN_LOCAL_CUBIC_ENTRIES(Hyman, brenn::fit::Hyman, nullptr)
