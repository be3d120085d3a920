/* The double core of the power kernels: w = y * ln x carried with more than 53 bits,
 * then e^w.
 *
 * ln x for positive normal x comes from the reduction of the double logarithm core
 * (log_core.h: k, m = mh + ml, the row of lnRows for mh), with r = mh*rcp - 1 + ml*rcp
 * kept as rh + rl, r - r^2/2 formed exactly and only r^3*P(r) rounded: ln x = hi + lo
 * within about 2^-66 relative, so that y*hi (an exact product) plus y*lo keeps w to
 * about 2^-60 of |w| even for |y| up to 2^900 and results near the overflow and
 * underflow thresholds. e^w uses the reduction of the table of 256 (exp_core256.h) on
 * the head, the tail added to the reduced argument; the scalar routines, whose results
 * may be denormal, that of the table of 64 (exp_core.h) with degree 6.
 * The single scalar routine needs less: w = y * ln x in one double, with the degree-5
 * logarithm of the double core (the single vector kernels have their own, shorter form
 * in pow_body.h); double EP has a short form of its own, ln x in two parts too (PowWEP,
 * PowExpEP: about 34 bits). */
#ifndef BRENN_VECMATH_POWER_POW_CORE_H
#define BRENN_VECMATH_POWER_POW_CORE_H

#include "vecmath/explog/exp_core.h"
#include "vecmath/explog/exp_core256.h"
#include "vecmath/explog/log_core.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {

// P of ln(1 + r) = r - r^2/2 + r^3*P(r) on |r| <= 2^-10, fitted by
// tools/power/pow_log_double.sollya (relative error of P 2^-44.25).
constexpr double kPowLogTail[] = {0x1.5555555555431p-2, -0x1.ffffffffffd25p-3, 0x1.9999abe21c45p-3,
                                  -0x1.555566794caa5p-3};

// a*b = hi + lo in double lanes, each factor cut by a mask into its leading 26 bits and
// the rest (27 bits, the same sign): two operations a factor, where the splitter takes
// four, and no head room needed. ah*bh, ah*bl and al*bh are exact; al*bl (54 bits) and
// the sum of the cross products may round, within about 2^-78 of a*b as TwoProduct.
BRENN_VEC void TwoProductCut(__m128d a, __m128d b, __m128d& hi, __m128d& lo) {
    const __m128d head = SplatBits<double>(0xFFFFFFFFF8000000ull);
    __m128d ah = And(a, head), bh = And(b, head);
    __m128d al = Sub(a, ah), bl = Sub(b, bh);
    hi = Mul(a, b);
    lo = Add(Add(Sub(Mul(ah, bh), hi), Add(Mul(ah, bl), Mul(al, bh))), Mul(al, bl));
}

// ln x = hi + lo from the reduction of the logarithm core (whose k the scalar routine
// may have moved for a scaled denormal).
inline void LnHiLo(const LnReduction& red, __m128d& hi, __m128d& lo) {
    using K = LogConst<double>;
    const __m128d one = Set<double>(1.0);
    // r = rh + rl: mh*rcp - 1 is exact (mh has 10 bits, rcp 43), ml*rcp exact in two parts.
    __m128d d = Sub(Mul(red.mh, red.rcp), one);
    __m128d ph, pl;
    TwoProductCut(red.ml, red.rcp, ph, pl);
    __m128d rh, re;
    TwoSum(d, ph, rh, re);
    __m128d rl = Add(re, pl);
    // rh^2 = sh + sl; -r^2/2 = -(sh + sl)/2 - rh*rl to the bits that matter.
    __m128d sh, sl;
    TwoProductCut(rh, rh, sh, sl);
    const __m128d half = Set<double>(-0.5);
    // The exact head k*ln2hi + th, then rh and -sh/2 added with their errors kept, by
    // fast sums: a is 0 or at least about 2^-10 (the row next to 1, or to 2 with k = -1)
    // where |rh| <= 2^-10/mh, so a + rh is rh or at least about 2^-11, and sh/2 <= 2^-21.
    __m128d a = Add(Mul(red.k, Set<double>(K::kLn2Hi)), red.th);
    __m128d h1, e1, h2, e2;
    FastTwoSum(a, rh, h1, e1);
    FastTwoSum(h1, Mul(half, sh), h2, e2);
    __m128d cube = Mul(Mul(sh, rh), Horner(rh, kPowLogTail));
    __m128d small = Add(Sub(rl, Mul(rh, rl)), Mul(half, sl));
    __m128d tail = Add(Mul(red.k, Set<double>(K::kLn2Lo)), red.tl);
    lo = Add(Add(Add(e1, e2), small), Add(cube, tail));
    hi = h2;
}

// The reduction of e^x by ln2/N, S the step's constants (ExpStep64 of exp_core.h,
// ExpStep256 of exp_core256.h): t = x*N/ln2 + shifter and the reduced argument of the
// head (n times the step's head exact), the tail added.
template <class S>
BRENN_VEC __m128d ExpReduce(__m128d wh, __m128d wl, __m128d& t) {
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    t = Add(Mul(wh, Set<double>(S::kInvStep)), shifter);
    __m128d n = Sub(t, shifter);
    __m128d r = Sub(Sub(wh, Mul(n, Set<double>(S::kStepHi))), Mul(n, Set<double>(S::kStepLo)));
    return Add(r, wl);
}

// 2^m for |m| <= 1022 in the low words of m.
inline __m128d PowerOfTwo(I32x4 m) {
    I32x4 e = Add(m, Set<int32_t>(Format<double>::kBias));
    return AsFloat(ShiftLeft<Format<double>::kMantBits>(BitCast<I64x2>(e)));
}

// e^(wh + wl) for the vector kernels, |wh| <= 708.39 (the result normal), from the
// reduction by ln2/256 (t and r): p(r) of degree 4 (2^-57 relative on |r| <= ln2/512:
// two products and two sums fewer than degree 6 over the table of 64) and
// 2^m*(Thi + (Thi*p + Tlo)), m = n >> 8.
BRENN_VEC __m128d ExpAssemble256(__m128d t, __m128d r) {
    __m128d p = Add(r, Mul(Mul(r, r), Horner(r, ExpStep256::kC)));
    return Mul(ExpJoin256(t, p), PowerOfTwo(ShiftRightSigned<8>(BitCast<I32x4>(t))));
}

// e^(wh + wl) for wh from -745.2 to 709.8: the same value with 2^m applied in two halves,
// so that a denormal or overflowing result is rounded once, at the second product.
inline __m128d ExpHiLoWide(__m128d wh, __m128d wl) {
    __m128d t;
    __m128d r = ExpReduce<ExpStep64>(wh, wl, t);
    __m128d th, tl;
    ExpRows64(t, th, tl);
    __m128d p = ExpPolyD<ExpDegree::Six>(r);
    __m128d v = Add(th, Add(Mul(th, p), tl));
    I32x4 m = ExpPower64(t);
    I32x4 m1 = ShiftRightSigned<1>(m);
    return Mul(Mul(v, PowerOfTwo(m1)), PowerOfTwo(Sub(m, m1)));
}

// Double EP: w = y * ln x carried in two parts, ln x = h + l with the head h = k*ln2hi +
// (the row's head) exact and l = r + r^2*P(r) + (k*ln2lo + the row's tail), r = m*rcp - 1
// rounded once (2^-53, within 2^-43 of ln x where the head is not 0, exact where it is)
// and P the Taylor cubic's terms (r^5/5 left out, 2^-42 of r on |r| <= 2^-10): y*h
// exactly as ph + pl, and wl = pl + y*l; wh = ph + y*l (rounded) serves the reduction's
// index alone, its argument taken from ph and wl (PowExpEP).
constexpr double kPowLnTaylor[] = {-0.5, 1.0 / 3, -0.25};
inline void PowWEP(__m128d y, const LnReduction& red, __m128d& ph, __m128d& wl) {
    using K = LogConst<double>;
    __m128d r = Sub(Mul(Add(red.mh, red.ml), red.rcp), Set<double>(1.0));
    __m128d h = Add(Mul(red.k, Set<double>(K::kLn2Hi)), red.th);
    __m128d tail = Add(Mul(red.k, Set<double>(K::kLn2Lo)), red.tl);
    __m128d l = Add(r, Add(Mul(Mul(r, r), Horner(r, kPowLnTaylor)), tail));
    __m128d pl;
    TwoProductCut(y, h, ph, pl);
    wl = Add(pl, Mul(y, l));
}

// e^(ph + wl) for double EP, |ph + wl| <= 708.39: the table of 64 with the Taylor cubic
// (r^4/24 left out, 2^-34.6 on |r| <= ln2/128), ln2/64 in one double, the index from
// w = ph + wl rounded and the reduced argument (ph - n*ln2/64) + wl, the rows' low parts
// left out (each below 2^-43).
constexpr double kPowExpTaylor[] = {0.5, 1.0 / 6};
inline __m128d PowExpEP(__m128d w, __m128d ph, __m128d wl) {
    using S = ExpStep64;
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    __m128d t = Add(Mul(w, Set<double>(S::kInvStep)), shifter);
    __m128d r = Add(Sub(ph, Mul(Sub(t, shifter), Set<double>(S::kStepHi + S::kStepLo))), wl);
    __m128d th, tl;
    ExpRows64(t, th, tl);
    __m128d p = Add(r, Mul(Mul(r, r), Horner(r, kPowExpTaylor)));
    return Mul(Add(th, Mul(th, p)), ExpScale64(t));
}

// w = y * ln x, positive normal x, |y| below 2^900: wh + wl for double at LA and HA,
// one double (wl zero) for the single scalar routine (`Single`).
// `red` is the logarithm core's reduction of x.
template <Level L, bool Single>
inline void PowW(__m128d y, const LnReduction& red, __m128d& wh, __m128d& wl) {
    if constexpr (Single) {
        // The single scalar routine: the degree-5 core (L is HA there).
        __m128d h, l;
        LnCoreFrom<Level::LA>(red, h, l);
        wh = Mul(y, Add(h, l));
        wl = Zero<double>();
    } else {
        __m128d hi, lo, ph, pl;
        LnHiLo(red, hi, lo);
        TwoProductCut(y, hi, ph, pl);
        wh = ph;
        wl = Add(pl, Mul(y, lo));
    }
}

// |x|^y in double for the scalar routines: x positive and finite (denormals included),
// y finite and not zero; the value rounded once, overflow to +inf and underflow to zero
// or a denormal with the hardware's flags. `single`: the value of a single row, whose
// w needs only one double. k0: the exponent of a caller's scaling of x, taken back
// (the single routine's denormal x comes scaled by 2^64 with k0 = -64); x^y is then
// that of x*2^k0, and |y| is below 2^900 there.
template <bool Single>
inline double PowMagnitude(double x, double y, double k0 = 0.0) {
    constexpr double kHuge = 0x1p1000, kTiny = 0x1p-1000;
    if (x == 1.0) return 1.0;
    if (__builtin_fabs(y) >= 0x1p900) // |w| is then beyond any finite result
        return (x > 1.0) == (y > 0.0) ? Keep(kHuge) * kHuge : Keep(kTiny) * kTiny;
    if (x < 0x1p-1022) {
        x *= 0x1p64;
        k0 -= 64.0;
    }
    __m128d xv = SetFirst<double>(x);
    LnReduction red = LnReduce(xv);
    red.k = Add(red.k, SetFirst<double>(k0));
    __m128d wh, wl;
    PowW<Level::HA, Single>(SetFirst<double>(y), red, wh, wl);
    double w = GetLane(wh);
    if (w > 709.8) return Keep(kHuge) * kHuge;
    if (w < -745.2) return Keep(kTiny) * kTiny;
    return GetLane(ExpHiLoWide(wh, wl));
}

} // namespace brenn::vm

#endif
