/* Expm1, single (one kernel for all levels) and double (three levels).
 *
 * e^x - 1 = 2^m*T*(1 + p) - 1 on the double core of exp_core.h, with the subtraction of 1
 * placed by m so that nothing cancels: for -1 <= m <= 52, 2^m*((Thi - 2^-m) + s), the
 * inner difference exact; for m > 52, 2^m*(Thi + (s - 2^-m)); for m <= -2, 2^m*(Thi + s)
 * - 1, the result then being near -1. Here s = Thi*p + Tlo. For small |x| (m = 0, j = 0)
 * this is p itself, whose polynomial is fitted for relative error. HA has degree 6 and
 * carries th*r and the middle sum exactly; LA degree 6 in plain arithmetic; EP degree 4;
 * the single kernel widens to double with degree 5 and rounds once.
 * Range test |x| above 708 (double) or 86.6433945 (single); the scalar routine gives
 * +inf with status 3 above the overflow limit, -1 for large negative x, e^x itself
 * above 709 (where the core's scale 2^m would pass 2^1022), and the core's value
 * otherwise. Error mode 0x2000 blends the overflow lanes to +inf. */
#include "frame/kernels.h"
#include "vecmath/explog/exp_core.h"
#include "vecmath/explog/exp_fixup.h"
#include "vecmath/explog/exp_scalar.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

constexpr float kOverS = 88.72283172607422f;
constexpr double kOverD = 709.78271289338397;

template <ExpDegree D, bool Exact>
inline __m128d Expm1Core(__m128d x) {
    __m128d t = _mm_add_pd(_mm_mul_pd(x, _mm_set1_pd(92.332482616893657)),
                           _mm_set1_pd(Format<double>::kShifter));
    __m128d n = _mm_sub_pd(t, _mm_set1_pd(Format<double>::kShifter));
    // r = rh + rl: the head exact (the constant's trailing zeros), the tail kept apart
    // for HA, where its rounding into r would be magnified by the table value.
    __m128d rh = _mm_sub_pd(x, _mm_mul_pd(n, _mm_set1_pd(0.010830424696223417)));
    __m128d rl = _mm_mul_pd(n, _mm_set1_pd(-2.5728046223276691e-14));
    __m128d r = _mm_add_pd(rh, rl);
    __m128d th, tl;
    ExpRows64(t, th, tl);
    __m128d scale = ExpScale64(t), inv = ExpInvScale64(t);
    __m128d tail = ExpPolyTail<D>(r);
    __m128d s = _mm_add_pd(_mm_mul_pd(th, _mm_add_pd(r, tail)), tl);
    __m128d mid;
    if constexpr (Exact) {
        // Near the ends of the middle range th - 2^-m and th*p are of the result's size
        // and of opposite sign: th*rh and the sum are carried exactly (Dekker, Knuth), so
        // that only the last addition rounds at the result's scale.
        __m128d ph, pl, a = _mm_sub_pd(th, inv);
        TwoProduct(th, rh, ph, pl);
        __m128d sum = _mm_add_pd(a, ph);
        __m128d bb = _mm_sub_pd(sum, a);
        __m128d err = _mm_add_pd(_mm_sub_pd(a, _mm_sub_pd(sum, bb)), _mm_sub_pd(ph, bb));
        __m128d lo = _mm_add_pd(pl, _mm_add_pd(_mm_mul_pd(th, _mm_add_pd(tail, rl)), tl));
        mid = _mm_mul_pd(scale, _mm_add_pd(sum, _mm_add_pd(err, lo)));
    } else {
        mid = _mm_mul_pd(scale, _mm_add_pd(_mm_sub_pd(th, inv), s));
    }
    __m128d big = _mm_mul_pd(scale, _mm_add_pd(th, _mm_sub_pd(s, inv)));
    __m128d neg = _mm_sub_pd(_mm_mul_pd(scale, _mm_add_pd(th, s)), _mm_set1_pd(1.0));
    __m128i m = _mm_srai_epi32(_mm_castpd_si128(t), 6);
    m = _mm_shuffle_epi32(m, _MM_SHUFFLE(2, 2, 0, 0));
    __m128d isBig = _mm_castsi128_pd(_mm_cmpgt_epi32(m, _mm_set1_epi32(52)));
    __m128d isNeg = _mm_castsi128_pd(_mm_cmplt_epi32(m, _mm_set1_epi32(-1)));
    __m128d y = _mm_blendv_pd(_mm_blendv_pd(mid, big, isBig), neg, isNeg);
    // Below 2^-60 the result is x itself; this also keeps the sign of -0.
    __m128d tiny =
        _mm_cmplt_pd(_mm_and_pd(x, _mm_castsi128_pd(_mm_set1_epi64x(0x7FFFFFFFFFFFFFFFll))),
                     _mm_set1_pd(0x1p-60));
    return _mm_blendv_pd(y, x, tiny);
}

// The scalar routine's value for a finite x below the overflow limit.
template <ExpDegree D, bool Exact>
inline double Expm1Value(double x) {
    if (x < -700.0) return -1.0 + 0x1p-1000; // -1, inexact
    // From 709.08 up (m = 1023) the core's 2^-m is a denormal that its exponent field
    // cannot hold, and from 709.7773 (m = 1024) its 2^m is 2^1024, an overflow where the
    // result is still finite. Up here e^x - 1 is e^x far below its last place, and the
    // scalar exponential applies its power of two in two steps.
    if (x > 709.0) return ExpScalarCore(x);
    return _mm_cvtsd_f64(Expm1Core<D, Exact>(_mm_set1_pd(x)));
}

template <class T, class Value>
inline int Expm1Scalar(T x, T* y, T over, Value value) {
    if (__builtin_isnan(x)) {
        *y = x + x;
        return kStatusOk;
    }
    if (__builtin_isinf(x)) {
        *y = x > 0 ? x : T(-1);
        return kStatusOk;
    }
    if (x > over) {
        volatile T big = sizeof(T) == 4 ? T(3.4028234663852886e38) : T(1.7976931348623157e308);
        *y = big * big;
        return kStatusOverflow;
    }
    *y = value(x);
    return kStatusOk;
}

struct Expm1S {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sExpm1);
    static __m128 Eval(__m128 x, __m128& special) {
        special = RangeTest<float>(x, 0x7FFFFFFFu, 0u, 0x42AD496Bu);
        x = _mm_andnot_ps(special, x); // special lanes run on 0: no flags of their own
        __m128d lo = Expm1Core<ExpDegree::Five, false>(_mm_cvtps_pd(x));
        __m128d hi = Expm1Core<ExpDegree::Five, false>(_mm_cvtps_pd(_mm_movehl_ps(x, x)));
        return _mm_movelh_ps(_mm_cvtpd_ps(lo), _mm_cvtpd_ps(hi));
    }
    static int Scalar(const float* a, float* y) {
        return Expm1Scalar<float>(*a, y, kOverS, [](float v) {
            return float(Expm1Value<ExpDegree::Six, false>(double(v)));
        });
    }
    static int FixNoError(const __m128* x, __m128* y, int bits) {
        return FixExpLimits<float>(x, y, bits, kOverS, -__builtin_inff());
    }
};

template <ExpDegree D, bool Exact>
struct Expm1D {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dExpm1);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = RangeTest<double>(x, 0x7FFFFFFFFFFFFFFFull, 0ull, 0x4086200000000000ull);
        x = _mm_andnot_pd(special, x); // special lanes run on 0: no flags of their own
        return Expm1Core<D, Exact>(x);
    }
    static int Scalar(const double* a, double* y) {
        return Expm1Scalar<double>(*a, y, kOverD, [](double v) { return Expm1Value<D, Exact>(v); });
    }
    static int FixNoError(const __m128d* x, __m128d* y, int bits) {
        return FixExpLimits<double>(x, y, bits, kOverD, -__builtin_inf());
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sExpm1, All) BRENN_SIG(s, Unary) {
    RunUnary(Expm1S{}, n, a, y);
}
void ZAR_KERNEL(dExpm1, HA) BRENN_SIG(d, Unary) {
    RunUnary(Expm1D<ExpDegree::Six, true>{}, n, a, y);
}
void ZAR_KERNEL(dExpm1, LA) BRENN_SIG(d, Unary) {
    RunUnary(Expm1D<ExpDegree::Six, false>{}, n, a, y);
}
void ZAR_KERNEL(dExpm1, EP) BRENN_SIG(d, Unary) {
    RunUnary(Expm1D<ExpDegree::Four, false>{}, n, a, y);
}
}
