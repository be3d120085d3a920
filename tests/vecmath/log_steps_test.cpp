// The single logarithms' bodies, step by step: each kernel against a plain scalar
// evaluation of its split, polynomial and sums, in the same rounding order, bit for bit,
// on random arguments across its window (the whole positive range in bits and in
// magnitude, and around the split's centre 2/3 and twice it, where k steps), and the
// values the bodies promise at their edges.
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <smmintrin.h>
#include <string>
#include <vector>

#include "frame/dispatch.h"
#include "tests/vecmath/kernels.h"
#include "vecmath/explog/explog_tables.h"
#include "vecmath/explog/scalar_log.h"

namespace brenn::test {
namespace {

constexpr int kLA = 0, kHA = 1, kEP = 2;

float FloatOf(uint32_t b) {
    return std::bit_cast<float>(b);
}

// x = 2^k * (1 + r) around the centre 0x3F2AAAAB (2/3), by the integer steps.
struct Split {
    float r, k;
};
Split SplitAt23(float x) {
    const uint32_t c = 0x3F2AAAABu;
    uint32_t d = Bits(x) - c;
    int32_t k = int32_t(d) >> 23;
    return {FloatOf((d & 0x7FFFFFu) + c) - 1.0f, float(k)};
}

// c[0] + r*(c[1] + r*(...)), the innermost product first.
float Nested(float r, const std::vector<float>& c) {
    float q = c.back();
    for (size_t i = c.size() - 1; i-- > 0;)
        q = q * r + c[i];
    return q;
}
std::vector<float> FromBits(std::initializer_list<uint32_t> bits) {
    std::vector<float> c;
    for (uint32_t b : bits)
        c.push_back(FloatOf(b));
    return c;
}

const std::vector<float> kLnEP = FromBits({0xBF000000, 0x3EAA7160, 0xBE88E8FE, 0x3E612933});
const std::vector<float> kLnLA = FromBits(
    {0xBF000000, 0x3EAAAEE7, 0xBE80061D, 0x3E4AFB81, 0xBE289358, 0x3E2DB86B, 0xBE1B6A22});
const std::vector<float> kLnHA =
    FromBits({0xBF000000, 0x3EAAAA83, 0xBE7FFF78, 0x3E4CE814, 0xBE2ACEE6, 0x3E0F6B8C,
              0xBDF9889E, 0x3E0F335D, 0xBE0402C8});
const std::vector<float> kLog10EP = {0.43430084f, -0.216831714f, 0.144034356f, -0.119593509f,
                                     0.100466065f};
const std::vector<float> kLog1pLA = {-0.5f,        0.333332658f,  -0.250042379f, 0.200079203f,
                                     -0.164723262f, 0.140423089f, -0.151221797f, 0.138202384f};
const float kLn2 = FloatOf(0x3F317218), kLn2Hi = FloatOf(0x3F317200), kLn2Lo = FloatOf(0x35BFBE8E);

float LnSteps(float x, const std::vector<float>& q) {
    Split s = SplitAt23(x);
    float p = s.r + (s.r * s.r) * Nested(s.r, q);
    return p + s.k * kLn2;
}
float LnStepsHA(float x) {
    Split s = SplitAt23(x);
    float p = s.r + (s.r * s.r) * Nested(s.r, kLnHA);
    return (s.k * kLn2Lo + p) + s.k * kLn2Hi;
}
// log_B x = r*P(r) + k*log_B(2).
float LogBSteps(float x, const std::vector<float>& c, float perK) {
    Split s = SplitAt23(x);
    return s.r * Nested(s.r, c) + s.k * perK;
}
// Random positive normals: uniform in the bits, uniform in [1/2, 2), and within 2^-8
// of 2/3 and 4/3; the ends of the range.
std::vector<float> PositiveNormals(int n) {
    std::mt19937 g(20261129);
    std::vector<float> x;
    std::uniform_int_distribution<uint32_t> bits(0x00800000u, 0x7F7FFFFFu);
    std::uniform_real_distribution<float> mid(0.5f, 2.0f), near(-0x1p-8f, 0x1p-8f);
    for (int i = 0; i < n; ++i) {
        switch (i % 4) {
        case 0: x.push_back(FloatOf(bits(g))); break;
        case 1: x.push_back(mid(g)); break;
        case 2: x.push_back(2.0f / 3 + near(g)); break;
        default: x.push_back(4.0f / 3 + near(g)); break;
        }
    }
    for (float v : {FLT_MIN, FLT_MAX, 1.0f, FloatOf(0x3F2AAAAB), FloatOf(0x3F2AAAAA),
                    FloatOf(0x3FAAAAAB), FloatOf(0x3FAAAAAA)})
        x.push_back(v);
    return x;
}

Unary<float> Kernel(frame::RowIndex row, int slot) {
    return reinterpret_cast<Unary<float>>((&BrennDispatchTable[row].kernelLA)[slot]);
}

// Every element of x through the slot in one call, held to the steps bit for bit (NaNs
// as NaNs).
void ExpectSteps(frame::RowIndex row, int slot, const std::vector<float>& x,
                 const std::function<float(float)>& steps) {
    auto k = Kernel(row, slot);
    std::vector<float> y(x.size());
    k(int(x.size()), x.data(), y.data());
    ExpectEachElement(std::string(frame::kRowInfo[row].name) + " slot " + std::to_string(slot), x, y,
                      steps);
}

// The HA reduction: rc = round(rcpps(m)*64)/64, the row t - 48 of -log_B(rc) in two
// parts, r = (mh*rc - 1) + ml*rc with mh m's top 17 bits, the exact head k*L2hi + Thi
// and c*r's head by Fast2Sum, the small terms after.
struct RecipBase {
    const float (*rows)[2];
    float perKHi, perKLo, cHi, cLo;
    std::vector<float> q;
};
const RecipBase kRecipE{vm::single::lnRecipRows, 0x1.62e8p-1f, -0x1.e8082ep-16f, 1.0f, 0.0f,
                        {-0x1p-1f, 0x1.555aa6p-2f, -0x1.0004b2p-2f}};
const RecipBase kRecip10{vm::single::log10RecipRows, 0x1.344p-2f, 0x1.3509f8p-18f, 0x1.bccp-2f,
                         -0x1.09d5b2p-15f, {-0x1.bcb7bp-3f, 0x1.287f14p-3f, -0x1.bd25bcp-4f}};
const RecipBase kRecip2{vm::single::log2RecipRows, 1.0f, 0.0f, 0x1.716p+0f, -0x1.7135a8p-13f,
                        {-0x1.71546ep-1f, 0x1.ec7848p-2f, -0x1.73dcbp-2f}};

float RecipSteps(float x, const RecipBase& b, const float* extra = nullptr) {
    Split s = SplitAt23(x);
    float m = s.r + 1.0f; // exact: the split's m
    float rcp = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(m)));
    float t = std::nearbyint(rcp * 64.0f), rc = t * 0x1p-6f;
    const float* row = b.rows[int(t) - 48];
    float mh = FloatOf(Bits(m) & 0xFFFFFF80u), ml = m - mh;
    float r = (mh * rc - 1.0f) + ml * rc;
    float h = s.k * b.perKHi + row[0];
    float low = s.k * b.perKLo + row[1];
    float q = (r * r) * Nested(r, b.q);
    float sum, rest;
    if (b.cHi == 1.0f) {
        sum = h + r;
        rest = ((r - (sum - h)) + low) + q;
    } else {
        float rh = FloatOf(Bits(r) & 0xFFFFF000u), rl = r - rh, p = rh * b.cHi;
        sum = h + p;
        rest = (((p - (sum - h)) + (rl * b.cHi + r * b.cLo)) + low) + q;
    }
    return sum + (extra ? rest + *extra : rest);
}

// ln(1 + x) = ln u + c/u on u = 1 + x, c the rounding of u by Fast2Sum with the larger
// of 1 and x first; EP and LA (p + k*ln2) + c/u, HA c/u among the small terms (q empty).
float Log1pSteps(float x, const std::vector<float>& q) {
    float u = 1.0f + x;
    float c = std::fabs(x) < 1.0f ? x - (u - 1.0f) : 1.0f - (u - x);
    float cu = c / std::min(u, 0x1p125f);
    float y;
    if (q.empty()) {
        y = RecipSteps(u, kRecipE, &cu);
    } else {
        Split s = SplitAt23(u);
        float p = s.r + (s.r * s.r) * Nested(s.r, q);
        y = (p + s.k * kLn2) + cu;
    }
    return std::copysign(y, x);
}

TEST(LogSteps, NaturalLogarithmAtEveryLevel) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::vector<float> x = PositiveNormals(300000);
    ExpectSteps(frame::Row_sLn, kEP, x, [](float v) { return LnSteps(v, kLnEP); });
    ExpectSteps(frame::Row_sLn, kLA, x, [](float v) { return LnSteps(v, kLnLA); });
    ExpectSteps(frame::Row_sLn, kHA, x, LnStepsHA);
}

TEST(LogSteps, Base10And2AtEPAndHA) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::vector<float> x = PositiveNormals(300000);
    ExpectSteps(frame::Row_sLog10, kEP, x, [](float v) { return LogBSteps(v, kLog10EP, FloatOf(0x3E9A209B)); });
    // Log2's own five coefficients (tools/explog/log_single.sollya), k added as it is.
    const std::vector<float> log2EP = {0x1.715508p0f, -0x1.70cb38p-1f, 0x1.eae082p-2f,
                                       -0x1.96cd6ap-2f, 0x1.4d736p-2f};
    ExpectSteps(frame::Row_sLog2, kEP, x, [&](float v) { return LogBSteps(v, log2EP, 1.0f); });
    ExpectSteps(frame::Row_sLog10, kHA, x, [](float v) { return RecipSteps(v, kRecip10); });
    ExpectSteps(frame::Row_sLog2, kHA, x, [](float v) { return RecipSteps(v, kRecip2); });
}

TEST(LogSteps, Log1pAtEveryLevel) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::vector<float> x = PositiveNormals(200000);
    // And x in (-1, 0), down to within 2^-20 of -1, and tiny ones, of both signs.
    std::mt19937 g(7);
    std::uniform_real_distribution<float> neg(-1.0f, 0.0f);
    std::uniform_int_distribution<uint32_t> tiny(0, 0x30000000u);
    for (int i = 0; i < 100000; ++i) {
        float v = neg(g);
        if (v > -1.0f) x.push_back(v);
        x.push_back(FloatOf(tiny(g) | (i % 2 ? 0x80000000u : 0u)));
    }
    x.push_back(-1.0f + 0x1p-24f);
    x.push_back(-0.0f);
    ExpectSteps(frame::Row_sLog1p, kEP, x, [](float v) { return Log1pSteps(v, kLnEP); });
    ExpectSteps(frame::Row_sLog1p, kLA, x, [](float v) { return Log1pSteps(v, kLog1pLA); });
    ExpectSteps(frame::Row_sLog1p, kHA, x, [](float v) { return Log1pSteps(v, {}); });
}

// The values the single bodies promise: ln 1 is +0 (k = 0, r = 0); across the centre 2/3
// k steps from 0 to -1 with no jump; the smallest denormal has its logarithm, -103.28,
// without a status; -0 has none of its own sign (-inf, singularity); log1p of a tiny x
// is x.
TEST(LogSteps, EdgesOfTheSingleBodies) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : {kLA, kHA, kEP}) {
        auto ln = Kernel(frame::Row_sLn, slot);
        int st;
        EXPECT_EQ(Bits(CallUnary(ln, 1.0f, &st)), 0u) << slot;
        EXPECT_EQ(st, 0);
        float below = CallUnary(ln, FloatOf(0x3F2AAAAA)), at = CallUnary(ln, FloatOf(0x3F2AAAAB));
        EXPECT_LT(below, at) << slot;
        // The true step is 2^-24 of x; EP's polynomial errs by about 2^-12 on either side.
        EXPECT_LE(at - below, slot == kEP ? 0x1p-12f : 0x1p-20f) << slot;
        float d = CallUnary(ln, FLT_TRUE_MIN, &st);
        EXPECT_NEAR(d, -103.27893f, 1e-4f) << slot;
        EXPECT_EQ(st, 0);
        EXPECT_EQ(CallUnary(ln, -0.0f, &st), -INFINITY) << slot;
        EXPECT_EQ(st, 2);
        auto l1p = Kernel(frame::Row_sLog1p, slot);
        EXPECT_EQ(CallUnary(l1p, 1e-30f, &st), 1e-30f) << slot;
        EXPECT_EQ(st, 0);
        EXPECT_EQ(Bits(CallUnary(l1p, -0.0f)), 0x80000000u) << slot;
    }
}

// dLn HA and EP: x's fraction rounded to 9 bits picks the row j of lnRows (reciprocal, head and
// tail of -ln of it, a = mh*rcp - 1), m = x*2^-k, r = a + (m - mh)*rcp, and
// (k*ln2hi + head) + (r + (r^2*P(r) + (k*ln2lo + tail))), P by Horner's rule.
template <bool kEP>
double LnSteps(double x) {
    const uint64_t xi = Bits(x), x1 = xi + (1ull << 42);
    const uint64_t e1 = x1 & 0x7FF0000000000000ull;
    const double* row = vm::lnRows[(x1 >> 43) & 511];
    const double m = std::bit_cast<double>(xi - e1 + 0x3FF0000000000000ull);
    const double mh = std::bit_cast<double>((x1 & 0x000FF80000000000ull) | 0x3FF0000000000000ull);
    const double k = double(int(e1 >> 52) - 1023);
    const double r = row[3] + (m - mh) * row[0];
    // EP: ln 2 as one head, no low parts, c2 as given and c3 = 1/3.
    if (kEP)
        return ((k * 0x1.62e42fefa4p-1 + row[1]) + r) +
               (r * r) * (-0.49999999999924227 + r * 0x1.5555555555555p-2);
    const double p =
        -0.49999999999995254 +
        r * (0.33333333333327408 + r * (-0.25000019886943392 + r * 0.20000019344205111));
    const double h = k * 0x1.62e42fefa38p-1 + row[1];
    const double tail = k * 0x1.ef35793c7673p-45 + row[2];
    return h + (r + ((r * r) * p + tail));
}

TEST(LogSteps, DoubleLnAtHAAndEP) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::mt19937_64 g(9);
    std::uniform_real_distribution<double> mid(0.5, 2.0);
    std::vector<double> x;
    for (int i = 0; i < 300000; ++i) {
        double v = i % 2 ? mid(g) : std::bit_cast<double>(g() % 0x7FE0000000000000ull + 0x0010000000000000ull);
        x.push_back(v);
    }
    for (double v : {1.0, std::nextafter(1.0, 0.0), std::nextafter(1.0, 2.0), DBL_MIN, DBL_MAX})
        x.push_back(v);
    for (int slot : {kHA, kEP}) {
        auto k = reinterpret_cast<Unary<double>>((&BrennDispatchTable[frame::Row_dLn].kernelLA)[slot]);
        auto steps = slot == kEP ? LnSteps<true> : LnSteps<false>;
        std::vector<double> y(x.size());
        k(int(x.size()), x.data(), y.data());
        int bad = 0;
        for (size_t i = 0; i < x.size() && bad < 5; ++i)
            if (Bits(y[i]) != Bits(steps(x[i]))) {
                ++bad;
                ADD_FAILURE() << "slot " << slot << " " << std::hexfloat << x[i] << ": got "
                              << y[i] << ", the steps give " << steps(x[i]);
            }
        EXPECT_EQ(Bits(y[x.size() - 5]), 0u) << slot; // ln 1 = +0
    }
}

// The scalar logarithm near 1 (|x - 1| not above 2^-7): r + r^2*P(r) on r = x - 1 alone,
// P's seven coefficients from the top by Horner's rule.
TEST(LogSteps, ScalarLogarithmNearOne) {
    const double c[] = {-0.1250214602960357,  0.1428756883852146,   -0.1666666651884978,
                        0.19999999911565072,  -0.25000000000003386, 0.33333333333334386,
                        -0.5};
    std::mt19937_64 g(5);
    std::uniform_real_distribution<double> r(-0x1p-7, 0x1p-7);
    for (int i = 0; i < 200000; ++i) {
        double x = 1.0 + r(g), d = x - 1.0;
        double p = c[0];
        for (int j = 1; j < 7; ++j)
            p = c[j] + d * p;
        ASSERT_EQ(Bits(__qesdLn(x)), Bits(d + d * d * p)) << std::hexfloat << x;
    }
}

} // namespace
} // namespace brenn::test
