/* The vector fix-up of the exponential family for error mode exactly 0x2000 (no error
 * handling at all): lanes above the overflow limit become +infinity and lanes below the
 * underflow limit +0 by blends, and leave the lane mask, so that no scalar routine runs
 * and nothing is reported for them. NaN lanes compare false and stay in the mask.
 * The frame calls a body's FixNoError with the quad's inputs and results. */
#ifndef BRENN_VECMATH_EXPLOG_EXP_FIXUP_H
#define BRENN_VECMATH_EXPLOG_EXP_FIXUP_H

#include <limits>

#include "vecmath/frame/vec.h"

namespace brenn::vm {

// The limits of e^x in each format: above kOver it overflows, below kUnder it rounds to
// +0 (Expm1 shares the first).
template <class T>
struct ExpLimits;
template <>
struct ExpLimits<float> {
    static constexpr float kOver = 0x1.62e42ep+6f, kUnder = -0x1.9fe368p+6f;
};
template <>
struct ExpLimits<double> {
    static constexpr double kOver = 0x1.62e42fefa39efp+9, kUnder = -0x1.74910d52d3051p+9;
};

// x and y hold the four elements of a quad (one single or two double registers).
template <class T>
inline int FixExpLimits(const Vec<T>* x, Vec<T>* y, int bits, T over, T under) {
    using V = Vec<T>;
    constexpr int L = kLanes<T>;
    const V inf = Set<T>(std::numeric_limits<T>::infinity());
    const V zero = Set<T>(T(0));
    int fixed = 0;
    for (int k = 0; k < 4 / L; ++k) {
        V hi = Gt(x[k], Set<T>(over));
        V lo = Lt(x[k], Set<T>(under));
        y[k] = IfThenElse(lo, zero, IfThenElse(hi, inf, y[k]));
        fixed |= MaskBits(Or(hi, lo)) << (k * L);
    }
    return bits & ~fixed;
}

} // namespace brenn::vm

#endif
