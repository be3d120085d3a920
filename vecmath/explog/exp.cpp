/* Exp, single and double, three levels each.
 *
 * sExp: EP works in base 2 (y = x*log2e split by the shifter, cubic in the fraction,
 * 2^n put in by an integer add on the exponent field); LA reduces in base e with a
 * two-part ln 2 and a degree-5 polynomial; HA reduces by ln2/128 with the 128-entry
 * table and a second-order correction, 2^m added to the exponent field as in EP.
 * dExp: n and j from x*N/ln2 by the shifter; T*(1 + p(r)) with the table of N entries:
 * LA N = 1024 and a cubic, HA N = 256 in two parts and degree 4 (exp_core256.h); EP
 * 2^(x*log2e) on the table of 128 and a quadratic in base 2 (exp_core.h Exp2Table128,
 * the form of dExp2 EP; x*log2e rounds by 2^-44.5 of the result).
 * Range test on x from -87.33654 to 88.72 in single (inside the last normal results
 * below, just inside the last finite ones above), -708.39 to 709.77 in double; the
 * special lanes, overflow, underflow and denormal results go to the scalar routine, which works from the double core of exp_scalar.h. In error mode
 * 0x2000 overflow and underflow lanes are settled by blends (exp_fixup.h). Rounds of
 * sixteen elements, the range tested once a round (wide.h), every level flattened.
 *
 * Measured (brenn_accuracy, full run): sExp LA 2.13 ulp, HA 0.55 ulp, EP 13.2 bits;
 * dExp LA 1.79 ulp, HA 0.67 ulp, EP 30.2 bits.
 * The polynomials come from tools/explog/exp_single.sollya, exp_double.sollya (LA) and
 * exp2_10_double.sollya (EP). */
#include "frame/kernels.h"
#include "vecmath/explog/exp_core.h"
#include "vecmath/explog/exp_core256.h"
#include "vecmath/explog/exp_fixup.h"
#include "vecmath/explog/exp_scalar.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {
namespace {

// The range window on |x|, inside the last normal results.
template <class T>
struct ExpWindow;
template <>
struct ExpWindow<float> {
    // -87.33654 to 88.72: below, the results near the least normal and the denormal
    // ones; above, the last arguments whose results are finite (n = 128 with q < 1, whose
    // exponent field 126 + 128 still holds them; q is at least 2^-14 below 1 up to 88.72).
    static constexpr SplitWindow32 kWindow = {0x42B170A4u, 0xC2AEAC4Fu};
};
template <>
struct ExpWindow<double> {
    // By high words: -708.396 (inside the last normal results) to 709.770 (m <= 1023 at
    // every level, the result below 2^1024).
    static constexpr SplitWindowHigh kWindow = {0x40862E28u, 0xC086232Au};
};

int ExpScalar(const float* a, float* y) {
    using K = ExpLimits<float>;
    return ExpScalarFinish<float>(*a, y, K::kOver, K::kUnder,
                                  [](float x) { return float(ExpScalarCore(double(x))); });
}
int ExpScalar(const double* a, double* y) {
    using K = ExpLimits<double>;
    double x = *a;
    // 1 + x is the value to the last bit; a quiet compare, so that NaN raises nothing
    if (__builtin_isless(__builtin_fabs(x), 0x1p-52)) {
        *y = 1.0 + x;
        return status::kNone;
    }
    return ExpScalarFinish<double>(x, y, K::kOver, K::kUnder,
                                   [](double v) { return ExpScalarCore(v); });
}

// Single EP: 2^(x*log2e) as 2^n * q(f), the cubic q for 2^f on |f| <= 1/2, 2^n put in
// by an integer add on the exponent field.
constexpr float kLog2eS = 0x1.715476p+0f;
// Fitted by tools/explog/exp_single.sollya (EP).
constexpr float kExp2Cubic[] = {0x1p+0f, 0x1.62f5fap-1f, 0x1.f00c4cp-3f, 0x1.c2a254p-5f};
// Single LA: base e, ln 2 in two parts, degree 5 on |r| <= ln2/2.
constexpr float kLn2HiS = 0x1.62e4p-1f, kLn2LoS = 0x1.7f7d1cp-20f;
// Fitted by tools/explog/exp_single.sollya (LA).
constexpr float kExpQuintic[] = {0x1p+0f,       0x1.fffff6p-1f, 0x1.fffdc6p-2f,
                                 0x1.555a8p-3f, 0x1.573a1ap-5f, 0x1.0f9f9cp-7f};
// Single HA: ln2/128 steps with the 128-entry table. The shifter is 1.375 * 2^23, whose
// bits end in seven zeros (see below); the step is in two parts, negated.
constexpr float kShifter128S = 0x1.6p+23f, kInvStep128S = 0x1.715476p+7f;
constexpr float kNegStepHiS = 0x1.63p-8f, kNegStepLoS = -0x1.bd0106p-20f;

// 2^n from the integer in t's low bits (t went through the single shifter): its bits
// shifted into the exponent field and added to y's.
inline __m128 ScaleByLowBits(__m128 y, __m128 t) {
    I32x4 e = ShiftLeft<Format<float>::kMantBits>(AsInt(t));
    return AsFloat(Add(e, AsInt(y)));
}

template <Level L>
inline __m128 ExpOf(__m128 x) {
    const __m128 shifter = Set<float>(Format<float>::kShifter);
    if constexpr (L == Level::EP) {
        __m128 yy = Mul(x, Set<float>(kLog2eS));
        __m128 t = Add(yy, shifter);
        __m128 r = Sub(yy, Sub(t, shifter));
        return ScaleByLowBits(Horner(r, kExp2Cubic), t);
    } else if constexpr (L == Level::LA) {
        __m128 t = Add(Mul(x, Set<float>(kLog2eS)), shifter);
        __m128 n = Sub(t, shifter);
        __m128 r = Sub(Sub(x, Mul(n, Set<float>(kLn2HiS))), Mul(n, Set<float>(kLn2LoS)));
        return ScaleByLowBits(Horner(r, kExpQuintic), t);
    } else {
        const __m128 shifter128 = Set<float>(kShifter128S);
        __m128 t = Add(Mul(x, Set<float>(kInvStep128S)), shifter128);
        __m128 n = Sub(shifter128, t); // the negated integer
        __m128 r = Add(Add(x, Mul(n, Set<float>(kNegStepHiS))), Mul(n, Set<float>(kNegStepLoS)));
        // The shifter's bits end in seven zeros, so the index is bits(t) & 0x7F, masked in
        // the scalar unit (the vector pipes are the busy ones), and the binary exponent
        // (bits(t) - bits(shifter)) >> 7 shifted left 23 is (bits(t) >> 7) << 23: the
        // shifter's part leaves the word.
        // Rows of (T, Tl) pairs, Tl relative to T, transposed into a T and a Tl register.
        __m128 tv, tl;
        GatherPairs(single::expTable128, AsInt(t), 0x7F, tv, tl);
        __m128 s = Add(Add(r, tl), Mul(Set<float>(0.5f), Mul(r, r)));
        __m128 p = Add(Mul(s, tv), tv);
        // 2^m put in by an integer add on p's exponent field, not by a multiplication with
        // a scale: inside the range test the result is normal (at the lowest n that passes,
        // m = -126 comes with p above 1), so the two are the same.
        I32x4 k = ShiftLeft<Format<float>::kMantBits>(ShiftRight<7>(AsInt(t)));
        static_assert(((0x4B300000u >> 7) << 23) == 0);
        return AsFloat(Add(AsInt(p), k));
    }
}

// Double EP: 2^(x*log2e) on the table of 128 (exp_core.h Exp2Table128).
constexpr double kLog2e = 0x1.71547652b82fep+0;
// Double LA: ln2/1024 steps in two parts, r + r^2*(c2 + r*c3), the table of 1024.
constexpr double kInvStep1024 = 0x1.71547652b82fep+10, kStep1024Hi = 0x1.62e42fec00000p-11,
                 kStep1024Lo = 0x1.d1cf79abc9e3bp-42;
// c2 and c3, fitted by tools/explog/exp_double.sollya (LA).
constexpr double kExpLaC[] = {0x1.00000021f6929p-1, 0x1.55555559fd862p-3};

template <Level L>
inline __m128d ExpOf(__m128d x) {
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    if constexpr (L == Level::EP) {
        return Exp2Table128(Mul(x, Set<double>(kLog2e)));
    } else if constexpr (L == Level::LA) {
        __m128d t = Add(Mul(x, Set<double>(kInvStep1024)), shifter);
        __m128d n = Sub(t, shifter);
        __m128d r = Sub(Sub(x, Mul(n, Set<double>(kStep1024Hi))), Mul(n, Set<double>(kStep1024Lo)));
        __m128d p = Add(Set<double>(kExpLaC[0]), Mul(r, Set<double>(kExpLaC[1])));
        p = Add(r, Mul(Mul(r, r), p));
        double lane0 = expTable1024[LowWord<0>(AsInt(t)) & 1023];
        double lane1 = expTable1024[LowWord<1>(AsInt(t)) & 1023];
        __m128d tv = SetLanes(lane0, lane1);
        __m128d y = Add(tv, Mul(tv, p));
        return ScaleByLowWord<10>(y, t);
    } else {
        // The table of 256 in two parts (exp_core256.h) and degree 4.
        using S = ExpStep256;
        __m128d t = Add(Mul(x, Set<double>(S::kInvStep)), shifter);
        __m128d n = Sub(t, shifter);
        __m128d r = Sub(Sub(x, Mul(n, Set<double>(S::kStepHi))), Mul(n, Set<double>(S::kStepLo)));
        __m128d r2 = Mul(r, r);
        __m128d q = Add(Add(Set<double>(S::kC[0]), Mul(r, Set<double>(S::kC[1]))),
                        Mul(r2, Set<double>(S::kC[2])));
        __m128d p = Add(r, Mul(r2, q));
        return ScaleByLowWord<8>(ExpJoin256(t, p), t);
    }
}

template <class Tp, Level L>
struct ExpBody {
    using T = Tp;
    using V = Vec<T>;
    using K = ExpLimits<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Exp);
    static constexpr auto kWindow = ExpWindow<T>::kWindow;
    static constexpr int kRound = 16;
    static int EvalWide(const V* x, V* y) { return EvalTestOnce<ExpBody>(x, y); }
    static V Value(V x) { return ExpOf<L>(x); }
    static V Eval(V x, V& special) {
        special = RangeTest(x, kWindow);
        x = IfThenZeroElse(special, x); // special lanes run on 0: no flags of their own
        return ExpOf<L>(x);
    }
    static int Scalar(const T* a, T* y) { return ExpScalar(a, y); }
    static int FixNoError(const V* x, V* y, int bits) {
        return FixExpLimits<T>(x, y, bits, K::kOver, K::kUnder);
    }
};

} // namespace
} // namespace brenn::vm

using brenn::vm::ExpBody;

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, Exp, Unary, ExpBody)
BRENN_FLAT_LEVEL_KERNELS(d, Exp, Unary, ExpBody)
}
