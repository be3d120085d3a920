/* CopySign, NextAfter, Fdim, Fmax, Fmin, MaxMag and MinMag, single and double: one
 * kernel for all levels, exact results equal to the C library's, no report.
 *
 * CopySign works on the bits alone, so a NaN keeps its payload and its signalling bit.
 * Fdim is a - b where a > b and +0 elsewhere; a NaN operand passes through the
 * subtraction, quieted. Fmax and Fmin follow the C rule that a NaN operand yields the
 * other one: the vector body is maxps/minps, which give b for equal operands (so the
 * maximum of +0 and -0 is -0, as in the C library); lanes with a NaN go to the scalar
 * routine, which returns the other operand, or a + b (a quiet NaN) if either is
 * signalling. MaxMag and MinMag give the operand of larger (smaller) magnitude; on equal
 * magnitudes, and for NaN, they are Fmax (Fmin) of the operands. NextAfter steps the
 * integer view of a by one toward b; a zero a (the step crosses the sign) and NaN go
 * to the scalar routine. */
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
    static V Zero() { return _mm_setzero_pd(); }
    static __m128i SubInt(__m128i a, __m128i b) { return _mm_sub_epi64(a, b); }
    static __m128i One() { return _mm_set1_epi64x(1); }
};

// A signalling NaN: exponent all ones, quiet bit clear, some other significand bit set.
inline bool IsSignalling(float x) {
    uint32_t u = BitsOf(x) & 0x7FFFFFFFu;
    return u > 0x7F800000u && u < 0x7FC00000u;
}
inline bool IsSignalling(double x) {
    uint64_t u = BitsOf(x) & 0x7FFFFFFFFFFFFFFFull;
    return u > 0x7FF0000000000000ull && u < 0x7FF8000000000000ull;
}

// The C rule for a NaN operand of fmax and fmin: the other operand, or a quiet NaN
// through a + b when either is signalling.
template <class T>
int NanPick(const T* a, const T* b, T* y) {
    T x = *a, w = *b;
    if (IsSignalling(x) || IsSignalling(w))
        *y = Keep(x) + w;
    else
        *y = __builtin_isnan(w) ? x : w;
    return 0;
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
        return AndNot(O::Le(a, b), O::Sub(a, b));
    }
    static V AndNot(V m, V v) {
        if constexpr (sizeof(T) == 4)
            return _mm_andnot_ps(m, v);
        else
            return _mm_andnot_pd(m, v);
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
        special = O::Unord(a, b);
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
        special = O::Unord(a, b);
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
        special = O::Unord(a, b);
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
