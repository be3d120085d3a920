/* Shared pieces of the logarithm family.
 *
 * Single split: x = 2^k * m with m in [2/3, 4/3), by integer arithmetic on the bits
 * around the centre 0x3F2AAAAB (2/3), so that for x near 1 k is 0 and r = m - 1 is
 * exact: no cancellation.
 * Double core: m in [1, 2) from the significand, mh = m rounded to 9 fraction bits
 * (the 513 rows of lnRows), r = (mh*rcp - 1) + ml*rcp with the first product exact,
 * |r| <= 2^-10; ln x = (k*ln2hi + Thi) + (r + r^2*P(r) + k*ln2lo + Tlo), where the
 * first sum is exact (both on the 2^-42 grid). The result comes as that exact head H and
 * a tail L, so that Log10, Log2 and Log1p can scale or correct it without a second
 * rounding. Positive normal doubles only; the range tests keep the rest away. */
#ifndef BRENN_VECMATH_EXPLOG_LOG_CORE_H
#define BRENN_VECMATH_EXPLOG_LOG_CORE_H

#include "vecmath/explog/explog_tables.h"
#include "vecmath/frame/simd.h"

namespace brenn::vm {

constexpr double kLn2HiD = 0.69314718055989033; // 0x3FE62E42FEFA3800
constexpr double kLn2LoD = 5.4979230187083712e-14;
// log10(e) and log2(e) as a 26-bit head and the rest, for ScaleLogD.
constexpr double kLog10eHi = 0.434294484555721282958984375, kLog10eLo = -2.6524694553078553e-9;
constexpr double kLog2eHi = 1.4426950514316558837890625, kLog2eLo = -1.0542692476429138e-8;

// Single: (bits(x) + 0x800000) signed below 0x1000000: zero, denormal, negative,
// infinite or NaN.
inline __m128 LogTestS(__m128 x) {
    __m128i b = _mm_add_epi32(_mm_castps_si128(x), _mm_set1_epi32(0x800000));
    return _mm_castsi128_ps(_mm_cmpgt_epi32(_mm_set1_epi32(0x1000000), b));
}

inline void LogSplitS(__m128 x, __m128& r, __m128& k) {
    const __m128i c = _mm_set1_epi32(0x3F2AAAAB);
    __m128i d = _mm_sub_epi32(_mm_castps_si128(x), c);
    k = _mm_cvtepi32_ps(_mm_srai_epi32(d, 23));
    __m128i m = _mm_add_epi32(_mm_and_si128(d, _mm_set1_epi32(0x7FFFFF)), c);
    r = _mm_sub_ps(_mm_castsi128_ps(m), _mm_set1_ps(1.0f));
}

// Double: anything but a positive normal (zero, denormal, negative, infinite, NaN).
// bits(x) + 0x7FF0000000000000 (wrapping) signed above 0xFFDFFFFFFFFFFFFF. The limit is
// passed through an empty asm so that the compiler keeps the one pcmpgtq and does not
// turn it into a compare with the limit plus one and a negation.
inline __m128d LogTestD(__m128d x) {
    __m128i b = _mm_add_epi64(_mm_castpd_si128(x), _mm_set1_epi64x(0x7FF0000000000000ll));
    __m128i limit = _mm_set1_epi64x(int64_t(0xFFDFFFFFFFFFFFFFull));
    asm("" : "+x"(limit));
    return _mm_castsi128_pd(_mm_cmpgt_epi64(b, limit));
}

enum class LnLevel { EP, LA, HA };

// ln x = H + L for positive normal x, two lanes. EP: cubic, no tails (about 2^-33).
// As three terms for the exact scaling: ln x = h + r + t, h exact, |t| << |r|.
template <LnLevel Lv>
inline void LnCoreD3(__m128d x, __m128d& h, __m128d& r, __m128d& t) {
    const __m128i xi = _mm_castpd_si128(x);
    __m128d m =
        _mm_castsi128_pd(_mm_or_si128(_mm_and_si128(xi, _mm_set1_epi64x(0x000FFFFFFFFFFFFFll)),
                                      _mm_set1_epi64x(0x3FF0000000000000ll)));
    // k without a conversion: the exponent field put under the bits of 2^52, less
    // 2^52 + 1023 (exact). Any input gives a finite k and an m in [1, 2), so special
    // lanes need no blend: their results are discarded.
    __m128i e = _mm_srli_epi64(xi, 52);
    __m128d k = _mm_sub_pd(_mm_castsi128_pd(_mm_or_si128(e, _mm_set1_epi64x(0x4330000000000000ll))),
                           _mm_set1_pd(4503599627371519.0));
    const __m128d sh = _mm_set1_pd(8796093022208.0); // 2^43: rounds m to 2^-9
    __m128d ts = _mm_add_pd(m, sh);
    __m128d mh = _mm_sub_pd(ts, sh);
    __m128d ml = _mm_sub_pd(m, mh);
    __m128i ti = _mm_castpd_si128(ts);
    const double* ra = lnRows[_mm_cvtsi128_si32(ti) - 512];
    const double* rb = lnRows[_mm_extract_epi32(ti, 2) - 512];
    __m128d a0 = _mm_load_pd(ra), b0 = _mm_load_pd(rb);
    __m128d a1 = _mm_load_pd(ra + 2), b1 = _mm_load_pd(rb + 2);
    __m128d rcp = _mm_unpacklo_pd(a0, b0), th = _mm_unpackhi_pd(a0, b0);
    __m128d tl = _mm_unpacklo_pd(a1, b1);
    r = _mm_add_pd(_mm_sub_pd(_mm_mul_pd(mh, rcp), _mm_set1_pd(1.0)), _mm_mul_pd(ml, rcp));
    __m128d r2 = _mm_mul_pd(r, r);
    __m128d p;
    if constexpr (Lv == LnLevel::EP) {
        // tools/explog/ln_double.sollya
        p = _mm_add_pd(
            _mm_set1_pd(-0.50000017880565972294704124578856863081455230712890625),
            _mm_mul_pd(r, _mm_set1_pd(0.333333494261786322798712944859289564192295074462890625)));
        // The exact head keeps x just below 1 (k = -1, last row) free of cancellation.
        h = _mm_add_pd(_mm_mul_pd(k, _mm_set1_pd(kLn2HiD)), th);
        t = _mm_mul_pd(r2, p);
        return;
    } else {
        // Estrin's scheme: two independent pairs joined by r^2.
        __m128d hi = _mm_add_pd(_mm_set1_pd(-0.25000019886943392),
                                _mm_mul_pd(r, _mm_set1_pd(0.20000019344205111)));
        __m128d lo = _mm_add_pd(_mm_set1_pd(-0.49999999999995254),
                                _mm_mul_pd(r, _mm_set1_pd(0.33333333333327408)));
        p = _mm_add_pd(lo, _mm_mul_pd(r2, hi));
    }
    h = _mm_add_pd(_mm_mul_pd(k, _mm_set1_pd(kLn2HiD)), th);
    __m128d tail = _mm_add_pd(_mm_mul_pd(k, _mm_set1_pd(kLn2LoD)), tl);
    t = _mm_add_pd(_mm_mul_pd(r2, p), tail);
}

template <LnLevel Lv>
inline void LnCoreD(__m128d x, __m128d& h, __m128d& l) {
    __m128d r, t;
    LnCoreD3<Lv>(x, h, r, t);
    l = _mm_add_pd(r, t);
}

// Splits a into a high part of 26 bits and the rest (Veltkamp), for exact products.
inline void SplitD(__m128d a, __m128d& hi, __m128d& lo) {
    __m128d t = _mm_mul_pd(a, _mm_set1_pd(134217729.0));
    hi = _mm_sub_pd(t, _mm_sub_pd(t, a));
    lo = _mm_sub_pd(a, hi);
}

// (h + r + t) * (ch + cl) rounded once in effect: s*ch exactly (Dekker; ch has 26 bits, so
// both partial products are exact), the rest as a small correction.
inline __m128d ScaleLogD(__m128d h, __m128d r, __m128d t, double ch, double cl) {
    // s + e = h + r + t, the sum h + r carried exactly (Knuth).
    __m128d s = _mm_add_pd(h, r);
    __m128d bb = _mm_sub_pd(s, h);
    __m128d err = _mm_add_pd(_mm_sub_pd(h, _mm_sub_pd(s, bb)), _mm_sub_pd(r, bb));
    __m128d e = _mm_add_pd(err, t);
    __m128d sh, sl;
    SplitD(s, sh, sl);
    const __m128d c = _mm_set1_pd(ch);
    __m128d ph = _mm_mul_pd(s, c);
    __m128d pl = _mm_add_pd(_mm_sub_pd(_mm_mul_pd(sh, c), ph), _mm_mul_pd(sl, c));
    __m128d corr = _mm_add_pd(
        pl, _mm_add_pd(_mm_mul_pd(s, _mm_set1_pd(cl)), _mm_mul_pd(e, _mm_set1_pd(ch + cl))));
    return _mm_add_pd(ph, corr);
}

// Scalar ln in double for any input: NaN quieted, +inf, -inf for zero, NaN for negatives;
// no status, callers decide. Denormals are scaled by 2^60 first. Near 1 (|x - 1| not
// above 2^-7) a degree-8 polynomial on r = x - 1 alone; elsewhere x = 2^k*m, m in [1, 2),
// the row of lnTable128 for m's interval, r = (c*rcp - 1) + (m - c)*rcp with the first
// product exact, the same polynomial, and k*ln2 and the row's logarithm in two parts
// whose heads add exactly. Within 0.8 ulp of double (measured).
inline double LnPolyScalar(double r) {
    double p = -0.1250214602960357;
    p = 0.1428756883852146 + r * p;
    p = -0.1666666651884978 + r * p;
    p = 0.19999999911565072 + r * p;
    p = -0.25000000000003386 + r * p;
    p = 0.33333333333334386 + r * p;
    p = -0.5 + r * p;
    return r * r * p;
}

inline double LnScalarD(double x) {
    if (!(x > 0)) {
        if (x == 0) return -1.0 / (x * x);
        return (x - x) / (x - x); // negative or NaN: NaN (a NaN input quieted)
    }
    if (__builtin_isinf(x)) return x;
    double r = x - 1.0;
    if (__builtin_fabs(r) <= 0.0078125) return r + LnPolyScalar(r);
    int bias = 0;
    if (x < 2.2250738585072014e-308) {
        x *= 1152921504606846976.0; // 2^60
        bias = -60;
    }
    uint64_t b = BitsOf(x);
    double k = double(int(b >> 52) - 1023 + bias);
    double m = DoubleOf((b & 0x000FFFFFFFFFFFFFull) | 0x3FF0000000000000ull);
    int j = int((m - 1.0) * 128.0);
    const double* row = lnTable128[j];
    double c = 1.0 + double(2 * j + 1) * 0.00390625; // exact
    r = (c * row[0] - 1.0) + (m - c) * row[0];
    double head = k * kLn2HiD + row[1]; // exact: both on the 2^-42 grid
    return head + (r + (LnPolyScalar(r) + (k * kLn2LoD + row[2])));
}

} // namespace brenn::vm

#endif
