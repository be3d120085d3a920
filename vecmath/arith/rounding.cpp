/* The rounding family, Frac and Modf, single and double: one kernel for all levels,
 * exact results. Ceil, Floor, Trunc, Rint and NearbyInt are the SSE4.1 rounding
 * instruction with its immediate (NearbyInt suppresses the inexact flag); since the
 * entry rule sets round to nearest, Rint and NearbyInt round to nearest even whatever
 * the caller's mode. Round takes halves away from zero on |x| and puts the sign back.
 * Frac is x - trunc(x) with the sign of x, and Modf gives both parts; infinities and
 * NaN go to their scalar routines (fraction +-0 of an infinity), which never report. */
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

template <class Tp, int Mode>
struct RoundBody {
    using T = Tp;
    using V = Vec<T>;
    static V Eval(V x, V&) { return RoundBy<Mode>(x); }
};

// Halves away from zero: r = nearest-even(|x|), one more where |x| - r is exactly 0.5.
template <class Tp>
struct HalfAway {
    using T = Tp;
    using V = Vec<T>;
    static constexpr Layout kLayout = Layout::NoHead;
    static V Eval(V x, V&) {
        V a = Abs(x);
        V r = RoundEven(a);
        V up = Eq(Sub(a, r), Set<T>(0.5));
        r = Add(r, IfThenElseZero(up, Set<T>(1)));
        return Or(r, SignBit(x));
    }
};

// Infinity or NaN: exponent field all ones.
template <class V>
inline V NotFinite(V x) {
    using T = ElemOf<V>;
    return RangeTest(x, LaneRange<T>{Format<T>::kAbs, 0, Format<T>::kExpField - 1});
}

// Special lanes become a quiet NaN (of x's sign), so that inf - inf raises nothing.
template <class V>
inline V QuietSpecial(V x, V special) {
    return Or(x, And(special, AbsMask<ElemOf<V>>()));
}

// x - whole(x) with x's sign OR-ed back (a negative integer gives -0).
template <int Mode, class V>
inline V FracOf(V x, V& whole) {
    whole = RoundBy<Mode>(x);
    return Or(Sub(x, whole), SignBit(x));
}

template <class T>
inline T SignedZeroOf(T x) {
    return __builtin_copysign(T(0), x);
}

template <class Tp>
struct FracBody {
    using T = Tp;
    using V = Vec<T>;
    static V Eval(V x, V& special) {
        special = NotFinite(x);
        V whole;
        return FracOf<rounding::kTowardZero>(QuietSpecial(x, special), whole);
    }
    static int Scalar(const T* a, T* y) {
        T x = *a;
        *y = __builtin_isnan(x) ? x + x : SignedZeroOf(x);
        return status::kNone;
    }
};

// Modf: y the integer part toward zero, z the fraction, both with the sign of a. The
// truncation suppresses inexact, as the C library's modf raises nothing.
template <class Tp>
struct ModfBody {
    using T = Tp;
    using V = Vec<T>;
    static void Eval(V x, V& y, V& z, V& special) {
        special = NotFinite(x);
        z = FracOf<rounding::kTowardZero | rounding::kNoInexact>(QuietSpecial(x, special), y);
    }
    static int Scalar(const T* a, T* y, T* z) {
        T x = *a;
        if (__builtin_isnan(x)) {
            *y = *z = x + x;
        } else {
            *y = x;
            *z = SignedZeroOf(x);
        }
        return status::kNone;
    }
};

// Abs as x times a unit of x's own sign: a signalling NaN comes out quiet with the
// invalid flag, and a caller's DAZ takes a denormal to zero. Only the masks are forced.
template <class Tp>
struct AbsBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr CsrRule kCsr = CsrRule::MaskOnly;
    static constexpr Layout kLayout = Layout::NoHead;
    static V Eval(V x, V&) { return Mul(x, Or(SignBit(x), Set<T>(1))); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

#define BRENN_ROUNDING_KERNELS(t)                                                                  \
    void ZAR_KERNEL(t##Ceil, All) BRENN_SIG(t, Unary) {                                            \
        RunUnary(RoundBody<BRENN_ELEM_##t, rounding::kUp>{}, n, a, y);                             \
    }                                                                                              \
    void ZAR_KERNEL(t##Floor, All) BRENN_SIG(t, Unary) {                                           \
        RunUnary(RoundBody<BRENN_ELEM_##t, rounding::kDown>{}, n, a, y);                           \
    }                                                                                              \
    void ZAR_KERNEL(t##Trunc, All) BRENN_SIG(t, Unary) {                                           \
        RunUnary(RoundBody<BRENN_ELEM_##t, rounding::kTowardZero>{}, n, a, y);                     \
    }                                                                                              \
    void ZAR_KERNEL(t##Rint, All) BRENN_SIG(t, Unary) {                                            \
        RunUnary(RoundBody<BRENN_ELEM_##t, rounding::kByMode>{}, n, a, y);                         \
    }                                                                                              \
    void ZAR_KERNEL(t##NearbyInt, All) BRENN_SIG(t, Unary) {                                       \
        RunUnary(RoundBody<BRENN_ELEM_##t, rounding::kByMode | rounding::kNoInexact>{}, n, a, y);  \
    }                                                                                              \
    void ZAR_KERNEL(t##Round, All) BRENN_SIG(t, Unary) {                                           \
        RunUnary(HalfAway<BRENN_ELEM_##t>{}, n, a, y);                                             \
    }                                                                                              \
    void ZAR_KERNEL(t##Frac, All) BRENN_SIG(t, Unary) {                                            \
        RunUnary(FracBody<BRENN_ELEM_##t>{}, n, a, y);                                             \
    }                                                                                              \
    void ZAR_KERNEL(t##Abs, All) BRENN_SIG(t, Unary) {                                             \
        RunUnary(AbsBody<BRENN_ELEM_##t>{}, n, a, y);                                              \
    }                                                                                              \
    void ZAR_KERNEL(t##Modf, All) BRENN_SIG(t, TwoRes) {                                           \
        RunTwoRes(ModfBody<BRENN_ELEM_##t>{}, n, a, y, z);                                         \
    }

extern "C" {
BRENN_ROUNDING_KERNELS(s)
BRENN_ROUNDING_KERNELS(d)
}
