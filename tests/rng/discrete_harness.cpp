// The counting generator, the caller's settings and sample moments of the discrete
// generators' tests.
#include "tests/rng/discrete_harness.h"

#include <cmath>

#include "frame/fpenv.h"

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

int Marker(ErrorRecord*) {
    return 0;
}

constexpr uint16_t kCallerCw = 0x037A;                        // two exceptions unmasked
constexpr uint32_t kCallerCsr = (0x1F80 & ~0x0200u) | 0x6000; // one unmasked, round to zero

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

void CallerSettings::Install() {
    before = brenn_zar_kernel_GetMode();
    brenn_zar_kernel_SetMode(BRENN_MODE_LA | BRENN_MODE_ERRMODE_STDERR);
    brenn_zar_kernel_SetErrorCallBack(Marker);
    brenn::frame::LoadX87ControlWord(kCallerCw);
    brenn::frame::LoadCsr(kCallerCsr);
    mode = brenn_zar_kernel_GetMode();
}

void CallerSettings::ExpectBack(const char* what) const {
    EXPECT_EQ(brenn_zar_kernel_GetMode(), mode) << what;
    EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), &Marker) << what;
    EXPECT_EQ(brenn::frame::ReadX87ControlWord(), kCallerCw) << what;
    EXPECT_EQ(brenn::frame::ReadCsr() & ~0x3Fu, kCallerCsr) << what;
}

void CallerSettings::Reset() const {
    brenn::frame::LoadX87ControlWord(0x037F);
    brenn::frame::LoadCsr(0x1F80);
    brenn_zar_kernel_SetErrorCallBack(nullptr);
    brenn_zar_kernel_SetMode(before);
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

} // namespace brenn::test
