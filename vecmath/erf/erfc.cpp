/* Erfc, single (three levels) and double (one kernel for all three, at HA's bound).
 *
 * The grid j/128 of erfcRows up to 27.2421875 (tail_body.h, grid_core.h): erfc(|x|) on
 * the row and its series; for negative x, 2 - erfc(|x|), held at |x| = 6, from where it
 * is 2 to the last bit. NaNs and infinities are the special lanes; results from 26.55 on
 * in double (denormals, +0 from the grid's end at 27.2421875 on) and 9.19 in single
 * (denormals, zeros from 10.1) come from the lanes and are reported with status 4 by the
 * frame. Double: tail_double.h's body (fitted series, two parts, 0.5x ulp). Single: every
 * level on single lanes (tail_body.h, grid_single.h: the single rows, HA's last sum on
 * double lanes with the double rows). */
#include "frame/kernels.h"
#include "vecmath/erf/tail_body.h"
#include "vecmath/erf/tail_double.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

struct ErfcGrid {
    static constexpr const double (*kRows)[4] = erfcRows;
    static constexpr double kShifter = 0x1p45, kLimit = 27.2421875;
    static constexpr double kTauScale = 2.0, kUScale = 1.0;
    static constexpr double kMirror = 2.0, kMirrorLimit = 6.0;
    static constexpr bool kMirrorPositive = false;
    static constexpr double kScaleFrom = 20.0;
    static constexpr const float (*kRowsSingle)[4] = erfcRowsSingle;
    static constexpr double kLimitSingle = 10.125;
};

struct ErfcFn {
    using Grid = ErfcGrid;
    static constexpr bool kTailPositive = true;
    static constexpr const char* kNameS = ZAR_ERROR_NAME(sErfc);
    static constexpr const char* kNameD = ZAR_ERROR_NAME(dErfc);
    // Terms left out below 2^-30, 2^-27, 2^-15 of the result (single).
    template <class T, Level L>
    static constexpr SeriesCut Cut() {
        if constexpr (L == Level::EP) return {2, 0, 0, 0};
        return {4, 2, 0, 0};
    }
};

template <class Tp, Level L>
using ErfcBody = TailBody<ErfcFn, Tp, L>;

} // namespace
} // namespace brenn::vm

extern "C" {
ZAR_LEVEL_KERNELS(s, Erfc, Unary, brenn::vm::ErfcBody)
ZAR_KERNEL_OF(d, Erfc, All, Unary,
              brenn::vm::TailDoubleBody<brenn::vm::ErfcFn, brenn::vm::ErfcSeriesD, true>)
}
