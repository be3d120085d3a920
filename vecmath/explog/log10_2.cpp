/* Log10 and Log2, single and double.
 *
 * Single EP and LA: the split around 2/3 of log_core.h and r*Q(r) with Q of 5 (EP) or 9
 * (LA) coefficients fitted for the base (tools/explog/log_single.sollya; EP Log10 keeps
 * the row's own), plus k*log10(2) (two parts at LA) or k itself. Single HA: the lanes
 * widened to double, ln by the double core at EP (about 2^-33) times the base's
 * constant, rounded once.
 * Double: ln as the head and tail of the double core, then times log10(e) or log2(e):
 * plainly for LA and EP, and at HA with the product carried exactly (ScaleLogD).
 * Scalar routines: log_scalar.h; the double ones by fyl2x with log10(2) or 1. */
#include "frame/kernels.h"
#include "vecmath/explog/log_poly.h"
#include "vecmath/explog/log_scalar.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

constexpr double kLog10eD = 0.43429448190325181666793241674895398318767547607421875;
constexpr double kLog2eD = 1.442695040888963387004650940070860087871551513671875;

// Single scalar routines: the double ln times the base's constant, rounded once.
template <int Base>
int LogScalarS(const float* a, float* y) {
    return LogScalar<float>(*a, y, [](float v) {
        double l = LnScalarD(double(v));
        return float(Base == 10 ? l * kLog10eD : l * kLog2eD);
    });
}

template <int Base>
int LogScalarD(const double* a, double* y) {
    return LogScalar<double>(*a, y,
                             [](double v) { return Fyl2x(v, Base == 10 ? kLog10Of2L : 1.0L); });
}

struct Log10EPs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sLog10);
    static int Scalar(const float* a, float* y) { return LogScalarS<10>(a, y); }
    static __m128 Eval(__m128 x, __m128& special) {
        special = LogTestS(x);
        __m128 r, k;
        LogSplitS(x, r, k);
        __m128 p = _mm_mul_ps(
            r, PolyS(r, {0.43430084f, -0.216831714f, 0.144034356f, -0.119593509f, 0.100466065f}));
        return _mm_add_ps(p, _mm_mul_ps(k, _mm_set1_ps(0.30103001f)));
    }
};

struct Log10LAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sLog10);
    static int Scalar(const float* a, float* y) { return LogScalarS<10>(a, y); }
    static __m128 Eval(__m128 x, __m128& special) {
        special = LogTestS(x);
        __m128 r, k;
        LogSplitS(x, r, k);
        __m128 p =
            _mm_mul_ps(r, PolyS(r, {0.4342944920063018798828125f, -0.21714694797992706298828125f,
                                    0.1447630822658538818359375f, -0.108608387410640716552734375f,
                                    8.6944229900836944580078125e-2f, -7.12812840938568115234375e-2f,
                                    6.034530699253082275390625e-2f, -6.688861548900604248046875e-2f,
                                    6.2656454741954803466796875e-2f}));
        __m128 lo = _mm_add_ps(_mm_mul_ps(k, _mm_set1_ps(-3.0243555500519825e-06f)), p);
        return _mm_add_ps(lo, _mm_mul_ps(k, _mm_set1_ps(0.30103302001953125f)));
    }
};

struct Log2EPs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sLog2);
    static int Scalar(const float* a, float* y) { return LogScalarS<2>(a, y); }
    static __m128 Eval(__m128 x, __m128& special) {
        special = LogTestS(x);
        __m128 r, k;
        LogSplitS(x, r, k);
        __m128 p =
            _mm_mul_ps(r, PolyS(r, {1.442703723907470703125f, -0.7203004360198974609375f,
                                    0.4793720543384552001953125f, -0.3972679674625396728515625f,
                                    0.325635433197021484375f}));
        return _mm_add_ps(p, k);
    }
};

struct Log2LAs {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sLog2);
    static int Scalar(const float* a, float* y) { return LogScalarS<2>(a, y); }
    static __m128 Eval(__m128 x, __m128& special) {
        special = LogTestS(x);
        __m128 r, k;
        LogSplitS(x, r, k);
        __m128 p =
            _mm_mul_ps(r, PolyS(r, {1.44269502162933349609375f, -0.721346557140350341796875f,
                                    0.4808989465236663818359375f, -0.36078870296478271484375f,
                                    0.2886140346527099609375f, -0.23679994046688079833984375f,
                                    0.20297424495220184326171875f, -0.22215835750102996826171875f,
                                    0.1980641782283782958984375f}));
        return _mm_add_ps(p, k);
    }
};

// Single HA: in double on the EP core.
template <int Base>
struct LogHAs {
    using T = float;
    static constexpr const char* kName =
        Base == 10 ? ZAR_ERROR_NAME(sLog10) : ZAR_ERROR_NAME(sLog2);
    static int Scalar(const float* a, float* y) { return LogScalarS<Base>(a, y); }
    static __m128 Eval(__m128 x, __m128& special) {
        special = LogTestS(x);
        __m128 xx = _mm_blendv_ps(x, _mm_set1_ps(1.0f), special);
        return WidenToDouble(xx, [](__m128d v) {
            __m128d h, l;
            LnCoreD<LnLevel::EP>(v, h, l);
            return _mm_mul_pd(_mm_add_pd(h, l), _mm_set1_pd(Base == 10 ? kLog10eD : kLog2eD));
        });
    }
};

enum class Scale { Plain, Exact };

template <int Base, LnLevel Lv, Scale Sc>
struct LogD {
    using T = double;
    static constexpr const char* kName =
        Base == 10 ? ZAR_ERROR_NAME(dLog10) : ZAR_ERROR_NAME(dLog2);
    static int Scalar(const double* a, double* y) { return LogScalarD<Base>(a, y); }
    static __m128d Eval(__m128d x, __m128d& special) {
        special = LogTestD(x);
        __m128d h, r, t;
        LnCoreD3<Lv>(_mm_blendv_pd(x, _mm_set1_pd(1.0), special), h, r, t);
        if constexpr (Sc == Scale::Exact) {
            return Base == 10 ? ScaleLogD(h, r, t, kLog10eHi, kLog10eLo)
                              : ScaleLogD(h, r, t, kLog2eHi, kLog2eLo);
        } else {
            __m128d l = _mm_add_pd(h, _mm_add_pd(r, t));
            return _mm_mul_pd(l, _mm_set1_pd(Base == 10 ? kLog10eD : kLog2eD));
        }
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sLog10, EP) BRENN_SIG(s, Unary) {
    RunUnary(Log10EPs{}, n, a, y);
}
void ZAR_KERNEL(sLog10, LA) BRENN_SIG(s, Unary) {
    RunUnary(Log10LAs{}, n, a, y);
}
void ZAR_KERNEL(sLog10, HA) BRENN_SIG(s, Unary) {
    RunUnary(LogHAs<10>{}, n, a, y);
}
void ZAR_KERNEL(sLog2, EP) BRENN_SIG(s, Unary) {
    RunUnary(Log2EPs{}, n, a, y);
}
void ZAR_KERNEL(sLog2, LA) BRENN_SIG(s, Unary) {
    RunUnary(Log2LAs{}, n, a, y);
}
void ZAR_KERNEL(sLog2, HA) BRENN_SIG(s, Unary) {
    RunUnary(LogHAs<2>{}, n, a, y);
}
void ZAR_KERNEL(dLog10, LaEp) BRENN_SIG(d, Unary) {
    RunUnary(LogD<10, LnLevel::HA, Scale::Plain>{}, n, a, y);
}
void ZAR_KERNEL(dLog10, HA) BRENN_SIG(d, Unary) {
    RunUnary(LogD<10, LnLevel::HA, Scale::Exact>{}, n, a, y);
}
void ZAR_KERNEL(dLog2, EP) BRENN_SIG(d, Unary) {
    RunUnary(LogD<2, LnLevel::EP, Scale::Plain>{}, n, a, y);
}
void ZAR_KERNEL(dLog2, LA) BRENN_SIG(d, Unary) {
    RunUnary(LogD<2, LnLevel::HA, Scale::Plain>{}, n, a, y);
}
void ZAR_KERNEL(dLog2, HA) BRENN_SIG(d, Unary) {
    RunUnary(LogD<2, LnLevel::HA, Scale::Exact>{}, n, a, y);
}
}
