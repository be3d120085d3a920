/* Pow and Powx of single (c) and double (z) complex vectors, element by element in the
 * frame of the extended rows (extended.h), one kernel for every level: a^b = exp(w) with
 * w = b ln a = b (ln|a| + i arg a), the modulus exp(Re w) and the angle Im w.
 *
 * An error d in w is a relative error d in the result, and an error d in Im w an error
 * d/|sin r| in the smaller part (r the angle's rest after whole quarter turns), so w must
 * be known to about 2^-(p+5) absolutely, Im w to that times |sin r|. ln|a| and arg a
 * come from tables of ln(1 + j/256) and atan(j/256) (pow_tables.h, made by
 * tools/complex/gen_pow_tables; pairs of doubles made from them when compiled) and short
 * series. Each step below bounds the errors of Re w and r and hands the element on
 * where the bound says that is not enough (results near the ends of the range, large
 * exponents, angles of many turns, a part near zero):
 *   a single element first in plain double (SSE; errors a few double ulps of each term,
 *     which b multiplies), for exponents up to 2^20;
 *   a double element first in extended precision (errors about 2^-63), for small
 *     exponents;
 *   then, for exponents up to 2^30 and |a| within 2^-450..2^450, in pairs of doubles
 *     (SSE, about 2^-101 of the largest term): |a|^2 by exact products, r = m/c - 1
 *     from the exact product with the row's reciprocal and ln(1 + r) as r - r^2/2
 *     exactly and the rest of its series; atan t_j + d with num - t_j den and
 *     den + t_j num exact; w's products of heads exact (Dekker), Im w reduced by pi/2's
 *     27-bit parts. Pairs of doubles are several times quicker than pairs of extended
 *     numbers, whose 80-bit loads and stores and single stack of registers slow
 *     every step;
 *   last, in pairs of extended numbers (hi + lo, about 2^-105 relative), first with
 *     ln|a| and arg a to about 2^-72, then with the closest ones:
 *     |a|^2 exactly as a sum of Dekker products (splitter 2^32 + 1 on the 64-bit
 *       significand), brought to m in [sqrt(1/2), sqrt 2) by its exponent e;
 *     ln m = ln c + 2 atanh(r/(2 + r)), c = 1 + j/256 the nearest centre and m/c = 1 + r
 *       exact in two words, the series' cube term in two words;
 *     arg a from t = min/max of the parts (< 1) as atan t_j + atan d, t_j = j/256 the
 *       nearest and d = (t - t_j)/(1 + t t_j) from exact products, then its series;
 *     Im w less its multiple q of pi/2 (pi/2 in three 64-bit parts, each product with
 *       q exact in two words).
 * A double element's result is exp(hi) (1 + lo) of Re w in extended precision, times
 * the sine and cosine of the rest's hi (the unit's own instruction), corrected by its
 * lo. A single element takes exp(Re w) and the sine and cosine of the rest in double
 * (SSE) once w is known to the bounds above: a few double ulps, far inside a single
 * ulp, and much quicker than the unit's own instructions.
 * In both, arg a is kept as k eighth turns (its octant's axis or diagonal) and the angle
 * d to it, and u k eighth turns are reduced exactly (less their nearest whole turns), so
 * that an a on or near an axis or diagonal keeps its small angle at full precision, and
 * an a on one with a real b turns exactly: integer powers of negative reals come out
 * real, of imaginary numbers real or imaginary, with exact zero parts. A real a to a
 * real b gives a zero real part +0 and a zero imaginary part the sign of Im a times that
 * of b (the side of the cut).
 *
 * Special values: a^0 = 1 for every a, NaNs included. A zero a gives 0 for Re b > 0,
 * +inf with status 2 (a pole) for Re b < 0, NaN with status 1 for Re b = 0 and Im b not
 * zero, NaN (quiet, no status) for a NaN b. Every other element with an infinite or NaN
 * part is cexp(b clog a) as C99 Annex G defines it: the extended clog and cexp of
 * ext_elem.h around C's complex product, which recovers infinities (cexp's domain error
 * for an infinite imaginary part is reported, status 1). NaNs come out quiet. */
#include <math.h>

#include "vecmath/complex/exact.h"
#include "vecmath/complex/ext_elem.h"
#include "vecmath/complex/ext_phase.h"
#include "vecmath/complex/extended.h"
#include "vecmath/complex/pow_tables.h"
#include "vecmath/explog/exp_scalar.h"

namespace brenn::vm::cx {
namespace {

// An unevaluated sum hi + lo, |lo| at most half an ulp of hi: of extended numbers (DD)
// or of doubles (D2, on SSE, whose steps are several times quicker than the extended
// ones with their 80-bit loads and stores and single stack of registers).
template <class T>
struct Words {
    T hi, lo;
};
using DD = Words<LD>;
using D2 = Words<double>;

template <class T>
inline Words<T> TwoSum(T a, T b) {
    const T s = a + b, bb = s - a;
    return {s, (a - (s - bb)) + (b - bb)};
}
template <class T>
inline Words<T> FastTwoSum(T a, T b) { // |a| >= |b|
    const T s = a + b;
    return {s, b - (s - a)};
}
// A factor split once for the exact products it enters: the 64-bit significand in 32-bit
// halves by 2^32 + 1 (Veltkamp).
struct XHalves {
    LD v, h, l;
};
constexpr XHalves SplitX(LD a) {
    constexpr LD kSplit = 4294967297.0L;
    const LD t = a * kSplit, h = t - (t - a);
    return {a, h, a - h};
}
constexpr XHalves Negated(const XHalves& a) {
    return {-a.v, -a.h, -a.l};
}
// Dekker's exact product of split factors.
constexpr DD TwoProduct(const XHalves& a, const XHalves& b) {
    const LD p = a.v * b.v;
    return {p, ((a.h * b.h - p) + a.h * b.l + a.l * b.h) + a.l * b.l};
}
constexpr DD TwoProduct(LD a, LD b) {
    return TwoProduct(SplitX(a), SplitX(b));
}
inline DD Add(DD a, DD b) {
    const DD s = TwoSum(a.hi, b.hi);
    return FastTwoSum(s.hi, s.lo + a.lo + b.lo);
}
template <class T>
inline Words<T> Add(Words<T> a, T b) {
    const Words<T> s = TwoSum(a.hi, b);
    return FastTwoSum(s.hi, s.lo + a.lo);
}
inline DD Mul(DD a, DD b) {
    const DD p = TwoProduct(a.hi, b.hi);
    return FastTwoSum(p.hi, p.lo + (a.hi * b.lo + a.lo * b.hi));
}
inline DD Mul(DD a, LD b) {
    const DD p = TwoProduct(a.hi, b);
    return FastTwoSum(p.hi, p.lo + a.lo * b);
}
// The same from split factors (ah the split of a.hi), left as the product's head and the
// rest without the last normalisation (the rest within about an ulp of the head), for
// the sums of w, whose Add normalises.
inline DD MulLoose(const DD& a, const XHalves& ah, const XHalves& b) {
    const DD p = TwoProduct(ah, b);
    return {p.hi, p.lo + a.lo * b.v};
}
inline DD Div(DD a, DD b) {
    const LD q = a.hi / b.hi;
    const DD r = Add(a, Mul(b, -q)); // a - q b, its head cancelled exactly
    return FastTwoSum(q, (r.hi + r.lo) / b.hi);
}
inline DD Sqrt(DD a) {
    const LD s = sqrtl(a.hi);
    const DD r = Add(a, Mul(DD{s, 0}, -s));
    return FastTwoSum(s, (r.hi + r.lo) / (2 * s));
}
// a 2^e, exact: e stays far inside the extended range. A power of two that double holds
// is loaded from its 8 bytes; others are put together in memory from the significand and
// the exponent, whose 10-byte load waits for both stores.
inline LD Scaled(LD a, int e) {
    if (e >= -1022 && e <= 1023) return a * LD(Pow2D(e));
    const unsigned long long sig = 1ULL << 63;
    const unsigned short se = (unsigned short)(16383 + e);
    LD f;
    __builtin_memcpy(&f, &sig, 8);
    __builtin_memcpy(reinterpret_cast<char*>(&f) + 8, &se, 2);
    return a * f;
}
inline DD Scaled(DD a, int e) {
    return {Scaled(a.hi, e), Scaled(a.lo, e)};
}

// pi/2 in three 64-bit parts (192 bits), ln 2 in two (128 bits).
constexpr LD kPio2[3] = {0xc90fdaa22168c235p-63L, -0xece675d1fc8f8cbbp-129L,
                         -0xb7ed8fbbacc19c60p-194L};
constexpr DD kPio2DD = {kPio2[0], kPio2[1]};
constexpr XHalves kPio2XHalves = SplitX(kPio2[0]);
// k pi/4, k = -4..4, as Mul(kPio2DD, k/2) gives it.
struct EighthTurns {
    DD v[9];
    constexpr EighthTurns() : v{} {
        for (int k = -4; k <= 4; ++k) {
            const DD p = TwoProduct(kPio2[0], k * 0.5L);
            const LD lo = p.lo + kPio2[1] * (k * 0.5L), hi = p.hi + lo;
            v[k + 4] = {hi, lo - (hi - p.hi)};
        }
    }
};
constexpr EighthTurns kEighthTurns;
// ln 2 with a 48-bit head (its products with exponents below 2^12 exact) and the rest.
constexpr LD kLn2A = 0xb17217f7d1cfp-48L, kLn2B = 0xf35793c7673007e6p-113L;
constexpr DD kThirdDD = {0xaaaaaaaaaaaaaaabp-65L, -0xaaaaaaaaaaaaaaabp-130L};
constexpr DD kLn2DD = {0xb17217f7d1cf79acp-64L, -0xd871319ff0342543p-130L};

// A positive normal s as m 2^e, m in [sqrt(1/2), sqrt 2), from its bits: within double's
// normal range those of s rounded to double (m may then lie a double ulp outside), else
// those of s itself, through memory (an 80-bit store and load, each slow).
inline LD Normalized(LD s, int& e) {
    const double sd = double(s);
    if (__builtin_expect(sd >= 0x1p-1022 && sd <= 0x1p1022, 1)) {
        const unsigned long long b = BitsOf(sd);
        const bool high = (b & 0xfffffffffffffULL) >= 0x6a09e667f3bcdULL; // >= sqrt 2
        e = int(b >> 52) - 1023 + high;
        return s * LD(Pow2D(-e));
    }
    unsigned long long sig;
    unsigned short se;
    __builtin_memcpy(&sig, &s, 8);
    __builtin_memcpy(&se, reinterpret_cast<const char*>(&s) + 8, 2);
    const bool high = sig >= 0xb504f333f9de6485ULL; // significand >= sqrt 2
    e = int(se) - 16383 + high;
    se = high ? 16382 : 16383;
    LD m;
    __builtin_memcpy(&m, &sig, 8);
    __builtin_memcpy(reinterpret_cast<char*>(&m) + 8, &se, 2);
    return m;
}

// The nearest integer of |v| < 2^62, by the 64-bit significand's rounding (ties to even).
inline LD NearestX(LD v) {
    return (v + 0x1.8p63L) - 0x1.8p63L;
}
inline int Nearest(LD v) {
    return int(NearestX(v));
}
// rintl(v) for finite v without the unit's slow rounding instruction: a zero keeps v's
// sign, and beyond 2^62 v is an integer already.
inline LD Rint(LD v) {
    if (!(fabsl(v) < 0x1p62L)) return v;
    const LD r = NearestX(v);
    return r == 0 ? v * 0 : r;
}

// The rows of ln m: m = c (1 + r), c = 1 + j/256 the nearest centre, ln m = -ln(1/c) +
// 2 atanh(r/(2 + r)), |r/(2 + r)| < 2^-9.4. In extended precision, absolute error about
// 2^-64 (the row's reciprocal and 1/c times m rounded once); in two words about 2^-105
// relative to ln m (the product m/c exact, the cube term in two words).
inline const LD* LnRow(LD m) {
    return kPowLnRows[Nearest((m - 1) * 256) - kPowLnFirst];
}
[[gnu::always_inline]] inline LD LnNearOneX(LD m) {
    const LD* row = LnRow(m);
    const LD r = m * row[0] - 1, u = r / (2 + r), v = u * u;
    return row[1] + 2 * (u + u * v * (1 / 3.0L + v * (0.2L + v * (1 / 7.0L))));
}
DD LnNearOne(DD m) {
    const LD* row = LnRow(m.hi);
    const DD p = TwoProduct(m.hi, row[0]);
    const DD r = TwoSum(p.hi - 1, p.lo + m.lo * row[0]); // p.hi - 1 exact
    const DD u = Div(r, Add(r, 2.0L));
    const DD u2 = Mul(u, u);
    const LD v = u2.hi;
    // 2 (u + u^3/3 + u^5 (1/5 + u^2/7 + u^4/9 + u^6/11))
    const LD tail = u2.hi * u.hi * v * (0.2L + v * (1 / 7.0L + v * (1 / 9.0L + v * (1 / 11.0L))));
    const DD cube = Mul(Mul(u2, u), kThirdDD);
    return Add(Scaled(Add(Add(u, cube), tail), 1), DD{row[1], row[2]});
}

// ln|a| of finite parts, not both zero, in extended precision: |a|^2 rounded (relative
// error 2^-63 at most), so an absolute error of a few 2^-64 beside e ln 2.
[[gnu::always_inline]] inline LD LnAbsX(LD x, LD y) {
    int e;
    const LD m = Normalized(x * x + y * y, e);
    return 0.5L * (LnNearOneX(m) + e * kLn2DD.hi);
}

// ln|a| of finite parts, not both zero, in two words: |a|^2 exact.
DD LnAbs(LD x, LD y) {
    DD s = Add(TwoProduct(x, x), TwoProduct(y, y));
    int e;
    const LD m = Normalized(s.hi, e);
    s = {m, Scaled(s.lo, -e)};
    const DD ln = Add(LnNearOne(s), Mul(kLn2DD, LD(e)));
    return {0.5L * ln.hi, 0.5L * ln.lo};
}

// ln|a| of parts of at most 53 bits, not both zero, as hi + lo, cheaper than LnAbs:
// |a|^2 exact, m/c - 1 = r exact (m's 32-bit halves times the 32-bit reciprocal), then
// ln(1 + r) as r + the rest of its series to r^10 in extended precision. The error is at
// most |r| 2^-73 + 2^-80 + |e| 2^-110 (the series' rounding, then the sums), *err.
[[gnu::always_inline]] inline DD LnAbsMid(LD x, LD y, LD* err) {
    const DD s = Add(TwoProduct(x, x), TwoProduct(y, y));
    int e;
    const LD m = Normalized(s.hi, e), sl = Scaled(s.lo, -e);
    const LD* row = LnRow(m);
    constexpr LD kSplit = 4294967297.0L;
    const LD t = m * kSplit, mh = t - (t - m), ml = m - mh;
    const DD r = TwoSum(mh * row[0] - 1, ml * row[0] + sl * row[0]); // both products exact
    // the rest of the series by Estrin's scheme, whose short chains overlap
    const LD q = r.hi, q2 = q * q, q4 = q2 * q2;
    const LD p0 = (-0.5L + q * (1 / 3.0L)) + q2 * (-0.25L + q * 0.2L);
    const LD p1 = (-1 / 6.0L + q * (1 / 7.0L)) + q2 * (-0.125L + q * (1 / 9.0L));
    const LD rest = q2 * ((p0 + q4 * p1) + (q4 * q4) * -0.1L);
    const DD h = TwoSum(e * kLn2A, row[1]), g = TwoSum(h.hi, q); // e kLn2A exact
    const DD ln = FastTwoSum(g.hi, g.lo + (h.lo + (e * kLn2B + row[2] + r.lo + rest)));
    *err = fabsl(q) * 0x1p-73L + 0x1p-80L + fabsl(LD(e)) * 0x1p-110L;
    return {0.5L * ln.hi, 0.5L * ln.lo};
}

// atan(num/den) for parts of at most 53 bits, 0 <= num <= den, den > 0, as hi + lo within
// |atan| 2^-72, cheaper than AtanRatio: num - t_j den exact (t_j has 8 bits), the
// denominator den + t_j num exact in two words, d = q + ql from the quotient's exact
// residual, then d + the rest of the series to d^7 (|d| <= 2^-9).
[[gnu::always_inline]] inline DD AtanRatioMid(LD num, LD den) {
    const int j = Nearest(num / den * 256);
    const LD tj = j * 0x1p-8L, n = num - tj * den;
    const DD dn = FastTwoSum(den, tj * num);
    const LD q = n / dn.hi;
    const DD p = TwoProduct(q, dn.hi);
    const LD ql = (((n - p.hi) - p.lo) - q * dn.lo) / dn.hi, v = q * q;
    const LD rest = -q * v * (1 / 3.0L - v * (0.2L - v * (1 / 7.0L)));
    const DD h = FastTwoSum(kPowAtanRows[j][0], q); // atan t_j > 2^-9 >= |q| unless j = 0
    return FastTwoSum(h.hi, h.lo + (kPowAtanRows[j][1] + ql + rest));
}

// atan(num/den), 0 <= num <= den, den > 0, in extended precision: num/den rounded once
// (a relative error about 2^-64), then AtanUnit (ext_phase.h: t_j = j/256 the nearest,
// atan t_j in two parts and atan d, d = (num/den - t_j)/(1 + t_j num/den) by its series).
[[gnu::always_inline]] inline LD AtanRatioX(LD num, LD den) {
    return AtanUnit(num / den);
}
DD AtanRatio(LD num, LD den) {
    const int j = Nearest(num / den * 256);
    const LD tj = j * 0x1p-8L;
    const DD t = Div(Add(TwoProduct(-tj, den), num), Add(TwoProduct(tj, num), den));
    const DD t2 = Mul(t, t);
    const LD v = t2.hi;
    // t - t^3/3 + t^5 (1/5 - t^2/7 + t^4/9 - t^6/11)
    const LD tail = t2.hi * t.hi * v * (0.2L - v * (1 / 7.0L - v * (1 / 9.0L - v * (1 / 11.0L))));
    const DD cube = Mul(Mul(t2, t), kThirdDD);
    return Add(Add(Add(t, DD{-cube.hi, -cube.lo}), tail),
               DD{kPowAtanRows[j][0], kPowAtanRows[j][1]});
}

// arg a of finite parts, not both zero, as k eighth turns (|k| <= 4) and sg atan(t),
// t = num/den in [0, 1), by the octants of atan2 (the diagonals whole eighths): the
// turns stay exact, so that an a near an axis or a diagonal keeps its small angle to it
// at full precision.
struct Octant {
    int k, sg;
    LD num, den;
};
inline Octant OctantOf(LD x, LD y) {
    const LD ax = fabsl(x), ay = fabsl(y);
    Octant o;
    if (ay <= ax) {
        o = {__builtin_signbit(x) ? 4 : 0, __builtin_signbit(x) ? -1 : 1, ay, ax};
        if (ay == ax) o.k += o.sg, o.num = 0;
    } else {
        o = {2, __builtin_signbit(x) ? 1 : -1, ax, ay};
    }
    if (__builtin_signbit(y)) o.k = -o.k, o.sg = -o.sg;
    return o;
}
// The octant's angle in two words.
DD OctantAngle(const Octant& o) {
    const DD at = AtanRatio(o.num, o.den);
    return {o.sg * at.hi, o.sg * at.lo};
}

// An angle as j quarter turns and a rest r + rl, |r| about pi/4 at most.
struct Angle {
    long long j;
    LD r, rl;
};

// Im w less its multiple of pi/2. Beyond 2^62 w is left to sincosl's own reduction.
// Coarse: below 2^31 quarter turns by pi/2's parts of 32, 32 and 64 bits (ext_elem.h), the
// first two products exact, an error below |q| 2^-130 (pi/2's own rest beyond them).
template <bool Coarse = false>
[[gnu::always_inline]] inline Angle Reduced(DD w) {
    if (!(fabsl(w.hi) > 0.785398163397448309615660845819875721L && fabsl(w.hi) < 0x1p62L))
        return {0, w.hi, w.lo};
    const LD q = NearestX(w.hi * 0.636619772367581343075535053490057448L);
    if (Coarse && fabsl(q) < 0x1p31L) {
        const DD r = TwoSum(w.hi - q * kPio2A, -(q * kPio2B)); // the heads cancel exactly
        const DD s = FastTwoSum(r.hi, r.lo + (w.lo - q * kPio2C));
        return {(long long)q, s.hi, s.lo};
    }
    const XHalves hq = SplitX(q);
    const DD p1 = TwoProduct(hq, kPio2XHalves), p2 = TwoProduct(hq, SplitX(kPio2[1]));
    DD r = Add(DD{w.hi - p1.hi, 0}, w.lo - p1.lo); // the heads cancel exactly
    r = Add(r, -p2.hi);
    r = Add(r, -(p2.lo + q * kPio2[2]));
    return {(long long)q, r.hi, r.lo};
}

// An extended hi + lo in two doubles: hi rounded, the rest (exact in extended) and lo
// rounded once in extended and once to double, within 2^-105.9 of the value.
constexpr D2 ToD2(LD hi, LD lo) {
    const double h = double(hi);
    return {h, double((hi - h) + lo)};
}
// k pi/4, k = -4..4, in two doubles.
struct EighthTurnsD {
    D2 v[9];
    constexpr EighthTurnsD() : v{} {
        for (int k = 0; k < 9; ++k)
            v[k] = ToD2(kEighthTurns.v[k].hi, kEighthTurns.v[k].lo);
    }
};
constexpr EighthTurnsD kEighthTurnsD;
// pi/2 in parts of 27, 27, 27 and 53 bits: the first three times a count of quarter
// turns below 2^26 exact.
constexpr double kPio2D[4] = {0x1.921fb54p+0, 0x1.10b461p-30, 0x1.a62633p-58,
                              0x1.45c06e0e68948p-86};
// pi/2 in two doubles (107 bits).
constexpr double kPio2Words[2] = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};

// The rows of ln c and atan t_j in pairs of doubles, and the reciprocals (32 bits, exact
// in double), made from the extended rows when the program is compiled.
struct LnRowsD {
    double rc[182];
    D2 ln[182];
    constexpr LnRowsD() : rc{}, ln{} {
        for (int i = 0; i < 182; ++i) {
            rc[i] = double(kPowLnRows[i][0]);
            ln[i] = ToD2(kPowLnRows[i][1], kPowLnRows[i][2]);
        }
    }
};
constexpr LnRowsD kLnRowsD;
struct AtanRowsD {
    D2 v[257];
    constexpr AtanRowsD() : v{} {
        for (int i = 0; i < 257; ++i)
            v[i] = ToD2(kPowAtanRows[i][0], kPowAtanRows[i][1]);
    }
};
constexpr AtanRowsD kAtanRowsD;

// The nearest integer of |v| < 2^51 in double.
inline double NearestD(double v) {
    return (v + 0x1.8p52) - 0x1.8p52;
}

// ln|a| in pairs of doubles, for parts whose larger magnitude lies in [2^-450, 2^450]:
// |a|^2 within 2^-105 of itself (exact products, a smaller square below the denormal
// range far below that), m = |a|^2 2^-e in [sqrt(1/2), sqrt 2) exact, r = m/c - 1 from
// the exact product with the row's reciprocal, ln(1 + r) as r - r^2/2 (exact sum and
// product) and the rest of the series to r^10 in double. Error at most |r|^3 2^-50 (the
// rest's roundings, generously) + (|r| + 1 + |e|) 2^-100, *err.
[[gnu::always_inline]] inline D2 LnAbsMidD(double x, double y, double* err) {
    double p, pe, q, qe;
    ExactProduct(x, x, p, pe);
    ExactProduct(y, y, q, qe);
    D2 s = TwoSum(p, q);
    s = FastTwoSum(s.hi, s.lo + (pe + qe));
    const uint64_t b = BitsOf(s.hi);
    const int e = int(b >> 52) - 1023 + ((b & 0xfffffffffffffULL) >= 0x6a09e667f3bcdULL);
    const double sc = Pow2D(-e), m = s.hi * sc, sl = s.lo * sc;
    const int i = int(NearestD((m - 1) * 256)) - kPowLnFirst;
    const double rc = kLnRowsD.rc[i];
    double pr, pre;
    ExactProduct(m, rc, pr, pre);
    const D2 r = TwoSum(pr - 1, pre + sl * rc); // pr - 1 exact
    const double t = r.hi, t2 = t * t, t4 = t2 * t2;
    double sq, sqe;
    ExactProduct(t, t, sq, sqe);
    const D2 z = TwoSum(t, -0.5 * sq); // exact: r - r^2/2's head
    // r^3 (1/3 - r/4 + ... - r^7/10) by Estrin's scheme
    const double c0 = (1 / 3.0 - t * 0.25) + t2 * (0.2 - t * (1 / 6.0));
    const double c1 = (1 / 7.0 - t * 0.125) + t2 * (1 / 9.0 - t * 0.1);
    const double rest = (t * t2) * (c0 + t4 * c1);
    const double low = (z.lo + r.lo) - (0.5 * sqe + t * r.lo) + rest;
    constexpr double kLn2A = 0x1.62e42fefa38p-1, kLn2B = 0x1.ef35793c7673p-45; // 42 bits
    const D2 h = TwoSum(e * kLn2A, kLnRowsD.ln[i].hi), g = TwoSum(h.hi, z.hi); // e kLn2A exact
    const D2 ln = FastTwoSum(g.hi, g.lo + (h.lo + ((e * kLn2B + kLnRowsD.ln[i].lo) + low)));
    *err = fabs(t) * t2 * 0x1p-50 + (fabs(t) + 1 + fabs(double(e))) * 0x1p-100;
    return {0.5 * ln.hi, 0.5 * ln.lo};
}

// atan(num/den) in pairs of doubles, for 0 <= num <= den, den in [2^-450, 2^450]: t_j the
// nearest, num - t_j den (its product exact, the difference by Sterbenz) and den + t_j num
// in two words, d = q + ql from the quotient's exact residual, then d + the rest of the
// series to d^7 in double (|d| <= 2^-9). Error at most |d|^3 2^-50 (the rest's roundings)
// + |atan| 2^-100, *err.
[[gnu::always_inline]] inline D2 AtanRatioMidD(double num, double den, double* err) {
    const int j = int(NearestD(num / den * 256));
    const double tj = j * 0x1p-8;
    double p, pe, p2, pe2;
    ExactProduct(tj, den, p, pe);
    ExactProduct(tj, num, p2, pe2);
    const D2 n = TwoSum(num - p, -pe);
    D2 dn = TwoSum(den, p2);
    dn = FastTwoSum(dn.hi, dn.lo + pe2);
    const double q = n.hi / dn.hi;
    double pq, pqe;
    ExactProduct(q, dn.hi, pq, pqe);
    const double ql = ((((n.hi - pq) - pqe) + n.lo) - q * dn.lo) / dn.hi, v = q * q;
    const double rest = -q * v * (1 / 3.0 - v * (0.2 - v * (1 / 7.0)));
    const D2 h = FastTwoSum(kAtanRowsD.v[j].hi, q); // atan t_j > 2^-9 >= |q| unless j = 0
    *err = fabs(q) * v * 0x1p-50 + fabs(h.hi) * 0x1p-100;
    return FastTwoSum(h.hi, h.lo + (kAtanRowsD.v[j].lo + ql + rest));
}

// w = b (l + i (k pi/4 + d)) less j0 quarter turns (g pi/2 the rest of u k pi/4) in
// double words from l = ln|a| and d (absolute errors el and ed), for |u|, |v| <= 2^30:
// every product of heads exact (Dekker), the cross products and the sums within about
// 2^-101 of the largest term; Im w less its nearest multiple q of pi/2 below 2^26 (the
// three short parts' products exact, each step a two-word sum). True when the bounds of
// PowFinite hold; an absolute 2^-1000 covers products in the denormal range.
template <int P>
[[gnu::always_inline]] inline bool WordsInDouble(const D2& l, const D2& d, int k, LD u, LD v,
                                                 LD g, double el, double ed, DD& e, Angle& an) {
    constexpr double kTol = P == 53 ? 0x1p-58 : 0x1p-29;
    const double ud = double(u), vd = double(v), gh = double(g), gl = double(g - gh);
    D2 t = TwoSum(kEighthTurnsD.v[k + 4].hi, d.hi);
    t = FastTwoSum(t.hi, t.lo + (kEighthTurnsD.v[k + 4].lo + d.lo));
    double p1, e1, p2, e2, p3, e3, p4, e4, p5, e5;
    ExactProduct(ud, l.hi, p1, e1);
    ExactProduct(vd, t.hi, p2, e2);
    ExactProduct(gh, kPio2Words[0], p3, e3);
    ExactProduct(ud, d.hi, p4, e4);
    ExactProduct(vd, l.hi, p5, e5);
    // Re w = u l - v t
    D2 re = TwoSum(p1, -p2);
    re = FastTwoSum(re.hi, re.lo + ((e1 - e2) + (ud * l.lo - vd * t.lo)));
    // Im w = g pi/2 + u d + v l
    const D2 s = TwoSum(p4, p5), s2 = TwoSum(s.hi, p3);
    const double lo = (s2.lo + s.lo) + ((e3 + e4 + e5) + ((ud * d.lo + vd * l.lo) +
                                                          (gh * kPio2Words[1] + gl * kPio2Words[0])));
    const D2 iw = FastTwoSum(s2.hi, lo);
    long long q = 0;
    D2 r = iw;
    if (fabs(iw.hi) > 0.785398163397448309615660845819875721) {
        if (!(fabs(iw.hi) < 0x1p25)) return false;
        const double qd = (iw.hi * 0.636619772367581343075535053490057448 + 0x1.8p52) - 0x1.8p52;
        q = (long long)qd;
        r = TwoSum(iw.hi - qd * kPio2D[0], -(qd * kPio2D[1])); // the first difference exact
        r = Add(r, -(qd * kPio2D[2]));
        r = Add(r, iw.lo - qd * kPio2D[3]);
    }
    const double au = fabs(ud), av = fabs(vd);
    const double em = (au * el + av * ed) + ((fabs(p1) + fabs(p2)) * 0x1p-100 + 0x1p-1000);
    const double ea = (au * ed + av * el) + ((fabs(p4) + fabs(p5) + fabs(iw.hi)) * 0x1p-100 + 0x1p-100);
    if (!(em <= kTol && fabs(r.hi) <= 1 && ea <= 8 * kTol * fabs(r.hi))) return false;
    e = {re.hi, re.lo};
    an = {q, r.hi, r.lo};
    return true;
}

// b k eighth turns less their nearest multiple of a whole turn, exact: j0 quarter turns
// and a rest g in [-1/2, 1/2] quarter turns.
inline void QuarterTurns(LD b, int k, LD& j0, LD& g) {
    const LD f0 = b * k * 0.5L, f = f0 - 4 * Rint(f0 * 0.25L);
    j0 = Rint(f);
    g = f - j0;
}

// sin and cos of |r| <= pi/4 (or a little beyond): below 2^26 by the table-driven core
// (ext_core.h; a zero keeps its sign), up to 2^62 by the unit's own instruction, which
// needs no reduction there; beyond (an angle left unreduced, never judged) sincosl.
[[gnu::always_inline]] inline void SinCosReduced(LD r, LD& s, LD& c) {
    if (__builtin_expect(fabsl(r) < 0x1p26L, 1)) {
        if (r == 0) {
            s = r, c = 1;
            return;
        }
        return SinCosCore(r, s, c);
    }
    if (!(fabsl(r) < 0x1p62L)) return sincosl(r, &s, &c);
    __asm__("fsincos" : "=t"(c), "=u"(s) : "0"(r));
}

// e^w for |w| < 11000 from the rows of 2^(j/64): w = (64 k + j) ln2/64 + r, |r| <= ln2/128
// (n ln2/64's head exact and w less it exact), e^r - 1 by its Taylor polynomial to r^7
// (truncation below 2^-75): about an extended ulp, as expl, which takes the rest. The
// constants are doubles and the rows and coefficients exact pairs of doubles (ext_core.h):
// an 80-bit load is microcoded.
[[gnu::always_inline]] inline LD ExpX(LD w) {
    if (!(fabsl(w) < 11000)) return expl(w);
    constexpr double kInvLn2o64 = 0x1.71547652b82fep+6;
    constexpr double kLn2o64A = 0x58b90bfbe8ep-49, kLn2o64B = 0x1.ef35793c7673p-51;
    const LD nf = NearestX(w * kInvLn2o64);
    const int n = int(nf), j = n & 63;
    const LD r = (w - nf * kLn2o64A) - nf * kLn2o64B;
    const LD p = r + r * r * core::Poly(r, core::kExpP);
    const core::Step& row = core::kExpSteps2.v[j];
    const LD h = core::Join(row.hi);
    return Scaled(h + (h * p + row.lo), (n - j) / 64);
}

// sin and cos of |r| <= 1 in double by their Taylor series to r^13 and r^14: relative
// truncation below 2^-40 at 1 and 2^-45 within pi/4, rounding a few double ulps.
inline void SinCosD(double r, double& s, double& c) {
    const double r2 = r * r;
    s = r + r * r2 *
                (-1 / 6.0 +
                 r2 * (1 / 120.0 +
                       r2 * (-1 / 5040.0 + r2 * (1 / 362880.0 + r2 * (-1 / 39916800.0 +
                                                                      r2 * (1 / 6227020800.0))))));
    c = 1 + r2 * (-0.5 + r2 * (1 / 24.0 +
                               r2 * (-1 / 720.0 +
                                     r2 * (1 / 40320.0 + r2 * (-1 / 3628800.0 +
                                                               r2 * (1 / 479001600.0 -
                                                                     r2 * (1 / 87178291200.0)))))));
}

// (s, c) turned by j quarter turns.
template <class T>
inline void Turn(long long j, T& s, T& c) {
    switch (j & 3) {
    case 0:
        break;
    case 1: {
        const T t = s;
        s = c, c = -t;
        break;
    }
    case 2:
        s = -s, c = -c;
        break;
    default: {
        const T t = s;
        s = -c, c = t;
        break;
    }
    }
}

// exp(e) (cos + i sin)(angle); a zero factor stays an exact zero beside an infinite
// modulus. For a single element whose modulus and angle double reaches (|Re w| < 700,
// the rest at most 1), both in double: the products are within a few double ulps, and
// the one rounding to single makes the result's error (once Re w and the angle are
// within the bounds above); the kernel's entry rule gives SSE round to nearest with every
// exception masked. Else, and for a double element, in extended.
template <int P>
[[gnu::always_inline]] inline void Compose(const DD& e, const Angle& an, LD& re, LD& im) {
    if (P == 24 && fabsl(e.hi) < 700 && fabsl(an.r) <= 1) {
        const double m = ExpScalarCore(double(e.hi));
        double s, c;
        SinCosD(double(an.r), s, c);
        Turn(an.j, s, c);
        re = m * c;
        im = m * s;
        return;
    }
    LD m = ExpX(e.hi);
    if (__builtin_isfinite(m)) m += m * e.lo;
    LD s, c;
    SinCosReduced(an.r, s, c);
    if (an.rl != 0) {
        const LD s1 = s + c * an.rl;
        c -= s * an.rl;
        s = s1;
    }
    Turn(an.j, s, c);
    re = c == 0 ? c : m * c;
    im = s == 0 ? s : m * s;
}

// The result from Re w and the reduced Im w; a and b real give exact zero parts: +0 real,
// imaginary signed by the side of the cut and b.
template <int P>
[[gnu::always_inline]] inline void Finish(const DD& e, const Angle& an, LD y, LD u, LD v, LD& re,
                                          LD& im) {
    Compose<P>(e, an, re, im);
    if (y == 0 && v == 0) {
        if (re == 0) re = 0;
        if (im == 0) im = __builtin_signbit(y) != __builtin_signbit(u) ? -0.0L : 0.0L;
    }
}

// A single element's a^b with w in plain double, for exponents up to 2^20: the parts'
// squares exact and their sum rounded once, r = m/c - 1 and d = (t - t_j)/(1 + t t_j)
// within a few double ulps (the products with the row's reciprocal and with t_j of 8
// bits exact but for one rounding), then their series, w and its reduction by pi/2's
// 27-bit parts. The bounds of PowFinite, with each term's error at most 2^-50 of it (ln|a|
// absolutely, its tables' heads only); true, with the result, when they hold. The extended
// pass, closer, takes what they refuse.
[[gnu::always_inline]] inline bool PowSingleInDouble(LD x, LD y, LD u, LD v, const Octant& o,
                                                     LD j0, LD g, LD& re, LD& im) {
    const double xd = double(x), yd = double(y), ud = double(u), vd = double(v);
    if (!(fabs(ud) <= 0x1p20 && fabs(vd) <= 0x1p20)) return false;
    const double sq = xd * xd + yd * yd;
    const uint64_t b = BitsOf(sq);
    const int e = int(b >> 52) - 1023 + ((b & 0xfffffffffffffULL) >= 0x6a09e667f3bcdULL);
    const double m = sq * Pow2D(-e);
    const int i = int(NearestD((m - 1) * 256)) - kPowLnFirst;
    const double r = m * kLnRowsD.rc[i] - 1; // |r| < 2^-8.5: the series' r^7 below 2^-62
    const double l1p = r - r * r * (0.5 - r * (1 / 3.0 - r * (0.25 - r * (0.2 - r * (1 / 6.0)))));
    const double l = 0.5 * ((e * 0x1.62e42fefa39efp-1 + kLnRowsD.ln[i].hi) + l1p);
    const double num = double(o.num), den = double(o.den);
    const int j = int(NearestD(num / den * 256));
    const double tj = j * 0x1p-8, d = (num - tj * den) / (den + tj * num), d2 = d * d;
    const double at = o.sg * (kAtanRowsD.v[j].hi + (d - d * d2 * (1 / 3.0 - d2 * 0.2)));
    const double th = kEighthTurnsD.v[o.k + 4].hi + at;
    const double wr = ud * l - vd * th, wi = double(g) * kPio2Words[0] + ud * at + vd * l;
    double rest = wi, qd = 0;
    if (fabs(wi) > 0.785398163397448309615660845819875721) {
        if (!(fabs(wi) < 0x1p25)) return false;
        qd = NearestD(wi * 0.636619772367581343075535053490057448);
        rest = ((wi - qd * kPio2D[0]) - qd * kPio2D[1]) - qd * kPio2D[2]; // the first exact
    }
    const double au = fabs(ud), av = fabs(vd);
    const double el = (1 + fabs(double(e))) * 0x1p-51, ed = fabs(at) * 0x1p-50;
    const double em = au * el + av * ed + (fabs(ud * l) + av * (fabs(th) + 1) + fabs(wr)) * 0x1p-50;
    const double ea = au * ed + av * el +
                      (fabs(double(g)) + fabs(ud * at) + fabs(vd * l) + fabs(wi)) * 0x1p-50;
    if (!(em <= 0x1p-29 && fabs(rest) <= 1 && ea <= 0x1p-26 * fabs(rest))) return false;
    Finish<24>(DD{wr, 0}, Angle{(long long)qd + (long long)j0, rest, 0}, y, u, v, re, im);
    return true;
}

// a^b of finite a, not zero, and finite b, not zero, p the precision of the element.
// Im w = u k pi/4 (exact quarter turns and a rest) + u d + v ln|a|, arg a = k pi/4 + d.
template <int P>
[[gnu::always_inline]] inline void PowFinite(LD x, LD y, LD u, LD v, LD& re, LD& im) {
    const Octant o = OctantOf(x, y);
    LD j0, g;
    QuarterTurns(u, o.k, j0, g);
    // bounds of the extended errors of Re w and of the rest r (a few extended ulps of the
    // terms; ln|a| absolutely): Re w's within 2^-(p+5) of the result, r's within 2^-(p+2)
    // of sin r, the smaller part after the reduction (an r left unreduced beyond 2^30
    // never passes); else all again in two words. The bounds are at least |u| 2^-62 and
    // |v| 2^-62, so a larger exponent goes to two words at once.
    constexpr LD kTol = P == 53 ? 0x1p-58L : 0x1p-29L;
    if constexpr (P == 24)
        if (PowSingleInDouble(x, y, u, v, o, j0, g, re, im)) return;
    if (fabsl(u) * 0x1p-62L <= kTol && fabsl(v) * 0x1p-62L <= 8 * kTol) {
        const LD lr = LnAbsX(x, y), d = o.sg * AtanRatioX(o.num, o.den);
        const LD th = o.k * 0.5L * kPio2[0] + d;
        int j = int(j0);
        const LD r = QuarterReduced(g * kPio2[0] + u * d + v * lr, j);
        const LD em = (fabsl(u) * (1 + fabsl(lr)) + fabsl(v * th)) * 0x1p-62L;
        const LD ea = (fabsl(u * d) + fabsl(v) * (1 + fabsl(lr)) + fabsl(g)) * 0x1p-62L;
        if (em <= kTol && fabsl(r) <= 1 && ea <= 8 * kTol * fabsl(r))
            return Finish<P>(DD{u * lr - v * th, 0}, Angle{j, r, 0}, y, u, v, re, im);
    }
    // in two words: first with the cheaper ln|a| and arg a (absolute errors el and ed,
    // the products and sums of w within 2^-100 of their terms) under the same bounds,
    // else with the closer ones
    // first all in pairs of doubles (exponents below 2^30, |a| within double's squares)
    const LD big = o.den;
    if (fabsl(u) <= 0x1p30L && fabsl(v) <= 0x1p30L && big >= 0x1p-450L && big <= 0x1p450L) {
        double eld, edd;
        const D2 ld = LnAbsMidD(double(x), double(y), &eld);
        D2 d = AtanRatioMidD(double(o.num), double(o.den), &edd);
        d = {o.sg * d.hi, o.sg * d.lo};
        DD e;
        Angle an;
        if (WordsInDouble<P>(ld, d, o.k, u, v, g, eld, edd, e, an)) {
            an.j += (long long)j0;
            return Finish<P>(e, an, y, u, v, re, im);
        }
    }
    LD el;
    DD l = LnAbsMid(x, y, &el), dd = AtanRatioMid(o.num, o.den);
    dd = {o.sg * dd.hi, o.sg * dd.lo};
    const LD ed = fabsl(dd.hi) * 0x1p-72L;
    const XHalves hu = SplitX(u), hv = SplitX(v), hg = SplitX(g);
    for (int pass = 0;; ++pass) {
        // each factor split once for its products
        const XHalves hl = SplitX(l.hi), hd = SplitX(dd.hi);
        const DD t = Add(kEighthTurns.v[o.k + 4], dd);
        const DD e = Add(MulLoose(l, hl, hu), MulLoose(t, SplitX(t.hi), Negated(hv)));
        const DD iw =
            Add(Add(MulLoose(kPio2DD, kPio2XHalves, hg), MulLoose(dd, hd, hu)), MulLoose(l, hl, hv));
        Angle an = pass ? Reduced(iw) : Reduced<true>(iw);
        an.j += (long long)j0;
        const LD em = fabsl(u) * el + fabsl(v) * ed + (fabsl(e.hi) + fabsl(v * t.hi)) * 0x1p-100L;
        const LD ea = fabsl(u) * ed + fabsl(v) * el + (fabsl(iw.hi) + fabsl(v * l.hi)) * 0x1p-99L;
        if (pass || (em <= kTol && fabsl(an.r) <= 1 && ea <= 8 * kTol * fabsl(an.r)))
            return Finish<P>(e, an, y, u, v, re, im);
        l = LnAbs(x, y), dd = OctantAngle(o);
    }
}

template <int P>
[[gnu::always_inline]] inline int PowOf(LD x, LD y, LD u, LD v, LD& re, LD& im) {
    if (u == 0 && v == 0) { // a^0 = 1
        re = 1;
        im = 0;
        return status::kNone;
    }
    if (x == 0 && y == 0) {
        if (__builtin_isnan(u) || __builtin_isnan(v)) {
            re = im = u + v;
        } else if (u > 0) {
            re = im = 0;
        } else if (u < 0) {
            re = __builtin_infl();
            im = 0;
            return status::kSingularity;
        } else { // |a|^(i v): no limit
            re = im = Keep(LD(0)) / Keep(LD(0));
            return status::kDomain;
        }
        return status::kNone;
    }
    if (__builtin_isfinite(x) && __builtin_isfinite(y) && __builtin_isfinite(u) &&
        __builtin_isfinite(v)) {
        PowFinite<P>(x, y, u, v, re, im);
        return status::kNone;
    }
    LD lr, li;
    CLogX(x, y, lr, li);
    __complex__ long double l, b, w;
    __real__ l = lr, __imag__ l = li;
    __real__ b = u, __imag__ b = v;
    w = b * l;
    return CExpX(__real__ w, __imag__ w, re, im);
}

template <class E>
struct Pow {
    static constexpr bool kOverflow = false;
    static constexpr bool kDouble = std::is_same_v<E, BrennComplex16>;
    [[gnu::always_inline]] static int Eval(LD x, LD y, LD u, LD v, LD& re, LD& im) {
        return PowOf < kDouble ? 53 : 24 > (x, y, u, v, re, im);
    }
};
template <class E>
struct PowB : Pow<E> {
    static constexpr const char* kName = Pow<E>::kDouble ? "vzPow" : "vcPow";
};
template <class E>
struct PowxB : Pow<E> {
    static constexpr const char* kName = Pow<E>::kDouble ? "vzPowx" : "vcPowx";
};

} // namespace
} // namespace brenn::vm::cx

extern "C" {
void ZAR_KERNEL(cPow, All) BRENN_SIG(c, Binary) {
    brenn::vm::cx::RunExtended<brenn::vm::cx::PowB<BrennComplex8>>(n, a, b, 1, y);
}
void ZAR_KERNEL(zPow, All) BRENN_SIG(z, Binary) {
    brenn::vm::cx::RunExtended<brenn::vm::cx::PowB<BrennComplex16>>(n, a, b, 1, y);
}
void ZAR_KERNEL(cPowx, All) BRENN_SIG(c, Powx) {
    brenn::vm::cx::RunExtended<brenn::vm::cx::PowxB<BrennComplex8>>(n, a, &b, 0, y);
}
void ZAR_KERNEL(zPowx, All) BRENN_SIG(z, Powx) {
    brenn::vm::cx::RunExtended<brenn::vm::cx::PowxB<BrennComplex16>>(n, a, &b, 0, y);
}
}
