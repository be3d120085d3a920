// Poisson variates, both methods, and PoissonV: each one-uniform way against its
// plain transcription over the same uniforms, the uniforms taken, calls cut
// anywhere and chunks deleted between calls, the exact method's chunk and its two
// ways on either side of 27, the rejection way's moments and batches, the sentinel,
// the statuses and the caller's settings after every path.
#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "brenn_vecmath.h"
#include "frame/fpenv.h"
#include "platform/serv.h"
#include "rng/dist/poisson.h"
#include "tests/rng/poisson_ref.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;
using brenn::rng::PoissonChunk;

// A generator that serves a script of fractions (cycling), scaled to the interval
// asked for, and records the size of each request.
struct Script {
    std::vector<double> fractions;
    size_t next = 0;
    std::vector<int32_t> requests;
    double Next() { return fractions[next++ % fractions.size()]; }
};
Script script;

int32_t ScriptInit(int32_t, void*, int32_t, const void*) {
    return 0;
}
int32_t ScriptS(void*, int32_t n, float* r, float a, float b) {
    script.requests.push_back(n);
    for (int32_t i = 0; i < n; ++i)
        r[i] = a + (b - a) * static_cast<float>(script.Next());
    return 0;
}
int32_t ScriptD(void*, int32_t n, double* r, double a, double b) {
    script.requests.push_back(n);
    for (int32_t i = 0; i < n; ++i)
        r[i] = a + (b - a) * script.Next();
    return 0;
}
int32_t ScriptI(void*, int32_t n, void* r) {
    for (int32_t i = 0; i < n; ++i)
        static_cast<uint32_t*>(r)[i] = 0;
    return 0;
}

void* NewScriptStream(std::vector<double> fractions) {
    static const BrngRecord record = {24, 1, 1, 4, 32, ScriptInit, ScriptS, ScriptD, ScriptI};
    static const int32_t id = __qesRegisterBrng(&record);
    script = Script{std::move(fractions)};
    return NewSeeded(id, 1);
}

const PoissonChunk* ChunkOf(void* s) {
    return static_cast<const PoissonChunk*>(__qesSearchChunk(s, 3));
}

TEST(RngPoisson, InversionIsTheTableSearch) {
    for (double lambda : {1e-3, 0.5, 3.7, 10.0, 26.9}) {
        for (int32_t n : {1, 7, 2024, 2025, 4100}) {
            void* s = NewSeeded(QES_BRNG_MT19937, 11 + n);
            void* t = CopyOf(s);
            std::vector<int32_t> r(n);
            ASSERT_EQ(_qesiRngPoisson(0, s, n, r.data(), lambda), 0);
            std::vector<double> u(n);
            ASSERT_EQ(_qesdRngUniform(0, t, n, u.data(), 0.0, 1.0), 0);
            for (int32_t i = 0; i < n; ++i)
                ASSERT_EQ(r[i], InversionRef(lambda, u[i])) << lambda << " i " << i;
            ExpectInStepAndDelete(s, t); // one double uniform a variate
        }
    }
    // Uniforms at 0, at the first step and near 1, past the table's end.
    for (double lambda : {0.5, 26.9}) {
        std::vector<double> u{0.0, std::exp(-lambda), 1 - 0x1p-53, 1 - 0x1p-40, 0.5};
        void* s = NewScriptStream(u);
        std::vector<int32_t> r(u.size());
        ASSERT_EQ(_qesiRngPoisson(0, s, 5, r.data(), lambda), 0);
        for (size_t i = 0; i < u.size(); ++i)
            EXPECT_EQ(r[i], InversionRef(lambda, u[i])) << lambda << " u " << u[i];
        EXPECT_EQ(r[0], 0);
        __qesDeleteStream(&s);
    }
}

TEST(RngPoisson, TransformIsItsThreeRanges) {
    for (double lambda : {0.01, 0.5, 0.99, 1.0, 1.5, 3.0, 7.9, 26.0, 64.0, 99.9, 100.0, 1e3, 1e5}) {
        for (int32_t n : {1, 6, 1027}) {
            void* s = NewSeeded(QES_BRNG_MCG59, 5 + n);
            void* t = CopyOf(s);
            std::vector<int32_t> r(n);
            ASSERT_EQ(_qesiRngPoisson(1, s, n, r.data(), lambda), 0);
            std::vector<int32_t> want = TransformRef(t, n, lambda);
            for (int32_t i = 0; i < n; ++i)
                ASSERT_EQ(r[i], want[i]) << lambda << " i " << i;
            ExpectInStepAndDelete(s, t); // one uniform a variate in every range
        }
    }
}

TEST(RngPoisson, RangeAGivesElevenAboveTheLastSum) {
    // Uniforms that reach past c[10] (where the bound E lies above it in float) give
    // 11; the scan is over all eleven sums, so 0 and the top of each step agree too.
    int found = 0;
    for (double lambda = 0.5; lambda < 1.0; lambda += 0.001) {
        void* s = NewScriptStream({0.0, 0.999999999, 0.25});
        std::vector<int32_t> r(3);
        ASSERT_EQ(_qesiRngPoisson(1, s, 3, r.data(), lambda), 0);
        __qesDeleteStream(&s);
        EXPECT_EQ(r[0], 0);
        s = NewScriptStream({0.0, 0.999999999, 0.25});
        std::vector<int32_t> want = RangeARef(s, 3, lambda);
        __qesDeleteStream(&s);
        EXPECT_EQ(r, want) << lambda;
        found += r[1] == 11;
    }
    EXPECT_GT(found, 0);
}

TEST(RngPoisson, OneUniformWaysAreCutInvariantAndChunkFree) {
    std::mt19937 cuts(3);
    struct Way {
        int32_t method;
        double lambda;
    };
    for (Way w :
         {Way{0, 0.5}, Way{0, 10.0}, Way{0, 26.9}, Way{1, 0.3}, Way{1, 5.0}, Way{1, 500.0}}) {
        const int32_t n = 5000;
        void* x = NewSeeded(QES_BRNG_MT19937, 77);
        void* y = CopyOf(x);
        std::vector<int32_t> whole(n), pieces(n);
        ASSERT_EQ(_qesiRngPoisson(w.method, x, n, whole.data(), w.lambda), 0);
        for (int32_t done = 0; done < n;) {
            int32_t k = static_cast<int32_t>(cuts() % 2500);
            k = k < n - done ? k : n - done;
            ASSERT_EQ(_qesiRngPoisson(w.method, y, k, pieces.data() + done, w.lambda), 0);
            if (cuts() % 2) __qesDeleteChunks(y); // a cache only
            done += k;
        }
        EXPECT_EQ(whole, pieces) << w.method << " " << w.lambda;
        ExpectInStepAndDelete(x, y);
    }
    std::vector<double> lambdas(5000);
    for (size_t i = 0; i < lambdas.size(); ++i)
        lambdas[i] = std::ldexp(1.0, static_cast<int>(i % 23) - 8) * (1 + (i % 7) / 7.0);
    void* x = NewSeeded(QES_BRNG_MT19937, 78);
    void* y = CopyOf(x);
    std::vector<int32_t> whole(5000), pieces(5000);
    ASSERT_EQ(_qesiRngPoissonV(0, x, 5000, whole.data(), lambdas.data()), 0);
    for (int32_t done = 0; done < 5000;) {
        int32_t k = std::min<int32_t>(static_cast<int32_t>(cuts() % 3000), 5000 - done);
        ASSERT_EQ(_qesiRngPoissonV(0, y, k, pieces.data() + done, lambdas.data() + done), 0);
        done += k;
    }
    EXPECT_EQ(whole, pieces);
    ExpectInStepAndDelete(x, y);
}

TEST(RngPoisson, ExactMethodKeepsItsSetUpInChunkThree) {
    void* s = NewSeeded(QES_BRNG_MT19937, 1);
    std::vector<int32_t> r(100);
    ASSERT_EQ(_qesiRngPoisson(0, s, 0, r.data(), 5.0), 0);
    EXPECT_EQ(__qesGetNumChunks(s), 0); // nothing asked, nothing made
    ASSERT_EQ(_qesiRngPoisson(0, s, 100, r.data(), 26.9), 0);
    const PoissonChunk* c = ChunkOf(s);
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(HeadChunk(s)->size, 696u);
    EXPECT_EQ(c->way, 0);
    EXPECT_EQ(c->lambda, 26.9);
    ASSERT_EQ(_qesiRngPoisson(0, s, 100, r.data(), 27.0), 0);
    EXPECT_EQ(ChunkOf(s), c); // set up again in the same block
    EXPECT_EQ(c->way, 1);
    EXPECT_EQ(c->lambda, 27.0);
    EXPECT_EQ(__qesGetNumChunks(s), 1);
    // The transforming method neither reads nor changes it.
    ASSERT_EQ(_qesiRngPoisson(1, s, 100, r.data(), 3.0), 0);
    EXPECT_EQ(c->lambda, 27.0);
    __qesDeleteStream(&s);
}

// Mean and variance within 5 standard errors (the variance's from the fourth moment).
void ExpectPoissonMoments(const std::vector<int32_t>& x, double lambda, const char* what) {
    double n = static_cast<double>(x.size()), mean = 0, m2 = 0, m4 = 0;
    for (int32_t v : x)
        mean += v;
    mean /= n;
    for (int32_t v : x) {
        double d = v - mean;
        m2 += d * d;
        m4 += d * d * d * d;
    }
    m2 /= n - 1;
    m4 /= n;
    EXPECT_NEAR(mean, lambda, 5 * std::sqrt(lambda / n)) << what << " " << lambda;
    EXPECT_NEAR(m2, lambda, 5 * std::sqrt((m4 - m2 * m2) / n)) << what << " " << lambda;
}

TEST(RngPoisson, RejectionWayMomentsAndBatches) {
    for (double lambda : {27.0, 45.5, 200.0, 1e4, 1e6, 1e8}) {
        void* s = NewSeeded(QES_BRNG_MT19937, 9);
        std::vector<int32_t> r(200000);
        ASSERT_EQ(_qesiRngPoisson(0, s, 200000, r.data(), lambda), 0);
        ExpectPoissonMoments(r, lambda, "exact");
        __qesDeleteStream(&s);
    }
    // Pairs of single uniforms, up to 1024 pairs a batch, a batch's rest dropped.
    void* s = NewScriptStream({0.01, 0.5, 0.6, 0.25});
    std::vector<int32_t> r(3000);
    ASSERT_EQ(_qesiRngPoisson(0, s, 3000, r.data(), 100.0), 0);
    ASSERT_GE(script.requests.size(), 3u);
    EXPECT_EQ(script.requests[0], 2048);
    EXPECT_EQ(script.requests[1], 2048);
    EXPECT_EQ(script.requests[2], 2 * 952);
    __qesDeleteStream(&s);
}

int reports = 0;
int Counting(ErrorRecord*) {
    ++reports;
    return 0;
}

TEST(RngPoisson, ZeroUniformMeetsTheSentinel) {
    // lambda 100: p1 = 19.5. A pair in either tail with v = 0 has ln v at the sentinel
    // and is refused; the next pair, in the triangle, gives floor(xm - p1 v + u) =
    // floor(100.5 - 9.75 + 2) = 92.
    PoissonChunk c;
    brenn::rng::PoissonPtpeSetUp(100.0, &c);
    const auto& h = c.ptpe;
    brenn_zar_kernel_SetErrorCallBack(Counting);
    for (double tail : {(h.p2 + h.p3) / 2, (h.p3 + h.p4) / 2}) {
        void* s = NewScriptStream({tail / h.p4, 0.0, 2.0 / h.p4, 0.5});
        int32_t r = -1;
        ASSERT_EQ(_qesiRngPoisson(0, s, 1, &r, 100.0), 0);
        EXPECT_EQ(r, 92) << tail;
        EXPECT_EQ(script.requests, (std::vector<int32_t>{2, 2}));
        __qesDeleteStream(&s);
    }
    EXPECT_EQ(reports, 0); // the caller's callback saw nothing
    brenn_zar_kernel_SetErrorCallBack(nullptr);
    // The stepping generator gives an exact 0 every seventh word.
    void* s = NewStepStream(1u << 30);
    std::vector<int32_t> r(5000);
    ASSERT_EQ(_qesiRngPoisson(0, s, 5000, r.data(), 300.0), 0);
    for (int32_t v : r)
        ASSERT_TRUE(v >= 0 && v < 1000);
    __qesDeleteStream(&s);
}

struct Settings {
    static int Marker(ErrorRecord*) { return 0; }
    uint32_t before = 0, mode = 0;
    void Set() {
        before = brenn_zar_kernel_GetMode();
        brenn_zar_kernel_SetMode(0x2000 | 0x2);
        brenn_zar_kernel_SetErrorCallBack(Marker);
        brenn::frame::LoadX87ControlWord(0x037A);
        brenn::frame::LoadCsr((0x1F80 & ~0x0200u) | 0x6000);
        mode = brenn_zar_kernel_GetMode();
    }
    void Expect(const char* what) {
        EXPECT_EQ(brenn_zar_kernel_GetMode(), mode) << what;
        EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), &Marker) << what;
        EXPECT_EQ(brenn::frame::ReadX87ControlWord(), 0x037A) << what;
        EXPECT_EQ(brenn::frame::ReadCsr() & ~0x3Fu, (0x1F80 & ~0x0200u) | 0x6000) << what;
        brenn::frame::LoadX87ControlWord(0x037F);
        brenn::frame::LoadCsr(0x1F80);
        brenn_zar_kernel_SetErrorCallBack(nullptr);
        brenn_zar_kernel_SetMode(before);
    }
};

TEST(RngPoisson, StatusesLeaveTheCallerAsItWas) {
    std::vector<double> lambdas(3000, 0.03);
    for (size_t i = 0; i < lambdas.size(); i += 2)
        lambdas[i] = 40.0;
    struct Case {
        int32_t method;
        double lambda; // 0: PoissonV
        uint32_t limit;
    };
    for (Case c :
         {Case{0, 3.0, 2500}, Case{0, 300.0, 2500}, Case{1, 0.5, 2000}, Case{1, 50.0, 2000},
          Case{1, 500.0, 2000}, Case{0, 0, 2000}, Case{0, 3.0, 1u << 30}, Case{0, 300.0, 1u << 30},
          Case{1, 50.0, 1u << 30}, Case{0, 0, 1u << 30}}) {
        Settings settings;
        settings.Set();
        void* s = NewStepStream(c.limit);
        std::vector<int32_t> r(3000);
        int32_t status = c.lambda == 0 ? _qesiRngPoissonV(0, s, 3000, r.data(), lambdas.data())
                                       : _qesiRngPoisson(c.method, s, 3000, r.data(), c.lambda);
        EXPECT_EQ(status, c.limit == 1u << 30 ? 0 : QES_RNG_STATUS_RDRAND_FAILED)
            << c.method << " " << c.lambda;
        settings.Expect("generator");
        __qesDeleteStream(&s);
    }
    // Chunk 3 that cannot be had: -4, nothing left behind, the frame undone.
    for (int64_t failure : {1, 2}) {
        Settings settings;
        settings.Set();
        void* s = NewSeeded(QES_BRNG_MT19937, 1);
        int64_t live = brenn_serv_live_allocations();
        std::vector<int32_t> r(10, -7);
        brenn_serv_fail_allocation(failure); // the block, then the list cell
        EXPECT_EQ(_qesiRngPoisson(0, s, 10, r.data(), 4.0), QES_ERROR_MEM_FAILURE);
        brenn_serv_fail_allocation(0);
        EXPECT_EQ(brenn_serv_live_allocations(), live);
        EXPECT_EQ(__qesGetNumChunks(s), 0);
        EXPECT_EQ(r[0], -7);
        settings.Expect("allocation");
        __qesDeleteStream(&s);
    }
    // Another method word is refused before the stream is touched; n = 0 takes nothing.
    void* s = NewSeeded(QES_BRNG_MT19937, 1);
    void* t = CopyOf(s);
    int32_t r = -7;
    EXPECT_EQ(_qesiRngPoisson(2, s, 1, &r, 4.0), QES_STATUS_BAD_METHOD);
    EXPECT_EQ(_qesiRngPoisson(0, s, 0, &r, 4.0), 0);
    EXPECT_EQ(_qesiRngPoissonV(0, s, 0, &r, nullptr), 0);
    EXPECT_EQ(r, -7);
    ExpectInStepAndDelete(s, t);
}

TEST(RngPoissonV, EachElementByItsOwnLambda) {
    // Lambdas in every group and range, below and at each boundary, across blocks.
    const std::vector<double> grid{0.0, 1e-6, 0.01, 0.0624, 0.0625, 0.1,   0.5, 0.99, 1.0,
                                   1.7, 2.0,  31.9, 64.0,   99.9,   100.0, 250, 1e4,  1e6};
    for (int32_t n : {1, 17, 2048, 4100}) {
        std::vector<double> lambda(n);
        for (int32_t i = 0; i < n; ++i)
            lambda[i] = grid[(i * 7) % grid.size()];
        void* s = NewSeeded(QES_BRNG_MCG59, 3 + n);
        void* t = CopyOf(s);
        std::vector<int32_t> r(n);
        ASSERT_EQ(_qesiRngPoissonV(0, s, n, r.data(), lambda.data()), 0);
        std::vector<int32_t> want = PoissonVRef(t, lambda);
        for (int32_t i = 0; i < n; ++i)
            ASSERT_EQ(r[i], want[i]) << "lambda " << lambda[i] << " i " << i;
        ExpectInStepAndDelete(s, t); // n uniforms, whatever the lambdas
    }
    // All small: counts 0 to 11 only, mean lambda.
    std::vector<double> small(200000, 0.05);
    std::vector<int32_t> r(small.size());
    void* s = NewSeeded(QES_BRNG_MT19937, 4);
    ASSERT_EQ(_qesiRngPoissonV(0, s, 200000, r.data(), small.data()), 0);
    for (int32_t v : r)
        ASSERT_TRUE(v >= 0 && v <= 11);
    ExpectPoissonMoments(r, 0.05, "PoissonV");
    __qesDeleteStream(&s);
}

} // namespace
