// The verified member rows of MT2203, sorted by member. Members 0 to 3 and 6023 are
// the published rows of exponent 2203 from the dynamic-creation method; the rows
// between them are to come from tools/mt/mt2203_dc once its tempering search
// exists, and until then those members are refused at seeding.
#include "rng/brng/mt2203_table.h"

namespace brenn::rng {

namespace {

struct Row {
    int32_t member;
    Mt2203Member values;
};

const Row kRows[] = {
    {0, {0xAF81055Fu, 0xDD7EEF80u, 0xEFD78000u}},    {1, {0x832604E1u, 0x66AD7F80u, 0xEBD58000u}},
    {2, {0x92F70739u, 0x656D7780u, 0xEFC50000u}},    {3, {0x8B75046Eu, 0x76957780u, 0xEFC48000u}},
    {6023, {0xE8761D4Bu, 0x72967680u, 0xEFEB0000u}},
};

} // namespace

const Mt2203Member* FindMt2203Member(int32_t member) {
    int lo = 0, hi = static_cast<int>(sizeof(kRows) / sizeof(kRows[0]));
    while (lo < hi) {
        int mid = (lo + hi) / 2;
        if (kRows[mid].member < member)
            lo = mid + 1;
        else
            hi = mid;
    }
    if (lo < static_cast<int>(sizeof(kRows) / sizeof(kRows[0])) && kRows[lo].member == member)
        return &kRows[lo].values;
    return nullptr;
}

} // namespace brenn::rng
