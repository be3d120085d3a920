// The continuous generators written out plainly for the tests: each variate from its
// own uniforms by one-element calls of the same kernel slots, in the operation order
// the generators promise, so that a generator's blocks, chunk and post-pass paths can
// be checked bit for bit.
#ifndef BRENN_TESTS_RNG_CONTINUOUS_REF_H
#define BRENN_TESTS_RNG_CONTINUOUS_REF_H

#include <stdint.h>

#include <cmath>
#include <cstring>
#include <vector>

#include "brenn_rng.h"
#include "frame/dispatch.h"

namespace brenn::test {

template <typename T>
struct Ref;

#define BRENN_REF_ONE(t, slot, Fn)                                                                 \
    static T Fn(T x) {                                                                             \
        T y;                                                                                       \
        ZAR_SLOT(t##Fn, slot)(1, &x, &y);                                                          \
        return y;                                                                                  \
    }
#define BRENN_REF(t, slot)                                                                         \
    BRENN_REF_ONE(t, slot, Ln)                                                                     \
    BRENN_REF_ONE(t, slot, Exp)                                                                    \
    BRENN_REF_ONE(t, slot, Sin)                                                                    \
    BRENN_REF_ONE(t, slot, Cos)                                                                    \
    BRENN_REF_ONE(t, slot, Tan)                                                                    \
    BRENN_REF_ONE(t, slot, Sqrt)                                                                   \
    static T ErfInv(T x) {                                                                         \
        T y;                                                                                       \
        ZAR_SLOT(t##ErfInv, slot)(1, &x, &y);                                                      \
        return y;                                                                                  \
    }                                                                                              \
    static bool HasErfInv() {                                                                      \
        return ZAR_SLOT(t##ErfInv, slot) != nullptr;                                               \
    }                                                                                              \
    static void SinCos(int32_t n, const T* x, T* s, T* c) {                                        \
        ZAR_SLOT(t##SinCos, slot)(n, x, s, c);                                                     \
    }                                                                                              \
    static T Powx(T x, T b) {                                                                      \
        T y;                                                                                       \
        ZAR_SLOT(t##Powx, slot)(1, &x, b, &y);                                                     \
        return y;                                                                                  \
    }

template <>
struct Ref<double> {
    using T = double;
    static constexpr T kTwoPi = 6.283185307179586;
    static constexpr T kHalfPi = 1.5707963267948966;
    static constexpr int32_t kChunk = 2;
    static std::vector<T> Uniforms(void* s, int32_t n, T a, T b) {
        std::vector<T> u(n > 0 ? n : 0);
        EXPECT_GE(_qesdRngUniform(0, s, n, u.data(), a, b), 0);
        return u;
    }
    BRENN_REF(d, brenn::frame::SlotEP)
};

template <>
struct Ref<float> {
    using T = float;
    static constexpr T kTwoPi = 6.28318548f;  // 0x40C90FDB
    static constexpr T kHalfPi = 1.57079637f; // 0x3FC90FDB
    static constexpr int32_t kChunk = 1;
    static std::vector<T> Uniforms(void* s, int32_t n, T a, T b) {
        std::vector<T> u(n > 0 ? n : 0);
        EXPECT_GE(_qessRngUniform(0, s, n, u.data(), a, b), 0);
        return u;
    }
    BRENN_REF(s, brenn::frame::SlotLA)
};

#undef BRENN_REF
#undef BRENN_REF_ONE

// The radius sqrt(-2 ln u) as the generators form it.
template <typename T>
T Radius(T u) {
    T l = Ref<T>::Ln(u);
    return Ref<T>::Sqrt(-(l + l));
}

// Sines and cosines of the pair method as it groups them: whole blocks of 512 pairs,
// then the remaining pairs in one call (SinCos need not give the same last bit for
// an element whatever its place in a call).
template <typename T>
void BlockedSinCos(const std::vector<T>& angle, int32_t pairs, T* sine, T* cosine) {
    for (int32_t done = 0; done < pairs;) {
        int32_t m = pairs - done >= 512 ? 512 : pairs - done;
        Ref<T>::SinCos(m, angle.data() + done, sine + done, cosine + done);
        done += m;
    }
}

// The unit Gaussian variates of the pair method from a fresh stream, in one call:
// sine then cosine of each pair, an odd last one a sine half alone.
template <typename T>
std::vector<T> UnitPairs(void* s, int32_t n) {
    int32_t pairs = n / 2;
    std::vector<T> u = Ref<T>::Uniforms(s, 2 * ((n + 1) / 2), T(0), T(1)), z(n);
    std::vector<T> angle(pairs), sine(pairs), cosine(pairs);
    for (int32_t i = 0; i < pairs; ++i)
        angle[i] = u[2 * i + 1] * Ref<T>::kTwoPi;
    BlockedSinCos(angle, pairs, sine.data(), cosine.data());
    for (int32_t i = 0; i < pairs; ++i) {
        T radius = Radius(u[2 * i]);
        z[2 * i] = radius * sine[i];
        z[2 * i + 1] = radius * cosine[i];
    }
    if (n % 2 != 0) z[n - 1] = Radius(u[n - 1]) * Ref<T>::Sin(u[n] * Ref<T>::kTwoPi);
    return z;
}

} // namespace brenn::test

#endif
