/* CdfNormInv's centre, |p - 1/2| <= 0.425 (p in [0.075, 0.925]): x = q P(r)/Q(r) with
 * q = p - 1/2 and r = c - q^2, c = 0.180625 in the working format, the shape of
 * Wichura's AS 241 (r in [0, c], all coefficients positive, so Horner's or Estrin's sums
 * add terms of one sign). P and Q are fitted for each level by
 * tools/erf/cdfnorminv_central.sollya (relative error of the linearised fit):
 *   CentralD8  degree 8 over 8, double, 2^-55.9 (double LA);
 *   CentralD4  degree 4 over 4, double, 2^-29.9 (single HA on double lanes).
 * The rows of the tails are erfinv_rows.h's; the kernels blend the two by lane. */
#ifndef BRENN_VECMATH_ERF_CDFNORMINV_CENTRAL_H
#define BRENN_VECMATH_ERF_CDFNORMINV_CENTRAL_H

#include "vecmath/frame/vec.h"

namespace brenn::vm {

// Coefficients lowest degree first; fitted by tools/erf/cdfnorminv_central.sollya: Q as
// fitted, a0 = P(0), and S = (P - a0 Q)/r term by term from the fitted P and Q, rounded
// once.
struct CentralD8 {
    using T = double;
    static constexpr double kC = 0x1.71eb851eb851fp-3;
    static constexpr double kA0 = 0x1.b18d91e9eef76p+1;
    static constexpr double kS[] = {-0x1.45bc0d243a61dp+3,  -0x1.9b5104e1959a3p+8,
                                    -0x1.8cc1ec4ac18d3p+12, -0x1.7014ba02f370ap+15,
                                    -0x1.548373b52c090p+17, -0x1.27cb314a9dff4p+18,
                                    -0x1.954e6c5382fb2p+17, -0x1.16bdafd799933p+15};
    static constexpr double kQ[] = {
        0x1.0000000000000p+0,  0x1.7dfa84afcd043p+5,  0x1.c46421cc33bb1p+9,
        0x1.0fbcf54063325p+13, 0x1.5fb1e663efb10p+15, 0x1.e1f8149c9b67ep+16,
        0x1.416d1de15bdd6p+17, 0x1.5996d45b39f9bp+16, 0x1.7863e30191831p+13};
};
struct CentralD4 {
    using T = double;
    static constexpr double kC = 0x1.71eb851eb851fp-3;
    static constexpr double kA0 = 0x1.b18d91e2ac986p+1;
    static constexpr double kS[] = {-0x1.45bc03a43d518p+3, -0x1.4c1bb60b92430p+7,
                                    -0x1.48789c0205441p+9, -0x1.fa00eb2957409p+8};
    static constexpr double kQ[] = {0x1.0000000000000p+0, 0x1.7a71c5793d89ap+4,
                                    0x1.51afe446c283fp+7, 0x1.80bac833c70abp+8,
                                    0x1.7a3f01d5d2c0bp+7};
};
// The lanes of the centre: |p - 1/2| <= 0.425.
template <class V>
inline V CentralLanes(V p) {
    using T = ElemOf<V>;
    return Le(Abs(Sub(p, Set<T>(T(0.5)))), Set<T>(T(0.425)));
}

// q P(r)/Q(r) on lanes of the centre (K's element type is the lanes'), as
// q (a0 + r S(r)/Q(r)): the ratio's rounding errors fall on the part beyond a0, at most
// a quarter of the whole. Below 1/4, p - 1/2 rounds away p's last bits, which would cost
// an ulp where the slope is steep: q = q + ql exactly, and ql enters the product (r
// needs only q).
template <class K, class V>
inline V CentralValue(V p) {
    using T = typename K::T;
    const V half = Set<T>(T(0.5));
    V q = Sub(p, half);
    V ql = Sub(p, Add(q, half));
    V r = Sub(Set<T>(K::kC), Mul(q, q));
    V ratio = Add(Set<T>(K::kA0), Div(Mul(r, Estrin(r, K::kS)), Estrin(r, K::kQ)));
    return Add(Mul(q, ratio), Mul(ql, ratio));
}

// The centre where `central` is set, `tails(p)` elsewhere; each only where a lane needs
// it, and the centre's form on 1/2 in the lanes it does not own (no flag from a Q near 0).
template <class K, class V, class Tails>
inline V CentralOrTails(V p, Tails tails) {
    using T = ElemOf<V>;
    V central = CentralLanes(p);
    int bits = MaskBits(central);
    constexpr int all = (1 << kLanes<T>)-1;
    if (bits == all) return CentralValue<K>(p);
    if (bits == 0) return tails(p);
    V c = CentralValue<K>(IfThenElse(central, p, Set<T>(T(0.5))));
    return IfThenElse(central, c, tails(p));
}

} // namespace brenn::vm

#endif
