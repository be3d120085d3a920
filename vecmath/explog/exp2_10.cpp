/* Exp2 and Exp10, single and double.
 *
 * Single HA: in single with the 128-entry table, n = round(128x/log_B(2)), T = 2^(j/128)
 * for j = n & 127, a cubic in the rest of x, 2^(n >> 7) added to the exponent field
 * (SingleCore below).
 * Double HA: on the table of 256 of exp_core256.h, a degree-4 polynomial in the rest d
 * of x in the function's own base:
 * Exp2: n = round(256x), d = x - n/256 exactly.
 * Exp10: n = round(256x/log10(2)), d = x - n*log10(2)/256 with a 32-bit head (n*head is
 * exact).
 * Double LA: the same reduction on the one-part table of 1024 rows and a cubic (OnePartOf
 * below); double EP: 2^(x*log2(B)) on the table of 128 and a quadratic (Exp2Table128 of
 * exp_core.h; the product's rounding 2^-44.5 of the result).
 * Single LA: the single HA form on the table's high parts alone, T + T*p (CoreOf below).
 * Single EP: no table, 2^x = 2^n*(1 + p(f)), |f| <= 1/2 (Exp2NoTable below); Exp10 EP as
 * Exp2 EP of x*log2(10).
 * Range tests: x outside [-126, 127.99] (Exp2) or [-37.93, 38.53] (Exp10) in single,
 * (-1022, 1023.99] or [-307.6, 308.25] in double;
 * the scalar routines take the rest with the limits of each format: overflow (reported),
 * +0 and denormal results (underflow). Error mode 0x2000 blends overflow and
 * underflow lanes. Rounds of sixteen elements, the range tested once a round (wide.h).
 *
 * Measured (brenn_accuracy, full run): sExp2 HA 0.516 ulp, LA 1.00 ulp, EP 12.7 bits;
 * sExp10 HA 0.541 ulp, LA 1.03 ulp, EP 12.7 bits; dExp2 HA 0.71 ulp, LA 1.79 ulp, EP
 * 30.2 bits; dExp10 HA 0.71 ulp, LA 1.77 ulp, EP 30.2 bits (250000 samples). */
#include <bit>
#include <cstdint>
#include <iterator>

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

enum class Base { Two, Ten };

// The reduction of each base for the core's x*64/ln2 steps, and its logarithm in two
// parts (the tail for the scalar routine's exact product).
template <Base B>
struct BaseConst;
template <>
struct BaseConst<Base::Two> {
    static constexpr double kLn = 0x1.62e42fefa39efp-1, kLnLo = 0x1.abc9e3b39803fp-56;
};
template <>
struct BaseConst<Base::Ten> {
    static constexpr double kLn = 0x1.26bb1bbb55516p+1, kLnLo = -0x1.f48ad494ea3e9p-53;
    static constexpr double kInvStep = 0x1.a934f0979a371p+9; // 256/log10(2)
    // log10(2)/256, the head with 32 significant bits so that n*kStepHi is exact.
    static constexpr double kStepHi = 0x1.3441350ap-10, kStepLo = -0x1.0c0219dc1da99p-47;
};

// The range window on |x| and the limits of the scalar routine (overflow above kOver,
// +0 below kUnder) by precision and base.
template <class T, Base B>
struct Limits;
// In single the windows reach up to just below the last finite result (x from -126 to
// 127.99 for Exp2, -37.93 to 38.53 for Exp10, wide.h SplitWindow32): there n >> 7 (or n)
// is 128 with a significand below 1, 2^-14 below it at least, whose exponent field
// 126 + 128 still holds the result.
template <>
struct Limits<float, Base::Two> {
    static constexpr SplitWindow32 kWindow = {0x42FFFAE1u, 0xC2FC0000u};
    static constexpr float kOver = 128.0f, kUnder = -150.0f;
};
template <>
struct Limits<float, Base::Ten> {
    static constexpr SplitWindow32 kWindow = {0x421A1EB8u, 0xC217B818u};
    static constexpr float kOver = 0x1.344136p+5f, kUnder = -0x1.693c6ap+5f;
};
// In double by high words (wide.h SplitWindowHigh): Exp2 from just above -1022 to
// 1023.99, Exp10 from -307.6 (above the least normal result, 10^-307.65) to 308.25; m is
// at most 1023 at every level at the top, at least -1022 with a significand of 1 or more
// at the bottom.
template <>
struct Limits<double, Base::Two> {
    static constexpr SplitWindowHigh kWindow = {0x408FFFEBu, 0xC08FEFFFu};
    static constexpr double kOver = 1024.0, kUnder = -1075.0;
};
template <>
struct Limits<double, Base::Ten> {
    static constexpr SplitWindowHigh kWindow = {0x40734400u, 0xC0733999u};
    static constexpr double kOver = 0x1.34413509f79ffp+8, kUnder = -0x1.439b746e36b52p+8;
};

// The double forms on the table of 256 (exp_core256.h): n = round(256x / log_B(2)),
// d = x - n*log_B(2)/256 (exact for Exp2), p(d) ~ B^d - 1 fitted in the function's own
// base, so that no product with ln B rounds on the way, and
// B^x = 2^m*(Thi + (Thi*p + Tlo)). Degree 4 (tools/explog/exp_double256.sollya, 2^-48
// relative, of a p below 2^-9.5), evaluated as d*((c1 + c2*d) + d^2*(c3 + c4*d)) for
// Exp10 and as d*(c1 + d*(c2 + d*(c3 + c4*d))) for Exp2.
template <Base B>
struct DoublePoly;
template <>
struct DoublePoly<Base::Two> {
    static constexpr double kC[] = {0x1.62e42fefa39d9p-1, 0x1.ebfbdff82c5cp-3,
                                    0x1.c6b0902d49e61p-5, 0x1.3b2ab701a9219p-7};
};
template <>
struct DoublePoly<Base::Ten> {
    static constexpr double kC[] = {0x1.26bb1bbb55503p1, 0x1.53524c73cea8ap1, 0x1.04705aafb4fcfp1,
                                    0x1.2bd760a97afap0};
};

template <Base B>
inline __m128d CoreOf(__m128d x) {
    using C = BaseConst<B>;
    __m128d t, d;
    if constexpr (B == Base::Two) {
        // The shifter scaled by 2^-8: its last place is 2^-8, so x + shifter leaves
        // round(256x) in the low bits, the same bits as 256x + kShifter, with no product,
        // and d = x - (t - shifter) exactly.
        const __m128d shifter = Set<double>(Format<double>::kShifter * 0x1p-8);
        t = Add(x, shifter);
        d = Sub(x, Sub(t, shifter));
    } else {
        const __m128d shifter = Set<double>(Format<double>::kShifter);
        t = Add(Mul(x, Set<double>(C::kInvStep)), shifter);
        __m128d n = Sub(t, shifter);
        d = Sub(Sub(x, Mul(n, Set<double>(C::kStepHi))), Mul(n, Set<double>(C::kStepLo)));
    }
    // Exp2 by Horner's rule (its exact reduction leaves the chain short: one operation
    // fewer), Exp10 by Estrin's scheme after its longer reduction.
    __m128d p = Mul(d, B == Base::Two ? Horner(d, DoublePoly<B>::kC) : Estrin(d, DoublePoly<B>::kC));
    // Inside the windows y*2^m is normal: m goes into the exponent field by an integer
    // addition.
    return ScaleByLowWord<8>(ExpJoin256(t, p), t);
}
// The single forms run in single: n = round(128*x/log_B(2)) by a shifter whose bits end
// in sixteen zeros, T = 2^((n & 127)/128) from the table (a single high part and the rest
// relative to it), r the rest of x in base B, |r| <= log_B(2)/256, p ~ B^r - 1, and
// B^x = 2^(n >> 7) * (T + T*(Tl + p)), the power of two added to the exponent field.
// Inside the range windows the result is normal, so the integer addition is the scaling.
// Polynomials by tools/explog/exp2_10_single.sollya (degree 2, 2^-30.1 absolute, a
// sixtieth of the last place at most): with the final rounding the kernels stay near
// 0.5 ulp (Exp2 0.516, Exp10 0.55 with its step's rounding).
template <Base B>
struct SingleCore;
template <>
struct SingleCore<Base::Two> {
    // 1.375 * 2^16: its last place is 2^-7, so x + kShifter leaves 128*x rounded in the
    // low bits, and r = x - (t - kShifter) exactly.
    static constexpr float kShifter = 0x1.6p+16f;
    static constexpr float kC[] = {0x1.62e446p-1f, 0x1.ebfbf4p-3f};
};
template <>
struct SingleCore<Base::Ten> {
    // 1.375 * 2^23, whose bits end in seven zeros too; 128*log2(10), and log10(2)/128 in
    // two parts, the head of 10 bits: for |n| below 2^14 n*head and x - n*head are exact,
    // and n*lo, near 0.03 at most, rounds by 2^-30 (a twentieth of an ulp).
    static constexpr float kShifter = 0x1.6p+23f;
    static constexpr float kInvStep = 0x1.a934fp+8f;
    static constexpr float kStep[] = {0x1.348p-9f, -0x1.f657bp-20f};
    static constexpr float kC[] = {0x1.26bb2ep1f, 0x1.53525ap1f};
};

// The shifted t (x + shifter for Exp2, whose last place is then the step; x*C::kInvStep +
// shifter for Exp10) and the rest of x in base B: exact for Exp2, for Exp10 the step
// subtracted n times in the parts of C::kStep.
template <Base B, class C, class V>
inline V RestOf(V x, V shifter, V& t) {
    using T = ElemOf<V>;
    if constexpr (B == Base::Two) {
        t = Add(x, shifter);
        return Sub(x, Sub(t, shifter));
    } else {
        t = Add(Mul(x, Set<T>(C::kInvStep)), shifter);
        V n = Sub(t, shifter);
        V r = Sub(x, Mul(n, Set<T>(C::kStep[0])));
        for (size_t i = 1; i < std::size(C::kStep); ++i)
            r = Sub(r, Mul(n, Set<T>(C::kStep[i])));
        return r;
    }
}

// LA (WithLow false) takes the table's high part alone, T + T*p: its rounding, half an
// ulp at most, joins the result's (one operation fewer than HA).
template <Base B, bool WithLow = true>
inline __m128 CoreOf(__m128 x) {
    using C = SingleCore<B>;
    __m128 t;
    __m128 r = RestOf<B, C>(x, Set<float>(C::kShifter), t);
    __m128 tv, tl;
    GatherPairs(single::expTable128, AsInt(t), 0x7F, tv, tl);
    __m128 p = Mul(r, Horner(r, C::kC));
    __m128 y = Add(Mul(WithLow ? Add(p, tl) : p, tv), tv);
    // (bits(t) >> 7) << 23 is floor(n/128) << 23: the shifter's bits leave the word.
    static_assert(((std::bit_cast<uint32_t>(C::kShifter) >> 7) << 23) == 0);
    return ScaleByLowWord<7>(y, t);
}

// Without a table (single EP): n = round(x) by the format's shifter, f = x - n exactly,
// and 2^x = 2^n*(1 + f*q(f)), q's cubic by Horner's rule (tools/explog/exp2_10_notable.sollya,
// 2^-13); Exp10 EP as Exp2 EP of x*log2(10), the product rounded (2^-18 of the exponent,
// 2^-18.5 of the result).
template <class T, Base B>
struct NoTable;
template <>
struct NoTable<float, Base::Two> {
    static constexpr float kEP[] = {0x1.62dfa4p-1f, 0x1.f013ecp-3f, 0x1.ca909ap-5f};
};
template <>
struct NoTable<float, Base::Ten> {
    static constexpr float kLog2Ten = 0x1.a934fp1f;
};
template <class V, class T, size_t N>
inline V Exp2NoTable(V x, const T (&c)[N]) {
    V t;
    V r = RestOf<Base::Two, NoTable<T, Base::Two>>(x, Set<T>(Format<T>::kShifter), t);
    V y = Add(Set<T>(1), Mul(r, Horner(r, c)));
    return ScaleByLowWord<0>(y, t);
}
// Double LA on the one-part table of 1024: n = round(N*x/log_B(2)) (N = 2^Log2N), d the
// rest of x in base B, |d| <= log_B(2)/(2N), B^x = 2^(n >> Log2N)*(T + T*p(d)) with T =
// 2^((n & (N-1))/N) rounded to double and p(d) = d*(c1 + c2*d + c3*d^2), by
// tools/explog/exp2_10_double.sollya (2^-53; the table's rounding and the last two
// roundings make the error, as in dExp LA). For Exp2 d is exact (the shifter scaled by
// 2^-Log2N); Exp10 takes the step in two parts, the head of 32 bits (n*head exact).
// Double EP is 2^(x*log2(B)) on the table of 128 (exp_core.h Exp2Table128).
template <Base B, int Log2N>
struct OnePart;
template <>
struct OnePart<Base::Two, 10> {
    static constexpr double kC[] = {0x1.62e42fefa39fp-1, 0x1.ebfbe0397248cp-3,
                                    0x1.c6b08d503cea5p-5};
};
template <>
struct OnePart<Base::Ten, 10> {
    static constexpr double kInvStep = 0x1.a934f0979a371p11;
    static constexpr double kStep[] = {0x1.3441350ap-12, -0x1.0c0219dc1da99p-49};
    static constexpr double kC[] = {0x1.26bb1bbb55516p1, 0x1.53524ca0d3802p1,
                                    0x1.047059172c3a9p1};
};

// T for the two lanes of t (n in the low word): one load a lane.
template <int Log2N>
inline __m128d OnePartRows(__m128d t) {
    static_assert(Log2N == 10);
    double lane0 = expTable1024[LowWord<0>(AsInt(t)) & 1023];
    double lane1 = expTable1024[LowWord<1>(AsInt(t)) & 1023];
    return SetLanes(lane0, lane1);
}

template <Base B, int Log2N>
inline __m128d OnePartOf(__m128d x) {
    using C = OnePart<B, Log2N>;
    constexpr double kScale = B == Base::Two ? 1.0 / (1 << Log2N) : 1.0;
    __m128d t;
    __m128d d = RestOf<B, C>(x, Set<double>(Format<double>::kShifter * kScale), t);
    __m128d tv = OnePartRows<Log2N>(t);
    __m128d p = Mul(d, Horner(d, C::kC));
    // Inside the windows the result is normal: m goes into the exponent field by an
    // integer addition.
    return ScaleByLowWord<Log2N>(Add(tv, Mul(tv, p)), t);
}

// log2(10) for double EP, which takes 2^(x*log2(10)) (exp_core.h Exp2Table128).
constexpr double kLog2Ten = 0x1.a934f0979a371p+1;

// The form of a level: single HA and double HA on the cores with two-part tables,
// single LA on the single core's high parts, double LA and EP on the one-part tables,
// single EP without a table.
template <Base B, Level L, class V>
inline V ValueOf(V x) {
    using T = ElemOf<V>;
    if constexpr (L == Level::HA)
        return CoreOf<B>(x);
    else if constexpr (sizeof(T) == 4 && L == Level::LA)
        return CoreOf<B, false>(x);
    else if constexpr (sizeof(T) == 8 && L == Level::EP)
        return Exp2Table128(B == Base::Two ? x : Mul(x, Set<double>(kLog2Ten)));
    else if constexpr (sizeof(T) == 8)
        return OnePartOf<B, 10>(x);
    else if constexpr (B == Base::Ten)
        return Exp2NoTable(Mul(x, Set<float>(NoTable<T, B>::kLog2Ten)), NoTable<T, Base::Two>::kEP);
    else
        return Exp2NoTable(x, NoTable<T, B>::kEP);
}

// e^(x*c) for the scalar routines, with the product x*c carried in two parts.
inline double ExpOfProduct(double x, double c, double cl) {
    double h, l;
    TwoProduct(x, c, h, l);
    return ExpScalarCore(h, l + x * cl);
}

template <class Tp, Base B, Level L>
struct ExpBaseBody {
    using T = Tp;
    using V = Vec<T>;
    using K = Limits<T, B>;
    static constexpr const char* kName =
        B == Base::Two ? ZAR_ERROR_NAME_OF(T, Exp2) : ZAR_ERROR_NAME_OF(T, Exp10);
    static constexpr auto kWindow = K::kWindow;
    static constexpr int kRound = 16;
    static int EvalWide(const V* x, V* y) { return EvalTestOnce<ExpBaseBody>(x, y); }
    static V Value(V x) { return ValueOf<B, L>(x); }
    static V Eval(V x, V& special) {
        special = RangeTest(x, kWindow);
        x = IfThenZeroElse(special, x); // special lanes run on 0: no flags of their own
        return ValueOf<B, L>(x);
    }
    static int Scalar(const T* a, T* y) {
        return ExpScalarFinish<T>(*a, y, K::kOver, K::kUnder, [](T v) {
            return T(ExpOfProduct(v, BaseConst<B>::kLn, BaseConst<B>::kLnLo));
        });
    }
    static int FixNoError(const V* x, V* y, int bits) {
        return FixExpLimits<T>(x, y, bits, K::kOver, K::kUnder);
    }
};

} // namespace
} // namespace brenn::vm

using brenn::vm::Level;

template <class T, Level L>
using Exp2Body = brenn::vm::ExpBaseBody<T, brenn::vm::Base::Two, L>;
template <class T, Level L>
using Exp10Body = brenn::vm::ExpBaseBody<T, brenn::vm::Base::Ten, L>;

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, Exp2, Unary, Exp2Body)
BRENN_FLAT_LEVEL_KERNELS(s, Exp10, Unary, Exp10Body)
BRENN_FLAT_LEVEL_KERNELS(d, Exp2, Unary, Exp2Body)
BRENN_FLAT_LEVEL_KERNELS(d, Exp10, Unary, Exp10Body)
}
