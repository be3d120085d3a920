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

template <class T>
struct Ops;

template <>
struct Ops<float> {
    using V = __m128;
    static V And(V a, V b) { return _mm_and_ps(a, b); }
    static V Or(V a, V b) { return _mm_or_ps(a, b); }
    static V Sub(V a, V b) { return _mm_sub_ps(a, b); }
    static V Max(V a, V b) { return _mm_max_ps(a, b); }
    static V Min(V a, V b) { return _mm_min_ps(a, b); }
    static V Eq(V a, V b) { return _mm_cmpeq_ps(a, b); }
    static V Lt(V a, V b) { return _mm_cmplt_ps(a, b); }
    static V Le(V a, V b) { return _mm_cmple_ps(a, b); }
    static V Unord(V a, V b) { return _mm_cmpunord_ps(a, b); }
    static V AndNot(V m, V v) { return _mm_andnot_ps(m, v); }
    static V Zero() { return _mm_setzero_ps(); }
    static __m128i SubInt(__m128i a, __m128i b) { return _mm_sub_epi32(a, b); }
    static __m128i One() { return _mm_set1_epi32(1); }
};

template <>
struct Ops<double> {
    using V = __m128d;
    static V And(V a, V b) { return _mm_and_pd(a, b); }
    static V Or(V a, V b) { return _mm_or_pd(a, b); }
    static V Sub(V a, V b) { return _mm_sub_pd(a, b); }
    static V Max(V a, V b) { return _mm_max_pd(a, b); }
    static V Min(V a, V b) { return _mm_min_pd(a, b); }
    static V Eq(V a, V b) { return _mm_cmpeq_pd(a, b); }
    static V Lt(V a, V b) { return _mm_cmplt_pd(a, b); }
    static V Le(V a, V b) { return _mm_cmple_pd(a, b); }
    static V Unord(V a, V b) { return _mm_cmpunord_pd(a, b); }
    static V AndNot(V m, V v) { return _mm_andnot_pd(m, v); }
    static V Zero() { return _mm_setzero_pd(); }
    static __m128i SubInt(__m128i a, __m128i b) { return _mm_sub_epi64(a, b); }
    static __m128i One() { return _mm_set1_epi64x(1); }
};

// A lane with a NaN operand: the other operand; two NaN operands give a quiet NaN
// through a + b. The tests are quiet compares, so a quiet NaN raises nothing.
template <class T>
int NanPick(const T* a, const T* b, T* y) {
    T x = *a, w = *b;
    if (__builtin_isnan(x))
        *y = __builtin_isnan(w) ? Keep(x) + w : w;
    else
        *y = x;
    return 0;
}

// The operands of a min/max body with NaN lanes made +0, so that maxps, minps and the
// ordered compares (which raise invalid on a quiet NaN too) see numbers only; the NaN
// lanes are marked special, by an unordered compare that raises invalid only for a
// signalling NaN, and their results come from NanPick.
template <class T>
inline void OrderedOnly(typename Ops<T>::V& a, typename Ops<T>::V& b, typename Ops<T>::V& special) {
    special = Ops<T>::Unord(a, b);
    a = Ops<T>::AndNot(special, a);
    b = Ops<T>::AndNot(special, b);
}

template <class Tp>
struct CopySignBody {
    using T = Tp;
    using O = Ops<T>;
    using V = typename O::V;
    static V Eval(V a, V b, V&) { return O::Or(O::And(a, AbsMask<T>()), O::And(b, SignMask<T>())); }
};

template <class Tp>
struct FdimBody {
    using T = Tp;
    using O = Ops<T>;
    using V = typename O::V;
    static V Eval(V a, V b, V&) {
        // Where a <= b the difference is replaced by +0 (the AND-NOT clears it); an
        // unordered compare is false, so a NaN comes through the subtraction.
        return O::AndNot(O::Le(a, b), O::Sub(a, b));
    }
};

// Larger (smaller) of two ordered operands; on equal ones, +0 and -0 included, b, as
// the C library's fmax and fmin give it.
template <class T>
inline typename Ops<T>::V MaxOf(typename Ops<T>::V a, typename Ops<T>::V b) {
    return Ops<T>::Max(a, b);
}
template <class T>
inline typename Ops<T>::V MinOf(typename Ops<T>::V a, typename Ops<T>::V b) {
    return Ops<T>::Min(a, b);
}

template <class Tp>
struct FmaxBody {
    using T = Tp;
    using O = Ops<T>;
    using V = typename O::V;
    static V Eval(V a, V b, V& special) {
        OrderedOnly<T>(a, b, special);
        return MaxOf<T>(a, b);
    }
    static int Scalar(const T* a, const T* b, T* y) { return NanPick(a, b, y); }
};

template <class Tp>
struct FminBody {
    using T = Tp;
    using O = Ops<T>;
    using V = typename O::V;
    static V Eval(V a, V b, V& special) {
        OrderedOnly<T>(a, b, special);
        return MinOf<T>(a, b);
    }
    static int Scalar(const T* a, const T* b, T* y) { return NanPick(a, b, y); }
};

// Operand of larger (Big) or smaller magnitude; equal magnitudes fall back to Fmax
// (Fmin) of the operands, so 2 and -2 give 2 (-2).
template <class Tp, bool Big>
struct MagBody {
    using T = Tp;
    using O = Ops<T>;
    using V = typename O::V;
    static V Eval(V a, V b, V& special) {
        OrderedOnly<T>(a, b, special);
        V ma = O::And(a, AbsMask<T>()), mb = O::And(b, AbsMask<T>());
        V aWins = Big ? O::Lt(mb, ma) : O::Lt(ma, mb);
        V bWins = Big ? O::Lt(ma, mb) : O::Lt(mb, ma);
        V r = Big ? MaxOf<T>(a, b) : MinOf<T>(a, b);
        r = Simd<T>::Blend(r, a, aWins);
        return Simd<T>::Blend(r, b, bWins);
    }
    static int Scalar(const T* a, const T* b, T* y) { return NanPick(a, b, y); }
};

// The smallest positive denormal.
template <class T>
inline T TinyOf() {
    if constexpr (sizeof(T) == 4)
        return FloatOf(1u);
    else
        return DoubleOf(1ull);
}

template <class Tp>
struct NextAfterBody {
    using T = Tp;
    using O = Ops<T>;
    using Sd = Simd<T>;
    using V = typename O::V;
    static V Eval(V a, V b, V& special) {
        V zero = O::Zero();
        special = O::Or(O::Unord(a, b), O::Eq(a, zero));
        // Away from zero (integer view + 1) where a < b agrees with a > 0, else toward
        // zero (- 1): subtract (mask | 1), which is -1 or +1.
        V up = Xor(O::Lt(a, b), O::Lt(a, zero));
        __m128i step = _mm_or_si128(Sd::AsInt(up), O::One());
        V r = Sd::FromInt(O::SubInt(Sd::AsInt(a), step));
        return Sd::Blend(r, b, O::Eq(a, b));
    }
    static V Xor(V a, V b) {
        if constexpr (sizeof(T) == 4)
            return _mm_xor_ps(a, b);
        else
            return _mm_xor_pd(a, b);
    }
    static int Scalar(const T* a, const T* b, T* y) {
        T x = *a, w = *b;
        if (__builtin_isnan(x) || __builtin_isnan(w))
            *y = Keep(x) + w;
        else if (x == w)
            *y = w;
        else // x is a zero: the smallest denormal with the sign of w
            *y = __builtin_copysign(Keep(TinyOf<T>()), w);
        return 0;
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

#define BRENN_SMALL_KERNELS(t, Tp)                                                                 \
    void ZAR_KERNEL(t##CopySign, All) BRENN_SIG(t, Binary) {                                       \
        RunBinary(CopySignBody<Tp>{}, n, a, b, y);                                                 \
    }                                                                                              \
    void ZAR_KERNEL(t##NextAfter, All) BRENN_SIG(t, Binary) {                                      \
        RunBinary(NextAfterBody<Tp>{}, n, a, b, y);                                                \
    }                                                                                              \
    void ZAR_KERNEL(t##Fdim, All) BRENN_SIG(t, Binary) {                                           \
        RunBinary(FdimBody<Tp>{}, n, a, b, y);                                                     \
    }                                                                                              \
    void ZAR_KERNEL(t##Fmax, All) BRENN_SIG(t, Binary) {                                           \
        RunBinary(FmaxBody<Tp>{}, n, a, b, y);                                                     \
    }                                                                                              \
    void ZAR_KERNEL(t##Fmin, All) BRENN_SIG(t, Binary) {                                           \
        RunBinary(FminBody<Tp>{}, n, a, b, y);                                                     \
    }                                                                                              \
    void ZAR_KERNEL(t##MaxMag, All) BRENN_SIG(t, Binary) {                                         \
        RunBinary(MagBody<Tp, true>{}, n, a, b, y);                                                \
    }                                                                                              \
    void ZAR_KERNEL(t##MinMag, All) BRENN_SIG(t, Binary) {                                         \
        RunBinary(MagBody<Tp, false>{}, n, a, b, y);                                               \
    }

extern "C" {
BRENN_SMALL_KERNELS(s, float)
BRENN_SMALL_KERNELS(d, double)
}
