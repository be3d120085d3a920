/** @file brenn_stats.h
 * Summary statistics: the task record's editors and the compute entries of the kernel
 * library, with the numbers that cross its boundary (statuses, parameter ids, method
 * bits, estimate bits and storage words) as named constants.
 *
 * A task holds addresses of the caller's arrays; nothing is copied. Integer words that
 * the task points to (dimension, observation count, storage words, indices) are read at
 * compute time with the task's index width: 32 bits (sign-extended) when the width
 * given to the new-task function is 0, 64 bits otherwise.
 *
 * Normalisation of the estimates of the basic compute, with weights w, W = sum of w,
 * W2 = sum of w^2 and d = x - mean:
 *   mean and raw moments      weighted averages: sum(w x^k) / W
 *   central moment 2          unbiased: sum(w d^2) * W / (W^2 - W2), 1/(n-1) unweighted
 *   covariance                unbiased: sum(w d d') * W / (W^2 - W2)
 *   central moments 3 and 4   sum(w d^k) / W
 *   kurtosis                  c4 / (c2 * c2) - 3
 *   skewness                  c3 / sqrt(c2 * c2 * c2)
 *   variation                 sqrt(c2) / mean
 *   correlation               cov[j][l] / sqrt(cov[j][j] * cov[l][l])
 *   sums, raw and central     plain weighted sums: sum(w x^k), sum(w d^k)
 *   cross-product             sum(w d d')
 * A single observation (W^2 = W2) gives NaN for the unbiased estimates.
 *
 * Block-wise use: the result arrays and `accumWeight` (sum of w, sum of w^2) are the
 * running state; set `accumWeight` to zero to start, then call again with each block.
 * Estimates that are not sums are brought back to running sums with the formulas above,
 * so the arrays that the requirement rules name must keep what the last call wrote.
 * What those arrays can't hold (the sums of squares behind a correlation asked without
 * a covariance or cross-product, the lower central sums behind a central sum of order
 * 3 or 4) the task keeps itself from call to call, for the `accumWeight` array it was
 * fed with. A block of a data set that another task fed before can't be joined to
 * those and gives BRENN_SS_ERROR_METHOD.
 */
#ifndef BRENN_STATS_H
#define BRENN_STATS_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

struct threader; /* the threading record of the front-end; a null one runs on the caller */

/* Statuses. */
enum {
    BRENN_SS_OK = 0,
    BRENN_SS_ERROR_BADARGS = -3,
    BRENN_SS_ERROR_ALLOC = -4000,
    BRENN_SS_ERROR_DIMENSION = -4001,
    BRENN_SS_ERROR_OBSERVATION_COUNT = -4002,
    BRENN_SS_ERROR_STORAGE = -4003, /* also an unknown matrix storage form */
    BRENN_SS_ERROR_INDICES_MISSING = -4004,
    BRENN_SS_ERROR_WEIGHTS_MISSING = -4005,
    BRENN_SS_ERROR_MEAN_MISSING = -4006, /* also a missing `sum` */
    BRENN_SS_ERROR_RAW_MOMENT2_MISSING = -4007,
    BRENN_SS_ERROR_RAW_MOMENT3_MISSING = -4008,
    BRENN_SS_ERROR_RAW_MOMENT4_MISSING = -4009,
    BRENN_SS_ERROR_CENTRAL_MOMENT2_MISSING = -4010,
    BRENN_SS_ERROR_CENTRAL_MOMENT3_MISSING = -4011,
    BRENN_SS_ERROR_CENTRAL_MOMENT4_MISSING = -4012,
    BRENN_SS_ERROR_KURTOSIS_MISSING = -4013,
    BRENN_SS_ERROR_SKEWNESS_MISSING = -4014,
    BRENN_SS_ERROR_MINIMUM_MISSING = -4015,
    BRENN_SS_ERROR_MAXIMUM_MISSING = -4016,
    BRENN_SS_ERROR_VARIATION_MISSING = -4017,
    BRENN_SS_ERROR_COV_MISSING = -4018,
    BRENN_SS_ERROR_COR_MISSING = -4019,
    BRENN_SS_ERROR_ACCUM_WEIGHT_MISSING = -4020,
    BRENN_SS_ERROR_METHOD = -4029,
    BRENN_SS_ERROR_TASK_NULL = -4031,
    BRENN_SS_ERROR_OBSERVATIONS_MISSING = -4032,
    BRENN_SS_ERROR_STORAGE_WORD_MISSING = -4044,
    BRENN_SS_ERROR_RAW_SUM2_MISSING = -4075,
    BRENN_SS_ERROR_RAW_SUM3_MISSING = -4076,
    BRENN_SS_ERROR_RAW_SUM4_MISSING = -4077,
    BRENN_SS_ERROR_CENTRAL_SUM2_MISSING = -4078,
    BRENN_SS_ERROR_CENTRAL_SUM3_MISSING = -4079,
    BRENN_SS_ERROR_CENTRAL_SUM4_MISSING = -4080,
    BRENN_SS_ERROR_CROSS_PRODUCT_MISSING = -4081
};

/* Parameter ids of the general editors. Integer ids go through _qesiSSEditTask, real
 * ones through _qesdSSEditTask / _qessSSEditTask. */
enum {
    BRENN_SS_ED_DIMEN = 1,
    BRENN_SS_ED_OBSERV_N = 2,
    BRENN_SS_ED_OBSERV = 3,
    BRENN_SS_ED_OBSERV_STORAGE = 4,
    BRENN_SS_ED_INDC = 5,
    BRENN_SS_ED_WEIGHTS = 6,
    BRENN_SS_ED_MEAN = 7,
    BRENN_SS_ED_2R_MOM = 8,
    BRENN_SS_ED_3R_MOM = 9,
    BRENN_SS_ED_4R_MOM = 10,
    BRENN_SS_ED_2C_MOM = 11,
    BRENN_SS_ED_3C_MOM = 12,
    BRENN_SS_ED_4C_MOM = 13,
    BRENN_SS_ED_KURTOSIS = 14,
    BRENN_SS_ED_SKEWNESS = 15,
    BRENN_SS_ED_MIN = 16,
    BRENN_SS_ED_MAX = 17,
    BRENN_SS_ED_VARIATION = 18,
    BRENN_SS_ED_COV = 19,
    BRENN_SS_ED_COV_STORAGE = 20,
    BRENN_SS_ED_COR = 21,
    BRENN_SS_ED_COR_STORAGE = 22,
    BRENN_SS_ED_ACCUM_WEIGHT = 23,
    BRENN_SS_ED_QUANT_ORDER_N = 24,
    BRENN_SS_ED_QUANT_ORDER = 25,
    BRENN_SS_ED_QUANT_QUANTILES = 26,
    BRENN_SS_ED_ORDER_STATS = 27,
    BRENN_SS_ED_GROUP_INDC = 28,
    BRENN_SS_ED_POOLED_COV_STORAGE = 29,
    BRENN_SS_ED_POOLED_MEAN = 30,
    BRENN_SS_ED_POOLED_COV = 31,
    BRENN_SS_ED_GROUP_COV_INDC = 32,
    BRENN_SS_ED_GROUP_MEAN = 33,
    BRENN_SS_ED_GROUP_COV_STORAGE = 34,
    BRENN_SS_ED_GROUP_COV = 35,
    BRENN_SS_ED_ROBUST_COV_STORAGE = 36,
    BRENN_SS_ED_ROBUST_COV_PARAMS_N = 37,
    BRENN_SS_ED_ROBUST_COV_PARAMS = 38,
    BRENN_SS_ED_ROBUST_MEAN = 39,
    BRENN_SS_ED_ROBUST_COV = 40,
    BRENN_SS_ED_OUTLIERS_PARAMS_N = 41,
    BRENN_SS_ED_OUTLIERS_PARAMS = 42,
    BRENN_SS_ED_OUTLIERS_WEIGHT = 43,
    BRENN_SS_ED_ORDER_STATS_STORAGE = 44,
    BRENN_SS_ED_PARTIAL_COV_IDX = 45,
    BRENN_SS_ED_PARTIAL_COV = 46,
    BRENN_SS_ED_PARTIAL_COV_STORAGE = 47,
    BRENN_SS_ED_PARTIAL_COR = 48,
    BRENN_SS_ED_PARTIAL_COR_STORAGE = 49,
    BRENN_SS_ED_MI_PARAMS_N = 50,
    BRENN_SS_ED_MI_PARAMS = 51,
    BRENN_SS_ED_MI_INIT_ESTIMATES_N = 52,
    BRENN_SS_ED_MI_INIT_ESTIMATES = 53,
    BRENN_SS_ED_MI_SIMUL_VALS_N = 54,
    BRENN_SS_ED_MI_SIMUL_VALS = 55,
    BRENN_SS_ED_MI_ESTIMATES_N = 56,
    BRENN_SS_ED_MI_ESTIMATES = 57,
    BRENN_SS_ED_MI_PRIOR_N = 58,
    BRENN_SS_ED_MI_PRIOR = 59,
    BRENN_SS_ED_PARAMTR_COR = 60,
    BRENN_SS_ED_PARAMTR_COR_STORAGE = 61,
    BRENN_SS_ED_STREAM_QUANT_PARAMS_N = 62,
    BRENN_SS_ED_STREAM_QUANT_PARAMS = 63,
    BRENN_SS_ED_STREAM_QUANT_ORDER_N = 64,
    BRENN_SS_ED_STREAM_QUANT_ORDER = 65,
    BRENN_SS_ED_STREAM_QUANT_QUANTILES = 66,
    BRENN_SS_ED_SUM = 67,
    BRENN_SS_ED_2R_SUM = 68,
    BRENN_SS_ED_3R_SUM = 69,
    BRENN_SS_ED_4R_SUM = 70,
    BRENN_SS_ED_2C_SUM = 71,
    BRENN_SS_ED_3C_SUM = 72,
    BRENN_SS_ED_4C_SUM = 73,
    BRENN_SS_ED_CP = 74,
    BRENN_SS_ED_CP_STORAGE = 75,
    BRENN_SS_ED_MDAD = 76,
    BRENN_SS_ED_MNAD = 77,
    BRENN_SS_ED_SORTED_OBSERV = 78,
    BRENN_SS_ED_SORTED_OBSERV_STORAGE = 79
};

/* Storage words of the observation matrix (and of the sort result). */
#define BRENN_SS_MATRIX_STORAGE_ROWS 0x10000 /* one variable's observations contiguous */
#define BRENN_SS_MATRIX_STORAGE_COLS 0x20000 /* one observation's values contiguous */

/* Storage forms of covariance, correlation and cross-product: one enumeration.
 * FULL: p x p, element (j, l) at j * p + l. U_PACKED: the upper triangle row by row,
 * p (p + 1) / 2 elements (row j holds l = j .. p-1). L_PACKED: the lower triangle row
 * by row (row j holds l = 0 .. j). */
#define BRENN_SS_MATRIX_STORAGE_FULL 0
#define BRENN_SS_MATRIX_STORAGE_U_PACKED 1
#define BRENN_SS_MATRIX_STORAGE_L_PACKED 2

/* Method words of the basic compute. */
#define BRENN_SS_METHOD_RAW_FIRST 0x1ULL      /* central sums formed from raw moments */
#define BRENN_SS_METHOD_ONE_PASS 0x2ULL       /* observation-by-observation update */
#define BRENN_SS_METHOD_ONE_PASS_B 0x100ULL   /* blocked update through BLAS */
#define BRENN_SS_METHOD_FROM_SUMS_CP 0x200ULL /* from sums and cross-product, no data */
#define BRENN_SS_METHOD_FROM_SUMS 0x400ULL
/* Method word of minimum/maximum, quantiles, order statistics, sort and MAD. */
#define BRENN_SS_METHOD_FAST 0x1ULL

/* Estimate bits. */
#define BRENN_SS_MEAN 0x1ULL
#define BRENN_SS_2R_MOM 0x2ULL
#define BRENN_SS_3R_MOM 0x4ULL
#define BRENN_SS_4R_MOM 0x8ULL
#define BRENN_SS_2C_MOM 0x10ULL
#define BRENN_SS_3C_MOM 0x20ULL
#define BRENN_SS_4C_MOM 0x40ULL
#define BRENN_SS_KURTOSIS 0x80ULL
#define BRENN_SS_SKEWNESS 0x100ULL
#define BRENN_SS_VARIATION 0x200ULL
#define BRENN_SS_MIN 0x400ULL
#define BRENN_SS_MAX 0x800ULL
#define BRENN_SS_COV 0x1000ULL
#define BRENN_SS_COR 0x2000ULL
#define BRENN_SS_POOLED_COV 0x4000ULL
#define BRENN_SS_GROUP_COV 0x8000ULL
#define BRENN_SS_QUANTS 0x10000ULL
#define BRENN_SS_ORDER_STATS 0x20000ULL
#define BRENN_SS_ROBUST_COV 0x40000ULL
#define BRENN_SS_OUTLIERS 0x80000ULL
#define BRENN_SS_PARTIAL_COV 0x100000ULL
#define BRENN_SS_PARTIAL_COR 0x200000ULL
#define BRENN_SS_MISSING_VALS 0x400000ULL
#define BRENN_SS_PARAMTR_COR 0x800000ULL
#define BRENN_SS_STREAM_QUANTS 0x1000000ULL
#define BRENN_SS_SUM 0x2000000ULL
#define BRENN_SS_2R_SUM 0x4000000ULL
#define BRENN_SS_3R_SUM 0x8000000ULL
#define BRENN_SS_4R_SUM 0x10000000ULL
#define BRENN_SS_2C_SUM 0x20000000ULL
#define BRENN_SS_3C_SUM 0x40000000ULL
#define BRENN_SS_4C_SUM 0x80000000ULL
#define BRENN_SS_CP 0x100000000ULL
#define BRENN_SS_MDAD 0x200000000ULL
#define BRENN_SS_SORTED_OBSERV 0x8000000000ULL

/* Task object. Integer words are passed by address (const void*) because their width
 * is the task's index width. */
int32_t _qesdSSNewTask(void** task, const void* p, const void* n, const void* storage,
                       const double* x, const double* weights, const void* indices,
                       int32_t indexWidth);
int32_t _qessSSNewTask(void** task, const void* p, const void* n, const void* storage,
                       const float* x, const float* weights, const void* indices,
                       int32_t indexWidth);
int32_t _qesSSDeleteTask(void** task);

int32_t _qesdSSEditTask(void* task, int64_t id, const double* address);
int32_t _qessSSEditTask(void* task, int64_t id, const float* address);
int32_t _qesiSSEditTask(void* task, int64_t id, const void* address);

/* Thin editors: each address that is not null is stored. The __qess and __qesd names
 * are one function. */
#define BRENN_SS_THIN_EDITORS(t)                                                                   \
    int32_t __qes##t##SSEditMoments(void* task, void* mean, void* rawMoment2, void* rawMoment3,    \
                                    void* rawMoment4, void* centralMoment2, void* centralMoment3,  \
                                    void* centralMoment4);                                         \
    int32_t __qes##t##SSEditSums(void* task, void* sum, void* rawSum2, void* rawSum3,              \
                                 void* rawSum4, void* centralSum2, void* centralSum3,              \
                                 void* centralSum4);                                               \
    int32_t __qes##t##SSEditCovCor(void* task, void* mean, void* covariance, void* covStorage,     \
                                   void* correlation, void* corStorage);                           \
    int32_t __qes##t##SSEditCP(void* task, void* mean, void* sum, void* crossProduct,              \
                               void* crossProductStorage);                                         \
    int32_t __qes##t##SSEditPartialCovCor(                                                         \
        void* task, void* partialParamIndexCount, void* covariance, void* covStorage,              \
        void* correlation, void* corStorage, void* partialCov, void* partialCovStorage,            \
        void* partialCor, void* partialCorStorage);                                                \
    int32_t __qes##t##SSEditQuantiles(void* task, void* quantileOrderCount, void* quantileOrders,  \
                                      void* quantiles, void* orderStatistics,                      \
                                      void* orderStatisticsStorage);                               \
    int32_t __qes##t##SSEditStreamQuantiles(void* task, void* streamOrderCount,                    \
                                            void* streamOrders, void* streamQuantiles,             \
                                            void* streamParamCount, void* streamParams);           \
    int32_t __qes##t##SSEditPooledCovariance(                                                      \
        void* task, void* pooledGroupCount, void* pooledOutMean, void* pooledOutCov,               \
        void* pooledStorage, void* pooledMean, void* pooledCov);                                   \
    int32_t __qes##t##SSEditRCov(void* task, void* robustCovStorage, void* robustParamCount,       \
                                 void* robustParams, void* robustMean, void* robustCov);           \
    int32_t __qes##t##SSEditOutDetect(void* task, void* outlierParamCount, void* outlierParams,    \
                                      void* outlierWeights);                                       \
    int32_t __qes##t##SSEditMissingVals(                                                           \
        void* task, void* missingParamCount, void* missingParams, void* missingPatternCount,       \
        void* missingPatterns, void* missingSimCount, void* missingSimMeans,                       \
        void* missingMeanCount, void* missingMeans, void* missingCovCount, void* missingCovs);     \
    int32_t __qes##t##SSEditMtxParametrz(void* task, void* correlation, void* corStorage,          \
                                         void* parametrizedCor, void* parametrizedCorStorage);
BRENN_SS_THIN_EDITORS(d)
BRENN_SS_THIN_EDITORS(s)
#undef BRENN_SS_THIN_EDITORS

/* Compute: moments, sums, skewness, kurtosis, variation, covariance, correlation and
 * cross-product of the task's observations (or, with the conversion methods, of its
 * sums and cross-product). */
int32_t _qesdSSBasic(void* task, uint64_t estimates, uint64_t method, const struct threader* thr);
int32_t _qessSSBasic(void* task, uint64_t estimates, uint64_t method, const struct threader* thr);

/* Minimum (0x400) and maximum (0x800): the arrays are updated, so the caller primes
 * them (with +/- infinity, or the result of a former block). Method BRENN_SS_METHOD_FAST
 * or 0x2. NaN observations are passed over. */
int32_t _qesdSSMinmax(void* task, uint64_t estimates, uint64_t method);
int32_t _qessSSMinmax(void* task, uint64_t estimates, uint64_t method);

#ifdef __cplusplus
}
#endif

#endif
