// The vector vocabulary's operations whose meaning is not the plain arithmetic one:
// table gathers by the index a shifter leaves in a lane, 64-bit shifts and compares,
// the high-word range test of doubles against the full one, conversions at their
// edges, lane order of widening and narrowing, and the polynomial and error-free
// forms against the same steps done one element at a time.
#include <cfenv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "vecmath/frame/vec.h"

namespace brenn::vm {
namespace {

template <class T, class V>
std::vector<T> Lanes(V v) {
    alignas(16) T out[16 / sizeof(T)];
    StoreAligned(out, v);
    return std::vector<T>(out, out + 16 / sizeof(T));
}
std::vector<int64_t> Lanes64(I64x2 v) {
    alignas(16) int64_t out[2];
    StoreAligned(out, v);
    return {out[0], out[1]};
}
std::vector<int32_t> Lanes32(I32x4 v) {
    alignas(16) int32_t out[4];
    StoreAligned(out, v);
    return {out[0], out[1], out[2], out[3]};
}
__m128d D2(double a, double b) {
    return SetLanes(a, b);
}
I64x2 I2(int64_t a, int64_t b) {
    return SetLanes(a, b);
}

alignas(16) constexpr double kRows[8][4] = {
    {0, 0.5, 100, 100.5}, {1, 1.5, 101, 101.5}, {2, 2.5, 102, 102.5}, {3, 3.5, 103, 103.5},
    {4, 4.5, 104, 104.5}, {5, 5.5, 105, 105.5}, {6, 6.5, 106, 106.5}, {7, 7.5, 107, 107.5}};
alignas(16) constexpr float kPairs[8][2] = {{0, -0.f}, {1, -1}, {2, -2}, {3, -3},
                                            {4, -4},   {5, -5}, {6, -6}, {7, -7}};

TEST(Gathers, DoubleRowsByTheIndexTheShifterLeavesInALane) {
    // x + 1.5*2^52 holds round(x) in the low word of its lane, negative ones as two's
    // complement: masked by 7, -3 picks row 5.
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    I64x2 idx = AsInt(Add(D2(2.4, -3.0), shifter));
    EXPECT_EQ(LowWord<0>(idx), 2);
    EXPECT_EQ(LowWord<1>(idx), -3);
    EXPECT_EQ((Lanes<double>(GatherColumn(kRows, idx, 7))), (std::vector<double>{2, 5}));
    EXPECT_EQ((Lanes<double>(GatherColumn(kRows, idx, 7, 3))), (std::vector<double>{102.5, 105.5}));
    __m128d first, second;
    GatherPairs(kRows, idx, 7, first, second, 2);
    EXPECT_EQ((Lanes<double>(first)), (std::vector<double>{102, 105}));
    EXPECT_EQ((Lanes<double>(second)), (std::vector<double>{102.5, 105.5}));
    EXPECT_EQ((Lanes<double>(Gather(&kRows[0][0], I2(6, 9), 31))), (std::vector<double>{101, 2.5}));
}

TEST(Gathers, SingleRowsByThirtyTwoBitLanes) {
    I32x4 idx = {_mm_set_epi32(9, 0, 7, 3)}; // lane 3 wraps to row 1 under mask 7
    __m128 first, second;
    GatherPairs(kPairs, idx, 7, first, second);
    EXPECT_EQ((Lanes<float>(first)), (std::vector<float>{3, 7, 0, 1}));
    EXPECT_EQ((Lanes<float>(second)), (std::vector<float>{-3, -7, -0.f, -1}));
    EXPECT_TRUE(std::signbit(Lanes<float>(second)[2]));
    EXPECT_EQ((Lanes<float>(Gather(&kPairs[0][0], idx, 15))), (std::vector<float>{-1, -3, 0, -4}));
    EXPECT_EQ(ExtractLane<0>(idx), 3);
    EXPECT_EQ(ExtractLane<3>(idx), 9);
}

TEST(IntegerLanes, SixtyFourBitShiftsCrossTheWordBoundary) {
    I64x2 v = I2(0x00000001FFFFFFFFll, -2);
    EXPECT_EQ(Lanes64(ShiftLeft<4>(v)), (std::vector<int64_t>{0x1FFFFFFFF0ll, -32}));
    EXPECT_EQ(Lanes64(ShiftRight<4>(v)),
              (std::vector<int64_t>{0x1FFFFFFFll, 0x0FFFFFFFFFFFFFFFll}));
    // An exponent field put in place, as an exponential's scaling does.
    EXPECT_EQ(GetLane(AsFloat(ShiftLeft<52>(I2(1023 + 5, 0)))), 32.0);
    EXPECT_EQ(Lanes32(ShiftRightSigned<4>(I32x4{_mm_set_epi32(-1, -17, 17, INT_MIN)})),
              (std::vector<int32_t>{INT_MIN / 16, 1, -2, -1}));
}

TEST(IntegerLanes, SixtyFourBitComparesAreSignedOverTheWholeLane) {
    // Equal high words: the low words decide, unsigned; different high words decide alone.
    I64x2 a = I2(0x100000000ll, -1), b = I2(0xFFFFFFFFll, 0);
    EXPECT_EQ(MaskBits(Gt(a, b)), 0b01);
    EXPECT_EQ(MaskBits(Lt(a, b)), 0b10);
    EXPECT_EQ(MaskBits(Gt(I2(0x80000000ll, 5), I2(0x7FFFFFFFll, 5))), 0b01);
    EXPECT_EQ(MaskBits(Eq(I2(5, 1ll << 40), I2(5, 1))), 0b01);
    EXPECT_EQ(Lanes64(Gt(I2(LLONG_MIN, LLONG_MAX), I2(LLONG_MAX, LLONG_MIN))),
              (std::vector<int64_t>{0, -1}));
}

TEST(IntegerLanes, SpreadLowWordsMakeSixtyFourBitMasks) {
    EXPECT_EQ(Lanes64(BitCast<I64x2>(SetLanes(3.0, -1.0))),
              (std::vector<int64_t>{0x4008000000000000ll, int64_t(0xBFF0000000000000ull)}));
    // A negative low word (the high word says nothing) compared as 32 bits over both
    // halves gives a whole-lane mask.
    I64x2 v = I2(int64_t(0x00000005FFFFFFF0ull), int64_t(0xFFFFFFFF00000007ull));
    I32x4 neg = Lt(DupEven(BitCast<I32x4>(v)), Zero<int32_t>());
    EXPECT_EQ(Lanes64(BitCast<I64x2>(neg)), (std::vector<int64_t>{-1, 0}));
}

TEST(IntegerLanes, LowWordProductsIgnoreTheHighWords) {
    I64x2 a = I2(int64_t(0xDEAD0000FFFFFFFFull), 3), b = I2(int64_t(0x12340000FFFFFFFFull), -1);
    EXPECT_EQ(Lanes64(MulLowWords(a, b)),
              (std::vector<int64_t>{int64_t(0xFFFFFFFE00000001ull), 3 * 0xFFFFFFFFll}));
}

// The 16-bit products in both halves: kd * 0x5556 splits kd (3 to 256, the single cube
// root's biased exponent plus 2) into kd / 3 (high half) and kd % 3 (bits 10 and 11 of the
// low half), which picks the entry of a four-entry table whatever the lane's other bits.
TEST(IntegerLanes, SixteenBitProductsDivideByThreeAndPickATableEntry) {
    const I32x4 table = {_mm_setr_epi32(0x11223344, 0x55667788, int32_t(0x99AABBCC), 0x0DEADBEE)};
    const int32_t entries[4] = {0x11223344, 0x55667788, int32_t(0x99AABBCC), 0x0DEADBEE};
    for (int kd = 3; kd <= 256; kd += 4) {
        const I32x4 k = {_mm_setr_epi32(kd, kd + 1, kd + 2, kd + 3)};
        const I32x4 third = Set<int32_t>(0x5556);
        const std::vector<int32_t> q = Lanes32(MulHigh16(k, third));
        const std::vector<int32_t> at = Lanes32(LookupFourBySecondByte(table, MulLow16(k, third)));
        for (int i = 0; i < 4; ++i) {
            if (kd + i > 256) break;
            EXPECT_EQ(q[i], (kd + i) / 3) << kd + i;
            EXPECT_EQ(at[i], entries[(kd + i) % 3]) << kd + i;
        }
    }
    // Only bits 10 and 11 select: every other bit of the lane set or clear.
    const I32x4 j = {_mm_setr_epi32(int32_t(0xFFFFF3FFu), 0x00000400, int32_t(0xA5A5FBFFu), 0x00000C00)};
    EXPECT_EQ(Lanes32(LookupFourBySecondByte(table, j)),
              (std::vector<int32_t>{entries[0], entries[1], entries[2], entries[3]}));
}

TEST(IntegerLanes, BlendsAndMasksByLane) {
    I32x4 m = {_mm_set_epi32(0, INT_MIN, 0, -1)}; // the sign bit alone selects
    I32x4 r = IfThenElse(m, Set<int32_t>(7), Set<int32_t>(9));
    EXPECT_EQ(Lanes32(r), (std::vector<int32_t>{7, 9, 7, 9}));
    EXPECT_EQ(Lanes32(OddEven(Set<int32_t>(1), Set<int32_t>(2))),
              (std::vector<int32_t>{2, 1, 2, 1}));
    for (int b = 0; b < 16; ++b)
        EXPECT_EQ(MaskBits(MaskFromBits<float>(b)), b);
    for (int b = 0; b < 4; ++b)
        EXPECT_EQ(MaskBits(MaskFromBits<double>(b)), b);
}

// The sqrt window (positive normals pass) and a magnitude window (|x| below 2^1022)
// as high-word tests agree with the full-width test on every kind of double, and mark a
// special lane by its high word alone.
TEST(RangeTests, HighWordTestMatchesTheFullTest) {
    const Range32 windows32[] = {{0xFFFFFFFFu, 0x7FF00000u, 0xFFDFFFFFu},
                                 {0x7FFFFFFFu, 0x7FF00000u, 0xFFBFFFFFu},
                                 {0x7FFFFFFFu, 0u, 0x7FBFFFFFu}};
    const Range64 windows64[] = {{~0ull, 0x7FF0000000000000ull, 0xFFDFFFFFFFFFFFFFull},
                                 {~0ull >> 1, 0x7FF0000000000000ull, 0xFFBFFFFFFFFFFFFFull},
                                 {~0ull >> 1, 0, 0x7FBFFFFFFFFFFFFFull}};
    const double d = std::numeric_limits<double>::denorm_min();
    std::vector<double> xs = {0.0,
                              d,
                              0x1p-1022 - d,
                              0x1p-1022,
                              1.0,
                              0x1p1021,
                              0x1p1022,
                              0x1.fffffffffffffp1021,
                              std::numeric_limits<double>::max(),
                              INFINITY,
                              NAN};
    for (size_t i = 0, n = xs.size(); i < n; ++i)
        xs.push_back(-xs[i]);
    for (int w = 0; w < 3; ++w) {
        for (size_t i = 0; i + 1 < xs.size(); i += 2) {
            __m128d x = D2(xs[i], xs[i + 1]);
            __m128d hi = RangeTest(x, windows32[w]), full = RangeTest(x, windows64[w]);
            EXPECT_EQ(MaskBits(hi), MaskBits(full)) << w << " " << xs[i] << " " << xs[i + 1];
            for (int64_t lane : Lanes64(AsInt(hi)))
                EXPECT_TRUE(lane == 0 || lane == int64_t(0xFFFFFFFF00000000ull));
            __m128d poisoned = NaNWhere(hi, x);
            for (int k = 0; k < 2; ++k)
                if (MaskBits(full) >> k & 1) EXPECT_TRUE(std::isnan(Lanes<double>(poisoned)[k]));
        }
    }
}

TEST(Conversions, FloatToIntegerAtTheEdges) {
    // Nearest even under the default mode; NaN and out of range give 0x80000000.
    __m128 x = _mm_set_ps(3e9f, NAN, -2.5f, 2.5f);
    EXPECT_EQ(Lanes32(RoundToInt(x)), (std::vector<int32_t>{2, -2, INT_MIN, INT_MIN}));
    EXPECT_EQ(Lanes32(TruncToInt(_mm_set_ps(-0.5f, 2147483520.f, -1.7f, 1.7f))),
              (std::vector<int32_t>{1, -1, 2147483520, 0}));
    EXPECT_EQ(Lanes32(RoundToInt(D2(-3.5, 1e10))), (std::vector<int32_t>{-4, INT_MIN, 0, 0}));
    EXPECT_EQ(Lanes32(TruncToInt(D2(-3.5, 2147483647.9))),
              (std::vector<int32_t>{-3, 2147483647, 0, 0}));
}

TEST(Conversions, IntegersToFloats) {
    I32x4 v = {_mm_set_epi32(INT_MIN, 16777217, -7, 3)};
    EXPECT_EQ((Lanes<float>(ToFloat(v))), (std::vector<float>{3, -7, 16777216.f, -2147483648.f}));
    EXPECT_EQ((Lanes<double>(ToDoubleLower(v))), (std::vector<double>{3, -7}));
    EXPECT_EQ((Lanes<double>(ToDoubleUpper(v))), (std::vector<double>{16777217, -2147483648.0}));
    // Only the low words count: a negative 32-bit value stays negative in a 64-bit lane.
    EXPECT_EQ((Lanes<double>(LowWordsToDouble(I2(int64_t(0x7777777700000005ull), -5)))),
              (std::vector<double>{5, -5}));
}

TEST(Conversions, WideningAndNarrowingKeepLaneOrder) {
    __m128 x = _mm_set_ps(4.f, 3.f, 2.f, 1.f);
    EXPECT_EQ((Lanes<double>(WidenLower(x))), (std::vector<double>{1, 2}));
    EXPECT_EQ((Lanes<double>(WidenUpper(x))), (std::vector<double>{3, 4}));
    // Narrowing rounds once, to nearest even: 1 + 2^-24 is a tie, 1 + 2^-24 + 2^-40 not.
    __m128 n = Narrow(D2(1 + 0x1p-24, 1 + 0x1p-24 + 0x1p-40), D2(1e300, -0.0));
    EXPECT_EQ((Lanes<float>(n)), (std::vector<float>{1.f, 1 + 0x1p-23f, INFINITY, -0.f}));
    EXPECT_TRUE(std::signbit(Lanes<float>(n)[3]));
    __m128 m = NarrowMask(AsFloat(I2(-1, 0)), AsFloat(I2(0, -1)));
    EXPECT_EQ(MaskBits(m), 0b1001);
}

TEST(Rounding, ShifterAndRoundingImmediates) {
    // The shifter rounds to nearest even and is undone exactly.
    const __m128 sh = Set<float>(Format<float>::kShifter);
    __m128 x = _mm_set_ps(-3.5f, 2.5f, -0.4f, 1000.5f);
    __m128 t = Add(x, sh);
    EXPECT_EQ(Lanes32(AsInt(t)),
              (std::vector<int32_t>{0x4B400000 + 1000, 0x4B400000, 0x4B400002, 0x4B400000 - 4}));
    EXPECT_EQ((Lanes<float>(Sub(t, sh))), (std::vector<float>{1000, 0, 2, -4}));
    __m128d y = D2(-2.5, 2.5);
    EXPECT_EQ((Lanes<double>(Floor(y))), (std::vector<double>{-3, 2}));
    EXPECT_EQ((Lanes<double>(Ceil(y))), (std::vector<double>{-2, 3}));
    EXPECT_EQ((Lanes<double>(Trunc(y))), (std::vector<double>{-2, 2}));
    EXPECT_EQ((Lanes<double>(RoundEven(y))), (std::vector<double>{-2, 2}));
    std::feclearexcept(FE_ALL_EXCEPT);
    __m128d q = RoundBy<rounding::kTowardZero | rounding::kNoInexact>(Opaque(D2(0.5, 7.25)));
    EXPECT_FALSE(std::fetestexcept(FE_INEXACT));
    EXPECT_EQ((Lanes<double>(q)), (std::vector<double>{0, 7}));
}

TEST(SignAndBlends, BitOperationsKeepNaNAndZeros) {
    __m128d x = D2(-0.0, 3.0);
    EXPECT_EQ(Lanes64(AsInt(Abs(x))), (std::vector<int64_t>{0, int64_t(0x4008000000000000ull)}));
    EXPECT_EQ((Lanes<double>(Neg(x))), (std::vector<double>{0.0, -3.0}));
    EXPECT_EQ(MaskBits(SignBit(x)), 0b01);
    __m128 nan = SplatBits<float>(0x7FA00001u); // signalling: bit operations keep it
    EXPECT_EQ(Lanes32(AsInt(Neg(nan)))[0], int32_t(0xFFA00001u));
    __m128 m = Lt(_mm_set_ps(1, 2, 3, 4), Set<float>(2.5f));
    EXPECT_EQ((Lanes<float>(IfThenElse(m, Set<float>(1), Set<float>(2)))),
              (std::vector<float>{2, 2, 1, 1}));
    EXPECT_EQ((Lanes<float>(IfThenElseZero(m, Set<float>(5)))), (std::vector<float>{0, 0, 5, 5}));
    EXPECT_EQ((Lanes<float>(IfThenZeroElse(m, Set<float>(5)))), (std::vector<float>{5, 5, 0, 0}));
}

// Scalar mirrors of the steps, in the order the vocabulary documents.
double HornerRef(double x, const double* c, int n) {
    double p = c[n - 1];
    for (int i = n - 2; i >= 0; --i)
        p = x * p + c[i];
    return p;
}

TEST(Polynomials, HornerAndEstrinRoundAsDocumented) {
    static constexpr double c7[] = {1.0, -0.5, 0.3333333333333333, -0.25, 0.2, -0.16666, 0.142};
    static constexpr double c4[] = {0.5, 0.16666666666666666, 0.041666666666666664, 0.008333};
    static constexpr float c2[] = {1.5f, -0.25f};
    for (double x : {0.0, 1e-3, -0.3, 0.7071067811865476, 3.0}) {
        __m128d v = Set<double>(x);
        EXPECT_EQ(GetLane(Horner(v, c7)), HornerRef(x, c7, 7));
        double x2 = x * x, x4 = x2 * x2;
        double e7 = (x2 * (x * c7[3] + c7[2]) + (x * c7[1] + c7[0])) +
                    x4 * (x2 * c7[6] + (x * c7[5] + c7[4]));
        EXPECT_EQ(GetLane(Estrin(v, c7)), e7);
        double e4 = x2 * (x * c4[3] + c4[2]) + (x * c4[1] + c4[0]);
        EXPECT_EQ(GetLane(Estrin(v, c4)), e4);
        EXPECT_EQ(GetLane(Estrin(Set<float>(float(x)), c2)), float(x) * -0.25f + 1.5f);
    }
}

// The significand bits of x below its top 26.
uint64_t BitsOfLow27(double x) {
    return __builtin_bit_cast(uint64_t, x) & ((uint64_t(1) << 27) - 1);
}

TEST(ExactForms, SumsAndProductsCarryTheirError) {
    const double xs[] = {
        1.0,     0x1.fffffffffffffp-1, 3.141592653589793, -1e-300 * 1e290, 0x1.0000001p30,
        -7.0e15, 0x1.5555555555555p-3};
    for (double a : xs) {
        for (double b : xs) {
            __m128d s, e, h, l;
            TwoSum(Set<double>(a), Set<double>(b), s, e);
            EXPECT_EQ((__float128)GetLane(s) + GetLane(e), (__float128)a + b);
            if (std::fabs(a) >= std::fabs(b)) {
                FastTwoSum(Set<double>(a), Set<double>(b), s, e);
                EXPECT_EQ((__float128)GetLane(s) + GetLane(e), (__float128)a + b);
            }
            TwoProduct(Set<double>(a), Set<double>(b), h, l);
            __float128 exact = (__float128)a * b, got = (__float128)GetLane(h) + GetLane(l);
            EXPECT_EQ(GetLane(h), a * b);
            EXPECT_LE(std::fabs(double(got - exact)), std::fabs(a * b) * 0x1p-78);
            __m128d hi, lo;
            Split(Set<double>(a), hi, lo);
            EXPECT_EQ(GetLane(hi) + GetLane(lo), a);
            EXPECT_EQ(BitsOfLow27(GetLane(hi)), 0u);
        }
    }
}

} // namespace
} // namespace brenn::vm
