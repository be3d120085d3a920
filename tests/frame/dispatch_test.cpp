// The dispatch table at the boundary: 232 contiguous rows reachable by their exported
// row symbols, the cost views, the thunks' slots, the pack flag and the frame thunk.
// Test kernels are put into the (writable) table by the test and taken out again.
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <string>

#include <gtest/gtest.h>

#include "brenn_vecmath.h"

namespace {

struct RowName {
    const char* name;
    char share;
    float costs[3];
};

#define BRENN_SHARE_All 'A'
#define BRENN_SHARE_LaHa 'H'
#define BRENN_SHARE_LaEp 'E'
#define BRENN_SHARE_Own 'O'
const RowName kRows[] = {
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports)                                  \
    {#t #Fn, BRENN_SHARE_##Share, {cLA, cHA, cEP}},
#include "frame/rows.def"
#undef ROW
};

// Row addresses as the library exports them (not a program-local copy of one row).
DispatchRecord* Row(const std::string& name) {
    return static_cast<DispatchRecord*>(
        dlsym(RTLD_DEFAULT, ("brenn_zar_kernel_" + name + "_ttab").c_str()));
}

TEST(DispatchTable, RowsAreContiguousWithCostViewsBehindTheSlots) {
    ASSERT_EQ(sizeof(kRows) / sizeof(kRows[0]), 232u);
    DispatchRecord* first = Row("sCeil");
    ASSERT_NE(first, nullptr);
    for (int i = 0; i < 232; ++i) {
        std::string name = kRows[i].name;
        DispatchRecord* row = Row(name);
        ASSERT_EQ(row, first + i) << name;
        void* ctab = dlsym(RTLD_DEFAULT, ("brenn_zar_kernel_" + name + "_ctab").c_str());
        EXPECT_EQ(ctab, reinterpret_cast<char*>(row) + 3 * sizeof(void*)) << name;
        const float* costs = static_cast<const float*>(ctab);
        for (int s = 0; s < 3; ++s) {
            EXPECT_EQ(costs[s], kRows[i].costs[s]) << name;
            EXPECT_GT(costs[s], 0.0f) << name;
        }
    }
    EXPECT_FLOAT_EQ(first[0].costLA, 0.5f);
    EXPECT_FLOAT_EQ(Row("zMul")->costEP, 4.63f);
    EXPECT_FLOAT_EQ(Row("sSinpi")->costHA, 220.3f);
    EXPECT_FLOAT_EQ(Row("dFmod")->costLA, 220.3f);
    EXPECT_FLOAT_EQ(Row("zUnpackV")->costEP, 1111.0f);
}

TEST(DispatchTable, SharedSlotsHoldOneKernel) {
    int rows = 0, slots = 0;
    for (const RowName& r : kRows) {
        const DispatchRecord* row = Row(r.name);
        BrennKernel k[3] = {row->kernelLA, row->kernelHA, row->kernelEP};
        switch (r.share) {
        case 'A': EXPECT_TRUE(k[0] == k[1] && k[1] == k[2]) << r.name; break;
        case 'H': EXPECT_EQ(k[0], k[1]) << r.name; break;
        case 'E': EXPECT_EQ(k[0], k[2]) << r.name; break;
        default: break;
        }
        int present = (k[0] != nullptr) + (k[1] != nullptr) + (k[2] != nullptr);
        rows += present == 3;
        slots += present;
    }
    std::printf("rows with all three kernels: %d of 232; slots filled: %d of 696\n", rows, slots);
}

// The sharing pattern is part of the published table, not a choice of each family: a
// row listed as one kernel gets it in all three slots, a row listed as LA and HA (or LA
// and EP) sharing has exactly that pair equal, and every other row three kernels of its
// own. The lists stand here as published, so that a family that gives a row a kernel
// of its own per level (or merges two) fails here and not only in review.
TEST(DispatchTable, SharingFollowsThePublishedTable) {
    std::string all = " sCeil sFloor sFrac sNearbyInt sRint sRound sTrunc sAbs sSqr sExpm1 "
                      "sLGamma sTGamma sExp2 sExp10 sLogb dCeil dFloor dFrac dNearbyInt dRint "
                      "dRound dTrunc dAbs dInvCbrt dErfc dSqr dLGamma dTGamma dExp2 dExp10 dLogb "
                      "cCos cSin cTan cCosh cSinh cTanh cAcos cAsin cAtan cAcosh cAsinh cAtanh "
                      "cLog10 cConj zCos zSin zTan zCosh zSinh zTanh zAcos zAsin zAtan zAcosh "
                      "zAsinh zAtanh zLog10 zSqrt zConj cPow zPow cPowx zPowx sModf dModf "
                      "sLinearFrac dLinearFrac ";
    for (const char* t : {"s", "d"})
        for (const char* f : {"Add", "Sub", "Mul", "CopySign", "NextAfter", "Fdim", "Fmax",
                              "Fmin", "MaxMag", "MinMag", "Remainder", "Fmod"})
            all += std::string(t) + f + " ";
    for (const char* t : {"s", "d", "c", "z"})
        for (const char* f : {"PackI", "PackM", "PackV", "UnpackI", "UnpackM", "UnpackV"})
            all += std::string(t) + f + " ";
    const std::string laHa = " sExpInt1 dAtan dExpInt1 cDiv cAdd cSub cMul cMulByConj zDiv zAdd "
                             "zSub zMul zMulByConj ";
    const std::string laEp = " dInvSqrt dCbrt dLog10 dAsinh dSinh dTanh cExp cSqrt zExp ";
    auto listed = [](const std::string& list, const char* name) {
        return list.find(std::string(" ") + name + " ") != std::string::npos;
    };
    int counts[4] = {0, 0, 0, 0};
    for (const RowName& r : kRows) {
        char want = listed(all, r.name)    ? 'A'
                    : listed(laHa, r.name) ? 'H'
                    : listed(laEp, r.name) ? 'E'
                                           : 'O';
        EXPECT_EQ(r.share, want) << r.name;
        counts[want == 'A' ? 0 : want == 'H' ? 1 : want == 'E' ? 2 : 3]++;
        // Slots of different kernels are different functions.
        const DispatchRecord* row = Row(r.name);
        BrennKernel k[3] = {row->kernelLA, row->kernelHA, row->kernelEP};
        if (want != 'A' && want != 'H' && k[0] && k[1]) EXPECT_NE(k[0], k[1]) << r.name;
        if (want != 'A' && want != 'E' && k[0] && k[2]) EXPECT_NE(k[0], k[2]) << r.name;
        if (want != 'A' && k[1] && k[2]) EXPECT_NE(k[1], k[2]) << r.name;
    }
    EXPECT_EQ(counts[0], 116);
    EXPECT_EQ(counts[1], 13);
    EXPECT_EQ(counts[2], 9);
    EXPECT_EQ(counts[3], 94);
}

// Test kernels that say which slot the thunk took and what arguments arrived.
int lastSlot = -1, lastN = 0;
const void* lastA = nullptr;
int32_t lastFlag = 0;
BrennComplex16 lastScalar;
void* lastY = nullptr;

template <int Slot>
void UnaryProbe(int n, const float* a, float* y) {
    lastSlot = Slot;
    lastN = n;
    lastA = a;
    lastY = y;
}
template <int Slot>
void PackProbe(int64_t n, const float* a, int64_t increment, float* y, int32_t flag) {
    lastSlot = Slot;
    lastN = static_cast<int>(n);
    lastA = a;
    lastY = y;
    lastFlag = flag;
    (void)increment;
}
template <int Slot>
void PowxProbe(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y) {
    lastSlot = Slot;
    lastN = n;
    lastA = a;
    lastScalar = b;
    lastY = y;
}

// Installs three probes into a row for the test's duration.
struct Installed {
    DispatchRecord* row;
    DispatchRecord saved;
    Installed(const char* name, BrennKernel la, BrennKernel ha, BrennKernel ep) : row(Row(name)) {
        saved = *row;
        row->kernelLA = la;
        row->kernelHA = ha;
        row->kernelEP = ep;
    }
    ~Installed() { *row = saved; }
};

template <class F>
BrennKernel K(F f) {
    return reinterpret_cast<BrennKernel>(f);
}

TEST(Thunks, NamesFixTheSlotWhateverTheMode) {
    Installed probes("sInv", K(UnaryProbe<0>), K(UnaryProbe<1>), K(UnaryProbe<2>));
    float a[3], y[3];
    for (uint32_t accuracy : {1u, 2u, 3u}) {
        brenn_zar_kernel_SetMode(accuracy);
        _zarsInv_21(3, a, y);
        EXPECT_EQ(lastSlot, 0);
        _zarsInv(3, a, y);
        EXPECT_EQ(lastSlot, 1);
        _zarsInv_HA(3, a, y);
        EXPECT_EQ(lastSlot, 1);
        _zarsInv_11(3, a, y);
        EXPECT_EQ(lastSlot, 2);
        EXPECT_EQ(lastN, 3);
        EXPECT_EQ(lastA, a);
        EXPECT_EQ(lastY, y);
        // The front-end's way: the row's view indexed by the thread's level.
        BrennKernel chosen = (&Row("sInv")->kernelLA)[brenn_zar_kernel_GetTTableIndex()];
        reinterpret_cast<void (*)(int, const float*, float*)>(chosen)(1, a, y);
        EXPECT_EQ(lastSlot, static_cast<int>(accuracy) - 1);
    }
    brenn_zar_kernel_SetMode(2);
}

TEST(Thunks, DoubleNamesUseTheirOwnSuffixes) {
    Installed probes("dExp", K(UnaryProbe<0>), K(UnaryProbe<1>), K(UnaryProbe<2>));
    double v[1];
    auto call = [&](void (*f)(int, const double*, double*)) { f(1, v, v); };
    call(_zardExp_50);
    EXPECT_EQ(lastSlot, 0);
    call(_zardExp_HA);
    EXPECT_EQ(lastSlot, 1);
    call(_zardExp_26);
    EXPECT_EQ(lastSlot, 2);
}

TEST(Thunks, PackNamesPassFlagOne) {
    Installed probes("sPackI", K(PackProbe<0>), K(PackProbe<1>), K(PackProbe<2>));
    float a[4], y[4];
    _zarsPackI_21(4, a, 2, y, 77);
    EXPECT_EQ(lastFlag, 1);
    EXPECT_EQ(lastSlot, 0);
    _zarsPackI(4, a, 2, y, 0);
    EXPECT_EQ(lastFlag, 1);
    _zarsPackI_11(4, a, 2, y, -5);
    EXPECT_EQ(lastFlag, 1);
    EXPECT_EQ(lastSlot, 2);
    // A caller of the slot itself keeps its own flag.
    reinterpret_cast<void (*)(int64_t, const float*, int64_t, float*, int32_t)>(
        Row("sPackI")->kernelHA)(4, a, 2, y, 0);
    EXPECT_EQ(lastFlag, 0);
}

TEST(Thunks, DoubleComplexScalarExponentArrivesWhole) {
    Installed probes("zPowx", K(PowxProbe<0>), K(PowxProbe<1>), K(PowxProbe<2>));
    BrennComplex16 a[2] = {}, y[2] = {};
    _zarzPowx_50(2, a, BrennComplex16{1.25, -3.5}, y);
    EXPECT_EQ(lastSlot, 0);
    EXPECT_EQ(lastScalar.re, 1.25);
    EXPECT_EQ(lastScalar.im, -3.5);
    _zarzPowx_26(7, a, BrennComplex16{-0.0, 9.0}, y);
    EXPECT_EQ(lastSlot, 2);
    EXPECT_EQ(lastN, 7);
    EXPECT_EQ(lastScalar.im, 9.0);
    EXPECT_EQ(lastY, y);
}

} // namespace
