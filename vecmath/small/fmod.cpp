/* Fmod and Remainder, single and double: one kernel for all levels, exact results.
 *
 * The single body works in double, where the remainder of a quotient below 2^24 is
 * exact (see WideRemainder). The double body takes quotients below 2^52 by an exact
 * product of the quotient's integer part and b, and the lanes whose result is a itself.
 * Every other lane goes to the scalar routine, which works on the
 * integer significands and never divides: a shift-and-subtract long division over the exponent
 * difference, keeping the last quotient bit for Remainder's round-to-even. A zero b or an infinite
 * a gives NaN with status 2 (singularity: these domain cases report as such); a NaN
 * operand gives a NaN without report. */
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

// 0/0 for the invalid flag; the result of the singular cases.
template <class T>
inline T Invalid() {
    return Keep(T(0)) / T(0);
}

// Significand with its hidden bit and the matching exponent; a denormal is doubled
// until the hidden bit is set, its exponent going below 1. x is finite, not zero.
template <class T>
inline void Unpack(UInt<T> ax, UInt<T>& m, int& e) {
    using F = Format<T>;
    constexpr UInt<T> hidden = UInt<T>(1) << F::kMantBits;
    e = int(ax >> F::kMantBits);
    m = ax & (hidden - 1);
    if (e == 0) {
        e = 1;
        while (!(m & hidden)) {
            m <<= 1;
            --e;
        }
    } else {
        m |= hidden;
    }
}

// Builds sign | m * 2^(e - bias) from a significand below 2^(kMantBits + 1), renormalising
// it and giving a denormal when the exponent falls below the normal range; m is a
// multiple of the smallest denormal there, so the shift is exact.
template <class T>
inline T Pack(UInt<T> sign, UInt<T> m, int e) {
    using F = Format<T>;
    using U = UInt<T>;
    constexpr U hidden = U(1) << F::kMantBits;
    if (m == 0) return FromBits<T>(sign);
    while (!(m & hidden)) {
        m <<= 1;
        --e;
    }
    if (e < 1) return FromBits<T>(sign | (m >> (1 - e)));
    return FromBits<T>(sign | (U(e) << F::kMantBits) | (m - hidden));
}

// The long division of |x| by |y|, |x| >= |y|, both finite and not zero: the remainder
// r (as significand at y's exponent ey) and the last quotient bit.
template <class T>
inline void LongDivide(UInt<T> ax, UInt<T> ay, UInt<T>& r, int& ey, int& lastBit) {
    UInt<T> mx, my;
    int ex;
    Unpack<T>(ax, mx, ex);
    Unpack<T>(ay, my, ey);
    lastBit = 0;
    // One quotient bit a step, taken without a branch: the bits are as good as random,
    // and a mispredicted jump a bit costs more than the step.
    for (int k = ex - ey; k > 0; --k) {
        mx -= my & (UInt<T>(0) - UInt<T>(mx >= my));
        mx <<= 1;
    }
    if (mx >= my) {
        mx -= my;
        lastBit = 1;
    }
    r = mx;
}

// Cases common to both: NaN, singular, infinite y. Returns true when *y is decided.
template <class T>
inline bool Common(T x, T w, int& st, T* y) {
    using F = Format<T>;
    UInt<T> ax = BitsOf(x) & ~F::kSign, ay = BitsOf(w) & ~F::kSign;
    if (ax > F::kExpField || ay > F::kExpField) {
        *y = x * w;
        st = status::kNone;
    } else if (ay == 0 || ax == F::kExpField) {
        *y = Invalid<T>();
        st = status::kSingularity;
    } else if (ay == F::kExpField) {
        *y = x;
        st = status::kNone;
    } else {
        return false;
    }
    return true;
}

template <class T>
int FmodScalar(const T* a, const T* b, T* y) {
    using F = Format<T>;
    using U = UInt<T>;
    T x = *a, w = *b;
    U ux = BitsOf(x), sx = ux & F::kSign, ax = ux & ~F::kSign, ay = BitsOf(w) & ~F::kSign;
    if (ay == F::kOne) {
        // Division by one: the fraction of x, got by masking off its integer part.
        if (ax < F::kOne) {
            *y = x;
        } else if (ax < ((U(F::kMantBits) + (F::kOne >> F::kMantBits)) << F::kMantBits)) {
            int e = int(ax >> F::kMantBits) - int(F::kOne >> F::kMantBits);
            U whole = ux & ~((U(1) << (F::kMantBits - e)) - 1);
            *y = FromBits<T>(BitsOf(T(x - FromBits<T>(whole))) | sx);
        } else if (ax < F::kExpField) {
            *y = x * T(0);
        } else if (ax == F::kExpField) {
            *y = Invalid<T>();
            return status::kSingularity;
        } else {
            *y = x * w;
        }
        return status::kNone;
    }
    int st;
    if (Common(x, w, st, y)) return st;
    if (ax < ay) {
        *y = x;
        return status::kNone;
    }
    U r;
    int ey, last;
    LongDivide<T>(ax, ay, r, ey, last);
    *y = Pack<T>(sx, r, ey);
    return status::kNone;
}

template <class T>
int RemainderScalar(const T* a, const T* b, T* y) {
    using F = Format<T>;
    using U = UInt<T>;
    T x = *a, w = *b;
    int st;
    if (Common(x, w, st, y)) return st;
    U ux = BitsOf(x), sx = ux & F::kSign, ax = ux & ~F::kSign, ay = BitsOf(w) & ~F::kSign;
    if (ax < ay) {
        // 2|x| on the integer view: doubling a denormal is a shift, a normal steps its
        // exponent (an overflow to the infinity pattern still compares right).
        U twice = ax < (U(1) << F::kMantBits) ? ax << 1 : ax + (U(1) << F::kMantBits);
        if (ay >= twice)
            *y = x;
        else // quotient 1; |y| within a factor two of |x|, so the difference is exact
            *y = FromBits<T>(BitsOf(T(FromBits<T>(ax) - FromBits<T>(ay))) ^ sx);
        return status::kNone;
    }
    if (ax == ay) {
        *y = T(0) * x;
        return status::kNone;
    }
    U r, my;
    int ey, last, ignored;
    LongDivide<T>(ax, ay, r, ey, last);
    Unpack<T>(ay, my, ignored);
    // Round the quotient to nearest, ties to even: past half of |y| the remainder
    // becomes r - |y|, with the sign flipped.
    if (2 * r > my || (2 * r == my && last)) {
        r = my - r;
        sx ^= F::kSign;
    }
    *y = Pack<T>(sx, r, ey);
    return status::kNone;
}

// Lanes where the result is a: both operands ordered, and |a| below |b| (Fmod, b may be
// infinite) or 2|a| below |b| (Remainder). Everything else is special.
template <bool Rem, class V>
inline V KeepsA(V a, V b) {
    using T = ElemOf<V>;
    using F = Format<T>;
    const auto abs = Set<UInt<T>>(F::kAbs);
    auto ax = And(AsInt(a), abs), ay = And(AsInt(b), abs);
    auto bad = Or(Not(Gt(ay, ax)), Gt(ay, Set<UInt<T>>(F::kExpField)));
    if constexpr (Rem) {
        // 2|a| as in the scalar routine; ax is below ay <= inf on good lanes, so it cannot
        // wrap there.
        auto step = Set<UInt<T>>(UInt<T>(1) << F::kMantBits);
        auto twice = Add(ax, IfThenElse(Gt(step, ax), ax, step));
        bad = Or(bad, Not(Gt(ay, twice)));
    }
    return AsFloat(bad);
}

// The single body in double arithmetic, for quotients |a|/|b| below 2^24. A quotient
// that is not an integer stays at least 2^-24 from one (|a| - k|b| is a multiple of
// |b|'s last place), far beyond the 2^-29 that rounding to double moves a quotient
// below 2^24, so q = trunc(|a|/|b|) is the true integer part; q*|b| has at most 48
// bits and r = |a| - q*|b| lies in [0, |b|) on |b|'s grid: both exact. Remainder then
// takes r - |b| past half of |b|, or at half when the quotient is odd. The result is
// on the single grid, so the narrowing is exact, and gets a's sign.
template <bool Rem>
inline __m128d WideRemainder(__m128d x, __m128d y, __m128d& big) {
    constexpr int kTrunc = rounding::kTowardZero | rounding::kNoInexact;
    __m128d d = Div(x, y);
    big = Ge(d, Set<double>(0x1p24));
    __m128d q = RoundBy<kTrunc>(d);
    __m128d r = Sub(x, Mul(q, y));
    if constexpr (Rem) {
        __m128d half = Mul(q, Set<double>(0.5));
        __m128d odd = Ne(RoundBy<kTrunc>(half), half);
        __m128d twice = Add(r, r);
        __m128d up = Or(Gt(twice, y), And(Eq(twice, y), odd));
        r = Sub(r, IfThenElseZero(up, y));
    }
    return r;
}

// Single: special lanes are a not finite, b zero, infinite or NaN, or a quotient of
// 2^24 or more; they compute 0 / 1, so the arithmetic raises nothing for them.
template <bool Rem>
inline __m128 Reduce(__m128 a, __m128 b, __m128& special) {
    using F = Format<float>;
    const I32x4 abs = Set<uint32_t>(F::kAbs), finiteTop = Set<uint32_t>(F::kExpField - 1);
    I32x4 ax = And(AsInt(a), abs), ay = And(AsInt(b), abs);
    I32x4 bad = Or(Eq(ay, Zero<int32_t>()), Or(Gt(ay, finiteTop), Gt(ax, finiteTop)));
    __m128 xf = IfThenZeroElse(AsFloat(bad), AsFloat(ax));
    __m128 yf = IfThenElse(AsFloat(bad), Set<float>(1.0f), AsFloat(ay));
    __m128d big0, big1;
    __m128d r0 = WideRemainder<Rem>(WidenLower(xf), WidenLower(yf), big0);
    __m128d r1 = WideRemainder<Rem>(WidenUpper(xf), WidenUpper(yf), big1);
    __m128 big = NarrowMask(big0, big1);
    special = Or(AsFloat(bad), big);
    __m128 r = Narrow(r0, r1);
    return Xor(r, SignBit(a));
}
// Double: quotients |a|/|b| below 2^52 in the vector, by the quotient's integer part.
// With x = |a| >= y = |b| and n = floor(x/y) >= 1, the rounded quotient truncates to q = n
// or n + 1 (n and n + 1 are doubles and rounding is monotone). q*y is carried exactly as
// hi + lo; hi lies within a factor two of x, so x - hi is exact, and r = x - q*y, a
// multiple of y's last place smaller than y in magnitude, comes out exact from
// (x - hi) - lo. A negative r means q was n + 1: r + y is then exact too. Remainder
// takes r - y past half of y, or at half when the integer part is odd, as the single
// body does. The vector keeps y within [2^-969, 2^991] and x below 2^990, where the
// splitter cannot overflow and every partial product and result is normal, so the
// flush-to-zero and denormals-are-zero modes change nothing; lanes whose result is a
// (KeepsA) take a's bits, and the rest (large quotients, tiny or huge operands, zero,
// infinite and NaN operands) go to the scalar routine. Lanes outside the vector's part
// compute 0 / 1, which raises nothing.
template <bool Rem>
inline __m128d Reduce(__m128d a, __m128d b, __m128d& special) {
    using F = Format<double>;
    constexpr int kTrunc = rounding::kTowardZero | rounding::kNoInexact;
    constexpr uint64_t kLowY = uint64_t(F::kBias - 969) << F::kMantBits;
    constexpr uint64_t kHighX = uint64_t(F::kBias + 990) << F::kMantBits;
    const I64x2 abs = Set<uint64_t>(F::kAbs);
    I64x2 ax = And(AsInt(a), abs), ay = And(AsInt(b), abs);
    __m128d notA = KeepsA<Rem>(a, b);
    I64x2 inRange = And(Gt(ay, Set<uint64_t>(kLowY - 1)), Gt(Set<uint64_t>(kHighX), ax));
    __m128d vec = And(notA, AsFloat(inRange));
    __m128d x = IfThenElseZero(vec, AsFloat(ax));
    __m128d y = IfThenElse(vec, AsFloat(ay), Set<double>(1.0));
    __m128d q = RoundBy<kTrunc>(Div(x, y));
    vec = And(vec, Lt(q, Set<double>(0x1p52)));
    __m128d hi, lo;
    TwoProductExact(q, y, hi, lo);
    __m128d r = Sub(Sub(x, hi), lo);
    __m128d over = Lt(r, Zero<double>());
    r = Add(r, IfThenElseZero(over, y));
    if constexpr (Rem) {
        q = Sub(q, IfThenElseZero(over, Set<double>(1.0)));
        __m128d half = Mul(q, Set<double>(0.5));
        __m128d odd = Ne(RoundBy<kTrunc>(half), half);
        __m128d twice = Add(r, r);
        __m128d up = Or(Gt(twice, y), And(Eq(twice, y), odd));
        r = Sub(r, IfThenElseZero(up, y));
    }
    special = AndNot(vec, notA);
    return IfThenElse(notA, Xor(r, SignBit(a)), a);
}

template <class Tp, bool Rem>
struct FmodBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName =
        Rem ? ZAR_ERROR_NAME_OF(T, Remainder) : ZAR_ERROR_NAME_OF(T, Fmod);
    static V Eval(V a, V b, V& special) { return Reduce<Rem>(a, b, special); }
    static int Scalar(const T* a, const T* b, T* y) {
        return Rem ? RemainderScalar(a, b, y) : FmodScalar(a, b, y);
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
ZAR_KERNEL_OF(s, Fmod, All, Binary, FmodBody<float, false>)
ZAR_KERNEL_OF(d, Fmod, All, Binary, FmodBody<double, false>)
ZAR_KERNEL_OF(s, Remainder, All, Binary, FmodBody<float, true>)
ZAR_KERNEL_OF(d, Remainder, All, Binary, FmodBody<double, true>)
}
