/** @file brenn_status.h
 * Statuses of the front-end: what its checks refuse, named once for every service.
 *
 * Every front-end entry returns a signed int. 0 (BRENN_OK) is success. Positive values
 * are element statuses of vector math (BRENN_STATUS_DOMAIN .. BRENN_STATUS_UNDERFLOW)
 * or warnings a generator passes on. Negative values are errors: the BRENN_ERR_*
 * refusals below, made before any kernel runs and with nothing written, or the
 * service's own codes (QES_* of random numbers, BRENN_SS_ERROR_* of statistics,
 * FIT_STATUS_* of fitting) passed on from the kernels. The refusals lie outside every
 * service's own range, so a code names one cause. */
#ifndef BRENN_STATUS_H
#define BRENN_STATUS_H

#ifdef __cplusplus
extern "C" {
#endif

/** Refusals of the front-end's argument checks. */
enum {
    BRENN_OK = 0,                    /**< success */
    BRENN_ERR_BAD_SIZE = -1,         /**< a negative count or dimension */
    BRENN_ERR_NULL_POINTER = -2,     /**< a null pointer where elements are read or written */
    BRENN_ERR_BAD_ACCURACY = -9001,  /**< an accuracy other than BRENN_LA, BRENN_HA, BRENN_EP */
    BRENN_ERR_NOT_AVAILABLE = -9002, /**< the row, generator or spline is not in this build */
    BRENN_ERR_SIZE_MISMATCH = -9003, /**< C++: spans whose sizes do not fit together */
    BRENN_ERR_BAD_ARGUMENT = -9004,  /**< an argument outside its documented range */
    BRENN_ERR_NO_MEMORY = -9005,     /**< the front-end could not allocate its own record */
    BRENN_ERR_TOO_LONG = -9006,      /**< C++: more elements than one call takes (2^31 - 1) */
    BRENN_ERR_BAD_METHOD = -9007     /**< a method id the distribution does not have */
};

/** A short name of a status, for messages: "BRENN_OK", "BRENN_ERR_NULL_POINTER",
 * "BRENN_STATUS_DOMAIN", ... Codes of the services' own ranges give "service status".
 * @param status a status returned by an entry
 * @return a static string, never null. */
const char* brenn_status_name(int status);

#ifdef __cplusplus
}
#endif

#endif
