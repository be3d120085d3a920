/* Ln of single (c) and double (z) complex vectors, three levels: ln|z| + i arg z.
 *
 * Double: s = re^2 + im^2 carried in two parts (exact products), ln s from the real
 * logarithm's core (explog/log_core.h) at the level, as an exact head and a tail, with
 * the second part of s added as sl/sh; half of it is the real part. The head sh is the
 * rounded sum of the rounded squares, left as it is (sl up to an ulp and a half of it),
 * so that the core's reduction waits on two products and an addition, not on the
 * exact parts. Near |z| = 1, where ln|z| is small, s - 1 is then exact and the real
 * part keeps its relative accuracy down to about 2^-50; below that its error is about
 * 2^-103 absolutely (s's second part is that far from exact): more than an ulp of the
 * part itself, but far below an ulp of the larger part, the imaginary one (a double z
 * with |ln|z|| below 2^-50 has |arg z| above about 2^-27).
 * The imaginary part is the real Atan2 of (im, re) (invtrig/atan_body.h): HA on the table
 * steps of the real row's own kernel, LA and EP on the double steps at the level.
 * Lanes whose larger part lies outside [2^-450, 2^500], and the lanes Atan2 sends to
 * its own scalar routine (zeros, infinities, NaNs, parts outside [2^-500, 2^500)), go to
 * the scalar routine.
 * Single: s in double from the exact squares (their sum in two parts), the same core and
 * Atan2 in double on widened lanes, rounded once to single (ln_body.h).
 *
 * The scalar routine works in extended precision: near |z| = 1 the real part is
 * log1p((x - 1)(x + 1) + y^2)/2 of the larger magnitude x and the smaller y, elsewhere
 * ln(x^2 + y^2)/2, where nothing overflows; the phase is the extended atan2, rounded
 * once. The special values are those of C99 Annex G for clog: an infinite part gives
 * +inf, the phase by the quadrant rules of atan2 (signed zeros pick the side of the cut
 * along the negative reals); zero gives -inf by a division, with status 2. */
#include <math.h>

#include "vecmath/complex/cframe.h"
#include "vecmath/complex/exact.h"
#include "vecmath/complex/ext_elem.h"
#include "vecmath/complex/extended.h"
#include "vecmath/complex/ln_body.h"
#include "vecmath/complex/phase_steps.h"

namespace brenn::vm::cx {
namespace {

template <Level L>
struct LnZ : ExtendedScalarBody<double, BrennComplex16, BrennComplex16,
                                ExtendedScalar<BrennComplex16, CLogX>> {
    using Phase = PhaseSteps<L>;
    static constexpr const char* kName = "vzLn";
    BRENN_VEC static int Eval(const Cx<double>* x, const Cx<double>*, Cx<double>& y) {
        State s;
        int bits = Start(*x, s);
        LnCore3From<L>(s.red, s.h, s.r, s.t);
        Phase::Middle(s.phase);
        y.re = HalfLogJoin(s.h, s.r, s.t, s.ratio);
        y.im = Phase::End(s.phase);
        return bits;
    }

    // A round of four groups in three steps, each over all of them: |z|^2, the log's
    // reduction and the phase's quotient; their polynomials; the parts.
    static constexpr int kGroups = 4;
    struct State {
        __m128d special, ratio, h, r, t;
        LnReduction red;
        typename Phase::State phase;
    };
    static constexpr int32_t kLo = 0x23D00000, kHi = 0x5F2FFFFF; // 2^-450, 2^500
    static_assert(kHi == kPartTop, "the larger part's window ends where the phase's does");
    // |z|^2 and the log's reduction of lanes made safe.
    BRENN_VEC static void Squares(__m128d re, __m128d im, State& s) {
        __m128d sh, sl;
        RawSumOfSquares(SplitRounded(re), SplitRounded(im), sh, sl);
        s.red = LnReduce(sh);
        s.ratio = Div(sl, sh);
    }
    BRENN_VEC static int Start(const Cx<double>& x, State& s) {
        s.special = HighWordsToLanes(LargerHighWordOutside<kLo, kHi>(x.re, x.im));
        Squares(IfThenElse(s.special, Set<double>(1), x.re), IfThenZeroElse(s.special, x.im), s);
        __m128d angle = Phase::Start(x.im, x.re, s.phase);
        return MaskBits(Or(s.special, angle));
    }
    // The round's windows tested once: where no part lies outside, no lane is blended.
    BRENN_VEC static int EvalGroups(const Cx<double>* x, const Cx<double>*, Cx<double>* y) {
        auto end = [](const State& s, Cx<double>& r) BRENN_STEP {
            r.re = HalfLogJoin(s.h, s.r, s.t, s.ratio);
            r.im = Phase::End(s.phase);
        };
        auto middle = [](State& s) BRENN_STEP {
            LnCore3From<L>(s.red, s.h, s.r, s.t);
            Phase::Middle(s.phase);
        };
        if (__builtin_expect(!AnyOutside<kPartLo, kLo, kHi, kGroups>(x), 1))
            return StepGroups<State, kGroups>(
                x, y,
                [](const Cx<double>& z, State& s) BRENN_STEP {
                    Squares(z.re, z.im, s);
                    Phase::StartInside(z.im, z.re, s.phase);
                    return 0;
                },
                end, middle);
        return StepGroups<State, kGroups>(
            x, y, [](const Cx<double>& z, State& s) BRENN_STEP { return Start(z, s); }, end,
            middle);
    }
};

template <Level L>
struct LnC : ExtendedScalarBody<float, BrennComplex8, BrennComplex8,
                                ExtendedScalar<BrennComplex8, CLogX>> {
    static constexpr const char* kName = "vcLn";
    static int Eval(const Cx<float>* x, const Cx<float>*, Cx<float>& y) {
        __m128d r0, i0, s0, r1, i1, s1;
        LnOfWidened<L>(WidenLower(x->re), WidenLower(x->im), r0, i0, s0);
        LnOfWidened<L>(WidenUpper(x->re), WidenUpper(x->im), r1, i1, s1);
        y.re = Narrow(r0, r1);
        y.im = Narrow(i0, i1);
        return MaskBits(s0) | (MaskBits(s1) << 2);
    }
};

} // namespace
} // namespace brenn::vm::cx

using namespace brenn::vm;
using namespace brenn::vm::cx;

extern "C" {
ZAR_COMPLEX_KERNEL(z, Ln, LA, Unary, LnZ<Level::LA>)
ZAR_COMPLEX_KERNEL(z, Ln, HA, Unary, LnZ<Level::HA>)
ZAR_COMPLEX_KERNEL(z, Ln, EP, Unary, LnZ<Level::EP>)
ZAR_COMPLEX_KERNEL(c, Ln, LA, Unary, LnC<Level::LA>)
ZAR_COMPLEX_KERNEL(c, Ln, HA, Unary, LnC<Level::HA>)
ZAR_COMPLEX_KERNEL(c, Ln, EP, Unary, LnC<Level::EP>)
}
