/* The logarithms of the single bodies of Asinh, Acosh and Atanh. EP: by exponent and
 * significand, e*ln2 + P(m) with m in [1, 2) and P fitted for absolute error, which is
 * what counts for their arguments of the logarithm (above 2.6). LA: the split around 2/3
 * of the explog family, r + r^2*Q(r) with Q by Estrin's scheme and k*ln2 in two parts, the
 * head k*ln2hi + r carried exactly. */
#ifndef BRENN_VECMATH_HYPER_SINGLE_EP_H
#define BRENN_VECMATH_HYPER_SINGLE_EP_H

#include "vecmath/explog/log_core.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

// ln(m) on [1, 2] by degree 4, c0 first, one set a body. Asinh's c2, c3, c4 are
// -1.69454777, 0.551397383, -0.0743431002 and Acosh's c4 -0.0736413747; the lower terms
// are fitted to them by tools/hyper/log_single_ep.sollya (absolute error 2^-12.0 and
// 2^-12.6).
constexpr float kLnSignificandAsinh[] = {-0x1.d09788p0f, 0x1.841c2ep1f, -0x1.b1cde2p0f,
                                         0x1.1a50c2p-1f, -0x1.308264p-4f};
constexpr float kLnSignificandAcosh[] = {-0x1.d2e5c8p0f, 0x1.864decp1f, -0x1.b3fb2ep0f,
                                         0x1.1a2934p-1f, -0x1.2da294p-4f};

// ln s for positive normal s: e*ln2 + P(m), e the exponent and m the significand.
template <const float (&kP)[5]>
inline __m128 LnByFields(__m128 s) {
    using F = Format<float>;
    I32x4 b = AsInt(s);
    __m128 e = ToFloat(Sub(ShiftRight<F::kMantBits>(b), Set<int32_t>(F::kBias)));
    __m128 m = AsFloat(Or(And(b, Set<uint32_t>(F::kMant)), Set<uint32_t>(F::kOne)));
    return Add(Mul(e, Set<float>(LogConst<float>::kLn2)), Horner(m, kP));
}

// Q of ln(1 + r) = r + r^2*Q(r) on r in [-1/3, 1/3], fitted by
// tools/hyper/atanh_single_la.sollya.
constexpr float kLn1pLA[] = {-0x1.fffff6p-2f, 0x1.55553ap-2f, -0x1.000b06p-2f, 0x1.99b7dcp-3f,
                             -0x1.518b74p-3f, 0x1.2067fcp-3f, -0x1.343226p-3f, 0x1.16c28ep-3f};

// ln w for positive normal w, within about an ulp.
inline __m128 LnSingleLA(__m128 w) {
    using K = LogConst<float>;
    __m128 r, k;
    LogSplit(w, r, k);
    __m128 s, e;
    FastTwoSum(Mul(k, Set<float>(K::kLn2Hi)), r, s, e);
    __m128 lo = Add(Add(e, Mul(k, Set<float>(K::kLn2Lo))), Mul(Mul(r, r), Estrin(r, kLn1pLA)));
    return Add(s, lo);
}

} // namespace brenn::vm

#endif
