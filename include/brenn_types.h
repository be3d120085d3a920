/* Types shared by the public headers: complex elements, the error record handed to
 * vector-math callbacks, and the dispatch row. */
#ifndef BRENN_TYPES_H
#define BRENN_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct BrennComplex8 {
    float re, im;
} BrennComplex8;

typedef struct BrennComplex16 {
    double re, im;
} BrennComplex16;

/* What an error callback receives for one reported element. Values are widened to
 * double whatever the element type. For codes -1 and -2 the value fields are not
 * written; the imaginary fields are written only by complex functions. */
typedef struct ErrorRecord {
    int32_t code;
    int32_t index; /* position in the caller's whole vector */
    double a1, a2, r1, r2;
    char functionName[64];
    int32_t functionNameLength;
    double a1Imag, a2Imag, r1Imag, r2Imag;
} ErrorRecord;

/* Non-zero return: handled, the library does nothing more for the element. Zero: the
 * library goes on with the error mode's actions and writes r1/r2 back. */
typedef int (*ErrorCallback)(ErrorRecord* record);

typedef void (*BrennKernel)(void);

/* One row of the dispatch table: three kernels (LA, HA, EP) and their cost figures.
 * A null kernel means the row's kernel is not available in this build. */
typedef struct DispatchRecord {
    BrennKernel kernelLA, kernelHA, kernelEP;
    float costLA, costHA, costEP;
} DispatchRecord;

/* Vector-math status codes. */
enum {
    BRENN_STATUS_OK = 0,
    BRENN_STATUS_DOMAIN = 1,
    BRENN_STATUS_SINGULARITY = 2,
    BRENN_STATUS_OVERFLOW = 3,
    BRENN_STATUS_UNDERFLOW = 4,
    BRENN_STATUS_BADSIZE = -1,
    BRENN_STATUS_BADMEM = -2
};

#ifdef __cplusplus
}
#endif

#endif
