/* The body of Erfc and CdfNorm: grid_core.h on the tail side and on the mirrored one, and
 * the scalar routine of the lanes whose result would not be normal.
 *
 * A function's struct gives its grid (grid_core.h) and:
 *   kTailPositive    whether the tail lies at positive x (erfc) or negative (Phi);
 *   kTailLimit       (double TailBody, dCdfNorm EP) the argument from which the result
 *                    is below half the least denormal (Phi: -38.5 down), the grid's end;
 *   Window<T>        (double TailBody) the range test: |x| from where the result may
 *                    leave the normal range (and infinities, NaNs); those lanes go to
 *                    the scalar routine;
 *   Cut<T, L>        the series cut by precision and level (the sum is plain: the
 *                    two-part sums of double LA/HA are tail_double.h's);
 *   kNameS, kNameD   the public error names.
 * Single: only NaNs and infinities are special lanes (they run at the grid's end, and
 * their scalar routine gives the quieted NaN, or the function's limit); every finite
 * lane runs the grid, the rows of the underflow band included (denormal and zero
 * results, which the frame reports with status 4: kUnderflowLanes). Every level runs on
 * single lanes (grid_single.h), LA and EP on rows times 2^100, HA adding up on double
 * lanes; the band's results rounded once to the denormal grid.
 * Double (dCdfNorm EP): the window's lanes go to the scalar routine: a NaN comes back
 * quieted; beyond the tail limit the result is +0 with status 4 (exact and no status
 * for an infinity); otherwise the grid's value on one lane, with status 4 when it is
 * below the least normal. */
#ifndef BRENN_VECMATH_ERF_TAIL_BODY_H
#define BRENN_VECMATH_ERF_TAIL_BODY_H

#include <float.h>

#include "vecmath/erf/grid_single.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/frame/status.h"

namespace brenn::vm {

template <class Fn, class T, Level L>
inline __m128d TailEval(__m128d x) {
    return GridEval<typename Fn::Grid, Fn::template Cut<T, L>(), GridSum::Plain>(x);
}

template <class Fn, class T, Level L>
inline int TailScalar(const T* a, T* y) {
    T x = *a;
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    double tail = Fn::kTailPositive ? double(x) : -double(x);
    if (tail > Fn::kTailLimit) {
        *y = T(0);
        return __builtin_isinf(x) ? status::kNone : status::kUnderflow;
    }
    T r = T(GetLane(TailEval<Fn, T, L>(SetFirst<double>(double(x)))));
    *y = r;
    return r < (sizeof(T) == 4 ? FLT_MIN : DBL_MIN) ? status::kUnderflow : status::kNone;
}

template <class Fn, class Tp, Level L>
struct TailBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = sizeof(T) == 4 ? Fn::kNameS : Fn::kNameD;
    static constexpr bool kUnderflowLanes = sizeof(T) == 4;
    static V Eval(V x, V& special) {
        if constexpr (sizeof(T) == 4) {
            // NaNs and infinities; they run at the grid's end (|x| held by its bits).
            special = RangeTest(Abs(x), Range32{0xFFFFFFFFu, 0u, 0x7F7FFFFFu});
            // (HA keeps them at 0: GCC then inlines the frame's quad step, 5 % faster.)
            V xs = L == Level::HA ? IfThenElse(special, Zero<T>(), x) : x;
            return GridEvalSingle<typename Fn::Grid, Fn::template Cut<T, L>(), L == Level::HA,
                                  true>(xs);
        } else {
            special = RangeTest(x, Fn::template Window<T>());
            // Special lanes run at 0 here: no NaN or infinity reaches the arithmetic.
            return TailEval<Fn, T, L>(IfThenElse(special, Zero<T>(), x));
        }
    }
    static int Scalar(const T* a, T* y) {
        if constexpr (sizeof(T) == 4) {
            float x = *a;
            bool tail = (x > 0) == Fn::kTailPositive;
            *y = __builtin_isnan(x) ? x + x : tail ? 0.0f : float(Fn::Grid::kMirror);
            return status::kNone;
        } else {
            return TailScalar<Fn, T, L>(a, y);
        }
    }
};

} // namespace brenn::vm

#endif
