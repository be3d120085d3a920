// Statistics entries given counts at and past their limits: dimensions whose scratch
// would pass the addressable range (the byte count wraps in 64 bits, some to a block of
// a few bytes), negative and zero counts in both index widths, and the observation
// count at the top of its type beside such a dimension. Each is refused with its status
// before any array is read or written: nothing stays allocated and the caller's small
// arrays keep their contents. Run under AddressSanitizer too, where a block sized by a
// wrapped count is overrun at the first write.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "platform/serv.h"
#include "tests/stats/basic_harness.h"

namespace brenn::test {
namespace {

constexpr int64_t kI64Max = std::numeric_limits<int64_t>::max();
constexpr int64_t kI64Min = std::numeric_limits<int64_t>::min();
constexpr int32_t kI32Max = std::numeric_limits<int32_t>::max();
constexpr int32_t kI32Min = std::numeric_limits<int32_t>::min();

// Dimensions whose byte counts pass the ceiling on every path of the basic compute,
// of minimum/maximum and of the conversion from sums: 2^59 and above. 0x0AAA...AB times
// 24 (an index and two doubles a variable) wraps to 8 bytes.
constexpr int64_t kHugeDimensions[] = {int64_t(1) << 59, (int64_t(1) << 60) + 3, int64_t(1) << 61,
                                       int64_t(1) << 62, 0x0AAAAAAAAAAAAAABll,   kI64Max};
// Dimensions whose matrices wrap: p * p passes 64 bits or nearly so. 2^32 is read
// whole from a 64-bit word, not as its low half 0.
constexpr int64_t kMatrixDimensions[] = {int64_t(1) << 32, (int64_t(1) << 31) + 1,
                                         int64_t(3) << 30};

template <typename T>
int32_t Minmax(void* task, uint64_t estimates, uint64_t method) {
    if constexpr (sizeof(T) == 8)
        return _qesdSSMinmax(task, estimates, method);
    else
        return _qessSSMinmax(task, estimates, method);
}

// A task of two variables and four observations with every array of the basic compute,
// minimum and maximum; its count words are changed in place between calls.
template <typename I, typename T>
struct SmallTask {
    I p = 2, n = 4, layout = BRENN_SS_MATRIX_STORAGE_COLS, full = BRENN_SS_MATRIX_STORAGE_FULL;
    static constexpr T kMark = T(-7.5);
    std::vector<T> x = std::vector<T>(8, T(1));
    std::vector<T> arrays[17], cov = std::vector<T>(4, kMark), cor = std::vector<T>(4, kMark),
                               cp = std::vector<T>(4, kMark), lo = std::vector<T>(2, kMark),
                               hi = std::vector<T>(2, kMark);
    T aw[2] = {T(4), T(4)};
    void* task = nullptr;
    SmallTask() {
        EXPECT_EQ(SsEntries<T>::newTask(&task, &p, &n, &layout, x.data(), nullptr, nullptr,
                                        sizeof(I) == 8 ? 1 : 0),
                  0);
        for (int k = 0; k < 17; ++k) {
            arrays[k].assign(2, kMark);
            SsEntries<T>::edit(task, kVectorIds[k], arrays[k].data());
        }
        SsEntries<T>::edit(task, BRENN_SS_ED_COV, cov.data());
        SsEntries<T>::edit(task, BRENN_SS_ED_COR, cor.data());
        SsEntries<T>::edit(task, BRENN_SS_ED_CP, cp.data());
        SsEntries<T>::edit(task, BRENN_SS_ED_MIN, lo.data());
        SsEntries<T>::edit(task, BRENN_SS_ED_MAX, hi.data());
        SsEntries<T>::edit(task, BRENN_SS_ED_ACCUM_WEIGHT, aw);
        _qesiSSEditTask(task, BRENN_SS_ED_COV_STORAGE, &full);
        _qesiSSEditTask(task, BRENN_SS_ED_COR_STORAGE, &full);
        _qesiSSEditTask(task, BRENN_SS_ED_CP_STORAGE, &full);
    }
    ~SmallTask() { _qesSSDeleteTask(&task); }
    bool Untouched() const {
        for (const auto& a : arrays)
            if (a != std::vector<T>(2, kMark)) return false;
        return cov == std::vector<T>(4, kMark) && cor == cov && cp == cov &&
               lo == std::vector<T>(2, kMark) && hi == lo && aw[0] == T(4) && aw[1] == T(4);
    }
};

// Runs call and expects `status`, no block left behind and nothing written.
template <typename I, typename T, typename Call>
void ExpectRefused(SmallTask<I, T>& t, int32_t status, Call call, const std::string& what) {
    const int64_t live = brenn_serv_live_allocations();
    EXPECT_EQ(call(), status) << what;
    EXPECT_EQ(brenn_serv_live_allocations(), live) << what;
    EXPECT_TRUE(t.Untouched()) << what;
}

// Every estimate group of the accumulating methods: vectors only, a matrix, a
// correlation and central sums that keep sums in the task between calls.
constexpr uint64_t kGroups[] = {BRENN_SS_MEAN | BRENN_SS_4R_MOM | BRENN_SS_KURTOSIS,
                                BRENN_SS_MEAN | BRENN_SS_COV, BRENN_SS_MEAN | BRENN_SS_COR,
                                BRENN_SS_MEAN | BRENN_SS_4C_SUM, BRENN_SS_MEAN | BRENN_SS_CP};
constexpr uint64_t kMatrixGroups[] = {BRENN_SS_MEAN | BRENN_SS_COV, BRENN_SS_MEAN | BRENN_SS_COR,
                                      BRENN_SS_MEAN | BRENN_SS_CP};
constexpr uint64_t kAccumulating[] = {BRENN_SS_METHOD_RAW_FIRST, BRENN_SS_METHOD_ONE_PASS,
                                      BRENN_SS_METHOD_ONE_PASS_B};

// Every accumulating method on every group of estimates gives `status`.
template <typename I, typename T, size_t N>
void ExpectAccumulatingRefused(SmallTask<I, T>& t, const uint64_t (&groups)[N], int32_t status,
                               const std::string& what) {
    for (uint64_t method : kAccumulating)
        for (uint64_t est : groups)
            ExpectRefused(
                t, status, [&] { return SsEntries<T>::basic(t.task, est, method, nullptr); },
                what + " method " + std::to_string(method) + " estimates " + std::to_string(est));
}

template <typename T>
void HugeDimensionsGiveTheAllocationStatus() {
    SmallTask<int64_t, T> t;
    for (int64_t p : kHugeDimensions) {
        t.p = p;
        const std::string at = "p=" + std::to_string(p);
        ExpectAccumulatingRefused(t, kGroups, -4000, at);
        for (uint64_t est : {BRENN_SS_MEAN | BRENN_SS_KURTOSIS, BRENN_SS_COV | BRENN_SS_COR})
            ExpectRefused(
                t, -4000,
                [&] {
                    return SsEntries<T>::basic(t.task, est, BRENN_SS_METHOD_FROM_SUMS, nullptr);
                },
                at + " from sums");
        ExpectRefused(
            t, -4000,
            [&] { return Minmax<T>(t.task, BRENN_SS_MIN | BRENN_SS_MAX, BRENN_SS_METHOD_FAST); },
            at + " minmax");
        // The observation count at its top changes nothing: the data is never reached.
        t.n = kI64Max;
        ExpectRefused(
            t, -4000,
            [&] {
                return SsEntries<T>::basic(t.task, BRENN_SS_MEAN, BRENN_SS_METHOD_ONE_PASS,
                                           nullptr);
            },
            at + " n at its top");
        ExpectRefused(
            t, -4000, [&] { return Minmax<T>(t.task, BRENN_SS_MAX, BRENN_SS_METHOD_FAST); },
            at + " minmax, n at its top");
        t.n = 4;
    }
    for (int64_t p : kMatrixDimensions) {
        t.p = p;
        ExpectAccumulatingRefused(t, kMatrixGroups, -4000, "matrix of p=" + std::to_string(p));
    }
}

TEST(StatsBadInput, HugeDimensionsGiveTheAllocationStatus) {
    HugeDimensionsGiveTheAllocationStatus<double>();
    HugeDimensionsGiveTheAllocationStatus<float>();
}

// With 32-bit words the largest dimension squares past 2^61: a matrix can't be made.
template <typename T>
void LargestThirtyTwoBitDimension() {
    SmallTask<int32_t, T> t;
    t.p = kI32Max;
    t.n = kI32Max;
    ExpectAccumulatingRefused(t, kMatrixGroups, -4000, "32-bit p");
}

TEST(StatsBadInput, LargestThirtyTwoBitDimension) {
    LargestThirtyTwoBitDimension<double>();
    LargestThirtyTwoBitDimension<float>();
}

// Counts at or below 0, and the lowest value of the word, in both index widths: the
// dimension's status and the observation count's, on every entry that reads them.
template <typename I, typename T>
void CountsAtOrBelowZero() {
    const I lows[] = {0, -1, sizeof(I) == 8 ? I(kI64Min) : I(kI32Min)};
    SmallTask<I, T> t;
    for (I low : lows) {
        const std::string at = "count " + std::to_string(int64_t(low));
        t.p = low;
        ExpectAccumulatingRefused(t, kGroups, -4001, at);
        ExpectRefused(
            t, -4001,
            [&] {
                return SsEntries<T>::basic(t.task, BRENN_SS_MEAN, BRENN_SS_METHOD_FROM_SUMS,
                                           nullptr);
            },
            at + " from sums");
        ExpectRefused(
            t, -4001, [&] { return Minmax<T>(t.task, BRENN_SS_MIN, BRENN_SS_METHOD_FAST); },
            at + " minmax");
        t.p = 2;
        t.n = low;
        ExpectAccumulatingRefused(t, kGroups, -4002, at);
        ExpectRefused(
            t, -4002, [&] { return Minmax<T>(t.task, BRENN_SS_MIN, BRENN_SS_METHOD_FAST); },
            at + " minmax");
        t.n = 4;
    }
}

TEST(StatsBadInput, CountsAtOrBelowZero) {
    CountsAtOrBelowZero<int64_t, double>();
    CountsAtOrBelowZero<int32_t, double>();
    CountsAtOrBelowZero<int64_t, float>();
    CountsAtOrBelowZero<int32_t, float>();
}

} // namespace
} // namespace brenn::test
