// The affine post-pass of the continuous generators, r = r * scale + shift with an
// optional lower bound, in the peel / eight / two / one shape. Every path multiplies
// then adds then bounds, in that order, so the split does not change a result.
#include <stdint.h>
#include <string.h>

#include "rng/dist/frame.h"
#include "rng/dist/lanes.h"

namespace brenn::rng {

namespace {

// max(x, m) as the vector instruction does it: m when x is NaN.
template <typename T>
inline T ScalarMax(T x, T m) {
    return x > m ? x : m;
}

template <typename T, bool Bounded>
void Pass(int32_t n, T* r, T scale, T shift, T floor) {
    using L = Lanes<T>;
    // Element by element through memcpy, since the array need not be element-aligned.
    auto one = [&](int32_t i) {
        T v;
        memcpy(&v, r + i, sizeof v);
        v = v * scale + shift;
        if (Bounded) v = ScalarMax(v, floor);
        memcpy(r + i, &v, sizeof v);
    };
    int32_t i = 0;
    uintptr_t address = reinterpret_cast<uintptr_t>(r);
    if (n < 8 || address % sizeof(T) != 0) {
        for (; i < n; ++i)
            one(i);
        return;
    }
    for (; i < n && (reinterpret_cast<uintptr_t>(r + i) & 15) != 0; ++i)
        one(i);
    const typename L::V s = L::Set(scale), t = L::Set(shift), m = L::Set(floor);
    auto block = [&](int32_t at) {
        typename L::V v = L::Fma(L::Load(r + at), s, t);
        if (Bounded) v = L::Max(v, m);
        L::Store(r + at, v);
    };
    for (; i + 8 <= n; i += 8)
        for (int k = 0; k < 8; k += L::kCount)
            block(i + k);
    for (; i + L::kCount <= n; i += L::kCount)
        block(i);
    for (; i < n; ++i)
        one(i);
}

} // namespace

void AffinePass(int32_t n, double* r, double scale, double shift) {
    Pass<double, false>(n, r, scale, shift, 0.0);
}
void AffinePass(int32_t n, float* r, float scale, float shift) {
    Pass<float, false>(n, r, scale, shift, 0.0f);
}
void AffinePassMax(int32_t n, double* r, double scale, double shift, double floor) {
    Pass<double, true>(n, r, scale, shift, floor);
}
void AffinePassMax(int32_t n, float* r, float scale, float shift, float floor) {
    Pass<float, true>(n, r, scale, shift, floor);
}

} // namespace brenn::rng
