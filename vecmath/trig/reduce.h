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
 * (four lanes, two at a time). Double: 53-bit significand by a 192-bit window, 32-bit
 * words with 64-bit products (two lanes), the fraction kept to 128 bits as a high and a
 * low double. */
#ifndef BRENN_VECMATH_TRIG_REDUCE_H
#define BRENN_VECMATH_TRIG_REDUCE_H

#include <stdint.h>

#include "vecmath/frame/scalar.h"
#include "vecmath/frame/status.h"
#include "vecmath/frame/vec.h"
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

// Taylor series of sin r - r (over r^3) and cos r - 1 (over r^2) in u = r^2, for
// |r| <= pi/128: the terms after the last are below 2^-60 of the result (2^-40 for the
// two-term forms of the single results).
constexpr double kSinTaylor[] = {-1.0 / 6, 1.0 / 120, -1.0 / 5040};
constexpr double kCosTaylor[] = {-0.5, 1.0 / 24, -1.0 / 720};
constexpr double kSinTaylor2[] = {-1.0 / 6, 1.0 / 120};
constexpr double kCosTaylor2[] = {-0.5, 1.0 / 24};

// Reduction of four finite single magnitudes a (bits of |x|): J[k] = index mod 128 and
// r (lanes 0-1 in r0, 2-3 in r1) with a = J pi/64 + r + 2 pi k, |r| <= pi/128.
// Each lane's row is one 16-byte load (its three words and one word beyond, unused),
// transposed into three vectors of words; the 24-bit significand times each word is a
// 64-bit product (lanes 0 and 2, then 1 and 3). Bits 95..32 of the product are the sum
// of the three products at 2^64, 2^32 and 1, taken modulo 2^64: the bits above 95 drop
// out with the wrap.
BRENN_TRIG_COLD void LargeS(__m128 a, int32_t J[4], __m128d& r0, __m128d& r1) {
    using F = Format<float>;
    I32x4 b = AsInt(a);
    // Exponent 255 (infinity or NaN lanes, whose results are not used) would read past
    // the last row: clamped.
    I32x4 e = Min(ShiftRight<F::kMantBits>(b), Set<int32_t>(254));
    I32x4 off = Add(ShiftLeft<3>(e), ShiftLeft<2>(e)); // e * 12, the row's byte offset
    const char* base = reinterpret_cast<const char*>(twoOverPiBits);
    auto row = [base](int32_t offset) {
        return Load(reinterpret_cast<const uint32_t*>(base + offset));
    };
    I32x4 v0 = row(ExtractLane<0>(off)), v1 = row(ExtractLane<1>(off));
    I32x4 v2 = row(ExtractLane<2>(off)), v3 = row(ExtractLane<3>(off));
    I64x2 lo01 = BitCast<I64x2>(InterleaveLower(v0, v1));
    I64x2 lo23 = BitCast<I64x2>(InterleaveLower(v2, v3));
    I64x2 hi01 = BitCast<I64x2>(InterleaveUpper(v0, v1));
    I64x2 hi23 = BitCast<I64x2>(InterleaveUpper(v2, v3));
    I64x2 w2 = InterleaveLower(lo01, lo23); // most significant word of each lane
    I64x2 w1 = InterleaveUpper(lo01, lo23);
    I64x2 w0 = InterleaveLower(hi01, hi23); // least significant
    I64x2 m = BitCast<I64x2>(Or(And(b, Set<uint32_t>(F::kMant)), Set<uint32_t>(F::kMant + 1)));
    I64x2 mo = ShiftRight<32>(m);
    // X: product bits 95..32 (lanes 0 and 2 in xe, 1 and 3 in xo); t: bits 31..25.
    I64x2 pe0 = MulLowWords(m, w0), po0 = MulLowWords(mo, ShiftRight<32>(w0));
    I64x2 pe1 = MulLowWords(m, w1), po1 = MulLowWords(mo, ShiftRight<32>(w1));
    I64x2 pe2 = MulLowWords(m, w2), po2 = MulLowWords(mo, ShiftRight<32>(w2));
    I64x2 xe = Add(Add(ShiftLeft<32>(pe2), pe1), ShiftRight<32>(pe0));
    I64x2 xo = Add(Add(ShiftLeft<32>(po2), po1), ShiftRight<32>(po0));
    // Bits 95..89 are x/(pi/64) mod 128; bits 88..25, read as a signed 64-bit number,
    // the fraction centred on zero (bit 88 set means the next index up).
    I64x2 fe = Or(ShiftLeft<7>(xe), ShiftRight<57>(ShiftLeft<32>(pe0)));
    I64x2 fo = Or(ShiftLeft<7>(xo), ShiftRight<57>(ShiftLeft<32>(po0)));
    // Back to four 32-bit lanes: J in the low word, the fraction as high and low words.
    const I64x2 half = Set<int64_t>(1ll << 56); // rounds X / 2^57, modulo 128
    I64x2 je = ShiftRight<57>(Add(xe, half));
    I64x2 jo = ShiftRight<57>(Add(xo, half));
    Store(J, OddEven(BitCast<I32x4>(ShiftLeft<32>(jo)), BitCast<I32x4>(je)));
    I32x4 hi = OddEven(BitCast<I32x4>(fo), BitCast<I32x4>(ShiftRight<32>(fe)));
    I32x4 lo = OddEven(BitCast<I32x4>(ShiftLeft<32>(fo)), BitCast<I32x4>(fe));
    // The low words are unsigned: biased by 2^31 into the signed range and back.
    I32x4 lob = Xor(lo, Set<uint32_t>(F::kSign));
    __m128d h0 = ToDoubleLower(hi), h1 = ToDoubleUpper(hi);
    __m128d l0 = ToDoubleLower(lob), l1 = ToDoubleUpper(lob);
    const __m128d two31 = Set<double>(0x1p31), two32 = Set<double>(0x1p32);
    const __m128d scale = Set<double>(0x1p-64 * kPi64);
    r0 = Mul(Add(Mul(h0, two32), Add(l0, two31)), scale);
    r1 = Mul(Add(Mul(h1, two32), Add(l1, two31)), scale);
}

// Product of two doubles as a head and its error (Dekker, without fused operations):
// p + e = a * b, the error's four partial products summed in pairs.
BRENN_TRIG_HOT void TwoProd(__m128d a, __m128d b, __m128d& p, __m128d& e) {
    p = Mul(a, b);
    __m128d ah, al, bh, bl;
    Split(a, ah, al);
    Split(b, bh, bl);
    e = Add(Add(Sub(Mul(ah, bh), p), Mul(ah, bl)), Add(Mul(al, bh), Mul(al, bl)));
}

// Reduction of two finite double magnitudes: J[k] mod 128 and r = rh + rl, |r| <= pi/128.
BRENN_TRIG_COLD void LargeD(__m128d a, int32_t J[2], __m128d& rh, __m128d& rl) {
    using F = Format<double>;
    alignas(16) uint64_t bits[2];
    StoreAligned(bits, AsInt(a));
    const uint32_t* row0 = twoOverPiBits64[bits[0] >> F::kMantBits];
    const uint32_t* row1 = twoOverPiBits64[bits[1] >> F::kMantBits];
    I64x2 w[6]; // w[0] least significant, one word in the low half of each 64-bit lane
#pragma GCC unroll 8
    for (int k = 0; k < 6; ++k)
        w[k] = SetLanes(int64_t(row0[5 - k]), int64_t(row1[5 - k]));
    I64x2 m = Or(And(AsInt(a), Set<uint64_t>(F::kMant)), Set<uint64_t>(F::kMant + 1));
    I64x2 ml = m, mh = ShiftRight<32>(m); // the products read the low 32 bits
    const I64x2 low32 = Set<uint64_t>(0xFFFFFFFFull);
    I64x2 pl[6], ph[6];
#pragma GCC unroll 8
    for (int k = 0; k < 6; ++k) {
        pl[k] = MulLowWords(ml, w[k]);
        ph[k] = MulLowWords(mh, w[k]);
    }
    // Columns of 32 bits: digit k has weight 2^(32k).
    I64x2 d[6];
    I64x2 carry = Zero<int64_t>();
#pragma GCC unroll 8
    for (int k = 0; k < 6; ++k) {
        I64x2 col = Add(And(pl[k], low32), carry);
        if (k >= 1) col = Add(col, Add(ShiftRight<32>(pl[k - 1]), And(ph[k - 1], low32)));
        if (k >= 2) col = Add(col, ShiftRight<32>(ph[k - 2]));
        d[k] = And(col, low32);
        carry = ShiftRight<32>(col);
    }
    // Bits 191..185: index mod 128; bits 184..121 (signed) and 120..57: the fraction.
    I64x2 hi = Or(Or(ShiftLeft<39>(d[5]), ShiftLeft<7>(d[4])), ShiftRight<25>(d[3]));
    I64x2 lo = Or(Or(ShiftLeft<39>(d[3]), ShiftLeft<7>(d[2])), ShiftRight<25>(d[1]));
    I64x2 j = Add(ShiftRight<25>(d[5]), And(ShiftRight<24>(d[5]), Set<int64_t>(1)));
    J[0] = LowWord<0>(j) & 127;
    J[1] = LowWord<1>(j) & 127;
    // hi as a double and its exact rest, plus lo: a 128-bit fraction as two doubles.
    alignas(16) int64_t hv[2];
    alignas(16) uint64_t lv[2];
    StoreAligned(hv, hi);
    StoreAligned(lv, lo);
    alignas(16) double fh[2], fl[2];
#pragma GCC unroll 8
    for (int k = 0; k < 2; ++k) {
        // Top 53 bits exactly (arithmetic shift: floor), the 11 below with lo.
        fh[k] = double(hv[k] >> 11) * 2048.0;
        fl[k] = double(hv[k] & 2047) + double(lv[k] >> 11) * 0x1p-53;
    }
    __m128d gh = LoadAligned(fh), gl = LoadAligned(fl);
    // g = (gh + gl) 2^-64 turns; r = g * pi/64 in two parts.
    __m128d s = Add(gh, gl);
    gl = Sub(gl, Sub(s, gh));
    gh = Mul(s, Set<double>(0x1p-64));
    gl = Mul(gl, Set<double>(0x1p-64));
    __m128d p, pe;
    TwoProd(gh, Set<double>(kPi64), p, pe);
    pe = Add(pe, Add(Mul(gh, Set<double>(kPi64Lo)), Mul(gl, Set<double>(kPi64))));
    rh = Add(p, pe);
    rl = Sub(pe, Sub(rh, p));
}

// Short reduction of two double magnitudes below 2^24 at pi/64: j = round(a 64/pi),
// J = j mod 128 (plus add), r = a - j pi/64 as two doubles. j < 2^29, so its products
// with the first three parts of pi/64 (24 bits each) are exact. The first two
// differences are exact as they stand: a - j C0 and j C1 are multiples of 2^-58 (of
// 2^-52 when a >= 1; j = 0 below pi/128) and their difference is below 2^-5. The third
// is carried exactly so that an argument close to a multiple of pi keeps its full
// precision, by the fast sum: r1 is a multiple of 2^-58 (and below 2^-5), j C2 one of
// C2's last bit, 2^-74, and below 2^-23, so that where |r1| is the smaller, r1 plus
// j C2 rounds onto multiples of 2^-74 (or is exact) and the sum's error comes out
// exactly all the same.
// The second form also gives t, whose low word is j (before add), for lane masks of j's
// bits without a round trip through J.
BRENN_TRIG_HOT void ShortD(__m128d a, int32_t J[2], __m128d& rh, __m128d& rl, int add,
                           __m128d& t) {
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    t = Add(Mul(a, Set<double>(k64OverPi)), shifter);
    J[0] = LowWord<0>(AsInt(t)) + add;
    J[1] = LowWord<1>(AsInt(t)) + add;
    __m128d j = Sub(t, shifter);
    __m128d r1 = Sub(a, Mul(j, Set<double>(kPi64Parts[0])));
    r1 = Sub(r1, Mul(j, Set<double>(kPi64Parts[1])));
    __m128d h, l;
    FastTwoSum(r1, Mul(j, Set<double>(-kPi64Parts[2])), h, l);
    l = Sub(l, Mul(j, Set<double>(kPi64Parts[3])));
    // Renormalised, the series running on rh alone: |h| >= |l|, so the fast sum is exact.
    FastTwoSum(h, l, rh, rl);
}
BRENN_TRIG_HOT void ShortD(__m128d a, int32_t J[2], __m128d& rh, __m128d& rl, int add) {
    __m128d t;
    ShortD(a, J, rh, rl, add, t);
}

// Per-lane choice between two reductions, by a two-bit lane mask (bit k: lane k of b).
BRENN_TRIG_HOT void PickD(int mask, const int32_t* Jb, __m128d rhb, __m128d rlb, int32_t* J,
                          __m128d& rh, __m128d& rl) {
    __m128d m = MaskFromBits<double>(mask);
    rh = IfThenElse(m, rhb, rh);
    rl = IfThenElse(m, rlb, rl);
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

// The rows of two lanes' j from a table of sin and cos at multiples of pi/64 (sinCosPi64,
// or sinCosPi64Split with cos A's rest in its fourth column).
BRENN_TRIG_HOT TableRow LoadRows(const int32_t* J, const double (*table)[4] = sinCosPi64) {
    const double* t0 = table[J[0] & 127];
    const double* t1 = table[J[1] & 127];
    __m128d q0 = Load(t0), q1 = Load(t1);
    __m128d c0 = Load(t0 + 2), c1 = Load(t1 + 2);
    return {InterleaveLower(q0, q1), InterleaveUpper(q0, q1), InterleaveLower(c0, c1),
            InterleaveUpper(c0, c1)};
}

BRENN_TRIG_HOT Series SeriesOf(__m128d rh) {
    __m128d u = Mul(rh, rh);
    return {Mul(Mul(rh, u), Horner(u, kSinTaylor)), Mul(u, Horner(u, kCosTaylor))};
}

// sin(A + r) from a row (sh + sl = sin A, ch + cl = cos A) as a high and a low part.
// With exact = true the product cos A * rh is carried exactly as well: near the zeros
// of sine (A = pi/64 beside a multiple of pi) that product is as large as the result.
// Both factors are cut to 26 significant bits by a mask, so that the product of the
// heads is exact; the tails' products go to the low part.
BRENN_TRIG_HOT void Combine(__m128d sh, __m128d sl, __m128d ch, __m128d cl, __m128d rh, __m128d rl,
                            const Series& r, bool exact, __m128d& hi, __m128d& lo) {
    __m128d p, t = Add(Mul(ch, Add(rl, r.ps)), Mul(sh, r.pc));
    if (exact) {
        const __m128d head = SplatBits<double>(0xFFFFFFFFF8000000ull);
        __m128d chh = And(ch, head), rhh = And(rh, head);
        __m128d chl = Add(Sub(ch, chh), cl), rhl = Sub(rh, rhh);
        p = Mul(chh, rhh);
        t = Add(t, Add(sl, Add(Mul(chh, rhl), Mul(chl, rh))));
    } else {
        p = Mul(ch, rh);
        t = Add(t, Add(sl, Mul(cl, rh)));
    }
    hi = Add(sh, p);
    __m128d e = Add(Sub(sh, hi), p); // |sh| >= |p| or sh = 0
    lo = Add(e, t);
}

// sin(J pi/64 + rh + rl) for |rh| <= pi/128 (rl much smaller), as a high and a low part.
BRENN_TRIG_HOT void TableSin(const int32_t* J, __m128d rh, __m128d rl, __m128d& hi, __m128d& lo,
                             bool exact = false) {
    TableRow t = LoadRows(J);
    Combine(t.sh, t.sl, t.ch, t.cl, rh, rl, SeriesOf(rh), exact, hi, lo);
}

// Sine and cosine at once from one row and one series, each as a high and a low part
// (the row at J + 32 holds cos A and -sin A, so these are the values TableSin gives there).
BRENN_TRIG_HOT void TableSinCos(const int32_t* J, __m128d rh, __m128d rl, bool exact, __m128d& sh,
                                __m128d& sl, __m128d& ch, __m128d& cl) {
    TableRow t = LoadRows(J);
    Series r = SeriesOf(rh);
    Combine(t.sh, t.sl, t.ch, t.cl, rh, rl, r, exact, sh, sl);
    Combine(t.ch, t.cl, Neg(t.sh), Neg(t.sl), rh, rl, r, exact, ch, cl);
}
BRENN_TRIG_HOT void TableSinCos(const int32_t* J, __m128d rh, __m128d rl, bool exact, __m128d& s,
                                __m128d& c) {
    __m128d sh, sl, ch, cl;
    TableSinCos(J, rh, rl, exact, sh, sl, ch, cl);
    s = Add(sh, sl);
    c = Add(ch, cl);
}

BRENN_TRIG_HOT __m128d TableSin(const int32_t* J, __m128d rh, __m128d rl, bool exact = false) {
    __m128d hi, lo;
    TableSin(J, rh, rl, hi, lo, exact);
    return Add(hi, lo);
}

// sin(J pi/64 + r), |r| <= pi/128, for a result in single: the high parts of the row
// and two terms of each series are enough (the first terms left out are below 2^-40).
BRENN_TRIG_HOT __m128d TableSinS(const int32_t* J, __m128d r) {
    const double* t0 = sinCosPi64[J[0] & 127];
    const double* t1 = sinCosPi64[J[1] & 127];
    __m128d sh = LoadLanes(t0, t1);
    __m128d ch = LoadLanes(t0 + 2, t1 + 2);
    __m128d u = Mul(r, r);
    __m128d ps = Mul(Mul(r, u), Horner(u, kSinTaylor2));
    __m128d pc = Mul(u, Horner(u, kCosTaylor2));
    __m128d t = Add(Mul(ch, ps), Mul(sh, pc));
    return Add(sh, Add(Mul(ch, r), t));
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
    __m128d lo = TableSinS(J, r0);
    __m128d hi = TableSinS(J + 2, r1);
    return Narrow(lo, hi);
}

// The single LA kernels reduce in single, good to 2^-35 absolute on their short paths;
// a remainder below 2^-9, where that would be more than a tenth of an ulp, is redone in
// double. The test reads the squares u = r^2 that the series needs anyway (no magnitudes
// to take): a remainder is near zero when its square is below 2^-18 (as bits).
constexpr uint32_t kNearZeroSqBits = 0x36800000;

// Whether any lane of N squares is below 2^-18: one compare on the least of them.
template <int N>
BRENN_TRIG_HOT bool AnyNearZeroSq(const __m128* u) {
    I32x4 least = AsInt(u[0]);
    BRENN_EACH(k, N - 1) least = Min(least, AsInt(u[k + 1]));
    return MaskBits(Lt(least, Set<uint32_t>(kNearZeroSqBits))) != 0;
}

// The lanes of remainders r whose squares are below 2^-18 replaced by the wide
// reduction's, with their squares again, lane by lane: which reduction an element takes
// depends on its own remainder only, never on its neighbours in the block, so its result
// does not depend on where it stands in a call.
template <int N>
BRENN_TRIG_HOT void TakeNearZeroSq(__m128* r, __m128* u, const __m128* wide) {
    BRENN_EACH(k, N) {
        __m128 near = AsFloat(Lt(AsInt(u[k]), Set<uint32_t>(kNearZeroSqBits)));
        r[k] = IfThenElse(near, wide[k], r[k]);
        u[k] = Mul(r[k], r[k]);
    }
}

// Lanes with the exponent field all ones (infinity and NaN), as the range-test mask.
template <class V>
BRENN_TRIG_HOT V InfNan(V a) {
    using T = ElemOf<V>;
    return AsFloat(Gt(AsInt(a), Set<UInt<T>>(Format<T>::kExpField - 1)));
}

// Lanes of a block that need the large path: finite magnitudes a above the limit. One
// compare on the common path; infinity and NaN lanes (the scalar routine's) are taken
// out only when some lane is above the limit.
template <class V>
BRENN_TRIG_HOT int LargeLanes(V a, UInt<ElemOf<V>> limitBits) {
    int big = MaskBits(Gt(AsInt(a), Set<UInt<ElemOf<V>>>(limitBits)));
    if (__builtin_expect(big != 0, 0)) big &= ~MaskBits(InfNan(a));
    return big;
}

// The scalar routine every trigonometric kernel shares: only infinity and NaN reach it.
template <class T>
int InfNanScalar(const T* a, T* y) {
    T x = *a;
    if (__builtin_isinf(x)) {
        *y = Keep(x) * T(0); // NaN, raising invalid
        return status::kDomain;
    }
    if (__builtin_isnan(x)) *y = x * x;
    return status::kNone;
}

// The same for the two results of SinCos, the status of the first.
template <class T>
int InfNanScalar(const T* a, T* y, T* z) {
    int st = InfNanScalar(a, y);
    InfNanScalar(a, z);
    return st;
}

// Magnitudes of a round's four single registers, and whether any lane is above the
// limit (infinity and NaN are, as bits): one compare on the largest of them.
inline bool AnyAboveS(const __m128* x, __m128* a, uint32_t limitBits) {
    BRENN_EACH(k, 4) a[k] = Abs(x[k]);
    I32x4 m = Max(Max(AsInt(a[0]), AsInt(a[1])), Max(AsInt(a[2]), AsInt(a[3])));
    return MaskBits(Gt(m, Set<uint32_t>(limitBits))) != 0;
}

// Magnitudes of a round's N double registers, and whether any lane may be above the
// limit, by the high words alone: the 32-bit maxima of the registers' words, one compare.
// It answers yes for every lane above the limit (whose high word is at least the limit's),
// infinity and NaN among them, and for a few just below (high word equal to the limit's);
// the round then takes the register-by-register path, whose tests are exact. The low
// words' maxima are compared with 0x7FFFFFFF, which no signed word exceeds.
template <int N>
BRENN_TRIG_HOT bool AnyAboveD(const __m128d* x, __m128d* a, uint64_t limitBits) {
    BRENN_EACH(k, N) a[k] = Abs(x[k]);
    const I32x4 limit = BitCast<I32x4>(Set<uint64_t>(((limitBits >> 32) - 1) << 32 | 0x7FFFFFFFu));
    I32x4 m = BitCast<I32x4>(AsInt(a[0]));
    BRENN_EACH(k, N - 1) m = Max(m, BitCast<I32x4>(AsInt(a[k + 1])));
    return MaskBits(Gt(m, limit)) != 0;
}

// A round register by register through the body's Eval, when a lane is off the short
// path: their special bits packed for the frame (bit j for element j of the round).
template <class Body, int N, class V>
inline int EvalEach(const V* x, V* y) {
    int bits = 0;
    BRENN_EACH(k, N) {
        V special;
        y[k] = Body::Eval(x[k], special);
        bits |= MaskBits(special) << (kLanes<ElemOf<V>> * k);
    }
    return bits;
}

// The same for a body with two results (SinCos).
template <class Body, int N, class V>
inline int EvalEach(const V* x, V* s, V* c) {
    int bits = 0;
    BRENN_EACH(k, N) {
        V special;
        Body::Eval(x[k], s[k], c[k], special);
        bits |= MaskBits(special) << (kLanes<ElemOf<V>> * k);
    }
    return bits;
}

} // namespace brenn::vm::trig

#endif
