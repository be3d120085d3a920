/* ExpInt1, single and double: E1(x), the exponential integral. Double LA and HA is one
 * kernel, element by element through the scalar routine below in x87 extended; the EP
 * slot of both precisions and the LA and HA slot of single are vector kernels on double
 * lanes (expint1_vec.h) that leave to the scalar routine only the lanes whose argument
 * is not positive or lies beyond the lanes' limit (82 single, where results stay normal;
 * 724 double, the vector form giving the denormal results from about 701.8 on and the
 * frame their status 4). The scalar routine works in a wider
 * format: x87 extended for double, double for single (the C library's log and exp).
 *
 *   0 < x <= 1: E1(x) = -gamma - ln x + x S(x), S the exponential integral's own series
 *   (21 terms in extended, 12 in double); E1 is at least 0.219 here, so the logarithm's
 *   absolute error stays small next to it, also where ln x is near 0; in extended,
 *   x in [0.96875, 1.0625] takes a polynomial of its own about 1.015625 instead.
 *   x > 1: E1(x) = e^-x t G(t), t = 1/x, G(t) = x e^x E1(x) by its Taylor polynomial
 *   about the centre of t's cell (16 cells a binade, t down to 2^-10; 14 terms in
 *   extended, 7 in double). Both sets of constants come from tools/gamma/gen_expint1.py.
 *   Beyond 750 (110 in single) the result is below half the smallest denormal: +0.
 *   A result below the smallest normal reports an underflow, status 4.
 *   x < 0 (and -inf) is outside the domain: NaN, status 1; +-0 is the pole: +inf,
 *   status 2; +inf gives +0; NaN comes back quieted.
 * The kernels run the x87 unit at 64-bit precision, rounding to nearest, and put the
 * caller's control word back when they leave; the element kernel does not touch the
 * MXCSR, the vector ones set it by the common entry rule. */
#include <limits>
#include <math.h>
#include <stdint.h>
#include <string.h>

#include "frame/kernels.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/gamma/each.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/gamma/expint1_table.h"
#include "vecmath/gamma/expint1_vec.h"
#include "vecmath/gamma/gamma_core.h"

namespace brenn::vm {
namespace {

// The extended constants as doubles (ext_const.h): the series' terms from x^5 on and the
// cell polynomials' from v^3 on are below 2^-62 of E1 with their coefficients rounded to
// double.
constexpr auto kSeriesP = gamma::SplitPoly<5>(gamma::kExpInt1SeriesL);
constexpr auto kTailP = gamma::SplitPolys<3>(gamma::kExpInt1TailL);
constexpr gamma::Ext2 kEulerGamma2 = gamma::Split2(gamma::kEulerGammaL);

// E1 on [0.96875, 1.0625], where ln x is near 0: a polynomial in x - 1.015625 (exact), by
// tools/gamma/expint1_near_one.sollya (degree 12, 2^-64.8 relative), fitted with the
// coefficients from the fourth on in double.
constexpr long double kNearOneL[13] = {
    0x1.b5b52dc70beebfc8p-3L, -0x1.6d299d682a5e7842p-2L, 0x1.6a5a8688d755f67ap-2L,
    -0x1.2ab68ad4ddeddp-2L,   0x1.d79b3e4362cf5p-3L,     -0x1.79911936db374p-3L,
    0x1.36d00f569ed44p-3L,    -0x1.06750aa307aaep-3L,    0x1.c444c5df3a8c8p-4L,
    -0x1.8bd505aab1a37p-4L,   0x1.5f52091a079fcp-4L,     -0x1.3bcd21ec0138dp-4L,
    0x1.9f7ab8a5d382ep-5L};
constexpr auto kNearOneP = gamma::SplitPoly<3>(kNearOneL);

[[gnu::noinline]] double NearOneOf(double x) {
    return static_cast<double>(gamma::Poly(static_cast<long double>(x) - 1.015625L, kNearOneP));
}

// -gamma - ln x + x S(x) for 0 < x <= 1.
[[gnu::always_inline]] inline long double NearZero(long double x) {
    return (x * gamma::Poly(x, kSeriesP) - gamma::Join(kEulerGamma2)) - gamma::Log(x);
}
inline double NearZero(double x) {
    double s = gamma::Poly(x, gamma::kExpInt1Series);
    return (x * s - gamma::kEulerGamma) - log(x);
}

// The row of t in [2^-10, 1) and that cell's centre.
inline int CellOf(double t, double& centre) {
    uint64_t b;
    memcpy(&b, &t, sizeof b);
    int e = static_cast<int>(b >> 52) - 1023;
    int j = static_cast<int>((b >> 48) & 15);
    uint64_t c = (b & ~((uint64_t(1) << 48) - 1)) | (uint64_t(1) << 47);
    memcpy(&centre, &c, sizeof c);
    return 16 * (-1 - e) + j;
}

// e^-x t G(t) for 1 < x <= 750.
[[gnu::always_inline]] inline long double Tail(long double x) {
    // The cell of t rounded to double: where that crosses a cell's edge, t lies within
    // 2^-53 of it and the neighbour's polynomial serves as well.
    long double t = 1 / x;
    double c;
    int row = CellOf(static_cast<double>(t), c);
    return gamma::ext::Exp(-x) * (t * gamma::Poly(t - c, kTailP.row[row]));
}
inline double Tail(double x) {
    double t = 1 / x, c;
    int row = CellOf(t, c);
    return exp(-x) * (t * gamma::Poly(t - c, gamma::kExpInt1Tail[row]));
}

// The two forms as functions of their own, argument and result in registers (in one
// routine the x87 register stack is spilled at the join as 80-bit stores and reloads).
template <class T>
[[gnu::noinline]] T NearZeroOf(T x) {
    return static_cast<T>(NearZero(gamma::Wide<T>(x)));
}
template <class T>
[[gnu::noinline]] T TailOf(T x) {
    return static_cast<T>(Tail(gamma::Wide<T>(x)));
}

template <class T>
constexpr T kZeroBeyond = sizeof(T) == 8 ? T(750) : T(110);

template <class T>
int ExpInt1Of(T x, T* y) {
    constexpr T kTiny = std::numeric_limits<T>::min();
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (x < 0) {
        *y = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    if (x == 0) {
        *y = Keep(T(1)) / Keep(T(0));
        return status::kSingularity;
    }
    if (x > kZeroBeyond<T>) {
        if (__builtin_isinf(x)) {
            *y = 0;
            return status::kNone;
        }
        *y = Keep(kTiny) * kTiny;
        return status::kUnderflow;
    }
    T v;
    if constexpr (sizeof(T) == 8)
        v = x >= 0.96875 && x <= 1.0625 ? NearOneOf(x) : x <= 1 ? NearZeroOf(x) : TailOf(x);
    else
        v = x <= 1 ? NearZeroOf(x) : TailOf(x);
    *y = v;
    return v < kTiny ? status::kUnderflow : status::kNone;
}

template <class Tp>
struct ExpInt1Body {
    using T = Tp;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, ExpInt1);
    static constexpr CsrRule kCsr = CsrRule::Untouched;
    static constexpr X87Rule kX87 = X87Rule::Extended;
    static int Scalar(const T* a, T* y) { return ExpInt1Of(*a, y); }
};

// The lanes of the vector form (expint1_vec.h): the argument positive (normal in double,
// any in single, whose lanes widen to normal doubles), tested on the bits: single
// (0, 82], results normal; double [2^-1022, 724], results denormal from about 701.8 on,
// whose underflow (status 4) the frame reports.
template <class T>
constexpr LaneRange<T> VectorLanes() {
    using U = decltype(LaneRange<T>::limit);
    const U lo = sizeof(T) == 4 ? U(1) : U(0x0010000000000000ull);
    const U hi = sizeof(T) == 4 ? U(0x42A40000u) : U(0x4086A00000000000ull);
    const U sign = U(1) << (8 * sizeof(U) - 1);
    return {U(~U(0)), U(sign - lo), U(sign + (hi - lo))};
}

// The vector kernels: the EP slot of both precisions (grade Fine in double, Coarse in
// single) and the LA and HA slot of single (Fine, rounded once from double lanes).
template <class Tp, ExpInt1Grade G>
struct ExpInt1VecBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, ExpInt1);
    static constexpr X87Rule kX87 = X87Rule::Extended; // for the double element routine
    static constexpr bool kUnderflowLanes = sizeof(T) == 8;
    static V Eval(V x, V& special) {
        special = RangeTest(x, VectorLanes<T>());
        V xs = IfThenElse(special, Set<T>(T(0.75)), x);
        if constexpr (sizeof(T) == 4)
            return Narrow(ExpInt1Lanes<G>(WidenLower(xs)), ExpInt1Lanes<G>(WidenUpper(xs)));
        else
            return ExpInt1Lanes<G>(xs);
    }
    static int Scalar(const T* a, T* y) { return ExpInt1Of(*a, y); }
};

} // namespace
} // namespace brenn::vm

extern "C" {
ZAR_KERNEL_OF(s, ExpInt1, LaHa, Unary,
              brenn::vm::ExpInt1VecBody<float, brenn::vm::ExpInt1Grade::Fine>)
ZAR_KERNEL_OF(s, ExpInt1, EP, Unary,
              brenn::vm::ExpInt1VecBody<float, brenn::vm::ExpInt1Grade::Coarse>)
ZAR_EACH_KERNEL(d, ExpInt1, LaHa, brenn::vm::ExpInt1Body)
ZAR_KERNEL_OF(d, ExpInt1, EP, Unary,
              brenn::vm::ExpInt1VecBody<double, brenn::vm::ExpInt1Grade::Fine>)
}
