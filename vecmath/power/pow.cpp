/* Pow and Powr, single and double, three levels each: one body (pow_body.h) and the
 * scalar routine of pow_scalar.h; Powr differs only in its scalar routine's domain.
 *
 * Double carries ln x in two parts and w = y*ln x as an exact product plus its tail at
 * every level: LA and HA with the whole logarithm to about 2^-66 and e^w by the table of
 * 256 with a degree-4 polynomial (exp_core256.h, LA as HA); EP with the exact head of
 * ln x times y in two parts and the rest, r rounded once with its Taylor quartic, in the
 * tail, e^w by the table of 64 and the Taylor cubic, the tail added to the reduced
 * argument (pow_core.h PowWEP, PowExpEP). Single
 * HA and LA take m and k from the single bits and run in double lanes. HA's row is
 * picked by the single estimate of 1/m rounded to a multiple of 2^-10 in double
 * (powRcpLn, 513 rows), with a quadratic Q; LA's by m rounded to 9 fraction bits
 * (powLnRows) with the cubic logarithm. w in one double, e^w by the table of 1024
 * with 1 + u + u^2/2 (HA) or 1 + u (LA); single EP stays in single (pow_body.h).
 * The double kernels are flattened: out of line the body was one call a register. Double
 * rounds of sixteen take each step over their eight registers (PowRound), single ones
 * their four registers' logarithms and then their exponentials (PowSingleRound: HA
 * 7.2 -> 5.9, LA 6.3 -> 5.1, EP 4.5 -> 3.9 ticks an element, register by register
 * before).
 * Measured (brenn_accuracy, full run): sPow HA 0.500 ulp, LA 1.41 ulp, EP 12.7 bits;
 * dPow HA and LA 0.55 ulp (a denormal result), EP 34.7 bits. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/power/pow_body.h"
#include "vecmath/power/pow_scalar.h"

namespace brenn::vm {
namespace {

// The scalar routine of single Pow kept out of line in its flattened kernels, compiled as
// it was when the frame called it from a function of its own: which of two NaN operands
// x*y passes on rests on the order the compiler gives the product. (Single Powr, a
// stand-by row, keeps the frame's calls.)
template <PowDomain D, class T>
[[gnu::noinline]] int PowScalarApart(T x, T y, T* r) {
    return PowScalar<D>(x, y, r);
}

template <class Tp, Level L, PowDomain D>
struct PowBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName =
        D == PowDomain::Real ? ZAR_ERROR_NAME_OF(T, Pow) : ZAR_ERROR_NAME_OF(T, Powr);
    static BRENN_VEC V Eval(V a, V b, V& special) { return PowOf<L>(a, b, special); }
    static int Scalar(const T* a, const T* b, T* y) {
        if constexpr (sizeof(T) == 4 && D == PowDomain::Real)
            return PowScalarApart<D>(*a, *b, y);
        else
            return PowScalar<D>(*a, *b, y);
    }
    // Rounds of sixteen, each step over the round's eight double registers or four single
    // ones.
    static constexpr int kRound = 16;
    static BRENN_VEC int EvalWide(const V* a, const V* b, V* y) {
        if constexpr (sizeof(T) == 8) {
            return PowWide<L>(a, b, y);
        } else {
            __m128 special[4];
            PowSingleRound<L, 4>(a, b, y, special);
            return RoundMaskBits(special);
        }
    }
};

template <class T, Level L>
using PowRealBody = PowBody<T, L, PowDomain::Real>;
template <class T, Level L>
using PowrBody = PowBody<T, L, PowDomain::NonNegative>;

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, Pow, Binary, PowRealBody)
BRENN_FLAT_LEVEL_KERNELS(d, Pow, Binary, PowRealBody)
ZAR_LEVEL_KERNELS(s, Powr, Binary, PowrBody)
BRENN_FLAT_LEVEL_KERNELS(d, Powr, Binary, PowrBody)
}
