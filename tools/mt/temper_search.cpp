// Tempering-mask search for MT2203 members.
//
// Tempering is y = x ^ (x >> 12); y ^= (y << 7) & b; y ^= (y << 15) & c;
// out = y ^ (y >> 18). Counting bits from the most significant (index 0), the
// top v bits of out are an invertible mix of the top v bits of the second y,
// which read c[0..v-1], b[0..v-1] and b[15..v+14]; b is zero below index 25 and
// c below index 17. Going from v - 1 to v adds at most the three bits c[v-1],
// b[v-1] and b[v+14], and (for v <= 17, where new bits exist) they change only
// output bit v - 1, so k(1..v-1) already settled stay as they were. The search
// is a beam over the steps: every kept assignment is extended by every value of
// the new bits, k(v) of each extension is computed, and the extensions with the
// smallest defect sum d(1) + ... + d(v) are kept (ties in an order drawn from a
// generator seeded by a). After step 17 all bits are set and the full profiles
// of the survivors decide by total defect.

#include "tools/mt/temper_search.h"

#include <algorithm>
#include <vector>

namespace brenn::mt {

namespace {

constexpr int kSteps = 17;
constexpr int kDegree = 2203;

uint32_t MsbBit(int index) {
    return 0x80000000u >> index;
}

// splitmix64: a small, fully specified generator for the tie order.
uint64_t NextRandom(uint64_t& s) {
    uint64_t z = (s += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

// A partial assignment: the masks so far and the defects d(1..v) they settle.
struct Candidate {
    uint32_t b, c;
    int defectSum;  // d(1) + ... + d(v)
    int worst;      // max d over 1..v, the lexicographic tie-break
    uint64_t order; // random tie order
};

bool Better(const Candidate& x, const Candidate& y) {
    if (x.defectSum != y.defectSum) return x.defectSum < y.defectSum;
    if (x.worst != y.worst) return x.worst < y.worst;
    return x.order < y.order;
}

} // namespace

StepBits TemperStepBits(int v) {
    StepBits s{0, {}, {}};
    auto add = [&s](uint32_t bBit, uint32_t cBit) {
        s.bBits[s.count] = bBit;
        s.cBits[s.count] = cBit;
        ++s.count;
    };
    if (v < 1 || v > kSteps) return s;
    if (v - 1 <= 16) add(0, MsbBit(v - 1));   // c[v-1]
    if (v - 1 < 15) add(MsbBit(v - 1), 0);    // b[v-1]; later ones came with b[v+14]
    if (v + 14 <= 24) add(MsbBit(v + 14), 0); // b[v+14]
    return s;
}

namespace {

// One beam search and its repair; the seed orders the ties.
TemperMasks SearchOnce(uint32_t a, const TemperSearchOptions& options, uint64_t seed) {
    TemperMasks out;
    uint64_t rng = seed;
    const int width = options.beamWidth < 1 ? 1 : options.beamWidth;
    std::vector<Candidate> beam{Candidate{0, 0, 0, 0, 0}};
    std::vector<Candidate> next;
    for (int v = 1; v <= kSteps; ++v) {
        const StepBits bits = TemperStepBits(v);
        const int bound = EquidistBound(kDegree, v);
        next.clear();
        for (const Candidate& parent : beam) {
            const size_t first = next.size();
            for (int m = 0; m < (1 << bits.count); ++m) {
                Candidate child = parent;
                for (int i = 0; i < bits.count; ++i)
                    if (m >> i & 1) {
                        child.b |= bits.bBits[i];
                        child.c |= bits.cBits[i];
                    }
                ++out.evaluations;
                const int k = EquidistAt(Mt2203Params(a, child.b, child.c), v);
                if (k < 0) return out; // degenerate: a is not primitive
                child.defectSum += bound - k;
                child.worst = std::max(child.worst, bound - k);
                child.order = NextRandom(rng);
                next.push_back(child);
            }
            // At most perParent extensions of one parent go on, so that the beam
            // does not collapse onto the descendants of a single early choice.
            const size_t cap = static_cast<size_t>(std::max(options.perParent, 1));
            if (next.size() - first > cap) {
                std::partial_sort(next.begin() + first, next.begin() + first + cap, next.end(),
                                  Better);
                next.resize(first + cap);
            }
        }
        const size_t keep = std::min(next.size(), static_cast<size_t>(width));
        std::partial_sort(next.begin(), next.begin() + keep, next.end(), Better);
        next.resize(keep);
        beam.swap(next);
    }
    // Every mask bit is set now; the full profile decides among the survivors.
    for (const Candidate& cand : beam) {
        EquidistProfile k;
        ++out.evaluations;
        if (!ComputeEquidist(Mt2203Params(a, cand.b, cand.c), &k)) return TemperMasks{};
        const int defect = TotalDefect(k, kDegree);
        if (!out.ok || defect < out.totalDefect) {
            out.ok = true;
            out.b = cand.b;
            out.c = cand.c;
            out.k = k;
            out.totalDefect = defect;
        }
    }
    // A late dimension (typically v = 16) can miss its bound by a wide margin for
    // every survivor; single-bit changes anywhere in the masks often repair it.
    for (int pass = 0; out.ok && pass < options.repairPasses; ++pass) {
        bool improved = false;
        for (int bit = 0; bit < 42; ++bit) {
            uint32_t b = out.b, c = out.c;
            if (bit < 25)
                b ^= MsbBit(bit);
            else
                c ^= MsbBit(bit - 25);
            EquidistProfile k;
            ++out.evaluations;
            if (!ComputeEquidist(Mt2203Params(a, b, c), &k)) continue;
            const int defect = TotalDefect(k, kDegree);
            if (defect < out.totalDefect) {
                out.b = b;
                out.c = c;
                out.k = k;
                out.totalDefect = defect;
                improved = true;
            }
        }
        if (!improved) break;
    }
    return out;
}

} // namespace

TemperMasks SearchTempering(uint32_t a, const TemperSearchOptions& options) {
    TemperMasks best;
    int evaluations = 0;
    for (int attempt = 0; attempt <= options.retries; ++attempt) {
        TemperMasks t =
            SearchOnce(a, options, (0x6D74323230330000ull ^ a) + 0x1000000000ull * attempt);
        evaluations += t.evaluations;
        if (!t.ok) return TemperMasks{};
        if (!best.ok || t.totalDefect < best.totalDefect) best = t;
        if (best.totalDefect <= options.retryAbove) break;
    }
    best.evaluations = evaluations;
    return best;
}

} // namespace brenn::mt
