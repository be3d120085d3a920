/* The rows of the inverse error functions read on double lanes. The rows of
 * erfinv_tables.h hold P(t) = erfinv(1 - t)/(1 - t) = erfcinv(t)/(1 - t) on t in
 * [2^-53, 1]; a lane's row is picked by the top 16 bits of t (exponent and four mantissa
 * bits) and its polynomial taken in v = t - c, c those bits with the midpoint bit
 * 0x0000800000000000 on them. The result is w*P(t), w the function's own factor: x for
 * ErfInv, 1 - x for ErfcInv, sqrt(2)(2p - 1) for CdfNormInv. EP and LA evaluate P
 * plainly and round w*P; HA adds the constant term with its remainder in two parts and
 * forms w*P with the exact product, w itself possibly in two parts. */
#ifndef BRENN_VECMATH_ERF_ERFINV_ROWS_H
#define BRENN_VECMATH_ERF_ERFINV_ROWS_H

#include "vecmath/erf/erfinv_tables.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

// The first row's top 16 bits: those of t = 2^-53.
inline constexpr int64_t kErfInvFirstRow = (1023 - 53) * 16;

// w*P(t) for t in [2^-53, 1] on the rows of W doubles, the polynomial of degree N; with
// Low, the constant term's remainder follows it, the sum is kept in two parts and
// w = wh + wl (WithLow: wl taken; else wl is 0 and left out).
template <int W, int N, bool Low, bool WithLow>
inline __m128d ErfInvRowsTimes(const double (*rows)[W], __m128d t, __m128d wh, __m128d wl) {
    I64x2 bits = AsInt(t);
    I64x2 row = Sub(ShiftRight<48>(bits), Set<int64_t>(kErfInvFirstRow));
    __m128d c = AsFloat(
        Or(And(bits, Set<uint64_t>(0xFFFF000000000000ull)), Set<uint64_t>(0x0000800000000000ull)));
    __m128d v = Sub(t, c);
    const double* r0 = rows[LowWord<0>(row)];
    const double* r1 = rows[LowWord<1>(row)];
    __m128d a[W];
    for (int k = 0; k < W; k += 2)
        LoadTransposed(r0 + k, r1 + k, a[k], a[k + 1]);
    if constexpr (!Low) {
        __m128d p = a[0];
        for (int k = 1; k <= N; ++k)
            p = MulAdd(p, v, a[k]);
        return Mul(wh, p);
    } else {
        __m128d q = a[0];
        for (int k = 1; k < N; ++k)
            q = MulAdd(q, v, a[k]);
        __m128d ph, pl, yh, yl;
        FastTwoSum(a[N], Mul(q, v), ph, pl);
        pl = Add(pl, a[N + 1]);
        TwoProduct(wh, ph, yh, yl);
        __m128d tail = Mul(wh, pl);
        if constexpr (WithLow) tail = Add(tail, Mul(wl, ph));
        // Below 2^-960 the product's error would underflow: w*P rounded once.
        return IfThenElse(Lt(Abs(wh), Set<double>(0x1p-960)), Mul(wh, Add(ph, pl)),
                          Add(yh, Add(yl, tail)));
    }
}

// w*P(t) at the level L for elements of type T: EP and single HA on the EP rows
// (degree 5, 2^-37, far below a single ulp: 0.500 ulp), the double LA on the
// LA rows (degree 9), the double HA on the HA rows (degree 10 and the constant's
// remainder).
template <class T, Level L, bool WithLow>
inline __m128d ErfInvRowsAt(__m128d t, __m128d wh, __m128d wl) {
    if constexpr (L == Level::EP || sizeof(T) == 4)
        return ErfInvRowsTimes<6, 5, false, false>(erfInvRowsEP, t, wh, wl);
    if constexpr (L == Level::HA && sizeof(T) == 8)
        return ErfInvRowsTimes<12, 10, true, WithLow>(erfInvRowsHA, t, wh, wl);
    return ErfInvRowsTimes<10, 9, false, false>(erfInvRowsLA, t, wh, wl);
}

} // namespace brenn::vm

#endif
