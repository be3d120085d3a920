// The task record and its editors: creation checks in order, what deletion frees, the
// id rules of the general editors and the thin editors' null handling.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "brenn_stats.h"
#include "platform/serv.h"
#include "stats/task.h"
#include "tests/support/support.h"

namespace {

struct TaskGuard {
    void* task = nullptr;
    ~TaskGuard() {
        if (task != nullptr) _qesSSDeleteTask(&task);
    }
};

TEST(StatsNewTask, ChecksComeInOrder) {
    double x[4] = {1, 2, 3, 4};
    int32_t p = 2, n = 2, storage = BRENN_SS_MATRIX_STORAGE_COLS, bad = 7, zero = 0;
    void* task = reinterpret_cast<void*>(1);
    // The dimension is checked before anything else, even a bad storage word.
    EXPECT_EQ(_qesdSSNewTask(&task, nullptr, &n, &bad, x, nullptr, nullptr, 0), -4001);
    EXPECT_EQ(_qesdSSNewTask(&task, &zero, &n, &bad, x, nullptr, nullptr, 0), -4001);
    EXPECT_EQ(_qesdSSNewTask(&task, &p, nullptr, nullptr, x, nullptr, nullptr, 0), -4044);
    EXPECT_EQ(_qesdSSNewTask(&task, &p, nullptr, &bad, x, nullptr, nullptr, 0), -4003);
    EXPECT_EQ(_qesdSSNewTask(&task, &p, nullptr, &storage, x, nullptr, nullptr, 0), -4002);
    EXPECT_EQ(_qesdSSNewTask(&task, &p, &zero, &storage, x, nullptr, nullptr, 0), -4002);
    EXPECT_EQ(task, reinterpret_cast<void*>(1)); // failures leave the handle alone
}

TEST(StatsNewTask, NullObservationsSkipCountAndStorage) {
    int32_t p = 3;
    TaskGuard g;
    EXPECT_EQ(_qesdSSNewTask(&g.task, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0), 0);
    ASSERT_NE(g.task, nullptr);
}

TEST(StatsNewTask, IndexWidthChoosesHowWordsAreRead) {
    // 64-bit words: 2^32 is a legal dimension, not a 0 in the low half.
    int64_t big = int64_t(1) << 32, n = 1, storage = BRENN_SS_MATRIX_STORAGE_ROWS;
    double x[1] = {0};
    TaskGuard g;
    EXPECT_EQ(_qesdSSNewTask(&g.task, &big, &n, &storage, x, nullptr, nullptr, 1), 0);
    // 32-bit words are sign-extended: 0xFFFFFFFF is -1.
    uint32_t minus = 0xFFFFFFFFu;
    void* t2 = nullptr;
    EXPECT_EQ(_qessSSNewTask(&t2, &minus, nullptr, nullptr, nullptr, nullptr, nullptr, 0), -4001);
    // The same 64-bit word read as 32 bits is 0 in its low half.
    EXPECT_EQ(_qesdSSNewTask(&t2, &big, &n, &storage, x, nullptr, nullptr, 0), -4001);
}

TEST(StatsNewTask, AllocationFailureLeavesHandleNull) {
    int32_t p = 1;
    brenn::test::SweepAllocationFailures([&] {
        void* task = nullptr;
        int32_t s = _qessSSNewTask(&task, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
        if (s != 0) {
            EXPECT_EQ(s, -4000);
            EXPECT_EQ(task, nullptr);
            return false;
        }
        _qesSSDeleteTask(&task);
        return true;
    });
}

TEST(StatsDeleteTask, NullAddressAndHandleCleared) {
    EXPECT_EQ(_qesSSDeleteTask(nullptr), -4031);
    int32_t p = 1;
    void* task = nullptr;
    int64_t before = brenn_serv_live_allocations();
    ASSERT_EQ(_qesdSSNewTask(&task, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0), 0);
    EXPECT_EQ(_qesSSDeleteTask(&task), 0);
    EXPECT_EQ(task, nullptr);
    EXPECT_EQ(brenn_serv_live_allocations(), before);
}

int hookCalls = 0;
void Hook(brenn::stats::SSTask* task) {
    ++hookCalls;
    brenn_serv_deallocate(task->streamState);
    task->streamState = nullptr;
}

// What compute functions leave in a task goes with it: the private buffer, and what
// the clean-up hook frees.
TEST(StatsDeleteTask, FreesPrivateBufferAndRunsTheHook) {
    int32_t p = 2;
    void* handle = nullptr;
    int64_t before = brenn_serv_live_allocations();
    ASSERT_EQ(_qessSSNewTask(&handle, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0), 0);
    auto* task = static_cast<brenn::stats::SSTask*>(handle);
    EXPECT_EQ(task->taskTag, 2);
    EXPECT_EQ(task->isDouble, 0);
    task->privateBuffer = brenn_serv_allocate(64, 128);
    task->streamState = brenn_serv_allocate(64, 128);
    task->cleanup = Hook;
    task->cleanupCount = 1;
    EXPECT_EQ(_qesSSDeleteTask(&handle), 0);
    EXPECT_EQ(hookCalls, 1);
    EXPECT_EQ(brenn_serv_live_allocations(), before);
}

TEST(StatsEditTask, NullTaskAndIdRanges) {
    double a = 0;
    EXPECT_EQ(_qesdSSEditTask(nullptr, 7, &a), -4031);
    EXPECT_EQ(_qesiSSEditTask(nullptr, 1, &a), -4031);
    int32_t p = 1;
    TaskGuard g;
    ASSERT_EQ(_qesdSSNewTask(&g.task, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0), 0);
    for (int64_t id : {int64_t(0), int64_t(1), int64_t(2), int64_t(79), int64_t(80), int64_t(-1),
                       (int64_t(1) << 32) + 7}) {
        EXPECT_EQ(_qesdSSEditTask(g.task, id, &a), -3) << id;
        EXPECT_EQ(_qessSSEditTask(g.task, id, reinterpret_cast<float*>(&a)), -3) << id;
    }
    for (int64_t id : {int64_t(0), int64_t(80), (int64_t(1) << 32) + 1})
        EXPECT_EQ(_qesiSSEditTask(g.task, id, &a), -3) << id;
}

TEST(StatsEditTask, EachIdBelongsToOneEditor) {
    const std::vector<int> integers = {1,  2,  4,  5,  20, 22, 24, 28, 29, 32, 34, 36, 37, 41,
                                       44, 45, 47, 49, 50, 52, 54, 56, 58, 61, 62, 64, 75, 79};
    int32_t p = 1;
    TaskGuard g;
    ASSERT_EQ(_qesdSSNewTask(&g.task, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0), 0);
    double a = 0;
    for (int id = 1; id <= 79; ++id) {
        bool isInt = std::find(integers.begin(), integers.end(), id) != integers.end();
        int32_t real = _qesdSSEditTask(g.task, id, &a);
        int32_t integer = _qesiSSEditTask(g.task, id, &a);
        EXPECT_EQ(real == 0, !isInt && id >= 3 && id <= 78) << id;
        EXPECT_EQ(integer == 0, isInt) << id;
        if (isInt)
            EXPECT_EQ(real, -3) << id;
        else
            EXPECT_EQ(integer, -3) << id;
    }
}

TEST(StatsEditTask, NullAddressGivesTheFieldsStatus) {
    int32_t p = 1;
    TaskGuard g;
    ASSERT_EQ(_qesdSSNewTask(&g.task, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0), 0);
    // The sum shares the mean's status on purpose.
    EXPECT_EQ(_qesdSSEditTask(g.task, BRENN_SS_ED_SUM, nullptr), -4006);
    EXPECT_EQ(_qesdSSEditTask(g.task, BRENN_SS_ED_MEAN, nullptr), -4006);
    EXPECT_EQ(_qesdSSEditTask(g.task, BRENN_SS_ED_OBSERV, nullptr), -4032);
    EXPECT_EQ(_qesdSSEditTask(g.task, BRENN_SS_ED_ACCUM_WEIGHT, nullptr), -4020);
    EXPECT_EQ(_qesdSSEditTask(g.task, BRENN_SS_ED_CP, nullptr), -4081);
    EXPECT_EQ(_qesdSSEditTask(g.task, BRENN_SS_ED_MULTIPLIER_A, nullptr), -4082);
    EXPECT_EQ(_qesdSSEditTask(g.task, BRENN_SS_ED_SORTED_OBSERV, nullptr), -4084);
    EXPECT_EQ(_qesiSSEditTask(g.task, BRENN_SS_ED_DIMEN, nullptr), -4001);
    EXPECT_EQ(_qesiSSEditTask(g.task, BRENN_SS_ED_COV_STORAGE, nullptr), -4044);
    EXPECT_EQ(_qesiSSEditTask(g.task, BRENN_SS_ED_INDC, nullptr), -4004);
    EXPECT_EQ(_qesiSSEditTask(g.task, BRENN_SS_ED_POOLED_GROUP_N, nullptr), -4038);
}

// A field set through an editor is what a compute reads: moments of one variable
// through the general editor, then replaced by the thin editor.
TEST(StatsEditTask, FieldsReachTheCompute) {
    double x[3] = {1, 2, 6};
    double mean1 = 0, mean2 = 0, aw[2] = {0, 0};
    int32_t p = 1, n = 3, storage = BRENN_SS_MATRIX_STORAGE_ROWS;
    TaskGuard g;
    ASSERT_EQ(_qesdSSNewTask(&g.task, &p, &n, &storage, x, nullptr, nullptr, 0), 0);
    ASSERT_EQ(_qesdSSEditTask(g.task, BRENN_SS_ED_MEAN, &mean1), 0);
    ASSERT_EQ(_qesdSSEditTask(g.task, BRENN_SS_ED_MEAN, nullptr), -4006); // keeps &mean1
    ASSERT_EQ(_qesdSSBasic(g.task, BRENN_SS_MEAN, BRENN_SS_METHOD_ONE_PASS, nullptr), 0);
    EXPECT_EQ(mean1, 3.0);
    // A thin editor with every address null changes nothing.
    EXPECT_EQ(
        __qesdSSEditMoments(g.task, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr),
        0);
    ASSERT_EQ(
        __qessSSEditMoments(g.task, &mean2, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr),
        0);
    ASSERT_EQ(_qesdSSEditTask(g.task, BRENN_SS_ED_ACCUM_WEIGHT, aw), 0);
    ASSERT_EQ(_qesdSSBasic(g.task, BRENN_SS_MEAN, BRENN_SS_METHOD_ONE_PASS, nullptr), 0);
    EXPECT_EQ(mean2, 3.0);
    EXPECT_EQ(aw[0], 3.0);
    EXPECT_EQ(aw[1], 3.0);
}

TEST(StatsThinEditors, NullTaskAndBothNamesAreOneFunction) {
    EXPECT_EQ(__qesdSSEditCovCor(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), -4031);
    EXPECT_EQ(__qessSSEditMissingVals(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                      nullptr, nullptr, nullptr, nullptr),
              -4031);
    EXPECT_EQ(reinterpret_cast<void*>(&__qesdSSEditRCov),
              reinterpret_cast<void*>(&__qessSSEditRCov));
    EXPECT_EQ(reinterpret_cast<void*>(&__qesdSSEditMtxParametrz),
              reinterpret_cast<void*>(&__qessSSEditMtxParametrz));
}

} // namespace
