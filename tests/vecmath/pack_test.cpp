// Pack and unpack: the six operations on all four element types, raw copies that keep
// signalling NaN patterns, elements not named left alone, and the index width: the
// exported names always read 32-bit counts, increments, masks and indices, a direct
// call of the slot with another flag reads 64-bit ones.
#include <gtest/gtest.h>
#include <vector>

#include "tests/vecmath/kernels.h"

namespace brenn::test {
namespace {

TEST(Pack, StrideMaskAndIndexInBothDirections) {
    const float a[6] = {0, 1, 2, 3, 4, 5};
    float y[6] = {-1, -1, -1, -1, -1, -1};
    _zarsPackI(3, a, 2, y, 7);
    EXPECT_EQ(y[0], 0);
    EXPECT_EQ(y[1], 2);
    EXPECT_EQ(y[2], 4);
    EXPECT_EQ(y[3], -1);

    const int32_t zero[6] = {}, some[6] = {0, 1, 0, 0, 7, 0};
    float z[6] = {9, 9, 9, 9, 9, 9};
    _zarsPackM(6, a, zero, z, 7);
    for (float v : z)
        EXPECT_EQ(v, 9) << "an all-zero mask writes nothing";
    _zarsPackM(6, a, some, z, 7);
    EXPECT_EQ(z[0], 1);
    EXPECT_EQ(z[1], 4);
    EXPECT_EQ(z[2], 9);

    const int32_t index[3] = {5, 0, 3};
    double d[6] = {10, 11, 12, 13, 14, 15}, dy[6] = {};
    _zardPackV(3, d, index, dy, 7);
    EXPECT_EQ(dy[0], 15);
    EXPECT_EQ(dy[1], 10);
    EXPECT_EQ(dy[2], 13);

    double back[6] = {-1, -1, -1, -1, -1, -1};
    _zardUnpackV(3, dy, back, index, 7);
    EXPECT_EQ(back[5], 15);
    EXPECT_EQ(back[0], 10);
    EXPECT_EQ(back[3], 13);
    EXPECT_EQ(back[1], -1);

    BrennComplex16 c[3] = {{1, 2}, {3, 4}, {5, 6}}, cy[6] = {};
    _zarzUnpackI(3, c, cy, 2, 7);
    EXPECT_EQ(cy[2].re, 3);
    EXPECT_EQ(cy[4].im, 6);
    EXPECT_EQ(cy[1].re, 0);

    BrennComplex8 s[2] = {{1, 2}, {3, 4}}, sy[4] = {{-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}};
    const int32_t m[4] = {0, 1, 1, 0};
    _zarcUnpackM(4, s, sy, m, 7);
    EXPECT_EQ(sy[0].re, -1);
    EXPECT_EQ(sy[1].im, 2);
    EXPECT_EQ(sy[2].re, 3);
    EXPECT_EQ(sy[3].re, -1);

    _zarsPackI(0, a, 1, y, 7);
    _zarsPackI(-3, a, 1, y, 7);
    EXPECT_EQ(y[0], 0);
}

TEST(Pack, CopiesRawPatternsWithoutFlags) {
    const uint32_t sn = 0x7FA00001u; // signalling NaN
    float a[2];
    std::memcpy(a, &sn, 4);
    a[1] = -0.0f;
    float y[2];
    _mm_setcsr(0x1F80);
    _zarsPackI(2, a, 1, y, 7);
    EXPECT_EQ(Bits(y[0]), sn);
    EXPECT_EQ(Bits(y[1]), 0x80000000u);
    const uint64_t dsn = 0x7FF0000000000001ull;
    double d, dy;
    std::memcpy(&d, &dsn, 8);
    _zardUnpackI(1, &d, &dy, 1, 7);
    EXPECT_EQ(Bits(dy), dsn);
    EXPECT_EQ(_mm_getcsr() & 0x3F, 0u);
}

TEST(Pack, IndexWidthFollowsTheFlag) {
    const float a[4] = {1, 2, 3, 4};
    // 64-bit mask {1, 0, 0, 1}: as 32-bit words it reads {1, 0, 0, 0}. The exported
    // names are given a flag of 7 here; the thunk replaces it with 1.
    const int64_t mask64[4] = {1, 0, 0, 1};
    float y[4] = {};
    _zarsPackM(4, a, mask64, y, 7); // exported name: flag 1
    EXPECT_EQ(y[0], 1);
    EXPECT_EQ(y[1], 0);
    using PackM = void (*)(int64_t, const float*, const void*, float*, int32_t);
    float z[4] = {};
    As<PackM>(Slot("sPackM", 0))(4, a, mask64, z, 0);
    EXPECT_EQ(z[0], 1);
    EXPECT_EQ(z[1], 4);
    // A 64-bit count whose low word is 2 but whose value is larger.
    using PackI = void (*)(int64_t, const float*, int64_t, float*, int32_t);
    float w[4] = {};
    As<PackI>(Slot("sPackI", 1))((int64_t(1) << 32) | 2, a, 1, w, 1);
    EXPECT_EQ(w[1], 2);
    EXPECT_EQ(w[2], 0);
    As<PackI>(Slot("sPackI", 2))(-1, a, 1, w, 0);
    EXPECT_EQ(w[2], 0) << "a negative 64-bit count does nothing";
}

} // namespace
} // namespace brenn::test
