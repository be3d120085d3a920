// Helpers of the quasi-random tests: streams made from a parameter list, words
// drawn, the zero-point-first sequence of a stream, user tables of direction
// numbers, and the state head.
#ifndef BRENN_TESTS_RNG_QRNG_HARNESS_H
#define BRENN_TESTS_RNG_QRNG_HARNESS_H

#include <string.h>

#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"

namespace brenn::test {

using QWords = std::vector<uint32_t>;

inline void* NewQrng(int32_t id, const QWords& params, int32_t expect = 0) {
    void* s = nullptr;
    EXPECT_EQ(__qesNewStreamEx(&s, id, static_cast<int32_t>(params.size()), params.data()), expect);
    return s;
}

inline QWords Draw(int32_t id, void* s, int32_t n, int32_t expect = 0) {
    QWords w(n > 0 ? n : 1);
    EXPECT_EQ(id == QES_BRNG_SOBOL ? __qesiBRngSobol(s, n, w.data())
                                   : __qesiBRngNiederr(s, n, w.data()),
              expect);
    w.resize(n > 0 ? n : 0);
    return w;
}

// The first n words of a fresh stream made with params.
inline QWords FirstQ(int32_t id, const QWords& params, int32_t n) {
    void* s = NewQrng(id, params);
    QWords w = Draw(id, s, n);
    __qesDeleteStream(&s);
    return w;
}

// A user table of direction numbers: random words with the top bit of number b set,
// so that the points are distinct.
inline QWords UserTable(int dim, uint32_t seed) {
    std::mt19937 g(seed);
    QWords p = {static_cast<uint32_t>(dim), 1, 4};
    for (int j = 0; j < dim; ++j)
        for (int b = 0; b < 32; ++b)
            p.push_back(((g() | 0x80000000u) >> b));
    return p;
}

// The head of the state: counter, dimension, leapDimension, component.
struct QHead {
    uint32_t counter;
    int32_t dimension;
    uint32_t leapDimension;
    int32_t component;
};
inline QHead HeadOf(const void* s) {
    QHead h;
    memcpy(&h, static_cast<const char*>(s) + 16, sizeof h);
    return h;
}

} // namespace brenn::test

#endif
