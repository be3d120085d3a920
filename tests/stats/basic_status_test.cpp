// Statuses of the basic compute and of minimum/maximum, each in the order the checks
// come: method word, requirements (lowest missing position), observations, storage
// words; and the out-of-memory path with nothing leaked.
#include <gtest/gtest.h>

#include <vector>

#include "brenn_stats.h"
#include "platform/serv.h"
#include "tests/support/support.h"

namespace {

constexpr uint64_t kEverything = 0x1FE0033FFull; // every estimate of the basic compute

// A task over 4 observations of 2 variables with every array of the basic compute.
struct Fixture {
    int64_t p = 2, n = 4, storage = BRENN_SS_MATRIX_STORAGE_COLS, full = 0;
    std::vector<double> x = {1, 2, 3, 5, 4, 1, 0, 7};
    std::vector<double> arrays[17];
    std::vector<double> cov = std::vector<double>(4), cor = std::vector<double>(4),
                        cp = std::vector<double>(4), minimum = {9, 9}, maximum = {-9, -9};
    double aw[2] = {0, 0};
    void* task = nullptr;
    static constexpr int64_t ids[17] = {7,  8,  9,  10, 11, 12, 13, 14, 15,
                                        18, 67, 68, 69, 70, 71, 72, 73};
    Fixture() {
        EXPECT_EQ(_qesdSSNewTask(&task, &p, &n, &storage, x.data(), nullptr, nullptr, 1), 0);
        for (int k = 0; k < 17; ++k)
            arrays[k].assign(2, 0.0);
        Attach(task);
    }
    // Points t at every array of the fixture.
    void Attach(void* t) {
        for (int k = 0; k < 17; ++k)
            _qesdSSEditTask(t, ids[k], arrays[k].data());
        _qesdSSEditTask(t, BRENN_SS_ED_COV, cov.data());
        _qesdSSEditTask(t, BRENN_SS_ED_COR, cor.data());
        _qesdSSEditTask(t, BRENN_SS_ED_CP, cp.data());
        _qesiSSEditTask(t, BRENN_SS_ED_COV_STORAGE, &full);
        _qesiSSEditTask(t, BRENN_SS_ED_COR_STORAGE, &full);
        _qesiSSEditTask(t, BRENN_SS_ED_CP_STORAGE, &full);
        _qesdSSEditTask(t, BRENN_SS_ED_MIN, minimum.data());
        _qesdSSEditTask(t, BRENN_SS_ED_MAX, maximum.data());
    }
    ~Fixture() { _qesSSDeleteTask(&task); }
    // Drops an array from the task by pointing a fresh task at everything but it.
    void Without(std::initializer_list<int> positions) {
        void* t = nullptr;
        _qesdSSNewTask(&t, &p, &n, &storage, x.data(), nullptr, nullptr, 1);
        for (int k = 0; k < 17; ++k) {
            bool drop = false;
            for (int id : positions)
                drop |= id == ids[k];
            if (!drop) _qesdSSEditTask(t, ids[k], arrays[k].data());
        }
        auto keep = [&](int id, double* a) {
            for (int d : positions)
                if (d == id) return;
            _qesdSSEditTask(t, id, a);
        };
        keep(BRENN_SS_ED_COV, cov.data());
        keep(BRENN_SS_ED_COR, cor.data());
        keep(BRENN_SS_ED_CP, cp.data());
        _qesiSSEditTask(t, BRENN_SS_ED_COV_STORAGE, &full);
        _qesiSSEditTask(t, BRENN_SS_ED_COR_STORAGE, &full);
        _qesiSSEditTask(t, BRENN_SS_ED_CP_STORAGE, &full);
        _qesSSDeleteTask(&task);
        task = t;
    }
    int32_t Basic(uint64_t estimates, uint64_t method) {
        return _qesdSSBasic(task, estimates, method, nullptr);
    }
};

TEST(StatsBasicStatus, MethodWord) {
    Fixture f;
    EXPECT_EQ(_qesdSSBasic(nullptr, BRENN_SS_MEAN, 0x2, nullptr), -4031);
    for (uint64_t bad : {0x0ull, 0x3ull, 0x101ull, 0x102ull, 0x201ull, 0x800ull, 0x10002ull})
        EXPECT_EQ(f.Basic(BRENN_SS_MEAN, bad), -4029) << bad;
    for (uint64_t good : {0x1ull, 0x2ull, 0x100ull})
        EXPECT_EQ(f.Basic(BRENN_SS_MEAN, good), 0) << good;
    // The method is looked at before the arrays.
    f.Without({BRENN_SS_ED_MEAN});
    EXPECT_EQ(f.Basic(BRENN_SS_MEAN, 0x3), -4029);
    EXPECT_EQ(f.Basic(BRENN_SS_MEAN, 0x2), -4006);
}

TEST(StatsBasicStatus, LowestMissingRequirementNamesTheStatus) {
    {
        Fixture f;
        f.Without({BRENN_SS_ED_4C_MOM});
        EXPECT_EQ(f.Basic(BRENN_SS_KURTOSIS, 0x2), -4012);
    }
    {
        Fixture f;
        f.Without({BRENN_SS_ED_4C_MOM, BRENN_SS_ED_2R_MOM});
        EXPECT_EQ(f.Basic(BRENN_SS_KURTOSIS, 0x2), -4007);
        EXPECT_EQ(f.Basic(BRENN_SS_SKEWNESS, 0x100), -4007);
        EXPECT_EQ(f.Basic(BRENN_SS_COV | BRENN_SS_MEAN, 0x100), 0);
    }
    {
        // Central sum 2 is formed from raw moment 2 under the raw-first method only.
        Fixture f;
        f.Without({BRENN_SS_ED_2R_MOM});
        EXPECT_EQ(f.Basic(BRENN_SS_2C_SUM, 0x1), -4007);
        EXPECT_EQ(f.Basic(BRENN_SS_2C_SUM, 0x2), 0);
    }
    {
        Fixture f;
        f.Without({BRENN_SS_ED_COR});
        EXPECT_EQ(f.Basic(BRENN_SS_COR | BRENN_SS_CP, 0x2), -4019);
        f.Without({BRENN_SS_ED_CP});
        EXPECT_EQ(f.Basic(BRENN_SS_CP, 0x2), -4081);
        EXPECT_EQ(f.Basic(BRENN_SS_MEAN | BRENN_SS_CP, 0x2), -4081);
    }
}

TEST(StatsBasicStatus, ConversionRequirements) {
    Fixture f;
    f.aw[0] = 4;
    f.aw[1] = 4;
    _qesdSSEditTask(f.task, BRENN_SS_ED_ACCUM_WEIGHT, f.aw);
    // Sums can't be made from sums; position 20 stands for "no array at all".
    EXPECT_EQ(f.Basic(BRENN_SS_SUM, 0x400), -4029);
    EXPECT_EQ(f.Basic(BRENN_SS_2C_SUM, 0x200), -4029);
    EXPECT_EQ(f.Basic(BRENN_SS_MEAN, 0x400), 0);
    EXPECT_EQ(f.Basic(BRENN_SS_MEAN, 0x600), 0);
    f.Without({BRENN_SS_ED_SUM});
    _qesdSSEditTask(f.task, BRENN_SS_ED_ACCUM_WEIGHT, f.aw);
    EXPECT_EQ(f.Basic(BRENN_SS_MEAN, 0x400), -4074); // the sum's position
    f.Without({BRENN_SS_ED_CP});
    _qesdSSEditTask(f.task, BRENN_SS_ED_ACCUM_WEIGHT, f.aw);
    EXPECT_EQ(f.Basic(BRENN_SS_COV, 0x400), -4081);
    // Without accumWeight the weights and the count must be there.
    Fixture g;
    EXPECT_EQ(g.Basic(BRENN_SS_MEAN, 0x400), -4020);
    std::vector<double> w = {1, 1, 1, 1};
    _qesdSSEditTask(g.task, BRENN_SS_ED_WEIGHTS, w.data());
    EXPECT_EQ(g.Basic(BRENN_SS_MEAN, 0x400), 0);
}

TEST(StatsBasicStatus, ObservationChecksComeAfterRequirements) {
    Fixture f;
    int64_t zero = 0, bad = 0x40000, both = 0x30000;
    _qesiSSEditTask(f.task, BRENN_SS_ED_OBSERV_N, &zero);
    f.Without({BRENN_SS_ED_MEAN});
    _qesiSSEditTask(f.task, BRENN_SS_ED_OBSERV_N, &zero);
    EXPECT_EQ(f.Basic(BRENN_SS_MEAN, 0x2), -4006);
    EXPECT_EQ(f.Basic(BRENN_SS_2R_MOM, 0x2), -4002);
    _qesiSSEditTask(f.task, BRENN_SS_ED_OBSERV_N, &f.n);

    void* t = nullptr;
    ASSERT_EQ(_qesdSSNewTask(&t, &f.p, nullptr, nullptr, nullptr, nullptr, nullptr, 1), 0);
    _qesdSSEditTask(t, BRENN_SS_ED_MEAN, f.arrays[0].data());
    EXPECT_EQ(_qesdSSBasic(t, BRENN_SS_MEAN, 0x2, nullptr), -4002);
    _qesiSSEditTask(t, BRENN_SS_ED_OBSERV_N, &f.n);
    EXPECT_EQ(_qesdSSBasic(t, BRENN_SS_MEAN, 0x2, nullptr), -4032);
    _qesdSSEditTask(t, BRENN_SS_ED_OBSERV, f.x.data());
    EXPECT_EQ(_qesdSSBasic(t, BRENN_SS_MEAN, 0x2, nullptr), -4044);
    _qesiSSEditTask(t, BRENN_SS_ED_OBSERV_STORAGE, &bad);
    EXPECT_EQ(_qesdSSBasic(t, BRENN_SS_MEAN, 0x2, nullptr), -4003);
    _qesiSSEditTask(t, BRENN_SS_ED_OBSERV_STORAGE, &both); // the rows bit wins
    EXPECT_EQ(_qesdSSBasic(t, BRENN_SS_MEAN, 0x2, nullptr), 0);
    _qesiSSEditTask(t, BRENN_SS_ED_DIMEN, &zero);
    EXPECT_EQ(_qesdSSBasic(t, BRENN_SS_MEAN, 0x2, nullptr), -4001);
    _qesSSDeleteTask(&t);
}

TEST(StatsBasicStatus, MatrixStorageWords) {
    Fixture f;
    void* t = nullptr;
    ASSERT_EQ(_qesdSSNewTask(&t, &f.p, &f.n, &f.storage, f.x.data(), nullptr, nullptr, 1), 0);
    _qesdSSEditTask(t, BRENN_SS_ED_MEAN, f.arrays[0].data());
    _qesdSSEditTask(t, BRENN_SS_ED_COV, f.cov.data());
    EXPECT_EQ(_qesdSSBasic(t, BRENN_SS_COV, 0x2, nullptr), -4044);
    int64_t unknown = 3;
    _qesiSSEditTask(t, BRENN_SS_ED_COV_STORAGE, &unknown);
    EXPECT_EQ(_qesdSSBasic(t, BRENN_SS_COV, 0x2, nullptr), -4003);
    _qesiSSEditTask(t, BRENN_SS_ED_COV_STORAGE, &f.full);
    EXPECT_EQ(_qesdSSBasic(t, BRENN_SS_COV, 0x2, nullptr), 0);
    _qesSSDeleteTask(&t);
}

// Every allocation failing in turn, over a task's whole life: what a compute keeps in
// the task (the sums behind a correlation fed in blocks) goes with the task.
TEST(StatsBasicStatus, OutOfMemoryFreesEverything) {
    Fixture f;
    for (uint64_t method : {0x1ull, 0x2ull, 0x100ull, 0x400ull}) {
        for (uint64_t est : {kEverything, uint64_t(BRENN_SS_MEAN | BRENN_SS_COR)}) {
            if (method == 0x400 && est == kEverything) continue; // sums aren't made from sums
            brenn::test::SweepAllocationFailures([&] {
                void* task = nullptr;
                int32_t s =
                    _qesdSSNewTask(&task, &f.p, &f.n, &f.storage, f.x.data(), nullptr, nullptr, 1);
                if (s == 0) {
                    f.Attach(task);
                    f.aw[0] = f.aw[1] = method == 0x400 ? 4 : 0;
                    _qesdSSEditTask(task, BRENN_SS_ED_ACCUM_WEIGHT, f.aw);
                    for (int call = 0; call < 2 && s == 0; ++call)
                        s = _qesdSSBasic(task, est, method, nullptr);
                    _qesSSDeleteTask(&task);
                }
                if (s != 0) EXPECT_EQ(s, -4000);
                return s == 0;
            });
        }
    }
}

TEST(StatsMinmaxStatus, ChecksInOrder) {
    Fixture f;
    EXPECT_EQ(_qesdSSMinmax(nullptr, BRENN_SS_MIN, 1), -4031);
    int64_t bad = 0x40000;
    _qesiSSEditTask(f.task, BRENN_SS_ED_OBSERV_STORAGE, &bad);
    EXPECT_EQ(_qesdSSMinmax(f.task, BRENN_SS_MIN, 0x100), -4003);
    _qesiSSEditTask(f.task, BRENN_SS_ED_OBSERV_STORAGE, &f.storage);
    void* t = nullptr;
    ASSERT_EQ(_qesdSSNewTask(&t, &f.p, &f.n, &f.storage, f.x.data(), nullptr, nullptr, 1), 0);
    EXPECT_EQ(_qesdSSMinmax(t, BRENN_SS_MIN | BRENN_SS_MAX, 0x100), -4015);
    _qesdSSEditTask(t, BRENN_SS_ED_MIN, f.minimum.data());
    EXPECT_EQ(_qesdSSMinmax(t, BRENN_SS_MIN | BRENN_SS_MAX, 0x100), -4016);
    _qesdSSEditTask(t, BRENN_SS_ED_MAX, f.maximum.data());
    EXPECT_EQ(_qesdSSMinmax(t, BRENN_SS_MIN | BRENN_SS_MAX, 0x100), -4029);
    EXPECT_EQ(_qesdSSMinmax(t, BRENN_SS_MIN | BRENN_SS_MAX, 0x1), 0);
    EXPECT_EQ(f.minimum, (std::vector<double>{0, 1}));
    EXPECT_EQ(f.maximum, (std::vector<double>{4, 7}));
    _qesSSDeleteTask(&t);
}

} // namespace
