// Summary statistics in one call: checks, a task over the caller's matrix with a
// working array for every estimate array the caller did not give (the compute's
// requirement rules then always hold), the basic and min/max computes, and the
// task's end on every path.
#include <cmath>
#include <limits>
#include <new>
#include <vector>

#include "brenn_ss.h"
#include "frontend/export.h"
#include "frontend/ss_task.h"
#include "platform/threader.h"

namespace {

constexpr uint64_t kBasic = BRENN_SS_MEAN | BRENN_SS_2R_MOM | BRENN_SS_3R_MOM | BRENN_SS_4R_MOM |
                            BRENN_SS_2C_MOM | BRENN_SS_3C_MOM | BRENN_SS_4C_MOM |
                            BRENN_SS_SKEWNESS | BRENN_SS_KURTOSIS | BRENN_SS_VARIATION |
                            BRENN_SS_COV | BRENN_SS_COR;
constexpr uint64_t kMinMax = BRENN_SS_MIN | BRENN_SS_MAX;

// One result array: its estimate bit, editor id, and whether it is p x p.
struct Field {
    uint64_t bit;
    int64_t id;
    bool square;
};
constexpr Field kFields[14] = {
    {BRENN_SS_MEAN, BRENN_SS_ED_MEAN, false},
    {BRENN_SS_2R_MOM, BRENN_SS_ED_2R_MOM, false},
    {BRENN_SS_3R_MOM, BRENN_SS_ED_3R_MOM, false},
    {BRENN_SS_4R_MOM, BRENN_SS_ED_4R_MOM, false},
    {BRENN_SS_2C_MOM, BRENN_SS_ED_2C_MOM, false},
    {BRENN_SS_3C_MOM, BRENN_SS_ED_3C_MOM, false},
    {BRENN_SS_4C_MOM, BRENN_SS_ED_4C_MOM, false},
    {BRENN_SS_SKEWNESS, BRENN_SS_ED_SKEWNESS, false},
    {BRENN_SS_KURTOSIS, BRENN_SS_ED_KURTOSIS, false},
    {BRENN_SS_VARIATION, BRENN_SS_ED_VARIATION, false},
    {BRENN_SS_MIN, BRENN_SS_ED_MIN, false},
    {BRENN_SS_MAX, BRENN_SS_ED_MAX, false},
    {BRENN_SS_COV, BRENN_SS_ED_COV, true},
    {BRENN_SS_COR, BRENN_SS_ED_COR, true},
};

template <class T, class Matrix, class Results>
int Check(const Matrix* m, uint64_t estimates, const Results* r, T* const* arrays) {
    if (r == nullptr) return BRENN_ERR_NULL_POINTER;
    if (int s = brenn::fe::CheckMatrix(m)) return s;
    if ((estimates & ~(kBasic | kMinMax)) != 0) return BRENN_ERR_NOT_AVAILABLE;
    for (int f = 0; f < 14; ++f)
        if ((estimates & kFields[f].bit) != 0 && arrays[f] == nullptr)
            return BRENN_ERR_NULL_POINTER;
    return brenn::fe::CheckWeights(m);
}

template <class T, class Matrix, class Results>
int Compute(const Matrix* m, uint64_t estimates, const Results* r) {
    T* const arrays[14] = {r ? r->mean : nullptr,
                           r ? r->raw_moment2 : nullptr,
                           r ? r->raw_moment3 : nullptr,
                           r ? r->raw_moment4 : nullptr,
                           r ? r->central_moment2 : nullptr,
                           r ? r->central_moment3 : nullptr,
                           r ? r->central_moment4 : nullptr,
                           r ? r->skewness : nullptr,
                           r ? r->kurtosis : nullptr,
                           r ? r->variation : nullptr,
                           r ? r->minimum : nullptr,
                           r ? r->maximum : nullptr,
                           r ? r->covariance : nullptr,
                           r ? r->correlation : nullptr};
    if (int s = Check<T>(m, estimates, r, arrays)) return s;
    if (estimates == 0) return BRENN_OK;
    const int64_t p = m->p;
    // Working arrays for the estimates not asked for; the task reads them only.
    std::vector<T> work;
    T* columns[14];
    {
        size_t need = 0;
        for (const Field& f : kFields)
            need += f.square ? p * p : p;
        work.resize(need);
        size_t at = 0;
        for (int f = 0; f < 14; ++f) {
            columns[f] = work.data() + at;
            at += kFields[f].square ? p * p : p;
        }
    }
    const int64_t full = BRENN_SS_MATRIX_STORAGE_FULL;
    T accumWeight[2] = {0, 0};
    brenn::fe::SsTask<T> owner(m);
    void* task = owner.get();
    int status = owner.status();
    for (int f = 0; f < 14 && status == BRENN_SS_OK; ++f) {
        T* target = (estimates & kFields[f].bit) != 0 ? arrays[f] : columns[f];
        status = brenn::fe::SsEntries<T>::edit(task, kFields[f].id, target);
        columns[f] = target;
    }
    if (status == BRENN_SS_OK) status = _qesiSSEditTask(task, BRENN_SS_ED_COV_STORAGE, &full);
    if (status == BRENN_SS_OK) status = _qesiSSEditTask(task, BRENN_SS_ED_COR_STORAGE, &full);
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::edit(task, BRENN_SS_ED_ACCUM_WEIGHT, accumWeight);
    // A covariance or correlation matrix takes the blocked update, whose cross products
    // go through the matrix product (a third of the time of the observation-by-
    // observation update at 32 variables); the vectors alone take that update.
    const uint64_t method = (estimates & (BRENN_SS_COV | BRENN_SS_COR)) != 0
                                ? BRENN_SS_METHOD_ONE_PASS_B
                                : BRENN_SS_METHOD_ONE_PASS;
    // The matrix runs on the calling thread, where the blocked update's cross products
    // are one BLAS rank-k update (BLAS is never called inside the pool's workers, which
    // take the library's own update instead: 1.2-1.5x slower in all than BLAS alone at
    // 10^6 x 32); the vectors alone are split over the pool.
    const threader* team = (estimates & (BRENN_SS_COV | BRENN_SS_COR)) != 0
                               ? nullptr
                               : brenn_serv_pool_threader();
    if (status == BRENN_SS_OK && (estimates & kBasic) != 0)
        status = brenn::fe::SsEntries<T>::basic(task, estimates & kBasic, method, team);
    if (status == BRENN_SS_OK && (estimates & kMinMax) != 0) {
        // The min/max compute updates its arrays: they start from the infinities.
        for (int64_t j = 0; j < p; ++j) {
            columns[10][j] = std::numeric_limits<T>::infinity();
            columns[11][j] = -std::numeric_limits<T>::infinity();
        }
        status = brenn::fe::SsEntries<T>::minmax(task, estimates & kMinMax, BRENN_SS_METHOD_FAST);
    }
    return status;
}

} // namespace

BRENN_FE_EXPORT int brenn_ss_compute_f64(const brenn_ss_matrix_f64* matrix, uint64_t estimates,
                                         const brenn_ss_results_f64* results) {
    return Compute<double>(matrix, estimates, results);
}

BRENN_FE_EXPORT int brenn_ss_compute_f32(const brenn_ss_matrix_f32* matrix, uint64_t estimates,
                                         const brenn_ss_results_f32* results) {
    return Compute<float>(matrix, estimates, results);
}
