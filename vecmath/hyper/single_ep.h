/* Pieces of the single EP bodies of Asinh and Acosh: the logarithm by exponent and
 * significand, e*ln2 + P(m) with m in [1, 2) and P fitted for absolute error, which is
 * what counts for their arguments of the logarithm (above 2.6). */
#ifndef BRENN_VECMATH_HYPER_SINGLE_EP_H
#define BRENN_VECMATH_HYPER_SINGLE_EP_H

#include "vecmath/explog/log_core.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

// ln(m) on [1, 2], fitted by tools/hyper/log_single_ep.sollya (degree 4, 2^-14).
constexpr float kLnSignificand[] = {-0x1.bde544p0f, 0x1.691c4ep1f, -0x1.784e4cp0f, 0x1.c9e9c8p-2f,
                                    -0x1.cf706ep-5f};

// ln s for positive normal s.
inline __m128 LnByFields(__m128 s) {
    using F = Format<float>;
    I32x4 b = AsInt(s);
    __m128 e = ToFloat(Sub(ShiftRight<F::kMantBits>(b), Set<int32_t>(F::kBias)));
    __m128 m = AsFloat(Or(And(b, Set<uint32_t>(F::kMant)), Set<uint32_t>(F::kOne)));
    return Add(Mul(e, Set<float>(LogConst<float>::kLn2)), Horner(m, kLnSignificand));
}

} // namespace brenn::vm

#endif
