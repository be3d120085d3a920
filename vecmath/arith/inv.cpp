/* Inv and Div, single and double, three levels.
 *
 * sInv: EP the approximate reciprocal as it stands (about 11.4 bits); LA one Newton
 * step e = 2 - x*r, y = r*e (within 4 ulp); both in the hand-tuned layout, whose scalar
 * routine covers every input. HA the correctly rounded division, special only for 0.
 * dInv: EP and LA a seed on the significand with the exponent apart, residual
 * e = 1 - x*r in double, then r*(1 + e + e^2) (EP, about 34 bits) or r*(1 + e + ... +
 * e^4) (LA, under 2 ulp: 1.97 the worst of 40 million inputs); HA the correctly rounded
 * division.
 * Div: the level's reciprocal of b times a; HA the correctly rounded division. At EP and
 * LA, a lane whose quotient reaches 2^(emax-1) (or is not finite) goes to the scalar
 * routine, so that a result near overflow is the true quotient.
 *
 * Scalar routines: a division; Inv of +-0 and Div by 0 give the signed infinity with
 * status 2, 0/0 gives NaN with status 1; overflow and underflow of a reciprocal are
 * not reported. */
#include "frame/kernels.h"
#include "vecmath/arith/seed.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

// |x| zero, denormal, at least 2^126, infinite or NaN.
inline __m128 InvTestS(__m128 x) {
    return RangeTest<float>(x, 0x7FFFFFFFu, 0x7F800000u, 0xFDFFFFFFu);
}
// |x| zero, denormal, at least 2^1022, infinite or NaN: 1/x stays normal otherwise.
inline __m128d InvTestD(__m128d x) {
    return HighWordTest(x, 0x7FFFFFFFu, 0x7FF00000u, 0xFFBFFFFFu);
}
inline __m128 ZeroTestS(__m128 x) {
    __m128i b = _mm_and_si128(_mm_castps_si128(x), _mm_set1_epi32(0x7FFFFFFF));
    return _mm_castsi128_ps(_mm_cmpeq_epi32(b, _mm_setzero_si128()));
}
inline __m128d ZeroTestD(__m128d x) {
    __m128i b = _mm_and_si128(_mm_castpd_si128(x), _mm_set1_epi64x(0x7FFFFFFFFFFFFFFFll));
    return _mm_castsi128_pd(_mm_cmpeq_epi64(b, _mm_setzero_si128()));
}
// Quotients at or above 2^125 (2^1021), infinite or NaN.
inline __m128 BigTestS(__m128 q) {
    return RangeTest<float>(q, 0x7FFFFFFFu, 0u, 0x7DFFFFFFu);
}
inline __m128d BigTestD(__m128d q) {
    return HighWordTest(q, 0x7FFFFFFFu, 0u, 0x7FBFFFFFu);
}

template <class T>
int DivScalar(const T* a, const T* b, T* y) {
    T x = *a, d = *b;
    *y = Keep(x) / d;
    if (d == 0 && !__builtin_isnan(x)) return x == 0 ? 1 : 2;
    return 0;
}

// Inv through x87 extended arithmetic, as the hand-tuned routines do for their
// out-of-range lanes; the level's own value for lanes in range.
template <class Refine>
int InvScalarS(const float* a, float* y) {
    float x = *a;
    uint32_t u = (BitsOf(x) & 0x7FFFFFFFu) - 0x00800000u;
    if (u < 0x7E000000u) {
        *y = _mm_cvtss_f32(Refine::Apply(_mm_set_ss(x), _mm_rcp_ss(_mm_set_ss(x))));
        return 0;
    }
    long double one = 1.0L;
    *y = float(Keep(one) / x);
    return x == 0 ? 2 : 0;
}

struct AsIs {
    static __m128 Apply(__m128, __m128 r) { return r; }
};
struct NewtonStep {
    static __m128 Apply(__m128 x, __m128 r) {
        return _mm_mul_ps(r, _mm_sub_ps(_mm_set1_ps(2.0f), _mm_mul_ps(x, r)));
    }
};

struct InvEPs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sInv);
    static constexpr Layout kLayout = Layout::HandTuned;
    static __m128 Eval(__m128 x, __m128& special) {
        special = InvTestS(x);
        return _mm_rcp_ps(x);
    }
    static int Scalar(const float* a, float* y) { return InvScalarS<AsIs>(a, y); }
};

struct InvLAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sInv);
    static constexpr Layout kLayout = Layout::HandTuned;
    static __m128 Eval(__m128 x, __m128& special) {
        special = InvTestS(x);
        return NewtonStep::Apply(x, _mm_rcp_ps(x));
    }
    static int Scalar(const float* a, float* y) { return InvScalarS<NewtonStep>(a, y); }
};

struct InvHAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sInv);
    static __m128 Eval(__m128 x, __m128& special) {
        special = ZeroTestS(x);
        return _mm_div_ps(_mm_set1_ps(1.0f), _mm_or_ps(x, special));
    }
    static int Scalar(const float* a, float* y) {
        float one = 1.0f;
        return DivScalar<float>(&one, a, y);
    }
};

// Reciprocal of b for the single Div levels; special lanes of b become NaN.
template <bool Newton>
inline __m128 DivRecipS(__m128 b, __m128& special) {
    special = InvTestS(b);
    __m128 bb = _mm_or_ps(b, special);
    __m128 r = _mm_rcp_ps(bb);
    if constexpr (Newton) r = NewtonStep::Apply(bb, r);
    return r;
}

template <bool Newton>
struct DivApproxS {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sDiv);
    static __m128 Eval(__m128 a, __m128 b, __m128& special) {
        __m128 r = DivRecipS<Newton>(b, special);
        __m128 q = _mm_mul_ps(a, r);
        special = _mm_or_ps(special, BigTestS(q));
        return q;
    }
    static int Scalar(const float* a, const float* b, float* y) { return DivScalar(a, b, y); }
};

struct DivHAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sDiv);
    static __m128 Eval(__m128 a, __m128 b, __m128& special) {
        special = ZeroTestS(b);
        return _mm_div_ps(a, _mm_or_ps(b, special));
    }
    static int Scalar(const float* a, const float* b, float* y) { return DivScalar(a, b, y); }
};

// Double reciprocal chain; Long selects LA. With the seed r's relative error
// e = 1 - x*r below 1.5 * 2^-12, 1/x = r * (1 + e + e^2 + ...). EP cuts the series
// after e^2, leaving e^3 (about 2^-34), and writes it in p = x*r as
// 1 + e + e^2 = 3 - p*(3 - p), one operation fewer; the roundings near 1 and 3 cost a
// few ulps, far below EP's bound. LA cuts after e^4, leaving e^5 (about 2^-57), and
// adds the correction r*e * (1 + e) * (1 + e^2) to r last, so that only its own
// roundings and that of x*r in the residual reach the result; the factors are formed
// side by side, since the chain is bound by latency more than by operations. The seed
// is taken from x as it is (integer operations and rcpps, which raise nothing), so it
// need not wait for the range test; special lanes become NaN at the seed. Div
// multiplies by a last, so that a tiny quotient is rounded once, from one product.
template <bool Long>
inline __m128d RecipD(__m128d x, __m128d special) {
    __m128d r = _mm_or_pd(ReciprocalSeed(x), special);
    __m128d p = _mm_mul_pd(x, r);
    if constexpr (Long) {
        const __m128d one = _mm_set1_pd(1.0);
        __m128d e = _mm_sub_pd(one, p);
        __m128d c = _mm_mul_pd(_mm_mul_pd(r, e), _mm_add_pd(one, e));
        c = _mm_mul_pd(c, _mm_add_pd(one, _mm_mul_pd(e, e)));
        return _mm_add_pd(r, c);
    } else {
        const __m128d three = _mm_set1_pd(3.0);
        return _mm_mul_pd(r, _mm_sub_pd(three, _mm_mul_pd(p, _mm_sub_pd(three, p))));
    }
}

template <bool Long>
struct InvApproxD {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dInv);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = InvTestD(x);
        return RecipD<Long>(x, special);
    }
    static int Scalar(const double* a, double* y) {
        double one = 1.0;
        return DivScalar<double>(&one, a, y);
    }
};

struct InvHAd {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dInv);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = ZeroTestD(x);
        return _mm_div_pd(_mm_set1_pd(1.0), _mm_or_pd(x, special));
    }
    static int Scalar(const double* a, double* y) {
        double one = 1.0;
        return DivScalar<double>(&one, a, y);
    }
};

template <bool Long>
struct DivApproxD {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dDiv);
    static __m128d Eval(__m128d a, __m128d b, __m128d& special) {
        special = InvTestD(b);
        __m128d q = _mm_mul_pd(a, RecipD<Long>(b, special));
        special = _mm_or_pd(special, BigTestD(q));
        return q;
    }
    static int Scalar(const double* a, const double* b, double* y) { return DivScalar(a, b, y); }
};

struct DivHAd {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dDiv);
    static __m128d Eval(__m128d a, __m128d b, __m128d& special) {
        special = ZeroTestD(b);
        return _mm_div_pd(a, _mm_or_pd(b, special));
    }
    static int Scalar(const double* a, const double* b, double* y) { return DivScalar(a, b, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sInv, EP) BRENN_SIG(s, Unary) {
    RunUnary(InvEPs{}, n, a, y);
}
void ZAR_KERNEL(sInv, LA) BRENN_SIG(s, Unary) {
    RunUnary(InvLAs{}, n, a, y);
}
void ZAR_KERNEL(sInv, HA) BRENN_SIG(s, Unary) {
    RunUnary(InvHAs{}, n, a, y);
}
void ZAR_KERNEL(dInv, EP) BRENN_SIG(d, Unary) {
    RunUnary(InvApproxD<false>{}, n, a, y);
}
void ZAR_KERNEL(dInv, LA) BRENN_SIG(d, Unary) {
    RunUnary(InvApproxD<true>{}, n, a, y);
}
void ZAR_KERNEL(dInv, HA) BRENN_SIG(d, Unary) {
    RunUnary(InvHAd{}, n, a, y);
}
void ZAR_KERNEL(sDiv, EP) BRENN_SIG(s, Binary) {
    RunBinary(DivApproxS<false>{}, n, a, b, y);
}
void ZAR_KERNEL(sDiv, LA) BRENN_SIG(s, Binary) {
    RunBinary(DivApproxS<true>{}, n, a, b, y);
}
void ZAR_KERNEL(sDiv, HA) BRENN_SIG(s, Binary) {
    RunBinary(DivHAs{}, n, a, b, y);
}
void ZAR_KERNEL(dDiv, EP) BRENN_SIG(d, Binary) {
    RunBinary(DivApproxD<false>{}, n, a, b, y);
}
void ZAR_KERNEL(dDiv, LA) BRENN_SIG(d, Binary) {
    RunBinary(DivApproxD<true>{}, n, a, b, y);
}
void ZAR_KERNEL(dDiv, HA) BRENN_SIG(d, Binary) {
    RunBinary(DivHAd{}, n, a, b, y);
}
}
