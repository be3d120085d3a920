/* The extended-precision sine, cosine, hyperbolic sine and cosine, and phase of the
 * complex rows computed element by element (extended.h), in place of the C library's
 * long double functions, which cost several times as much (the unit's transcendental
 * instructions and general reductions). They need the x87 precision field at 64 bits
 * (the kernels' entry rule) and finite arguments within the bounds told below; errors
 * a few extended ulps, so that a part rounded to double is within about half an ulp
 * and 2^-9 of one. Constants and tables are exact pairs of doubles (gamma/ext_const.h:
 * an 80-bit load is microcoded), the polynomials' coefficients fitted by
 * tools/complex/ext_core.sollya.
 *   SinCosCore(y), |y| < 2^26: y = k pi/64 + r, |r| <= pi/128, with pi/64 in three
 *     parts (the first two of 32 bits, so that k times them is exact and the first
 *     difference too); with a = (k mod 128) pi/64 from one table of sines,
 *       sin y = sin a + (sin a (cos r - 1) + cos a sin r)
 *       cos y = cos a + (cos a (cos r - 1) - sin a sin r)
 *     and short polynomials in r, sin a and cos a each in two parts. Where sin a or
 *     cos a is 0 the other is +-1 and the result is +-sin r or +-cos r, which keeps
 *     its relative accuracy near the zeros.
 *   CoshSinhCore(x), |x| <= 11000: near zero (|x| < 1/4) sinh x by its polynomial and
 *     cosh x = sqrt(1 + sinh^2 x); above, from E = e^|x| by the table of 2^(j/64) in
 *     two parts and Taylor's polynomial (HalfExpCore), and 1/E.
 * The x87 unit's latencies (about six cycles a step) bound these routines, so what
 * needs no more than double precision runs beside it in the SSE unit, from the part
 * as a double: the reductions' steps, and the polynomials' terms past their first
 * (below 2^-14 of their sums) from r reduced there too. */
#ifndef BRENN_VECMATH_COMPLEX_EXT_CORE_H
#define BRENN_VECMATH_COMPLEX_EXT_CORE_H

#include <stddef.h>
#include <stdint.h>

#include "vecmath/complex/ext_core_tables.h"
#include "vecmath/complex/pow_tables.h"
#include "vecmath/gamma/ext_math.h"

namespace brenn::vm::cx {

namespace core {
using gamma::Join;
using gamma::Poly;
// The table's rows as exact pairs of doubles (the extended value) and the double rest.
struct Step {
    gamma::Ext2 hi;
    double lo;
};
constexpr Step StepOf(long double hi, long double lo) {
    return {gamma::Split2(hi), static_cast<double>(lo)};
}
// A table of rows built at compile time from an extended one.
template <class Row, size_t N>
struct Rows {
    Row v[N];
};
template <size_t N>
constexpr Rows<Step, N> SplitSteps(const long double (&a)[N][2]) {
    Rows<Step, N> t{};
    for (size_t i = 0; i < N; ++i)
        t.v[i] = StepOf(a[i][0], a[i][1]);
    return t;
}
inline constexpr auto kSinSteps2 = SplitSteps(kSinSteps);
inline constexpr auto kExpSteps2 = SplitSteps(kPowExpRows); // 2^(j/64)
// e^r - 1 - r = r^2 (1/2 + r/6 + ...), Taylor's coefficients to r^7
inline constexpr long double kExpTaylor[6] = {1.0L / 2,   1.0L / 6,   1.0L / 24,
                                              1.0L / 120, 1.0L / 720, 1.0L / 5040};
inline constexpr auto kExpP = gamma::SplitPoly<0>(kExpTaylor);
inline constexpr gamma::Ext2 kPiStepC2 = gamma::Split2(kPiStepC);
inline constexpr auto kSinP = gamma::SplitPoly<1>(kSinRest);
inline constexpr auto kCosP = gamma::SplitPoly<1>(kCosRest);
inline constexpr auto kSinhP = gamma::SplitPoly<1>(kSinhSmall);

// The nearest integer to v, |v| < 2^31, as a double and as an integer, by the shifter
// in the SSE unit: the steps of the reductions come from their argument rounded to
// double (a double part, in every caller: no rounding at all), where the x87 unit would
// round, store and reload them on the path to the result. A step off by one where
// v lies within a rounding of a half is still within the polynomials' intervals.
struct Nearest {
    double t;
    int32_t n;
};
[[gnu::always_inline]] inline Nearest NearestOf(double v) {
    constexpr double kShifter = 0x1.8p52;
    const double s = v + kShifter;
    uint64_t b;
    __builtin_memcpy(&b, &s, sizeof b);
    return {s - kShifter, static_cast<int32_t>(b)};
}

// e^r - 1 = r + r^2 (1/2 + u), u = r/6 + r^2/24 + ... + r^5/5040 (Taylor's, to r^7).
// r^2 u is below 2^-17 of the sum, so u needs no more than double precision: it is taken
// in the SSE unit from rd, r within a double rounding, by Estrin's scheme in pairs, in
// parallel with the x87 unit's reduction, and the x87 unit's path from r to the result
// is three steps.
[[gnu::always_inline]] inline long double ExpMinusOne(long double r, double rd) {
    const auto* p = &kExpP;
    __asm__("" : "+r"(p));
    const double* c = p->tail;
    const double sd = rd * rd;
    const double u = rd * ((c[1] + rd * c[2]) + sd * ((c[3] + rd * c[4]) + sd * c[5]));
    return r + r * r * (static_cast<long double>(c[0]) + u);
}

// The higher terms of SinCosCore's polynomials, c1 r^2 + c2 r^4 (sine) and
// c1 r^2 + c2 r^4 + c3 r^6 (cosine), in double.
struct SinCosTails {
    double sin, cos;
};
[[gnu::always_inline]] inline SinCosTails SinCosTailsOf(double rd) {
    const auto* ps = &kSinP;
    const auto* pc = &kCosP;
    __asm__("" : "+r"(ps), "+r"(pc));
    const double* a = ps->tail;
    const double* b = pc->tail;
    const double sd = rd * rd;
    return {sd * (a[1] + sd * a[2]), sd * (b[1] + sd * (b[2] + sd * b[3]))};
}

// +-2^k as a double, -1022 <= k <= 1023, the sign bit given
[[gnu::always_inline]] inline double ScaleOf(int k, uint64_t sign) {
    const uint64_t b = (static_cast<uint64_t>(k + 1023) << 52) | sign;
    double d;
    __builtin_memcpy(&d, &b, sizeof d);
    return d;
}

// The square root by the unit's instruction (correctly rounded; sqrtl adds a test for
// errno).
[[gnu::always_inline]] inline long double SqrtX(long double v) {
    long double r;
    __asm__("fsqrt" : "=t"(r) : "0"(v));
    return r;
}
} // namespace core

// sin y and cos y for |y| < 2^26.
[[gnu::always_inline]] inline void SinCosCore(long double y, long double& s, long double& c) {
    const core::Nearest q = core::NearestOf(static_cast<double>(y) * kStepsPerRadian);
    const long double t = q.t; // the nearest step
    const int k = q.n & 127;
    const long double r = ((y - t * kPiStepA) - t * kPiStepB) - t * core::Join(core::kPiStepC2);
    // r again in double, in the SSE unit: the first part of pi/64 has 33 bits, so that
    // below 2^20 steps its product and the first difference are exact; beyond, r rounded
    const double rd = __builtin_expect(q.n < (1 << 20) && q.n > -(1 << 20), 1)
                          ? (static_cast<double>(y) - q.t * kPiStepA) - q.t * kPiStepB
                          : static_cast<double>(r);
    // sin r = r + r^3 (c0 + ts) and cos r - 1 = r^2 (c0' + tc), the terms past the first
    // coefficients (below 2^-14 of the sums) in double from rd, off the x87 unit's path
    const core::SinCosTails tl = core::SinCosTailsOf(rd);
    const long double r2 = r * r;
    const long double sr = r + r * r2 * (core::Join(core::kSinP.head[0]) + tl.sin);
    const long double cm = r2 * (core::Join(core::kCosP.head[0]) + tl.cos); // cos r - 1
    const core::Step& ps = core::kSinSteps2.v[k];
    const core::Step& pc = core::kSinSteps2.v[(k + 32) & 127];
    const long double sa = core::Join(ps.hi), ca = core::Join(pc.hi);
    s = sa + ((ps.lo + sa * cm) + ca * sr);
    c = ca + ((pc.lo + ca * cm) - sa * sr);
}

// +-e^a / 2 for 0 <= a <= 11000, the sign sign (0 or 1 << 63): a = (64 k + j) ln2/64 + r,
// |r| <= ln2/128, and e^a = 2^k (T + (T' + T (e^r - 1))) with 2^(j/64) = T + T'
// (pow_tables.h), so that the step's rounding does not add to the result's. T and T'
// are scaled by +-2^(k-1) first, which is exact, so that the scaling is off the path
// from r to the result; ad is a rounded to double, for the step.
[[gnu::always_inline]] inline long double HalfExpCore(long double a, double ad, uint64_t sign) {
    constexpr double kInvStep = 0x1.71547652b82fep+6;    // 64 / ln 2, to double
    constexpr double kStepHi = 0xb17217f7d2000000p-70;   // ln2/64, 40 bits
    constexpr double kStepLo = -0xc21950d871319ff0p-112; // the rest, to double
    const core::Nearest q = core::NearestOf(ad * kInvStep);
    const long double t = q.t;
    const int n = q.n;
    const long double r = (a - t * kStepHi) - t * kStepLo;
    // r again in double, in the SSE unit beside the x87 unit's r: ln2/64 with a head of 29
    // bits, so that t (below 2^20) times it is exact and so is the first difference
    constexpr double kStepHi29 = 0x1.62e42ffp-7, kStepLo29 = -0x1.718432a1b0e26p-41;
    const double rd = (ad - q.t * kStepHi29) - q.t * kStepLo29;
    const long double p = core::ExpMinusOne(r, rd);
    const core::Step& row = core::kExpSteps2.v[n & 63];
    const int k = n >> 6;
    const long double scale =
        k <= 1023 ? core::ScaleOf(k - 1, sign)
                  : gamma::ext::FromBits(1ULL << 63, static_cast<uint16_t>((16382 + k) | (sign >> 48)));
    const long double h = core::Join(row.hi) * scale;
    return h + (row.lo * scale + h * p);
}

// cosh x and sinh x for |x| <= 11000.
[[gnu::always_inline]] inline void CoshSinhCore(long double x, long double& ch, long double& sh) {
    const long double a = __builtin_fabsl(x);
    if (a < 0.25L) {
        sh = x + x * (x * x) * core::Poly(x * x, core::kSinhP);
        ch = core::SqrtX(1 + sh * sh);
        return;
    }
    // x's sign in the scale, not by copysignl: its fxam and fnstsw wait for the unit's
    // work before them, so that a branch on a random sign is found wrong late.
    // E = +-e^a/2 and 1/(4E) = +-e^-a/2, exact in sign, so sh is -sinh|x| to the bit
    const long double e =
        HalfExpCore(a, __builtin_fabs(static_cast<double>(x)), static_cast<uint64_t>(x < 0) << 63);
    const long double h = 0.25L / e;
    ch = __builtin_fabsl(e) + __builtin_fabsl(h);
    sh = e - h;
}

// Finite parts with |x| below xLimit and y != 0 within SinCosCore's range: every element
// of ordinary size, tested first with one branch by the rows, so that the special cases'
// tests (an extended constant among them) are paid only where they apply.
[[gnu::always_inline]] inline bool InCores(long double x, long double y, long double xLimit) {
    const long double ay = __builtin_fabsl(y);
    return __builtin_fabsl(x) < xLimit && ay < 0x1p26L && ay > 0;
}

} // namespace brenn::vm::cx

#endif
