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

struct threader; /**< the threading record of the front-end; a null one runs on the caller */

/** Statuses of every statistics entry: 0 on success, negative on failure. */
enum {
    /** success */
    BRENN_SS_OK = 0,
    /** a parameter id out of range, or an id of the other editor's type */
    BRENN_SS_ERROR_BADARGS = -3,
    /** the task record or a work block could not be allocated */
    BRENN_SS_ERROR_ALLOC = -4000,
    /** the dimension word is missing or not above 0 */
    BRENN_SS_ERROR_DIMENSION = -4001,
    /** the observation count is missing or not above 0 */
    BRENN_SS_ERROR_OBSERVATION_COUNT = -4002,
    /** a storage word that is none of the known forms */
    BRENN_SS_ERROR_STORAGE = -4003,
    /** the variable indices are missing */
    BRENN_SS_ERROR_INDICES_MISSING = -4004,
    /** the weights are missing */
    BRENN_SS_ERROR_WEIGHTS_MISSING = -4005,
    /** the mean array (or the sum array) is missing */
    BRENN_SS_ERROR_MEAN_MISSING = -4006,
    /** the raw moment 2 array is missing */
    BRENN_SS_ERROR_RAW_MOMENT2_MISSING = -4007,
    /** the raw moment 3 array is missing */
    BRENN_SS_ERROR_RAW_MOMENT3_MISSING = -4008,
    /** the raw moment 4 array is missing */
    BRENN_SS_ERROR_RAW_MOMENT4_MISSING = -4009,
    /** the central moment 2 array is missing */
    BRENN_SS_ERROR_CENTRAL_MOMENT2_MISSING = -4010,
    /** the central moment 3 array is missing */
    BRENN_SS_ERROR_CENTRAL_MOMENT3_MISSING = -4011,
    /** the central moment 4 array is missing */
    BRENN_SS_ERROR_CENTRAL_MOMENT4_MISSING = -4012,
    /** the kurtosis array is missing */
    BRENN_SS_ERROR_KURTOSIS_MISSING = -4013,
    /** the skewness array is missing */
    BRENN_SS_ERROR_SKEWNESS_MISSING = -4014,
    /** the minimum array is missing */
    BRENN_SS_ERROR_MINIMUM_MISSING = -4015,
    /** the maximum array is missing */
    BRENN_SS_ERROR_MAXIMUM_MISSING = -4016,
    /** the variation array is missing */
    BRENN_SS_ERROR_VARIATION_MISSING = -4017,
    /** the covariance matrix is missing */
    BRENN_SS_ERROR_COV_MISSING = -4018,
    /** the correlation matrix is missing */
    BRENN_SS_ERROR_COR_MISSING = -4019,
    /** the accumulated weights are missing where needed */
    BRENN_SS_ERROR_ACCUM_WEIGHT_MISSING = -4020,
    /** the quantile orders are missing */
    BRENN_SS_ERROR_QUANTILE_ORDERS_MISSING = -4021,
    /** the quantile order count is missing or below 0, or an order is outside [0, 1] */
    BRENN_SS_ERROR_QUANTILE_ORDER_COUNT = -4022,
    /** the quantile array is missing */
    BRENN_SS_ERROR_QUANTILES_MISSING = -4023,
    /** the order-statistics array is missing */
    BRENN_SS_ERROR_ORDER_STATISTICS_MISSING = -4024,
    /** a method word that cannot be used, or an estimate the method cannot give */
    BRENN_SS_ERROR_METHOD = -4029,
    /** a null task (or task handle address) */
    BRENN_SS_ERROR_TASK_NULL = -4031,
    /** the observation matrix is missing */
    BRENN_SS_ERROR_OBSERVATIONS_MISSING = -4032,
    /** a storage or count word is missing */
    BRENN_SS_ERROR_STORAGE_WORD_MISSING = -4044,
    /** the raw sum 2 array is missing */
    BRENN_SS_ERROR_RAW_SUM2_MISSING = -4075,
    /** the raw sum 3 array is missing */
    BRENN_SS_ERROR_RAW_SUM3_MISSING = -4076,
    /** the raw sum 4 array is missing */
    BRENN_SS_ERROR_RAW_SUM4_MISSING = -4077,
    /** the central sum 2 array is missing */
    BRENN_SS_ERROR_CENTRAL_SUM2_MISSING = -4078,
    /** the central sum 3 array is missing */
    BRENN_SS_ERROR_CENTRAL_SUM3_MISSING = -4079,
    /** the central sum 4 array is missing */
    BRENN_SS_ERROR_CENTRAL_SUM4_MISSING = -4080,
    /** the streaming parameter count is missing */
    BRENN_SS_ERROR_STREAM_PARAM_COUNT_MISSING = -4064,
    /** the streaming parameters are missing */
    BRENN_SS_ERROR_STREAM_PARAMS_MISSING = -4065,
    /** the streaming parameter count is not 1 */
    BRENN_SS_ERROR_STREAM_PARAM_COUNT = -4066,
    /** the streaming accuracy is not in (0, 1] */
    BRENN_SS_ERROR_STREAM_ACCURACY = -4067,
    /** the streaming quantile orders are missing */
    BRENN_SS_ERROR_STREAM_ORDERS_MISSING = -4068,
    /** the streaming order count is missing or below 0, or an order is outside [0, 1] */
    BRENN_SS_ERROR_STREAM_ORDER_COUNT = -4069,
    /** the streaming quantile array is missing */
    BRENN_SS_ERROR_STREAM_QUANTILES_MISSING = -4070,
    /** the cross-product matrix is missing */
    BRENN_SS_ERROR_CROSS_PRODUCT_MISSING = -4081,
    /** the result array of the median absolute deviation is missing */
    BRENN_SS_ERROR_MAD_MISSING = -4082,
    /** the sorted-observation array is missing */
    BRENN_SS_ERROR_SORTED_MISSING = -4084,
    /** the sort writes over its own observations with another layout, or with indices */
    BRENN_SS_ERROR_SORT_STORAGE = -4085,
    /** the robust covariance result is missing */
    BRENN_SS_ERROR_ROBUST_COV_MISSING = -4027,
    /** the robust mean result is missing */
    BRENN_SS_ERROR_ROBUST_MEAN_MISSING = -4028,
    /** the pooled covariance result is missing */
    BRENN_SS_ERROR_POOLED_OUT_COV_MISSING = -4034,
    /** the pooled mean result is missing */
    BRENN_SS_ERROR_POOLED_OUT_MEAN_MISSING = -4035,
    /** the group covariance array is missing */
    BRENN_SS_ERROR_POOLED_COV_MISSING = -4036,
    /** the group mean array is missing */
    BRENN_SS_ERROR_POOLED_MEAN_MISSING = -4037,
    /** the group count or the group labels are missing, or a label is outside 0 to g - 1 */
    BRENN_SS_ERROR_POOLED_GROUPS = -4038,
    /** the outlier detection parameters are missing */
    BRENN_SS_ERROR_OUTLIER_PARAMS_MISSING = -4039,
    /** the outlier detection parameter count is missing or wrong */
    BRENN_SS_ERROR_OUTLIER_PARAM_COUNT = -4040,
    /** the outlier weight array is missing */
    BRENN_SS_ERROR_OUTLIER_WEIGHTS_MISSING = -4041,
    /** the robust covariance parameters are missing or one is outside its range */
    BRENN_SS_ERROR_ROBUST_PARAMS_MISSING = -4042,
    /** the robust covariance parameter count is missing or wrong */
    BRENN_SS_ERROR_ROBUST_PARAM_COUNT = -4043,
    /** the partial covariance index array is missing or holds a word other than 1, -1, 0 */
    BRENN_SS_ERROR_PARTIAL_INDICES = -4045,
    /** the partial covariance result is missing */
    BRENN_SS_ERROR_PARTIAL_COV_MISSING = -4046,
    /** the partial correlation result is missing */
    BRENN_SS_ERROR_PARTIAL_COR_MISSING = -4047,
    /** the missing-value parameters are missing or one is outside its range */
    BRENN_SS_ERROR_MISSING_PARAMS_MISSING = -4048,
    /** the missing-value parameter count is missing or wrong */
    BRENN_SS_ERROR_MISSING_PARAM_COUNT = -4049,
    /** the imputed-pattern count is missing or too small */
    BRENN_SS_ERROR_MISSING_PATTERN_COUNT = -4052,
    /** the imputed-pattern array is missing */
    BRENN_SS_ERROR_MISSING_PATTERNS_MISSING = -4053,
    /** the EM mean result is missing */
    BRENN_SS_ERROR_MISSING_MEANS_MISSING = -4054,
    /** the EM mean count is missing or too small */
    BRENN_SS_ERROR_MISSING_MEAN_COUNT = -4055,
    /** the EM covariance count is missing or too small */
    BRENN_SS_ERROR_MISSING_COV_COUNT = -4056,
    /** the EM covariance result is missing */
    BRENN_SS_ERROR_MISSING_COVS_MISSING = -4057,
    /** the imputation count is missing or below 0 */
    BRENN_SS_ERROR_MISSING_SIM_COUNT = -4061,
    /** the imputation mean array is missing */
    BRENN_SS_ERROR_MISSING_SIM_MEANS_MISSING = -4062,
    /** the parametrized correlation result is missing */
    BRENN_SS_ERROR_PARAMETRIZED_COR_MISSING = -4071,
    /** the parametrization's weight multipliers are missing (the same number as the
     * median absolute deviation's result) */
    BRENN_SS_ERROR_MULTIPLIER_A_MISSING = -4082,
    /** the parametrization's tolerance and iteration limit are missing */
    BRENN_SS_ERROR_MULTIPLIER_B_MISSING = -4083,
    /** a matrix that must be positive definite (a covariance, its Cholesky factor) is not */
    BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE = -4025,
    /** an exact fit: more than h observations lie on a hyperplane, the covariance is
     * singular and the robust estimate is that hyperplane's */
    BRENN_SS_ERROR_EXACT_FIT = -4026,
    /** an iteration reached its limit without meeting its tolerance (the last iterate is
     * stored) */
    BRENN_SS_ERROR_NO_CONVERGENCE = -4030,
    /** the result array of the Mahalanobis distances is missing */
    BRENN_SS_ERROR_MAHALANOBIS_MISSING = -4033
};

/** Parameter ids of the general editors. Integer ids go through _qesiSSEditTask, real
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
    BRENN_SS_ED_POOLED_GROUP_N = 28,
    BRENN_SS_ED_POOLED_COV_STORAGE = 29,
    BRENN_SS_ED_POOLED_MEAN = 30,
    BRENN_SS_ED_POOLED_COV = 31,
    BRENN_SS_ED_POOLED_STORAGE = 32,
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
    BRENN_SS_ED_MI_PATTERN_N = 52,
    BRENN_SS_ED_MI_PATTERNS = 53,
    BRENN_SS_ED_MI_MEAN_N = 54,
    BRENN_SS_ED_MI_MEANS = 55,
    BRENN_SS_ED_MI_COV_N = 56,
    BRENN_SS_ED_MI_COVS = 57,
    BRENN_SS_ED_MI_SIM_N = 58,
    BRENN_SS_ED_MI_SIM_MEANS = 59,
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
    BRENN_SS_ED_MULTIPLIER_A = 76,
    BRENN_SS_ED_MULTIPLIER_B = 77,
    BRENN_SS_ED_SORTED_OBSERV = 78,
    BRENN_SS_ED_SORTED_OBSERV_STORAGE = 79
};

/** @name Storage words of the observation matrix (and of the sort result)
 * @{ */
#define BRENN_SS_MATRIX_STORAGE_ROWS 0x10000 /**< one variable's observations contiguous */
#define BRENN_SS_MATRIX_STORAGE_COLS 0x20000 /**< one observation's values contiguous */

/** @} */

/** @name Storage forms of covariance, correlation and cross-product
 * One enumeration for the three.
 * FULL: p x p, element (j, l) at j * p + l. U_PACKED: the upper triangle row by row,
 * p (p + 1) / 2 elements (row j holds l = j .. p-1). L_PACKED: the lower triangle row
 * by row (row j holds l = 0 .. j).
 * @{ */
#define BRENN_SS_MATRIX_STORAGE_FULL 0     /**< p x p */
#define BRENN_SS_MATRIX_STORAGE_U_PACKED 1 /**< upper triangle, row by row */
#define BRENN_SS_MATRIX_STORAGE_L_PACKED 2 /**< lower triangle, row by row */
/** @} */

/** @name Method words of the basic compute
 * Exactly one of RAW_FIRST, ONE_PASS and ONE_PASS_B, or one of the two conversions.
 * @{ */
#define BRENN_SS_METHOD_RAW_FIRST 0x1ULL      /**< central sums formed from raw moments */
#define BRENN_SS_METHOD_ONE_PASS 0x2ULL       /**< observation-by-observation update */
#define BRENN_SS_METHOD_ONE_PASS_B 0x100ULL   /**< blocked update through BLAS */
#define BRENN_SS_METHOD_FROM_SUMS_CP 0x200ULL /**< from sums and cross-product, no data */
#define BRENN_SS_METHOD_FROM_SUMS 0x400ULL    /**< from sums, no data */
/** @} */
/** Method word of minimum/maximum, quantiles, order statistics, sort and MAD. */
#define BRENN_SS_METHOD_FAST 0x1ULL
/** @name Method bits of the streaming quantiles
 * At least one of the two.
 * @{ */
#define BRENN_SS_METHOD_STREAM_READ 0x40ULL /**< feed the block, then read the quantiles */
#define BRENN_SS_METHOD_STREAM_FEED 0x80ULL /**< feed the block only */
/** @} */
/** @name Robust covariance and outlier detection: method words and parameters
 * @{ */
#define BRENN_SS_METHOD_FASTMCD 0x1ULL /**< robust covariance by FAST-MCD */
#define BRENN_SS_METHOD_BACON 0x1ULL   /**< outlier detection by BACON */
#define BRENN_SS_RCOV_PARAMS_N 4       /**< robust covariance parameters, at most */
#define BRENN_SS_BACON_PARAMS_N 3      /**< outlier detection parameters, at most */
#define BRENN_SS_BACON_INIT_MAHALANOBIS 1 /**< BACON start: Mahalanobis distances */
#define BRENN_SS_BACON_INIT_MEDIAN 2      /**< BACON start: distances from the medians */
/** @} */

/** @name Estimate bits
 * What a compute entry is asked for; bits combine.
 * @{ */
#define BRENN_SS_MEAN 0x1ULL                   /**< means */
#define BRENN_SS_2R_MOM 0x2ULL                 /**< raw moments of order 2 */
#define BRENN_SS_3R_MOM 0x4ULL                 /**< raw moments of order 3 */
#define BRENN_SS_4R_MOM 0x8ULL                 /**< raw moments of order 4 */
#define BRENN_SS_2C_MOM 0x10ULL                /**< central moments of order 2 */
#define BRENN_SS_3C_MOM 0x20ULL                /**< central moments of order 3 */
#define BRENN_SS_4C_MOM 0x40ULL                /**< central moments of order 4 */
#define BRENN_SS_KURTOSIS 0x80ULL              /**< kurtosis */
#define BRENN_SS_SKEWNESS 0x100ULL             /**< skewness */
#define BRENN_SS_VARIATION 0x200ULL            /**< coefficients of variation */
#define BRENN_SS_MIN 0x400ULL                  /**< minima */
#define BRENN_SS_MAX 0x800ULL                  /**< maxima */
#define BRENN_SS_COV 0x1000ULL                 /**< covariance matrix */
#define BRENN_SS_COR 0x2000ULL                 /**< correlation matrix */
#define BRENN_SS_POOLED_COV 0x4000ULL          /**< pooled covariance */
#define BRENN_SS_GROUP_COV 0x8000ULL           /**< group covariances */
#define BRENN_SS_QUANTS 0x10000ULL             /**< quantiles */
#define BRENN_SS_ORDER_STATS 0x20000ULL        /**< order statistics */
#define BRENN_SS_ROBUST_COV 0x40000ULL         /**< robust covariance */
#define BRENN_SS_OUTLIERS 0x80000ULL           /**< outlier detection */
#define BRENN_SS_PARTIAL_COV 0x100000ULL       /**< partial covariance */
#define BRENN_SS_PARTIAL_COR 0x200000ULL       /**< partial correlation */
#define BRENN_SS_MISSING_VALS 0x400000ULL      /**< missing values */
#define BRENN_SS_PARAMTR_COR 0x800000ULL       /**< parametrized correlation */
#define BRENN_SS_STREAM_QUANTS 0x1000000ULL    /**< streaming quantiles */
#define BRENN_SS_SUM 0x2000000ULL              /**< sums */
#define BRENN_SS_2R_SUM 0x4000000ULL           /**< raw sums of order 2 */
#define BRENN_SS_3R_SUM 0x8000000ULL           /**< raw sums of order 3 */
#define BRENN_SS_4R_SUM 0x10000000ULL          /**< raw sums of order 4 */
#define BRENN_SS_2C_SUM 0x20000000ULL          /**< central sums of order 2 */
#define BRENN_SS_3C_SUM 0x40000000ULL          /**< central sums of order 3 */
#define BRENN_SS_4C_SUM 0x80000000ULL          /**< central sums of order 4 */
#define BRENN_SS_CP 0x100000000ULL             /**< cross-product matrix */
#define BRENN_SS_MDAD 0x200000000ULL           /**< median absolute deviation */
#define BRENN_SS_SORTED_OBSERV 0x8000000000ULL /**< sorted observations */
#define BRENN_SS_MAH_DIST 0x10000000000ULL     /**< Mahalanobis distances */
/** @} */

/** Creates a task over the caller's observations. Integer words are passed by address
 * (const void*) because their width is the task's index width; the task keeps the
 * addresses and reads the words at compute time.
 * @param task where the handle of the new task is stored (left null on failure)
 * @param p address of the dimension: the number of variables, above 0
 * @param n address of the number of observations; read only when x is not null
 * @param storage address of the storage word of x (BRENN_SS_MATRIX_STORAGE_ROWS or
 *        _COLS); read only when x is not null
 * @param x the observation matrix, or null to give it later
 * @param weights n observation weights, or null for weight 1
 * @param indices p words, 0 leaving a variable out, or null for all variables
 * @param indexWidth 0: the integer words are 32 bits; otherwise 64 bits
 * @return BRENN_SS_OK; BRENN_SS_ERROR_DIMENSION, BRENN_SS_ERROR_STORAGE_WORD_MISSING,
 *         BRENN_SS_ERROR_STORAGE, BRENN_SS_ERROR_OBSERVATION_COUNT or
 *         BRENN_SS_ERROR_ALLOC. */
int32_t _qesdSSNewTask(void** task, const void* p, const void* n, const void* storage,
                       const double* x, const double* weights, const void* indices,
                       int32_t indexWidth);
/** The single-precision form of _qesdSSNewTask().
 * @copydetails _qesdSSNewTask */
int32_t _qessSSNewTask(void** task, const void* p, const void* n, const void* storage,
                       const float* x, const float* weights, const void* indices,
                       int32_t indexWidth);
/** Ends a task: frees its record and its work blocks, never the caller's arrays.
 * @param task address of the handle; null is stored into it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null address. */
int32_t _qesSSDeleteTask(void** task);

/** Sets one real field of a task (a real parameter id) to an address.
 * @param task the task
 * @param id a real parameter id (BRENN_SS_ED_*)
 * @param address the caller's array
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; BRENN_SS_ERROR_BADARGS for an id out of
 *         range or of the integer editor; for a null address the field's own "missing"
 *         status, the field keeping its value. */
int32_t _qesdSSEditTask(void* task, int64_t id, const double* address);
/** The single-precision form of _qesdSSEditTask().
 * @copydetails _qesdSSEditTask */
int32_t _qessSSEditTask(void* task, int64_t id, const float* address);
/** Sets one integer field of a task (dimension, counts, indices, storage words) to the
 * address of the caller's word.
 * @param task the task
 * @param id an integer parameter id (BRENN_SS_ED_*)
 * @param address the caller's word or array
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; BRENN_SS_ERROR_BADARGS for an id out of
 *         range or of the real editors; for a null address the field's own "missing"
 *         status, the field keeping its value. */
int32_t _qesiSSEditTask(void* task, int64_t id, const void* address);

/** Declares the thin editors under one precision letter t (d or s): each address that
 * is not null is stored, a null one leaves its field. The __qess and __qesd names are
 * one function. */
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
/* The declarations made by the macros above, one line each for Doxygen. */
/* clang-format off */
/** @fn int32_t __qesdSSEditMoments(void* task, void* mean, void* rawMoment2, void* rawMoment3, void* rawMoment4, void* centralMoment2, void* centralMoment3, void* centralMoment4)
 * Sets the mean and moment arrays of a task.
 * @param task the task
 * @param mean address of p means, or null to leave it
 * @param rawMoment2 address of p raw moments of order 2, or null to leave it
 * @param rawMoment3 address of p raw moments of order 3, or null to leave it
 * @param rawMoment4 address of p raw moments of order 4, or null to leave it
 * @param centralMoment2 address of p central moments of order 2, or null to leave it
 * @param centralMoment3 address of p central moments of order 3, or null to leave it
 * @param centralMoment4 address of p central moments of order 4, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditMoments(void* task, void* mean, void* rawMoment2, void* rawMoment3, void* rawMoment4, void* centralMoment2, void* centralMoment3, void* centralMoment4)
 * The same function as __qesdSSEditMoments(). @copydetails __qesdSSEditMoments */
/** @fn int32_t __qesdSSEditSums(void* task, void* sum, void* rawSum2, void* rawSum3, void* rawSum4, void* centralSum2, void* centralSum3, void* centralSum4)
 * Sets the sum arrays of a task.
 * @param task the task
 * @param sum address of p sums, or null to leave it
 * @param rawSum2 address of p raw sums of order 2, or null to leave it
 * @param rawSum3 address of p raw sums of order 3, or null to leave it
 * @param rawSum4 address of p raw sums of order 4, or null to leave it
 * @param centralSum2 address of p central sums of order 2, or null to leave it
 * @param centralSum3 address of p central sums of order 3, or null to leave it
 * @param centralSum4 address of p central sums of order 4, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditSums(void* task, void* sum, void* rawSum2, void* rawSum3, void* rawSum4, void* centralSum2, void* centralSum3, void* centralSum4)
 * The same function as __qesdSSEditSums(). @copydetails __qesdSSEditSums */
/** @fn int32_t __qesdSSEditCovCor(void* task, void* mean, void* covariance, void* covStorage, void* correlation, void* corStorage)
 * Sets the mean, covariance and correlation of a task.
 * @param task the task
 * @param mean address of p means, or null to leave it
 * @param covariance address of the covariance matrix, or null to leave it
 * @param covStorage address of the storage word of the covariance, or null to leave it
 * @param correlation address of the correlation matrix, or null to leave it
 * @param corStorage address of the storage word of the correlation, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditCovCor(void* task, void* mean, void* covariance, void* covStorage, void* correlation, void* corStorage)
 * The same function as __qesdSSEditCovCor(). @copydetails __qesdSSEditCovCor */
/** @fn int32_t __qesdSSEditCP(void* task, void* mean, void* sum, void* crossProduct, void* crossProductStorage)
 * Sets the mean, sum and cross-product of a task.
 * @param task the task
 * @param mean address of p means, or null to leave it
 * @param sum address of p sums, or null to leave it
 * @param crossProduct address of the cross-product matrix, or null to leave it
 * @param crossProductStorage address of the storage word of the cross-product, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditCP(void* task, void* mean, void* sum, void* crossProduct, void* crossProductStorage)
 * The same function as __qesdSSEditCP(). @copydetails __qesdSSEditCP */
/** @fn int32_t __qesdSSEditPartialCovCor(void* task, void* partialParamIndexCount, void* covariance, void* covStorage, void* correlation, void* corStorage, void* partialCov, void* partialCovStorage, void* partialCor, void* partialCorStorage)
 * Sets the partial covariance and correlation fields of a task.
 * @param task the task
 * @param partialParamIndexCount address of the index array of the partial covariance, or null to leave it
 * @param covariance address of the covariance matrix, or null to leave it
 * @param covStorage address of the storage word of the covariance, or null to leave it
 * @param correlation address of the correlation matrix, or null to leave it
 * @param corStorage address of the storage word of the correlation, or null to leave it
 * @param partialCov address of the partial covariance, or null to leave it
 * @param partialCovStorage address of its storage word, or null to leave it
 * @param partialCor address of the partial correlation, or null to leave it
 * @param partialCorStorage address of its storage word, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditPartialCovCor(void* task, void* partialParamIndexCount, void* covariance, void* covStorage, void* correlation, void* corStorage, void* partialCov, void* partialCovStorage, void* partialCor, void* partialCorStorage)
 * The same function as __qesdSSEditPartialCovCor(). @copydetails __qesdSSEditPartialCovCor */
/** @fn int32_t __qesdSSEditQuantiles(void* task, void* quantileOrderCount, void* quantileOrders, void* quantiles, void* orderStatistics, void* orderStatisticsStorage)
 * Sets the quantile and order-statistics fields of a task.
 * @param task the task
 * @param quantileOrderCount address of the number of quantile orders m, or null to leave it
 * @param quantileOrders address of m orders in (0, 1), or null to leave it
 * @param quantiles address of the quantiles, m for each variable, or null to leave it
 * @param orderStatistics address of the order statistics, or null to leave it
 * @param orderStatisticsStorage address of their storage word, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditQuantiles(void* task, void* quantileOrderCount, void* quantileOrders, void* quantiles, void* orderStatistics, void* orderStatisticsStorage)
 * The same function as __qesdSSEditQuantiles(). @copydetails __qesdSSEditQuantiles */
/** @fn int32_t __qesdSSEditStreamQuantiles(void* task, void* streamOrderCount, void* streamOrders, void* streamQuantiles, void* streamParamCount, void* streamParams)
 * Sets the streaming quantile fields of a task.
 * @param task the task
 * @param streamOrderCount address of the number of streaming quantile orders, or null to leave it
 * @param streamOrders address of the streaming quantile orders, or null to leave it
 * @param streamQuantiles address of the streaming quantiles, or null to leave it
 * @param streamParamCount address of the number of streaming parameters, or null to leave it
 * @param streamParams address of the streaming parameters (element 0: the accuracy), or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditStreamQuantiles(void* task, void* streamOrderCount, void* streamOrders, void* streamQuantiles, void* streamParamCount, void* streamParams)
 * The same function as __qesdSSEditStreamQuantiles(). @copydetails __qesdSSEditStreamQuantiles */
/** @fn int32_t __qesdSSEditPooledCovariance(void* task, void* pooledGroupCount, void* pooledOutMean, void* pooledOutCov, void* pooledStorage, void* pooledMean, void* pooledCov)
 * Sets the pooled and group covariance fields of a task.
 * @param task the task
 * @param pooledGroupCount address of the number of groups, or null to leave it
 * @param pooledOutMean address of the pooled mean, or null to leave it
 * @param pooledOutCov address of the pooled covariance, or null to leave it
 * @param pooledStorage address of the storage word of the group indices, or null to leave it
 * @param pooledMean address of the group means, or null to leave it
 * @param pooledCov address of the group covariances, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditPooledCovariance(void* task, void* pooledGroupCount, void* pooledOutMean, void* pooledOutCov, void* pooledStorage, void* pooledMean, void* pooledCov)
 * The same function as __qesdSSEditPooledCovariance(). @copydetails __qesdSSEditPooledCovariance */
/** @fn int32_t __qesdSSEditRCov(void* task, void* robustCovStorage, void* robustParamCount, void* robustParams, void* robustMean, void* robustCov)
 * Sets the robust covariance fields of a task.
 * @param task the task
 * @param robustCovStorage address of the storage word of the robust covariance, or null to leave it
 * @param robustParamCount address of the number of robust covariance parameters, or null to leave it
 * @param robustParams address of the robust covariance parameters, or null to leave it
 * @param robustMean address of the robust mean, or null to leave it
 * @param robustCov address of the robust covariance, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditRCov(void* task, void* robustCovStorage, void* robustParamCount, void* robustParams, void* robustMean, void* robustCov)
 * The same function as __qesdSSEditRCov(). @copydetails __qesdSSEditRCov */
/** @fn int32_t __qesdSSEditOutDetect(void* task, void* outlierParamCount, void* outlierParams, void* outlierWeights)
 * Sets the outlier detection fields of a task.
 * @param task the task
 * @param outlierParamCount address of the number of outlier detection parameters, or null to leave it
 * @param outlierParams address of the outlier detection parameters, or null to leave it
 * @param outlierWeights address of the outlier weights, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditOutDetect(void* task, void* outlierParamCount, void* outlierParams, void* outlierWeights)
 * The same function as __qesdSSEditOutDetect(). @copydetails __qesdSSEditOutDetect */
/** @fn int32_t __qesdSSEditMissingVals(void* task, void* missingParamCount, void* missingParams, void* missingPatternCount, void* missingPatterns, void* missingSimCount, void* missingSimMeans, void* missingMeanCount, void* missingMeans, void* missingCovCount, void* missingCovs)
 * Sets the missing-value fields of a task.
 * @param task the task
 * @param missingParamCount address of the number of missing-value parameters, or null to leave it
 * @param missingParams address of the missing-value parameters, or null to leave it
 * @param missingPatternCount address of the pattern count, or null to leave it
 * @param missingPatterns address of the patterns, or null to leave it
 * @param missingSimCount address of the number of simulations, or null to leave it
 * @param missingSimMeans address of the simulated means, or null to leave it
 * @param missingMeanCount address of the mean count, or null to leave it
 * @param missingMeans address of the means, or null to leave it
 * @param missingCovCount address of the covariance count, or null to leave it
 * @param missingCovs address of the covariances, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditMissingVals(void* task, void* missingParamCount, void* missingParams, void* missingPatternCount, void* missingPatterns, void* missingSimCount, void* missingSimMeans, void* missingMeanCount, void* missingMeans, void* missingCovCount, void* missingCovs)
 * The same function as __qesdSSEditMissingVals(). @copydetails __qesdSSEditMissingVals */
/** @fn int32_t __qesdSSEditMtxParametrz(void* task, void* correlation, void* corStorage, void* parametrizedCor, void* parametrizedCorStorage)
 * Sets the correlation parametrization fields of a task.
 * @param task the task
 * @param correlation address of the correlation matrix, or null to leave it
 * @param corStorage address of the storage word of the correlation, or null to leave it
 * @param parametrizedCor address of the parametrized correlation, or null to leave it
 * @param parametrizedCorStorage address of its storage word, or null to leave it
 * @return BRENN_SS_OK, or BRENN_SS_ERROR_TASK_NULL for a null task. */
/** @fn int32_t __qessSSEditMtxParametrz(void* task, void* correlation, void* corStorage, void* parametrizedCor, void* parametrizedCorStorage)
 * The same function as __qesdSSEditMtxParametrz(). @copydetails __qesdSSEditMtxParametrz */
/* clang-format on */

/** Compute: moments, sums, skewness, kurtosis, variation, covariance, correlation and
 * cross-product of the task's observations (or, with the conversion methods, of its
 * sums and cross-product), into the task's arrays.
 * @param task the task
 * @param estimates the estimate bits asked (BRENN_SS_MEAN ... BRENN_SS_CP)
 * @param method one method word (BRENN_SS_METHOD_*)
 * @param thr the threading record, or null for the calling thread
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; BRENN_SS_ERROR_METHOD for a method word
 *         that cannot be used, an estimate it cannot give, or a block that can't be
 *         joined to a data set another task fed; the "missing" status of the lowest
 *         position of the estimate set whose array the estimates need and the task lacks;
 *         BRENN_SS_ERROR_DIMENSION, BRENN_SS_ERROR_OBSERVATION_COUNT,
 *         BRENN_SS_ERROR_OBSERVATIONS_MISSING, BRENN_SS_ERROR_STORAGE_WORD_MISSING or
 *         BRENN_SS_ERROR_STORAGE for the observations;
 *         BRENN_SS_ERROR_ACCUM_WEIGHT_MISSING for a conversion without accumulated
 *         weights; BRENN_SS_ERROR_ALLOC. */
int32_t _qesdSSBasic(void* task, uint64_t estimates, uint64_t method, const struct threader* thr);
/** The single-precision form of _qesdSSBasic().
 * @copydetails _qesdSSBasic */
int32_t _qessSSBasic(void* task, uint64_t estimates, uint64_t method, const struct threader* thr);

/** Minimum (0x400) and maximum (0x800): the arrays are updated, so the caller primes
 * them (with +/- infinity, or the result of a former block). Method BRENN_SS_METHOD_FAST
 * or 0x2. NaN observations are passed over.
 * @param task the task
 * @param estimates BRENN_SS_MIN, BRENN_SS_MAX or both
 * @param method BRENN_SS_METHOD_FAST or 0x2
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; BRENN_SS_ERROR_STORAGE;
 *         BRENN_SS_ERROR_MINIMUM_MISSING or BRENN_SS_ERROR_MAXIMUM_MISSING;
 *         BRENN_SS_ERROR_METHOD; the observation statuses of _qesdSSBasic(). */
int32_t _qesdSSMinmax(void* task, uint64_t estimates, uint64_t method);
/** The single-precision form of _qesdSSMinmax().
 * @copydetails _qesdSSMinmax */
int32_t _qessSSMinmax(void* task, uint64_t estimates, uint64_t method);

/** @name Sort and select in place
 * Quicksort with the median of three and straight insertion below 7 elements, by
 * strict comparisons: NaNs are not ordered (they stop the scans as equal values
 * would) but never make the routines read or write outside the array.
 * @{ */
/** Sorts a[0, n) ascending. */
void __qesdQSort(int64_t n, double* a);
/** The single-precision form of __qesdQSort(). */
void __qessQSort(int64_t n, float* a);
/** Sorts the n elements a[0], a[step], ... a[(n - 1) * step] ascending. */
void __qesdQSortStep(int64_t n, double* a, int64_t step);
/** The single-precision form of __qesdQSortStep(). */
void __qessQSortStep(int64_t n, float* a, int64_t step);
/** Rearranges a[0, n) so that a[k] (0 <= k < n) holds the k-th smallest value, with no
 * greater value before it and no smaller one after it; returns a[k]. */
double __qesdQSortSelect(int64_t n, double* a, int64_t k);
/** The single-precision form of __qesdQSortSelect(). */
float __qessQSortSelect(int64_t n, float* a, int64_t k);
/** @} */

/** Quantiles (BRENN_SS_QUANTS) and order statistics (BRENN_SS_ORDER_STATS) of each
 * variable that the indices keep. For an order b of n values: h = b (n - 1),
 * j = trunc(h), f = h - j, and the quantile is a (1 - f) + f c with a and c the j-th
 * and (j + 1)-th smallest values (c = a at the top): b = 0 gives the minimum and b = 1
 * the maximum. Variable v's quantile of order k goes to quantiles[v * m + k]; its
 * sorted values go to the order statistics in the layout of their storage word.
 * The observations are not changed; variables left out keep their results.
 * @param task the task
 * @param estimates BRENN_SS_QUANTS, BRENN_SS_ORDER_STATS or both
 * @param method BRENN_SS_METHOD_FAST
 * @param thr the threading record, or null for the calling thread
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; in this order:
 *         BRENN_SS_ERROR_OBSERVATIONS_MISSING, BRENN_SS_ERROR_OBSERVATION_COUNT,
 *         BRENN_SS_ERROR_DIMENSION, BRENN_SS_ERROR_STORAGE_WORD_MISSING (the observations'
 *         or the order statistics' storage word), BRENN_SS_ERROR_STORAGE,
 *         BRENN_SS_ERROR_QUANTILE_ORDERS_MISSING, BRENN_SS_ERROR_QUANTILES_MISSING,
 *         BRENN_SS_ERROR_QUANTILE_ORDER_COUNT (count missing or below 0, or an order
 *         outside [0, 1] or NaN), BRENN_SS_ERROR_ORDER_STATISTICS_MISSING,
 *         BRENN_SS_ERROR_METHOD, BRENN_SS_ERROR_ALLOC. */
int32_t _qesdSSQuantiles(void* task, uint64_t estimates, uint64_t method,
                         const struct threader* thr);
/** The single-precision form of _qesdSSQuantiles().
 * @copydetails _qesdSSQuantiles */
int32_t _qessSSQuantiles(void* task, uint64_t estimates, uint64_t method,
                         const struct threader* thr);

/** Sorted observations (BRENN_SS_SORTED_OBSERV): each variable that the indices keep,
 * ascending, into the sorted-observation matrix in the layout of its storage word. The
 * result may be x itself (sorted in place) when its storage word equals x's and no
 * indices are set.
 * @param task the task
 * @param estimates BRENN_SS_SORTED_OBSERV (without it nothing is done)
 * @param method BRENN_SS_METHOD_FAST
 * @param thr the threading record, or null for the calling thread
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; the observation statuses of
 *         _qesdSSQuantiles(); BRENN_SS_ERROR_SORTED_MISSING;
 *         BRENN_SS_ERROR_STORAGE_WORD_MISSING; BRENN_SS_ERROR_STORAGE;
 *         BRENN_SS_ERROR_SORT_STORAGE for a sort in place with another layout or with
 *         indices; BRENN_SS_ERROR_METHOD; BRENN_SS_ERROR_ALLOC. */
int32_t _qesdSSSort(void* task, uint64_t estimates, uint64_t method, const struct threader* thr);
/** The single-precision form of _qesdSSSort().
 * @copydetails _qesdSSSort */
int32_t _qessSSSort(void* task, uint64_t estimates, uint64_t method, const struct threader* thr);

/** Median absolute deviation (BRENN_SS_MDAD), unscaled: median(|x - median(x)|) of each
 * variable that the indices keep, both medians by the rule of _qesdSSQuantiles() at
 * order 0.5. The observations are not changed.
 * @param task the task
 * @param estimates BRENN_SS_MDAD (without it nothing is done)
 * @param method BRENN_SS_METHOD_FAST
 * @param result p values; variables left out keep theirs
 * @param thr the threading record, or null for the calling thread
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; the observation statuses of
 *         _qesdSSQuantiles(); BRENN_SS_ERROR_MAD_MISSING for a null result;
 *         BRENN_SS_ERROR_METHOD; BRENN_SS_ERROR_ALLOC. */
int32_t _qesdSSMAD(void* task, uint64_t estimates, uint64_t method, double* result,
                   const struct threader* thr);
/** The single-precision form of _qesdSSMAD().
 * @copydetails _qesdSSMAD */
int32_t _qessSSMAD(void* task, uint64_t estimates, uint64_t method, float* result,
                   const struct threader* thr);

/** Weighted median of each variable that the indices keep, with the task's weights,
 * into quantiles[v]. The values are sorted with their weights; c, the weight summed
 * up the sorted values, first reaches half = S / 2 (S the sum of all weights) at k.
 * Above half, with prev = c - w[k]: x[k] if prev <= 0, or if n is odd and
 * prev = (S - w[k]) / 2; else y + (half - prev) / w[k] * (x[k] - y), y the nearest
 * value below k with a positive weight. At half: x[k] if n is odd or k is the last
 * index; else the mean of x[k] and the next value with a positive weight (the last
 * value if none has). n counts observations of weight 0 too. Unit weights give the
 * plain median. Weights are expected at or above 0.
 * @param task the task
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; the observation statuses of
 *         _qesdSSQuantiles(); BRENN_SS_ERROR_WEIGHTS_MISSING without weights;
 *         BRENN_SS_ERROR_QUANTILES_MISSING; BRENN_SS_ERROR_ALLOC. */
int32_t _qesdSSWMedian(void* task);
/** The single-precision form of _qesdSSWMedian().
 * @copydetails _qesdSSWMedian */
int32_t _qessSSWMedian(void* task);

/** Streaming quantiles (BRENN_SS_STREAM_QUANTS): each call feeds the task's n
 * observations of each variable into a summary that the task keeps, and with
 * BRENN_SS_METHOD_STREAM_READ then writes the quantile of each streaming order of each
 * variable v to streamQuantiles[v * m + k]. With accuracy eps (element 0 of the
 * streaming parameters), over the N observations fed so far, the value given for order
 * b has a rank in the sorted data within eps N of b N. The summary depends only on the
 * sequence of observations, not on how it was cut into calls; it holds a number of
 * entries that grows as log2(eps N) / eps (the exact count for some N is in the
 * benchmark's report), and is freed with the task. Ranks are 32-bit: a variable takes
 * fewer than 2^31 observations. The dimension, eps and the variables the indices keep
 * are fixed by the first call: a later p above the first gives
 * BRENN_SS_ERROR_DIMENSION, indices that take in a variable left out at first
 * BRENN_SS_ERROR_INDICES_MISSING, and a change of eps is not noticed.
 * @param task the task
 * @param estimates BRENN_SS_STREAM_QUANTS (without it nothing is done)
 * @param method BRENN_SS_METHOD_STREAM_READ (feed, then read) or
 *        BRENN_SS_METHOD_STREAM_FEED (feed only)
 * @param thr the threading record, or null for the calling thread
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; in this order:
 *         BRENN_SS_ERROR_OBSERVATION_COUNT, BRENN_SS_ERROR_OBSERVATIONS_MISSING,
 *         BRENN_SS_ERROR_DIMENSION, BRENN_SS_ERROR_STORAGE_WORD_MISSING,
 *         BRENN_SS_ERROR_STORAGE, BRENN_SS_ERROR_STREAM_QUANTILES_MISSING,
 *         BRENN_SS_ERROR_STREAM_ORDERS_MISSING, BRENN_SS_ERROR_STREAM_ORDER_COUNT (count
 *         missing or below 0), BRENN_SS_ERROR_STREAM_PARAM_COUNT_MISSING,
 *         BRENN_SS_ERROR_STREAM_PARAM_COUNT, BRENN_SS_ERROR_STREAM_ORDER_COUNT (an order
 *         outside [0, 1] or NaN), BRENN_SS_ERROR_STREAM_PARAMS_MISSING,
 *         BRENN_SS_ERROR_METHOD, BRENN_SS_ERROR_STREAM_ACCURACY (eps not in (0, 1]),
 *         BRENN_SS_ERROR_INDICES_MISSING; BRENN_SS_ERROR_ALLOC, after which the summary
 *         holds the observations fed before the failure. */
int32_t _qesdSSStreamQuantiles(void* task, uint64_t estimates, uint64_t method,
                               const struct threader* thr);
/** The single-precision form of _qesdSSStreamQuantiles().
 * @copydetails _qesdSSStreamQuantiles */
int32_t _qessSSStreamQuantiles(void* task, uint64_t estimates, uint64_t method,
                               const struct threader* thr);
/** Frees the streaming summary of a task and sets its state to null; the task's
 * clean-up hook, called by _qesSSDeleteTask(). */
void __qesSQuantilesFreeBuffers(void* task);

/** Robust covariance (BRENN_SS_ROBUST_COV): the minimum covariance determinant estimate
 * of the variables that the indices keep (q of them), by FAST-MCD (Rousseeuw and Van
 * Driessen, 1999). Among the h-subsets of the observations it looks for the one whose
 * covariance has the least determinant: random (q + 1)-subsets, each grown by random
 * observations while its covariance is singular, start concentration steps (the h
 * observations nearest the current mean and covariance, then their mean and
 * covariance); two steps a start, then the ten best continue until their subset repeats
 * or the step limit is reached. Above 600 observations (with q below 150) the starts run
 * in up to five disjoint random subsets of about 300 observations, sharing the starts, the
 * ten best of
 * each are stepped twice in the union of the subsets, and the ten best of those on all
 * observations. With one variable the search is exact: the best of the windows of h
 * consecutive sorted values. The raw covariance of the best subset is scaled by med(d^2) /
 * chi2_q(0.5), d the Mahalanobis distances of all observations from it; then the
 * observations with d^2 at or below chi2_q(0.975) give the result: their mean into
 * robustMean and their covariance, divisor count - 1, into robustCov in the form of its
 * storage word (variables left out keep theirs). Draws come from an MT19937 stream of
 * the library seeded with the seed parameter: a seed gives the same result on any
 * threader. Observations with a value that is not finite (NaN, signalling or quiet, or
 * infinity) in a kept variable are left out, and n below is the count of the others.
 * The task's weights are not read. Both precisions compute in double.
 *
 * robustParams (count `robustParamCount`, 0 to 4; absent ones take their default):
 *   [0] h / n: h = floor(value n), in (0, 1] with h at least q + 1; default
 *       (n + q + 1) / 2n, that is h = floor((n + q + 1) / 2)
 *   [1] number of random starts, a whole number from 1 to 2^31; default 500
 *   [2] limit of concentration steps of the last stage, 1 to 2^31; default 100
 *   [3] seed of the MT19937 stream, a whole number from 0 to 2^32 - 1; default 1
 *
 * Exact fit: when h observations or more lie on a hyperplane (a subset whose variable
 * has a variance given the others at or below 2^-40 of its own, the others within
 * 2^-18 of its spread of it), their covariance is singular and no determinant is
 * smaller: the search ends, the mean and covariance (divisor count - 1) of all the
 * observations on the hyperplane are stored and BRENN_SS_ERROR_EXACT_FIT is returned.
 * @param task the task
 * @param estimates BRENN_SS_ROBUST_COV (without it nothing is done)
 * @param method BRENN_SS_METHOD_FASTMCD
 * @param thr the threading record (starts run through its loop), or null for the
 *        calling thread
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; in this order:
 *         BRENN_SS_ERROR_OBSERVATIONS_MISSING, BRENN_SS_ERROR_OBSERVATION_COUNT,
 *         BRENN_SS_ERROR_DIMENSION, BRENN_SS_ERROR_STORAGE_WORD_MISSING (the
 *         observations' or robustCovStorage), BRENN_SS_ERROR_STORAGE (either word),
 *         BRENN_SS_ERROR_ROBUST_COV_MISSING, BRENN_SS_ERROR_ROBUST_MEAN_MISSING,
 *         BRENN_SS_ERROR_ROBUST_PARAM_COUNT (count below 0 or above 4),
 *         BRENN_SS_ERROR_ROBUST_PARAMS_MISSING (no array for a count above 0),
 *         BRENN_SS_ERROR_METHOD,
 *         BRENN_SS_ERROR_ALLOC, BRENN_SS_ERROR_OBSERVATION_COUNT (fewer than q + 1
 *         finite observations), BRENN_SS_ERROR_ROBUST_PARAMS_MISSING (a parameter out
 *         of its range); after the search BRENN_SS_ERROR_EXACT_FIT (results stored),
 *         BRENN_SS_ERROR_NO_CONVERGENCE (the best subset still changed at the step
 *         limit; results stored) or BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE (every
 *         candidate became singular without h observations on its hyperplane; nothing
 *         stored). */
int32_t _qesdSSRobustCovariance(void* task, uint64_t estimates, uint64_t method,
                                const struct threader* thr);
/** The single-precision form of _qesdSSRobustCovariance().
 * @copydetails _qesdSSRobustCovariance */
int32_t _qessSSRobustCovariance(void* task, uint64_t estimates, uint64_t method,
                                const struct threader* thr);

/** Outlier detection (BRENN_SS_OUTLIERS) by BACON (Billor, Hadi and Velleman, 2000) on
 * the variables that the indices keep (q of them). A basic subset of r = ceil(c q)
 * observations (at least q + 1, at most n) nearest the centre, grown one at a time while
 * its covariance is singular; then, until the subset's size repeats, the subset becomes
 * the observations whose Mahalanobis distance from its mean and covariance (divisor
 * r - 1) is below (c_np + c_hr) chi, with c_np = 1 + (q + 1) / (n - q) +
 * 2 / (n - 1 - 3q), c_hr = max(0, (h - r) / (h + r)), h = floor((n + q + 1) / 2) and
 * chi^2 the chi-square quantile of q degrees of freedom with upper tail alpha / n.
 * outlierWeights[i] is 1 for an observation of the last subset and 0 for an outlier.
 * Observations with a value that is not finite in a kept variable get weight 0 and take
 * no other part (n counts the others). The task's weights are not read. Both precisions
 * compute in double; the distances of each round run through the threader in fixed
 * blocks, so the weights are the same on any threader.
 *
 * outlierParams (count `outlierParamCount`, 0 to 3; absent ones take their default):
 *   [0] alpha, in (0, 1); default 0.05
 *   [1] start: BRENN_SS_BACON_INIT_MAHALANOBIS (distances from the mean and covariance
 *       of all observations) or BRENN_SS_BACON_INIT_MEDIAN (Euclidean distances from
 *       the coordinate-wise medians); default BRENN_SS_BACON_INIT_MAHALANOBIS
 *   [2] c, the basic subset's size over q, in (0, 2^31]; default 4
 * @param task the task
 * @param estimates BRENN_SS_OUTLIERS (without it nothing is done)
 * @param method BRENN_SS_METHOD_BACON
 * @param thr the threading record, or null for the calling thread
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; in this order: the observation statuses
 *         of _qesdSSQuantiles(), BRENN_SS_ERROR_OUTLIER_WEIGHTS_MISSING,
 *         BRENN_SS_ERROR_OUTLIER_PARAM_COUNT (count below 0 or above 3),
 *         BRENN_SS_ERROR_OUTLIER_PARAMS_MISSING (no array for a count above 0, or a
 *         parameter out of its range), BRENN_SS_ERROR_METHOD, BRENN_SS_ERROR_ALLOC,
 *         BRENN_SS_ERROR_OBSERVATION_COUNT (n at or below 3q + 1, where c_np has no
 *         meaning); BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE when all observations, or a
 *         later subset, have a singular covariance (weights not written);
 *         BRENN_SS_ERROR_NO_CONVERGENCE when the size still changed after n rounds
 *         (weights of the last subset written). */
int32_t _qesdSSOutliersDetection(void* task, uint64_t estimates, uint64_t method,
                                 const struct threader* thr);
/** The single-precision form of _qesdSSOutliersDetection().
 * @copydetails _qesdSSOutliersDetection */
int32_t _qessSSOutliersDetection(void* task, uint64_t estimates, uint64_t method,
                                 const struct threader* thr);

/** @name Partial, pooled and parametrized covariance, Mahalanobis distances
 * Method BRENN_SS_METHOD_FAST (else BRENN_SS_ERROR_METHOD). Without their estimate bits
 * the entries do nothing and return BRENN_SS_OK. Matrix arrays are read and written in
 * the forms of their storage words (BRENN_SS_MATRIX_STORAGE_FULL, _U_PACKED,
 * _L_PACKED); a missing storage word gives BRENN_SS_ERROR_STORAGE_WORD_MISSING, an
 * unknown one BRENN_SS_ERROR_STORAGE. Variables that `indices` leaves out take no part
 * and keep what their result places held.
 * @{ */
/** Partial covariance (BRENN_SS_PARTIAL_COV) and correlation (BRENN_SS_PARTIAL_COR):
 * `partialParamIndexCount` (id 45) holds p index-width words, 1 for a result variable
 * (Y), -1 for a conditioning variable (Z), 0 for neither. The partial covariance is
 * S_YY - S_YZ S_ZZ^-1 S_ZY, through the Cholesky factor of S_ZZ (no inverse); the
 * partial correlation is its normalisation r_ab = s_ab / sqrt(s_aa s_bb). Both are
 * matrices of dimension ny (the number of result variables), in the order of the
 * variables' indices. S is the task's `covariance` (form `covStorage`); with
 * BRENN_SS_COV in the estimates it is made first by _qesdSSBasic() with the blocked
 * method (together with BRENN_SS_MEAN and BRENN_SS_COR if asked), else the caller's
 * matrix is read. Without conditioning variables the result is S_YY.
 * @param task the task
 * @param estimates BRENN_SS_PARTIAL_COV, BRENN_SS_PARTIAL_COR, and optionally
 *        BRENN_SS_COV (BRENN_SS_MEAN, BRENN_SS_COR) for the basic compute first
 * @param method BRENN_SS_METHOD_FAST
 * @param thr the threading record (for the basic compute), or null
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; in this order:
 *         BRENN_SS_ERROR_DIMENSION, BRENN_SS_ERROR_PARTIAL_INDICES (array missing or a
 *         word other than 1, -1, 0), BRENN_SS_ERROR_PARTIAL_COV_MISSING and
 *         BRENN_SS_ERROR_PARTIAL_COR_MISSING (or their storage statuses),
 *         BRENN_SS_ERROR_METHOD, the statuses of _qesdSSBasic() when it is run,
 *         BRENN_SS_ERROR_COV_MISSING (or the covariance's storage statuses),
 *         BRENN_SS_ERROR_ALLOC, BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE when S_ZZ is not
 *         (the results are not written). */
int32_t _qesdSSPartialCovariance(void* task, uint64_t estimates, uint64_t method,
                                 const struct threader* thr);
/** The single-precision form of _qesdSSPartialCovariance().
 * @copydetails _qesdSSPartialCovariance */
int32_t _qessSSPartialCovariance(void* task, uint64_t estimates, uint64_t method,
                                 const struct threader* thr);

/** Group covariances (BRENN_SS_GROUP_COV) and the pooled covariance
 * (BRENN_SS_POOLED_COV). `pooledGroupCount` (id 28) is the number of groups g and
 * `pooledStorage` (id 32) holds n index-width group labels, 0 to g - 1. Group k's mean
 * goes to pooledMean[k * p + j] and its unbiased covariance (cross-products of the
 * deviations from the group mean over n_k - 1) to the k-th matrix of `pooledCov`
 * (each of p * p elements in the full form, p (p + 1) / 2 packed). The pooled mean is
 * the mean of all n observations (`pooledOutMean`, p values), the pooled covariance
 * the sum of the groups' cross-products over n - g (`pooledOutCov`). A group of one
 * observation has a NaN covariance, an empty group NaN means too; n = g gives a NaN
 * pooled covariance. The results do not depend on the threader.
 * @param task the task
 * @param estimates BRENN_SS_GROUP_COV, BRENN_SS_POOLED_COV or both
 * @param method BRENN_SS_METHOD_FAST
 * @param thr the threading record (one group a unit of work), or null
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; in this order: the observation
 *         statuses of _qesdSSQuantiles(), BRENN_SS_ERROR_POOLED_GROUPS (count missing or
 *         not above 0, labels missing), BRENN_SS_ERROR_POOLED_MEAN_MISSING,
 *         BRENN_SS_ERROR_POOLED_COV_MISSING, BRENN_SS_ERROR_POOLED_OUT_MEAN_MISSING,
 *         BRENN_SS_ERROR_POOLED_OUT_COV_MISSING (with the storage statuses),
 *         BRENN_SS_ERROR_METHOD, BRENN_SS_ERROR_POOLED_GROUPS for a label outside 0 to
 *         g - 1, BRENN_SS_ERROR_ALLOC. */
int32_t _qesdSSPooledCovariance(void* task, uint64_t estimates, uint64_t method,
                                const struct threader* thr);
/** The single-precision form of _qesdSSPooledCovariance().
 * @copydetails _qesdSSPooledCovariance */
int32_t _qessSSPooledCovariance(void* task, uint64_t estimates, uint64_t method,
                                const struct threader* thr);

/** Parametrized correlation (BRENN_SS_PARAMTR_COR): the nearest correlation matrix to
 * `correlation` (form `corStorage`) in the weighted norm |W^1/2 (A - X) W^1/2|_F,
 * W = diag(multiplierA[j]), by alternating projections with Dykstra's correction
 * (Higham 2002), into `parametrizedCor` (form `parametrizedCorStorage`). The result
 * has a unit diagonal exactly and eigenvalues at or above -tolerance; a correlation
 * matrix comes back unchanged up to rounding.
 * `multiplierA` (id 76): p weights above 0 and finite; null: all 1.
 * `multiplierB` (id 77): two reals, the tolerance (above 0) on both max |1 - X_ii| of
 * the semidefinite iterate X and the Frobenius step of the iterate; and the iteration
 * limit (1 to 2^31 - 1). Null: 1e-12 (single: 1e-5) and 10000.
 * @param task the task
 * @param estimates BRENN_SS_PARAMTR_COR
 * @param method BRENN_SS_METHOD_FAST
 * @param thr not used (one matrix is one unit of work)
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; in this order:
 *         BRENN_SS_ERROR_DIMENSION (also p above 46340), BRENN_SS_ERROR_COR_MISSING,
 *         BRENN_SS_ERROR_PARAMETRIZED_COR_MISSING (with the storage statuses),
 *         BRENN_SS_ERROR_MULTIPLIER_B_MISSING for a tolerance or limit outside its
 *         range, BRENN_SS_ERROR_METHOD, BRENN_SS_ERROR_ALLOC,
 *         BRENN_SS_ERROR_MULTIPLIER_A_MISSING for a weight not above 0 or not finite,
 *         BRENN_SS_ERROR_NO_CONVERGENCE when the limit is reached or the input holds
 *         NaNs (the last iterate is stored). */
int32_t _qesdSSCorParametrization(void* task, uint64_t estimates, uint64_t method,
                                  const struct threader* thr);
/** The single-precision form of _qesdSSCorParametrization().
 * @copydetails _qesdSSCorParametrization */
int32_t _qessSSCorParametrization(void* task, uint64_t estimates, uint64_t method,
                                  const struct threader* thr);

/** Mahalanobis distances (BRENN_SS_MAH_DIST): result[i] =
 * sqrt((x_i - m)' S^-1 (x_i - m)) over the active variables, m the task's `mean` and S
 * its `covariance` (form `covStorage`), by S's Cholesky factor and a triangular solve
 * (no inverse). Observations go in fixed blocks of 256, so the results do not depend on
 * the threader. No active variable gives distances 0.
 * @param task the task
 * @param estimates BRENN_SS_MAH_DIST
 * @param method BRENN_SS_METHOD_FAST
 * @param result n distances
 * @param thr the threading record (blocks of observations), or null
 * @return BRENN_SS_OK; BRENN_SS_ERROR_TASK_NULL; in this order: the observation
 *         statuses of _qesdSSQuantiles(), BRENN_SS_ERROR_MEAN_MISSING,
 *         BRENN_SS_ERROR_COV_MISSING (with the storage statuses),
 *         BRENN_SS_ERROR_MAHALANOBIS_MISSING for a null result, BRENN_SS_ERROR_METHOD,
 *         BRENN_SS_ERROR_ALLOC, BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE when S is not
 *         (the result is not written). */
int32_t _qesdSSMahDistance(void* task, uint64_t estimates, uint64_t method, double* result,
                           const struct threader* thr);
/** The single-precision form of _qesdSSMahDistance().
 * @copydetails _qesdSSMahDistance */
int32_t _qessSSMahDistance(void* task, uint64_t estimates, uint64_t method, float* result,
                           const struct threader* thr);
/** @} */

/** Missing values (BRENN_SS_MISSING_VALS). A NaN (quiet or signalling) in x marks a
 * missing entry; only the variables that `indices` keeps take part, and entries of the
 * others are ignored. Both precisions compute in double.
 *
 * EM for the multivariate normal gives the maximum-likelihood mean and covariance
 * (divisor n) of the active variables, starting from each variable's observed mean and
 * variance (divisor its count) with covariances 0. The mean goes to missingMeans[j]
 * (`missingMeanCount`, id 54, at least p), the covariance to missingCovs[j * p + l] in
 * the full form (`missingCovCount`, id 56, at least p * p); places of variables left
 * out keep what they held. EM stops when no mean moves by more than tol sqrt(c_jj) and
 * no covariance by more than tol sqrt(c_jj c_ll) in one iteration (c the new
 * covariance); with nothing missing that is the second iteration, and the result is
 * the covariance of the data with divisor n.
 *
 * Then `missingSimCount` (id 58) imputations by data augmentation (Schafer 1997, normal
 * model, Jeffreys prior |Sigma|^-(q+1)/2) on one chain that starts at the EM estimate.
 * A step draws each missing entry from its normal distribution given the row's
 * observed entries (the I-step), then Sigma ~ W^-1(n - 1, (nS)^-1) by Bartlett's
 * decomposition (ChiSquare and Gaussian variates) and mu ~ N(ybar, Sigma / n), ybar and
 * S the completed data's means and covariance with divisor n (the P-step). Imputation k
 * (from 0) is the completed data after (k + 1) * steps steps: its K missing entries
 * (K the number of missing entries of the active variables) go to
 * missingPatterns[k * K + e], e counting the missing entries in the order they lie in
 * x's memory (for BRENN_SS_MATRIX_STORAGE_ROWS variable by variable, each by
 * observation; for BRENN_SS_MATRIX_STORAGE_COLS observation by observation, each by
 * variable); its means to missingSimMeans[k * p + j]. `missingPatternCount` (id 52)
 * must be at least M K. The draws come from an MT19937 stream of the given seed
 * (Gaussian method 1 of _qesdRngGaussian(), _qesdRngChiSquare()), so a seed gives the
 * same imputations on any threader; observed entries are never changed.
 *
 * `missingParams` (id 51), `missingParamCount` (id 50, 0 to 4; null counts as 0) of
 * them, in order, each absent one taking its default: the EM iteration limit (a whole
 * number from 1, default 1000); the tolerance (above 0 and finite, default 1e-6); the
 * augmentation steps between two imputations (a whole number from 1, default 10); the
 * seed (a whole number, 0 to 2^32 - 1, default 1).
 * @param task the task
 * @param estimates BRENN_SS_MISSING_VALS (without it nothing is done)
 * @param method BRENN_SS_METHOD_FAST
 * @param thr the threading record (fixed chunks of rows and of missing-value patterns,
 *        so the results do not depend on it), or null
 * @return BRENN_SS_OK (also with no active variable); BRENN_SS_ERROR_TASK_NULL; in this
 *         order: BRENN_SS_ERROR_OBSERVATIONS_MISSING, BRENN_SS_ERROR_OBSERVATION_COUNT,
 *         BRENN_SS_ERROR_DIMENSION, BRENN_SS_ERROR_STORAGE_WORD_MISSING,
 *         BRENN_SS_ERROR_STORAGE, BRENN_SS_ERROR_MISSING_PARAM_COUNT (below 0 or above
 *         4), BRENN_SS_ERROR_MISSING_PARAMS_MISSING (null with a count above 0, or a
 *         parameter outside its range), BRENN_SS_ERROR_MISSING_MEANS_MISSING,
 *         BRENN_SS_ERROR_MISSING_MEAN_COUNT, BRENN_SS_ERROR_MISSING_COVS_MISSING,
 *         BRENN_SS_ERROR_MISSING_COV_COUNT, BRENN_SS_ERROR_MISSING_SIM_COUNT (below 0;
 *         null counts as 0), with imputations BRENN_SS_ERROR_MISSING_SIM_MEANS_MISSING,
 *         BRENN_SS_ERROR_MISSING_PATTERNS_MISSING and BRENN_SS_ERROR_MISSING_PATTERN_COUNT
 *         (null or below M K), BRENN_SS_ERROR_METHOD; then BRENN_SS_ERROR_ALLOC;
 *         BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE when n is at most the number of active
 *         variables, a variable has fewer than two distinct observed values (or an
 *         infinite one), or a covariance to factor is not positive definite: nothing is
 *         written if it happens in EM; if the EM covariance itself is not, the EM
 *         estimates are written and no imputation; in augmentation the imputations
 *         before the failing one are written; BRENN_SS_ERROR_NO_CONVERGENCE when EM
 *         reaches its limit: its last iterate is written and no imputation. */
int32_t _qesdSSMissingValues(void* task, uint64_t estimates, uint64_t method,
                             const struct threader* thr);
/** The single-precision form of _qesdSSMissingValues(); parameters, results and
 * imputed entries are floats, the computation runs in double.
 * @copydetails _qesdSSMissingValues */
int32_t _qessSSMissingValues(void* task, uint64_t estimates, uint64_t method,
                             const struct threader* thr);

#ifdef __cplusplus
}
#endif

#endif
