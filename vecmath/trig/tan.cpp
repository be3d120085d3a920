/* Tan in single and double, three levels.
 *
 * Single EP: n = round(|x| 2/pi) by the shifter, r = |x| - n pi/2 with pi/2 in three
 * single parts, a rational form N/D on r; for n odd the result is -D/N. The division
 * is a reciprocal estimate with one Newton step. Single LA and HA: the same quadrant
 * reduction in double with pi/2 in two parts, sine and cosine series in double, and
 * their quotient. The short path holds to 8256; lanes above take the vector large
 * reduction in the same block.
 *
 * Double EP: a quadrant reduction with pi/2 in three parts and sine and cosine series
 * to about 29 bits. Double LA and HA: the table reduction gives sin and cos each as two
 * doubles; LA corrects the quotient once by its residual, HA
 * does so with the product of the quotient and the cosine carried exactly and the table
 * products exact too. Near a pole the cosine is small but accurate, so the result is a
 * large finite number. */
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/trig/level.h"
#include "vecmath/trig/reduce.h"

namespace brenn::vm::trig {
namespace {

constexpr uint32_t kLimitTanS = 0x46010000;         // 8256.0
constexpr uint64_t kLimitD = 0x4170000000000000ull; // 2^24

inline __m128 F(uint32_t b) {
    return _mm_castsi128_ps(_mm_set1_epi32(int(b)));
}

// tan(J pi/64 + r) from the table: sin over cos, each as two doubles.
template <Level L>
inline __m128d TanTable(const int32_t* J, __m128d rh, __m128d rl) {
    alignas(16) int32_t K[2] = {J[0] + 32, J[1] + 32};
    __m128d sh, sl, ch, cl;
    TableSin(J, rh, rl, sh, sl, L == Level::HA);
    TableSin(K, rh, rl, ch, cl, L == Level::HA);
    if constexpr (L == Level::EP) return _mm_div_pd(_mm_add_pd(sh, sl), _mm_add_pd(ch, cl));
    // The low parts hold the series terms and are not small beside an ulp of the high
    // parts: renormalise both before dividing.
    __m128d h = _mm_add_pd(sh, sl);
    sl = _mm_sub_pd(sl, _mm_sub_pd(h, sh));
    sh = h;
    h = _mm_add_pd(ch, cl);
    cl = _mm_sub_pd(cl, _mm_sub_pd(h, ch));
    ch = h;
    __m128d q = _mm_div_pd(sh, ch);
    __m128d res;
    if constexpr (L == Level::HA) {
        __m128d p, pe;
        TwoProd(q, ch, p, pe);
        res = _mm_sub_pd(_mm_sub_pd(sh, p), pe);
    } else {
        res = _mm_sub_pd(sh, _mm_mul_pd(q, ch));
    }
    res = _mm_sub_pd(_mm_add_pd(res, sl), _mm_mul_pd(q, cl));
    return _mm_add_pd(q, _mm_div_pd(res, ch));
}

inline __m128 Narrow(__m128d d0, __m128d d1) {
    return _mm_movelh_ps(_mm_cvtpd_ps(d0), _mm_cvtpd_ps(d1));
}

inline __m128 LaneMask(int bits) {
    return _mm_castsi128_ps(
        _mm_set_epi32(bits & 8 ? -1 : 0, bits & 4 ? -1 : 0, bits & 2 ? -1 : 0, bits & 1 ? -1 : 0));
}

// tan of magnitudes below 8256 (single arguments widened) in double, M registers: n =
// round(a 2/pi), r = a - n pi/2 with pi/2 in two parts (n has at most 13 bits, the first
// part 33, so n times it is exact), sine and cosine series on [-pi/4, pi/4] good to
// 2^-29, and s/c or -c/s by the parity of n.
template <int M>
inline void QuadrantTan(const __m128d* a, __m128d* q) {
    const __m128d shifter = _mm_set1_pd(Format<double>::kShifter);
    __m128d t[M], odd[M], n[M], r[M], u[M], ps[M], sn[M], pc[M], cs[M];
    BRENN_EACH(k, M) t[k] = _mm_add_pd(_mm_mul_pd(a[k], _mm_set1_pd(0.63661977236758138)), shifter);
    BRENN_EACH(k, M) {
        odd[k] = _mm_castsi128_pd(_mm_cmpeq_epi64(
            _mm_and_si128(_mm_castpd_si128(t[k]), _mm_set1_epi64x(1)), _mm_set1_epi64x(1)));
    }
    BRENN_EACH(k, M) n[k] = _mm_sub_pd(t[k], shifter);
    BRENN_EACH(k, M) r[k] = _mm_sub_pd(a[k], _mm_mul_pd(n[k], _mm_set1_pd(1.5707963267923333)));
    BRENN_EACH(k, M) r[k] = _mm_sub_pd(r[k], _mm_mul_pd(n[k], _mm_set1_pd(2.5633441515945189e-12)));
    BRENN_EACH(k, M) u[k] = _mm_mul_pd(r[k], r[k]);
    BRENN_EACH(k, M) {
        ps[k] = _mm_add_pd(_mm_set1_pd(-1.0 / 5040), _mm_mul_pd(u[k], _mm_set1_pd(1.0 / 362880)));
    }
    BRENN_EACH(k, M) ps[k] = _mm_add_pd(_mm_set1_pd(1.0 / 120), _mm_mul_pd(u[k], ps[k]));
    BRENN_EACH(k, M) ps[k] = _mm_add_pd(_mm_set1_pd(-1.0 / 6), _mm_mul_pd(u[k], ps[k]));
    BRENN_EACH(k, M) sn[k] = _mm_add_pd(r[k], _mm_mul_pd(_mm_mul_pd(r[k], u[k]), ps[k]));
    BRENN_EACH(k, M) {
        pc[k] = _mm_add_pd(_mm_set1_pd(1.0 / 40320), _mm_mul_pd(u[k], _mm_set1_pd(-1.0 / 3628800)));
    }
    BRENN_EACH(k, M) pc[k] = _mm_add_pd(_mm_set1_pd(-1.0 / 720), _mm_mul_pd(u[k], pc[k]));
    BRENN_EACH(k, M) pc[k] = _mm_add_pd(_mm_set1_pd(1.0 / 24), _mm_mul_pd(u[k], pc[k]));
    BRENN_EACH(k, M) pc[k] = _mm_add_pd(_mm_set1_pd(-0.5), _mm_mul_pd(u[k], pc[k]));
    BRENN_EACH(k, M) cs[k] = _mm_add_pd(_mm_set1_pd(1.0), _mm_mul_pd(u[k], pc[k]));
    BRENN_EACH(k, M) {
        __m128d top = _mm_blendv_pd(sn[k], _mm_xor_pd(cs[k], SignMask<double>()), odd[k]);
        __m128d bot = _mm_blendv_pd(cs[k], sn[k], odd[k]);
        q[k] = _mm_div_pd(top, bot);
    }
}

// tan of N single registers of magnitudes by the short path, without the sign of x.
// EP: n = round(a 2/pi) by the shifter, r = a - n pi/2 with pi/2 in three single parts
// (the first two short), a rational form N/D on r; for n odd the result is -D/N, the
// division a reciprocal estimate with one Newton step. LA and HA: QuadrantTan. Lanes
// above the limit are the large path's: with kClamp they are clamped and raise no flag
// here; without, the caller has seen that there are none.
template <Level L, int N, bool kClamp>
inline void ShortTan(const __m128* a, __m128* p) {
    __m128 as[N];
    BRENN_EACH(k, N) as[k] = kClamp ? _mm_min_ps(a[k], F(kLimitTanS)) : a[k];
    if constexpr (L == Level::EP) {
        const __m128 shifter = _mm_set1_ps(Format<float>::kShifter);
        __m128 t[N], odd[N], n[N], r[N], u[N], num[N], den[N];
        BRENN_EACH(k, N) t[k] = _mm_add_ps(_mm_mul_ps(as[k], F(0x3F22F983)), shifter);
        BRENN_EACH(k, N) {
            odd[k] = _mm_castsi128_ps(_mm_cmpeq_epi32(
                _mm_and_si128(_mm_castps_si128(t[k]), _mm_set1_epi32(1)), _mm_set1_epi32(1)));
        }
        BRENN_EACH(k, N) n[k] = _mm_sub_ps(t[k], shifter);
        BRENN_EACH(k, N) r[k] = _mm_sub_ps(as[k], _mm_mul_ps(n[k], F(0x3FC90000)));
        BRENN_EACH(k, N) r[k] = _mm_sub_ps(r[k], _mm_mul_ps(n[k], F(0x39FDA000)));
        BRENN_EACH(k, N) r[k] = _mm_sub_ps(r[k], _mm_mul_ps(n[k], F(0x33A22169)));
        BRENN_EACH(k, N) u[k] = _mm_mul_ps(r[k], r[k]);
        BRENN_EACH(k, N) {
            num[k] = _mm_mul_ps(r[k], _mm_add_ps(_mm_set1_ps(0.999999762f),
                                                 _mm_mul_ps(u[k], _mm_set1_ps(-0.0958017409f))));
        }
        BRENN_EACH(k, N) {
            den[k] = _mm_add_ps(_mm_set1_ps(-0.42913565f),
                                _mm_mul_ps(u[k], _mm_set1_ps(0.00971684884f)));
        }
        BRENN_EACH(k, N) den[k] = _mm_add_ps(_mm_set1_ps(1.0f), _mm_mul_ps(u[k], den[k]));
        BRENN_EACH(k, N) {
            // n odd: -D/N
            __m128 top = _mm_blendv_ps(num[k], _mm_xor_ps(den[k], SignMask<float>()), odd[k]);
            __m128 bot = _mm_blendv_ps(den[k], num[k], odd[k]);
            __m128 rc = _mm_rcp_ps(bot);
            rc = _mm_mul_ps(rc, _mm_sub_ps(_mm_set1_ps(2.0f), _mm_mul_ps(bot, rc)));
            p[k] = _mm_mul_ps(top, rc);
        }
    } else {
        __m128d ad[2 * N], q[2 * N];
        BRENN_EACH(k, N) {
            ad[2 * k] = _mm_cvtps_pd(as[k]);
            ad[2 * k + 1] = _mm_cvtps_pd(_mm_movehl_ps(as[k], as[k]));
        }
        QuadrantTan<2 * N>(ad, q);
        BRENN_EACH(k, N) p[k] = _mm_movelh_ps(_mm_cvtpd_ps(q[2 * k]), _mm_cvtpd_ps(q[2 * k + 1]));
    }
}

// tan of four single magnitudes by the large reduction, in double.
inline __m128 LargeTanS(__m128 a) {
    alignas(16) int32_t J[4];
    __m128d r0, r1, z = _mm_setzero_pd();
    LargeS(a, J, r0, r1);
    return Narrow(TanTable<Level::LA>(J, r0, z), TanTable<Level::LA>(J + 2, r1, z));
}

template <Level L>
struct TanS {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sTan);
    static constexpr int kRound = 16;
    static __m128 Eval(__m128 x, __m128& special) {
        __m128 a = _mm_and_ps(x, AbsMask<float>());
        special = InfNan(a);
        __m128 p;
        ShortTan<L, 1, true>(&a, &p);
        int big = LargeLanes(a, kLimitTanS);
        if (__builtin_expect(big != 0, 0)) p = _mm_blendv_ps(p, LargeTanS(a), LaneMask(big));
        return _mm_xor_ps(p, _mm_and_ps(x, SignMask<float>()));
    }
    // A round of sixteen: with no lane above the limit, the short path on the four
    // registers together, unclamped; otherwise quad by quad.
    static int EvalWide(const __m128* x, __m128* y) {
        __m128 a[4];
        if (__builtin_expect(AnyAboveS(x, a, kLimitTanS), 0)) return EvalQuadsS<TanS>(x, y);
        ShortTan<L, 4, false>(a, y);
        BRENN_EACH(k, 4) y[k] = _mm_xor_ps(y[k], _mm_and_ps(x[k], SignMask<float>()));
        return 0;
    }
    static int Scalar(const float* a, float* y) { return InfNanScalar(a, y); }
};

// dTan EP below 2^24: n = round(a 2/pi), r = a - n pi/2 with pi/2 in three parts (the
// first two short, so that their products with n are exact), series for sine to r^9
// and cosine to r^10 (about 2^-29 on [-pi/4, pi/4]) and s/c or -c/s by n's parity.
inline __m128d QuadrantTanEP(__m128d a) {
    const __m128d shifter = _mm_set1_pd(Format<double>::kShifter);
    __m128d t = _mm_add_pd(_mm_mul_pd(a, _mm_set1_pd(0.63661977236758138)), shifter);
    __m128d odd = _mm_castsi128_pd(_mm_cmpeq_epi64(
        _mm_and_si128(_mm_castpd_si128(t), _mm_set1_epi64x(1)), _mm_set1_epi64x(1)));
    __m128d n = _mm_sub_pd(t, shifter);
    __m128d r = _mm_sub_pd(a, _mm_mul_pd(n, _mm_set1_pd(1.570796251296997)));
    r = _mm_sub_pd(r, _mm_mul_pd(n, _mm_set1_pd(7.549789415861596e-08)));
    r = _mm_sub_pd(r, _mm_mul_pd(n, _mm_set1_pd(5.390302858158119e-15)));
    __m128d u = _mm_mul_pd(r, r);
    __m128d ps = _mm_add_pd(_mm_set1_pd(-1.0 / 5040), _mm_mul_pd(u, _mm_set1_pd(1.0 / 362880)));
    ps = _mm_add_pd(_mm_set1_pd(1.0 / 120), _mm_mul_pd(u, ps));
    ps = _mm_add_pd(_mm_set1_pd(-1.0 / 6), _mm_mul_pd(u, ps));
    __m128d sn = _mm_add_pd(r, _mm_mul_pd(_mm_mul_pd(r, u), ps));
    __m128d pc = _mm_add_pd(_mm_set1_pd(1.0 / 40320), _mm_mul_pd(u, _mm_set1_pd(-1.0 / 3628800)));
    pc = _mm_add_pd(_mm_set1_pd(-1.0 / 720), _mm_mul_pd(u, pc));
    pc = _mm_add_pd(_mm_set1_pd(1.0 / 24), _mm_mul_pd(u, pc));
    pc = _mm_add_pd(_mm_set1_pd(-0.5), _mm_mul_pd(u, pc));
    __m128d cs = _mm_add_pd(_mm_set1_pd(1.0), _mm_mul_pd(u, pc));
    __m128d top = _mm_blendv_pd(sn, _mm_xor_pd(cs, SignMask<double>()), odd);
    __m128d bot = _mm_blendv_pd(cs, sn, odd);
    return _mm_div_pd(top, bot);
}

template <Level L>
struct TanD {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dTan);
    static __m128d Eval(__m128d x, __m128d& special) {
        __m128d a = _mm_and_pd(x, AbsMask<double>());
        special = InfNan(a);
        alignas(16) int32_t J[2], K[2];
        __m128d rh, rl;
        int big = LargeLanes(a, kLimitD);
        if constexpr (L == Level::EP) {
            __m128d p = QuadrantTanEP(_mm_min_pd(a, _mm_set1_pd(16777216.0)));
            if (__builtin_expect(big != 0, 0)) {
                LargeD(a, J, rh, rl);
                __m128d m = _mm_castsi128_pd(_mm_set_epi64x(big & 2 ? -1 : 0, big & 1 ? -1 : 0));
                p = _mm_blendv_pd(p, TanTable<L>(J, rh, rl), m);
            }
            return _mm_xor_pd(p, _mm_and_pd(x, SignMask<double>()));
        }
        ShortD(_mm_min_pd(a, _mm_set1_pd(16777216.0)), J, rh, rl, 0);
        if (__builtin_expect(big != 0, 0)) {
            __m128d bh, bl;
            LargeD(a, K, bh, bl);
            PickD(big, K, bh, bl, J, rh, rl);
        }
        return _mm_xor_pd(TanTable<L>(J, rh, rl), _mm_and_pd(x, SignMask<double>()));
    }
    static int Scalar(const double* a, double* y) { return InfNanScalar(a, y); }
};

} // namespace
} // namespace brenn::vm::trig

using namespace brenn::vm;
using namespace brenn::vm::trig;

// The single kernels inline the whole frame: GCC at -O2 leaves the round of sixteen out
// of line.
#define BRENN_FLAT __attribute__((flatten))

extern "C" {
BRENN_FLAT void ZAR_KERNEL(sTan, EP) BRENN_SIG(s, Unary) {
    RunUnary(TanS<Level::EP>{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sTan, LA) BRENN_SIG(s, Unary) {
    RunUnary(TanS<Level::LA>{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sTan, HA) BRENN_SIG(s, Unary) {
    RunUnary(TanS<Level::HA>{}, n, a, y);
}
void ZAR_KERNEL(dTan, EP) BRENN_SIG(d, Unary) {
    RunUnary(TanD<Level::EP>{}, n, a, y);
}
void ZAR_KERNEL(dTan, LA) BRENN_SIG(d, Unary) {
    RunUnary(TanD<Level::LA>{}, n, a, y);
}
void ZAR_KERNEL(dTan, HA) BRENN_SIG(d, Unary) {
    RunUnary(TanD<Level::HA>{}, n, a, y);
}
}
