/* ErfInv, the inverse error function, single and double, three levels each.
 *
 * erfinv(x) = x P(t) with t = 1 - |x| on the rows of erfinv_rows.h (t is exact from
 * |x| = 0.5 on; below, its rounding moves the result by a quarter of an ulp at most, P
 * being flat there): LA rounds x*P, HA (degree 10) forms it with the exact product
 * (0.5x ulp). Double EP: the cubic rows of 32 bytes (ErfInvCubic below). Single LA and EP run on single lanes, on the single rows
 * (erfinv_rows_single.h; t = 1 - |x| rounded below |x| = 1/2 moves P by a sixth of an
 * ulp at most); single HA in double on the widened lanes, on the EP rows. Lanes of |x| from 1, and NaNs, go to the scalar routine: +-1 give
 * +-infinity with status 2, |x| above 1 NaN with status 1, a NaN comes back quieted. */
#include <limits>

#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/erf/erfinv_rows.h"
#include "vecmath/erf/erfinv_rows_single.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/status.h"

namespace brenn::vm {
namespace {

template <class T, Level L>
inline __m128d ErfInvDouble(__m128d x) {
    __m128d t = Sub(Set<double>(1.0), Abs(x));
    return ErfInvRowsAt<T, L, false>(t, x, x);
}

// Double EP: t = 1 - min(|x|, 0x3FEFFFFFFFFFFFFF); the row by t's top 16 bits, c those
// bits cut by 0x3FFF000000000000 with the midpoint bit 0x0000800000000000 on them;
// v = t - c, P = ((A*v + B)*v + C)*v + D on the row (A, B, C, D); the result x*P. Lanes
// of |x| from 1 and NaNs are the scalar routine's; here they run on the limit's row.
inline __m128d ErfInvCubic(__m128d x) {
    __m128d t = Sub(Set<double>(1.0), Min(Abs(x), AsFloat(Set<uint64_t>(0x3FEFFFFFFFFFFFFFull))));
    I64x2 bits = AsInt(t);
    I64x2 row = Sub(ShiftRight<48>(bits), Set<int64_t>(kErfInvFirstRow));
    __m128d c = AsFloat(
        Or(And(bits, Set<uint64_t>(0x3FFF000000000000ull)), Set<uint64_t>(0x0000800000000000ull)));
    __m128d v = Sub(t, c);
    __m128d a, b, cc, d;
    LoadTransposed(erfInvRowsCubic[LowWord<0>(row)], erfInvRowsCubic[LowWord<1>(row)], a, b);
    LoadTransposed(erfInvRowsCubic[LowWord<0>(row)] + 2, erfInvRowsCubic[LowWord<1>(row)] + 2, cc,
                   d);
    __m128d p = Add(Mul(Add(Mul(Add(Mul(a, v), b), v), cc), v), d);
    return Mul(x, p);
}

template <class Tp, Level L>
struct ErfInvBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, ErfInv);
    // Double in rounds of sixteen, the body inlined: the chains of eight registers overlap.
    static constexpr int kRound = sizeof(T) == 8 ? 16 : 8;
    [[gnu::flatten]] static int EvalWide(const V* x, V* y) {
        return EvalByRegister<ErfInvBody>(x, y);
    }
    static V Eval(V x, V& special) {
        if constexpr (sizeof(T) == 8 && L == Level::EP) {
            special = RangeTest(x, LaneRange<T>{0x7FFFFFFFFFFFFFFFull, 0u, 0x3FEFFFFFFFFFFFFFull});
            return ErfInvCubic(x);
        }
        if constexpr (sizeof(T) == 4)
            special = RangeTest(x, LaneRange<T>{0x7FFFFFFFu, 0u, 0x3F7FFFFFu});
        else
            special = RangeTest(x, LaneRange<T>{0x7FFFFFFFFFFFFFFFull, 0u, 0x3FEFFFFFFFFFFFFFull});
        // Special lanes run at 0 here: no NaN or |x| >= 1 reaches the arithmetic.
        V xs = IfThenElse(special, Zero<T>(), x);
        if constexpr (sizeof(T) == 4 && L != Level::HA)
            return ErfInvRowsSingleTimes<L>(Sub(Set<float>(1.0f), Abs(xs)), xs);
        else if constexpr (sizeof(T) == 4)
            return Narrow(ErfInvDouble<T, L>(WidenLower(xs)), ErfInvDouble<T, L>(WidenUpper(xs)));
        else
            return ErfInvDouble<T, L>(xs);
    }
    static int Scalar(const T* a, T* y) {
        T x = *a;
        if (__builtin_isnan(x)) {
            *y = x + x;
            return status::kNone;
        }
        if (x == T(1) || x == T(-1)) {
            *y = x * std::numeric_limits<T>::infinity();
            return status::kSingularity;
        }
        *y = std::numeric_limits<T>::quiet_NaN();
        return status::kDomain;
    }
};

} // namespace
} // namespace brenn::vm

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, ErfInv, Unary, brenn::vm::ErfInvBody)
BRENN_FLAT_LEVEL_KERNELS(d, ErfInv, Unary, brenn::vm::ErfInvBody)
}
