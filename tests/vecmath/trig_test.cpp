// The trigonometric rows: huge arguments through the vector reduction at every
// exponent, the seam between the short and the large path, blocks that mix huge and
// small lanes, exact values (zeros, cos 0), statuses of infinities and NaN, and no
// spurious flags. References are the C library's long double functions, whose error is
// far below a single or double ulp.
#include <cfloat>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <immintrin.h>
#include <random>
#include <string>
#include <vector>

#include "tests/vecmath/kernels.h"

namespace brenn::test {
namespace {

constexpr int kSlots = 3; // LA, HA, EP

enum class Fn { Sin, Cos, Tan };

long double Ref(Fn f, long double x) {
    switch (f) {
    case Fn::Sin:
        return sinl(x);
    case Fn::Cos:
        return cosl(x);
    default:
        return tanl(x);
    }
}

// Whether got is within the slot's bound of ref: ulps at LA and HA, relative bits at EP.
template <class T>
bool WithinLevel(int slot, T got, long double ref, double* err) {
    if (slot == 2) {
        long double rel =
            ref == 0 ? fabsl((long double)got) : fabsl(((long double)got - ref) / ref);
        *err = rel == 0 ? 999 : -std::log2((double)rel);
        return *err >= (sizeof(T) == 4 ? 11 : 26);
    }
    *err = UlpError(got, ref);
    return *err <= (slot == 1 ? 1.0 : 4.0);
}

struct RowCase {
    const char* name;
    Fn fn;
};
const RowCase kSingle[] = {{"sSin", Fn::Sin}, {"sCos", Fn::Cos}, {"sTan", Fn::Tan}};
const RowCase kDouble[] = {{"dSin", Fn::Sin}, {"dCos", Fn::Cos}, {"dTan", Fn::Tan}};


template <class T>
void ExpectAccurate(const RowCase& rc, int slot, const std::vector<T>& x) {
    brenn_zar_kernel_SetErrStatus(0);
    std::vector<T> y = Call(rc.name, slot, x);
    EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0) << rc.name;
    int bad = 0;
    for (size_t i = 0; i < x.size() && bad < 5; ++i) {
        double err;
        if (!WithinLevel(slot, y[i], Ref(rc.fn, x[i]), &err)) {
            ++bad;
            ADD_FAILURE() << rc.name << " slot " << slot << " x = " << std::hexfloat << x[i]
                          << " got " << y[i] << " error " << std::defaultfloat << err;
        }
    }
}

// Every exponent of the format, random significands and signs: each row of the 1/pi
// window table is used, and most through the vector large path.
TEST(Trig, EveryExponentSingle) {
    std::mt19937 gen(7);
    std::vector<float> x;
    for (uint32_t e = 1; e < 255; ++e)
        for (int k = 0; k < 24; ++k)
            x.push_back(__builtin_bit_cast(float, uint32_t((gen() & 0x807FFFFFu) | (e << 23))));
    for (const RowCase& rc : kSingle)
        for (int slot = 0; slot < kSlots; ++slot)
            ExpectAccurate(rc, slot, x);
}

TEST(Trig, EveryExponentDouble) {
    std::mt19937_64 gen(11);
    std::vector<double> x;
    for (uint64_t e = 1; e < 2047; e += 1)
        for (int k = 0; k < 4; ++k)
            x.push_back(
                __builtin_bit_cast(double, uint64_t((gen() & 0x800FFFFFFFFFFFFFull) | (e << 52))));
    for (const RowCase& rc : kDouble)
        for (int slot = 0; slot < kSlots; ++slot)
            ExpectAccurate(rc, slot, x);
}

// The named huge arguments, the seam at the single limit 10000 (short path) and the
// next float (large path), and the arguments nearest to multiples of pi/2 in single,
// where the reduction cancels most.
TEST(Trig, HugeAndSeamArguments) {
    std::vector<float> xs = {1e30f,
                             -1e30f,
                             FLT_MAX,
                             10000.0f,
                             std::nextafter(10000.0f, 2e4f),
                             8256.0f,
                             std::nextafter(8256.0f, 1e4f),
                             16777216.0f,
                             0x1.921fb6p+0f,
                             0x1.921fb6p+1f,
                             0x1.2d97c8p+3f,
                             0x1.5fdbbep+7f,
                             0x1.8eb246p+119f,
                             0x1.b3a7e4p+27f};
    for (const RowCase& rc : kSingle)
        for (int slot = 0; slot < kSlots; ++slot)
            ExpectAccurate(rc, slot, xs);
    std::vector<double> xd = {1e300,
                              -1e300,
                              DBL_MAX,
                              16777216.0,
                              std::nextafter(16777216.0, 2e7),
                              0x1.921fb54442d18p+0,
                              0x1.921fb54442d18p+1,
                              0x1.6ac5b262ca1ffp+849,
                              0x1.8a5b0a6f7f2b7p+1023 * 0.5};
    for (const RowCase& rc : kDouble)
        for (int slot = 0; slot < kSlots; ++slot)
            ExpectAccurate(rc, slot, xd);
}

// The floats nearest to each multiple of pi/2 on the single short paths, where the
// remainder cancels to a few bits: the LA kernels reduce in single and must see these
// lanes and redo them in double. Each round of sixteen holds one such triple among
// ordinary arguments, so the redone round is mostly lanes that did not need it.
TEST(Trig, SingleNearMultiplesOfHalfPi) {
    std::mt19937 gen(5);
    std::uniform_real_distribution<float> ordinary(-6, 6);
    std::vector<float> x;
    for (int k = 1; k * 1.5707963267948966 < 10000; ++k) {
        float m = float(k * 1.5707963267948966L);
        for (float v : {std::nextafter(m, 0.0f), m, std::nextafter(m, 2e4f)})
            x.push_back(k % 2 ? v : -v);
        for (int i = 0; i < 13; ++i)
            x.push_back(ordinary(gen));
    }
    for (const RowCase& rc : kSingle)
        for (int slot = 0; slot < kSlots; ++slot)
            ExpectAccurate(rc, slot, x);
}

// The doubles nearest to multiples of pi/4: at even multiples of pi/2 the zeros of tan,
// at odd ones its poles (huge finite results), between them the seams of the double
// tangent's table (j = -16 and 15 meet there). Small multiples and some near the short
// path's limit of 2^24.
TEST(Trig, DoubleNearMultiplesOfQuarterPi) {
    std::vector<double> x;
    auto add = [&x](long k) {
        double m = double(k * 0.785398163397448309615660845819875721L);
        for (double v : {std::nextafter(m, 0.0), m, std::nextafter(m, 1e300)})
            x.push_back(k % 3 ? v : -v);
    };
    for (long k = 1; k < 400; ++k)
        add(k);
    for (long k = 21361414; k < 21361414 + 40; ++k) // 2^24 is about 21361414.6 pi/4
        add(k);
    for (const RowCase& rc : kDouble)
        for (int slot = 0; slot < kSlots; ++slot)
            ExpectAccurate(rc, slot, x);
}

// A block mixing one huge lane among small ones gives, lane for lane, the results that
// each element gets alone: the masks keep each path's lanes apart.
template <class T>
void MixedMatchesAlone(const char* row) {
    std::mt19937 gen(3);
    std::uniform_real_distribution<T> small(-6, 6);
    for (int hugeLane = 0; hugeLane < 16; ++hugeLane) {
        std::vector<T> x(16);
        for (T& v : x)
            v = small(gen);
        x[hugeLane] = sizeof(T) == 4 ? T(3.3e27) : T(4.4e250);
        for (int slot = 0; slot < kSlots; ++slot) {
            std::vector<T> y = Call(row, slot, x);
            for (int i = 0; i < 16; ++i) {
                std::vector<T> one = Call(row, slot, std::vector<T>{x[i]});
                EXPECT_TRUE(SameValue(y[i], one[0]))
                    << row << " slot " << slot << " lane " << i << " huge lane " << hugeLane;
            }
        }
    }
}

// The double rounds test the high words of their lanes against the limit's: a lane at 2^24
// or a little above it sends its round register by register, one just below does not.
// Either way each lane, at the seam or ordinary beside it, gets the bits it gets alone.
// Double Tan HA carries the addition formula's sides and their quotient in two doubles:
// x = k pi/2 + j pi/64 + r with r from the whole interval down to 2^-40 of it (beside the
// poles and zeros for j = 0, beside the table's nodes otherwise), up to the short path's
// limit, keeps to 0.6 ulp.
TEST(Trig, DoubleTangentHAAcrossTheTable) {
    std::mt19937_64 gen(29);
    std::uniform_real_distribution<double> unit(-1.0, 1.0);
    std::vector<double> x;
    for (int i = 0; i < 20000; ++i) {
        long k = long(gen() % 10680707); // k pi/2 below 2^24
        int j = int(gen() % 33) - 16;
        long double r = unit(gen) * std::ldexp(1.0, -int(gen() % 41)) * 0.0245L;
        long double v = (32 * k + j) * 0.0490873852123405193027287003637422327L + r;
        x.push_back(double(i % 2 ? -v : v));
    }
    std::vector<double> y = Call("dTan", 1, x);
    int bad = 0;
    for (size_t i = 0; i < x.size() && bad < 5; ++i) {
        double err = UlpError(y[i], tanl((long double)x[i]));
        if (err > 0.6) {
            ++bad;
            ADD_FAILURE() << "x = " << std::hexfloat << x[i] << " error " << std::defaultfloat
                          << err;
        }
    }
}

TEST(Trig, DoubleSeamLanesMatchElementsAlone) {
    const double seam[] = {std::nextafter(16777216.0, 0.0), 16777216.0,
                           std::nextafter(16777216.0, 2e7), 16777216.0 * (1 + 0x1p-21),
                           16777216.0 * (1 + 0x1p-20)};
    std::mt19937 gen(23);
    std::uniform_real_distribution<double> small(-6, 6);
    for (const RowCase& rc : kDouble)
        for (double v : seam)
            for (int lane : {0, 5, 15}) {
                std::vector<double> x(16);
                for (double& w : x)
                    w = small(gen);
                x[lane] = lane % 2 ? -v : v;
                for (int slot = 0; slot < kSlots; ++slot) {
                    std::vector<double> y = Call(rc.name, slot, x);
                    for (int i = 0; i < 16; ++i) {
                        std::vector<double> one = Call(rc.name, slot, std::vector<double>{x[i]});
                        EXPECT_TRUE(SameValue(y[i], one[0]))
                            << rc.name << " slot " << slot << " lane " << i << " seam " << v;
                    }
                    ExpectAccurate(rc, slot, x);
                }
            }
}

// Double sine HA reduces a round's lanes with their signs, an element alone its magnitude:
// the two agree bit for bit on arguments beside every multiple of pi/64 below 2^24 (the
// rows at j and -j mod 128, those of the zeros of sine among them), of either sign, and
// zeros and denormals in a round keep their signs (they leave the round's short path).
TEST(Trig, DoubleSineRoundsMatchElementsAloneAtEverySign) {
    std::mt19937_64 gen(71);
    std::uniform_real_distribution<double> unit(-1.0, 1.0);
    std::vector<double> x;
    for (int i = 0; i < 16384; ++i) {
        long j = i < 4096 ? long(i % 256) - 128 : long(gen() % 341782637); // j pi/64 < 2^24
        if (i % 5 == 0) j -= j % 64; // a zero of sine
        long double r = unit(gen) * std::ldexp(1.0, -int(gen() % 50)) * 0.0245L;
        double v = double(j * 0.0490873852123405193027287003637422327L + r);
        x.push_back(i % 3 ? v : -v);
    }
    const double tiny[] = {0.0, -0.0, 0x1p-1074, -0x1p-1074, -0x1.8p-1050, 0x1p-1022, -0x1p-600};
    for (size_t i = 0; i < x.size(); i += 37)
        x[i] = tiny[(i / 37) % 7];
    std::vector<double> y = Call("dSin", 1, x);
    int bad = 0;
    for (size_t i = 0; i < x.size() && bad < 5; ++i) {
        double one = Call("dSin", 1, std::vector<double>{x[i]})[0];
        if (Bits(y[i]) != Bits(one)) {
            ++bad;
            ADD_FAILURE() << "x = " << std::hexfloat << x[i] << " in a round " << y[i]
                          << ", alone " << one;
        }
    }
    EXPECT_EQ(Bits(y[0]), Bits(0.0));
    EXPECT_EQ(Bits(y[37]), Bits(-0.0));
}

TEST(Trig, MixedBlocksMatchElementsAlone) {
    for (const char* r : {"sSin", "sCos", "sTan"})
        MixedMatchesAlone<float>(r);
    for (const char* r : {"dSin", "dCos", "dTan"})
        MixedMatchesAlone<double>(r);
}

TEST(Trig, SinCosMatchesItsParts) {
    std::vector<float> xs = {0.0f, -0.0f, 0.5f, -3.0f, 10000.0f, 1e30f, -7e12f};
    std::vector<double> xd = {0.0, -0.0, 0.5, -3.0, 1e7, 1e300, -7e100};
    for (int slot = 0; slot < kSlots; ++slot) {
        std::vector<float> s(xs.size()), c(xs.size());
        As<TwoRes<float>>(Slot("sSinCos", slot))(int(xs.size()), xs.data(), s.data(), c.data());
        for (size_t i = 0; i < xs.size(); ++i) {
            double err;
            EXPECT_TRUE(WithinLevel(slot, s[i], sinl(xs[i]), &err)) << xs[i];
            EXPECT_TRUE(WithinLevel(slot, c[i], cosl(xs[i]), &err)) << xs[i];
        }
        std::vector<double> sd(xd.size()), cd(xd.size());
        As<TwoRes<double>>(Slot("dSinCos", slot))(int(xd.size()), xd.data(), sd.data(), cd.data());
        for (size_t i = 0; i < xd.size(); ++i) {
            double err;
            EXPECT_TRUE(WithinLevel(slot, sd[i], sinl(xd[i]), &err)) << xd[i];
            EXPECT_TRUE(WithinLevel(slot, cd[i], cosl(xd[i]), &err)) << xd[i];
        }
        EXPECT_EQ(Bits(s[1]), Bits(-0.0f));
        EXPECT_EQ(c[0], 1.0f);
        EXPECT_EQ(Bits(sd[1]), Bits(-0.0));
        EXPECT_EQ(cd[0], 1.0);
    }
}

// The double HA SinCos reduces in x87 extended precision: the caller's control word (here
// double precision, round up) comes back unchanged, and the results do not depend on it.
TEST(Trig, SinCosExtendedLeavesControlWord) {
    std::vector<double> x = {0.7, 3.14159265358979, 1e7 + 0.3, 1e300}, s1(4), c1(4), s2(4), c2(4);
    As<TwoRes<double>>(Slot("dSinCos", 1))(4, x.data(), s1.data(), c1.data());
    unsigned short saved, cw = 0x0A7F, after;
    __asm__ volatile("fnstcw %0" : "=m"(saved));
    __asm__ volatile("fldcw %0" : : "m"(cw));
    As<TwoRes<double>>(Slot("dSinCos", 1))(4, x.data(), s2.data(), c2.data());
    __asm__ volatile("fnstcw %0" : "=m"(after));
    __asm__ volatile("fldcw %0" : : "m"(saved));
    EXPECT_EQ(after, cw);
    EXPECT_EQ(s1, s2);
    EXPECT_EQ(c1, c2);
}

// Signed zeros stay for the odd functions; cos 0 is exactly 1.
TEST(Trig, ExactValuesAtZero) {
    for (int slot = 0; slot < kSlots; ++slot) {
        for (const char* r : {"sSin", "sTan"}) {
            std::vector<float> y = Call(r, slot, std::vector<float>{-0.0f, 0.0f});
            EXPECT_EQ(Bits(y[0]), Bits(-0.0f)) << r << slot;
            EXPECT_EQ(Bits(y[1]), Bits(0.0f)) << r << slot;
        }
        for (const char* r : {"dSin", "dTan"}) {
            std::vector<double> y = Call(r, slot, std::vector<double>{-0.0, 0.0});
            EXPECT_EQ(Bits(y[0]), Bits(-0.0)) << r << slot;
            EXPECT_EQ(Bits(y[1]), Bits(0.0)) << r << slot;
        }
        EXPECT_EQ(Call("sCos", slot, std::vector<float>{0.0f, -0.0f}), (std::vector<float>{1, 1}));
        // The same zeros inside whole rounds of ordinary lanes.
        std::vector<float> x(48, 2.5f);
        x[7] = -0.0f, x[19] = 0.0f, x[40] = 0x1p-30f;
        std::vector<float> c = Call("sCos", slot, x);
        EXPECT_EQ(c[7], 1.0f) << slot;
        EXPECT_EQ(c[19], 1.0f) << slot;
        EXPECT_EQ(c[40], 1.0f) << slot;
        EXPECT_EQ(Call("dCos", slot, std::vector<double>{0.0, -0.0}), (std::vector<double>{1, 1}));
    }
}

// cos x rounds to 1 below 2^-12: every binade from the least denormal up to 2^-13, both
// signs, inside rounds of ordinary lanes, is exactly 1 at every level (HA gets there by its
// rounding alone, without the other levels' test for tiny arguments).
TEST(Trig, SingleCosineOfTinyArgumentsIsOne) {
    std::mt19937 gen(17);
    std::vector<float> x;
    for (int e = -149; e <= -13; ++e)
        for (int k = 0; k < 8; ++k) {
            float v = std::ldexp(1.0f + float(gen() & 0x7FFFFF) * 0x1p-23f, e);
            x.push_back(k % 2 ? -v : v);
            x.push_back(2.5f + float(k));
        }
    for (int slot = 0; slot < kSlots; ++slot) {
        std::vector<float> c = Call("sCos", slot, x);
        for (size_t i = 0; i < x.size(); i += 2)
            EXPECT_EQ(c[i], 1.0f) << slot << " x = " << std::hexfloat << x[i];
    }
}

// tan x rounds to x below 2^-12 (x^3/3 is below a quarter ulp): every binade from the
// least denormal up to 2^-13, both signs, inside rounds of ordinary lanes, comes back as
// x itself at LA (its sides r (1 + u S(u)) and C(u) with C(0) = 1) and HA.
TEST(Trig, SingleTangentOfTinyArgumentsIsItself) {
    std::mt19937 gen(23);
    std::vector<float> x;
    for (int e = -149; e <= -13; ++e)
        for (int k = 0; k < 8; ++k) {
            float v = std::ldexp(1.0f + float(gen() & 0x7FFFFF) * 0x1p-23f, e);
            x.push_back(k % 2 ? -v : v);
            x.push_back(0.7f + float(k));
        }
    for (int slot : {0, 1}) {
        std::vector<float> t = Call("sTan", slot, x);
        for (size_t i = 0; i < x.size(); i += 2)
            EXPECT_EQ(Bits(t[i]), Bits(x[i])) << slot << " x = " << std::hexfloat << x[i];
    }
}

// The single sine and cosine short path, step by step in scalar arithmetic: a = |x|,
// t = a/pi (+ 1/2 for cosine) + 1.5 * 2^23, the sign from t's low bit, n = t - 1.5 * 2^23
// (- 1/2), r = a - n pi with pi in three single parts (HA: in double, two parts; LA: the
// same in double where the single remainder's square is below 2^-18), the level's series
// (HA: r (1 + u P(u)) in double, 1 + u P(u) as (1 + c3 u) + u^2 ((c5 + c7 u) + c9 u^2)),
// and sine's sign of x. Cosine below 2^-12 is 1.0 at LA and EP.
uint32_t F2U(float v) {
    uint32_t u;
    memcpy(&u, &v, 4);
    return u;
}
float U2F(uint32_t u) {
    float v;
    memcpy(&v, &u, 4);
    return v;
}
float SinCosSteps(int slot, bool cosine, float x) {
    const float shifter = 12582912.0f, invPi = U2F(0x3EA2F983);
    const float p0 = U2F(0x40490000), p1 = U2F(0x3A7DA000), p2 = U2F(0x34222169);
    const double d0 = 0x1.921fb5444p1, d1 = 0x1.68c234c4c6629p-38;
    float a = std::fabs(x);
    float t = a * invPi;
    if (cosine) t = t + 0.5f;
    t = t + shifter;
    uint32_t sign = F2U(t) << 31;
    float n = t - shifter;
    if (cosine) n = n - 0.5f;
    float p;
    if (slot == 1) {
        const double c[] = {-0x1.55554bc836587p-3, 0.0083330662460856901, -0.00019809602902257352,
                            0x1.5dbdf0e4c7deep-19};
        double r = (double(a) - double(n) * d0) - double(n) * d1, u = r * r, u2 = u * u;
        double hi = u2 * c[3] + (u * c[2] + c[1]);
        p = float(r * (u2 * hi + (u * c[0] + 1.0)));
    } else {
        float r = ((a - n * p0) - n * p1) - n * p2, u = r * r;
        if (slot == 2) {
            p = r * (U2F(0x3F7FF87C) +
                     u * (U2F(cosine ? 0xBE29E73F : 0xBE29E72F) + u * U2F(0x3BF84524)));
        } else {
            if (F2U(u) < 0x36800000u) {
                r = float((double(a) - double(n) * d0) - double(n) * d1);
                u = r * r;
            }
            const float c[] = {-0x1.55554cp-3f, 0x1.110edap-7f, -0x1.9f70fp-13f, 0x1.5dc908p-19f};
            float q = c[3];
            for (int i = 2; i >= 0; --i)
                q = u * q + c[i];
            p = r + r * u * q;
        }
        if (cosine && a < 0x1p-12f) return 1.0f;
    }
    if (!cosine) sign ^= F2U(x) & 0x80000000u;
    return U2F(F2U(p) ^ sign);
}

// Every slot of sSin, sCos and sSinCos against those steps, bit for bit: random arguments
// over the whole short path (uniform, and by exponent down to the denormals), the floats
// beside multiples of pi/2, zeros, and the limit 10000 itself.
TEST(Trig, SingleSinCosFollowTheirSteps) {
    std::mt19937 gen(41);
    std::uniform_real_distribution<float> wide(-10000.0f, 10000.0f);
    std::vector<float> x = {0.0f, -0.0f, 10000.0f, -10000.0f, 0x1p-149f, 0x1p-12f, 0x1.fffffep-13f};
    for (int i = 0; i < 200000; ++i)
        x.push_back(wide(gen));
    for (int i = 0; i < 100000; ++i) {
        float v = std::ldexp(1.0f + float(gen() & 0x7FFFFF) * 0x1p-23f, int(gen() % 163) - 149);
        if (std::fabs(v) <= 10000.0f) x.push_back(i % 2 ? -v : v);
    }
    for (int k = 1; k * 1.5707963267948966 < 10000; ++k) {
        float m = float(k * 1.5707963267948966L);
        for (float v : {std::nextafter(m, 0.0f), m, std::nextafter(m, 2e4f)})
            x.push_back(k % 2 ? v : -v);
    }
    for (int slot = 0; slot < kSlots; ++slot) {
        std::vector<float> s = Call("sSin", slot, x), c = Call("sCos", slot, x);
        std::vector<float> s2(x.size()), c2(x.size());
        As<TwoRes<float>>(Slot("sSinCos", slot))(int(x.size()), x.data(), s2.data(), c2.data());
        int bad = 0;
        for (size_t i = 0; i < x.size() && bad < 5; ++i) {
            float ws = SinCosSteps(slot, false, x[i]), wc = SinCosSteps(slot, true, x[i]);
            if (F2U(s[i]) != F2U(ws) || F2U(c[i]) != F2U(wc) || F2U(s2[i]) != F2U(ws) ||
                F2U(c2[i]) != F2U(wc)) {
                ++bad;
                ADD_FAILURE() << "slot " << slot << " x = " << std::hexfloat << x[i] << " sin "
                              << s[i] << " / " << s2[i] << " want " << ws << ", cos " << c[i]
                              << " / " << c2[i] << " want " << wc;
            }
        }
    }
    // EP's sine of 1 is its series on 1 - 0 pi, not the nearest float to sin 1.
    EXPECT_EQ(F2U(Call("sSin", 2, std::vector<float>{1.0f})[0]), F2U(SinCosSteps(2, false, 1.0f)));
    EXPECT_NE(Call("sSin", 2, std::vector<float>{1.0f})[0], float(sinl(1.0L)));
}

// The single tangent's short path at EP and LA, step by step: a = |x|, t = a 2/pi +
// 1.5 * 2^23, n = t - 1.5 * 2^23 (odd from t's low bit), r = a - n pi/2 with pi/2 in three
// single parts (LA: in double, two parts, where the single remainder's square is below
// 2^-18), the sides s and c, and s/c or -c/s: EP by the reciprocal estimate after one
// Newton step, LA by division. The sign of x last.
float TanSteps(int slot, float x) {
    const float shifter = 12582912.0f;
    float a = std::fabs(x);
    float t = a * U2F(0x3F22F983) + shifter;
    bool odd = F2U(t) & 1;
    float n = t - shifter;
    float r = ((a - n * U2F(0x3FC90000)) - n * U2F(0x39FDA000)) - n * U2F(0x33A22169);
    float u = r * r, s, c;
    if (slot == 2) {
        s = r * (U2F(0x3F7FFFFC) + u * U2F(0xBDC433B4));
        c = 1.0f + u * (U2F(0xBEDBB7AB) + u * U2F(0x3C1F336B));
    } else {
        if (F2U(u) < 0x36800000u) {
            r = float((double(a) - double(n) * 0x1.921fb5444p0) -
                      double(n) * 0x1.68c234c4c6629p-39);
            u = r * r;
        }
        s = r * (u * (-0x1.c71c78p-4f + u * 0x1.156b6ap-10f) + 1.0f);
        c = 1.0f + u * (-0x1.c71c72p-2f + u * 0x1.04104ap-6f);
    }
    float top = odd ? -c : s, bot = odd ? s : c, q;
    if (slot == 2) {
        float y = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(bot)));
        y = y * (2.0f - bot * y);
        q = top * y;
    } else {
        q = top / bot;
    }
    return U2F(F2U(q) ^ (F2U(x) & 0x80000000u));
}

// sTan at EP and LA against those steps, bit for bit: random arguments over the short
// path (uniform, and by exponent down to the denormals), the floats beside multiples of
// pi/4 (zeros, poles and the quadrants' seams), zeros and the limit 8256.
TEST(Trig, SingleTanFollowsItsSteps) {
    std::mt19937 gen(43);
    std::uniform_real_distribution<float> wide(-8256.0f, 8256.0f);
    std::vector<float> x = {0.0f, -0.0f, 8256.0f, -8256.0f, 0x1p-149f, 0x1p-12f, 1.0f};
    for (int i = 0; i < 200000; ++i)
        x.push_back(wide(gen));
    for (int i = 0; i < 100000; ++i) {
        float v = std::ldexp(1.0f + float(gen() & 0x7FFFFF) * 0x1p-23f, int(gen() % 163) - 149);
        if (std::fabs(v) <= 8256.0f) x.push_back(i % 2 ? -v : v);
    }
    for (int k = 1; k * 0.78539816339744831 < 8256; ++k) {
        float m = float(k * 0.78539816339744831L);
        for (float v : {std::nextafter(m, 0.0f), m, std::nextafter(m, 2e4f)})
            x.push_back(k % 2 ? v : -v);
    }
    for (int slot : {0, 2}) {
        std::vector<float> y = Call("sTan", slot, x);
        int bad = 0;
        for (size_t i = 0; i < x.size() && bad < 5; ++i) {
            float want = TanSteps(slot, x[i]);
            if (F2U(y[i]) != F2U(want)) {
                ++bad;
                ADD_FAILURE() << "slot " << slot << " x = " << std::hexfloat << x[i] << " got "
                              << y[i] << " want " << want;
            }
        }
    }
}

// The double sine and cosine pi reductions at EP and LA, step by step: sine takes
// t = |x|/pi + 1.5 * 2^52, n = t - 1.5 * 2^52, the sign from t's low bit; cosine
// n = floor(|x|/pi) + 1/2, the sign from floor's parity, reduced to n pi - |x|; pi in three
// parts (EP) or four (LA); the series r (1 + u P(u)) at EP, r + r u P(u) at LA, P by
// Estrin's scheme (LA: its two low terms by Horner steps after it); cosine within 2^-27 of
// a multiple of pi is +-1. The sign of x last for sine.
double EstrinSteps(double x, const double* c, int n) {
    if (n == 1) return c[0];
    int level = 0;
    while ((1 << (level + 1)) < n)
        ++level;
    double pw = x;
    for (int i = 0; i < level; ++i)
        pw = pw * pw;
    int low = 1 << level;
    return pw * EstrinSteps(x, c + low, n - low) + EstrinSteps(x, c, low);
}
double DoubleSinCosSteps(int slot, bool cosine, double x) {
    const double shifter = 0x1.8p52, invPi = 0x1.45f306dc9c883p-2;
    const double pi[] = {0x1.921fb4p1, 0x1.4442dp-23,
                         slot == 2 ? 0x1.8469898cc517p-47 : 0x1.846988p-47, 0x1.8cc51701b839ap-71};
    const int parts = slot == 2 ? 3 : 4;
    double a = std::fabs(x), n, r;
    uint64_t sign;
    if (cosine) {
        double f = std::floor(a * invPi), t = f + 0x1.8p51;
        sign = Bits(t) << 62;
        n = f + 0.5;
        r = n * pi[0] - a;
        for (int i = 1; i < parts; ++i)
            r = r + n * pi[i];
    } else {
        double t = a * invPi + shifter;
        sign = Bits(t) << 63;
        n = t - shifter;
        r = a - n * pi[0];
        for (int i = 1; i < parts; ++i)
            r = r - n * pi[i];
    }
    double u = r * r, y;
    if (slot == 2) {
        const double c[] = {-0.16666658839437162, 0.0083330466452487071, -0.00019808085361787,
                            2.6022725384193179e-06};
        y = r * (u * EstrinSteps(u, c, 4) + 1.0);
    } else {
        const double c[] = {-0.00019841269825056256, 2.7557316600552628e-06,
                            -2.5051880273862881e-08, 1.6048095404959637e-10,
                            -7.3733445331106646e-13};
        double p = EstrinSteps(u, c, 5);
        p = u * p + 0.0083333333332855416;
        p = u * p + -0.16666666666666186;
        y = r + r * u * p;
    }
    uint64_t bits = Bits(y) ^ sign;
    if (cosine && Bits(u) > 0x4003BD3CC69A0672ull) bits = (bits & (1ull << 63)) | Bits(1.0);
    if (!cosine) bits ^= Bits(x) & (1ull << 63);
    double out;
    memcpy(&out, &bits, 8);
    return out;
}

// dSin and dCos at EP and LA against those steps, bit for bit: random arguments over the
// short path (uniform, by exponent), the doubles beside multiples of pi/2, and zeros.
TEST(Trig, DoubleSinCosFollowTheirSteps) {
    std::mt19937_64 gen(53);
    std::uniform_real_distribution<double> wide(-0x1p24, 0x1p24);
    std::vector<double> x = {0.0, -0.0, 0x1p24, -0x1p24, 1.0, 0x1p-1074};
    for (int i = 0; i < 150000; ++i) {
        x.push_back(wide(gen));
        double v = std::ldexp(1.0 + double(gen() >> 12) * 0x1p-52, int(gen() % 1098) - 1074);
        x.push_back(i % 2 ? -v : v);
    }
    for (long k = 1; k < 3000; ++k) {
        double m = double(k * 1.57079632679489661923132169163975144L);
        for (double v : {std::nextafter(m, 0.0), m, std::nextafter(m, 1e300)})
            x.push_back(k % 2 ? v : -v);
    }
    for (int slot : {0, 2})
        for (bool cosine : {false, true}) {
            std::vector<double> y = Call(cosine ? "dCos" : "dSin", slot, x);
            int bad = 0;
            for (size_t i = 0; i < x.size() && bad < 5; ++i) {
                double want = DoubleSinCosSteps(slot, cosine, x[i]);
                if (Bits(y[i]) != Bits(want)) {
                    ++bad;
                    ADD_FAILURE() << (cosine ? "dCos" : "dSin") << " slot " << slot
                                  << " x = " << std::hexfloat << x[i] << " got " << y[i] << " want "
                                  << want;
                }
            }
        }
}

// The double cosines within 2^-28 of k pi round to (-1)^k, at every level (EP and LA give
// it exactly by the remainder's square, as they give cos 0 = 1): the doubles nearest k pi
// below 2^24 all lie that close.
TEST(Trig, DoubleCosineIsOneNearMultiplesOfPi) {
    std::vector<double> x, want;
    auto add = [&](long k) {
        double v = double(k * 3.14159265358979323846264338327950288L);
        x.push_back(k % 3 ? v : -v);
        want.push_back(k % 2 ? -1.0 : 1.0);
        x.push_back(0.3 * double(k % 7)); // an ordinary lane beside it
        want.push_back(NAN);
    };
    for (long k = 1; k < 1000; ++k)
        add(k);
    for (long k = 5340350; k < 5340350 + 40; ++k) // 2^24 is about 5340353.7 pi
        add(k);
    for (int slot = 0; slot < kSlots; ++slot) {
        std::vector<double> c = Call("dCos", slot, x);
        for (size_t i = 0; i < x.size(); i += 2)
            EXPECT_EQ(c[i], want[i]) << slot << " x = " << std::hexfloat << x[i];
    }
}

// Sine and tangent are odd bit for bit at every level: f(-x) is -f(x) at zero, over the
// short path's range and beyond it (the single kernels and double EP sine reduce x with
// its sign, the others |x| and put the sign back).
template <class T>
void ExpectOdd(const char* row, T top) {
    std::mt19937 gen(19);
    std::uniform_real_distribution<T> mag(-14, top);
    std::vector<T> x = {T(0)}, negx = {-T(0)};
    for (int i = 0; i < 4096; ++i) {
        T v = std::exp2(mag(gen));
        x.push_back(v);
        negx.push_back(-v);
    }
    for (int slot = 0; slot < kSlots; ++slot) {
        std::vector<T> y = Call(row, slot, x), yn = Call(row, slot, negx);
        int bad = 0;
        for (size_t i = 0; i < x.size() && bad < 5; ++i)
            if (Bits(yn[i]) != Bits(T(-y[i]))) {
                ++bad;
                ADD_FAILURE() << row << " slot " << slot << " x = " << std::hexfloat << x[i] << ": "
                              << y[i] << ", " << yn[i];
            }
    }
}

TEST(Trig, SineAndTangentAreOdd) {
    ExpectOdd<float>("sSin", 16);
    ExpectOdd<float>("sTan", 16);
    ExpectOdd<double>("dSin", 30);
    ExpectOdd<double>("dTan", 30);
}

// Infinities give NaN with status 1 and raise invalid; NaN passes quietly with status 0;
// finite arguments of any size leave no invalid flag and no status.
template <class T>
void Specials(const char* row) {
    for (int slot = 0; slot < kSlots; ++slot) {
        for (T inf : {T(INFINITY), T(-INFINITY)}) {
            brenn_zar_kernel_SetErrStatus(0);
            CsrScope csr(0x1F80);
            std::vector<T> y = Call(row, slot, std::vector<T>{T(1), inf, T(2)});
            EXPECT_TRUE(std::isnan(y[1])) << row << slot;
            EXPECT_FALSE(std::isnan(y[0]) || std::isnan(y[2])) << row << slot;
            EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 1) << row << slot;
            EXPECT_TRUE(_mm_getcsr() & 1) << row << slot;
        }
        brenn_zar_kernel_SetErrStatus(0);
        std::vector<T> y = Call(row, slot, std::vector<T>{T(NAN), T(-NAN)});
        EXPECT_TRUE(std::isnan(y[0]) && std::isnan(y[1])) << row << slot;
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0) << row << slot;
        CsrScope csr(0x1F80);
        std::vector<T> x;
        for (int k = 0; k < 37; ++k)
            x.push_back(T(k % 2 ? -1 : 1) * std::pow(T(7), T(k % 14)) * T(k + 1));
        x.push_back(sizeof(T) == 4 ? T(FLT_MAX) : T(DBL_MAX));
        Call(row, slot, x);
        EXPECT_FALSE(_mm_getcsr() & 1) << row << slot;
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0) << row << slot;
    }
}

TEST(Trig, InfinityNaNAndFlags) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    for (const char* r : {"sSin", "sCos", "sTan"})
        Specials<float>(r);
    for (const char* r : {"dSin", "dCos", "dTan"})
        Specials<double>(r);
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

// Degrees and units of pi: the reduction is exact, so whole multiples give exact zeros
// and ones, and huge arguments (through the scalar routine's exact fmod) stay accurate.
long double UnitRef(Fn f, bool degrees, long double x) {
    long double r = fmodl(x, degrees ? 360.0L : 2.0L);
    return Ref(f, r * (degrees ? 3.14159265358979323846264338327950288L / 180
                               : 3.14159265358979323846264338327950288L));
}

template <class T>
void UnitRows(const char (*rows)[8], bool degrees) {
    const Fn fns[3] = {Fn::Sin, Fn::Cos, Fn::Tan};
    std::vector<T> x = {T(0.25), T(-33.75), T(1e6) + T(0.375), T(16777216), T(1e30), T(-3e37)};
    if (sizeof(T) == 8) x.insert(x.end(), {T(1e300), T(-0x1.8p60), T(123456789.125)});
    for (int f = 0; f < 3; ++f)
        for (int slot = 0; slot < kSlots; ++slot) {
            brenn_zar_kernel_SetErrStatus(0);
            std::vector<T> y = Call(rows[f], slot, x);
            EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0);
            for (size_t i = 0; i < x.size(); ++i) {
                long double ref = UnitRef(fns[f], degrees, fabsl(x[i]));
                if (fns[f] != Fn::Cos && x[i] < 0) ref = -ref;
                double err;
                EXPECT_TRUE(WithinLevel(slot, y[i], ref, &err))
                    << rows[f] << " slot " << slot << " x " << x[i] << " got " << y[i];
            }
        }
}

TEST(Trig, DegreesAndPiUnits) {
    const char sd[3][8] = {"sSind", "sCosd", "sTand"}, sp[3][8] = {"sSinpi", "sCospi", "sTanpi"};
    const char dd[3][8] = {"dSind", "dCosd", "dTand"}, dp[3][8] = {"dSinpi", "dCospi", "dTanpi"};
    UnitRows<float>(sd, true);
    UnitRows<float>(sp, false);
    UnitRows<double>(dd, true);
    UnitRows<double>(dp, false);
    for (int slot = 0; slot < kSlots; ++slot) {
        EXPECT_EQ(Call("sSind", slot, std::vector<float>{180, 360, 540, -180}),
                  (std::vector<float>{0, 0, 0, 0}));
        // EP's series at the single pi/2 is 1 + 2^-23: its cosine of 0 and sine of 90 degrees.
        const float one = slot == 2 ? 0x1.000002p0f : 1.0f;
        EXPECT_EQ(Call("sCosd", slot, std::vector<float>{0, 90, 180, 270}),
                  (std::vector<float>{one, 0, -one, 0}));
        EXPECT_EQ(Call("sTand", slot, std::vector<float>{45, -45, 135}),
                  (std::vector<float>{1, -1, -1}));
        EXPECT_EQ(Call("sSinpi", slot, std::vector<float>{1, 0.5, 1.5, 4194304}),
                  (std::vector<float>{0, one, -one, 0}));
        EXPECT_EQ(Call("dSind", slot, std::vector<double>{180, 90, 1e300 - 1e300 + 720}),
                  (std::vector<double>{0, 1, 0}));
        EXPECT_EQ(Call("dCospi", slot, std::vector<double>{0, 0.5, 1, 0x1p60}),
                  (std::vector<double>{1, 0, -1, 1}));
        EXPECT_EQ(Bits(Call("sSind", slot, std::vector<float>{-0.0f})[0]), Bits(-0.0f));
        EXPECT_EQ(Bits(Call("dTanpi", slot, std::vector<double>{-0.0})[0]), Bits(-0.0));
    }
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    Specials<float>("sSind");
    Specials<float>("sTanpi");
    Specials<double>("dCosd");
    Specials<double>("dSinpi");
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

// The single sines, cosines and tangents of degrees and units of pi, step by step:
// a = |x|, t = a/180 (a) (+ 1/2 for cosine) + 1.5 * 2^23, k = t - 1.5 * 2^23 (- 1/2),
// r = a - 180 k (a - k); the series on r in radians (EP and LA: r times the single pi/180
// or pi; HA: r, the product and the series in double), with (-1)^k from t's low bit; the
// tangent as the series at r over the series at 90 - |r| (1/2 - |r|), at HA in double.
// The sign of x last for sine and tangent.
double UnitSeriesHA(bool degrees, double r) {
    const double c[] = {-0x1.55554bc836587p-3, 0x1.110ed3804ca96p-7, -0x1.9f6ffeea73463p-13,
                        0x1.5dbdf0e4c7deep-19};
    double rr = r * (degrees ? 0x1.1df46a2529d39p-6 : 0x1.921fb54442d18p+1), u = rr * rr;
    double q = c[3];
    for (int i = 2; i >= 0; --i)
        q = u * q + c[i];
    return rr * (u * q + 1.0);
}
float UnitSeries(int slot, bool degrees, float r) {
    float rr = r * U2F(degrees ? 0x3C8EFA35 : 0x40490FDB), u = rr * rr;
    if (slot == 2) return rr * (u * (u * U2F(0x3BF831A5) + U2F(0xBE29F1BE)) + 1.0f);
    const float c[] = {-0x1.55554cp-3f, 0x1.110edap-7f, -0x1.9f70fp-13f, 0x1.5dc908p-19f};
    float q = c[3];
    for (int i = 2; i >= 0; --i)
        q = u * q + c[i];
    return rr + rr * u * q;
}
float UnitSteps(int slot, bool degrees, Fn fn, float x) {
    const float shifter = 12582912.0f, quarter = degrees ? 90.0f : 0.5f;
    float a = std::fabs(x);
    float t = degrees ? a * U2F(0x3BB60B61) : a;
    if (fn == Fn::Cos) t = t + 0.5f;
    t = t + shifter;
    float k = t - shifter;
    if (fn == Fn::Cos) k = k - 0.5f;
    float p;
    if (slot == 1) {
        double r = degrees ? double(a) - double(k) * 180.0 : double(a) - double(k);
        double s = UnitSeriesHA(degrees, r);
        if (fn == Fn::Tan) s = s / UnitSeriesHA(degrees, quarter - std::fabs(r));
        p = float(s);
    } else {
        float r = degrees ? a - k * 180.0f : a - k;
        p = UnitSeries(slot, degrees, r);
        if (fn == Fn::Tan) p = p / UnitSeries(slot, degrees, quarter - std::fabs(r));
    }
    uint32_t sign = fn == Fn::Tan ? 0 : F2U(t) << 31;
    if (fn != Fn::Cos) sign ^= F2U(x) & 0x80000000u;
    return U2F(F2U(p) ^ sign);
}

// Every slot of the six single rows against those steps, bit for bit: random arguments up
// to the limit (uniform, by exponent, whole numbers and quarter multiples of the half
// period) and the limit itself.
TEST(Trig, SingleDegreesAndPiUnitsFollowTheirSteps) {
    std::mt19937 gen(47);
    for (bool degrees : {true, false}) {
        const float limit = degrees ? 16777306.0f : 4194304.0f;
        const float half = degrees ? 180.0f : 1.0f;
        std::uniform_real_distribution<float> wide(-limit, limit), near(-4 * half, 4 * half);
        std::vector<float> x = {0.0f, -0.0f, limit, -limit, 0x1p-149f, half, half / 2};
        for (int i = 0; i < 60000; ++i) {
            x.push_back(wide(gen));
            x.push_back(near(gen));
            float v = std::ldexp(1.0f + float(gen() & 0x7FFFFF) * 0x1p-23f, int(gen() % 173) - 149);
            if (std::fabs(v) <= limit) x.push_back(i % 2 ? -v : v);
            x.push_back(float(int(gen() % 4096) - 2048) * half / 4);
            x.push_back(std::round(wide(gen)));
        }
        const char* rows[3] = {degrees ? "sSind" : "sSinpi", degrees ? "sCosd" : "sCospi",
                               degrees ? "sTand" : "sTanpi"};
        const Fn fns[3] = {Fn::Sin, Fn::Cos, Fn::Tan};
        for (int f = 0; f < 3; ++f)
            for (int slot = 0; slot < kSlots; ++slot) {
                std::vector<float> y = Call(rows[f], slot, x);
                int bad = 0;
                for (size_t i = 0; i < x.size() && bad < 5; ++i) {
                    float want = UnitSteps(slot, degrees, fns[f], x[i]);
                    if (F2U(y[i]) != F2U(want)) {
                        ++bad;
                        ADD_FAILURE() << rows[f] << " slot " << slot << " x = " << std::hexfloat
                                      << x[i] << " got " << y[i] << " want " << want;
                    }
                }
            }
    }
}

// Near zero the double HA sines and tangents of degrees and of units of pi take the
// argument up by a power of two and the result back down: within 0.6 ulp there,
// denormal results included (the product rounded once and then cut to the denormal grid
// reached 0.85 ulp).
TEST(Trig, DegreesAndPiUnitsNearZeroAtHA) {
    std::vector<double> x;
    for (int e = -1074; e <= -880; e += 3)
        for (double m : {1.0, 1.37, 1.9999})
            x.push_back(std::ldexp(m, e)), x.push_back(-std::ldexp(m * 1.17, e));
    const char* rows[4] = {"dSind", "dTand", "dSinpi", "dTanpi"};
    for (int r = 0; r < 4; ++r) {
        std::vector<double> y = Call(rows[r], 1, x);
        for (size_t i = 0; i < x.size(); ++i) {
            long double ref = UnitRef(r % 2 ? Fn::Tan : Fn::Sin, r < 2, fabsl(x[i]));
            if (x[i] < 0) ref = -ref;
            EXPECT_LE(UlpError(y[i], ref), 0.6) << rows[r] << " x " << x[i] << " got " << y[i];
        }
    }
}

// The sine, cosine and single tangent rows run their main stage sixteen elements a
// round, all registers at once when no lane is above the short path's limit and
// register by register otherwise. Whatever the length, the start's alignment and where huge,
// tiny, infinite or NaN lanes fall, each element must come out as it does alone (a call
// of one element takes the partial-block path, one register, clamped); special lanes
// are reported in order, also in place.

// Runs a row (unary, or the two-result SinCos) on n elements; z stays empty for unary.
template <class T>
void RunRow(const char* row, int slot, int n, const T* a, T* y, T* z) {
    if (z)
        As<TwoRes<T>>(Slot(row, slot))(n, a, y, z);
    else
        As<Unary<T>>(Slot(row, slot))(n, a, y);
}

// Inputs for one pattern: small arguments, and special values placed so that a round
// of sixteen sees them in one quad, in every quad, or not at all.
// The limits in double: 2^24 for Sin and Cos.
template <class T>
std::vector<T> Pattern(int kind, int n, std::mt19937& gen) {
    const bool single = sizeof(T) == 4;
    std::uniform_real_distribution<T> small(-9.5, 9.5);
    std::vector<T> x(n);
    for (T& v : x)
        v = small(gen);
    for (int i = 0; i < n; ++i) {
        switch (kind) {
        case 1: // one huge lane in the second quad of each round
            if (i % 16 == 5) x[i] = T(-3.3e27);
            break;
        case 2: // infinity or NaN in every quad
            if (i % 4 == (i / 4) % 4) x[i] = i % 8 < 4 ? T(INFINITY) : T(-NAN);
            break;
        case 3: // tiny arguments (cosine's constant 1), zeros, and the limit's two sides
            if (i % 3 == 0) x[i] = std::ldexp(x[i], single ? -14 : -29);
            if (i % 7 == 1) x[i] = i % 2 ? T(-0.0) : T(0.0);
            const T limit = single ? T(10000) : T(0x1p24), tan = single ? T(8256) : T(0x1p24);
            if (i % 11 == 2) x[i] = i % 2 ? limit : std::nextafter(limit, 2 * limit);
            if (i % 13 == 3) x[i] = i % 2 ? -tan : std::nextafter(tan, 2 * tan);
            break;
        }
    }
    return x;
}

template <class T>
void EveryElementAsAlone(const char* row, std::mt19937& gen) {
    const bool two = std::string(row).ends_with("SinCos");
    for (int slot = 0; slot < kSlots; ++slot)
        for (int kind = 0; kind < 4; ++kind)
            for (int n : {15, 16, 17, 24, 31, 40, 53, 69})
                for (int off = 0; off < 4; ++off) {
                    std::vector<T> x = Pattern<T>(kind, n, gen);
                    std::vector<T> buf(n + 4), y(n + 4), z(n + 4);
                    std::copy(x.begin(), x.end(), buf.begin() + off);
                    RunRow<T>(row, slot, n, buf.data() + off, y.data() + off,
                              two ? z.data() + off : nullptr);
                    for (int i = 0; i < n; ++i) {
                        T y1, z1;
                        RunRow<T>(row, slot, 1, &x[i], &y1, two ? &z1 : nullptr);
                        ASSERT_TRUE(SameValue(y[off + i], y1))
                            << row << " slot " << slot << " kind " << kind << " n " << n
                            << " offset " << off << " element " << i << " x " << x[i];
                        if (two) ASSERT_TRUE(SameValue(z[off + i], z1)) << row << " cos " << i;
                    }
                }
}

TEST(TrigRounds, EveryElementAsAlone) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    std::mt19937 gen(5);
    for (const char* row : {"sSin", "sCos", "sSinCos", "sTan"})
        EveryElementAsAlone<float>(row, gen);
    for (const char* row : {"dSin", "dCos", "dSinCos"})
        EveryElementAsAlone<double>(row, gen);
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

std::vector<int> reported;

int Patch(ErrorRecord* r) {
    reported.push_back(r->index);
    r->r1 = 42.0;
    return 0;
}

// Infinities in three quads of the first round and in the round of eight after it,
// the operation in place: reports come element by element, in order, each patched
// value lands where its element was, and the other elements are the out-of-place ones.
template <class T>
void ReportedInOrderInPlace(const char* row) {
    const std::vector<int> infs = {2, 7, 13, 20, 26};
    std::vector<T> x(29);
    for (int i = 0; i < 29; ++i)
        x[i] = T(0.37) * T(i) - 4;
    for (int i : infs)
        x[i] = i % 2 ? -T(INFINITY) : T(INFINITY);
    x[9] = T(NAN); // special, but not an error
    const bool two = std::string(row).ends_with("SinCos");
    for (int slot = 0; slot < kSlots; ++slot) {
        brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
        std::vector<T> ref(29), refz(29);
        RunRow<T>(row, slot, 29, x.data(), ref.data(), two ? refz.data() : nullptr);
        brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_CALLBACK);
        brenn_zar_kernel_SetErrorCallBack(Patch);
        brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
        brenn_zar_kernel_ClearErrStatus();
        reported.clear();
        std::vector<T> v = x, z(29);
        RunRow<T>(row, slot, 29, v.data(), v.data(), two ? z.data() : nullptr);
        EXPECT_EQ(reported, infs) << row << " slot " << slot;
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 1);
        for (int i = 0; i < 29; ++i) {
            bool inf = std::find(infs.begin(), infs.end(), i) != infs.end();
            EXPECT_TRUE(SameValue(v[i], inf ? T(42) : ref[i])) << row << " element " << i;
            if (two) EXPECT_TRUE(SameValue(z[i], refz[i])) << row << " cos " << i;
        }
        brenn_zar_kernel_ClearErrorCallBack();
    }
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(TrigRounds, SpecialLanesReportedInOrderInPlace) {
    for (const char* row : {"sSin", "sCos", "sSinCos", "sTan"})
        ReportedInOrderInPlace<float>(row);
    for (const char* row : {"dSin", "dCos", "dSinCos"})
        ReportedInOrderInPlace<double>(row);
}

} // namespace
} // namespace brenn::test
