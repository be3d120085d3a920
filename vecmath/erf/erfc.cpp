/* Erfc, single (three levels) and double (one kernel for all three, at HA's bound).
 *
 * The grid j/128 of erfcRows up to 27.2421875 (tail_body.h, grid_core.h): erfc(|x|) on
 * the row and its series; for negative x, 2 - erfc(|x|), held at |x| = 6, from where it
 * is 2 to the last bit. Lanes from |x| = 26.5 (double) or 9.1875 (single), where the
 * result may leave the normal range, and NaNs and infinities, go to the scalar routine,
 * which reports status 4 for a result below the least normal (+0 from 27.2421875 on).
 * Double runs tail_double.h's body (fitted series, two parts, 0.5x ulp); single HA in
 * double on the widened lanes, single LA and EP on single lanes (grid_single.h). */
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
};

struct ErfcFn {
    using Grid = ErfcGrid;
    static constexpr double kTailLimit = 27.2421875;
    static constexpr bool kTailPositive = true;
    static constexpr const char* kNameS = ZAR_ERROR_NAME(sErfc);
    static constexpr const char* kNameD = ZAR_ERROR_NAME(dErfc);
    template <class T>
    static constexpr LaneRange<T> Window() {
        if constexpr (sizeof(T) == 4)
            return {0x7FFFFFFFu, 0u, 0x41130000u - 1}; // |x| from 9.1875
        else
            return LaneRange<T>{0x7FFFFFFFFFFFFFFFull, 0u, 0x403A800000000000ull - 1}; // 26.5
    }
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
