// GF(2)[t] arithmetic of the MT2203 member search (see gf2_poly.h).
#include "tools/mt/gf2_poly.h"

#include "rng/core/bitspread.h"

#include <immintrin.h>

#include <algorithm>

namespace brenn::gf2 {

namespace {

struct U128 {
    uint64_t lo, hi;
};

U128 ClmulTable(uint64_t a, uint64_t b) {
    // Four-bit window: the sixteen multiples of a by polynomials of degree < 4,
    // kept in 128 bits since they reach degree 66.
    U128 m[16];
    m[0] = {0, 0};
    m[1] = {a, 0};
    for (int i = 2; i < 16; i += 2) {
        U128 h = m[i / 2];
        m[i] = {h.lo << 1, (h.hi << 1) | (h.lo >> 63)};
        m[i + 1] = {m[i].lo ^ a, m[i].hi};
    }
    U128 r{0, 0};
    for (int s = 60; s >= 0; s -= 4) {
        r = {r.lo << 4, (r.hi << 4) | (r.lo >> 60)};
        U128 x = m[(b >> s) & 15];
        r.lo ^= x.lo;
        r.hi ^= x.hi;
    }
    return r;
}

__attribute__((target("pclmul,sse4.2"))) void MulPclmul(const uint64_t* a, int na,
                                                         const uint64_t* b, int nb,
                                                         uint64_t* r) {
    for (int i = 0; i < na; ++i) {
        if (a[i] == 0) continue;
        __m128i x = _mm_set_epi64x(0, static_cast<long long>(a[i]));
        for (int j = 0; j < nb; ++j) {
            __m128i p = _mm_clmulepi64_si128(x, _mm_set_epi64x(0, static_cast<long long>(b[j])), 0);
            r[i + j] ^= static_cast<uint64_t>(_mm_cvtsi128_si64(p));
            r[i + j + 1] ^= static_cast<uint64_t>(_mm_extract_epi64(p, 1));
        }
    }
}

void MulPortable(const uint64_t* a, int na, const uint64_t* b, int nb, uint64_t* r) {
    for (int i = 0; i < na; ++i) {
        if (a[i] == 0) continue;
        for (int j = 0; j < nb; ++j) {
            U128 p = ClmulTable(a[i], b[j]);
            r[i + j] ^= p.lo;
            r[i + j + 1] ^= p.hi;
        }
    }
}

bool HasPclmul() {
    __builtin_cpu_init();
    return __builtin_cpu_supports("pclmul");
}

bool portableProduct = !HasPclmul();

// a mod t^bits.
void Truncate(Poly& a, int bits) {
    std::size_t words = static_cast<std::size_t>((bits + 63) / 64);
    if (a.size() > words) a.resize(words);
    if (bits % 64 != 0 && a.size() == words) a[words - 1] &= (uint64_t{1} << (bits % 64)) - 1;
}

// a div t^bits.
Poly ShiftDown(const Poly& a, int bits) {
    int ws = bits / 64, bs = bits % 64;
    if (static_cast<int>(a.size()) <= ws) return {};
    Poly r(a.size() - ws, 0);
    for (std::size_t i = 0; i < r.size(); ++i) {
        r[i] = a[i + ws] >> bs;
        if (bs != 0 && i + ws + 1 < a.size()) r[i] |= a[i + ws + 1] << (64 - bs);
    }
    return r;
}

// a ^= m * t^shift.
void AddShifted(Poly& a, const Poly& m, int shift) {
    int ws = shift / 64, bs = shift % 64;
    if (a.size() < m.size() + ws + 1) a.resize(m.size() + ws + 1, 0);
    for (std::size_t j = 0; j < m.size(); ++j) {
        if (m[j] == 0) continue;
        a[j + ws] ^= m[j] << bs;
        if (bs != 0) a[j + ws + 1] ^= m[j] >> (64 - bs);
    }
}

} // namespace

int Degree(const Poly& p) {
    for (int j = static_cast<int>(p.size()) - 1; j >= 0; --j)
        if (p[j] != 0) return 64 * j + 63 - __builtin_clzll(p[j]);
    return -1;
}

bool Coeff(const Poly& p, int i) {
    return static_cast<std::size_t>(i / 64) < p.size() && ((p[i / 64] >> (i % 64)) & 1);
}

void SetCoeff(Poly& p, int i) {
    if (p.size() <= static_cast<std::size_t>(i / 64)) p.resize(i / 64 + 1, 0);
    p[i / 64] |= uint64_t{1} << (i % 64);
}

void Trim(Poly& p) {
    while (!p.empty() && p.back() == 0)
        p.pop_back();
}

Poly Add(const Poly& a, const Poly& b) {
    Poly r = a.size() >= b.size() ? a : b;
    const Poly& s = a.size() >= b.size() ? b : a;
    for (std::size_t i = 0; i < s.size(); ++i)
        r[i] ^= s[i];
    Trim(r);
    return r;
}

Poly Mul(const Poly& a, const Poly& b) {
    if (a.empty() || b.empty()) return {};
    Poly r(a.size() + b.size(), 0);
    if (portableProduct)
        MulPortable(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()),
                    r.data());
    else
        MulPclmul(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()),
                  r.data());
    Trim(r);
    return r;
}

Poly Square(const Poly& a) {
    Poly r(2 * a.size(), 0);
    for (std::size_t i = 0; i < a.size(); ++i) {
        r[2 * i] = rng::Spread32(a[i]);
        r[2 * i + 1] = rng::Spread32(a[i] >> 32);
    }
    Trim(r);
    return r;
}

Poly Rem(const Poly& a, const Poly& m) {
    int dm = Degree(m);
    Poly r = a;
    for (int d = Degree(r); d >= dm; d = Degree(r))
        AddShifted(r, m, d - dm);
    Trim(r);
    return r;
}

Poly Gcd(Poly a, Poly b) {
    Trim(a);
    Trim(b);
    while (!b.empty()) {
        a = Rem(a, b);
        std::swap(a, b);
    }
    return a;
}

uint32_t RemSmall(const Poly& a, uint32_t m) {
    int dm = 31 - __builtin_clz(m);
    // Horner over the bits from the top, one bit a step: r = r*t + a_i mod m.
    uint64_t r = 0;
    const uint64_t top = uint64_t{1} << dm;
    for (int j = static_cast<int>(a.size()) - 1; j >= 0; --j) {
        for (int i = 63; i >= 0; --i) {
            r = (r << 1) | ((a[j] >> i) & 1);
            if (r & top) r ^= m;
        }
    }
    return static_cast<uint32_t>(r);
}

Modulus MakeModulus(const Poly& f) {
    Modulus m;
    m.f = f;
    Trim(m.f);
    m.n = Degree(m.f);
    // mu = t^(2n) div f by long division.
    Poly r;
    SetCoeff(r, 2 * m.n);
    Poly q;
    for (int d = Degree(r); d >= m.n; d = Degree(r)) {
        SetCoeff(q, d - m.n);
        AddShifted(r, m.f, d - m.n);
    }
    m.mu = q;
    return m;
}

Poly Reduce(const Poly& c, const Modulus& m) {
    Poly q = ShiftDown(Mul(ShiftDown(c, m.n), m.mu), m.n);
    Poly r = c;
    Poly qf = Mul(q, m.f);
    Truncate(qf, m.n);
    Truncate(r, m.n);
    for (std::size_t i = 0; i < qf.size() && i < r.size(); ++i)
        r[i] ^= qf[i];
    Trim(r);
    return r;
}

Poly MulMod(const Poly& a, const Poly& b, const Modulus& m) {
    return Reduce(Mul(a, b), m);
}

Poly SqrMod(const Poly& a, const Modulus& m) {
    return Reduce(Square(a), m);
}

const char* ProductKind() {
    return portableProduct ? "table" : "pclmul";
}

bool UsePortableProduct(bool portable) {
    bool before = portableProduct;
    portableProduct = portable || !HasPclmul();
    return before;
}

} // namespace brenn::gf2
