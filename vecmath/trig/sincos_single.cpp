/* Sin, Cos and SinCos in single, three levels.
 *
 * Short path (|x| <= 10000): n = round(|x|/pi) by the shifter (for cosine round(|x|/pi
 * + 0.5) - 0.5, a half-integer, since cos a = sin(a + pi/2)); the low bit of the
 * rounded value is the sign (-1)^n; r = |x| - n pi in [-pi/2, pi/2]; an odd series in r.
 * EP: pi in three single parts, the first two short so that their products with n are
 * exact, and a three-term series. LA: r in double with pi in two parts, narrowed to
 * single, and a five-term single series (tools/trig/sin_single.sollya). HA: the same
 * reduction and a double series.
 *
 * Lanes above 10000 in a block take the vector large path of reduce.h as well, and its
 * results are kept for them by mask: the block stays in vector code. Cosine of
 * arguments below 2^-12 is the constant 1.0 (exact at 0). Infinity and NaN go to the
 * scalar routine. */
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/trig/level.h"
#include "vecmath/trig/reduce.h"

namespace brenn::vm::trig {
namespace {

constexpr uint32_t kLimitS = 0x461C4000; // 10000.0

inline __m128 F(uint32_t b) {
    return _mm_castsi128_ps(_mm_set1_epi32(int(b)));
}

// Odd series at each level on r in [-pi/2, pi/2] (lanes as single).
inline __m128 SeriesEP(__m128 r, bool cosine) {
    __m128 u = _mm_mul_ps(r, r);
    __m128 p = _mm_add_ps(F(cosine ? 0xBE29E73F : 0xBE29E72F), _mm_mul_ps(u, F(0x3BF84524)));
    return _mm_mul_ps(r, _mm_add_ps(F(0x3F7FF87C), _mm_mul_ps(u, p)));
}
inline __m128 SeriesLA(__m128 r) {
    __m128 u = _mm_mul_ps(r, r);
    __m128 p =
        _mm_add_ps(_mm_set1_ps(-0x1.9f70fp-13f), _mm_mul_ps(u, _mm_set1_ps(0x1.5dc908p-19f)));
    p = _mm_add_ps(_mm_set1_ps(0x1.110edap-7f), _mm_mul_ps(u, p));
    p = _mm_add_ps(_mm_set1_ps(-0x1.55554cp-3f), _mm_mul_ps(u, p));
    return _mm_add_ps(r, _mm_mul_ps(_mm_mul_ps(r, u), p));
}
inline __m128d SeriesHA(__m128d r) {
    __m128d u = _mm_mul_pd(r, r);
    __m128d p = _mm_add_pd(_mm_set1_pd(-0.00019809602902257352),
                           _mm_mul_pd(u, _mm_set1_pd(2.605780638722852e-06)));
    p = _mm_add_pd(_mm_set1_pd(0.0083330662460856901), _mm_mul_pd(u, p));
    p = _mm_add_pd(_mm_set1_pd(-0.16666659550427829), _mm_mul_pd(u, p));
    return _mm_add_pd(r, _mm_mul_pd(_mm_mul_pd(r, u), p));
}

// r = a - n pi in double, lanes 0-1 and 2-3.
inline void ReduceD(__m128 a, __m128 n, __m128d& r0, __m128d& r1) {
    const __m128d ph = _mm_set1_pd(3.1415926535846666), pl = _mm_set1_pd(5.1266883031890378e-12);
    __m128d a0 = _mm_cvtps_pd(a), a1 = _mm_cvtps_pd(_mm_movehl_ps(a, a));
    __m128d n0 = _mm_cvtps_pd(n), n1 = _mm_cvtps_pd(_mm_movehl_ps(n, n));
    r0 = _mm_sub_pd(_mm_sub_pd(a0, _mm_mul_pd(n0, ph)), _mm_mul_pd(n0, pl));
    r1 = _mm_sub_pd(_mm_sub_pd(a1, _mm_mul_pd(n1, ph)), _mm_mul_pd(n1, pl));
}
inline __m128 Narrow(__m128d d0, __m128d d1) {
    return _mm_movelh_ps(_mm_cvtpd_ps(d0), _mm_cvtpd_ps(d1));
}

// sin(a) (cosine = false) or cos(a) (true) of a = |x| by the short path, without the
// sign of x.
template <Level L>
inline __m128 Short(__m128 a, bool cosine) {
    // Lanes above the limit are the large path's: clamped, they raise no flag here.
    a = _mm_min_ps(a, F(kLimitS));
    const __m128 shifter = _mm_set1_ps(kShifterS);
    __m128 t = _mm_mul_ps(a, F(0x3EA2F983));
    if (cosine) t = _mm_add_ps(t, _mm_set1_ps(0.5f));
    t = _mm_add_ps(t, shifter);
    __m128 sign = _mm_castsi128_ps(_mm_slli_epi32(_mm_castps_si128(t), 31));
    __m128 n = _mm_sub_ps(t, shifter);
    if (cosine) n = _mm_sub_ps(n, _mm_set1_ps(0.5f));
    __m128 p;
    if constexpr (L == Level::EP) {
        __m128 r = _mm_sub_ps(a, _mm_mul_ps(n, F(0x40490000)));
        r = _mm_sub_ps(r, _mm_mul_ps(n, F(0x3A7DA000)));
        r = _mm_sub_ps(r, _mm_mul_ps(n, F(0x34222169)));
        p = SeriesEP(r, cosine);
    } else {
        __m128d r0, r1;
        ReduceD(a, n, r0, r1);
        if constexpr (L == Level::LA)
            p = SeriesLA(Narrow(r0, r1));
        else
            p = Narrow(SeriesHA(r0), SeriesHA(r1));
    }
    p = _mm_xor_ps(p, sign);
    // cos of tiny arguments: exactly 1.0, as the rounded value is.
    if (cosine) p = _mm_blendv_ps(p, _mm_set1_ps(1.0f), _mm_cmplt_ps(a, F(0x39800000)));
    return p;
}

// Replaces the lanes above the limit by the large path's result.
inline __m128 WithLarge(__m128 a, __m128 p, int big, bool cosine) {
    __m128 l = LargeSinS(a, cosine);
    __m128i m =
        _mm_set_epi32(big & 8 ? -1 : 0, big & 4 ? -1 : 0, big & 2 ? -1 : 0, big & 1 ? -1 : 0);
    return _mm_blendv_ps(p, l, _mm_castsi128_ps(m));
}

template <Level L, bool kCos>
struct SinCosBody {
    using T = float;
    static constexpr const char* kName = kCos ? ZAR_ERROR_NAME(sCos) : ZAR_ERROR_NAME(sSin);
    static constexpr int kRound = 16;
    static __m128 Eval(__m128 x, __m128& special) {
        __m128 a = _mm_and_ps(x, AbsMask<float>());
        special = InfNanS(a);
        __m128 p = Short<L>(a, kCos);
        int big = LargeLanesS(a, kLimitS);
        if (__builtin_expect(big != 0, 0)) p = WithLarge(a, p, big, kCos);
        if (!kCos) p = _mm_xor_ps(p, _mm_and_ps(x, SignMask<float>()));
        return p;
    }
    static int Scalar(const float* a, float* y) { return InfNanScalar(a, y); }
};

template <Level L>
struct BothBody {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sSinCos);
    static constexpr int kRound = 16;
    static void Eval(__m128 x, __m128& s, __m128& c, __m128& special) {
        __m128 a = _mm_and_ps(x, AbsMask<float>());
        special = InfNanS(a);
        s = Short<L>(a, false);
        c = Short<L>(a, true);
        int big = LargeLanesS(a, kLimitS);
        if (__builtin_expect(big != 0, 0)) {
            alignas(16) int32_t J[4], K[4];
            __m128d r0, r1;
            LargeS(a, J, r0, r1);
            for (int k = 0; k < 4; ++k)
                K[k] = J[k] + 32;
            __m128 ls = Narrow(TableSinS(J, r0), TableSinS(J + 2, r1));
            __m128 lc = Narrow(TableSinS(K, r0), TableSinS(K + 2, r1));
            __m128i m = _mm_set_epi32(big & 8 ? -1 : 0, big & 4 ? -1 : 0, big & 2 ? -1 : 0,
                                      big & 1 ? -1 : 0);
            s = _mm_blendv_ps(s, ls, _mm_castsi128_ps(m));
            c = _mm_blendv_ps(c, lc, _mm_castsi128_ps(m));
        }
        s = _mm_xor_ps(s, _mm_and_ps(x, SignMask<float>()));
    }
    static int Scalar(const float* a, float* y, float* z) {
        int st = InfNanScalar(a, y);
        InfNanScalar(a, z);
        return st;
    }
};

} // namespace
} // namespace brenn::vm::trig

using namespace brenn::vm;
using namespace brenn::vm::trig;

// The whole frame inlined into each kernel: GCC at -O2 leaves the round (and the two-result
// body) out of line, a call every sixteen elements with the constants reloaded each time.
#define BRENN_FLAT __attribute__((flatten))

extern "C" {
BRENN_FLAT void ZAR_KERNEL(sSin, EP) BRENN_SIG(s, Unary) {
    RunUnary(SinCosBody<Level::EP, false>{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sSin, LA) BRENN_SIG(s, Unary) {
    RunUnary(SinCosBody<Level::LA, false>{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sSin, HA) BRENN_SIG(s, Unary) {
    RunUnary(SinCosBody<Level::HA, false>{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sCos, EP) BRENN_SIG(s, Unary) {
    RunUnary(SinCosBody<Level::EP, true>{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sCos, LA) BRENN_SIG(s, Unary) {
    RunUnary(SinCosBody<Level::LA, true>{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sCos, HA) BRENN_SIG(s, Unary) {
    RunUnary(SinCosBody<Level::HA, true>{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sSinCos, EP) BRENN_SIG(s, TwoRes) {
    RunTwoRes(BothBody<Level::EP>{}, n, a, y, z);
}
BRENN_FLAT void ZAR_KERNEL(sSinCos, LA) BRENN_SIG(s, TwoRes) {
    RunTwoRes(BothBody<Level::LA>{}, n, a, y, z);
}
BRENN_FLAT void ZAR_KERNEL(sSinCos, HA) BRENN_SIG(s, TwoRes) {
    RunTwoRes(BothBody<Level::HA>{}, n, a, y, z);
}
}
