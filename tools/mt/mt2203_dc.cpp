// Dynamic creation of MT2203 members, as far as this program goes: the twist
// constant of a member must give the 69-word recurrence (r = 5 lower bits, middle
// distance 34) a characteristic polynomial that is primitive of degree 2203. Since
// 2^2203 - 1 is prime, that is irreducibility, tested as t^(2^2203) = t mod phi
// with no linear factor; phi itself comes from Berlekamp-Massey on the raw
// sequence of the candidate's own recurrence.
//
//   mt2203_dc verify            every row of the member table is primitive
//   mt2203_dc search N SEED     prints N primitive twist constants (top bit set)
//
// The second half of the published method, the search of the tempering masks for
// the best equidistribution, is not written yet; until it is, constants found by
// `search` cannot become member rows.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

#include "rng/brng/mt2203_table.h"

namespace {

constexpr int kN = 69, kM = 34, kDegree = 2203;
constexpr uint32_t kUpper = 0xFFFFFFE0u;
constexpr int kWords = (kDegree + 63) / 64; // 35 words of 64 bits below t^2203

using Poly = std::vector<uint64_t>;

bool Bit(const Poly& p, int i) {
    return (p[i >> 6] >> (i & 63)) & 1;
}
void Flip(Poly& p, int i) {
    p[i >> 6] ^= uint64_t{1} << (i & 63);
}

// Minimal polynomial of a bit sequence (connection form, C[0] = 1) and its length.
Poly BerlekampMassey(const std::vector<uint8_t>& s, int* length) {
    const int n = static_cast<int>(s.size());
    Poly c(n / 64 + 2, 0), b(n / 64 + 2, 0), t;
    c[0] = b[0] = 1;
    int l = 0, m = 1;
    for (int i = 0; i < n; ++i) {
        int d = s[i];
        for (int j = 1; j <= l; ++j)
            d ^= Bit(c, j) & s[i - j];
        if (d == 0) {
            ++m;
            continue;
        }
        t = c;
        for (int j = 0; j + m < n; ++j)
            if (Bit(b, j)) Flip(c, j + m);
        if (2 * l <= i) {
            l = i + 1 - l;
            b = t;
            m = 1;
        } else {
            ++m;
        }
    }
    *length = l;
    return c;
}

// Characteristic polynomial phi (bit i = coefficient of t^i) of the recurrence with
// twist constant a, or an empty polynomial when its degree is not 2203.
Poly CharPoly(uint32_t a) {
    std::mt19937 fill(a);
    uint32_t x[kN];
    for (auto& w : x)
        w = static_cast<uint32_t>(fill());
    std::vector<uint8_t> seq(2 * kDegree + 64);
    int k = 0;
    for (auto& bit : seq) {
        uint32_t y = (x[k] & kUpper) | (x[(k + 1) % kN] & ~kUpper);
        x[k] = x[(k + kM) % kN] ^ (y >> 1) ^ ((y & 1) ? a : 0);
        bit = x[k] & 1;
        k = (k + 1) % kN;
    }
    int l = 0;
    Poly c = BerlekampMassey(seq, &l);
    if (l != kDegree) return {};
    Poly phi(kWords + 1, 0);
    for (int i = 0; i <= l; ++i)
        if (Bit(c, i)) Flip(phi, l - i);
    return phi;
}

// p = p^2 mod phi, p below t^2203.
void SquareMod(Poly& p, const Poly& phi) {
    Poly sq(2 * kWords + 2, 0);
    for (int i = 0; i < kDegree; ++i)
        if (Bit(p, i)) Flip(sq, 2 * i);
    for (int i = 2 * kDegree - 2; i >= kDegree; --i) {
        if (!Bit(sq, i)) continue;
        int shift = i - kDegree; // add phi * t^shift, which clears bit i
        int ws = shift >> 6, bs = shift & 63;
        for (int j = 0; j <= kWords; ++j) {
            uint64_t v = phi[j];
            if (v == 0) continue;
            sq[j + ws] ^= v << bs;
            if (bs != 0 && j + ws + 1 < static_cast<int>(sq.size()))
                sq[j + ws + 1] ^= v >> (64 - bs);
        }
    }
    for (int j = 0; j < kWords; ++j)
        p[j] = sq[j];
    p.resize(kWords + 1);
    p[kWords] = 0;
    if (kDegree % 64) p[kWords - 1] &= (uint64_t{1} << (kDegree % 64)) - 1;
}

bool Primitive(uint32_t a) {
    Poly phi = CharPoly(a);
    if (phi.empty()) return false;
    // No factor t or t + 1: constant term set and an odd number of terms.
    int terms = 0;
    for (uint64_t w : phi)
        terms += __builtin_popcountll(w);
    if (!Bit(phi, 0) || terms % 2 == 0) return false;
    Poly p(kWords + 1, 0);
    p[0] = 2; // t
    for (int i = 0; i < kDegree; ++i)
        SquareMod(p, phi);
    Poly t(kWords + 1, 0);
    t[0] = 2;
    return p == t;
}

} // namespace

int main(int argc, char** argv) {
    if (argc >= 2 && std::strcmp(argv[1], "verify") == 0) {
        int rows = 0, bad = 0;
        for (int32_t m = 0; m < brenn::rng::kMt2203Members; ++m) {
            const brenn::rng::Mt2203Member* row = brenn::rng::FindMt2203Member(m);
            if (row == nullptr) continue;
            ++rows;
            if (!Primitive(row->matrixA)) {
                std::printf("member %d: 0x%08X is not primitive\n", m, row->matrixA);
                ++bad;
            }
        }
        std::printf("%d rows, %d not primitive, %d members without a row\n", rows, bad,
                    brenn::rng::kMt2203Members - rows);
        return bad == 0 ? 0 : 1;
    }
    if (argc == 4 && std::strcmp(argv[1], "search") == 0) {
        int want = std::atoi(argv[2]);
        std::mt19937 pick(static_cast<uint32_t>(std::strtoul(argv[3], nullptr, 0)));
        for (long tried = 1; want > 0; ++tried) {
            uint32_t a = static_cast<uint32_t>(pick()) | 0x80000000u;
            if (Primitive(a)) {
                std::printf("0x%08X after %ld candidates\n", a, tried);
                std::fflush(stdout);
                --want;
            }
        }
        return 0;
    }
    std::fprintf(stderr, "usage: mt2203_dc verify | search N SEED\n");
    return 2;
}
