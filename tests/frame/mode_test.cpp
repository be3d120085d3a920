// The mode word: the first-use parse of the environment (per thread), the field-wise
// SetMode rule, and the slot index functions.
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "brenn_vecmath.h"
#include "tests/support/support.h"

namespace {

constexpr const char* kVariable = "ZAR_SETTINGS";

// The word a new thread starts with under the given environment value (null: unset).
uint32_t FirstModeWith(const char* value) {
    if (value)
        setenv(kVariable, value, 1);
    else
        unsetenv(kVariable);
    uint32_t mode = 0;
    brenn::test::RunInThread([&] { mode = brenn_zar_kernel_GetMode(); });
    unsetenv(kVariable);
    return mode;
}

struct EnvCase {
    const char* value;
    uint32_t mode;
};

TEST(ModeEnvironment, ValidValuesFillMissingFields) {
    const EnvCase cases[] = {
        {nullptr, 0x1A02},
        {"ZAR_LA", 0x1A01},
        {"ZAR_HA", 0x1A02},
        {"ZAR_EP", 0x1A03},
        {"ZAR_ERRMODE_STDERR", 0x402},
        {"ZAR_DEFAULT_PRECISION", 0x1A02},
        {"ZAR_EP,ZAR_TRAP_OVERFLOW,ZAR_ERRMODE_NOERR", 0x4002003},
        {"ZAR_LA,ZAR_HA", 0x1A03}, // accumulation is a plain OR
        {"ZAR_FLOAT_CONSISTENT", 0x1A12},
        {"ZAR_DOUBLE_CONSISTEN", 0x1A22},
        {"ZAR_RESTORE,ZAR_LA", 0x1A31},
        {"ZAR_ERRMODE_IGNORE,ZAR_ERRMODE_ERRNO", 0x302},
        {"ZAR_ERRMODE_DEFAULT,ZAR_TRAP_INVALID,ZAR_TRAP_DIVBYZERO,ZAR_TRAP_UNDERFLOW", 0xB001A02},
    };
    for (const EnvCase& c : cases)
        EXPECT_EQ(FirstModeWith(c.value), c.mode) << (c.value ? c.value : "(unset)");
}

TEST(ModeEnvironment, AnyBadTokenGivesTheDefaultWord) {
    const char* bad[] = {
        "",
        "ZAR_LA,",                // trailing comma
        "zar_LA",                 // lower case
        "ZAR_LA ZAR_HA",          // blank
        "ZAR_LA, ZAR_HA",         // blank after the comma
        "ZAR_DOUBLE_CONSISTENT",  // the full word fails on its last letter
        "ZAR_UNKNOWN",
        "ZAR_",
        "ZA",
        "Z",
        "ZAR_LAX",
        "ZAR_LA,,ZAR_HA",
        "XAR_LA",
        "ZAR_TRAP_OVERFLOW,ZAR_BOGUS", // one bad token drops the good ones too
    };
    for (const char* value : bad) EXPECT_EQ(FirstModeWith(value), 0x1A02u) << value;
}

TEST(ModeEnvironment, LongValuesStopAtTheBufferBound) {
    // 36 tokens, 251 characters: every token ends inside the 256-byte buffer.
    std::string fits;
    for (int i = 0; i < 35; ++i) fits += "ZAR_LA,";
    fits += "ZAR_EP";
    ASSERT_EQ(fits.size(), 251u);
    EXPECT_EQ(FirstModeWith(fits.c_str()), 0x1A03u);

    // At 256 characters and beyond the value cannot be accepted, wherever it ends.
    for (size_t extra : {0, 1, 2, 5, 6, 7, 100, 5000}) {
        std::string longer;
        while (longer.size() < 256 + extra) longer += "ZAR_LA,";
        for (size_t cut : {256 + extra, 256 + extra + 1}) {
            std::string v = longer.substr(0, cut);
            if (v.back() == ',') v.pop_back();
            if (v.size() < 256) continue;
            EXPECT_EQ(FirstModeWith(v.c_str()), 0x1A02u) << "length " << v.size();
        }
    }
    std::string tail(300, 'Z');
    EXPECT_EQ(FirstModeWith(tail.c_str()), 0x1A02u);
}

TEST(ModeEnvironment, ParsedOncePerThreadAtFirstUse) {
    setenv(kVariable, "ZAR_LA", 1);
    uint32_t first = 0, later = 0;
    brenn::test::RunInThread([&] {
        first = brenn_zar_kernel_GetMode();
        setenv(kVariable, "ZAR_EP", 1); // read only once per thread
        later = brenn_zar_kernel_GetMode();
    });
    uint32_t other = 0;
    brenn::test::RunInThread([&] { other = brenn_zar_kernel_GetMode(); });
    unsetenv(kVariable);
    EXPECT_EQ(first, 0x1A01u);
    EXPECT_EQ(later, 0x1A01u);
    EXPECT_EQ(other, 0x1A03u); // a new thread reads the environment again
}

TEST(SetMode, ReplacesOnlyNonZeroFields) {
    brenn::test::RunInThread([] {
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1A02u);
        EXPECT_EQ(brenn_zar_kernel_SetMode(0), 0x1A02u);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1A02u);

        EXPECT_EQ(brenn_zar_kernel_SetMode(0x3), 0x1A02u);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1A03u);
        brenn_zar_kernel_SetMode(0x0400); // the whole error byte is replaced
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x0403u);
        brenn_zar_kernel_SetMode(0x280000);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x280403u);
        brenn_zar_kernel_SetMode(0x140000);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x140403u);
        brenn_zar_kernel_SetMode(0x05000000);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x05140403u);
        brenn_zar_kernel_SetMode(0x1); // traps stay until replaced by another set
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x05140401u);
        brenn_zar_kernel_SetMode(0x08000000);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x08140401u);
    });
}

TEST(SetMode, DropsUnknownBitsAndNeverWritesPrecisionBits) {
    brenn::test::RunInThread([] {
        brenn_zar_kernel_SetMode(0xF00000F0u | 0x00030000u | 0x1); // bits outside the fields
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1A01u);
    });
    setenv(kVariable, "ZAR_FLOAT_CONSISTENT", 1);
    brenn::test::RunInThread([] {
        brenn_zar_kernel_SetMode(0x30);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1A12u); // from the environment only
    });
    unsetenv(kVariable);
}

TEST(SetMode, AccuracyIsNotRangeChecked) {
    brenn::test::RunInThread([] {
        for (uint32_t accuracy = 1; accuracy <= 15; ++accuracy) {
            brenn_zar_kernel_SetMode(accuracy);
            EXPECT_EQ(brenn_zar_kernel_GetTTableIndex(), static_cast<int32_t>(accuracy) - 1);
        }
        EXPECT_EQ(brenn_zar_kernel_GetTTableIndexM(12345, 0x1A00), -1);
        EXPECT_EQ(brenn_zar_kernel_GetTTableIndexM(0, 0x1A03), 2);
        EXPECT_EQ(brenn_zar_kernel_GetTTableIndexM(0xFFFFFFFF, 0xFFFFFFF1), 0);
    });
}

TEST(SetMode, ForwardingNamesAndThreadIndependence) {
    brenn::test::RunInThread([] {
        EXPECT_EQ(_zarSetMode(0x1), 0x1A02u);
        EXPECT_EQ(_zarGetMode(), 0x1A01u);
        uint32_t other = 0;
        brenn::test::RunInThread([&] {
            brenn_zar_kernel_SetMode(0x2003);
            other = brenn_zar_kernel_GetMode();
        });
        EXPECT_EQ(other, 0x2003u);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1A01u);
    });
}

} // namespace
