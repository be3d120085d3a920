/* Logb, single and double, one kernel each for all levels: the unbiased exponent of
 * |x| as a floating value, taken from the bits (exponent field minus the bias, converted
 * from the integer lanes); exact. Range test: exponent field all zeros (zero, denormal)
 * or all ones (infinity, NaN). Scalar routine: zero gives -inf by -1/|x| with the
 * singularity status; a denormal is scaled into the normal range (by 2^25 in single,
 * 2^54 in double) and the shift taken back; +-inf gives +inf; NaN stays, quieted. */
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

template <class T>
int LogbScalar(const T* a, T* y) {
    using F = Format<T>;
    T x = *a;
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    T ax = __builtin_fabs(x);
    if (__builtin_isinf(x)) {
        *y = ax;
        return status::kNone;
    }
    if (ax == 0) {
        *y = T(-1) / Keep(ax);
        return status::kSingularity;
    }
    // Past the width of the significand, so that the smallest denormal becomes normal.
    constexpr int kShift = F::kMantBits + 2;
    UInt<T> b = BitsOf(ax * T(UInt<T>(1) << kShift));
    *y = T(int(b >> F::kMantBits) - F::kBias - kShift);
    return status::kNone;
}

// The exponent in each lane's integer view as a float: all four lanes (single), the
// low words of the two (double).
inline __m128 ExponentValue(I32x4 e) {
    return ToFloat(e);
}
inline __m128d ExponentValue(I64x2 e) {
    return LowWordsToDouble(e);
}

template <class Tp>
struct LogbBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Logb);
    static int Scalar(const T* a, T* y) { return LogbScalar(a, y); }
    static V Eval(V x, V& special) {
        using F = Format<T>;
        using U = UInt<T>;
        const auto field = Set<U>(F::kExpField);
        auto e = And(AsInt(x), field);
        special = AsFloat(Or(Eq(e, Zero<U>()), Eq(e, field)));
        return ExponentValue(Sub(ShiftRight<F::kMantBits>(e), Set<U>(F::kBias)));
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
ZAR_KERNEL_OF(s, Logb, All, Unary, LogbBody<float>)
ZAR_KERNEL_OF(d, Logb, All, Unary, LogbBody<double>)
}
