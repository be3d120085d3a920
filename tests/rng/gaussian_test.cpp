// Gaussian variates, both precisions: every method against its plain transcription
// over the same uniforms at many lengths and alignments, the uniforms each method
// takes, the waiting half of the pair method across calls of any sizes, the sentinel
// radius for a uniform of exactly 0, and the caller's settings coming back.
#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "brenn_vecmath.h"
#include "frame/fpenv.h"
#include "tests/rng/continuous_ref.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

int32_t Gaussian(int32_t m, void* s, int32_t n, float* r, float a, float sigma) {
    return _qessRngGaussian(m, s, n, r, a, sigma);
}
int32_t Gaussian(int32_t m, void* s, int32_t n, double* r, double a, double sigma) {
    return _qesdRngGaussian(m, s, n, r, a, sigma);
}

// Method 0: the sine half of each pair, a + (R sigma) sin.
template <typename T>
std::vector<T> BoxMuller(void* s, int32_t n, T a, T sigma) {
    std::vector<T> u = Ref<T>::Uniforms(s, 2 * n, T(0), T(1)), z(n);
    for (int32_t i = 0; i < n; ++i)
        z[i] = Radius(u[2 * i]) * sigma * Ref<T>::Sin(u[2 * i + 1] * Ref<T>::kTwoPi) + a;
    return z;
}

// Method 1 from a fresh stream, a and sigma at delivery.
template <typename T>
std::vector<T> BoxMuller2(void* s, int32_t n, T a, T sigma) {
    std::vector<T> z = UnitPairs<T>(s, n);
    for (T& x : z)
        x = x * sigma + a;
    return z;
}

template <typename T>
std::vector<T> InverseCdf(void* s, int32_t n, T a, T sigma) {
    std::vector<T> u = Ref<T>::Uniforms(s, n, T(-1), T(1)), z(n);
    T scale = T(1.4142135623730951) * sigma;
    for (int32_t i = 0; i < n; ++i)
        z[i] = Ref<T>::ErfInv(u[i]) * scale + a;
    return z;
}

template <typename T>
std::vector<T> Expected(int32_t method, void* s, int32_t n, T a, T sigma) {
    if (method == 0) return BoxMuller(s, n, a, sigma);
    if (method == 1) return BoxMuller2(s, n, a, sigma);
    return InverseCdf(s, n, a, sigma);
}

template <typename T>
bool Skipped(int32_t method) {
    return method == 2 && !Ref<T>::HasErfInv();
}

template <typename T>
void ExpectTranscription() {
    std::vector<int32_t> lengths;
    for (int32_t n = 0; n <= 17; ++n)
        lengths.push_back(n);
    for (int32_t n : {1023, 1024, 1025, 5000})
        lengths.push_back(n);
    for (int32_t method = 0; method < 3; ++method) {
        if (Skipped<T>(method)) continue;
        for (int32_t n : lengths) {
            for (size_t offset : {size_t{0}, size_t{1}, size_t{3}}) {
                void* s = NewSeeded(QES_BRNG_MT19937, 17 + n);
                void* t = CopyOf(s);
                std::vector<T> buffer(n + 4, T(-99));
                T* r = buffer.data() + offset;
                ASSERT_GE(Gaussian(method, s, n, r, T(1.5), T(0.25)), 0);
                std::vector<T> z = Expected<T>(method, t, n, T(1.5), T(0.25));
                for (int32_t i = 0; i < n; ++i)
                    ASSERT_EQ(r[i], z[i]) << "method " << method << " n " << n << " i " << i;
                EXPECT_EQ(r[n], T(-99));
                ExpectInStepAndDelete(s, t);
            }
        }
    }
}

TEST(RngGaussian, EachMethodIsItsTranscription) {
    if (!Ref<double>::HasErfInv())
        GTEST_LOG_(INFO) << "no ErfInv row: the inverse method is left out";
    ExpectTranscription<double>();
    ExpectTranscription<float>();
}

// Words the stepping generator has served.
uint32_t Served(void* s) {
    return ToyState(s)[0];
}

template <typename T>
void ExpectConsumption() {
    std::vector<T> r(1025);
    void* s = NewStepStream(1u << 30);
    ASSERT_EQ(Gaussian(0, s, 1025, r.data(), T(0), T(1)), 0);
    EXPECT_EQ(Served(s), 2050u);
    __qesDeleteStream(&s);

    s = NewStepStream(1u << 30);
    ASSERT_EQ(Gaussian(1, s, 1025, r.data(), T(0), T(1)), 0);
    EXPECT_EQ(Served(s), 1026u);
    __qesDeleteStream(&s);

    // One waiting half: n = 1 takes a pair, the next n = 1 nothing.
    s = NewSeeded(QES_BRNG_MT19937, 5);
    void* t = CopyOf(s);
    ASSERT_EQ(Gaussian(1, s, 1, r.data(), T(0), T(1)), 0);
    T* pending = static_cast<T*>(__qesSearchChunk(s, Ref<T>::kChunk));
    ASSERT_NE(pending, nullptr);
    std::vector<T> u = Ref<T>::Uniforms(t, 2, T(0), T(1));
    EXPECT_EQ(pending[0], u[0]); // the raw uniforms wait
    EXPECT_EQ(pending[1], u[1]);
    ASSERT_EQ(Gaussian(1, s, 1, r.data() + 1, T(0), T(1)), 0);
    EXPECT_EQ(pending[0], T(-1));
    EXPECT_EQ(pending[1], T(-1));
    ExpectInStepAndDelete(s, t); // the second call took nothing

    // Without the ErfInv row the inverse method is refused and takes nothing.
    s = NewStepStream(1u << 30);
    ASSERT_EQ(Gaussian(2, s, 1025, r.data(), T(0), T(1)),
              Skipped<T>(2) ? QES_STATUS_BAD_METHOD : QES_STATUS_OK);
    EXPECT_EQ(Served(s), Skipped<T>(2) ? 0u : 1025u);
    __qesDeleteStream(&s);
}

TEST(RngGaussian, UniformsTaken) {
    ExpectConsumption<double>();
    ExpectConsumption<float>();
}

// One call of n against calls cut anywhere: the waiting half carries over, and a
// change of a and sigma between calls applies to it.
template <typename T>
void ExpectCutsAgree() {
    std::mt19937 cuts(11);
    for (int32_t method = 0; method < 3; ++method) {
        if (Skipped<T>(method)) continue;
        for (int trial = 0; trial < 12; ++trial) {
            int32_t n = trial == 0 ? 8 : static_cast<int32_t>(cuts() % 3000);
            void* s = NewSeeded(QES_BRNG_MCG59, 3 + trial);
            void* t = CopyOf(s);
            std::vector<T> whole(n), pieces(n);
            ASSERT_GE(Gaussian(method, s, n, whole.data(), T(2), T(3)), 0);
            for (int32_t done = 0; done < n;) {
                int32_t k = trial == 0 ? (done == 0 ? 3 : 5)
                                       : static_cast<int32_t>(cuts() % (n - done + 1));
                ASSERT_GE(Gaussian(method, t, k, pieces.data() + done, T(2), T(3)), 0);
                done += k;
            }
            // Bit for bit, also where a cut moves a pair of the pair method between
            // SinCos, Sin and Cos or to another place in a SinCos call.
            for (int32_t i = 0; i < n; ++i)
                ASSERT_EQ(whole[i], pieces[i]) << "method " << method << " n " << n << " i " << i;
            __qesDeleteStream(&s);
            __qesDeleteStream(&t);
        }
    }
    // The cosine half computed by the first call is scaled by the second call's a
    // and sigma.
    void* s = NewSeeded(QES_BRNG_MT19937, 9);
    void* t = CopyOf(s);
    T r[2], unit[2];
    ASSERT_EQ(Gaussian(1, s, 1, r, T(0), T(1)), 0);
    ASSERT_EQ(Gaussian(1, s, 1, r + 1, T(10), T(2)), 0);
    ASSERT_EQ(Gaussian(1, t, 2, unit, T(0), T(1)), 0);
    EXPECT_EQ(r[0], unit[0]);
    EXPECT_EQ(r[1], unit[1] * T(2) + T(10)) << unit[1];
    __qesDeleteStream(&s);
    __qesDeleteStream(&t);
}

TEST(RngGaussian, CallsCutAnywhereAgree) {
    ExpectCutsAgree<double>();
    ExpectCutsAgree<float>();
}

TEST(RngGaussian, ZeroUniformGivesTheSentinelRadius) {
    // The stepping generator starts at exactly 0: the first pair is (0, 1/7).
    const double radius = std::sqrt(2 * 744.44007192138122);
    for (int32_t method : {0, 1}) {
        void* s = NewStepStream(100);
        double r[2];
        ASSERT_EQ(_qesdRngGaussian(method, s, 1, r, 0.0, 1.0), 0);
        EXPECT_NEAR(r[0] / std::sin(2 * M_PI / 7), radius, 1e-6 * radius);
        EXPECT_NEAR(radius, 38.586, 1e-3);
        __qesDeleteStream(&s);
        float f[1];
        s = NewStepStream(100);
        ASSERT_EQ(_qessRngGaussian(method, s, 1, f, 0.0f, 1.0f), 0);
        EXPECT_NEAR(f[0] / std::sin(2 * M_PI / 7), std::sqrt(2 * 103.2789306640625), 1e-4);
        __qesDeleteStream(&s);
    }
    if (Ref<double>::HasErfInv()) {
        // Uniforms on [-1, 1) from the stepping generator: the first is exactly -1.
        void* s = NewStepStream(100);
        double r[1];
        ASSERT_EQ(_qesdRngGaussian(2, s, 1, r, 0.0, 1.0), 0);
        EXPECT_EQ(r[0], -5.8635847487551676 * 1.4142135623730951);
        __qesDeleteStream(&s);
    } else {
        GTEST_LOG_(INFO) << "no ErfInv row: the inverse sentinel is not checked";
    }
}

struct Settings {
    uint32_t mode;
    ErrorCallback callback;
    uint16_t cw;
    uint32_t csr;
    bool operator==(const Settings&) const = default;
};

Settings Read() {
    return {brenn_zar_kernel_GetMode(), brenn_zar_kernel_GetErrorCallBack(),
            brenn::frame::ReadX87ControlWord(), brenn::frame::ReadCsr()};
}

int Marker(ErrorRecord*) {
    return 0;
}

TEST(RngGaussian, CallerSettingsComeBackAndEarlierBlocksStay) {
    const uint32_t callerMode = brenn_zar_kernel_GetMode();
    brenn_zar_kernel_SetMode(BRENN_MODE_LA | BRENN_MODE_ERRMODE_STDERR);
    brenn_zar_kernel_SetErrorCallBack(Marker);
    brenn::frame::LoadX87ControlWord(0x037A);
    brenn::frame::LoadCsr((0x1F80 & ~0x0200u) | 0x6000);
    const Settings before = Read();
    std::vector<double> r(3000, -7);
    for (int32_t method = 0; method < 3; ++method) {
        if (Skipped<double>(method)) continue;
        for (uint32_t limit : {100000u, 2500u}) {
            void* s = NewStepStream(limit);
            int32_t status = _qesdRngGaussian(method, s, 3000, r.data(), 0.0, 1.0);
            EXPECT_EQ(status, limit == 2500u ? QES_RNG_STATUS_RDRAND_FAILED : 0);
            EXPECT_TRUE(Read() == before) << "method " << method;
            __qesDeleteStream(&s);
        }
    }
    // Method 0's first block of 1024 came from 2048 words, before the failure.
    void* s = NewStepStream(2500);
    void* t = NewStepStream(100000);
    ASSERT_EQ(_qesdRngGaussian(0, s, 3000, r.data(), 0.0, 1.0), QES_RNG_STATUS_RDRAND_FAILED);
    std::vector<double> z(1024);
    ASSERT_EQ(_qesdRngGaussian(0, t, 1024, z.data(), 0.0, 1.0), 0);
    EXPECT_EQ(std::memcmp(r.data(), z.data(), 1024 * sizeof(double)), 0);
    EXPECT_TRUE(Read() == before);
    __qesDeleteStream(&s);
    __qesDeleteStream(&t);
    brenn::frame::LoadX87ControlWord(0x037F);
    brenn::frame::LoadCsr(0x1F80);
    brenn_zar_kernel_SetErrorCallBack(nullptr);
    brenn_zar_kernel_SetMode(callerMode);
}

// The pair method's chunk: a block that cannot be allocated gives -4 and a chunk that
// cannot be attached the status of __qesAddChunk, with nothing written, taken or left
// behind and the caller's settings back; a fetch that fails after a waiting half was
// delivered leaves that half's radius and cosine in the chunk, not -1.0, and the
// next call takes them as its pair without a fetch.
template <typename T>
void ExpectChunkFailures() {
    std::vector<T> r(3, T(-7));
    void* s = NewStepStream(1u << 30);
    const int64_t live = brenn_serv_live_allocations();
    Settings before = Read();
    brenn_serv_fail_allocation(1);
    EXPECT_EQ(Gaussian(1, s, 3, r.data(), T(0), T(1)), QES_ERROR_MEM_FAILURE);
    brenn_serv_fail_allocation(2);
    EXPECT_EQ(Gaussian(1, s, 3, r.data(), T(0), T(1)), QES_STATUS_NO_MEMORY);
    brenn_serv_fail_allocation(0);
    EXPECT_EQ(Served(s), 0u);
    EXPECT_EQ(__qesSearchChunk(s, Ref<T>::kChunk), nullptr);
    EXPECT_EQ(r, std::vector<T>(3, T(-7)));
    EXPECT_EQ(brenn_serv_live_allocations(), live);
    EXPECT_TRUE(Read() == before);
    __qesDeleteStream(&s);

    // Words k / 7: a pair of 0 and 1/7 delivered whole, then 2/7 and 3/7 waiting.
    s = NewStepStream(4);
    ASSERT_EQ(Gaussian(1, s, 2, r.data(), T(0), T(1)), 0);
    ASSERT_EQ(Gaussian(1, s, 1, r.data(), T(0), T(1)), 0);
    void* t = NewStepStream(4);
    std::vector<T> u = Ref<T>::Uniforms(t, 4, T(0), T(1));
    __qesDeleteStream(&t);
    before = Read(); // the reference kernels above raise flags of their own
    EXPECT_EQ(Gaussian(1, s, 3000, r.data(), T(0), T(1)), QES_RNG_STATUS_RDRAND_FAILED);
    T* pending = static_cast<T*>(__qesSearchChunk(s, Ref<T>::kChunk));
    ASSERT_NE(pending, nullptr);
    EXPECT_EQ(pending[0], Radius(u[2]));
    EXPECT_EQ(pending[1], Ref<T>::Cos(u[3] * Ref<T>::kTwoPi));
    EXPECT_TRUE(Read() == before);
    EXPECT_EQ(Gaussian(1, s, 1, r.data(), T(0), T(1)), 0);
    EXPECT_EQ(Served(s), 4u);
    EXPECT_EQ(pending[0], T(-1));
    __qesDeleteStream(&s);
}

TEST(RngGaussian, PairMethodChunkFailures) {
    ExpectChunkFailures<double>();
    ExpectChunkFailures<float>();
}

} // namespace
