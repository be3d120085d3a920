// Writes the raw 32-bit output of one generator to standard output without end,
// for statistical batteries that read a binary stream (dieharder -g 200):
//   mt_words mt19937 | mt2203:MEMBER | sfmt19937 [SEED]
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "brenn_rng.h"

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: mt_words mt19937|mt2203:MEMBER|sfmt19937 [SEED]\n");
        return 2;
    }
    int32_t id;
    if (std::strcmp(argv[1], "mt19937") == 0)
        id = QES_BRNG_MT19937;
    else if (std::strcmp(argv[1], "sfmt19937") == 0)
        id = QES_BRNG_SFMT19937;
    else if (std::strncmp(argv[1], "mt2203:", 7) == 0)
        id = QES_BRNG_MT2203 + std::atoi(argv[1] + 7);
    else
        return 2;
    uint32_t seed = argc > 2 ? static_cast<uint32_t>(std::strtoul(argv[2], nullptr, 0)) : 20260421u;
    void* s = nullptr;
    if (__qesNewStreamEx(&s, id, 1, &seed) != 0) return 1;
    BrngRecord row;
    __qesGetBrngProperties(id, &row);
    std::vector<uint32_t> block(1 << 16);
    for (;;) {
        row.iGenerate(s, static_cast<int32_t>(block.size()), block.data());
        if (std::fwrite(block.data(), sizeof(uint32_t), block.size(), stdout) != block.size())
            break; // the reader has had enough
    }
    __qesDeleteStream(&s);
    return 0;
}
