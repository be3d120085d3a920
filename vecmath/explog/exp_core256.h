/* The double table of 256 behind dExp HA and the LA/HA kernel of dExp2 and dExp10:
 * n = round(x*256/log_B(2)) by the shifter, j = n & 255, m = n >> 8, the rest of x in
 * the base of the function (|r| <= ln2/512 for e^x, |d| <= 1/512 for 2^x), a degree-4
 * polynomial and B^x = 2^m*(Thi + (Thi*p + Tlo)), T = 2^(j/256) in two parts from
 * expTable256. Its 4 KiB stay in the first-level cache beside a call's arrays, where a
 * table of 1024 pairs (16 KiB) would not; on the smaller tables the polynomial needs
 * degree 5. Coefficients by tools/explog/exp_double256.sollya. */
#ifndef BRENN_VECMATH_EXPLOG_EXP_CORE256_H
#define BRENN_VECMATH_EXPLOG_EXP_CORE256_H

#include "vecmath/explog/explog_tables.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

// ln2/256 in two parts: the head has 31 significant bits, so that n times it is exact
// for every n of the double range (|n| < 2^19), and x - n*head is exact.
struct ExpStep256 {
    static constexpr double kInvStep = 0x1.71547652b82fep+8; // 256/ln2
    static constexpr double kStepHi = 0x1.62e42fecp-9;
    static constexpr double kStepLo = 0x1.d1cf79abc9e3bp-40;
    // c2..c4 of p(r) = r + r^2*(c2 + c3*r + c4*r^2), relative error of 1 + p against
    // e^r 2^-57 on |r| <= ln2/512.
    static constexpr double kC[] = {0x1.0000000000023p-1, 0x1.555557082a23ap-3,
                                    0x1.555554dafd8afp-5};
};

// The rows of the two lanes of t (n in the low word): Thi and Tlo.
inline void ExpRows256(__m128d t, __m128d& th, __m128d& tl) {
    __m128d row0 = LoadAligned(expTable256[LowWord<0>(AsInt(t)) & 255]);
    __m128d row1 = LoadAligned(expTable256[LowWord<1>(AsInt(t)) & 255]);
    th = InterleaveLower(row0, row1);
    tl = InterleaveUpper(row0, row1);
}

// Thi + (Thi*p + Tlo) for t's rows.
inline __m128d ExpJoin256(__m128d t, __m128d p) {
    __m128d th, tl;
    ExpRows256(t, th, tl);
    return Add(th, Add(Mul(th, p), tl));
}

} // namespace brenn::vm

#endif
