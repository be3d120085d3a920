// The requirement rules of the basic compute, estimate by estimate and method by method
// in both precisions: asked alone with exactly the arrays that its rule names, every
// estimate is delivered (fed in blocks, so what those arrays carry from call to call
// must be enough) and equals numpy's; with one of those arrays missing, the status
// names that array's position. A correlation fed in blocks joins its blocks whatever
// else is asked, and never through an array the caller did not ask for.
#include <gtest/gtest.h>

#include <string>

#include "tests/stats/basic_harness.h"

namespace brenn::test {
namespace {

// The arrays, as positions of the packed estimate set, that each estimate needs.
constexpr uint32_t kNeedsOnePass[20] = {0x1,    0x2,    0x4,     0x8,     0x13,    0x27,   0x4F,
                                        0x81,   0x101,  0x25F,   0x437,   0x813,   0x1000, 0x2000,
                                        0x4000, 0x8000, 0x10001, 0x20001, 0x40001, 0x80001};
constexpr uint32_t kNeedsRawFirst[20] = {0x1,    0x2,    0x4,     0x8,     0x13,    0x27,   0x4F,
                                         0x81,   0x101,  0x25F,   0x437,   0x813,   0x1000, 0x2000,
                                         0x4000, 0x8000, 0x10003, 0x20007, 0x4000F, 0x80001};
constexpr uint32_t kNothing = 1u << 20; // no array can hold it: sums aren't made from sums
constexpr uint32_t kNeedsFromSums[20] = {
    0x1001, 0x2002, 0x4004,   0x8008,   0x10010,  0x20020,  0x40040,  0x80080,  0x80100,  0x251,
    0x431,  0x811,  kNothing, kNothing, kNothing, kNothing, kNothing, kNothing, kNothing, kNothing};
constexpr int32_t kMissingStatus[21] = {-4006, -4007, -4008, -4009, -4010, -4011, -4012,
                                        -4018, -4019, -4013, -4014, -4017, -4074, -4075,
                                        -4076, -4077, -4078, -4079, -4080, -4081, -4029};
constexpr uint64_t kEstimateBit[20] = {
    BRENN_SS_MEAN,     BRENN_SS_2R_MOM,    BRENN_SS_3R_MOM, BRENN_SS_4R_MOM, BRENN_SS_2C_MOM,
    BRENN_SS_3C_MOM,   BRENN_SS_4C_MOM,    BRENN_SS_COV,    BRENN_SS_COR,    BRENN_SS_KURTOSIS,
    BRENN_SS_SKEWNESS, BRENN_SS_VARIATION, BRENN_SS_SUM,    BRENN_SS_2R_SUM, BRENN_SS_3R_SUM,
    BRENN_SS_4R_SUM,   BRENN_SS_2C_SUM,    BRENN_SS_3C_SUM, BRENN_SS_4C_SUM, BRENN_SS_CP};

struct Method {
    uint64_t word;
    const uint32_t* needs;
};
constexpr Method kAccumulating[] = {{BRENN_SS_METHOD_RAW_FIRST, kNeedsRawFirst},
                                    {BRENN_SS_METHOD_ONE_PASS, kNeedsOnePass},
                                    {BRENN_SS_METHOD_ONE_PASS_B, kNeedsOnePass}};
constexpr Method kFromSums[] = {{BRENN_SS_METHOD_FROM_SUMS_CP, kNeedsFromSums},
                                {BRENN_SS_METHOD_FROM_SUMS, kNeedsFromSums}};

template <typename T>
constexpr double kTol = sizeof(T) == 8 ? 1e-12 : 1e-5;
// Central values in single precision carry the rounding of the running mean at every
// block boundary: an ulp of the data, which for data far from 0 against their spread
// is a larger share of the deviations than in one call.
template <typename T>
constexpr double kCentralTol = sizeof(T) == 8 ? 1e-12 : 1e-4;

uint32_t Needs(const Method& m, uint64_t estimates) {
    uint32_t all = 0;
    for (int pos = 0; pos < 20; ++pos)
        if (estimates & kEstimateBit[pos]) all |= m.needs[pos];
    return all;
}

// The small reference cases without a common offset: every layout, weights and
// indices, one to a thousand observations, including single-observation blocks.
const std::vector<ReferenceCase>& Cases() {
    static const std::vector<ReferenceCase> cases = [] {
        std::vector<ReferenceCase> small;
        for (ReferenceCase& c : ReadReferenceCases(BRENN_STATS_REFERENCE))
            if (c.p <= 7 && c.n <= 1000 && (c.flags & 2) == 0) small.push_back(std::move(c));
        return small;
    }();
    return cases;
}

std::string Describe(const ReferenceCase& c, uint64_t method, uint64_t estimates) {
    return "p=" + std::to_string(c.p) + " n=" + std::to_string(c.n) +
           (c.layout == BRENN_SS_MATRIX_STORAGE_ROWS ? " rows" : " cols") +
           (c.weighted ? " weighted" : "") + (c.hasIndices ? " indices" : "") +
           " method=" + std::to_string(method) + " estimates=" + std::to_string(estimates);
}

template <typename T>
const std::vector<T>& ArrayAt(const Results<T>& r, int pos) {
    if (pos == kCovPosition) return r.cov;
    if (pos == kCorPosition) return r.cor;
    if (pos == kCpPosition) return r.cp;
    int k = 0;
    while (kVectorPositions[k] != pos)
        ++k;
    return r.vectors[k];
}

template <typename T>
bool AllUntouched(const Results<T>& r) {
    for (const auto& v : r.vectors)
        for (T e : v)
            if (e != T(kUntouched)) return false;
    for (const auto* m : {&r.cov, &r.cor, &r.cp})
        for (T e : *m)
            if (e != T(kUntouched)) return false;
    return true;
}

template <typename T>
void EachEstimateAloneWithItsArrays() {
    ASSERT_GT(Cases().size(), 20u);
    for (const Method& m : kAccumulating)
        for (const ReferenceCase& c : Cases())
            for (int pos = 0; pos < 20; ++pos) {
                const std::string what = Describe(c, m.word, kEstimateBit[pos]);
                Results<T> r;
                r.present = m.needs[pos];
                ASSERT_EQ(RunCase(c, m.word, nullptr, 2, r, kEstimateBit[pos]), 0) << what;
                ExpectMatches(c, r, kTol<T>, kCentralTol<T>, m.word == BRENN_SS_METHOD_RAW_FIRST,
                              what, m.needs[pos]);
            }
}

TEST(StatsBasicRequirements, EachEstimateAloneWithItsArrays) {
    EachEstimateAloneWithItsArrays<double>();
    EachEstimateAloneWithItsArrays<float>();
}

// The conversion methods read no observations: the arrays an estimate is made from
// hold numpy's values, and the estimate's own array starts untouched.
template <typename T>
int32_t RunFromSums(const ReferenceCase& c, uint64_t method, int pos, uint32_t present,
                    Results<T>& r) {
    const int64_t p = c.p;
    int64_t n = c.n;
    auto fill = [&](std::vector<T>& dst, const std::vector<double>& ref, int at) {
        if (at == pos || !InSet(present, at))
            dst.assign(ref.size(), T(kUntouched));
        else
            dst.assign(ref.begin(), ref.end());
    };
    for (int k = 0; k < 17; ++k)
        fill(r.vectors[k], c.vectors[k], kVectorPositions[k]);
    fill(r.cov, c.cov, kCovPosition);
    fill(r.cor, c.cor, kCorPosition);
    fill(r.cp, c.cp, kCpPosition);
    double W = 0, W2 = 0;
    for (int64_t i = 0; i < c.n; ++i) {
        double w = c.weighted ? c.w[i] : 1.0;
        W += w;
        W2 += w * w;
    }
    r.accumWeight[0] = T(W);
    r.accumWeight[1] = T(W2);
    void* task = nullptr;
    int32_t s = SsEntries<T>::newTask(&task, &p, &n, nullptr, nullptr, nullptr,
                                      c.hasIndices ? c.indices.data() : nullptr, 1);
    if (s != 0) return s;
    for (int k = 0; k < 17; ++k)
        if (InSet(present, kVectorPositions[k]))
            SsEntries<T>::edit(task, kVectorIds[k], r.vectors[k].data());
    if (InSet(present, kCovPosition)) SsEntries<T>::edit(task, BRENN_SS_ED_COV, r.cov.data());
    if (InSet(present, kCorPosition)) SsEntries<T>::edit(task, BRENN_SS_ED_COR, r.cor.data());
    if (InSet(present, kCpPosition)) SsEntries<T>::edit(task, BRENN_SS_ED_CP, r.cp.data());
    SsEntries<T>::edit(task, BRENN_SS_ED_ACCUM_WEIGHT, r.accumWeight);
    _qesiSSEditTask(task, BRENN_SS_ED_COV_STORAGE, &r.covStorage);
    _qesiSSEditTask(task, BRENN_SS_ED_COR_STORAGE, &r.corStorage);
    _qesiSSEditTask(task, BRENN_SS_ED_CP_STORAGE, &r.cpStorage);
    s = SsEntries<T>::basic(task, kEstimateBit[pos], method, nullptr);
    _qesSSDeleteTask(&task);
    return s;
}

template <typename T>
void EachEstimateFromItsSums() {
    for (const Method& m : kFromSums)
        for (const ReferenceCase& c : Cases())
            for (int pos = 0; pos < 20; ++pos) {
                const std::string what = Describe(c, m.word, kEstimateBit[pos]);
                Results<T> r;
                if (m.needs[pos] == kNothing) {
                    EXPECT_EQ(RunFromSums(c, m.word, pos, kAllPositions, r), -4029) << what;
                    continue;
                }
                ASSERT_EQ(RunFromSums(c, m.word, pos, m.needs[pos], r), 0) << what;
                ExpectMatches(c, r, kTol<T>, kCentralTol<T>, false, what, 1u << pos);
            }
}

TEST(StatsBasicRequirements, EachEstimateFromItsSums) {
    EachEstimateFromItsSums<double>();
    EachEstimateFromItsSums<float>();
}

// Without one of the arrays its rule names, an estimate gives the status of that
// array's position and writes nothing, whatever the method.
template <typename T>
void OneArrayMissingNamesItsPosition() {
    const ReferenceCase& c = Cases()[Cases().size() / 2];
    for (const Method& m :
         {kAccumulating[0], kAccumulating[1], kAccumulating[2], kFromSums[0], kFromSums[1]})
        for (int pos = 0; pos < 20; ++pos) {
            if (m.needs[pos] == kNothing) continue;
            for (int gone = 0; gone < 20; ++gone) {
                if (!InSet(m.needs[pos], gone)) continue;
                const std::string what =
                    Describe(c, m.word, kEstimateBit[pos]) + " without " + std::to_string(gone);
                const uint32_t present = m.needs[pos] & ~(1u << gone);
                Results<T> r;
                if (m.needs == kNeedsFromSums) {
                    EXPECT_EQ(RunFromSums(c, m.word, pos, present, r), kMissingStatus[gone])
                        << what;
                    const std::vector<T>& out = ArrayAt(r, pos);
                    EXPECT_EQ(out, std::vector<T>(out.size(), T(kUntouched))) << what;
                } else {
                    r.present = present;
                    EXPECT_EQ(RunCase(c, m.word, nullptr, 1, r, kEstimateBit[pos]),
                              kMissingStatus[gone])
                        << what;
                    EXPECT_TRUE(AllUntouched(r)) << what;
                }
            }
        }
}

TEST(StatsBasicRequirements, OneArrayMissingNamesItsPosition) {
    OneArrayMissingNamesItsPosition<double>();
    OneArrayMissingNamesItsPosition<float>();
}

// Correlation beside other estimates, fed in seven blocks, with every array of the task
// present: the covariance and the cross-product arrays, not asked for, stay untouched.
template <typename T>
void CorrelationJoinsBlocksBesideOtherEstimates() {
    const uint64_t sets[] = {BRENN_SS_COR, BRENN_SS_COR | BRENN_SS_MEAN,
                             BRENN_SS_COR | BRENN_SS_2R_MOM | BRENN_SS_VARIATION,
                             BRENN_SS_COR | BRENN_SS_SKEWNESS, BRENN_SS_COR | BRENN_SS_3R_SUM};
    for (const Method& m : kAccumulating)
        for (const ReferenceCase& c : Cases())
            for (uint64_t estimates : sets) {
                const std::string what = Describe(c, m.word, estimates);
                Results<T> r;
                ASSERT_EQ(RunCase(c, m.word, nullptr, 7, r, estimates), 0) << what;
                ExpectMatches(c, r, kTol<T>, kCentralTol<T>, m.word == BRENN_SS_METHOD_RAW_FIRST,
                              what, Needs(m, estimates));
                EXPECT_EQ(r.cov, std::vector<T>(r.cov.size(), T(kUntouched))) << what;
                EXPECT_EQ(r.cp, std::vector<T>(r.cp.size(), T(kUntouched))) << what;
            }
}

TEST(StatsBasicRequirements, CorrelationJoinsBlocksBesideOtherEstimates) {
    CorrelationJoinsBlocksBesideOtherEstimates<double>();
    CorrelationJoinsBlocksBesideOtherEstimates<float>();
}

// A task over the mean and correlation arrays only, fed one half of a case at a time.
template <typename T>
struct CorrelationOnly {
    int64_t p, half, layout = BRENN_SS_MATRIX_STORAGE_COLS, full = BRENN_SS_MATRIX_STORAGE_FULL;
    std::vector<T> x, mean, cor;
    T aw[2] = {0, 0};
    explicit CorrelationOnly(const ReferenceCase& c)
        : p(c.p), half(c.n / 2), x(c.x.begin(), c.x.end()), mean(c.p), cor(c.p * c.p) {}
    void* Task(int block) {
        void* task = nullptr;
        EXPECT_EQ(SsEntries<T>::newTask(&task, &p, &half, &layout, x.data() + block * half * p,
                                        nullptr, nullptr, 1),
                  0);
        SsEntries<T>::edit(task, BRENN_SS_ED_MEAN, mean.data());
        SsEntries<T>::edit(task, BRENN_SS_ED_COR, cor.data());
        SsEntries<T>::edit(task, BRENN_SS_ED_ACCUM_WEIGHT, aw);
        _qesiSSEditTask(task, BRENN_SS_ED_COR_STORAGE, &full);
        return task;
    }
    void Feed(void* task, int block) {
        SsEntries<T>::edit(task, BRENN_SS_ED_OBSERV, x.data() + block * half * p);
    }
};

// The scale that joins a correlation lives with the task that fed the former blocks. A
// task that did not feed them can't join its block and says so with nothing written;
// the task that did goes on as if nothing had happened.
template <typename T>
void CorrelationOfAnotherTaskIsNotJoined() {
    ReferenceCase c;
    for (const ReferenceCase& k : Cases())
        if (k.p == 7 && k.layout == BRENN_SS_MATRIX_STORAGE_COLS && !k.weighted && !k.hasIndices)
            c = k;
    ASSERT_EQ(c.n, 1000);
    for (const Method& m : kAccumulating) {
        CorrelationOnly<T> s(c);
        void* first = s.Task(0);
        ASSERT_EQ(SsEntries<T>::basic(first, BRENN_SS_COR, m.word, nullptr), 0);
        const std::vector<T> mean = s.mean, cor = s.cor;
        const T w = s.aw[0];
        void* other = s.Task(1);
        EXPECT_EQ(SsEntries<T>::basic(other, BRENN_SS_COR, m.word, nullptr), -4029) << m.word;
        EXPECT_EQ(s.mean, mean);
        EXPECT_EQ(s.cor, cor);
        EXPECT_EQ(s.aw[0], w);
        _qesSSDeleteTask(&other);

        s.Feed(first, 1);
        ASSERT_EQ(SsEntries<T>::basic(first, BRENN_SS_COR, m.word, nullptr), 0) << m.word;
        Results<T> r;
        r.cor = s.cor;
        r.accumWeight[0] = s.aw[0];
        ExpectMatches(c, r, kTol<T>, kCentralTol<T>, false, "joined", 1u << kCorPosition);
        _qesSSDeleteTask(&first);

        // Zero in accumWeight starts a new data set, which any task can do.
        s.aw[0] = s.aw[1] = 0;
        void* fresh = s.Task(1);
        EXPECT_EQ(SsEntries<T>::basic(fresh, BRENN_SS_COR, m.word, nullptr), 0) << m.word;
        EXPECT_EQ(s.aw[0], T(500));
        _qesSSDeleteTask(&fresh);
    }
}

TEST(StatsBasicRequirements, CorrelationOfAnotherTaskIsNotJoined) {
    CorrelationOfAnotherTaskIsNotJoined<double>();
    CorrelationOfAnotherTaskIsNotJoined<float>();
}

} // namespace
} // namespace brenn::test
