// Primitivity of the 69-word twisted recurrences of exponent 2203 (32-bit words,
// 5 lower bits, middle distance 34), as the member search of MT2203 needs it.
//
// The characteristic polynomial needs no Berlekamp-Massey run: with A = t^69 + t^34
// and B = t^68 + t^33 it is
//   phi_a = A^27 B^5 + sum over set bits i of a of  A^27 B^(4-i)  (i < 5)
//                                                   A^(31-i)     (i >= 5),
// bit 0 being the least significant bit of the twist constant. It is affine in the
// bits of a, so every residue of phi_a by a small polynomial is a table look-up per
// byte of a: that sieve throws out most candidates before any long computation.
// Since 2^2203 - 1 is prime, phi_a is primitive exactly when irreducible; Ben-Or's
// test (gcd with t^(2^i) - t for i up to 1101) finds a factor of a reducible phi_a
// after about as many steps as its smallest factor has terms, and the survivors are
// confirmed by t^(2^2203) = t mod phi_a.
#ifndef BRENN_TOOLS_MT_MT2203_PRIMITIVE_H
#define BRENN_TOOLS_MT_MT2203_PRIMITIVE_H

#include <cstdint>
#include <vector>

#include "tools/mt/gf2_poly.h"

namespace brenn::mt2203 {

constexpr int kDegree = 2203;

gf2::Poly CharPoly(uint32_t a);

// Residues of phi_a by every irreducible polynomial of degree 1..maxDegree.
struct Sieve {
    int maxDegree = 0;
    std::vector<uint32_t> divisors;  // irreducible, by rising degree
    std::vector<uint32_t> constants; // phi_0 mod q
    std::vector<uint32_t> bytes;     // [q][byte k][value]: contribution of byte k of a
};
Sieve MakeSieve(int maxDegree);
// False when phi_a has a factor of degree up to the sieve's bound.
bool PassesSieve(const Sieve& sieve, uint32_t a);

// Irreducible polynomials of degree d (bit i = coefficient of t^i), d <= 31.
std::vector<uint32_t> IrreduciblesOfDegree(int d, const std::vector<uint32_t>& lower);

// Ben-Or's test on phi of prime degree; `known` = degree up to which phi is known to
// have no factor (the sieve's bound), whose gcd steps are skipped.
bool BenOrIrreducible(const gf2::Poly& phi, int known);
// t^(2^deg) = t mod phi and no root: irreducibility for a prime degree.
bool FrobeniusIrreducible(const gf2::Poly& phi);

// The whole test of one candidate, sieve first.
bool Primitive(const Sieve& sieve, uint32_t a);

} // namespace brenn::mt2203

#endif
