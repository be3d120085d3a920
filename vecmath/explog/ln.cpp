/* Ln, single and double, three levels each.
 *
 * sLn: the branch-free split around 2/3 (log_core.h), then r + r^2*Q(r) with Q of 4
 * (EP), 8 (LA, fitted) or 9 (HA) coefficients, plus k*ln2 (in two parts at HA, with the
 * sums carried exactly so that only the last one rounds). x = 1 gives k = 0 and r = 0:
 * exactly +0 at every level. Measured over every float: EP 12.8 bits, LA and HA below
 * their 4 and 1 ulp.
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

// c0 + c1*r.
inline __m128 Pair(__m128 r, float c0, float c1) {
    return _mm_add_ps(_mm_set1_ps(c0), _mm_mul_ps(r, _mm_set1_ps(c1)));
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
        // Eight coefficients fitted by tools/explog/ln_single.sollya (2^-25.1); Estrin's
        // scheme, so that the chain is four steps deep and not eight: the body is bound by
        // that latency, not by the arithmetic.
        __m128 r2 = _mm_mul_ps(r, r), r4 = _mm_mul_ps(r2, r2);
        __m128 p01 = Pair(r, -0.4999993741512298583984375f, 0.333332002162933349609375f);
        __m128 p23 = Pair(r, -0.2500774562358856201171875f, 0.200110614299774169921875f);
        __m128 p45 = Pair(r, -0.1641710102558135986328125f, 0.13997419178485870361328125f);
        __m128 p67 = Pair(r, -0.15383188426494598388671875f, 0.140189588069915771484375f);
        __m128 q = _mm_add_ps(_mm_add_ps(p01, _mm_mul_ps(r2, p23)),
                              _mm_mul_ps(r4, _mm_add_ps(p45, _mm_mul_ps(r2, p67))));
        __m128 p = _mm_add_ps(r, _mm_mul_ps(r2, q));
        return _mm_add_ps(p, _mm_mul_ps(k, _mm_set1_ps(0.693147182f)));
    }
};

struct LnHAs : LnBaseS {
    static __m128 Eval(__m128 x, __m128& special) {
        special = LogTestS(x);
        __m128 r, k;
        LogSplitS(x, r, k);
        // The seven high coefficients by Estrin's scheme (their rounding is scaled down
        // by r^2), the two low ones by Horner steps, so that Q's error is about the last
        // step's half ulp while the chain stays short.
        __m128 r2 = _mm_mul_ps(r, r), r4 = _mm_mul_ps(r2, r2);
        __m128 h =
            _mm_add_ps(_mm_add_ps(Pair(r, -0.249997973f, 0.200104058f),
                                  _mm_mul_ps(r2, Pair(r, -0.16680488f, 0.140058696f))),
                       _mm_mul_ps(r4, _mm_add_ps(Pair(r, -0.121842608f, 0.139844373f),
                                                 _mm_mul_ps(r2, _mm_set1_ps(-0.12891686f)))));
        __m128 q = _mm_add_ps(_mm_set1_ps(0.333332151f), _mm_mul_ps(r, h));
        q = _mm_add_ps(_mm_set1_ps(-0.5f), _mm_mul_ps(r, q));
        // k*ln2hi + r is carried exactly with its rounding error (Fast2Sum: |k*ln2hi| is
        // above |r| whenever k is not 0, and for k = 0 the sum is r itself), and r^2*Q
        // and k*ln2lo join that error, so that only the last addition rounds at the
        // result's scale: near x = 2/3, where p = r + r^2*Q is of the result's size, two
        // roundings would otherwise reach an ulp. Carrying the sum at r rather than at p
        // takes one exact step, not two.
        __m128 kh = _mm_mul_ps(k, _mm_set1_ps(0.693145752f));
        __m128 s = _mm_add_ps(kh, r);
        __m128 e = _mm_add_ps(_mm_sub_ps(kh, s), r);
        // The terms that are ready early are summed first: r^2*Q ends the longest chain.
        __m128 lo = _mm_add_ps(_mm_add_ps(e, _mm_mul_ps(k, _mm_set1_ps(1.42860677e-06f))),
                               _mm_mul_ps(r2, q));
        return _mm_add_ps(s, lo);
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
        // Special lanes run as they are: the core's m and k are in range for any bits.
        LnCoreD<Lv>(x, h, l);
        return _mm_add_pd(h, l);
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

// The whole frame inlined into the kernel: the rounds stay in one loop with the
// constants in registers, not a call per round.
#define BRENN_FLAT __attribute__((flatten))

extern "C" {
void ZAR_KERNEL(sLn, EP) BRENN_SIG(s, Unary) {
    RunUnary(LnEPs{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sLn, LA) BRENN_SIG(s, Unary) {
    RunUnary(LnLAs{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sLn, HA) BRENN_SIG(s, Unary) {
    RunUnary(LnHAs{}, n, a, y);
}
void ZAR_KERNEL(dLn, EP) BRENN_SIG(d, Unary) {
    RunUnary(LnD<LnLevel::EP>{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(dLn, LA) BRENN_SIG(d, Unary) {
    RunUnary(LnD<LnLevel::LA>{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(dLn, HA) BRENN_SIG(d, Unary) {
    RunUnary(LnD<LnLevel::HA>{}, n, a, y);
}
}
