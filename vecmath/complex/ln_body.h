/* The vector steps of the complex logarithm shared by Ln and Log10: ln|z| from
 * s = |z|^2 carried in two parts, and the single-precision half group (two elements
 * widened to double) that gives ln|z| and arg z in double. */
#ifndef BRENN_VECMATH_COMPLEX_LN_BODY_H
#define BRENN_VECMATH_COMPLEX_LN_BODY_H

#include "vecmath/complex/cframe.h"
#include "vecmath/explog/log_core.h"
#include "vecmath/frame/level.h"
#include "vecmath/invtrig/atan_body.h"

namespace brenn::vm::cx {

// ln|z| from ln sh = h + r + t (LnCore3) and the quotient sl/sh of s = sh + sl.
BRENN_VEC __m128d HalfLogJoin(__m128d h, __m128d r, __m128d t, __m128d ratio) {
    return Mul(Add(h, Add(r, Add(t, ratio))), Set<double>(0.5));
}

// ln|z| from s = sh + sl, at the level.
template <Level L>
BRENN_VEC __m128d HalfLog(__m128d sh, __m128d sl) {
    __m128d h, r, t;
    LnCore3<L>(sh, h, r, t);
    return HalfLogJoin(h, r, t, Div(sl, sh));
}

// ln|z| and arg z in double of two single elements widened to a, b; special lanes (zeros,
// infinities, NaNs) are those of Atan2. The squares are exact in double and their sum is
// carried in two parts, so that near |z| = 1 the real part keeps its relative accuracy.
template <Level L>
BRENN_VEC void LnOfWidened(__m128d a, __m128d b, __m128d& re, __m128d& im, __m128d& special) {
    im = invtrig::Atan2Body<double, L, invtrig::Unit::Radian>::Eval(b, a, special);
    a = IfThenElse(special, Set<double>(1), a);
    b = IfThenZeroElse(special, b);
    __m128d sh, sl;
    TwoSum(Mul(a, a), Mul(b, b), sh, sl);
    re = HalfLog<L>(sh, sl);
}

} // namespace brenn::vm::cx

#endif
