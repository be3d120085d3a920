// The complex rows computed element by element in extended precision (Cos, Sin, Tan,
// Cosh, Sinh, Tanh, the inverse functions, Log10): one kernel whatever the accuracy,
// results that do not depend on the caller's x87 precision and leave its control word as
// it was, and overflow and pole reports with the row's name at their index.
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "frame/fpenv.h"
#include "tests/vecmath/complex_util.h"

namespace brenn::test {
namespace {

const RowIndex kExtendedRows[] = {
    frame::Row_zCos,   frame::Row_zSin,  frame::Row_zCosh,  frame::Row_zSinh,  frame::Row_zAcos,
    frame::Row_zAsin,  frame::Row_zAtan, frame::Row_zAcosh, frame::Row_zAsinh, frame::Row_zAtanh,
    frame::Row_zLog10, frame::Row_cCos,  frame::Row_cSin,   frame::Row_cCosh,  frame::Row_cSinh,
    frame::Row_cAcos,  frame::Row_cAsin, frame::Row_cAtan,  frame::Row_cAcosh, frame::Row_cAsinh,
    frame::Row_cAtanh, frame::Row_cLog10};

// One kernel in the three slots; with the caller's x87 unit at double precision
// the results are those of extended precision, and the caller's word comes
// back.
TEST(ComplexExtended, OneKernelWhateverTheModeAndTheCallersPrecision) {
    std::vector<Z> a = {{0.5, 0.25}, {-3, 2}, {1e-3, -7}, {12, 0.5}, {0.3, 0.4}};
    for (RowIndex row : kExtendedRows) {
        EXPECT_EQ(CxRaw(row, frame::SlotLA), CxRaw(row, frame::SlotHA));
        EXPECT_EQ(CxRaw(row, frame::SlotEP), CxRaw(row, frame::SlotHA));
        if (row >= frame::Row_cCos && row <= frame::Row_cConj) continue;
        std::vector<Z> y(a.size()), w(a.size());
        As<Unary<Z>>(CxRaw(row, frame::SlotHA))(int(a.size()), a.data(), y.data());
        const uint16_t saved = frame::ReadX87ControlWord();
        const uint16_t doublePrecision = uint16_t((saved & ~0x300) | 0x200);
        frame::LoadX87ControlWord(doublePrecision);
        As<Unary<Z>>(CxRaw(row, frame::SlotHA))(int(a.size()), a.data(), w.data());
        EXPECT_EQ(frame::ReadX87ControlWord(), doublePrecision);
        frame::LoadX87ControlWord(saved);
        for (size_t i = 0; i < a.size(); ++i)
            EXPECT_TRUE(SameParts(y[i], w[i])) << frame::kRowInfo[row].name << " element " << i;
    }
}

// Finite parts with an infinite result are overflows of Cos, Sin, Cosh and
// Sinh, and Atanh's poles at +-1 singularities, reported at their index.
TEST(ComplexExtended, OverflowsAreReportedAtTheirIndex) {
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(RecordCxReport);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    struct Case {
        RowIndex row;
        Z big;
        const char* name;
        int code;
    } cases[] = {{frame::Row_zCosh, {800, 0.5}, "vzCosh", 3},
                 {frame::Row_zSinh, {-800, 0.5}, "vzSinh", 3},
                 {frame::Row_zCos, {0.5, 800}, "vzCos", 3},
                 {frame::Row_zSin, {0.5, -800}, "vzSin", 3},
                 {frame::Row_zAtanh, {-1, 0.0}, "vzAtanh", 2}};
    for (const Case& c : cases) {
        std::vector<Z> a(6, Z{0.5, 0.5}), y(6);
        a[4] = c.big;
        gCxReport = {};
        As<Unary<Z>>(CxRaw(c.row, frame::SlotHA))(6, a.data(), y.data());
        EXPECT_EQ(gCxReport.calls, 1) << c.name;
        EXPECT_EQ(gCxReport.index, 4);
        EXPECT_EQ(gCxReport.code, c.code);
        EXPECT_EQ(gCxReport.name, c.name);
        EXPECT_TRUE(std::isinf(y[4].re) && (c.code == 2 || std::isinf(y[4].im))) << c.name;
    }
    // single: finite in double, beyond the single range
    std::vector<C> a(3, C{100, 0.5f}), y(3);
    gCxReport = {};
    As<Unary<C>>(CxRaw(frame::Row_cCosh, frame::SlotLA))(3, a.data(), y.data());
    EXPECT_EQ(gCxReport.calls, 3);
    EXPECT_EQ(gCxReport.name, "vcCosh");
    brenn_zar_kernel_SetErrorCallBack(saved);
}

} // namespace
} // namespace brenn::test
