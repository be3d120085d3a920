// Direction numbers of the quasi-random generators from their polynomials: the
// Sobol recurrence over initial numbers, and the base-2 Niederreiter construction
// (Bratley, Fox and Niederreiter 1992), which reads the generator matrix of a
// coordinate off the Laurent expansions of x^k / p(x)^q.
#include "rng/brng/qrng_tables.h"

namespace brenn::rng {

void SobolDirections(uint32_t polynomial, const uint32_t* initial, uint32_t* out) {
    const int s = PolyDegree(polynomial);
    if (s <= 0) {
        for (int i = 0; i < kQrngBits; ++i)
            out[i] = 1u << (31 - i);
        return;
    }
    for (int i = 0; i < s && i < kQrngBits; ++i)
        out[i] = initial[i] << (31 - i);
    // v(i) = v(i-s) ^ (v(i-s) >> s) ^ XOR of a(k) v(i-k), a(k) the coefficient of
    // x^(s-k).
    for (int i = s; i < kQrngBits; ++i) {
        uint32_t v = out[i - s] ^ (out[i - s] >> s);
        for (int k = 1; k < s; ++k)
            if ((polynomial >> (s - k)) & 1) v ^= out[i - k];
        out[i] = v;
    }
}

namespace {

// GF(2) polynomials of degree below 64 as bit patterns.
uint64_t PolyMultiply(uint64_t a, uint64_t b) {
    uint64_t r = 0;
    for (; b != 0; b >>= 1, a <<= 1)
        if (b & 1) r ^= a;
    return r;
}

int Degree64(uint64_t p) {
    return 63 - __builtin_clzll(p);
}

} // namespace

void NiederrDirections(uint32_t polynomial, uint32_t* out) {
    const int e = PolyDegree(polynomial);
    // v holds the expansion digits; indices reach 31 + e - 1.
    constexpr int kDigits = kQrngBits + 32;
    uint8_t v[kDigits];
    uint64_t b = 1; // p^q, q the number of expansions made
    for (int r = 0; r < kQrngBits; ++r)
        out[r] = 0;
    int u = 0;
    for (int j = 0; j < kQrngBits; ++j) {
        if (u == 0) {
            // A new q: digits 0 .. M-1 of the previous degree M are 0, digit M is 1,
            // those up to the new degree are free and set to 1; the rest follow the
            // recurrence of b.
            const int bigm = Degree64(b);
            b = PolyMultiply(b, polynomial);
            const int m = Degree64(b);
            for (int r = 0; r < bigm; ++r)
                v[r] = 0;
            for (int r = bigm; r < m; ++r)
                v[r] = 1;
            for (int r = 0; r + m < kDigits; ++r) {
                uint8_t t = 0;
                for (int k = 0; k < m; ++k)
                    t ^= static_cast<uint8_t>((b >> k) & v[r + k]);
                v[r + m] = t;
            }
        }
        for (int r = 0; r < kQrngBits; ++r)
            out[r] |= static_cast<uint32_t>(v[r + u]) << (31 - j);
        if (++u == e) u = 0;
    }
}

} // namespace brenn::rng
