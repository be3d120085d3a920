// The thin editors: each sets a group of task fields in one call; an address that is
// null leaves its field alone. The record does not depend on the precision, so each
// editor is one function exported under its __qesd and __qess names.
#include "frame/export.h"
#include "brenn_stats.h"
#include "stats/task.h"

using brenn::stats::SSTask;

namespace {

template <typename F>
inline void Put(F& field, void* address) {
    if (address != nullptr) field = static_cast<F>(address);
}

} // namespace

#define BRENN_SS_SINGLE_TWIN(name, ...)                                                            \
    extern "C" __attribute__((visibility("default"), alias("__qesd" #name)))                       \
    int32_t __qess##name(__VA_ARGS__);

BRENN_EXPORT int32_t __qesdSSEditMoments(void* task, void* mean, void* r2, void* r3, void* r4,
                                         void* c2, void* c3, void* c4) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->mean, mean);
    Put(t->rawMoment2, r2);
    Put(t->rawMoment3, r3);
    Put(t->rawMoment4, r4);
    Put(t->centralMoment2, c2);
    Put(t->centralMoment3, c3);
    Put(t->centralMoment4, c4);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditMoments, void*, void*, void*, void*, void*, void*, void*, void*)

BRENN_EXPORT int32_t __qesdSSEditSums(void* task, void* sum, void* r2, void* r3, void* r4, void* c2,
                                      void* c3, void* c4) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->sum, sum);
    Put(t->rawSum2, r2);
    Put(t->rawSum3, r3);
    Put(t->rawSum4, r4);
    Put(t->centralSum2, c2);
    Put(t->centralSum3, c3);
    Put(t->centralSum4, c4);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditSums, void*, void*, void*, void*, void*, void*, void*, void*)

BRENN_EXPORT int32_t __qesdSSEditCovCor(void* task, void* mean, void* cov, void* covStorage,
                                        void* cor, void* corStorage) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->mean, mean);
    Put(t->covariance, cov);
    Put(t->covStorage, covStorage);
    Put(t->correlation, cor);
    Put(t->corStorage, corStorage);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditCovCor, void*, void*, void*, void*, void*, void*)

BRENN_EXPORT int32_t __qesdSSEditCP(void* task, void* mean, void* sum, void* cp, void* cpStorage) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->mean, mean);
    Put(t->sum, sum);
    Put(t->crossProduct, cp);
    Put(t->crossProductStorage, cpStorage);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditCP, void*, void*, void*, void*, void*)

BRENN_EXPORT int32_t __qesdSSEditPartialCovCor(void* task, void* indexCount, void* cov,
                                               void* covStorage, void* cor, void* corStorage,
                                               void* pCov, void* pCovStorage, void* pCor,
                                               void* pCorStorage) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->partialParamIndexCount, indexCount);
    Put(t->covariance, cov);
    Put(t->covStorage, covStorage);
    Put(t->correlation, cor);
    Put(t->corStorage, corStorage);
    Put(t->partialCov, pCov);
    Put(t->partialCovStorage, pCovStorage);
    Put(t->partialCor, pCor);
    Put(t->partialCorStorage, pCorStorage);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditPartialCovCor, void*, void*, void*, void*, void*, void*, void*, void*,
                     void*, void*)

BRENN_EXPORT int32_t __qesdSSEditQuantiles(void* task, void* orderCount, void* orders,
                                           void* quantiles, void* orderStats,
                                           void* orderStatsStorage) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->quantileOrderCount, orderCount);
    Put(t->quantileOrders, orders);
    Put(t->quantiles, quantiles);
    Put(t->orderStatistics, orderStats);
    Put(t->orderStatisticsStorage, orderStatsStorage);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditQuantiles, void*, void*, void*, void*, void*, void*)

BRENN_EXPORT int32_t __qesdSSEditStreamQuantiles(void* task, void* orderCount, void* orders,
                                                 void* quantiles, void* paramCount, void* params) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->streamOrderCount, orderCount);
    Put(t->streamOrders, orders);
    Put(t->streamQuantiles, quantiles);
    Put(t->streamParamCount, paramCount);
    Put(t->streamParams, params);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditStreamQuantiles, void*, void*, void*, void*, void*, void*)

BRENN_EXPORT int32_t __qesdSSEditPooledCovariance(void* task, void* groupCount, void* outMean,
                                                  void* outCov, void* storage, void* groupMean,
                                                  void* groupCov) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->pooledGroupCount, groupCount);
    Put(t->pooledOutMean, outMean);
    Put(t->pooledOutCov, outCov);
    Put(t->pooledStorage, storage);
    Put(t->pooledMean, groupMean);
    Put(t->pooledCov, groupCov);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditPooledCovariance, void*, void*, void*, void*, void*, void*, void*)

BRENN_EXPORT int32_t __qesdSSEditRCov(void* task, void* storage, void* paramCount, void* params,
                                      void* mean, void* cov) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->robustCovStorage, storage);
    Put(t->robustParamCount, paramCount);
    Put(t->robustParams, params);
    Put(t->robustMean, mean);
    Put(t->robustCov, cov);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditRCov, void*, void*, void*, void*, void*, void*)

BRENN_EXPORT int32_t __qesdSSEditOutDetect(void* task, void* paramCount, void* params,
                                           void* weights) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->outlierParamCount, paramCount);
    Put(t->outlierParams, params);
    Put(t->outlierWeights, weights);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditOutDetect, void*, void*, void*, void*)

BRENN_EXPORT int32_t __qesdSSEditMissingVals(void* task, void* paramCount, void* params,
                                             void* patternCount, void* patterns, void* simCount,
                                             void* simMeans, void* meanCount, void* means,
                                             void* covCount, void* covs) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->missingParamCount, paramCount);
    Put(t->missingParams, params);
    Put(t->missingPatternCount, patternCount);
    Put(t->missingPatterns, patterns);
    Put(t->missingSimCount, simCount);
    Put(t->missingSimMeans, simMeans);
    Put(t->missingMeanCount, meanCount);
    Put(t->missingMeans, means);
    Put(t->missingCovCount, covCount);
    Put(t->missingCovs, covs);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditMissingVals, void*, void*, void*, void*, void*, void*, void*, void*,
                     void*, void*, void*)

BRENN_EXPORT int32_t __qesdSSEditMtxParametrz(void* task, void* cor, void* corStorage,
                                              void* parametrized, void* parametrizedStorage) {
    if (task == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* t = static_cast<SSTask*>(task);
    Put(t->correlation, cor);
    Put(t->corStorage, corStorage);
    Put(t->parametrizedCor, parametrized);
    Put(t->parametrizedCorStorage, parametrizedStorage);
    return BRENN_SS_OK;
}
BRENN_SS_SINGLE_TWIN(SSEditMtxParametrz, void*, void*, void*, void*, void*)
