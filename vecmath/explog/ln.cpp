/* Ln, single and double, three levels each.
 *
 * sLn: the branch-free split around 2/3 (log_core.h), then r + r^2*Q(r) with Q of 4
 * (EP), 7 (LA) or 9 (HA) coefficients, plus k*ln2 (in two parts at HA, added last so the
 * low part is not lost). x = 1 gives k = 0 and r = 0: exactly +0 at every level.
 * dLn: the 513-row reciprocal table with |r| <= 2^-10 (log_core.h); EP a cubic without
 * the low parts (about 33 bits); LA and HA degree 5 with ln 2 and the table logarithm
 * in two parts, the tail summed before the exact head (about 0.5 ulp): the table's
 * 2^-42 grid leaves no cheaper form within 4 ulp, so LA is the same arithmetic.
 * Scalar routines: log_scalar.h (zero: -inf, status 2; negative: NaN, status 1;
 * denormals their correct logarithm, status 0). */
#include <initializer_list>

#include "frame/kernels.h"
#include "vecmath/explog/log_scalar.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

inline __m128 Poly(__m128 r, std::initializer_list<float> c) {
    // Horner from the highest coefficient down.
    const float* b = c.begin();
    int n = int(c.size());
    __m128 p = _mm_set1_ps(b[n - 1]);
    for (int i = n - 2; i >= 0; --i)
        p = _mm_add_ps(_mm_set1_ps(b[i]), _mm_mul_ps(r, p));
    return p;
}

struct LnBaseS {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sLn);
    static int Scalar(const float* a, float* y) {
        return LogScalar<float>(*a, y, [](float v) { return float(LnScalarD(double(v))); });
    }
};

struct LnEPs : LnBaseS {
    static __m128 Eval(__m128 x, __m128& special) {
        special = LogTestS(x);
        __m128 r, k;
        LogSplitS(x, r, k);
        __m128 q = Poly(r, {-0.5f, 0.332896233f, -0.267402589f, 0.219883725f});
        __m128 p = _mm_add_ps(r, _mm_mul_ps(_mm_mul_ps(r, r), q));
        return _mm_add_ps(p, _mm_mul_ps(k, _mm_set1_ps(0.693147182f)));
    }
};

struct LnLAs : LnBaseS {
    static __m128 Eval(__m128 x, __m128& special) {
        special = LogTestS(x);
        __m128 r, k;
        LogSplitS(x, r, k);
        __m128 q = Poly(r, {-0.5f, 0.333365649f, -0.250046641f, 0.198225036f, -0.164624572f,
                            0.169648811f, -0.151772052f});
        __m128 p = _mm_add_ps(r, _mm_mul_ps(_mm_mul_ps(r, r), q));
        return _mm_add_ps(p, _mm_mul_ps(k, _mm_set1_ps(0.693147182f)));
    }
};

struct LnHAs : LnBaseS {
    static __m128 Eval(__m128 x, __m128& special) {
        special = LogTestS(x);
        __m128 r, k;
        LogSplitS(x, r, k);
        __m128 q = Poly(r, {-0.5f, 0.333332151f, -0.249997973f, 0.200104058f, -0.16680488f,
                            0.140058696f, -0.121842608f, 0.139844373f, -0.12891686f});
        __m128 p = _mm_add_ps(r, _mm_mul_ps(_mm_mul_ps(r, r), q));
        __m128 lo = _mm_add_ps(_mm_mul_ps(k, _mm_set1_ps(1.42860677e-06f)), p);
        return _mm_add_ps(lo, _mm_mul_ps(k, _mm_set1_ps(0.693145752f)));
    }
};

struct LnBaseD {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dLn);
    static int Scalar(const double* a, double* y) {
        return LogScalar<double>(*a, y, [](double v) { return Fyl2x(v, kLn2L); });
    }
};

template <LnLevel Lv>
struct LnD : LnBaseD {
    static __m128d Eval(__m128d x, __m128d& special) {
        special = LogTestD(x);
        __m128d h, l;
        // Special lanes take 1.0, so that their table index stays in the table.
        LnCoreD<Lv>(_mm_blendv_pd(x, _mm_set1_pd(1.0), special), h, l);
        return _mm_add_pd(h, l);
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sLn, EP) BRENN_SIG(s, Unary) {
    RunUnary(LnEPs{}, n, a, y);
}
void ZAR_KERNEL(sLn, LA) BRENN_SIG(s, Unary) {
    RunUnary(LnLAs{}, n, a, y);
}
void ZAR_KERNEL(sLn, HA) BRENN_SIG(s, Unary) {
    RunUnary(LnHAs{}, n, a, y);
}
void ZAR_KERNEL(dLn, EP) BRENN_SIG(d, Unary) {
    RunUnary(LnD<LnLevel::EP>{}, n, a, y);
}
void ZAR_KERNEL(dLn, LA) BRENN_SIG(d, Unary) {
    RunUnary(LnD<LnLevel::LA>{}, n, a, y);
}
void ZAR_KERNEL(dLn, HA) BRENN_SIG(d, Unary) {
    RunUnary(LnD<LnLevel::HA>{}, n, a, y);
}
}
