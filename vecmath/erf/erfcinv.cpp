/* ErfcInv, the inverse complementary error function on (0, 2), and CdfNormInv, the
 * inverse normal distribution function on (0, 1): single and double, three levels each,
 * one template for both.
 *
 * Both come down to erfcinv(t) = (1 - t) P(t) on t in [2^-53, 1], the rows of ErfInv
 * (erfinv_rows.h):
 *   ErfcInv(x)    = (1 - x) P(t),              t = x below 1, 2 - x from 1 (exact);
 *   CdfNormInv(p) = sqrt(2) (2p - 1) P(t),     t = 2p below 1/2, 2(1 - p) from 1/2
 *                                              (exact), as -sqrt(2) erfcinv(2p).
 * The factor w is exact from x = 1/2 and p = 1/4 on; below, HA keeps its rounding error
 * (and sqrt(2)'s) as a second part, and LA and EP round it once. Single LA and EP run
 * on single lanes and the single rows, single HA in double on the widened lanes, as
 * ErfInv does.
 * CdfNormInv's centre, |p - 1/2| <= 0.425, takes a rational in (p - 1/2)^2 instead in
 * the double LA and the single HA (cdfnorminv_central.h), on double lanes; a register
 * reads the rows only for lanes outside the centre.
 * Lanes with t below 2^-53 (x below 2^-53, p below 2^-54), the ends, arguments outside
 * the domain and NaNs go to the scalar routine. Its tail, in the x87 extended format:
 * erfcinv(t) = s G(1/s), s = sqrt(-ln t), G by cells of 1/s (erfcinv_tail.h); ErfcInv
 * gives +infinity at 0 and -infinity at 2, CdfNormInv -infinity at 0 and +infinity at
 * 1, with status 2; outside the domain NaN with status 1; a NaN comes back quieted. */
#include <limits>
#include <type_traits>

#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/erf/cdfnorminv_central.h"
#include "vecmath/erf/erfcinv_tail.h"
#include "vecmath/erf/erfinv_rows.h"
#include "vecmath/erf/erfinv_rows_single.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/status.h"
#include "vecmath/gamma/ext_math.h"

namespace brenn::vm {
namespace {

enum class Inverse { Erfc, CdfNorm };

constexpr double kSqrt2Hi = 0x1.6a09e667f3bcdp+0, kSqrt2Lo = -0x1.bdd3413b26456p-54;
constexpr long double kSqrt2 = 1.41421356237309504880168872420969808L;

// erfcinv(t) for 0 < t < 2^-53 in the extended format (x87 precision at 64 bits).
inline long double ErfcInvTail(long double t) {
    long double s = __builtin_sqrtl(-gamma::ext::Log(t));
    long double u = 1 / s;
    int k = static_cast<int>((u - 1.0L / 32) * 128);
    k = k < 0 ? 0 : (k >= kErfcInvTailCells ? kErfcInvTailCells - 1 : k);
    long double v = u - (1.0L / 32 + (k + 0.5L) / 128);
    const long double* c = erfcInvTail[k];
    long double g = c[0];
    for (int j = 1; j <= kErfcInvTailDegree; ++j)
        g = g * v + c[j];
    return s * g;
}

// The function on double lanes of the domain's main part (t from 2^-53).
template <Inverse F, class T, Level L>
inline __m128d InverseDouble(__m128d x) {
    const __m128d one = Set<double>(1.0);
    if constexpr (F == Inverse::Erfc) {
        __m128d t = IfThenElse(Ge(x, one), Sub(Set<double>(2.0), x), x);
        __m128d wh = Sub(one, x);
        __m128d wl = Sub(Sub(one, wh), x);
        return ErfInvRowsAt<T, L, true>(t, wh, wl);
    } else {
        const __m128d half = Set<double>(0.5);
        __m128d m = IfThenElse(Ge(x, half), Sub(one, x), x);
        __m128d t = Add(m, m);
        __m128d a = Add(x, x);
        __m128d dh = Sub(a, one);
        if constexpr (L == Level::HA && sizeof(T) == 8) {
            __m128d dl = Sub(a, Add(dh, one));
            __m128d wh, wl;
            TwoProduct(dh, Set<double>(kSqrt2Hi), wh, wl);
            wl = Add(wl, Add(Mul(dh, Set<double>(kSqrt2Lo)), Mul(dl, Set<double>(kSqrt2Hi))));
            return ErfInvRowsAt<T, L, true>(t, wh, wl);
        } else {
            __m128d w = Mul(dh, Set<double>(kSqrt2Hi));
            return ErfInvRowsAt<T, L, false>(t, w, w);
        }
    }
}

// The same on single lanes, LA and EP, on the single rows (erfinv_rows_single.h): t is
// exact, and so is w from x = 1/2 and p = 1/4 on (rounded once below).
template <Inverse F, Level L>
inline __m128 InverseSingle(__m128 x) {
    const __m128 one = Set<float>(1.0f);
    if constexpr (F == Inverse::Erfc) {
        __m128 t = IfThenElse(Ge(x, one), Sub(Set<float>(2.0f), x), x);
        return ErfInvRowsSingleTimes<L>(t, Sub(one, x));
    } else {
        __m128 m = IfThenElse(Ge(x, Set<float>(0.5f)), Sub(one, x), x);
        __m128 w = Mul(Sub(Add(x, x), one), Set<float>(float(kSqrt2Hi)));
        return ErfInvRowsSingleTimes<L>(Add(m, m), w);
    }
}

// The slots that take the centre's rational (cdfnorminv_central.h), and its form there.
template <class T, Level L>
constexpr bool kCentralAt = (sizeof(T) == 8 && L == Level::LA) ||
                            (sizeof(T) == 4 && L == Level::HA);
template <class T>
using CentralOf = std::conditional_t<sizeof(T) == 8, CentralD8, CentralD4>;

// Single lanes through a double form, two at a time, rounded once.
template <class Form>
inline __m128 OnDoubleLanes(__m128 x, Form form) {
    return Narrow(form(WidenLower(x)), form(WidenUpper(x)));
}

// The lanes of the vector body: x in [2^-53, 2) for ErfcInv, p in [2^-54, 1) for
// CdfNormInv, tested on the bits (of a double's high word).
template <Inverse F, class T>
constexpr LaneRange<T> MainRange() {
    using U = decltype(LaneRange<T>::limit);
    U lo, hi;
    if constexpr (sizeof(T) == 4) {
        lo = F == Inverse::Erfc ? 0x25000000u : 0x24800000u;
        hi = F == Inverse::Erfc ? 0x3FFFFFFFu : 0x3F7FFFFFu;
    } else {
        lo = F == Inverse::Erfc ? 0x3CA0000000000000ull : 0x3C90000000000000ull;
        hi = F == Inverse::Erfc ? 0x3FFFFFFFFFFFFFFFull : 0x3FEFFFFFFFFFFFFFull;
    }
    const U sign = U(1) << (8 * sizeof(U) - 1);
    return {U(~U(0)), U(sign - lo), U(sign + (hi - lo))};
}

template <Inverse F, class Tp, Level L>
struct InverseBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr X87Rule kX87 = X87Rule::Extended;
    static constexpr const char* kName =
        F == Inverse::Erfc ? ZAR_ERROR_NAME_OF(T, ErfcInv) : ZAR_ERROR_NAME_OF(T, CdfNormInv);
    // Double in rounds of sixteen, the body inlined: the chains of eight registers overlap.
    static constexpr int kRound = sizeof(T) == 8 ? 16 : 8;
    [[gnu::flatten]] static int EvalWide(const V* x, V* y) {
        return EvalByRegister<InverseBody>(x, y);
    }
    static V Eval(V x, V& special) {
        special = RangeTest(x, MainRange<F, T>());
        // Special lanes run at 3/4 here, inside the rows, whatever they hold.
        V xs = IfThenElse(special, Set<T>(T(0.75)), x);
        auto rows = [](__m128d d) { return InverseDouble<F, T, L>(d); };
        if constexpr (F == Inverse::CdfNorm && kCentralAt<T, L>) {
            auto half = [&](__m128d d) { return CentralOrTails<CentralOf<T>>(d, rows); };
            if constexpr (sizeof(T) == 4)
                return OnDoubleLanes(xs, half);
            else
                return half(xs);
        } else if constexpr (sizeof(T) == 4 && L != Level::HA) {
            return InverseSingle<F, L>(xs);
        } else if constexpr (sizeof(T) == 4) {
            return OnDoubleLanes(xs, rows);
        } else {
            return rows(xs);
        }
    }
    static int Scalar(const T* a, T* y) {
        constexpr T inf = std::numeric_limits<T>::infinity();
        T x = *a;
        if (__builtin_isnan(x)) {
            *y = x + x;
            return status::kNone;
        }
        const T top = F == Inverse::Erfc ? T(2) : T(1);
        if (x == 0 || x == top) {
            *y = (x == 0) == (F == Inverse::Erfc) ? inf : -inf;
            return status::kSingularity;
        }
        if (x < 0 || x > top) {
            *y = std::numeric_limits<T>::quiet_NaN();
            return status::kDomain;
        }
        // Only the tail is left: x below 2^-53, p below 2^-54.
        if constexpr (F == Inverse::Erfc)
            *y = static_cast<T>(ErfcInvTail(x));
        else
            *y = static_cast<T>(-kSqrt2 * ErfcInvTail(2.0L * x));
        return status::kNone;
    }
};

template <class T, Level L>
using ErfcInvBody = InverseBody<Inverse::Erfc, T, L>;
template <class T, Level L>
using CdfNormInvBody = InverseBody<Inverse::CdfNorm, T, L>;

} // namespace
} // namespace brenn::vm

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, ErfcInv, Unary, brenn::vm::ErfcInvBody)
BRENN_FLAT_LEVEL_KERNELS(d, ErfcInv, Unary, brenn::vm::ErfcInvBody)
BRENN_FLAT_LEVEL_KERNELS(s, CdfNormInv, Unary, brenn::vm::CdfNormInvBody)
BRENN_FLAT_LEVEL_KERNELS(d, CdfNormInv, Unary, brenn::vm::CdfNormInvBody)
}
