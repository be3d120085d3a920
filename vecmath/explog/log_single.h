/* The single natural logarithm at HA in single lanes, shared by Ln and Log1p: from the
 * split around 2/3 of log_core.h (x = 2^k*(1 + r), r exact in [-1/3, 1/3)),
 * ln x = k*ln2 + r + r^2*Q(r) with Q of nine coefficients (tools/explog/ln_single.sollya,
 * HA, about 2^-27.6): the seven high ones by Estrin's scheme (their rounding is scaled
 * down by r^2), the two low ones by Horner steps, so that Q's error is about the last
 * step's half ulp while the chain stays short. */
#ifndef BRENN_VECMATH_EXPLOG_LOG_SINGLE_H
#define BRENN_VECMATH_EXPLOG_LOG_SINGLE_H

#include "vecmath/explog/log_core.h"

namespace brenn::vm {

constexpr float kLnHALow[] = {-0x1p-1f, 0x1.555502p-2f};
constexpr float kLnHAHigh[] = {-0x1.ffff14p-3f, 0x1.99d1c6p-3f, -0x1.559804p-3f, 0x1.1ec0dp-3f,
                               -0x1.f3a788p-4f, 0x1.1ec6ep-3f,  -0x1.06cedcp-3f};

// ln(2^k*(1 + r)), and with kSmall that plus small, a term about the result's last
// place or below (Log1p's rounding correction). k*ln2hi + r is carried exactly with its
// rounding error (|k*ln2hi| is above |r| whenever k is not 0, and for k = 0 the sum is
// r itself), and k*ln2lo and small join that error, so that only the last addition
// rounds at the result's scale: near x = 2/3, where r + r^2*Q is of the result's size,
// two roundings would otherwise reach an ulp.
template <bool kSmall = false>
inline __m128 LnSingleHA(__m128 r, __m128 k, __m128 small = __m128{}) {
    using K = LogConst<float>;
    __m128 r2 = Mul(r, r);
    __m128 q = MulAdd(r, Estrin(r, kLnHAHigh), Set<float>(kLnHALow[1]));
    q = MulAdd(r, q, Set<float>(kLnHALow[0]));
    __m128 s, e;
    FastTwoSum(Mul(k, Set<float>(K::kLn2Hi)), r, s, e);
    __m128 klo = Mul(k, Set<float>(K::kLn2Lo));
    if constexpr (kSmall) {
        // Log1p: r^2*Q, up to a fifth of the result near u = 2/3 and 4/3, joins s by
        // Fast2Sum too (s is above it), so that its sum with the small terms does not
        // round at that scale (0.83 ulp, not about 0.9, for two more operations).
        __m128 h, eq;
        FastTwoSum(s, Mul(r2, q), h, eq);
        return Add(h, Add(Add(e, Add(klo, small)), eq));
    } else {
        // The terms that are ready early are summed first: r^2*Q ends the longest chain.
        return Add(s, Add(Add(e, klo), Mul(r2, q)));
    }
}

} // namespace brenn::vm

#endif
