// The tour's random-number step, through the C++ front-end's owned streams: a stream
// of the MCG31M1 generator, a block of double uniforms from it, a copy that continues
// the same sequence, and a leapfrogged stream that serves every third element; then
// the Mersenne Twister family: MT2203 members as parallel streams, an MT19937
// skip-ahead, a stream saved to memory and loaded again, and the standard library's
// normal distribution drawing from it; an MRG32K3A sequence split by skip-ahead and
// two members of the Wichmann-Hill set; then a 5-dimensional integral estimated by
// Sobol points and by pseudo-random ones; last a PHILOX4X32X10 sequence split by
// skip-ahead whose first part feeds an abstract stream (made through the kernel
// library's entries: the front-end has no abstract streams); Gaussian variates by
// the three methods of the kernel library's Gaussian entry; and Poisson counts by both
// methods and a Multinomial row.
#include <cstdio>
#include <random>
#include <vector>

#include "brenn/brenn.hpp"

using brenn::rng::stream;

namespace {

// The stream whose uniforms the abstract stream's callback copies in: the free run of
// the circular buffer from the start index, in two pieces when it wraps.
stream* feeder = nullptr;

int32_t FeedFromStream(void*, int32_t* size, double* buffer, int32_t*, int32_t* free,
                       int32_t* start) {
    int32_t first = *free < *size - *start ? *free : *size - *start;
    if (!feeder->fill(std::span<double>(buffer + *start, static_cast<size_t>(first))).ok() ||
        !feeder->fill(std::span<double>(buffer, static_cast<size_t>(*free - first))).ok())
        return 0;
    return *free;
}

} // namespace

void TourRandom() {
    const uint32_t seed = 2024;
    auto made = stream::make(QES_BRNG_MCG31M1, seed);
    if (!made) {
        std::printf("random: could not make a stream (%d)\n", made.stat.code);
        return;
    }
    stream s = std::move(made.value);
    std::vector<double> u(6);
    s.fill(std::span<double>(u));
    std::printf("random: six uniforms on [0, 1) from MCG31M1, seed %u:\n ", seed);
    for (double v : u)
        std::printf(" %.9f", v);
    std::printf("\n");

    stream copy = s.copy().value;
    double a = 0, b = 0;
    s.fill(std::span<double>(&a, 1));
    copy.fill(std::span<double>(&b, 1));
    std::printf("random: the next uniform of the stream and of its copy: %.9f %.9f\n", a, b);

    std::vector<int32_t> dice(10);
    s.fill(std::span<int32_t>(dice), brenn::rng::uniform{1, 7});
    std::printf("random: ten dice:");
    for (int d : dice)
        std::printf(" %d", d);
    std::printf("\n");

    stream third = stream::make(QES_BRNG_MCG31M1, seed).value;
    third.leapfrog(2, 3);
    double t[2] = {0, 0};
    third.fill(std::span<double>(t));
    std::printf("random: leapfrog 2 of 3 serves elements 2 and 5: %.9f %.9f\n", t[0], t[1]);

    // Members of MT2203 with one seed: independent streams for parallel work.
    std::printf("random: first words of MT2203 members 0, 1, 3000 and 6023, one seed:");
    for (int32_t member : {0, 1, 3000, 6023}) {
        auto m = stream::make(QES_BRNG_MT2203 + member, seed);
        std::printf(" %08x", m ? m.value() : 0u);
    }
    std::printf("\n");

    // Skip-ahead: a jump of 2^40 words lands where generating them would.
    stream mt = stream::make(QES_BRNG_MT19937, seed).value;
    mt.skip_ahead(uint64_t{1} << 40);
    double after[2] = {0, 0};
    mt.fill(std::span<double>(after));
    std::printf("random: MT19937 after a jump of 2^40: %.9f %.9f\n", after[0], after[1]);

    // Saved to memory and loaded, the stream continues where it was.
    auto image = mt.save();
    stream loaded = stream::load(image.value).value;
    double x = 0, y = 0;
    mt.fill(std::span<double>(&x, 1));
    loaded.fill(std::span<double>(&y, 1));
    std::printf("random: next of the stream and of its saved image (%zu bytes): %.9f %.9f\n",
                image.value.size(), x, y);
    // The stream is a uniform random bit generator: the standard distributions draw on it.
    std::normal_distribution<double> normal(0.0, 1.0);
    std::printf("random: std::normal_distribution over the stream: %.6f %.6f\n", normal(mt),
                normal(mt));

    // One MRG32K3A sequence split in two by skip-ahead: the second stream starts
    // 10^6 elements on, where the first one's share ends.
    const uint32_t six[6] = {12345, 12345, 12345, 12345, 12345, 12345};
    stream halves[2] = {stream::make(QES_BRNG_MRG32K3A, six).value,
                        stream::make(QES_BRNG_MRG32K3A, six).value};
    halves[1].skip_ahead(1000000);
    double head = 0, second = 0;
    halves[0].fill(std::span<double>(&head, 1));
    halves[1].fill(std::span<double>(&second, 1));
    std::printf("random: MRG32K3A elements 0 and 1000000 of one sequence: %.9f %.9f\n", head,
                second);

    // Two members of the Wichmann-Hill set, one seed of four words (one a component;
    // small words would start every member near 0): two independent streams.
    const uint32_t four[4] = {3141592, 2718281, 1414213, 1732050};
    std::printf("random: WH members 0 and 272, one seed:");
    for (int32_t member : {0, 272}) {
        double v[2] = {0, 0};
        auto wh = stream::make(QES_BRNG_WH + member, four);
        if (wh) wh.value.fill(std::span<double>(v));
        std::printf(" %.9f %.9f", v[0], v[1]);
    }
    std::printf("\n");

    // The integral of (2 x1)(2 x2)...(2 x5) over the unit cube is 1: 4096 points of a
    // 5-dimensional Sobol stream against 4096 of MCG31M1.
    const uint32_t five = 5;
    stream qmc[2] = {stream::make(QES_BRNG_SOBOL, five).value,
                     stream::make(QES_BRNG_MCG31M1, seed).value};
    std::vector<double> pts(5 * 4096);
    double estimate[2] = {0, 0};
    for (int k = 0; k < 2; ++k) {
        if (!qmc[k].fill(std::span<double>(pts)).ok()) continue;
        for (int i = 0; i < 4096; ++i) {
            double f = 1;
            for (int j = 0; j < 5; ++j)
                f *= 2 * pts[5 * i + j];
            estimate[k] += f / 4096;
        }
    }
    std::printf("random: integral of a product over [0, 1]^5 (exactly 1), 4096 points: "
                "Sobol %.6f, MCG31M1 %.6f\n",
                estimate[0], estimate[1]);

    // One PHILOX4X32X10 sequence split by skip-ahead into two parts of 2^40 words,
    // and the first part feeding an abstract stream: the callback copies the part's
    // uniforms into the caller's buffer, and the uniform generator draws from it.
    const uint32_t key[6] = {20241126, 7, 0, 0, 0, 0};
    stream parts[2] = {stream::make(QES_BRNG_PHILOX4X32X10, key).value,
                       stream::make(QES_BRNG_PHILOX4X32X10, key).value};
    parts[1].skip_ahead(uint64_t{1} << 40);
    double starts[2] = {0, 0};
    parts[0].fill(std::span<double>(&starts[0], 1));
    parts[1].fill(std::span<double>(&starts[1], 1));
    std::printf("random: PHILOX4X32X10 words 0 and 2^40 of one sequence: %.9f %.9f\n", starts[0],
                starts[1]);
    feeder = &parts[0];
    double ring[8];
    void* fed = nullptr;
    double fromFed[3] = {0, 0, 0};
    if (__qesdNewAbstractStream(&fed, 8, ring, 0.0, 1.0, FeedFromStream) == 0) {
        _qesdRngUniform(0, fed, 3, fromFed, -1.0, 1.0);
        __qesDeleteStream(&fed);
    }
    std::printf("random: an abstract stream fed by the first part, on [-1, 1): %.9f %.9f %.9f\n",
                fromFed[0], fromFed[1], fromFed[2]);

    // Gaussian variates, mean 10 and deviation 2, by the kernel library's three methods
    // on equal MT19937 streams: Box-Muller keeping the sine half of each pair, Box-Muller
    // using both halves, and the inverse CDF. The pair method keeps a waiting half in
    // the stream, so one draw of 1 and one of 3 give the same four as one draw of 4.
    const char* methods[3] = {"Box-Muller, sine half", "Box-Muller, both halves", "inverse CDF"};
    for (int32_t method = 0; method < 3; ++method) {
        void* g = nullptr;
        double z[4] = {0, 0, 0, 0};
        if (__qesNewStreamEx(&g, QES_BRNG_MT19937, 1, &seed) != 0) continue;
        int32_t st = _qesdRngGaussian(method, g, 4, z, 10.0, 2.0);
        __qesDeleteStream(&g);
        std::printf("random: Gaussian(10, 2) by %s (status %d): %.6f %.6f %.6f %.6f\n",
                    methods[method], st, z[0], z[1], z[2], z[3]);
    }
    void* g = nullptr;
    double cut[4] = {0, 0, 0, 0};
    if (__qesNewStreamEx(&g, QES_BRNG_MT19937, 1, &seed) == 0) {
        _qesdRngGaussian(1, g, 1, cut, 10.0, 2.0);
        _qesdRngGaussian(1, g, 3, cut + 1, 10.0, 2.0);
        __qesDeleteStream(&g);
    }
    std::printf("random: the same by both halves, drawn as 1 + 3: %.6f %.6f %.6f %.6f\n", cut[0],
                cut[1], cut[2], cut[3]);

    // Poisson counts of mean 4.5 by the exact method and by the transforming one (one
    // uniform a count), and a Multinomial row: 100 trials over five cells, its counts
    // adding up to 100.
    if (__qesNewStreamEx(&g, QES_BRNG_MT19937, 1, &seed) == 0) {
        int32_t exact[6] = {0}, transformed[6] = {0}, row[5] = {0};
        const double p[5] = {0.4, 0.3, 0.15, 0.1, 0.05};
        int32_t s0 = _qesiRngPoisson(0, g, 6, exact, 4.5);
        int32_t s1 = _qesiRngPoisson(1, g, 6, transformed, 4.5);
        int32_t s2 = _qesiRngMultinomial(0, g, 1, row, 100, 5, p);
        __qesDeleteStream(&g);
        std::printf("random: Poisson(4.5), exact (status %d): %d %d %d %d %d %d; transforming "
                    "(status %d): %d %d %d %d %d %d\n",
                    s0, exact[0], exact[1], exact[2], exact[3], exact[4], exact[5], s1,
                    transformed[0], transformed[1], transformed[2], transformed[3], transformed[4],
                    transformed[5]);
        std::printf("random: Multinomial(100; .4 .3 .15 .1 .05) row (status %d): %d %d %d %d %d\n",
                    s2, row[0], row[1], row[2], row[3], row[4]);
    }
}
