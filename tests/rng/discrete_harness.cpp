// The counting generator, sample moments, the written-out cumulative values and the
// failure paths of the discrete generators' tests.
#include "tests/rng/discrete_harness.h"

#include <cmath>

#include "platform/serv.h"
#include "tests/rng/caller_settings.h"
#include "tests/rng/toy_brng.h"

namespace brenn::test {

namespace {

std::vector<Request> requests;

int32_t CountS(void* s, int32_t n, float* r, float a, float b) {
    requests.push_back({n, 's'});
    return __qessBRngMT19937(s, n, r, a, b);
}

int32_t CountD(void* s, int32_t n, double* r, double a, double b) {
    requests.push_back({n, 'd'});
    return __qesdBRngMT19937(s, n, r, a, b);
}

} // namespace

int32_t CountingBrngId() {
    static int32_t id = [] {
        BrngRecord row;
        EXPECT_EQ(__qesGetBrngProperties(QES_BRNG_MT19937, &row), 0);
        row.sGenerate = CountS;
        row.dGenerate = CountD;
        return __qesRegisterBrng(&row);
    }();
    return id;
}

std::vector<Request>& Requests() {
    return requests;
}

Moments MomentsOf(const std::vector<int32_t>& x) {
    double mean = 0, m2 = 0;
    for (int32_t v : x)
        mean += v;
    mean /= x.size();
    for (int32_t v : x)
        m2 += (v - mean) * (v - mean);
    return {mean, m2 / (x.size() - 1)};
}

void ExpectMoments(const std::vector<int32_t>& x, double mean, double variance, double sigmas,
                   const char* what) {
    const double n = x.size();
    double m4 = 0;
    for (int32_t v : x)
        m4 += std::pow(v - mean, 4);
    m4 /= n;
    Moments m = MomentsOf(x);
    EXPECT_NEAR(m.mean, mean, sigmas * std::sqrt(variance / n) + 1e-12) << what;
    EXPECT_NEAR(m.variance, variance, sigmas * std::sqrt((m4 - variance * variance) / n) + 1e-12)
        << what;
}

std::vector<double> DoubleUniforms(void* stream, int32_t n) {
    std::vector<double> u(n);
    EXPECT_EQ(_qesdRngUniform(0, stream, n, u.data(), 0.0, 1.0), 0);
    return u;
}

std::vector<double> CumulativeFromTop(const std::vector<double>& f) {
    double total = 0, above = 0;
    for (double v : f)
        total += v;
    std::vector<double> cdf(f.size());
    for (size_t k = f.size(); k-- > 0; above += f[k])
        cdf[k] = total - above;
    return cdf;
}

void ExpectFailuresUndoTheFrame(const DiscreteCall& call, int32_t n, uint32_t limit) {
    CallerSettings caller;
    caller.Set();
    std::vector<int32_t> r(n);
    void* s = NewStepStream(limit);
    EXPECT_EQ(call(s, n, r.data()), QES_RNG_STATUS_RDRAND_FAILED);
    caller.Expect("generator failure");
    __qesDeleteStream(&s);
    s = NewSeeded(QES_BRNG_MT19937, 1);
    void* t = CopyOf(s);
    caller.Set();
    brenn_serv_fail_allocation(1);
    EXPECT_EQ(call(s, n, r.data()), QES_ERROR_MEM_FAILURE);
    brenn_serv_fail_allocation(0);
    caller.Expect("allocation failure");
    EXPECT_EQ(__qesGetNumChunks(s), 0);
    ExpectInStepAndDelete(s, t); // nothing drawn
}

} // namespace brenn::test
