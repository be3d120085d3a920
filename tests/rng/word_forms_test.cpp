// The element forms that R250, MRG32K3A and WH share: the vector conversion of
// word pairs gives the scalar conversion's bits in every rounding mode (a zero word
// must give +0 rounding downward too), for both precisions and odd counts.
#include <cfenv>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "rng/brng/word_forms.h"

namespace {

using brenn::rng::DoubleForm;
using brenn::rng::SingleForm;

template <typename T, typename Form>
void ExpectRunEqualsPut(Form run, Form put, const std::vector<uint32_t>& words, int mode) {
    run.Run(0, words.data(), static_cast<int32_t>(words.size()));
    for (size_t i = 0; i < words.size(); ++i)
        put.Put(static_cast<int32_t>(i), words[i]);
    for (size_t i = 0; i < words.size(); ++i)
        EXPECT_EQ(std::memcmp(&run.r[i], &put.r[i], sizeof(T)), 0)
            << "mode " << mode << " word " << words[i] << ": " << run.r[i] << " vs " << put.r[i];
}

TEST(RngWordForms, PairsEqualSingleWordsInEveryRoundingMode) {
    const std::vector<uint32_t> words = {0, 1, 0xFFFFFFFFu, 0x80000000u, 0, 7, 0x12345678u};
    struct Bounds {
        double a, b;
    };
    const Bounds bounds[] = {{0.0, 1.0}, {-0.0, 1.0}, {-2.5, 3.25}, {1e300, 1.5e300}};
    for (int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
        const int saved = std::fegetround();
        std::fesetround(mode);
        for (const Bounds& bd : bounds) {
            std::vector<double> d1(words.size()), d2(words.size());
            ExpectRunEqualsPut<double>(DoubleForm(d1.data(), bd.a, bd.b, 0x1p-32),
                                       DoubleForm(d2.data(), bd.a, bd.b, 0x1p-32), words, mode);
            std::vector<float> f1(words.size()), f2(words.size());
            const auto a = static_cast<float>(bd.a), b = static_cast<float>(bd.b);
            ExpectRunEqualsPut<float>(SingleForm(f1.data(), a, b, 0x1p-32),
                                      SingleForm(f2.data(), a, b, 0x1p-32), words, mode);
        }
        std::fesetround(saved);
    }
}

} // namespace
