// The member table of MT2203 by the dynamic-creation method: twist constants whose
// 69-word recurrence has a primitive characteristic polynomial of degree 2203
// (mt2203_primitive.h), and, per constant, tempering masks for the best
// equidistribution (mt2203_temper, a separate program). This one searches the
// constants, writes the table source and verifies the committed table:
//
//   mt2203_dc search FIRST LAST [SEED [COUNT]]
//                                        "member a1 a2 ... tried" lines for members
//                                        FIRST..LAST: the first COUNT (2) primitive
//                                        constants of each member's own stream, so
//                                        ranges can run in parallel processes
//   mt2203_dc pick FILE...               "member a" lines, constants made distinct
//   mt2203_dc table OUT ROWS...          table source from "member a b c defect"
//                                        lines, the least defect of each member
//   mt2203_dc verify [STEP]              every STEP-th row (and the published ones):
//                                        primitive, the library's own generator
//                                        output annihilated by the polynomial, total
//                                        dimension defect of the tempered output
//                                        within bound; all twist constants distinct
//   mt2203_dc report OUT                 the equidistribution of every row, as a
//                                        Markdown page
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "brenn_rng.h"
#include "rng/brng/mt2203_table.h"
#include "tools/mt/equidist.h"
#include "tools/mt/mt2203_primitive.h"

namespace {

using brenn::gf2::Poly;
using brenn::rng::Mt2203Member;
using brenn::rng::kMt2203Members;
namespace mt2203 = brenn::mt2203;

constexpr int kSieveDegree = 12;
// Total dimension defect a row may have: the published rows have 699 to 713. A
// member whose first constant cannot be tempered to this (about 4 %) takes a
// further constant of its stream.
constexpr int kDefectBound = 730;

// The published rows (members 0 to 3 and 6023); the search fills the others.
const std::map<int, Mt2203Member> kPublished = {
    {0, {0xAF81055Fu, 0xDD7EEF80u, 0xEFD78000u}},    {1, {0x832604E1u, 0x66AD7F80u, 0xEBD58000u}},
    {2, {0x92F70739u, 0x656D7780u, 0xEFC50000u}},    {3, {0x8B75046Eu, 0x76957780u, 0xEFC48000u}},
    {6023, {0xE8761D4Bu, 0x72967680u, 0xEFEB0000u}},
};

// The first `count` twist constants of one member's own stream (top bit set, as
// the published ones) that are primitive, and the candidates drawn for them.
std::vector<uint32_t> SearchMember(const mt2203::Sieve& sieve, int member, uint32_t seed,
                                   int count, long* tried) {
    std::seed_seq seq{seed, static_cast<uint32_t>(member), 0x2203u};
    std::mt19937 pick(seq);
    std::vector<uint32_t> found;
    for (*tried = 0; static_cast<int>(found.size()) < count;) {
        ++*tried;
        uint32_t a = static_cast<uint32_t>(pick()) | 0x80000000u;
        if (mt2203::Primitive(sieve, a)) found.push_back(a);
    }
    return found;
}

// The first outputs of the library's generator for a member are a sequence that
// phi must annihilate word-wise (tempering mixes bits within a word only): for
// every i, the XOR of w[i + j] over the terms t^j of phi is zero.
bool AnnihilatesLibraryOutput(int member, const Poly& phi) {
    void* s = nullptr;
    uint32_t seed = 5489u + static_cast<uint32_t>(member);
    if (__qesNewStreamEx(&s, QES_BRNG_MT2203 + member, 1, &seed) != 0) return false;
    constexpr int kChecks = 96;
    std::vector<uint32_t> w(mt2203::kDegree + kChecks + 1);
    int32_t status = __qesiBRngMT2203(s, static_cast<int32_t>(w.size()), w.data());
    __qesDeleteStream(&s);
    if (status != 0) return false;
    std::vector<int> terms;
    for (int j = 0; j <= mt2203::kDegree; ++j)
        if (brenn::gf2::Coeff(phi, j)) terms.push_back(j);
    for (int i = 0; i < kChecks; ++i) {
        uint32_t x = 0;
        for (int j : terms)
            x ^= w[i + j];
        if (x != 0) return false;
    }
    return true;
}

int Verify(int step) {
    int checked = 0, bad = 0, missing = 0;
    std::set<uint32_t> seen;
    for (int m = 0; m < kMt2203Members; ++m) {
        const Mt2203Member* row = brenn::rng::FindMt2203Member(m);
        if (row == nullptr) {
            ++missing;
            continue;
        }
        if (!seen.insert(row->matrixA).second) {
            std::printf("member %d: twist constant 0x%08X used twice\n", m, row->matrixA);
            ++bad;
        }
        auto published = kPublished.find(m);
        if (published != kPublished.end() &&
            (published->second.matrixA != row->matrixA ||
             published->second.temperB != row->temperB ||
             published->second.temperC != row->temperC)) {
            std::printf("member %d: differs from the published row\n", m);
            ++bad;
        }
        if ((row->temperB & 0x7Fu) != 0 || (row->temperC & 0x7FFFu) != 0 ||
            (row->matrixA >> 31) == 0) {
            std::printf("member %d: malformed constants\n", m);
            ++bad;
        }
        if (m % step != 0 && published == kPublished.end()) continue;
        ++checked;
        Poly phi = mt2203::CharPoly(row->matrixA);
        if (!mt2203::FrobeniusIrreducible(phi)) {
            std::printf("member %d: 0x%08X is not primitive\n", m, row->matrixA);
            ++bad;
        } else if (!AnnihilatesLibraryOutput(m, phi)) {
            std::printf("member %d: the generator's output does not follow phi\n", m);
            ++bad;
        }
        brenn::mt::EquidistProfile k{};
        if (!brenn::mt::ComputeEquidist(
                brenn::mt::Mt2203Params(row->matrixA, row->temperB, row->temperC), &k) ||
            brenn::mt::TotalDefect(k, mt2203::kDegree) > kDefectBound) {
            std::printf("member %d: total dimension defect %d above %d\n", m,
                        brenn::mt::TotalDefect(k, mt2203::kDegree), kDefectBound);
            ++bad;
        }
    }
    std::printf("%d members, %d without a row, %d checked for primitivity (%s products), %d "
                "faults\n",
                kMt2203Members, missing, checked, brenn::gf2::ProductKind(), bad);
    return bad == 0 ? 0 : 1;
}

// COUNT (default two) constants a member: two let `pick` keep the constants
// distinct (about 5.6 million constants with the top bit set are primitive, and
// among 6019 draws a few coincide); more give a member whose first constant
// tempers badly other constants to try.
int Search(int first, int last, uint32_t seed, int count) {
    mt2203::Sieve sieve = mt2203::MakeSieve(kSieveDegree);
    for (int m = first; m <= last; ++m) {
        if (kPublished.count(m) != 0) continue;
        long tried = 0;
        std::vector<uint32_t> found = SearchMember(sieve, m, seed, count, &tried);
        std::printf("%d", m);
        for (uint32_t a : found)
            std::printf(" 0x%08X", a);
        std::printf(" %ld\n", tried);
        std::fflush(stdout);
    }
    return 0;
}

// In member order, each member takes its first constant unless an earlier member
// (or a published row) has it, then its second.
int Pick(int files, char** paths) {
    std::map<int, std::pair<uint32_t, uint32_t>> drawn;
    for (int i = 0; i < files; ++i) {
        FILE* in = std::fopen(paths[i], "r");
        if (in == nullptr) return 1;
        char line[256];
        int m;
        unsigned a, b;
        while (std::fgets(line, sizeof line, in) != nullptr)
            if (std::sscanf(line, "%d %x %x", &m, &a, &b) == 3) drawn[m] = {a, b};
        std::fclose(in);
    }
    std::set<uint32_t> taken;
    for (const auto& [m, row] : kPublished)
        taken.insert(row.matrixA);
    int second = 0;
    for (const auto& [m, pair] : drawn) {
        uint32_t a = pair.first;
        if (taken.count(a) != 0) {
            a = pair.second;
            ++second;
        }
        if (!taken.insert(a).second) {
            std::fprintf(stderr, "member %d: both constants taken\n", m);
            return 1;
        }
        std::printf("%d 0x%08X\n", m, a);
    }
    std::fprintf(stderr, "%zu members, %d took their second constant\n", drawn.size(), second);
    return 0;
}

// Rows "member a b c totaldefect ..." from one or more runs of mt2203_temper; a
// member met in several keeps its row of least total defect: a second run with a
// wider search on the rows that came out worst, and for the few twist constants
// that no search tempers well, the member's further constants.
int Table(const char* outPath, int files, char** rowsPaths) {
    std::map<int, Mt2203Member> rows = kPublished;
    std::map<int, int> defects;
    for (int i = 0; i < files; ++i) {
        FILE* in = std::fopen(rowsPaths[i], "r");
        if (in == nullptr) return 1;
        char line[512];
        while (std::fgets(line, sizeof line, in) != nullptr) {
            int m, defect;
            unsigned a, b, c;
            if (std::sscanf(line, "%d %x %x %x %d", &m, &a, &b, &c, &defect) != 5) continue;
            if (m < 0 || m >= kMt2203Members || kPublished.count(m) != 0) continue;
            auto known = defects.find(m);
            if (known != defects.end() && known->second <= defect) continue;
            rows[m] = Mt2203Member{a, b, c};
            defects[m] = defect;
        }
        std::fclose(in);
    }
    std::set<uint32_t> twists;
    for (const auto& [m, r] : rows)
        if (!twists.insert(r.matrixA).second) {
            std::fprintf(stderr, "member %d: twist constant 0x%08X used twice\n", m, r.matrixA);
            return 1;
        }
    if (static_cast<int>(rows.size()) != kMt2203Members) {
        std::fprintf(stderr, "%zu rows of %d\n", rows.size(), kMt2203Members);
        return 1;
    }
    FILE* out = std::fopen(outPath, "w");
    if (out == nullptr) return 1;
    std::fprintf(out,
                 "// The member rows of MT2203: twist constant and tempering masks, indexed by\n"
                 "// member. Members 0 to 3 and 6023 are the published rows of exponent 2203;\n"
                 "// the others were found by tools/mt (mt2203_dc search, then mt2203_temper) and\n"
                 "// are checked by `mt2203_dc verify`. Written by `mt2203_dc table`.\n"
                 "#include \"rng/brng/mt2203_table.h\"\n\n"
                 "namespace brenn::rng {\n\n"
                 "namespace {\n\n"
                 "// clang-format off\n"
                 "const Mt2203Member kRows[kMt2203Members] = {\n");
    for (const auto& [m, r] : rows)
        std::fprintf(out, "    {0x%08Xu, 0x%08Xu, 0x%08Xu},%s\n", r.matrixA, r.temperB, r.temperC,
                     m % 16 == 0 ? (" // " + std::to_string(m)).c_str() : "");
    std::fprintf(out, "};\n"
                      "// clang-format on\n\n"
                      "} // namespace\n\n"
                      "const Mt2203Member* FindMt2203Member(int32_t member) {\n"
                      "    if (member < 0 || member >= kMt2203Members) return nullptr;\n"
                      "    return &kRows[member];\n"
                      "}\n\n"
                      "} // namespace brenn::rng\n");
    std::fclose(out);
    return 0;
}

// The equidistribution of the whole table: total defects and, per v, how many
// members reach the bound, with the published rows beside them.
int Report(const char* outPath) {
    std::vector<int> totals;
    std::array<std::vector<int>, 32> perV;
    std::map<int, int> publishedTotal;
    for (int m = 0; m < kMt2203Members; ++m) {
        const Mt2203Member* row = brenn::rng::FindMt2203Member(m);
        if (row == nullptr) continue;
        brenn::mt::EquidistProfile k{};
        if (!brenn::mt::ComputeEquidist(
                brenn::mt::Mt2203Params(row->matrixA, row->temperB, row->temperC), &k))
            return 1;
        int total = brenn::mt::TotalDefect(k, mt2203::kDegree);
        totals.push_back(total);
        if (kPublished.count(m) != 0) publishedTotal[m] = total;
        for (int v = 1; v <= 32; ++v)
            perV[v - 1].push_back(k[v - 1]);
    }
    if (totals.empty()) return 1;
    FILE* out = std::fopen(outPath, "w");
    if (out == nullptr) return 1;
    std::vector<int> sorted = totals;
    std::sort(sorted.begin(), sorted.end());
    double mean = 0;
    for (int t : totals)
        mean += t;
    mean /= static_cast<double>(totals.size());
    std::fprintf(out, "# MT2203 member table: equidistribution\n\n"
                      "Written by `mt2203_dc report` from the committed table. k(v) is the "
                      "dimension of equidistribution of the top v bits of the tempered output "
                      "(lattice reduction, tools/mt/equidist.h); the bound is floor(2203/v) and the "
                      "total dimension defect the sum of bound - k(v) over v = 1..32. Every row's "
                      "twist constant gives a primitive characteristic polynomial "
                      "(`mt2203_dc verify`).\n\n");
    std::fprintf(out, "%zu rows. Total defect: min %d, median %d, mean %.1f, max %d.\n\n",
                 totals.size(), sorted.front(), sorted[sorted.size() / 2], mean, sorted.back());
    std::fprintf(out, "Published rows:");
    for (const auto& [m, t] : publishedTotal)
        std::fprintf(out, " member %d: %d;", m, t);
    std::fprintf(out, "\n\n| Total defect | Rows |\n|---|---|\n");
    const int edges[] = {700, 710, 720, 730, 740, 750, 760, 1 << 30};
    int low = 0;
    for (int e : edges) {
        long count = std::count_if(totals.begin(), totals.end(),
                                   [&](int t) { return t >= low && t < e; });
        if (e == (1 << 30))
            std::fprintf(out, "| %d and above | %ld |\n", low, count);
        else
            std::fprintf(out, "| %d to %d | %ld |\n", low, e - 1, count);
        low = e;
    }
    std::fprintf(out, "\n| v | bound | min k(v) | median k(v) | rows at the bound |\n"
                      "|---|---|---|---|---|\n");
    for (int v = 1; v <= 32; ++v) {
        std::vector<int> k = perV[v - 1];
        std::sort(k.begin(), k.end());
        int bound = brenn::mt::EquidistBound(mt2203::kDegree, v);
        long at = std::count(k.begin(), k.end(), bound);
        std::fprintf(out, "| %d | %d | %d | %d | %ld |\n", v, bound, k.front(), k[k.size() / 2],
                     at);
    }
    std::fclose(out);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc >= 2 && std::strcmp(argv[1], "verify") == 0)
        return Verify(argc >= 3 ? std::max(1, std::atoi(argv[2])) : 1);
    if (argc >= 4 && std::strcmp(argv[1], "search") == 0)
        return Search(std::atoi(argv[2]), std::atoi(argv[3]),
                      argc >= 5 ? static_cast<uint32_t>(std::strtoul(argv[4], nullptr, 0)) : 2203u,
                      argc >= 6 ? std::max(2, std::atoi(argv[5])) : 2);
    if (argc == 3 && std::strcmp(argv[1], "report") == 0) return Report(argv[2]);
    if (argc >= 3 && std::strcmp(argv[1], "pick") == 0) return Pick(argc - 2, argv + 2);
    if (argc >= 4 && std::strcmp(argv[1], "table") == 0) return Table(argv[2], argc - 3, argv + 3);
    std::fprintf(stderr, "usage: mt2203_dc verify [STEP] | search FIRST LAST [SEED [COUNT]] | pick FILE... "
                         "| table OUT ROWS... | report OUT\n");
    return 2;
}
