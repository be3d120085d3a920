/* ErfInv, the inverse error function, single and double, three levels each.
 *
 * With t = 1 - |x| (exact from |x| = 0.5 on; below, t's rounding moves the result by a
 * quarter of an ulp at most, P being flat there), the row of erfinv_tables.h is picked
 * by the top 16 bits of t (exponent and four mantissa bits) and its polynomial taken in
 * v = t - c, c those bits with the midpoint bit 0x0000800000000000 on them; then
 * erfinv(x) = x*P. EP and LA evaluate P plainly (degrees 5 and 9) and round x*P; HA
 * (degree 10) adds the constant term with its remainder in two parts and forms x*P
 * with the exact product (0.5x ulp). Single runs in double on the widened lanes, EP on
 * the EP rows, LA and HA on the LA rows. Lanes of |x| from 1, and NaNs, go to the scalar
 * routine: +-1 give +-infinity with status 2, |x| above 1 NaN with status 1, a NaN comes
 * back quieted. */
#include <limits>

#include "frame/kernels.h"
#include "vecmath/erf/erfinv_tables.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/status.h"

namespace brenn::vm {
namespace {

// The first row's top 16 bits: those of t = 2^-53.
constexpr int64_t kFirstRow = (1023 - 53) * 16;

// erfinv(x) for finite |x| < 1 on the rows of W doubles, the polynomial of degree N; with
// Low, the constant term's remainder follows it and the sum is kept in two parts.
template <int W, int N, bool Low>
inline __m128d ErfInvRows(const double (*rows)[W], __m128d x) {
    __m128d t = Sub(Set<double>(1.0), Abs(x));
    I64x2 bits = AsInt(t);
    I64x2 row = Sub(ShiftRight<48>(bits), Set<int64_t>(kFirstRow));
    __m128d c = AsFloat(
        Or(And(bits, Set<uint64_t>(0xFFFF000000000000ull)), Set<uint64_t>(0x0000800000000000ull)));
    __m128d v = Sub(t, c);
    const double* r0 = rows[LowWord<0>(row)];
    const double* r1 = rows[LowWord<1>(row)];
    __m128d a[W];
    for (int k = 0; k < W; k += 2)
        LoadTransposed(r0 + k, r1 + k, a[k], a[k + 1]);
    if constexpr (!Low) {
        __m128d p = a[0];
        for (int k = 1; k <= N; ++k)
            p = MulAdd(p, v, a[k]);
        return Mul(x, p);
    } else {
        __m128d q = a[0];
        for (int k = 1; k < N; ++k)
            q = MulAdd(q, v, a[k]);
        __m128d ph, pl, yh, yl;
        FastTwoSum(a[N], Mul(q, v), ph, pl);
        pl = Add(pl, a[N + 1]);
        TwoProduct(x, ph, yh, yl);
        // Below 2^-960 the product's error would underflow: x*P rounded once.
        return IfThenElse(Lt(Abs(x), Set<double>(0x1p-960)), Mul(x, Add(ph, pl)),
                          Add(yh, Add(yl, Mul(x, pl))));
    }
}

template <class T, Level L>
inline __m128d ErfInvDouble(__m128d x) {
    if constexpr (L == Level::EP) return ErfInvRows<6, 5, false>(erfInvRowsEP, x);
    if constexpr (L == Level::HA && sizeof(T) == 8)
        return ErfInvRows<12, 10, true>(erfInvRowsHA, x);
    return ErfInvRows<10, 9, false>(erfInvRowsLA, x);
}

template <class Tp, Level L>
struct ErfInvBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, ErfInv);
    static V Eval(V x, V& special) {
        if constexpr (sizeof(T) == 4)
            special = RangeTest(x, LaneRange<T>{0x7FFFFFFFu, 0u, 0x3F7FFFFFu});
        else
            special = RangeTest(x, LaneRange<T>{0x7FFFFFFFFFFFFFFFull, 0u, 0x3FEFFFFFFFFFFFFFull});
        // Special lanes run at 0 here: no NaN or |x| >= 1 reaches the arithmetic.
        V xs = IfThenElse(special, Zero<T>(), x);
        if constexpr (sizeof(T) == 4)
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
ZAR_ROW_KERNELS(ErfInv, Unary, brenn::vm::ErfInvBody)
}
