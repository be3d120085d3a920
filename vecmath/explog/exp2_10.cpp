/* Exp2 and Exp10, single and double, one kernel each for all levels.
 *
 * Both run on the double core of exp_core.h (table of 64, degree-6 polynomial), the
 * single forms on their lanes widened to double and rounded once at the end, so that
 * every level is within an ulp. The reduction is exact in the function's own base:
 * Exp2: n = round(64x), d = x - n/64 exactly, r = d*ln2.
 * Exp10: n = round(64x/log10(2)), d = x - n*log10(2)/64 with a 36-bit head (n*head is
 * exact), r = d*ln10.
 * Range tests: |x| above 126 (Exp2) or 37.93 (Exp10) in single, 1022 or 307 in double;
 * the scalar routines take the rest with the limits of each format: overflow (status 3),
 * +0 (status 4) and denormal results (status 4). Error mode 0x2000 blends overflow and
 * underflow lanes. */
#include "frame/kernels.h"
#include "vecmath/explog/exp_core.h"
#include "vecmath/explog/exp_fixup.h"
#include "vecmath/explog/exp_scalar.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

constexpr double kLn2D = 0.69314718055994528622676398299518041312694549560546875;
constexpr double kLn2LoD2 = 2.3190468138462996e-17;
constexpr double kLn10D = 2.30258509299404590109361379290930926799774169921875;
constexpr double kLn10LoD = -2.1707562233822494e-16;
constexpr double kLog10Of2Over64Hi = 4.703593682279461063444614410400390625e-3;
constexpr double kLog10Of2Over64Lo = -2.9754888229944178e-14;

inline __m128d Exp2Core(__m128d x) {
    __m128d t = _mm_add_pd(_mm_mul_pd(x, _mm_set1_pd(64.0)), _mm_set1_pd(Format<double>::kShifter));
    __m128d n = _mm_sub_pd(t, _mm_set1_pd(Format<double>::kShifter));
    __m128d d = _mm_sub_pd(x, _mm_mul_pd(n, _mm_set1_pd(0.015625)));
    return ExpAssemble64<ExpDegree::Six>(t, _mm_mul_pd(d, _mm_set1_pd(kLn2D)));
}

inline __m128d Exp10Core(__m128d x) {
    __m128d t = _mm_add_pd(_mm_mul_pd(x, _mm_set1_pd(212.60339807279118)),
                           _mm_set1_pd(Format<double>::kShifter));
    __m128d n = _mm_sub_pd(t, _mm_set1_pd(Format<double>::kShifter));
    __m128d d = _mm_sub_pd(_mm_sub_pd(x, _mm_mul_pd(n, _mm_set1_pd(kLog10Of2Over64Hi))),
                           _mm_mul_pd(n, _mm_set1_pd(kLog10Of2Over64Lo)));
    return ExpAssemble64<ExpDegree::Six>(t, _mm_mul_pd(d, _mm_set1_pd(kLn10D)));
}

// e^(x*c) for the scalar routines, with the product x*c carried in two parts.
inline double ExpOfProduct(double x, double c, double cl) {
    double h, l;
    TwoProduct(x, c, h, l);
    return ExpScalarCore(h, l + x * cl);
}

// A single body that widens to double, runs Core and rounds once.
template <__m128d (*Core)(__m128d)>
inline __m128 WidenS(__m128 x) {
    __m128d lo = Core(_mm_cvtps_pd(x));
    __m128d hi = Core(_mm_cvtps_pd(_mm_movehl_ps(x, x)));
    return _mm_movelh_ps(_mm_cvtpd_ps(lo), _mm_cvtpd_ps(hi));
}

struct Exp2S {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sExp2);
    static __m128 Eval(__m128 x, __m128& special) {
        special = RangeTest<float>(x, 0x7FFFFFFFu, 0u, 0x42FC0000u);
        x = _mm_andnot_ps(special, x); // special lanes run on 0: no flags of their own
        return WidenS<Exp2Core>(x);
    }
    static int Scalar(const float* a, float* y) {
        return ExpScalarFinish<float>(*a, y, 128.0f, -150.0f, [](float v) {
            return float(ExpOfProduct(v, kLn2D, kLn2LoD2));
        });
    }
    static int FixNoError(const __m128* x, __m128* y, int bits) {
        return FixExpLimits<float>(x, y, bits, 128.0f, -150.0f);
    }
};

struct Exp10S {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sExp10);
    static __m128 Eval(__m128 x, __m128& special) {
        special = RangeTest<float>(x, 0x7FFFFFFFu, 0u, 0x4217B818u);
        x = _mm_andnot_ps(special, x); // special lanes run on 0: no flags of their own
        return WidenS<Exp10Core>(x);
    }
    static int Scalar(const float* a, float* y) {
        return ExpScalarFinish<float>(*a, y, 38.53183944498959f, -45.15449934959718f, [](float v) {
            return float(ExpOfProduct(v, kLn10D, kLn10LoD));
        });
    }
    static int FixNoError(const __m128* x, __m128* y, int bits) {
        return FixExpLimits<float>(x, y, bits, 38.53183944498959f, -45.15449934959718f);
    }
};

struct Exp2D {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dExp2);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = RangeTest<double>(x, 0x7FFFFFFFFFFFFFFFull, 0ull, 0x408FF00000000000ull);
        x = _mm_andnot_pd(special, x); // special lanes run on 0: no flags of their own
        return Exp2Core(x);
    }
    static int Scalar(const double* a, double* y) {
        return ExpScalarFinish<double>(*a, y, 1024.0, -1075.0,
                                       [](double v) { return ExpOfProduct(v, kLn2D, kLn2LoD2); });
    }
    static int FixNoError(const __m128d* x, __m128d* y, int bits) {
        return FixExpLimits<double>(x, y, bits, 1024.0, -1075.0);
    }
};

constexpr double kOver10D = 308.25471555991675, kUnder10D = -323.60724533877976;

struct Exp10D {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dExp10);
    static __m128d Eval(__m128d x, __m128d& special) {
        special = RangeTest<double>(x, 0x7FFFFFFFFFFFFFFFull, 0ull, 0x4073300000000000ull);
        x = _mm_andnot_pd(special, x); // special lanes run on 0: no flags of their own
        return Exp10Core(x);
    }
    static int Scalar(const double* a, double* y) {
        return ExpScalarFinish<double>(*a, y, kOver10D, kUnder10D,
                                       [](double v) { return ExpOfProduct(v, kLn10D, kLn10LoD); });
    }
    static int FixNoError(const __m128d* x, __m128d* y, int bits) {
        return FixExpLimits<double>(x, y, bits, kOver10D, kUnder10D);
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sExp2, All) BRENN_SIG(s, Unary) {
    RunUnary(Exp2S{}, n, a, y);
}
void ZAR_KERNEL(sExp10, All) BRENN_SIG(s, Unary) {
    RunUnary(Exp10S{}, n, a, y);
}
void ZAR_KERNEL(dExp2, All) BRENN_SIG(d, Unary) {
    RunUnary(Exp2D{}, n, a, y);
}
void ZAR_KERNEL(dExp10, All) BRENN_SIG(d, Unary) {
    RunUnary(Exp10D{}, n, a, y);
}
}
