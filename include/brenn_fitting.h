/** @file brenn_fitting.h
 * Data fitting: the task record's editors and queries, spline construction, cell
 * search and interpolation of one-dimensional functions on a partition.
 *
 * A task holds addresses of the caller's arrays (partition, function values,
 * conditions, coefficient memory) and three blocks of its own (the pointers to the
 * functions, the pointers to the coefficients and the cell-search table). Every call
 * returns a 32-bit status: 0 on success, one of the FIT_STATUS_* codes or a negative
 * status of a caller's callback otherwise. Parallel work comes only through the
 * `threader` record passed as the last argument (null: the calling thread). */
#ifndef BRENN_FITTING_H
#define BRENN_FITTING_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

struct threader;
typedef void* FitTaskHandle;

/* Partition hints. */
enum {
    FIT_X_NO_HINT = 0,
    FIT_X_NON_UNIFORM = 1,
    FIT_X_QUASI_UNIFORM = 2,
    FIT_X_UNIFORM = 4 /* x holds the two ends only */
};

/* Storage of the function values (yHint) and of the coefficients (sCoeffHint). */
enum {
    FIT_Y_NO_HINT = 0,
    FIT_Y_ROWS = 16,           /* function i at y + i*nx */
    FIT_Y_COLUMNS = 32,        /* value j of function i at y[j*ny + i] */
    FIT_Y_FIRST_ROW_ONLY = 128 /* one pointer given, the others through EditIdxPtr */
};

/* Spline orders and types. */
enum { FIT_ORDER_STEP = 0, FIT_ORDER_LINEAR = 2, FIT_ORDER_QUADRATIC = 3, FIT_ORDER_CUBIC = 4 };
enum {
    FIT_TYPE_DEFAULT = 0,    /* the quadratic: midpoint-value form */
    FIT_TYPE_KNOTS = 1,      /* the quadratic: knot form, nx pieces */
    FIT_TYPE_LOOKUP = 6,     /* order 0: the value at a node */
    FIT_TYPE_STEP_RIGHT = 7, /* order 0: right-continuous step (left node's value) */
    FIT_TYPE_STEP_LEFT = 8   /* order 0: left-continuous step (right node's value) */
};

/* Boundary conditions, combined as bits; bc holds their numbers, left end first. */
enum {
    FIT_BC_NONE = 0,
    FIT_BC_NOT_A_KNOT = 1,
    FIT_BC_FREE_END = 2,
    FIT_BC_FIRST_LEFT = 4,
    FIT_BC_FIRST_RIGHT = 8,
    FIT_BC_SECOND_LEFT = 16,
    FIT_BC_SECOND_RIGHT = 32,
    FIT_BC_PERIODIC = 64,
    FIT_BC_MID_VALUE = 128
};

/* Internal conditions: FIT_IC_KNOTS says that ic holds the nx+1 knots of the
 * quadratic knot form; with FIT_IC_UNIFORM beside it ic holds only the two end
 * knots and the others are evenly spaced. */
enum { FIT_IC_NONE = 0, FIT_IC_UNIFORM = 4, FIT_IC_KNOTS = 8 };

/* Parameter ids of the editors and queries. */
enum {
    FIT_PARAM_X = 1,
    FIT_PARAM_Y = 2,
    FIT_PARAM_IC = 3,
    FIT_PARAM_BC = 4,
    FIT_PARAM_SCOEFF = 5,
    FIT_PARAM_NX = 14,
    FIT_PARAM_XHINT = 15,
    FIT_PARAM_NY = 16,
    FIT_PARAM_YHINT = 17,
    FIT_PARAM_SORDER = 18,
    FIT_PARAM_STYPE = 19,
    FIT_PARAM_ICTYPE = 20,
    FIT_PARAM_BCTYPE = 21,
    FIT_PARAM_SCOEFFHINT = 22,
    FIT_PARAM_FLAG = 23
};

/* Site hints of search and interpolation. */
enum { FIT_SITES_UNIFORM = 4, FIT_SITES_SORTED = 64 };

/* Call type of interpolation: values, cells given back, cells given in. */
enum { FIT_CALL_VALUES = 1, FIT_CALL_CELLS = 2, FIT_CALL_CELLS_GIVEN = 4 };

/* Layouts of the interpolation result (nf functions, ns sites, nd derivatives). */
enum {
    FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES = 16, /* [f][s][d] */
    FIT_RESULT_SITES_FUNCTIONS_DERIVATIVES = 32, /* [s][f][d] */
    FIT_RESULT_FIRST_ROW = 128,                  /* result is a table of nf pointers, each [s][d] */
    FIT_RESULT_FUNCTIONS_DERIVATIVES_SITES = 256, /* [f][d][s] */
    FIT_RESULT_SITES_DERIVATIVES_FUNCTIONS = 512  /* [s][d][f] */
};

/* What a search callback may return to say that every cell of its block is right. */
enum { FIT_SEARCH_ALL_CELLS_RIGHT = 1000 };

/* Status codes. */
enum {
    FIT_STATUS_OK = 0,
    FIT_STATUS_NULL_TASK = -1000,
    FIT_STATUS_NO_MEMORY = -1001,
    FIT_STATUS_FLAG_REFUSED = -1002,
    FIT_STATUS_BAD_NX = -1004,
    FIT_STATUS_BAD_X = -1005,
    FIT_STATUS_BAD_X_HINT = -1006,
    FIT_STATUS_BAD_NY = -1007,
    FIT_STATUS_BAD_Y = -1008,
    FIT_STATUS_BAD_Y_HINT = -1009,
    FIT_STATUS_BAD_SPLINE_ORDER = -1010,
    FIT_STATUS_BAD_SPLINE_TYPE = -1011,
    FIT_STATUS_BAD_IC_TYPE = -1012,
    FIT_STATUS_BAD_IC = -1013,
    FIT_STATUS_BAD_BC_TYPE = -1014,
    FIT_STATUS_BAD_BC = -1015,
    FIT_STATUS_BAD_COEFF_PTR = -1016,
    FIT_STATUS_BAD_COEFF_HINT = -1017,
    FIT_STATUS_BAD_PERIODIC_VAL = -1018,
    FIT_STATUS_BAD_PARAM_ID = -1019,
    FIT_STATUS_BAD_INDEX = -1020,
    FIT_STATUS_SITE_NOT_NODE = -1022,
    FIT_STATUS_LOOKUP_DERIVATIVE_COUNT = -1024,
    FIT_STATUS_LOOKUP_DERIVATIVE_ORDER = -1025,
    FIT_STATUS_BAD_DATA_HINT = -1026,
    FIT_STATUS_BAD_RESULT_HINT = -1028,
    FIT_STATUS_BAD_FLAG = -1036,
    FIT_STATUS_NULL_OUT = -1037
};

/* Search callback: fills cell[0..*count) (64-bit) with cells and flag[] with
 * non-zero for a cell that is right as given, zero for a guess to be corrected;
 * returning FIT_SEARCH_ALL_CELLS_RIGHT trusts the whole block, a negative value
 * stops the call. `extra` is 0 from the search entry, 1 from interpolation. */
typedef int32_t (*FitdSearchCallback)(const int64_t* count, const double* site, int64_t* cell,
                                      int32_t* flag, void* params, int64_t extra);
typedef int32_t (*FitsSearchCallback)(const int64_t* count, const float* site, int64_t* cell,
                                      int32_t* flag, void* params, int64_t extra);

/* Interpolation callbacks (left and right extrapolation, interior): fill
 * result[j*nd + r] for the *count sites of one block and one function, where r runs
 * over the derivative orders asked in ascending order. `cell` holds the sites' cells.
 * `function` is the index of the function (0 for a single one). Negative: stop. */
typedef int32_t (*FitdInterpCallback)(const int64_t* count, double* result, const double* site,
                                      const int64_t* cell, void* params, int64_t function);
typedef int32_t (*FitsInterpCallback)(const int64_t* count, float* result, const float* site,
                                      const int64_t* cell, void* params, int64_t function);

/* Task, editors and queries. */
int32_t brenn_df_kernel_dNewTask1D(FitTaskHandle* task, int64_t nx, const double* x, int64_t xHint,
                                   int64_t ny, const double* y, int64_t yHint,
                                   int32_t frontEndWord);
int32_t brenn_df_kernel_sNewTask1D(FitTaskHandle* task, int64_t nx, const float* x, int64_t xHint,
                                   int64_t ny, const float* y, int64_t yHint, int32_t frontEndWord);
int32_t brenn_df_kernel_DeleteTask(FitTaskHandle* task);
int32_t brenn_df_kernel_dEditPPSpline1D(FitTaskHandle task, int64_t sOrder, int64_t sType,
                                        int64_t bcType, const double* bc, int64_t icType,
                                        const double* ic, double* sCoeff, int64_t sCoeffHint);
int32_t brenn_df_kernel_sEditPPSpline1D(FitTaskHandle task, int64_t sOrder, int64_t sType,
                                        int64_t bcType, const float* bc, int64_t icType,
                                        const float* ic, float* sCoeff, int64_t sCoeffHint);
int32_t brenn_df_kernel_dEditPtr(FitTaskHandle task, int64_t id, const double* pointer);
int32_t brenn_df_kernel_sEditPtr(FitTaskHandle task, int64_t id, const float* pointer);
int32_t brenn_df_kernel_iEditVal(FitTaskHandle task, int64_t id, int64_t value);
int32_t brenn_df_kernel_dEditIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                    const double* pointer);
int32_t brenn_df_kernel_sEditIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                    const float* pointer);
int32_t brenn_df_kernel_dQueryPtr(FitTaskHandle task, int64_t id, double** pointer);
int32_t brenn_df_kernel_sQueryPtr(FitTaskHandle task, int64_t id, float** pointer);
int32_t brenn_df_kernel_iQueryVal(FitTaskHandle task, int64_t id, int64_t* value);
int32_t brenn_df_kernel_dQueryIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                     double** pointer);
int32_t brenn_df_kernel_sQueryIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                     float** pointer);

/* Construction: coefficients go where the task's sCoeff pointers say. */
int32_t brenn_df_kernel_dDFLinearSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                          const struct threader* threader);
int32_t brenn_df_kernel_sDFLinearSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                          const struct threader* threader);
int32_t brenn_df_kernel_dDFQuadraticSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                             const struct threader* threader);
int32_t brenn_df_kernel_sDFQuadraticSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                             const struct threader* threader);

/* Cell search. The cell of site s is 0 below x[0], j for x[j-1] <= s < x[j], nx-1 at
 * the right end and nx above it. Cells are 32-bit, except those of the user-defined
 * searchers, which are 64-bit when the task's frontEndWord is non-zero. dataHint
 * (optional): element 1 selects (0 nothing known, 1 a peak), element 4 is the peak's
 * partition index. */
int32_t brenn_df_kernel_dDFSearch1D(FitTaskHandle task, int64_t method, int64_t nsite,
                                    const double* site, int64_t siteHint, const double* dataHint,
                                    void* cell, FitdSearchCallback searchCallback,
                                    void* searchParams, const struct threader* threader);
int32_t brenn_df_kernel_sDFSearch1D(FitTaskHandle task, int64_t method, int64_t nsite,
                                    const float* site, int64_t siteHint, const float* dataHint,
                                    void* cell, FitsSearchCallback searchCallback,
                                    void* searchParams, const struct threader* threader);

/* The searchers themselves: the arguments of the search entry and a trailing 0. */
#define BRENN_FIT_SEARCHER(t, T, name)                                                             \
    int32_t brenn_df_kernel_##t##DF##name##Search1D(                                               \
        FitTaskHandle task, int64_t method, int64_t nsite, const T* site, int64_t siteHint,        \
        const T* dataHint, void* cell, Fit##t##SearchCallback searchCallback, void* searchParams,  \
        const struct threader* threader, int64_t extra);                                           \
    int32_t brenn_df_kernel_##t##DF##name##Search1D32(                                             \
        FitTaskHandle task, int64_t method, int64_t nsite, const T* site, int64_t siteHint,        \
        const T* dataHint, void* cell, Fit##t##SearchCallback searchCallback, void* searchParams,  \
        const struct threader* threader, int64_t extra);
#define BRENN_FIT_SEARCHERS(t, T)                                                                  \
    BRENN_FIT_SEARCHER(t, T, Uniform)                                                              \
    BRENN_FIT_SEARCHER(t, T, QuasiUniform)                                                         \
    BRENN_FIT_SEARCHER(t, T, Sorted)                                                               \
    BRENN_FIT_SEARCHER(t, T, Peak)                                                                 \
    BRENN_FIT_SEARCHER(t, T, Hybrid)                                                               \
    BRENN_FIT_SEARCHER(t, T, UserDef)                                                              \
    BRENN_FIT_SEARCHER(t, T, UniUserDef)
BRENN_FIT_SEARCHERS(d, double)
BRENN_FIT_SEARCHERS(s, float)
#undef BRENN_FIT_SEARCHERS
#undef BRENN_FIT_SEARCHER

/* Interpolation. dorder: ndorder flags (32-bit, 64-bit with bit 0 of frontEndWord),
 * entry k non-zero asks derivative k; none asks the value. cell: 32-bit cells, 64-bit
 * with bit 0 of frontEndWord. */
int32_t brenn_df_kernel_dDFInterpolate1D(FitTaskHandle task, int64_t type, int64_t method,
                                         int64_t nsite, const double* site, int64_t siteHint,
                                         int64_t ndorder, const void* dorder,
                                         const double* dataHint, double* result, int64_t resultHint,
                                         void* cell, FitdInterpCallback leftCallback,
                                         void* leftParams, FitdInterpCallback rightCallback,
                                         void* rightParams, FitdInterpCallback interpCallback,
                                         void* interpParams, FitdSearchCallback searchCallback,
                                         void* searchParams, const struct threader* threader);
int32_t brenn_df_kernel_sDFInterpolate1D(FitTaskHandle task, int64_t type, int64_t method,
                                         int64_t nsite, const float* site, int64_t siteHint,
                                         int64_t ndorder, const void* dorder, const float* dataHint,
                                         float* result, int64_t resultHint, void* cell,
                                         FitsInterpCallback leftCallback, void* leftParams,
                                         FitsInterpCallback rightCallback, void* rightParams,
                                         FitsInterpCallback interpCallback, void* interpParams,
                                         FitsSearchCallback searchCallback, void* searchParams,
                                         const struct threader* threader);

#ifdef __cplusplus
}
#endif

#endif
