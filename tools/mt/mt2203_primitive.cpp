// Primitivity test of MT2203 twist constants (see mt2203_primitive.h).
#include "tools/mt/mt2203_primitive.h"

#include <cstddef>

namespace brenn::mt2203 {

using gf2::Poly;

namespace {

constexpr int kN = 69, kM = 34, kR = 5, kW = 32;

Poly Power(const Poly& x, int e) {
    Poly r{1};
    for (int i = 0; i < e; ++i)
        r = gf2::Mul(r, x);
    return r;
}

// The 33 fixed polynomials of the closed form: basis[i] for bit i, basis[32] the
// leading term.
const std::vector<Poly>& Basis() {
    static const std::vector<Poly> basis = [] {
        Poly a, b;
        gf2::SetCoeff(a, kN);
        gf2::SetCoeff(a, kM);
        gf2::SetCoeff(b, kN - 1);
        gf2::SetCoeff(b, kM - 1);
        std::vector<Poly> out(kW + 1);
        Poly aTop = Power(a, kW - kR);
        for (int i = 0; i < kW; ++i)
            out[i] = i < kR ? gf2::Mul(aTop, Power(b, kR - 1 - i)) : Power(a, kW - 1 - i);
        out[kW] = gf2::Mul(aTop, Power(b, kR));
        return out;
    }();
    return basis;
}

int DegreeOf(uint32_t q) {
    return 31 - __builtin_clz(q);
}

} // namespace

Poly CharPoly(uint32_t a) {
    const std::vector<Poly>& basis = Basis();
    Poly phi = basis[kW];
    for (int i = 0; i < kW; ++i)
        if ((a >> i) & 1) phi = gf2::Add(phi, basis[i]);
    return phi;
}

std::vector<uint32_t> IrreduciblesOfDegree(int d, const std::vector<uint32_t>& lower) {
    std::vector<uint32_t> out;
    for (uint32_t q = 1u << d; q < (2u << d); ++q) {
        bool irreducible = true;
        for (uint32_t f : lower) {
            if (2 * DegreeOf(f) > d) break;
            if (gf2::RemSmall(Poly{q}, f) == 0) {
                irreducible = false;
                break;
            }
        }
        if (irreducible) out.push_back(q);
    }
    return out;
}

Sieve MakeSieve(int maxDegree) {
    Sieve s;
    s.maxDegree = maxDegree;
    for (int d = 1; d <= maxDegree; ++d) {
        std::vector<uint32_t> found = IrreduciblesOfDegree(d, s.divisors);
        s.divisors.insert(s.divisors.end(), found.begin(), found.end());
    }
    const std::vector<Poly>& basis = Basis();
    s.bytes.assign(s.divisors.size() * 4 * 256, 0);
    for (std::size_t k = 0; k < s.divisors.size(); ++k) {
        uint32_t q = s.divisors[k];
        s.constants.push_back(gf2::RemSmall(basis[kW], q));
        uint32_t bit[kW];
        for (int i = 0; i < kW; ++i)
            bit[i] = gf2::RemSmall(basis[i], q);
        uint32_t* t = &s.bytes[k * 1024];
        for (int byte = 0; byte < 4; ++byte)
            for (int v = 0; v < 256; ++v) {
                uint32_t r = 0;
                for (int i = 0; i < 8; ++i)
                    if ((v >> i) & 1) r ^= bit[8 * byte + i];
                t[byte * 256 + v] = r;
            }
    }
    return s;
}

bool PassesSieve(const Sieve& s, uint32_t a) {
    const uint32_t* t = s.bytes.data();
    for (std::size_t k = 0; k < s.divisors.size(); ++k, t += 1024) {
        uint32_t r = s.constants[k] ^ t[a & 255] ^ t[256 + ((a >> 8) & 255)] ^
                     t[512 + ((a >> 16) & 255)] ^ t[768 + (a >> 24)];
        if (r == 0) return false;
    }
    return true;
}

bool BenOrIrreducible(const Poly& phi, int known) {
    const gf2::Modulus m = gf2::MakeModulus(phi);
    const int n = m.n;
    constexpr int kGcdEvery = 32;
    Poly h{2}, acc{1};
    Poly t{2};
    int pending = 0;
    for (int i = 1; 2 * i <= n; ++i) {
        h = gf2::SqrMod(h, m);
        if (i <= known) continue;
        acc = gf2::MulMod(acc, gf2::Add(h, t), m);
        if (++pending == kGcdEvery || 2 * (i + 1) > n) {
            Poly g = gf2::Gcd(phi, acc);
            if (gf2::Degree(g) != 0) return false;
            pending = 0;
        }
    }
    return true;
}

bool FrobeniusIrreducible(const Poly& phi) {
    if (!gf2::Coeff(phi, 0)) return false; // root 0
    int terms = 0;
    for (uint64_t w : phi)
        terms += __builtin_popcountll(w);
    if (terms % 2 == 0) return false; // root 1
    const gf2::Modulus m = gf2::MakeModulus(phi);
    Poly h{2};
    for (int i = 0; i < m.n; ++i)
        h = gf2::SqrMod(h, m);
    return h == Poly{2};
}

bool Primitive(const Sieve& sieve, uint32_t a) {
    if (!PassesSieve(sieve, a)) return false;
    Poly phi = CharPoly(a);
    return BenOrIrreducible(phi, sieve.maxDegree) && FrobeniusIrreducible(phi);
}

} // namespace brenn::mt2203
