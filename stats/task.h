// The statistics task record and the small readers that every compute entry uses.
// The record holds the caller's addresses only; integer words behind them are read
// with the task's index width at compute time.
#ifndef BRENN_STATS_TASK_H
#define BRENN_STATS_TASK_H

#include <stdint.h>

namespace brenn::stats {

struct SSTask;
typedef void (*SSCleanup)(SSTask* task);

// Field by field as the editors and the compute entries know it. Addresses are
// native pointers; the first three words and `cleanupCount` are 32-bit integers.
struct SSTask {
    int32_t indexWidth;
    int32_t taskTag;
    int32_t isDouble;
    const void* dimension;
    const void* observationCount;
    const void* indices;
    void* observations;
    void* weights;
    void* accumWeight;
    const void* observationStorage;
    void* parametrizedCor;
    const void* parametrizedCorStorage;
    void* mean;
    void* rawMoment2;
    void* rawMoment3;
    void* rawMoment4;
    void* centralMoment2;
    void* centralMoment3;
    void* centralMoment4;
    void* sum;
    void* rawSum2;
    void* rawSum3;
    void* rawSum4;
    void* centralSum2;
    void* centralSum3;
    void* centralSum4;
    void* kurtosis;
    void* skewness;
    void* variation;
    void* minimum;
    void* maximum;
    const void* covStorage;
    void* covariance;
    const void* corStorage;
    void* correlation;
    const void* crossProductStorage;
    void* crossProduct;
    const void* pooledGroupCount;
    const void* pooledStorage;
    void* pooledMean;
    void* pooledCov;
    const void* pooledCovStorage;
    void* pooledOutMean;
    void* pooledOutCov;
    const void* pooledOutCovStorage;
    const void* quantileOrderCount;
    void* quantileOrders;
    void* quantiles;
    void* orderStatistics;
    const void* orderStatisticsStorage;
    const void* streamOrderCount;
    void* streamOrders;
    void* streamQuantiles;
    void* streamState;
    const void* streamParamCount;
    void* streamParams;
    void* multiplierB;
    void* multiplierA;
    const void* robustParamCount;
    void* robustParams;
    void* robustMean;
    void* robustCov;
    const void* robustCovStorage;
    const void* outlierParamCount;
    void* outlierParams;
    void* outlierWeights;
    const void* partialParamIndexCount;
    void* partialCov;
    const void* partialCovStorage;
    void* partialCor;
    const void* partialCorStorage;
    const void* missingParamCount;
    void* missingParams;
    const void* missingPatternCount;
    void* missingPatterns;
    const void* missingSimCount;
    void* missingSimMeans;
    const void* missingMeanCount;
    void* missingMeans;
    const void* missingCovCount;
    void* missingCovs;
    void* privateWords[8];
    int32_t cleanupCount;
    SSCleanup cleanup;
    void* sortedObservations;
    const void* sortedStorage;
    void* privateBuffer;
};

constexpr int32_t kTaskTag = 2;

// Reads the integer word at `address` with the task's index width: 32 bits
// sign-extended when the width is 0, otherwise 64 bits.
inline int64_t ReadIndexWord(const SSTask* task, const void* address, int64_t element = 0) {
    if (task->indexWidth == 0) return static_cast<const int32_t*>(address)[element];
    return static_cast<const int64_t*>(address)[element];
}

inline int64_t ReadIndexWord(int32_t indexWidth, const void* address, int64_t element = 0) {
    if (indexWidth == 0) return static_cast<const int32_t*>(address)[element];
    return static_cast<const int64_t*>(address)[element];
}

} // namespace brenn::stats

#endif
