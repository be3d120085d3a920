/* Exp2 and Exp10, single and double, one kernel for every level.
 *
 * The layout, in both precisions: n = round(N*x/log_B(2)) by a shifter, no conversion
 * instruction, T = 2^((n & (N-1))/N) from a two-part table, r the rest of x in base B,
 * p = r*(c1 + c2*r + ...) ~ B^r - 1 in the function's own base, and
 * B^x = 2^(n >> log2 N)*(T + ...), the power of two added to the exponent field (inside
 * the range windows every result is normal, so that the integer addition is the
 * scaling). Exp2 takes N = 64 and a shifter whose last place is 1/64, so that r is
 * exact; Exp10 takes N = 128, 128*log2(10) and log10(2)/128 in two parts.
 * Single: the table's high part T and the rest Tl relative to it, (p + Tl)*T + T, and
 * degree 2. Double: the high part and the rounded rest, Thi + (Thi*p + Tlo), degree 5
 * (degree 2 would need a table of 2^18 rows for the double HA bound).
 * Range tests on |x|: above 126.0 (Exp2) or 37.9297791 (Exp10) in single, below 1022
 * (Exp2) or 307.6526 (Exp10) by the high word in double; the scalar routines take the
 * rest with the limits of each format: overflow (reported), +0 and denormal results
 * (underflow). Error mode 0x2000 blends overflow and underflow lanes. Rounds of sixteen
 * elements, the range tested once a round (wide.h).
 *
 * Measured (brenn_accuracy, 2*10^6 samples): see the commit that introduced them. */
#include <bit>
#include <cstdint>
#include <iterator>

#include "frame/kernels.h"
#include "vecmath/explog/exp_core.h"
#include "vecmath/explog/exp_fixup.h"
#include "vecmath/explog/exp_scalar.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {
namespace {

enum class Base { Two, Ten };

// ln B in two parts, for the scalar routine's exact product.
template <Base B>
struct BaseConst;
template <>
struct BaseConst<Base::Two> {
    static constexpr double kLn = 0x1.62e42fefa39efp-1, kLnLo = 0x1.abc9e3b39803fp-56;
};
template <>
struct BaseConst<Base::Ten> {
    static constexpr double kLn = 0x1.26bb1bbb55516p+1, kLnLo = -0x1.f48ad494ea3e9p-53;
};

// The range window on |x| and the limits of the scalar routine (overflow above kOver,
// +0 below kUnder) by precision and base.
template <class T, Base B>
struct Limits;
template <>
struct Limits<float, Base::Two> {
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x42FC0000u}; // 126.0
    static constexpr float kOver = 128.0f, kUnder = -150.0f;
};
template <>
struct Limits<float, Base::Ten> {
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x4217B818u}; // 37.9297791
    static constexpr float kOver = 0x1.344136p+5f, kUnder = -0x1.693c6ap+5f;
};
// In double on the high word of |x|: below 1022 (0x408FF000) and below 307.652655
// (0x40733A71), where 10^-x is the least normal.
template <>
struct Limits<double, Base::Two> {
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x408FEFFFu};
    static constexpr double kOver = 1024.0, kUnder = -1075.0;
};
template <>
struct Limits<double, Base::Ten> {
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x40733A70u};
    static constexpr double kOver = 0x1.34413509f79ffp+8, kUnder = -0x1.439b746e36b52p+8;
};

// The steps of each precision and base: the shifter, for Exp10 N/log2(10)... and the step
// log10(2)/N in parts (the head short enough that n times it is exact), the polynomial
// c1.., the table and log2 N.
template <class T, Base B>
struct Steps;
template <>
struct Steps<float, Base::Two> {
    static constexpr float kShifter = 0x1.8p+17f;                   // 196608.0
    static constexpr float kC[] = {0x1.62e486p-1f, 0x1.ebfbf8p-3f}; // 0.693149745, 0.240226686
    static constexpr int kLog2N = 6;
    static constexpr const float (&kTable)[64][2] = single::expTable64;
};
template <>
struct Steps<float, Base::Ten> {
    static constexpr float kShifter = 0x1.8p+23f;                    // 12582912.0
    static constexpr float kInvStep = 0x1.a934fp+8f;                 // 425.206787
    static constexpr float kStep[] = {0x1.348p-9f, -0x1.f657bp-20f}; // 0x3B1A4000, 0xB5FB2BD8
    static constexpr float kC[] = {0x1.26bb2ep+1f, 0x1.535252p+1f};  // 2.30258727, 2.65094972
    static constexpr int kLog2N = 7;
    static constexpr const float (&kTable)[128][2] = single::expTable128;
};
// Double: the polynomials by tools/explog/exp2_10_double.sollya (degree 5, relative error
// of 1 + p 2^-59.25 for Exp2 on |r| <= 1/128 and 2^-63 for Exp10 on |r| <= log10(2)/256).
template <>
struct Steps<double, Base::Two> {
    static constexpr double kShifter = 0x1.8p+52 * 0x1p-6;
    static constexpr double kC[] = {0x1.62e42fefa39efp-1, 0x1.ebfbdff82a2c3p-3,
                                    0x1.c6b08d707d06dp-5, 0x1.3b2ad318a479fp-7,
                                    0x1.5d86c1b63892bp-10};
    static constexpr int kLog2N = 6;
    static constexpr const double (&kTable)[64][2] = expTable64;
};
template <>
struct Steps<double, Base::Ten> {
    static constexpr double kShifter = 0x1.8p+52;
    static constexpr double kInvStep = 0x1.a934f0979a371p+8;                     // 128/log10(2)
    static constexpr double kStep[] = {0x1.3441350ap-9, -0x1.0c0219dc1da99p-46}; // head 32 bits
    static constexpr double kC[] = {0x1.26bb1bbb55516p+1, 0x1.53524c73ce8eep+1,
                                    0x1.0470591c9b9fap+1, 0x1.2bd7673f39d41p+0,
                                    0x1.1457f0fb90cc4p-1};
    static constexpr int kLog2N = 7;
    static constexpr const double (&kTable)[128][2] = expTable128;
};

// The shifted t (x + shifter for Exp2, whose last place is then the step; x*C::kInvStep +
// shifter for Exp10) and the rest of x in base B: exact for Exp2, for Exp10 the step
// subtracted n times in the parts of C::kStep.
template <Base B, class C, class V>
inline V RestOf(V x, V& t) {
    using T = ElemOf<V>;
    const V shifter = Set<T>(C::kShifter);
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

template <Base B>
inline __m128 ValueOf(__m128 x) {
    using C = Steps<float, B>;
    __m128 t;
    __m128 r = RestOf<B, C>(x, t);
    __m128 tv, tl;
    GatherPairs(C::kTable, AsInt(t), (1 << C::kLog2N) - 1, tv, tl);
    __m128 p = Mul(r, Add(Mul(Set<float>(C::kC[1]), r), Set<float>(C::kC[0])));
    __m128 y = Add(Mul(Add(p, tl), tv), tv);
    // (bits(t) >> log2 N) << 23 is floor(n/N) << 23: the shifter's bits leave the word.
    static_assert(((std::bit_cast<uint32_t>(C::kShifter) >> C::kLog2N) << 23) == 0);
    return ScaleByLowWord<C::kLog2N>(y, t);
}

// Double in its steps (the rest and t, the rows, the polynomial, the sum), so that a
// round can take each over all its registers.
template <Base B>
inline __m128d PolyOf(__m128d r) {
    return Mul(r, Horner(r, Steps<double, B>::kC));
}
template <Base B>
inline __m128d SumOf(__m128d t, __m128d th, __m128d tl, __m128d p) {
    return ScaleByLowWord<Steps<double, B>::kLog2N>(Add(th, Add(Mul(th, p), tl)), t);
}
template <Base B>
inline void RowsOf(__m128d t, __m128d& th, __m128d& tl) {
    using C = Steps<double, B>;
    GatherPairs(C::kTable, AsInt(t), (1 << C::kLog2N) - 1, th, tl);
}
template <Base B>
inline __m128d ValueOf(__m128d x) {
    __m128d t;
    __m128d r = RestOf<B, Steps<double, B>>(x, t);
    __m128d th, tl;
    RowsOf<B>(t, th, tl);
    return SumOf<B>(t, th, tl, PolyOf<B>(r));
}
// A double round in two stages (Exp10's): every register's t, rest and rows, the rows
// held apart (Opaque) where the compiler would sink them into their register's sum, then
// the polynomials and the sums. Exp2, whose rest is one subtraction, measured slower so
// (2.92 -> 3.18 ticks), and with the rest held apart as well (2.93 -> 2.98): it takes
// PairsRound below.
template <Base B, int N>
inline void StagedRound(const __m128d* x, __m128d* y) {
    __m128d t[N], r[N], th[N], tl[N], p[N];
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k) {
        r[k] = RestOf<B, Steps<double, B>>(x[k], t[k]);
        RowsOf<B>(t[k], th[k], tl[k]);
        th[k] = Opaque(th[k]);
        tl[k] = Opaque(tl[k]);
    }
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        p[k] = PolyOf<B>(r[k]);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        y[k] = SumOf<B>(t[k], th[k], tl[k], p[k]);
}

// Exp2's round in groups of two registers, each group in stages: the t and rest of both,
// held apart (Opaque), then their rows, polynomials and sums (2.95 -> 2.85 ticks; groups
// of four with the rows held 2.87; Exp10 measured no faster so than in its two stages).
template <Base B, int N>
inline void PairsRound(const __m128d* x, __m128d* y) {
    constexpr int G = 2;
#pragma GCC unroll 8
    for (int g = 0; g < N; g += G) {
        __m128d t[G], r[G], th[G], tl[G], p[G];
#pragma GCC unroll 8
        for (int k = 0; k < G; ++k) {
            r[k] = RestOf<B, Steps<double, B>>(x[g + k], t[k]);
            r[k] = Opaque(r[k]);
            t[k] = Opaque(t[k]);
        }
#pragma GCC unroll 8
        for (int k = 0; k < G; ++k)
            RowsOf<B>(t[k], th[k], tl[k]);
#pragma GCC unroll 8
        for (int k = 0; k < G; ++k)
            p[k] = PolyOf<B>(r[k]);
#pragma GCC unroll 8
        for (int k = 0; k < G; ++k)
            y[g + k] = SumOf<B>(t[k], th[k], tl[k], p[k]);
    }
}

// e^(x*c) for the scalar routines, with the product x*c carried in two parts.
inline double ExpOfProduct(double x, double c, double cl) {
    double h, l;
    TwoProduct(x, c, h, l);
    return ExpScalarCore(h, l + x * cl);
}

// The band above the single window that the scalar routine gives at status 0 (wide.h):
// up to the last argument whose result is finite, 127.999992 (Exp2) and 38.5318375 (Exp10).
template <class T, Base B>
struct ExpBaseBand {};
template <Base B>
struct ExpBaseBand<float, B> {
    static constexpr Band32 kBand = {int32_t(Limits<float, B>::kWindow.limit),
                                     B == Base::Two ? 0x42FFFFFF : 0x421A209A};
};

template <class Tp, Base B, Level L>
struct ExpBaseBody : ExpBaseBand<Tp, B> {
    using T = Tp;
    using V = Vec<T>;
    using K = Limits<T, B>;
    static constexpr const char* kName =
        B == Base::Two ? ZAR_ERROR_NAME_OF(T, Exp2) : ZAR_ERROR_NAME_OF(T, Exp10);
    static constexpr auto kWindow = K::kWindow;
    static constexpr int kRound = 16;
    static int EvalWide(const V* x, V* y) { return EvalTestOnce<ExpBaseBody>(x, y); }
    static V Value(V x) { return ValueOf<B>(x); }
    static void ValueRound(const V* x, V* y)
        requires(sizeof(T) == 8)
    {
        if constexpr (B == Base::Ten)
            StagedRound<B, 16 / kLanes<T>>(x, y);
        else
            PairsRound<B, 16 / kLanes<T>>(x, y);
    }
    static V Eval(V x, V& special) {
        special = RangeTest(x, kWindow);
        x = IfThenElse(special, Zero<T>(), x); // special lanes run on 0: no flags of their own
        return ValueOf<B>(x);
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
BRENN_FLAT ZAR_KERNEL_OF(s, Exp2, All, Unary, Exp2Body<float, Level::HA>) BRENN_FLAT
    ZAR_KERNEL_OF(s, Exp10, All, Unary, Exp10Body<float, Level::HA>) BRENN_FLAT
    ZAR_KERNEL_OF(d, Exp2, All, Unary, Exp2Body<double, Level::HA>) BRENN_FLAT
    ZAR_KERNEL_OF(d, Exp10, All, Unary, Exp10Body<double, Level::HA>)
}
