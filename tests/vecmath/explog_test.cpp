// The exponential and logarithm rows: the values and statuses at their limits (overflow,
// underflow, denormal results, poles, domain errors), the special values the family
// shares, error mode 0x2000 (overflow and underflow settled in the vector path without a
// flag or a status, NaN lanes still by the scalar routine), the index a report carries,
// every length and alignment against the scalar routine's answers, the places where the
// reductions step (and the single logarithms' rows), and the scalar set-up logarithms
// __qesdLn and __qessLn.
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <iomanip>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>
#include <xmmintrin.h>

#include "frame/dispatch.h"
#include "tests/vecmath/kernels.h"
#include "vecmath/explog/scalar_log.h"

namespace brenn::test {
namespace {

using frame::RowIndex;

template <class T>
Unary<T> K(RowIndex row, int slot) {
    return reinterpret_cast<Unary<T>>((&BrennDispatchTable[row].kernelLA)[slot]);
}

constexpr int kSlots[] = {frame::SlotLA, frame::SlotHA, frame::SlotEP};

// One element through a slot: its result and the status it leaves.
template <class T>
T Call(RowIndex row, int slot, T x, int* status = nullptr) {
    return CallUnary(K<T>(row, slot), x, status);
}

const RowIndex kExpRowsS[] = {frame::Row_sExp, frame::Row_sExp2, frame::Row_sExp10};
const RowIndex kExpRowsD[] = {frame::Row_dExp, frame::Row_dExp2, frame::Row_dExp10};
const RowIndex kLogRowsS[] = {frame::Row_sLn, frame::Row_sLog10, frame::Row_sLog2};
const RowIndex kLogRowsD[] = {frame::Row_dLn, frame::Row_dLog10, frame::Row_dLog2};

TEST(ExpLog, ExpAtTheEdgesOfTheSingleRange) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const float last = 88.72283172607422f;
    for (int slot : kSlots) {
        int status;
        float y = Call(frame::Row_sExp, slot, last, &status);
        EXPECT_TRUE(std::isfinite(y)) << slot;
        EXPECT_EQ(status, 0);
        y = Call(frame::Row_sExp, slot, std::nextafter(last, 100.0f), &status);
        EXPECT_EQ(y, INFINITY);
        EXPECT_EQ(status, 3);
        // A denormal result is correct to the last place and counts as underflow.
        y = Call(frame::Row_sExp, slot, -100.0f, &status);
        EXPECT_EQ(status, 4) << slot;
        EXPECT_EQ(std::fpclassify(y), FP_SUBNORMAL);
        EXPECT_LE(UlpError(y, expl(-100.0L)), 1.0) << slot;
        y = Call(frame::Row_sExp, slot, -104.0f, &status);
        EXPECT_EQ(Bits(y), 0u);
        EXPECT_EQ(status, 4);
        // Every exponential is exactly 1 at both zeros and leaves no status.
        for (RowIndex r : kExpRowsS)
            for (float z : {0.0f, -0.0f}) {
                EXPECT_EQ(Call(r, slot, z, &status), 1.0f);
                EXPECT_EQ(status, 0);
            }
    }
}

TEST(ExpLog, ExpAtTheEdgesOfTheDoubleRange) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const double last = 709.78271289338397;
    for (int slot : kSlots) {
        int status;
        EXPECT_TRUE(std::isfinite(Call(frame::Row_dExp, slot, last, &status)));
        EXPECT_EQ(status, 0);
        EXPECT_EQ(Call(frame::Row_dExp, slot, std::nextafter(last, 1e3), &status), INFINITY);
        EXPECT_EQ(status, 3);
        double y = Call(frame::Row_dExp, slot, -740.0, &status);
        EXPECT_EQ(status, 4);
        EXPECT_EQ(std::fpclassify(y), FP_SUBNORMAL);
        EXPECT_LE(UlpError(y, expl(-740.0L)), 1.0);
        EXPECT_EQ(Call(frame::Row_dExp, slot, -746.0, &status), 0.0);
        EXPECT_EQ(status, 4);
        for (RowIndex r : kExpRowsD)
            EXPECT_EQ(Call(r, slot, -0.0, &status), 1.0);
        // Exp2 is exact at integers, down into the denormals, and overflows at 1024.
        EXPECT_EQ(Call(frame::Row_dExp2, slot, -1074.0, &status), 5e-324);
        EXPECT_EQ(status, 4);
        EXPECT_EQ(Call(frame::Row_dExp2, slot, 1023.0, &status), 0x1p1023);
        EXPECT_EQ(Call(frame::Row_dExp2, slot, 1024.0, &status), INFINITY);
        EXPECT_EQ(status, 3);
        EXPECT_EQ(Call(frame::Row_sExp2, slot, -149.0f, &status), FLT_TRUE_MIN);
        // Exp10 exact at exact powers of ten, but for EP's short polynomials and double
        // LA's one-part table.
        if (slot == frame::SlotEP) continue;
        EXPECT_EQ(Call(frame::Row_sExp10, slot, 10.0f, &status), 1e10f) << slot;
        if (slot == frame::SlotHA) EXPECT_EQ(Call(frame::Row_dExp10, slot, 22.0, &status), 1e22);
    }
}

// Where each exponential leaves the normal range, in both precisions and every slot. At
// the top: arguments up to the last one with a finite result (a spread over the last 2
// and the last floats or doubles one by one),
// and the first arguments above it. At the bottom: results around the smallest normal,
// through the denormals, to the first argument whose result is +0. Each element alone,
// so that its status and flags are its own. The limits are exact: the arguments whose
// correctly rounded results are the last finite, the first non-zero and the first normal
// ones (MPFR at 256 bits).
template <class T>
struct ExpLimits {
    RowIndex row;
    long double (*ref)(long double);
    T lastFinite;
    T firstNonZero; // 0: no underflow (Expm1 goes to -1)
    T firstNormal;
};

template <class T>
const std::vector<ExpLimits<T>>& ExpLimitRows();
template <>
const std::vector<ExpLimits<float>>& ExpLimitRows() {
    static const std::vector<ExpLimits<float>> rows = {
        {frame::Row_sExp, expl, 0x1.62e42ep+6f, -0x1.9fe368p+6f, -0x1.5d589ep+6f},
        {frame::Row_sExp2, exp2l, 0x1.fffffep+6f, -0x1.2bfffep+7f, -126.0f},
        {frame::Row_sExp10, exp10l, 0x1.344134p+5f, -0x1.693c6ap+5f, -0x1.2f7030p+5f},
        {frame::Row_sExpm1, expm1l, 0x1.62e42ep+6f, 0, 0},
    };
    return rows;
}
template <>
const std::vector<ExpLimits<double>>& ExpLimitRows() {
    static const std::vector<ExpLimits<double>> rows = {
        {frame::Row_dExp, expl, 0x1.62e42fefa39efp+9, -0x1.74910d52d3051p+9, -0x1.6232bdd7abcd2p+9},
        {frame::Row_dExp2, exp2l, 0x1.fffffffffffffp+9, -0x1.0cbffffffffffp+10, -1022.0},
        {frame::Row_dExp10, exp10l, 0x1.34413509f79fep+8, -0x1.439b746e36b52p+8,
         -0x1.33a7146f72a41p+8},
        {frame::Row_dExpm1, expm1l, 0x1.62e42fefa39efp+9, 0, 0},
    };
    return rows;
}

// The level's bound in ulps: HA 1, LA 4, EP 11 good bits in single and 26 in double.
template <class T>
double LevelBound(int slot) {
    if (slot == frame::SlotHA) return 1.0;
    if (slot == frame::SlotLA) return 4.0;
    return sizeof(T) == 4 ? 0x1p13 : 0x1p27;
}

// Every argument of [from, to] if there are at most `all` of them; otherwise `spread`
// evenly placed ones and the `ends` arguments at each end one by one.
template <class T>
std::vector<T> Arguments(T from, T to, int all, int spread, int ends) {
    std::vector<T> x;
    T v = from;
    for (int i = 0; i <= all && v <= to; ++i, v = std::nextafter(v, to + 1))
        x.push_back(v);
    if (v > to) return x;
    x.clear();
    for (int i = 0; i <= spread; ++i)
        x.push_back(T(from + (long double)(to - from) * i / spread));
    T a = from, b = to;
    for (int i = 0; i < ends; ++i, a = std::nextafter(a, to), b = std::nextafter(b, from))
        x.push_back(a), x.push_back(b);
    return x;
}

// What one element alone gives against what the limits say it must: empty when right.
template <class T>
std::string ExpLimitFault(const ExpLimits<T>& e, int slot, T x) {
    constexpr T kMinNormal = std::numeric_limits<T>::min();
    int status;
    unsigned flags;
    T y;
    {
        CsrScope csr(0x1F80);
        y = Call(e.row, slot, x, &status);
        flags = _mm_getcsr() & 0x3F;
    }
    const bool over = x > e.lastFinite, zero = e.firstNonZero != 0 && x < e.firstNonZero;
    const int wantStatus = over ? 3 : (zero || std::fabs(y) < kMinNormal) ? 4 : 0;
    std::ostringstream fault;
    if (over && y != T(INFINITY))
        fault << "not +inf";
    else if (zero && Bits(y) != 0)
        fault << "not +0";
    else if (!over && !zero && !(y != 0 && UlpError(y, e.ref(x)) <= LevelBound<T>(slot)))
        fault << "off by " << UlpError(y, e.ref(x)) << " ulp";
    else if (status != wantStatus)
        fault << "status " << status << ", not " << wantStatus;
    else if (bool(flags & 0x8) != over)
        fault << "overflow flag " << bool(flags & 0x8);
    if (fault.str().empty()) return {};
    fault << ": " << frame::kRowInfo[e.row].name << " slot " << slot << " x " << std::hexfloat << x
          << " (" << std::defaultfloat << std::setprecision(17) << x << ") y " << y;
    return fault.str();
}

template <class T>
void CheckExpLimits() {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    // The top band reaches below the old windows' ends (87.34, 126, 37.93; 708.4, 1022,
    // 307, 708), past the whole stretch the vector path now takes up to the last finite
    // result.
    const T wide = T(2);
    for (const ExpLimits<T>& e : ExpLimitRows<T>()) {
        std::vector<T> x = Arguments<T>(e.lastFinite - wide, e.lastFinite, 20000, 4000, 500);
        T above = e.lastFinite;
        for (int i = 0; i < 4; ++i)
            x.push_back(above = std::nextafter(above, T(INFINITY)));
        x.push_back(e.lastFinite + wide);
        if (e.firstNonZero != 0) {
            // Normal results just above the smallest normal, the whole denormal band, and
            // the first arguments whose result is +0.
            for (T v : Arguments<T>(e.firstNonZero, e.firstNormal + wide, 0, 4000, 2000))
                x.push_back(v);
            // Densely around the first normal result, where the vector path's window ends.
            const T near = std::fabs(e.firstNormal) * (sizeof(T) == 4 ? T(0x1p-16) : T(0x1p-26));
            for (T v : Arguments<T>(e.firstNormal - near, e.firstNormal + near, 2000, 2000, 100))
                x.push_back(v);
            T below = e.firstNonZero;
            for (int i = 0; i < 4; ++i)
                x.push_back(below = std::nextafter(below, -T(INFINITY)));
        }
        for (int slot : kSlots) {
            int shown = 0;
            for (T v : x) {
                std::string fault = ExpLimitFault(e, slot, v);
                if (!fault.empty() && shown++ < 5) ADD_FAILURE() << fault;
            }
        }
    }
}

TEST(ExpLog, EveryExponentialAtTheEndsOfItsRange) {
    CheckExpLimits<float>();
    CheckExpLimits<double>();
}

TEST(ExpLog, InfinitiesAndNaNOfTheExponentials) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots) {
        int status;
        for (RowIndex r : kExpRowsS) {
            EXPECT_EQ(Call(r, slot, INFINITY, &status), INFINITY);
            EXPECT_EQ(Bits(Call(r, slot, -INFINITY, &status)), 0u);
            EXPECT_EQ(status, 0);
            EXPECT_TRUE(std::isnan(Call(r, slot, std::numeric_limits<float>::signaling_NaN())));
        }
        for (RowIndex r : kExpRowsD) {
            EXPECT_EQ(Bits(Call(r, slot, -double(INFINITY), &status)), 0u);
            EXPECT_TRUE(std::isnan(Call(r, slot, double(NAN), &status)));
            EXPECT_EQ(status, 0);
        }
        // Expm1: -1 at -inf, the sign of zero kept, x itself for tiny x, no status for
        // large negative x.
        EXPECT_EQ(Call(frame::Row_sExpm1, slot, -INFINITY), -1.0f);
        EXPECT_EQ(Call(frame::Row_sExpm1, slot, -200.0f, &status), -1.0f);
        EXPECT_EQ(status, 0);
        EXPECT_EQ(Bits(Call(frame::Row_sExpm1, slot, -0.0f)), Bits(-0.0f));
        EXPECT_EQ(Bits(Call(frame::Row_dExpm1, slot, -0.0)), Bits(-0.0));
        EXPECT_EQ(Call(frame::Row_dExpm1, slot, 1e-300), 1e-300);
        EXPECT_EQ(Call(frame::Row_dExpm1, slot, 710.0, &status), INFINITY);
        EXPECT_EQ(status, 3);
        EXPECT_EQ(Call(frame::Row_sExpm1, slot, 89.0f, &status), INFINITY);
        EXPECT_EQ(status, 3);
    }
}

// Lanes the range test sends to the scalar routine raise only what that routine raises:
// exp(+inf) and log1p(+inf) nothing, exp of a huge negative underflow and not overflow.
template <class T>
unsigned FlagsOf(RowIndex row, int slot, T x) {
    CsrScope csr(0x1F80);
    T in[5] = {T(1), T(1), x, T(1), T(1)}, y[5];
    K<T>(row, slot)(5, in, y);
    return _mm_getcsr() & 0x3F & ~0x20u; // inexact aside
}

TEST(ExpLog, SpecialLanesRaiseNoFlagsOfTheirOwn) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots) {
        for (RowIndex r :
             {frame::Row_sExp, frame::Row_sExp2, frame::Row_sExp10, frame::Row_sExpm1}) {
            EXPECT_EQ(FlagsOf<float>(r, slot, INFINITY), 0u) << r << " " << slot;
            EXPECT_EQ(FlagsOf<float>(r, slot, -INFINITY), 0u) << r << " " << slot;
        }
        for (RowIndex r : {frame::Row_dExp, frame::Row_dExp2, frame::Row_dExp10})
            EXPECT_EQ(FlagsOf<double>(r, slot, -1e300), 0x10u) << r << " " << slot;
        EXPECT_EQ(FlagsOf<double>(frame::Row_dExpm1, slot, INFINITY), 0u);
        EXPECT_EQ(FlagsOf<float>(frame::Row_sLog1p, slot, INFINITY), 0u);
        EXPECT_EQ(FlagsOf<double>(frame::Row_dLog1p, slot, INFINITY), 0u);
        // Log1p's other special lanes: a quiet NaN raises nothing, a signalling one, -inf
        // and x below -1 invalid, -1 divide by zero, as their scalar routine does.
        EXPECT_EQ(FlagsOf<float>(frame::Row_sLog1p, slot, NAN), 0u) << slot;
        EXPECT_EQ(
            FlagsOf<float>(frame::Row_sLog1p, slot, std::numeric_limits<float>::signaling_NaN()),
            0x1u)
            << slot;
        EXPECT_EQ(FlagsOf<float>(frame::Row_sLog1p, slot, -INFINITY), 0x1u) << slot;
        EXPECT_EQ(FlagsOf<float>(frame::Row_sLog1p, slot, -2.0f), 0x1u) << slot;
        EXPECT_EQ(FlagsOf<float>(frame::Row_sLog1p, slot, -1.0f), 0x4u) << slot;
        EXPECT_EQ(FlagsOf<double>(frame::Row_dLog1p, slot, NAN), 0u) << slot;
        EXPECT_EQ(FlagsOf<double>(frame::Row_dLog1p, slot, -INFINITY), 0x1u) << slot;
        EXPECT_EQ(FlagsOf<double>(frame::Row_dLog1p, slot, -2.0), 0x1u) << slot;
        EXPECT_EQ(FlagsOf<double>(frame::Row_dLog1p, slot, -1.0), 0x4u) << slot;
        EXPECT_EQ(FlagsOf<double>(frame::Row_dLog1p, slot, 0x1p1021), 0u) << slot;
        EXPECT_EQ(FlagsOf<float>(frame::Row_sLn, slot, INFINITY), 0u);
        EXPECT_EQ(FlagsOf<double>(frame::Row_dLn, slot, 0.0), 0x4u); // divide by zero
    }
}

TEST(ExpLog, LogarithmsOfSpecialInputs) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots) {
        int status;
        for (RowIndex r : kLogRowsS) {
            // x = 1 gives k = 0 and r = 0: exactly +0.
            EXPECT_EQ(Bits(Call(r, slot, 1.0f, &status)), 0u) << r << " " << slot;
            EXPECT_EQ(status, 0);
            for (float z : {0.0f, -0.0f}) {
                EXPECT_EQ(Call(r, slot, z, &status), -INFINITY);
                EXPECT_EQ(status, 2);
            }
            for (float neg : {-1.0f, -FLT_TRUE_MIN, -INFINITY}) {
                EXPECT_TRUE(std::isnan(Call(r, slot, neg, &status)));
                EXPECT_EQ(status, 1);
            }
            EXPECT_EQ(Call(r, slot, INFINITY, &status), INFINITY);
            EXPECT_EQ(status, 0);
            EXPECT_TRUE(std::isnan(Call(r, slot, NAN, &status)));
            EXPECT_EQ(status, 0);
        }
        for (RowIndex r : kLogRowsD) {
            EXPECT_EQ(Bits(Call(r, slot, 1.0, &status)), 0u);
            EXPECT_EQ(Call(r, slot, -0.0, &status), -INFINITY);
            EXPECT_EQ(status, 2);
            EXPECT_TRUE(std::isnan(Call(r, slot, -1e-300, &status)));
            EXPECT_EQ(status, 1);
        }
        // Denormal inputs have their correct logarithm and no status.
        float y = Call(frame::Row_sLn, slot, FLT_TRUE_MIN, &status);
        EXPECT_EQ(status, 0);
        EXPECT_LE(UlpError(y, logl((long double)FLT_TRUE_MIN)), 1.0);
        EXPECT_EQ(Call(frame::Row_sLog2, slot, FLT_TRUE_MIN), -149.0f);
        EXPECT_EQ(Call(frame::Row_dLog2, slot, 5e-324), -1074.0);
        EXPECT_LE(UlpError(Call(frame::Row_dLn, slot, 5e-324), logl((long double)5e-324)), 1.0);
        // 2/3 on both sides of the split's centre: no jump (EP has its 11 bits only).
        float c = 2.0f / 3.0f;
        double bound = slot == frame::SlotEP ? 8192.0 : 4.0;
        for (float v : {std::nextafter(c, 0.0f), c, std::nextafter(c, 1.0f)})
            EXPECT_LE(UlpError(Call(frame::Row_sLn, slot, v), logl(v)), bound) << v;
    }
}

TEST(ExpLog, Log1pAndLogb) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots) {
        int status;
        EXPECT_EQ(Call(frame::Row_sLog1p, slot, 1e-30f, &status), 1e-30f);
        EXPECT_EQ(status, 0);
        EXPECT_EQ(Call(frame::Row_sLog1p, slot, FLT_TRUE_MIN), FLT_TRUE_MIN);
        EXPECT_EQ(Bits(Call(frame::Row_sLog1p, slot, -0.0f)), Bits(-0.0f));
        EXPECT_EQ(Call(frame::Row_dLog1p, slot, 1e-300), 1e-300);
        EXPECT_EQ(Call(frame::Row_sLog1p, slot, -1.0f, &status), -INFINITY);
        EXPECT_EQ(status, 2);
        EXPECT_TRUE(std::isnan(Call(frame::Row_dLog1p, slot, -2.0, &status)));
        EXPECT_EQ(status, 1);
        EXPECT_EQ(Call(frame::Row_dLog1p, slot, -1.0, &status), -INFINITY);
        EXPECT_EQ(status, 2);
        // The rounding of 1 + x is recovered: log1p(2^-30 + 2^-60) keeps the low part.
        double x = 0x1p-30 + 0x1p-60;
        EXPECT_LE(UlpError(Call(frame::Row_dLog1p, slot, x), log1pl(x)), 1.0);
        EXPECT_EQ(Bits(Call(frame::Row_dLog1p, slot, -0.0)), Bits(-0.0));
        // Both ends of the double window on 1 + x (2^-43, 2^1023) and either side of them.
        for (double v : {-1 + 0x1p-50, -1 + 0x1p-43, -1 + 0x1p-42, 0x1p1023, 0x1.fffffp1022,
                         DBL_MAX, 0x1p44 + 3})
            EXPECT_LE(UlpError(Call(frame::Row_dLog1p, slot, v), log1pl(v)),
                      LevelBound<double>(slot))
                << slot << " " << v;

        EXPECT_EQ(Call(frame::Row_sLogb, slot, -0.0f, &status), -INFINITY);
        EXPECT_EQ(status, 2);
        EXPECT_EQ(Call(frame::Row_sLogb, slot, FLT_TRUE_MIN, &status), -149.0f);
        EXPECT_EQ(status, 0);
        EXPECT_EQ(Call(frame::Row_sLogb, slot, -6.0f), 2.0f);
        EXPECT_EQ(Call(frame::Row_sLogb, slot, -INFINITY), INFINITY);
        EXPECT_EQ(Call(frame::Row_dLogb, slot, 5e-324), -1074.0);
        EXPECT_EQ(Call(frame::Row_dLogb, slot, 0x1.8p-1000), -1000.0);
    }
}

// In error mode exactly 0x2000 overflow and underflow lanes are blended in the vector
// path: no scalar routine runs, so neither the overflow nor the underflow flag of the
// scalar routine's arithmetic appears, and no status is left. NaN lanes and lanes
// between the body's limit and the overflow limit still get the scalar routine's value.
template <class T>
void CheckNoErrorMode(RowIndex row, T over, T under, double atTwo) {
    constexpr T kNaN = std::numeric_limits<T>::quiet_NaN();
    std::vector<T> x = {T(1), over, T(2), under, kNaN, T(-1), over, T(0.5), under, T(3)};
    for (int slot : kSlots) {
        std::vector<T> y(x.size());
        unsigned flags;
        {
            ModeScope mode(BRENN_MODE_ERRMODE_NOERR);
            CsrScope csr(0x1F80);
            brenn_zar_kernel_SetErrStatus(0);
            K<T>(row, slot)(int(x.size()), x.data(), y.data());
            flags = _mm_getcsr() & 0x3F;
            EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0);
        }
        EXPECT_EQ(flags & 0x18, 0u) << "overflow or underflow raised, slot " << slot;
        EXPECT_EQ(y[1], T(INFINITY));
        EXPECT_EQ(y[6], T(INFINITY));
        EXPECT_EQ(Bits(y[3]), decltype(Bits(y[3]))(0));
        EXPECT_TRUE(std::isnan(y[4]));
        EXPECT_NEAR(y[2], T(atTwo), T(atTwo * 1e-3)); // EP has 11 bits
        // Any other error mode takes the scalar routine, whose arithmetic raises them.
        {
            ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
            CsrScope csr(0x1F80);
            K<T>(row, slot)(int(x.size()), x.data(), y.data());
            flags = _mm_getcsr() & 0x3F;
            EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 4);
        }
        EXPECT_EQ(flags & 0x18, 0x18u) << slot;
    }
}

TEST(ExpLog, ErrorModeNoneSettlesOverflowAndUnderflowInTheVectorPath) {
    CheckNoErrorMode<float>(frame::Row_sExp, 200.0f, -200.0f, std::exp(2.0));
    CheckNoErrorMode<double>(frame::Row_dExp, 800.0, -800.0, std::exp(2.0));
    CheckNoErrorMode<float>(frame::Row_sExp2, 300.0f, -300.0f, 4.0);
    CheckNoErrorMode<float>(frame::Row_sExp10, 60.0f, -60.0f, 100.0);
    CheckNoErrorMode<double>(frame::Row_dExp2, 2000.0, -2000.0, 4.0);
    CheckNoErrorMode<double>(frame::Row_dExp10, 400.0, -400.0, 100.0);
    // Between the body's limit and the overflow limit: the scalar routine's value.
    ModeScope mode(BRENN_MODE_ERRMODE_NOERR);
    for (int slot : kSlots) {
        float y = Call(frame::Row_sExp, slot, 0x1.62e42ep+6f); // the last finite result
        EXPECT_LE(UlpError(y, expl(0x1.62e42ep+6L)), 4.0);
        double d = Call(frame::Row_dExp, slot, -720.0);
        EXPECT_LE(UlpError(d, expl(-720.0L)), 4.0);
    }
}

// A report names the element by its index in the call, whatever the stage it was in.
int gLastIndex = -1, gLastCode = 0;
int Record(ErrorRecord* r) {
    gLastIndex = r->index;
    gLastCode = r->code;
    r->r1 = 42.0; // the callback may replace the result
    return 0;
}

TEST(ExpLog, ReportsCarryTheElementIndexAndTakeTheCallbackResult) {
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(Record);
    std::vector<float> x(21, 1.0f);
    std::vector<float> y(21);
    // The record's input-vector pointer is not cleared at creation: the index counts
    // from the vector it names, here this call's own.
    brenn_zar_kernel_SetInterfInputVectorPointer(x.data());
    for (int at : {0, 5, 12, 20}) {
        for (int slot : kSlots) {
            std::fill(x.begin(), x.end(), 1.0f);
            x[at] = 0.0f;
            gLastIndex = -1;
            K<float>(frame::Row_sLn, slot)(21, x.data(), y.data());
            EXPECT_EQ(gLastIndex, at);
            EXPECT_EQ(gLastCode, 2);
            EXPECT_EQ(y[at], 42.0f);
        }
    }
    brenn_zar_kernel_SetErrorCallBack(saved);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
}

// Every length and alignment, in place too: each element as the row gives it alone.
template <class T>
void CheckLengths(RowIndex row) {
    std::mt19937 gen(7);
    std::uniform_real_distribution<double> u(-30, 30);
    std::vector<T> base(64 + 4);
    for (auto& v : base)
        v = T(u(gen));
    base[9] = T(1e6); // special lanes among good ones
    base[17] = T(-0.0);
    base[30] = std::numeric_limits<T>::quiet_NaN();
    for (int slot : kSlots) {
        std::vector<T> one(base.size());
        for (size_t i = 0; i < base.size(); ++i)
            one[i] = Call(row, slot, base[i]);
        for (int off = 0; off < 4; ++off)
            for (int n = 0; n <= 40; ++n) {
                std::vector<T> y(base.size() + 2, T(-7));
                K<T>(row, slot)(n, base.data() + off, y.data() + 1);
                for (int i = 0; i < n; ++i)
                    ASSERT_TRUE(SameValue(y[i + 1], one[i + off])) << n << " " << off << " " << i;
                EXPECT_EQ(y[0], T(-7));
                EXPECT_EQ(y[n + 1], T(-7));
                std::vector<T> inplace(base.begin() + off, base.begin() + off + n);
                K<T>(row, slot)(n, inplace.data(), inplace.data());
                for (int i = 0; i < n; ++i)
                    ASSERT_TRUE(SameValue(inplace[i], one[i + off]));
            }
    }
}

TEST(ExpLog, EveryLengthAlignmentAndAliasing) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (RowIndex r :
         {frame::Row_sExp, frame::Row_sLn, frame::Row_sExpm1, frame::Row_sLog1p, frame::Row_sLog10})
        CheckLengths<float>(r);
    for (RowIndex r :
         {frame::Row_dExp, frame::Row_dLn, frame::Row_dExpm1, frame::Row_dLog2, frame::Row_dLog1p})
        CheckLengths<double>(r);
}

// The worst error in ulps of a slot over a whole vector of arguments (long enough for the
// main stage's rounds), and the argument where it occurs.
template <class T>
std::pair<double, T> WorstOver(RowIndex row, int slot, long double (*ref)(long double),
                               const std::vector<T>& x) {
    std::vector<T> y(x.size());
    K<T>(row, slot)(int(x.size()), x.data(), y.data());
    std::pair<double, T> worst{0.0, T(0)};
    for (size_t i = 0; i < x.size(); ++i) {
        double e = UlpError(y[i], ref(x[i]));
        if (e > worst.first) worst = {e, x[i]};
    }
    return worst;
}

// Arguments on both sides of each point, `ulps` floats away at most.
template <class T>
std::vector<T> Around(const std::vector<long double>& points, int ulps) {
    std::vector<T> x;
    for (long double p : points) {
        T up = T(p), down = T(p);
        for (int i = 0; i < ulps; ++i) {
            x.push_back(up), x.push_back(down);
            up = std::nextafter(up, T(INFINITY));
            down = std::nextafter(down, -T(INFINITY));
        }
    }
    return x;
}

template <class T>
struct Seams {
    RowIndex row;
    long double (*ref)(long double);
    long double step; // where the reduction's integer changes: (i + 1/2) * step
    int from, to;     // the i to visit
};

// The exponentials where the reduction's integer n steps (every table row, its wrap
// into the next power of two, and for Expm1 the n where 2^n - 1 stops being exact), in
// every slot, through the vector path: each slot within its level's bound.
template <class T>
void CheckSeams(const std::vector<Seams<T>>& rows) {
    for (const Seams<T>& s : rows) {
        std::vector<long double> points;
        for (int i = s.from; i <= s.to; ++i)
            points.push_back((i + 0.5L) * s.step);
        std::vector<T> x = Around<T>(points, 6);
        for (int slot : kSlots) {
            auto [err, at] = WorstOver<T>(s.row, slot, s.ref, x);
            EXPECT_LE(err, LevelBound<T>(slot))
                << frame::kRowInfo[s.row].name << " slot " << slot << " x " << std::hexfloat << at;
        }
    }
}

TEST(ExpLog, ExponentialsWhereTheReductionSteps) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const long double ln2 = logl(2.0L), lg2 = log10l(2.0L);
    CheckSeams<float>({
        {frame::Row_sExp2, exp2l, 1.0L / 128, -300, 300},
        {frame::Row_sExp2, exp2l, 1.0L / 128, -16128, -16000}, // results near the smallest normal
        {frame::Row_sExp10, exp10l, lg2 / 128, -300, 300},
        {frame::Row_sExp10, exp10l, lg2 / 128, 16000, 16120},
        {frame::Row_sExpm1, expm1l, ln2, -60, 60},
        {frame::Row_sExpm1, expm1l, ln2 / 64, -100, 100},
    });
    CheckSeams<double>({
        {frame::Row_dExp, expl, ln2 / 256, -200, 200},
        {frame::Row_dExp2, exp2l, 1.0L / 256, -200, 200},
        {frame::Row_dExp2, exp2l, 1.0L / 256, -261632, -261520},
        {frame::Row_dExp10, exp10l, lg2 / 256, -200, 200},
        // the one-part tables of LA (1024 rows) and EP (128): every row, and the top and
        // bottom of the windows, where m is largest and smallest
        {frame::Row_dExp2, exp2l, 1.0L / 1024, -1100, 1100},
        {frame::Row_dExp2, exp2l, 1.0L / 1024, 1021 * 1024, 1022 * 1024 - 1},
        {frame::Row_dExp2, exp2l, 1.0L / 1024, -1022 * 1024, -1021 * 1024},
        {frame::Row_dExp10, exp10l, lg2 / 1024, -1100, 1100},
        {frame::Row_dExp10, exp10l, lg2 / 1024, 1018800, 1019900},
        {frame::Row_dExp10, exp10l, lg2 / 1024, -1019900, -1018800},
        {frame::Row_dExpm1, expm1l, ln2, -60, 60},
        {frame::Row_dExpm1, expm1l, ln2, 1000, 1020},
        {frame::Row_dExpm1, expm1l, ln2 / 64, -100, 100},
        // every row of the double kernels' table of 256, m from -3 to 2
        {frame::Row_dExpm1, expm1l, ln2 / 256, -700, 700},
    });
}

// The exponentials test their range once a round of sixteen elements, and lane by lane
// only in a round that holds a lane at or past the window's edge: a special argument at
// any place of a long vector (the infinities, NaN, the first arguments past the edge on
// either side, the edge itself, and in double an argument below the edge that shares its
// high word, which only the lane test tells from one beyond) gives what it gives alone,
// leaves its neighbours theirs, and raises no flag of its own.
template <class T>
void CheckSpecialPlaces(RowIndex row, T edge) {
    std::mt19937 gen(11);
    std::uniform_real_distribution<double> u(-5, 5);
    constexpr int kLen = 48;
    std::vector<T> specials = {T(INFINITY),
                               -T(INFINITY),
                               std::numeric_limits<T>::quiet_NaN(),
                               std::nextafter(edge, T(INFINITY)),
                               -std::nextafter(edge, T(INFINITY)),
                               edge,
                               -edge};
    if constexpr (sizeof(T) == 8) {
        uint64_t bits;
        memcpy(&bits, &edge, 8);
        bits = (bits & ~0xFFFFFFFFull) | (bits & 0xFFFFFFFFull ? 0x1234u : 0u);
        T shared;
        memcpy(&shared, &bits, 8);
        specials.push_back(bits & 0xFFFFFFFFull ? shared : std::nextafter(edge, T(0)));
    }
    for (int slot : kSlots)
        for (size_t k = 0; k < specials.size(); ++k)
            for (int at = 0; at < kLen; at += 3) {
                alignas(16) T in[kLen], y[kLen];
                for (T& v : in)
                    v = T(u(gen));
                in[at] = specials[k];
                unsigned flags;
                {
                    CsrScope csr(0x1F80);
                    K<T>(row, slot)(kLen, in, y);
                    flags = _mm_getcsr() & 0x3F & ~0x20u; // inexact aside
                }
                for (int i = 0; i < kLen; ++i)
                    ASSERT_TRUE(SameValue(y[i], Call(row, slot, in[i])))
                        << frame::kRowInfo[row].name << " slot " << slot << " special " << k
                        << " at " << at << " element " << i;
                if (k < 3)
                    EXPECT_EQ(flags, 0u) << frame::kRowInfo[row].name << " slot " << slot << " special " << k << " at " << at;
            }
}

TEST(ExpLog, ExponentialsTestTheirRangeOnceARound) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    auto f = [](uint32_t b) { return std::bit_cast<float>(b); };
    auto d = [](uint64_t b) { return std::bit_cast<double>(b); };
    CheckSpecialPlaces<float>(frame::Row_sExp, f(0x42AEAC4Fu));
    CheckSpecialPlaces<float>(frame::Row_sExp2, 126.0f);
    CheckSpecialPlaces<float>(frame::Row_sExp10, f(0x4217B818u));
    CheckSpecialPlaces<float>(frame::Row_sExpm1, f(0x42AD496Bu)); // LA and EP
    CheckSpecialPlaces<float>(frame::Row_sExpm1, f(0x42B17217u)); // HA
    CheckSpecialPlaces<double>(frame::Row_dExp, d(0x4086232AFFFFFFFFull));
    CheckSpecialPlaces<double>(frame::Row_dExp2, 1022.0);
    CheckSpecialPlaces<double>(frame::Row_dExp10, 307.0);
    CheckSpecialPlaces<double>(frame::Row_dExpm1, 708.0);
}

// Past the single windows' upper ends, up to the last argument that the scalar routine
// gives at status 0, rounds of sixteen take the routine's value inside the round. Every
// float of that band and a few beyond it, in long calls with window lanes between and,
// in a second pass, every fifth lane negated (special lanes below the window in most
// rounds), at every place of a round: bit for bit what each element gives alone, every
// band element at status 0 alone; the call's status that of the last element with one
// (reports held to the end), under error mode 0x2000 the same values, and under a
// callback the same reports in element order with the callback's results.
std::vector<std::pair<int, int>> gReports; // (index, status) as the callback saw them
int RecordAll(ErrorRecord* r) {
    gReports.emplace_back(r->index, r->code);
    r->r1 = 42.0;
    return 0;
}

TEST(ExpLog, SingleExponentialsPastTheWindowInLongCalls) {
    struct Band {
        RowIndex row;
        uint32_t lo, hi; // the band's bits: above lo, up to hi
    };
    const Band bands[] = {{frame::Row_sExp, 0x42AEAC4Fu, 0x42B17217u},
                          {frame::Row_sExp2, 0x42FC0000u, 0x42FFFFFFu},
                          {frame::Row_sExp10, 0x4217B818u, 0x421A209Au},
                          {frame::Row_sExpm1, 0x42AD496Bu, 0x42B17217u}};
    for (const Band& c : bands)
        for (int negate : {0, 5}) {
            std::vector<float> x;
            for (uint32_t b = c.lo - 2; b <= c.hi + 3; ++b) {
                float v = std::bit_cast<float>(b);
                x.push_back(negate && b % negate == 0 ? -v : v);
                if (b % 7 == 0) x.push_back(b % 3 ? 1.5f : -20.0f);
            }
            // The band's ends at every place of a round, and window lanes after them so
            // that the call's last elements (its tail, element by element) hold none.
            for (int at = 0; at < 16; ++at) {
                x.insert(x.end(), size_t(at), 0.5f);
                for (uint32_t b : {c.lo - 1, c.lo, c.lo + 1, c.hi - 1, c.hi, c.hi + 1, c.hi + 2})
                    x.push_back(std::bit_cast<float>(b));
            }
            x.insert(x.end(), 40, -1.0f);
            const std::string name = frame::kRowInfo[c.row].name;
            for (int slot : kSlots) {
                std::vector<float> one(x.size());
                std::vector<int> status(x.size());
                int last = 0;
                {
                    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
                    for (size_t i = 0; i < x.size(); ++i) {
                        one[i] = Call(c.row, slot, x[i], &status[i]);
                        uint32_t b = Bits(x[i]);
                        if (b > c.lo && b <= c.hi)
                            ASSERT_EQ(status[i], 0) << name << " " << slot << " " << x[i];
                        if (status[i]) last = status[i];
                    }
                }
                std::vector<float> y(x.size());
                {
                    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
                    brenn_zar_kernel_SetErrStatus(0);
                    K<float>(c.row, slot)(int(x.size()), x.data(), y.data());
                    EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), last) << name << " " << slot;
                }
                for (size_t i = 0; i < x.size(); ++i)
                    ASSERT_EQ(Bits(y[i]), Bits(one[i])) << name << " " << slot << " " << x[i];
                {
                    ModeScope mode(BRENN_MODE_ERRMODE_NOERR);
                    K<float>(c.row, slot)(int(x.size()), x.data(), y.data());
                    for (size_t i = 0; i < x.size(); ++i)
                        ASSERT_EQ(Bits(y[i]), Bits(Call(c.row, slot, x[i])))
                            << name << " " << slot << " " << x[i];
                }
                {
                    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
                    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(RecordAll);
                    brenn_zar_kernel_SetInterfInputVectorPointer(x.data());
                    gReports.clear();
                    K<float>(c.row, slot)(int(x.size()), x.data(), y.data());
                    brenn_zar_kernel_SetErrorCallBack(saved);
                    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
                    size_t r = 0;
                    for (size_t i = 0; i < x.size(); ++i) {
                        if (status[i] == 0) {
                            ASSERT_EQ(Bits(y[i]), Bits(one[i])) << name << " " << slot << " " << x[i];
                            continue;
                        }
                        ASSERT_LT(r, gReports.size()) << name << " " << slot;
                        EXPECT_EQ(gReports[r].first, int(i)) << name << " " << slot;
                        EXPECT_EQ(gReports[r].second, status[i]) << name << " " << slot;
                        EXPECT_EQ(y[i], 42.0f) << name << " " << slot << " " << x[i];
                        ++r;
                    }
                    EXPECT_EQ(r, gReports.size()) << name << " " << slot;
                }
            }
        }
}

// Single Expm1 takes every argument up to 88.375 at LA and EP (and to the last finite
// result at HA) in the vector path, where 2^n reaches 2^127 on the positive side and +0
// on the negative one: every float of both bands within the level's bound, element by
// element and in one long call.
TEST(ExpLog, SingleExpm1OverTheWholeWindow) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::vector<float> x;
    for (float v = 86.0f; v <= 0x1.62e42ep+6f; v = std::nextafter(v, 100.0f))
        x.push_back(v), x.push_back(-v);
    for (int slot : kSlots) {
        std::vector<float> y(x.size());
        K<float>(frame::Row_sExpm1, slot)(int(x.size()), x.data(), y.data());
        int shown = 0;
        for (size_t i = 0; i < x.size(); ++i) {
            double err = UlpError(y[i], expm1l(x[i]));
            if (!(err <= LevelBound<float>(slot)) && shown++ < 5)
                ADD_FAILURE() << "slot " << slot << " x " << std::hexfloat << x[i] << " y " << y[i];
        }
        for (float v : {88.375f, std::nextafter(88.375f, 100.0f), 88.0f, -88.375f, -87.0f}) {
            int status;
            float one = Call(frame::Row_sExpm1, slot, v, &status);
            EXPECT_EQ(status, 0) << slot << " " << v;
            EXPECT_LE(UlpError(one, expm1l(v)), LevelBound<float>(slot)) << slot << " " << v;
        }
    }
}

// Expm1 gives every result the sign of x: -0 stays -0, tiny and denormal x are x itself,
// in both precisions and every slot, through the vector path.
TEST(ExpLog, Expm1KeepsTheSignAndTinyArguments) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const std::vector<float> xs = {
        -0.0f, 0.0f, -FLT_TRUE_MIN, FLT_TRUE_MIN, -0x1p-100f, 0x1p-60f,  -0x1p-30f,  0x1p-26f,
        -0.0f, 0.0f, -1e-20f,       1e-38f,       -0.0f,      0x1p-126f, -0x1p-126f, 0x1p-149f};
    std::vector<double> xd(xs.begin(), xs.end());
    xd.push_back(-0x1p-1074);
    xd.push_back(0x1p-1000);
    xd.push_back(-0x1p-60);
    xd.push_back(-0.0);
    // Where the table's first difference cancels (one step from 0 either way) and where
    // 2^m*T - 1 is no longer exact (m = -2, m = 53).
    for (double x : {0x1.a6d2c1dc60983p-10, -0x1.6p-9, -1.05, 36.8, 37.0})
        xd.push_back(x);
    for (int slot : kSlots) {
        std::vector<float> ys(xs.size());
        K<float>(frame::Row_sExpm1, slot)(int(xs.size()), xs.data(), ys.data());
        for (size_t i = 0; i < xs.size(); ++i)
            EXPECT_EQ(Bits(ys[i]), Bits(xs[i])) << slot << " " << xs[i];
        std::vector<double> yd(xd.size());
        K<double>(frame::Row_dExpm1, slot)(int(xd.size()), xd.data(), yd.data());
        for (size_t i = 0; i < xd.size(); ++i) {
            if (std::fabs(xd[i]) < 0x1p-54)
                EXPECT_EQ(Bits(yd[i]), Bits(xd[i])) << slot << " " << xd[i];
            else
                EXPECT_LE(UlpError(yd[i], expm1l(xd[i])), LevelBound<double>(slot));
        }
    }
}

// Double Expm1 may take a cheaper form in a round of sixteen that holds no argument near
// 0: an argument on either side of that bound or near 0 (where the table's first
// difference cancels), placed at each position of a round of far arguments of both signs
// (near -1, beyond 2^53, in between), gives what it gives alone, and its neighbours
// theirs, each within its level's bound.
TEST(ExpLog, Expm1RoundsWithAndWithoutArgumentsNearZero) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const double bound = 0x1.6147Ap-1;
    const std::vector<double> near = {bound,
                                      -bound,
                                      std::nextafter(bound, 0.0),
                                      -std::nextafter(bound, 0.0),
                                      0.69315,
                                      -0.6945,
                                      0x1.a6d2c1dc60983p-10,
                                      -0x1.6p-9,
                                      0x1.62e42fefa39efp-9,
                                      1e-3,
                                      -0.0,
                                      1e-300};
    std::mt19937 gen(5);
    std::uniform_real_distribution<double> far(0.7, 45.0);
    constexpr int kLen = 32;
    for (int slot : kSlots) {
        for (double v : near) {
            for (int at = 0; at < 16; ++at) {
                std::vector<double> x(kLen), y(kLen);
                for (int i = 0; i < kLen; ++i)
                    x[i] = (i % 3 == 0 ? -1.0 : 1.0) * far(gen);
                x[at] = v;
                K<double>(frame::Row_dExpm1, slot)(kLen, x.data(), y.data());
                for (int i = 0; i < kLen; ++i) {
                    double alone = Call(frame::Row_dExpm1, slot, x[i]);
                    ASSERT_EQ(Bits(y[i]), Bits(alone))
                        << slot << " " << std::hexfloat << x[i] << " beside " << v << " at " << at;
                    if (x[i] != 0)
                        EXPECT_LE(UlpError(y[i], expm1l(x[i])), LevelBound<double>(slot))
                            << slot << " " << std::hexfloat << x[i];
                }
            }
        }
        // Rounds whose every argument is near 0, and the same with one far argument.
        std::uniform_real_distribution<double> small(-bound, bound);
        for (int at = -1; at < 16; ++at) {
            std::vector<double> x(kLen), y(kLen);
            for (double& v : x)
                v = small(gen);
            if (at >= 0) x[at] = far(gen);
            K<double>(frame::Row_dExpm1, slot)(kLen, x.data(), y.data());
            for (int i = 0; i < kLen; ++i) {
                ASSERT_EQ(Bits(y[i]), Bits(Call(frame::Row_dExpm1, slot, x[i])))
                    << slot << " " << std::hexfloat << x[i] << " far at " << at;
                EXPECT_LE(UlpError(y[i], expm1l(x[i])), LevelBound<double>(slot))
                    << slot << " " << std::hexfloat << x[i];
            }
        }
    }
}

// The single HA logarithms work in double on the single bits: near 1 from both sides
// (the row of 1 and the last row, where the heads cancel), at the edges of the table's
// rows, and for Log1p around 2^-29, below which the result is x itself.
TEST(ExpLog, SingleLogarithmsNearOneAndAtTheirRows) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::vector<long double> points = {1.0L, 2.0L, 0.5L, 0x1p-126L, 0x1p127L};
    for (int j = 0; j <= 512; j += 7)
        points.push_back(1.0L + (2 * j + 1) / 1024.0L);
    std::vector<float> x = Around<float>(points, 40);
    struct {
        RowIndex row;
        long double (*ref)(long double);
    } rows[] = {{frame::Row_sLog2, log2l}, {frame::Row_sLog10, log10l}, {frame::Row_sLn, logl}};
    for (auto r : rows)
        for (int slot : kSlots) {
            auto [err, at] = WorstOver<float>(r.row, slot, r.ref, x);
            EXPECT_LE(err, LevelBound<float>(slot)) << r.row << " " << slot << " " << at;
        }
    // Log1p's rounding of 1 + x joins the reduction scaled by 2^-k: where k is 0 or -1
    // near x = 0, where 1 + x steps a binade (x near 1, 3, -1/2), just above -1 (2^-k
    // large) and at the top of the range (2^-k taken as 0 or clamped).
    std::vector<long double> t1p = {0x1p-29L, -0x1p-29L,        0x1p-30L, -0x1p-28L,
                                    0x1p24L,  0x1p53L,          -0.5L,    1.0L,
                                    3.0L,     -1.0L + 0x1p-16L, 0x1p126L};
    std::vector<float> t = Around<float>(t1p, 30);
    t.push_back(FLT_MAX);
    std::vector<double> td = Around<double>(t1p, 30);
    for (double v : {-1.0 + 0x1p-40, 0x1p1022, 0x1.8p1023, DBL_MAX})
        td.push_back(v);
    for (int slot : kSlots) {
        auto [err, at] = WorstOver<float>(frame::Row_sLog1p, slot, log1pl, t);
        EXPECT_LE(err, LevelBound<float>(slot)) << slot << " " << at;
        auto [errd, atd] = WorstOver<double>(frame::Row_dLog1p, slot, log1pl, td);
        EXPECT_LE(errd, LevelBound<double>(slot)) << slot << " " << atd;
    }
}

// Double Log10 and Log2 split x at 2^k*(1 - 2^-8) and take rows of 1/512 from there:
// both sides of each split, x near 1 (the rows whose reciprocal is near 1) and the edges
// of the rows.
TEST(ExpLog, DoubleLogarithmsAtTheirSplitAndRows) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::vector<long double> points = {1.0L,
                                       1.0L - 0x1p-8L,
                                       0.5L - 0x1p-9L,
                                       2.0L - 0x1p-7L,
                                       0x1p-1022L * (1.0L - 0x1p-8L),
                                       0x1p1023L * (2.0L - 0x1p-7L)};
    for (int j = -3; j <= 510; j += 7)
        points.push_back((510 + j + 0.5L) / 512);
    std::vector<double> x = Around<double>(points, 40);
    struct {
        RowIndex row;
        long double (*ref)(long double);
    } rows[] = {{frame::Row_dLog10, log10l}, {frame::Row_dLog2, log2l}};
    for (auto r : rows)
        for (int slot : kSlots) {
            auto [err, at] = WorstOver<double>(r.row, slot, r.ref, x);
            EXPECT_LE(err, LevelBound<double>(slot)) << r.row << " " << slot << " " << at;
        }
}

// The double logarithms (Log1p on 1 + x) split two registers at once on their high words
// in the main stage: each lane of a round, special or at the ends of the window (by its
// high word and by its low one), gives what it gives alone, and the special lanes that
// raise nothing alone raise nothing there either.
TEST(ExpLog, DoubleLogarithmsSplitByPairs) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    auto d = [](uint64_t b) { return std::bit_cast<double>(b); };
    // +inf and quiet NaNs raise nothing, the fraction of ones among them (its rounding
    // to the row carries out of the exponent field).
    const double quiet[] = {INFINITY,  std::numeric_limits<double>::quiet_NaN(),
                            d(0x7FFFFFFFFFFFFFFFull), d(0x7FFFFC0000000000ull),
                            -INFINITY, -0.0, 0.0, -1.5};
    const double edges[] = {d(0x0010000000000000ull), d(0x000FFFFFFFFFFFFFull),
                            d(0x0000000000000001ull), d(0x7FEFFFFFFFFFFFFFull),
                            d(0x7FEFFFFF00000000ull), d(0x3FEFFFFFFFFFFFFFull),
                            d(0x3FFFFE0000000000ull), d(0x3FFFFDFFFFFFFFFFull),
                            d(0x8010000000000000ull), -1.0 + 0x1p-43, -1.0 + 0x1p-44,
                            d(0x7FCFFBFFFFFFFFFFull), d(0x7FCFFC0000000000ull), 0x1p-60};
    std::mt19937_64 gen(5);
    constexpr int kLen = 40;
    for (RowIndex row : {frame::Row_dLn, frame::Row_dLog10, frame::Row_dLog2, frame::Row_dLog1p})
        for (int slot : kSlots)
            for (int k = 0; k < int(std::size(quiet) + std::size(edges)); ++k)
                for (int at = 0; at < 16; ++at) {
                    alignas(16) double in[kLen], y[kLen];
                    for (double& v : in) // positive, 2^-63 to 2^705 (Log1p's r^2 normal)
                        v = d(0x3C00000000000000ull + gen() % 0x3000000000000000ull);
                    const bool q = k < int(std::size(quiet));
                    in[at] = q ? quiet[k] : edges[k - std::size(quiet)];
                    in[at + 16] = in[at];
                    unsigned flags;
                    {
                        CsrScope csr(0x1F80);
                        K<double>(row, slot)(kLen, in, y);
                        flags = _mm_getcsr() & 0x3F & ~0x20u; // inexact aside
                    }
                    for (int i = 0; i < kLen; ++i)
                        ASSERT_TRUE(SameValue(y[i], Call(row, slot, in[i])))
                            << frame::kRowInfo[row].name << " slot " << slot << " value " << k
                            << " at " << at << " element " << i;
                    if (q && k < 4) // +inf and quiet NaNs raise nothing
                        EXPECT_EQ(flags, 0u) << frame::kRowInfo[row].name << " slot " << slot;
                }
}

TEST(ExpLog, ScalarSetUpLogarithms) {
    std::mt19937_64 gen(11);
    for (int i = 0; i < 200000; ++i) {
        uint64_t b = gen() & 0x7FFFFFFFFFFFFFFFull;
        double x = __builtin_bit_cast(double, b);
        if (!std::isfinite(x)) continue;
        ASSERT_LE(UlpError(__qesdLn(x), logl(x)), 1.0) << x;
        float f = __builtin_bit_cast(float, uint32_t(b >> 33));
        if (std::isfinite(f)) ASSERT_LE(UlpError(__qessLn(f), logl(f)), 1.0) << f;
    }
    EXPECT_EQ(__qesdLn(1.0), 0.0);
    EXPECT_EQ(__qesdLn(0.0), -INFINITY);
    EXPECT_TRUE(std::isnan(__qesdLn(-1.0)));
    EXPECT_EQ(__qesdLn(INFINITY), INFINITY);
    EXPECT_EQ(__qessLn(-0.0f), -INFINITY);
    EXPECT_TRUE(std::isnan(__qessLn(NAN)));
}

} // namespace
} // namespace brenn::test
