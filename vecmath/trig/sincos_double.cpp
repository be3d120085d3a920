/* Sin, Cos and SinCos in double, three levels.
 *
 * EP and LA: n = round(|x|/pi) by the shifter (for cosine round(|x|/pi + 0.5) - 0.5,
 * a half-integer), the low bit of the rounded value the sign (-1)^n, r = |x| - n pi
 * with pi in three parts (EP) or four (LA), and an odd series of five (EP) or eight
 * (LA) terms on [-pi/2, pi/2]. HA: the table method at pi/64, j = round(|x| 64/pi),
 * r = |x| - j pi/64 in three parts kept as two doubles, and sin(A) cos(r) + cos(A)
 * sin(r) from the table of sin and cos at multiples of pi/64 (cosine at j + 32).
 *
 * Above 2^24 the LA and HA kernels reduce the lanes concerned in vector form (reduce.h)
 * and finish by the table; the EP kernel sends them to its scalar routine, which runs
 * the same reduction on the one element. SinCos at EP runs the EP bodies of both; at LA
 * and HA it evaluates both results from one reduction by the table, and at HA that
 * reduction runs in x87 extended precision. */
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/trig/level.h"
#include "vecmath/trig/reduce.h"

namespace brenn::vm::trig {
namespace {

constexpr uint64_t kLimitD = 0x4170000000000000ull; // 2^24

inline __m128d Poly(__m128d u, const double* c, int k) {
    __m128d p = _mm_set1_pd(c[k - 1]);
#pragma GCC unroll 8
    for (int i = k - 2; i >= 0; --i)
        p = _mm_add_pd(_mm_set1_pd(c[i]), _mm_mul_pd(u, p));
    return p;
}

constexpr double kSinEP[4] = {-0.16666658839437162, 0.0083330466452487071, -0.00019808085361787,
                              2.6022725384193179e-06};
constexpr double kSinLA[7] = {-0.16666666666666186,    0.0083333333332855416,
                              -0.00019841269825056256, 2.7557316600552628e-06,
                              -2.5051880273862881e-08, 1.6048095404959637e-10,
                              -7.3733445331106646e-13};

// sin or cos of a = |x| below 2^24 by the pi reduction, without the sign of x.
template <Level L>
inline __m128d ShortPi(__m128d a, bool cosine) {
    // Lanes above the limit are the large path's: clamped, they raise no flag here.
    a = _mm_min_pd(a, _mm_set1_pd(16777216.0));
    const __m128d shifter = _mm_set1_pd(Format<double>::kShifter);
    __m128d t = _mm_mul_pd(a, _mm_set1_pd(0.31830988618379069));
    if (cosine) t = _mm_add_pd(t, _mm_set1_pd(0.5));
    t = _mm_add_pd(t, shifter);
    __m128d sign = _mm_castsi128_pd(_mm_slli_epi64(_mm_castpd_si128(t), 63));
    __m128d n = _mm_sub_pd(t, shifter);
    if (cosine) n = _mm_sub_pd(n, _mm_set1_pd(0.5));
    __m128d r = _mm_sub_pd(a, _mm_mul_pd(n, _mm_set1_pd(3.1415925025939941)));
    r = _mm_sub_pd(r, _mm_mul_pd(n, _mm_set1_pd(1.5099578831723193e-07)));
    __m128d p;
    if constexpr (L == Level::EP) {
        r = _mm_sub_pd(r, _mm_mul_pd(n, _mm_set1_pd(1.0780605716316238e-14)));
        __m128d u = _mm_mul_pd(r, r);
        p = _mm_add_pd(r, _mm_mul_pd(_mm_mul_pd(r, u), Poly(u, kSinEP, 4)));
    } else {
        r = _mm_sub_pd(r, _mm_mul_pd(n, _mm_set1_pd(1.078060505991553e-14)));
        r = _mm_sub_pd(r, _mm_mul_pd(n, _mm_set1_pd(6.5640070857470009e-22)));
        __m128d u = _mm_mul_pd(r, r);
        p = _mm_add_pd(r, _mm_mul_pd(_mm_mul_pd(r, u), Poly(u, kSinLA, 7)));
    }
    p = _mm_xor_pd(p, sign);
    // cos of arguments below 2^-27 rounds to 1.0: give it exactly.
    if (cosine) p = _mm_blendv_pd(p, _mm_set1_pd(1.0), _mm_cmplt_pd(a, _mm_set1_pd(0x1p-27)));
    return p;
}

// sin (or cos) of every finite lane of a by the table, large lanes reduced in vector form.
BRENN_TRIG_HOT __m128d ByTable(__m128d a, bool cosine, bool exact) {
    alignas(16) int32_t J[2], K[2];
    __m128d rh, rl;
    ShortD(_mm_min_pd(a, _mm_set1_pd(16777216.0)), J, rh, rl, cosine ? 32 : 0);
    int big = LargeLanes(a, kLimitD);
    if (__builtin_expect(big != 0, 0)) {
        __m128d bh, bl;
        LargeD(a, K, bh, bl);
        if (cosine) K[0] += 32, K[1] += 32;
        PickD(big, K, bh, bl, J, rh, rl);
    }
    return TableSin(J, rh, rl, exact);
}
// The same out of line, for the LA kernels' rare lanes above 2^24.
BRENN_TRIG_COLD __m128d ByTableLarge(__m128d a, bool cosine) {
    return ByTable(a, cosine, false);
}

template <Level L, bool kCos>
struct Body {
    using T = double;
    static constexpr const char* kName = kCos ? ZAR_ERROR_NAME(dCos) : ZAR_ERROR_NAME(dSin);
    static __m128d Eval(__m128d x, __m128d& special) {
        __m128d a = _mm_and_pd(x, AbsMask<double>());
        __m128d p;
        if constexpr (L == Level::EP) {
            special = RangeTest(a, Range64{~0ull, 0, kLimitD});
            p = ShortPi<L>(a, kCos);
        } else {
            special = InfNan(a);
            if constexpr (L == Level::LA) {
                p = ShortPi<L>(a, kCos);
                int big = LargeLanes(a, kLimitD);
                if (__builtin_expect(big != 0, 0)) {
                    __m128d m =
                        _mm_castsi128_pd(_mm_set_epi64x(big & 2 ? -1 : 0, big & 1 ? -1 : 0));
                    p = _mm_blendv_pd(p, ByTableLarge(a, kCos), m);
                }
            } else {
                p = ByTable(a, kCos, true);
            }
        }
        if (!kCos) p = _mm_xor_pd(p, _mm_and_pd(x, SignMask<double>()));
        return p;
    }
    // EP: the lanes above 2^24 come here too and are reduced in full.
    static int Scalar(const double* a, double* y) {
        double x = *a;
        if (!(__builtin_fabs(x) <= 0x1.fffffffffffffp+1023)) return InfNanScalar(a, y);
        __m128d v = _mm_set1_pd(x);
        __m128d p = ByTable(_mm_and_pd(v, AbsMask<double>()), kCos, false);
        if (!kCos) p = _mm_xor_pd(p, _mm_and_pd(v, SignMask<double>()));
        *y = _mm_cvtsd_f64(p);
        return 0;
    }
};

// SinCos: one reduction by the table for both results. HA reduces short lanes in x87
// extended precision: j pi/64 with a 35-bit first part is exact in a 64-bit
// significand, and the remainder is split into two doubles.
template <Level L>
struct Both {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dSinCos);
    static constexpr X87Rule kX87 = L == Level::HA ? X87Rule::Extended : X87Rule::Masked;
    static void Eval(__m128d x, __m128d& s, __m128d& c, __m128d& special) {
        __m128d a = _mm_and_pd(x, AbsMask<double>());
        if constexpr (L == Level::EP) {
            // The two pi reductions and series of Sin and Cos at EP; lanes above 2^24 go
            // to the scalar routine, as in those rows.
            special = RangeTest(a, Range64{~0ull, 0, kLimitD});
            s = _mm_xor_pd(ShortPi<L>(a, false), _mm_and_pd(x, SignMask<double>()));
            c = ShortPi<L>(a, true);
            return;
        }
        special = InfNan(a);
        alignas(16) int32_t J[2], K[2];
        __m128d rh, rl;
        if constexpr (L == Level::HA) {
            // j as in ShortD, by the double shifter; the rest in x87 arithmetic.
            const __m128d shifter = _mm_set1_pd(Format<double>::kShifter);
            __m128d t = _mm_add_pd(
                _mm_mul_pd(_mm_min_pd(a, _mm_set1_pd(16777216.0)), _mm_set1_pd(k64OverPi)),
                shifter);
            __m128i ti = _mm_castpd_si128(t);
            J[0] = _mm_cvtsi128_si32(ti) & 127;
            J[1] = _mm_extract_epi32(ti, 2) & 127;
            alignas(16) double av[2], jv[2], hv[2], lv[2];
            _mm_store_pd(av, _mm_min_pd(a, _mm_set1_pd(16777216.0)));
            _mm_store_pd(jv, _mm_sub_pd(t, shifter));
#pragma GCC unroll 8
            for (int k = 0; k < 2; ++k) {
                // a - j C0 and - j C1 are exact; the last product is rounded once.
                long double j = jv[k];
                long double r = ((long double)av[k] - j * kPi64PartsX[0]) - j * kPi64PartsX[1];
                long double p = j * kPi64PartsX[2];
                long double h = r - p;
                long double l = (r - h) - p; // exact: |r| >= |p| or r - p exact
                hv[k] = double(h);
                lv[k] = double((h - (long double)hv[k]) + l);
            }
            rh = _mm_load_pd(hv);
            rl = _mm_load_pd(lv);
        } else {
            ShortD(_mm_min_pd(a, _mm_set1_pd(16777216.0)), J, rh, rl, 0);
        }
        int big = LargeLanes(a, kLimitD);
        if (__builtin_expect(big != 0, 0)) {
            __m128d bh, bl;
            LargeD(a, K, bh, bl);
            PickD(big, K, bh, bl, J, rh, rl);
        }
        TableSinCos(J, rh, rl, L == Level::HA, s, c);
        s = _mm_xor_pd(s, _mm_and_pd(x, SignMask<double>()));
    }
    static int Scalar(const double* a, double* y, double* z) {
        double x = *a;
        if (__builtin_fabs(x) <= 0x1.fffffffffffffp+1023) { // EP: above 2^24, in full
            __m128d v = _mm_set1_pd(x), m = _mm_and_pd(v, AbsMask<double>());
            *y = _mm_cvtsd_f64(
                _mm_xor_pd(ByTable(m, false, false), _mm_and_pd(v, SignMask<double>())));
            *z = _mm_cvtsd_f64(ByTable(m, true, false));
            return 0;
        }
        int st = InfNanScalar(a, y);
        InfNanScalar(a, z);
        return st;
    }
};

} // namespace
} // namespace brenn::vm::trig

using namespace brenn::vm;
using namespace brenn::vm::trig;

extern "C" {
void ZAR_KERNEL(dSin, EP) BRENN_SIG(d, Unary) {
    RunUnary(Body<Level::EP, false>{}, n, a, y);
}
void ZAR_KERNEL(dSin, LA) BRENN_SIG(d, Unary) {
    RunUnary(Body<Level::LA, false>{}, n, a, y);
}
void ZAR_KERNEL(dSin, HA) BRENN_SIG(d, Unary) {
    RunUnary(Body<Level::HA, false>{}, n, a, y);
}
void ZAR_KERNEL(dCos, EP) BRENN_SIG(d, Unary) {
    RunUnary(Body<Level::EP, true>{}, n, a, y);
}
void ZAR_KERNEL(dCos, LA) BRENN_SIG(d, Unary) {
    RunUnary(Body<Level::LA, true>{}, n, a, y);
}
void ZAR_KERNEL(dCos, HA) BRENN_SIG(d, Unary) {
    RunUnary(Body<Level::HA, true>{}, n, a, y);
}
void ZAR_KERNEL(dSinCos, EP) BRENN_SIG(d, TwoRes) {
    RunTwoRes(Both<Level::EP>{}, n, a, y, z);
}
void ZAR_KERNEL(dSinCos, LA) BRENN_SIG(d, TwoRes) {
    RunTwoRes(Both<Level::LA>{}, n, a, y, z);
}
void ZAR_KERNEL(dSinCos, HA) BRENN_SIG(d, TwoRes) {
    RunTwoRes(Both<Level::HA>{}, n, a, y, z);
}
}
