// Checks shared by the random-number tests: the allocation-failure sweep of a call
// that returns a status; and for the 32-bit-word generators a plain twisted GFSR
// reference with array seeding, requests cut into pieces against one long request,
// skip-ahead against generating and discarding, jumps that commute and compose, and
// the real forms word by word.
#ifndef BRENN_TESTS_RNG_BRNG_HARNESS_H
#define BRENN_TESTS_RNG_BRNG_HARNESS_H

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "tests/support/support.h"

namespace brenn::test {

using Words32 = std::vector<uint32_t>;

// Sweeps the allocation failures of attempt, which returns the status of the call
// under test (after its own checks): any failure must be QES_STATUS_NO_MEMORY.
inline void SweepNoMemory(const std::function<int32_t()>& attempt) {
    SweepAllocationFailures([&] {
        int32_t status = attempt();
        if (status != 0) EXPECT_EQ(status, QES_STATUS_NO_MEMORY);
        return status == 0;
    });
}

// The first n outputs of a reference generator with a Next().
template <typename Ref>
Words32 Draw(Ref&& ref, size_t n) {
    Words32 v(n);
    for (auto& x : v)
        x = ref.Next();
    return v;
}

// ---- A twisted GFSR with tempering, word by word -----------------------------------

struct TwisterShape {
    int n, m;
    uint32_t upper, a; // the bits taken from the first word; the twist
    int u;             // the first tempering shift
    uint32_t b, c;     // the tempering masks
};

inline constexpr TwisterShape kMt19937Shape = {624, 397,         0x80000000u, 0x9908B0DFu,
                                               11,  0x9D2C5680u, 0xEFC60000u};

struct RefTwister {
    TwisterShape k;
    Words32 mt;
    int index;

    // The array form of the seeding, the only one the library uses; no key means {1}.
    RefTwister(const TwisterShape& shape, Words32 key) : k(shape), mt(shape.n), index(shape.n) {
        const int n = k.n;
        if (key.empty()) key = {1};
        mt[0] = 19650218u;
        for (int i = 1; i < n; ++i)
            mt[i] = 1812433253u * (mt[i - 1] ^ (mt[i - 1] >> 30)) + i;
        int i = 1;
        size_t j = 0;
        for (size_t c = std::max<size_t>(n, key.size()); c; --c) {
            mt[i] = (mt[i] ^ ((mt[i - 1] ^ (mt[i - 1] >> 30)) * 1664525u)) + key[j] + j;
            if (++i >= n) {
                mt[0] = mt[n - 1];
                i = 1;
            }
            if (++j >= key.size()) j = 0;
        }
        for (int c = n - 1; c; --c) {
            mt[i] = (mt[i] ^ ((mt[i - 1] ^ (mt[i - 1] >> 30)) * 1566083941u)) - i;
            if (++i >= n) {
                mt[0] = mt[n - 1];
                i = 1;
            }
        }
        mt[0] = 0x80000000u;
    }

    uint32_t Next() {
        if (index == k.n) {
            for (int j = 0; j < k.n; ++j) {
                uint32_t y = (mt[j] & k.upper) | (mt[(j + 1) % k.n] & ~k.upper);
                mt[j] = mt[(j + k.m) % k.n] ^ (y >> 1) ^ (y & 1 ? k.a : 0);
            }
            index = 0;
        }
        uint32_t y = mt[index++];
        y ^= y >> k.u;
        y ^= (y << 7) & k.b;
        y ^= (y << 15) & k.c;
        return y ^ (y >> 18);
    }
};

// ---- The generator under test ---------------------------------------------------------

struct WordBrng {
    int32_t id;
    Words32 key; // every stream of the shared checks is made with this key
    int32_t (*iGen)(void*, int32_t, void*);
    int32_t (*sGen)(void*, int32_t, float*, float, float);
    int32_t (*dGen)(void*, int32_t, double*, double, double);
};

inline void* NewKeyed(int32_t id, const Words32& key, int32_t expect = 0) {
    void* s = nullptr;
    EXPECT_EQ(__qesNewStreamEx(&s, id, static_cast<int32_t>(key.size()), key.data()), expect);
    return s;
}

inline void* New(const WordBrng& g) {
    return NewKeyed(g.id, g.key);
}

inline Words32 Take(const WordBrng& g, void* s, int32_t n) {
    Words32 w(n > 0 ? n : 1);
    EXPECT_EQ(g.iGen(s, n, w.data()), 0);
    w.resize(n > 0 ? n : 0);
    return w;
}

// The first n words of a fresh stream made with `key`.
inline Words32 FirstWords(const WordBrng& g, const Words32& key, int32_t n) {
    void* s = NewKeyed(g.id, key);
    Words32 w = Take(g, s, n);
    __qesDeleteStream(&s);
    return w;
}

// Each cut read piece by piece equals the start of ref; then pieces of random length
// up to 3000 (zero included) through the whole of ref.
inline void ExpectCutsMatch(const WordBrng& g, const Words32& ref,
                            const std::vector<std::vector<int32_t>>& cuts, uint32_t seed) {
    for (const auto& cut : cuts) {
        void* s = New(g);
        Words32 got;
        for (int32_t c : cut) {
            Words32 w = Take(g, s, c);
            got.insert(got.end(), w.begin(), w.end());
        }
        ASSERT_LE(got.size(), ref.size());
        EXPECT_TRUE(std::equal(got.begin(), got.end(), ref.begin())) << "cut of " << cut.size();
        __qesDeleteStream(&s);
    }
    std::mt19937 rng(seed);
    void* s = New(g);
    for (size_t at = 0; at < ref.size();) {
        int32_t c = static_cast<int32_t>(std::min<size_t>(rng() % 3000, ref.size() - at));
        Words32 w = Take(g, s, c);
        ASSERT_TRUE(std::equal(w.begin(), w.end(), ref.begin() + at)) << "at " << at;
        at += c;
    }
    __qesDeleteStream(&s);
}

// After reading `read` words and skipping `count`, the next n words are seq[read + count...].
inline void ExpectSkipsMatch(const WordBrng& g, const Words32& seq, std::vector<size_t> reads,
                             std::vector<uint64_t> counts, int32_t n = 1300) {
    for (size_t read : reads) {
        for (uint64_t count : counts) {
            ASSERT_LE(read + count + n, seq.size());
            void* s = New(g);
            Take(g, s, static_cast<int32_t>(read));
            ASSERT_EQ(__qesSkipAheadStream(s, count), 0);
            Words32 w = Take(g, s, n);
            ASSERT_TRUE(std::equal(w.begin(), w.end(), seq.begin() + read + count))
                << "read " << read << " skip " << count;
            __qesDeleteStream(&s);
        }
    }
}

// Jumps far beyond any reference: big then other, other then big, and big in two
// halves around other, from a started stream, all land on one word; and a jump by big
// followed by generating other words lands there too.
inline void ExpectLongJumpsCommute(const WordBrng& g, uint64_t big, uint64_t other) {
    const uint64_t orders[3][3] = {
        {big, other, 0}, {other, big, 0}, {big / 2, other, big - big / 2}};
    Words32 first;
    for (const auto& order : orders) {
        void* s = New(g);
        Take(g, s, 7);
        for (uint64_t c : order)
            if (c != 0) EXPECT_EQ(__qesSkipAheadStream(s, c), 0);
        Words32 w = Take(g, s, 1000);
        if (first.empty()) first = w;
        EXPECT_EQ(w, first);
        __qesDeleteStream(&s);
    }
    void* d = New(g);
    Take(g, d, 7);
    ASSERT_EQ(__qesSkipAheadStream(d, big), 0);
    Words32 w = Take(g, d, static_cast<int32_t>(other) + 1000);
    EXPECT_TRUE(std::equal(first.begin(), first.end(), w.begin() + other));
    __qesDeleteStream(&d);
}

// The row of a generator id.
inline const BrngRecord* RowOf(int32_t id) {
    int32_t family, member;
    return __qesGetBrngBaseOffset(id, &family, &member) + family;
}

// Method numbers no generator has, and the raw-bit forms, which generators whose
// words are not full 32-bit words refuse; the caller checks that the stream has not
// moved.
inline void ExpectBadMethodsAndNoBitForms(void* s) {
    const BrngRecord* row = RowOf(__qesGetStreamStateBrng(s));
    for (int32_t method : {-1, 4, 0x7FFFFFFF})
        EXPECT_EQ(row->initStream(method, s, 0, nullptr), QES_STATUS_BAD_METHOD) << method;
    uint64_t bits[8];
    EXPECT_EQ(_qesiRngUniformBits32(0, s, 4, reinterpret_cast<uint32_t*>(bits)),
              QES_RNG_ERROR_BITS_NOT_SUPPORTED);
    EXPECT_EQ(_qesiRngUniformBits64(0, s, 4, bits), QES_RNG_ERROR_BITS_NOT_SUPPORTED);
}

// The jump methods a generator has not: leapfrog, and skip-ahead by a long count.
inline void ExpectNoLeapfrogNorSkipEx(void* s) {
    EXPECT_EQ(__qesLeapfrogStream(s, 1, 4), QES_RNG_STATUS_NO_LEAPFROG);
    uint64_t words[2] = {5, 0};
    EXPECT_EQ(__qesSkipAheadStreamEx(s, 2, words), QES_RNG_STATUS_NO_SKIPAHEAD_EX);
}

// The real forms on [a, b) and [fa, fb) against the expected value of each word of ref,
// for each length (each from a fresh stream).
struct RealForm {
    double a, b;
    float fa, fb;
    double (*d)(uint32_t word, double a, double b);
    float (*f)(uint32_t word, float a, float b);
};

// The plain scaling of an unsigned word: u 2^-32 (b - a) + a, the float form in double.
inline double UnsignedD(uint32_t w, double a, double b) {
    return static_cast<double>(w) * ((b - a) * 0x1p-32) + a;
}
inline float UnsignedF(uint32_t w, float a, float b) {
    double span = static_cast<double>(b) - static_cast<double>(a);
    return static_cast<float>(static_cast<double>(w) * (span * 0x1p-32) + a);
}

inline void ExpectRealForms(const WordBrng& g, const Words32& ref, std::vector<int> lengths,
                            const RealForm& form) {
    for (int len : lengths) {
        ASSERT_LE(static_cast<size_t>(len), ref.size());
        void* s = New(g);
        void* t = New(g);
        std::vector<double> d(len);
        std::vector<float> f(len);
        ASSERT_EQ(g.dGen(s, len, d.data(), form.a, form.b), 0);
        ASSERT_EQ(g.sGen(t, len, f.data(), form.fa, form.fb), 0);
        for (int i = 0; i < len; ++i) {
            ASSERT_EQ(d[i], form.d(ref[i], form.a, form.b)) << "length " << len << " at " << i;
            ASSERT_EQ(f[i], form.f(ref[i], form.fa, form.fb)) << "length " << len << " at " << i;
        }
        __qesDeleteStream(&s);
        __qesDeleteStream(&t);
    }
}

} // namespace brenn::test

#endif
