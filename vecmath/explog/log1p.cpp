/* Log1p, single and double, three levels each.
 *
 * Single: on u = 1 + x with the rounding of that sum recovered by Fast2Sum on the larger
 * and smaller of 1 and x; then ln(1 + x) = ln u + c/u (LA and EP), or with c*2^-k joining
 * the reduction of u (HA): no division. The range test is the logarithm's, on u: it fires
 * for x at or below -1, infinite or NaN. For |x| below 2^-25 u is 1, k and r are 0, and
 * the result is c = x exactly: tiny and denormal x come through the body as themselves.
 * Single EP and LA: the split around 2/3 on u with the polynomial of sLn EP and a fitted
 * one of eight coefficients (LA); HA in double on the EP logarithm core of the single
 * split (LnOfSingleLanesPlus), where u + c is exact.
 * Double: the logarithm core's reduction of u = 1 + x for k and the row, its low part
 * taken from x itself as (2^-k - mh) + x*2^-k (EP core at EP, degree 5 at LA and HA);
 * HA carries h + r exactly before the small terms are added. Its window on u runs from
 * 2^-43 to below 2^1023; the rest goes to the scalar routine.
 * Measured (brenn_accuracy, worst of its inputs): sLog1p EP 12.8 bits, LA 1.66 ulp,
 * HA 0.50 ulp; dLog1p EP 32.6 bits, LA 0.84 ulp, HA 0.66 ulp.
 * Scalar routine: x = -1 gives -inf with the singularity status, x below -1 (and -inf)
 * NaN with the domain status, NaN and +inf themselves. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/log_scalar.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

template <class T>
int Log1pScalar(const T* a, T* y) {
    T x = *a;
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (x == T(-1)) {
        *y = T(-1) / Keep(T(0));
        return status::kSingularity;
    }
    if (x < T(-1)) {
        *y = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    if (__builtin_isinf(x)) {
        *y = x;
        return status::kNone;
    }
    // A lane the body could have taken; the value in double (in single exactly enough).
    double xd = double(x), u = 1.0 + xd;
    double c = __builtin_fabs(xd) <= 1.0 ? xd - (u - 1.0) : 1.0 - (u - xd);
    *y = T(LnScalarD(u) + c / u);
    return status::kNone;
}

template <class T>
struct Log1pConst;
template <>
struct Log1pConst<float> {
    // Below it the result is x itself.
    static constexpr float kTiny = 0x1p-30f;
    // Q(r) of ln(1 + r) = r + r^2*Q(r) at LA, on r in [-1/3, 1/3); fitted by
    // tools/explog/log1p_single.sollya.
    static constexpr float kLA[] = {-0x1p-1f,        0x1.555528p-2f,  -0x1.000b1cp-2f,
                                    0x1.99c32ep-3f,  -0x1.515a6ap-3f, 0x1.1f9552p-3f,
                                    -0x1.35b3e2p-3f, 0x1.1b0d6ep-3f};
};

// u = 1 + x and the rounding error c of that sum, by Fast2Sum on the larger and the
// smaller of 1 and x: for x above -1 (special lanes run on 0) the larger is also the
// larger in magnitude.
template <class V>
inline void OnePlus(V x, V& u, V& c) {
    using T = ElemOf<V>;
    const V one = Set<T>(1);
    V big = Max(x, one), small = Min(x, one);
    FastTwoSum(big, small, u, c);
}

// Where |x| is below kTiny the result is x itself; the blend also keeps the sign of -0,
// which the sums above turn into +0.
template <class V>
inline V KeepTiny(V x, V y) {
    using T = ElemOf<V>;
    return IfThenElse(Lt(Abs(x), Set<T>(Log1pConst<T>::kTiny)), x, y);
}

// Single EP and LA: ln u by the split around 2/3, with c/u and k*ln2lo added before
// k*ln2hi. HA in double on the EP core.
template <Level L>
inline __m128 Log1pOf(__m128 x, __m128& special) {
    using K = LogConst<float>;
    special = LogSpecial(Add(Set<float>(1.0f), x));
    if constexpr (L == Level::HA) {
        // In double, u = 1 + x is exact for a single x from 2^-29 up to 2^53 (at most 53
        // bits from 2^0 down to x's last place), and beyond 2^53 its rounding is far
        // below the result's last place: no correction term, no division. Below 2^-29,
        // log1p(x) is within 2^-30 of x, relatively, and x is the rounded result.
        // So u + c, with u = 1 + x and c its rounding error in single, is exact in double:
        // c*2^-k joins u's significand there (LnOfSingleLanesPlus), with no division.
        __m128 xx = IfThenZeroElse(special, x); // special lanes take 0
        __m128 u, c;
        OnePlus(xx, u, c);
        __m128 y =
            LnOfSingleLanesPlus<true>(u, c, [](__m128d lo, __m128d hi) { return Narrow(lo, hi); });
        return IfThenElse(Lt(Abs(x), Set<float>(0x1p-29f)), x, y);
    } else {
        // Special lanes run on 0, so that inf - inf and 1/0 raise no flag of their own.
        x = IfThenZeroElse(special, x);
        __m128 u, c;
        OnePlus(x, u, c);
        __m128 r, k;
        LogSplit(u, r, k);
        __m128 q = L == Level::LA ? Estrin(r, Log1pConst<float>::kLA) : Horner(r, K::kLnEP);
        __m128 p = Add(r, Mul(Mul(r, r), q));
        // The division measured faster than c*2^-k*(1 - r) from the split's k.
        __m128 corr = Add(Div(c, u), Mul(k, Set<float>(K::kLn2Lo)));
        return KeepTiny(x, Add(Add(p, corr), Mul(k, Set<float>(K::kLn2Hi))));
    }
}

// Double: the core on u = 1 + x with the reduction's low part taken from x itself; at
// HA h + r carried exactly (Knuth) with the small terms added to the error. Tiny x come
// through as x itself (u = 1, r = x); the result has x's sign, which is put back for -0.
// The window on u: positive normals from 2^-43 (x within 2^-43 of -1 goes to the scalar
// routine) to below 2^1023, where 2^-k is still normal.
constexpr Range64 kLog1pWindow{0xFFFFFFFFFFFFFFFFull, 0x8000000000000000ull - 0x3D40000000000000ull,
                               0x7FDFFFFFFFFFFFFFull + 0x8000000000000000ull -
                                   0x3D40000000000000ull};
template <Level L>
inline __m128d Log1pOf(__m128d x, __m128d& special) {
    const __m128d one = Set<double>(1.0);
    special = RangeTest(Add(one, x), kLog1pWindow);
    // Special lanes run on 0, so that inf - inf and 1/0 raise no flag of their own.
    x = IfThenZeroElse(special, x);
    __m128d u = Add(one, x);
    // 1 + x = 2^k*(mh + ml) with ml = (2^-k - mh) + x*2^-k, one rounding: 2^-k - mh is
    // exact for |k| <= 43 (mh on the 2^-9 grid; beyond, k > 43 and its rounding is far
    // below the result's last place) and x*2^-k is exact, so that the rounding of u
    // itself does not reach r.
    LnReduction red = LnReduce(u);
    __m128d s = InverseBinade(u);
    red.ml = Add(Sub(s, red.mh), Mul(x, s));
    __m128d h, r, small;
    LnCore3From<L>(red, h, r, small);
    if constexpr (L == Level::HA) {
        __m128d s, err;
        // Exact: h is 0 (row 0 at k = 0, or the last row at k = -1, whose heads cancel)
        // or at least about 2^-10, and |r| <= 2^-10/mh.
        FastTwoSum(h, r, s, err);
        return Or(Add(s, Add(err, small)), SignBit(x));
    } else {
        return Or(Add(h, Add(r, small)), SignBit(x));
    }
}

template <class Tp, Level L>
struct Log1pBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Log1p);
    static constexpr int kRound = sizeof(T) == 8 ? 16 : 8; // single: rounds of eight pay more
    static int EvalWide(const V* x, V* y) { return EvalByRegister<Log1pBody>(x, y); }
    static V Eval(V x, V& special) { return Log1pOf<L>(x, special); }
    static int Scalar(const T* a, T* y) { return Log1pScalar(a, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, Log1p, Unary, Log1pBody)
BRENN_FLAT_LEVEL_KERNELS(d, Log1p, Unary, Log1pBody)
}
