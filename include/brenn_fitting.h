/** @file brenn_fitting.h
 * Data fitting: the task record's editors and queries, spline construction, cell
 * search, interpolation and integration of one-dimensional functions on a partition.
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
/** A data-fitting task, made by brenn_df_kernel_dNewTask1D() or _sNewTask1D(). */
typedef void* FitTaskHandle;

/** Partition hints (xHint). */
enum {
    FIT_X_NO_HINT = 0,
    FIT_X_NON_UNIFORM = 1,
    FIT_X_QUASI_UNIFORM = 2,
    FIT_X_UNIFORM = 4 /**< x holds the two ends only */
};

/** Storage of the function values (yHint) and of the coefficients (sCoeffHint). */
enum {
    FIT_Y_NO_HINT = 0,
    FIT_Y_ROWS = 16,           /**< function i at y + i*nx */
    FIT_Y_COLUMNS = 32,        /**< value j of function i at y[j*ny + i] */
    FIT_Y_FIRST_ROW_ONLY = 128 /**< one pointer given, the others through EditIdxPtr */
};

/** Spline orders (sOrder). */
enum { FIT_ORDER_STEP = 0, FIT_ORDER_LINEAR = 2, FIT_ORDER_QUADRATIC = 3, FIT_ORDER_CUBIC = 4 };
/** Spline types (sType). */
enum {
    FIT_TYPE_DEFAULT = 0,    /**< the quadratic: midpoint-value form */
    FIT_TYPE_KNOTS = 1,      /**< the quadratic: knot form, nx pieces */
    FIT_TYPE_LOOKUP = 6,     /**< order 0: the value at a node */
    FIT_TYPE_STEP_RIGHT = 7, /**< order 0: right-continuous step (left node's value) */
    FIT_TYPE_STEP_LEFT = 8   /**< order 0: left-continuous step (right node's value) */
};
/** Cubic spline types (sType with sOrder FIT_ORDER_CUBIC). Construction reads them only
 * for the periodic condition of the local families: types 0 and 3 need bc with it. */
enum {
    FIT_TYPE_CUBIC_NATURAL = 0, /**< the C2 cubic of a tridiagonal solve */
    FIT_TYPE_CUBIC_AKIMA = 2,   /**< Akima's weighted slopes */
    FIT_TYPE_CUBIC_HERMITE = 3, /**< the caller's node derivatives */
    FIT_TYPE_CUBIC_BESSEL = 4,  /**< the slopes of the three-point parabolas */
    FIT_TYPE_CUBIC_HYMAN = 5,   /**< Bessel's slopes limited for monotony */
    FIT_TYPE_CUBIC_DEFAULT = 9  /**< the C2 cubic, with construction flags */
};

/** Boundary conditions, combined as bits; bc holds their numbers, left end first. */
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

/** Internal conditions: FIT_IC_KNOTS says that ic holds the nx+1 knots of the
 * quadratic knot form; with FIT_IC_UNIFORM beside it ic holds only the two end
 * knots and the others are evenly spaced. */
enum { FIT_IC_NONE = 0, FIT_IC_UNIFORM = 4, FIT_IC_KNOTS = 8 };
/** Internal condition of the Hermite cubic: ic holds the first derivative at each node,
 * nx values a function, function f's from ic + f*nx. */
enum { FIT_IC_FIRST_DERIVATIVES = 1 };

/** Parameter ids of the editors and queries. */
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

/** Site hints of search and interpolation (siteHint). */
enum { FIT_SITES_UNIFORM = 4, FIT_SITES_SORTED = 64 };

/** Call type of interpolation: values, cells given back, cells given in. */
enum { FIT_CALL_VALUES = 1, FIT_CALL_CELLS = 2, FIT_CALL_CELLS_GIVEN = 4 };

/** Layouts of the interpolation result (nf functions, ns sites, nd derivatives). */
enum {
    FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES = 16, /**< [f][s][d] */
    FIT_RESULT_SITES_FUNCTIONS_DERIVATIVES = 32, /**< [s][f][d] */
    FIT_RESULT_FIRST_ROW = 128, /**< result is a table of nf pointers, each [s][d] */
    FIT_RESULT_FUNCTIONS_DERIVATIVES_SITES = 256, /**< [f][d][s] */
    FIT_RESULT_SITES_DERIVATIVES_FUNCTIONS = 512  /**< [s][d][f] */
};

/** What a search callback may return to say that every cell of its block is right. */
enum { FIT_SEARCH_ALL_CELLS_RIGHT = 1000 };

/** Statuses of every data-fitting entry: 0 on success, negative on failure. */
enum {
    /** success */
    FIT_STATUS_OK = 0,
    /** a null task or task handle address */
    FIT_STATUS_NULL_TASK = -1000,
    /** a block could not be allocated */
    FIT_STATUS_NO_MEMORY = -1001,
    /** a flag or spline type the construction does not take */
    FIT_STATUS_FLAG_REFUSED = -1002,
    /** too few partition points */
    FIT_STATUS_BAD_NX = -1004,
    /** a null partition */
    FIT_STATUS_BAD_X = -1005,
    /** a partition hint that is none of FIT_X_* */
    FIT_STATUS_BAD_X_HINT = -1006,
    /** a function count that does not fit the values given */
    FIT_STATUS_BAD_NY = -1007,
    /** null function values */
    FIT_STATUS_BAD_Y = -1008,
    /** a value storage hint that is none of FIT_Y_*, or one the call cannot use */
    FIT_STATUS_BAD_Y_HINT = -1009,
    /** a negative spline order */
    FIT_STATUS_BAD_SPLINE_ORDER = -1010,
    /** a spline type (or order) that cannot be built or evaluated */
    FIT_STATUS_BAD_SPLINE_TYPE = -1011,
    /** an internal-condition type that does not fit the conditions given */
    FIT_STATUS_BAD_IC_TYPE = -1012,
    /** missing or bad internal conditions (knots) */
    FIT_STATUS_BAD_IC = -1013,
    /** a boundary-condition type the spline cannot take */
    FIT_STATUS_BAD_BC_TYPE = -1014,
    /** missing boundary conditions */
    FIT_STATUS_BAD_BC = -1015,
    /** a null coefficient pointer */
    FIT_STATUS_BAD_COEFF_PTR = -1016,
    /** a coefficient storage hint that is none of the known */
    FIT_STATUS_BAD_COEFF_HINT = -1017,
    /** a periodic condition with different end values */
    FIT_STATUS_BAD_PERIODIC_VAL = -1018,
    /** a parameter id the call does not take */
    FIT_STATUS_BAD_PARAM_ID = -1019,
    /** a function index outside the task's functions */
    FIT_STATUS_BAD_INDEX = -1020,
    /** a look-up of a site that is no partition point */
    FIT_STATUS_SITE_NOT_NODE = -1022,
    /** a look-up asked for more than one derivative row */
    FIT_STATUS_LOOKUP_DERIVATIVE_COUNT = -1024,
    /** a look-up asked for a derivative */
    FIT_STATUS_LOOKUP_DERIVATIVE_ORDER = -1025,
    /** a data hint with an unknown selector or a peak outside the partition */
    FIT_STATUS_BAD_DATA_HINT = -1026,
    /** a result layout that is none of FIT_RESULT_* */
    FIT_STATUS_BAD_RESULT_HINT = -1028,
    /** a bad flag value */
    FIT_STATUS_BAD_FLAG = -1036,
    /** a null output address */
    FIT_STATUS_NULL_OUT = -1037
};

/** Search callback: fills cell[0..*count) (64-bit) with cells and flag[] with
 * non-zero for a cell that is right as given, zero for a guess to be corrected.
 * @param count address of the number of sites of the block
 * @param site the block's sites
 * @param cell where the cells go, *count 64-bit words
 * @param flag where the flags go, *count words
 * @param params the caller's searchParams
 * @param extra 0 from the search entry, 1 from interpolation, 2 from integration
 * @return 0; FIT_SEARCH_ALL_CELLS_RIGHT to trust the whole block; a negative value
 *         stops the call and is returned by it. */
typedef int32_t (*FitdSearchCallback)(const int64_t* count, const double* site, int64_t* cell,
                                      int32_t* flag, void* params, int64_t extra);
/** The single-precision form of FitdSearchCallback.
 * @copydetails FitdSearchCallback */
typedef int32_t (*FitsSearchCallback)(const int64_t* count, const float* site, int64_t* cell,
                                      int32_t* flag, void* params, int64_t extra);

/** Interpolation callbacks (left and right extrapolation, interior): fill
 * result[j*nd + r] for the *count sites of one block and one function, where r runs
 * over the derivative orders asked in ascending order.
 * @param count address of the number of sites of the block
 * @param result where the block's results go
 * @param site the block's sites
 * @param cell the sites' cells
 * @param params the caller's parameters for this callback
 * @param function the index of the function (0 for a single one)
 * @return 0, or a negative value that stops the call and is returned by it. */
typedef int32_t (*FitdInterpCallback)(const int64_t* count, double* result, const double* site,
                                      const int64_t* cell, void* params, int64_t function);
/** The single-precision form of FitdInterpCallback.
 * @copydetails FitdInterpCallback */
typedef int32_t (*FitsInterpCallback)(const int64_t* count, float* result, const float* site,
                                      const int64_t* cell, void* params, int64_t function);

/** Integration callbacks (left and right extrapolation, interior): fill result[k] with
 * the integral over [llim[k], rlim[k]] (llim[k] <= rlim[k]) for the *count parts of one
 * block of intervals that lie on the callback's side of the partition's ends, for one
 * function.
 * @param count address of the number of parts
 * @param result where the parts' integrals go
 * @param llim the parts' lower limits
 * @param rlim the parts' upper limits
 * @param params the caller's parameters for this callback
 * @param function the index of the function (0 for a single one)
 * @return 0, or a negative value that stops the call and is returned by it. */
typedef int32_t (*FitdIntegCallback)(const int64_t* count, double* result, const double* llim,
                                     const double* rlim, void* params, int64_t function);
/** The single-precision form of FitdIntegCallback.
 * @copydetails FitdIntegCallback */
typedef int32_t (*FitsIntegCallback)(const int64_t* count, float* result, const float* llim,
                                     const float* rlim, void* params, int64_t function);

/** Creates a task over a partition and, optionally, function values on it. The task
 * keeps the caller's addresses; a cell-search table is made at once unless the
 * partition is uniform.
 * @param task where the handle goes (a half-made task stays there after a failed
 *        allocation; end it with brenn_df_kernel_DeleteTask())
 * @param nx number of partition points, at least 2
 * @param x the partition points in ascending order (the two ends for FIT_X_UNIFORM)
 * @param xHint a partition hint (FIT_X_*)
 * @param ny number of functions; 0 with no values
 * @param y the function values, or null with ny 0
 * @param yHint their storage (FIT_Y_*)
 * @param frontEndWord bit 0: cells and derivative selectors are 64-bit
 * @return FIT_STATUS_OK; FIT_STATUS_BAD_NX, FIT_STATUS_BAD_X, FIT_STATUS_BAD_X_HINT,
 *         FIT_STATUS_BAD_Y, FIT_STATUS_BAD_NY, FIT_STATUS_BAD_Y_HINT or
 *         FIT_STATUS_NO_MEMORY. */
int32_t brenn_df_kernel_dNewTask1D(FitTaskHandle* task, int64_t nx, const double* x, int64_t xHint,
                                   int64_t ny, const double* y, int64_t yHint,
                                   int32_t frontEndWord);
/** The single-precision form of brenn_df_kernel_dNewTask1D().
 * @copydetails brenn_df_kernel_dNewTask1D */
int32_t brenn_df_kernel_sNewTask1D(FitTaskHandle* task, int64_t nx, const float* x, int64_t xHint,
                                   int64_t ny, const float* y, int64_t yHint, int32_t frontEndWord);
/** Ends a task: frees its own blocks, never the caller's arrays.
 * @param task address of the handle; null is stored into it
 * @return FIT_STATUS_OK, or FIT_STATUS_NULL_TASK. */
int32_t brenn_df_kernel_DeleteTask(FitTaskHandle* task);
/** Describes the piecewise-polynomial spline of a task at once. Each field is stored
 * as soon as its own test passes, so a later failure leaves the earlier ones changed.
 * @param task the task
 * @param sOrder spline order (FIT_ORDER_*)
 * @param sType spline type (FIT_TYPE_*)
 * @param bcType boundary-condition bits (FIT_BC_*)
 * @param bc the boundary-condition values, or null when bcType needs none
 * @param icType internal-condition type (FIT_IC_*)
 * @param ic the internal conditions, or null with FIT_IC_NONE
 * @param sCoeff where the coefficients go, or null to give them later
 * @param sCoeffHint storage of the coefficients (FIT_Y_*)
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK, FIT_STATUS_BAD_SPLINE_ORDER,
 *         FIT_STATUS_BAD_SPLINE_TYPE, FIT_STATUS_BAD_BC, FIT_STATUS_BAD_IC,
 *         FIT_STATUS_BAD_IC_TYPE, FIT_STATUS_BAD_NY or FIT_STATUS_NO_MEMORY. */
int32_t brenn_df_kernel_dEditPPSpline1D(FitTaskHandle task, int64_t sOrder, int64_t sType,
                                        int64_t bcType, const double* bc, int64_t icType,
                                        const double* ic, double* sCoeff, int64_t sCoeffHint);
/** The single-precision form of brenn_df_kernel_dEditPPSpline1D().
 * @copydetails brenn_df_kernel_dEditPPSpline1D */
int32_t brenn_df_kernel_sEditPPSpline1D(FitTaskHandle task, int64_t sOrder, int64_t sType,
                                        int64_t bcType, const float* bc, int64_t icType,
                                        const float* ic, float* sCoeff, int64_t sCoeffHint);
/** Sets one address of a task: FIT_PARAM_X, _Y, _IC, _BC or _SCOEFF.
 * @param task the task
 * @param id the parameter id
 * @param pointer the caller's array
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; the null-pointer status of the parameter;
 *         FIT_STATUS_BAD_PARAM_ID; FIT_STATUS_NO_MEMORY. */
int32_t brenn_df_kernel_dEditPtr(FitTaskHandle task, int64_t id, const double* pointer);
/** The single-precision form of brenn_df_kernel_dEditPtr().
 * @copydetails brenn_df_kernel_dEditPtr */
int32_t brenn_df_kernel_sEditPtr(FitTaskHandle task, int64_t id, const float* pointer);
/** Sets one value of a task: FIT_PARAM_NX to FIT_PARAM_FLAG. FIT_PARAM_XHINT with
 * FIT_X_NON_UNIFORM rebuilds the cell-search table from the task's current partition.
 * @param task the task
 * @param id the parameter id
 * @param value the new value
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_PARAM_ID; the status of a
 *         value the parameter refuses (FIT_STATUS_BAD_NX, FIT_STATUS_BAD_X_HINT, ...). */
int32_t brenn_df_kernel_iEditVal(FitTaskHandle task, int64_t id, int64_t value);
/** Sets the address of one function's values (FIT_PARAM_Y) or coefficients
 * (FIT_PARAM_SCOEFF).
 * @param task the task
 * @param id FIT_PARAM_Y or FIT_PARAM_SCOEFF
 * @param index the function, 0 to ny - 1
 * @param pointer the caller's array
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_Y_HINT (values stored by
 *         columns); FIT_STATUS_BAD_INDEX; FIT_STATUS_BAD_Y or FIT_STATUS_BAD_COEFF_PTR for
 *         a null pointer; FIT_STATUS_BAD_PARAM_ID. */
int32_t brenn_df_kernel_dEditIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                    const double* pointer);
/** The single-precision form of brenn_df_kernel_dEditIdxPtr().
 * @copydetails brenn_df_kernel_dEditIdxPtr */
int32_t brenn_df_kernel_sEditIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                    const float* pointer);
/** Gives back one address of a task: the partition, the first function's values, the
 * internal or boundary conditions, the first function's coefficients.
 * @param task the task
 * @param id FIT_PARAM_X, _Y, _IC, _BC or _SCOEFF
 * @param pointer where the address goes
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_NULL_OUT;
 *         FIT_STATUS_BAD_PARAM_ID. */
int32_t brenn_df_kernel_dQueryPtr(FitTaskHandle task, int64_t id, double** pointer);
/** The single-precision form of brenn_df_kernel_dQueryPtr().
 * @copydetails brenn_df_kernel_dQueryPtr */
int32_t brenn_df_kernel_sQueryPtr(FitTaskHandle task, int64_t id, float** pointer);
/** Gives back one value of a task (FIT_PARAM_NX to FIT_PARAM_FLAG), as 64 bits.
 * @param task the task
 * @param id the parameter id
 * @param value where the value goes
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_NULL_OUT;
 *         FIT_STATUS_BAD_PARAM_ID. */
int32_t brenn_df_kernel_iQueryVal(FitTaskHandle task, int64_t id, int64_t* value);
/** Gives back the address of one function's values or coefficients.
 * @param task the task
 * @param id FIT_PARAM_Y or FIT_PARAM_SCOEFF
 * @param index the function
 * @param pointer where the address goes
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_NULL_OUT;
 *         FIT_STATUS_BAD_INDEX; FIT_STATUS_BAD_Y_HINT (values stored by columns);
 *         FIT_STATUS_BAD_PARAM_ID. */
int32_t brenn_df_kernel_dQueryIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                     double** pointer);
/** The single-precision form of brenn_df_kernel_dQueryIdxPtr().
 * @copydetails brenn_df_kernel_dQueryIdxPtr */
int32_t brenn_df_kernel_sQueryIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                     float** pointer);

/** Constructs the linear spline of each function of the task: coefficients go where
 * the task's sCoeff pointers say.
 * @param task the task
 * @param method the construction method; passed on
 * @param flags 0
 * @param threader the threading record, or null for the calling thread
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_FLAG_REFUSED; FIT_STATUS_BAD_NX;
 *         FIT_STATUS_BAD_Y_HINT; FIT_STATUS_BAD_BC_TYPE, FIT_STATUS_BAD_BC or
 *         FIT_STATUS_BAD_PERIODIC_VAL for the boundary conditions; FIT_STATUS_NO_MEMORY. */
int32_t brenn_df_kernel_dDFLinearSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                          const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFLinearSpline1D().
 * @copydetails brenn_df_kernel_dDFLinearSpline1D */
int32_t brenn_df_kernel_sDFLinearSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                          const struct threader* threader);
/** Constructs the quadratic spline of each function of the task, in the midpoint form
 * (FIT_TYPE_DEFAULT, with FIT_BC_MID_VALUE) or the knot form (FIT_TYPE_KNOTS, with
 * FIT_IC_KNOTS): coefficients go where the task's sCoeff pointers say.
 * @param task the task
 * @param method the construction method; passed on
 * @param flags 0
 * @param threader the threading record, or null for the calling thread
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_FLAG_REFUSED; FIT_STATUS_BAD_NX;
 *         FIT_STATUS_BAD_Y_HINT; FIT_STATUS_BAD_BC_TYPE, FIT_STATUS_BAD_BC,
 *         FIT_STATUS_BAD_PERIODIC_VAL, FIT_STATUS_BAD_IC_TYPE or FIT_STATUS_BAD_IC for the
 *         conditions; FIT_STATUS_NO_MEMORY. */
int32_t brenn_df_kernel_dDFQuadraticSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                             const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFQuadraticSpline1D().
 * @copydetails brenn_df_kernel_dDFQuadraticSpline1D */
int32_t brenn_df_kernel_sDFQuadraticSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                             const struct threader* threader);
/** Constructs the C2 cubic spline of each function: the node derivatives solve a
 * tridiagonal system whose end rows come from bcType (FIT_BC_NOT_A_KNOT, FIT_BC_FREE_END,
 * the first or second derivatives of 12, 24, 36, 48, or FIT_BC_PERIODIC). Needs nx of 2
 * (3 for not-a-knot, whose three points give their parabola).
 * @param task the task
 * @param method the construction method; passed on
 * @param flags 0
 * @param threader the threading record, or null for the calling thread
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_FLAG_REFUSED; FIT_STATUS_BAD_NX;
 *         FIT_STATUS_BAD_Y_HINT; FIT_STATUS_BAD_BC_TYPE (bcType 0 included);
 *         FIT_STATUS_BAD_BC; FIT_STATUS_BAD_PERIODIC_VAL; FIT_STATUS_NO_MEMORY. */
int32_t brenn_df_kernel_dDFNaturalCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                                const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFNaturalCubicSpline1D().
 * @copydetails brenn_df_kernel_dDFNaturalCubicSpline1D */
int32_t brenn_df_kernel_sDFNaturalCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                                const struct threader* threader);
/** The cubic of brenn_df_kernel_dDFNaturalCubicSpline1D() with construction flags, of
 * which none is defined yet (any non-zero flags give FIT_STATUS_FLAG_REFUSED after the
 * other checks). Needs nx of 3.
 * @copydetails brenn_df_kernel_dDFNaturalCubicSpline1D */
int32_t brenn_df_kernel_dDFDefaultCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                                const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFDefaultCubicSpline1D().
 * @copydetails brenn_df_kernel_dDFDefaultCubicSpline1D */
int32_t brenn_df_kernel_sDFDefaultCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                                const struct threader* threader);
/** Constructs Akima's cubic of each function: interior derivatives weight the two
 * neighbouring slopes by the differences of the slopes beyond them (the plain mean when
 * the weights sum below 1e-10); nodes 1 and nx-2 see the slopes extrapolated linearly
 * (periodic: wrapped). bcType 0 gives the ends (3*m[0] - m[1]) / 2 and its mirror;
 * the other codes as for the natural cubic. Needs nx of 5.
 * @param task the task
 * @param method the construction method; passed on
 * @param flags passed on, not read
 * @param threader the threading record, or null for the calling thread
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_NX; FIT_STATUS_BAD_Y_HINT;
 *         FIT_STATUS_BAD_BC_TYPE; FIT_STATUS_BAD_BC (codes 12, 24, 36, 48, and 64 with
 *         sType 0 or 3); FIT_STATUS_BAD_PERIODIC_VAL; FIT_STATUS_NO_MEMORY. */
int32_t brenn_df_kernel_dDFAkimaCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                              const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFAkimaCubicSpline1D().
 * @copydetails brenn_df_kernel_dDFAkimaCubicSpline1D */
int32_t brenn_df_kernel_sDFAkimaCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                              const struct threader* threader);
/** Constructs the Bessel cubic of each function: each derivative is that of the
 * parabola through the node and its neighbours (bcType 0: at the ends, through the end
 * three points; periodic: across the seam). Needs nx of 4.
 * @copydetails brenn_df_kernel_dDFAkimaCubicSpline1D */
int32_t brenn_df_kernel_dDFBesselCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                               const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFBesselCubicSpline1D().
 * @copydetails brenn_df_kernel_dDFBesselCubicSpline1D */
int32_t brenn_df_kernel_sDFBesselCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                               const struct threader* threader);
/** Constructs the Hyman cubic of each function: Bessel's derivatives, then limited to
 * three times the smaller neighbouring slope where the slopes share a sign (set to zero
 * where a slope is zero or the derivative has the other sign), and at the ends to three
 * times the end slope; a first derivative given at an end is kept as given. Monotone
 * data give cells monotone the same way. Needs nx of 4.
 * @copydetails brenn_df_kernel_dDFAkimaCubicSpline1D */
int32_t brenn_df_kernel_dDFHymanCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                              const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFHymanCubicSpline1D().
 * @copydetails brenn_df_kernel_dDFHymanCubicSpline1D */
int32_t brenn_df_kernel_sDFHymanCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                              const struct threader* threader);
/** Constructs the Hermite cubic of each function from the caller's node derivatives:
 * icType FIT_IC_FIRST_DERIVATIVES with ic holding nx derivatives a function (function f's
 * at ic + f*nx); the end codes replace the end derivatives (bcType 0 keeps them;
 * periodic: both ends take bc[0] when bc is given, else ic's first). Needs nx of 3.
 * @copydetails brenn_df_kernel_dDFAkimaCubicSpline1D
 * Further: FIT_STATUS_BAD_IC_TYPE for another icType, FIT_STATUS_BAD_IC for a null ic. */
int32_t brenn_df_kernel_dDFHermiteCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                                const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFHermiteCubicSpline1D().
 * @copydetails brenn_df_kernel_dDFHermiteCubicSpline1D */
int32_t brenn_df_kernel_sDFHermiteCubicSpline1D(FitTaskHandle task, int64_t method, int64_t flags,
                                                const struct threader* threader);

/** Cell search. The cell of site s is 0 below x[0], j for x[j-1] <= s < x[j], nx-1 at
 * the right end and nx above it. Cells are 32-bit, except those of the user-defined
 * searchers, which are 64-bit when the task's frontEndWord is non-zero. dataHint
 * (optional): element 1 selects (0 nothing known, 1 a peak), element 4 is the peak's
 * partition index. The searcher is chosen once for the call from the callback, the
 * partition hint, the site hint and the data hint.
 * @param task the task
 * @param method passed on, not acted upon
 * @param nsite number of sites
 * @param site the sites (the two ends with FIT_SITES_UNIFORM)
 * @param siteHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0
 * @param dataHint null, or the data hint (element 1 the selector, element 4 the peak)
 * @param cell where the nsite cells go
 * @param searchCallback the caller's searcher, or null
 * @param searchParams the callback's parameters
 * @param threader the threading record, or null for the calling thread
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_DATA_HINT;
 *         FIT_STATUS_NO_MEMORY; a negative status of the callback. */
int32_t brenn_df_kernel_dDFSearch1D(FitTaskHandle task, int64_t method, int64_t nsite,
                                    const double* site, int64_t siteHint, const double* dataHint,
                                    void* cell, FitdSearchCallback searchCallback,
                                    void* searchParams, const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFSearch1D().
 * @copydetails brenn_df_kernel_dDFSearch1D */
int32_t brenn_df_kernel_sDFSearch1D(FitTaskHandle task, int64_t method, int64_t nsite,
                                    const float* site, int64_t siteHint, const float* dataHint,
                                    void* cell, FitsSearchCallback searchCallback,
                                    void* searchParams, const struct threader* threader);

/** Declares the two spellings of one searcher (plain and 32) in one precision. */
#define BRENN_FIT_SEARCHER(t, T, name)                                                             \
    int32_t brenn_df_kernel_##t##DF##name##Search1D(                                               \
        FitTaskHandle task, int64_t method, int64_t nsite, const T* site, int64_t siteHint,        \
        const T* dataHint, void* cell, Fit##t##SearchCallback searchCallback, void* searchParams,  \
        const struct threader* threader, int64_t extra);                                           \
    int32_t brenn_df_kernel_##t##DF##name##Search1D32(                                             \
        FitTaskHandle task, int64_t method, int64_t nsite, const T* site, int64_t siteHint,        \
        const T* dataHint, void* cell, Fit##t##SearchCallback searchCallback, void* searchParams,  \
        const struct threader* threader, int64_t extra);
/** Declares the seven searchers of one precision. */
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
/* The declarations made by the macros above, one line each for Doxygen. */
/* clang-format off */
/** @fn int32_t brenn_df_kernel_dDFUniformSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * The searcher of a uniform partition, as brenn_df_kernel_dDFSearch1D() chooses it.
 * @param task the task
 * @param method passed on, not acted upon
 * @param nsite number of sites
 * @param site the sites (the two ends with FIT_SITES_UNIFORM)
 * @param siteHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0
 * @param dataHint null, or the data hint (element 1 the selector, element 4 the peak)
 * @param cell where the nsite cells go
 * @param searchCallback the caller's searcher, or null
 * @param searchParams the callback's parameters
 * @param threader the threading record, or null for the calling thread
 * @param extra 0
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_DATA_HINT;
 *         FIT_STATUS_NO_MEMORY; a negative status of the callback. */
/** @fn int32_t brenn_df_kernel_dDFUniformSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFUniformSearch1D(). @copydetails brenn_df_kernel_dDFUniformSearch1D */
/** @fn int32_t brenn_df_kernel_sDFUniformSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFUniformSearch1D(). @copydetails brenn_df_kernel_dDFUniformSearch1D */
/** @fn int32_t brenn_df_kernel_sDFUniformSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFUniformSearch1D(). @copydetails brenn_df_kernel_dDFUniformSearch1D */
/** @fn int32_t brenn_df_kernel_dDFQuasiUniformSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * The searcher of a quasi-uniform partition, as brenn_df_kernel_dDFSearch1D() chooses it.
 * @param task the task
 * @param method passed on, not acted upon
 * @param nsite number of sites
 * @param site the sites (the two ends with FIT_SITES_UNIFORM)
 * @param siteHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0
 * @param dataHint null, or the data hint (element 1 the selector, element 4 the peak)
 * @param cell where the nsite cells go
 * @param searchCallback the caller's searcher, or null
 * @param searchParams the callback's parameters
 * @param threader the threading record, or null for the calling thread
 * @param extra 0
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_DATA_HINT;
 *         FIT_STATUS_NO_MEMORY; a negative status of the callback. */
/** @fn int32_t brenn_df_kernel_dDFQuasiUniformSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFQuasiUniformSearch1D(). @copydetails brenn_df_kernel_dDFQuasiUniformSearch1D */
/** @fn int32_t brenn_df_kernel_sDFQuasiUniformSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFQuasiUniformSearch1D(). @copydetails brenn_df_kernel_dDFQuasiUniformSearch1D */
/** @fn int32_t brenn_df_kernel_sDFQuasiUniformSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFQuasiUniformSearch1D(). @copydetails brenn_df_kernel_dDFQuasiUniformSearch1D */
/** @fn int32_t brenn_df_kernel_dDFSortedSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * The searcher of ascending sites, as brenn_df_kernel_dDFSearch1D() chooses it.
 * @param task the task
 * @param method passed on, not acted upon
 * @param nsite number of sites
 * @param site the sites (the two ends with FIT_SITES_UNIFORM)
 * @param siteHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0
 * @param dataHint null, or the data hint (element 1 the selector, element 4 the peak)
 * @param cell where the nsite cells go
 * @param searchCallback the caller's searcher, or null
 * @param searchParams the callback's parameters
 * @param threader the threading record, or null for the calling thread
 * @param extra 0
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_DATA_HINT;
 *         FIT_STATUS_NO_MEMORY; a negative status of the callback. */
/** @fn int32_t brenn_df_kernel_dDFSortedSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFSortedSearch1D(). @copydetails brenn_df_kernel_dDFSortedSearch1D */
/** @fn int32_t brenn_df_kernel_sDFSortedSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFSortedSearch1D(). @copydetails brenn_df_kernel_dDFSortedSearch1D */
/** @fn int32_t brenn_df_kernel_sDFSortedSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFSortedSearch1D(). @copydetails brenn_df_kernel_dDFSortedSearch1D */
/** @fn int32_t brenn_df_kernel_dDFPeakSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * The searcher of sites around a peak, as brenn_df_kernel_dDFSearch1D() chooses it.
 * @param task the task
 * @param method passed on, not acted upon
 * @param nsite number of sites
 * @param site the sites (the two ends with FIT_SITES_UNIFORM)
 * @param siteHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0
 * @param dataHint null, or the data hint (element 1 the selector, element 4 the peak)
 * @param cell where the nsite cells go
 * @param searchCallback the caller's searcher, or null
 * @param searchParams the callback's parameters
 * @param threader the threading record, or null for the calling thread
 * @param extra 0
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_DATA_HINT;
 *         FIT_STATUS_NO_MEMORY; a negative status of the callback. */
/** @fn int32_t brenn_df_kernel_dDFPeakSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFPeakSearch1D(). @copydetails brenn_df_kernel_dDFPeakSearch1D */
/** @fn int32_t brenn_df_kernel_sDFPeakSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFPeakSearch1D(). @copydetails brenn_df_kernel_dDFPeakSearch1D */
/** @fn int32_t brenn_df_kernel_sDFPeakSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFPeakSearch1D(). @copydetails brenn_df_kernel_dDFPeakSearch1D */
/** @fn int32_t brenn_df_kernel_dDFHybridSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * The default searcher, as brenn_df_kernel_dDFSearch1D() chooses it.
 * @param task the task
 * @param method passed on, not acted upon
 * @param nsite number of sites
 * @param site the sites (the two ends with FIT_SITES_UNIFORM)
 * @param siteHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0
 * @param dataHint null, or the data hint (element 1 the selector, element 4 the peak)
 * @param cell where the nsite cells go
 * @param searchCallback the caller's searcher, or null
 * @param searchParams the callback's parameters
 * @param threader the threading record, or null for the calling thread
 * @param extra 0
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_DATA_HINT;
 *         FIT_STATUS_NO_MEMORY; a negative status of the callback. */
/** @fn int32_t brenn_df_kernel_dDFHybridSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFHybridSearch1D(). @copydetails brenn_df_kernel_dDFHybridSearch1D */
/** @fn int32_t brenn_df_kernel_sDFHybridSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFHybridSearch1D(). @copydetails brenn_df_kernel_dDFHybridSearch1D */
/** @fn int32_t brenn_df_kernel_sDFHybridSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFHybridSearch1D(). @copydetails brenn_df_kernel_dDFHybridSearch1D */
/** @fn int32_t brenn_df_kernel_dDFUserDefSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * The caller's searcher, checked and completed, as brenn_df_kernel_dDFSearch1D() chooses it.
 * @param task the task
 * @param method passed on, not acted upon
 * @param nsite number of sites
 * @param site the sites (the two ends with FIT_SITES_UNIFORM)
 * @param siteHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0
 * @param dataHint null, or the data hint (element 1 the selector, element 4 the peak)
 * @param cell where the nsite cells go
 * @param searchCallback the caller's searcher, or null
 * @param searchParams the callback's parameters
 * @param threader the threading record, or null for the calling thread
 * @param extra 0
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_DATA_HINT;
 *         FIT_STATUS_NO_MEMORY; a negative status of the callback. */
/** @fn int32_t brenn_df_kernel_dDFUserDefSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFUserDefSearch1D(). @copydetails brenn_df_kernel_dDFUserDefSearch1D */
/** @fn int32_t brenn_df_kernel_sDFUserDefSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFUserDefSearch1D(). @copydetails brenn_df_kernel_dDFUserDefSearch1D */
/** @fn int32_t brenn_df_kernel_sDFUserDefSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFUserDefSearch1D(). @copydetails brenn_df_kernel_dDFUserDefSearch1D */
/** @fn int32_t brenn_df_kernel_dDFUniUserDefSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * The caller's searcher on a uniform partition, as brenn_df_kernel_dDFSearch1D() chooses it.
 * @param task the task
 * @param method passed on, not acted upon
 * @param nsite number of sites
 * @param site the sites (the two ends with FIT_SITES_UNIFORM)
 * @param siteHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0
 * @param dataHint null, or the data hint (element 1 the selector, element 4 the peak)
 * @param cell where the nsite cells go
 * @param searchCallback the caller's searcher, or null
 * @param searchParams the callback's parameters
 * @param threader the threading record, or null for the calling thread
 * @param extra 0
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_DATA_HINT;
 *         FIT_STATUS_NO_MEMORY; a negative status of the callback. */
/** @fn int32_t brenn_df_kernel_dDFUniUserDefSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const double* site, int64_t siteHint, const double* dataHint, void* cell, FitdSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFUniUserDefSearch1D(). @copydetails brenn_df_kernel_dDFUniUserDefSearch1D */
/** @fn int32_t brenn_df_kernel_sDFUniUserDefSearch1D(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFUniUserDefSearch1D(). @copydetails brenn_df_kernel_dDFUniUserDefSearch1D */
/** @fn int32_t brenn_df_kernel_sDFUniUserDefSearch1D32(FitTaskHandle task, int64_t method, int64_t nsite, const float* site, int64_t siteHint, const float* dataHint, void* cell, FitsSearchCallback searchCallback, void* searchParams, const struct threader* threader, int64_t extra)
 * Another spelling (or precision) of brenn_df_kernel_dDFUniUserDefSearch1D(). @copydetails brenn_df_kernel_dDFUniUserDefSearch1D */
/* clang-format on */

/** Interpolation: values and derivatives of the task's splines at a batch of sites, for
 * every function; the cells can be given back, or given in. dorder: ndorder flags
 * (32-bit, 64-bit with bit 0 of frontEndWord), entry k non-zero asks derivative k;
 * none asks the value. cell: 32-bit cells, 64-bit with bit 0 of frontEndWord.
 * @param task the task
 * @param type FIT_CALL_VALUES, FIT_CALL_CELLS (combinable) or FIT_CALL_CELLS_GIVEN
 * @param method passed on
 * @param nsite number of sites
 * @param site the sites (the two ends with FIT_SITES_UNIFORM)
 * @param siteHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0
 * @param ndorder number of entries of dorder
 * @param dorder the derivative selector
 * @param dataHint null, or the data hint of the search
 * @param result where the results go, in the layout of resultHint
 * @param resultHint the result layout (FIT_RESULT_*; 0 is taken as the first)
 * @param cell the cells, given back or given in as type says
 * @param leftCallback extrapolation left of the partition, or null
 * @param leftParams its parameters
 * @param rightCallback extrapolation right of the partition, or null
 * @param rightParams its parameters
 * @param interpCallback evaluation inside the partition instead of the spline, or null
 * @param interpParams its parameters
 * @param searchCallback the caller's searcher, or null
 * @param searchParams its parameters
 * @param threader the threading record, or null for the calling thread
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_SPLINE_TYPE;
 *         FIT_STATUS_SITE_NOT_NODE, FIT_STATUS_LOOKUP_DERIVATIVE_COUNT or
 *         FIT_STATUS_LOOKUP_DERIVATIVE_ORDER for a look-up; FIT_STATUS_BAD_DATA_HINT;
 *         FIT_STATUS_BAD_RESULT_HINT; FIT_STATUS_NO_MEMORY; a negative status of a
 *         callback. */
int32_t brenn_df_kernel_dDFInterpolate1D(FitTaskHandle task, int64_t type, int64_t method,
                                         int64_t nsite, const double* site, int64_t siteHint,
                                         int64_t ndorder, const void* dorder,
                                         const double* dataHint, double* result, int64_t resultHint,
                                         void* cell, FitdInterpCallback leftCallback,
                                         void* leftParams, FitdInterpCallback rightCallback,
                                         void* rightParams, FitdInterpCallback interpCallback,
                                         void* interpParams, FitdSearchCallback searchCallback,
                                         void* searchParams, const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFInterpolate1D().
 * @copydetails brenn_df_kernel_dDFInterpolate1D */
int32_t brenn_df_kernel_sDFInterpolate1D(FitTaskHandle task, int64_t type, int64_t method,
                                         int64_t nsite, const float* site, int64_t siteHint,
                                         int64_t ndorder, const void* dorder, const float* dataHint,
                                         float* result, int64_t resultHint, void* cell,
                                         FitsInterpCallback leftCallback, void* leftParams,
                                         FitsInterpCallback rightCallback, void* rightParams,
                                         FitsInterpCallback interpCallback, void* interpParams,
                                         FitsSearchCallback searchCallback, void* searchParams,
                                         const struct threader* threader);

/** Integration: the integral of each of the task's splines over nlim intervals
 * [llim[k], rlim[k]]. Each cell's part is integrated in closed form from the stored
 * coefficients (the knot-form quadratic piece by piece between its knots, the step
 * functions as their constant values); beyond the ends the end cell's polynomial
 * continues unless that side has a callback. Whole cells between the limits are summed
 * pairwise in a fixed order, so an interval's integral does not depend on the batch
 * it comes in, nor on threads. With rlim[k] < llim[k] the result is exactly minus the
 * integral over [rlim[k], llim[k]]. The look-up type has no integral. A user searcher
 * sees extra 2.
 * @param task the task
 * @param method passed on
 * @param nlim number of intervals
 * @param llim the lower limits (the two ends with FIT_SITES_UNIFORM)
 * @param llimHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0, for llim
 * @param rlim the upper limits (the two ends with FIT_SITES_UNIFORM)
 * @param rlimHint FIT_SITES_UNIFORM, FIT_SITES_SORTED or 0, for rlim
 * @param ldataHint null, or the data hint of the search of llim
 * @param rdataHint null, or the data hint of the search of rlim
 * @param result where the integrals go: [function][interval] for 16 (or 0), or
 *        [interval][function] for 32
 * @param resultHint FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES (16, or 0) or
 *        FIT_RESULT_SITES_FUNCTIONS_DERIVATIVES (32)
 * @param leftCallback the integral left of x[0], or null
 * @param leftParams its parameters
 * @param rightCallback the integral right of the last point, or null
 * @param rightParams its parameters
 * @param interpCallback the integral inside the partition instead of the spline's, or
 *        null; order 0 without a step type needs all three callbacks
 * @param interpParams its parameters
 * @param searchCallback the caller's searcher, or null
 * @param searchParams its parameters
 * @param threader the threading record, or null for the calling thread
 * @return FIT_STATUS_OK; FIT_STATUS_NULL_TASK; FIT_STATUS_BAD_SPLINE_TYPE (look-up
 *         included); FIT_STATUS_BAD_DATA_HINT; FIT_STATUS_BAD_RESULT_HINT;
 *         FIT_STATUS_BAD_Y or FIT_STATUS_BAD_COEFF_PTR for a missing function;
 *         FIT_STATUS_NO_MEMORY; a negative status of a callback. */
int32_t brenn_df_kernel_dDFIntegrate1D(FitTaskHandle task, int64_t method, int64_t nlim,
                                       const double* llim, int64_t llimHint, const double* rlim,
                                       int64_t rlimHint, const double* ldataHint,
                                       const double* rdataHint, double* result, int64_t resultHint,
                                       FitdIntegCallback leftCallback, void* leftParams,
                                       FitdIntegCallback rightCallback, void* rightParams,
                                       FitdIntegCallback interpCallback, void* interpParams,
                                       FitdSearchCallback searchCallback, void* searchParams,
                                       const struct threader* threader);
/** The single-precision form of brenn_df_kernel_dDFIntegrate1D().
 * @copydetails brenn_df_kernel_dDFIntegrate1D */
int32_t brenn_df_kernel_sDFIntegrate1D(FitTaskHandle task, int64_t method, int64_t nlim,
                                       const float* llim, int64_t llimHint, const float* rlim,
                                       int64_t rlimHint, const float* ldataHint,
                                       const float* rdataHint, float* result, int64_t resultHint,
                                       FitsIntegCallback leftCallback, void* leftParams,
                                       FitsIntegCallback rightCallback, void* rightParams,
                                       FitsIntegCallback interpCallback, void* interpParams,
                                       FitsSearchCallback searchCallback, void* searchParams,
                                       const struct threader* threader);

#ifdef __cplusplus
}
#endif

#endif
