/* The element reporters of vector mathematics, one a element type. A kernel calls
 * the one of its type for each element whose scalar routine returned a non-zero
 * status, after storing the result, and reloads the element afterwards. */
#ifndef BRENN_FRAME_REPORT_H
#define BRENN_FRAME_REPORT_H

#include "brenn_types.h"

namespace brenn::frame {

void ReportErrorS(int code, int index, const float* a1, const float* a2, float* r1, float* r2,
                  const char* name);
void ReportErrorD(int code, int index, const double* a1, const double* a2, double* r1,
                  double* r2, const char* name);
void ReportErrorC(int code, int index, const BrennComplex8* a1, const BrennComplex8* a2,
                  BrennComplex8* r1, BrennComplex8* r2, const char* name);
void ReportErrorZ(int code, int index, const BrennComplex16* a1, const BrennComplex16* a2,
                  BrennComplex16* r1, BrennComplex16* r2, const char* name);

// Whether a report in the calling thread's present mode calls no callback, prints
// nothing and delivers no fault: its effects are then the status, errno, an x87 flag
// and the values' round trip through double, none of which anything reads before the
// kernel returns, so a kernel may make its reports at its end, one a status code.
bool ReportsCanWait();

// The reporter of an element type, for kernels written as templates.
inline void ReportError(int code, int index, const float* a1, const float* a2, float* r1,
                        float* r2, const char* name) {
    ReportErrorS(code, index, a1, a2, r1, r2, name);
}
inline void ReportError(int code, int index, const double* a1, const double* a2, double* r1,
                        double* r2, const char* name) {
    ReportErrorD(code, index, a1, a2, r1, r2, name);
}
inline void ReportError(int code, int index, const BrennComplex8* a1, const BrennComplex8* a2,
                        BrennComplex8* r1, BrennComplex8* r2, const char* name) {
    ReportErrorC(code, index, a1, a2, r1, r2, name);
}
inline void ReportError(int code, int index, const BrennComplex16* a1, const BrennComplex16* a2,
                        BrennComplex16* r1, BrennComplex16* r2, const char* name) {
    ReportErrorZ(code, index, a1, a2, r1, r2, name);
}

} // namespace brenn::frame

#endif
