/* The frame of the complex functions computed element by element in 80-bit
 * extended precision (trigonometric, hyperbolic, Log10, Pow): one kernel
 * serves every accuracy level, since the extended routine is as exact as it
 * gets whatever the mode.
 *
 * A routine takes the element's two parts, widened to long double, and gives
 * the result's parts and a status; the frame runs it with the x87 unit at
 * extended precision (the caller's control word saved and restored by the
 * kernel frame's entry rule), rounds the parts once to the element's type, and
 * reports a non-zero status through the reporter of the type. Functions whose
 * result may overflow from finite parts (Sin, Cos, Sinh, Cosh) set kOverflow: a
 * finite element whose rounded result has an infinite part is then reported
 * with status 3. The shared turns of the trigonometric functions into the
 * hyperbolic ones live here too. In-place calls are safe: each element is read before its
 * result is written. */
#ifndef BRENN_VECMATH_COMPLEX_EXTENDED_H
#define BRENN_VECMATH_COMPLEX_EXTENDED_H

#include "vecmath/complex/cframe.h"

namespace brenn::vm::cx {

using LD = long double;

// One element through the extended routine F, its parts widened and the results rounded
// once: the scalar routine of a vector body that hands elements on to the extended one.
template <class E, int (*F)(LD, LD, LD&, LD&)>
int ExtendedScalar(const E* z, const E*, E* y) {
    using R = decltype(z->re);
    LD re, im;
    const int st = F(z->re, z->im, re, im);
    y->re = R(re);
    y->im = R(im);
    return st;
}

// A body: the element type E, the routine, its public error name and kOverflow.
//   static int Eval(LD re, LD im, LD& yr, LD& yi);
template <class B, class E>
struct ExtendedRun {
    using R = decltype(E{}.re);
    static constexpr X87Rule kX87 = X87Rule::Extended;

    // The result rounded once into y, and the status with the overflow test.
    static int Put(E& y, LD yr, LD yi, int st, bool finite) {
        y.re = R(yr);
        y.im = R(yi);
        if (B::kOverflow && st == status::kNone && finite &&
            !(__builtin_isfinite(y.re) && __builtin_isfinite(y.im)))
            st = status::kOverflow;
        return st;
    }

    static void Run(int n, const E* a, E* y) {
        Env<ExtendedRun> env = Enter<ExtendedRun>();
        for (int i = 0; i < n; ++i) {
            const R re = a[i].re, im = a[i].im;
            LD yr, yi;
            int st = B::Eval(LD(re), LD(im), yr, yi);
            st = Put(y[i], yr, yi, st, __builtin_isfinite(re) && __builtin_isfinite(im));
            if (__builtin_expect(st != status::kNone, 0))
                frame::ReportError(st, i, a, a, y, y, B::kName);
        }
        Leave(env);
    }

    // Two inputs: b advances by bStep elements a step (0: one exponent for the whole
    // vector, as Powx has); a report names b's vector only when there is one.
    //   static int Eval(LD re, LD im, LD bre, LD bim, LD& yr, LD& yi);
    static void Run(int n, const E* a, const E* b, int bStep, E* y) {
        Env<ExtendedRun> env = Enter<ExtendedRun>();
        for (int i = 0; i < n; ++i) {
            const E x = a[i], w = b[i * bStep];
            LD yr, yi;
            int st = B::Eval(LD(x.re), LD(x.im), LD(w.re), LD(w.im), yr, yi);
            st = Put(y[i], yr, yi, st, false);
            if (__builtin_expect(st != status::kNone, 0))
                frame::ReportError(st, i, a, bStep ? b : a, y, y, B::kName);
        }
        Leave(env);
    }
};

template <class B, class E>
inline void RunExtended(int n, const E* a, E* y) {
    ExtendedRun<B, E>::Run(n, a, y);
}
template <class B, class E>
inline void RunExtended(int n, const E* a, const E* b, int bStep, E* y) {
    ExtendedRun<B, E>::Run(n, a, b, bStep, y);
}

// -y, but a NaN keeps its sign: the turn of the trigonometric functions into the
// hyperbolic ones leaves a NaN part as it is.
inline LD Turned(LD y) {
    return __builtin_isnan(y) ? y : -y;
}

// The trigonometric functions from the hyperbolic ones: with f(-y + ix) = u + iv,
// cos-like functions are u + iv (Turn false) and sin-like ones (g(z) = -i f(iz)) are
// v - iu (Turn true).
// y is an element's part widened, so it is turned as a double: the cores then find -y
// in the SSE unit as well, for their reductions, with no store and reload on the way.
template <int (*F)(LD, LD, LD&, LD&), bool Turn>
[[gnu::always_inline]] inline int Rotated(LD x, LD y, LD& re, LD& im) {
    LD u, v;
    const double yd = static_cast<double>(y);
    int st = F(static_cast<LD>(__builtin_isnan(yd) ? yd : -yd), x, u, v);
    if (Turn) {
        re = v;
        im = Turned(u);
    } else {
        re = u;
        im = v;
    }
    return st;
}

} // namespace brenn::vm::cx

// One row pair of a routine, at file scope after the routine: ZAR_EXTENDED_ROW(Tanh,
// TanhOf, false) makes the body Tanh<E> (public names "vcTanh" and "vzTanh", kOverflow as
// above) and the c and z kernels of rows cTanh and zTanh, one kernel for every level.
#define ZAR_EXTENDED_ROW(Fn, Routine, Overflow)                                                    \
    namespace brenn::vm::cx {                                                                      \
    namespace {                                                                                    \
    template <class E>                                                                             \
    struct Fn {                                                                                    \
        static constexpr bool kOverflow = Overflow;                                                \
        static constexpr const char* kName =                                                       \
            std::is_same_v<E, BrennComplex8> ? "vc" #Fn : "vz" #Fn;                                \
        [[gnu::always_inline]] static int Eval(LD x, LD y, LD& re, LD& im) {                       \
            return Routine(x, y, re, im);                                                          \
        }                                                                                          \
    };                                                                                             \
    }                                                                                              \
    }                                                                                              \
    extern "C" {                                                                                   \
    void ZAR_KERNEL(c##Fn, All) BRENN_SIG(c, Unary) {                                              \
        brenn::vm::cx::RunExtended<brenn::vm::cx::Fn<BrennComplex8>>(n, a, y);                     \
    }                                                                                              \
    void ZAR_KERNEL(z##Fn, All) BRENN_SIG(z, Unary) {                                              \
        brenn::vm::cx::RunExtended<brenn::vm::cx::Fn<BrennComplex16>>(n, a, y);                    \
    }                                                                                              \
    }

#endif
