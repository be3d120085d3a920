// Polynomials over GF(2) in 64-bit words (bit i of word j is the coefficient of
// t^(64j+i)) and the arithmetic the member search of MT2203 needs: carry-less
// products, squaring, remainders, gcd, and a Barrett modulus for the long chains of
// squarings of the irreducibility tests. Carry-less products use PCLMULQDQ when the
// processor has it and a four-bit window otherwise; both give the same bits.
#ifndef BRENN_TOOLS_MT_GF2_POLY_H
#define BRENN_TOOLS_MT_GF2_POLY_H

#include <cstdint>
#include <vector>

namespace brenn::gf2 {

using Poly = std::vector<uint64_t>;

// Degree, -1 for the zero polynomial (trailing zero words allowed).
int Degree(const Poly& p);
bool Coeff(const Poly& p, int i);
void SetCoeff(Poly& p, int i); // grows p as needed
void Trim(Poly& p);            // drops zero words at the top
Poly Add(const Poly& a, const Poly& b);
Poly Mul(const Poly& a, const Poly& b);
Poly Square(const Poly& a);
Poly Rem(const Poly& a, const Poly& m);
Poly Gcd(Poly a, Poly b);
// Remainder of a polynomial of degree below 64 * words by a small m (degree 1..32),
// the sieve's test for factors of low degree.
uint32_t RemSmall(const Poly& a, uint32_t m);

// Arithmetic modulo a fixed f of degree n >= 1: operands and results have degree
// below n. Reduction is Barrett's: with mu = t^(2n) div f, the quotient of c (degree
// below 2n) is ((c div t^n) * mu) div t^n exactly, so one product finds it and one
// more removes it.
struct Modulus {
    Poly f, mu;
    int n = 0;
};
Modulus MakeModulus(const Poly& f);
Poly MulMod(const Poly& a, const Poly& b, const Modulus& m);
Poly SqrMod(const Poly& a, const Modulus& m);
Poly Reduce(const Poly& c, const Modulus& m);

// Which carry-less product the process uses ("pclmul" or "table").
const char* ProductKind();
// Forces the portable product (tests compare both); returns the previous choice.
bool UsePortableProduct(bool portable);

} // namespace brenn::gf2

#endif
