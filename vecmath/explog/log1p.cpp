/* Log1p, single and double, three levels each.
 *
 * On u = 1 + x with the rounding of that sum recovered: c = x - (u - 1) when |x| <= 1,
 * else 1 - (u - x); then ln(1 + x) = ln u + c/u. The range test is the logarithm's, on
 * u: it fires for x at or below -1, infinite or NaN. For |x| below 2^-25 (single) u is
 * 1, k and r are 0, and the result is c = x exactly: tiny and denormal x come through the
 * body as themselves.
 * Single EP and LA: the split around 2/3 on u with the polynomials of sLn EP and of
 * the row's LA coefficients; HA in double on the EP logarithm core.
 * Double: the logarithm core on u (EP core at EP, degree 5 at LA and HA); HA carries
 * h + r exactly before the small terms are added.
 * Scalar routine: x = -1 gives -inf with status 2, x below -1 (and -inf) NaN with
 * status 1, NaN and +inf themselves. */
#include "frame/kernels.h"
#include "vecmath/explog/log_poly.h"
#include "vecmath/explog/log_scalar.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

template <class T>
int Log1pScalar(const T* a, T* y) {
    T x = *a;
    if (__builtin_isnan(x)) {
        *y = x + x;
        return kStatusOk;
    }
    if (x == T(-1)) {
        *y = T(-1) / Keep(T(0));
        return kStatusPole;
    }
    if (x < T(-1)) {
        *y = Keep(T(0)) / Keep(T(0));
        return kStatusDomain;
    }
    if (__builtin_isinf(x)) {
        *y = x;
        return kStatusOk;
    }
    // A lane the body could have taken; the value in double (in single exactly enough).
    double xd = double(x), u = 1.0 + xd;
    double c = __builtin_fabs(xd) <= 1.0 ? xd - (u - 1.0) : 1.0 - (u - xd);
    *y = T(LnScalarD(u) + c / u);
    return kStatusOk;
}

// u and c of a single register.
inline void OnePlusS(__m128 x, __m128& u, __m128& c) {
    const __m128 one = _mm_set1_ps(1.0f);
    u = _mm_add_ps(one, x);
    __m128 small = _mm_sub_ps(x, _mm_sub_ps(u, one));
    __m128 large = _mm_sub_ps(one, _mm_sub_ps(u, x));
    __m128 ax = _mm_and_ps(x, _mm_castsi128_ps(_mm_set1_epi32(0x7FFFFFFF)));
    c = _mm_blendv_ps(small, large, _mm_cmpgt_ps(ax, one));
}
inline void OnePlusD(__m128d x, __m128d& u, __m128d& c) {
    const __m128d one = _mm_set1_pd(1.0);
    u = _mm_add_pd(one, x);
    __m128d small = _mm_sub_pd(x, _mm_sub_pd(u, one));
    __m128d large = _mm_sub_pd(one, _mm_sub_pd(u, x));
    __m128d ax = _mm_and_pd(x, _mm_castsi128_pd(_mm_set1_epi64x(0x7FFFFFFFFFFFFFFFll)));
    c = _mm_blendv_pd(small, large, _mm_cmpgt_pd(ax, one));
}

// Where |x| is below 2^-30 (single) or 2^-60 (double) the result is x itself; the blend
// also keeps the sign of -0, which the sums above turn into +0.
inline __m128 KeepTiny(__m128 x, __m128 y) {
    __m128 ax = _mm_and_ps(x, _mm_castsi128_ps(_mm_set1_epi32(0x7FFFFFFF)));
    return _mm_blendv_ps(y, x, _mm_cmplt_ps(ax, _mm_set1_ps(0x1p-30f)));
}
inline __m128d KeepTiny(__m128d x, __m128d y) {
    __m128d ax = _mm_and_pd(x, _mm_castsi128_pd(_mm_set1_epi64x(0x7FFFFFFFFFFFFFFFll)));
    return _mm_blendv_pd(y, x, _mm_cmplt_pd(ax, _mm_set1_pd(0x1p-60)));
}

template <bool LA>
struct Log1pS {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sLog1p);
    static int Scalar(const float* a, float* y) { return Log1pScalar(a, y); }
    static __m128 Eval(__m128 x, __m128& special) {
        __m128 u, c;
        special = LogTestS(_mm_add_ps(_mm_set1_ps(1.0f), x));
        // Special lanes run on 0, so that inf - inf and 1/0 raise no flag of their own.
        x = _mm_andnot_ps(special, x);
        OnePlusS(x, u, c);
        __m128 r, k, q;
        LogSplitS(u, r, k);
        if constexpr (LA)
            q = PolyS(r, {-0.5f, 0.333332658f, -0.250042379f, 0.200079203f, -0.164723262f,
                          0.140423089f, -0.151221797f, 0.138202384f});
        else
            q = PolyS(r, {-0.5f, 0.332896233f, -0.267402589f, 0.219883725f});
        __m128 p = _mm_add_ps(r, _mm_mul_ps(_mm_mul_ps(r, r), q));
        __m128 corr = _mm_add_ps(_mm_div_ps(c, u), _mm_mul_ps(k, _mm_set1_ps(1.42860677e-06f)));
        return KeepTiny(x,
                        _mm_add_ps(_mm_add_ps(p, corr), _mm_mul_ps(k, _mm_set1_ps(0.693145752f))));
    }
};

struct Log1pHAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sLog1p);
    static int Scalar(const float* a, float* y) { return Log1pScalar(a, y); }
    static __m128 Eval(__m128 x, __m128& special) {
        special = LogTestS(_mm_add_ps(_mm_set1_ps(1.0f), x));
        __m128 xx = _mm_andnot_ps(special, x); // special lanes take 0
        return KeepTiny(x, WidenToDouble(xx, [](__m128d v) {
                            __m128d u, c, h, l;
                            OnePlusD(v, u, c);
                            LnCoreD<LnLevel::EP>(u, h, l);
                            return _mm_add_pd(h, _mm_add_pd(l, _mm_div_pd(c, u)));
                        }));
    }
};

template <LnLevel Lv>
struct Log1pD {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dLog1p);
    static int Scalar(const double* a, double* y) { return Log1pScalar(a, y); }
    static __m128d Eval(__m128d x, __m128d& special) {
        __m128d u, c;
        special = LogTestD(_mm_add_pd(_mm_set1_pd(1.0), x));
        // Special lanes run on 0, so that inf - inf and 1/0 raise no flag of their own.
        x = _mm_andnot_pd(special, x);
        OnePlusD(x, u, c);
        __m128d h, r, t;
        LnCoreD3<Lv>(u, h, r, t);
        __m128d small = _mm_add_pd(t, _mm_div_pd(c, u));
        if constexpr (Lv == LnLevel::HA) {
            // h + r exactly (Knuth), the small terms added to the error.
            __m128d s = _mm_add_pd(h, r);
            __m128d bb = _mm_sub_pd(s, h);
            __m128d err = _mm_add_pd(_mm_sub_pd(h, _mm_sub_pd(s, bb)), _mm_sub_pd(r, bb));
            return KeepTiny(x, _mm_add_pd(s, _mm_add_pd(err, small)));
        } else {
            return KeepTiny(x, _mm_add_pd(h, _mm_add_pd(r, small)));
        }
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sLog1p, EP) BRENN_SIG(s, Unary) {
    RunUnary(Log1pS<false>{}, n, a, y);
}
void ZAR_KERNEL(sLog1p, LA) BRENN_SIG(s, Unary) {
    RunUnary(Log1pS<true>{}, n, a, y);
}
void ZAR_KERNEL(sLog1p, HA) BRENN_SIG(s, Unary) {
    RunUnary(Log1pHAs{}, n, a, y);
}
void ZAR_KERNEL(dLog1p, EP) BRENN_SIG(d, Unary) {
    RunUnary(Log1pD<LnLevel::EP>{}, n, a, y);
}
void ZAR_KERNEL(dLog1p, LA) BRENN_SIG(d, Unary) {
    RunUnary(Log1pD<LnLevel::LA>{}, n, a, y);
}
void ZAR_KERNEL(dLog1p, HA) BRENN_SIG(d, Unary) {
    RunUnary(Log1pD<LnLevel::HA>{}, n, a, y);
}
}
