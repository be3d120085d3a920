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
template <int N>
inline void SeriesEP(const __m128* r, bool cosine, __m128* p) {
    __m128 u[N], q[N];
    BRENN_EACH(k, N) u[k] = _mm_mul_ps(r[k], r[k]);
    BRENN_EACH(k, N) {
        q[k] = _mm_add_ps(F(cosine ? 0xBE29E73F : 0xBE29E72F), _mm_mul_ps(u[k], F(0x3BF84524)));
    }
    BRENN_EACH(k, N) p[k] = _mm_mul_ps(r[k], _mm_add_ps(F(0x3F7FF87C), _mm_mul_ps(u[k], q[k])));
}
template <int N>
inline void SeriesLA(const __m128* r, __m128* p) {
    __m128 u[N], q[N];
    BRENN_EACH(k, N) u[k] = _mm_mul_ps(r[k], r[k]);
    BRENN_EACH(k, N) {
        q[k] = _mm_add_ps(_mm_set1_ps(-0x1.9f70fp-13f),
                          _mm_mul_ps(u[k], _mm_set1_ps(0x1.5dc908p-19f)));
    }
    BRENN_EACH(k, N) q[k] = _mm_add_ps(_mm_set1_ps(0x1.110edap-7f), _mm_mul_ps(u[k], q[k]));
    BRENN_EACH(k, N) q[k] = _mm_add_ps(_mm_set1_ps(-0x1.55554cp-3f), _mm_mul_ps(u[k], q[k]));
    BRENN_EACH(k, N) p[k] = _mm_add_ps(r[k], _mm_mul_ps(_mm_mul_ps(r[k], u[k]), q[k]));
}
template <int M>
inline void SeriesHA(const __m128d* r, __m128d* p) {
    __m128d u[M], q[M];
    BRENN_EACH(k, M) u[k] = _mm_mul_pd(r[k], r[k]);
    BRENN_EACH(k, M) {
        q[k] = _mm_add_pd(_mm_set1_pd(-0.00019809602902257352),
                          _mm_mul_pd(u[k], _mm_set1_pd(2.605780638722852e-06)));
    }
    BRENN_EACH(k, M) q[k] = _mm_add_pd(_mm_set1_pd(0.0083330662460856901), _mm_mul_pd(u[k], q[k]));
    BRENN_EACH(k, M) q[k] = _mm_add_pd(_mm_set1_pd(-0.16666659550427829), _mm_mul_pd(u[k], q[k]));
    BRENN_EACH(k, M) p[k] = _mm_add_pd(r[k], _mm_mul_pd(_mm_mul_pd(r[k], u[k]), q[k]));
}

// r = a - n pi in double, lanes 0-1 of register k in r[2k], 2-3 in r[2k+1].
template <int N>
inline void ReduceD(const __m128* a, const __m128* n, __m128d* r) {
    const __m128d ph = _mm_set1_pd(3.1415926535846666), pl = _mm_set1_pd(5.1266883031890378e-12);
    __m128d ad[2 * N], nd[2 * N];
    BRENN_EACH(k, N) {
        ad[2 * k] = _mm_cvtps_pd(a[k]);
        ad[2 * k + 1] = _mm_cvtps_pd(_mm_movehl_ps(a[k], a[k]));
        nd[2 * k] = _mm_cvtps_pd(n[k]);
        nd[2 * k + 1] = _mm_cvtps_pd(_mm_movehl_ps(n[k], n[k]));
    }
    BRENN_EACH(k, 2 * N)
    r[k] = _mm_sub_pd(_mm_sub_pd(ad[k], _mm_mul_pd(nd[k], ph)), _mm_mul_pd(nd[k], pl));
}
inline __m128 Narrow(__m128d d0, __m128d d1) {
    return _mm_movelh_ps(_mm_cvtpd_ps(d0), _mm_cvtpd_ps(d1));
}

// sin(a) (cosine = false) or cos(a) (true) of a = |x| by the short path, without the
// sign of x, for N registers, each step over all of them before the next. Lanes above the limit are
// the large path's: with kClamp they are clamped and raise no flag here; without, the caller has
// seen that there are none (then the clamp changes nothing).
template <Level L, int N, bool kClamp>
inline void ShortN(const __m128* x, bool cosine, __m128* p, const __m128* signOf = nullptr) {
    __m128 a[N], t[N], sign[N], n[N];
    BRENN_EACH(k, N) a[k] = kClamp ? _mm_min_ps(x[k], F(kLimitS)) : x[k];
    const __m128 shifter = _mm_set1_ps(kShifterS);
    BRENN_EACH(k, N) t[k] = _mm_mul_ps(a[k], F(0x3EA2F983));
    if (cosine) BRENN_EACH(k, N) t[k] = _mm_add_ps(t[k], _mm_set1_ps(0.5f));
    BRENN_EACH(k, N) t[k] = _mm_add_ps(t[k], shifter);
    BRENN_EACH(k, N) sign[k] = _mm_castsi128_ps(_mm_slli_epi32(_mm_castps_si128(t[k]), 31));
    // The sign of x for sine goes in with the quadrant's: one value a register to keep.
    if (signOf)
        BRENN_EACH(k, N) sign[k] = _mm_xor_ps(sign[k], _mm_and_ps(signOf[k], SignMask<float>()));
    BRENN_EACH(k, N) n[k] = _mm_sub_ps(t[k], shifter);
    if (cosine) BRENN_EACH(k, N) n[k] = _mm_sub_ps(n[k], _mm_set1_ps(0.5f));
    if constexpr (L == Level::EP) {
        __m128 r[N];
        BRENN_EACH(k, N) r[k] = _mm_sub_ps(a[k], _mm_mul_ps(n[k], F(0x40490000)));
        BRENN_EACH(k, N) r[k] = _mm_sub_ps(r[k], _mm_mul_ps(n[k], F(0x3A7DA000)));
        BRENN_EACH(k, N) r[k] = _mm_sub_ps(r[k], _mm_mul_ps(n[k], F(0x34222169)));
        SeriesEP<N>(r, cosine, p);
    } else {
        __m128d r[2 * N];
        ReduceD<N>(a, n, r);
        if constexpr (L == Level::LA) {
            __m128 rs[N];
            BRENN_EACH(k, N) rs[k] = Narrow(r[2 * k], r[2 * k + 1]);
            SeriesLA<N>(rs, p);
        } else {
            __m128d pd[2 * N];
            SeriesHA<2 * N>(r, pd);
            BRENN_EACH(k, N) p[k] = Narrow(pd[2 * k], pd[2 * k + 1]);
        }
    }
    BRENN_EACH(k, N) p[k] = _mm_xor_ps(p[k], sign[k]);
    // cos of tiny arguments: exactly 1.0, as the rounded value is.
    if (cosine) {
        BRENN_EACH(k, N) {
            p[k] = _mm_blendv_ps(p[k], _mm_set1_ps(1.0f), _mm_cmplt_ps(a[k], F(0x39800000)));
        }
    }
}

template <Level L>
inline __m128 Short(__m128 a, bool cosine) {
    __m128 p;
    ShortN<L, 1, true>(&a, cosine, &p);
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
    // A round of sixteen: with no lane above the limit (the common case), the short
    // path on the four registers together, unclamped; otherwise quad by quad.
    static int EvalWide(const __m128* x, __m128* y) {
        __m128 a[4];
        if (__builtin_expect(AnyAboveS(x, a, kLimitS), 0)) return EvalQuadsS<SinCosBody>(x, y);
        ShortN<L, 4, false>(a, kCos, y, kCos ? nullptr : x);
        return 0;
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
    static int EvalWide(const __m128* x, __m128* s, __m128* c) {
        __m128 a[4];
        if (__builtin_expect(AnyAboveS(x, a, kLimitS), 0)) {
            int bits = 0;
            BRENN_EACH(k, 4) {
                __m128 special;
                Eval(x[k], s[k], c[k], special);
                bits |= _mm_movemask_ps(special) << (4 * k);
            }
            return bits;
        }
        ShortN<L, 4, false>(a, false, s, x);
        ShortN<L, 4, false>(a, true, c);
        return 0;
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
