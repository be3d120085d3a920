// What every statistics entry of the front-end shares: the statistics service's
// entries of each precision, the checks of a matrix view, and a task made over the
// view and ended with its owner. The service's tests take the entries and the task
// from here too.
#pragma once

#include <cmath>

#include "brenn/brenn_ss.h"

namespace brenn::fe {

// The precision's entries of the statistics service.
template <class T>
struct SsEntries;
template <>
struct SsEntries<double> {
    static constexpr auto newTask = _qesdSSNewTask;
    static constexpr auto edit = _qesdSSEditTask;
    static constexpr auto basic = _qesdSSBasic;
    static constexpr auto minmax = _qesdSSMinmax;
    static constexpr auto editQuantiles = __qesdSSEditQuantiles;
    static constexpr auto quantiles = _qesdSSQuantiles;
    static constexpr auto sort = _qesdSSSort;
    static constexpr auto mad = _qesdSSMAD;
    static constexpr auto weightedMedian = _qesdSSWMedian;
    static constexpr auto editStream = __qesdSSEditStreamQuantiles;
    static constexpr auto stream = _qesdSSStreamQuantiles;
    static constexpr auto qsort = __qesdQSort;
    static constexpr auto qsortStep = __qesdQSortStep;
    static constexpr auto select = __qesdQSortSelect;
    static constexpr auto robust = _qesdSSRobustCovariance;
    static constexpr auto outliers = _qesdSSOutliersDetection;
    static constexpr auto missing = _qesdSSMissingValues;
    static constexpr auto partial = _qesdSSPartialCovariance;
    static constexpr auto pooled = _qesdSSPooledCovariance;
    static constexpr auto corParam = _qesdSSCorParametrization;
    static constexpr auto mahalanobis = _qesdSSMahDistance;
    static constexpr auto editCovCor = __qesdSSEditCovCor;
    static constexpr auto editRobust = __qesdSSEditRCov;
    static constexpr auto editOutliers = __qesdSSEditOutDetect;
    static constexpr auto editMissing = __qesdSSEditMissingVals;
    static constexpr auto editPartial = __qesdSSEditPartialCovCor;
    static constexpr auto editPooled = __qesdSSEditPooledCovariance;
    static constexpr auto editParametrz = __qesdSSEditMtxParametrz;
};
template <>
struct SsEntries<float> {
    static constexpr auto newTask = _qessSSNewTask;
    static constexpr auto edit = _qessSSEditTask;
    static constexpr auto basic = _qessSSBasic;
    static constexpr auto minmax = _qessSSMinmax;
    static constexpr auto editQuantiles = __qessSSEditQuantiles;
    static constexpr auto quantiles = _qessSSQuantiles;
    static constexpr auto sort = _qessSSSort;
    static constexpr auto mad = _qessSSMAD;
    static constexpr auto weightedMedian = _qessSSWMedian;
    static constexpr auto editStream = __qessSSEditStreamQuantiles;
    static constexpr auto stream = _qessSSStreamQuantiles;
    static constexpr auto qsort = __qessQSort;
    static constexpr auto qsortStep = __qessQSortStep;
    static constexpr auto select = __qessQSortSelect;
    static constexpr auto robust = _qessSSRobustCovariance;
    static constexpr auto outliers = _qessSSOutliersDetection;
    static constexpr auto missing = _qessSSMissingValues;
    static constexpr auto partial = _qessSSPartialCovariance;
    static constexpr auto pooled = _qessSSPooledCovariance;
    static constexpr auto corParam = _qessSSCorParametrization;
    static constexpr auto mahalanobis = _qessSSMahDistance;
    static constexpr auto editCovCor = __qessSSEditCovCor;
    static constexpr auto editRobust = __qessSSEditRCov;
    static constexpr auto editOutliers = __qessSSEditOutDetect;
    static constexpr auto editMissing = __qessSSEditMissingVals;
    static constexpr auto editPartial = __qessSSEditPartialCovCor;
    static constexpr auto editPooled = __qessSSEditPooledCovariance;
    static constexpr auto editParametrz = __qessSSEditMtxParametrz;
};

// A null view, counts below 1, a layout other than the two, no observations.
template <class Matrix>
int CheckMatrix(const Matrix* m) {
    if (m == nullptr) return BRENN_ERR_NULL_POINTER;
    if (m->p < 1 || m->n < 1) return BRENN_ERR_BAD_SIZE;
    if (m->layout != BRENN_SS_VARIABLES_IN_ROWS && m->layout != BRENN_SS_OBSERVATIONS_IN_ROWS)
        return BRENN_ERR_BAD_ARGUMENT;
    if (m->x == nullptr) return BRENN_ERR_NULL_POINTER;
    return BRENN_OK;
}

// A negative or non-finite weight.
template <class Matrix>
int CheckWeights(const Matrix* m) {
    if (m->weights != nullptr)
        for (int64_t i = 0; i < m->n; ++i)
            if (!(m->weights[i] >= 0 && std::isfinite(m->weights[i])))
                return BRENN_ERR_BAD_ARGUMENT;
    return BRENN_OK;
}

// A task over a checked view, ended when the owner goes. status() is the making's.
template <class T>
class SsTask {
  public:
    template <class Matrix>
    explicit SsTask(const Matrix* m) : storage_(m->layout) {
        status_ =
            SsEntries<T>::newTask(&task_, &m->p, &m->n, &storage_, m->x, m->weights, m->indices, 1);
    }
    // A task of p variables without observations, for the entries that read matrices only.
    explicit SsTask(const int64_t* p) : storage_(BRENN_SS_VARIABLES_IN_ROWS) {
        status_ = SsEntries<T>::newTask(&task_, p, nullptr, nullptr, nullptr, nullptr, nullptr, 1);
    }
    ~SsTask() {
        if (task_ != nullptr) _qesSSDeleteTask(&task_);
    }
    SsTask(const SsTask&) = delete;
    SsTask& operator=(const SsTask&) = delete;
    void* get() const { return task_; }
    int status() const { return status_; }
    const int64_t* storage() const { return &storage_; }

  private:
    void* task_ = nullptr;
    int64_t storage_;
    int status_;
};

} // namespace brenn::fe
