/* Argument reduction shared by the trigonometric kernels, and the table evaluation it
 * ends in.
 *
 * Large arguments are reduced in vector form, all lanes at once, so that one huge lane
 * does not send its block to scalar code: each lane's biased exponent selects a window
 * of the binary expansion of 1/pi (twoOverPiBits), the significand times that window is
 * formed exactly with integer multiplications, and the product's top bits give x/(pi/64)
 * modulo 128 (the index J) and the centred fraction. The result is sin(J pi/64 + r) by
 * the table method with |r| <= pi/128; cosine is the same at J + 32.
 *
 * Single: 24-bit significand by a 96-bit window, as three 32 by 32-bit products a lane
 * (four lanes, two at a time). Double: 53-bit significand by a 192-bit window, 32-bit words with
 * 64-bit products (two lanes), the fraction kept to 128 bits as a high and a low double. */
#ifndef BRENN_VECMATH_TRIG_REDUCE_H
#define BRENN_VECMATH_TRIG_REDUCE_H

#include <stdint.h>

#include "vecmath/frame/simd.h"
#include "vecmath/trig/tables.h"

namespace brenn::vm::trig {

// The short path's helpers are inlined into the bodies, so that the two registers of a
// round interleave; the large reduction stays out of line, off the common path.
#define BRENN_TRIG_HOT inline __attribute__((always_inline))
#define BRENN_TRIG_COLD inline __attribute__((noinline))

// The single bodies evaluate a round of sixteen as four registers, each step over all
// of them before the next, so that their long chains interleave in the code.
#define BRENN_EACH(k, N) _Pragma("GCC unroll 16") for (int k = 0; k < (N); ++k)

constexpr double kPi64 = 0x1.921fb54442d18p-5; // pi/64 rounded
constexpr double kPi64Lo = 0x1.1a62633145c07p-59;
constexpr double k64OverPi = 0x1.45f306dc9c883p+4;
constexpr double kShifterD = 6755399441055744.0; // 1.5 * 2^52
constexpr float kShifterS = 12582912.0f;         // 1.5 * 2^23

// Two doubles from lanes 0-1 and 2-3 of a signed 32-bit vector.
inline void IntToDouble(__m128i v, __m128d& d0, __m128d& d1) {
    d0 = _mm_cvtepi32_pd(v);
    d1 = _mm_cvtepi32_pd(_mm_srli_si128(v, 8));
}

// Reduction of four finite single magnitudes a (bits of |x|): J[k] = index mod 128 and
// r (lanes 0-1 in r0, 2-3 in r1) with a = J pi/64 + r + 2 pi k, |r| <= pi/128.
// Each lane's row is one 16-byte load (its three words and one word beyond, unused),
// transposed into three vectors of words; the 24-bit significand times each word is a
// 64-bit product (mul_epu32, lanes 0 and 2, then 1 and 3). Bits 95..32 of the product
// are the sum of the three products at 2^64, 2^32 and 1, taken modulo 2^64: the bits
// above 95 drop out with the wrap.
BRENN_TRIG_COLD void LargeS(__m128 a, int32_t J[4], __m128d& r0, __m128d& r1) {
    __m128i b = _mm_castps_si128(a);
    // Exponent 255 (infinity or NaN lanes, whose results are not used) would read past
    // the last row: clamped.
    __m128i e = _mm_min_epi32(_mm_srli_epi32(b, 23), _mm_set1_epi32(254));
    __m128i off = _mm_add_epi32(_mm_slli_epi32(e, 3), _mm_slli_epi32(e, 2)); // e * 12
    const char* base = reinterpret_cast<const char*>(twoOverPiBits);
    __m128i v0 = _mm_loadu_si128(reinterpret_cast<const __m128i*>(base + _mm_cvtsi128_si32(off)));
    __m128i v1 =
        _mm_loadu_si128(reinterpret_cast<const __m128i*>(base + _mm_extract_epi32(off, 1)));
    __m128i v2 =
        _mm_loadu_si128(reinterpret_cast<const __m128i*>(base + _mm_extract_epi32(off, 2)));
    __m128i v3 =
        _mm_loadu_si128(reinterpret_cast<const __m128i*>(base + _mm_extract_epi32(off, 3)));
    __m128i lo01 = _mm_unpacklo_epi32(v0, v1), lo23 = _mm_unpacklo_epi32(v2, v3);
    __m128i hi01 = _mm_unpackhi_epi32(v0, v1), hi23 = _mm_unpackhi_epi32(v2, v3);
    __m128i w2 = _mm_unpacklo_epi64(lo01, lo23); // most significant word of each lane
    __m128i w1 = _mm_unpackhi_epi64(lo01, lo23);
    __m128i w0 = _mm_unpacklo_epi64(hi01, hi23); // least significant
    __m128i m = _mm_or_si128(_mm_and_si128(b, _mm_set1_epi32(0x7FFFFF)), _mm_set1_epi32(0x800000));
    __m128i mo = _mm_srli_epi64(m, 32);
    // X: product bits 95..32 (lanes 0 and 2 in xe, 1 and 3 in xo); t: bits 31..25.
    __m128i pe0 = _mm_mul_epu32(m, w0), po0 = _mm_mul_epu32(mo, _mm_srli_epi64(w0, 32));
    __m128i pe1 = _mm_mul_epu32(m, w1), po1 = _mm_mul_epu32(mo, _mm_srli_epi64(w1, 32));
    __m128i pe2 = _mm_mul_epu32(m, w2), po2 = _mm_mul_epu32(mo, _mm_srli_epi64(w2, 32));
    __m128i xe =
        _mm_add_epi64(_mm_add_epi64(_mm_slli_epi64(pe2, 32), pe1), _mm_srli_epi64(pe0, 32));
    __m128i xo =
        _mm_add_epi64(_mm_add_epi64(_mm_slli_epi64(po2, 32), po1), _mm_srli_epi64(po0, 32));
    // Bits 95..89 are x/(pi/64) mod 128; bits 88..25, read as a signed 64-bit number,
    // the fraction centred on zero (bit 88 set means the next index up).
    __m128i fe = _mm_or_si128(_mm_slli_epi64(xe, 7), _mm_srli_epi64(_mm_slli_epi64(pe0, 32), 57));
    __m128i fo = _mm_or_si128(_mm_slli_epi64(xo, 7), _mm_srli_epi64(_mm_slli_epi64(po0, 32), 57));
    // Back to four 32-bit lanes: J in the low word, the fraction as high and low words.
    const __m128i half = _mm_set1_epi64x(1ll << 56); // rounds X / 2^57, modulo 128
    __m128i je = _mm_srli_epi64(_mm_add_epi64(xe, half), 57);
    __m128i jo = _mm_srli_epi64(_mm_add_epi64(xo, half), 57);
    __m128i j = _mm_blend_epi16(je, _mm_slli_epi64(jo, 32), 0xCC);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(J), j);
    __m128i hi = _mm_blend_epi16(_mm_srli_epi64(fe, 32), fo, 0xCC);
    __m128i lo = _mm_blend_epi16(fe, _mm_slli_epi64(fo, 32), 0xCC);
    __m128d h0, h1, l0, l1;
    IntToDouble(hi, h0, h1);
    IntToDouble(_mm_xor_si128(lo, _mm_set1_epi32(int(0x80000000u))), l0, l1);
    const __m128d two31 = _mm_set1_pd(2147483648.0), two32 = _mm_set1_pd(4294967296.0);
    const __m128d scale = _mm_set1_pd(0x1p-64 * kPi64);
    r0 = _mm_mul_pd(_mm_add_pd(_mm_mul_pd(h0, two32), _mm_add_pd(l0, two31)), scale);
    r1 = _mm_mul_pd(_mm_add_pd(_mm_mul_pd(h1, two32), _mm_add_pd(l1, two31)), scale);
}

// Exact product of two doubles (Dekker, without fused operations): p + e = a * b.
BRENN_TRIG_HOT void TwoProd(__m128d a, __m128d b, __m128d& p, __m128d& e) {
    const __m128d split = _mm_set1_pd(134217729.0); // 2^27 + 1
    p = _mm_mul_pd(a, b);
    __m128d ta = _mm_mul_pd(a, split), tb = _mm_mul_pd(b, split);
    __m128d ah = _mm_sub_pd(ta, _mm_sub_pd(ta, a)), al = _mm_sub_pd(a, ah);
    __m128d bh = _mm_sub_pd(tb, _mm_sub_pd(tb, b)), bl = _mm_sub_pd(b, bh);
    e = _mm_add_pd(_mm_add_pd(_mm_sub_pd(_mm_mul_pd(ah, bh), p), _mm_mul_pd(ah, bl)),
                   _mm_add_pd(_mm_mul_pd(al, bh), _mm_mul_pd(al, bl)));
}

// Reduction of two finite double magnitudes: J[k] mod 128 and r = rh + rl, |r| <= pi/128.
BRENN_TRIG_COLD void LargeD(__m128d a, int32_t J[2], __m128d& rh, __m128d& rl) {
    alignas(16) uint64_t bits[2];
    _mm_store_si128(reinterpret_cast<__m128i*>(bits), _mm_castpd_si128(a));
    const uint32_t* row0 = twoOverPiBits64[bits[0] >> 52];
    const uint32_t* row1 = twoOverPiBits64[bits[1] >> 52];
    __m128i w[6]; // w[0] least significant, one word in the low half of each 64-bit lane
#pragma GCC unroll 8
    for (int k = 0; k < 6; ++k)
        w[k] = _mm_set_epi64x(row1[5 - k], row0[5 - k]);
    __m128i m = _mm_or_si128(_mm_and_si128(_mm_castpd_si128(a), _mm_set1_epi64x(0xFFFFFFFFFFFFFll)),
                             _mm_set1_epi64x(0x10000000000000ll));
    __m128i ml = m, mh = _mm_srli_epi64(m, 32); // mul_epu32 reads the low 32 bits
    const __m128i low32 = _mm_set1_epi64x(0xFFFFFFFFll);
    __m128i pl[6], ph[6];
#pragma GCC unroll 8
    for (int k = 0; k < 6; ++k) {
        pl[k] = _mm_mul_epu32(ml, w[k]);
        ph[k] = _mm_mul_epu32(mh, w[k]);
    }
    // Columns of 32 bits: digit k has weight 2^(32k).
    __m128i d[6];
    __m128i carry = _mm_setzero_si128();
#pragma GCC unroll 8
    for (int k = 0; k < 6; ++k) {
        __m128i col = _mm_add_epi64(_mm_and_si128(pl[k], low32), carry);
        if (k >= 1)
            col = _mm_add_epi64(
                col, _mm_add_epi64(_mm_srli_epi64(pl[k - 1], 32), _mm_and_si128(ph[k - 1], low32)));
        if (k >= 2) col = _mm_add_epi64(col, _mm_srli_epi64(ph[k - 2], 32));
        d[k] = _mm_and_si128(col, low32);
        carry = _mm_srli_epi64(col, 32);
    }
    // Bits 191..185: index mod 128; bits 184..121 (signed) and 120..57: the fraction.
    __m128i hi = _mm_or_si128(_mm_or_si128(_mm_slli_epi64(d[5], 39), _mm_slli_epi64(d[4], 7)),
                              _mm_srli_epi64(d[3], 25));
    __m128i lo = _mm_or_si128(_mm_or_si128(_mm_slli_epi64(d[3], 39), _mm_slli_epi64(d[2], 7)),
                              _mm_srli_epi64(d[1], 25));
    __m128i j = _mm_add_epi64(_mm_srli_epi64(d[5], 25),
                              _mm_and_si128(_mm_srli_epi64(d[5], 24), _mm_set1_epi64x(1)));
    J[0] = _mm_cvtsi128_si32(j) & 127;
    J[1] = _mm_extract_epi32(j, 2) & 127;
    // hi as a double and its exact rest, plus lo: a 128-bit fraction as two doubles.
    alignas(16) int64_t hv[2];
    alignas(16) uint64_t lv[2];
    _mm_store_si128(reinterpret_cast<__m128i*>(hv), hi);
    _mm_store_si128(reinterpret_cast<__m128i*>(lv), lo);
    alignas(16) double fh[2], fl[2];
#pragma GCC unroll 8
    for (int k = 0; k < 2; ++k) {
        // Top 53 bits exactly (arithmetic shift: floor), the 11 below with lo.
        fh[k] = double(hv[k] >> 11) * 2048.0;
        fl[k] = double(hv[k] & 2047) + double(lv[k] >> 11) * 0x1p-53;
    }
    __m128d gh = _mm_load_pd(fh), gl = _mm_load_pd(fl);
    // g = (gh + gl) 2^-64 turns; r = g * pi/64 in two parts.
    __m128d s = _mm_add_pd(gh, gl);
    gl = _mm_sub_pd(gl, _mm_sub_pd(s, gh));
    gh = _mm_mul_pd(s, _mm_set1_pd(0x1p-64));
    gl = _mm_mul_pd(gl, _mm_set1_pd(0x1p-64));
    __m128d p, pe;
    TwoProd(gh, _mm_set1_pd(kPi64), p, pe);
    pe = _mm_add_pd(
        pe, _mm_add_pd(_mm_mul_pd(gh, _mm_set1_pd(kPi64Lo)), _mm_mul_pd(gl, _mm_set1_pd(kPi64))));
    rh = _mm_add_pd(p, pe);
    rl = _mm_sub_pd(pe, _mm_sub_pd(rh, p));
}

// rh + rl = a + b exactly.
BRENN_TRIG_HOT void TwoSum(__m128d a, __m128d b, __m128d& rh, __m128d& rl) {
    rh = _mm_add_pd(a, b);
    __m128d bb = _mm_sub_pd(rh, a);
    rl = _mm_add_pd(_mm_sub_pd(a, _mm_sub_pd(rh, bb)), _mm_sub_pd(b, bb));
}

// Short reduction of two double magnitudes below 2^24 at pi/64: j = round(a 64/pi),
// J = j mod 128 (plus add), r = a - j pi/64 as two doubles. j < 2^29, so its products
// with the first three parts of pi/64 (24 bits each) are exact. The first two
// differences are exact as they stand: a - j C0 and j C1 are multiples of 2^-58 (of
// 2^-52 when a >= 1; j = 0 below pi/128) and their difference is below 2^-5. The third
// is carried exactly so that an argument close to a multiple of pi keeps its full
// precision.
BRENN_TRIG_HOT void ShortD(__m128d a, int32_t J[2], __m128d& rh, __m128d& rl, int add) {
    const __m128d shifter = _mm_set1_pd(kShifterD);
    __m128d t = _mm_add_pd(_mm_mul_pd(a, _mm_set1_pd(k64OverPi)), shifter);
    __m128i ti = _mm_castpd_si128(t);
    J[0] = _mm_cvtsi128_si32(ti) + add;
    J[1] = _mm_extract_epi32(ti, 2) + add;
    __m128d j = _mm_sub_pd(t, shifter);
    __m128d r1 = _mm_sub_pd(a, _mm_mul_pd(j, _mm_set1_pd(kPi64Parts[0])));
    r1 = _mm_sub_pd(r1, _mm_mul_pd(j, _mm_set1_pd(kPi64Parts[1])));
    __m128d h, l;
    TwoSum(r1, _mm_mul_pd(j, _mm_set1_pd(-kPi64Parts[2])), h, l);
    l = _mm_sub_pd(l, _mm_mul_pd(j, _mm_set1_pd(kPi64Parts[3])));
    // Renormalised, the series running on rh alone: |h| >= |l|, so the fast sum is exact.
    rh = _mm_add_pd(h, l);
    rl = _mm_sub_pd(l, _mm_sub_pd(rh, h));
}

// Per-lane choice between two reductions, by a two-bit lane mask (bit k: lane k of b).
BRENN_TRIG_HOT void PickD(int mask, const int32_t* Jb, __m128d rhb, __m128d rlb, int32_t* J,
                          __m128d& rh, __m128d& rl) {
    __m128d m = _mm_castsi128_pd(_mm_set_epi64x(mask & 2 ? -1 : 0, mask & 1 ? -1 : 0));
    rh = _mm_blendv_pd(rh, rhb, m);
    rl = _mm_blendv_pd(rl, rlb, m);
    if (mask & 1) J[0] = Jb[0];
    if (mask & 2) J[1] = Jb[1];
}

// The table method, in parts. A row holds sin A and cos A (A = J pi/64), each as a high
// and a low double; with the series of r (|r| <= pi/128) the rows give
//   sin(A + r) = sin A + cos A r + (cos A (sin r - r) + sin A (cos r - 1)) + ...
// and cos(A + r) the same with (sin A, cos A) replaced by (cos A, -sin A).
struct TableRow {
    __m128d sh, sl, ch, cl;
};
struct Series {
    __m128d ps, pc; // sin r - r, cos r - 1 (short Taylor series)
};

BRENN_TRIG_HOT TableRow LoadRows(const int32_t* J) {
    const double* t0 = sinCosPi64[J[0] & 127];
    const double* t1 = sinCosPi64[J[1] & 127];
    __m128d q0 = _mm_loadu_pd(t0), q1 = _mm_loadu_pd(t1);
    __m128d c0 = _mm_loadu_pd(t0 + 2), c1 = _mm_loadu_pd(t1 + 2);
    return {_mm_unpacklo_pd(q0, q1), _mm_unpackhi_pd(q0, q1), _mm_unpacklo_pd(c0, c1),
            _mm_unpackhi_pd(c0, c1)};
}

BRENN_TRIG_HOT Series SeriesOf(__m128d rh) {
    __m128d u = _mm_mul_pd(rh, rh);
    __m128d ps = _mm_add_pd(_mm_set1_pd(1.0 / 120), _mm_mul_pd(u, _mm_set1_pd(-1.0 / 5040)));
    ps = _mm_mul_pd(_mm_mul_pd(rh, u), _mm_add_pd(_mm_set1_pd(-1.0 / 6), _mm_mul_pd(u, ps)));
    __m128d pc = _mm_add_pd(_mm_set1_pd(1.0 / 24), _mm_mul_pd(u, _mm_set1_pd(-1.0 / 720)));
    pc = _mm_mul_pd(u, _mm_add_pd(_mm_set1_pd(-0.5), _mm_mul_pd(u, pc)));
    return {ps, pc};
}

// sin(A + r) from a row (sh + sl = sin A, ch + cl = cos A) as a high and a low part.
// With exact = true the product cos A * rh is carried exactly as well: near the zeros
// of sine (A = pi/64 beside a multiple of pi) that product is as large as the result.
// Both factors are cut to 26 significant bits by a mask, so that the product of the
// heads is exact; the tails' products go to the low part.
BRENN_TRIG_HOT void Combine(__m128d sh, __m128d sl, __m128d ch, __m128d cl, __m128d rh, __m128d rl,
                            const Series& r, bool exact, __m128d& hi, __m128d& lo) {
    __m128d p, t = _mm_add_pd(_mm_mul_pd(ch, _mm_add_pd(rl, r.ps)), _mm_mul_pd(sh, r.pc));
    if (exact) {
        const __m128d head = _mm_castsi128_pd(_mm_set1_epi64x(int64_t(0xFFFFFFFFF8000000ull)));
        __m128d chh = _mm_and_pd(ch, head), rhh = _mm_and_pd(rh, head);
        __m128d chl = _mm_add_pd(_mm_sub_pd(ch, chh), cl), rhl = _mm_sub_pd(rh, rhh);
        p = _mm_mul_pd(chh, rhh);
        t = _mm_add_pd(t, _mm_add_pd(sl, _mm_add_pd(_mm_mul_pd(chh, rhl), _mm_mul_pd(chl, rh))));
    } else {
        p = _mm_mul_pd(ch, rh);
        t = _mm_add_pd(t, _mm_add_pd(sl, _mm_mul_pd(cl, rh)));
    }
    hi = _mm_add_pd(sh, p);
    __m128d e = _mm_add_pd(_mm_sub_pd(sh, hi), p); // |sh| >= |p| or sh = 0
    lo = _mm_add_pd(e, t);
}

// sin(J pi/64 + rh + rl) for |rh| <= pi/128 (rl much smaller), as a high and a low part.
BRENN_TRIG_HOT void TableSin(const int32_t* J, __m128d rh, __m128d rl, __m128d& hi, __m128d& lo,
                             bool exact = false) {
    TableRow t = LoadRows(J);
    Combine(t.sh, t.sl, t.ch, t.cl, rh, rl, SeriesOf(rh), exact, hi, lo);
}

// Sine and cosine at once from one row and one series.
BRENN_TRIG_HOT void TableSinCos(const int32_t* J, __m128d rh, __m128d rl, bool exact, __m128d& s,
                                __m128d& c) {
    TableRow t = LoadRows(J);
    Series r = SeriesOf(rh);
    __m128d hi, lo;
    Combine(t.sh, t.sl, t.ch, t.cl, rh, rl, r, exact, hi, lo);
    s = _mm_add_pd(hi, lo);
    const __m128d neg = _mm_set1_pd(-0.0);
    Combine(t.ch, t.cl, _mm_xor_pd(t.sh, neg), _mm_xor_pd(t.sl, neg), rh, rl, r, exact, hi, lo);
    c = _mm_add_pd(hi, lo);
}

BRENN_TRIG_HOT __m128d TableSin(const int32_t* J, __m128d rh, __m128d rl, bool exact = false) {
    __m128d hi, lo;
    TableSin(J, rh, rl, hi, lo, exact);
    return _mm_add_pd(hi, lo);
}

// sin(J pi/64 + r), |r| <= pi/128, for a result in single: the high parts of the row
// and two terms of each series are enough (the first terms left out are below 2^-40).
BRENN_TRIG_HOT __m128d TableSinS(const int32_t* J, __m128d r) {
    const double* t0 = sinCosPi64[J[0] & 127];
    const double* t1 = sinCosPi64[J[1] & 127];
    __m128d sh = _mm_loadh_pd(_mm_load_sd(t0), t1);
    __m128d ch = _mm_loadh_pd(_mm_load_sd(t0 + 2), t1 + 2);
    __m128d u = _mm_mul_pd(r, r);
    __m128d ps = _mm_mul_pd(
        _mm_mul_pd(r, u), _mm_add_pd(_mm_set1_pd(-1.0 / 6), _mm_mul_pd(u, _mm_set1_pd(1.0 / 120))));
    __m128d pc = _mm_mul_pd(u, _mm_add_pd(_mm_set1_pd(-0.5), _mm_mul_pd(u, _mm_set1_pd(1.0 / 24))));
    __m128d t = _mm_add_pd(_mm_mul_pd(ch, ps), _mm_mul_pd(sh, pc));
    return _mm_add_pd(sh, _mm_add_pd(_mm_mul_pd(ch, r), t));
}

// Four single lanes through the large reduction: sin (cosine with cos = true) of |x|
// in double, narrowed to single.
inline __m128 LargeSinS(__m128 a, bool cosine) {
    alignas(16) int32_t J[4];
    __m128d r0, r1;
    LargeS(a, J, r0, r1);
    if (cosine)
#pragma GCC unroll 8
        for (int k = 0; k < 4; ++k)
            J[k] += 32;
    __m128 lo = _mm_cvtpd_ps(TableSinS(J, r0));
    __m128 hi = _mm_cvtpd_ps(TableSinS(J + 2, r1));
    return _mm_movelh_ps(lo, hi);
}

// Lanes of a block that need the large path: finite and above the limit. One compare
// on the common path; infinity and NaN lanes (the scalar routine's) are taken out only
// when some lane is above the limit.
inline int LargeLanesS(__m128 a, uint32_t limitBits) {
    __m128i b = _mm_castps_si128(a);
    int big = _mm_movemask_ps(_mm_castsi128_ps(_mm_cmpgt_epi32(b, _mm_set1_epi32(int(limitBits)))));
    if (__builtin_expect(big != 0, 0))
        big &= ~_mm_movemask_ps(_mm_castsi128_ps(_mm_cmpgt_epi32(b, _mm_set1_epi32(0x7F7FFFFF))));
    return big;
}
inline int LargeLanesD(__m128d a, uint64_t limitBits) {
    __m128i b = _mm_castpd_si128(a);
    int big =
        _mm_movemask_pd(_mm_castsi128_pd(_mm_cmpgt_epi64(b, _mm_set1_epi64x(int64_t(limitBits)))));
    if (__builtin_expect(big != 0, 0))
        big &= ~_mm_movemask_pd(
            _mm_castsi128_pd(_mm_cmpgt_epi64(b, _mm_set1_epi64x(0x7FEFFFFFFFFFFFFFll))));
    return big;
}

// The scalar routine every trigonometric kernel shares: only infinity and NaN reach it.
template <class T>
int InfNanScalar(const T* a, T* y) {
    T x = *a;
    if (__builtin_isinf(x)) {
        *y = Keep(x) * T(0); // NaN, raising invalid
        return 1;
    }
    if (__builtin_isnan(x)) *y = x * x;
    return 0;
}

// Magnitudes of a round's four single registers, and whether any lane is above the
// limit (infinity and NaN are, as bits): one compare on the largest of them.
inline bool AnyAboveS(const __m128* x, __m128* a, uint32_t limitBits) {
    BRENN_EACH(k, 4) a[k] = _mm_and_ps(x[k], AbsMask<float>());
    __m128i m = _mm_max_epi32(_mm_max_epi32(_mm_castps_si128(a[0]), _mm_castps_si128(a[1])),
                              _mm_max_epi32(_mm_castps_si128(a[2]), _mm_castps_si128(a[3])));
    return _mm_movemask_ps(_mm_castsi128_ps(_mm_cmpgt_epi32(m, _mm_set1_epi32(int(limitBits))))) !=
           0;
}

// A round of sixteen quad by quad, when a lane is above the short path's limit: each
// register through the body's Eval, their special bits packed for the frame.
template <class Body>
inline int EvalQuadsS(const __m128* x, __m128* y) {
    int bits = 0;
    BRENN_EACH(k, 4) {
        __m128 special;
        y[k] = Body::Eval(x[k], special);
        bits |= _mm_movemask_ps(special) << (4 * k);
    }
    return bits;
}

// Lanes with the exponent field all ones, as the range-test mask.
inline __m128 InfNanS(__m128 a) {
    return _mm_castsi128_ps(_mm_cmpgt_epi32(_mm_castps_si128(a), _mm_set1_epi32(0x7F7FFFFF)));
}
inline __m128d InfNanD(__m128d a) {
    return _mm_castsi128_pd(
        _mm_cmpgt_epi64(_mm_castpd_si128(a), _mm_set1_epi64x(0x7FEFFFFFFFFFFFFFll)));
}

} // namespace brenn::vm::trig

#endif
