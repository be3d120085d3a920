// 3 x 3 matrix powers modulo a 32-bit modulus for the jumps of the combined
// multiple-recursive generator: powering of a companion matrix over a 64-bit or a
// long count, and the table path that multiplies precomputed powers M^(2^b).
#include <string.h>

#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "rng/core/jumptables.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

using Matrix = uint32_t[9];

// The modulus arrives as its negative 32-bit form: -209 stands for 2^32 - 209.
inline uint64_t Modulus(int32_t negative) {
    return static_cast<uint32_t>(negative);
}

void MatMul(uint32_t* out, const uint32_t* x, const uint32_t* y, uint64_t m) {
    uint32_t t[9];
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) {
            uint64_t s = 0;
            for (int k = 0; k < 3; ++k)
                s += static_cast<uint64_t>(x[3 * i + k]) * y[3 * k + j] % m;
            t[3 * i + j] = static_cast<uint32_t>(s % m);
        }
    memcpy(out, t, sizeof t);
}

void MatVec(uint32_t* v, const uint32_t* x, uint64_t m) {
    uint32_t t[3];
    for (int i = 0; i < 3; ++i) {
        uint64_t s = 0;
        for (int k = 0; k < 3; ++k)
            s += static_cast<uint64_t>(x[3 * i + k]) * v[k] % m;
        t[i] = static_cast<uint32_t>(s % m);
    }
    memcpy(v, t, sizeof t);
}

void Companion(uint32_t* x, const uint32_t* row) {
    const uint32_t c[9] = {0, 1, 0, 0, 0, 1, row[0], row[1], row[2]};
    memcpy(x, c, sizeof c);
}

void Identity(uint32_t* x) {
    const uint32_t c[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    memcpy(x, c, sizeof c);
}

// result = base^(bits of words), right to left.
void PowerOver(uint32_t* result, uint32_t* base, int32_t n, const uint64_t* words, uint64_t m) {
    Identity(result);
    int32_t top = n;
    while (top > 0 && words[top - 1] == 0)
        --top;
    for (int32_t w = 0; w < top; ++w) {
        uint64_t c = words[w];
        for (int bit = 0; bit < 64; ++bit) {
            if (w == top - 1 && c == 0) break;
            if (c & 1) MatMul(result, result, base, m);
            MatMul(base, base, base, m);
            c >>= 1;
        }
    }
}

void TablePath(uint32_t* vector, int32_t n, const uint64_t* words, const uint32_t* table,
               uint64_t m) {
    // Counts at or past 2^193 have no use against the period; their bits are ignored
    // rather than read past the table.
    for (int32_t half = 0; half < 2 * n; ++half) {
        uint32_t h = static_cast<uint32_t>(words[half / 2] >> (32 * (half % 2)));
        for (int bit = 0; bit < 32; ++bit) {
            int b = 32 * half + bit;
            if (b >= kVect3TableEntries) return;
            if ((h >> bit) & 1) MatVec(vector, table + 9 * b, m);
        }
    }
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT void __qesiVect3PowMod(uint32_t* vector, const uint32_t* row, int32_t modulus,
                                    uint32_t countLow, uint32_t countHigh) {
    uint64_t count = (static_cast<uint64_t>(countHigh) << 32) | countLow;
    Matrix base, result;
    Companion(base, row);
    PowerOver(result, base, 1, &count, Modulus(modulus));
    MatVec(vector, result, Modulus(modulus));
}

BRENN_EXPORT int32_t __qesiVect3PowArrayMod(uint32_t* vector, const uint32_t* row, int32_t modulus,
                                            int32_t n, const uint64_t* words) {
    // The count is worked on in a scratch copy: on the stack for short counts.
    uint64_t local[10] = {};
    uint64_t* scratch = local;
    size_t bytes = 0;
    if (n > 0 && !BytesFor(n, sizeof(uint64_t), &bytes)) return QES_STATUS_NO_MEMORY;
    if (n > 10) {
        scratch = static_cast<uint64_t*>(brenn_serv_allocate(bytes, kStreamAlignment));
        if (scratch == nullptr) return QES_STATUS_NO_MEMORY;
    }
    if (n > 0) memcpy(scratch, words, bytes);
    Matrix base, result;
    Companion(base, row);
    PowerOver(result, base, n, scratch, Modulus(modulus));
    MatVec(vector, result, Modulus(modulus));
    if (scratch != local) brenn_serv_deallocate(scratch);
    return QES_STATUS_OK;
}

BRENN_EXPORT void __qesiVect3PowArrayMod_M1(uint32_t* vector, int32_t n, const uint64_t* words,
                                            const uint32_t* table) {
    TablePath(vector, n, words, table, kMrgModulus1);
}

BRENN_EXPORT void __qesiVect3PowArrayMod_M2(uint32_t* vector, int32_t n, const uint64_t* words,
                                            const uint32_t* table) {
    TablePath(vector, n, words, table, kMrgModulus2);
}
