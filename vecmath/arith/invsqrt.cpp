/* InvSqrt, single and double.
 *
 * sInvSqrt: EP the approximate root reciprocal as it stands (about 11.4 bits); LA one
 * Newton step y = (-0.5*r)*(x*r*r - 3) (within 4 ulp); HA in double, the quotient of
 * the rounded root with a correction whose residual is exact, rounded once to single.
 * dInvSqrt: LA and EP share one kernel, the seed on the significand with the exponent
 * apart and the series of (1 - e)^(-1/2) to fourth order (within 2 ulp); HA the
 * corrected quotient (within 1 ulp).
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
    return RangeTest<double>(x, ~0ull, 0x7FF0000000000000ull, 0xFE10000000000000ull - 1);
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

struct InvSqrtHAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sInvSqrt);
    static __m128 Eval(__m128 x, __m128& special) {
        special = InvSqrtTestS(x);
        __m128 xx = _mm_or_ps(x, special);
        __m128d lo = AccurateInvSqrt(_mm_cvtps_pd(xx));
        __m128d hi = AccurateInvSqrt(_mm_cvtps_pd(_mm_movehl_ps(xx, xx)));
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

struct InvSqrtHAd {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dInvSqrt);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = InvSqrtTestD(x);
        return AccurateInvSqrt(_mm_or_pd(x, special));
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
