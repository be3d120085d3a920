/* Tan in single and double, three levels.
 *
 * Short path, one form for every slot but double HA: n = round(a 2/pi) by the shifter,
 * r = a - n pi/2 with pi/2 in parts, then the quotient s/c or, for n odd, -c/s, with
 * s = r S(u) and c = C(u), u = r^2. Single EP reduces in single with pi/2 in three parts
 * (the first two short, so that their products with n are exact), takes S and C of two
 * and three terms as given (tools/trig/tan_single_ep.sollya) and the quotient as the top
 * times the bottom's estimated reciprocal after one Newton step. Single LA reduces the same
 * way (a remainder below 2^-9 is redone in double: in single alone near the multiples of
 * pi/2 it misses the level) and divides; its S has a term more than EP's (three, the first
 * 1), since the two-term form is itself 2^-21.5 off tan, beyond LA's bound
 * (tools/trig/tan_quotient.sollya). Single HA widens the argument to double (pi/2 in two
 * parts) and takes the double EP set of the same three-by-three shape; double EP reduces
 * with pi/2 in three parts, double LA in four with a longer set, and double LA also keeps
 * the remainder's low part and the roundings of s and c, and corrects the quotient by
 * them (QuotientLA). The single kernels and double EP reduce x with its sign (n, r and
 * the quotient odd in x, the reciprocal estimate too), the others |x|, the sign put back
 * at the end. The single short path holds to 8256, the double one to 2^24. Every kernel
 * runs rounds of sixteen elements with one range test, its registers' chains interleaved
 * (double HA's table steps too, TanSums).
 *
 * Double HA: the reduction of the table method by pi/64 (x = n pi/2 + j pi/64 + r,
 * |j| <= 16), tan(j pi/64) from a table of 32 rows (tan_table.cpp) and tan r by its
 * series, joined by the addition formula with both sides and the quotient carried in two
 * doubles (see TanSum). Near a pole the denominator is small but accurate, so the
 * result is a large finite number. Lanes above the short path's limit take the vector
 * large reduction of reduce.h in the same block, which gives the same J and r, and every
 * kernel finishes those by TanSum.
 *
 * Measured (brenn_accuracy, 250000 inputs a row): sTan EP 20.7 bits, LA 3.03 ulp,
 * HA 0.522 ulp; dTan EP 29.3 bits, LA 1.62 ulp, HA 0.513 ulp. */
#include <bit>

#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/trig/reduce.h"
#include "vecmath/trig/tan_table.h"

namespace brenn::vm::trig {
namespace {

// The short paths' limits: the large reduction above.
constexpr float kLimitS = 0x1.02p13f; // 8256
constexpr double kLimitD = 0x1p24;

// The short path's constants a type: 2/pi, and pi/2 in parts. Single EP: the first two
// parts of 8 and 11 significant bits (n has at most 13). Single LA and HA, in double:
// two parts, the first of 33 bits, so that n times it is exact. Double EP: three, the
// first two of 24 and 21 bits (n has at most 24).
template <class T>
struct TanShort;
template <>
struct TanShort<float> {
    static constexpr float kTwoOverPi = 0x1.45f306p-1f;
    static constexpr float kPiHalf[] = {0x1.92p0f, 0x1.fb4p-12f, 0x1.4442d2p-24f};
};
template <>
struct TanShort<double> {
    static constexpr double kTwoOverPi = 0x1.45f306dc9c883p-1;
    static constexpr double kPiHalfWide[] = {0x1.921fb5444p0, 0x1.68c234c4c6629p-39};
    static constexpr double kPiHalf[] = {0x1.921fb4p0, 0x1.4442dp-24, 0x1.8469898cc517p-48};
    static constexpr double kPiHalfLA[] = {0x1.921fb4p0, 0x1.4442dp-24, 0x1.846988p-48,
                                           0x1.8cc51701b839ap-72};
};

// The quotient's sides, s = r S(u) and c = C(u) with C(0) = 1, as sets of coefficients
// in u, lowest degree first. Single EP, as given: S of two terms (0x3F7FFFFC, 0xBDC433B4),
// C of three (1, 0xBEDBB7AB, 0x3C1F336B), 2^-21.5 on [-pi/4, pi/4]
// (tools/trig/tan_single_ep.sollya).
struct TanRationalEP {
    static constexpr float kS[] = {0x1.fffff8p-1f, -0x1.886768p-4f};
    static constexpr float kC[] = {1.0f, -0x1.b76f56p-2f, 0x1.3e66d6p-7f};
};
// The sets of s = r (1 + u S(u)), c a Pade denominator of tan, s fitted to it
// (tools/trig/tan_quotient.sollya). Single LA, in single: 29 bits; double EP (and single
// HA, in double): 29 bits; double LA: 54 bits.
struct TanFitSingleLA {
    static constexpr float kS[] = {-0x1.c71c78p-4f, 0x1.156b6ap-10f};
    static constexpr float kC[] = {1.0f, -0x1.c71c72p-2f, 0x1.04104ap-6f};
};
struct TanFitEP {
    static constexpr double kS[] = {-0x1.c71c76d5e4acbp-4, 0x1.156aaf598c586p-10};
    static constexpr double kC[] = {1.0, -0x1.c71c71c71c71cp-2, 0x1.04104104103ffp-6};
};
struct TanFitLA {
    static constexpr double kS[] = {-0x1.11111111110f5p-3, 0x1.c01c01c018fbap-9,
                                    -0x1.29f6b20709292p-16};
    static constexpr double kC[] = {1.0, -0x1.ddddddddddddep-2, 0x1.a41a41a41a44bp-6,
                                    -0x1.45e5d2ba4606bp-12, 0x1.08db48f28a525p-21};
};

// A constant vector for the single bodies, held apart (Opaque): the compiler keeps it in
// a register or reloads it whole, where it otherwise broadcast the scalar again in every
// round (a load and a shuffle).
template <class T>
BRENN_TRIG_HOT Vec<T> Held(T v) {
    if constexpr (std::is_same_v<T, float>)
        return Opaque(Set<T>(v));
    else
        return Set<T>(v);
}

// q[k] = c[0] + u[k] (c[1] + u[k] (...)) for M registers, each step over all of them
// before the next, so that the chains interleave.
template <int M, class V, class C, size_t D>
BRENN_TRIG_HOT void HornerAll(const V* u, const C (&c)[D], V* q) {
    using T = ElemOf<V>;
    BRENN_EACH(k, M) q[k] = MulAdd(u[k], Held<T>(T(c[D - 1])), Held<T>(T(c[D - 2])));
#pragma GCC unroll 8
    for (int i = int(D) - 3; i >= 0; --i)
        BRENN_EACH(k, M) q[k] = MulAdd(u[k], q[k], Held<T>(T(c[i])));
}

// The two sides of the quotient, tan r ~ s / c: EP's s = r S(u), or the sets' r (1 + u S(u)).
template <int M, class Sides, class V>
BRENN_TRIG_HOT void SidesOf(const V* r, const V* u, V* s, V* c) {
    using T = ElemOf<V>;
    if constexpr (std::is_same_v<Sides, TanRationalEP>) {
        HornerAll<M>(u, Sides::kS, c);
        BRENN_EACH(k, M) s[k] = Mul(r[k], c[k]);
        HornerAll<M>(u, Sides::kC, c);
    } else {
        // s = r (1 + u S(u)): a zero r keeps its sign (r + r u S(u) turns -0 into +0).
        HornerAll<M>(u, Sides::kS, c);
        BRENN_EACH(k, M) s[k] = Mul(r[k], MulAdd(u[k], c[k], Held<T>(1)));
        HornerAll<M>(u, Sides::kC, c);
    }
}

// Single LA: r = a - n pi/2 again in double (pi/2 in two parts), narrowed.
template <int M>
BRENN_TRIG_HOT void ReduceWide(const __m128* a, const __m128* n, __m128* r) {
    const double(&p)[2] = TanShort<double>::kPiHalfWide;
    BRENN_EACH(k, M) {
        __m128d lo = Sub(Sub(WidenLower(a[k]), Mul(WidenLower(n[k]), Set<double>(p[0]))),
                         Mul(WidenLower(n[k]), Set<double>(p[1])));
        __m128d hi = Sub(Sub(WidenUpper(a[k]), Mul(WidenUpper(n[k]), Set<double>(p[0]))),
                         Mul(WidenUpper(n[k]), Set<double>(p[1])));
        r[k] = Narrow(lo, hi);
    }
}

// Double LA: s/c as above, with what the plain quotient rounds away put back. The
// remainder is r + rl (the third part's product subtracted with its error kept, the
// fourth's added to that error, then renormalised), rl entering s = r + (rl + r u S)
// only. The roundings ds of s = r + t and dc of c = 1 + m (m = u C', both by exact
// differences) are carried, and the quotient q0 (s/c, or -c/s for n odd) corrected by
// its relative error ds/s - dc/c (the opposite for n odd), the reciprocals from the bits
// (one integer subtraction, good to 12%, on a correction of an ulp or two; 1/c as one
// constant for c in [0.722, 1], good to 16.2%, saves an operation for 1.64 ulp). The
// plain quotient's three roundings and the remainder's add up to 2.5 ulp; corrected, 1.62.
constexpr uint64_t kRecipBits = 0x7FDE623822FC16E6ull;
BRENN_TRIG_HOT __m128d RoughRecip(__m128d v) {
    return AsFloat(Sub(Set<uint64_t>(kRecipBits), AsInt(v)));
}
template <int M>
BRENN_TRIG_HOT void QuotientLA(const __m128d* a, const __m128d* n, const __m128d* odd,
                               const double (&piHalf)[4], __m128d* q) {
    using S = TanFitLA;
    __m128d r[M], rl[M], u[M], s[M], c[M], m[M];
    BRENN_EACH(k, M) {
        __m128d r1 = Sub(Sub(a[k], Mul(n[k], Set<double>(piHalf[0]))),
                         Mul(n[k], Set<double>(piHalf[1]))); // exact
        // |r1| >= n piHalf[2], or both are small and the difference is exact.
        __m128d h, e;
        FastTwoSum(r1, Mul(n[k], Set<double>(-piHalf[2])), h, e);
        FastTwoSum(h, Sub(e, Mul(n[k], Set<double>(piHalf[3]))), r[k], rl[k]);
    }
    BRENN_EACH(k, M) u[k] = Mul(r[k], r[k]);
    HornerAll<M>(u, S::kS, s);
    __m128d ds[M];
    BRENN_EACH(k, M) {
        __m128d t = Add(rl[k], Mul(Mul(r[k], u[k]), s[k]));
        FastTwoSum(r[k], t, s[k], ds[k]);
    }
    BRENN_EACH(k, M) m[k] = MulAdd(u[k], Set<double>(S::kC[4]), Set<double>(S::kC[3]));
#pragma GCC unroll 4
    for (int i = 2; i >= 1; --i)
        BRENN_EACH(k, M) m[k] = MulAdd(u[k], m[k], Set<double>(S::kC[i]));
    BRENN_EACH(k, M) m[k] = Mul(u[k], m[k]);
    BRENN_EACH(k, M) c[k] = Add(Set<double>(1), m[k]);
    // n odd (odd holds the sign bit alone): -c/s, whose relative error is the opposite:
    // with Q = c/s and d = ds/s - dc/c, -Q (1 - d) = -Q + Q d, and s/c (1 + d) = Q + Q d.
    BRENN_EACH(k, M) {
        __m128d top = IfThenElse(odd[k], c[k], s[k]);
        __m128d bot = IfThenElse(odd[k], s[k], c[k]);
        __m128d q0 = Div(top, bot);
        __m128d ndc = Sub(Sub(c[k], Set<double>(1)), m[k]);
        __m128d d = Add(Mul(ds[k], RoughRecip(s[k])), Mul(ndc, RoughRecip(c[k])));
        q[k] = Add(Xor(q0, odd[k]), Mul(q0, d));
    }
}

// tan of M registers of magnitudes a by the quadrant reduction with pi/2 in parts. Not
// forced inline: the single kernels are flattened anyway, and left to itself GCC takes
// the double EP body whole into the frame's quad step.
template <int M, class Sides, class V, size_t P>
inline void QuadrantTan(const V* a, const ElemOf<V> (&piHalf)[P], V* q) {
    using T = ElemOf<V>;
    using C = TanShort<T>;
    const V shifter = Held<T>(Format<T>::kShifter);
    V t[M], odd[M], n[M], r[M], u[M], s[M], c[M];
    BRENN_EACH(k, M) t[k] = Add(Mul(a[k], Held<T>(C::kTwoOverPi)), shifter);
    // n odd: t's low bit moved to the sign bit, which is all that the mask's uses read.
    BRENN_EACH(k, M) odd[k] = AsFloat(ShiftLeft<8 * sizeof(T) - 1>(AsInt(t[k])));
    BRENN_EACH(k, M) n[k] = Sub(t[k], shifter);
    if constexpr (std::is_same_v<Sides, TanFitLA>) {
        QuotientLA<M>(a, n, odd, piHalf, q);
        return;
    }
    BRENN_EACH(k, M) r[k] = Sub(a[k], Mul(n[k], Held<T>(piHalf[0])));
#pragma GCC unroll 4
    for (size_t i = 1; i < P; ++i)
        BRENN_EACH(k, M) r[k] = Sub(r[k], Mul(n[k], Held<T>(piHalf[i])));
    BRENN_EACH(k, M) u[k] = Mul(r[k], r[k]);
    if constexpr (std::is_same_v<Sides, TanFitSingleLA>) {
        // The single reduction is good to 2^-35 absolute; a remainder below 2^-9 (its
        // square below 2^-18: a lane near a multiple of pi/2, a few in a thousand) takes
        // the double one, and only such a lane.
        if (__builtin_expect(AnyNearZeroSq<M>(u), 0)) {
            V wide[M];
            ReduceWide<M>(a, n, wide);
            TakeNearZeroSq<M>(r, u, wide);
        }
    }
    SidesOf<M, Sides>(r, u, s, c);
    // n odd: -c/s. Single EP: the top times the bottom's reciprocal, its estimate y after
    // one Newton step y (2 - b y).
    BRENN_EACH(k, M) {
        V top = IfThenElse(odd[k], Neg(c[k]), s[k]);
        V bot = IfThenElse(odd[k], s[k], c[k]);
        if constexpr (std::is_same_v<Sides, TanRationalEP>) {
            V y = ApproxRecip(bot);
            y = Mul(y, Sub(Held<T>(2), Mul(bot, y)));
            q[k] = Mul(top, y);
        } else {
            q[k] = Div(top, bot);
        }
    }
}

// Double HA: x = n pi/2 + j pi/64 + r with |j| <= 16 and |r| <= pi/128 (the reduction of
// the table method: J = 32 n + j), and with A = j pi/64 and t = tan r
//   tan x = (tan A + t) / (1 - t tan A),  or -(1 - t tan A) / (tan A + t) for n odd.
// tan A comes from tanPi64 in two parts; t = r + r^3 T(r^2) by its Taylor series, whose
// cube term is below 2^-11 of r, so that t is rh + (rl + r^3 T) with no further care.
// t tan A is at most tan(pi/128): it is taken as ah rh + (ah tt + al rh), tt the part of
// t beyond rh, and 1 minus its head carried exactly. What is left out or rounded there is
// below 2^-59 of the denominator each: the rounding of the product ah rh, and al tt
// (measured: 0.513 ulp with al rh, as with al t, and 0.518 without it, for 2 % fewer
// ticks). The numerator's head sum is
// exact too, and near the zeros and the poles of tan (j = 0) it is t itself, so the result
// keeps the remainder's full precision there. The quotient is the product by the rounded
// reciprocal of the bottom's head, cut to 26 bits, plus the residual (the top less that
// head times the bottom, its large products exact) times the reciprocal.
// tan r - r over r^3, in u = r^2: the terms after the last are below 2^-60 of r.
constexpr double kTanTaylor[] = {1.0 / 3, 2.0 / 15, 17.0 / 315, 62.0 / 2835};
constexpr uint64_t kHead26 = 0xFFFFFFFFF8000000ull; // keeps 26 significant bits

// M registers at once (J two entries a register), each step over all of them before the
// next, so that their chains (and divisions) overlap.
// With t (the short reduction's shifted j a register), n odd is read from it: bit 5 of
// j + 16 moved to the sign bit, which is all that the mask's uses read.
template <int M>
BRENN_TRIG_HOT void TanSums(const int32_t* J, const __m128d* rh, const __m128d* rl, __m128d* y,
                            const __m128d* t = nullptr) {
    __m128d odd[M], ah[M], al[M], tt[M], dh[M], dl[M], nh[M], nl[M], th[M], tl[M], bh[M], bl[M],
        rb[M], q[M];
    BRENN_EACH(k, M) {
        const int i0 = J[2 * k] + 16, i1 = J[2 * k + 1] + 16;
        odd[k] = t ? AsFloat(ShiftLeft<58>(Add(AsInt(t[k]), Set<uint64_t>(16))))
                   : MaskFromBits<double>(((i0 >> 5) & 1) | ((i1 >> 4) & 2));
        __m128d a0 = Load(tanPi64[i0 & 31]), a1 = Load(tanPi64[i1 & 31]);
        ah[k] = InterleaveLower(a0, a1);
        al[k] = InterleaveUpper(a0, a1);
    }
    BRENN_EACH(k, M) {
        __m128d u = Mul(rh[k], rh[k]);
        tt[k] = Add(rl[k], Mul(Mul(rh[k], u), Horner(u, kTanTaylor)));
    }
    BRENN_EACH(k, M) {
        __m128d p = Mul(ah[k], rh[k]);
        __m128d pl = Add(Mul(ah[k], tt[k]), Mul(al[k], rh[k]));
        // 1 - p and its rounding (1 - dh is exact, |p| < 1/2), less pl.
        dh[k] = Sub(Set<double>(1), p);
        dl[k] = Sub(Sub(Sub(Set<double>(1), dh[k]), p), pl);
        // |tan A| >= tan(pi/64) > pi/128 >= |rh|, or tan A = 0: the fast sum is exact.
        FastTwoSum(ah[k], rh[k], nh[k], nl[k]);
        nl[k] = Add(nl[k], Add(al[k], tt[k]));
    }
    BRENN_EACH(k, M) {
        th[k] = IfThenElse(odd[k], dh[k], nh[k]);
        tl[k] = IfThenElse(odd[k], dl[k], nl[k]);
        bh[k] = IfThenElse(odd[k], nh[k], dh[k]);
        bl[k] = IfThenElse(odd[k], nl[k], dl[k]);
    }
    // The pairs are not renormalised (a low part may reach 2^-11 of its head): the
    // reciprocal is of the bottom's rounded sum.
    BRENN_EACH(k, M) rb[k] = Div(Set<double>(1), Add(bh[k], bl[k]));
    // The quotient's head cut to 26 bits, qh, and the bottom's, bhh: th - qh bhh is exact
    // (qh bhh has 52 bits and lies within 2^-10 of th); the rest of the bottom, its head's
    // 27 bits below bhh plus bl, at most 2^-10 of it, is multiplied by qh and subtracted,
    // and tl added, each rounding below 2^-62 of th; what is left of the top, about 2^-25
    // of th, is divided by the reciprocal: y = qh + e/b, rounded once at the end.
    const __m128d head = SplatBits<double>(kHead26);
    BRENN_EACH(k, M) q[k] = And(Mul(th[k], rb[k]), head);
    BRENN_EACH(k, M) {
        __m128d bhh = And(bh[k], head);
        __m128d e = Sub(Sub(th[k], Mul(q[k], bhh)), Mul(q[k], Add(Sub(bh[k], bhh), bl[k])));
        e = Add(e, tl[k]);
        y[k] = Xor(Add(q[k], Mul(e, rb[k])), And(odd[k], SignMask<double>()));
    }
}

BRENN_TRIG_HOT __m128d TanSum(const int32_t* J, __m128d rh, __m128d rl) {
    __m128d y;
    TanSums<1>(J, &rh, &rl, &y);
    return y;
}

// tan of N single registers by the short path. x is reduced with its sign: n and r are
// odd in x, and so are s/c and -c/s, so the result has the sign of x (and of a zero) with
// no step of its own. Lanes above the limit are the large path's: with kClamp they are
// clamped and raise no flag here; without, the caller has seen that there are none.
template <Level L, int N, bool kClamp>
BRENN_TRIG_HOT void ShortTan(const __m128* x, __m128* p) {
    __m128 as[N];
    const __m128 limit = Set<float>(kLimitS);
    BRENN_EACH(k, N) as[k] = kClamp ? Max(Min(x[k], limit), Neg(limit)) : x[k];
    if constexpr (L == Level::EP) {
        QuadrantTan<N, TanRationalEP>(as, TanShort<float>::kPiHalf, p);
    } else if constexpr (L == Level::LA) {
        QuadrantTan<N, TanFitSingleLA>(as, TanShort<float>::kPiHalf, p);
    } else {
        __m128d ad[2 * N], q[2 * N];
        BRENN_EACH(k, N) {
            ad[2 * k] = WidenLower(as[k]);
            ad[2 * k + 1] = WidenUpper(as[k]);
        }
        QuadrantTan<2 * N, TanFitEP>(ad, TanShort<double>::kPiHalfWide, q);
        BRENN_EACH(k, N) p[k] = Narrow(q[2 * k], q[2 * k + 1]);
    }
}

// tan of four single magnitudes by the large reduction, in double.
inline __m128 LargeTanS(__m128 a) {
    alignas(16) int32_t J[4];
    __m128d r0, r1, z = Zero<double>();
    LargeS(a, J, r0, r1);
    return Narrow(TanSum(J, r0, z), TanSum(J + 2, r1, z));
}

constexpr uint64_t kLimitBitsD = std::bit_cast<uint64_t>(kLimitD);

template <class T, Level L>
struct TanBody;

template <Level L>
struct TanBody<float, L> {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sTan);
    static constexpr int kRound = 16;
    static constexpr uint32_t kLimitBits = std::bit_cast<uint32_t>(kLimitS);
    static __m128 Eval(__m128 x, __m128& special) {
        __m128 a = Abs(x);
        special = InfNan(a);
        __m128 p;
        ShortTan<L, 1, true>(&x, &p);
        int big = LargeLanes(a, kLimitBits);
        // The lanes above the limit replaced by the large path's result, with the sign of x.
        if (__builtin_expect(big != 0, 0))
            p = IfThenElse(MaskFromBits<float>(big), Xor(LargeTanS(a), SignBit(x)), p);
        return p;
    }
    // A round of sixteen: with no lane above the limit, the short path on the four
    // registers together, unclamped; otherwise quad by quad.
    static int EvalWide(const __m128* x, __m128* y) {
        __m128 a[4];
        if (__builtin_expect(AnyAboveS(x, a, kLimitBits), 0)) return EvalEach<TanBody, 4>(x, y);
        ShortTan<L, 4, false>(x, y);
        return 0;
    }
    static int Scalar(const float* a, float* y) { return InfNanScalar(a, y); }
};

template <Level L>
struct TanBody<double, L> {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dTan);
    static __m128d Eval(__m128d x, __m128d& special) {
        __m128d a = Abs(x);
        special = InfNan(a);
        alignas(16) int32_t J[2], K[2];
        __m128d rh, rl;
        int big = LargeLanes(a, std::bit_cast<uint64_t>(kLimitD));
        if constexpr (L == Level::EP) {
            // x with its sign, as the single kernels.
            __m128d xs = Max(Min(x, Set<double>(kLimitD)), Set<double>(-kLimitD)), p;
            QuadrantTan<1, TanFitEP>(&xs, TanShort<double>::kPiHalf, &p);
            if (__builtin_expect(big != 0, 0)) {
                LargeD(a, J, rh, rl);
                p = IfThenElse(MaskFromBits<double>(big), Xor(TanSum(J, rh, rl), SignBit(x)), p);
            }
            return p;
        } else if constexpr (L == Level::LA) {
            __m128d as = Min(a, Set<double>(kLimitD)), p;
            QuadrantTan<1, TanFitLA>(&as, TanShort<double>::kPiHalfLA, &p);
            if (__builtin_expect(big != 0, 0)) {
                LargeD(a, J, rh, rl);
                p = IfThenElse(MaskFromBits<double>(big), TanSum(J, rh, rl), p);
            }
            return Xor(p, SignBit(x));
        }
        ShortD(Min(a, Set<double>(kLimitD)), J, rh, rl, 0);
        if (__builtin_expect(big != 0, 0)) {
            __m128d bh, bl;
            LargeD(a, K, bh, bl);
            PickD(big, K, bh, bl, J, rh, rl);
        }
        return Xor(TanSum(J, rh, rl), SignBit(x));
    }
    // Rounds of sixteen: with no lane above the limit, the short path on several
    // registers at a time, whose long chains then interleave (HA four, LA and EP all
    // eight: four measured 10.97 and 5.74 ticks an element, eight 9.59 and 5.23);
    // otherwise register by register.
    static constexpr int kRound = 16;
    static int EvalWide(const __m128d* x, __m128d* y) {
        __m128d a[8];
        if (__builtin_expect(AnyAboveD<8>(x, a, kLimitBitsD), 0)) return EvalEach<TanBody, 8>(x, y);
        if constexpr (L == Level::HA) {
            BRENN_EACH(h, 2) {
                alignas(16) int32_t J[8];
                __m128d rh[4], rl[4], t[4];
                BRENN_EACH(k, 4) ShortD(a[4 * h + k], J + 2 * k, rh[k], rl[k], 0, t[k]);
                TanSums<4>(J, rh, rl, y + 4 * h, t);
            }
        } else if constexpr (L == Level::EP) {
            QuadrantTan<8, TanFitEP>(x, TanShort<double>::kPiHalf, y);
            return 0;
        } else {
            QuadrantTan<8, TanFitLA>(a, TanShort<double>::kPiHalfLA, y);
        }
        BRENN_EACH(k, 8) y[k] = Xor(y[k], SignBit(x[k]));
        return 0;
    }
    static int Scalar(const double* a, double* y) { return InfNanScalar(a, y); }
};

} // namespace
} // namespace brenn::vm::trig

using brenn::vm::Level;
using brenn::vm::trig::TanBody;

// The single kernels inline the whole frame: GCC at -O2 leaves the round of sixteen out
// of line.
#define BRENN_FLAT __attribute__((flatten))

extern "C" {
BRENN_FLAT ZAR_KERNEL_OF(s, Tan, EP, Unary, TanBody<float, Level::EP>) BRENN_FLAT
    ZAR_KERNEL_OF(s, Tan, LA, Unary, TanBody<float, Level::LA>) BRENN_FLAT
    ZAR_KERNEL_OF(s, Tan, HA, Unary, TanBody<float, Level::HA>)
        ZAR_LEVEL_KERNELS(d, Tan, Unary, TanBody)
}
