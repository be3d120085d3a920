/* Fmod and Remainder, single and double: one kernel for all levels, exact results.
 *
 * The single body works in double, where the remainder of a quotient below 2^24 is
 * exact (see WideRemainder). The double body covers the lanes whose result is a
 * itself: |a| below |b| for Fmod (b may be infinite), |b| above 2|a| for Remainder,
 * with neither operand a NaN. Every other lane goes to the scalar routine, which works on the
 * integer significands and never divides: a shift-and-subtract long division over the exponent
 * difference, keeping the last quotient bit for Remainder's round-to-even. A zero b or an infinite
 * a gives NaN with status 2 (singularity: these domain cases report as such); a NaN
 * operand gives a NaN without report. */
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

// Layout of the format on its unsigned integer view.
template <class T>
struct Fmt;
template <>
struct Fmt<float> {
    using U = uint32_t;
    static constexpr int kMant = 23;
    static constexpr U kSign = 0x80000000u;
    static constexpr U kInf = 0x7F800000u;
    static constexpr U kOne = 0x3F800000u;
};
template <>
struct Fmt<double> {
    using U = uint64_t;
    static constexpr int kMant = 52;
    static constexpr U kSign = 0x8000000000000000ull;
    static constexpr U kInf = 0x7FF0000000000000ull;
    static constexpr U kOne = 0x3FF0000000000000ull;
};

template <class T>
inline T FromBits(typename Fmt<T>::U u) {
    return __builtin_bit_cast(T, u);
}
template <class T>
inline typename Fmt<T>::U ToBits(T x) {
    return __builtin_bit_cast(typename Fmt<T>::U, x);
}

// 0/0 for the invalid flag; the result of the singular cases.
template <class T>
inline T Invalid() {
    return Keep(T(0)) / T(0);
}

// Significand with its hidden bit and the matching exponent; a denormal is doubled
// until the hidden bit is set, its exponent going below 1. x is finite, not zero.
template <class T>
inline void Unpack(typename Fmt<T>::U ax, typename Fmt<T>::U& m, int& e) {
    using F = Fmt<T>;
    constexpr typename F::U hidden = typename F::U(1) << F::kMant;
    e = int(ax >> F::kMant);
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

// Builds sign | m * 2^(e - bias) from a significand below 2^(kMant+1), renormalising
// it and giving a denormal when the exponent falls below the normal range; m is a
// multiple of the smallest denormal there, so the shift is exact.
template <class T>
inline T Pack(typename Fmt<T>::U sign, typename Fmt<T>::U m, int e) {
    using F = Fmt<T>;
    using U = typename F::U;
    constexpr U hidden = U(1) << F::kMant;
    if (m == 0) return FromBits<T>(sign);
    while (!(m & hidden)) {
        m <<= 1;
        --e;
    }
    if (e < 1) return FromBits<T>(sign | (m >> (1 - e)));
    return FromBits<T>(sign | (U(e) << F::kMant) | (m - hidden));
}

// The long division of |x| by |y|, |x| >= |y|, both finite and not zero: the remainder
// r (as significand at y's exponent ey) and the last quotient bit.
template <class T>
inline void LongDivide(typename Fmt<T>::U ax, typename Fmt<T>::U ay, typename Fmt<T>::U& r, int& ey,
                       int& lastBit) {
    typename Fmt<T>::U mx, my;
    int ex;
    Unpack<T>(ax, mx, ex);
    Unpack<T>(ay, my, ey);
    lastBit = 0;
    for (int k = ex - ey; k > 0; --k) {
        if (mx >= my) mx -= my;
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
inline bool Common(T x, T w, int& status, T* y) {
    using F = Fmt<T>;
    typename F::U ax = ToBits(x) & ~F::kSign, ay = ToBits(w) & ~F::kSign;
    if (ax > F::kInf || ay > F::kInf) {
        *y = x * w;
        status = 0;
    } else if (ay == 0 || ax == F::kInf) {
        *y = Invalid<T>();
        status = 2;
    } else if (ay == F::kInf) {
        *y = x;
        status = 0;
    } else {
        return false;
    }
    return true;
}

template <class T>
int FmodScalar(const T* a, const T* b, T* y) {
    using F = Fmt<T>;
    using U = typename F::U;
    T x = *a, w = *b;
    U ux = ToBits(x), sx = ux & F::kSign, ax = ux & ~F::kSign, ay = ToBits(w) & ~F::kSign;
    if (ay == F::kOne) {
        // Division by one: the fraction of x, got by masking off its integer part.
        if (ax < F::kOne) {
            *y = x;
        } else if (ax < ((U(F::kMant) + (F::kOne >> F::kMant)) << F::kMant)) {
            int e = int(ax >> F::kMant) - int(F::kOne >> F::kMant);
            U whole = ux & ~((U(1) << (F::kMant - e)) - 1);
            *y = FromBits<T>(ToBits(T(x - FromBits<T>(whole))) | sx);
        } else if (ax < F::kInf) {
            *y = x * T(0);
        } else if (ax == F::kInf) {
            *y = Invalid<T>();
            return 2;
        } else {
            *y = x * w;
        }
        return 0;
    }
    int status;
    if (Common(x, w, status, y)) return status;
    if (ax < ay) {
        *y = x;
        return 0;
    }
    U r;
    int ey, last;
    LongDivide<T>(ax, ay, r, ey, last);
    *y = Pack<T>(sx, r, ey);
    return 0;
}

template <class T>
int RemainderScalar(const T* a, const T* b, T* y) {
    using F = Fmt<T>;
    using U = typename F::U;
    T x = *a, w = *b;
    int status;
    if (Common(x, w, status, y)) return status;
    U ux = ToBits(x), sx = ux & F::kSign, ax = ux & ~F::kSign, ay = ToBits(w) & ~F::kSign;
    if (ax < ay) {
        // 2|x| on the integer view: doubling a denormal is a shift, a normal steps its
        // exponent (an overflow to the infinity pattern still compares right).
        U twice = ax < (U(1) << F::kMant) ? ax << 1 : ax + (U(1) << F::kMant);
        if (ay >= twice)
            *y = x;
        else // quotient 1; |y| within a factor two of |x|, so the difference is exact
            *y = FromBits<T>(ToBits(T(FromBits<T>(ax) - FromBits<T>(ay))) ^ sx);
        return 0;
    }
    if (ax == ay) {
        *y = T(0) * x;
        return 0;
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
    return 0;
}

// Lanes where the result is a: both operands ordered, and |a| below |b| (Fmod, b may be
// infinite) or 2|a| below |b| (Remainder).
template <class T, bool Rem>
inline typename Simd<T>::V KeepsA(typename Simd<T>::V a, typename Simd<T>::V b) {
    using Sd = Simd<T>;
    using F = Fmt<T>;
    __m128i abs = Sd::AsInt(AbsMask<T>());
    __m128i ax = _mm_and_si128(Sd::AsInt(a), abs), ay = _mm_and_si128(Sd::AsInt(b), abs);
    __m128i inf = Sd::SplatInt(F::kInf);
    // special where ax >= ay or ay > inf
    __m128i bad = _mm_or_si128(_mm_xor_si128(Sd::AsInt(Sd::GreaterInt(ay, ax)), _mm_set1_epi32(-1)),
                               Sd::AsInt(Sd::GreaterInt(ay, inf)));
    if constexpr (Rem) {
        // 2|a| as above; ax is below ay <= inf on good lanes, so it cannot wrap there.
        __m128i step = Sd::SplatInt(typename F::U(1) << F::kMant);
        __m128i small = Sd::AsInt(Sd::GreaterInt(step, ax));
        __m128i twice = Sd::AddInt(
            ax, Sd::AsInt(Sd::Blend(Sd::FromInt(step), Sd::FromInt(ax), Sd::FromInt(small))));
        bad = _mm_or_si128(bad,
                           _mm_xor_si128(Sd::AsInt(Sd::GreaterInt(ay, twice)), _mm_set1_epi32(-1)));
    }
    return Sd::FromInt(bad);
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
    __m128d d = _mm_div_pd(x, y);
    big = _mm_cmpge_pd(d, _mm_set1_pd(16777216.0));
    __m128d q = _mm_round_pd(d, 0xB); // toward zero, no inexact flag
    __m128d r = _mm_sub_pd(x, _mm_mul_pd(q, y));
    if constexpr (Rem) {
        __m128d half = _mm_mul_pd(q, _mm_set1_pd(0.5));
        __m128d odd = _mm_cmpneq_pd(_mm_round_pd(half, 0xB), half);
        __m128d twice = _mm_add_pd(r, r);
        __m128d up = _mm_or_pd(_mm_cmpgt_pd(twice, y), _mm_and_pd(_mm_cmpeq_pd(twice, y), odd));
        r = _mm_sub_pd(r, _mm_and_pd(up, y));
    }
    return r;
}

// Special lanes: a not finite, b zero, infinite or NaN, or a quotient of 2^24 or more.
template <bool Rem>
inline __m128 WideBodyS(__m128 a, __m128 b, __m128& special) {
    using Sd = Simd<float>;
    __m128i abs = _mm_set1_epi32(0x7FFFFFFF), inf = _mm_set1_epi32(0x7F800000);
    __m128i ax = _mm_and_si128(Sd::AsInt(a), abs), ay = _mm_and_si128(Sd::AsInt(b), abs);
    __m128i bad =
        _mm_or_si128(_mm_cmpeq_epi32(ay, _mm_setzero_si128()),
                     _mm_or_si128(_mm_cmpgt_epi32(ay, _mm_sub_epi32(inf, _mm_set1_epi32(1))),
                                  _mm_cmpgt_epi32(ax, _mm_sub_epi32(inf, _mm_set1_epi32(1)))));
    // Bad lanes compute 0 / 1, so the arithmetic raises nothing for them.
    __m128 xf = _mm_andnot_ps(Sd::FromInt(bad), Sd::FromInt(ax));
    __m128 yf = Sd::Blend(Sd::FromInt(ay), _mm_set1_ps(1.0f), Sd::FromInt(bad));
    __m128d big0, big1;
    __m128d r0 = WideRemainder<Rem>(_mm_cvtps_pd(xf), _mm_cvtps_pd(yf), big0);
    __m128d r1 = WideRemainder<Rem>(_mm_cvtps_pd(_mm_movehl_ps(xf, xf)),
                                    _mm_cvtps_pd(_mm_movehl_ps(yf, yf)), big1);
    __m128 big = _mm_shuffle_ps(_mm_castpd_ps(big0), _mm_castpd_ps(big1), _MM_SHUFFLE(2, 0, 2, 0));
    special = _mm_or_ps(Sd::FromInt(bad), big);
    __m128 r = _mm_movelh_ps(_mm_cvtpd_ps(r0), _mm_cvtpd_ps(r1));
    return _mm_xor_ps(r, _mm_and_ps(a, SignMask<float>()));
}

template <class Tp>
struct FmodBody {
    using T = Tp;
    using V = typename Simd<T>::V;
    static constexpr const char* kName =
        sizeof(T) == 4 ? ZAR_ERROR_NAME(sFmod) : ZAR_ERROR_NAME(dFmod);
    static V Eval(V a, V b, V& special) {
        if constexpr (sizeof(T) == 4) {
            return WideBodyS<false>(a, b, special);
        } else {
            special = KeepsA<T, false>(a, b);
            return a;
        }
    }
    static int Scalar(const T* a, const T* b, T* y) { return FmodScalar(a, b, y); }
};

template <class Tp>
struct RemainderBody {
    using T = Tp;
    using V = typename Simd<T>::V;
    static constexpr const char* kName =
        sizeof(T) == 4 ? ZAR_ERROR_NAME(sRemainder) : ZAR_ERROR_NAME(dRemainder);
    static V Eval(V a, V b, V& special) {
        if constexpr (sizeof(T) == 4) {
            return WideBodyS<true>(a, b, special);
        } else {
            special = KeepsA<T, true>(a, b);
            return a;
        }
    }
    static int Scalar(const T* a, const T* b, T* y) { return RemainderScalar(a, b, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sFmod, All) BRENN_SIG(s, Binary) {
    RunBinary(FmodBody<float>{}, n, a, b, y);
}
void ZAR_KERNEL(dFmod, All) BRENN_SIG(d, Binary) {
    RunBinary(FmodBody<double>{}, n, a, b, y);
}
void ZAR_KERNEL(sRemainder, All) BRENN_SIG(s, Binary) {
    RunBinary(RemainderBody<float>{}, n, a, b, y);
}
void ZAR_KERNEL(dRemainder, All) BRENN_SIG(d, Binary) {
    RunBinary(RemainderBody<double>{}, n, a, b, y);
}
}
