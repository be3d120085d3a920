// The power rows: Pow's special-value table cell by cell with its statuses (and Powr's
// domain), Pow's hard cases against the extended-precision library, Powx's dispatch on the
// bit pattern of b (the slot it reaches, the name a report carries, the general body one
// bit away), and the special values of the roots, Pow3o2 and Hypot.
#include <cfloat>
#include <cfenv>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>
#include <xmmintrin.h>

#include "frame/dispatch.h"
#include "tests/vecmath/kernels.h"
#include "vecmath/explog/explog_tables.h"
#include "vecmath/power/pow_body.h"
#include "vecmath/power/power_tables.h"

namespace brenn::test {
namespace {

using frame::RowIndex;

constexpr int kSlots[] = {frame::SlotLA, frame::SlotHA, frame::SlotEP};
const char* SlotName(int s) {
    return s == frame::SlotLA ? "LA" : s == frame::SlotHA ? "HA" : "EP";
}

BrennKernel Raw(RowIndex row, int slot) {
    return (&BrennDispatchTable[row].kernelLA)[slot];
}

// One element through a binary slot, with the status it leaves.
template <class T>
T Call2(RowIndex row, int slot, T a, T b, int* status) {
    brenn_zar_kernel_SetErrStatus(0);
    T y;
    As<Binary<T>>(Raw(row, slot))(1, &a, &b, &y);
    *status = brenn_zar_kernel_GetErrStatus();
    return y;
}
template <class T>
T Call1(RowIndex row, int slot, T a, int* status) {
    brenn_zar_kernel_SetErrStatus(0);
    T y;
    As<Unary<T>>(Raw(row, slot))(1, &a, &y);
    *status = brenn_zar_kernel_GetErrStatus();
    return y;
}

template <class T>
using PowxFn = void (*)(int, const T*, T, T*);
template <class T>
PowxFn<T> Powx(int slot) {
    return As<PowxFn<T>>(Raw(sizeof(T) == 4 ? frame::Row_sPowx : frame::Row_dPowx, slot));
}
// x^b through Pow (powx false) or Powx, with the status it leaves.
template <class T>
T CallPow(bool powx, int slot, T x, T b, int* status) {
    if (!powx)
        return Call2<T>(sizeof(T) == 4 ? frame::Row_sPow : frame::Row_dPow, slot, x, b, status);
    brenn_zar_kernel_SetErrStatus(0);
    T y;
    Powx<T>(slot)(1, &x, b, &y);
    *status = brenn_zar_kernel_GetErrStatus();
    return y;
}

constexpr double kInf = INFINITY;
const double kNaN = std::numeric_limits<double>::quiet_NaN();

// Pow's table: x, y, the result (NaN for any NaN), the status.
struct PowCase {
    double x, y, want;
    int status;
};
const PowCase kPowTable[] = {
    // NaN rules: x = 1 or y = 0 win over a NaN; other NaN cases give NaN, no status.
    {1, kNaN, 1, 0},
    {kNaN, 0, 1, 0},
    {kNaN, -0.0, 1, 0},
    {kNaN, 1, kNaN, 0},
    {2, kNaN, kNaN, 0},
    {1, kInf, 1, 0},
    {1, -kInf, 1, 0},
    {0, 0, 1, 0},
    {-kInf, 0, 1, 0},
    // Zeros: the sign only for a negative zero and an odd y; y below 0 is status 1.
    {0, 3, 0, 0},
    {-0.0, 3, -0.0, 0},
    {-0.0, 2, 0, 0},
    {-0.0, 0.5, 0, 0},
    {0, -1, kInf, 1},
    {-0.0, -1, -kInf, 1},
    {-0.0, -2, kInf, 1},
    {-0.0, -0.5, kInf, 1},
    {0, -kInf, kInf, 1},
    {-0.0, kInf, 0, 0},
    // x = -1 with an integer or infinite y.
    {-1, kInf, 1, 0},
    {-1, -kInf, 1, 0},
    {-1, 3, -1, 0},
    {-1, -4, 1, 0},
    {-1, 16777216.0, 1, 0},
    // A negative finite x with a finite non-integer y: NaN, status 1.
    {-8, 1.0 / 3, kNaN, 1},
    {-2, 0.5, kNaN, 1},
    {-1, 0.5, kNaN, 1},
    {-0.25, -2.5, kNaN, 1},
    // Infinities by the sign of y and |x| against 1.
    {2, kInf, kInf, 0},
    {0.5, kInf, 0, 0},
    {2, -kInf, 0, 0},
    {0.5, -kInf, kInf, 0},
    {-2, kInf, kInf, 0},
    {-0.5, -kInf, kInf, 0},
    {kInf, 2, kInf, 0},
    {kInf, -2, 0, 0},
    {-kInf, 3, -kInf, 0},
    {-kInf, 2, kInf, 0},
    {-kInf, 0.5, kInf, 0},
    {-kInf, -3, -0.0, 0},
    {-kInf, -2, 0, 0},
    // Negative x with integer y, and ordinary values.
    {-2, 3, -8, 0},
    {-2, 4, 16, 0},
    {-2, -3, -0.125, 0},
    {4, 0.5, 2, 0},
    {2, 10, 1024, 0},
};

template <class T>
void CheckPowTable() {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const RowIndex row = sizeof(T) == 4 ? frame::Row_sPow : frame::Row_dPow;
    for (int slot : kSlots)
        for (const PowCase& c : kPowTable) {
            int st;
            T got = Call2<T>(row, slot, T(c.x), T(c.y), &st);
            SCOPED_TRACE(std::string(SlotName(slot)) + " pow(" + std::to_string(c.x) + ", " +
                         std::to_string(c.y) + ")");
            EXPECT_TRUE(SameValue(got, T(c.want))) << got;
            EXPECT_EQ(st, c.status);
        }
}

TEST(Power, PowSpecialValuesCellByCell) {
    CheckPowTable<float>();
    CheckPowTable<double>();
}

// A signalling NaN comes out quiet, except where x = 1 or y = 0 make the result 1.
TEST(Power, PowSignallingNaN) {
    const float snanf = std::numeric_limits<float>::signaling_NaN();
    const double snan = std::numeric_limits<double>::signaling_NaN();
    for (int slot : kSlots) {
        int st;
        float f = Call2<float>(frame::Row_sPow, slot, snanf, 2.0f, &st);
        EXPECT_TRUE(std::isnan(f));
        EXPECT_TRUE(Bits(f) & 0x00400000u) << "quieted";
        EXPECT_EQ(Call2<float>(frame::Row_sPow, slot, snanf, 0.0f, &st), 1.0f);
        double d = Call2<double>(frame::Row_dPow, slot, 3.0, snan, &st);
        EXPECT_TRUE(Bits(d) & 0x0008000000000000ull) << "quieted";
        EXPECT_EQ(Call2<double>(frame::Row_dPow, slot, 1.0, snan, &st), 1.0);
    }
}

// Powr: Pow on x >= 0, NaN with status 1 for any negative x (integer y and y = 0 too).
TEST(Power, PowrDomain) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots) {
        int st;
        for (double x : {-2.0, -1.0, -kInf, -1e-30}) {
            for (double y : {2.0, 3.0, 0.0}) {
                EXPECT_TRUE(std::isnan(Call2<double>(frame::Row_dPowr, slot, x, y, &st)));
                EXPECT_EQ(st, 1);
                EXPECT_TRUE(
                    std::isnan(Call2<float>(frame::Row_sPowr, slot, float(x), float(y), &st)));
                EXPECT_EQ(st, 1);
            }
        }
        // -0 is +0: no odd sign.
        EXPECT_EQ(Call2<double>(frame::Row_dPowr, slot, -0.0, -3.0, &st), kInf);
        EXPECT_EQ(st, 1);
        EXPECT_EQ(Bits(Call2<double>(frame::Row_dPowr, slot, -0.0, 3.0, &st)), 0u);
        EXPECT_LE(UlpError(Call2<double>(frame::Row_dPowr, slot, 8.0, 1.0 / 3, &st),
                           powl(8.0L, (long double)(1.0 / 3))),
                  1.0);
    }
}

// Results beyond the range: infinity, zero or a denormal. The double rows report
// overflow (3) and underflow (4, a denormal result too); the single rows report nothing.
TEST(Power, PowOverflowAndUnderflowStatus) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    struct S {
        float x, y, r;
    };
    const S singles[] = {{10.0f, 40.0f, INFINITY},
                         {-10.0f, 41.0f, -INFINITY},
                         {10.0f, -50.0f, 0.0f},
                         {2.0f, -140.0f, 0x1p-140f}};
    struct D {
        double x, y, r;
        int st;
    };
    const D doubles[] = {
        {10.0, 400.0, kInf, 3},
        {-10.0, -401.0, -0.0, 4},
        {-2.0, 1025.0, -kInf, 3},
        {2.0, -1074.0, 0x1p-1074, 4}, // the least denormal
        {2.0, -1022.0, 0x1p-1022, 0}, // the least normal: no report
        {0.5, 1023.5, 0x1p-1023 * 0x1.6a09e667f3bcdp-1, 4},
        // Huge |y| beside x near 1: beyond any finite result either way.
        {1.0 + 0x1p-52, 0x1p1000, kInf, 3},
        {1.0 - 0x1p-53, 0x1p1000, 0.0, 4},
    };
    for (int slot : kSlots) {
        int st;
        for (bool powx : {false, true}) {
            for (const S& c : singles) {
                EXPECT_EQ(Bits(CallPow<float>(powx, slot, c.x, c.y, &st)), Bits(c.r));
                EXPECT_EQ(st, 0) << c.x << "^" << c.y;
            }
            for (const D& c : doubles) {
                const double r = CallPow<double>(powx, slot, c.x, c.y, &st);
                EXPECT_LE(UlpError(r, c.r), 1.0) << c.x << "^" << c.y;
                EXPECT_EQ(std::signbit(r), std::signbit(c.r));
                EXPECT_EQ(st, c.st) << c.x << "^" << c.y << " " << SlotName(slot) << powx;
            }
        }
    }
}

// The single rows' scalar routine on the lanes the body leaves to it: denormal x (scaled
// by 2^64, its exponent taken back), negative x with an integer y, results beyond the
// single range. One routine for the three slots: the same bits from each, within half an
// ulp (and a hair) of powl, infinity where the rounded value overflows, no status.
TEST(Power, SinglePowScalarValueAcrossTheRange) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::mt19937 gen(91);
    std::uniform_real_distribution<float> ry(-1.5f, 1.5f);
    std::vector<float> a, b;
    for (int i = 0; i < 120000; ++i) {
        const float d = vm::FloatOf(1 + gen() % 0x7FFFFFu); // a denormal
        switch (i % 3) {
        case 0: // results from overflow (y below about -0.86) to denormal (y above 1)
            a.push_back(d);
            b.push_back(ry(gen));
            break;
        case 1: // negative denormal, integer y
            a.push_back(-d);
            b.push_back(float(int(gen() % 7) - 3));
            break;
        default: // negative normal x, integer y
            a.push_back(-vm::FloatOf((gen() & 0x7FFFFFu) | ((1 + gen() % 254) << 23)));
            b.push_back(float(int(gen() % 121) - 60));
        }
    }
    std::vector<float> y[3];
    for (int slot : kSlots) {
        y[slot].resize(a.size());
        brenn_zar_kernel_SetErrStatus(0);
        As<Binary<float>>(Raw(frame::Row_sPow, slot))(int(a.size()), a.data(), b.data(),
                                                      y[slot].data());
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0) << SlotName(slot);
    }
    int overflowed = 0, denormal = 0;
    for (size_t i = 0; i < a.size(); ++i) {
        const float got = y[frame::SlotHA][i];
        ASSERT_EQ(Bits(y[frame::SlotLA][i]), Bits(got)) << a[i] << "^" << b[i];
        ASSERT_EQ(Bits(y[frame::SlotEP][i]), Bits(got)) << a[i] << "^" << b[i];
        if (b[i] == 0.0f || b[i] == 1.0f) continue;
        const long double ref = powl((long double)a[i], (long double)b[i]);
        if (fabsl(ref) >= (long double)0x1.ffffffp127) {
            ++overflowed;
            ASSERT_EQ(Bits(got), Bits(std::copysign(INFINITY, float(ref)))) << a[i] << "^" << b[i];
            continue;
        }
        if (fabsl(ref) < FLT_MIN) ++denormal;
        ASSERT_LE(UlpError(got, ref), 0.501) << a[i] << "^" << b[i];
        ASSERT_EQ(std::signbit(got), std::signbit(ref)) << a[i] << "^" << b[i];
    }
    EXPECT_GT(overflowed, 10000);
    EXPECT_GT(denormal, 10000);
    // The edges one at a time, with the flag each raises (0: none checked).
    struct E {
        float x, y, r;
        int flag;
    };
    const E edges[] = {
        {0x1p-149f, -1.0f, INFINITY, FE_OVERFLOW},     // 2^149
        {0x1p-149f, -0.5f, 0x1.6a09e6p+74f, 0},        // 2^74.5
        {0x1p-148f, 0.5f, 0x1p-74f, 0},                // exact
        {-0x1p-130f, -1.0f, -INFINITY, FE_OVERFLOW},   // -2^130
        {-0x1p-140f, 3.0f, -0.0f, FE_UNDERFLOW},       // -2^-420
        {0x1p-130f, 1.125f, 7 * 0x1p-149f, FE_UNDERFLOW}, // 2^-146.25, 6.73 * 2^-149
        {0x1.fffffep-127f, -1.03125f, INFINITY, FE_OVERFLOW}, // 2^129.9
    };
    for (const E& c : edges)
        for (int slot : kSlots) {
            int st;
            std::feclearexcept(FE_ALL_EXCEPT);
            const float r = Call2<float>(frame::Row_sPow, slot, c.x, c.y, &st);
            const int flags = std::fetestexcept(FE_ALL_EXCEPT);
            EXPECT_EQ(Bits(r), Bits(c.r)) << c.x << "^" << c.y << " " << SlotName(slot);
            EXPECT_EQ(st, 0);
            if (c.flag) EXPECT_TRUE(flags & c.flag) << c.x << "^" << c.y << " " << SlotName(slot);
        }
}

// Hard cases at HA, against the extended-precision powl: within one ulp.
TEST(Power, PowHardCasesWithinAnUlpAtHA) {
    const int ha = frame::SlotHA;
    int st;
    struct D {
        double x, y;
    };
    const D doubles[] = {
        {1.0000001, 0x1p30},
        {1.0 + 0x1p-52, 0x1p60},
        {1.0 - 0x1p-53, 0x1p59},
        {2.0, 1023.9999999999}, // just below the overflow threshold
        {0x1.fffffffffffffp1023, 0.99999999999},
        {2.0, -1074.4},                       // the last denormal
        {0.5, 1060.3},                        // deep in the denormals
        {3.0, -680.123456},                   // denormal result
        {7.0, -380.0},                        // near the underflow threshold
        {-1.0 - 0x1p-52, 9007199254740991.0}, // odd, 2^53 - 1
        {-1.0 - 0x1p-52, 9007199254740990.0}, // even
        {-0.9999999999999999, 4503599627370497.0},
        {-3.0, 645.0},
        {-3.0, -677.0},
        {0x1p-1074, 0.25}, // denormal x
        {0x1.8p-1070, -0.0625},
        {1e-310, 1.5},
    };
    for (const D& c : doubles) {
        double got = Call2<double>(frame::Row_dPow, ha, c.x, c.y, &st);
        long double want = powl((long double)c.x, (long double)c.y);
        EXPECT_LE(UlpError(got, want), 1.0) << c.x << " ^ " << c.y << " = " << got;
        EXPECT_EQ(st, std::fabs(got) < DBL_MIN ? 4 : 0); // a denormal result reports
    }
    struct F {
        float x, y;
    };
    const F singles[] = {
        {1.0000001f, 0x1p26f},
        {1.0000001f, 0x1p24f},
        {2.0f, 127.99999f},
        {2.0f, -149.3f},
        {0.5f, 140.5f},
        {-1.0000001f, 16777215.0f},
        {-1.0000001f, 16777214.0f},
        {0x1p-149f, 0.5f},
        {3.0f, -85.0f},
        {-3.0f, 80.0f},
        {0x1.002136p+0f, 0x1.534056p+17f}, // x near 1, |y ln x| near 88: the log's low
        {0x1.ff9928p-1f, -0x1.b5edfap+16f}, // parts count
    };
    for (const F& c : singles) {
        float got = Call2<float>(frame::Row_sPow, ha, c.x, c.y, &st);
        long double want = powl((long double)c.x, (long double)c.y);
        EXPECT_LE(UlpError(got, want), 1.0) << c.x << " ^ " << c.y << " = " << got;
    }
}

// The report's function name, for the dispatch test.
std::string gName;
int gCode = 0;
int RecordName(ErrorRecord* r) {
    gName.assign(r->functionName, size_t(r->functionNameLength));
    gCode = r->code;
    return 0;
}

struct CallbackScope {
    ModeScope mode{BRENN_MODE_ERRMODE_CALLBACK};
    ErrorCallback saved;
    CallbackScope() : saved(brenn_zar_kernel_SetErrorCallBack(RecordName)) {
        brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    }
    ~CallbackScope() { brenn_zar_kernel_SetErrorCallBack(saved); }
};

// Powx with b exactly 0.5 is the Sqrt slot of its level, bit for bit, and a report names
// Sqrt; one bit away it is the general body, which reports as Powx.
template <class T>
void CheckPowxHalf() {
    CallbackScope cb;
    const RowIndex sqrtRow = sizeof(T) == 4 ? frame::Row_sSqrt : frame::Row_dSqrt;
    const std::string t = sizeof(T) == 4 ? "s" : "d";
    std::vector<T> a;
    for (int k = 0; k < 37; ++k)
        a.push_back(T(0.37) * T(k) * T(k) + T(1e-3));
    a[9] = T(-4);
    for (int slot : kSlots) {
        std::vector<T> y(a.size()), ref(a.size());
        gName.clear();
        Powx<T>(slot)(int(a.size()), a.data(), T(0.5), y.data());
        EXPECT_EQ(gName, "v" + t + "Sqrt") << SlotName(slot);
        As<Unary<T>>(Raw(sqrtRow, slot))(int(a.size()), a.data(), ref.data());
        EXPECT_EQ(memcmp(y.data(), ref.data(), y.size() * sizeof(T)), 0) << SlotName(slot);
        const T off = std::nextafter(T(0.5), T(1));
        gName.clear();
        Powx<T>(slot)(int(a.size()), a.data(), off, y.data());
        EXPECT_EQ(gName, "v" + t + "Powx") << SlotName(slot);
        EXPECT_EQ(gCode, 1);
        const double tol = slot == frame::SlotEP ? (sizeof(T) == 4 ? 0x1p13 : 0x1p27) : 4.0;
        for (size_t i = 0; i < a.size(); ++i)
            if (a[i] > 0)
                EXPECT_LE(UlpError(y[i], powl((long double)a[i], (long double)off)), tol)
                    << SlotName(slot) << " " << a[i];
    }
}

TEST(Power, PowxHalfIsTheSqrtSlotAndOneBitAwayIsNot) {
    CheckPowxHalf<float>();
    CheckPowxHalf<double>();
}

// Every exponent of the dispatch table: the value and, for the slot calls, the name in
// the report; at HA only -1, 0.5, -0.5 and 1.5 leave the general body.
template <class T>
void CheckPowxTable() {
    CallbackScope cb;
    const std::string t = sizeof(T) == 4 ? "s" : "d";
    const T nan = std::numeric_limits<T>::quiet_NaN();
    struct E {
        T b;
        const char* name; // the row a zero input reports under below HA, "" for none
    };
    const E exps[] = {{T(0), ""},        {T(-0.0), ""},
                      {T(1), ""},        {T(2), ""},
                      {T(3), ""},        {T(5), ""},
                      {T(9), ""},        {T(-1), "Inv"},
                      {T(-2), "Inv"},    {T(-4), "Inv"},
                      {T(0.5), ""},      {T(-0.5), "InvSqrt"},
                      {T(1) / T(3), ""}, {T(-1) / T(3), "InvCbrt"},
                      {T(2) / T(3), ""}, {T(1.5), ""}};
    const T xs[] = {T(0.75), T(3), T(-2.5), T(1e-3), T(1000)};
    for (int slot : kSlots)
        for (const E& e : exps) {
            std::vector<T> a(xs, xs + 5), y(5);
            Powx<T>(slot)(5, a.data(), e.b, y.data());
            for (int i = 0; i < 5; ++i) {
                const long double x = a[i], b = e.b;
                long double want = powl(x, b);
                if (e.b == T(1) / T(3) || e.b == T(-1) / T(3) || e.b == T(2) / T(3)) {
                    if (slot != frame::SlotHA) { // the roots themselves
                        long double c = cbrtl(x);
                        want = e.b > T(0.5) ? c * c : e.b > 0 ? c : 1 / c;
                    }
                }
                SCOPED_TRACE(std::string(SlotName(slot)) + " x=" + std::to_string(double(x)) +
                             " b=" + std::to_string(double(b)));
                if (std::isnan(want))
                    EXPECT_TRUE(std::isnan(y[i]));
                else
                    EXPECT_LE(UlpError(y[i], want),
                              slot == frame::SlotEP ? (sizeof(T) == 4 ? 0x1p13 : 0x1p27) : 4.0);
            }
            // A zero input: a report from the slot the exponent reaches.
            const bool reached = slot != frame::SlotHA || e.b == T(-1) || e.b == T(-0.5);
            // The single InvCbrt kernels make no report.
            const bool silent = sizeof(T) == 4 && !strcmp(e.name, "InvCbrt");
            if (*e.name && reached && !silent) {
                T z = 0, r;
                gName.clear();
                Powx<T>(slot)(1, &z, e.b, &r);
                EXPECT_EQ(gName, "v" + t + e.name) << SlotName(slot) << " b=" << e.b;
            }
        }
    // b = 0 gives 1 for a NaN input; b = 1 copies the bits (a signalling NaN too), below HA.
    for (int slot : kSlots) {
        T in[3] = {nan, std::numeric_limits<T>::signaling_NaN(), T(-0.0)}, out[3];
        Powx<T>(slot)(3, in, T(0), out);
        for (T v : out)
            EXPECT_EQ(v, T(1));
        if (slot == frame::SlotHA) continue;
        Powx<T>(slot)(3, in, T(1), out);
        EXPECT_EQ(memcmp(in, out, sizeof in), 0);
    }
}

TEST(Power, PowxDispatchTable) {
    CheckPowxTable<float>();
    CheckPowxTable<double>();
}

// Single Pow EP and Powx EP are their stated steps in single: the split around 2/3, ln(1 + r)
// = r + r^2*Q(r) by Horner's rule (Pow: sLn LA's seven terms; Powx: a shorter six), k*ln2
// in two parts, the low one first; w = y*ln x; t = w*log2(e) + 1.5*2^23, r = w - n*ln2 and
// the cubic by Horner's rule, t's bits shifted up 23 added to its bits. |w| above
// 87.3007812 leaves the body.
uint32_t FloatBits(float x) {
    uint32_t b;
    std::memcpy(&b, &x, 4);
    return b;
}
float FloatOf(uint32_t b) {
    float x;
    std::memcpy(&x, &b, 4);
    return x;
}
float SinglePowEPLog(float x, bool powx) {
    static const float kQ7[] = {-0.5f,          0x1.555dcep-2f, -0x1.000c3ap-2f, 0x1.95f702p-3f,
                                -0x1.5126bp-3f, 0x1.5b70d6p-3f, -0x1.36d444p-3f};
    static const float kQ6[] = {-0.5f,         0x1.555a06p-2f,  -0x1.fe1e1ep-3f,
                                0x1.96c58p-3f, -0x1.84968cp-3f, 0x1.566a18p-3f};
    const uint32_t d = FloatBits(x) - 0x3F2AAAABu;
    const float k = float(int32_t(d) >> 23);
    const float r = FloatOf((d & 0x7FFFFFu) + 0x3F2AAAABu) - 1.0f;
    const float* q = powx ? kQ6 : kQ7;
    float h = q[powx ? 5 : 6];
    for (int i = powx ? 4 : 5; i >= 0; --i) {
        h = h * r;
        h = h + q[i];
    }
    const float r2 = r * r;
    const float p = r + r2 * h;
    const float lo = k * FloatOf(0x35BFBE8Eu), hi = k * FloatOf(0x3F317200u);
    return (lo + p) + hi;
}
bool InSinglePowEPBody(float x, float y) {
    if (!(x >= FLT_MIN && x <= FLT_MAX) || !std::isfinite(y)) return false;
    return (FloatBits(y * SinglePowEPLog(x, true)) & 0x7FFFFFFFu) <= 0x42AE9A00u;
}
float SinglePowEPSteps(float x, float y, bool powx) {
    const float w = y * SinglePowEPLog(x, powx);
    const float t = w * FloatOf(0x3FB8AA3Bu) + 12582912.0f;
    const float n = t - 12582912.0f;
    const float r = w - n * FloatOf(0x3F317218u);
    float e = FloatOf(0x3E2963ACu) * r;
    e = e + FloatOf(0x3F00F2D6u);
    e = e * r;
    e = e + FloatOf(0x3F8003DEu);
    e = e * r;
    e = e + 1.0f;
    return FloatOf((FloatBits(t) << 23) + FloatBits(e));
}

// 300000 pairs (x, y) for the single Pow bodies: x a random positive normal, y in
// [-30, 30], three in four divided by max(1, |ln x|) so that x^y stays mostly in range.
std::pair<std::vector<float>, std::vector<float>> RandomPowPairs(unsigned seed) {
    std::mt19937 gen(seed);
    std::uniform_real_distribution<float> ey(-30.0f, 30.0f);
    std::vector<float> a, b;
    for (int i = 0; i < 300000; ++i) {
        a.push_back(FloatOf((gen() & 0x7FFFFFu) | ((1 + gen() % 254) << 23)));
        b.push_back(i % 4 == 0 ? ey(gen) : ey(gen) / std::max(1.0f, std::fabs(std::log(a.back()))));
    }
    return {a, b};
}

TEST(Power, SinglePowAndPowxEPAreTheirStatedSteps) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    auto [a, b] = RandomPowPairs(77);
    // Near 1, at the split's ends (2/3 and 4/3) and binade edges.
    for (float x : {1.0f, 0x1.fffffep-1f, 0x1.000002p0f, 0x1.555554p-1f, 0x1.555556p-1f,
                    0x1.555554p0f, 0x1.555556p0f, 2.0f, 0.5f, FLT_MIN, FLT_MAX})
        for (float y : {1.0f, -1.0f, 3.5f, 0x1p-20f, 0.0f}) {
            a.push_back(x);
            b.push_back(y);
        }
    std::vector<float> y(a.size());
    As<Binary<float>>(Raw(frame::Row_sPow, frame::SlotEP))(int(a.size()), a.data(), b.data(),
                                                           y.data());
    int kept = 0;
    for (size_t i = 0; i < a.size(); ++i) {
        if ((FloatBits(b[i] * SinglePowEPLog(a[i], false)) & 0x7FFFFFFFu) > 0x42AE9A00u) continue;
        ++kept;
        ASSERT_EQ(FloatBits(y[i]), FloatBits(SinglePowEPSteps(a[i], b[i], false)))
            << "x=" << a[i] << " y=" << b[i];
    }
    EXPECT_GT(kept, 200000);
    // Powx: one b a call.
    for (float bx : {0.37f, -2.25f, 7.1f, -0.001f, 19.5f}) {
        std::vector<float> yx(a.size());
        Powx<float>(frame::SlotEP)(int(a.size()), a.data(), bx, yx.data());
        for (size_t i = 0; i < a.size(); ++i)
            if (InSinglePowEPBody(a[i], bx))
                ASSERT_EQ(FloatBits(yx[i]), FloatBits(SinglePowEPSteps(a[i], bx, true)))
                    << "x=" << a[i] << " b=" << bx;
    }
    // The window on w: 87.3007812 itself stays in the body; beyond it the scalar routine
    // gives the value to within an ulp (the body's cubic is 2^-12 off), with no status.
    int st;
    const float x = 2.0f, yw = FloatOf(0x42AE9A00u) / SinglePowEPLog(2.0f, false);
    for (float yy : {yw, std::nextafter(yw, 0.0f)})
        if ((FloatBits(yy * SinglePowEPLog(x, false)) & 0x7FFFFFFFu) <= 0x42AE9A00u)
            EXPECT_EQ(FloatBits(CallPow<float>(false, frame::SlotEP, x, yy, &st)),
                      FloatBits(SinglePowEPSteps(x, yy, false)));
    for (float yy : {126.5f, -126.5f, -140.0f}) {
        EXPECT_LE(UlpError(CallPow<float>(false, frame::SlotEP, x, yy, &st), powl(2.0L, yy)), 1.0)
            << yy;
        EXPECT_EQ(st, 0);
    }
    EXPECT_EQ(CallPow<float>(false, frame::SlotEP, x, 130.0f, &st), INFINITY);
    EXPECT_EQ(st, 0);
}

// Single Pow HA (and Powx's general body at HA) is its steps in double lanes: m in [1, 2)
// from the bits, the single estimate of 1/m widened and rounded to a multiple of 2^-10
// (q/1024), T = -ln(q/1024) from the row q - 512, r = m*q/1024 - 1, ln x = (k*ln2 + T) +
// (r + r^2*Q(r)), w = y*ln x held to [-200, 200], e^w by the table of 1024 with
// 1 + u + u^2/2, and the double narrowed once. The estimate is taken on this processor,
// as the kernel takes it. The double before the narrowing is checked too: the narrowing
// hides nearly every change of the logarithm's rows or polynomial.
double SinglePowHAWideSteps(float x, float y) {
    static const double kQ[] = {-0x1.ffffffffffe0dp-2, 0x1.555567ade28bap-2,
                                -0x1.00001153e4dc5p-2};
    const double kLn2 = 0x1.62e42fefa39efp-1, kShifter = 0x1.8p52;
    const uint32_t bx = FloatBits(x);
    const double k = double(int32_t(bx >> 23) - 127);
    const float m = FloatOf((bx & 0x7FFFFFu) | 0x3F800000u);
    const float e = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(m)));
    const double q = std::nearbyint(double(e) * 1024.0);
    const double r = double(m) * (q * 0x1p-10) - 1.0;
    const double h = k * kLn2 + vm::powRcpLn[int(q) - 512];
    const double t = (r * r) * ((kQ[2] * r + kQ[1]) * r + kQ[0]);
    double w = double(y) * (h + (r + t));
    w = std::max(std::min(w, 200.0), -200.0);
    const double n = w * 0x1.71547652b82fep+10 + kShifter;
    double u = w - (n - kShifter) * 0x1.62e42fefa39efp-11;
    uint64_t nb;
    std::memcpy(&nb, &n, 8);
    const int32_t ni = int32_t(uint32_t(nb));
    const double row = vm::expTable1024[ni & 1023];
    u = u + (u * u) * 0.5;
    double v = row + row * u;
    uint64_t vb;
    std::memcpy(&vb, &v, 8);
    vb += uint64_t(int64_t(ni >> 10)) << 52;
    std::memcpy(&v, &vb, 8);
    return v;
}
float SinglePowHASteps(float x, float y) {
    return float(SinglePowHAWideSteps(x, y));
}
uint64_t DoubleBits(double x) {
    uint64_t b;
    std::memcpy(&b, &x, 8);
    return b;
}

TEST(Power, SinglePowAndPowxHAAreTheirStatedSteps) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    auto [a, b] = RandomPowPairs(78);
    // Next to 1 with large |y| (the rows where k*ln2 + T vanishes), the binade edges,
    // the smallest and largest normals, and y that takes w past the window either way.
    for (float x : {1.0f, 0x1.fffffep-1f, 0x1.fffffcp-1f, 0x1.000002p0f, 0x1.000004p0f,
                    0x1.001p0f, 0x1.ffep-1f, 2.0f, 0.5f, 0x1.fffffep0f, FLT_MIN, FLT_MAX})
        for (float y : {1.0f, -1.0f, 3.5f, 0x1p-20f, 0.0f, 0x1p24f, -0x1p27f, 1e6f, 300.0f,
                        -300.0f, 1e30f}) {
            a.push_back(x);
            b.push_back(y);
        }
    while (a.size() % 4) {
        a.push_back(1.5f);
        b.push_back(2.0f);
    }
    for (size_t i = 0; i < a.size(); i += 4) {
        alignas(16) float m[4];
        alignas(16) int32_t k[4];
        alignas(16) double v[4];
        for (int l = 0; l < 4; ++l) {
            m[l] = FloatOf((FloatBits(a[i + l]) & 0x7FFFFFu) | 0x3F800000u);
            k[l] = int32_t(FloatBits(a[i + l]) >> 23) - 127;
        }
        __m128d lo, hi;
        vm::PowSingleHAWide(_mm_load_ps(m), vm::I32x4{_mm_load_si128((const __m128i*)k)},
                            _mm_loadu_ps(&b[i]), lo, hi);
        _mm_store_pd(v, lo);
        _mm_store_pd(v + 2, hi);
        for (int l = 0; l < 4; ++l)
            ASSERT_EQ(DoubleBits(v[l]), DoubleBits(SinglePowHAWideSteps(a[i + l], b[i + l])))
                << "x=" << a[i + l] << " y=" << b[i + l];
    }
    std::vector<float> y(a.size());
    As<Binary<float>>(Raw(frame::Row_sPow, frame::SlotHA))(int(a.size()), a.data(), b.data(),
                                                           y.data());
    for (size_t i = 0; i < a.size(); ++i)
        ASSERT_EQ(FloatBits(y[i]), FloatBits(SinglePowHASteps(a[i], b[i])))
            << "x=" << a[i] << " y=" << b[i];
    for (float bx : {0.37f, -2.25f, 7.1f, -0.001f, 19.5f}) {
        std::vector<float> yx(a.size());
        Powx<float>(frame::SlotHA)(int(a.size()), a.data(), bx, yx.data());
        for (size_t i = 0; i < a.size(); ++i)
            ASSERT_EQ(FloatBits(yx[i]), FloatBits(SinglePowHASteps(a[i], bx)))
                << "x=" << a[i] << " b=" << bx;
    }
    // Next to 1, where ln x is all in r: within 0.6 ulp of x^y, the limits without status.
    int st;
    for (float x : {0x1.fffffep-1f, 0x1.000002p0f, 0x1.fffff0p-1f, 0x1.00001p0f})
        for (float yy : {0x1p20f, -0x1p23f, 0x1.6p26f, -0x1.4p25f}) {
            const float got = CallPow<float>(false, frame::SlotHA, x, yy, &st);
            EXPECT_LE(UlpError(got, powl((long double)x, (long double)yy)), 0.6)
                << "x=" << x << " y=" << yy;
            EXPECT_EQ(st, 0);
        }
    EXPECT_EQ(CallPow<float>(false, frame::SlotHA, 2.0f, 130.0f, &st), INFINITY);
    EXPECT_EQ(st, 0);
    EXPECT_EQ(CallPow<float>(false, frame::SlotHA, 2.0f, -160.0f, &st), 0.0f);
    EXPECT_EQ(st, 0);
}

// Double Pow EP, its logarithm in two parts: near the ends of the range (|w| to 708) and
// with x next to 1 and |y| up to 2^50, within 2^-32 of x^y; Powx's general body gives the
// same bits.
TEST(Power, DoublePowEPKeepsTheLogarithmsLowPart) {
    std::mt19937_64 gen(3);
    std::uniform_real_distribution<double> u(0.0, 1.0);
    std::vector<double> a, b;
    for (int i = 0; i < 20000; ++i) {
        const double x = i % 2 ? 0.5 + 1.5 * u(gen) : 1.0 + (u(gen) - 0.5) * 0x1p-40;
        const double w = (u(gen) * 2.0 - 1.0) * 700.0;
        a.push_back(x);
        b.push_back(w / std::log(x));
    }
    std::vector<double> y(a.size());
    As<Binary<double>>(Raw(frame::Row_dPow, frame::SlotEP))(int(a.size()), a.data(), b.data(),
                                                           y.data());
    for (size_t i = 0; i < a.size(); ++i) {
        const long double want = powl((long double)a[i], (long double)b[i]);
        ASSERT_LE(fabsl((y[i] - want) / want), 0x1p-32L) << "x=" << a[i] << " y=" << b[i];
    }
    for (size_t i = 0; i < 64; ++i) {
        double v;
        Powx<double>(frame::SlotEP)(1, &a[i], b[i], &v);
        EXPECT_EQ(Bits(v), Bits(y[i])) << i;
    }
}

// The general body of single Powx against single Pow with b in every lane: a finite b
// that is not an integer (which leaves b untested in the lanes; flags the same too) and an
// infinite or NaN one, on long calls that mix ordinary x with every special kind; values
// and statuses the same.
TEST(Power, SinglePowxGeneralBodyMatchesPow) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    constexpr int n = 67;
    std::vector<float> a(n), bs(n), y(n), z(n);
    const float odd[] = {0.0f, -0.0f, INFINITY, -INFINITY, NAN, -2.5f, 1e-40f, 1.0f, -1.0f};
    for (int i = 0; i < n; ++i)
        a[i] = i % 5 == 0 ? odd[(i / 5) % 9] : 0.3f + 0.71f * float(i);
    for (float b : {2.75f, -1.25f, 0.1f, 41.5f, INFINITY, -INFINITY, NAN})
        for (int slot : kSlots) {
            for (float& v : bs)
                v = b;
            std::feclearexcept(FE_ALL_EXCEPT);
            Powx<float>(slot)(n, a.data(), b, y.data());
            const int fx = std::fetestexcept(FE_ALL_EXCEPT), sx = brenn_zar_kernel_GetErrStatus();
            brenn_zar_kernel_SetErrStatus(0);
            std::feclearexcept(FE_ALL_EXCEPT);
            As<Binary<float>>(Raw(frame::Row_sPow, slot))(n, a.data(), bs.data(), z.data());
            const int fp = std::fetestexcept(FE_ALL_EXCEPT), sp = brenn_zar_kernel_GetErrStatus();
            brenn_zar_kernel_SetErrStatus(0);
            // At EP Powx's logarithm is the shorter one: the lanes the body keeps differ.
            for (int i = 0; i < n; ++i)
                if (slot != frame::SlotEP || !InSinglePowEPBody(a[i], b))
                    EXPECT_TRUE(SameValue(y[i], z[i]))
                        << "b=" << b << " slot " << slot << " a=" << a[i];
            EXPECT_EQ(sx, sp) << "b=" << b;
            if (std::isfinite(b)) EXPECT_EQ(fx, fp) << "b=" << b << " slot " << slot;
        }
}

// The negative powers whose positive power overflows or is denormal still come out right.
TEST(Power, PowxNegativePowerAtTheRangeEnds) {
    for (int slot : kSlots) {
        // a^2 overflows (a denormal result), is denormal (a finite result), is normal.
        float a[3] = {3e19f, -1e-19f, 1e13f}, y[3];
        Powx<float>(slot)(3, a, -2.0f, y);
        for (int i = 0; i < 3; ++i)
            EXPECT_LE(UlpError(y[i], powl(a[i], -2.0L)), slot == frame::SlotEP ? 0x1p13 : 4.0);
        double d[3] = {-1e160, 1.2e-154, 3e-100}, e[3];
        Powx<double>(slot)(3, d, -2.0, e);
        for (int i = 0; i < 3; ++i)
            EXPECT_LE(UlpError(e[i], powl(d[i], -2.0L)), slot == frame::SlotEP ? 0x1p27 : 4.0);
    }
}

// An integer b that reaches the general body on negative x: those lanes are the scalar
// routine's (Pow's values bit for bit), |x|^b with x's sign for odd b, over whole rounds
// and a tail; beyond the range with its overflow and underflow statuses in double.
template <class T>
void CheckPowxIntegerOnNegatives() {
    std::vector<T> a(37);
    for (size_t i = 0; i < a.size(); ++i)
        a[i] = T(i % 3 ? -1 : 1) * T(0.3 + 0.41 * double(i));
    for (int slot : kSlots)
        for (T b : {T(2), T(10), T(11), T(-7)}) {
            std::vector<T> y(a.size());
            Powx<T>(slot)(int(a.size()), a.data(), b, y.data());
            for (size_t i = 0; i < a.size(); ++i) {
                SCOPED_TRACE(std::string(SlotName(slot)) + " x=" + std::to_string(double(a[i])) +
                             " b=" + std::to_string(double(b)));
                EXPECT_LE(UlpError(y[i], powl((long double)a[i], (long double)b)),
                          slot == frame::SlotEP ? (sizeof(T) == 4 ? 0x1p13 : 0x1p27) : 4.0);
                // Negative x, and at HA b = 2 (no special exponent there): Pow's value.
                int st;
                if (a[i] < 0 || (b == T(2) && slot == frame::SlotHA))
                    EXPECT_EQ(Bits(y[i]), Bits(CallPow<T>(false, slot, a[i], b, &st)));
            }
        }
    if constexpr (sizeof(T) == 8)
        for (int slot : kSlots) {
            int status;
            EXPECT_EQ(CallPow<T>(true, slot, T(-1e200), T(11), &status), -kInf);
            EXPECT_EQ(status, 3);
            T tiny = CallPow<T>(true, slot, T(-1e-40), T(11), &status);
            EXPECT_TRUE(tiny == 0 && std::signbit(tiny));
            EXPECT_EQ(status, 4);
            if (slot != frame::SlotHA) continue; // b = 2 below HA is the plain product
            EXPECT_EQ(CallPow<T>(true, slot, T(-1e200), T(2), &status), kInf);
            EXPECT_EQ(status, 3);
            EXPECT_EQ(CallPow<T>(true, slot, T(-1e-170), T(2), &status), T(0));
            EXPECT_EQ(status, 4);
        }
}

TEST(Power, PowxIntegerExponentOnNegativeX) {
    CheckPowxIntegerOnNegatives<float>();
    CheckPowxIntegerOnNegatives<double>();
}

// The single cube root over every binade of normals, both signs, at the ends and middle
// of each: the three remainders of the exponent and their scales, the largest and
// smallest exponents, within each level's bound (11 bits at EP).
TEST(Power, SingleCbrtOverEveryBinade) {
    for (int slot : kSlots) {
        const double tol = slot == frame::SlotEP ? 0x1p12 : slot == frame::SlotLA ? 4.0 : 1.0;
        int st;
        for (int e = -126; e <= 127; ++e)
            for (float m : {1.0f, 1.5f, 0x1.fffffep0f})
                for (float sign : {1.0f, -1.0f}) {
                    const float x = sign * std::ldexp(m, e);
                    EXPECT_LE(UlpError(Call1<float>(frame::Row_sCbrt, slot, x, &st),
                                       cbrtl((long double)x)),
                              tol)
                        << SlotName(slot) << " x=" << x;
                }
    }
}

// Single Cbrt EP is its fixed cubic in the significand, by Horner's rule in single, times
// the scale of the exponent's remainder, the exponent divided by 3 and the sign put on:
// bit for bit on random normals of every binade and at the ends of the range, in one
// long call. At 1.0 the cubic gives 1.0000505, not 1.
float CbrtEPSteps(float x) {
    uint32_t b;
    std::memcpy(&b, &x, 4);
    const int t = int((b >> 23) & 0xFF) - 127;
    const int j = ((t % 3) + 3) % 3, q = (t - j) / 3;
    const uint32_t mb = (b & 0x7FFFFFu) | 0x3F800000u;
    float m;
    std::memcpy(&m, &mb, 4);
    const float c3 = 0x1.7c2498p-6f, c2 = -0x1.4edfdp-3f, c1 = 0x1.2d1762p-1f,
                c0 = 0x1.1ac61p-1f;
    float p = c3 * m;
    p = p + c2;
    p = p * m;
    p = p + c1;
    p = p * m;
    p = p + c0;
    const float scale[] = {1.0f, 0x1.428a3p0f, 0x1.965feap0f};
    const float v = std::ldexp(p * scale[j], q);
    return std::copysign(v, x);
}

TEST(Power, SingleCbrtEPIsItsStatedCubic) {
    std::mt19937 gen(1234);
    std::vector<float> a;
    for (int i = 0; i < 300000; ++i) {
        uint32_t b = (gen() & 0x807FFFFFu) | ((1 + gen() % 254) << 23);
        float x;
        std::memcpy(&x, &b, 4);
        a.push_back(x);
    }
    for (float x : {1.0f, -1.0f, 8.0f, -8.0f, 2.0f, 4.0f, 0x1.fffffep0f, FLT_MIN, -FLT_MIN,
                    FLT_MAX, -FLT_MAX, 0x1.fffffep-126f})
        a.push_back(x);
    std::vector<float> y(a.size());
    As<Unary<float>>(Raw(frame::Row_sCbrt, frame::SlotEP))(int(a.size()), a.data(), y.data());
    for (size_t i = 0; i < a.size(); ++i)
        ASSERT_EQ(Bits(y[i]), Bits(CbrtEPSteps(a[i]))) << "x=" << a[i];
    int st;
    EXPECT_EQ(Call1<float>(frame::Row_sCbrt, frame::SlotEP, 1.0f, &st), 0x1.000352p0f);
}

// The double roots in long calls over every significand band of the seed and each
// exponent class modulo 3, where the step from the seed (|e| up to 2^-13) is widest:
// a fitted step that strays shows as ulps here, far above the kernels' 0.51 (HA) and
// 1.6 (LA, EP).
TEST(Power, DoubleRootsOverTheSeedRange) {
    constexpr int n = 3 * 2048;
    std::vector<double> a(n), y(n);
    for (int i = 0; i < n; ++i)
        a[i] = std::ldexp(1.0 + (i / 3) / 2048.0 + 0x1.3p-20 * (i % 7), i % 3 - 1 + 300 * (i % 2));
    struct Root {
        RowIndex row;
        long double (*want)(long double);
    };
    const Root roots[] = {
        {frame::Row_dCbrt, [](long double x) { return cbrtl(x); }},
        {frame::Row_dInvCbrt, [](long double x) { return 1 / cbrtl(x); }},
        {frame::Row_dPow2o3, [](long double x) { return cbrtl(x) * cbrtl(x); }},
    };
    for (const Root& r : roots)
        for (int slot : kSlots) {
            As<Unary<double>>(Raw(r.row, slot))(n, a.data(), y.data());
            const double tol = slot == frame::SlotHA ? 0.6 : 2.0;
            // Pow2o3 EP takes the fitted line: 27 correct bits (Cbrt's EP is its LA kernel,
            // InvCbrt's EP is HA's).
            const bool line = slot == frame::SlotEP && r.row == frame::Row_dPow2o3;
            for (int i = 0; i < n; ++i) {
                const long double want = r.want(a[i]);
                if (line)
                    ASSERT_LE(fabsl((y[i] - want) / want), 0x1p-27L)
                        << int(r.row) << " EP x=" << a[i];
                else
                    ASSERT_LE(UlpError(y[i], want), tol)
                        << int(r.row) << " " << SlotName(slot) << " x=" << a[i];
            }
        }
}

// The roots: exact cubes, signs, zeros and infinities, denormals, InvCbrt's pole (status
// 2 in double only), Pow2o3 even, Pow3o2's domain.
TEST(Power, RootsAtTheirSpecialValues) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots) {
        int st;
        // Exact cubes come out exact but at EP, whose seed gives about 13 bits.
        const double tol = slot == frame::SlotEP ? 0x1p13 : 0.0;
        EXPECT_LE(UlpError(Call1<float>(frame::Row_sCbrt, slot, -8.0f, &st), -2.0L), tol);
        // Double ones too, but at EP, whose line gives 27 bits (the denormals' scalar
        // routine runs HA's form).
        const double tolD = slot == frame::SlotEP ? 0x1p26 : 0.0;
        EXPECT_LE(UlpError(Call1<double>(frame::Row_dCbrt, slot, 27.0, &st), 3.0L), tolD);
        EXPECT_LE(UlpError(Call1<double>(frame::Row_dCbrt, slot, -0x1p-300, &st), -0x1p-100L), tolD);
        EXPECT_LE(UlpError(Call1<double>(frame::Row_dPow2o3, slot, -0x1p-300, &st), 0x1p-200L), tolD);
        EXPECT_EQ(Call1<double>(frame::Row_dCbrt, slot, 0x1p-1074, &st), 0x1p-358);
        EXPECT_EQ(Call1<double>(frame::Row_dInvCbrt, slot, 0x1p-1074, &st), 0x1p358);
        EXPECT_EQ(Call1<double>(frame::Row_dPow2o3, slot, -0x1p-1071, &st), 0x1p-714);
        EXPECT_LE(
            UlpError(Call1<float>(frame::Row_sCbrt, slot, -0x1p-149f, &st), -cbrtl(0x1p-149L)),
            1.0);
        for (double z : {0.0, -0.0, kInf, -kInf}) {
            EXPECT_TRUE(SameValue(Call1<double>(frame::Row_dCbrt, slot, z, &st), z));
            EXPECT_TRUE(SameValue(Call1<float>(frame::Row_sCbrt, slot, float(z), &st), float(z)));
            EXPECT_EQ(st, 0);
            EXPECT_TRUE(SameValue(Call1<double>(frame::Row_dPow2o3, slot, z, &st), z * z));
            EXPECT_EQ(st, 0);
            EXPECT_TRUE(SameValue(Call1<double>(frame::Row_dInvCbrt, slot, z, &st), 1 / z));
            EXPECT_EQ(st, z == 0 ? 2 : 0);
            EXPECT_TRUE(
                SameValue(Call1<float>(frame::Row_sInvCbrt, slot, float(z), &st), float(1 / z)));
            EXPECT_EQ(st, 0);
        }
        EXPECT_TRUE(std::isnan(Call1<double>(frame::Row_dCbrt, slot, kNaN, &st)));
        EXPECT_LE(UlpError(Call1<float>(frame::Row_sPow2o3, slot, -8.0f, &st), 4.0L), tol);
        EXPECT_EQ(Call1<double>(frame::Row_dPow3o2, slot, 4.0, &st), 8.0);
        for (double x : {-1.0, -kInf, -1e-30}) {
            EXPECT_TRUE(std::isnan(Call1<double>(frame::Row_dPow3o2, slot, x, &st)));
            EXPECT_EQ(st, 1);
            EXPECT_TRUE(std::isnan(Call1<float>(frame::Row_sPow3o2, slot, float(x), &st)));
            EXPECT_EQ(st, 1);
        }
        EXPECT_EQ(Bits(Call1<double>(frame::Row_dPow3o2, slot, -0.0, &st)), 0u);
        EXPECT_EQ(Call1<float>(frame::Row_sPow3o2, slot, 1e30f, &st), INFINITY);
        EXPECT_EQ(st, 0);
        EXPECT_LE(UlpError(Call1<double>(frame::Row_dPow3o2, slot, 1e-300, &st), 1e-450L), 1.0);
    }
}

// Double Hypot over long calls, so that the rounds of sixteen run: ordinary operands,
// rounds with one operand far out (2^-500, 2^70) or special, within each level's bound
// (26 bits at EP) everywhere.
TEST(Power, DoubleHypotInLongCalls) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    constexpr int n = 256;
    std::vector<double> a(n), b(n), y(n);
    for (int i = 0; i < n; ++i) {
        a[i] = (i % 7 - 3) * 1.37 + i * 0.011;
        b[i] = (i % 5 - 2) * 2.91 - i * 0.003;
    }
    a[40] = 0x1p-500, b[41] = 0x1p70, a[70] = kInf, b[71] = kNaN, a[100] = 1e-310;
    for (int slot : kSlots) {
        As<Binary<double>>(Raw(frame::Row_dHypot, slot))(n, a.data(), b.data(), y.data());
        const double tol = slot == frame::SlotEP ? 0x1p27 : slot == frame::SlotLA ? 4.0 : 1.0;
        for (int i = 0; i < n; ++i) {
            if (i == 70 || i == 71) {
                EXPECT_TRUE(i == 70 ? y[i] == kInf : std::isnan(y[i])) << SlotName(slot);
                continue;
            }
            EXPECT_LE(UlpError(y[i], hypotl(a[i], b[i])), tol) << SlotName(slot) << " i=" << i;
        }
    }
}

// Double Hypot HA where the smaller square matters most: z from x/2 to x, in long calls
// (rounds of sixteen on the plain range), in rounds with a lane beyond 2^400 (each register
// scaled by its larger operand's exponent) and near the ends of the plain range, within
// 0.53 ulp: the residual takes both squares exactly, so that z^2's rounding (up to 0.1 ulp
// at z = x) no longer shows.
TEST(Power, DoubleHypotHAWithComparableOperands) {
    std::mt19937_64 gen(23);
    std::uniform_real_distribution<double> unit(1.0, 2.0), ratio(0.5, 1.0);
    constexpr int n = 4096;
    for (double scale : {1.0, 0x1p-399, 0x1p398, 0x1p-900, 0x1p900}) {
        for (bool farLane : {false, true}) {
            std::vector<double> a(n), b(n), y(n);
            for (int i = 0; i < n; ++i) {
                a[i] = unit(gen) * scale * (i % 2 ? -1 : 1);
                b[i] = a[i] * ratio(gen) * (i % 3 ? 1 : -1);
                if (i % 4 == 3) std::swap(a[i], b[i]);
            }
            if (farLane)
                for (int i = 5; i < n; i += 16)
                    a[i] = 0x1p600;
            As<Binary<double>>(Raw(frame::Row_dHypot, frame::SlotHA))(n, a.data(), b.data(),
                                                                      y.data());
            for (int i = 0; i < n; ++i)
                ASSERT_LE(UlpError(y[i], hypotl(a[i], b[i])), 0.53)
                    << "a=" << a[i] << " b=" << b[i] << " scale=" << scale;
        }
    }
}

// Double Hypot EP takes its roots from single where a round's sums of squares all lie in
// single's range: sums on both sides of its ends (2^-125 and 2^127) and of the least and
// largest single, alone in a round and spread over it, keep the correction's 33 bits.
TEST(Power, DoubleHypotAcrossTheSingleRange) {
    constexpr int n = 64;
    const double edges[] = {0x1p-62, 0x1.6a09e667f3bcdp-63, 0x1p-63, 0x1p-75, 0x1p-62 * 1.5,
                            0x1p63,  0x1.6a09e667f3bcdp63,  0x1p64,  0x1p70,  0x1.fffffffffffffp62};
    for (double e : edges)
        for (int spread : {1, 7}) {
            std::vector<double> a(n), b(n), y(n);
            for (int i = 0; i < n; ++i) {
                a[i] = (i % 7 + 1) * 0.37;
                b[i] = (i % 3 - 1) * 1.13 + 0.25;
            }
            for (int i = 3; i < n; i += 16 / spread) {
                a[i] = e;
                b[i] = e * 0.75;
            }
            As<Binary<double>>(Raw(frame::Row_dHypot, frame::SlotEP))(n, a.data(), b.data(),
                                                                      y.data());
            for (int i = 0; i < n; ++i) {
                const long double want = hypotl(a[i], b[i]);
                EXPECT_LE(fabsl((y[i] - want) / want), 0x1p-33L) << "e=" << e << " i=" << i;
            }
        }
}

// Single Hypot EP and LA are Sqrt's refinement of rsqrtps(s), s = a*a + b*b in single: EP
// s*r; LA one Goldschmidt step (g = s*r, h = r/2, e = 0.5 - g*h, g + g*e). HA corrects
// sqrtps(s) once: r + c, c = (a^2 + b^2 - r^2) * (rsqrtps(s)/2) in double rounded to single.
// Bit for bit against that, with the processor's own estimate, on random pairs over many
// binades and at the ends of the range the body keeps.
float HypotSteps(float a, float b, int slot) {
    float s = a * a;
    s = s + b * b;
    const float q = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(s)));
    if (slot == frame::SlotEP) return s * q;
    if (slot == frame::SlotLA) {
        const float g = s * q, h = 0.5f * q;
        const float e = 0.5f - g * h;
        return g + g * e;
    }
    const float r = std::sqrt(s), h = q * 0.5f;
    const double sd = double(a) * double(a) + double(b) * double(b);
    const double d = sd - double(r) * double(r);
    return r + float(d * double(h));
}

TEST(Power, SingleHypotIsSqrtsRefinement) {
    std::mt19937 gen(99);
    std::uniform_real_distribution<float> m(-2.0f, 2.0f);
    std::uniform_int_distribution<int> ex(-60, 60);
    std::vector<float> a, b;
    for (int i = 0; i < 200000; ++i) {
        const int e = ex(gen);
        a.push_back(std::ldexp(m(gen), e));
        b.push_back(std::ldexp(m(gen), e + (i % 3 ? int(gen() % 30) - 15 : 0)));
    }
    // s at the ends of the normal range and at the last values below the top.
    for (float v : {0x1p-63f, 0x1.000002p-63f, 0x1.6a09e6p63f, 1.0f, 3.0f, 0x1.fffffep-1f})
        for (float w : {0.0f, 1e-30f, 0.5f, 4.0f}) {
            a.push_back(v);
            b.push_back(w * v);
        }
    std::vector<float> y(a.size());
    for (int slot : kSlots) {
        As<Binary<float>>(Raw(frame::Row_sHypot, slot))(int(a.size()), a.data(), b.data(),
                                                        y.data());
        for (size_t i = 0; i < a.size(); ++i) {
            const float s = a[i] * a[i] + b[i] * b[i];
            if (!(s >= FLT_MIN && s < 0x1.ffep127f)) continue; // the scalar routine's
            ASSERT_EQ(Bits(y[i]), Bits(HypotSteps(a[i], b[i], slot)))
                << SlotName(slot) << " a=" << a[i] << " b=" << b[i];
            // HA's one correction leaves it within a hair of correct rounding.
            if (slot == frame::SlotHA)
                ASSERT_LE(UlpError(y[i], hypotl(a[i], b[i])), 0.502)
                    << "a=" << a[i] << " b=" << b[i];
        }
    }
}

// Single Pow3o2 is x times Sqrt's refinement of r = rsqrtps(x): EP x*(x*r); LA x times one
// Goldschmidt step; HA two, h corrected in between, and the product in double, rounded
// once. Bit for bit against that on random positive normals of every binade; zeros and
// denormals are the scalar routine's (+0).
float Pow3o2Steps(float x, int slot) {
    const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x)));
    if (slot == frame::SlotEP) return x * (x * r);
    if (slot == frame::SlotLA) {
        const float g = x * r, h = 0.5f * r;
        const float e = 0.5f - g * h;
        return x * (g + g * e);
    }
    const double xd = x, rd = r;
    double g = xd * rd, h = 0.5 * rd;
    double e = 0.5 - g * h;
    const double g1 = g + g * e;
    h = h + h * e;
    g = g1;
    e = 0.5 - g * h;
    return float(xd * (g + g * e));
}

TEST(Power, SinglePow3o2IsXTimesSqrtsRefinement) {
    std::mt19937 gen(5);
    std::vector<float> a;
    for (int i = 0; i < 200000; ++i)
        a.push_back(FloatOf((gen() & 0x7FFFFFu) | ((1 + gen() % 254) << 23)));
    for (float x : {1.0f, 4.0f, 0x1.fffffep-1f, FLT_MIN, 0x1.ffep127f, 1e30f})
        a.push_back(x);
    std::vector<float> y(a.size());
    for (int slot : kSlots) {
        std::feclearexcept(FE_ALL_EXCEPT);
        As<Unary<float>>(Raw(frame::Row_sPow3o2, slot))(int(a.size()), a.data(), y.data());
        for (size_t i = 0; i < a.size(); ++i)
            ASSERT_EQ(Bits(y[i]), Bits(Pow3o2Steps(a[i], slot)))
                << SlotName(slot) << " x=" << a[i];
        int st;
        EXPECT_EQ(Bits(Call1<float>(frame::Row_sPow3o2, slot, 0.0f, &st)), 0u);
        EXPECT_EQ(st, 0);
        EXPECT_EQ(Bits(Call1<float>(frame::Row_sPow3o2, slot, 0x1p-130f, &st)), 0u); // 2^-195
        EXPECT_EQ(st, 0);
    }
}

// Double Pow3o2 LA and EP are x times Sqrt's chain from the rsqrtps estimate of x narrowed
// to single: g = x*r, e = 1 - g*r, s = g + g*e*(c1 + e*(c2 + e*(c3 + e*c4))); bit for bit
// on random x over [2^-126, 2^127), the chain's window; HA (the chain corrected) within
// 0.51 ulp there, and beyond the window the scalar routine's values.
TEST(Power, DoublePow3o2IsXTimesSqrtsChain) {
    std::mt19937_64 gen(11);
    std::vector<double> a;
    for (int i = 0; i < 200000; ++i) {
        uint64_t b = (gen() & 0x000FFFFFFFFFFFFFull) | (uint64_t(1023 - 126 + gen() % 253) << 52);
        double x;
        std::memcpy(&x, &b, 8);
        a.push_back(x);
    }
    for (double x : {0x1p-126, 0x1.fffffffffffffp126, 1.0, 2.0, 0x1p-127, 0x1p127, 1e-200, 1e200})
        a.push_back(x);
    std::vector<double> y(a.size());
    for (int slot : kSlots) {
        As<Unary<double>>(Raw(frame::Row_dPow3o2, slot))(int(a.size()), a.data(), y.data());
        for (size_t i = 0; i < a.size(); ++i) {
            const double x = a[i];
            const long double want = (long double)x * sqrtl((long double)x);
            if (slot == frame::SlotHA || !(x >= 0x1p-126 && x < 0x1p127)) {
                ASSERT_LE(UlpError(y[i], want), slot == frame::SlotHA ? 0.51 : 0.5) << "x=" << x;
                continue;
            }
            const double r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(float(x))));
            const double g = x * r;
            const double e = 1.0 - g * r;
            double p = 0.27343754675366555 * e;
            p = p + 0.31250016501874495;
            p = p * e;
            p = p + 0.37500000000001366;
            p = p * e;
            p = p + 0.49999999999997785;
            const double ge = g * e;
            const double s = g + ge * p;
            ASSERT_EQ(Bits(y[i]), Bits(x * s)) << SlotName(slot) << " x=" << x;
        }
    }
}

// Single Hypot HA where the squares are denormal in single but their sum is not: the
// residual that corrects the single root stays in double's range, within 0.55 ulp, in a
// long call and alone.
TEST(Power, SingleHypotWithDenormalSquares) {
    const float pairs[][2] = {{-9.9510894e-20f, 4.45072122e-20f}, {1.0e-19f, 1.0e-19f},
                              {7.7e-20f, -3.1e-21f},              {1.1e-15f, 2.0e-23f},
                              {3.3e-30f, 0.0f},                   {1.5e-22f, 8.0e-23f}};
    std::vector<float> a(64, 1.5f), b(64, 2.5f), y(64);
    for (int k = 0; k < 6; ++k)
        a[5 + 9 * k] = pairs[k][0], b[5 + 9 * k] = pairs[k][1];
    As<Binary<float>>(Raw(frame::Row_sHypot, frame::SlotHA))(64, a.data(), b.data(), y.data());
    for (int i = 0; i < 64; ++i)
        EXPECT_LE(UlpError(y[i], hypotl(a[i], b[i])), 0.55) << "a=" << a[i] << " b=" << b[i];
    for (const auto& p : pairs) {
        int st;
        const float v = Call2<float>(frame::Row_sHypot, frame::SlotHA, p[0], p[1], &st);
        EXPECT_LE(UlpError(v, hypotl(p[0], p[1])), 0.55) << "a=" << p[0] << " b=" << p[1];
    }
}

// Hypot: an infinity beats a NaN in either place, a NaN otherwise, +0 for two zeros,
// overflow and denormal results without a status.
TEST(Power, HypotSpecialValues) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots) {
        int st;
        for (double inf : {kInf, -kInf}) {
            EXPECT_EQ(Call2<double>(frame::Row_dHypot, slot, inf, kNaN, &st), kInf);
            EXPECT_EQ(Call2<double>(frame::Row_dHypot, slot, kNaN, inf, &st), kInf);
            EXPECT_EQ(Call2<float>(frame::Row_sHypot, slot, float(inf), NAN, &st), INFINITY);
            EXPECT_EQ(Call2<float>(frame::Row_sHypot, slot, NAN, float(inf), &st), INFINITY);
        }
        EXPECT_TRUE(std::isnan(Call2<double>(frame::Row_dHypot, slot, kNaN, 1.0, &st)));
        EXPECT_TRUE(std::isnan(Call2<float>(frame::Row_sHypot, slot, 1.0f, NAN, &st)));
        EXPECT_EQ(Bits(Call2<double>(frame::Row_dHypot, slot, -0.0, -0.0, &st)), 0u);
        EXPECT_EQ(Bits(Call2<float>(frame::Row_sHypot, slot, -0.0f, 0.0f, &st)), 0u);
        EXPECT_EQ(Call2<double>(frame::Row_dHypot, slot, DBL_MAX, DBL_MAX, &st), kInf);
        EXPECT_EQ(st, 0);
        EXPECT_EQ(Call2<float>(frame::Row_sHypot, slot, FLT_MAX, -FLT_MAX, &st), INFINITY);
        EXPECT_EQ(st, 0);
        EXPECT_EQ(Call2<double>(frame::Row_dHypot, slot, 3e-320, 4e-320, &st), 5e-320);
        EXPECT_LE(UlpError(Call2<double>(frame::Row_dHypot, slot, 0x1p1000, 0x1p1000, &st),
                           sqrtl(2) * 0x1p1000L),
                  1.0);
        EXPECT_EQ(Call2<float>(frame::Row_sHypot, slot, 3e-40f, -4e-40f, &st), 5e-40f);
        EXPECT_EQ(Call2<float>(frame::Row_sHypot, slot, 3e30f, 4e30f, &st), 5e30f);
        EXPECT_EQ(st, 0);
    }
}

} // namespace
} // namespace brenn::test
