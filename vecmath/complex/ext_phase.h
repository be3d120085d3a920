/* The extended-precision phase (atan2) and natural logarithm of the complex rows
 * computed element by element (extended.h), in place of the unit's fpatan, fyl2x and
 * fyl2xp1 and of the C library's atan2l, logl and log1pl, which cost three to five
 * times as much. They need the x87 precision field at 64 bits (the kernels' entry rule)
 * and finite arguments; errors within about two extended ulps (2^-62 relative), so
 * that a part rounded to double moves off the correctly rounded one only within about
 * 2^-10 ulp of a midpoint. Both run on the tables of complex Pow (pow_tables.h, made
 * from MPFR by tools/complex/gen_pow_tables), as exact pairs of doubles (an 80-bit
 * load is microcoded), and on Taylor's polynomials, whose coefficients are exact
 * rationals rounded to double where their terms lie below 2^-16 of the result.
 *   AtanUnit(t), 0 <= t <= 1: c = j/256 the nearest step, d = (t - c)/(1 + t c) with
 *     t - c exact, |d| <= 2^-9; atan t = atan c + atan d, atan c in two parts and
 *     atan d = d - d^3/3 + d^5/5 - d^7/7 (truncation below 2^-72 of d). Below 1/512
 *     c = 0 and d = t: the relative accuracy of a tiny t is kept.
 *   Phase(y, x): t = min/max of |x| and |y|, then by the octant atan t, pi/2 -+ atan t
 *     or pi - atan t, pi/2 and pi as a double and its double rest, the sign of y; a
 *     zero y gives +-0 or +-pi by the sign of x, as atan2.
 *   LnSum(h, l) = ln(h + l), h > 0 and |l| below an ulp of h: h = 2^e m with m in
 *     [sqrt(1/2), sqrt 2) found from h rounded to double (m = h 2^-e exact); c = 1 + j/256
 *     the nearest step and R = 1/c to 32 bits (the table's row, with -ln R in two parts
 *     and c R - 1, exact); m - c is exact, and
 *       u = (m - c + l 2^-e) R + (c R - 1) = (h + l) 2^-e R - 1, |u| < 2^-8.4,
 *     ln(h + l) = e ln2 - ln R + u + (ln(1 + u) - u), the last by gamma's series. At
 *     j = 0 (R = 1, c R - 1 = 0) u is rounded only relative to itself, so that near 1
 *     the result keeps its relative accuracy; elsewhere -ln R or e ln2 dominates.
 *     h beyond the double's normal range goes through its bits (rare).
 *   Log1pX(g) = LnSum(1 + g, the sum's rounding error) for g > -1: exact in both
 *     words, so that ln(1 + g) keeps the relative accuracy of g. */
#ifndef BRENN_VECMATH_COMPLEX_EXT_PHASE_H
#define BRENN_VECMATH_COMPLEX_EXT_PHASE_H

#include <stddef.h>
#include <stdint.h>
#include <string.h>

#include "vecmath/complex/ext_core.h"
#include "vecmath/complex/pow_tables.h"
#include "vecmath/gamma/ext_math.h"

namespace brenn::vm::cx {

namespace core {
inline constexpr auto kAtanSteps2 = SplitSteps(kPowAtanRows); // atan(j/256), j = 0 .. 256
// atan d - d = d^3 (-1/3 + d^2/5 - d^4/7), Taylor's coefficients
inline constexpr long double kAtanTaylor[3] = {-1.0L / 3, 1.0L / 5, -1.0L / 7};
inline constexpr auto kAtanP = gamma::SplitPoly<0>(kAtanTaylor);

// A row of the logarithm's table: R = 1/c to 32 bits (exact as a double), c R - 1
// (exact: 41 bits), -ln R in an exact pair of doubles and its double rest.
struct LnRow {
    double recip, cr1;
    Step ln;
};
template <size_t N>
constexpr Rows<LnRow, N> SplitLnRows(const long double (&a)[N][3]) {
    Rows<LnRow, N> t{};
    for (size_t i = 0; i < N; ++i)
        t.v[i] = {static_cast<double>(a[i][0]),
                  static_cast<double>((1 + (long double)(int(i) + kPowLnFirst) / 256) * a[i][0] - 1),
                  StepOf(a[i][1], a[i][2])};
    return t;
}
inline constexpr auto kLnRows2 = SplitLnRows(kPowLnRows); // c = 1 + j/256, row j - kPowLnFirst

// pi/2 and pi as a double and the double rest, for the octants of Phase: row
// 2 (x < 0) + (|y| > |x|) holds {head, rest, sign of atan t}.
struct Octant {
    double hi, lo, sign;
};
inline constexpr Octant kOctants[4] = {
    {0, 0, 1},
    {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54, -1},
    {0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53, -1},
    {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54, 1},
};

// ln 2 in two parts, the head of 44 bits so that e times it is exact
constexpr double kLn2Hi = 0xb17217f7d1d00000p-64;
constexpr double kLn2Lo = static_cast<double>(-0x8654361c4c67fc0dp-112L);
} // namespace core

// atan t for 0 <= t <= 1.
[[gnu::always_inline]] inline long double AtanUnit(long double t) {
    constexpr double kShifter = 0x1.8p63;
    const long double s = (t * 256.0 + kShifter) - kShifter; // the nearest step
    const int j = static_cast<int>(static_cast<int64_t>(s));
    const long double c = s * (1.0 / 256);
    const long double d = (t - c) / (1 + t * c);
    const long double d2 = d * d;
    const core::Step& row = core::kAtanSteps2.v[j];
    return core::Join(row.hi) + (row.lo + (d + d * d2 * core::Poly(d2, core::kAtanP)));
}

// atan2(y, x) of finite parts.
[[gnu::always_inline]] inline long double Phase(long double y, long double x) {
    if (__builtin_expect(y == 0, 0)) {
        const core::Octant& pi = core::kOctants[2];
        return __builtin_copysignl(
            __builtin_signbit(x) ? static_cast<long double>(pi.hi) + pi.lo : 0.0L, y);
    }
    const long double ax = __builtin_fabsl(x), ay = __builtin_fabsl(y);
    const bool steep = ay > ax;
    const long double u = steep ? ax : ay, v = steep ? ay : ax;
    const core::Octant& o = core::kOctants[2 * (x < 0) + steep];
    const long double a = AtanUnit(u / v);
    return __builtin_copysignl(o.hi + (o.lo + o.sign * a), y);
}

namespace core {
// ln(h + l) for h whose double rounding has the bits b, exponent field 1 .. 2044, so
// that 2^-e is a normal double; l only where Low is set.
template <bool Low>
[[gnu::always_inline]] inline long double LnNormal(long double h, long double l, uint64_t b) {
    constexpr uint64_t kSqrtHalfBits = 0x3fe6a09e667f3bcdULL; // sqrt(1/2) as a double
    const int64_t e = static_cast<int64_t>(b - kSqrtHalfBits) >> 52;
    const uint64_t mb = b - (static_cast<uint64_t>(e) << 52);
    double md; // h 2^-e rounded to double, in [sqrt(1/2), sqrt 2]
    memcpy(&md, &mb, sizeof md);
    // the nearest step: (md - 1) 256 is exact, the shifter's sum rounds it to an integer
    const double js = (md - 1) * 256 + 0x1.8p52;
    uint64_t jb;
    memcpy(&jb, &js, sizeof jb);
    const double c = 1 + (js - 0x1.8p52) * (1.0 / 256);
    const LnRow& row = kLnRows2.v[static_cast<int32_t>(jb) - kPowLnFirst];
    const double scale = gamma::ext::Pow2(static_cast<int>(-e));
    long double r = h * scale - c;
    if constexpr (Low) r += l * scale;
    const long double u = r * row.recip + row.cr1;
    const long double de = static_cast<long double>(e);
    return de * kLn2Hi +
           (Join(row.ln.hi) + (de * kLn2Lo + (row.ln.lo + (u + gamma::ext::Log1pTail(u)))));
}

// The rare arguments outside that range: h = 2^e m by its bits, m in [1, 2).
[[gnu::noinline, gnu::cold]] inline long double LnWide(long double h, long double l) {
    const gamma::ext::Bits80 hb = gamma::ext::BitsOf(h);
    const int e = static_cast<int>(hb.signExponent & 0x7FFF) - 16383;
    const long double m = gamma::ext::FromBits(hb.mantissa, 16383);
    const long double s = gamma::ext::FromBits(uint64_t{1} << 63, static_cast<uint16_t>(16383 - e));
    const double md = static_cast<double>(m);
    uint64_t b;
    memcpy(&b, &md, sizeof b);
    const long double de = e;
    return de * kLn2Hi + (de * kLn2Lo + LnNormal<true>(m, l * s, b));
}
} // namespace core

// ln(h + l), h > 0 finite, |l| at most about an ulp of h.
[[gnu::always_inline]] inline long double LnSum(long double h, long double l) {
    const double hd = static_cast<double>(h);
    uint64_t b;
    memcpy(&b, &hd, sizeof b);
    if (__builtin_expect(b - (uint64_t{1} << 52) >= (uint64_t{2044} << 52), 0))
        return core::LnWide(h, l);
    return core::LnNormal<true>(h, l, b);
}

[[gnu::always_inline]] inline long double LnX(long double h) {
    const double hd = static_cast<double>(h);
    uint64_t b;
    memcpy(&b, &hd, sizeof b);
    if (__builtin_expect(b - (uint64_t{1} << 52) >= (uint64_t{2044} << 52), 0))
        return core::LnWide(h, 0);
    return core::LnNormal<false>(h, 0, b);
}

// ln(1 + g) for g > -1.
[[gnu::always_inline]] inline long double Log1pX(long double g) {
    const long double s = 1 + g;
    const long double l = __builtin_fabsl(g) <= 1 ? g - (s - 1) : 1 - (s - g);
    return LnSum(s, l);
}

} // namespace brenn::vm::cx

#endif
