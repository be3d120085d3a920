// The scalar set-up logarithms __qesdLn and __qessLn, on the double logarithm core.
#include "vecmath/explog/scalar_log.h"

#include "vecmath/explog/log_core.h"

extern "C" double __qesdLn(double x) {
    return brenn::vm::LnScalarD(x);
}

extern "C" float __qessLn(float x) {
    return float(brenn::vm::LnScalarD(double(x)));
}
