/* What the continuous generators share, by precision: the uniform fetch on an
 * interval, the vector kernels of the fixed slot (LA for single, EP for double)
 * each in its own bracket, the constants, the sentinel callbacks and the Gaussian
 * method table. */
#ifndef BRENN_RNG_DIST_CONTINUOUS_H
#define BRENN_RNG_DIST_CONTINUOUS_H

#include <stdint.h>
#include <string.h>

#include "brenn_rng.h"
#include "rng/dist/frame.h"
#include "rng/dist/lanes.h"

namespace brenn::rng {

constexpr int32_t kContinuousBlock = 1024;

template <typename T>
struct Continuous;

#define BRENN_DIST_KERNELS(t, slot)                                                                \
    static void Ln(int32_t n, T* x) {                                                              \
        Bracketed(ZAR_SLOT(t##Ln, slot), int(n), x, x);                                            \
    }                                                                                              \
    /* Out of place, for the Gaussian sentinel, which reads the argument back from the             \
     * source array. */                                                                            \
    static void LnTo(int32_t n, const T* x, T* y) {                                                \
        Bracketed(ZAR_SLOT(t##Ln, slot), int(n), x, y);                                            \
    }                                                                                              \
    static void Exp(int32_t n, T* x) {                                                             \
        Bracketed(ZAR_SLOT(t##Exp, slot), int(n), x, x);                                           \
    }                                                                                              \
    static void Sin(int32_t n, T* x) {                                                             \
        Bracketed(ZAR_SLOT(t##Sin, slot), int(n), x, x);                                           \
    }                                                                                              \
    static void Cos(int32_t n, T* x) {                                                             \
        Bracketed(ZAR_SLOT(t##Cos, slot), int(n), x, x);                                           \
    }                                                                                              \
    static void Tan(int32_t n, T* x) {                                                             \
        Bracketed(ZAR_SLOT(t##Tan, slot), int(n), x, x);                                           \
    }                                                                                              \
    static void Sqrt(int32_t n, T* x) {                                                            \
        Bracketed(ZAR_SLOT(t##Sqrt, slot), int(n), x, x);                                          \
    }                                                                                              \
    static void ErfInv(int32_t n, T* x) {                                                          \
        Bracketed(ZAR_SLOT(t##ErfInv, slot), int(n), x, x);                                        \
    }                                                                                              \
    static void SinCos(int32_t n, const T* x, T* s, T* c) {                                        \
        Bracketed(ZAR_SLOT(t##SinCos, slot), int(n), x, s, c);                                     \
    }                                                                                              \
    static void Powx(int32_t n, T* x, T b) {                                                       \
        Bracketed(ZAR_SLOT(t##Powx, slot), int(n), x, b, x);                                       \
    }                                                                                              \
    static bool HasErfInv() {                                                                      \
        return ZAR_SLOT(t##ErfInv, slot) != nullptr;                                               \
    }                                                                                              \
    /* The rows every member needs but the inverse Gaussian; null in a build without               \
     * the vector-math kernels. */                                                                 \
    static bool HasRows() {                                                                        \
        return ZAR_SLOT(t##Ln, slot) && ZAR_SLOT(t##Exp, slot) && ZAR_SLOT(t##Sin, slot) &&        \
               ZAR_SLOT(t##Cos, slot) && ZAR_SLOT(t##Tan, slot) && ZAR_SLOT(t##Sqrt, slot) &&      \
               ZAR_SLOT(t##SinCos, slot) && ZAR_SLOT(t##Powx, slot);                               \
    }

template <>
struct Continuous<double> {
    using T = double;
    using Bits = uint64_t;
    static constexpr Bits kSign = Bits{1} << 63;
    static constexpr int32_t kChunk = 2;
    static T TwoPi() { return FromBits(0x401921FB54442D18); }
    static T HalfPi() { return 1.5707963267948966; }
    static T Sqrt2() { return 1.4142135623730951; }
    static T FromBits(Bits b) {
        T x;
        memcpy(&x, &b, sizeof x);
        return x;
    }
    static int32_t Uniform(void* stream, int32_t n, T* r, T a, T b) {
        return _qesdRngUniform(0, stream, n, r, a, b);
    }
    static constexpr ErrorCallback kGaussianCallback = GaussianCallbackD;
    static constexpr ErrorCallback kLogZeroCallback = LogZeroCallbackD;
    static constexpr ErrorCallback kLogZeroOnlyCallback = LogZeroOnlyCallbackD;
    BRENN_DIST_KERNELS(d, brenn::frame::SlotEP)
};

template <>
struct Continuous<float> {
    using T = float;
    using Bits = uint32_t;
    static constexpr Bits kSign = Bits{1} << 31;
    static constexpr int32_t kChunk = 1;
    static T TwoPi() { return FromBits(0x40C90FDB); }
    static T HalfPi() { return FromBits(0x3FC90FDB); }
    static T Sqrt2() { return static_cast<float>(1.4142135623730951); }
    static T FromBits(Bits b) {
        T x;
        memcpy(&x, &b, sizeof x);
        return x;
    }
    static int32_t Uniform(void* stream, int32_t n, T* r, T a, T b) {
        return _qessRngUniform(0, stream, n, r, a, b);
    }
    static constexpr ErrorCallback kGaussianCallback = GaussianCallbackS;
    static constexpr ErrorCallback kLogZeroCallback = LogZeroCallbackS;
    static constexpr ErrorCallback kLogZeroOnlyCallback = LogZeroOnlyCallbackS;
    BRENN_DIST_KERNELS(s, brenn::frame::SlotLA)
};

#undef BRENN_DIST_KERNELS

// -x by the sign bit alone, for each element; r need not be element-aligned.
template <typename T>
inline void FlipSigns(int32_t n, T* r) {
    using L = Lanes<T>;
    int32_t i = 0;
    for (; i + L::kCount <= n; i += L::kCount)
        L::StoreU(r + i, L::Neg(L::LoadU(r + i)));
    for (; i < n; ++i) {
        typename Continuous<T>::Bits b;
        memcpy(&b, r + i, sizeof b);
        b ^= Continuous<T>::kSign;
        memcpy(r + i, &b, sizeof b);
    }
}

// Gaussian methods, each (stream, n, r, a, sigma); the entry point puts the frame
// around them.
template <typename T>
int32_t GaussianBoxMuller(void* stream, int32_t n, T* r, T a, T sigma);
template <typename T>
int32_t GaussianBoxMuller2(void* stream, int32_t n, T* r, T a, T sigma);
template <typename T>
int32_t GaussianInverseCdf(void* stream, int32_t n, T* r, T a, T sigma);

} // namespace brenn::rng

#endif
