/* Exp, single and double, three levels each.
 *
 * sExp: EP works in base 2 (y = x*log2e split by the shifter, cubic in the fraction,
 * 2^n put in by an integer add on the exponent field); LA reduces in base e with a
 * two-part ln 2 and a degree-5 polynomial; HA reduces by ln2/128 with the 128-entry
 * table and a second-order correction, 2^m added to the exponent field as in EP.
 * dExp: n and j from x*N/ln2 by the shifter; T*(1 + p(r)) with the table of N entries:
 * EP N = 128 and a quadratic, LA N = 1024 and a cubic, HA N = 64 and degree 5.
 * Range test on |x| (87.33654 in single, 708.39 in double, inside the last normal
 * results); the special lanes, overflow, underflow and denormal results go to the
 * scalar routine, which works from the double core of exp_scalar.h. In error mode
 * 0x2000 overflow and underflow lanes are settled by blends (exp_fixup.h). */
#include "frame/kernels.h"
#include "vecmath/explog/exp_fixup.h"
#include "vecmath/explog/exp_scalar.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

constexpr float kOverS = 88.72283172607422f, kUnderS = -103.97207641601562f;
constexpr double kOverD = 709.78271289338397, kUnderD = -745.13321910194111;

inline __m128 ExpTestS(__m128 x) {
    return RangeTest<float>(x, 0x7FFFFFFFu, 0u, 0x42AEAC4Fu);
}
inline __m128d ExpTestD(__m128d x) {
    return RangeTest<double>(x, 0x7FFFFFFFFFFFFFFFull, 0ull, 0x4086232AFFFFFFFFull);
}

inline __m128 Mul(__m128 a, __m128 b) {
    return _mm_mul_ps(a, b);
}
inline __m128 Add(__m128 a, __m128 b) {
    return _mm_add_ps(a, b);
}
inline __m128 Sub(__m128 a, __m128 b) {
    return _mm_sub_ps(a, b);
}
inline __m128 C(float v) {
    return _mm_set1_ps(v);
}
inline __m128d Mul(__m128d a, __m128d b) {
    return _mm_mul_pd(a, b);
}
inline __m128d Add(__m128d a, __m128d b) {
    return _mm_add_pd(a, b);
}
inline __m128d Sub(__m128d a, __m128d b) {
    return _mm_sub_pd(a, b);
}
inline __m128d C(double v) {
    return _mm_set1_pd(v);
}

int ExpScalarS(const float* a, float* y) {
    return ExpScalarFinish<float>(*a, y, kOverS, kUnderS,
                                  [](float x) { return float(ExpScalarCore(double(x))); });
}
int ExpScalarD(const double* a, double* y) {
    double x = *a;
    if (__builtin_fabs(x) < 0x1p-52) { // 1 + x is the value to the last bit
        *y = 1.0 + x;
        return kStatusOk;
    }
    return ExpScalarFinish<double>(x, y, kOverD, kUnderD,
                                   [](double v) { return ExpScalarCore(v); });
}

struct ExpBaseS {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sExp);
    static int Scalar(const float* a, float* y) { return ExpScalarS(a, y); }
    static int FixNoError(const __m128* x, __m128* y, int bits) {
        return FixExpLimits<float>(x, y, bits, kOverS, kUnderS);
    }
};

struct ExpEPs : ExpBaseS {
    static __m128 Eval(__m128 x, __m128& special) {
        special = ExpTestS(x);
        x = _mm_andnot_ps(special, x); // special lanes run on 0: no flags of their own
        const __m128 shifter = C(12582912.0f);
        __m128 yy = Mul(x, C(1.4426950216f));
        __m128 t = Add(yy, shifter);
        __m128 r = Sub(yy, Sub(t, shifter));
        __m128 p =
            Add(Mul(Add(Mul(Add(Mul(C(0.055504005402326584f), r), C(0.2420288622379303f)), r),
                        C(0.6931782960891724f)),
                    r),
                C(1.0f));
        __m128i e = _mm_slli_epi32(_mm_castps_si128(t), 23);
        return _mm_castsi128_ps(_mm_add_epi32(e, _mm_castps_si128(p)));
    }
};

struct ExpLAs : ExpBaseS {
    static __m128 Eval(__m128 x, __m128& special) {
        special = ExpTestS(x);
        x = _mm_andnot_ps(special, x); // special lanes run on 0: no flags of their own
        const __m128 shifter = C(12582912.0f);
        __m128 t = Add(Mul(x, C(1.4426950216f)), shifter);
        __m128 n = Sub(t, shifter);
        __m128 r = Sub(Sub(x, Mul(n, C(0.693145752f))), Mul(n, C(1.42860677e-06f)));
        __m128 p = Add(Mul(C(0.00829171948f), r), C(0.0418735221f));
        p = Add(Mul(p, r), C(0.166674316f));
        p = Add(Mul(p, r), C(0.49999392f));
        p = Add(Mul(p, r), C(0.999999881f));
        p = Add(Mul(p, r), C(1.0f));
        __m128i e = _mm_slli_epi32(_mm_castps_si128(t), 23);
        return _mm_castsi128_ps(_mm_add_epi32(e, _mm_castps_si128(p)));
    }
};

struct ExpHAs : ExpBaseS {
    static __m128 Eval(__m128 x, __m128& special) {
        special = ExpTestS(x);
        x = _mm_andnot_ps(special, x); // special lanes run on 0: no flags of their own
        const __m128 shifter = C(11534336.0f);
        __m128 t = Add(Mul(x, C(184.664963f)), shifter);
        __m128 n = Sub(shifter, t); // the negated integer
        __m128 r = Add(Add(x, Mul(n, C(0.00541687012f))), Mul(n, C(-1.65776908e-06f)));
        // The shifter's bits end in seven zeros, so the index is bits(t) & 0x7F, masked in
        // the scalar unit (the vector pipes are the busy ones), and the binary exponent
        // (bits(t) - bits(shifter)) >> 7 shifted left 23 is (bits(t) >> 7) << 23: the
        // shifter's part leaves the word.
        alignas(16) int32_t idx[4];
        _mm_store_si128(reinterpret_cast<__m128i*>(idx), _mm_castps_si128(t));
        // Rows of (T, Tl) pairs, Tl relative to T, transposed into a T and a Tl register.
        __m128 p01 = _mm_castpd_ps(_mm_loadh_pd(
            _mm_load_sd(reinterpret_cast<const double*>(single::expTable128[idx[0] & 0x7F])),
            reinterpret_cast<const double*>(single::expTable128[idx[1] & 0x7F])));
        __m128 p23 = _mm_castpd_ps(_mm_loadh_pd(
            _mm_load_sd(reinterpret_cast<const double*>(single::expTable128[idx[2] & 0x7F])),
            reinterpret_cast<const double*>(single::expTable128[idx[3] & 0x7F])));
        __m128 tv = _mm_shuffle_ps(p01, p23, _MM_SHUFFLE(2, 0, 2, 0));
        __m128 tl = _mm_shuffle_ps(p01, p23, _MM_SHUFFLE(3, 1, 3, 1));
        __m128 s = Add(Add(r, tl), Mul(C(0.5f), Mul(r, r)));
        __m128 p = Add(Mul(s, tv), tv);
        // 2^m put in by an integer add on p's exponent field, not by a multiplication with
        // a scale: inside the range test the result is normal (at the lowest n that passes,
        // m = -126 comes with p above 1), so the two are the same.
        __m128i k = _mm_slli_epi32(_mm_srli_epi32(_mm_castps_si128(t), 7), 23);
        static_assert(((0x4B300000u >> 7) << 23) == 0);
        return _mm_castsi128_ps(_mm_add_epi32(_mm_castps_si128(p), k));
    }
};

// 2^m for the integer in the low 32 bits of each double lane of t - shifter, after the
// index bits (log2 N of them) are dropped: the exponent field is added to y's bits.
template <int Log2N>
inline __m128d ScaleByLowWord(__m128d y, __m128i v) {
    __m128i m = _mm_srai_epi32(v, Log2N);
    return _mm_castsi128_pd(_mm_add_epi64(_mm_castpd_si128(y), _mm_slli_epi64(m, 52)));
}

// The table rows of a pair of lanes: the index is in each lane's low word.
template <int N, class Row>
inline void Gather2(const Row* table, __m128i v, const double*& a, const double*& b) {
    a = reinterpret_cast<const double*>(&table[_mm_cvtsi128_si32(v) & (N - 1)]);
    b = reinterpret_cast<const double*>(&table[_mm_extract_epi32(v, 2) & (N - 1)]);
}

struct ExpBaseD {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dExp);
    static int Scalar(const double* a, double* y) { return ExpScalarD(a, y); }
    static int FixNoError(const __m128d* x, __m128d* y, int bits) {
        return FixExpLimits<double>(x, y, bits, kOverD, kUnderD);
    }
};

constexpr double kShifterD = 6755399441055744.0;

struct ExpEPd : ExpBaseD {
    static __m128d Eval(__m128d x, __m128d& special) {
        special = ExpTestD(x);
        x = _mm_andnot_pd(special, x); // special lanes run on 0: no flags of their own
        __m128d t = Add(Mul(x, C(184.66496523378731)), C(kShifterD));
        __m128d n = Sub(t, C(kShifterD));
        __m128d r = Sub(x, Mul(n, C(0.0054152123481245725)));
        __m128d p = Add(r, Mul(Mul(r, r), C(0.49999908361121337)));
        __m128i v = _mm_castpd_si128(t);
        const double *ra, *rb;
        Gather2<128>(expTable128, v, ra, rb);
        __m128d tv = _mm_loadh_pd(_mm_load_sd(ra), rb);
        __m128d y = Add(tv, Mul(tv, p));
        return ScaleByLowWord<7>(y, v);
    }
};

struct ExpLAd : ExpBaseD {
    static __m128d Eval(__m128d x, __m128d& special) {
        special = ExpTestD(x);
        x = _mm_andnot_pd(special, x); // special lanes run on 0: no flags of their own
        __m128d t = Add(Mul(x, C(1477.3197218702985)), C(kShifterD));
        __m128d n = Sub(t, C(kShifterD));
        __m128d r =
            Sub(Sub(x, Mul(n, C(0.0006769015431018488))), Mul(n, C(4.1372278962981289e-13)));
        __m128d p = Add(C(0.50000000357965391), Mul(r, C(0.16666666666666669)));
        p = Add(r, Mul(Mul(r, r), p));
        __m128i v = _mm_castpd_si128(t);
        __m128d tv = _mm_set_pd(expTable1024[_mm_extract_epi32(v, 2) & 1023],
                                expTable1024[_mm_cvtsi128_si32(v) & 1023]);
        __m128d y = Add(tv, Mul(tv, p));
        return ScaleByLowWord<10>(y, v);
    }
};

struct ExpHAd : ExpBaseD {
    static __m128d Eval(__m128d x, __m128d& special) {
        special = ExpTestD(x);
        x = _mm_andnot_pd(special, x); // special lanes run on 0: no flags of their own
        __m128d t = Add(Mul(x, C(92.332482616893657)), C(kShifterD));
        __m128d n = Sub(t, C(kShifterD));
        __m128d r = Sub(Sub(x, Mul(n, C(0.010830424696223417))), Mul(n, C(2.5728046223276691e-14)));
        // Estrin's scheme: two independent pairs joined by r^2.
        __m128d r2 = Mul(r, r);
        __m128d p = Add(Add(C(0.49999999999947747), Mul(r, C(0.16666666666677971))),
                        Mul(r2, Add(C(0.041666723686623851), Mul(r, C(0.0083333341644141103)))));
        p = Add(r, Mul(r2, p));
        __m128i v = _mm_castpd_si128(t);
        const double *ra, *rb;
        Gather2<64>(expTable64, v, ra, rb);
        __m128d a = _mm_load_pd(ra), b = _mm_load_pd(rb);
        __m128d th = _mm_unpacklo_pd(a, b), tl = _mm_unpackhi_pd(a, b);
        __m128d y = Add(th, Add(Mul(th, p), tl));
        return ScaleByLowWord<6>(y, v);
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

// The whole frame inlined into the kernel: the rounds stay in one loop with the
// constants in registers, not a call per round.
#define BRENN_FLAT __attribute__((flatten))

extern "C" {
void ZAR_KERNEL(sExp, EP) BRENN_SIG(s, Unary) {
    RunUnary(ExpEPs{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sExp, LA) BRENN_SIG(s, Unary) {
    RunUnary(ExpLAs{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(sExp, HA) BRENN_SIG(s, Unary) {
    RunUnary(ExpHAs{}, n, a, y);
}
void ZAR_KERNEL(dExp, EP) BRENN_SIG(d, Unary) {
    RunUnary(ExpEPd{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(dExp, LA) BRENN_SIG(d, Unary) {
    RunUnary(ExpLAd{}, n, a, y);
}
BRENN_FLAT void ZAR_KERNEL(dExp, HA) BRENN_SIG(d, Unary) {
    RunUnary(ExpHAd{}, n, a, y);
}
}
