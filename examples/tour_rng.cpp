// The tour's random-number step: a stream of the MCG31M1 generator, a block of
// double uniforms from it, a copy that continues the same sequence, and a
// leapfrogged stream that serves every third element; then the Mersenne Twister
// family: MT2203 members as parallel streams, an MT19937 skip-ahead, and a stream
// saved to memory and loaded again; an MRG32K3A sequence split by skip-ahead and
// two members of the Wichmann-Hill set; last a 5-dimensional integral estimated by
// Sobol points and by pseudo-random ones.
#include <cstdio>
#include <vector>

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

    // Members of MT2203 with one seed: independent streams for parallel work.
    std::printf("random: first words of MT2203 members 0, 1, 3000 and 6023, one seed:");
    for (int32_t member : {0, 1, 3000, 6023}) {
        void* m = nullptr;
        uint32_t w = 0;
        if (__qesNewStreamEx(&m, QES_BRNG_MT2203 + member, 1, &seed) == QES_STATUS_OK)
            __qesiBRngMT2203(m, 1, &w);
        std::printf(" %08x", w);
        __qesDeleteStream(&m);
    }
    std::printf("\n");

    // Skip-ahead: a jump of 2^40 words lands where generating them would.
    void* mt = nullptr;
    __qesNewStreamEx(&mt, QES_BRNG_MT19937, 1, &seed);
    __qesSkipAheadStream(mt, uint64_t{1} << 40);
    double after[2];
    _qesdRngUniform(0, mt, 2, after, 0.0, 1.0);
    std::printf("random: MT19937 after a jump of 2^40: %.9f %.9f\n", after[0], after[1]);

    // Saved to memory and loaded, the stream continues where it was.
    std::vector<char> image(static_cast<size_t>(__qesGetStreamSize(mt)));
    __qesSaveStreamM(mt, image.data());
    void* loaded = nullptr;
    __qesLoadStreamM(&loaded, image.data());
    double x = 0, y = 0;
    _qesdRngUniform(0, mt, 1, &x, 0.0, 1.0);
    if (loaded != nullptr) _qesdRngUniform(0, loaded, 1, &y, 0.0, 1.0);
    std::printf("random: next of the stream and of its saved image (%zu bytes): %.9f %.9f\n",
                image.size(), x, y);
    __qesDeleteStream(&loaded);
    __qesDeleteStream(&mt);

    // One MRG32K3A sequence split in two by skip-ahead: the second stream starts
    // 10^6 elements on, where the first one's share ends.
    const uint32_t six[6] = {12345, 12345, 12345, 12345, 12345, 12345};
    void* halves[2] = {nullptr, nullptr};
    for (void*& h : halves)
        __qesNewStreamEx(&h, QES_BRNG_MRG32K3A, 6, six);
    __qesSkipAheadStream(halves[1], 1000000);
    double head = 0, second = 0;
    _qesdRngUniform(0, halves[0], 1, &head, 0.0, 1.0);
    _qesdRngUniform(0, halves[1], 1, &second, 0.0, 1.0);
    std::printf("random: MRG32K3A elements 0 and 1000000 of one sequence: %.9f %.9f\n", head,
                second);
    for (void*& h : halves)
        __qesDeleteStream(&h);

    // Two members of the Wichmann-Hill set, one seed of four words (one a component;
    // small words would start every member near 0): two independent streams.
    const uint32_t four[4] = {3141592, 2718281, 1414213, 1732050};
    std::printf("random: WH members 0 and 272, one seed:");
    for (int32_t member : {0, 272}) {
        void* wh = nullptr;
        double v[2] = {0, 0};
        if (__qesNewStreamEx(&wh, QES_BRNG_WH + member, 4, four) == QES_STATUS_OK)
            _qesdRngUniform(0, wh, 2, v, 0.0, 1.0);
        std::printf(" %.9f %.9f", v[0], v[1]);
        __qesDeleteStream(&wh);
    }
    std::printf("\n");

    // The integral of (2 x1)(2 x2)...(2 x5) over the unit cube is 1: 4096 points of a
    // 5-dimensional Sobol stream against 4096 of MCG31M1.
    const uint32_t five = 5;
    void* qmc[2] = {nullptr, nullptr};
    __qesNewStreamEx(&qmc[0], QES_BRNG_SOBOL, 1, &five);
    __qesNewStreamEx(&qmc[1], QES_BRNG_MCG31M1, 1, &seed);
    std::vector<double> pts(5 * 4096);
    double estimate[2] = {0, 0};
    for (int k = 0; k < 2; ++k) {
        if (qmc[k] == nullptr || _qesdRngUniform(0, qmc[k], 5 * 4096, pts.data(), 0.0, 1.0) != 0)
            continue;
        for (int i = 0; i < 4096; ++i) {
            double f = 1;
            for (int j = 0; j < 5; ++j)
                f *= 2 * pts[5 * i + j];
            estimate[k] += f / 4096;
        }
        __qesDeleteStream(&qmc[k]);
    }
    std::printf("random: integral of a product over [0, 1]^5 (exactly 1), 4096 points: "
                "Sobol %.6f, MCG31M1 %.6f\n",
                estimate[0], estimate[1]);
}
