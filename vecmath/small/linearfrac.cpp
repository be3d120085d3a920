/* LinearFrac, single and double: y = (scaleA*a + shiftA) / (scaleB*b + shiftB), one
 * kernel for all levels; each element's two products, two sums and the division are
 * single IEEE operations in that order, so the result is that of the plain expression.
 * No range test and no report: zero denominators and NaN follow IEEE.
 *
 * At entry a zero scale (compared so that a NaN scale is not zero) selects a loop in
 * which that side is the constant shift, so a loop reads only the vectors it needs;
 * the general loop runs eight elements a round with the constants in registers. */
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

template <class Tp>
struct LinFracEnv {
    using T = Tp;
};

// Which sides are affine in their vector; a constant side is its shift alone.
enum class Sides { Both, NumOnly, DenOnly, Neither };

template <class T, Sides S>
inline void Loop(int n, const T* a, const T* b, T sA, T hA, T sB, T hB, T* y) {
    using V = Vec<T>;
    constexpr int L = kLanes<T>;
    constexpr int R = 8 / L;
    constexpr bool kNum = S == Sides::Both || S == Sides::NumOnly;
    constexpr bool kDen = S == Sides::Both || S == Sides::DenOnly;
    const V vsA = Set(sA), vhA = Set(hA), vsB = Set(sB), vhB = Set(hB);
    int i = 0;
    for (; i + 8 <= n; i += 8) {
        V r[R];
        for (int k = 0; k < R; ++k) {
            V num = kNum ? MulAdd(vsA, Load(a + i + k * L), vhA) : vhA;
            V den = kDen ? MulAdd(vsB, Load(b + i + k * L), vhB) : vhB;
            r[k] = Div(num, den);
        }
        // Loads of the round come before its stores, so y may be a or b.
        for (int k = 0; k < R; ++k)
            Store(y + i + k * L, r[k]);
    }
    for (; i < n; ++i) {
        T num = kNum ? sA * a[i] + hA : hA;
        T den = kDen ? sB * b[i] + hB : hB;
        y[i] = num / den;
    }
}

template <class T>
void RunLinearFrac(int n, const T* a, const T* b, T sA, T hA, T sB, T hB, T* y) {
    Env<LinFracEnv<T>> env = Enter<LinFracEnv<T>>();
    if (n > 0) {
        bool numConst = sA == T(0), denConst = sB == T(0);
        if (!numConst && !denConst)
            Loop<T, Sides::Both>(n, a, b, sA, hA, sB, hB, y);
        else if (denConst && !numConst)
            Loop<T, Sides::NumOnly>(n, a, b, sA, hA, sB, hB, y);
        else if (numConst && !denConst)
            Loop<T, Sides::DenOnly>(n, a, b, sA, hA, sB, hB, y);
        else
            Loop<T, Sides::Neither>(n, a, b, sA, hA, sB, hB, y);
    }
    Leave(env);
}

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sLinearFrac, All) BRENN_SIG(s, LinFrac) {
    RunLinearFrac(n, a, b, scaleA, shiftA, scaleB, shiftB, y);
}
void ZAR_KERNEL(dLinearFrac, All) BRENN_SIG(d, LinFrac) {
    RunLinearFrac(n, a, b, scaleA, shiftA, scaleB, shiftB, y);
}
}
