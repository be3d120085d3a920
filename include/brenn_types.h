/** @file brenn_types.h
 * Types shared by the public headers: complex elements, the error record handed to
 * vector-math callbacks, and the dispatch row. */
#ifndef BRENN_TYPES_H
#define BRENN_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A single-precision complex element. */
typedef struct BrennComplex8 {
    float re, /**< real part */
        im;   /**< imaginary part */
} BrennComplex8;

/** A double-precision complex element. */
typedef struct BrennComplex16 {
    double re, /**< real part */
        im;    /**< imaginary part */
} BrennComplex16;

/** What an error callback receives for one reported element. Values are widened to
 * double whatever the element type. For codes -1 and -2 the value fields are not
 * written; the imaginary fields are written only by complex functions. */
typedef struct ErrorRecord {
    int32_t code;  /**< the element's status: one of the BRENN_STATUS_* codes */
    int32_t index; /**< position in the caller's whole vector */
    double a1,     /**< first argument */
        a2,        /**< second argument (functions of two arguments) */
        r1,        /**< first result, as the kernel computed it; written back unless handled */
        r2;        /**< second result (functions of two results) */
    char functionName[64];      /**< public error name of the row, such as "vsExp" (terminated) */
    int32_t functionNameLength; /**< characters of functionName, without the terminator */
    double a1Imag,              /**< imaginary part of the first argument */
        a2Imag,                 /**< imaginary part of the second argument */
        r1Imag,                 /**< imaginary part of the first result */
        r2Imag;                 /**< imaginary part of the second result */
} ErrorRecord;

/** An error callback, called for each reported element while the callback bit of the
 * thread's error mode is set.
 * @param record the element's record; r1/r2 (and their imaginary parts) may be changed
 * @return non-zero: handled, the library does nothing more for the element. Zero: the
 *         library goes on with the error mode's actions and writes r1/r2 back. */
typedef int (*ErrorCallback)(ErrorRecord* record);

/** A kernel of a dispatch row, stored without its argument list (the row's entry
 * points in brenn_vecmath_rows.h give the list). */
typedef void (*BrennKernel)(void);

/** One row of the dispatch table: three kernels (LA, HA, EP) and their cost figures.
 * A null kernel means the row's kernel is not available in this build. */
typedef struct DispatchRecord {
    BrennKernel kernelLA, /**< kernel of the LA accuracy level (slot 0) */
        kernelHA,         /**< kernel of the HA accuracy level (slot 1) */
        kernelEP;         /**< kernel of the EP accuracy level (slot 2) */
    float costLA,         /**< cost figure of slot 0, per element */
        costHA,           /**< cost figure of slot 1, per element */
        costEP;           /**< cost figure of slot 2, per element */
} DispatchRecord;

/** Vector-math status codes: the thread's status word, and the code of a reported
 * element. */
enum {
    BRENN_STATUS_OK = 0,          /**< no element was reported */
    BRENN_STATUS_DOMAIN = 1,      /**< an argument outside the function's domain */
    BRENN_STATUS_SINGULARITY = 2, /**< a pole: the result is infinite */
    BRENN_STATUS_OVERFLOW = 3,    /**< the result overflowed */
    BRENN_STATUS_UNDERFLOW = 4,   /**< the result underflowed */
    BRENN_STATUS_BADSIZE = -1,    /**< a bad size argument, reported by a front-end */
    BRENN_STATUS_BADMEM = -2      /**< a null pointer argument, reported by a front-end */
};

#ifdef __cplusplus
}
#endif

#endif
