/* The Goldschmidt refinement of a square root from its reciprocal-root estimate, shared
 * by Sqrt and by the power rows that take a root (Hypot, Pow3o2), in either precision. */
#ifndef BRENN_VECMATH_ARITH_GOLDSCHMIDT_H
#define BRENN_VECMATH_ARITH_GOLDSCHMIDT_H

#include "vecmath/frame/vec.h"

namespace brenn::vm {

// Goldschmidt from x and r ~ 1/sqrt(x): g = x*r, h = r/2, e = 0.5 - g*h, then g + g*e;
// with more steps, h + h*e is taken between them and e formed again.
template <int Steps, class V>
BRENN_VEC V Goldschmidt(V x, V r) {
    using T = ElemOf<V>;
    const V half = Set<T>(T(0.5));
    V g = Mul(x, r);
    V h = Mul(half, r);
    V e = Sub(half, Mul(g, h));
    for (int k = 1; k < Steps; ++k) {
        V g1 = Add(g, Mul(g, e));
        h = Add(h, Mul(h, e));
        g = g1;
        e = Sub(half, Mul(g, h));
    }
    return Add(g, Mul(g, e));
}

} // namespace brenn::vm

#endif
