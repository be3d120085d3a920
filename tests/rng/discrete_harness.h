// What the tests of the discrete generators share: a generator that counts the
// uniforms asked of it (MT19937 underneath), the moments of a sample, the written-out
// cumulative values, and the failure paths with the caller's settings checked.
#ifndef BRENN_TESTS_RNG_DISCRETE_HARNESS_H
#define BRENN_TESTS_RNG_DISCRETE_HARNESS_H

#include <stdint.h>

#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "brenn_vecmath.h"

namespace brenn::test {

// One request of the counting generator: its count and 's' or 'd'.
struct Request {
    int32_t n;
    char kind;
    bool operator==(const Request&) const = default;
};

// The counting generator's id, registered once, and the requests since the last clear.
int32_t CountingBrngId();
std::vector<Request>& Requests();

// Sample mean and variance.
struct Moments {
    double mean, variance;
};
Moments MomentsOf(const std::vector<int32_t>& x);

// Mean and variance within `sigmas` standard errors of the true ones (the variance's
// error from the sample's fourth central moment).
void ExpectMoments(const std::vector<int32_t>& x, double mean, double variance, double sigmas,
                   const char* what);

// n double uniforms on [0, 1) from a stream.
std::vector<double> DoubleUniforms(void* stream, int32_t n);

// Cumulative values of the probabilities f as the inversions form them: each the total
// less the sum above it.
std::vector<double> CumulativeFromTop(const std::vector<double>& f);

// A call that must fail with the frame undone: with the stepping generator failing
// past `limit` words (its status comes back), and with the chunk's allocation
// failing (-4, no chunk, nothing drawn); the caller's settings back after each.
using DiscreteCall = std::function<int32_t(void* stream, int32_t n, int32_t* r)>;
void ExpectFailuresUndoTheFrame(const DiscreteCall& call, int32_t n, uint32_t limit);

} // namespace brenn::test

#endif
