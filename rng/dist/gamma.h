/* What the Gamma family (Gamma, ChiSquare, Beta) needs beside the continuous members'
 * kernels, by precision: its chunk tag, the scalar logarithm of the rare slow tests,
 * and one-element HA set-up calls. */
#ifndef BRENN_RNG_DIST_GAMMA_H
#define BRENN_RNG_DIST_GAMMA_H

#include <stdint.h>

#include "rng/dist/continuous.h"
#include "vecmath/explog/scalar_log.h"

namespace brenn::rng {

template <typename T>
struct GammaOf;

template <>
struct GammaOf<double> {
    static constexpr int32_t kChunk = 7;
    static double Third() { return Continuous<double>::FromBits(0x3FD5555555555555); }
    static double Squeeze() { return Continuous<double>::FromBits(0x3FA0F27BB2FEC56D); } // 0.0331
    static double ScalarLn(double x) { return __qesdLn(x); }
    static double LnHA(double x) {
        double y;
        Bracketed(ZAR_SLOT(dLn, brenn::frame::SlotHA), 1, &x, &y);
        return y;
    }
    static double ExpHA(double x) {
        double y;
        Bracketed(ZAR_SLOT(dExp, brenn::frame::SlotHA), 1, &x, &y);
        return y;
    }
};

template <>
struct GammaOf<float> {
    static constexpr int32_t kChunk = 8;
    static float Third() { return 1.0f / 3.0f; }
    static float Squeeze() { return 0.0331f; }
    static float ScalarLn(float x) { return __qessLn(x); }
    static float LnHA(float x) {
        float y;
        Bracketed(ZAR_SLOT(sLn, brenn::frame::SlotHA), 1, &x, &y);
        return y;
    }
    static float ExpHA(float x) {
        float y;
        Bracketed(ZAR_SLOT(sExp, brenn::frame::SlotHA), 1, &x, &y);
        return y;
    }
};

} // namespace brenn::rng

#endif
