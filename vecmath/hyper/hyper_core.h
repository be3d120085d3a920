/* The double core of the hyperbolic rows. For a >= 0 up to the vector range limit, the
 * halves A = e^a/2 and B = e^-a/2 from one reduction by ln2/64 with the exponential's
 * table of 64 (exp_core.h): n = rint(a*64/ln2) = 64*m + j gives A = 2^(m-1)*T[j]*(1 + p(r))
 * and -n = 64*m' + j' gives B = 2^(m'-1)*T[j']*(1 + p(-r)), each as a head (the scaled
 * table value, exact) and a tail. Cosh is A + B and Sinh A - B; below 1/2 Sinh takes
 * the odd series instead, since A - B cancels there. Tanh takes the reduction and the
 * table alone, for its one exponential e^(2a). */
#ifndef BRENN_VECMATH_HYPER_HYPER_CORE_H
#define BRENN_VECMATH_HYPER_HYPER_CORE_H

#include "vecmath/explog/exp_core.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

// sinh(x) ~ x + x^3*P(x^2) on |x| <= 1/2, the coefficients of P from
// tools/hyper/sinh_double.sollya: HA (2^-58 in the result) and LA (2^-53), the LA set
// also serving EP.
struct SinhSeriesHA {
    static constexpr double kC[] = {0x1.5555555555555p-3,  0x1.11111111112c7p-7,
                                    0x1.a01a019f7adb3p-13, 0x1.71de3bd757e7p-19,
                                    0x1.ae60faa64a746p-26, 0x1.645500821bf55p-33};
};
struct SinhSeriesLA {
    static constexpr double kC[] = {0x1.555555555556p-3, 0x1.1111111108859p-7,
                                    0x1.a01a01e4db958p-13, 0x1.71dd794ebecdep-19,
                                    0x1.b01e10f66f8ffp-26};
};
// Where the series takes over from A - B.
constexpr double kSinhSeriesEnd = 0.5;

// The series' part beyond x: x*z*P(z), z = x^2.
template <class S>
BRENN_VEC __m128d SinhSeriesTail(__m128d x) {
    __m128d z = Mul(x, x);
    return Mul(x, Mul(z, Horner(z, S::kC)));
}

// The halves of e^a, heads and tails.
struct ExpHalves {
    __m128d ah, al, bh, bl;
};

// 2^(m-1) for the integer m in each lane's low word, -1022 <= m - 1 <= 1023.
BRENN_VEC __m128d HalfPower(I32x4 m) {
    I32x4 e = Add(m, Set<int32_t>(Format<double>::kBias - 1));
    return AsFloat(ShiftLeft<Format<double>::kMantBits>(BitCast<I64x2>(e)));
}

// c[I] + s*(c[I+2] + s*(...)): the coefficients of one parity of the exponential's tail.
template <int I, size_t N>
BRENN_VEC __m128d HornerEveryOther(__m128d s, const double (&c)[N]) {
    if constexpr (I + 2 >= int(N))
        return Set<double>(c[I]);
    else
        return MulAdd(s, HornerEveryOther<I + 2>(s, c), Set<double>(c[I]));
}

// The exponential's polynomial at r and at -r at once: p(r) = r + r^2 (c2 + c3 r + ...)
// is the even part E = r^2 (c2 + c4 r^2 + ...) and the odd part O = r + r^3 (c3 + c5 r^2
// + ...), so p(r) = E + O and p(-r) = E - O, each part evaluated once.
template <ExpDegree D>
BRENN_VEC void ExpPolyParts(__m128d r, __m128d& e, __m128d& o) {
    const auto& c = ExpTail<D>::kC;
    __m128d s = Mul(r, r);
    e = Mul(s, HornerEveryOther<0>(s, c));
    o = MulAdd(Mul(r, s), HornerEveryOther<1>(s, c), r);
}

// The reduction by ln2/64: t = a*64/ln2 + the shifter (n = rint(a*64/ln2) in its low
// word), n, and the reduced argument r = a - n*ln2/64, returned. The shifter raised by
// 64*kOffset (an even integer of its binade) leaves n and the index bits as they are and
// puts m + kOffset in the power bits of t (its low word shifted right by 6): with a
// biased exponent there, 2^m or 2^(m-1) is one shift of t (PowerOf).
template <int kOffset = 0>
BRENN_VEC __m128d Reduce64(__m128d a, __m128d& t, __m128d& n) {
    using S = ExpStep64;
    const __m128d shifter = Set<double>(Format<double>::kShifter + 64.0 * kOffset);
    t = Add(Mul(a, Set<double>(S::kInvStep)), shifter);
    n = Sub(t, shifter);
    return Sub(Sub(a, Mul(n, Set<double>(S::kStepHi))), Mul(n, Set<double>(S::kStepLo)));
}

// The power of two whose biased exponent is in the power bits of t.
BRENN_VEC __m128d PowerOf(__m128d t) {
    return AsFloat(ShiftLeft<Format<double>::kMantBits>(BitCast<I64x2>(ExpPower64(t))));
}

// The halves in two steps, so that a round can take each over all its registers and
// leave B to the registers that need it: the A step reduces a, forms the polynomial's
// parts at r and A's table row, power and u = T*p(r) + Tlo (A = 2^(m-1)*(T + u)); the B
// step the same at -n from those parts. A's head and tail are T*2^(m-1) and u*2^(m-1),
// exact products (A >= 1/2), so that A alone, (T + u)*2^(m-1), has the bits of their sum.
struct HalvesState {
    __m128d n, e, o, th, u, sa;
    ExpHalves h;
};
template <ExpDegree D>
BRENN_VEC void HalfAStep(__m128d a, HalvesState& s) {
    __m128d t;
    __m128d r = Reduce64<Format<double>::kBias - 1>(a, t, s.n);
    __m128d tl;
    ExpRows64(t, s.th, tl);
    s.sa = PowerOf(t);
    ExpPolyParts<D>(r, s.e, s.o);
    s.u = Add(Mul(s.th, Add(s.e, s.o)), tl);
}
// A alone, e^a/2 for a in [0, 710.4702], where B is below A's last bit.
BRENN_VEC __m128d HalfExpFrom(const HalvesState& s) {
    return Mul(Add(s.th, s.u), s.sa);
}
// B's power is held at 2^-1001 and up: below that B is far under A's last bit, and the
// clamp keeps its exponent field in range.
BRENN_VEC void HalfBStep(HalvesState& s) {
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    __m128d tn = Sub(shifter, s.n); // -n in the low word
    __m128d uh, ul;
    ExpRows64(tn, uh, ul);
    __m128d sb = HalfPower(Max(ExpPower64(tn), Set<int32_t>(-1000)));
    s.h.ah = Mul(s.th, s.sa);
    s.h.al = Mul(s.u, s.sa);
    s.h.bh = Mul(uh, sb);
    s.h.bl = Mul(Add(Mul(uh, Sub(s.e, s.o)), ul), sb);
}

// A and B of a in [0, 710.4702].
template <ExpDegree D>
BRENN_VEC ExpHalves HalvesOf(__m128d a) {
    HalvesState s;
    HalfAStep<D>(a, s);
    HalfBStep(s);
    return s.h;
}

// A head and a tail whose sum is the value.
struct Pair {
    __m128d hi, lo;
};

// cosh a = A + B. With `exact`, the heads' sum is split into its rounded value and its
// error (A's head is the larger: n >= 0), so that the result is rounded about once.
template <bool exact>
BRENN_VEC Pair CoshOf(const ExpHalves& h) {
    Pair c;
    if constexpr (exact) {
        __m128d e;
        FastTwoSum(h.ah, h.bh, c.hi, e);
        c.lo = Add(e, Add(h.al, h.bl));
    } else {
        c.hi = Add(h.ah, h.bh);
        c.lo = Add(h.al, h.bl);
    }
    return c;
}

// sinh a for a >= 0: the series below 1/2, A - B above, as a head and a tail. The series
// runs only in a register that has a lane below 1/2.
template <bool exact, class Series>
BRENN_VEC Pair SinhOf(__m128d a, const ExpHalves& h) {
    Pair s;
    if constexpr (exact) {
        __m128d e;
        FastTwoSum(h.ah, Neg(h.bh), s.hi, e);
        s.lo = Add(e, Sub(h.al, h.bl));
    } else {
        s.hi = Sub(h.ah, h.bh);
        s.lo = Sub(h.al, h.bl);
    }
    __m128d small = Lt(a, Set<double>(kSinhSeriesEnd));
    if (MaskBits(small)) {
        s.hi = IfThenElse(small, a, s.hi);
        s.lo = IfThenElse(small, SinhSeriesTail<Series>(a), s.lo);
    }
    return s;
}

// a cut to its high 26 bits (a mask of the low 27) and the rest, both exact: products
// of two high parts are exact.
BRENN_VEC void CutHalves(__m128d a, __m128d& hi, __m128d& lo) {
    hi = And(a, AsFloat(Set<uint64_t>(0xFFFFFFFFF8000000ull)));
    lo = Sub(a, hi);
}

BRENN_VEC __m128d Sum(const Pair& p) {
    return Add(p.hi, p.lo);
}

// 1/v to about 12 bits, by the single estimate: for corrections of an ulp or two, where a
// division would be wasted. v's magnitude within the single range (above it the estimate
// is 0).
BRENN_VEC __m128d RecipEstimate(__m128d v) {
    return WidenLower(ApproxRecip(Narrow(v, v)));
}

} // namespace brenn::vm

#endif
