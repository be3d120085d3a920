// The GF(2) remainder x^count mod P against a plain bit-by-bit computation, on random
// divisors of many degrees (sparse, dense, with lower terms close to the degree or far
// below it) and on the two generators' characteristic polynomials.
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "rng/brng/mt_jump.h"
#include "tests/rng/brng_harness.h"
#include "tests/support/support.h"

namespace {

using namespace brenn::rng;

using Bits = std::vector<uint8_t>;

// A product of degree below 2 degree reduced mod P one bit at a time from the top, by
// flipping a bit at each term; one byte a coefficient.
Bits Reduce(Bits p, int degree, const std::vector<int>& terms) {
    for (int i = 2 * degree - 1; i >= degree; --i)
        if (p[i])
            for (int t : terms)
                p[i - degree + t] ^= 1;
    p.resize(degree);
    return p;
}

Bits MulMod(const Bits& a, const Bits& b, int degree, const std::vector<int>& terms) {
    Bits p(2 * degree, 0);
    for (int i = 0; i < degree; ++i)
        if (a[i])
            for (int j = 0; j < degree; ++j)
                p[i + j] ^= b[j];
    return Reduce(p, degree, terms);
}

// Squaring alone spreads the bits, far cheaper than MulMod for the large degrees.
Bits SquareMod(const Bits& a, int degree, const std::vector<int>& terms) {
    Bits p(2 * degree, 0);
    for (int i = 0; i < degree; ++i)
        p[2 * i] = a[i];
    return Reduce(p, degree, terms);
}

Bits PlainRem(uint64_t count, int degree, const std::vector<int>& terms) {
    Bits r(degree, 0);
    if (count < static_cast<uint64_t>(degree)) {
        r[count] = 1;
        return r;
    }
    r[0] = 1;
    for (int bit = 63 - __builtin_clzll(count); bit >= 0; --bit) {
        r = SquareMod(r, degree, terms);
        if ((count >> bit) & 1) {
            uint8_t top = r[degree - 1];
            for (int i = degree - 1; i > 0; --i)
                r[i] = r[i - 1];
            r[0] = 0;
            if (top)
                for (int t : terms)
                    if (t < degree) r[t] ^= 1;
        }
    }
    return r;
}

// Checks the library's remainder against the plain one, and that every bit of out
// at or above the degree is clear.
void Check(uint64_t count, const std::vector<int>& terms) {
    int degree = terms.back();
    int wc = degree / 32 + 2;
    std::vector<uint32_t> out(wc, 0xA5A5A5A5u);
    ASSERT_EQ(
        __qesPolyRem(count, degree, static_cast<int>(terms.size()), terms.data(), wc, out.data()),
        0);
    Bits want = PlainRem(count, degree, terms);
    for (int i = 0; i < wc * 32; ++i) {
        int bit = (out[i / 32] >> (i % 32)) & 1;
        int expected = i < degree ? want[i] : 0;
        ASSERT_EQ(bit, expected) << "degree " << degree << " terms " << terms.size() << " count "
                                 << count << " bit " << i;
    }
}

// A random divisor of the degree: each lower exponent present with probability
// density, the highest lower exponent at most degree - gap, and the constant term set.
std::vector<int> RandomDivisor(std::mt19937_64& rng, int degree, double density, int gap) {
    std::bernoulli_distribution keep(density);
    std::vector<int> terms = {0};
    for (int e = 1; e <= degree - gap; ++e)
        if (keep(rng)) terms.push_back(e);
    if (terms.back() != degree - gap && degree - gap > 0) terms.push_back(degree - gap);
    terms.push_back(degree);
    return terms;
}

TEST(RngPolyRemWords, RandomDivisorsOfManyDegrees) {
    std::mt19937_64 rng(20261121);
    const int degrees[] = {1, 2, 5, 31, 32, 33, 63, 64, 65, 89, 127, 128, 129, 200, 521, 607};
    for (int degree : degrees) {
        for (double density : {0.02, 0.5, 0.95}) {
            for (int gap : {1, 3, 31, 63, 64, 65, 200}) {
                if (gap > degree) continue;
                std::vector<int> terms = RandomDivisor(rng, degree, density, gap);
                std::uniform_int_distribution<uint64_t> any;
                // Counts below the degree are a single bit; from the degree on they
                // need reducing.
                for (uint64_t count :
                     {uint64_t{0}, uint64_t{1}, uint64_t(degree - 1), uint64_t(degree),
                      uint64_t(2 * degree - 1), uint64_t(2 * degree), uint64_t(1) << 40, any(rng),
                      ~uint64_t{0}})
                    Check(count, terms);
            }
        }
    }
}

// Degree 19937 with a dense lower part reaching up to the degree, and sparse ones with
// the highest lower term far below it and right under it; then the two generators'
// own polynomials. The plain reference reduces bit by bit, so counts stay small
// enough for a few reductions, or are powers it reaches by squaring.
TEST(RngPolyRemWords, LargeDivisors) {
    std::mt19937_64 rng(7);
    Check(3 * 19937 + 12345, RandomDivisor(rng, 19937, 0.5, 1));
    Check(5 * 19937 + 1, RandomDivisor(rng, 19937, 0.01, 600));
    Check(4 * 19937 - 7, RandomDivisor(rng, 19937, 0.005, 1));
    Check(70000, RandomDivisor(rng, 19968, 0.3, 40));
    std::vector<int> mt(kMt19937Terms, kMt19937Terms + kMt19937TermCount);
    Check(uint64_t{1} << 40, mt);
    Check(0x100000 - 624 + 3, mt);
    Check(123456789, std::vector<int>(kSfmt19937Terms, kSfmt19937Terms + kSfmt19937TermCount));
}

// x^(a+b) = x^a x^b and, for the primitive MT polynomial, x^(2^19937) = x: long counts
// that the plain reference cannot reach in reasonable time.
TEST(RngPolyRemWords, ProductsOfLongCounts) {
    std::vector<int> mt(kMt19937Terms, kMt19937Terms + kMt19937TermCount);
    const int degree = kMt19937Degree, wc = 624;
    auto rem = [&](uint64_t c) {
        std::vector<uint32_t> o(wc);
        EXPECT_EQ(__qesPolyRem(c, degree, kMt19937TermCount, kMt19937Terms, wc, o.data()), 0);
        Bits b(degree);
        for (int i = 0; i < degree; ++i)
            b[i] = (o[i / 32] >> (i % 32)) & 1;
        return b;
    };
    uint64_t a = 0x123456789ABCDull, b = 0xFEDCBA98765ull;
    EXPECT_EQ(rem(a + b), MulMod(rem(a), rem(b), degree, mt));
}

TEST(RngPolyRemWords, AllocationFailureIsReported) {
    std::vector<int> terms = {0, 38, 89};
    std::vector<uint32_t> o(4);
    brenn::test::SweepNoMemory(
        [&] { return __qesPolyRem(12345, 89, 3, terms.data(), 4, o.data()); });
}

} // namespace
