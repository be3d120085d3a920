// Service library: aligned allocation and its fault control, bounded copies, the
// environment reader, locks and message texts.
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "platform/serv.h"
#include "tests/support/support.h"

namespace {

TEST(Allocate, AlignedCountedAndFailsOnRequest) {
    int64_t before = brenn_serv_live_allocations();
    for (int alignment : {0, 8, 16, 64, 128, 4096}) {
        void* p = brenn_serv_allocate(100, alignment);
        ASSERT_NE(p, nullptr);
        uintptr_t want = alignment == 0 ? 16 : alignment;
        EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % want, 0u) << alignment;
        memset(p, 1, 100);
        brenn_serv_deallocate(p);
    }
    EXPECT_EQ(brenn_serv_allocate(16, 48), nullptr); // not a power of two
    brenn_serv_deallocate(nullptr);
    EXPECT_EQ(brenn_serv_live_allocations(), before);

    brenn_serv_fail_allocation(3);
    void* a = brenn_serv_allocate(8, 128);
    void* b = brenn_serv_allocate(8, 128);
    void* c = brenn_serv_allocate(8, 128);
    void* d = brenn_serv_allocate(8, 128);
    EXPECT_NE(a, nullptr);
    EXPECT_NE(b, nullptr);
    EXPECT_EQ(c, nullptr);
    EXPECT_NE(d, nullptr);
    EXPECT_EQ(brenn_serv_fail_allocation(0), 0);
    brenn_serv_fail_allocation(-1);
    EXPECT_EQ(brenn_serv_allocate(8, 16), nullptr);
    EXPECT_EQ(brenn_serv_allocate(8, 16), nullptr);
    brenn_serv_fail_allocation(5);
    EXPECT_EQ(brenn_serv_fail_allocation(0), 5); // the planned failure never came
    for (void* p : {a, b, d}) brenn_serv_deallocate(p);
    EXPECT_EQ(brenn_serv_live_allocations(), before);
}

TEST(Allocate, SweepReachesEveryFailure) {
    // Three allocations that must all succeed or be given back together.
    int attempts = 0;
    brenn::test::SweepAllocationFailures([&] {
        ++attempts;
        void* p[3] = {};
        for (int i = 0; i < 3; ++i) {
            p[i] = brenn_serv_allocate(32, 128);
            if (p[i] == nullptr) {
                for (int j = 0; j < i; ++j) brenn_serv_deallocate(p[j]);
                return false;
            }
        }
        for (void* q : p) brenn_serv_deallocate(q);
        return true;
    });
    EXPECT_EQ(attempts, 4);
}

TEST(MemcpyS, HonoursTheDestinationSize) {
    char dst[8] = "abcdefg", src[16] = "0123456789";
    EXPECT_EQ(brenn_serv_memcpy_s(dst, 8, src, 4), 0);
    EXPECT_EQ(std::string(dst, 7), "0123efg");
    EXPECT_NE(brenn_serv_memcpy_s(dst, 8, src, 9), 0);
    EXPECT_EQ(std::string(dst, 8), std::string(8, '\0')); // cleared on refusal
    EXPECT_NE(brenn_serv_memcpy_s(dst, 8, nullptr, 1), 0);
    EXPECT_NE(brenn_serv_memcpy_s(nullptr, 8, src, 1), 0);
    EXPECT_EQ(brenn_serv_memcpy_s(dst, 8, src, 0), 0);
}

TEST(Getenv, CopiesAtMostTheBufferAndReturnsTheFullLength) {
    setenv("BRENN_TEST_VALUE", "hello", 1);
    char buffer[16];
    memset(buffer, 'x', sizeof buffer);
    EXPECT_EQ(brenn_serv_getenv("BRENN_TEST_VALUE", buffer, 16), 5);
    EXPECT_STREQ(buffer, "hello");
    memset(buffer, 'x', sizeof buffer);
    EXPECT_EQ(brenn_serv_getenv("BRENN_TEST_VALUE", buffer, 3), 5);
    EXPECT_EQ(std::string(buffer, 4), "helx"); // no terminator when it does not fit
    EXPECT_LT(brenn_serv_getenv("BRENN_TEST_UNSET_VALUE", buffer, 16), 1);
    setenv("BRENN_TEST_VALUE", "", 1);
    EXPECT_LT(brenn_serv_getenv("BRENN_TEST_VALUE", buffer, 16), 1);
    unsetenv("BRENN_TEST_VALUE");
}

TEST(Lock, ExcludesAcrossThreads) {
    volatile int32_t lock = 0;
    int64_t counter = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&] {
            for (int i = 0; i < 20000; ++i) {
                brenn_serv_lock(&lock);
                counter = counter + 1;
                brenn_serv_unlock(&lock);
            }
        });
    for (auto& t : threads) t.join();
    EXPECT_EQ(counter, 80000);
    EXPECT_EQ(lock, 0);
}

TEST(Print, MessagesByNumber) {
    std::string text = brenn::test::CaptureStderr([] {
        brenn_serv_print(1, 737, 1, "vsExpm1");
        brenn_serv_print(1, 735, 2, "vsAdd", 2);
        brenn_serv_print(1, 749, 2, 12, -0.5);
        brenn_serv_print(1, 760, 0);
        brenn_serv_print(1, 999, 0);
    });
    EXPECT_NE(text.find("vsExpm1: domain error"), std::string::npos) << text;
    EXPECT_NE(text.find("vsAdd: argument 2 has a bad size"), std::string::npos) << text;
    EXPECT_NE(text.find("result[12] = -0.5"), std::string::npos) << text;
    EXPECT_NE(text.find("per-thread memory"), std::string::npos) << text;
    EXPECT_NE(text.find("message 999"), std::string::npos) << text;
    // Every message of the frame has a text of its own.
    for (int number = 735; number <= 753; ++number) {
        std::string line = brenn::test::CaptureStderr([&] {
            if (number <= 741)
                brenn_serv_print(1, number, 2, "vsX", 1);
            else
                brenn_serv_print(1, number, 2, 3, 1.0);
        });
        EXPECT_EQ(line.find("message "), std::string::npos) << number;
    }
}

TEST(Cpu, VectorAesQueryAnswers) {
    int v = brenn_serv_cpuisvectoraes();
    EXPECT_TRUE(v == 0 || v == 1);
}

} // namespace
