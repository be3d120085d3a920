// SFMT19937 against the published reference output and a plain word-by-word
// implementation written here: seeding with period certification, every cut of
// a request (spilled words of a started group), the centred element forms, and
// skip-ahead around the switch from Horner's scheme to the window, with every
// remainder inside a group.
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "tests/rng/brng_harness.h"

namespace {

using namespace brenn::test;

// ---- The reference: the published algorithm on plain 32-bit words ----------------

struct RefSfmt {
    uint32_t w[624];
    int index = 624;

    explicit RefSfmt(std::vector<uint32_t> key) {
        if (key.empty()) key = {1};
        const int size = 624, lag = 11, mid = 306;
        for (auto& x : w)
            x = 0x8B8B8B8Bu;
        auto f1 = [](uint32_t x) { return (x ^ (x >> 27)) * 1664525u; };
        auto f2 = [](uint32_t x) { return (x ^ (x >> 27)) * 1566083941u; };
        size_t count = std::max<size_t>(key.size() + 1, size);
        uint32_t r = f1(w[0] ^ w[mid] ^ w[size - 1]);
        w[mid] += r;
        r += static_cast<uint32_t>(key.size());
        w[mid + lag] += r;
        w[0] = r;
        count--;
        size_t i = 1, j = 0;
        for (; j < count; j++) { // the key words, then the index alone
            r = f1(w[i] ^ w[(i + mid) % size] ^ w[(i + size - 1) % size]);
            w[(i + mid) % size] += r;
            r += (j < key.size() ? key[j] : 0) + static_cast<uint32_t>(i);
            w[(i + mid + lag) % size] += r;
            w[i] = r;
            i = (i + 1) % size;
        }
        for (j = 0; j < size; j++) {
            r = f2(w[i] + w[(i + mid) % size] + w[(i + size - 1) % size]);
            w[(i + mid) % size] ^= r;
            r -= static_cast<uint32_t>(i);
            w[(i + mid + lag) % size] ^= r;
            w[i] = r;
            i = (i + 1) % size;
        }
        const uint32_t parity[4] = {1, 0, 0, 0x13C9E684u};
        uint32_t inner = 0;
        for (int k = 0; k < 4; k++)
            inner ^= w[k] & parity[k];
        for (int s = 16; s > 0; s >>= 1)
            inner ^= inner >> s;
        if (!(inner & 1)) w[0] ^= 1; // the first set bit of the parity words
    }

    // 128-bit shifts by one byte, the first word the lowest.
    static void Shift(const uint32_t* in, uint32_t* out, bool left) {
        unsigned __int128 v = 0;
        for (int k = 3; k >= 0; --k)
            v = v << 32 | in[k];
        v = left ? v << 8 : v >> 8;
        for (int k = 0; k < 4; ++k)
            out[k] = static_cast<uint32_t>(v >> (32 * k));
    }

    void Regenerate() {
        const uint32_t mask[4] = {0xDFFFFFEFu, 0xDDFECB7Fu, 0xBFFAFFFFu, 0xBFFFFFF6u};
        for (int g = 0; g < 156; ++g) {
            uint32_t* a = w + 4 * g;
            const uint32_t* b = w + 4 * ((g + 122) % 156);
            const uint32_t* c = w + 4 * ((g + 154) % 156);
            const uint32_t* d = w + 4 * ((g + 155) % 156);
            uint32_t x[4], y[4];
            Shift(a, x, true);
            Shift(c, y, false);
            for (int k = 0; k < 4; ++k)
                a[k] = a[k] ^ x[k] ^ ((b[k] >> 11) & mask[k]) ^ y[k] ^ (d[k] << 18);
        }
    }

    uint32_t Next() {
        if (index == 624) {
            Regenerate();
            index = 0;
        }
        return w[index++];
    }
};

const Words32 kKey = {0x1234, 0x5678, 0x9ABC, 0xDEF0};
const WordBrng kSfmt = {QES_BRNG_SFMT19937, kKey, __qesiBRngSFMT19937, __qessBRngSFMT19937,
                        __qesdBRngSFMT19937};

Words32 Ref(const Words32& key, size_t n) {
    return Draw(RefSfmt(key), n);
}

struct Tail {
    int32_t position, spillPosition, spillCount;
};
Tail TailOf(void* s) {
    Tail t;
    const char* p = static_cast<const char*>(s) + 16 + 624 * 4;
    std::memcpy(&t.position, p, 4);
    std::memcpy(&t.spillPosition, p + 16, 4);
    std::memcpy(&t.spillCount, p + 20, 4);
    return t;
}

// ---- Known answers -----------------------------------------------------------------

TEST(RngSfmt19937, PublishedReferenceOutput) {
    // The published 64-bit outputs of the key {5, 4, 3, 2, 1}: each is two words,
    // the earlier one in the low half.
    const uint64_t published[] = {
        2100341266307895239ull,  8344256300489757943ull,  15687933285484243894ull,
        8268620370277076319ull,  12371852309826545459ull, 8800491541730110238ull,
        18113268950100835773ull, 2886823658884438119ull,  3293667307248180724ull};
    auto w = FirstWords(kSfmt, {5, 4, 3, 2, 1}, 18);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(w[2 * i] | (uint64_t{w[2 * i + 1]} << 32), published[i]) << i;
    for (const Words32& key : {kKey, Words32{5, 4, 3, 2, 1}, Words32{}, Words32(700, 0x9E3779B9u)})
        EXPECT_EQ(FirstWords(kSfmt, key, 3000), Ref(key, 3000));
}

// ---- Cutting a request -------------------------------------------------------------

TEST(RngSfmt19937, ThreeAndFiveGiveTheEight) {
    void* s = New(kSfmt);
    auto a = Take(kSfmt, s, 3);
    Tail t = TailOf(s);
    EXPECT_EQ(t.position, 4);
    EXPECT_EQ(t.spillCount, 1);
    EXPECT_EQ(t.spillPosition, 0);
    auto b = Take(kSfmt, s, 5);
    a.insert(a.end(), b.begin(), b.end());
    EXPECT_EQ(a, Ref(kKey, 8));
    EXPECT_EQ(TailOf(s).position % 4, 0);
    __qesDeleteStream(&s);
}

TEST(RngSfmt19937, AnyCutGivesTheSameSequence) {
    ExpectCutsMatch(kSfmt, Ref(kKey, 200000),
                    {{624, 1, 623, 625},
                     {625, 1, 1, 1, 1},
                     {1, 623, 1, 1248, 1249, 3},
                     {5001, 17, 2},
                     {0, 3, 0, 1501, 2},
                     {622, 3, 627, 1},
                     {1250, 1250, 2},
                     {2, 2, 2, 630}},
                    11);
}

// ---- Element forms -----------------------------------------------------------------

// The word as a signed integer scaled about the middle of the interval.
double CentredD(uint32_t w, double a, double b) {
    return static_cast<double>(static_cast<int32_t>(w)) * ((b - a) * 0x1p-32) + (a + b) / 2;
}
float CentredF(uint32_t w, float a, float b) {
    const float scale = static_cast<float>((static_cast<double>(b) - a) * 0x1p-32);
    return static_cast<float>(static_cast<int32_t>(w)) * scale + (a + b) / 2;
}

TEST(RngSfmt19937, CentredSignedRealForms) {
    ExpectRealForms(kSfmt, Ref(kKey, 2000), {1, 3, 5, 624, 627, 1999},
                    {-2.0, 6.0, 1.0f, 2.0f, CentredD, CentredF});
}

// ---- Jumps ----------------------------------------------------------------------------

TEST(RngSfmt19937, SkipEqualsGenerateAndDiscard) {
    const uint64_t g = 19968 * 4; // the Horner/window switch, in words
    ExpectSkipsMatch(kSfmt, Ref(kKey, 1000003 + 2000 + 1300), {0, 3, 6, 624, 1001},
                     {0,   1,     2,     3,     4, 5,     620,   623,   624,   625,    627,
                      628, g - 4, g - 3, g - 1, g, g + 1, g + 2, g + 3, g + 4, 1000003});
}

TEST(RngSfmt19937, LongJumpsCommute) {
    ExpectLongJumpsCommute(kSfmt, (uint64_t{1} << 40) + 3, 100001);
    void* s = New(kSfmt);
    ExpectNoLeapfrogNorSkipEx(s);
    __qesDeleteStream(&s);
}

} // namespace
