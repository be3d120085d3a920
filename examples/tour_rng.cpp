// The tour's random-number step: a stream of the MCG31M1 generator, a block of
// double uniforms from it, a copy that continues the same sequence, and a
// leapfrogged stream that serves every third element.
#include <cstdio>

#include "brenn_rng.h"

void TourRandom() {
    void* stream = nullptr;
    uint32_t seed = 2024;
    if (__qesNewStreamEx(&stream, QES_BRNG_MCG31M1, 1, &seed) != QES_STATUS_OK) {
        std::printf("random: could not make a stream\n");
        return;
    }
    double u[6];
    _qesdRngUniform(0, stream, 6, u, 0.0, 1.0);
    std::printf("random: six uniforms on [0, 1) from MCG31M1, seed %u:\n ", seed);
    for (double v : u)
        std::printf(" %.9f", v);
    std::printf("\n");

    void* copy = nullptr;
    __qesCopyStream(&copy, stream);
    double a, b;
    _qesdRngUniform(0, stream, 1, &a, 0.0, 1.0);
    _qesdRngUniform(0, copy, 1, &b, 0.0, 1.0);
    std::printf("random: the next uniform of the stream and of its copy: %.9f %.9f\n", a, b);

    int32_t dice[10];
    _qesiRngUniform(0, stream, 10, dice, 1, 7);
    std::printf("random: ten dice:");
    for (int d : dice)
        std::printf(" %d", d);
    std::printf("\n");

    void* third = nullptr;
    __qesNewStreamEx(&third, QES_BRNG_MCG31M1, 1, &seed);
    __qesLeapfrogStream(third, 2, 3);
    double t[2];
    _qesdRngUniform(0, third, 2, t, 0.0, 1.0);
    std::printf("random: leapfrog 2 of 3 serves elements 2 and 5: %.9f %.9f\n", t[0], t[1]);

    __qesDeleteStream(&third);
    __qesDeleteStream(&copy);
    __qesDeleteStream(&stream);
}
