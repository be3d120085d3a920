// TRNG: the retry limit taken at seeding; retries through a scripted stand-in for
// RDRAND (a success on repeat R - 1 passes, on repeat R fails, pairs retried
// together, the odd word alone, what was made before a failure kept); the element
// forms; a processor without RDRAND; no jumps; and the real instruction when the
// processor has it.
#include <cstring>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"
#include "rng/core/cpu_hooks.h"
#include "tests/rng/bad_input.h"

namespace {

namespace hooks = brenn::rng::testing;

// The stand-in: calls numbered from 0; a call in `failing` fails, any other stores
// 0x1000 + its number.
struct Script {
    std::set<int> failing;
    int calls = 0;
};
Script script;

int ScriptedStep(uint32_t* word) {
    int call = script.calls++;
    if (script.failing.count(call)) return 0;
    *word = 0x1000u + static_cast<uint32_t>(call);
    return 1;
}

// Runs body with the stand-in in place of RDRAND (and RDRAND reported present).
template <typename Body>
void Scripted(std::set<int> failing, Body body) {
    script = Script{std::move(failing), 0};
    hooks::rdrandStep = ScriptedStep;
    uint32_t hidden = hooks::hiddenFeatures;
    body();
    hooks::rdrandStep = nullptr;
    hooks::hiddenFeatures = hidden;
}

void* NewTrng(std::vector<uint32_t> seed) {
    void* s = nullptr;
    EXPECT_EQ(__qesNewStreamEx(&s, QES_BRNG_TRNG, static_cast<int32_t>(seed.size()), seed.data()),
              0);
    return s;
}

uint32_t Retries(const void* s) {
    uint32_t r;
    std::memcpy(&r, static_cast<const char*>(s) + 20, 4);
    return r;
}

std::set<int> FirstCalls(int count) {
    std::set<int> s;
    for (int i = 0; i < count; ++i)
        s.insert(i);
    return s;
}

TEST(RngTrng, SeedingTakesTheRetryLimit) {
    struct {
        std::vector<uint32_t> seed;
        uint32_t retries;
    } cases[] = {{{0, 0}, 10}, {{}, 10}, {{99}, 10}, {{5, 7}, 7}, {{5, 1, 3}, 1}, {{0, ~0u}, ~0u}};
    for (auto& c : cases) {
        void* s = NewTrng(c.seed);
        EXPECT_EQ(Retries(s), c.retries) << c.seed.size();
        uint32_t zero;
        std::memcpy(&zero, static_cast<const char*>(s) + 16, 4);
        EXPECT_EQ(zero, 0u);
        __qesDeleteStream(&s);
    }
}

// A single word (n = 1) failing f times succeeds on repeat f: below the limit R it
// passes, at R (or beyond) it fails; each try is one call.
TEST(RngTrng, RepeatsMustStayBelowTheLimit) {
    for (uint32_t R : {1u, 2u, 3u, 10u}) {
        void* s = NewTrng({0, R});
        for (uint32_t f : {0u, R - 1, R, R + 1, R + 5}) {
            Scripted(FirstCalls(static_cast<int>(f)), [&] {
                uint32_t w = 7;
                int32_t status = __qesiBRngTRNG(s, 1, &w);
                if (f < R) {
                    EXPECT_EQ(status, 0) << "R " << R << " failures " << f;
                    EXPECT_EQ(w, 0x1000u + f);
                } else {
                    EXPECT_EQ(status, QES_RNG_STATUS_RDRAND_FAILED)
                        << "R " << R << " failures " << f;
                    EXPECT_EQ(w, 7u) << "a failed word is not stored";
                }
                // Tries: the first and at most R repeats.
                EXPECT_EQ(script.calls, static_cast<int>(std::min(f, R) + 1));
            });
        }
        __qesDeleteStream(&s);
    }
}

// Both words of a pair are tried again when either fails; the odd word goes alone;
// what came before a failure stays in r, nothing after it is written.
TEST(RngTrng, PairsAreRetriedTogether) {
    void* s = NewTrng({0, 3});
    Scripted({1}, [&] {
        uint32_t w[3] = {0, 0, 0};
        EXPECT_EQ(__qesiBRngTRNG(s, 3, w), 0);
        EXPECT_EQ(script.calls, 5); // pair, pair again, the odd word
        EXPECT_EQ(w[0], 0x1002u);
        EXPECT_EQ(w[1], 0x1003u);
        EXPECT_EQ(w[2], 0x1004u);
    });
    // The second pair fails twice (its first word, then its second): the success on
    // repeat 2 passes with R = 3; a third failure makes the success fall on repeat 3.
    Scripted({2, 5}, [&] {
        uint32_t w[6] = {7, 7, 7, 7, 7, 7};
        EXPECT_EQ(__qesiBRngTRNG(s, 6, w), 0);
        EXPECT_EQ(script.calls, 10);
        EXPECT_EQ(w[2], 0x1006u);
        EXPECT_EQ(w[3], 0x1007u);
    });
    Scripted({2, 5, 7}, [&] {
        uint32_t w[6] = {7, 7, 7, 7, 7, 7};
        EXPECT_EQ(__qesiBRngTRNG(s, 6, w), QES_RNG_STATUS_RDRAND_FAILED);
        EXPECT_EQ(script.calls, 10);
        EXPECT_EQ(w[0], 0x1000u);
        EXPECT_EQ(w[1], 0x1001u);
        for (int i = 2; i < 6; ++i)
            EXPECT_EQ(w[i], 7u) << i;
    });
    __qesDeleteStream(&s);
}

// sGenerate: float(u) s + a with s = (b - a) 2.3283064e-10f, in pairs; dGenerate: a
// pair as one unsigned 64-bit integer, first word low, times (b - a) 2^-64, plus a.
TEST(RngTrng, ElementForms) {
    void* s = NewTrng({0, 0});
    Scripted({}, [&] {
        float f[3];
        ASSERT_EQ(__qessBRngTRNG(s, 3, f, -2.0f, 6.0f), 0);
        const float scale = (6.0f - -2.0f) * 2.3283064e-10f;
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(f[i], static_cast<float>(0x1000u + i) * scale + -2.0f) << i;
        EXPECT_EQ(script.calls, 3);
    });
    Scripted({3}, [&] {
        double d[2];
        ASSERT_EQ(__qesdBRngTRNG(s, 2, d, 1.0, 4.0), 0);
        EXPECT_EQ(script.calls, 6);
        const uint64_t first = 0x1000u | (uint64_t{0x1001u} << 32);
        const uint64_t second = 0x1004u | (uint64_t{0x1005u} << 32);
        EXPECT_EQ(d[0], static_cast<double>(first) * (3.0 * 0x1p-64) + 1.0);
        EXPECT_EQ(d[1], static_cast<double>(second) * (3.0 * 0x1p-64) + 1.0);
    });
    __qesDeleteStream(&s);
}

// Without RDRAND every entry refuses and leaves r alone, and an image loads as
// nothing; TRNG has no jumps at all.
TEST(RngTrng, WithoutRdrandAndWithoutJumps) {
    void* s = NewTrng({});
    hooks::hiddenFeatures = hooks::kHideRdrand;
    uint32_t w[2] = {7, 7};
    float f[2] = {7, 7};
    double d[2] = {7, 7};
    EXPECT_EQ(__qesiBRngTRNG(s, 2, w), QES_RNG_STATUS_NO_RDRAND);
    EXPECT_EQ(__qessBRngTRNG(s, 2, f, 0, 1), QES_RNG_STATUS_NO_RDRAND);
    EXPECT_EQ(__qesdBRngTRNG(s, 2, d, 0, 1), QES_RNG_STATUS_NO_RDRAND);
    EXPECT_TRUE(w[1] == 7 && f[1] == 7 && d[1] == 7);
    std::vector<uint8_t> image(static_cast<size_t>(__qesGetStreamSize(s)));
    ASSERT_EQ(__qesSaveStreamM(s, image.data()), 0);
    int64_t live = brenn_serv_live_allocations();
    void* loaded = reinterpret_cast<void*>(1);
    EXPECT_EQ(__qesLoadStreamM(&loaded, image.data()), QES_RNG_STATUS_NO_RDRAND);
    EXPECT_EQ(loaded, nullptr);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
    hooks::hiddenFeatures = 0;

    uint64_t count[2] = {1, 0};
    EXPECT_EQ(__qesLeapfrogStream(s, 0, 2), QES_RNG_STATUS_NO_LEAPFROG);
    EXPECT_EQ(__qesSkipAheadStream(s, 1), QES_RNG_STATUS_NO_SKIPAHEAD);
    EXPECT_EQ(__qesSkipAheadStreamEx(s, 2, count), QES_RNG_STATUS_NO_SKIPAHEAD_EX);
    for (int32_t method : {-1, 4, 99})
        EXPECT_EQ(__qesBRngTRNGInitStream(method, s, 0, nullptr), QES_STATUS_BAD_METHOD);
    __qesDeleteStream(&s);
}

TEST(RngTrng, TheProcessorsWords) {
    if (!__qesCPUisRDRAND()) GTEST_SKIP() << "no RDRAND on this processor";
    void* s = NewTrng({});
    std::vector<uint32_t> w(1001);
    ASSERT_EQ(__qesiBRngTRNG(s, 1001, w.data()), 0);
    EXPECT_GT(std::set<uint32_t>(w.begin(), w.end()).size(), 990u);
    std::vector<double> d(1000);
    ASSERT_EQ(__qesdBRngTRNG(s, 1000, d.data(), 2.0, 3.0), 0);
    for (double x : d)
        ASSERT_TRUE(x >= 2.0 && x <= 3.0) << x;
    __qesDeleteStream(&s);
}

} // namespace
