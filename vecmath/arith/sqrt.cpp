/* Sqrt, single and double, three levels.
 *
 * sSqrt: EP x*rsqrt(x) (about 11.4 bits); LA one Goldschmidt step on that seed (within
 * 4 ulp); HA the correctly rounded root instruction. dSqrt: EP and LA a seed on the
 * significand with the exponent apart, then the series of (1 - e)^(-1/2) to second
 * (EP, about 36 bits) or fourth order (LA, within 2 ulp); HA the correctly rounded
 * root instruction. Lanes that are not positive normals go to the scalar routine;
 * their body result is made a quiet NaN first so that they raise no flag of their own.
 *
 * Scalar routine: -inf and negatives give NaN with status 1; -0 gives -0, +inf and NaN
 * themselves (NaN quieted), denormals their correctly rounded root, all with status 0. */
#include "frame/kernels.h"
#include "vecmath/arith/seed.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

// Positive normals pass; zero, negatives, denormals, infinities, NaN and (single) the
// last few values below the largest finite are special.
inline __m128 SqrtTestS(__m128 x) {
    return RangeTest<float>(x, 0xFFFFFFFFu, 0x7F800000u, 0xFEFFF000u);
}
inline __m128d SqrtTestD(__m128d x) {
    return HighWordTest(x, 0xFFFFFFFFu, 0x7FF00000u, 0xFFDFFFFFu);
}

template <class T>
int SqrtScalar(const T* a, T* y) {
    T x = *a;
    if (__builtin_isinf(x) && x < 0) {
        *y = Keep(x) - x; // inf - inf: NaN with the invalid flag
        return 1;
    }
    if (__builtin_isnan(x) || __builtin_isinf(x)) {
        *y = x + x;
        return 0;
    }
    if (x == 0) {
        *y = x;
        return 0;
    }
    if (x < 0) {
        *y = Keep(T(0)) / Keep(T(0));
        return 1;
    }
    // Positive (denormal or near the top): the root instruction in double is
    // correctly rounded, and for single its 53 bits round again correctly to 24.
    double r = _mm_cvtsd_f64(_mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(double(x))));
    *y = T(r);
    return 0;
}

struct SqrtEPs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sSqrt);
    static __m128 Eval(__m128 x, __m128& special) {
        special = SqrtTestS(x);
        __m128 r = _mm_or_ps(_mm_rsqrt_ps(x), special);
        return _mm_mul_ps(x, r);
    }
    static int Scalar(const float* a, float* y) { return SqrtScalar(a, y); }
};

struct SqrtLAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sSqrt);
    static __m128 Eval(__m128 x, __m128& special) {
        special = SqrtTestS(x);
        __m128 r = _mm_or_ps(_mm_rsqrt_ps(x), special);
        __m128 g = _mm_mul_ps(x, r);
        __m128 h = _mm_mul_ps(_mm_set1_ps(0.5f), r);
        __m128 e = _mm_sub_ps(_mm_set1_ps(0.5f), _mm_mul_ps(g, h));
        return _mm_add_ps(g, _mm_mul_ps(g, e));
    }
    static int Scalar(const float* a, float* y) { return SqrtScalar(a, y); }
};

struct SqrtHAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sSqrt);
    static __m128 Eval(__m128 x, __m128& special) {
        special = SqrtTestS(x);
        return _mm_sqrt_ps(_mm_or_ps(x, special));
    }
    static int Scalar(const float* a, float* y) { return SqrtScalar(a, y); }
};

// g = x*r and e = 1 - g*r from the double seed; special lanes are NaN from here.
inline void SqrtChainStart(__m128d x, __m128d special, __m128d& g, __m128d& e) {
    __m128d r = _mm_or_pd(RootSeed(x), special);
    g = _mm_mul_pd(x, r);
    e = _mm_sub_pd(_mm_set1_pd(1.0), _mm_mul_pd(g, r));
}

struct SqrtEPd {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dSqrt);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = SqrtTestD(x);
        __m128d g, e;
        SqrtChainStart(x, special, g, e);
        __m128d p = _mm_add_pd(_mm_set1_pd(0.5), _mm_mul_pd(e, _mm_set1_pd(0.375)));
        return _mm_add_pd(g, _mm_mul_pd(_mm_mul_pd(g, e), p));
    }
    static int Scalar(const double* a, double* y) { return SqrtScalar(a, y); }
};

struct SqrtLAd {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dSqrt);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = SqrtTestD(x);
        __m128d g, e;
        SqrtChainStart(x, special, g, e);
        __m128d p = _mm_add_pd(_mm_set1_pd(0.31250016501874495),
                               _mm_mul_pd(e, _mm_set1_pd(0.27343754675366555)));
        p = _mm_add_pd(_mm_set1_pd(0.37500000000001366), _mm_mul_pd(e, p));
        p = _mm_add_pd(_mm_set1_pd(0.49999999999997785), _mm_mul_pd(e, p));
        return _mm_add_pd(g, _mm_mul_pd(_mm_mul_pd(g, e), p));
    }
    static int Scalar(const double* a, double* y) { return SqrtScalar(a, y); }
};

struct SqrtHAd {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dSqrt);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = SqrtTestD(x);
        return _mm_sqrt_pd(_mm_or_pd(x, special));
    }
    static int Scalar(const double* a, double* y) { return SqrtScalar(a, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sSqrt, EP) BRENN_SIG(s, Unary) {
    RunUnary(SqrtEPs{}, n, a, y);
}
void ZAR_KERNEL(sSqrt, LA) BRENN_SIG(s, Unary) {
    RunUnary(SqrtLAs{}, n, a, y);
}
void ZAR_KERNEL(sSqrt, HA) BRENN_SIG(s, Unary) {
    RunUnary(SqrtHAs{}, n, a, y);
}
void ZAR_KERNEL(dSqrt, EP) BRENN_SIG(d, Unary) {
    RunUnary(SqrtEPd{}, n, a, y);
}
void ZAR_KERNEL(dSqrt, LA) BRENN_SIG(d, Unary) {
    RunUnary(SqrtLAd{}, n, a, y);
}
void ZAR_KERNEL(dSqrt, HA) BRENN_SIG(d, Unary) {
    RunUnary(SqrtHAd{}, n, a, y);
}
}
