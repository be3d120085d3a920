// Generates rng/brng/wh_table.cpp, the 273 members of the Wichmann-Hill set: for
// each member four multipliers (one byte each, a1 in the lowest) and four prime
// moduli, with the reciprocals of the moduli. Members 0, 1 and 272 are the
// published ones; the others are chosen by the rule of docs/wh.md:
//   - moduli are primes in the range of the published members' moduli,
//     16766231 to 16770647, in strictly falling order within a member;
//   - multipliers lie in 112 to 127, differ within a member, and are primitive
//     roots of their modulus, so that each component has period m - 1;
//   - each (multiplier, modulus) pair passes the spectral test in dimensions 2 to 8:
//     nu_t >= kThreshold x min(sqrt(a^2 + 1), nu*_t), where nu*_t is the best
//     possible length and sqrt(a^2 + 1) the length of (a, -1), which every small
//     multiplier has in its dual lattice;
//   - the member's period, the lcm of the m - 1, is at least 2^80;
//   - no pair is used by two members.
// Members 2 to 271 are taken greedily: the unused passing pairs in order of falling
// modulus, then falling multiplier, the first that fits each next component.
// Every member, the published ones included, is checked against the whole rule.
//   gen_wh_table OUT      writes the table
//   gen_wh_table report   prints the figures that docs/wh.md quotes
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <set>
#include <utility>
#include <vector>

#include "tools/rng/spectral.h"

namespace {

using brenn::tools::BestDual;
using brenn::tools::ShortestDualSquared;

constexpr int kMembers = 273;
constexpr uint32_t kLowModulus = 16766231, kHighModulus = 16770647;
constexpr uint32_t kLowMultiplier = 112, kHighMultiplier = 127;
constexpr double kThreshold = 0.35;
constexpr int kMinPeriodBits = 80;

struct Pair {
    uint32_t a, m;
    bool operator<(const Pair& o) const { return m != o.m ? m > o.m : a > o.a; }
    bool operator==(const Pair& o) const { return a == o.a && m == o.m; }
};
using Member = std::vector<Pair>;

const std::pair<int, Member> kPublished[] = {
    {0, {{125, 16770647}, {117, 16770643}, {127, 16770623}, {126, 16770617}}},
    {1, {{127, 16770311}, {126, 16770283}, {125, 16770263}, {123, 16770209}}},
    {272, {{126, 16766363}, {127, 16766359}, {125, 16766327}, {124, 16766231}}},
};

bool IsPrime(uint32_t m) {
    if (m < 2) return false;
    for (uint32_t d = 2; d * d <= m; ++d)
        if (m % d == 0) return false;
    return true;
}

uint64_t PowMod(uint64_t b, uint64_t e, uint64_t m) {
    uint64_t r = 1;
    for (b %= m; e != 0; e >>= 1, b = b * b % m)
        if (e & 1) r = r * b % m;
    return r;
}

bool IsPrimitiveRoot(uint32_t a, uint32_t m) {
    uint32_t n = m - 1;
    for (uint32_t q = 2; q <= n; ++q) {
        if (q * q > n) q = n; // what is left is prime
        if (n % q != 0) continue;
        if (PowMod(a, (m - 1) / q, m) == 1) return false;
        while (n % q == 0)
            n /= q;
    }
    return true;
}

// min over t = 2..8 of nu_t / min(sqrt(a^2 + 1), nu*_t).
double Figure(const Pair& p) {
    double worst = INFINITY;
    double forced = std::sqrt(static_cast<double>(p.a) * p.a + 1);
    for (int t = 2; t <= 8; ++t) {
        double nu = std::sqrt(static_cast<double>(ShortestDualSquared(p.a, p.m, t)));
        worst = std::min(worst, nu / std::min(forced, BestDual(p.m, t)));
    }
    return worst;
}

bool PairPasses(const Pair& p) {
    return p.m >= kLowModulus && p.m <= kHighModulus && IsPrime(p.m) && p.a >= kLowMultiplier &&
           p.a <= kHighMultiplier && IsPrimitiveRoot(p.a, p.m) && Figure(p) >= kThreshold;
}

uint64_t Gcd(uint64_t x, uint64_t y) {
    while (y != 0)
        x = std::exchange(y, x % y);
    return x;
}

// log2 of the lcm of the component periods m - 1.
double PeriodBits(const Member& member) {
    unsigned __int128 l = 1;
    for (const Pair& p : member) {
        uint64_t g = Gcd(static_cast<uint64_t>(l % (p.m - 1)), p.m - 1);
        l = l / g * (p.m - 1);
    }
    return std::log2(static_cast<double>(l));
}

// The member-level rules beside the pairs': four components, falling moduli,
// distinct multipliers, the period.
bool MemberFits(const Member& member) {
    if (member.size() != 4) return false;
    for (size_t j = 1; j < 4; ++j) {
        if (member[j].m >= member[j - 1].m) return false;
        for (size_t i = 0; i < j; ++i)
            if (member[i].a == member[j].a) return false;
    }
    return PeriodBits(member) >= kMinPeriodBits;
}

std::vector<Member> Select() {
    std::vector<Member> table(kMembers);
    std::set<Pair> used;
    for (const auto& [index, member] : kPublished) {
        table[index] = member;
        used.insert(member.begin(), member.end());
    }
    std::vector<Pair> pool;
    for (uint32_t m = kHighModulus; m >= kLowModulus; --m) {
        if (!IsPrime(m)) continue;
        for (uint32_t a = kHighMultiplier; a >= kLowMultiplier; --a) {
            Pair p{a, m};
            if (!used.count(p) && PairPasses(p)) pool.push_back(p);
        }
    }
    for (int index = 0; index < kMembers; ++index) {
        if (!table[index].empty()) continue;
        Member member;
        for (size_t k = 0; k < pool.size() && member.size() < 4; ++k) {
            const Pair& p = pool[k];
            if (used.count(p)) continue;
            Member trial = member;
            trial.push_back(p);
            bool fits = true;
            for (size_t j = 0; j + 1 < trial.size(); ++j)
                if (trial[j].a == p.a || trial[j].m <= p.m) fits = false;
            if (trial.size() == 4 && !MemberFits(trial)) fits = false;
            if (fits) member = trial;
        }
        if (member.size() != 4) {
            std::fprintf(stderr, "member %d: the pool is exhausted\n", index);
            return {};
        }
        used.insert(member.begin(), member.end());
        table[index] = member;
    }
    return table;
}

// The whole rule on every member, and no pair twice.
bool Check(const std::vector<Member>& table) {
    std::set<Pair> seen;
    bool ok = table.size() == kMembers;
    for (size_t i = 0; ok && i < table.size(); ++i) {
        if (!MemberFits(table[i])) {
            std::fprintf(stderr, "member %zu breaks the member rules\n", i);
            ok = false;
        }
        for (const Pair& p : table[i]) {
            if (!PairPasses(p) || !seen.insert(p).second) {
                std::fprintf(stderr, "member %zu: pair (%u, %u) fails or repeats\n", i, p.a, p.m);
                ok = false;
            }
        }
    }
    return ok;
}

void Write(FILE* out, const std::vector<Member>& table) {
    std::fprintf(out, "// Generated by tools/rng/gen_wh_table; do not edit. The rule that chose\n"
                      "// the members is in docs/wh.md.\n"
                      "// clang-format off\n"
                      "#include \"rng/brng/wh_table.h\"\n\n"
                      "namespace brenn::rng {\n\n"
                      "// Multipliers a1 .. a4, one byte each, a1 in the lowest.\n"
                      "const uint32_t kWhMultipliers[kWhMembers] = {\n");
    for (size_t i = 0; i < table.size(); ++i) {
        uint32_t packed = 0;
        for (int j = 3; j >= 0; --j)
            packed = (packed << 8) | table[i][j].a;
        std::fprintf(out, "    0x%08Xu, // %zu\n", packed, i);
    }
    std::fprintf(out, "};\n\nconst uint32_t kWhModuli[kWhMembers][4] = {\n");
    for (size_t i = 0; i < table.size(); ++i)
        std::fprintf(out, "    {%uu, %uu, %uu, %uu}, // %zu\n", table[i][0].m, table[i][1].m,
                     table[i][2].m, table[i][3].m, i);
    std::fprintf(
        out,
        "};\n\n// 1 / m, rounded to nearest.\nconst double kWhReciprocals[kWhMembers][4] = {\n");
    for (size_t i = 0; i < table.size(); ++i) {
        std::fprintf(out, "    {");
        for (int j = 0; j < 4; ++j)
            std::fprintf(out, "%a%s", 1.0 / table[i][j].m, j == 3 ? "" : ", ");
        std::fprintf(out, "}, // %zu\n", i);
    }
    std::fprintf(out, "};\n\n} // namespace brenn::rng\n");
}

void Report(const std::vector<Member>& table) {
    int primes = 0, roots = 0, passing = 0;
    std::vector<double> figures;
    for (uint32_t m = kLowModulus; m <= kHighModulus; ++m) {
        if (!IsPrime(m)) continue;
        ++primes;
        for (uint32_t a = kLowMultiplier; a <= kHighMultiplier; ++a) {
            if (!IsPrimitiveRoot(a, m)) continue;
            ++roots;
            double f = Figure({a, m});
            figures.push_back(f);
            if (f >= kThreshold) ++passing;
        }
    }
    std::sort(figures.begin(), figures.end());
    std::printf("primes %d, primitive-root pairs %d, passing %d (threshold %.2f)\n", primes, roots,
                passing, kThreshold);
    for (double q : {0.0, 0.01, 0.05, 0.1, 0.25, 0.5})
        std::printf("figure quantile %.2f: %.3f\n", q,
                    figures[static_cast<size_t>(q * (figures.size() - 1))]);
    double lowPeriod = 1e9, lowFigure = 1e9;
    for (const Member& member : table) {
        lowPeriod = std::min(lowPeriod, PeriodBits(member));
        for (const Pair& p : member)
            lowFigure = std::min(lowFigure, Figure(p));
    }
    std::printf("table: lowest figure %.3f, shortest period 2^%.1f\n", lowFigure, lowPeriod);
    for (const auto& [index, member] : kPublished) {
        std::printf("published member %d: figures", index);
        for (const Pair& p : member)
            std::printf(" %.3f", Figure(p));
        std::printf(", period 2^%.1f\n", PeriodBits(member));
    }
    uint32_t lowest = kHighModulus;
    for (const Member& member : table)
        lowest = std::min(lowest, member[3].m);
    std::printf("lowest modulus used %u\n", lowest);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: gen_wh_table OUT | report\n");
        return 2;
    }
    std::vector<Member> table = Select();
    if (table.empty() || !Check(table)) return 1;
    if (std::strcmp(argv[1], "report") == 0) {
        Report(table);
        return 0;
    }
    FILE* out = std::fopen(argv[1], "w");
    if (out == nullptr) return 1;
    Write(out, table);
    return std::fclose(out) == 0 ? 0 : 1;
}
