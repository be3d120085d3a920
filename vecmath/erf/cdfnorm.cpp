/* CdfNorm, the standard normal distribution function Phi, single and double, three
 * levels each.
 *
 * The grid j/64 of cdfNormRows up to 38.5 holds Q(x) = Phi(-x) (tail_body.h,
 * grid_core.h): Phi(x) = Q(|x|) for negative x, and 1 - Q(x) for positive x, held at
 * 8.5, from where it is 1 to the last bit. Double LA and HA run tail_double.h's body
 * (fitted series; HA adds up in two parts, LA with the row's remainder): NaNs and
 * infinities are the special lanes, results from -37.52 down (denormals, +0 from the
 * grid's end at -38.5 down) come from the lanes and are reported with status 4 by the
 * frame. Double EP adds up plainly; its lanes from |x| = 37.5, where the result may
 * leave the normal range, and NaNs and infinities, go to the scalar routine, which
 * reports status 4 for a result below the least normal. Single: NaNs and infinities
 * are the special lanes; results from -12.95 down (denormals, zeros from -14.1) come
 * from the lanes and are reported with status 4 by the frame, and 1 on the positive
 * side likewise (tail_body.h); every level on single lanes (grid_single.h: the single
 * rows, HA's last sum on double lanes with the double rows). */
#include "frame/kernels.h"
#include "vecmath/erf/tail_body.h"
#include "vecmath/erf/tail_double.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

struct CdfNormGrid {
    static constexpr const double (*kRows)[4] = cdfNormRows;
    static constexpr double kShifter = 0x1p46, kLimit = 38.5;
    static constexpr double kTauScale = 1.0, kUScale = 0.5;
    static constexpr double kMirror = 1.0, kMirrorLimit = 8.5;
    static constexpr bool kMirrorPositive = true;
    static constexpr double kScaleFrom = 26.0;
    static constexpr const float (*kRowsSingle)[4] = cdfNormRowsSingle;
    static constexpr double kLimitSingle = 14.25;
};

struct CdfNormFn {
    using Grid = CdfNormGrid;
    static constexpr double kTailLimit = 38.5;
    static constexpr bool kTailPositive = false;
    static constexpr const char* kNameS = ZAR_ERROR_NAME(sCdfNorm);
    static constexpr const char* kNameD = ZAR_ERROR_NAME(dCdfNorm);
    template <class T> // double
    static constexpr LaneRange<T> Window() {
        return LaneRange<T>{0x7FFFFFFFFFFFFFFFull, 0u, 0x4042C00000000000ull - 1}; // 37.5
    }
    // Terms left out below 2^-29 of the result in double EP, 2^-30, 2^-27, 2^-15 in single.
    template <class T, Level L>
    static constexpr SeriesCut Cut() {
        if constexpr (sizeof(T) == 8) return {6, 4, 0, 0};
        if constexpr (L == Level::HA) return {5, 3, 0, 0};
        if constexpr (L == Level::LA) return {4, 2, 0, 0};
        return {2, 0, 0, 0};
    }
};

template <class Tp, Level L>
using CdfNormBody = TailBody<CdfNormFn, Tp, L>;

} // namespace
} // namespace brenn::vm

extern "C" {
ZAR_LEVEL_KERNELS(s, CdfNorm, Unary, brenn::vm::CdfNormBody)
ZAR_KERNEL_OF(d, CdfNorm, EP, Unary, brenn::vm::CdfNormBody<double, brenn::vm::Level::EP>)
ZAR_KERNEL_OF(d, CdfNorm, LA, Unary,
              brenn::vm::TailDoubleBody<brenn::vm::CdfNormFn, brenn::vm::QSeriesD, false>)
ZAR_KERNEL_OF(d, CdfNorm, HA, Unary,
              brenn::vm::TailDoubleBody<brenn::vm::CdfNormFn, brenn::vm::QSeriesD, true>)
}
