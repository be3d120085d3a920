/* The kernel shape of the element-by-element rows (LGamma, TGamma, ExpInt1 at LA and
 * HA): every element goes through the body's scalar routine, whose status is reported
 * for that element at once. The entry and exit rules of the floating-point environment
 * are the frame's, chosen by the body's kX87 and kCsr as for any other kernel. */
#ifndef BRENN_VECMATH_GAMMA_EACH_H
#define BRENN_VECMATH_GAMMA_EACH_H

#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {

template <class B>
inline void RunEach(const B& body, int n, const typename B::T* a, typename B::T* y) {
    using T = typename B::T;
    Env<B> env = Enter<B>();
    const Args<T> v{a, nullptr, y, nullptr};
    for (int i = 0; i < n; ++i)
        Quads<B, Shape::Unary>::One(body, v, i);
    Leave(env);
}

} // namespace brenn::vm

// The kernel of row t##Fn that fills the slots `share` (All, LaHa) from Body<type>.
#define ZAR_EACH_KERNEL(t, Fn, share, Body)                                                        \
    void ZAR_KERNEL(t##Fn, share) BRENN_SIG(t, Unary) {                                            \
        brenn::vm::RunEach(Body<BRENN_ELEM_##t>{}, n, a, y);                                       \
    }

#endif
