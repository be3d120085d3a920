// The tempering-mask search: bit bookkeeping, result consistency, determinism and
// quality on the twist constant of member 0.
#include <gtest/gtest.h>

#include "tools/mt/temper_search.h"

namespace brenn::mt {
namespace {

TEST(TemperSearch, StepsCoverEveryMaskBitOnce) {
    uint32_t b = 0, c = 0;
    for (int v = 1; v <= 32; ++v) {
        const StepBits s = TemperStepBits(v);
        if (v > 17) EXPECT_EQ(s.count, 0) << v;
        for (int i = 0; i < s.count; ++i) {
            EXPECT_EQ(__builtin_popcount(s.bBits[i] | s.cBits[i]), 1) << v;
            EXPECT_EQ(b & s.bBits[i], 0u) << v;
            EXPECT_EQ(c & s.cBits[i], 0u) << v;
            b |= s.bBits[i];
            c |= s.cBits[i];
        }
    }
    EXPECT_EQ(b, 0xFFFFFF80u); // b is zero in the 7 bits shifted in by << 7
    EXPECT_EQ(c, 0xFFFF8000u); // c in the 15 bits shifted in by << 15
}

TEST(TemperSearch, StepBitsLeaveEarlierDimensionsAlone) {
    // The bits a step introduces change output bit v - 1 only, which is what lets
    // the search settle k(1..v-1) before it looks at step v.
    const uint32_t a = 0xAF81055Fu, b = 0xDD7EEF80u, c = 0xEFD78000u;
    for (int v : {2, 9, 16, 17}) {
        const StepBits s = TemperStepBits(v);
        for (int i = 0; i < s.count; ++i)
            for (int w = 1; w < v; ++w)
                EXPECT_EQ(EquidistAt(Mt2203Params(a, b, c), w),
                          EquidistAt(Mt2203Params(a, b ^ s.bBits[i], c ^ s.cBits[i]), w))
                    << "v " << v << " bit " << i << " w " << w;
    }
}

TEST(TemperSearch, Member0ReachesThePublishedQuality) {
    const uint32_t a = 0xAF81055Fu;
    const TemperMasks t = SearchTempering(a);
    ASSERT_TRUE(t.ok);
    EXPECT_EQ(t.b & 0x7Fu, 0u);
    EXPECT_EQ(t.c & 0x7FFFu, 0u);
    // The reported profile is the profile of the reported masks.
    EquidistProfile k;
    ASSERT_TRUE(ComputeEquidist(Mt2203Params(a, t.b, t.c), &k));
    EXPECT_EQ(t.k, k);
    EXPECT_EQ(t.totalDefect, TotalDefect(k, 2203));
    // The published masks of member 0 have total defect 699.
    EXPECT_LE(t.totalDefect, 700);
    // Deterministic for a given a.
    const TemperMasks again = SearchTempering(a);
    EXPECT_EQ(again.b, t.b);
    EXPECT_EQ(again.c, t.c);
}

TEST(TemperSearch, DegenerateTwistConstantIsRefused) {
    const TemperMasks t = SearchTempering(0, TemperSearchOptions{2});
    EXPECT_FALSE(t.ok);
}

} // namespace
} // namespace brenn::mt
