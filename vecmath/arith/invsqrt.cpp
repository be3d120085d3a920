/* InvSqrt, single and double.
 *
 * sInvSqrt: EP the approximate root reciprocal as it stands (about 11.4 bits); LA one
 * Newton step y = (-0.5*r)*(x*r*r - 3) (within 4 ulp); HA a step of second order in
 * double from the same seed, rounded once to single (within 0.5 ulp and a little).
 * dInvSqrt: LA and EP share one kernel, the seed on the significand with the exponent
 * apart and the series of (1 - e)^(-1/2) to fourth order (within 2 ulp); HA the seed
 * cut short so that the residual is exact, and the series to fifth order (within 0.5
 * ulp and a little). None divides or takes a square root.
 *
 * Scalar routine: +-0 gives the signed infinity with status 2; -inf and negatives NaN
 * with status 1; +inf gives +0, NaN itself; denormals and values near the top of the
 * range their result through scaling by powers of two, status 0. */
#include "frame/kernels.h"
#include "vecmath/arith/seed.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

inline __m128 SqrtTestS(__m128 x) {
    return RangeTest<float>(x, 0xFFFFFFFFu, 0x7F800000u, 0xFEFFF000u);
}
inline __m128 InvSqrtTestS(__m128 x) {
    return RangeTest<float>(x, 0xFFFFFFFFu, 0x7F800000u, 0xFEFFF001u);
}
// Positive normals below 2^995, where the exact products of the HA chain have room.
inline __m128d InvSqrtTestD(__m128d x) {
    return HighWordTest(x, 0xFFFFFFFFu, 0x7FF00000u, 0xFE0FFFFFu);
}

// One lane of the accurate double chain, with scaling for denormals and large values.
inline double InvSqrtAccurate(double x) {
    double scale = 1.0;
    if (x < 2.2250738585072014e-308) {
        x *= 0x1p200;
        scale = 0x1p100;
    } else if (x >= 0x1p995) {
        x *= 0x1p-200;
        scale = 0x1p-100;
    }
    return _mm_cvtsd_f64(AccurateInvSqrt(_mm_set1_pd(x))) * scale;
}

template <class T>
int InvSqrtScalar(const T* a, T* y) {
    T x = *a;
    if (__builtin_isnan(x)) {
        *y = x + x;
        return 0;
    }
    if (x == 0) {
        *y = T(1) / Keep(x);
        return 2;
    }
    if (x < 0) {
        *y = Keep(T(0)) / Keep(T(0));
        return 1;
    }
    if (__builtin_isinf(x)) {
        *y = T(0);
        return 0;
    }
    *y = T(InvSqrtAccurate(double(x)));
    return 0;
}

struct InvSqrtEPs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sInvSqrt);
    static __m128 Eval(__m128 x, __m128& special) {
        special = SqrtTestS(x);
        return _mm_or_ps(_mm_rsqrt_ps(x), special);
    }
    static int Scalar(const float* a, float* y) { return InvSqrtScalar(a, y); }
};

struct InvSqrtLAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sInvSqrt);
    static __m128 Eval(__m128 x, __m128& special) {
        special = InvSqrtTestS(x);
        __m128 r = _mm_or_ps(_mm_rsqrt_ps(x), special);
        __m128 t = _mm_sub_ps(_mm_mul_ps(_mm_mul_ps(x, r), r), _mm_set1_ps(3.0f));
        return _mm_mul_ps(_mm_mul_ps(_mm_set1_ps(-0.5f), r), t);
    }
    static int Scalar(const float* a, float* y) { return InvSqrtScalar(a, y); }
};

// HA in double: the rsqrtps seed r of x itself (x is a single in range, so no
// narrowing), widened, and one correction of second order in e = 1 - x*r^2, written in
// p = x*r^2 as (1 - e)^(-1/2) ~ 1 + e/2 + 3e^2/8 = 1.875 - p*(1.25 - 0.375*p). With
// |e| below 2^-10.4 the cut leaves about 2^-32, so the one rounding to single is within
// 0.5 + 2^-8 ulp.
inline __m128d InvSqrtStepD(__m128d x, __m128d r) {
    __m128d p = _mm_mul_pd(_mm_mul_pd(x, r), r);
    __m128d q = _mm_sub_pd(_mm_set1_pd(1.25), _mm_mul_pd(_mm_set1_pd(0.375), p));
    return _mm_mul_pd(r, _mm_sub_pd(_mm_set1_pd(1.875), _mm_mul_pd(p, q)));
}

struct InvSqrtHAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sInvSqrt);
    static __m128 Eval(__m128 x, __m128& special) {
        special = InvSqrtTestS(x);
        __m128 xx = _mm_or_ps(x, special);
        __m128 r = _mm_rsqrt_ps(xx);
        __m128 xh = _mm_movehl_ps(xx, xx), rh = _mm_movehl_ps(r, r);
        __m128d lo = InvSqrtStepD(_mm_cvtps_pd(xx), _mm_cvtps_pd(r));
        __m128d hi = InvSqrtStepD(_mm_cvtps_pd(xh), _mm_cvtps_pd(rh));
        return _mm_movelh_ps(_mm_cvtpd_ps(lo), _mm_cvtpd_ps(hi));
    }
    static int Scalar(const float* a, float* y) { return InvSqrtScalar(a, y); }
};

struct InvSqrtLaEpD {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dInvSqrt);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = InvSqrtTestD(x);
        __m128d r = _mm_or_pd(RootSeed(x), special);
        __m128d e = _mm_sub_pd(_mm_set1_pd(1.0), _mm_mul_pd(_mm_mul_pd(x, r), r));
        __m128d p = _mm_add_pd(_mm_set1_pd(0.31250016501874495),
                               _mm_mul_pd(e, _mm_set1_pd(0.27343754675366555)));
        p = _mm_add_pd(_mm_set1_pd(0.37500000000001366), _mm_mul_pd(e, p));
        p = _mm_add_pd(_mm_set1_pd(0.49999999999997785), _mm_mul_pd(e, p));
        return _mm_add_pd(r, _mm_mul_pd(_mm_mul_pd(r, e), p));
    }
    static int Scalar(const double* a, double* y) { return InvSqrtScalar(a, y); }
};

// HA in double, from the seed alone and with no division: r is the seed cut to 13
// significant bits, so that s = r*r is exact in 26 bits; x is split by its bits into
// xh (26 bits) and xl, so that xh*s and xl*s are exact too, and the residual
// e = 1 - x*s = (1 - xh*s) - xl*s is formed with one rounding of a term near 2^-37
// (1 - xh*s is exact, xh*s being near 1). With |e| below 2^-9.8 the series of
// (1 - e)^(-1/2) to e^5 leaves about 2^-61, and r + r*e*P(e) is within 0.5 ulp and a
// little of 1/sqrt(x).
struct InvSqrtHAd {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dInvSqrt);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = InvSqrtTestD(x);
        const __m128d top13 = _mm_castsi128_pd(_mm_set1_epi64x(int64_t(0xFFFFFF0000000000ull)));
        const __m128d top26 = _mm_castsi128_pd(_mm_set1_epi64x(int64_t(0xFFFFFFFFF8000000ull)));
        __m128d r = _mm_and_pd(_mm_or_pd(RootSeed(x), special), top13);
        __m128d s = _mm_mul_pd(r, r);
        __m128d xx = _mm_or_pd(x, special);
        __m128d xh = _mm_and_pd(xx, top26);
        __m128d xl = _mm_sub_pd(xx, xh);
        __m128d e = _mm_sub_pd(_mm_sub_pd(_mm_set1_pd(1.0), _mm_mul_pd(xh, s)), _mm_mul_pd(xl, s));
        __m128d p = _mm_add_pd(_mm_set1_pd(35.0 / 128), _mm_mul_pd(e, _mm_set1_pd(63.0 / 256)));
        p = _mm_add_pd(_mm_set1_pd(5.0 / 16), _mm_mul_pd(e, p));
        p = _mm_add_pd(_mm_set1_pd(3.0 / 8), _mm_mul_pd(e, p));
        p = _mm_add_pd(_mm_set1_pd(0.5), _mm_mul_pd(e, p));
        return _mm_add_pd(r, _mm_mul_pd(_mm_mul_pd(r, e), p));
    }
    static int Scalar(const double* a, double* y) { return InvSqrtScalar(a, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sInvSqrt, EP) BRENN_SIG(s, Unary) {
    RunUnary(InvSqrtEPs{}, n, a, y);
}
void ZAR_KERNEL(sInvSqrt, LA) BRENN_SIG(s, Unary) {
    RunUnary(InvSqrtLAs{}, n, a, y);
}
void ZAR_KERNEL(sInvSqrt, HA) BRENN_SIG(s, Unary) {
    RunUnary(InvSqrtHAs{}, n, a, y);
}
void ZAR_KERNEL(dInvSqrt, LaEp) BRENN_SIG(d, Unary) {
    RunUnary(InvSqrtLaEpD{}, n, a, y);
}
void ZAR_KERNEL(dInvSqrt, HA) BRENN_SIG(d, Unary) {
    RunUnary(InvSqrtHAd{}, n, a, y);
}
}
