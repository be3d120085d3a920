// The Bessel cubic: each node's derivative is that of the parabola through it and its
// neighbours (cubic_bessel.h), and the cubic reproduces quadratic data exactly.
#include "fitting/cubic_bessel.h"
#include "frame/export.h"

namespace brenn::fit {
namespace {

struct Bessel : BesselRule, NoFinish {
    static constexpr int64_t kLeastNx = 4;
};

} // namespace
} // namespace brenn::fit

using namespace brenn::fit;

BRENN_EXPORT int32_t brenn_df_kernel_dDFBesselCubicSpline1D(FitTaskHandle task, int64_t,
                                                            int64_t flags, const threader* thr) {
    return DispatchLocal<double, Bessel>(task, flags, thr);
}

BRENN_EXPORT int32_t brenn_df_kernel_sDFBesselCubicSpline1D(FitTaskHandle task, int64_t,
                                                            int64_t flags, const threader* thr) {
    return DispatchLocal<float, Bessel>(task, flags, thr);
}
