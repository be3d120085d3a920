/* CopySign, NextAfter, Fdim, Fmax, Fmin, MaxMag and MinMag, single and double: one
 * kernel for all levels, exact results, no report.
 *
 * CopySign works on the bits alone, so a NaN keeps its payload and its signalling bit.
 * Fdim is a - b where a > b and +0 elsewhere; a NaN operand passes through the
 * subtraction, quieted. NextAfter steps the integer view of a by one toward b; a zero a
 * (the step crosses the sign) and NaN go to the scalar routine.
 *
 * Fmax, Fmin, MaxMag and MinMag share one rule for NaN, C99's for fmax and fmin: a NaN
 * operand is missing data and the result is the other operand. That holds for a
 * signalling NaN as for a quiet one (C99 makes no exception for it, and neither does
 * the 2019 IEEE 754 maximumNumber; the C library here follows the 2008 maxNum instead
 * and returns a quiet NaN). Only two NaN operands give a NaN, quieted. Invalid is
 * raised exactly when an operand is signalling: NaN lanes are taken out of the body's
 * maxps/minps and ordered compares, which would raise it for quiet ones too, and go to
 * the scalar routine. On ordered operands Fmax and Fmin are maxps and minps, which give
 * b for equal operands (so the maximum of +0 and -0 is -0, as in the C library);
 * MaxMag and MinMag give the operand of larger (smaller) magnitude, and on equal
 * magnitudes Fmax (Fmin) of the operands. */
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

// A lane with a NaN operand: the other operand; two NaN operands give a quiet NaN
// through a + b. The tests are quiet compares, so a quiet NaN raises nothing.
template <class T>
int NanPick(const T* a, const T* b, T* y) {
    T x = *a, w = *b;
    if (__builtin_isnan(x))
        *y = __builtin_isnan(w) ? Keep(x) + w : w;
    else
        *y = x;
    return status::kNone;
}

// The operands of a min/max body with NaN lanes made +0, so that maxps, minps and the
// ordered compares (which raise invalid on a quiet NaN too) see numbers only; the NaN
// lanes are marked special, by an unordered compare that raises invalid only for a
// signalling NaN, and their results come from NanPick.
template <class V>
inline void OrderedOnly(V& a, V& b, V& special) {
    special = Unordered(a, b);
    a = IfThenZeroElse(special, a);
    b = IfThenZeroElse(special, b);
}

template <class Tp>
struct CopySignBody {
    using T = Tp;
    using V = Vec<T>;
    static V Eval(V a, V b, V&) { return Or(Abs(a), SignBit(b)); }
};

template <class Tp>
struct FdimBody {
    using T = Tp;
    using V = Vec<T>;
    static V Eval(V a, V b, V&) {
        // Where a <= b the difference is replaced by +0; an unordered compare is false,
        // so a NaN comes through the subtraction.
        return IfThenZeroElse(Le(a, b), Sub(a, b));
    }
};

// Larger (Big) or smaller of two operands, NaN aside. Fmax and Fmin (Mag false) are
// maxps and minps: on equal operands, +0 and -0 included, they give b, as the C
// library's fmax and fmin do. MaxMag and MinMag (Mag true) take the operand of larger
// (smaller) magnitude, and on equal magnitudes Fmax (Fmin) of the operands, so 2 and -2
// give 2 (-2).
template <class Tp, bool Big, bool Mag>
struct PickBody {
    using T = Tp;
    using V = Vec<T>;
    static V Eval(V a, V b, V& special) {
        OrderedOnly(a, b, special);
        if constexpr (!Mag) return Pick(a, b);
        V ma = Abs(a), mb = Abs(b);
        V aWins = Big ? Lt(mb, ma) : Lt(ma, mb);
        V bWins = Big ? Lt(ma, mb) : Lt(mb, ma);
        V r = IfThenElse(aWins, a, Pick(a, b));
        return IfThenElse(bWins, b, r);
    }
    static V Pick(V a, V b) { return Big ? Max(a, b) : Min(a, b); }
    static int Scalar(const T* a, const T* b, T* y) { return NanPick(a, b, y); }
};

template <class Tp>
struct NextAfterBody {
    using T = Tp;
    using V = Vec<T>;
    static V Eval(V a, V b, V& special) {
        V zero = Zero<T>();
        special = Or(Unordered(a, b), Eq(a, zero));
        // Away from zero (integer view + 1) where a < b agrees with a > 0, else toward
        // zero (- 1): subtract (mask | 1), which is -1 or +1.
        V up = Xor(Lt(a, b), Lt(a, zero));
        auto step = Or(AsInt(up), Set<UInt<T>>(1));
        V r = AsFloat(Sub(AsInt(a), step));
        return IfThenElse(Eq(a, b), b, r);
    }
    static int Scalar(const T* a, const T* b, T* y) {
        T x = *a, w = *b;
        if (__builtin_isnan(x) || __builtin_isnan(w))
            *y = Keep(x) + w;
        else if (x == w)
            *y = w;
        else // x is a zero: the smallest denormal with the sign of w
            *y = __builtin_copysign(Keep(FromBits<T>(1)), w);
        return status::kNone;
    }
};

} // namespace
} // namespace brenn::vm

// The seven rows of one precision, each one kernel for all levels.
#define BRENN_MINMAX_KERNELS(t)                                                                    \
    ZAR_KERNEL_OF(t, CopySign, All, Binary, brenn::vm::CopySignBody<BRENN_ELEM_##t>)               \
    ZAR_KERNEL_OF(t, NextAfter, All, Binary, brenn::vm::NextAfterBody<BRENN_ELEM_##t>)             \
    ZAR_KERNEL_OF(t, Fdim, All, Binary, brenn::vm::FdimBody<BRENN_ELEM_##t>)                       \
    ZAR_KERNEL_OF(t, Fmax, All, Binary, brenn::vm::PickBody<BRENN_ELEM_##t, true, false>)          \
    ZAR_KERNEL_OF(t, Fmin, All, Binary, brenn::vm::PickBody<BRENN_ELEM_##t, false, false>)         \
    ZAR_KERNEL_OF(t, MaxMag, All, Binary, brenn::vm::PickBody<BRENN_ELEM_##t, true, true>)         \
    ZAR_KERNEL_OF(t, MinMag, All, Binary, brenn::vm::PickBody<BRENN_ELEM_##t, false, true>)

extern "C" {
BRENN_MINMAX_KERNELS(s)
BRENN_MINMAX_KERNELS(d)
}
