/* The gamma function's shared mathematics for TGamma and LGamma, written once over a
 * working type W wider than the result: long double (the x87 extended format, 64-bit
 * significand) for the double rows, double for the single rows.
 *
 * LGamma:
 *   ln Gamma on [0.75, 2.25] by three expansions, near 1, near the minimum 1.46163214...
 *   and near 2 (LnGammaInterval); from 0 to 8 the recurrence toward that interval; from
 *   8 on Stirling's form (x - 1/2) ln x - x + ln sqrt(2 pi) + S(x).
 * TGamma:
 *   H(z) = (Gamma(1 + z) - 1) / (z (z - 1)) on [0, 1], four polynomials, split at
 *   x = 1.25, the minimum 1.46163214... and 1.5 in extended (z = 1/4, x0 - 1, 1/2), at
 *   x = 1.25, 1.5, 1.75 in double:
 *     x in (0, 1):  Gamma(x) = (1 + x (x - 1) H(x)) / x
 *     x in [1, 2]:  Gamma(x) = 1 + z (z - 1) H(z),                z = x - 1
 *   From 2 up to the Stirling point the recurrence Gamma(x) = (x - 1) Gamma(x - 1)
 *   carries x down to [1, 2] (each x - k is exact in W).
 *   From the Stirling point on: Gamma(x) = exp((x - 1/2)(ln x - 1) + (ln sqrt(2 pi) -
 *   1/2) + S(x)), S(x) = sum B_2k / (2k (2k - 1) x^(2k - 1)), the asymptotic correction
 *   series with as many terms as the working precision needs at that point.
 *   Negative x by reflection: Gamma(x) = pi / (sin(pi x) Gamma(1 - x)), the sine taken
 *   on x - rint(x), which is exact. */
#ifndef BRENN_VECMATH_GAMMA_GAMMA_CORE_H
#define BRENN_VECMATH_GAMMA_GAMMA_CORE_H

#include <math.h>
#include <stdint.h>
#include <string.h>

#include "vecmath/frame/vec.h"
#include "vecmath/gamma/double_math.h"
#include "vecmath/gamma/ext_math.h"
#include "vecmath/gamma/gamma_data.h"
#include "vecmath/gamma/poly.h"

namespace brenn::vm::gamma {

// The working precision's elementary functions: ext_math.h's for long double,
// double_math.h's for double.
[[gnu::always_inline]] inline long double Log(long double x) {
    return ext::Log(x);
}
[[gnu::always_inline]] inline double Log(double x) {
    return dbl::Log(x);
}
[[gnu::always_inline]] inline long double Log1p(long double x) {
    return ext::Log1p(x);
}
[[gnu::always_inline]] inline double Log1p(double x) {
    return dbl::Log1p(x);
}
[[gnu::always_inline]] inline long double Exp(long double x) {
    return ext::Exp(x);
}
inline double Exp(double x) {
    return exp(x);
}

// The constants and coefficient sets by working type: for long double as doubles
// (ext_const.h), for double as they stand.
[[gnu::always_inline]] inline long double Pi(long double) {
    return Join(GammaData<long double>::kPi2);
}
inline double Pi(double) {
    return GammaData<double>::kPi;
}
[[gnu::always_inline]] inline long double InvPi(long double) {
    return Join(GammaData<long double>::kInvPi2);
}
inline double InvPi(double) {
    return GammaData<double>::kInvPi;
}
[[gnu::always_inline]] inline long double HalfLn2PiLessHalf(long double) {
    return Join(GammaData<long double>::kHalfLn2PiLessHalf2);
}
inline double HalfLn2PiLessHalf(double) {
    return GammaData<double>::kHalfLn2PiLessHalf;
}
[[gnu::always_inline]] inline long double HalfLn2Pi(long double) {
    return Join(GammaData<long double>::kHalfLn2Pi2);
}
inline double HalfLn2Pi(double) {
    return GammaData<double>::kHalfLn2Pi;
}
[[gnu::always_inline]] inline long double Ln2Lo(long double) {
    return Join(GammaData<long double>::kLn2Lo2);
}
inline double Ln2Lo(double) {
    return GammaData<double>::kLn2Lo;
}
inline const auto& HPoly(double, int i) {
    return GammaData<double>::kH[i];
}

// sin(pi r) for |r| <= 1/2: a polynomial in either precision (the C library's sinl is
// slow, and its sine a call).
[[gnu::always_inline]] inline long double SinPiReduced(long double r) {
    return r * Poly(r * r, GammaData<long double>::kSinPiP);
}
[[gnu::always_inline]] inline double SinPiReduced(double r) {
    return dbl::SinPi(r);
}

// H(z) for z in [0, 1]: the piece's polynomial in z less the piece's centre (each
// difference exact). Extended: split at 1/4, the minimum's x0 - 1 and 1/2.
[[gnu::always_inline]] inline long double H(long double z) {
    using D = GammaData<long double>;
    if (z < 0.5L) {
        if (z < 0.25L) return Poly(z - 0.125L, D::kHP0);
        if (z < D::kMinLessOne) return Poly(z - 0.35546875L, D::kHP1);
        return Poly(z - 0.48046875L, D::kHP2);
    }
    return Poly(z - 0.75L, D::kHP3);
}
// Double, for the single rows: split at 1/4, 1/2 and 3/4.
[[gnu::always_inline]] inline double H(double z) {
    int i = static_cast<int>(z * 4);
    i = i > 3 ? 3 : i;
    double t = z - double(2 * i + 1) / 8;
    return Poly(t, HPoly(double(), i));
}

// Gamma(x) for 1 <= x below the Stirling point. The recurrence goes two steps at a
// time: (x - 1)(x - 2) apart from the running product, which then takes one
// multiplication where single steps took two (and in double, for the single rows, the
// pair's product is exact).
template <class W>
[[gnu::always_inline]] inline W GammaFromOne(W x) {
    W p = 1;
    while (x > 3) {
        p *= (x - 1) * (x - 2);
        x -= 2;
    }
    if (x > 2) {
        x -= 1;
        p *= x;
    }
    W z = x - 1;
    return p * (1 + z * (z - 1) * H(z));
}

// Gamma(x) for 0 < x below the Stirling point.
template <class W>
[[gnu::always_inline]] inline W GammaBelowStirling(W x) {
    if (x < 1) return (1 + x * (x - 1) * H(x)) / x;
    return GammaFromOne(x);
}

// S(x) = sum B_2k / (2k (2k - 1) x^(2k - 1)) from the Stirling point on, in double, by
// the SSE unit beside the x87 work, where an absolute error of 2^-58 will do (S is below
// 1/96 from 8 on, and ln Gamma above 6; on the negative axis the reflection's terms
// cancel only near the zeros, which lgamma_zeros.h covers up to -17).
template <class W>
[[gnu::always_inline]] inline W StirlingSeriesDouble(W x) {
    double r = 1 / static_cast<double>(x);
    return r * Poly(r * r, GammaData<W>::kStirlingD);
}

// ln Gamma on the interval [0.75, 2.25] by its three expansions (gamma_data.h): near 1,
// z P1(z) with z = x - 1, up to 1.25; near the minimum x0 = 1.46163214..., Pm(x - x0),
// below 1.75; near 2, z P2(z) with z = x - 2. The zeros at 1 and 2 keep the relative
// accuracy of the polynomials; x - 1, x - 2 and x - x0 are exact.
[[gnu::always_inline]] inline long double LnGammaInterval(long double x) {
    using D = GammaData<long double>;
    if (x <= 1.25L) {
        long double z = x - 1;
        return z * Poly(z, D::kLnNear1P);
    }
    if (x < 1.75L) return Poly(x - Join(D::kLnMinAt2), D::kLnMinP);
    long double z = x - 2;
    return z * Poly(z, D::kLnNear2P);
}
[[gnu::always_inline]] inline double LnGammaInterval(double x) {
    using D = GammaData<double>;
    if (x <= 1.25) {
        double z = x - 1;
        return z * Poly(z, D::kLnNear1);
    }
    if (x < 1.75) return Poly(x - D::kLnMinAt, D::kLnMin);
    double z = x - 2;
    return z * Poly(z, D::kLnNear2);
}

// ln Gamma(x) for 0 < x below LGamma's Stirling point, by the recurrence toward the
// interval: below it one step up, ln Gamma(x) = ln Gamma(x + 1) - ln x; above it down,
// ln Gamma(x) = ln Gamma(x - k) + ln((x - 1)(x - 2)...(x - k)), the factors exact and
// their product under one logarithm.
template <class W>
[[gnu::always_inline]] inline W LnGammaBelowStirling(W x) {
    if (x < W(0.75)) return LnGammaInterval(x + 1) - Log(x);
    if (x <= W(2.25)) return LnGammaInterval(x);
    W p = 1;
    do {
        x -= 1;
        p *= x;
    } while (x > W(2.25));
    return LnGammaInterval(x) + Log(p);
}

// ln Gamma(x) by Stirling's form, (x - 1/2) ln x - x + ln sqrt(2 pi) + S(x), S(x) given
// (from 2^64 on S is lost in the rounding and the main terms alone remain).
template <class W>
[[gnu::always_inline]] inline W LnGammaStirlingForm(W x, W s) {
    return ((x - W(0.5)) * Log(x) - x) + (HalfLn2Pi(W()) + s);
}

// The exponent of x, 2^e <= x < 2^(e + 1), for x in [1, 2^1023), from x rounded to
// double: x rounded up to a power of 2 gives e one too large and x 2^-e just below 1.
template <class W>
[[gnu::always_inline]] inline int Exponent(W x) {
    double d = static_cast<double>(x);
    uint64_t b;
    memcpy(&b, &d, sizeof b);
    return static_cast<int>(b >> 52) - 1023;
}
using ext::Pow2;

// Gamma(x) for x from the Stirling point up to the overflow limit, through
// exp(ln Gamma(x)). The exponent reaches 709 (88 in single), so its rounding errors are
// kept small: with x = 2^e m, m in [1, 2), ln x - 1 = (e ln2hi - 1) + (ln m + e ln2lo),
// where ln2hi has 8 bits, so that (x - 1/2)(e ln2hi - 1) is exact in W (x has at most
// 53 bits below 2^8, e at most 8) and only the small parts round.
template <class W>
[[gnu::always_inline]] inline W GammaStirling(W x) {
    using D = GammaData<W>;
    int e = Exponent(x);
    W m = x * Pow2(-e);
    W h = x - W(0.5);
    W big = h * (W(e) * D::kLn2Hi - 1);
    W small = h * (Log(m) + W(e) * Ln2Lo(W()));
    return Exp(big + (small + (HalfLn2PiLessHalf(W()) + StirlingSeriesDouble(x))));
}

// GammaStirling for the double rows from x itself: its exponent and significand come from
// its bits, and x is never converted between the formats (each conversion of an 80-bit
// value goes through memory): the same value, at about half the cost.
[[gnu::always_inline]] inline long double GammaStirlingOfDouble(double x) {
    using D = GammaData<long double>;
    uint64_t b;
    memcpy(&b, &x, sizeof b);
    int e = static_cast<int>(b >> 52) - 1023;
    long double h = static_cast<long double>(x) - 0.5L;
    long double big = h * (static_cast<long double>(e) * D::kLn2Hi - 1);
    long double small = h * (ext::LogSignificand(x * Pow2(-e)) +
                             static_cast<long double>(e) * Ln2Lo(0.0L));
    double r = 1 / x;
    return Exp(big + (small + (HalfLn2PiLessHalf(0.0L) + r * Poly(r * r, D::kStirlingD))));
}

// The double LGamma row's steps, from the double argument itself: each conversion of an
// 80-bit value to double goes through memory, and so does every x87 value a loop carries
// from one step to the next.

// The recurrence down for a double x in (2.25, 8): z = x - k in (1.25, 2.25] with
// k = ceil(x - 2.25), returned, and the product (x - 1)(x - 2)...(x - k) of exact double
// factors, as a tree of six whose unused factors (x - j at most 1.25) are 1; the same
// tree in double beside it, pd, within a few ulps of the product (for ext::LogBeside).
[[gnu::always_inline]] inline long double RecurrenceDown(double x, double& z, double& pd) {
    const __m128d xv = Set<double>(x), cut = Set<double>(1.25), one = Set<double>(1.0);
    alignas(16) double f[6];
    for (int i = 0; i < 3; ++i) {
        __m128d t = Sub(xv, SetLanes(2.0 * i + 1, 2.0 * i + 2));
        Store(f + 2 * i, IfThenElse(Gt(t, cut), t, one));
    }
    z = x - __builtin_ceil(x - 2.25);
    long double p01 = static_cast<long double>(f[0]) * f[1];
    long double p23 = static_cast<long double>(f[2]) * f[3];
    long double p45 = static_cast<long double>(f[4]) * f[5];
    pd = (f[0] * f[1]) * (f[2] * f[3]) * (f[4] * f[5]);
    return (p01 * p23) * p45;
}

// x^K for a double x by squarings.
template <size_t K>
[[gnu::always_inline]] inline double PowerOf(double x) {
    if constexpr (K == 1)
        return x;
    else if constexpr (K % 2 == 0) {
        double h = PowerOf<K / 2>(x);
        return h * h;
    } else
        return PowerOf<K - 1>(x) * x;
}

// c(t) with its terms from t^K on summed in double from td, t rounded to double, in the
// SSE unit beside the x87 head: for sets whose terms from t^K on are below 2^-19 of the
// result, whose error they then leave below 2^-71.
template <size_t K, size_t N>
[[gnu::always_inline]] inline long double PolyHeadTail(long double t, double td,
                                                       const HeadTail<K, N>& c) {
    double tail = PowerOf<K>(td) * Poly(td, c.tail);
    return Poly(t, c.head) + tail;
}

// LnGammaInterval of the double row, x given also as xd, x rounded to double: each
// expansion's terms from the ninth on in double (below 2^-19 of the result on its piece).
[[gnu::always_inline]] inline long double LnGammaInterval(long double x, double xd) {
    using D = GammaData<long double>;
    if (x <= 1.25L) {
        long double z = x - 1;
        return z * PolyHeadTail(z, xd - 1, D::kLnNear1S);
    }
    if (x < 1.75L)
        return PolyHeadTail(x - Join(D::kLnMinAt2), xd - static_cast<double>(D::kLnMinAt),
                            D::kLnMinS);
    long double z = x - 2;
    return z * PolyHeadTail(z, xd - 2, D::kLnNear2S);
}

// ln(sin(pi r) / (pi r)) for r = x - rint(x) of a double x (exact), and |r|: the
// reflection's logarithm as ln(pi |r|) plus this, which needs no logarithm after the sine.
// The terms from r^(2K + 2) on are summed in double in the SSE unit beside the x87 work:
// K = 8, their sum is below 2^-21 and its error below 2^-73 absolute; K = 4, below 2^-12
// and 2^-63, which will do where the result is large, as from the Stirling point on (the
// zeros there lie within 1/8! of the poles, where those terms vanish).
template <size_t K>
[[gnu::always_inline]] inline long double LnSinPiRatio(double x, double& ar) {
    using S = GammaData<long double>::LnSinPiRatioSplit<K>;
    static_assert(K == 4 || K == 8);
    double r = x - __builtin_rint(x);
    ar = __builtin_fabs(r);
    double ud = r * r;
    double ud2 = ud * ud;
    double ud4 = ud2 * ud2;
    double power = K == 4 ? ud4 * ud : (ud4 * ud4) * ud;
    double tail = power * Poly(ud, S::kTail.v);
    long double rr = r;
    long double u = rr * rr;
    return u * Poly(u, S::kHead) + tail;
}

// Stirling's form (LnGammaStirlingForm) of a double x from 8 on, ln x by LogOfDouble and
// S(x) in double from x as it is.
[[gnu::always_inline]] inline long double LnGammaStirlingOfDouble(double x) {
    double r = 1 / x;
    double s = r * Poly(r * r, GammaData<long double>::kStirlingD);
    long double w = x;
    return ((w - 0.5L) * ext::LogOfDouble(x) - w) + (HalfLn2Pi(0.0L) + s);
}

// |sin(pi x)| and its sign for x not an integer, |x| < 2^52: the sine of pi (x - rint(x)),
// whose argument is exact; the sign flips with the parity of rint(x).
template <class T, class W>
[[gnu::always_inline]] inline W SinPi(T x, bool& negative) {
    T n = __builtin_rint(x);
    T r = x - n;
    long long k = static_cast<long long>(n);
    W s = SinPiReduced(W(r));
    negative = (s < 0) != ((k & 1) != 0);
    return s < 0 ? -s : s;
}

} // namespace brenn::vm::gamma

#endif
