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

template <class Tp, int Imm>
struct RoundBody {
    using T = Tp;
    using V = typename Simd<T>::V;
    static V Eval(V x, V&) {
        if constexpr (sizeof(T) == 4)
            return _mm_round_ps(x, Imm);
        else
            return _mm_round_pd(x, Imm);
    }
};

// Halves away from zero: r = nearest-even(|x|), one more where |x| - r is exactly 0.5.
template <class Tp>
struct HalfAway {
    using T = Tp;
    using Sd = Simd<T>;
    using V = typename Sd::V;
    static constexpr Layout kLayout = Layout::NoHead;
    static V Eval(V x, V&) {
        V sign = SignMask<T>();
        if constexpr (sizeof(T) == 4) {
            __m128 a = _mm_and_ps(x, AbsMask<T>());
            __m128 r = _mm_round_ps(a, 0x0);
            __m128 up = _mm_cmpeq_ps(_mm_sub_ps(a, r), _mm_set1_ps(0.5f));
            r = _mm_add_ps(r, _mm_and_ps(up, _mm_set1_ps(1.0f)));
            return _mm_or_ps(r, _mm_and_ps(x, sign));
        } else {
            __m128d a = _mm_and_pd(x, AbsMask<T>());
            __m128d r = _mm_round_pd(a, 0x0);
            __m128d up = _mm_cmpeq_pd(_mm_sub_pd(a, r), _mm_set1_pd(0.5));
            r = _mm_add_pd(r, _mm_and_pd(up, _mm_set1_pd(1.0)));
            return _mm_or_pd(r, _mm_and_pd(x, sign));
        }
    }
};

// Infinity or NaN: exponent field all ones.
template <class T>
inline typename Simd<T>::V NotFinite(typename Simd<T>::V x) {
    if constexpr (sizeof(T) == 4)
        return RangeTest<float>(x, 0x7FFFFFFFu, 0u, 0x7F7FFFFFu);
    else
        return RangeTest<double>(x, 0x7FFFFFFFFFFFFFFFull, 0ull, 0x7FEFFFFFFFFFFFFFull);
}

// x - trunc(x) with x's sign OR-ed back (a negative integer gives -0).
template <class T, int Imm>
inline typename Simd<T>::V FracOf(typename Simd<T>::V x, typename Simd<T>::V& whole) {
    if constexpr (sizeof(T) == 4) {
        whole = _mm_round_ps(x, Imm);
        return _mm_or_ps(_mm_sub_ps(x, whole), _mm_and_ps(x, SignMask<T>()));
    } else {
        whole = _mm_round_pd(x, Imm);
        return _mm_or_pd(_mm_sub_pd(x, whole), _mm_and_pd(x, SignMask<T>()));
    }
}

template <class T>
inline T SignedZeroOf(T x) {
    return __builtin_copysign(T(0), x);
}

template <class Tp>
struct FracBody {
    using T = Tp;
    using V = typename Simd<T>::V;
    static V Eval(V x, V& special) {
        special = NotFinite<T>(x);
        // Special lanes become a quiet NaN so that inf - inf raises nothing.
        if constexpr (sizeof(T) == 4)
            x = _mm_or_ps(x, _mm_and_ps(special, AbsMask<T>()));
        else
            x = _mm_or_pd(x, _mm_and_pd(special, AbsMask<T>()));
        V whole;
        return FracOf<T, 0x3>(x, whole);
    }
    static int Scalar(const T* a, T* y) {
        T x = *a;
        *y = __builtin_isnan(x) ? x + x : SignedZeroOf(x);
        return 0;
    }
};

// Modf: y the integer part toward zero, z the fraction, both with the sign of a. The
// truncation suppresses inexact, as the C library's modf raises nothing.
template <class Tp>
struct ModfBody {
    using T = Tp;
    using V = typename Simd<T>::V;
    static void Eval(V x, V& y, V& z, V& special) {
        special = NotFinite<T>(x);
        if constexpr (sizeof(T) == 4)
            x = _mm_or_ps(x, _mm_and_ps(special, AbsMask<T>()));
        else
            x = _mm_or_pd(x, _mm_and_pd(special, AbsMask<T>()));
        z = FracOf<T, 0xB>(x, y);
    }
    static int Scalar(const T* a, T* y, T* z) {
        T x = *a;
        if (__builtin_isnan(x)) {
            *y = *z = x + x;
        } else {
            *y = x;
            *z = SignedZeroOf(x);
        }
        return 0;
    }
};

// Abs as x times a unit of x's own sign: a signalling NaN comes out quiet with the
// invalid flag, and a caller's DAZ takes a denormal to zero. Only the masks are forced.
template <class Tp>
struct AbsBody {
    using T = Tp;
    using V = typename Simd<T>::V;
    static constexpr CsrRule kCsr = CsrRule::MaskOnly;
    static constexpr Layout kLayout = Layout::NoHead;
    static V Eval(V x, V&) {
        if constexpr (sizeof(T) == 4)
            return _mm_mul_ps(x, _mm_or_ps(_mm_and_ps(x, SignMask<T>()), _mm_set1_ps(1.0f)));
        else
            return _mm_mul_pd(x, _mm_or_pd(_mm_and_pd(x, SignMask<T>()), _mm_set1_pd(1.0)));
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

#define BRENN_ROUNDING_KERNELS(t, Tp)                                                              \
    void ZAR_KERNEL(t##Ceil, All) BRENN_SIG(t, Unary) {                                            \
        RunUnary(RoundBody<Tp, 0x2>{}, n, a, y);                                                   \
    }                                                                                              \
    void ZAR_KERNEL(t##Floor, All) BRENN_SIG(t, Unary) {                                           \
        RunUnary(RoundBody<Tp, 0x1>{}, n, a, y);                                                   \
    }                                                                                              \
    void ZAR_KERNEL(t##Trunc, All) BRENN_SIG(t, Unary) {                                           \
        RunUnary(RoundBody<Tp, 0x3>{}, n, a, y);                                                   \
    }                                                                                              \
    void ZAR_KERNEL(t##Rint, All) BRENN_SIG(t, Unary) {                                            \
        RunUnary(RoundBody<Tp, 0x4>{}, n, a, y);                                                   \
    }                                                                                              \
    void ZAR_KERNEL(t##NearbyInt, All) BRENN_SIG(t, Unary) {                                       \
        RunUnary(RoundBody<Tp, 0xC>{}, n, a, y);                                                   \
    }                                                                                              \
    void ZAR_KERNEL(t##Round, All) BRENN_SIG(t, Unary) {                                           \
        RunUnary(HalfAway<Tp>{}, n, a, y);                                                         \
    }                                                                                              \
    void ZAR_KERNEL(t##Frac, All) BRENN_SIG(t, Unary) {                                            \
        RunUnary(FracBody<Tp>{}, n, a, y);                                                         \
    }                                                                                              \
    void ZAR_KERNEL(t##Abs, All) BRENN_SIG(t, Unary) {                                             \
        RunUnary(AbsBody<Tp>{}, n, a, y);                                                          \
    }                                                                                              \
    void ZAR_KERNEL(t##Modf, All) BRENN_SIG(t, TwoRes) {                                           \
        RunTwoRes(ModfBody<Tp>{}, n, a, y, z);                                                     \
    }

extern "C" {
BRENN_ROUNDING_KERNELS(s, float)
BRENN_ROUNDING_KERNELS(d, double)
}
