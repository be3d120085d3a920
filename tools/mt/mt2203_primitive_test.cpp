// The member search's arithmetic: carry-less products against a bit-by-bit
// product on both paths, Barrett reduction against long division around word
// boundaries, the closed-form characteristic polynomial against Berlekamp-Massey on
// the recurrence itself, the irreducibility tests against the known count of
// irreducible polynomials, and the sieve against direct remainders.
#include <gtest/gtest.h>

#include <random>

#include "tools/mt/mt2203_primitive.h"

namespace {

using brenn::gf2::Poly;
namespace gf2 = brenn::gf2;
namespace mt2203 = brenn::mt2203;

Poly RandomPoly(std::mt19937_64& g, int degree) {
    Poly p;
    gf2::SetCoeff(p, degree);
    for (int i = 0; i < degree; ++i)
        if (g() & 1) gf2::SetCoeff(p, i);
    return p;
}

Poly BitProduct(const Poly& a, const Poly& b) {
    Poly r;
    for (int i = 0; i <= gf2::Degree(a); ++i)
        if (gf2::Coeff(a, i))
            for (int j = 0; j <= gf2::Degree(b); ++j)
                if (gf2::Coeff(b, j)) {
                    if (r.size() <= static_cast<size_t>((i + j) / 64)) r.resize((i + j) / 64 + 1, 0);
                    r[(i + j) / 64] ^= uint64_t{1} << ((i + j) % 64);
                }
    gf2::Trim(r);
    return r;
}

TEST(Gf2Poly, ProductsAndReductionsAgreeWithPlainArithmetic) {
    std::mt19937_64 g(11);
    for (int degree : {0, 1, 62, 63, 64, 65, 127, 128, 300, 2203}) {
        Poly a = RandomPoly(g, degree), b = RandomPoly(g, degree / 2 + 3);
        Poly want = BitProduct(a, b);
        EXPECT_EQ(gf2::Mul(a, b), want) << degree;
        bool before = gf2::UsePortableProduct(true);
        EXPECT_EQ(gf2::Mul(a, b), want) << degree;
        gf2::UsePortableProduct(before);
        EXPECT_EQ(gf2::Square(a), BitProduct(a, a)) << degree;
        if (degree == 0) continue;
        gf2::Modulus m = gf2::MakeModulus(a);
        Poly x = RandomPoly(g, degree - 1), y = RandomPoly(g, degree - 1);
        EXPECT_EQ(gf2::MulMod(x, y, m), gf2::Rem(BitProduct(x, y), a)) << degree;
        EXPECT_EQ(gf2::SqrMod(x, m), gf2::Rem(BitProduct(x, x), a)) << degree;
        // gcd: a common factor survives, and only it.
        Poly f = RandomPoly(g, 5);
        Poly d = gf2::Gcd(gf2::Mul(a, f), gf2::Mul(b, f));
        EXPECT_TRUE(gf2::Rem(d, f).empty());
    }
}

// Minimal polynomial of a bit sequence, bit by bit; reversed into phi's order.
Poly BerlekampMassey(const std::vector<uint8_t>& s) {
    const int n = static_cast<int>(s.size());
    std::vector<uint8_t> c(n + 1, 0), b(n + 1, 0), t;
    c[0] = b[0] = 1;
    int l = 0, m = 1;
    for (int i = 0; i < n; ++i) {
        int d = s[i];
        for (int j = 1; j <= l; ++j)
            d ^= c[j] & s[i - j];
        if (d == 0) {
            ++m;
            continue;
        }
        t = c;
        for (int j = 0; j + m <= n; ++j)
            c[j + m] ^= b[j];
        if (2 * l <= i) {
            l = i + 1 - l;
            b = t;
            m = 1;
        } else {
            ++m;
        }
    }
    Poly phi;
    for (int i = 0; i <= l; ++i)
        if (c[i]) gf2::SetCoeff(phi, l - i);
    return phi;
}

TEST(Mt2203Primitive, ClosedFormIsTheRecurrencesMinimalPolynomial) {
    constexpr int kN = 69, kM = 34;
    for (uint32_t a : {0xAF81055Fu, 0x80000001u, 0xC0FFEE11u}) {
        std::mt19937 fill(a);
        uint32_t x[kN];
        for (auto& w : x)
            w = static_cast<uint32_t>(fill());
        std::vector<uint8_t> bits(2 * mt2203::kDegree + 40);
        for (size_t i = 0, k = 0; i < bits.size(); ++i, k = (k + 1) % kN) {
            uint32_t y = (x[k] & 0xFFFFFFE0u) | (x[(k + 1) % kN] & 0x1Fu);
            x[k] = x[(k + kM) % kN] ^ (y >> 1) ^ ((y & 1) ? a : 0);
            bits[i] = (x[k] >> 7) & 1;
        }
        // A reducible phi may have a minimal polynomial of lower degree for this
        // bit; then the closed form must still be a multiple of it.
        Poly minimal = BerlekampMassey(bits);
        Poly phi = mt2203::CharPoly(a);
        EXPECT_EQ(gf2::Degree(phi), mt2203::kDegree);
        EXPECT_TRUE(gf2::Rem(phi, minimal).empty()) << std::hex << a;
        if (a == 0xAF81055Fu) EXPECT_EQ(gf2::Degree(minimal), mt2203::kDegree);
        if (gf2::Degree(minimal) == mt2203::kDegree) EXPECT_EQ(phi, minimal) << std::hex << a;
    }
}

TEST(Mt2203Primitive, IrreducibilityTestsCountTheIrreduciblesOfPrimeDegree) {
    // (2^13 - 2) / 13 = 630 irreducible polynomials of the prime degree 13, where
    // both tests apply.
    std::vector<uint32_t> lower;
    for (int d = 1; d <= 6; ++d) {
        auto found = mt2203::IrreduciblesOfDegree(d, lower);
        lower.insert(lower.end(), found.begin(), found.end());
    }
    EXPECT_EQ(mt2203::IrreduciblesOfDegree(13, lower).size(), 630u);
    int benOr = 0, frobenius = 0, both = 0;
    for (uint64_t q = 1u << 13; q < (2u << 13); ++q) {
        bool x = mt2203::BenOrIrreducible(Poly{q}, 0), y = mt2203::FrobeniusIrreducible(Poly{q});
        benOr += x;
        frobenius += y;
        both += x && y;
    }
    EXPECT_EQ(benOr, 630);
    EXPECT_EQ(frobenius, 630);
    EXPECT_EQ(both, 630);
}

TEST(Mt2203Primitive, SieveAndFullTestOnTwistConstants) {
    mt2203::Sieve sieve = mt2203::MakeSieve(8);
    std::mt19937 pick(3);
    for (int i = 0; i < 300; ++i) {
        uint32_t a = static_cast<uint32_t>(pick()) | 0x80000000u;
        Poly phi = mt2203::CharPoly(a);
        bool divisible = false;
        for (uint32_t q : sieve.divisors)
            divisible |= gf2::RemSmall(phi, q) == 0;
        ASSERT_EQ(mt2203::PassesSieve(sieve, a), !divisible) << std::hex << a;
    }
    for (uint32_t a : {0xAF81055Fu, 0x832604E1u, 0x92F70739u, 0x8B75046Eu, 0xE8761D4Bu})
        EXPECT_TRUE(mt2203::Primitive(sieve, a)) << std::hex << a;
    // Close neighbours of a primitive constant are (almost all) not; the two tests
    // agree on each.
    for (uint32_t a = 0xAF810550u; a < 0xAF810560u; ++a) {
        Poly phi = mt2203::CharPoly(a);
        EXPECT_EQ(mt2203::BenOrIrreducible(phi, 0), mt2203::FrobeniusIrreducible(phi))
            << std::hex << a;
    }
}

} // namespace
