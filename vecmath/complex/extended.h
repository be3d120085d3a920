/* The frame of the complex functions computed element by element in 80-bit
 * extended precision (trigonometric, hyperbolic, Log10, Pow, Powx): one kernel
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
 * with status 3. In-place calls are safe: each element is read before its
 * result is written. */
#ifndef BRENN_VECMATH_COMPLEX_EXTENDED_H
#define BRENN_VECMATH_COMPLEX_EXTENDED_H

#include "vecmath/complex/cframe.h"

namespace brenn::vm::cx {

using LD = long double;

// A body: the element type E, the routine, its public error name and kOverflow.
//   static int Eval(LD re, LD im, LD& yr, LD& yi);
template <class B, class E>
struct ExtendedRun {
    static constexpr X87Rule kX87 = X87Rule::Extended;

    template <class Routine>
    static void Run(int n, const E* a, E* y, Routine routine) {
        using R = decltype(E{}.re);
        Env<ExtendedRun> env = Enter<ExtendedRun>();
        for (int i = 0; i < n; ++i) {
            const R re = a[i].re, im = a[i].im;
            LD yr, yi;
            int st = routine(LD(re), LD(im), yr, yi);
            y[i].re = R(yr);
            y[i].im = R(yi);
            if (B::kOverflow && st == status::kNone && __builtin_isfinite(re) &&
                __builtin_isfinite(im) &&
                !(__builtin_isfinite(y[i].re) && __builtin_isfinite(y[i].im)))
                st = status::kOverflow;
            if (__builtin_expect(st != status::kNone, 0))
                frame::ReportError(st, i, a, a, y, y, B::kName);
        }
        Leave(env);
    }
};

template <class B, class E>
inline void RunExtended(int n, const E* a, E* y) {
    ExtendedRun<B, E>::Run(n, a, y, B::Eval);
}

} // namespace brenn::vm::cx

#endif
